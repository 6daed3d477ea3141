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
constexpr std::size_t FilasDeTabla = 10;
constexpr double SobreTitulos = 0.25;
constexpr Color MarcaInflexion{255, 170, 170};
constexpr std::int32_t PixelesEntreValores = 4;

struct Celda {
    double x;  ///< of its centre, canvas units
    std::string Texto;
    std::size_t Linea = 0;
};

/// A row: its values stand at the axes or in the spans, on as many lines as they need not to meet.
struct Fila {
    std::string Rotulo;
    std::vector<Celda> Celdas;
    std::optional<Color> Fondo;
    std::vector<double> Marcas;  ///< x of the markers over the values
    bool EntreReglas = false;
    std::size_t Lineas = 1;
};

class Tabla {
  public:
    explicit Tabla(const Trazado& t)
        : t_(t),
          p_(t.EnMetros),
          alto_(t.EnMetros.ElLienzo().Medir("WW").Alto),
          separacion_(t.EnMetros.Unidades(PixelesEntreValores)) {}

    /// Draws the rows from a canvas row on and returns the row below them.
    std::int32_t Dibujar(std::vector<Fila>& filas, std::int32_t desde);

  private:
    void RepartirLineas(Fila& fila) const;
    double AltoDe(const Fila& fila) const;
    double BordeIzquierdo(const std::vector<Fila>& filas) const;
    void DibujarFondo(const Fila& fila, double y, double alto, double borde) const;
    void DibujarFila(const Fila& fila, double y, double alto, double borde) const;
    double Marca() const { return std::max<double>(p_.Unidades(5), 0.12 * p_.Escala()); }

    const Trazado& t_;
    const Plano& p_;
    std::int32_t alto_;
    std::int32_t separacion_;
};

void Tabla::RepartirLineas(Fila& fila) const {
    std::sort(fila.Celdas.begin(), fila.Celdas.end(),
              [](const Celda& a, const Celda& b) { return a.x < b.x; });
    std::vector<double> finales;
    for (Celda& celda : fila.Celdas) {
        const double medio = p_.ElLienzo().Medir(celda.Texto).Ancho / 2.0;
        const auto libre = std::find_if(finales.begin(), finales.end(),
                                        [&](double final) { return celda.x - medio >= final + separacion_; });
        celda.Linea = static_cast<std::size_t>(libre - finales.begin());
        if (libre == finales.end()) finales.push_back(0);
        finales[celda.Linea] = celda.x + medio;
    }
    fila.Lineas = std::max<std::size_t>(1, finales.size());
}

double Tabla::AltoDe(const Fila& fila) const {
    const double texto = static_cast<double>(fila.Lineas) * alto_ + (fila.Marcas.empty() ? 0 : Marca());
    return std::max(AltoDeFila * p_.Escala(), texto);
}

/// Left edge of the labels: each stands clear of its row's first value and of the first axis.
double Tabla::BordeIzquierdo(const std::vector<Fila>& filas) const {
    const double primero = p_.X(t_.EjeX(1));
    double borde = primero;
    for (const Fila& fila : filas) {
        double hasta = primero;
        for (const Celda& celda : fila.Celdas)
            hasta = std::min(hasta, celda.x - p_.ElLienzo().Medir(celda.Texto).Ancho / 2.0);
        borde = std::min(borde, hasta - separacion_ - p_.ElLienzo().Medir(fila.Rotulo).Ancho);
    }
    return borde;
}

void Tabla::DibujarFondo(const Fila& fila, double y, double alto, double borde) const {
    if (!fila.Fondo) return;
    const std::int32_t izquierda = Pixeles(borde) - separacion_;
    const std::int32_t derecha = p_.X(t_.EjeX(t_.N + 1)) + Pixeles(0.3 * p_.Escala()) + 4 * separacion_;
    const std::int32_t y1 = Pixeles(y);
    const std::int32_t y2 = Pixeles(y + alto);
    const std::array<PuntoLienzo, 4> banda{{{izquierda, y1}, {derecha, y1}, {derecha, y2}, {izquierda, y2}}};
    p_.ElLienzo().Poligono(banda, std::nullopt, fila.Fondo);
}

