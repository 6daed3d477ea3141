#include "drawing/losa/GraficoDiseno.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "drawing/Primitivas.h"
#include "drawing/losa/BaseLosa.h"
#include "slab/DisenoSeccion.h"

namespace trabex::dibujo::losa {

namespace {

constexpr double PrimeraFila = 2.97;    // m below the slab
constexpr double FilaEscalonada = 7.8;  // m below the origin: where the table of a stepped slab ends
constexpr double AltoDeFila = 0.42;
constexpr double AltoDeTabla = 10 * AltoDeFila;
constexpr double SobreTitulos = 0.25;
constexpr Color MarcaInflexion{255, 170, 170};
constexpr std::int32_t PixelesEntreValores = 4;
constexpr double Roce = 1e-6;  // what places may differ by that were summed up in another order

struct Celda {
    double x;  ///< of its centre, canvas units from the origin
    std::string Texto;
    std::size_t Lugar;  ///< the axis or span that it tells of
    std::size_t Linea = 0;
};

/// A row: its values stand at the axes or in the spans, on as many lines as they need not to meet.
struct Fila {
    BandaDe De;
    std::string Rotulo;
    std::vector<Celda> Celdas{};
    std::optional<Color> Fondo{};
    std::vector<double> Marcas{};  ///< x of the markers over the values
    bool EntreReglas = false;
    std::size_t Lineas = 1;
    bool RotuloArriba = false;  ///< it shares its line with values: the first one
};

class Tabla {
  public:
    explicit Tabla(const Trazado& t)
        : t_(t), p_(t.EnMetros), alto_(t.Renglon()), separacion_(t.EnMetros.Unidades(PixelesEntreValores)) {}

    /// Draws the rows from a row under the origin on and returns the row below them.
    double Dibujar(std::vector<Fila>& filas, double desde);

  private:
    void RepartirLineas(Fila& fila, double borde) const;
    double AltoDe(const Fila& fila) const;
    double BordeIzquierdo(const std::vector<Fila>& filas) const;
    void DibujarFondo(const Fila& fila, double y, double alto, double borde) const;
    void DibujarFila(const Fila& fila, double y, double alto, double borde) const;
    double Marca() const { return std::max<double>(p_.Unidades(5), 0.12 * p_.Escala()); }
    std::int32_t EnX(double x) const { return Pixeles(t_.Hoja.Vista.OrigenX + x); }
    std::int32_t EnY(double y) const { return Pixeles(t_.Hoja.Vista.OrigenY + y); }
    double Ancho(const std::string& texto) const { return t_.Medir(texto).Ancho; }

