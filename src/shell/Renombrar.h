#pragma once

#include <string>
#include <string_view>

#include "shell/CajaMensajes.h"
#include "store/Conexion.h"

namespace trabex::programa {

/// What the rename window says of a kind of element.
struct TextosDeRenombrar {
    std::string_view YaExiste;                    ///< of a name that is taken, below the name itself
    std::string_view Pregunta;                    ///< before the old name
    std::string_view Por = "   Por el Nombre: ";  ///< between the old and the new one
    std::string_view Encabezado = "Renombrar...";
};

/// Operations of the window that asks for an element's new name. It writes nothing: the workspace does.
class Renombrar {
  public:
    /// `tabla`: where the names of its kind are.
    Renombrar(almacen::Conexion& conexion, CajaMensajes& caja, std::string_view tabla,
              const TextosDeRenombrar& textos, std::string actual)
        : conexion_(conexion), caja_(caja), tabla_(tabla), textos_(textos), actual_(std::move(actual)) {}

    const std::string& NombreActual() const { return actual_; }
    /// The name that was accepted, without the blanks around it.
    const std::string& NombreNuevo() const { return nuevo_; }

    /// " Aceptar ": true when the name is free and the user is sure; the window then closes.
    bool Aceptar(const std::string& entrado);

  private:
    almacen::Conexion& conexion_;
    CajaMensajes& caja_;
    std::string_view tabla_;
    TextosDeRenombrar textos_;
    std::string actual_;
    std::string nuevo_;
};

/// Some record of `tabla` has that name. A name that holds a quote counts as taken wherever the table has
/// records: its search breaks.
bool ExisteNombre(almacen::Conexion& conexion, std::string_view tabla, const std::string& nombre);

}  // namespace trabex::programa
