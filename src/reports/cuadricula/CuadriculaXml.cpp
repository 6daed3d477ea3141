#include "reports/cuadricula/CuadriculaXml.h"

#include "base/Archivos.h"
#include "base/Marcado.h"

namespace trabex::cuadricula {

namespace {

std::string Etiqueta(const std::string& nombre, const std::string& atributos, const std::string& dentro) {
    return "<" + nombre + atributos + ">" + dentro + "</" + nombre + ">";
}

/// A sheet of a grid of several tells its name.
std::string AtributoDeHoja(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja) {
    return cuadricula.Hojas.size() > 1 ? " hoja=\"" + TextoDeMarcado(hoja.Nombre) + "\"" : std::string();
}

}  // namespace

void EscribirXml(const Cuadricula& cuadricula, const std::filesystem::path& destino) {
    std::string texto = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + std::string(ElementoRaiz) + ">\n";
    for (const HojaDeCuadricula& hoja : cuadricula.Hojas) {
        const documento::Tabla tabla = ConCabeceras(cuadricula, hoja);
        for (std::size_t f = 0; f < tabla.Filas.size(); ++f) {
            std::string celdas;
            for (std::size_t c = 0; c < tabla.Columnas.size(); ++c)
                celdas += Etiqueta("celda",
                                   " columna=\"" + TextoDeMarcado(TituloDeColumna(tabla.Columnas[c])) + "\"",
                                   TextoDeMarcado(TextoDeCelda(tabla, f, c, cuadricula.Locales)));
            texto += Etiqueta(ElementoColeccion, AtributoDeHoja(cuadricula, hoja), celdas) + "\n";
        }
    }
    EscribirArchivo(destino, texto + "</" + ElementoRaiz + ">\n");
}

}  // namespace trabex::cuadricula
