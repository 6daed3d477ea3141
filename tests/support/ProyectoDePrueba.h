#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "slab/Losa.h"
#include "store/Mantenimiento.h"
#include "store/tablas/TablasLosa.h"
#include "support/Lugares.h"

namespace trabex::prueba {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;

inline std::string LeerArchivo(const std::filesystem::path& camino) {
    if (!std::filesystem::is_regular_file(camino)) return {};
    std::ifstream archivo(camino, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), {}};
}

inline void EscribirArchivo(const std::filesystem::path& camino, const std::string& bytes) {
    std::ofstream(camino, std::ios::binary) << bytes;
}

/// The schema of a project without data, as the program delivers it.
inline std::string EsquemaDeProyecto() {
    return LeerArchivo(prueba::Install() + "/Imagen/LosaImagen.sql");
}

/// Opens a project and its slab list.
inline bool Abrir(ProyectoAbierto& proyecto, const std::filesystem::path& camino) {
    AbrirConexion(proyecto.ConexionProyecto, camino);
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    return proyecto.RegistrosProyecto.Abierto();
}

/// Adds a slab with its rows and leaves the list on it.
inline bool AgregarLosa(ProyectoAbierto& proyecto, Losa losa) {
    proyecto.RegistrosProyecto.AgregarNuevo();
    proyecto.RegistrosProyecto.Poner("Nombre", losa.Nombre);
    return proyecto.RegistrosProyecto.Actualizar() && GuardarLosa(proyecto, losa);
}

/// A new project with the given slabs, in one save.
inline bool CrearProyecto(const std::filesystem::path& camino, const std::vector<Losa>& losas) {
    ProyectoAbierto proyecto;
    if (!CrearBaseDatos(camino, EsquemaDeProyecto()) || !Abrir(proyecto, camino)) return false;
    Transaccion guardado(proyecto.ConexionProyecto);
    for (const Losa& losa : losas) AgregarLosa(proyecto, losa);
    return guardado.Confirmar();
}

}  // namespace trabex::prueba
