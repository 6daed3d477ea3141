#include "stairs/salida/ModuloEscalerasT.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "stairs/Avisos.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/salida/EscaleraTJson.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::salida {

namespace {

struct Calculada {
    DatosEscaleraT Datos;
    ResultadosEscaleraT Resultados;
    Avisos Notas;
};

lote::Registro LeerGenerales(almacen::Conexion& proyecto) {
    DatosDelProyecto datos;
    DatosGenerales generales;
    almacen::tablas::LeaDatosGenerales(proyecto, almacen::tablas::ClaseEscalera::Autoportante, "", datos,
                                       generales);
    return lote::Guardar(generales);
}

lote::Elemento Calcular(almacen::proyecto::ProyectoAbierto& proyecto, const lote::Registro& generales) {
    Calculada escalera;
    almacen::tablas::LeaDatosEscalera(proyecto, escalera.Datos);
    const auto& parametros = lote::Leer<DatosGenerales>(generales);
    CalcularEscaleraT(escalera.Datos, parametros, escalera.Resultados);
    escalera.Notas = AvisosDe({escalera.Datos, parametros, escalera.Resultados});
    const std::string error = escalera.Resultados.Error ? escalera.Resultados.Error->Texto() : "";
    const std::string nombre = escalera.Datos.Nombre;
    return {nombre, lote::Guardar(std::move(escalera)), error};
}

std::string GeneralesComoJson(const lote::Registro& generales) {
    return GeneralesJson(lote::Leer<DatosGenerales>(generales));
}

std::string Json(const lote::Elemento& elemento) {
    const auto& escalera = lote::Leer<Calculada>(elemento.Calculado);
    return EscaleraTJson(escalera.Datos, escalera.Resultados, escalera.Notas);
}

constexpr std::array<lote::ColumnaResumen, 10> Columnas{{{"Escalera autoportante", nullptr},
                                                         {"L (m)", "0.00"},
                                                         {"B (m)", "0.00"},
                                                         {"H (m)", "0.00"},
                                                         {"RV (kgf)", "#,##0"},
                                                         {"RH (kgf)", "#,##0"},
                                                         {"M (kgf-m)", "#,##0"},
                                                         {"As sup (cm2)", "0.00"},
                                                         {"As inf (cm2)", "0.00"},
                                                         {"Estribos @ (cm)", "0.0"}}};

/// Extremes of the flight: the largest absolute moment in its plane, its largest steel for flexure and
/// torsion, its closest stirrups (0: none).
std::vector<lote::Celda> Resumir(const lote::Elemento& elemento) {
    const auto& [escalera, r, notas] = lote::Leer<Calculada>(elemento.Calculado);
    double momento = 0, superior = 0, inferior = 0, estribos = 0;
    for (const EscaleraTramoPunto& punto : r.TramoT) {
        momento = std::max({momento, std::fabs(punto.MomentoTotal), std::fabs(punto.MomentoPermanente)});
        superior = std::max(superior, std::fabs(punto.AsSuperior + punto.AsTorsion));
        inferior = std::max(inferior, std::fabs(punto.AsInferior + punto.AsTorsion));
        const double separacion = punto.SeparacionEstribo;
        if (separacion != 0 && (estribos == 0 || separacion < estribos)) estribos = separacion;
    }
    return {escalera.L, escalera.B, escalera.H, r.ReaccionVertical, r.ReaccionHorizontal, momento,
            superior,   inferior,   estribos};
}

}  // namespace

const lote::Modulo ModuloEscalerasT{.Nombre = "escalera autoportante",
                                    .Clave = "escalerasT",
                                    .ClaveGenerales = "EscaleraTG",
                                    .Consulta = almacen::tablas::ConsultaListaEscalerasT,
                                    .LeerGenerales = LeerGenerales,
                                    .Calcular = Calcular,
                                    .GeneralesJson = GeneralesComoJson,
                                    .Json = Json,
                                    .Columnas = Columnas,
                                    .Resumir = Resumir};

}  // namespace trabex::escaleras::salida
