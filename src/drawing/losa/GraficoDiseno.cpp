#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "drawing/Primitivas.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/HojaComun.h"
#include "slab/DisenoSeccion.h"

namespace trabex::dibujo::losa {

namespace {

using namespace hoja;

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
    explicit Tabla(const Hoja& h)
        : h_(h),
          p_(h.Papel),
          alto_(h.Papel.lienzo().Medir("WW").Alto),
          separacion_(h.Papel.Unidades(PixelesEntreValores)) {}

    /// Draws the rows from a canvas row on and returns the row below them.
    std::int32_t Dibujar(std::vector<Fila>& filas, std::int32_t desde);

  private:
    void RepartirLineas(Fila& fila) const;
    double AltoDe(const Fila& fila) const;
    double BordeIzquierdo(const std::vector<Fila>& filas) const;
    void DibujarFondo(const Fila& fila, double y, double alto, double borde) const;
    void DibujarFila(const Fila& fila, double y, double alto, double borde) const;
    double Marca() const { return std::max<double>(p_.Unidades(5), 0.12 * p_.Escala()); }

    const Hoja& h_;
    const Plano& p_;
    std::int32_t alto_;
    std::int32_t separacion_;
};

void Tabla::RepartirLineas(Fila& fila) const {
    std::sort(fila.Celdas.begin(), fila.Celdas.end(),
              [](const Celda& a, const Celda& b) { return a.x < b.x; });
    std::vector<double> finales;
    for (Celda& celda : fila.Celdas) {
        const double medio = p_.lienzo().Medir(celda.Texto).Ancho / 2.0;
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
    const double primero = p_.X(h_.EjeX(1));
    double borde = primero;
    for (const Fila& fila : filas) {
        double hasta = primero;
        for (const Celda& celda : fila.Celdas)
            hasta = std::min(hasta, celda.x - p_.lienzo().Medir(celda.Texto).Ancho / 2.0);
        borde = std::min(borde, hasta - separacion_ - p_.lienzo().Medir(fila.Rotulo).Ancho);
    }
    return borde;
}

void Tabla::DibujarFondo(const Fila& fila, double y, double alto, double borde) const {
    if (!fila.Fondo) return;
    const std::int32_t izquierda = Pixeles(borde) - separacion_;
    const std::int32_t derecha = p_.X(h_.EjeX(h_.N + 1)) + Pixeles(0.3 * p_.Escala()) + 4 * separacion_;
    const std::int32_t y1 = Pixeles(y);
    const std::int32_t y2 = Pixeles(y + alto);
    const std::array<PuntoLienzo, 4> banda{{{izquierda, y1}, {derecha, y1}, {derecha, y2}, {izquierda, y2}}};
    p_.lienzo().Poligono(banda, std::nullopt, fila.Fondo);
}

void Tabla::DibujarFila(const Fila& fila, double y, double alto, double borde) const {
    if (fila.EntreReglas) {
        for (const double regla : {y, y + alto})
            DibujeLinea(p_.lienzo(), p_.X(h_.EjeX(1)), Pixeles(regla), p_.X(h_.EjeX(h_.N + 1)),
                        Pixeles(regla), 1, EstiloLinea::Solida, Contorno);
    }
    p_.Escribir(fila.Rotulo, Ancla::Izquierda, Pixeles(borde), Pixeles(y + (alto - alto_) / 2));
    const double marca = fila.Marcas.empty() ? 0 : Marca();
    for (const double x : fila.Marcas) {
        const std::array<PuntoLienzo, 3> punta{{{Pixeles(x), Pixeles(y)},
                                                {Pixeles(x + marca / 2), Pixeles(y + marca)},
                                                {Pixeles(x - marca / 2), Pixeles(y + marca)}}};
        p_.lienzo().Poligono(punta, std::nullopt, MarcaInflexion);
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
Fila FilaDeEjes(const Hoja& h, std::string_view rotulo, std::string_view formato, Valor valor) {
    Fila fila{std::string(rotulo), {}, {}, {}};
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje)
        fila.Celdas.push_back({static_cast<double>(h.Papel.X(h.EjeX(eje))), h.Numero(valor(eje), formato)});
    return fila;
}

/// A row with a value in the middle of each span.
template <class Valor>
Fila FilaDeTramos(const Hoja& h, std::string_view rotulo, std::string_view formato, Valor valor) {
    Fila fila{std::string(rotulo), {}, {}, {}};
    for (std::size_t i = 1; i <= h.N; ++i)
        fila.Celdas.push_back(
            {(h.Papel.X(h.EjeX(i)) + h.Papel.X(h.EjeX(i + 1))) / 2.0, h.Numero(valor(i), formato)});
    return fila;
}

std::vector<Fila> FilasDeReacciones(const Hoja& h) {
    const TextosHoja& t = h.Estilo.Textos;
    return {FilaDeEjes(h, t.CP, "0", [&](std::size_t eje) { return ReaccionEnEje(h.Losa, eje).CP; }),
            FilaDeEjes(h, t.CV, "0", [&](std::size_t eje) { return ReaccionEnEje(h.Losa, eje).CV; }),
            FilaDeEjes(h, t.Total, "0", [&](std::size_t eje) { return ReaccionEnEje(h.Losa, eje).Total; })};
}

/// Solid zones beside each axis, those long enough to be built.
Fila FilaDeMacizados(const Hoja& h) {
    Fila fila{std::string(h.Estilo.Textos.Macizados), {}, Color{226, 233, 214}, {}};
    const auto agregar = [&](std::size_t eje, double longitud, double lado) {
        if (losas::MacizadoVisible(longitud) == 0) return;
        const std::string texto = h.Numero(longitud, "0.00");
        const double aparte =
            h.Papel.lienzo().Medir(texto).Ancho / 2.0 + h.Papel.Unidades(PixelesEntreValores);
        fila.Celdas.push_back({h.Papel.X(h.EjeX(eje)) + lado * aparte, texto});
    };
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje) {
        agregar(eje, DisenoEnEje(h.Losa, eje).MczI, -1);
        agregar(eje, DisenoEnEje(h.Losa, eje).MczD, 1);
    }
    return fila;
}

/// Inflection points where they are along the spans, with their distance from the axis.
Fila FilaDeInflexiones(const Hoja& h) {
    Fila fila{std::string(h.Estilo.Textos.PuntosInflexion), {}, {}, {}};
    const auto agregar = [&](std::size_t eje, std::size_t tramo, double distancia, double lado) {
        if (distancia <= 0) return;
        const double C = std::cos(PendienteDeTramo(h.Datos.Ejes, tramo));
        const double x = h.Papel.X(h.EjeX(eje) + lado * distancia * C);
        fila.Marcas.push_back(x);
        fila.Celdas.push_back({x, h.Numero(distancia, "0.00")});
    };
    for (std::size_t eje = 1; eje <= h.N + 1; ++eje) {
        if (eje > 1) agregar(eje, eje - 1, DisenoEnEje(h.Losa, eje).PtoI, -1);
        if (eje <= h.N) agregar(eje, eje, DisenoEnEje(h.Losa, eje).PtoD, 1);
    }
    return fila;
}

Fila FilaDeDespiece(const Hoja& h) {
    const losas::Losa& losa = h.Losa.Datos;
    Fila fila{"Despiece:", {}, {}, {}};
    fila.EntreReglas = true;
    fila.Celdas.push_back({(h.Papel.X(h.EjeX(1)) + h.Papel.X(h.EjeX(h.N + 1))) / 2.0,
                           "AsMín = " + h.Numero(AceroMinimo(losa, h.Losa.Generales), "0.00") +
                               (losa.OpcionMaciza ? " cm2/m" : " cm2")});
    return fila;
}

std::vector<Fila> FilasDeDiseno(const Hoja& h) {
    const TextosHoja& t = h.Estilo.Textos;
    const bool maciza = h.Losa.Datos.OpcionMaciza;
    const Color fondoMomentos{232, 223, 244};
    const Color fondoAceros{224, 233, 248};
    std::vector<Fila> filas = FilasDeReacciones(h);
    filas.push_back(FilaDeMacizados(h));
    filas.push_back(
        FilaDeEjes(h, t.MuSup, "0", [&](std::size_t eje) { return MomentoSuperior(h.Losa, eje); }));
    filas.back().Fondo = fondoMomentos;
    filas.push_back(
        FilaDeTramos(h, t.MuInf, "0", [&](std::size_t i) { return DisenoEnTramo(h.Losa, i).MT; }));
    filas.back().Fondo = fondoMomentos;
    filas.push_back(FilaDeEjes(h, maciza ? t.AsSupMetro : t.AsSup, "0.00",
                               [&](std::size_t eje) { return DisenoEnEje(h.Losa, eje).AS1; }));
    filas.back().Fondo = fondoAceros;
    filas.push_back(FilaDeTramos(h, maciza ? t.AsInfMetro : t.AsInf, "0.00",
                                 [&](std::size_t i) { return DisenoEnTramo(h.Losa, i).AS2; }));
    filas.back().Fondo = fondoAceros;
    filas.push_back(FilaDeInflexiones(h));
    filas.push_back(FilaDeDespiece(h));
    return filas;
}

/// Canvas row of the table's first row. The table of a slab with an axis above the others is set upward from
/// the row where it ends.
std::int32_t InicioDeTabla(const Hoja& h) {
    const double E = h.Papel.Escala();
    if (h.Datos.Ejes.YMaximo == 0) return h.Datos.Vista.OrigenY + Pixeles(E * PrimeraFila);
    return Pixeles(h.Datos.Vista.OrigenY + E * FilaEscalonada - E * AltoDeFila * FilasDeTabla);
}

}  // namespace

void DibujeDiseno(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa, const EstiloHoja& estilo) {
    const Hoja h = EmpezarHoja(lienzo, hoja, losa, estilo);
    if (h.N == 0) return;
    h.Papel.Letra(LetraNormal);
    std::vector<Fila> filas = hoja.SoloReacciones ? FilasDeReacciones(h) : FilasDeDiseno(h);
    const std::int32_t fin =
        Tabla(h).Dibujar(filas, InicioDeTabla(h)) + Pixeles(SobreTitulos * h.Papel.Escala());
    const std::string primera = RotuloDeLosa(losa.Datos) + "E = " + h.Espesor();
    if (hoja.SoloReacciones)
        DibujeTitulos(h, fin, {primera + " m", losa.Datos.Nombre, "REACCIONES SOBRE LAS VIGAS"});
    else
        DibujeTitulos(h, fin, {primera + std::string(estilo.Textos.TituloDiseno), losa.Datos.Nombre});
}

}  // namespace trabex::dibujo::losa
