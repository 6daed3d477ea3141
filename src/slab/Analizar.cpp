#include "slab/Analizar.h"

#include <algorithm>
#include <cmath>

#include "slab/Banda.h"
#include "slab/Barra.h"
#include "slab/EsfuerzosTramo.h"
#include "slab/Geometria.h"

namespace trabex::losas {

namespace {

constexpr std::size_t AnchoBanda = 6;  // 3·(D + 1), with D = 1 for a chain of spans
constexpr double Penalidad = 1e12;
constexpr double DesplazamientoNulo = 1e-8;  // m or rad: anything smaller is taken as 0

using Banda = MatrizBanda<AnchoBanda>;

/// One analysis: its scratch arrays and its steps.
class Analisis {
  public:
    Analisis(const Losa& losa, const DatosGenerales& generales, const Pasos& pasos,
             ResultadosLosa& resultados)
        : losa_(losa),
          generales_(generales),
          pasos_(pasos),
          resultados_(resultados),
          N_(losa.Tramos.size() - 1) {}

    void Ejecutar() {
        Dimensionar();
        juntas_ = pasos_([this] { return CoordenarJuntas(losa_, 0); });
        FormarRestricciones();
        if (pasos_.Vigilados()) {
            // The live case comes after all of the permanent one, and a fault is that of one of them.
            ResolverCasos({1, 0});
            const std::vector<ParDeCasos> permanentes = F_;
            ResolverCasos({0, 1});
            for (std::size_t k = 0; k < F_.size(); ++k) F_[k][0] = permanentes[k][0];
        } else {
            ResolverCasos({1, 1});
        }
        LlenarJuntas();
        CalcularMaximos();
    }

  private:
    std::size_t NDOF() const { return 3 * (N_ + 1); }
    const EjeLosa& EjeDe(std::size_t j) const {
        if (j >= losa_.Ejes.size()) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
        return losa_.Ejes[j];
    }

    void Dimensionar();
    void FormarRestricciones();
    void ResolverCasos(const ParDeCasos& casos);
    void ArmarTramo(Banda& K, std::size_t i, const Rigidez& rigidez);
    void CargarNudos(std::size_t i);
    void PonerApoyos(Banda& K, std::size_t j);
    void Resolver(Banda& K, std::size_t eliminadas);
    void CalcularEsfuerzos();
    void LlenarJuntas();
    void LlenarJunta(std::size_t caso, std::size_t j, EstadoJunta& junta) const;
    void SumarReacciones(std::size_t caso, std::size_t j, EstadoJunta& junta) const;
    void CalcularMaximos();

    const Losa& losa_;
    const DatosGenerales& generales_;
    const Pasos& pasos_;
    ResultadosLosa& resultados_;
    const std::size_t N_;
    CoordenadasJuntas juntas_;
    std::vector<Restriccion> restricciones_;
    ParDeCasos casos_{};  // 1 for the cases that are being solved
    std::vector<Barra> barras_;
    std::vector<double> diagonal_;  // of K as assembled, supports included
    std::vector<ParDeCasos> F_;     // loads, then displacements, of degree of freedom k + 1
};

void Analisis::Dimensionar() {
    if (N_ > MaximoTramos) throw ErrorEjecucion(CodigoError::Desbordamiento);
    restricciones_.resize(N_ + 2);
    barras_.reserve(N_ + 1);
    diagonal_.resize(NDOF());
}

void Analisis::FormarRestricciones() {
    for (std::size_t j = 1; j <= N_ + 1; ++j) restricciones_[j] = RestriccionDe(EjeDe(j).Tipo);
}

/// Assembles, supports and solves, and leaves the end forces of the cases asked for.
void Analisis::ResolverCasos(const ParDeCasos& casos) {
    casos_ = casos;
    Banda K(NDOF() + AnchoBanda);
    F_.assign(NDOF() + AnchoBanda, {});
    barras_.assign(1, {});
    const Rigidez rigidez = pasos_([this] { return RigidezDe(losa_, generales_.FC); });
    const bool sobreLaMarcha = !pasos_.Vigilados();
    for (std::size_t i = 1; i <= N_; ++i) {
        pasos_([&, i] { ArmarTramo(K, i, rigidez); });
        pasos_([&, i] { PonerApoyos(K, i); });
        // Joint i is complete: the one before it is eliminated while its rows are at hand.
        if (sobreLaMarcha && i > 1) EliminarFilas(K, F_, 3 * i - 6, 3 * i - 3);
    }
    pasos_([&] { PonerApoyos(K, N_ + 1); });
    pasos_([&] { Resolver(K, sobreLaMarcha ? 3 * N_ - 3 : 0); });
    CalcularEsfuerzos();
}

void Analisis::ArmarTramo(Banda& K, std::size_t i, const Rigidez& rigidez) {
    const double dx = juntas_.X[i + 1] - juntas_.X[i];
    const double dy = juntas_.Y[i + 1] - juntas_.Y[i];
    // A span like the one before it is the same bar, without its divisions.
    const bool igual =
        i > 1 && dx == juntas_.X[i] - juntas_.X[i - 1] && dy == juntas_.Y[i] - juntas_.Y[i - 1];
    barras_.push_back(igual ? barras_[i - 1] : FormarBarra(dx, dy, rigidez));
    CargarNudos(i);
    EnsamblaM(K, RigidezGlobal(barras_[i]), 3 * i - 3, 3 * i);
}

void Analisis::CargarNudos(std::size_t i) {
    const Tramo& tramo = losa_.Tramos[i];
    const Barra& b = barras_[i];
    const ExtremosFijos f = ExtremosFijosDe(tramo, b, casos_);
    ParDeCasos* a = &F_[3 * i - 3];
    a[0] += b.CX * f.NA0 - b.CY * f.VA0;
    a[1] += b.CY * f.NA0 + b.CX * f.VA0;
    a[2] -= f.M0A;
    a[3] += b.CX * f.NB0 - b.CY * f.VB0;
    a[4] += b.CY * f.NB0 + b.CX * f.VB0;
    a[5] += f.M0B;
    if (tramo.p1 == 0) return;
    if (tramo.L1 == 0) a[1][0] += casos_[0] * tramo.p1;
    if (tramo.L1 == tramo.LT) a[4][0] += casos_[0] * tramo.p1;
}

/// Supports of joint j, once the spans that meet there are assembled and before anything is eliminated from
/// its rows.
void Analisis::PonerApoyos(Banda& K, std::size_t j) {
    const Restriccion& restriccion = restricciones_[j];
    const auto poner = [&](std::size_t r, bool restringida) {
        double& diagonal = K(r, 1);
        if (restringida) {
            diagonal = diagonal * Penalidad + Penalidad;
            F_[r - 1] = {0, 0};
        }
        diagonal_[r - 1] = diagonal;
    };
    poner(3 * j - 2, restriccion.X);
    poner(3 * j - 1, restriccion.Y);
    poner(3 * j, restriccion.Giro);
}

void Analisis::Resolver(Banda& K, std::size_t eliminadas) {
    CalculoDPZ(K, F_, NDOF(), eliminadas);
    resultados_.DireccionesLibres.clear();
    for (const std::size_t r : FilasSinPivote(K, diagonal_))
        resultados_.DireccionesLibres.push_back({(r + 2) / 3, static_cast<Direccion>((r - 1) % 3)});
    for (ParDeCasos& d : F_) {
        for (double& valor : d) valor = std::fabs(valor) < DesplazamientoNulo ? 0 : valor;
    }
}

void Analisis::CalcularEsfuerzos() {
    for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
        if (casos_[caso - 1] != 0) resultados_.ResultadoTramo[caso].resize(N_ + 1);
    }
    for (std::size_t i = 1; i <= N_; ++i) {
        const EsfuerzosPorCaso calculados = pasos_([this, i] {
            const ExtremosFijos fijos = ExtremosFijosDe(losa_.Tramos[i], barras_[i], casos_);
            return EsfuerzosDe(barras_[i], fijos, &F_[3 * i - 3]);
        });
        for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
            if (casos_[caso - 1] != 0) resultados_.ResultadoTramo[caso][i] = calculados[caso - 1];
        }
    }
}
void Analisis::LlenarJuntas() {
    for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
        std::vector<EstadoJunta>& juntas = resultados_.ResultadoJunta[caso];
        juntas.resize(N_ + 2);
        for (std::size_t j = 1; j <= N_ + 1; ++j) pasos_([&, j] { LlenarJunta(caso, j, juntas[j]); });
    }
}

