#include "slab/Analizar.h"

#include <algorithm>
#include <cmath>

#include "base/Enteros.h"
#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "slab/Banda.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/Geometria.h"

namespace trabex::losas {

namespace {

constexpr std::size_t AnchoBanda = 6;  // 3·(D + 1), with D = 1 for a chain of spans
constexpr double Penalidad = 1e12;
constexpr double DesplazamientoNulo = 1e-8;  // m or rad: anything smaller is taken as 0
constexpr int DecimalesEsfuerzo = 8;

using Banda = MatrizBanda<AnchoBanda>;

/// A span as a bar.
struct Barra {
    double L, CX, CY;
    double L2_12;            // L²/12
    double axial;            // EA/L
    double k2, k4, k6, k12;  // 2EI/L, 4EI/L, 6EI/L², 12EI/L³
};

/// Fixed-end terms of a bar, in its axes.
struct ExtremosFijos {
    ParDeCasos M0A, M0B, VA0, VB0, NA0, NB0;
};

/// End forces of a bar under both load cases.
using EsfuerzosPorCaso = std::array<EsfuerzosTramo, 2>;

/// What a support type restrains.
struct Restriccion {
    bool X, Y, Giro;
};

Restriccion RestriccionDe(std::int16_t tipo) {
    constexpr std::array<Restriccion, 6> tabla{{{false, false, false},
                                                {true, true, false},      // ApoyoFijo
                                                {false, true, false},     // RodilloEnX
                                                {true, false, false},     // RodilloEnY
                                                {true, true, true},       // Empotramiento
                                                {false, false, false}}};  // SinApoyo
    return tipo >= 1 && tipo <= 5 ? tabla[static_cast<std::size_t>(tipo)] : tabla[0];
}

/// One analysis: its scratch arrays and its steps.
class Analisis {
  public:
    Analisis(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados)
        : losa_(losa), generales_(generales), resultados_(resultados), N_(losa.Tramos.size() - 1) {}

    /// What the analysis did not reach holds nothing.
    ~Analisis() {
        for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
            if (!esfuerzosEmpezados_) resultados_.ResultadoTramo[caso].clear();
            if (!juntasEmpezadas_) resultados_.ResultadoJunta[caso].clear();
        }
    }
    Analisis(const Analisis&) = delete;
    Analisis& operator=(const Analisis&) = delete;

    void Ejecutar() {
        Reservar();
        juntas_ = CoordenarJuntas(losa_, 0);
        FormarRestricciones();
        Banda K(NDOF() + AnchoBanda);
        FormarBarras(K);
        CalculoDPZ(K, F_, NDOF(), 3 * N_);
        vigilancia_.Comprobar();
        AnularDesplazamientosMinimos();
        CalcularEsfuerzos();
        LlenarJuntas();
        CalcularMaximos();
    }

  private:
    std::size_t NDOF() const { return 3 * (N_ + 1); }
    const EjeLosa& EjeDe(std::size_t j) const {
        if (j >= losa_.Ejes.size()) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
        return losa_.Ejes[j];
    }

    void Reservar();
    void FormarRestricciones();
    void FormarBarras(Banda& K);
    Barra FormarBarra(std::size_t i, double EI, double EA) const;
    void CargarNudos(std::size_t i);
    void PonerApoyos(Banda& K, std::size_t j);
    void AnularDesplazamientosMinimos();
    void CalcularEsfuerzos();
    EsfuerzosPorCaso EsfuerzosDe(std::size_t i) const;
    void LlenarJuntas();
    void SumarReacciones(std::size_t caso, std::size_t j, EstadoJunta& junta) const;
    struct Maximos {
        ExtremosMayorados Extremos;
        MomentoDeTramo Interior;
    };
    Maximos MaximosDe(std::size_t i) const;
    void GuardarMaximos(std::size_t i, const Maximos& maximos);
    void CalcularMaximos();

