#include "lote/Calculo.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "lote/EscritorJson.h"
#include "store/proyecto/CamposProyecto.h"
#include "store/proyecto/ConectarProyecto.h"
#include "store/proyecto/TablaProyecto.h"

namespace trabex::lote {

namespace {

using almacen::proyecto::ProyectoAbierto;

constexpr std::size_t ElementosPorHilo = 32;  // fewer do not pay for a thread

/// A connection with the list on which it stands. It serves one thread.
struct Lector {
    ProyectoAbierto Proyecto;
    const Modulo* Abierta = nullptr;

    bool Abrir(const Modulo& modulo) {
        if (Abierta != &modulo)
            almacen::AbrirRecordset(Proyecto.ConexionProyecto, Proyecto.RegistrosProyecto, modulo.Consulta);
        Abierta = &modulo;
        return Proyecto.RegistrosProyecto.Abierto();
    }
};

using Lectores = std::vector<std::unique_ptr<Lector>>;

/// The project's lists, still without what is in them. False when none of them is there.
bool LeerListas(Lector& lector, Modulos modulos, ProyectoCalculado& calculado) {
    bool hay = false;
    for (const Modulo* modulo : modulos) {
        Lista lista{modulo, nullptr, {}};
        if (modulo->LeerGenerales) lista.Generales = modulo->LeerGenerales(lector.Proyecto.ConexionProyecto);
        if (lector.Abrir(*modulo)) {
            hay = true;
            lista.Elementos.resize(
                static_cast<std::size_t>(lector.Proyecto.RegistrosProyecto.NumeroRegistros()));
        }
        calculado.Listas.push_back(std::move(lista));
    }
    return hay;
}

/// Further readers, each of a copy of the same copy.
void AgregarLectores(Lectores& lectores, unsigned hilos, std::size_t elementos) {
    while (lectores.size() < hilos && lectores.size() * ElementosPorHilo < elementos) {
        auto otro = std::make_unique<Lector>();
        almacen::CopiarEnMemoria(lectores.front()->Proyecto.ConexionProyecto,
                                 otro->Proyecto.ConexionProyecto);
        if (!otro->Proyecto.ConexionProyecto.Abierta()) return;
        lectores.push_back(std::move(otro));
    }
}

/// Every element of a project with its list and its place there.
std::vector<std::pair<Lista*, std::size_t>> Todos(ProyectoCalculado& calculado) {
    std::vector<std::pair<Lista*, std::size_t>> todos;
    for (Lista& lista : calculado.Listas) {
        for (std::size_t i = 0; i < lista.Elementos.size(); ++i) todos.emplace_back(&lista, i);
    }
    return todos;
}

std::string ProyectoJson(const DatosDelProyecto& datos) {
    return ObjetoJson(datos, almacen::proyecto::CamposProyecto);
}

}  // namespace

bool CalcularProyecto(const std::filesystem::path& camino, Modulos modulos, const Marcha& marcha,
                      ProyectoCalculado& calculado) {
    Lectores lectores;
    lectores.push_back(std::make_unique<Lector>());
    almacen::Conexion& conexion = lectores.front()->Proyecto.ConexionProyecto;
    almacen::proyecto::ConectarCopia(conexion, camino);
    calculado.Camino = camino;
    if (!LeerListas(*lectores.front(), modulos, calculado)) return false;
    almacen::proyecto::LeerProyecto(conexion, "", calculado.Datos);

    const auto todos = Todos(calculado);
    AgregarLectores(lectores, marcha.Hilos, todos.size());
    const Marcha propia{static_cast<unsigned>(lectores.size()), marcha.Avance};
    Repartir(propia, "Calculando", todos.size(), [&](std::size_t k, unsigned hilo) {
        const auto& [lista, i] = todos[k];
        Lector& lector = *lectores[hilo];
        if (!lector.Abrir(*lista->De)) return;
        lector.Proyecto.RegistrosProyecto.MoverA(static_cast<int>(i) + 1);
        lista->Elementos[i] = lista->De->Calcular(lector.Proyecto, lista->Generales);
    });
    return true;
}

std::string DocumentoJson(const ProyectoCalculado& calculado, const Marcha& marcha) {
    std::string documento = "{\"Proyecto\":" + ProyectoJson(calculado.Datos);
    for (const Lista& lista : calculado.Listas) {
        const Modulo& modulo = *lista.De;
        if (modulo.ClaveGenerales)
            documento +=
                ",\n\"" + std::string(modulo.ClaveGenerales) + "\":" + modulo.GeneralesJson(lista.Generales);
        std::vector<std::string> objetos(lista.Elementos.size());
        EnParalelo(marcha.Hilos, objetos.size(),
                   [&](std::size_t i, unsigned) { objetos[i] = modulo.Json(lista.Elementos[i]); });
        documento += ",\n\"" + std::string(modulo.Clave) + "\":[";
        for (std::size_t i = 0; i < objetos.size(); ++i) documento += (i == 0 ? "\n" : ",\n") + objetos[i];
        documento += "\n]";
    }
    return documento + "}\n";
}

}  // namespace trabex::lote
