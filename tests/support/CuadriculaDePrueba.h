#pragma once

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::prueba {

/// Texts that each format must guard in its own way: accents, quotes, a tabulator, line feeds, markup.
inline constexpr const char* TextoDificil = "Ñandú \"a\"\tb\n<c> & 'd'";

inline cuadricula::HojaDeCuadricula HojaDePrueba(const std::string& nombre) {
    using documento::Alineacion;
    cuadricula::HojaDeCuadricula hoja;
    hoja.Nombre = nombre;
    hoja.Celdas.Columnas = {{"Descripción", "", "", 60, Alineacion::Izquierda},
                            {"Mínimo", "Peso\nkgf/m²", "0.00", 20, Alineacion::Derecha},
                            {"Máximo", "Peso\nkgf/m²", "0.00", 20, Alineacion::Derecha}};
    hoja.Celdas.Filas = {{{std::string(TextoDificil), 1250.5, 1300.0}},
                         {{std::string("=SUMA(A1)"), -0.25, almacen::Valor()}}};
    hoja.Cabeceras = {"1", "dos & \"2\""};
    hoja.AnchoDeCabeceras = 20;
    return hoja;
}

/// So many sheets, with a comma for the decimals.
inline cuadricula::Cuadricula CuadriculaDePrueba(int hojas) {
    cuadricula::Cuadricula grilla;
    grilla.Locales.Decimal = ",";
    for (int i = 0; i < hojas; ++i) grilla.Hojas.push_back(HojaDePrueba("Lista " + std::to_string(i + 1)));
    return grilla;
}

}  // namespace trabex::prueba
