#include "drawing/losa/GraficoFuerzas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "drawing/Primitivas.h"
#include "drawing/losa/BaseLosa.h"

namespace trabex::dibujo::losa {

namespace {

constexpr Color FondoCorte{165, 191, 235};
constexpr Color FondoMomento{247, 194, 187};
constexpr double PrimeraBanda = 2.97;  // axis of the shear diagram, below the slab
constexpr double MediaFranja = 1.39;   // from a diagram's axis to the edge of its band
constexpr double Amplitud = 0.8;       // of the largest value
constexpr double LargoDeFlecha = 0.5;
constexpr PieDeHoja Titulos{7.6, 4};
constexpr double FlechaDeReaccion = 0.8;  // part of a block arrow's size
constexpr double Apartado = 0.5;          // of the labels at the left, from the first axis
constexpr double Rectitud = 0.5;          // canvas units by which a point may lie beside a straight line

/// A diagram: its values are drawn along the span, `Sentido` telling which way a positive one goes on the
/// canvas. Shears are drawn upward, moments on the side in tension.
struct Diagrama {
    BandaDe De;
    double Unidades;  ///< canvas units per kgf or kgf·m
    double Sentido;
    Color Fondo;
    double losas::PuntoDiagrama::*Valor;

    double Subida(double valor) const { return Sentido * Unidades * valor; }
};

/// A station on the canvas, from the world's origin.
struct PuntoDeFranja {
    double x;
    double Eje;      ///< row of the slab's line there
    double Extremo;  ///< row of its value over it
};

/// The stations of a span. The last one stands on the second axis, wherever a shift of it along X has put it:
/// a diagram is closed at its supports.
std::vector<PuntoDeFranja> EnLienzo(const Trazado& t, const Diagrama& diagrama, std::size_t i,
                                    double tangente, const std::vector<losas::PuntoDiagrama>& puntos) {
    const double E = t.EnMetros.Escala();
    std::vector<PuntoDeFranja> enLienzo;
    enLienzo.reserve(puntos.size());
    for (const losas::PuntoDiagrama& punto : puntos) {
        const double eje = -E * (t.EjeY(i) + tangente * punto.d);
        enLienzo.push_back({E * (t.EjeX(i) + punto.d), eje, eje + diagrama.Subida(punto.*diagrama.Valor)});
    }
    const double cierre = -E * t.EjeY(i + 1);
    enLienzo.back() = {t.Columna(i + 1), cierre, cierre + diagrama.Subida(puntos.back().*diagrama.Valor)};
    return enLienzo;
}

/// The straight lines from a point that pass near all that came after it.
class Abanico {
  public:
    explicit Abanico(const PuntoDeFranja& desde) : desde_(desde) {}
    bool Admite(const PuntoDeFranja& punto) const {
        const double dx = punto.x - desde_.x;
        const double dy = punto.Extremo - desde_.Extremo;
        return dx > 0 ? menor_ * dx <= dy && dy <= mayor_ * dx : !estrecho_;
    }
    void Estrechar(const PuntoDeFranja& punto) {
        const double dx = punto.x - desde_.x;
        const double dy = punto.Extremo - desde_.Extremo;
        menor_ = dx > 0 ? std::max(menor_, (dy - Rectitud) / dx) : Infinito;
        mayor_ = dx > 0 ? std::min(mayor_, (dy + Rectitud) / dx) : -Infinito;
        estrecho_ = true;
    }

  private:
    static constexpr double Infinito = std::numeric_limits<double>::infinity();
    PuntoDeFranja desde_;
    double menor_ = -Infinito;
    double mayor_ = Infinito;
    bool estrecho_ = false;
};

/// Leaves out the stations that lie on the straight line between those kept, as near as can be seen: each
/// rounded to pixels by itself, they would make steps of it.
std::vector<PuntoDeFranja> Visibles(const std::vector<PuntoDeFranja>& puntos) {
    std::vector<PuntoDeFranja> visibles{puntos.front()};
    Abanico abanico(puntos.front());
    for (std::size_t k = 1; k < puntos.size(); ++k) {
        if (!abanico.Admite(puntos[k])) {
            visibles.push_back(puntos[k - 1]);
            abanico = Abanico(puntos[k - 1]);
        }
        abanico.Estrechar(puntos[k]);
    }
    visibles.push_back(puntos.back());
    return visibles;
}

/// A value that is written at the diagram's ordinate. The shear at a span's end is written as the support's
/// push on it, upward like the one at its start; the diagram ends with the opposite sign.
struct ValorDeTramo {
    double x;    ///< column from the origin
    double Eje;  ///< row of the slab's line there
    double Ordenada;
    double Valor;
    double Lado;  ///< of the arrow that its text prefers
};

/// A diagram in its band, whose rows are counted from the line through the axes until it is known how far
/// below it the band lies. No text leaves the band: it grows by the lines that find no room in it.
class Franja {
  public:
    Franja(const Trazado& t, const Diagrama& diagrama)
        : t_(t),
          diagrama_(diagrama),
          media_(std::max<double>(Pixeles(t.EnMetros.Escala() * MediaFranja), t.Renglon())),
          arriba_(media_),
          abajo_(media_),
          ocupadas_(t.EnMetros.SinOcupar()) {}

