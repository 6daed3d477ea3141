#include "lote/Opciones.h"

#include <algorithm>
#include <vector>

namespace trabex::lote {

namespace {

constexpr std::string_view SoloEstas = "--solo=";
constexpr std::string_view SinDibujarNada = "--sin-dibujos";
constexpr const char* SalidaResultados = "resultados";

/// Every output by its name, once.
std::vector<std::string> Salidas(Modulos modulos) {
    std::vector<std::string> nombres{SalidaResultados, SalidaHojas, SalidaReportes, SalidaMemoria,
                                     SalidaVectores};
    for (const Modulo* modulo : modulos) {
        for (const Intercambio& intercambio : modulo->Intercambios) {
            if (std::find(nombres.begin(), nombres.end(), intercambio.Clave) == nombres.end())
                nombres.emplace_back(intercambio.Clave);
        }
    }
    return nombres;
}

bool LeerSalidas(std::string_view lista, const std::vector<std::string>& conocidas,
                 std::set<std::string>& solo) {
    for (;;) {
        const std::size_t coma = lista.find(',');
        const std::string nombre(lista.substr(0, coma));
        if (std::find(conocidas.begin(), conocidas.end(), nombre) == conocidas.end()) return false;
        solo.insert(nombre);
        if (coma == std::string_view::npos) return true;
        lista.remove_prefix(coma + 1);
    }
}

}  // namespace

bool Opciones::Pide(std::string_view salida) const {
    return Solo.empty() || Solo.count(std::string(salida)) != 0;
}

std::optional<Opciones> LeerOpciones(std::span<const char* const> argumentos, Modulos modulos) {
    Opciones opciones;
    while (!argumentos.empty() && std::string_view(argumentos.front()).starts_with("--")) {
        const std::string_view opcion = argumentos.front();
        argumentos = argumentos.subspan(1);
        if (opcion == SinDibujarNada)
            opciones.SinDibujos = true;
        else if (!opcion.starts_with(SoloEstas) ||
                 !LeerSalidas(opcion.substr(SoloEstas.size()), Salidas(modulos), opciones.Solo))
            return std::nullopt;
    }
    if (argumentos.size() != 2) return std::nullopt;
    opciones.Proyecto = argumentos[0];
    opciones.Carpeta = argumentos[1];
    return opciones;
}

std::string Uso(Modulos modulos) {
    std::string nombres;
    for (const std::string& salida : Salidas(modulos)) nombres += (nombres.empty() ? "" : ",") + salida;
    return "Uso: trabex-lote [--sin-dibujos] [--solo=" + nombres + "] PROYECTO.los CARPETA";
}

}  // namespace trabex::lote
