#include "reports/cuadricula/Cuadricula.h"

#include <algorithm>

namespace trabex::cuadricula {

namespace {

/// Of row headings as a column on a grid of several sheets: 15 letters.
constexpr double AnchoEntreVariasHojas = 30;

}  // namespace

const std::string& HojaDeCuadricula::Cabecera(std::size_t fila) const {
    static const std::string ninguna;
    return fila < Cabeceras.size() ? Cabeceras[fila] : ninguna;
}

bool HojaDeCuadricula::TieneCabeceras() const {
    return std::any_of(Cabeceras.begin(), Cabeceras.end(),
                       [](const std::string& cabecera) { return !cabecera.empty(); });
}

double AnchoDeColumnaDeCabeceras(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja) {
    return cuadricula.Hojas.size() > 1 ? AnchoEntreVariasHojas : hoja.AnchoDeCabeceras;
}

documento::Tabla ConCabeceras(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja) {
    documento::Tabla tabla = hoja.Celdas;
    documento::ColumnaDeTabla columna;
    columna.Ancho = AnchoDeColumnaDeCabeceras(cuadricula, hoja);
    columna.Lado = documento::Alineacion::Izquierda;
    tabla.Columnas.insert(tabla.Columnas.begin(), columna);
    for (std::size_t i = 0; i < tabla.Filas.size(); ++i)
        tabla.Filas[i].Celdas.insert(tabla.Filas[i].Celdas.begin(), hoja.Cabecera(i));
    return tabla;
}

std::string TextoDeCelda(const documento::Tabla& tabla, std::size_t fila, std::size_t columna,
                         const Separadores& separadores) {
    const std::vector<almacen::Valor>& celdas = tabla.Filas[fila].Celdas;
    if (columna >= celdas.size()) return {};
    return documento::TextoDeValor(celdas[columna], tabla.Columnas[columna].Formato, separadores);
}

std::string TituloDeColumna(const documento::ColumnaDeTabla& columna) {
    const bool dos = !columna.Grupo.empty() && !columna.Titulo.empty();
    std::string titulo = columna.Grupo + (dos ? " " : "") + columna.Titulo;
    std::replace(titulo.begin(), titulo.end(), '\n', ' ');
    return titulo;
}

}  // namespace trabex::cuadricula
