#include "slab/ui/LosaDatos.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Enteros.h"
#include "slab/CalcularLosa.h"
#include "slab/ValoresLosa.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::ui {

namespace {

constexpr double Losa::*CampoDe(CampoSeccion campo) {
    constexpr std::array<double Losa::*, 5> campos{&Losa::Bo, &Losa::Ho, &Losa::So, &Losa::Loseta, &Losa::Hm};
    return campos[static_cast<std::size_t>(campo)];
}

/// The first field that may not be 0 and is.
std::optional<CampoSeccion> PrimerCero(const Losa& losa) {
    if (losa.OpcionMaciza) return losa.Hm == 0 ? std::optional(CampoSeccion::Hm) : std::nullopt;
    for (const CampoSeccion campo : {CampoSeccion::Bo, CampoSeccion::Ho, CampoSeccion::So}) {
        if (losa.*CampoDe(campo) == 0) return campo;
    }
    return std::nullopt;
}

/// Cuts or lengthens `filas`; what is cut stays in `cortadas` and comes back from there.
template <class Fila>
void Redimensionar(std::vector<Fila>& filas, std::vector<Fila>& cortadas, std::size_t cuantas) {
    if (cortadas.size() < filas.size()) cortadas.resize(filas.size());
    std::copy(filas.begin(), filas.end(), cortadas.begin());
    const std::size_t quedaban = filas.size();
    filas.resize(cuantas);
    for (std::size_t i = quedaban; i < std::min(cuantas, cortadas.size()); ++i) filas[i] = cortadas[i];
}

}  // namespace

LosaDatos::LosaDatos(Losas& losas, PantallaLosaDatos& pantalla, programa::CajaMensajes& caja)
    : losas_(losas), pantalla_(pantalla), caja_(caja) {}

void LosaDatos::Abrir() {
    modificada_ = false;
    edicion_ = losas_.Estado().Abierta;
    OlvidarCortados();
    edicion_.Ejes.resize(edicion_.Tramos.size() + 1);  // one joint more than spans, whatever the file held
    tramo_ = std::min<std::size_t>(1, NumeroDeTramos());
    pantalla_.Rellenar();
    cambios_ = false;
}

std::string LosaDatos::LeyendaDeCargas() const {
    return std::string("Cargas de Servicio en los Tramos por ") +
           (edicion_.OpcionMaciza ? "metro lineal" : "Nervio");
}

void LosaDatos::Cambiado() {
    cambios_ = true;
    pantalla_.Redibujar();
}

void LosaDatos::PonerMaciza(bool maciza) {
    edicion_.OpcionMaciza = maciza;
    Cambiado();
}

void LosaDatos::PonerSeccion(CampoSeccion campo, double valor) {
    edicion_.*CampoDe(campo) = valor;
    Cambiado();
}

double LosaDatos::Seccion(CampoSeccion campo) const {
    return edicion_.*CampoDe(campo);
}

void LosaDatos::PonerNumeroTramos(std::size_t tramos) {
    Redimensionar(edicion_.Tramos, tramosCortados_, tramos + 1);
    Redimensionar(edicion_.Ejes, ejesCortados_, tramos + 2);
    for (std::size_t j = 1; j < edicion_.Ejes.size(); ++j) {
        if (edicion_.Ejes[j].Tipo == 0) edicion_.Ejes[j].Tipo = ApoyoFijo;
    }
    tramo_ = tramos == 0 ? 0 : std::clamp<std::size_t>(tramo_, 1, tramos);
    cambios_ = true;
    pantalla_.Refrescar();
}

void LosaDatos::PonerEje(std::size_t junta, const std::string& eje) {
    edicion_.Ejes[junta].Eje = eje;
    Cambiado();
}

void LosaDatos::PonerLongitud(std::size_t tramo, double LT) {
    edicion_.Tramos[tramo].LT = LT;
    Cambiado();
}

