#pragma once

#include <cstdlib>
#include <sstream>
#include <vector>

#include <gtest/gtest.h>

#include "reports/xls/LibroXls.h"
#include "support/CarpetaTemporal.h"
#include "support/ProyectoDePrueba.h"

namespace trabex::prueba {

using namespace xls;

/// What another program's reader finds in the book, line by line: see volcar_xls.py.
inline std::vector<std::string> VolcarXls(const LibroXls& libro) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "libro.xls";
    const auto volcado = carpeta / "volcado.txt";
    GuardarXls(libro, archivo);
    const std::string orden = std::string(TRABEX_PYTHON " " TRABEX_VOLCAR_XLS) + " '" + archivo.string() +
                              "' > '" + volcado.string() + "'";
    EXPECT_EQ(std::system(orden.c_str()), 0);
    std::istringstream texto(LeerArchivo(volcado));
    std::vector<std::string> lineas;
    for (std::string linea; std::getline(texto, linea);) lineas.push_back(linea);
    return lineas;
}

}  // namespace trabex::prueba