void Tabla::DibujarFila(const Fila& fila, double y, double alto, double borde) const {
    if (fila.EntreReglas) {
        for (const double regla : {y, y + alto})
            DibujeLinea(p_.ElLienzo(), p_.X(t_.EjeX(1)), Pixeles(regla), p_.X(t_.EjeX(t_.N + 1)),
                        Pixeles(regla), 1, EstiloLinea::Solida, Contorno);
    }
    p_.Escribir(fila.Rotulo, Ancla::Izquierda, Pixeles(borde), Pixeles(y + (alto - alto_) / 2));
    const double marca = fila.Marcas.empty() ? 0 : Marca();
    for (const double x : fila.Marcas) {
        const std::array<PuntoLienzo, 3> punta{{{Pixeles(x), Pixeles(y)},
                                                {Pixeles(x + marca / 2), Pixeles(y + marca)},
                                                {Pixeles(x - marca / 2), Pixeles(y + marca)}}};
        p_.ElLienzo().Poligono(punta, std::nullopt, MarcaInflexion);
    }
    const double libre = alto - marca - static_cast<double>(fila.Lineas) * alto_;
    for (const Celda& celda : fila.Celdas)
        p_.Escribir(celda.Texto, Ancla::Centro, Pixeles(celda.x),
                    Pixeles(y + marca + libre / 2 + static_cast<double>(celda.Linea) * alto_));
}

std::int32_t Tabla::Dibujar(std::vector<Fila>& filas, std::int32_t desde) {
    for (Fila& fila : filas) RepartirLineas(fila);
    const double borde = BordeIzquierdo(filas);
    double y = desde;
    for (const Fila& fila : filas) {
        DibujarFondo(fila, y, AltoDe(fila), borde);
        DibujarFila(fila, y, AltoDe(fila), borde);
        y += AltoDe(fila);
    }
    return Pixeles(y);
}

/// A row with a value at each axis.
template <class Valor>
Fila FilaDeEjes(const Trazado& t, std::string_view rotulo, std::string_view formato, Valor valor) {
    Fila fila{std::string(rotulo), {}, {}, {}};
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje)
        fila.Celdas.push_back(
            {static_cast<double>(t.EnMetros.X(t.EjeX(eje))), t.Numero(valor(eje), formato)});
    return fila;
}

/// A row with a value in the middle of each span.
template <class Valor>
Fila FilaDeTramos(const Trazado& t, std::string_view rotulo, std::string_view formato, Valor valor) {
    Fila fila{std::string(rotulo), {}, {}, {}};
    for (std::size_t i = 1; i <= t.N; ++i)
        fila.Celdas.push_back(
            {(t.EnMetros.X(t.EjeX(i)) + t.EnMetros.X(t.EjeX(i + 1))) / 2.0, t.Numero(valor(i), formato)});
    return fila;
}

std::vector<Fila> FilasDeReacciones(const Trazado& t) {
    const TextosHoja& textos = t.Estilo.Textos;
    return {
        FilaDeEjes(t, textos.CP, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Permanente.V; }),
        FilaDeEjes(t, textos.CV, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Variable.V; }),
        FilaDeEjes(t, textos.Total, "0",
                   [&](std::size_t eje) { return losas::ReaccionesEnEje(t.Calculada, eje).Total.V; })};
}

/// Solid zones beside each axis, those long enough to be built.
Fila FilaDeMacizados(const Trazado& t) {
    Fila fila{std::string(t.Estilo.Textos.Macizados), {}, Color{226, 233, 214}, {}};
    const auto agregar = [&](std::size_t eje, double longitud, double lado) {
        if (losas::MacizadoVisible(longitud) == 0) return;
        const std::string texto = t.Numero(longitud, "0.00");
        const double aparte =
            t.EnMetros.ElLienzo().Medir(texto).Ancho / 2.0 + t.EnMetros.Unidades(PixelesEntreValores);
        fila.Celdas.push_back({t.EnMetros.X(t.EjeX(eje)) + lado * aparte, texto});
    };
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje) {
        agregar(eje, losas::DisenoEnEje(t.Calculada, eje).MczI, -1);
        agregar(eje, losas::DisenoEnEje(t.Calculada, eje).MczD, 1);
    }
    return fila;
}

