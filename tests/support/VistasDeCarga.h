#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "loads/ui/AnalisisCargaNewCP.h"
#include "loads/ui/ListaAnalisis.h"

namespace trabex::prueba {

using namespace cargas;
using namespace cargas::ui;

// The windows of load analyses: what was shown, and what is done in those that open over them.

struct VistaCreacionGuiada : PantallaDeCreacion {
    void Rechazar(CampoDePeso campo) override { Rechazados.push_back(campo); }
    std::vector<CampoDePeso> Rechazados;
};

struct VistaPesosGuiada : PantallaDePesos {
    void LlenarLista(const std::vector<PesoUnitario>& lineas) override { Lineas = lineas; }
    void MarcarFila(int fila) override { Marcada = fila; }
    void MostrarNueva(AnalisisCargaNewCP& operaciones) override { EnNueva(operaciones); }
    void MostrarNormas(Normas& operaciones) override { operaciones.Abrir(DocumentoDeNorma::Comentario); }
    std::vector<PesoUnitario> Lineas;
    int Marcada = 0;
    std::function<void(AnalisisCargaNewCP&)> EnNueva;
};

struct VistaAnalisisGuiada : PantallaDeAnalisis {
    void PonerAnalisis(const AnalisisCarga& analisis, int posicion, int) override {
        Analisis = analisis;
        Posicion = posicion;
    }
    void LlenarItems(const std::vector<PesoUnitario>& items) override { Analisis.Permanentes = items; }
    void MarcarItem(int fila) override { Item = fila; }
    void PonerVariable(const PesoUnitario& variable) override { Analisis.Variable = variable; }
    void PonerSumas(const SumasDeCarga& sumas) override { Sumas = sumas; }
    void MostrarPesos(AnalisisCargaBDCP& operaciones) override { EnPesos(operaciones); }
    void MostrarNormas(Normas& operaciones) override { operaciones.Abrir(DocumentoDeNorma::Articulado); }
    AnalisisCarga Analisis;
    SumasDeCarga Sumas;
    int Posicion = 0;
    int Item = 0;
    std::function<void(AnalisisCargaBDCP&)> EnPesos;
};

struct VistaListaGuiada : PantallaListaAnalisis {
    void LlenarLista(const std::vector<LineaDeAnalisis>& lineas) override { Lineas = lineas; }
    void MarcarFila(int fila) override { Marcada = fila; }
    void PonerCarga(int fila, double carga) override {
        Lineas[static_cast<std::size_t>(fila) - 1].Carga = carga;
    }
    void EnfocarLista() override { ++Enfoques; }
    void PonerEstado(const std::string& texto) override { Estado = texto; }
    void MostrarNuevo(NuevoAnalisisCarga& operaciones) override { EnNuevo(operaciones); }
    void MostrarModificar(AnalisisCargaModificar& operaciones) override { EnModificar(operaciones); }
    void MostrarCompartidos(ListaAnalisis& operaciones) override { EnCompartidos(operaciones); }
    std::optional<bool> MostrarOpcion() override { return Todos; }
    void MostrarReporte(std::int16_t reporteActual) override { Reportes.push_back(reporteActual); }
    std::optional<bool> Todos;
    std::vector<std::int16_t> Reportes;
    std::vector<LineaDeAnalisis> Lineas;
    int Marcada = 0;
    int Enfoques = 0;
    std::string Estado;
    std::function<void(NuevoAnalisisCarga&)> EnNuevo;
    std::function<void(AnalisisCargaModificar&)> EnModificar;
    std::function<void(ListaAnalisis&)> EnCompartidos;
};

}  // namespace trabex::prueba
