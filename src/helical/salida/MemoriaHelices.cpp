#include "helical/salida/MemoriaHelices.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "base/RefuerzoEscalera.h"
#include "helical/DisenoEscaleraH.h"
#include "lote/BloquesDeMemoria.h"

namespace trabex::helices::salida {

namespace {

using documento::Tabla;
using documento::Titulo;
using lote::ColumnaDeMemoria;

constexpr std::array<const char*, 3> Metodo{
    "La escalera helicoidal, o viga curva si no sube, es una barra de eje helicoidal y sección rectangular, "
    "empotrada en sus dos "
    "extremos, bajo carga uniforme por metro de arco en planta; se resuelve en forma cerrada desde su "
    "centro.",
    "El acero por Mx y My se calcula con FS y resistencia última en cada estación, desde un apoyo hasta el "
    "otro. Los estribos "
    "toman la torsión que el concreto no toma (ACI 318-83, 11.6), con el área del diagrama de torsión de "
    "cada estación.",
    "La separación es entera, no pasa de (x1 + y1)/4 ni de 30 cm; con menos de 8 cm se repite el cálculo con "
    "barra de 1/2\"."};

void Filas(const char* tramo, const std::vector<EstacionEscaleraH>& estaciones, std::size_t cuantas,
           Tabla& tabla) {
    documento::FilaDeTabla rotulo{{std::string(tramo)}};
    rotulo.Rotulo = true;
    tabla.Filas.push_back(std::move(rotulo));
    for (std::size_t i = 1; i <= cuantas && i < estaciones.size(); ++i) {
        const EstacionEscaleraH& e = estaciones[i];
        tabla.Filas.push_back({{static_cast<double>(i), e.N, e.QX, e.QY, e.MX, e.MY, e.MT, e.ASXS, e.ASXI,
                                e.AsY, e.ASMin, e.AsT, e.SEP, e.LON}});
    }
}

Tabla TablaDeEstaciones(const ResultadosEscaleraH& r) {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("No.", "0"),
                      ColumnaDeMemoria("N (kgf)", "#,##0"),
                      ColumnaDeMemoria("Qx (kgf)", "#,##0"),
                      ColumnaDeMemoria("Qy (kgf)", "#,##0"),
                      ColumnaDeMemoria("Mx", "#,##0", "kgf·m"),
                      ColumnaDeMemoria("My", "#,##0", "kgf·m"),
                      ColumnaDeMemoria("T", "#,##0", "kgf·m"),
                      ColumnaDeMemoria("sup.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("inf.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("lat.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("mín.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("A (cm²)", "0.00", "Estribos"),
                      ColumnaDeMemoria("s (cm)", "0", "Estribos"),
                      ColumnaDeMemoria("Al (cm²)", "0.00")};
    Filas("Tramo superior", r.TramoSuperior, r.NEst, tabla);
    Filas("Tramo inferior", r.TramoInferior, r.NEst, tabla);
    return tabla;
}

void PasosQueRigen(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                   const ResultadosEscaleraH& r, const Separadores& numeros,
                   std::vector<documento::Bloque>& bloques) {
    std::vector<EstacionEscaleraH> todas(r.TramoSuperior.begin() + 1,
                                         r.TramoSuperior.begin() + 1 + static_cast<std::ptrdiff_t>(r.NEst));
    todas.insert(todas.end(), r.TramoInferior.begin() + 1,
                 r.TramoInferior.begin() + 1 + static_cast<std::ptrdiff_t>(r.NEst));
    const auto flexion = std::max_element(todas.begin(), todas.end(), [](const auto& a, const auto& b) {
        return std::max(a.ASXS, a.ASXI) < std::max(b.ASXS, b.ASXI);
    });
    const auto torsion = std::max_element(todas.begin(), todas.end(),
                                          [](const auto& a, const auto& b) { return a.SEP > b.SEP; });
    Relato deFlexion, deTorsion;
    RefuerzoEscalera(flexion->MX, escalera.B, escalera.T, generales, Pasos(deFlexion));
    EstribosEscalera(torsion->QX, torsion->TU, escalera.B, escalera.T, generales, Pasos(deTorsion));
    const auto lugar = [&](auto estacion) {
        const auto i = static_cast<std::size_t>(estacion - todas.begin());
        return (i < r.NEst ? " (tramo superior, estación " : " (tramo inferior, estación ") +
               std::to_string(i % r.NEst + 1) + ")";
    };
    bloques.emplace_back(Titulo{3, "Estación que rige por flexión" + lugar(flexion)});
    bloques.emplace_back(lote::TablaDePasos(deFlexion, numeros));
    bloques.emplace_back(Titulo{3, "Estación que rige por torsión" + lugar(torsion)});
    bloques.emplace_back(lote::TablaDePasos(deTorsion, numeros));
}

bool TieneEstaciones(const ResultadosEscaleraH& r) {
    return r.NEst > 0 && r.TramoSuperior.size() > r.NEst && r.TramoInferior.size() > r.NEst;
}

}  // namespace

std::span<const char* const> MetodoDeHelices() {
    return Metodo;
}

lote::ParteDeMemoria MemoriaDeHelice(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                                     const ResultadosEscaleraH& r, const Avisos& avisos,
                                     const Separadores& numeros) {
    lote::ParteDeMemoria parte;
    documento::Ficha ficha;
    ficha.Columnas = 3;
    ficha.Datos = {
        {"Título", escalera.Titulo, "", ""},           {"Ancho B", escalera.B, "0.00", "m"},
        {"Espesor T", escalera.T, "0.00", "m"},        {"Altura H", escalera.H, "0.00", "m"},
        {"Radio del eje", escalera.R, "0.00", "m"},    {"Ángulo en planta", escalera.Angulo, "0.0", "º"},
        {"Carga total", escalera.W, "#,##0", "kgf/m"}, {"Intervalo", escalera.Inter, "0", "º"}};
    parte.Datos = {Titulo{3, "Datos"}, std::move(ficha), lote::FichaDeMateriales(generales, false)};
    auto& bloques = parte.Resultados;
    if (TieneEstaciones(r)) {
        bloques.emplace_back(Titulo{3, "Estaciones"});
        bloques.emplace_back(TablaDeEstaciones(r));
        PasosQueRigen(escalera, generales, r, numeros, bloques);
        bloques.emplace_back(Titulo{3, "Verificaciones"});
        bloques.emplace_back(documento::Ficha{
            2, {{"Reacción vertical", r.FV, "#,##0", "kgf"}, {"Reacción horizontal", r.Fh, "#,##0", "kgf"}}});
    }
    bloques.emplace_back(lote::BloqueDeAvisos(avisos));
    return parte;
}

std::vector<std::pair<std::string, documento::Tabla>> TablasDeHelice(const ResultadosEscaleraH& r) {
    if (!TieneEstaciones(r)) return {};
    Tabla tabla = TablaDeEstaciones(r);
    // The labels between its rows become a column.
    tabla.Columnas.insert(tabla.Columnas.begin(), ColumnaDeMemoria("Tramo"));
    almacen::Valor tramo;
    for (documento::FilaDeTabla& fila : tabla.Filas) {
        if (fila.Rotulo) tramo = fila.Celdas.front();
        fila.Celdas.insert(fila.Celdas.begin(), tramo);
    }
    std::erase_if(tabla.Filas, [](const documento::FilaDeTabla& fila) { return fila.Rotulo; });
    return {{"Helicoidales, estaciones", std::move(tabla)}};
}

}  // namespace trabex::helices::salida