    /// How far the band reaches from its axis.
    double Arriba() const { return arriba_; }
    double Abajo() const { return abajo_; }

    void Titular(std::string_view texto);
    void Rotular(std::size_t i, const ValorDeTramo& v);
    /// Draws it, with its axis `desfase` below the slab's.
    void Dibujar(double desfase) const;

  private:
    void DibujarTramo(std::size_t i, std::int32_t desfase) const;
    void Guardar(std::string texto, const PiezaTexto& caja, std::size_t tramo);

    struct Flecha {
        double x;
        double y;
        Sentidos Hacia;
    };

    const Trazado& t_;
    const Diagrama& diagrama_;
    double media_;
    double arriba_;
    double abajo_;
    Ocupacion ocupadas_;
    std::vector<RotuloDeHoja> rotulos_;
    std::vector<Flecha> flechas_;
};

void Franja::Guardar(std::string texto, const PiezaTexto& caja, std::size_t tramo) {
    const auto niveles = t_.Perfil.Entre(caja.x, caja.Derecha());
    arriba_ = std::max(arriba_, niveles.MasBajo - caja.y);
    abajo_ = std::max(abajo_, caja.Pie() - niveles.MasAlto);
    rotulos_.push_back({diagrama_.De, std::move(texto), caja, 0, tramo});
}

/// At the left of the first axis and its values; where there is no room for it, in the corner that the
/// diagram leaves free.
void Franja::Titular(std::string_view texto) {
    const MedidaTexto medida = t_.Medir(texto);
    const double margen = Apartado * t_.EnMetros.Escala() + t_.Medir("00000").Ancho;
    const double primero = t_.Columna(t_.PrimerEje());
    const double x = std::max(primero - margen - medida.Ancho, t_.BordeIzquierdo());
    const double nivel = t_.Perfil.Nivel(primero);
    double y = nivel - medida.Alto / 2.0;
    if (x + medida.Ancho > primero) y = diagrama_.Sentido < 0 ? nivel + media_ - medida.Alto : nivel - media_;
    const PiezaTexto caja = ocupadas_.Apilar(
        {x, y, static_cast<double>(medida.Ancho), static_cast<double>(medida.Alto)}, medida.Alto);
    Guardar(std::string(texto), caja, 0);
}

/// A value at the end of a diagram's ordinate: the block arrow that points to it from outside, and its text
/// beside the arrow, or as near as there is room.
void Franja::Rotular(std::size_t i, const ValorDeTramo& v) {
    const std::string texto = t_.Numero(v.Valor, "0");
    if (texto == "0" || texto.empty()) return;
    const double E = t_.EnMetros.Escala();
    const double subida = diagrama_.Subida(v.Ordenada);
    const double fuera = subida < 0 ? -1 : 1;
    flechas_.push_back({v.x, v.Eje + subida, subida < 0 ? HaciaAbajo : HaciaArriba});
    const MedidaTexto medida = t_.Medir(texto);
    const double medio = medida.Alto / 2.0;
    const double junto = 0.06 * E + t_.EnMetros.Unidades(2) + medida.Ancho / 2.0;
    const double alto = std::fabs(subida);
    const auto caja = [&](double corrimiento, double distancia) {
        PiezaTexto hecha{v.x + corrimiento * v.Lado * junto - medida.Ancho / 2.0,
                         v.Eje + fuera * distancia - medio, static_cast<double>(medida.Ancho),
                         static_cast<double>(medida.Alto)};
        const auto niveles = t_.Perfil.Entre(hecha.x, hecha.Derecha());
        hecha.y = std::min(hecha.y, niveles.MasAlto + media_ - medida.Alto);
        hecha.y = std::max(hecha.y, niveles.MasBajo - media_);
        return hecha;
    };
    for (const double distancia :
         {alto + 0.6 * LargoDeFlecha * E, alto + medio, medio, media_, -medio, -media_}) {
        for (const double corrimiento : {1.0, -1.0, 0.0, 2.0, -2.0, 3.0}) {
            const PiezaTexto posible = caja(corrimiento, distancia);
            if (!ocupadas_.Libre(posible)) continue;
            ocupadas_.Reservar(posible);
            return Guardar(texto, posible, i);
        }
    }
    Guardar(texto, ocupadas_.Apilar(caja(1, media_), fuera * medida.Alto), i);
}

/// A span that lies beside the canvas shows nothing of its diagram.
void Franja::DibujarTramo(std::size_t i, std::int32_t desfase) const {
    const Plano& p = t_.EnMetros;
    const auto [izquierda, derecha] = std::minmax({p.X(t_.EjeX(i)), p.X(t_.EjeX(i + 1))});
    if (derecha < 0 || izquierda > p.ElLienzo().ScaleWidth()) return;
    const double pendiente = PendienteDeTramo(t_.Hoja.Ejes, i);
    const std::vector<losas::PuntoDiagrama> puntos = losas::EstacionesDeTramo(t_.Calculada, i, pendiente);
    if (puntos.empty()) return;
    const auto enLienzo = [&](double x, double y) {
        return PuntoLienzo{Pixeles(t_.Hoja.Vista.OrigenX + x), Pixeles(t_.Hoja.Vista.OrigenY + y + desfase)};
    };
    const auto visibles = Visibles(EnLienzo(t_, diagrama_, i, std::tan(pendiente), puntos));
    std::vector<PuntoLienzo> figura{enLienzo(visibles.front().x, visibles.front().Eje)};
    figura.reserve(visibles.size() + 2);
    for (const PuntoDeFranja& punto : visibles) figura.push_back(enLienzo(punto.x, punto.Extremo));
    figura.push_back(enLienzo(visibles.back().x, visibles.back().Eje));
    p.ElLienzo().Poligono(figura, PlumaContorno, diagrama_.Fondo);
}

void Franja::Dibujar(double desfase) const {
    for (std::size_t i = t_.PrimerTramo(); i <= t_.UltimoTramo(); ++i) DibujarTramo(i, Pixeles(desfase));
    const EstadoVista& vista = t_.Hoja.Vista;
    for (const Flecha& flecha : flechas_)
        DibujeFlecha(t_.EnMetros.ElLienzo(), Pixeles(vista.OrigenX + flecha.x),
                     Pixeles(vista.OrigenY + flecha.y + desfase), flecha.Hacia, FlechaBloque, vista.Escala);
    for (RotuloDeHoja rotulo : rotulos_) {
        rotulo.Caja.y += desfase;
        t_.Escribir(std::move(rotulo));
    }
    t_.Anotar({diagrama_.De, desfase - arriba_, desfase + abajo_, true});
}

/// Factored reaction under each axis, from a row under the origin on: an arrow that pushes up, or one that
/// pulls down where the slab would lift off. Returns the row below them.
double DibujeReacciones(const Trazado& t, double fila) {
    const Plano& p = t.EnMetros;
    const double E = p.Escala();
    const double tamano = FlechaDeReaccion * E;
    const std::string_view rotulo = t.Losa.OpcionMaciza ? "(kgf/metro):" : "(kgf/Nervio):";
    const MedidaTexto titulo = t.Medir(rotulo);
    const double margen = Apartado * E + t.Medir("00000").Ancho;
    const double izquierda = std::max(t.Columna(t.PrimerEje()) - margen - titulo.Ancho, t.BordeIzquierdo());
    Ocupacion ocupadas = p.SinOcupar();
    const PiezaTexto cajaTitulo{izquierda, fila, static_cast<double>(titulo.Ancho),
                                static_cast<double>(titulo.Alto)};
    ocupadas.Reservar(cajaTitulo);
    t.Escribir({BandaDe::Reacciones, std::string(rotulo), cajaTitulo});
    double pie = cajaTitulo.Pie();
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje) {
        const double reaccion = losas::ReaccionMayorada(t.Calculada, eje);
        const std::string texto = t.Numero(reaccion, "0");
        if (texto == "0" || texto.empty()) continue;
        const std::int32_t punta = Pixeles(t.Hoja.Vista.OrigenY + fila);
        DibujeFlecha(p.ElLienzo(), p.X(t.EjeX(eje)),
                     reaccion < 0 ? punta + Pixeles(LargoDeFlecha * tamano) : punta,
                     reaccion < 0 ? HaciaAbajo : HaciaArriba, FlechaBloque, tamano);
        const MedidaTexto medida = t.Medir(texto);
        const double lado = 0.06 * E + p.Unidades(2) + medida.Ancho / 2.0;
        const double y = fila + std::max(0.32 * tamano, medida.Alto / 2.0) - medida.Alto / 2.0;
        PiezaTexto caja{t.Columna(eje) + lado - medida.Ancho / 2.0, y, static_cast<double>(medida.Ancho),
                        static_cast<double>(medida.Alto)};
        PiezaTexto otra = caja;
        otra.x -= 2 * lado;
        if (!ocupadas.Libre(caja) && ocupadas.Libre(otra)) caja = otra;
        caja = ocupadas.Apilar(caja, medida.Alto);
        pie = std::max(pie, caja.Pie());
        t.Escribir({BandaDe::Reacciones, texto, caja, 0, eje});
    }
    t.Anotar({BandaDe::Reacciones, fila, pie, false});
    return pie;
}

double Unidades(double escala, double maximo) {
    return maximo != 0 ? escala * Amplitud / maximo : 0;
}

void RotularTramo(const Trazado& t, std::size_t i, Franja& cortes, Franja& momentos) {
    const losas::ExtremosDeTramo e = losas::ExtremosDe(t.Calculada, i);
    const double E = t.EnMetros.Escala();
    const double pendiente = PendienteDeTramo(t.Hoja.Ejes, i);
    const double y1 = -E * t.EjeY(i);
    const double y2 = -E * t.EjeY(i + 1);
    cortes.Rotular(i, {t.Columna(i), y1, e.VA, e.VA, 1});
    cortes.Rotular(i, {t.Columna(i + 1), y2, -e.VB, e.VB, -1});
    momentos.Rotular(i, {t.Columna(i), y1, e.MA, e.MA, 1});
    momentos.Rotular(i, {t.Columna(i + 1), y2, e.MB, e.MB, -1});
    const Lugar campo = EnTramo(t.Hoja.Ejes, i, e.x * std::cos(pendiente));
    momentos.Rotular(i, {E * campo.x, -E * campo.y, e.MT, e.MT, 1});
}

/// A told distance, or as much as is needed where that is more.
double AlMenos(double dicha, double necesaria) {
    return necesaria <= dicha + 1 ? dicha : std::ceil(necesaria);
}

}  // namespace

