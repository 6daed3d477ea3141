#include "helical/salida/ModuloEscalerasH.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "drawing/helice/CuerpoHelice.h"
#include "drawing/helice/GraficoHelice.h"
#include "helical/Avisos.h"
#include "helical/CalcularEscaleraH.h"
#include "helical/salida/EscaleraHJson.h"
#include "helical/salida/GraficosEscalerasH.h"
#include "helical/salida/MemoriaHelices.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::helices::salida {

namespace {

struct Calculada {
    DatosEscaleraH Datos;
    ResultadosEscaleraH Resultados;
    Avisos Notas;
};

EscaleraHCalculada De(const lote::Elemento& elemento) {
    const auto& escalera = lote::Leer<Calculada>(elemento.Calculado);
    return {escalera.Datos, escalera.Resultados};
}

lote::Registro LeerGenerales(almacen::Conexion& proyecto) {
    DatosDelProyecto datos;
    DatosGenerales generales;
    almacen::tablas::LeaDatosGenerales(proyecto, almacen::tablas::ClaseEscalera::Helicoidal, "", datos,
                                       generales);
    return lote::Guardar(generales);
}

/// A stair without stored data is not calculated at all.
lote::Elemento Calcular(almacen::proyecto::ProyectoAbierto& proyecto, const lote::Registro& generales) {
    Calculada escalera;
    const auto& parametros = lote::Leer<DatosGenerales>(generales);
    if (almacen::tablas::LeaDatosEscalera(proyecto, escalera.Datos))
        CalcularEscaleraH(escalera.Datos, parametros, escalera.Resultados);
    escalera.Notas = AvisosDe(escalera.Datos, parametros, escalera.Resultados);
    const std::string error = escalera.Resultados.Error ? escalera.Resultados.Error->Texto() : "";
    const std::string nombre = escalera.Datos.Nombre;
    return {nombre, lote::Guardar(std::move(escalera)), error};
}

std::string GeneralesComoJson(const lote::Registro& generales) {
    return GeneralesJson(lote::Leer<DatosGenerales>(generales));
}

std::string Json(const lote::Elemento& elemento) {
    const auto& escalera = lote::Leer<Calculada>(elemento.Calculado);
    return EscaleraHJson(escalera.Datos, escalera.Resultados, escalera.Notas);
}

constexpr std::array<lote::ColumnaResumen, 10> Columnas{{{"Escalera helicoidal", nullptr},
                                                         {"R (m)", "0.00"},
                                                         {"Angulo (º)", "0.0"},
                                                         {"H (m)", "0.00"},
                                                         {"RV (kgf)", "#,##0"},
                                                         {"RH (kgf)", "#,##0"},
                                                         {"MX (kgf-m)", "#,##0"},
                                                         {"MY (kgf-m)", "#,##0"},
                                                         {"MT (kgf-m)", "#,##0"},
                                                         {"Estribos @ (cm)", "0"}}};

/// The largest absolute moments of both halves and the closest stirrups (0: none).
std::vector<lote::Celda> Resumir(const lote::Elemento& elemento) {
    const auto& [escalera, r, notas] = lote::Leer<Calculada>(elemento.Calculado);
    double MX = 0, MY = 0, MT = 0, estribos = 0;
    for (const auto* tramo : {&r.TramoSuperior, &r.TramoInferior}) {
        for (const EstacionEscaleraH& estacion : *tramo) {
            MX = std::max<double>(MX, std::fabs(estacion.MX));
            MY = std::max<double>(MY, std::fabs(estacion.MY));
            MT = std::max<double>(MT, std::fabs(estacion.MT));
            const double separacion = estacion.SEP;
            if (separacion != 0 && (estribos == 0 || separacion < estribos)) estribos = separacion;
        }
    }
    return {
        escalera.R, escalera.Angulo, escalera.H, static_cast<double>(r.FV), static_cast<double>(r.Fh), MX, MY,
        MT,         estribos};
}

/// None of a stair that was created and never saved.
std::vector<lote::Dibujo> Dibujos(const lote::Lista&, const lote::Elemento& elemento) {
    if (!dibujo::helice::TieneMedidas(De(elemento).Datos)) return {};
    return {{"helice", elemento.Nombre, [escalera = De(elemento)](dibujo::Lienzo& lienzo) {
                 dibujo::helice::HojaHelice hoja;
                 hoja.Vista.ExportandoGrafico = true;
                 dibujo::helice::RedibujeVista(lienzo, hoja, escalera);
             }}};
}

std::vector<std::function<void(dibujo::Lienzo&)>> Papel(const lote::Lista&, const lote::Elemento& elemento,
                                                        const DatosDelProyecto& datos) {
    return {[escalera = De(elemento), &datos](dibujo::Lienzo& lienzo) {
        dibujo::helice::DibujeEnPapel(lienzo, {}, escalera, {"", datos.Proyecto, datos.Calculista});
    }};
}

std::vector<EscaleraHCalculada> Escaleras(const lote::Lista& lista) {
    std::vector<EscaleraHCalculada> escaleras;
    for (const lote::Elemento& elemento : lista.Elementos) escaleras.push_back(De(elemento));
    return escaleras;
}

void MontarResultados(almacen::Conexion& temporal, const lote::Lista& lista) {
    const auto escaleras = Escaleras(lista);
    LleneEscaleraH(temporal, escaleras);
    LleneEscaleraHS(temporal, escaleras);
}

void MontarConGraficos(almacen::Conexion& temporal, const lote::Lista& lista) {
    const auto escaleras = Escaleras(lista);
    LleneEscaleraH(temporal, escaleras);
    LleneEscaleraH1S(temporal, escaleras);
}

constexpr lote::ReportesDeModulo Reportes{.Titulo = TituloReporteH,
                                          .Resultados = "EscaleraH.rpt",
                                          .Graficos = "GraficoH.rpt",
                                          .Montar = MontarResultados,
                                          .TituloGraficos = TituloGraficosH,
                                          .MontarConGraficos = MontarConGraficos};

lote::ParteDeMemoria Contar(const lote::Lista& lista, const lote::Elemento& elemento,
                            const Separadores& numeros) {
    const auto& [datos, resultados, notas] = lote::Leer<Calculada>(elemento.Calculado);
    return MemoriaDeHelice(datos, lote::Leer<DatosGenerales>(lista.Generales), resultados, notas, numeros);
}

std::vector<std::pair<std::string, documento::Tabla>> Tablas(const lote::Lista&,
                                                             const lote::Elemento& elemento) {
    return TablasDeHelice(lote::Leer<Calculada>(elemento.Calculado).Resultados);
}

constexpr lote::MemoriaDeModulo Memoria{MetodoDeHelices, Contar, Tablas};

}  // namespace

const lote::Modulo ModuloEscalerasH{.Nombre = "escalera helicoidal",
                                    .Plural = "escaleras helicoidales",
                                    .Clave = "escalerasH",
                                    .ClaveGenerales = "EscaleraHG",
                                    .Consulta = almacen::tablas::ConsultaListaEscalerasH,
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

}  // namespace trabex::helices::salida
