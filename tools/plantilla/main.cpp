// Builds a template database from schema texts: trabex_plantilla TARGET TEXT.sql [TEXT.sql ...]

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "store/Mantenimiento.h"

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "trabex_plantilla TARGET TEXT.sql [TEXT.sql ...]\n";
        return 2;
    }
    std::string esquema;
    for (int i = 2; i < argc; ++i) {
        std::ifstream texto(argv[i], std::ios::binary);
        if (!texto) {
            std::cerr << argv[i] << ": cannot be read\n";
            return 1;
        }
        esquema.append(std::istreambuf_iterator<char>(texto), {});
    }
    const std::filesystem::path destino(argv[1]);
    std::filesystem::remove(destino);
    if (!trabex::almacen::CrearBaseDatos(destino, esquema)) {
        std::cerr << argv[1] << ": the schema texts do not make a database\n";
        return 1;
    }
    return 0;
}
