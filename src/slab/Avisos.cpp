#include "slab/Avisos.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "slab/Analizar.h"

namespace trabex::losas {

namespace {

/// The steel of a section: at the face that its moment pulls, and at the other.
struct CarasDeSeccion {
    double Traccion;
    double Compresion;
    bool PorArriba;  ///< the pulled face is the top one
};

/// Where a point load stands that the analysis does not see.
enum class Puntual { Analizada, SobreApoyo, FueraDelTramo };

Puntual SituacionDe(const Losa& losa, std::size_t i) {
    const Tramo& tramo = losa.Tramos[i];
    const auto sobreApoyo = [&losa](std::size_t eje) { return RestriccionDe(losa.Ejes[eje].Tipo).Y; };
    if (tramo.p1 == 0) return Puntual::Analizada;
    if (tramo.L1 == 0) return sobreApoyo(i) ? Puntual::SobreApoyo : Puntual::Analizada;
    if (tramo.L1 == tramo.LT) return sobreApoyo(i + 1) ? Puntual::SobreApoyo : Puntual::Analizada;
    return 0 < tramo.L1 && tramo.L1 < tramo.LT ? Puntual::Analizada : Puntual::FueraDelTramo;
}

/// Writes the notices of one slab.
class Lista {
  public:
    Lista(const LosaCalculada& losa, const Separadores& numeros)
        : losa_(losa), numeros_(numeros), N_(losa.Datos.Tramos.size() - 1) {}

    Avisos Escribir() {
        DireccionesLibres();
        Error();
        if (!losa_.Resultados.Error) {
            Reacciones(CasoPermanente, "permanente");
            Reacciones(CasoVariable, "variable");
        }
        const double minimo = AceroMinimo(losa_.Datos, losa_.Generales);
        for (std::size_t j = 1; j <= N_ + 1; ++j) {
            AceroDe(EnEje(j), Eje(j), minimo);
            if (j > N_) break;
            CargaPuntual(j);
            AceroDe(EnTramo(j), TramoDe(j), minimo);
        }
        return std::move(avisos_);
    }

  private:
    void Anotar(Gravedad peso, std::string texto, std::string lugar = {}) {
        avisos_.push_back({peso, std::move(texto), std::move(lugar)});
    }
    std::string Con(double valor, const char* unidad) const {
        return Formato(valor, "#,##0.00", numeros_) + unidad;
    }
    std::string Eje(std::size_t j) const { return "Eje " + losa_.Datos.Ejes[j].Eje; }
    std::string TramoDe(std::size_t i) const {
        return "Tramo " + losa_.Datos.Ejes[i].Eje + "-" + losa_.Datos.Ejes[i + 1].Eje;
    }

    void DireccionesLibres();
    void Error();
    void Reacciones(CasoCarga caso, const std::string& nombre);
    void CargaPuntual(std::size_t i);
    CarasDeSeccion EnEje(std::size_t j) const;
    CarasDeSeccion EnTramo(std::size_t i) const;
    void AceroDe(const CarasDeSeccion& As, const std::string& lugar, double minimo);

