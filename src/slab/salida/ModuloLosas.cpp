#include "slab/salida/ModuloLosas.h"

#include <algorithm>
#include <array>

#include "drawing/losa/GraficoLosasPrinter.h"
#include "reports/planex/ArchivoPlanex.h"
#include "slab/Avisos.h"
#include "slab/CalcularLosa.h"
#include "slab/salida/GraficosLosas.h"
#include "slab/salida/LosasJson.h"
#include "slab/salida/MemoriaLosas.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::salida {

namespace {

struct Calculada {
    Losa Datos;
    ResultadosLosa Resultados;
    Avisos Notas;
};

LosaCalculada De(const lote::Lista& lista, const lote::Elemento& elemento) {
    const auto& losa = lote::Leer<Calculada>(elemento.Calculado);
    return {losa.Datos, lote::Leer<DatosGenerales>(lista.Generales), losa.Resultados};
}

lote::Registro LeerGenerales(almacen::Conexion& proyecto) {
    DatosDelProyecto datos;
    DatosGenerales generales;
    almacen::tablas::LeerDatosGenerales(proyecto, "", datos, generales);
    return lote::Guardar(generales);
}

lote::Elemento Calcular(almacen::proyecto::ProyectoAbierto& proyecto, const lote::Registro& generales) {
    Calculada losa;
    almacen::tablas::LeerLosa(proyecto, losa.Datos);
    CalcularLosa(losa.Datos, lote::Leer<DatosGenerales>(generales), losa.Resultados);
    losa.Notas = AvisosDe({losa.Datos, lote::Leer<DatosGenerales>(generales), losa.Resultados});
    const std::string error = losa.Resultados.Error ? losa.Resultados.Error->Texto() : "";
    const std::string nombre = losa.Datos.Nombre;
    return {nombre, lote::Guardar(std::move(losa)), error};
}

std::string GeneralesComoJson(const lote::Registro& generales) {
    return GeneralesJson(lote::Leer<DatosGenerales>(generales));
}

std::string Json(const lote::Elemento& elemento) {
    const auto& losa = lote::Leer<Calculada>(elemento.Calculado);
    return LosaJson(losa.Datos, losa.Resultados, losa.Notas);
}

constexpr std::array<lote::ColumnaResumen, 9> Columnas{{{"Losa", nullptr},
                                                        {"Tipo", nullptr},
                                                        {"Tramos", "0"},
                                                        {"Longitud (m)", "0.00"},
                                                        {"M apoyo (kgf-m)", "#,##0"},
                                                        {"M tramo (kgf-m)", "#,##0"},
                                                        {"Corte (kgf)", "#,##0"},
                                                        {"As sup (cm2)", "0.00"},
                                                        {"As inf (cm2)", "0.00"}}};

/// Extremes of a slab: the largest steel at an axis above and of a span below.
std::vector<lote::Celda> Resumir(const lote::Elemento& elemento) {
    const auto& [losa, r, avisos] = lote::Leer<Calculada>(elemento.Calculado);
    double longitud = 0, superior = 0, inferior = 0;
    for (const Tramo& tramo : losa.Tramos) longitud += tramo.LT;
    for (const DisenoDeEje& eje : r.DisenoEje) superior = std::max(superior, eje.AS1);
    for (const DisenoDeTramo& tramo : r.DisenoTramo) inferior = std::max(inferior, tramo.AS2);
    return {std::string(losa.OpcionMaciza ? "MACIZA" : "NERVADA"),
            static_cast<double>(losa.Tramos.size() - 1),
            longitud,
            r.MaxMomentoApoyo,
            r.MaxMomentoTramo,
            r.MaxCorte,
            superior,
            inferior};
}

constexpr std::array<std::pair<dibujo::losa::VistaLosa, const char*>, 3> Vistas{
    {{dibujo::losa::VistaGeometria, "geometria"},
     {dibujo::losa::VistaFuerzas, "fuerzas"},
     {dibujo::losa::VistaDiseno, "diseno"}}};

/// The drawings of all slabs, whole, as a report shows them: of a long slab on further sheets.
std::vector<lote::Dibujo> Dibujos(const lote::Lista& lista, const lote::Elemento& elemento) {
    const LosaCalculada losa = De(lista, elemento);
    const std::size_t hojas = dibujo::losa::HojasDe(losa.Datos);
    std::vector<lote::Dibujo> dibujos;
    for (const DibujoDeLosa& dibujo : PedidoDe(1).Dibujos) {
        for (std::size_t k = 1; k <= hojas; ++k) {
            const std::string numero = hojas > 1 ? "-" + std::to_string(k) : "";
            dibujos.push_back({Vistas[dibujo.Vista].second + numero,
                               TituloDe(elemento.Nombre, dibujo, k, hojas),
                               [losa, vista = dibujo.Vista, k](dibujo::Lienzo& lienzo) {
                                   dibujo::losa::HojaLosa hoja;
                                   hoja.VistaActual = vista;
                                   hoja.Vista.ExportandoGrafico = true;
                                   hoja.PorGrupos = true;
                                   hoja.Grupo = k;
                                   dibujo::losa::RedibujeVista(lienzo, hoja, losa);
                               }});
        }
    }
    return dibujos;
}

std::vector<std::function<void(dibujo::Lienzo&)>> Papel(const lote::Lista& lista,
                                                        const lote::Elemento& elemento,
                                                        const DatosDelProyecto& datos) {
    const LosaCalculada losa = De(lista, elemento);
    const std::size_t hojas = dibujo::losa::HojasDe(losa.Datos);
    std::vector<std::function<void(dibujo::Lienzo&)>> paginas;
    paginas.reserve(Vistas.size() * hojas);
    for (const auto& [vista, clave] : Vistas) {
        for (std::size_t k = 1; k <= hojas; ++k)
            paginas.emplace_back([losa, vista = vista, k, &datos](dibujo::Lienzo& lienzo) {
                dibujo::losa::HojaLosa hoja;
                hoja.VistaActual = vista;
                hoja.PorGrupos = true;
                hoja.Grupo = k;
                dibujo::losa::GuardeGraficos1(lienzo, hoja, losa, {"", datos.Proyecto, datos.Calculista});
            });
    }
    return paginas;
}

void Montar(almacen::Conexion& temporal, const lote::Lista& lista) {
    MontajeDeLosas montaje(temporal, lote::Leer<DatosGenerales>(lista.Generales));
    for (const lote::Elemento& elemento : lista.Elementos) montaje.Agregar(De(lista, elemento));
}

constexpr lote::ReportesDeModulo Reportes{TituloReporteLosas, "ResultadosLosa.rpt", "Grafico.rpt", Montar};

std::filesystem::path EscribirPlanex(const std::filesystem::path& programa,
                                     const std::filesystem::path& destino, const DatosDelProyecto& datos,
                                     const lote::Lista& lista, std::string& enCurso) {
    planex::ArchivoNuevoPlanex archivo(programa, "ImagenCAD23.tbx", destino, datos,
                                       lote::Leer<DatosGenerales>(lista.Generales));
    for (const lote::Elemento& elemento : lista.Elementos) {
        enCurso = elemento.Nombre;
        const auto& losa = lote::Leer<Calculada>(elemento.Calculado);
        archivo.Agregar(losa.Datos, losa.Resultados);
    }
    enCurso.clear();
    return archivo.Colocar();
}

lote::ParteDeMemoria Contar(const lote::Lista& lista, const lote::Elemento& elemento,
                            const Separadores& numeros) {
    return MemoriaDeLosa(De(lista, elemento), lote::Leer<Calculada>(elemento.Calculado).Notas, numeros);
}

std::vector<std::pair<std::string, documento::Tabla>> Tablas(const lote::Lista& lista,
                                                             const lote::Elemento& elemento) {
    return TablasDeLosa(De(lista, elemento));
}

constexpr lote::MemoriaDeModulo Memoria{MetodoDeLosas, Contar, Tablas};

constexpr std::array<lote::Intercambio, 1> Intercambios{
    {{"planex", "Proyecto de Planex", ".cad", EscribirPlanex}}};

}  // namespace

const lote::Modulo ModuloLosas{.Nombre = "losa",
                               .Plural = "losas",
                               .Clave = "losas",
                               .ClaveGenerales = "LosaG",
                               .Consulta = almacen::tablas::ConsultaListaLosas,
                               .LeerGenerales = LeerGenerales,
                               .Calcular = Calcular,
                               .GeneralesJson = GeneralesComoJson,
                               .Json = Json,
                               .Columnas = Columnas,
                               .Resumir = Resumir,
                               .Dibujos = Dibujos,
                               .Papel = Papel,
                               .Reportes = &Reportes,
                               .Memoria = &Memoria,
                               .Intercambios = Intercambios};

}  // namespace trabex::losas::salida