    const Losa& losa_;
    const DatosGenerales& generales_;
    ResultadosLosa& resultados_;
    const std::size_t N_;
    VigilanciaFlotante vigilancia_;
    CoordenadasJuntas juntas_;
    std::vector<Restriccion> restricciones_;
    std::vector<Barra> barras_;
    bool esfuerzosEmpezados_ = false;
    bool juntasEmpezadas_ = false;
    std::vector<ParDeCasos> F_;  // loads, then displacements, of degree of freedom k + 1
};

/// Rebuilds the results from nothing; the rows of the band matrix are a 16-bit count.
void Analisis::Reservar() {
    resultados_.DisenoEje.clear();
    resultados_.DisenoTramo.clear();
    resultados_.MaxMomentoApoyo = resultados_.MaxCorte = resultados_.MaxMomentoTramo = 0;
    resultados_.Error.reset();

    Entero16(static_cast<std::int64_t>(NDOF() + AnchoBanda));
    restricciones_.resize(N_ + 2);
    barras_.reserve(N_ + 1);
    barras_.emplace_back();
    F_.resize(NDOF() + AnchoBanda);
}

void Analisis::FormarRestricciones() {
    for (std::size_t j = 1; j <= N_ + 1; ++j) restricciones_[j] = RestriccionDe(EjeDe(j).Tipo);
}

/// Stiffness of a bar in global axes, Y downward.
MatrizElemento RigidezGlobal(const Barra& b) {
    const double k11 = b.CY * b.CY * b.k12 + b.CX * b.CX * b.axial;
    const double k12 = -(b.CX * b.CY * b.k12 - b.CX * b.CY * b.axial);
    const double k22 = b.CX * b.CX * b.k12 + b.CY * b.CY * b.axial;
    const double k13 = b.CY * b.k6;
    const double k23 = -b.CX * b.k6;
    return {{{k11, k12, k13, -k11, -k12, k13},
             {k12, k22, k23, -k12, -k22, k23},
             {k13, k23, b.k4, -k13, -k23, b.k2},
             {-k11, -k12, -k13, k11, k12, -k13},
             {-k12, -k22, -k23, k12, k22, -k23},
             {k13, k23, b.k2, -k13, -k23, b.k4}}};
}

void Analisis::FormarBarras(Banda& K) {
    const double E = 15100 * std::sqrt(static_cast<double>(generales_.FC)) * 10000;
    const auto [b, h] = SeccionDeCalculo(losa_);
    const double EA = E * (b * h);
    const double EI = E * (h * h * h * b / 12);
    for (std::size_t i = 1; i <= N_; ++i) {
        barras_.push_back(FormarBarra(i, EI, EA));
        CargarNudos(i);
        EnsamblaM(K, RigidezGlobal(barras_[i]), 3 * i - 3, 3 * i);
        // Nothing more adds to joint i: it is restrained and eliminated while its rows are at hand.
        PonerApoyos(K, i);
        EliminarFilas(K, F_, 3 * i - 3, 3 * i);
    }
    PonerApoyos(K, N_ + 1);
}

Barra Analisis::FormarBarra(std::size_t i, double EI, double EA) const {
    const double dx = juntas_.X[i + 1] - juntas_.X[i];
    const double dy = juntas_.Y[i + 1] - juntas_.Y[i];
    // A span like the one before it is the same bar, without its divisions.
    if (i > 1 && dx == juntas_.X[i] - juntas_.X[i - 1] && dy == juntas_.Y[i] - juntas_.Y[i - 1])
        return barras_[i - 1];
    const double L = std::sqrt(dx * dx + dy * dy);
    const double k2 = 2 * EI / L;
    const double k6 = 3 * k2 / L;
    return {L, L > 0 ? dx / L : 0, L > 0 ? dy / L : 0, L * L / 12, EA / L, k2, 2 * k2, k6, 2 * k6 / L};
}

/// Adds a point load strictly between the joints, always permanent, to the fixed-end terms of the uniform
/// load.
void SumarPuntual(const Tramo& tramo, const Barra& barra, ExtremosFijos& f) {
    const double L = barra.L;
    const double P = tramo.p1 * barra.CX;
    const double Pa = tramo.p1 * barra.CY;
    const double a = tramo.L1 / barra.CX;
    const double c = L - a;
    f.M0A[0] += a * P * (c * c) / (L * L);
    f.M0B[0] += P * c * (a * a) / (L * L);
    f.VA0[0] += P * c / L - (f.M0B[0] - f.M0A[0]) / L;
    f.VB0[0] += a * P / L + (f.M0B[0] - f.M0A[0]) / L;
    f.NA0[0] += Pa * c / L;
    f.NB0[0] += a * Pa / L;
}

inline ExtremosFijos ExtremosFijosDe(const Tramo& tramo, const Barra& barra) {
    const ParDeCasos w0{static_cast<double>(tramo.Wp), static_cast<double>(tramo.WV)};
    const ParDeCasos w = barra.CX * w0;
    const ParDeCasos corte = (barra.L / 2) * w;
    const ParDeCasos momento = barra.L2_12 * w;
    const ParDeCasos axial = (barra.CY * barra.L / 2) * w0;
    ExtremosFijos f{momento, momento, corte, corte, axial, axial};
    if (tramo.p1 != 0 && 0 < tramo.L1 && tramo.L1 < tramo.LT) SumarPuntual(tramo, barra, f);
    return f;
}

void Analisis::CargarNudos(std::size_t i) {
    const Tramo& tramo = losa_.Tramos[i];
    const Barra& b = barras_[i];
    const ExtremosFijos f = ExtremosFijosDe(tramo, b);
    ParDeCasos* a = &F_[3 * i - 3];
    a[0] += b.CX * f.NA0 - b.CY * f.VA0;
    a[1] += b.CY * f.NA0 + b.CX * f.VA0;
    a[2] -= f.M0A;
    a[3] += b.CX * f.NB0 - b.CY * f.VB0;
    a[4] += b.CY * f.NB0 + b.CX * f.VB0;
    a[5] += f.M0B;
    if (tramo.p1 == 0) return;
    if (tramo.L1 == 0) a[1][0] += tramo.p1;
    if (tramo.L1 == tramo.LT) a[4][0] += tramo.p1;
}

void Analisis::PonerApoyos(Banda& K, std::size_t j) {
    const auto restringir = [&](std::size_t r) {
        K(r, 1) = K(r, 1) * Penalidad + Penalidad;
        F_[r - 1] = {0, 0};
    };
    if (restricciones_[j].X) restringir(3 * j - 2);
    if (restricciones_[j].Y) restringir(3 * j - 1);
    if (restricciones_[j].Giro) restringir(3 * j);
}

void Analisis::AnularDesplazamientosMinimos() {
    for (ParDeCasos& d : F_) {
        for (double& valor : d) valor = std::fabs(valor) < DesplazamientoNulo ? 0 : valor;
    }
}

/// End forces of span i: displacements turned to the bar's axes, times its stiffness, plus fixed-end terms.
EsfuerzosPorCaso Analisis::EsfuerzosDe(std::size_t i) const {
    const Barra& b = barras_[i];
    const ExtremosFijos f = ExtremosFijosDe(losa_.Tramos[i], b);
    const ParDeCasos* d = &F_[3 * i - 3];
    const ParDeCasos u1 = b.CX * d[0] + b.CY * d[1];
    const ParDeCasos v1 = b.CX * d[1] - b.CY * d[0];
    const ParDeCasos u2 = b.CX * d[3] + b.CY * d[4];
    const ParDeCasos v2 = b.CX * d[4] - b.CY * d[3];
    const ParDeCasos axial = b.axial * (u2 - u1);
    const ParDeCasos desnivel = b.k6 * (v1 - v2);
    const ParDeCasos corte = b.k12 * (v1 - v2) - b.k6 * (d[2] + d[5]);
    const ParDeCasos MA = desnivel - b.k4 * d[2] - b.k2 * d[5] - f.M0A;
    const ParDeCasos VA = f.VA0 - corte;
    const ParDeCasos NA = axial + f.NA0;
    const ParDeCasos MB = b.k2 * d[2] + b.k4 * d[5] - desnivel - f.M0B;
    const ParDeCasos VB = f.VB0 + corte;
    const ParDeCasos NB = axial - f.NB0;
    std::array<double, 12> e{MA[0], VA[0], NA[0], MB[0], VB[0], NB[0],
                             MA[1], VA[1], NA[1], MB[1], VB[1], NB[1]};
    RoundTodos(e, DecimalesEsfuerzo);
    return {{{e[0], e[1], e[2], e[3], e[4], e[5]}, {e[6], e[7], e[8], e[9], e[10], e[11]}}};
}

void Analisis::CalcularEsfuerzos() {
    std::vector<EsfuerzosTramo>& permanentes = resultados_.ResultadoTramo[CasoPermanente];
    std::vector<EsfuerzosTramo>& variables = resultados_.ResultadoTramo[CasoVariable];
    permanentes.resize(N_ + 1);
    variables.resize(N_ + 1);
    esfuerzosEmpezados_ = true;
    vigilancia_.Recorrer(
        1, N_, [&](std::size_t i) { return EsfuerzosDe(i); },
        [&](std::size_t i, const EsfuerzosPorCaso& calculados) {
            permanentes[i] = calculados[0];
            variables[i] = calculados[1];
        },
        [&] {
            permanentes.assign(N_ + 1, {});
            variables.assign(N_ + 1, {});
        });
}

void Analisis::LlenarJuntas() {
    for (const std::size_t caso : {CasoPermanente, CasoVariable})
        resultados_.ResultadoJunta[caso].resize(N_ + 2);
    juntasEmpezadas_ = true;
    const auto uno = [](bool restringida) { return restringida ? 1.0 : 0.0; };
    for (std::size_t j = 1; j <= N_ + 1; ++j) {
        const Restriccion& restriccion = restricciones_[j];
        for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
            EstadoJunta& junta = resultados_.ResultadoJunta[caso][j];
            junta.Eje = losa_.Ejes[j].Eje;
            junta.x = juntas_.X[j];
            junta.y = juntas_.Y[j];
            junta.RestringidaY = uno(restriccion.Y);
            junta.RestringidaX = uno(restriccion.X);
            junta.RestringidoGiro = uno(restriccion.Giro);
            junta.DX = F_[3 * j - 3][caso - 1];
            junta.DY = F_[3 * j - 2][caso - 1];
            junta.Giro = F_[3 * j - 1][caso - 1];
            SumarReacciones(caso, j, junta);
        }
    }
}

