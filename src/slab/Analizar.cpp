#include "slab/Analizar.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/Enteros.h"
#include "base/Round.h"
#include "base/VigilanciaFlotante.h"
#include "slab/Banda.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/Geometria.h"

namespace trabex {

namespace {

constexpr std::size_t AnchoBanda = 6;  // 3·(D + 1), with D = 1 for a chain of spans
constexpr double Penalidad = 1e12;
constexpr double DesplazamientoNulo = 1e-8;  // m or rad: anything smaller is taken as 0
constexpr int DecimalesEsfuerzo = 8;

/// A span as a bar: geometry, stiffness and fixed-end terms, the load cases side by side.
struct Barra {
    double L, CX, CY;
    double axial;            // EA/L
    double k12, k6, k4, k2;  // 12EI/L³, 6EI/L², 4EI/L, 2EI/L
    ParDeCasos M0A, M0B, VA0, VB0, NA0, NB0;
};

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

    void Ejecutar() {
        Reservar();
        juntas_ = CoordenarJuntas(losa_, 0);
        FormarRestricciones();
        MatrizBanda K(NDOF() + AnchoBanda, AnchoBanda);
        FormarBarras(K);
        PonerApoyos(K);
        CalculoDPZ(K, F_, NDOF(), AnchoBanda);
        AnularDesplazamientosMinimos();
        for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
            CalcularEsfuerzos(caso);
            LlenarJuntas(caso);
        }
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
    void FormarBarras(MatrizBanda& K);
    void GeometriaYRigidez(std::size_t i, double EI, double EA, Barra& barra) const;
    void CargaUniforme(const Tramo& tramo, Barra& barra) const;
    void CargaPuntual(const Tramo& tramo, Barra& barra) const;
    void CargarNudos(std::size_t i, const Barra& barra);
    void PonerApoyos(MatrizBanda& K);
    void AnularDesplazamientosMinimos();
    void CalcularEsfuerzos(std::size_t caso);
    EsfuerzosTramo EsfuerzosDe(std::size_t i, std::size_t c) const;
    void LlenarJuntas(std::size_t caso);
    void SumarReacciones(std::size_t caso);
    void CalcularMaximos();

    const Losa& losa_;
    const DatosGenerales& generales_;
    ResultadosLosa& resultados_;
    const std::size_t N_;
    VigilanciaFlotante vigilancia_;
    CoordenadasJuntas juntas_;
    std::vector<Restriccion> restricciones_;
    std::vector<Barra> barras_;
    std::vector<ParDeCasos> F_;  // loads, then displacements, of degree of freedom k + 1
};

/// Rebuilds the results from nothing; the rows of the band matrix are a 16-bit count.
void Analisis::Reservar() {
    for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
        resultados_.ResultadoJunta[caso].clear();
        resultados_.ResultadoTramo[caso].clear();
    }
    resultados_.DisenoEje.clear();
    resultados_.DisenoTramo.clear();
    resultados_.MaxMomentoApoyo = resultados_.MaxCorte = resultados_.MaxMomentoTramo = 0;
    resultados_.Error.reset();

    Entero16(static_cast<std::int64_t>(NDOF() + AnchoBanda));
    for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
        resultados_.ResultadoJunta[caso].resize(N_ + 2);
        resultados_.ResultadoTramo[caso].resize(N_ + 1);
    }
    resultados_.DisenoTramo.resize(N_ + 1);
    restricciones_.resize(N_ + 2);
    barras_.resize(N_ + 1);
    F_.resize(NDOF());
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

void Analisis::FormarBarras(MatrizBanda& K) {
    const double E = 15100 * std::sqrt(static_cast<double>(generales_.FC)) * 10000;
    const auto [b, h] = SeccionDeCalculo(losa_);
    const double EA = E * (b * h);
    const double EI = E * (h * h * h * b / 12);
    for (std::size_t i = 1; i <= N_; ++i) {
        Barra& barra = barras_[i];
        GeometriaYRigidez(i, EI, EA, barra);
        CargaUniforme(losa_.Tramos[i], barra);
        CargaPuntual(losa_.Tramos[i], barra);
        CargarNudos(i, barra);
        EnsamblaM(K, RigidezGlobal(barra), 3 * i - 3, 3 * i);
        vigilancia_.Comprobar();
    }
}