    const Trazado& t_;
    const Plano& p_;
    std::int32_t alto_;
    std::int32_t separacion_;
};

/// The label takes part in its first line: where there is no room for it at the left, values go below it.
void Tabla::RepartirLineas(Fila& fila, double borde) const {
    std::sort(fila.Celdas.begin(), fila.Celdas.end(),
              [](const Celda& a, const Celda& b) { return a.x < b.x; });
    const double finDelRotulo = borde + Ancho(fila.Rotulo);
    std::vector<double> finales{finDelRotulo};
    for (Celda& celda : fila.Celdas) {
        const double medio = Ancho(celda.Texto) / 2;
        fila.RotuloArriba = fila.RotuloArriba || celda.x - medio < finDelRotulo + separacion_ - Roce;
        const auto libre = std::find_if(finales.begin(), finales.end(), [&](double final) {
            return celda.x - medio >= final + separacion_ - Roce;
        });
        celda.Linea = static_cast<std::size_t>(libre - finales.begin());
        if (libre == finales.end()) finales.push_back(0);
        finales[celda.Linea] = celda.x + medio;
    }
    fila.Lineas = finales.size();
}

double Tabla::AltoDe(const Fila& fila) const {
    const double texto = static_cast<double>(fila.Lineas) * alto_ + (fila.Marcas.empty() ? 0 : Marca());
    return std::max(AltoDeFila * p_.Escala(), texto);
}

/// Left edge of the labels: each stands clear of its row's first value and of the first axis, as far as the
/// canvas reaches.
double Tabla::BordeIzquierdo(const std::vector<Fila>& filas) const {
    const double primero = t_.Columna(t_.PrimerEje());
    double borde = primero;
    for (const Fila& fila : filas) {
        double hasta = primero;
        for (const Celda& celda : fila.Celdas) hasta = std::min(hasta, celda.x - Ancho(celda.Texto) / 2);
        borde = std::min(borde, hasta - separacion_ - Ancho(fila.Rotulo));
    }
    return std::max(borde, t_.BordeIzquierdo());
}

void Tabla::DibujarFondo(const Fila& fila, double y, double alto, double borde) const {
    if (!fila.Fondo) return;
    const std::int32_t izquierda = EnX(borde) - separacion_;
    const std::int32_t derecha = p_.X(t_.EjeX(t_.UltimoEje())) + Pixeles(0.3 * p_.Escala()) + 4 * separacion_;
    const std::int32_t y1 = EnY(y);
    const std::int32_t y2 = EnY(y + alto);
    const std::array<PuntoLienzo, 4> banda{{{izquierda, y1}, {derecha, y1}, {derecha, y2}, {izquierda, y2}}};
    p_.ElLienzo().Poligono(banda, std::nullopt, fila.Fondo);
}

void Tabla::DibujarFila(const Fila& fila, double y, double alto, double borde) const {
    if (fila.EntreReglas) {
        for (const double regla : {y, y + alto})
            DibujeLinea(p_.ElLienzo(), p_.X(t_.EjeX(t_.PrimerEje())), EnY(regla),
                        p_.X(t_.EjeX(t_.UltimoEje())), EnY(regla), 1, EstiloLinea::Solida, Contorno);
    }
    const double marca = fila.Marcas.empty() ? 0 : Marca();
    for (const double x : fila.Marcas) {
        const std::array<PuntoLienzo, 3> punta{
            {{EnX(x), EnY(y)}, {EnX(x + marca / 2), EnY(y + marca)}, {EnX(x - marca / 2), EnY(y + marca)}}};
        p_.ElLienzo().Poligono(punta, std::nullopt, MarcaInflexion);
    }
    const double primera = y + marca + (alto - marca - static_cast<double>(fila.Lineas) * alto_) / 2;
    const auto escribir = [&](const std::string& texto, double x, double arriba, std::size_t lugar) {
        t_.Escribir({fila.De, texto, {x, arriba, Ancho(texto), static_cast<double>(alto_)}, 0, lugar});
    };
    escribir(fila.Rotulo, borde, fila.RotuloArriba ? primera : y + (alto - alto_) / 2, 0);
    for (const Celda& celda : fila.Celdas)
        escribir(celda.Texto, celda.x - std::floor(Ancho(celda.Texto) / 2),
                 primera + static_cast<double>(celda.Linea) * alto_, celda.Lugar);
    t_.Anotar({fila.De, y, y + alto, false});
}

double Tabla::Dibujar(std::vector<Fila>& filas, double desde) {
    const double borde = BordeIzquierdo(filas);
    double y = desde;
    for (Fila& fila : filas) {
        RepartirLineas(fila, borde);
        DibujarFondo(fila, y, AltoDe(fila), borde);
        DibujarFila(fila, y, AltoDe(fila), borde);
        y += AltoDe(fila);
    }
    return y;
}

/// A row with a value at each axis.
template <class Valor>
Fila FilaDeEjes(const Trazado& t, BandaDe de, std::string_view rotulo, std::string_view formato,
                Valor valor) {
    Fila fila{de, std::string(rotulo)};
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje)
        fila.Celdas.push_back({t.Columna(eje), t.Numero(valor(eje), formato), eje});
    return fila;
}

/// A row with a value in the middle of each span.
template <class Valor>
Fila FilaDeTramos(const Trazado& t, BandaDe de, std::string_view rotulo, std::string_view formato,
                  Valor valor) {
    Fila fila{de, std::string(rotulo)};
    for (std::size_t i = t.PrimerTramo(); i <= t.UltimoTramo(); ++i)
        fila.Celdas.push_back({t.MitadDeTramo(i), t.Numero(valor(i), formato), i});
    return fila;
}

std::vector<Fila> FilasDeReacciones(const Trazado& t) {
    const TextosHoja& textos = t.Estilo.Textos;
    return {
        FilaDeEjes(t, BandaDe::CP, textos.CP, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Permanente.V; }),
        FilaDeEjes(t, BandaDe::CV, textos.CV, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Variable.V; }),
        FilaDeEjes(t, BandaDe::Total, textos.Total, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Total.V; })};
}

/// Solid zones beside each axis, those long enough to be built.
Fila FilaDeMacizados(const Trazado& t) {
    Fila fila{BandaDe::Macizados, std::string(t.Estilo.Textos.Macizados), {}, Color{226, 233, 214}};
    const auto agregar = [&](std::size_t eje, double longitud, double lado) {
        if (losas::MacizadoVisible(longitud) == 0) return;
        const std::string texto = t.Numero(longitud, "0.00");
        const double aparte = t.Medir(texto).Ancho / 2.0 + t.EnMetros.Unidades(PixelesEntreValores);
        fila.Celdas.push_back({t.Columna(eje) + lado * aparte, texto, eje});
    };
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje) {
        agregar(eje, losas::DisenoEnEje(t.Calculada, eje).MczI, -1);
        agregar(eje, losas::DisenoEnEje(t.Calculada, eje).MczD, 1);
    }
    return fila;
}

