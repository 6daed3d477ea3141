// Builds a template database from schema texts: trabex_plantilla [--jet] TARGET TEXT.sql [TEXT.sql ...]
// With --jet it is a Jet database, as the drawing program reads it.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

#include "store/Mantenimiento.h"
#include "store/antiguo/EscribirJet.h"

int main(int argc, char** argv) {
    const bool enJet = argc > 1 && std::string_view(argv[1]) == "--jet";
    const std::span<char*> argumentos =
        std::span(argv, static_cast<std::size_t>(argc)).subspan(enJet ? 2 : 1);
    if (argumentos.size() < 2) {
        std::cerr << "trabex_plantilla [--jet] TARGET TEXT.sql [TEXT.sql ...]\n";
        return 2;
    }
    std::string esquema;
    for (const char* nombre : argumentos.subspan(1)) {
        std::ifstream texto(nombre, std::ios::binary);
        if (!texto) {
            std::cerr << nombre << ": cannot be read\n";
            return 1;
        }
        esquema.append(std::istreambuf_iterator<char>(texto), {});
    }
    const std::filesystem::path destino(argumentos[0]);
    std::filesystem::remove(destino);
    if (!trabex::almacen::CrearBaseDatos(destino, esquema)) {
        std::cerr << destino << ": the schema texts do not make a database\n";
        return 1;
    }
    if (enJet) trabex::almacen::antiguo::EscribirJet(destino, destino);
    return 0;
}