void Analisis::GeometriaYRigidez(std::size_t i, double EI, double EA, Barra& barra) const {
    const double dx = juntas_.X[i + 1] - juntas_.X[i];
    const double dy = juntas_.Y[i + 1] - juntas_.Y[i];
    const double L = std::sqrt(dx * dx + dy * dy);
    barra.L = L;
    barra.CX = L > 0 ? dx / L : 0;
    barra.CY = L > 0 ? dy / L : 0;
    const double flexion = 2 * EI / L;
    barra.axial = EA / L;
    barra.k2 = flexion;
    barra.k4 = 2 * flexion;
    barra.k6 = 3 * flexion / L;
    barra.k12 = 2 * barra.k6 / L;
}

void Analisis::CargaUniforme(const Tramo& tramo, Barra& barra) const {
    const std::array<double, 2> w0{static_cast<double>(tramo.Wp), static_cast<double>(tramo.WV)};
    for (std::size_t c = 0; c < 2; ++c) {
        const double w = w0[c] * barra.CX;
        const double wa = w0[c] * barra.CY;
        barra.VA0[c] = barra.VB0[c] = w * barra.L / 2;
        barra.M0A[c] = barra.M0B[c] = w * (barra.L * barra.L) / 12;
        barra.NA0[c] = barra.NB0[c] = wa * barra.L / 2;
    }
}

/// A point load strictly between the joints; it is always permanent.
void Analisis::CargaPuntual(const Tramo& tramo, Barra& barra) const {
    if (tramo.p1 == 0 || !(0 < tramo.L1 && tramo.L1 < tramo.LT)) return;
    const double L = barra.L;
    const double P = tramo.p1 * barra.CX;
    const double Pa = tramo.p1 * barra.CY;
    const double a = tramo.L1 / barra.CX;
    const double c = L - a;
    double& M0A = barra.M0A[0];
    double& M0B = barra.M0B[0];
    M0A += a * P * (c * c) / (L * L);
    M0B += P * c * (a * a) / (L * L);
    barra.VA0[0] += P * c / L - (M0B - M0A) / L;
    barra.VB0[0] += a * P / L + (M0B - M0A) / L;
    barra.NA0[0] += Pa * c / L;
    barra.NB0[0] += a * Pa / L;
}

void Analisis::CargarNudos(std::size_t i, const Barra& b) {
    ParDeCasos* a = &F_[3 * i - 3];
    for (std::size_t c = 0; c < 2; ++c) {
        a[0][c] += b.CX * b.NA0[c] - b.CY * b.VA0[c];
        a[1][c] += b.CY * b.NA0[c] + b.CX * b.VA0[c];
        a[2][c] += -b.M0A[c];
        a[3][c] += b.CX * b.NB0[c] - b.CY * b.VB0[c];
        a[4][c] += b.CY * b.NB0[c] + b.CX * b.VB0[c];
        a[5][c] += b.M0B[c];
    }
    const Tramo& tramo = losa_.Tramos[i];
    if (tramo.p1 == 0) return;
    if (tramo.L1 == 0) a[1][0] += tramo.p1;
    if (tramo.L1 == tramo.LT) a[4][0] += tramo.p1;
}

void Analisis::PonerApoyos(MatrizBanda& K) {
    const auto restringir = [&](std::size_t r) {
        K(r, 1) = K(r, 1) * Penalidad + Penalidad;
        F_[r - 1] = {0, 0};
    };
    for (std::size_t j = 1; j <= N_ + 1; ++j) {
        if (restricciones_[j].X) restringir(3 * j - 2);
        if (restricciones_[j].Y) restringir(3 * j - 1);
        if (restricciones_[j].Giro) restringir(3 * j);
    }
}

void Analisis::AnularDesplazamientosMinimos() {
    for (ParDeCasos& d : F_) {
        for (double& valor : d) {
            if (std::fabs(valor) < DesplazamientoNulo) valor = 0;
        }
    }
}

