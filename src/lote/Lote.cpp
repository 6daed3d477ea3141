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

namespace trabex {

namespace {

constexpr std::size_t ElementosPorHilo = 32;  // fewer do not pay for a thread

bool AbrirLista(ProyectoAbierto& proyecto, std::string_view consulta) {
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, consulta);
    return proyecto.RegistrosProyecto.Abierto();
}

/// Calculates every element of a list, each with `calcular` on a project whose list stands on it. False when
/// the list can't be opened.
template <class Resumen, class Calcular>
bool CalcularLista(ProyectoAbierto& proyecto, std::string_view consulta, unsigned hilos,
                   ElementosCalculados<Resumen>& elementos, Calcular calcular) {
    if (!AbrirLista(proyecto, consulta)) return false;
    const auto cuantos = static_cast<std::size_t>(proyecto.RegistrosProyecto.NumeroRegistros());
    elementos.Json.resize(cuantos);
    elementos.Resumenes.resize(cuantos);
    std::atomic<std::size_t> siguiente{0};
    const auto trabajar = [&](ProyectoAbierto& copia) {
        for (std::size_t i = siguiente++; i < cuantos; i = siguiente++) {
            copia.RegistrosProyecto.MoverA(static_cast<int>(i) + 1);
            calcular(copia, elementos.Json[i], elementos.Resumenes[i]);
        }
    };
    // A connection serves one thread: each further one reads a copy of the same copy.
    std::vector<std::unique_ptr<ProyectoAbierto>> copias;
    for (unsigned h = 1; h < hilos && h * ElementosPorHilo < cuantos; ++h) {
        copias.push_back(std::make_unique<ProyectoAbierto>());
        CopiarEnMemoria(proyecto.ConexionProyecto, copias.back()->ConexionProyecto);
        if (!AbrirLista(*copias.back(), consulta)) copias.pop_back();
    }
    std::vector<std::jthread> equipo;
    equipo.reserve(copias.size());
    for (const auto& copia : copias) equipo.emplace_back([&trabajar, &copia] { trabajar(*copia); });
    trabajar(proyecto);
    return true;
}

bool CalcularLosas(ProyectoAbierto& proyecto, unsigned hilos, ProyectoCalculado& calculado) {
    return CalcularLista(proyecto, ConsultaListaLosas, hilos, calculado.Losas,
                         [&](ProyectoAbierto& copia, std::string& json, ResumenLosa& resumen) {
                             Losa losa;
                             ResultadosLosa resultados;
                             LeerLosa(copia, losa);
                             CalcularLosa(losa, calculado.Generales, resultados);
                             json = LosaJson(losa, resultados);
                             resumen = Resumir(losa, resultados);
                         });
}

void CalcularEscalerasT(ProyectoAbierto& proyecto, unsigned hilos, ProyectoCalculado& calculado) {
    CalcularLista(proyecto, ConsultaListaEscalerasT, hilos, calculado.EscalerasT,
                  [&](ProyectoAbierto& copia, std::string& json, ResumenEscaleraT& resumen) {
                      DatosEscaleraT escalera;
                      ResultadosEscaleraT resultados;
                      LeaDatosEscalera(copia, escalera);
                      CalcularEscaleraT(escalera, calculado.GeneralesEscaleraT, resultados);
                      json = EscaleraTJson(escalera, resultados);
                      resumen = Resumir(escalera, resultados);
                  });
}

/// A helical stair without stored data is not calculated at all.
void CalcularEscalerasH(ProyectoAbierto& proyecto, unsigned hilos, ProyectoCalculado& calculado) {
    CalcularLista(proyecto, ConsultaListaEscalerasH, hilos, calculado.EscalerasH,
                  [&](ProyectoAbierto& copia, std::string& json, ResumenEscaleraH& resumen) {
                      DatosEscaleraH escalera;
                      ResultadosEscaleraH resultados;
                      if (LeaDatosEscalera(copia, escalera))
                          CalcularEscaleraH(escalera, calculado.GeneralesEscaleraH, resultados);
                      json = EscaleraHJson(escalera, resultados);
                      resumen = Resumir(escalera, resultados);
                  });
}

void CalcularNivelesMarcus(ProyectoAbierto& proyecto, unsigned hilos, ProyectoCalculado& calculado) {
    CalcularLista(proyecto, ConsultaListaMarcus, hilos, calculado.Marcus,
                  [&](ProyectoAbierto& copia, std::string& json, ResumenMarcus& resumen) {
                      NivelMarcus nivel;
                      std::optional<ErrorEjecucion> error;
                      LeerMarcus(copia, nivel);
                      try {
                          CalculePanos(nivel.Filas);
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
    ProyectoAbierto proyecto;
    AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    if (!AbrirLista(proyecto, ConsultaListaLosas)) return false;
    Conexion& conexion = proyecto.ConexionProyecto;
    LeerDatosGenerales(conexion, "", calculado.Datos, calculado.Generales);
    LeaDatosGenerales(conexion, ClaseEscalera::Autoportante, "", calculado.Datos,
                      calculado.GeneralesEscaleraT);
    LeaDatosGenerales(conexion, ClaseEscalera::Helicoidal, "", calculado.Datos, calculado.GeneralesEscaleraH);
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

}  // namespace trabex
