#include "loads/salida/ModuloCargas.h"

#include <array>

#include "loads/salida/AnalisisCargaJson.h"
#include "loads/salida/ReporteCargas.h"
#include "lote/BloquesDeMemoria.h"
#include "store/tablas/TablasCargas.h"

namespace trabex::cargas::salida {

namespace {

/// Totals stand as they are stored: an engineer may have typed another total into the list.
lote::Elemento Calcular(almacen::proyecto::ProyectoAbierto& proyecto, const lote::Registro&) {
    AnalisisCarga analisis;
    almacen::tablas::LeerAnalisis(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, Ambito::Proyecto,
                                  analisis);
    const std::string nombre = analisis.Descripcion;
    return {nombre, lote::Guardar(std::move(analisis)), ""};
}

std::string Json(const lote::Elemento& elemento) {
    return AnalisisCargaJson(lote::Leer<AnalisisCarga>(elemento.Calculado));
}

constexpr std::array<lote::ColumnaResumen, 6> Columnas{{{"Análisis de carga", nullptr},
                                                        {"Partidas", "0"},
                                                        {"CP (kgf/m2)", "#,##0"},
                                                        {"CV (kgf/m2)", "#,##0"},
                                                        {"Carga (kgf/m2)", "#,##0.00"},
                                                        {"CV/CP", "0.000"}}};

std::vector<lote::Celda> Resumir(const lote::Elemento& elemento) {
    const auto& analisis = lote::Leer<AnalisisCarga>(elemento.Calculado);
    return {static_cast<double>(analisis.Permanentes.size()), analisis.CP, static_cast<double>(analisis.CV),
            analisis.Carga, analisis.REL};
}

std::span<const char* const> Metodo() {
    static constexpr std::array<const char*, 1> parrafos{
        "Cada análisis suma los pesos de sus partidas permanentes y su carga variable, de servicio, en "
        "kgf/m²."};
    return parrafos;
}

documento::Tabla TablaDePartidas(const AnalisisCarga& analisis) {
    documento::Tabla tabla;
    tabla.Columnas = {lote::ColumnaDeMemoria("Partida"), lote::ColumnaDeMemoria("Peso (kgf/m²)", "#,##0.00")};
    tabla.Columnas.front().Ancho = 100;
    for (const PesoUnitario& partida : analisis.Permanentes)
        tabla.Filas.push_back({{partida.Descripcion, partida.Peso}});
    return tabla;
}

lote::ParteDeMemoria Contar(const lote::Lista&, const lote::Elemento& elemento, const Separadores&) {
    const auto& analisis = lote::Leer<AnalisisCarga>(elemento.Calculado);
    documento::Tabla tabla = TablaDePartidas(analisis);
    const auto total = [&](const std::string& que, const almacen::Valor& valor) {
        documento::FilaDeTabla fila{{que, valor}};
        fila.Destacada = true;
        tabla.Filas.push_back(std::move(fila));
    };
    total("Carga permanente", analisis.CP);
    total("Carga variable: " + analisis.Variable.Descripcion, analisis.CV);
    total("Carga total", analisis.Carga);
    return {{},
            {std::move(tabla),
             documento::Ficha{1, {{"Relación variable / permanente", analisis.REL, "0.000", ""}}}}};
}

std::vector<std::pair<std::string, documento::Tabla>> Tablas(const lote::Lista&,
                                                             const lote::Elemento& elemento) {
    const auto& analisis = lote::Leer<AnalisisCarga>(elemento.Calculado);
    documento::Tabla tabla = TablaDePartidas(analisis);
    tabla.Filas.push_back({{"Variable: " + analisis.Variable.Descripcion, analisis.CV}});
    return {{"Cargas, partidas", std::move(tabla)}};
}

constexpr lote::MemoriaDeModulo Memoria{Metodo, Contar, Tablas};

/// A row that can't be written spoils the save.
void Montar(almacen::Conexion& temporal, const lote::Lista& lista) {
    std::vector<const AnalisisCarga*> analisis;
    for (const lote::Elemento& elemento : lista.Elementos)
        analisis.push_back(&lote::Leer<AnalisisCarga>(elemento.Calculado));
    MontarAnalisis(temporal, analisis);
}

/// The summary, and below it each analysis as the program's other report of a project's analyses tells it.
constexpr lote::ReportesDeModulo Reportes{TituloReporte, "AnalisisCarga1.rpt", nullptr, Montar};

}  // namespace

const lote::Modulo ModuloCargas{.Nombre = "análisis de carga",
                                .Plural = "análisis de carga",
                                .Clave = "analisisCarga",
                                .ClaveGenerales = nullptr,
                                .Consulta = almacen::tablas::AnalisisDelProyecto.Lista,
                                .LeerGenerales = nullptr,
                                .Calcular = Calcular,
                                .GeneralesJson = nullptr,
                                .Json = Json,
                                .Columnas = Columnas,
                                .Resumir = Resumir,
                                .Reportes = &Reportes,
                                .Memoria = &Memoria};

}  // namespace trabex::cargas::salida
