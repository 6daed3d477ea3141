#include "stairs/FilasEscaleraT.h"

#include <array>

namespace trabex::escaleras {

namespace {

/// Reads a cell: a column of the flight or of the landing.
using Lectura = Cifra (*)(const EscaleraCalculada&, std::size_t columna, const Separadores&);

struct Linea {
    LugarDeCifra Lugar;
    Lectura Tramo;
    Lectura Descanso;  ///< null: the landing has no number there
};
struct Fila {
    double Desfase;
    std::string_view Rotulo;
    Linea Primera;
    std::optional<Linea> Segunda{};
};

constexpr std::string_view Entero = "0";
constexpr std::string_view Centesimas = "0.00";

template <auto... Campos>
double Suma(const auto& punto) {
    return (... + (punto.*Campos));
}

/// The sum of fields of the flight's station.
template <const std::string_view& formato, auto... Campos>
Cifra Tramo(const EscaleraCalculada& e, std::size_t columna, const Separadores& s) {
    return {Formato(Suma<Campos...>(TramoEnColumna(e, columna)), formato, s)};
}
template <const std::string_view& formato, auto Campo>
Cifra Descanso(const EscaleraCalculada& e, std::size_t columna, const Separadores& s) {
    return {Formato(DescansoEnColumna(e, columna).*Campo, formato, s)};
}
template <const std::string_view& formato>
Cifra Cero(const EscaleraCalculada&, std::size_t, const Separadores& s) {
    return {Formato(0, formato, s)};
}

Cifra CorteYDelDescanso(const EscaleraCalculada& e, std::size_t columna, const Separadores& s) {
    const EscaleraDescansoPunto punto = DescansoEnColumna(e, columna);
    return {Formato(punto.CorteY, Entero, s), !punto.FallaCorte.empty()};
}

/// Any bar that is not 3/8", even none at all, reads as 1/2".
Cifra Estribo(const EscaleraCalculada& e, std::size_t columna, const Separadores& s) {
    const EscaleraTramoPunto punto = TramoEnColumna(e, columna);
    return {(punto.AreaEstribo == 0.71 ? "E 3/8@" : "E 1/2@") + Formato(punto.SeparacionEstribo, Entero, s)};
}

Cifra Distancia(const EscaleraCalculada& e, std::size_t columna, const Separadores& s) {
    return {Formato(Progresiva(e.Datos, columna), Centesimas, s)};
}
Cifra Angulo(const EscaleraCalculada&, std::size_t columna, const Separadores& s) {
    return {Formato(AnguloDeColumna(columna), Entero, s) + "º"};
}

using T = EscaleraTramoPunto;
using D = EscaleraDescansoPunto;
using enum LugarDeCifra;

constexpr std::array<Fila, 7> Solicitaciones{{
    {0.374,
     "ENVOL. MOMENTOS (kgf-m) MX:",
     {Encima, Tramo<Entero, &T::EnvolventeNegativa>, Descanso<Entero, &D::MomentoTotal>},
     Linea{Debajo, Tramo<Entero, &T::EnvolventePositiva>, Cero<Entero>}},
    {1.28,
     "ENVOLVENTE Cortes (kgf) VX:",
     {Encima, Tramo<Entero, &T::CorteEnvolvente>, Descanso<Entero, &D::CorteTotal>}},
    {1.387,
     "MOMENTOS EJE Y (kgf-m) MY:",
     {Debajo, Tramo<Entero, &T::MomentoY>, Descanso<Entero, &D::MomentoY>}},
    {1.868, "MOMENTO TORSOR (kgf-m) MT:", {Debajo, Tramo<Entero, &T::Torsor>, Descanso<Entero, &D::Torsor>}},
    {2.348, "FUERZA AXIAL (kgf) N:", {Debajo, Tramo<Entero, &T::Axial>, Descanso<Entero, &D::Axial>}},
    {2.828, "CORTES EJE Y (kgf) VY:", {Debajo, Cero<Entero>, CorteYDelDescanso}},
    {3.68, "PROGRESIVA (m):", {Centrada, Distancia, Angulo}},
}};

constexpr std::array<Fila, 6> Diseno{{
    {0.373,
     "(1)+(2) REFUERZO DE DISEÑO (cm2) ASX:",
     {Encima, Tramo<Centesimas, &T::AsSuperior, &T::AsTorsion>, Descanso<Centesimas, &D::AsSuperior>},
     Linea{Debajo, Tramo<Centesimas, &T::AsInferior, &T::AsTorsion>, Cero<Centesimas>}},
    {1.067,
     "(2) REFUERZO POR TORSIÓN (cm2) ASX:",
     {Encima, Tramo<Centesimas, &T::AsTorsion>, nullptr},
     Linea{Debajo, Tramo<Centesimas, &T::AsTorsion>, nullptr}},
    {1.708,
     "(1) REFUERZO POR FLEXIÓN (cm2) ASX:",
     {Encima, Tramo<Centesimas, &T::AsSuperior>, Descanso<Centesimas, &D::AsSuperior>},
     Linea{Debajo, Tramo<Centesimas, &T::AsInferior>, Cero<Centesimas>}},
    {2.348,
     "REFUERZO EJE Y (cm2) ASY:",
     {Centrada, Tramo<Centesimas, &T::AsY>, Descanso<Centesimas, &D::AsY>}},
    {2.945, "ESTRIBOS EN EL TRAMO:", {Centrada, Estribo, nullptr}},
    {3.682, "PROGRESIVA (m):", {Centrada, Distancia, Angulo}},
}};

std::vector<Cifra> Leer(Lectura lectura, std::size_t columnas, const EscaleraCalculada& escalera,
                        const Separadores& separadores) {
    std::vector<Cifra> cifras;
    if (!lectura) return cifras;
    for (std::size_t columna = 0; columna < columnas; ++columna)
        cifras.push_back(lectura(escalera, columna, separadores));
    return cifras;
}

std::vector<FilaDeHoja> LeerFilas(std::span<const Fila> tabla, const EscaleraCalculada& escalera,
                                  const Separadores& separadores) {
    const auto leer = [&](const Linea& linea) {
        return LineaDeCifras{linea.Lugar, Leer(linea.Tramo, EstacionesDeTramo, escalera, separadores),
                             Leer(linea.Descanso, EstacionesDeDescanso, escalera, separadores)};
    };
    std::vector<FilaDeHoja> filas;
    for (const Fila& fila : tabla) {
        filas.push_back({fila.Desfase, fila.Rotulo, {leer(fila.Primera)}});
        if (fila.Segunda) filas.back().Lineas.push_back(leer(*fila.Segunda));
    }
    return filas;
}

}  // namespace

std::vector<FilaDeHoja> FilasDeSolicitaciones(const EscaleraCalculada& escalera,
                                              const Separadores& separadores) {
    return LeerFilas(Solicitaciones, escalera, separadores);
}

std::vector<FilaDeHoja> FilasDeDiseno(const EscaleraCalculada& escalera, const Separadores& separadores) {
    return LeerFilas(Diseno, escalera, separadores);
}

ReaccionesDeHoja ReaccionesDe(const EscaleraCalculada& escalera, const Separadores& separadores) {
    return {Formato(escalera.Resultados.ReaccionVertical, "#,##0", separadores),
            Formato(escalera.Resultados.ReaccionHorizontal, "#,##0", separadores)};
}

RotulosDeMinimo RotulosDeAceroMinimo(const EscaleraCalculada& escalera, double unidadesPorMetro,
                                     const Separadores& separadores) {
    return {"EN EL TRAMO ASMín = " +
                Formato(AceroMinimoTramo(escalera, unidadesPorMetro), Centesimas, separadores) +
                " cm2 (14/Fy)",
            "EN EL DESCANSO ASMín = " +
                Formato(AceroMinimoDescanso(escalera, unidadesPorMetro), Centesimas, separadores) +
                " cm2 (0.002)"};
}

}  // namespace trabex::escaleras
