#include "reports/salidas/qt/PiezaTabla.h"

#include <algorithm>
#include <numeric>

#include "base/Texto.h"

namespace trabex::salidas::qt {

namespace {

const QColor TinteDeCelda(0x1A, 0x1A, 0x1A);
const QColor FondoDeTitulo(0xE6, 0xED, 0xF4);
const QColor RayaDeTitulo(0x8F, 0xA3, 0xB8);
const QColor RayaDeFila(0xD0, 0xD7, 0xDE);

constexpr double Margen = 0.9 * Milimetro;  // between a cell's side and its text
constexpr double Grosor = 0.12 * Milimetro;
constexpr double EntreLineas = 0.25;  // blank of a row, in heights of its font
constexpr double LetraMenor = 0.5;    // letters of a table that does not fit get no smaller than this part

double Suma(const std::vector<double>& valores) {
    return std::accumulate(valores.begin(), valores.end(), 0.0);
}

/// Widths near `deseados` and not below `minimos`, that together fill at most `ancho`.
std::vector<double> Repartir(const std::vector<double>& deseados, const std::vector<double>& minimos,
                             double ancho) {
    std::vector<double> anchos;
    for (std::size_t i = 0; i < deseados.size(); ++i) anchos.push_back(std::max(deseados[i], minimos[i]));
    const double sobra = Suma(anchos) - ancho;
    const double holgura = Suma(anchos) - Suma(minimos);
    if (sobra <= 0 || holgura <= 0) return anchos;
    const double parte = std::min(1.0, sobra / holgura);
    for (std::size_t i = 0; i < anchos.size(); ++i) anchos[i] -= parte * (anchos[i] - minimos[i]);
    return anchos;
}

}  // namespace

PiezaTabla::PiezaTabla(const documento::Tabla& tabla, const documento::Documento& documento,
                       const Letras& letras, double ancho)
    : tabla_(tabla), separadores_(documento.Locales), normal_(&letras.Normal), negrita_(&letras.Negrita) {
    MedirColumnas(documento.Letra, ancho);
    MedirFilas();
}

void PiezaTabla::Achicar(double puntos) {
    chica_ = std::make_unique<const TipoDeLetra>(puntos, false);
    chicaNegrita_ = std::make_unique<const TipoDeLetra>(puntos, true);
    normal_ = chica_.get();
    negrita_ = chicaNegrita_.get();
}

std::string PiezaTabla::TextoDeCelda(std::size_t fila, std::size_t columna) const {
    const std::vector<almacen::Valor>& celdas = tabla_.Filas[fila].Celdas;
    if (columna >= celdas.size()) return {};
    return documento::TextoDeValor(celdas[columna], tabla_.Columnas[columna].Formato, separadores_);
}

QString PiezaTabla::Celda(std::size_t fila, std::size_t columna) const {
    return QString::fromStdString(TextoDeCelda(fila, columna));
}

std::vector<double> PiezaTabla::AnchosMinimos() const {
    std::vector<double> minimos;
    for (std::size_t i = 0; i < tabla_.Columnas.size(); ++i) {
        double ancho = negrita_->AnchoDePalabra(QString::fromStdString(tabla_.Columnas[i].Titulo));
        for (std::size_t fila = 0; fila < tabla_.Filas.size(); ++fila) {
            if (tabla_.Abarca(tabla_.Filas[fila], i) > 1) continue;
            const TipoDeLetra& letra = tabla_.Filas[fila].Destacada ? *negrita_ : *normal_;
            const std::string llano = TextoDeCelda(fila, i);
            if (!SeParte(i) && EsLlano(llano, {})) {
                ancho = std::max(ancho, letra.AnchoLlano(llano));
                continue;
            }
            const QString texto = QString::fromStdString(llano);
            // A long word gives way: it can be broken where a number can not.
            const double entero = letra.Ancho(texto);
            const double preciso =
                SeParte(i) ? std::min(letra.AnchoDePalabra(texto), 25 * Milimetro) : entero;
            ancho = std::max(ancho, preciso);
        }
        minimos.push_back(ancho + 2 * Margen);
    }
    for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla_)) {
        const auto primera = minimos.begin() + static_cast<std::ptrdiff_t>(grupo.Desde);
        const auto fin = primera + static_cast<std::ptrdiff_t>(grupo.Cuantas);
        const double falta = negrita_->AnchoDePalabra(QString::fromStdString(grupo.Titulo)) + 2 * Margen -
                             std::accumulate(primera, fin, 0.0);
        if (falta <= 0) continue;
        for (auto minimo = primera; minimo != fin; ++minimo)
            *minimo += falta / static_cast<double>(grupo.Cuantas);
    }
    return minimos;
}

