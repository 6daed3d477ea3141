// What each sheet of a slab says: every text, of which axis or span it tells and on which row, arrow and
// side, taken from the records of the calculation by the rules that stand here. No text is left over.

#include <map>

#include "EnHoja.h"

namespace trabex {
namespace {

using Texto = LienzoGrabador::TextoGrabado;
using T = EsfuerzosTramo;

struct Escenario {
    const char* Nombre;
    std::vector<double> Luces;
    std::vector<std::int16_t> Apoyos;
    std::vector<JuntaD> Corridas;
    bool Maciza;
    double Zoom = 1;
};
const std::vector<Escenario> Escenarios{
    {"level", {4.2, 5.6, 3.4}, {1, 2, 4, 2}, {}, false},
    {"stepped up", {4.2, 5.6, 3.4}, {1, 2, 2, 2}, {{2, 0.1, 0.6}, {3, 0, 0.9}}, true},
    {"stepped down", {4.2, 5.6}, {1, 2, 3}, {{1, 0, -0.15}, {2, 0, -0.4}, {3, -0.2, -0.4}}, false, 1.3},
    {"cantilever at the left", {2.1, 5.6, 4.4}, {5, 1, 2, 2}, {}, true},
    {"cantilever at the right", {5.2, 4.4, 2.2}, {1, 2, 2, 5}, {}, false, 0.6},
    {"cantilevers at both ends", {2.1, 6.6, 2.3}, {5, 1, 2, 5}, {}, false},
};

using Lado = int;
constexpr Lado ALaIzquierda = -1, Centrado = 0, ALaDerecha = 1;

bool Cerca(double a, double b, double holgura = 2) {
    return std::fabs(a - b) <= holgura;
}
std::string Numero(double valor, int decimales) {
    return Formato(valor, decimales == 0 ? "0" : "0.00", {});
}

/// A sheet on a canvas, and which of its texts nobody has asked for yet.
struct Hoja {
    Hoja(const Escenario& de, bool papel)
        : Papel(papel), L(papel ? 6449 : 1600, papel ? 4393 : 1000, papel ? 600 : 96) {
        N = de.Luces.size();
        D.Nombre = "N+3.00";
        D.OpcionMaciza = de.Maciza;
        D.JuntasD.insert(D.JuntasD.end(), de.Corridas.begin(), de.Corridas.end());
        ex.assign(N + 2, 0);
        ey.assign(N + 2, 0);
        for (std::size_t i = 1; i <= N + 1; ++i) {
            const auto k = static_cast<std::int32_t>(i);
            D.Ejes.push_back({std::string(1, static_cast<char>('A' + k)), de.Apoyos[i - 1], 0, 0, 0});
            if (i > N) break;
            const double LT = de.Luces[i - 1];
            const bool puntual = i == 2 || de.Apoyos[i - 1] == SinApoyo || de.Apoyos[i] == SinApoyo;
            D.Tramos.push_back({LT, 310 + 70 * k, 95 + 15 * k, puntual ? 700 + 20 * k : 0, 0.3 * LT});
            ex[i + 1] = ex[i] + LT;
        }
        const double mitad = ex[N + 1] / 2;
        for (double& x : ex) x -= mitad;
        for (const JuntaD& j : de.Corridas) ex[static_cast<std::size_t>(j.Junta)] += j.x;
        for (const JuntaD& j : de.Corridas) ey[static_cast<std::size_t>(j.Junta)] += j.y;
        CalcularLosa(D, G, R);
        for (std::size_t j = 1; j <= N + 1; ++j) {  // no two alike
            const auto k = static_cast<double>(j);
            R.DisenoEje[j] = {1.01 + k,        20.02 + k,      0.26 + 0.04 * k,
                              0.42 - 0.04 * k, 0.5 + 0.11 * k, 0.45 + 0.12 * k};
            if (j <= N) R.DisenoTramo[j].AS1 = 40.04 + k;
            if (j <= N) R.DisenoTramo[j].AS2 = 60.06 + k;
        }
        H.Vista.CuadriculaVisible = false;
        Dibujar(VistaGeometria);
        H.Vista.Zoom = de.Zoom;
        H.Vista.PanX = 13;
    }
    void Dibujar(std::uint8_t vista) {
        H.VistaActual = vista;
        RedibujeVista(L, H, {D, G, R}, Papel ? HojaEnPapel : HojaEnPantalla);
        E = H.Vista.Escala;
        px = L.LadoDePixel();
        Quedan.clear();
        for (const Texto& t : L.Textos) Quedan.push_back(&t);
    }
    /// A text stands once with its centre within `holgura` of x, or with its end no farther than that to the
    /// left or its beginning to the right; the row of its centre is between two.
    const Texto& Dice(const std::string& texto, double x, Lado lado, double holgura, double y1, double y2) {
        static const Texto nada{};
        for (auto t = Quedan.begin(); t != Quedan.end(); ++t) {
            const double giro = (*t)->Decimas / 10.0 * 3.14159265358979 / 180;
            const double dx = (*t)->Medida.Ancho / 2.0;
            const double dy = (*t)->Medida.Alto / 2.0;
            const double cx = (*t)->Lugar.x + dx * std::cos(giro) + dy * std::sin(giro);
            const double cy = (*t)->Lugar.y - dx * std::sin(giro) + dy * std::cos(giro);
            const double aparte = lado == Centrado ? std::fabs(cx - x) : (cx - x) * lado - dx;
            if ((*t)->Texto != texto || aparte < 0 || aparte > holgura || cy < y1 || cy > y2) continue;
            const Texto& hallado = **t;
            Quedan.erase(t);
            return hallado;
        }
        ADD_FAILURE() << texto << " is not said at " << x << " +- " << holgura << ", rows " << y1 << " to "
                      << y2;
        return nada;
    }
    /// The centre of the row of a label, which stands left of the first axis.
    double Rotulado(const std::string& rotulo) {
        const Texto& t = Dice(rotulo, X(ex[1]), ALaIzquierda, 1e6, -1e6, 1e6);
        return t.Lugar.y + t.Medida.Alto / 2.0;
    }
    template <class Figuras, class Regla>
    std::size_t Cuenta(const Figuras& figuras, Regla regla) const {
        return static_cast<std::size_t>(std::count_if(figuras.begin(), figuras.end(), regla));
    }
    /// A block arrow with its point there, that comes from above (-1) or from below (1).
    void Flecha(double x, double y, int desde) {
        ++Flechas;
        EXPECT_NE(Cuenta(L.DeColor({189, 207, 240}),
                         [&](const auto& f) {
                             return Cerca(f.Puntos[0].x, x) && Cerca(f.Puntos[0].y, y) &&
                                    (f.Puntos[3].y - f.Puntos[0].y) * desde > 0.3 * E;
                         }),
                  0U)
            << "arrow at " << x << ", " << y << " from " << desde;
    }
    double X(double m) const { return H.Vista.OrigenX + E * m; }
    double Y(double m) const { return H.Vista.OrigenY - E * m; }
    double Mitad(const std::vector<double>& e, std::size_t i) const { return (e[i] + e[i + 1]) / 2; }
    double Tangente(std::size_t i) const { return (ey[i + 1] - ey[i]) / (ex[i + 1] - ex[i]); }
    double Coseno(std::size_t i) const { return 1 / std::hypot(1, Tangente(i)); }
    double Mayorado(std::size_t i, double T::*campo) const {
        return 1.2 * R.ResultadoTramo[1][i].*campo + 1.6 * R.ResultadoTramo[2][i].*campo;
    }

