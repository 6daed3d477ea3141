#include "lote/Lote.h"

#include <atomic>
#include <memory>
#include <optional>
#include <string_view>
#include <thread>

#include "helical/CalcularEscaleraH.h"
#include "lote/EscalerasJson.h"
#include "lote/ResultadosJson.h"
#include "slab/CalcularLosa.h"
#include "stairs/CalcularEscaleraT.h"
#include "store/tablas/TablasEscalera.h"
#include "store/tablas/TablasLosa.h"
#include "store/tablas/TablasMarcus.h"

namespace trabex::lote {

namespace {

constexpr std::size_t ElementosPorHilo = 32;  // fewer do not pay for a thread

bool AbrirLista(almacen::tablas::ProyectoAbierto& proyecto, std::string_view consulta) {
    almacen::AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, consulta);
    return proyecto.RegistrosProyecto.Abierto();
}

/// Calculates every element of a list, each with `calcular` on a project whose list stands on it. False when
/// the list can't be opened.
template <class Resumen, class Calcular>
bool CalcularLista(almacen::tablas::ProyectoAbierto& proyecto, std::string_view consulta, unsigned hilos,
                   ElementosCalculados<Resumen>& elementos, Calcular calcular) {
    if (!AbrirLista(proyecto, consulta)) return false;
    const auto cuantos = static_cast<std::size_t>(proyecto.RegistrosProyecto.NumeroRegistros());
    elementos.Json.resize(cuantos);
    elementos.Resumenes.resize(cuantos);
    std::atomic<std::size_t> siguiente{0};
    const auto trabajar = [&](almacen::tablas::ProyectoAbierto& copia) {
        for (std::size_t i = siguiente++; i < cuantos; i = siguiente++) {
            copia.RegistrosProyecto.MoverA(static_cast<int>(i) + 1);
            calcular(copia, elementos.Json[i], elementos.Resumenes[i]);
        }
    };
    // A connection serves one thread: each further one reads a copy of the same copy.
    std::vector<std::unique_ptr<almacen::tablas::ProyectoAbierto>> copias;
    for (unsigned h = 1; h < hilos && h * ElementosPorHilo < cuantos; ++h) {
        copias.push_back(std::make_unique<almacen::tablas::ProyectoAbierto>());
        almacen::CopiarEnMemoria(proyecto.ConexionProyecto, copias.back()->ConexionProyecto);
        if (!AbrirLista(*copias.back(), consulta)) copias.pop_back();
    }
    std::vector<std::jthread> equipo;
    equipo.reserve(copias.size());
    for (const auto& copia : copias) equipo.emplace_back([&trabajar, &copia] { trabajar(*copia); });
    trabajar(proyecto);
    return true;
}

bool CalcularLosas(almacen::tablas::ProyectoAbierto& proyecto, unsigned hilos, ProyectoCalculado& calculado) {
    return CalcularLista(
        proyecto, almacen::tablas::ConsultaListaLosas, hilos, calculado.Losas,
        [&](almacen::tablas::ProyectoAbierto& copia, std::string& json, ResumenLosa& resumen) {
            losas::Losa losa;
            losas::ResultadosLosa resultados;
            almacen::tablas::LeerLosa(copia, losa);
            losas::CalcularLosa(losa, calculado.Generales, resultados);
            json = LosaJson(losa, resultados);
            resumen = Resumir(losa, resultados);
        });
}

void CalcularEscalerasT(almacen::tablas::ProyectoAbierto& proyecto, unsigned hilos,
                        ProyectoCalculado& calculado) {
    CalcularLista(proyecto, almacen::tablas::ConsultaListaEscalerasT, hilos, calculado.EscalerasT,
                  [&](almacen::tablas::ProyectoAbierto& copia, std::string& json, ResumenEscaleraT& resumen) {
                      escaleras::DatosEscaleraT escalera;
                      escaleras::ResultadosEscaleraT resultados;
                      almacen::tablas::LeaDatosEscalera(copia, escalera);
                      escaleras::CalcularEscaleraT(escalera, calculado.GeneralesEscaleraT, resultados);
                      json = EscaleraTJson(escalera, resultados);
                      resumen = Resumir(escalera, resultados);
                  });
}

/// A helical stair without stored data is not calculated at all.
void CalcularEscalerasH(almacen::tablas::ProyectoAbierto& proyecto, unsigned hilos,
                        ProyectoCalculado& calculado) {
    CalcularLista(proyecto, almacen::tablas::ConsultaListaEscalerasH, hilos, calculado.EscalerasH,
                  [&](almacen::tablas::ProyectoAbierto& copia, std::string& json, ResumenEscaleraH& resumen) {
                      helices::DatosEscaleraH escalera;
                      helices::ResultadosEscaleraH resultados;
                      if (almacen::tablas::LeaDatosEscalera(copia, escalera))
                          helices::CalcularEscaleraH(escalera, calculado.GeneralesEscaleraH, resultados);
                      json = EscaleraHJson(escalera, resultados);
                      resumen = Resumir(escalera, resultados);
                  });
}

void CalcularNivelesMarcus(almacen::tablas::ProyectoAbierto& proyecto, unsigned hilos,
                           ProyectoCalculado& calculado) {
    CalcularLista(proyecto, almacen::tablas::ConsultaListaMarcus, hilos, calculado.Marcus,
                  [&](almacen::tablas::ProyectoAbierto& copia, std::string& json, ResumenMarcus& resumen) {
                      marcus::NivelMarcus nivel;
                      std::optional<ErrorEjecucion> error;
                      almacen::tablas::LeerMarcus(copia, nivel);
                      try {
                          marcus::CalculePanos(nivel.Filas);
                      } catch (const ErrorEjecucion& hallado) {
                          error = hallado;
                      }
                      json = MarcusJson(nivel, error);
                      resumen = Resumir(nivel, error ? error->Texto() : "");
                  });
}

std::string ListaJson(const std::string& clave, const std::vector<std::string>& objetos) {
    std::string json = ",\n\"" + clave + "\":[";
    for (std::size_t i = 0; i < objetos.size(); ++i) {
        json += i == 0 ? "\n" : ",\n";
        json += objetos[i];
    }
    return json + "\n]";
}

template <class Resumen>
std::string TablaSiHay(const ElementosCalculados<Resumen>& elementos, const Separadores& separadores) {
    return elementos.Resumenes.empty() ? "" : "\n" + TablaDe(elementos.Resumenes, separadores);
}

}  // namespace

