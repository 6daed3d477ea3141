#include "markus/salida/ModuloMarcus.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "lote/BloquesDeMemoria.h"
#include "markus/Avisos.h"
#include "markus/salida/MarcusJson.h"
#include "markus/salida/ReporteMarcus.h"
#include "store/tablas/TablasMarcus.h"

namespace trabex::marcus::salida {

namespace {

struct Calculado {
    NivelMarcus Nivel;
    std::optional<ErrorEjecucion> Error;
};

lote::Elemento Calcular(almacen::proyecto::ProyectoAbierto& proyecto, const lote::Registro&) {
    Calculado calculado;
    almacen::tablas::LeerMarcus(proyecto, calculado.Nivel);
    try {
        CalculeMarcus(calculado.Nivel.Filas);
    } catch (const ErrorEjecucion& error) {
        calculado.Error = error;
    }
    const std::string error = calculado.Error ? calculado.Error->Texto() : "";
    const std::string nombre = calculado.Nivel.Nombre;
    return {nombre, lote::Guardar(std::move(calculado)), error};
}

std::string Json(const lote::Elemento& elemento) {
    const auto& calculado = lote::Leer<Calculado>(elemento.Calculado);
    return MarcusJson(calculado.Nivel, calculado.Error);
}

constexpr std::array<lote::ColumnaResumen, 6> Columnas{{{"Nivel (Markus)", nullptr},
                                                        {"Paños", "0"},
                                                        {"Cx menor", "0.000"},
                                                        {"Cx mayor", "0.000"},
                                                        {"Wx mayor", "#,##0.0"},
                                                        {"Wy mayor", "#,##0.0"}}};

std::vector<lote::Celda> Resumir(const lote::Elemento& elemento) {
    const NivelMarcus& nivel = lote::Leer<Calculado>(elemento.Calculado).Nivel;
    double menorCX = nivel.Filas.empty() ? 0 : 1, mayorCX = 0, mayorWX = 0, mayorWY = 0;
    for (const PanoMarcus& pano : nivel.Filas) {
        menorCX = std::min(menorCX, pano.Reparto.CX);
        mayorCX = std::max(mayorCX, pano.Reparto.CX);
        mayorWX = std::max(mayorWX, std::fabs(pano.Reparto.WX));
        mayorWY = std::max(mayorWY, std::fabs(pano.Reparto.WY));
    }
    return {static_cast<double>(nivel.Filas.size()), menorCX, mayorCX, mayorWX, mayorWY};
}

std::span<const char* const> Metodo() {
    static constexpr std::array<const char*, 1> parrafos{
        "La carga de cada paño se reparte entre sus dos direcciones por igualdad de flechas en el centro de "
        "dos franjas que se "
        "cruzan (H. Marcus, 1925), según el caso de apoyo de sus bordes. La reducción por torsión del paño "
        "no se toma."};
    return parrafos;
}

documento::Tabla TablaDePanos(const NivelMarcus& nivel) {
    documento::Tabla tabla;
    tabla.Columnas = {lote::ColumnaDeMemoria("Paño", "0"),      lote::ColumnaDeMemoria("Carga", "#,##0.00"),
                      lote::ColumnaDeMemoria("Caso", "0"),      lote::ColumnaDeMemoria("LX (m)", "0.00"),
                      lote::ColumnaDeMemoria("LY (m)", "0.00"), lote::ColumnaDeMemoria("CX", "0.0000"),
                      lote::ColumnaDeMemoria("CY", "0.0000"),   lote::ColumnaDeMemoria("WX", "#,##0.00"),
                      lote::ColumnaDeMemoria("WY", "#,##0.00")};
    for (std::size_t i = 0; i < nivel.Filas.size(); ++i) {
        const PanoMarcus& pano = nivel.Filas[i];
        tabla.Filas.push_back({{static_cast<double>(i + 1), pano.Carga, pano.Caso, pano.LX, pano.LY,
                                pano.Reparto.CX, pano.Reparto.CY, pano.Reparto.WX, pano.Reparto.WY}});
    }
    return tabla;
}

lote::ParteDeMemoria Contar(const lote::Lista&, const lote::Elemento& elemento, const Separadores&) {
    const NivelMarcus& nivel = lote::Leer<Calculado>(elemento.Calculado).Nivel;
    return {{}, {TablaDePanos(nivel), lote::BloqueDeAvisos(AvisosDe(nivel.Filas))}};
}

std::vector<std::pair<std::string, documento::Tabla>> Tablas(const lote::Lista&,
                                                             const lote::Elemento& elemento) {
    return {{"Markus, paños", TablaDePanos(lote::Leer<Calculado>(elemento.Calculado).Nivel)}};
}

constexpr lote::MemoriaDeModulo Memoria{Metodo, Contar, Tablas};
void Montar(almacen::Conexion& temporal, const lote::Lista& lista) {
    MontarPanos(temporal, lote::Leer<Calculado>(lista.Elementos.front().Calculado).Nivel.Filas);
}

constexpr lote::ReportesDeModulo Reportes{
    TituloReporteMarcus, "Marcus.rpt", nullptr, Montar, nullptr, nullptr, true};

}  // namespace

const lote::Modulo ModuloMarcus{.Nombre = "nivel de Markus",
                                .Plural = "niveles de Markus",
                                .Clave = "marcus",
                                .ClaveGenerales = nullptr,
                                .Consulta = almacen::tablas::ConsultaListaMarcus,
                                .LeerGenerales = nullptr,
                                .Calcular = Calcular,
                                .GeneralesJson = nullptr,
                                .Json = Json,
                                .Columnas = Columnas,
                                .Resumir = Resumir,

                                .Reportes = &Reportes,
                                .Memoria = &Memoria};

}  // namespace trabex::marcus::salida