/// Reactions of joint j where it is restrained, from the rounded end forces of the spans that meet there.
void Analisis::SumarReacciones(std::size_t caso, std::size_t j, EstadoJunta& junta) const {
    const std::vector<EsfuerzosTramo>& esfuerzos = resultados_.ResultadoTramo[caso];
    const Restriccion& r = restricciones_[j];
    double RV = 0;
    double RH = 0;
    if (j > 1) {
        const EsfuerzosTramo& e = esfuerzos[j - 1];
        const Barra& b = barras_[j - 1];
        if (r.Y) RV += -b.CY * e.AxialB + b.CX * e.CorteB;
        if (r.X) RH += -b.CX * e.AxialB - b.CY * e.CorteB;
    }
    if (j <= N_) {
        const EsfuerzosTramo& e = esfuerzos[j];
        const Barra& b = barras_[j];
        if (r.Y) RV += b.CY * e.AxialA + b.CX * e.CorteA;
        if (r.X) RH += b.CX * e.AxialA - b.CY * e.CorteA;
    }
    junta.RV = RV;
    junta.RH = RH;
}

Analisis::Maximos Analisis::MaximosDe(std::size_t i) const {
    const Tramo& tramo = losa_.Tramos[i];
    const TramoMayorado mayorado = MayorarTramo(tramo, generales_, barras_[i].CX);
    const ExtremosMayorados extremos = MayorarExtremos(resultados_, generales_, i);
    if (tramo.p1 != 0) vigilancia_.Comprobar();  // a walk along the span must have an end
    return {extremos, MomentoMaximo(tramo, mayorado, extremos)};
}