bool LosaDatos::PonerTipo(std::size_t junta, std::int64_t tipo) {
    if (tipo < ApoyoFijo || tipo > SinApoyo) {
        caja_.Mostrar(programa::Aviso("El Tipo de Apoyo no puede ser < 1 ni > 5", "Apoyos Restringidos..."));
        return false;
    }
    edicion_.Ejes[junta].Tipo = Entero16(tipo);
    Cambiado();
    return true;
}

bool LosaDatos::PonerNumeroJuntasD(std::size_t juntas) {
    const std::size_t ultima = NumeroDeTramos() + 1;
    if (juntas > ultima) {
        caja_.Mostrar(
            programa::Aviso("El Número de Juntas Desplazadas no puede ser > " + std::to_string(ultima),
                            "Juntas Desplazadas..."));
        return false;
    }
    edicion_.JuntasD.resize(juntas + 1);
    cambios_ = true;
    pantalla_.Refrescar();
    return true;
}

bool LosaDatos::PonerJunta(std::size_t registro, std::int64_t junta) {
    const auto ultima = static_cast<std::int64_t>(NumeroDeTramos()) + 1;
    if (junta > ultima) {
        caja_.Mostrar(programa::Aviso("El Numero de la Junta no puede ser > que " + std::to_string(ultima),
                                      "Juntas Desplazadas..."));
        return false;
    }
    edicion_.JuntasD[registro].Junta = Entero16(std::max<std::int64_t>(0, junta));
    Cambiado();
    return true;
}

void LosaDatos::PonerCorrimiento(std::size_t registro, double x, double y) {
    edicion_.JuntasD[registro].x = x;
    edicion_.JuntasD[registro].y = y;
    Cambiado();
}

void LosaDatos::PonerCargas(std::size_t tramo, const Tramo& cargas) {
    const double LT = edicion_.Tramos[tramo].LT;
    edicion_.Tramos[tramo] = cargas;
    edicion_.Tramos[tramo].LT = LT;
    Cambiado();
}

void LosaDatos::CopiarTramo(std::size_t desde, const std::vector<std::size_t>& a, const QueCopiar& que) {
    const Tramo de = edicion_.Tramos.at(desde);
    for (const std::size_t i : a) {
        Tramo& tramo = edicion_.Tramos.at(i);
        if (que.Longitud) tramo.LT = de.LT;
        if (que.CargaUniforme) tramo.Wp = de.Wp, tramo.WV = de.WV;
        if (que.CargaPuntual) tramo.p1 = de.p1, tramo.L1 = de.L1;
    }
    cambios_ = true;
    pantalla_.Refrescar();
}

std::string LosaDatos::MomentosDePrueba(const Separadores& numeros) const {
    constexpr std::size_t tramosConTodos = 10;
    constexpr std::size_t tramosAlMomento = 500;  // past them a calculation would hold up the keys
    const std::size_t N = NumeroDeTramos();
    if (N == 0 || N > tramosAlMomento) return {};
    Losa prueba = edicion_;
    prueba.Bm = 1;
    ResultadosLosa resultados;
    CalcularLosa(prueba, losas_.Programa().Generales, resultados);
    if (resultados.DisenoTramo.size() != N + 1 || resultados.Error || !resultados.DireccionesLibres.empty())
        return {};
    const auto numero = [&](double momento) { return Formato(momento, "#,##0", numeros); };
    std::string texto = "Momentos de prueba (kgf·m):  ";
    if (N > tramosConTodos)
        return texto + "máximo en apoyos " + numero(resultados.MaxMomentoApoyo) + ", en tramos " +
               numero(resultados.MaxMomentoTramo);
    const LosaCalculada calculada{prueba, losas_.Programa().Generales, resultados};
    for (std::size_t j = 1; j <= N + 1; ++j) {
        const std::string& eje = prueba.Ejes[j].Eje;
        texto += (eje.empty() ? std::to_string(j) : eje) + ": " + numero(MomentoSuperior(calculada, j));
        if (j <= N) texto += " | " + numero(resultados.DisenoTramo[j].MT) + " | ";
    }
    return texto;
}

