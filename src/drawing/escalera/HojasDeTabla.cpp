#include "drawing/escalera/HojasDeTabla.h"

#include <algorithm>

#include "drawing/escalera/FigurasEscalera.h"
#include "drawing/escalera/TablaEscalera.h"

namespace trabex::dibujo::escalera {

namespace {

using escaleras::DatosEscaleraT;
using escaleras::EscaleraCalculada;

constexpr double BajoSeccion = 0.4;    // m from the flight's foot to the table
constexpr double MetrosDeTabla = 4.8;  // that section and table need in height
constexpr double MetrosSobreSeccion = 0.5;
constexpr double FactorDePantalla = 1.067;  // units to the metre, in scales, of the screen's minimum steel

/// Draws the section, and returns where the table may begin.
Plano EmpezarTabla(Lienzo& lienzo, HojaEscalera& hoja, const DatosEscaleraT& e,
                   const EstiloEscalera& estilo) {
    const double escala = EscalaDeRegla(lienzo, estilo.Tablas, escaleras::LongitudEnPlanta(e), MetrosDeTabla);
    Plano p =
        Encuadrar(lienzo, hoja.Vista, estilo.Medio, {escala, estilo.MargenDeTablas, MetrosSobreSeccion});
    DibujeSeccion(p, e, escaleras::PeldanosDe(e), 0, Tramos::Superior);
    return p;
}

SitioDeTabla SitioDe(const Plano& p, const HojaEscalera& hoja, const DatosEscaleraT& e,
                     const EstiloEscalera& estilo, double hastaRotulos) {
    const double alto = p.ElLienzo().ScaleHeight() * (1 - 2 * estilo.MargenDeTablas);
    return {(e.H / 2 + BajoSeccion) * p.Escala() + hoja.Vista.OrigenY,
            1.0 * p.Fila(e.H / 2 + std::max(e.HT, e.Hd)),
            p.Fila(-MetrosSobreSeccion) + alto * hoja.Vista.Zoom,
            p.X(-escaleras::LongitudEnPlanta(e) / 2) - hastaRotulos};
}

}  // namespace

void DibujeSolicitaciones(Lienzo& lienzo, HojaEscalera& hoja, const EscaleraCalculada& escalera,
                          const EstiloEscalera& estilo) {
    const Plano p = EmpezarTabla(lienzo, hoja, escalera.Datos, estilo);
    DibujeTabla(p, escalera.Datos, FilasDeSolicitaciones(escalera, hoja.Numeros),
                SitioDe(p, hoja, escalera.Datos, estilo, 0.16 * p.Escala()));
}

void DibujeDiseno(Lienzo& lienzo, HojaEscalera& hoja, const EscaleraCalculada& escalera,
                  const EstiloEscalera& estilo) {
    const DatosEscaleraT& e = escalera.Datos;
    const Plano p = EmpezarTabla(lienzo, hoja, e, estilo);
    DibujeTabla(p, e, FilasDeDiseno(escalera, hoja.Numeros), SitioDe(p, hoja, e, estilo, p.Unidades(15)));
    const double unidades = estilo.MinimoEnCentimetros ? 100 : FactorDePantalla * p.Escala();
    const escaleras::RotulosDeMinimo minimos = RotulosDeAceroMinimo(escalera, unidades, hoja.Numeros);
    // Beside the section, over its lower half: below the table of a high stair there is no line left.
    p.Escribir(minimos.Tramo, Ancla::Izquierda, p.X(0), p.Fila(0));
    p.Escribir(minimos.Descanso, Ancla::Izquierda, p.X(0), p.Fila(0) + lienzo.Medir("WW").Alto);
}

}  // namespace trabex::dibujo::escalera