/// Inflection points where they are along the spans, with their distance from the axis.
Fila FilaDeInflexiones(const Trazado& t) {
    Fila fila{std::string(t.Estilo.Textos.PuntosInflexion), {}, {}, {}};
    const auto agregar = [&](std::size_t eje, std::size_t tramo, double distancia, double lado) {
        if (distancia <= 0) return;
        const double C = std::cos(PendienteDeTramo(t.Hoja.Ejes, tramo));
        const double x = t.EnMetros.X(t.EjeX(eje) + lado * distancia * C);
        fila.Marcas.push_back(x);
        fila.Celdas.push_back({x, t.Numero(distancia, "0.00")});
    };
    for (std::size_t eje = 1; eje <= t.N + 1; ++eje) {
        if (eje > 1) agregar(eje, eje - 1, losas::DisenoEnEje(t.Calculada, eje).PtoI, -1);
        if (eje <= t.N) agregar(eje, eje, losas::DisenoEnEje(t.Calculada, eje).PtoD, 1);
    }
    return fila;
}

Fila FilaDeDespiece(const Trazado& t) {
    const losas::Losa& losa = t.Losa;
    Fila fila{"Despiece:", {}, {}, {}};
    fila.EntreReglas = true;
    fila.Celdas.push_back({(t.EnMetros.X(t.EjeX(1)) + t.EnMetros.X(t.EjeX(t.N + 1))) / 2.0,
                           "AsMín = " + t.Numero(losas::AceroMinimo(losa, t.Calculada.Generales), "0.00") +
                               (losa.OpcionMaciza ? " cm2/m" : " cm2")});
    return fila;
}

std::vector<Fila> FilasDeDiseno(const Trazado& t) {
    const TextosHoja& textos = t.Estilo.Textos;
    const bool maciza = t.Losa.OpcionMaciza;
    const Color fondoMomentos{232, 223, 244};
    const Color fondoAceros{224, 233, 248};
    std::vector<Fila> filas = FilasDeReacciones(t);
    filas.push_back(FilaDeMacizados(t));
    filas.push_back(FilaDeEjes(t, textos.MuSup, "0",
                               [&](std::size_t eje) { return losas::MomentoSuperior(t.Calculada, eje); }));
    filas.back().Fondo = fondoMomentos;
    filas.push_back(FilaDeTramos(t, textos.MuInf, "0",
                                 [&](std::size_t i) { return losas::DisenoEnTramo(t.Calculada, i).MT; }));
    filas.back().Fondo = fondoMomentos;
    filas.push_back(FilaDeEjes(t, maciza ? textos.AsSupMetro : textos.AsSup, "0.00",
                               [&](std::size_t eje) { return losas::DisenoEnEje(t.Calculada, eje).AS1; }));
    filas.back().Fondo = fondoAceros;
    filas.push_back(FilaDeTramos(t, maciza ? textos.AsInfMetro : textos.AsInf, "0.00",
                                 [&](std::size_t i) { return losas::DisenoEnTramo(t.Calculada, i).AS2; }));
    filas.back().Fondo = fondoAceros;
    filas.push_back(FilaDeInflexiones(t));
    filas.push_back(FilaDeDespiece(t));
    return filas;
}

/// Canvas row of the table's first row. The table of a slab with an axis above the others is set upward from
/// the row where it ends.
std::int32_t InicioDeTabla(const Trazado& t) {
    const double E = t.EnMetros.Escala();
    if (t.Hoja.Ejes.YMaximo == 0) return t.Hoja.Vista.OrigenY + Pixeles(E * PrimeraFila);
    return Pixeles(t.Hoja.Vista.OrigenY + E * FilaEscalonada - E * AltoDeFila * FilasDeTabla);
}

}  // namespace

void DibujeDiseno(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                  const EstiloHoja& estilo) {
    const Trazado t = DibujeBaseLosa(lienzo, hoja, losa, estilo);
    if (t.N == 0) return;
    t.EnMetros.Letra(LetraNormal);
    std::vector<Fila> filas = hoja.SoloReacciones ? FilasDeReacciones(t) : FilasDeDiseno(t);
    const std::int32_t fin =
        Tabla(t).Dibujar(filas, InicioDeTabla(t)) + Pixeles(SobreTitulos * t.EnMetros.Escala());
    const std::string primera = RotuloDeLosa(losa.Datos) + "E = " + t.Espesor();
    if (hoja.SoloReacciones)
        DibujeTitulos(t, fin, {primera + " m", losa.Datos.Nombre, "REACCIONES SOBRE LAS VIGAS"});
    else
        DibujeTitulos(t, fin, {primera + std::string(estilo.Textos.TituloDiseno), losa.Datos.Nombre});
}

}  // namespace trabex::dibujo::losa
