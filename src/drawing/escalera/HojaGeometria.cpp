#include "drawing/escalera/HojaGeometria.h"

#include "drawing/Cotas.h"
#include "drawing/Primitivas.h"
#include "drawing/escalera/FigurasEscalera.h"

namespace trabex::dibujo::escalera {

namespace {

using escaleras::DatosEscaleraT;
using escaleras::Peldanos;

constexpr double LetraDeCotas = 8;
constexpr std::int32_t PixelesALaCota = 8;

Encuadre EncuadreDe(const Lienzo& lienzo, const DatosEscaleraT& e, const EstiloEscalera& estilo) {
    const double alto = ((e.B + e.B) + e.H) + estilo.MetrosDeGeometria;
    return {EscalaDeRegla(lienzo, estilo.Geometria, escaleras::LongitudEnPlanta(e), alto), 0.5,
            (((e.B + e.B) + Ojo) - e.H) / 3};
}

/// A line at each tread; the last one, where the landing begins, on the first flight alone, and a pixel
/// longer.
void DibujeHuellas(const Plano& p, const DatosEscaleraT& e, const Peldanos& peldanos) {
    const auto linea = [&](double x, std::int32_t y1, double y2) {
        DibujeLinea(p.ElLienzo(), p.X(x), y1, p.X(x), p.Y(y2), 1, EstiloLinea::Solida, {});
    };
    double x = -escaleras::LongitudEnPlanta(e) / 2;
    for (std::int16_t i = 1; i <= peldanos.Huellas; ++i) {
        x += peldanos.Huella;
        if (i == peldanos.Huellas) {
            linea(x, p.Y(Ojo) + p.Unidades(1), e.B + Ojo);
        } else {
            linea(x, p.Y(Ojo), e.B + Ojo);
            linea(x, p.Y(e.B + 2 * Ojo), (e.B + e.B) + 2 * Ojo);
        }
    }
}

class Cotas {
  public:
    Cotas(const Plano& plano, const DatosEscaleraT& escalera, const Separadores& numeros)
        : p_(plano), e_(escalera), numeros_(numeros), medio_(escaleras::LongitudEnPlanta(escalera) / 2) {}

    /// Returns the row above which nothing is written.
    std::int32_t DibujarPlanta() const {
        const std::int32_t fila = p_.Y(2 * e_.B + 2 * Ojo) - p_.Unidades(PixelesALaCota);
        Horizontal(fila, -medio_, medio_ - e_.B);
        Horizontal(fila, medio_ - e_.B, medio_);
        const std::int32_t izquierda = p_.X(-medio_) - p_.Unidades(PixelesALaCota);
        Vertical(izquierda, -(2 * e_.B + 2 * Ojo), -(e_.B + 2 * Ojo), TextoDeCota::Izquierda);
        Vertical(izquierda, -(e_.B + 2 * Ojo), -(e_.B + Ojo), TextoDeCota::Izquierda);
        Vertical(izquierda, -(e_.B + Ojo), -Ojo, TextoDeCota::Izquierda);
        Vertical(p_.X(medio_) + p_.Unidades(PixelesALaCota), -(2 * e_.B + 2 * Ojo), -Ojo,
                 TextoDeCota::Derecha);
        return fila - p_.ElLienzo().Medir("WW").Alto - p_.Unidades(2);
    }

    void DibujarSeccion() const {
        const std::int32_t izquierda = p_.X(-medio_ - e_.HT) - p_.Unidades(PixelesALaCota);
        Vertical(izquierda, Ojo, e_.H / 2 + Ojo, TextoDeCota::Izquierda);
        Vertical(izquierda, e_.H / 2 + Ojo, e_.H + Ojo, TextoDeCota::Izquierda);
        const std::int32_t medioAlto = p_.ElLienzo().Medir("WW").Alto / 2;
        p_.Escribir("e1 = " + Numero(e_.HT), Ancla::Izquierda, p_.X(-medio_),
                    p_.Fila(e_.H / 2 + Ojo) - medioAlto);
        p_.Escribir("e2 = " + Numero(e_.Hd), Ancla::Izquierda, p_.X(medio_) + p_.Unidades(PixelesALaCota),
                    p_.Fila(e_.H / 2 + Ojo + e_.Hd / 2) - medioAlto);
    }

  private:
    std::string Numero(double valor) const { return Formato(valor, "0.00", numeros_); }
    void Horizontal(std::int32_t fila, double x1, double x2) const {
        Acotar(p_, {p_.X(x1), fila}, {p_.X(x2), fila}, Numero(x2 - x1), TextoDeCota::Encima);
    }
    void Vertical(std::int32_t x, double abajo1, double abajo2, TextoDeCota lugar) const {
        Acotar(p_, {x, p_.Fila(abajo1)}, {x, p_.Fila(abajo2)}, Numero(abajo2 - abajo1), lugar);
    }

    const Plano& p_;
    const DatosEscaleraT& e_;
    const Separadores& numeros_;
    double medio_;
};

}  // namespace

void DibujeGeometria(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                     const EstiloEscalera& estilo) {
    const DatosEscaleraT& e = escalera.Datos;
    const Plano p = Encuadrar(lienzo, hoja.Vista, estilo.Medio, EncuadreDe(lienzo, e, estilo));
    DibujePlanta(p, e);
    const Peldanos peldanos = escaleras::PeldanosDe(e);
    DibujeHuellas(p, e, peldanos);
    DibujeSeccion(p, e, peldanos, Ojo, Tramos::Ambos);
    p.Letra(LetraDeCotas);
    const Cotas cotas(p, e, hoja.Numeros);
    const std::int32_t sobrePlanta = cotas.DibujarPlanta();
    cotas.DibujarSeccion();
    DibujeTitulo(p, e.Titulo, sobrePlanta);
}

}  // namespace trabex::dibujo::escalera
