#pragma once

#include <map>
#include <optional>
#include <string>

namespace trabex::almacen {

class Motor;

/// Where the rows of each name are, in memory beside a project's file and only for one connection: what is
/// read or saved of an element costs what the element costs, and no index in our order stands in the file,
/// where no other program could follow it.
class IndiceDeNombres {
  public:
    explicit IndiceDeNombres(Motor& motor) : motor_(motor) {}

    /// The condition by which a statement reaches the rows of `tabla` that `criterio`, "Nombre='…'", names.
    /// It holds as long as the read lock under which it is asked for. Nothing when there is no index to be
    /// had.
    std::optional<std::string> Condicion(const std::string& tabla, const std::string& criterio);

  private:
    bool AlDia(const std::string& tabla);
    bool Levantar(const std::string& tabla);

    Motor& motor_;
    struct Levantado {
        std::string Version;  ///< of the file's content
        bool Sirve = false;
    };
    std::map<std::string, Levantado> tablas_;
};

}  // namespace trabex::almacen