/// Inflection points where they are along the spans, with their distance from the axis.
Fila FilaDeInflexiones(const Trazado& t) {
    Fila fila{BandaDe::Inflexion, std::string(t.Estilo.Textos.PuntosInflexion)};
    const auto agregar = [&](std::size_t eje, std::size_t tramo, double distancia, double lado) {
        if (distancia <= 0) return;
        const double C = std::cos(PendienteDeTramo(t.Hoja.Ejes, tramo));
        const double x = t.EnMetros.Escala() * (t.EjeX(eje) + lado * distancia * C);
        fila.Marcas.push_back(x);
        fila.Celdas.push_back({x, t.Numero(distancia, "0.00"), eje});
    };
    for (std::size_t eje = t.PrimerEje(); eje <= t.UltimoEje(); ++eje) {
        if (eje > t.PrimerEje()) agregar(eje, eje - 1, losas::DisenoEnEje(t.Calculada, eje).PtoI, -1);
        if (eje < t.UltimoEje()) agregar(eje, eje, losas::DisenoEnEje(t.Calculada, eje).PtoD, 1);
    }
    return fila;
}

Fila FilaDeDespiece(const Trazado& t) {
    const losas::Losa& losa = t.Losa;
    Fila fila{BandaDe::Despiece, "Despiece:"};
    fila.EntreReglas = true;
    fila.Celdas.push_back({(t.Columna(t.PrimerEje()) + t.Columna(t.UltimoEje())) / 2,
                           "AsMín = " + t.Numero(losas::AceroMinimo(losa, t.Calculada.Generales), "0.00") +
                               (losa.OpcionMaciza ? " cm2/m" : " cm2"),
                           0});
    return fila;
}

std::vector<Fila> FilasDeDiseno(const Trazado& t) {
    const TextosHoja& textos = t.Estilo.Textos;
    const bool maciza = t.Losa.OpcionMaciza;
    std::vector<Fila> filas = FilasDeReacciones(t);
    filas.push_back(FilaDeMacizados(t));
    filas.push_back(FilaDeEjes(t, BandaDe::MuSup, textos.MuSup, "0",
                               [&](std::size_t eje) { return losas::MomentoSuperior(t.Calculada, eje); }));
    filas.back().Fondo = Color{232, 223, 244};
    filas.push_back(FilaDeTramos(t, BandaDe::MuInf, textos.MuInf, "0",
                                 [&](std::size_t i) { return losas::DisenoEnTramo(t.Calculada, i).MT; }));
    filas.push_back(FilaDeEjes(t, BandaDe::AsSup, maciza ? textos.AsSupMetro : textos.AsSup, "0.00",
                               [&](std::size_t eje) { return losas::DisenoEnEje(t.Calculada, eje).AS1; }));
    filas.back().Fondo = Color{224, 233, 248};
    filas.push_back(FilaDeTramos(t, BandaDe::AsInf, maciza ? textos.AsInfMetro : textos.AsInf, "0.00",
                                 [&](std::size_t i) { return losas::DisenoEnTramo(t.Calculada, i).AS2; }));
    filas.push_back(FilaDeInflexiones(t));
    filas.push_back(FilaDeDespiece(t));
    return filas;
}

/// Row of the table's first row under the origin, clear of the lowest axis. The table of a slab with an axis
/// above the others is set upward from the row where it ends.
double InicioDeTabla(const Trazado& t) {
    const double E = t.EnMetros.Escala();
    const double bajo = t.Perfil.Todos().MasBajo;
    const double dicho =
        t.Hoja.Ejes.YMaximo == 0 ? bajo + Pixeles(E * PrimeraFila) : E * (FilaEscalonada - AltoDeTabla);
    return std::max(dicho, std::ceil(bajo + t.Pie));
}

}  // namespace

void DibujeDiseno(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                  const EstiloHoja& estilo) {
    const PieDeHoja pie{PrimeraFila + AltoDeTabla + SobreTitulos, 2};
    const auto trazado = DibujeBaseLosa(lienzo, hoja, losa, estilo, pie);
    if (!trazado) return;
    const Trazado& t = *trazado;
    lienzo.PonerCapa(CapaTabla);
    t.EnMetros.Letra(LetraNormal);
    std::vector<Fila> filas = hoja.SoloReacciones ? FilasDeReacciones(t) : FilasDeDiseno(t);
    const double fin =
        Tabla(t).Dibujar(filas, InicioDeTabla(t)) + Pixeles(SobreTitulos * t.EnMetros.Escala());
    const std::string primera = RotuloDeLosa(losa.Datos) + "E = " + t.Espesor();
    if (hoja.SoloReacciones)
        DibujeTitulos(t, fin, {primera + " m", t.Nombre(), "REACCIONES SOBRE LAS VIGAS"});
    else
        DibujeTitulos(t, fin, {primera + std::string(estilo.Textos.TituloDiseno), t.Nombre()});
}

}  // namespace trabex::dibujo::losa