void DibujeFuerzas(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                   const EstiloHoja& estilo) {
    const auto trazado = DibujeBaseLosa(lienzo, hoja, losa, estilo, Titulos);
    if (!trazado) return;
    const Trazado& t = *trazado;
    lienzo.PonerCapa(CapaDiagramas);
    const double E = t.EnMetros.Escala();
    const losas::ResultadosLosa& r = losa.Resultados;
    const Diagrama deCortes{BandaDe::Cortes, Unidades(E, r.MaxCorte), -1, FondoCorte,
                            &losas::PuntoDiagrama::V};
    const Diagrama deMomentos{BandaDe::Momentos, Unidades(E, std::max(r.MaxMomentoApoyo, r.MaxMomentoTramo)),
                              1, FondoMomento, &losas::PuntoDiagrama::M};
    t.EnMetros.Letra(LetraNormal);
    Franja cortes(t, deCortes);
    Franja momentos(t, deMomentos);
    cortes.Titular(estilo.Textos.VU);
    momentos.Titular(estilo.Textos.MU);
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i) RotularTramo(t, i, cortes, momentos);

    const double franja = Pixeles(E * MediaFranja);
    const double primera = AlMenos(Pixeles(E * PrimeraBanda), t.Pie + cortes.Arriba());
    const double segunda = primera + AlMenos(2 * franja, cortes.Abajo() + momentos.Arriba());
    cortes.Dibujar(primera);
    momentos.Dibujar(segunda);
    const double bajo = t.Perfil.Todos().MasBajo;
    const double reacciones = bajo + segunda + AlMenos(franja, momentos.Abajo());
    const double pie = DibujeReacciones(t, reacciones);

    const DatosGenerales& g = losa.Generales;
    DibujeTitulos(t, std::max(bajo + E * Titulos.Metros, pie),
                  {RotuloDeLosa(losa.Datos) + "E = " + t.Espesor() + " m", t.Nombre(),
                   "(DIAGRAMAS DE CORTES Y MOMENTOS MAYORADOS)",
                   "COMBINACIONES DE CARGA (U = " + t.Numero(g.FCP, "0.00") + " CP + " +
                       t.Numero(g.FCV, "0.00") + " CV)"});
}

}  // namespace trabex::dibujo::losa