    void Base();
    void Titulos(std::vector<std::string> lineas, const std::string& otraE = "E");
    void Geometria();
    void Fuerzas();
    void Diagrama(Color fondo, double unidades, bool momentos);
    void Diseno();

    bool Papel;
    Losa D;
    DatosGenerales G;
    ResultadosLosa R;
    HojaLosa H;
    LienzoGrabador L;
    std::size_t N = 0;
    std::vector<double> ex, ey;  ///< of the axes, m
    double E = 0, px = 1;
    std::size_t Flechas = 0;
    std::vector<const Texto*> Quedan;
};

/// Loads, lengths, axes, shifts and supports, which all sheets show.
void Hoja::Base() {
    Flechas = 0;
    const double linea = 20 * px * H.Vista.Zoom;
    for (std::size_t i = 1; i <= N; ++i) {
        const Tramo& t = D.Tramos[i];
        const double x = X(Mitad(ex, i));
        const double y = Y(Mitad(ey, i));
        const std::string p = std::to_string(t.Wp), v = std::to_string(t.WV),
                          suma = std::to_string(t.Wp + t.WV);
        const Texto& carga = Dice(H.OpcionCarga == CargaTotal ? suma : p + " + " + v, x, Centrado,
                                  E * t.LT / 4 + 2, y - 0.6 * E - 3 * linea, y - 0.15 * E);
        EXPECT_NEAR(carga.Decimas, std::atan(Tangente(i)) * 1800 / 3.14159265358979, 5);
        for (const auto& [color, desde, hasta] :
             {std::tuple{Color{156, 177, 182}, -0.15, 0.15}, {Color{248, 199, 199}, 0.15, 0.55}}) {
            const auto banda = L.DeColor(color).at(i - 1).Puntos;
            EXPECT_TRUE(Cerca(banda[0].x, X(ex[i])) && Cerca(banda[0].y, Y(ey[i] + desde)) &&
                        Cerca(banda[2].x, X(ex[i + 1])) && Cerca(banda[2].y, Y(ey[i + 1] + hasta)));
        }
        Dice(Numero(t.LT, 2), x, Centrado, 2, y + 0.15 * E, y + 0.15 * E + linea);
        if (t.p1 == 0) continue;
        const double yp = Y(ey[i] + Tangente(i) * t.L1 + 0.55);
        Flecha(X(ex[i] + t.L1), yp, -1);
        EXPECT_EQ(Dice(std::to_string(t.p1), X(ex[i] + t.L1), Centrado, 0.15 * E + linea, yp - E, yp).Decimas,
                  900);
    }
    // Corners of the figure of each support, and its wheels.
    const std::map<std::int16_t, std::string> simbolos{
        {ApoyoFijo, "3"}, {RodilloEnX, "3oo"}, {RodilloEnY, "3oo"}, {Empotramiento, "4"}, {SinApoyo, ""}};
    for (std::size_t j = 1; j <= N + 1; ++j) {
        const double x = X(ex[j]);
        std::string simbolo;
        for (const auto& f : L.DeColor({255, 219, 117}))
            if (Cerca(f.Puntos[0].x, x, 0.11 * E)) simbolo += std::to_string(f.Puntos.size());
        for (const auto& c : L.Circulos)
            if (c.Relleno == Color{253, 192, 160} && Cerca(c.Puntos[0].x, x, 0.3 * E)) simbolo += "o";
        EXPECT_EQ(simbolo, simbolos.at(D.Ejes[j].Tipo));
        const double circulo = Y(ey[j]) + (0.75 + 0.3 + 0.26) * E;
        EXPECT_EQ(Cuenta(L.Circulos,
                         [&](const auto& c) {
                             return c.Relleno == Color{255, 244, 214} && Cerca(c.Puntos[0].x, x) &&
                                    Cerca(c.Puntos[0].y, circulo) && Cerca(c.Puntos[1].x, x + 0.26 * E);
                         }),
                  1U);
        EXPECT_TRUE(Dice(D.Ejes[j].Eje, x, Centrado, 2, circulo - 2, circulo + 2).Letra.Negrita);
    }
    EXPECT_EQ(Cuenta(L.Lineas,
                     [&](const auto& l) {
                         return l.Borde->Estilo == EstiloLinea::Punteada && l.Borde->Ancho == 1 &&
                                Cerca(l.Puntos[0].x, X(ex[1])) && Cerca(l.Puntos[1].x, X(ex[N + 1])) &&
                                l.Puntos[0].y == H.Vista.OrigenY;
                     }),
              1U);
    for (std::size_t k = 1; k < D.JuntasD.size(); ++k) {
        const JuntaD& j = D.JuntasD[k];
        const auto eje = static_cast<std::size_t>(j.Junta);
        const std::string ambas = Numero(j.x, 2) + " ; " + Numero(j.y, 2);
        Dice(j.x == 0   ? Numero(j.y, 2)
             : j.y == 0 ? Numero(j.x, 2)
                        : ambas,
             X(ex[eje]), Centrado, 2, Y(ey[eje] + 1.5), Y(ey[eje] + 0.5));
    }
}

/// The last texts, one below the other and centred, and nothing beside them.
void Hoja::Titulos(std::vector<std::string> lineas, const std::string& otraE) {
    lineas[0] = std::string(D.OpcionMaciza ? "LOSA MACIZA: " : "LOSA NERVADA: ") + otraE +
                (D.OpcionMaciza ? " = 0,20 m" : " = 0,25 m") + lineas[0];
    double y = 0;
    for (const std::string& linea : lineas) {
        const Texto& t = Dice(linea, X(0), Centrado, 2, y + 1, 1e6);
        EXPECT_TRUE(t.Letra.Negrita);
        y = t.Lugar.y + t.Medida.Alto / 2.0;
    }
    for (const Texto* t : Quedan)
        ADD_FAILURE() << t->Texto << " is left over at " << t->Lugar.x << ", " << t->Lugar.y;
}

void Hoja::Geometria() {
    Base();
    const Texto& rotulo = *L.Hallar("DESPIECE:");
    EXPECT_NEAR(rotulo.Lugar.x, X(ex[1]) - 1.1 * rotulo.Medida.Ancho, 2);
    const double y = Rotulado("DESPIECE:");
    for (std::size_t i = 1; i <= N; ++i)
        Dice(Numero(D.Tramos[i].LT, 2), X(Mitad(ex, i)), Centrado, 2, y - 2 * rotulo.Medida.Alto, y);
    for (std::size_t j = 1; j <= N + 1; ++j)
        EXPECT_EQ(Cuenta(L.Lineas,
                         [&](const auto& l) {
                             return l.Borde->Estilo == EstiloLinea::Punteada &&
                                    Cerca(l.Puntos[0].x, X(ex[j])) && Cerca(l.Puntos[0].y, Y(ey[j] - 1.68)) &&
                                    l.Puntos[1].x == l.Puntos[0].x && l.Puntos[1].y > y;
                         }),
                  1U);
    if (Papel)
        Titulos({"  (Geometría)", "N+3.00"}, "H");
    else
        Titulos({"", "N+3.00", "(GEOMETRIA DE LA LOSA)"});
}

/// The strips of a diagram by the span's end forces and loads, and the extremes that are written on it.
void Hoja::Diagrama(Color fondo, double unidades, bool momentos) {
    const auto tramos = L.DeColor(fondo);
    ASSERT_EQ(tramos.size(), N);
    for (std::size_t i = 1; i <= N; ++i) {
        const auto& puntos = tramos[i - 1].Puntos;
        const Tramo& t = D.Tramos[i];
        const double C = Coseno(i);
        const double w = (1.2 * t.Wp + 1.6 * t.WV) * C;
        const double M = Mayorado(i, &T::MomentoA);
        const double V = Mayorado(i, &T::CorteA);
        const auto eje = [&](double x) { return puntos[0].y - (x - puntos[0].x) * Tangente(i); };
        EXPECT_TRUE(Cerca(puntos[0].x, X(ex[i])) && Cerca(puntos.back().x, X(ex[i + 1])));
        const auto altoEn = [&](double d, bool antes) {
            const double s = d / C;
            const double P = antes ? 0 : 1.2 * t.p1 * C;
            return momentos ? w * s * s / 2 + P * (d - t.L1) / C - V * s - M : V - w * s - P;
        };
        // Each stretch, at its ends and at the stations on it: those that lie on a straight line are left
        // out.
        const auto n = static_cast<std::size_t>(std::lrint(4 * t.LT));
        EXPECT_LE(puntos.size(), n + (t.p1 != 0 ? 4 : 3));
        for (std::size_t k = 1; k + 2 < puntos.size(); ++k) {
            const PuntoLienzo a = puntos[k], b = puntos[k + 1];
            if (a.x == b.x) continue;  // under the point load
            std::vector<double> equis{1.0 * a.x, 1.0 * b.x};
            for (std::size_t e = 1; e < n; ++e) {
                const double x = X(ex[i] + static_cast<double>(e) * t.LT / static_cast<double>(n));
                if (a.x < x && x < b.x) equis.push_back(x);
            }
            for (const double x : equis) {
                // The last point stands on the axis, wherever a shift has put it.
                const bool ultimo = k + 3 == puntos.size() && x == b.x;
                const double d = ultimo ? t.LT : (x - X(ex[i])) / E;
                const double y = a.y + (x - a.x) * (b.y - a.y) / static_cast<double>(b.x - a.x);
                EXPECT_NEAR(eje(x) - y, unidades * altoEn(d, a.x < X(ex[i] + t.L1) - 1), 3 * px)
                    << "span " << i << ", " << d << " m";
            }
        }
        const double MT = R.DisenoTramo[i].MT;
        const double B = Mayorado(i, momentos ? &T::MomentoB : &T::CorteB);
        struct Extremo {
            double x, Valor, Alto;
            Lado Donde;
        };
        for (const auto& [x, valor, ordenada, lado] :
             {Extremo{X(ex[i]), momentos ? M : V, momentos ? -M : V, ALaDerecha},
              Extremo{X(ex[i + 1]), B, -B, ALaIzquierda},
              Extremo{X(ex[i] + R.DisenoTramo[i].x * C), momentos ? MT : 0, -MT, ALaDerecha}}) {
            if (Numero(valor, 0) == "0") continue;
            Flecha(x, eje(x) - unidades * ordenada, ordenada > 0 ? -1 : 1);
            const double fuera = eje(x) - (ordenada > 0 ? 1.39 : -1.39) * E;
            Dice(Numero(valor, 0), x, lado, 0.1 * E + 4 * px, std::min(eje(x), fuera),
                 std::max(eje(x), fuera));
        }
    }
}

void Hoja::Fuerzas() {
    Base();
    const Color deCorte{165, 191, 235};
    const Color deMomento{247, 194, 187};
    Diagrama(deCorte, 0.8 * E / R.MaxCorte, false);
    Diagrama(deMomento, 0.8 * E / std::max(R.MaxMomentoApoyo, R.MaxMomentoTramo), true);
    EXPECT_NEAR(Rotulado(Papel ? "Vu (kgf):" : "VU (kgf):"), L.DeColor(deCorte)[0].Puntos[0].y, 2 * px);
    EXPECT_NEAR(Rotulado(Papel ? "Mu (kgf-m):" : "MU (kgf-m):"), L.DeColor(deMomento)[0].Puntos[0].y, 2 * px);
    const double y = Rotulado(D.OpcionMaciza ? "(kgf/metro):" : "(kgf/Nervio):");
    const Texto& rotulo = *L.Hallar(D.OpcionMaciza ? "(kgf/metro):" : "(kgf/Nervio):");
    for (std::size_t j = 1; j <= N + 1; ++j) {
        const double RV = 1.2 * R.ResultadoJunta[1][j].RV + 1.6 * R.ResultadoJunta[2][j].RV;
        if (Numero(RV, 0) == "0") continue;
        Flecha(X(ex[j]), rotulo.Lugar.y + (RV < 0 ? 0.4 * E : 0), RV < 0 ? -1 : 1);  // uplift pulls down
        Dice(Numero(RV, 0), X(ex[j]), ALaDerecha, 0.1 * E + 4 * px, y - 0.5 * E, y + 0.5 * E);
    }
    EXPECT_EQ(L.DeColor({189, 207, 240}).size(), Flechas);
    Titulos({"", "N+3.00", "(DIAGRAMAS DE CORTES Y MOMENTOS MAYORADOS)",
             "COMBINACIONES DE CARGA (U = 1,20 CP + 1,60 CV)"});
}

using CH = const Hoja&;
using I = std::size_t;
enum class En { Eje, Tramo, AntesDelEje, TrasElEje, InflexionAntes, InflexionTras, Centro };
/// The table's rows: label on the screen and on paper, where the values stand, decimals, and which they are.
/// Values not above `Desde` are not shown; a solid slab's reactions are by metre as they are, a rib stands
/// every half metre.
struct FilaDicha {
    const char *Pantalla, *Papel;
    En Donde;
    int Decimales;
    double (*Valor)(CH, I);
    double Desde = -1e300;
};
double PorMetro(CH h, double RV) {
    return h.D.OpcionMaciza ? RV : 2 * RV;
}
const std::vector<FilaDicha> Filas{
    {"CP (kgf/metro):", "CP (kgf/ml):", En::Eje, 0,
     [](CH h, I j) { return PorMetro(h, h.R.ResultadoJunta[1][j].RV); }},
    {"CV (kgf/metro):", "CV (kgf/ml):", En::Eje, 0,
     [](CH h, I j) { return PorMetro(h, h.R.ResultadoJunta[2][j].RV); }},
    {"Total (kgf/metro):", "Total (kgf/ml):", En::Eje, 0,
     [](CH h, I j) { return PorMetro(h, h.R.ResultadoJunta[1][j].RV + h.R.ResultadoJunta[2][j].RV); }},
    {"Macizados (m):", "Macizado (m):", En::AntesDelEje, 2, [](CH h, I j) { return h.R.DisenoEje[j].MczI; },
     0.3},
    {"Macizados (m):", "Macizado (m):", En::TrasElEje, 2, [](CH h, I j) { return h.R.DisenoEje[j].MczD; },
     0.3},
    {"Mu Sup (kgf-m):", "Mu Sup(kgf-m):", En::Eje, 0,
     [](CH h, I j) {
         return std::min(0.0, j <= h.N ? h.Mayorado(j, &T::MomentoA) : h.Mayorado(h.N, &T::MomentoB));
     }},
    {"Mu Inf (kgf-m):", "Mu Inf (kgf-m):", En::Tramo, 0, [](CH h, I i) { return h.R.DisenoTramo[i].MT; }},
    {"As Sup (cm2):", "As Sup(cm2):", En::Eje, 2, [](CH h, I j) { return h.R.DisenoEje[j].AS1; }},
    {"As Inf (cm2):", "As Inf(cm2):", En::Tramo, 2, [](CH h, I i) { return h.R.DisenoTramo[i].AS2; }},
    {"Puntos Inflexión (m):", "Inflexión (m):", En::InflexionAntes, 2,
     [](CH h, I j) { return h.R.DisenoEje[j].PtoI; }, 0},
    {"Puntos Inflexión (m):", "Inflexión (m):", En::InflexionTras, 2,
     [](CH h, I j) { return h.R.DisenoEje[j].PtoD; }, 0},
    // 14/4200·10·22.5 of a rib, 17.5·100·0.002 of a strip
    {"Despiece:", "Despiece:", En::Centro, 2, [](CH h, I) { return h.D.OpcionMaciza ? 3.5 : 0.75; }},
};

void Hoja::Diseno() {
    Base();
    const std::size_t cuantas = H.SoloReacciones ? 3 : Filas.size();
    std::vector<double> centros;  // of the row of each
    std::string anterior;
    for (std::size_t f = 0; f < cuantas; ++f) {
        std::string rotulo = Papel ? Filas[f].Papel : Filas[f].Pantalla;
        if (D.OpcionMaciza && rotulo.starts_with("As ")) rotulo.replace(rotulo.find("cm2"), 3, "cm2/m");
        centros.push_back(rotulo == anterior ? centros.back() : Rotulado(rotulo));
        EXPECT_GE(centros.back(), f == 0 ? 0 : centros[f - 1]);
        anterior = rotulo;
    }
    const double medio = (centros[1] - centros[0]) / 2;
    std::size_t inflexiones = 0;
    for (std::size_t f = 0; f < cuantas; ++f) {
        const auto& [pantalla, papel, donde, decimales, valorDe, desde] = Filas[f];
        const bool deTramo = donde == En::Tramo || donde == En::InflexionTras;
        const std::size_t primero = donde == En::InflexionAntes ? 2 : 1;
        for (std::size_t i = primero; i <= (donde == En::Centro ? 1 : deTramo ? N : N + 1); ++i) {
            const double valor = valorDe(*this, i);
            if (!(valor > desde)) continue;
            std::string texto = Numero(valor, decimales);
            double x = X(ex[i]);
            if (donde == En::Tramo) x = X(Mitad(ex, i));
            if (donde == En::InflexionAntes) x = X(ex[i] - valor * Coseno(i - 1));
            if (donde == En::InflexionTras) x = X(ex[i] + valor * Coseno(i));
            if (donde == En::InflexionAntes || donde == En::InflexionTras)
                inflexiones +=
                    Cuenta(L.DeColor({255, 170, 170}), [&](auto& m) { return Cerca(m.Puntos[0].x, x); });
            if (donde == En::Centro) {
                x = X((ex[1] + ex[N + 1]) / 2);
                texto = "AsMín = " + texto + (D.OpcionMaciza ? " cm2/m" : " cm2");
            }
            const Lado lado = donde == En::AntesDelEje ? ALaIzquierda
                              : donde == En::TrasElEje ? ALaDerecha
                                                       : Centrado;
            SCOPED_TRACE(pantalla);
            Dice(texto, x, lado, lado == Centrado ? 2 : 6 * px, centros[f] - medio, centros[f] + medio);
        }
    }
    EXPECT_EQ(L.DeColor({255, 170, 170}).size(), inflexiones);
    if (H.SoloReacciones) return Titulos({"", "N+3.00", "REACCIONES SOBRE LAS VIGAS"});
    Titulos({Papel ? "   (ANALISIS Y DISEÑO)"
                   : "   (DISEÑO Y REACCIONES DE SERVICIO POR METRO LINEAL SOBRE LAS VIGAS)",
             "N+3.00"});
    for (const auto& [f, fondo] :
         {std::pair{3, Color{226, 233, 214}}, {5, {232, 223, 244}}, {7, {224, 233, 248}}}) {
        const auto banda = L.DeColor(fondo).at(0).Puntos;
        const double y = centros[static_cast<std::size_t>(f)];
        EXPECT_TRUE(banda[0].y < y && y < banda[2].y) << Filas[static_cast<std::size_t>(f)].Pantalla;
    }
    EXPECT_EQ(Cuenta(L.Lineas,
                     [&](const auto& l) {
                         return l.Puntos[0].y == l.Puntos[1].y && l.Borde->Estilo == EstiloLinea::Solida &&
                                Cerca(l.Puntos[0].x, X(ex[1])) && Cerca(l.Puntos[1].x, X(ex[N + 1])) &&
                                Cerca(l.Puntos[0].y, centros.back(), medio + 2 * px);
                     }),
              2U);
}

class Valores : public testing::TestWithParam<std::tuple<Escenario, bool>> {};

TEST_P(Valores, CadaHojaDiceLosDeSusEjesYTramos) {
    const auto& [escenario, papel] = GetParam();
    SCOPED_TRACE(escenario.Nombre);
    Hoja hoja(escenario, papel);
    hoja.Dibujar(VistaGeometria);
    hoja.Geometria();
    hoja.H.OpcionCarga = CargaPorCasos;
    hoja.Dibujar(VistaFuerzas);
    hoja.Fuerzas();
    for (const bool solas : {false, true}) {
        hoja.H.SoloReacciones = solas;
        hoja.Dibujar(VistaDiseno);
        hoja.Diseno();
    }
}

INSTANTIATE_TEST_SUITE_P(Losas, Valores, testing::Combine(testing::ValuesIn(Escenarios), testing::Bool()));

}  // namespace
}  // namespace trabex