void LosaDatos::PulsarTipo(std::int16_t tipo) {
    const std::size_t fila = pantalla_.FilaDeApoyo();
    if (fila < 1 || fila >= edicion_.Ejes.size()) return;
    PonerTipo(fila, tipo);
    pantalla_.IrAFilaDeApoyo(std::min(fila + 1, edicion_.Ejes.size() - 1));
}

void LosaDatos::MoverATramo(std::size_t tramo) {
    if (tramo < 1 || tramo > NumeroDeTramos()) return;
    tramo_ = tramo;
    pantalla_.Redibujar();
}

void LosaDatos::AbrirCarga(bool (PantallaLosaDatos::*mostrar)(const EntradaDeCarga&)) {
    if (tramo_ == 0) return;
    modificada_ = (pantalla_.*mostrar)({edicion_, tramo_});
    if (modificada_) cambios_ = true;
    pantalla_.Refrescar();
}

void LosaDatos::CargaUniforme() {
    AbrirCarga(&PantallaLosaDatos::MostrarCarga01);
}

void LosaDatos::CargaPuntual() {
    AbrirCarga(&PantallaLosaDatos::MostrarCarga02);
}

void LosaDatos::OlvidarCortados() {
    tramosCortados_.clear();
    ejesCortados_.clear();
}

bool LosaDatos::ConCeros() {
    const auto cero = PrimerCero(edicion_);
    if (!cero) return false;
    pantalla_.MostrarPagina(PaginaLosa::Seccion);
    pantalla_.EnfocarCampo(*cero);
    return true;
}

bool LosaDatos::Salvar() {
    return !ConCeros() && SalvarDatos();
}

bool LosaDatos::SalvarDatos() {
    Losa guardada = edicion_;
    guardada.Bm = 1;
    if (!almacen::tablas::GuardarLosa(losas_.Programa().Proyecto, guardada)) {
        losas_.Lista().AvisarSinGuardar();
        return false;
    }
    losas_.Estado().Abierta = guardada;
    OlvidarCortados();
    if (edicion_.Loseta != guardada.Loseta) {  // a topping of 0 is stored as the usual one
        edicion_ = guardada;
        pantalla_.Rellenar();
    }
    losas_.Memoria() = {guardada.Ho, guardada.Hm};
    modificada_ = true;
    cambios_ = false;
    return true;
}

/// With unsaved changes asks whether to save them. False when they were to be saved and could not.
bool LosaDatos::SalvarSiSePide(const std::string& texto) {
    if (!cambios_) return true;
    return caja_.Mostrar(programa::PreguntaDeSalvar(texto, "Losas del Proyecto...")) !=
               programa::RespuestaSi ||
           Salvar();
}

bool LosaDatos::PuedeCerrar() {
    if (!SalvarSiSePide("Losa: " + edicion_.Nombre)) return false;
    cambios_ = false;
    return true;
}

void LosaDatos::Retorno() {
    if (PuedeCerrar()) pantalla_.Cerrar();
}

bool LosaDatos::ElegirLosa(int fila) {
    if (!SalvarSiSePide(edicion_.Nombre)) return false;
    const bool modificada = modificada_;
    losas_.Lista().Seleccionar(fila);
    Abrir();
    modificada_ = modificada;
    return true;
}

void LosaDatos::PaginaSiguiente() {
    const int pagina = static_cast<int>(pantalla_.Pagina()) + 1;
    if (pagina < PaginasDeLosa) pantalla_.MostrarPagina(static_cast<PaginaLosa>(pagina));
}

void LosaDatos::PaginaAnterior() {
    const int pagina = static_cast<int>(pantalla_.Pagina()) - 1;
    if (pagina >= 0) pantalla_.MostrarPagina(static_cast<PaginaLosa>(pagina));
}

}  // namespace trabex::losas::ui
