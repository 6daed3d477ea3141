#include "reports/salidas/qt/Paginador.h"

#include <algorithm>
#include <array>
#include <utility>

namespace trabex::salidas::qt {

namespace {

const QColor TinteDeMembrete(0x1A, 0x1A, 0x1A);
const QColor TinteDeBanda(0x60, 0x60, 0x60);
const QColor RayaDeBanda(0x8F, 0xA3, 0xB8);
constexpr double AireDeBanda = 3 * Milimetro;  // from the text of the page to its header and footer

QString ConNumeros(const std::string& texto, int pagina, int paginas) {
    QString salida = QString::fromStdString(texto);
    salida.replace(QChar(documento::MarcaPagina), QString::number(pagina));
    return salida.replace(QChar(documento::MarcaPaginas), QString::number(paginas));
}

bool EsVacia(const documento::BandaDePagina& banda) {
    return banda.Izquierda.empty() && banda.Centro.empty() && banda.Derecha.empty();
}

}  // namespace

Paginador::Paginador(const documento::Documento& documento, const documento::MedidaPagina& hoja)
    : documento_(documento),
      hoja_(hoja),
      letras_(documento.Letra),
      util_(QSizeF(hoja.Ancho - documento.Papel.MargenIzquierdo - documento.Papel.MargenDerecho,
                   hoja.Alto - documento.Papel.MargenSuperior - documento.Papel.MargenInferior) *
            Milimetro) {
    ComponerMembrete();
    util_.rheight() -= altoMembrete_;
    paginas_.emplace_back();
    for (const documento::Seccion& seccion : documento.Secciones) {
        Piezas piezas;
        for (const documento::Bloque& bloque : seccion.Bloques)
            piezas.push_back(PiezaDe(bloque, documento, letras_, util_));
        Colocar(seccion, piezas);
        std::move(piezas.begin(), piezas.end(), std::back_inserter(piezas_));
    }
    for (const auto& pieza : piezas_)
        if (pieza) pieza->Numerar(comienzos_);
}

void Paginador::ComponerMembrete() {
    for (const documento::LineaDeMembrete& linea : documento_.Papel.Membrete) {
        const auto letra = std::make_shared<const TipoDeLetra>(linea.Puntos, linea.Negrita);
        for (const QString& texto : letra->Lineas(QString::fromStdString(linea.Texto), util_.width())) {
            membrete_.push_back({texto, letra, altoMembrete_ + letra->Ascenso()});
            altoMembrete_ += letra->Alto();
        }
    }
    if (!membrete_.empty()) altoMembrete_ += AireDeBanda;
    // A head that leaves no room for the text is cut at half a page.
    altoMembrete_ = std::min(altoMembrete_, util_.height() / 2);
}

void Paginador::PaginaNueva() {
    paginas_.emplace_back();
    y_ = 0;
}

/// What must stand together where box `i` begins: headings with the beginning of what follows them.
double Paginador::AltoPrincipio(const Piezas& piezas, std::size_t i) const {
    double alto = 0;
    for (; i < piezas.size() && piezas[i]; ++i) {
        alto += piezas[i]->Antes() + piezas[i]->Alto(0, piezas[i]->FilasDelPrincipio());
        if (!piezas[i]->ConLaSiguiente()) break;
        alto += piezas[i]->Despues();
    }
    return alto;
}

double Paginador::AltoTotal(const Piezas& piezas) const {
    double alto = 0;
    for (const auto& pieza : piezas)
        alto += pieza ? pieza->Antes() + pieza->Alto(0, pieza->Filas()) + pieza->Despues() : util_.height();
    return alto;
}

void Paginador::Colocar(const documento::Seccion& seccion, const Piezas& piezas) {
    const double total = seccion.Junta ? AltoTotal(piezas) : 0;
    if (!AlPrincipio() && (seccion.PaginaNueva || total > util_.height() - y_)) PaginaNueva();
    bool marcada = false;
    for (std::size_t i = 0; i < piezas.size(); ++i) {
        if (!piezas[i]) {
            if (!AlPrincipio()) PaginaNueva();
            continue;
        }
        if (!AlPrincipio() && y_ + AltoPrincipio(piezas, i) > util_.height()) {
            // A picture names itself, and may need the whole page.
            const bool esImagen = std::holds_alternative<documento::Imagen>(seccion.Bloques[i]);
            if (marcada && !esImagen)
                Continuar(seccion);
            else
                PaginaNueva();
        }
        if (!marcada) Marcar(seccion);
        marcada = true;
        ColocarPieza(*piezas[i], seccion);
    }
}

void Paginador::Marcar(const documento::Seccion& seccion) {
    comienzos_.push_back({seccion.Nombre, NumeroPaginas() - 1,
                          documento_.Papel.MargenSuperior * Milimetro + altoMembrete_ + y_});
}

/// A page in the middle of a section says whose it is.
void Paginador::Continuar(const documento::Seccion& seccion) {
    PaginaNueva();
    if (seccion.Nombre.empty()) return;
    piezas_.push_back(
        PiezaDe(documento::Titulo{3, seccion.Nombre + " (continuación)"}, documento_, letras_, util_));
    paginas_.back().push_back({piezas_.back().get(), 0, 0, piezas_.back()->Filas()});
    y_ = piezas_.back()->Alto(0, piezas_.back()->Filas()) + piezas_.back()->Despues();
}

void Paginador::ColocarPieza(const Pieza& pieza, const documento::Seccion& seccion) {
    if (!AlPrincipio()) y_ += pieza.Antes();
    for (std::size_t desde = 0; desde < pieza.Filas();) {
        std::size_t hasta = desde + 1;
        double alto = pieza.Alto(desde, hasta);
        while (hasta < pieza.Filas()) {
            const double siguiente = pieza.Alto(hasta, hasta + 1) - pieza.Alto(hasta, hasta);
            if (y_ + alto + siguiente > util_.height()) break;
            alto += siguiente;
            ++hasta;
        }
        if (hasta + 1 == pieza.Filas() && hasta - desde > 2) --hasta;  // the last row is not left alone
        paginas_.back().push_back({&pieza, y_, desde, hasta});
        y_ += pieza.Alto(desde, hasta);
        desde = hasta;
        if (desde < pieza.Filas()) Continuar(seccion);
    }
    y_ += pieza.Despues();
}

void Paginador::Pintar(int pagina, Tinta& tinta) const {
    const documento::Pagina& hoja = documento_.Papel;
    const QPointF esquina =
        QPointF(hoja.MargenIzquierdo, hoja.MargenSuperior) * Milimetro + QPointF(0, altoMembrete_);
    PintarMembrete(tinta);
    for (const Trozo& trozo : paginas_[static_cast<std::size_t>(pagina)])
        trozo.De->Pintar(tinta, esquina + QPointF(0, trozo.Y), trozo.Desde, trozo.Hasta);
    const double derecha = esquina.x() + util_.width();
    const TipoDeLetra& letra = letras_.Chica;
    if (!EsVacia(hoja.Encabezado)) {
        const double raya = esquina.y() - altoMembrete_ - AireDeBanda;
        PintarBanda(tinta, hoja.Encabezado, raya - letra.Alto() * 1.2 + letra.Ascenso(), pagina);
        tinta.Raya({esquina.x(), raya}, {derecha, raya}, 0.15 * Milimetro, RayaDeBanda);
    }
    if (!EsVacia(hoja.Pie)) {
        const double raya = esquina.y() + util_.height() + AireDeBanda;
        tinta.Raya({esquina.x(), raya}, {derecha, raya}, 0.15 * Milimetro, RayaDeBanda);
        PintarBanda(tinta, hoja.Pie, raya + letra.Alto() * 0.2 + letra.Ascenso(), pagina);
    }
}

void Paginador::PintarMembrete(Tinta& tinta) const {
    const documento::Pagina& hoja = documento_.Papel;
    const QPointF esquina = QPointF(hoja.MargenIzquierdo, hoja.MargenSuperior) * Milimetro;
    constexpr std::array<double, 3> lugares{0, 0.5, 1};
    for (const LineaCompuesta& linea : membrete_) {
        if (linea.Base > altoMembrete_) return;
        const double hueco = util_.width() - linea.Letra->Ancho(linea.Texto);
        const double x = lugares[static_cast<std::size_t>(hoja.LadoDeMembrete)] * hueco;
        tinta.Texto(esquina + QPointF(x, linea.Base), linea.Texto, *linea.Letra, TinteDeMembrete);
    }
}

/// The texts of a band beside one another; one that would run into its neighbour is cut short.
void Paginador::PintarBanda(Tinta& tinta, const documento::BandaDePagina& banda, double base,
                            int pagina) const {
    const std::array<std::pair<const std::string*, double>, 3> textos{
        {{&banda.Izquierda, 0.0}, {&banda.Centro, 0.5}, {&banda.Derecha, 1.0}}};
    const auto llenos =
        std::count_if(textos.begin(), textos.end(), [](const auto& t) { return !t.first->empty(); });
    const double sitio =
        (util_.width() - 5 * Milimetro * static_cast<double>(llenos - 1)) / static_cast<double>(llenos);
    for (const auto& [texto, lugar] : textos) {
        if (texto->empty()) continue;
        QString linea = ConNumeros(*texto, pagina + 1, NumeroPaginas()).replace('\n', ' ');
        if (letras_.Chica.Ancho(linea) > sitio)
            linea = QFontMetricsF(letras_.Chica.Fuente()).elidedText(linea, Qt::ElideRight, sitio);
        const double hueco = util_.width() - letras_.Chica.Ancho(linea);
        tinta.Texto({documento_.Papel.MargenIzquierdo * Milimetro + lugar * hueco, base}, linea,
                    letras_.Chica, TinteDeBanda);
    }
}

}  // namespace trabex::salidas::qt