void Analisis::GuardarMaximos(std::size_t i, const Maximos& m) {
    ResultadosLosa& r = resultados_;
    r.DisenoTramo[i].MT = m.Interior.MT;
    r.DisenoTramo[i].x = m.Interior.x;
    r.MaxCorte = std::max(r.MaxCorte, std::max(std::fabs(m.Extremos.Vi), std::fabs(m.Extremos.Vj)));
    r.MaxMomentoApoyo =
        std::max(r.MaxMomentoApoyo, std::max(std::fabs(m.Extremos.Mi), std::fabs(m.Extremos.Mj)));
    r.MaxMomentoTramo = std::max(r.MaxMomentoTramo, std::fabs(m.Interior.MT));
}

void Analisis::CalcularMaximos() {
    const auto borrar = [this] {
        resultados_.DisenoTramo.assign(N_ + 1, {});
        resultados_.MaxMomentoApoyo = resultados_.MaxCorte = resultados_.MaxMomentoTramo = 0;
    };
    borrar();
    vigilancia_.Recorrer(
        1, N_, [this](std::size_t i) { return MaximosDe(i); },
        [this](std::size_t i, const Maximos& maximos) { GuardarMaximos(i, maximos); }, borrar);
}

}  // namespace

bool Analizar(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados) {
    if (losa.Tramos.size() <= 1) return false;
    const bool longitudNula =
        std::any_of(losa.Tramos.begin() + 1, losa.Tramos.end(), [](const Tramo& t) { return t.LT == 0; });
    if (longitudNula) return false;
    Analisis(losa, generales, resultados).Ejecutar();
    return true;
}

}  // namespace trabex::losas
