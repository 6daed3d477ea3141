#include "loads/salida/ModuloCargas.h"

#include <array>

#include "loads/salida/AnalisisCargaJson.h"
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
                                .Resumir = Resumir};

}  // namespace trabex::cargas::salida