    const LosaCalculada& losa_;
    const Separadores& numeros_;
    const std::size_t N_;
    Avisos avisos_;
};

/// A level slab that only X is free for is loaded across it alone: its numbers stand.
void Lista::DireccionesLibres() {
    const std::vector<DireccionLibre>& libres = losa_.Resultados.DireccionesLibres;
    const std::vector<JuntaD>& corridas = losa_.Datos.JuntasD;
    const bool aNivel =
        std::all_of(corridas.begin(), corridas.end(), [](const JuntaD& d) { return d.y == 0; });
    const bool soloX = libres.size() == 1 && libres[0].En == Direccion::X;
    for (const DireccionLibre& libre : libres) {
        if (soloX && aNivel) {
            Anotar(Gravedad::Advertencia,
                   "Nada sujeta la losa en dirección X; sin cargas en esa dirección, los números valen.",
                   Eje(libre.Junta));
            continue;
        }
        constexpr std::array<const char*, 3> textos{"La losa no se sostiene: nada la sujeta en dirección X.",
                                                    "La losa no se sostiene: nada la sujeta en dirección Y.",
                                                    "La losa no se sostiene: nada impide su giro."};
        Anotar(Gravedad::Falla, textos[static_cast<std::size_t>(libre.En)], Eje(libre.Junta));
    }
}

void Lista::Error() {
    if (!losa_.Resultados.Error) return;
    const ErrorEjecucion& error = *losa_.Resultados.Error;
    Anotar(Gravedad::Falla, "El cálculo terminó con el error " + std::to_string(error.Codigo()) + " (" +
                                error.Texto() + "): los resultados están incompletos.");
}

void Lista::Reacciones(CasoCarga caso, const std::string& nombre) {
    const Equilibrio e = EquilibrioDe(losa_, caso);
    const double tolerancia = std::max(1.0, std::fabs(e.Cargas) / 1000);
    if (std::fabs(e.RV - e.Cargas) > tolerancia) {
        Anotar(Gravedad::Advertencia, "Las reacciones verticales de la carga " + nombre + " suman " +
                                          Con(e.RV, " kgf") + " y las cargas " + Con(e.Cargas, " kgf."));
    }
    if (std::fabs(e.RH) > tolerancia) {
        Anotar(Gravedad::Advertencia, "Las reacciones horizontales de la carga " + nombre + " suman " +
                                          Con(e.RH, " kgf") + " y no hay cargas en esa dirección.");
    }
}

void Lista::CargaPuntual(std::size_t i) {
    const Tramo& tramo = losa_.Datos.Tramos[i];
    const std::string carga = "La carga puntual de " + Formato(tramo.p1, "#,##0", numeros_) + " kgf ";
    switch (SituacionDe(losa_.Datos, i)) {
        case Puntual::Analizada:
            return;
        case Puntual::SobreApoyo:
            Anotar(Gravedad::Advertencia,
                   carga + "está sobre un apoyo: no entra en el análisis ni en las reacciones.", TramoDe(i));
            return;
        case Puntual::FueraDelTramo:
            Anotar(Gravedad::Advertencia,
                   carga + "está a " + Con(tramo.L1, " m") + ", fuera del tramo de " + Con(tramo.LT, " m") +
                       ": no entra en el análisis.",
                   TramoDe(i));
            return;
    }
}

CarasDeSeccion Lista::EnEje(std::size_t j) const {
    const DisenoDeEje As = DisenoEnEje(losa_, j);
    const double M = j <= N_ ? ExtremosDe(losa_, j).MA : ExtremosDe(losa_, N_).MB;
    return M > 0 ? CarasDeSeccion{As.AS2, As.AS1, false} : CarasDeSeccion{As.AS1, As.AS2, true};
}

CarasDeSeccion Lista::EnTramo(std::size_t i) const {
    const DisenoDeTramo As = DisenoEnTramo(losa_, i);
    return As.MT > 0 ? CarasDeSeccion{As.AS2, As.AS1, false} : CarasDeSeccion{As.AS1, As.AS2, true};
}

void Lista::AceroDe(const CarasDeSeccion& As, const std::string& lugar, double minimo) {
    constexpr double nada = 0.005;  // cm²: what two decimals don't show
    const std::string tirada = As.PorArriba ? "superior" : "inferior";
    if (const double menor = std::min(As.Traccion, As.Compresion); menor < 0) {
        Anotar(Gravedad::Falla,
               "El acero sale negativo (" + Con(menor, " cm²") +
                   "): la sección es demasiado delgada para su recubrimiento.",
               lugar);
        return;
    }
    if (As.Traccion > nada && As.Traccion < minimo) {
        Anotar(Gravedad::Nota,
               "El acero " + tirada + " de " + Con(As.Traccion, " cm²") + " es menor que el mínimo de " +
                   Con(minimo, " cm²."),
               lugar);
    }
    if (As.Compresion > nada) {
        Anotar(Gravedad::Nota,
               "Necesita " + Con(As.Compresion, " cm²") + " de acero a compresión en la cara " +
                   (As.PorArriba ? "inferior." : "superior."),
               lugar);
    }
}

}  // namespace

Equilibrio EquilibrioDe(const LosaCalculada& losa, CasoCarga caso) {
    const std::vector<EstadoJunta>& juntas = losa.Resultados.ResultadoJunta[caso];
    const std::vector<Tramo>& tramos = losa.Datos.Tramos;
    Equilibrio suma;
    if (juntas.size() != tramos.size() + 1) return suma;
    for (std::size_t i = 1; i < tramos.size(); ++i) {
        const double L = std::hypot(juntas[i + 1].x - juntas[i].x, juntas[i + 1].y - juntas[i].y);
        suma.Cargas += L * (caso == CasoPermanente ? tramos[i].Wp : tramos[i].WV);
        if (caso == CasoPermanente && SituacionDe(losa.Datos, i) == Puntual::Analizada)
            suma.Cargas += tramos[i].p1;
    }
    for (const EstadoJunta& junta : juntas) {
        suma.RV += junta.RV;
        suma.RH += junta.RH;
    }
    return suma;
}

Avisos AvisosDe(const LosaCalculada& losa, const Separadores& numeros) {
    if (!SePuedeAnalizar(losa.Datos) || losa.Datos.Ejes.size() <= losa.Datos.Tramos.size()) return {};
    return Lista(losa, numeros).Escribir();
}

}  // namespace trabex::losas
