#include "drawing/escalera/GraficoEscalera.h"

#include <array>

#include "base/ErrorEjecucion.h"
#include "drawing/escalera/HojaGeometria.h"
#include "drawing/escalera/HojaReacciones.h"
#include "drawing/escalera/HojasDeTabla.h"

namespace trabex::dibujo::escalera {

namespace {
constexpr std::array Hojas{DibujeGeometria, DibujeSolicitaciones, DibujeDiseno, DibujeReacciones};
}

void RedibujeVista(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                   const EstiloEscalera& estilo) {
    if (hoja.VistaActual >= Hojas.size()) return;
    Despejar(lienzo, hoja.Vista, estilo.Medio);
    if (!escaleras::TieneMedidas(escalera.Datos)) return;
    try {
        Hojas[hoja.VistaActual](lienzo, hoja, escalera, estilo);
    } catch (const ErrorEjecucion&) {
        // What was drawn stands; a drawing reports nothing.
    }
}

void GuardeGraficos1(Lienzo& pagina, const HojaEscalera& pantalla,
                     const escaleras::EscaleraCalculada& escalera, const DatosDePagina& datos) {
    HojaEscalera hoja = pantalla;
    RedibujeVista(pagina, hoja, escalera, HojaEnPapel);
    DibujePagina(pagina, datos);
}

}  // namespace trabex::dibujo::escalera
