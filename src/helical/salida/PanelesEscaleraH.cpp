#include "helical/salida/PanelesEscaleraH.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "helical/EstacionesHelice.h"

namespace trabex::helices::salida {

namespace {

using Celdas = std::vector<almacen::Valor>;
using documento::ColumnaDeTabla;
using documento::FilaDeTabla;

constexpr double BarraDelgada = 0.71;  // cm², a leg of 3/8"

/// Headings of two levels: what a column belongs to, and what it holds.
std::vector<ColumnaDeTabla> ColumnasDeSolicitaciones() {
    const std::string fuerza = "#,##0.00";
    return {{"grados", "Progresiva", "0", 20},
            {"N\n(kgf)", "Normal", fuerza, 26},
            {"QX\n(kgf)", "Cortes", fuerza, 26},
            {"QY\n(kgf)", "Cortes", fuerza, 26},
            {"MX (Inf)\n(kgf·m)", "Momentos", fuerza, 26},
            {"MX (Sup)\n(kgf·m)", "Momentos", fuerza, 26},
            {"MY\n(kgf·m)", "Momentos", fuerza, 26},
            {"MT\n(kgf·m)", "Torsión", fuerza, 26},
            {"TU\n(kgf·m²)", "Torsión", fuerza, 26}};
}

std::vector<ColumnaDeTabla> ColumnasDeDiseno() {
    const std::string acero = "#,##0.00";
    return {{"grados", "Progresiva", "0", 20},
            {"ASX (Inf)\n(cm²)", "Refuerzo por Flexión", acero, 24},
            {"ASX (Sup)\n(cm²)", "Refuerzo por Flexión", acero, 24},
            {"ASX/Cara\n(cm²)", "Torsión", acero, 24},
            {"ASX (Mín)\n(cm²)", "", acero, 24},
            {"ASX (Inf)\n(cm²)", "Refuerzo de Diseño", acero, 24},
            {"ASX (Sup)\n(cm²)", "Refuerzo de Diseño", acero, 24},
            {"ASY\n(cm²)", "Refuerzo de Diseño", acero, 24},
            {"Estribos", "", "", 30, documento::Alineacion::Centro}};
}

struct Encabezados {
    const char* Superior;
    const char* Centro;
    const char* Inferior;
};
/// The repeated words are the system's own.
constexpr Encabezados DeSolicitaciones{"APOYO SUPERIOR DE LA ESCALERA DE LA ESCALERA HELICOIDAL",
                                       "CENTRO DE LA ESCALERA HELICOIDAL",
                                       "APOYO INFERIOR DE LA ESCALERA HELICOIDAL"};
constexpr Encabezados DeDiseno{"APOYO SUPERIOR DE LA ESCALERA HELICOIDAL", DeSolicitaciones.Centro,
                               DeSolicitaciones.Inferior};

FilaDeTabla Linea(std::string texto, bool encabezado = false) {
    return {{std::move(texto)}, encabezado, true};
}

/// The stations of both halves under their headings; `celdas` are those of one beside its angle.
template <class CeldasDe>
cuadricula::HojaDeCuadricula Panel(const EscaleraHCalculada& escalera, const char* nombre,
                                   std::vector<ColumnaDeTabla> columnas, const Encabezados& encabezados,
                                   CeldasDe celdas) {
    cuadricula::HojaDeCuadricula hoja;
    hoja.Nombre = nombre;
    hoja.Celdas.Columnas = std::move(columnas);
    const ResultadosEscaleraH& r = escalera.Resultados;
    if (r.TramoSuperior.empty() || r.Error) return hoja;
    std::vector<FilaDeTabla>& filas = hoja.Celdas.Filas;
    const EstacionesHelice estaciones = EstacionesDe(escalera.Datos);
    const auto agregar = [&](int grados, const EstacionEscaleraH& estacion) {
        Celdas fila = celdas(estacion);
        fila.insert(fila.begin(), static_cast<std::int16_t>(grados));
        filas.push_back({std::move(fila)});
    };
    filas.push_back(Linea(encabezados.Superior, true));
    for (std::size_t i = 1; i <= r.NEst; ++i) agregar(-estaciones.GradosSuperior(i), r.TramoSuperior[i]);
    filas.push_back(Linea(encabezados.Centro, true));
    for (std::size_t i = 1; i <= r.NEst; ++i) agregar(estaciones.GradosInferior(i), r.TramoInferior[i]);
    filas.push_back(Linea(encabezados.Inferior, true));
    return hoja;
}

std::string Estribos(const EstacionEscaleraH& e) {
    return (e.AsT == BarraDelgada ? "E 3/8 @" : "E 1/2 @") + Formato(e.SEP, "0", {});
}

}  // namespace

cuadricula::HojaDeCuadricula ColoqueSolicitaciones(const EscaleraHCalculada& escalera) {
    cuadricula::HojaDeCuadricula hoja = Panel(
        escalera, "Solicitaciones", ColumnasDeSolicitaciones(), DeSolicitaciones,
        [](const EstacionEscaleraH& e) { return Celdas{e.N, e.QX, e.QY, e.MI1, e.MS1, e.MY, e.MT, e.TU}; });
    std::vector<FilaDeTabla>& filas = hoja.Celdas.Filas;
    if (filas.empty()) return hoja;
    const double FV = escalera.Resultados.FV;
    const double Fh = escalera.Resultados.Fh;
    const std::array<std::pair<const char*, double>, 4> reacciones{
        {{" Reacción Vertical en el Apoyo Superior = ", FV},
         {" Reacción Horizontal en el Apoyo Superior = ", -Fh},
         {" Reacción Vertical en el Apoyo Inferior = ", FV},
         {" Reacción Horizontal en el Apoyo Inferior = ", Fh}}};
    filas.push_back(Linea("REACCiÖN SOBRE LOS APOYOS:", true));
    for (const auto& [texto, valor] : reacciones)
        filas.push_back(Linea(texto + Formato(valor, "0", {}) + " kgf"));
    return hoja;
}

cuadricula::HojaDeCuadricula ColoqueDiseno(const EscaleraHCalculada& escalera) {
    return Panel(escalera, "Diseño", ColumnasDeDiseno(), DeDiseno, [](const EstacionEscaleraH& e) {
        const double porCara = e.LON / 2;
        const auto diseno = [&](double flexion) { return std::max(porCara + flexion, e.ASMin); };
        return Celdas{e.ASXI, e.ASXS, porCara, e.ASMin, diseno(e.ASXI), diseno(e.ASXS), e.AsY, Estribos(e)};
    });
}

}  // namespace trabex::helices::salida