void PiezaTabla::MedirColumnas(double puntos, double ancho) {
    std::vector<double> deseados = tabla_.Anchos(ancho / Milimetro);
    for (double& deseado : deseados) deseado *= Milimetro;
    std::vector<double> minimos = AnchosMinimos();
    if (Suma(minimos) > ancho) {
        Achicar(puntos * std::max(LetraMenor, 0.99 * ancho / Suma(minimos)));
        minimos = AnchosMinimos();
    }
    anchos_ = Repartir(deseados, minimos, ancho);
}

QStringList PiezaTabla::LineasDeCelda(std::size_t fila, std::size_t columna) const {
    const QString texto = Celda(fila, columna);
    const documento::FilaDeTabla& suya = tabla_.Filas[fila];
    if (tabla_.Lado(suya, columna) != documento::Alineacion::Izquierda) return QStringList(texto);
    const TipoDeLetra& letra = suya.Destacada ? *negrita_ : *normal_;
    return letra.Lineas(texto, Ancho(columna, tabla_.Abarca(suya, columna)) - 2 * Margen);
}

QStringList PiezaTabla::LineasDeTitulo(const std::string& titulo, double ancho) const {
    return negrita_->Lineas(QString::fromStdString(titulo), ancho - 2 * Margen);
}

double PiezaTabla::Ancho(std::size_t desde, std::size_t cuantas) const {
    const auto primera = anchos_.begin() + static_cast<std::ptrdiff_t>(desde);
    return std::accumulate(primera, primera + static_cast<std::ptrdiff_t>(cuantas), 0.0);
}

void PiezaTabla::MedirTitulos(const std::function<double(qsizetype lineas)>& alto) {
    for (std::size_t i = 0; i < anchos_.size(); ++i)
        altoTitulos_ =
            std::max(altoTitulos_, alto(LineasDeTitulo(tabla_.Columnas[i].Titulo, anchos_[i]).size()));
    if (!tabla_.TieneGrupos()) return;
    for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla_)) {
        const double ancho = Ancho(grupo.Desde, grupo.Cuantas);
        altoGrupos_ = std::max(altoGrupos_, alto(LineasDeTitulo(grupo.Titulo, ancho).size()));
    }
}

void PiezaTabla::MedirFilas() {
    const auto alto = [this](qsizetype lineas) {
        return (static_cast<double>(lineas) + EntreLineas) * normal_->Alto();
    };
    if (tabla_.Estilo.Titulos) MedirTitulos(alto);
    for (std::size_t fila = 0; fila < tabla_.Filas.size(); ++fila) {
        qsizetype lineas = 1;
        for (std::size_t i = 0; i < anchos_.size(); ++i)
            if (tabla_.Lado(tabla_.Filas[fila], i) == documento::Alineacion::Izquierda)
                lineas = std::max(lineas, LineasDeCelda(fila, i).size());
        altos_.push_back(alto(lineas));
    }
}

double PiezaTabla::Alto(std::size_t desde, std::size_t hasta) const {
    return altoGrupos_ + altoTitulos_ +
           std::accumulate(altos_.begin() + static_cast<std::ptrdiff_t>(desde),
                           altos_.begin() + static_cast<std::ptrdiff_t>(hasta), 0.0);
}

void PiezaTabla::PintarTitulo(Tinta& tinta, const QRectF& donde, const std::string& titulo) const {
    const QStringList lineas = LineasDeTitulo(titulo, donde.width());
    double y = donde.bottom() - (static_cast<double>(lineas.size()) + EntreLineas / 2) * normal_->Alto() +
               normal_->Ascenso();
    for (const QString& linea : lineas) {
        const double x = donde.center().x() - negrita_->Ancho(linea) / 2;
        if (!linea.isEmpty()) tinta.Texto({x, y}, linea, *negrita_, TinteDeCelda);
        y += normal_->Alto();
    }
}

QColor PiezaTabla::Tono(const QColor& color) const {
    const int gris = qGray(color.rgb());
    return tabla_.Estilo.Color ? color : QColor(gris, gris, gris);
}

void PiezaTabla::PintarFondo(Tinta& tinta, const QRectF& donde) const {
    if (tabla_.Estilo.Sombras) tinta.Fondo(donde, Tono(FondoDeTitulo));
}

