#include "stairs/salida/ModuloEscalerasT.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "stairs/Avisos.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/salida/EscaleraTJson.h"
#include "stairs/salida/GraficosEscaleras.h"
#include "stairs/salida/MemoriaEscaleras.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::salida {

namespace {

struct Calculada {
    DatosEscaleraT Datos;
    ResultadosEscaleraT Resultados;
    Avisos Notas;
};

EscaleraCalculada De(const lote::Lista& lista, const lote::Elemento& elemento) {
    const auto& escalera = lote::Leer<Calculada>(elemento.Calculado);
    return {escalera.Datos, lote::Leer<DatosGenerales>(lista.Generales), escalera.Resultados};
}

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

constexpr std::array<const char*, 4> ClavesDeHoja{"geometria", "solicitaciones", "diseno", "reacciones"};

/// The four sheets, as the report of all stairs shows them.
std::vector<lote::Dibujo> Dibujos(const lote::Lista& lista, const lote::Elemento& elemento) {
    std::vector<lote::Dibujo> dibujos;
    const EscaleraCalculada escalera = De(lista, elemento);
    for (const DibujoDeEscalera& dibujo : PedidoDe(1).Dibujos) {
        dibujos.push_back({ClavesDeHoja[dibujo.Vista], elemento.Nombre + dibujo.Titulo,
                           [escalera, vista = dibujo.Vista](dibujo::Lienzo& lienzo) {
                               dibujo::escalera::HojaEscalera hoja;
                               hoja.VistaActual = vista;
                               hoja.Vista.ExportandoGrafico = true;
                               dibujo::escalera::RedibujeVista(lienzo, hoja, escalera);
                           },
                           CargasDe(escalera.Datos)});
    }
    return dibujos;
}

std::vector<std::function<void(dibujo::Lienzo&)>> Papel(const lote::Lista& lista,
                                                        const lote::Elemento& elemento,
                                                        const DatosDelProyecto& datos) {
    std::vector<std::function<void(dibujo::Lienzo&)>> paginas;
    for (const DibujoDeEscalera& dibujo : PedidoDe(1).Dibujos) {
        paginas.emplace_back([escalera = De(lista, elemento), vista = dibujo.Vista,
                              &datos](dibujo::Lienzo& lienzo) {
            dibujo::escalera::HojaEscalera hoja;
            hoja.VistaActual = vista;
            dibujo::escalera::GuardeGraficos1(lienzo, hoja, escalera, {"", datos.Proyecto, datos.Calculista});
        });
    }
    return paginas;
}

lote::ParteDeMemoria Contar(const lote::Lista& lista, const lote::Elemento& elemento,
                            const Separadores& numeros) {
    return MemoriaDeEscalera(De(lista, elemento), lote::Leer<Calculada>(elemento.Calculado).Notas, numeros);
}

std::vector<std::pair<std::string, documento::Tabla>> Tablas(const lote::Lista& lista,
                                                             const lote::Elemento& elemento) {
    return TablasDeEscalera(De(lista, elemento));
}

constexpr lote::MemoriaDeModulo Memoria{MetodoDeEscaleras, Contar, Tablas};

constexpr lote::ReportesDeModulo Reportes{TituloReporteEscaleras, nullptr, "GraficoAutoportantes.rpt",
                                          nullptr};

}  // namespace

const lote::Modulo ModuloEscalerasT{.Nombre = "escalera autoportante",
                                    .Plural = "escaleras autoportantes",
                                    .Clave = "escalerasT",
                                    .ClaveGenerales = "EscaleraTG",
                                    .Consulta = almacen::tablas::ConsultaListaEscalerasT,
                                    .LeerGenerales = LeerGenerales,
                                    .Calcular = Calcular,
                                    .GeneralesJson = GeneralesComoJson,
                                    .Json = Json,
                                    .Columnas = Columnas,
                                    .Resumir = Resumir,
                                    .Dibujos = Dibujos,
                                    .Papel = Papel,
                                    .Reportes = &Reportes,
                                    .Memoria = &Memoria};

}  // namespace trabex::escaleras::salida
