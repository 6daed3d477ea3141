#include "drawing/GeneralImpresion.h"

#include "base/Edicion.h"
#include "drawing/Primitivas.h"
#include "drawing/Superficie.h"

namespace trabex::dibujo {

namespace {
constexpr double LetraDePagina = 9;
}

void DibujePagina(Lienzo& pagina, const DatosDePagina& datos) {
    pagina.PonerFuente({std::string(EnPapel.FuenteNombre), LetraDePagina, false});
    pagina.PonerColorTexto({});
    const std::int32_t ancho = pagina.ScaleWidth();
    const std::int32_t alto = pagina.Medir("WW").Alto;
    const std::int32_t pie = pagina.ScaleHeight() - alto;
    const std::int32_t aire = alto / 3;
    const std::string version = std::string("Trabex  versión: ") + Edicion;
    DibujeTexto(pagina, "PROYECTO: " + datos.Proyecto, 0, 0, 0);
    DibujeTexto(pagina, "CALCULISTA: " + datos.Calculista, 0, alto, 0);
    DibujeLinea(pagina, 0, 2 * alto + aire, ancho, 2 * alto + aire, 1, EstiloLinea::Solida, {});
    DibujeLinea(pagina, 0, pie - aire, ancho, pie - aire, 1, EstiloLinea::Solida, {});
    DibujeTexto(pagina, "Usuario: " + datos.Usuario, 0, pie, 0);
    DibujeTexto(pagina, version, ancho - pagina.Medir(version).Ancho, pie, 0);
}

}  // namespace trabex::dibujo
