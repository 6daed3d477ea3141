#include "drawing/escalera/HojaReacciones.h"

#include <algorithm>

#include "drawing/Primitivas.h"
#include "drawing/escalera/FigurasEscalera.h"
#include "stairs/FilasEscaleraT.h"

namespace trabex::dibujo::escalera {

namespace {

using escaleras::DatosEscaleraT;
using escaleras::ReaccionesDeHoja;

constexpr double CabezaDeSeccion = 0.5;  // m below the origin
constexpr double AnchoDeApoyo = 0.3;
constexpr double AltoDeApoyo = 0.5;
constexpr double LargoDeFlecha = 0.354;
constexpr double LetraDeReacciones = 9;
constexpr Color ColorFlecha{248, 199, 199};
constexpr Color ColorApoyo{26, 33, 34};

Encuadre EncuadreDe(const Lienzo& lienzo, const DatosEscaleraT& e, const EstiloEscalera& estilo) {
    const double alto = (e.B + e.B) + e.H;
    return {EscalaDeRegla(lienzo, estilo.Reacciones, escaleras::LongitudEnPlanta(e), alto), 0.5,
            -(e.H / 2 + 0.3)};
}

/// A support with what it takes: its block, open below, and the arrows of the forces on it. The stair pulls
/// the upper support toward it and pushes the lower one away. Arrows and values that find no room at the
/// stair's left stand over it, on the canvas's edge.
class Apoyo {
  public:
    Apoyo(const Plano& plano, double x, double abajo)
        : p_(plano), x_(x), abajo_(abajo), canto_(plano.X(x - AnchoDeApoyo / 2)) {}

    void DibujarBloque() const {
        const std::int32_t arriba = p_.Fila(abajo_);
        const std::int32_t pie = p_.Fila(abajo_ + AltoDeApoyo);
        const std::int32_t derecha = p_.X(x_ + AnchoDeApoyo / 2);
        DibujeLinea(p_.ElLienzo(), canto_, pie, canto_, arriba, 1, EstiloLinea::Solida, ColorApoyo);
        DibujeLinea(p_.ElLienzo(), canto_, arriba, derecha, arriba, 1, EstiloLinea::Solida, ColorApoyo);
        DibujeLinea(p_.ElLienzo(), derecha, arriba, derecha, pie, 1, EstiloLinea::Solida, ColorApoyo);
    }

    /// Arrow down on the block's left corner, and the value turned at its left. Returns its highest row.
    std::int32_t DibujarVertical(const std::string& valor) const {
        const MedidaTexto medida = p_.ElLienzo().Medir(valor);
        const double ancho = 0.101 * p_.Escala() + p_.Unidades(2) + medida.Alto;
        const std::int32_t x = std::max(canto_, Pixeles(ancho));
        const std::int32_t punta = p_.Fila(abajo_);
        DibujeFlechaDiagonal(p_.ElLienzo(), x, punta, HaciaAbajo, ColorFlecha, p_.Escala());
        const double centro = punta - std::max(LargoDeFlecha * p_.Escala(), 1.0 * medida.Ancho) / 2;
        p_.EscribirCentrado(valor, x - ancho + medida.Alto / 2.0, centro, 90);
        return std::min(Pixeles(centro - medida.Ancho / 2.0), punta - Pixeles(LargoDeFlecha * p_.Escala()));
    }

    /// Arrow to or from the block's left side, and the value below it.
    void DibujarHorizontal(const std::string& valor, bool haciaLaEscalera) const {
        const std::int32_t fila = p_.Fila(abajo_ + AltoDeApoyo / 2);
        const std::int32_t largo = Pixeles(LargoDeFlecha * p_.Escala());
        const std::int32_t alBorde = std::max(largo, p_.ElLienzo().Medir(valor).Ancho);
        const std::int32_t alBloque = canto_ - p_.Unidades(2);
        const std::int32_t cerca = std::max(alBloque, alBorde);
        DibujeFlechaDiagonal(p_.ElLienzo(), haciaLaEscalera ? cerca : cerca - largo, fila,
                             haciaLaEscalera ? HaciaDerecha : HaciaIzquierda, ColorFlecha, p_.Escala());
        // Over the block the value stands below it, clear of its sides.
        const std::int32_t pie =
            alBloque < alBorde ? p_.Fila(abajo_ + AltoDeApoyo) : fila + Pixeles(0.101 * p_.Escala());
        p_.Escribir(valor, Ancla::Derecha, cerca, pie + p_.Unidades(1));
    }

  private:
    const Plano& p_;
    double x_;
    double abajo_;
    std::int32_t canto_;  // left side of the block
};

}  // namespace

void DibujeReacciones(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                      const EstiloEscalera& estilo) {
    const DatosEscaleraT& e = escalera.Datos;
    const Plano p = Encuadrar(lienzo, hoja.Vista, estilo.Medio, EncuadreDe(lienzo, e, estilo));
    const double x = -escaleras::LongitudEnPlanta(e) / 2;
    const Apoyo superior(p, x, CabezaDeSeccion);
    const Apoyo inferior(p, x, e.H + CabezaDeSeccion);
    DibujeSeccion(p, e, escaleras::PeldanosDe(e), CabezaDeSeccion, Tramos::Ambos);
    superior.DibujarBloque();
    inferior.DibujarBloque();
    const ReaccionesDeHoja valores = escaleras::ReaccionesDe(escalera, hoja.Numeros);
    p.Letra(LetraDeReacciones);
    const std::int32_t cima = superior.DibujarVertical(valores.Vertical);
    superior.DibujarHorizontal(valores.Horizontal, true);
    inferior.DibujarVertical(valores.Vertical);
    inferior.DibujarHorizontal(valores.Horizontal, false);
    DibujeTitulo(p, e.Titulo, cima - p.Unidades(4));
}

}  // namespace trabex::dibujo::escalera