/// Paints the header and tells how high it is. A column without group takes the height of both rows.
double PiezaTabla::PintarCabecera(Tinta& tinta, const QPointF& esquina) const {
    const double alto = altoGrupos_ + altoTitulos_;
    const QColor raya = Tono(RayaDeTitulo);
    if (!tabla_.Estilo.Titulos) return 0;
    const double ancho = Suma(anchos_);
    PintarFondo(tinta, {esquina.x(), esquina.y(), ancho, alto});
    double x = esquina.x();
    for (const documento::GrupoDeColumnas& grupo : documento::GruposDe(tabla_)) {
        const double anchoGrupo = Ancho(grupo.Desde, grupo.Cuantas);
        const bool conGrupo = !grupo.Titulo.empty();
        if (conGrupo) {
            PintarTitulo(tinta, {x, esquina.y(), anchoGrupo, altoGrupos_}, grupo.Titulo);
            tinta.Raya({x, esquina.y() + altoGrupos_}, {x + anchoGrupo, esquina.y() + altoGrupos_}, Grosor,
                       raya);
        }
        double xColumna = x;
        for (std::size_t i = grupo.Desde; i < grupo.Desde + grupo.Cuantas; ++i) {
            const double arriba = conGrupo ? altoGrupos_ : 0;
            PintarTitulo(tinta, {xColumna, esquina.y() + arriba, anchos_[i], alto - arriba},
                         tabla_.Columnas[i].Titulo);
            tinta.Raya({xColumna, esquina.y() + (i == grupo.Desde ? 0 : arriba)},
                       {xColumna, esquina.y() + alto}, Grosor, raya);
            xColumna += anchos_[i];
        }
        x += anchoGrupo;
    }
    tinta.Raya({x, esquina.y()}, {x, esquina.y() + alto}, Grosor, raya);
    for (const double y : {esquina.y(), esquina.y() + alto})
        tinta.Raya({esquina.x(), y}, {x, y}, Grosor, raya);
    return alto;
}

void PiezaTabla::PintarFila(Tinta& tinta, const QPointF& esquina, std::size_t fila) const {
    const documento::FilaDeTabla& suya = tabla_.Filas[fila];
    const bool destacada = suya.Destacada;
    const TipoDeLetra& letra = destacada ? *negrita_ : *normal_;
    const double pie = esquina.y() + altos_[fila];
    if (tabla_.Estilo.PrimeraEsTitulo)
        PintarFondo(tinta, {esquina.x(), esquina.y(), anchos_.front(), altos_[fila]});
    double x = esquina.x();
    for (std::size_t i = 0; i < anchos_.size(); i += tabla_.Abarca(suya, i)) {
        const double ancho = Ancho(i, tabla_.Abarca(suya, i));
        if (tabla_.Estilo.Lineas) tinta.Raya({x, esquina.y()}, {x, pie}, Grosor, Tono(RayaDeFila));
        const documento::Alineacion lado = tabla_.Lado(suya, i);
        double y = esquina.y() + EntreLineas / 2 * letra.Alto() + letra.Ascenso();
        if (lado == documento::Alineacion::Izquierda) {
            for (const QString& linea : LineasDeCelda(fila, i)) {
                if (!linea.isEmpty()) tinta.Texto({x + Margen, y}, linea, letra, TinteDeCelda);
                y += letra.Alto();
            }
        } else {
            const auto sangria = [&](double anchoDeTexto) {
                const double hueco = ancho - anchoDeTexto;
                return lado == documento::Alineacion::Centro ? hueco / 2 : hueco - Margen;
            };
            const std::string texto = TextoDeCelda(fila, i);
            if (EsLlano(texto, {})) {
                if (!texto.empty())
                    tinta.TextoLlano({x + sangria(letra.AnchoLlano(texto)), y}, texto, letra, TinteDeCelda);
            } else {
                const QString linea = QString::fromStdString(texto);
                tinta.Texto({x + sangria(letra.Ancho(linea)), y}, linea, letra, TinteDeCelda);
            }
        }
        x += ancho;
    }
    if (tabla_.Estilo.Lineas) tinta.Raya({x, esquina.y()}, {x, pie}, Grosor, Tono(RayaDeFila));
    tinta.Raya({esquina.x(), pie}, {x, pie}, Grosor, Tono(RayaDeFila));
    if (destacada) tinta.Raya(esquina, {x, esquina.y()}, 2 * Grosor, TinteDeCelda);
}

void PiezaTabla::Pintar(Tinta& tinta, const QPointF& esquina, std::size_t desde, std::size_t hasta) const {
    double y = esquina.y() + PintarCabecera(tinta, esquina);
    for (std::size_t fila = desde; fila < hasta; ++fila) {
        PintarFila(tinta, {esquina.x(), y}, fila);
        y += altos_[fila];
    }
}

}  // namespace trabex::salidas::qt