/// End forces of span i: displacements turned to the bar's axes, times its stiffness, plus fixed-end terms.
EsfuerzosTramo Analisis::EsfuerzosDe(std::size_t i, std::size_t c) const {
    const Barra& b = barras_[i];
    const ParDeCasos* d = &F_[3 * i - 3];
    const double u1 = b.CX * d[0][c] + b.CY * d[1][c];
    const double v1 = -b.CY * d[0][c] + b.CX * d[1][c];
    const double u2 = b.CX * d[3][c] + b.CY * d[4][c];
    const double v2 = -b.CY * d[3][c] + b.CX * d[4][c];
    const double giro1 = d[2][c];
    const double giro2 = d[5][c];
    const double axial = b.axial * (u2 - u1);
    const double desnivel = b.k6 * (v1 - v2);
    const double corte = b.k12 * (v1 - v2) - b.k6 * (giro1 + giro2);
    const auto redondear = [](double valor) { return Round(valor, DecimalesEsfuerzo); };
    return {redondear(desnivel - b.k4 * giro1 - b.k2 * giro2 - b.M0A[c]),
            redondear(b.VA0[c] - corte),
            redondear(axial + b.NA0[c]),
            redondear(b.k2 * giro1 + b.k4 * giro2 - desnivel - b.M0B[c]),
            redondear(b.VB0[c] + corte),
            redondear(axial - b.NB0[c])};
}

void Analisis::CalcularEsfuerzos(std::size_t caso) {
    std::vector<EsfuerzosTramo>& esfuerzos = resultados_.ResultadoTramo[caso];
    for (std::size_t i = 1; i <= N_; ++i) {
        const EsfuerzosTramo calculados = EsfuerzosDe(i, caso - 1);
        vigilancia_.Comprobar();
        esfuerzos[i] = calculados;
    }
}

void Analisis::LlenarJuntas(std::size_t caso) {
    std::vector<EstadoJunta>& estados = resultados_.ResultadoJunta[caso];
    for (std::size_t j = 1; j <= N_ + 1; ++j) {
        EstadoJunta& junta = estados[j];
        const Restriccion& restriccion = restricciones_[j];
        junta.Eje = losa_.Ejes[j].Eje;
        junta.x = juntas_.X[j];
        junta.y = juntas_.Y[j];
        junta.RestringidaY = restriccion.Y ? 1 : 0;
        junta.RestringidaX = restriccion.X ? 1 : 0;
        junta.RestringidoGiro = restriccion.Giro ? 1 : 0;
        junta.DX = F_[3 * j - 3][caso - 1];
        junta.DY = F_[3 * j - 2][caso - 1];
        junta.Giro = F_[3 * j - 1][caso - 1];
    }
    SumarReacciones(caso);
}

/// Reactions, from the rounded end forces of the spans that meet at each restrained joint.
void Analisis::SumarReacciones(std::size_t caso) {
    std::vector<EstadoJunta>& estados = resultados_.ResultadoJunta[caso];
    for (std::size_t i = 1; i <= N_; ++i) {
        const EsfuerzosTramo& e = resultados_.ResultadoTramo[caso][i];
        const Barra& b = barras_[i];
        EstadoJunta& juntaA = estados[i];
        EstadoJunta& juntaB = estados[i + 1];
        if (restricciones_[i].Y) juntaA.RV += b.CY * e.AxialA + b.CX * e.CorteA;
        if (restricciones_[i].X) juntaA.RH += b.CX * e.AxialA - b.CY * e.CorteA;
        if (restricciones_[i + 1].Y) juntaB.RV += -b.CY * e.AxialB + b.CX * e.CorteB;
        if (restricciones_[i + 1].X) juntaB.RH += -b.CX * e.AxialB - b.CY * e.CorteB;
    }
}

void Analisis::CalcularMaximos() {
    for (std::size_t i = 1; i <= N_; ++i) {
        const Tramo& tramo = losa_.Tramos[i];
        const TramoMayorado mayorado = MayorarTramo(tramo, generales_, barras_[i].CX);
        const ExtremosMayorados e = MayorarExtremos(resultados_, generales_, i);
        vigilancia_.Comprobar();
        const MomentoDeTramo maximo = MomentoMaximo(tramo, mayorado, e);
        vigilancia_.Comprobar();
        resultados_.DisenoTramo[i].MT = maximo.MT;
        resultados_.DisenoTramo[i].x = maximo.x;
        resultados_.MaxCorte = std::max({resultados_.MaxCorte, std::fabs(e.Vi), std::fabs(e.Vj)});
        resultados_.MaxMomentoApoyo =
            std::max({resultados_.MaxMomentoApoyo, std::fabs(e.Mi), std::fabs(e.Mj)});
        resultados_.MaxMomentoTramo = std::max(resultados_.MaxMomentoTramo, std::fabs(maximo.MT));
    }
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

}  // namespace trabex