bool CalcularProyecto(const std::filesystem::path& camino, unsigned hilos, ProyectoCalculado& calculado) {
    almacen::tablas::ProyectoAbierto proyecto;
    almacen::AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    if (!AbrirLista(proyecto, almacen::tablas::ConsultaListaLosas)) return false;
    almacen::Conexion& conexion = proyecto.ConexionProyecto;
    almacen::tablas::LeerDatosGenerales(conexion, "", calculado.Datos, calculado.Generales);
    almacen::tablas::LeaDatosGenerales(conexion, almacen::tablas::ClaseEscalera::Autoportante, "",
                                       calculado.Datos, calculado.GeneralesEscaleraT);
    almacen::tablas::LeaDatosGenerales(conexion, almacen::tablas::ClaseEscalera::Helicoidal, "",
                                       calculado.Datos, calculado.GeneralesEscaleraH);
    if (!CalcularLosas(proyecto, hilos, calculado)) return false;
    CalcularEscalerasT(proyecto, hilos, calculado);
    CalcularEscalerasH(proyecto, hilos, calculado);
    CalcularNivelesMarcus(proyecto, hilos, calculado);
    return true;
}

std::string DocumentoJson(const ProyectoCalculado& calculado) {
    return "{\"Proyecto\":" + ProyectoJson(calculado.Datos) +
           ",\n\"LosaG\":" + GeneralesJson(calculado.Generales) + ListaJson("losas", calculado.Losas.Json) +
           ",\n\"EscaleraTG\":" + GeneralesEscaleraJson(calculado.GeneralesEscaleraT) +
           ListaJson("escalerasT", calculado.EscalerasT.Json) +
           ",\n\"EscaleraHG\":" + GeneralesEscaleraJson(calculado.GeneralesEscaleraH) +
           ListaJson("escalerasH", calculado.EscalerasH.Json) + ListaJson("marcus", calculado.Marcus.Json) +
           "}\n";
}

std::string TablaResumen(const ProyectoCalculado& calculado, const Separadores& separadores) {
    return TablaDe(calculado.Losas.Resumenes, separadores) + TablaSiHay(calculado.EscalerasT, separadores) +
           TablaSiHay(calculado.EscalerasH, separadores) + TablaSiHay(calculado.Marcus, separadores);
}

}  // namespace trabex::lote