void Analisis::LlenarJunta(std::size_t caso, std::size_t j, EstadoJunta& junta) const {
    const auto uno = [](bool restringida) { return restringida ? 1.0 : 0.0; };
    const Restriccion& restriccion = restricciones_[j];
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

/// The largest moment inside each span, and the three scalars.
void Analisis::CalcularMaximos() {
    ResultadosLosa& r = resultados_;
    r.DisenoTramo.assign(N_ + 1, {});
    r.MaxMomentoApoyo = r.MaxCorte = r.MaxMomentoTramo = 0;
    for (std::size_t i = 1; i <= N_; ++i) {
        const Tramo& tramo = losa_.Tramos[i];
        const ExtremosMayorados e = pasos_([&, i] { return MayorarExtremos(r, generales_, i); });
        const MomentoDeTramo interior = pasos_(
            [&, i] { return MomentoMaximo(tramo, MayorarTramo(tramo, generales_, barras_[i].CX), e); });
        r.DisenoTramo[i].MT = interior.MT;
        r.DisenoTramo[i].x = interior.x;
        r.MaxCorte = std::max({r.MaxCorte, std::fabs(e.Vi), std::fabs(e.Vj)});
        r.MaxMomentoApoyo = std::max({r.MaxMomentoApoyo, std::fabs(e.Mi), std::fabs(e.Mj)});
        r.MaxMomentoTramo = std::max(r.MaxMomentoTramo, std::fabs(interior.MT));
    }
}

/// What an analysis that is cut short did not reach holds nothing.
void Vaciar(ResultadosLosa& resultados) {
    for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
        resultados.ResultadoTramo[caso].clear();
        resultados.ResultadoJunta[caso].clear();
    }
    resultados.DisenoTramo.clear();
    resultados.DireccionesLibres.clear();
    resultados.MaxMomentoApoyo = resultados.MaxCorte = resultados.MaxMomentoTramo = 0;
}

}  // namespace

bool SePuedeAnalizar(const Losa& losa) {
    const auto sinLongitud = [](const Tramo& tramo) { return tramo.LT == 0; };
    return losa.Tramos.size() > 1 && std::none_of(losa.Tramos.begin() + 1, losa.Tramos.end(), sinLongitud);
}

void Analizar(const Losa& losa, const DatosGenerales& generales, const Pasos& pasos,
              ResultadosLosa& resultados) {
    resultados.DisenoEje.clear();
    if (pasos.Vigilados()) Vaciar(resultados);
    Analisis(losa, generales, pasos, resultados).Ejecutar();
}

}  // namespace trabex::losas
