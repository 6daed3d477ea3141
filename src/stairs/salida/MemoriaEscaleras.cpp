#include "stairs/salida/MemoriaEscaleras.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "lote/BloquesDeMemoria.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"

namespace trabex::escaleras::salida {

namespace {

using documento::Tabla;
using documento::Titulo;
using lote::ColumnaDeMemoria;

constexpr std::array<const char*, 4> Metodo{
    "La escalera autoportante de dos tramos iguales y descanso sin apoyo se resuelve en forma cerrada, "
    "empotrada en el arranque "
    "y en la llegada, con el descanso como una pieza semicircular; las incógnitas en la clave salen del "
    "trabajo mínimo.",
    "El acero se calcula con FS sobre todas las fuerzas de servicio y resistencia última, en cada estación, "
    "para la envolvente "
    "del descanso con carga total y con carga permanente. El acero mínimo se informa y no se aplica.",
    "Los estribos toman la torsión que el concreto no toma (ACI 318-83, 11.6); la separación no pasa de (x1 "
    "+ y1)/4 ni de 30 cm.",
    "El corte en el plano del descanso se compara con 0.53·√F'c; una escalera que lo pasa falla y debe "
    "cambiarse."};

Tabla TablaDelTramo(const EscaleraCalculada& escalera) {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("X (m)", "0.00"),
                      ColumnaDeMemoria("M (kgf·m)", "#,##0", "Carga total"),
                      ColumnaDeMemoria("V (kgf)", "#,##0", "Carga total"),
                      ColumnaDeMemoria("M perm. (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("Axial (kgf)", "#,##0"),
                      ColumnaDeMemoria("My (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("T (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("sup.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("inf.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("tors.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("lat.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("A (cm²)", "0.00", "Estribos"),
                      ColumnaDeMemoria("s (cm)", "0.0", "Estribos")};
    for (std::size_t i = 0; i < EstacionesDeTramo; ++i) {
        const EscaleraTramoPunto p = TramoEnColumna(escalera, i);
        tabla.Filas.push_back({{Progresiva(escalera.Datos, i), p.MomentoTotal, p.CorteTotal,
                                p.MomentoPermanente, p.Axial, p.MomentoY, p.Torsor, p.AsSuperior,
                                p.AsInferior, p.AsTorsion, p.AsY, p.AreaEstribo, p.SeparacionEstribo}});
    }
    return tabla;
}

Tabla TablaDelDescanso(const EscaleraCalculada& escalera) {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("θ (º)", "0"),
                      ColumnaDeMemoria("Mx (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("Vx (kgf)", "#,##0"),
                      ColumnaDeMemoria("Vy (kgf)", "#,##0"),
                      ColumnaDeMemoria("Axial (kgf)", "#,##0"),
                      ColumnaDeMemoria("My (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("T (kgf·m)", "#,##0"),
                      ColumnaDeMemoria("sup.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("inf.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("lat.", "0.00", "As (cm²)"),
                      ColumnaDeMemoria("actuante", "0.00", "Corte (kgf/cm²)"),
                      ColumnaDeMemoria("admisible", "0.00", "Corte (kgf/cm²)"),
                      ColumnaDeMemoria("")};
    tabla.Columnas.back().Ancho = 46;  // a failure is told on one line
    for (std::size_t i = 0; i < EstacionesDeDescanso; ++i) {
        const EscaleraDescansoPunto p = DescansoEnColumna(escalera, i);
        tabla.Filas.push_back(
            {{AnguloDeColumna(i), p.MomentoTotal, p.CorteTotal, p.CorteY, p.Axial, p.MomentoY, p.Torsor,
              p.AsSuperior, p.AsInferior, p.AsY, p.TensionCorte, p.TensionAdmisible, p.FallaCorte}});
    }
    return tabla;
}

/// The station of the flight, from the landing on, that a comparison puts before all others.
template <class Menor>
std::size_t Rige(const ResultadosEscaleraT& r, Menor menor) {
    return static_cast<std::size_t>(std::max_element(r.TramoT.begin(), r.TramoT.end(), menor) -
                                    r.TramoT.begin());
}

void PasosQueRigen(const EscaleraCalculada& escalera, const Separadores& numeros,
                   std::vector<documento::Bloque>& bloques) {
    const ResultadosEscaleraT& r = escalera.Resultados;
    const std::size_t flexion = Rige(r, [](const auto& a, const auto& b) {
        return std::max(a.AsSuperior, a.AsInferior) < std::max(b.AsSuperior, b.AsInferior);
    });
    const std::size_t torsion =
        Rige(r, [](const auto& a, const auto& b) { return a.SeparacionEstribo > b.SeparacionEstribo; });
    const EscaleraTramoPunto& punto = r.TramoT[flexion];
    const double M = std::fabs(punto.EnvolventeNegativa) > punto.EnvolventePositiva
                         ? punto.EnvolventeNegativa
                         : punto.EnvolventePositiva;
    const auto lugar = [&](std::size_t estacion) {
        return " (X = " +
               Formato(Progresiva(escalera.Datos, EstacionesDeTramo - 1 - estacion), "0.00", numeros) + " m)";
    };
    Relato deFlexion, deTorsion, deCorte;
    CalculeRefuerzoEscalera(M, escalera.Datos.B, escalera.Datos.HT, escalera.Generales, Pasos(deFlexion));
    double area = r.TramoT[torsion].AreaEstribo;
    const double X = XDeEstacion(escalera.Datos, EstacionesDeTramo - 1 - torsion);
    CalculeEstribos(r.TramoT[torsion].CorteEnvolvente, r.TramoT[torsion].Torsor, r.Estatica, X,
                    escalera.Datos, escalera.Generales, area, Pasos(deTorsion));
    EscaleraDescansoPunto descanso =
        *std::max_element(r.DescansoT.begin(), r.DescansoT.end(),
                          [](const auto& a, const auto& b) { return a.TensionCorte < b.TensionCorte; });
    Relato todoElDescanso;
    DisenarDescanso(escalera.Datos, escalera.Generales, Pasos(todoElDescanso), descanso);
    for (const PasoDeDiseno& paso : todoElDescanso)
        if (paso.Simbolo.front() == 'v') deCorte.push_back(paso);

    bloques.emplace_back(Titulo{3, "Estación del tramo que rige por flexión" + lugar(flexion)});
    bloques.emplace_back(lote::TablaDePasos(deFlexion, numeros));
    bloques.emplace_back(Titulo{3, "Estación del tramo que rige por torsión" + lugar(torsion)});
    bloques.emplace_back(lote::TablaDePasos(deTorsion, numeros));
    bloques.emplace_back(Titulo{3, "Corte en el plano del descanso"});
    bloques.emplace_back(lote::TablaDePasos(deCorte, numeros));
}

bool TieneEstaciones(const EscaleraCalculada& escalera) {
    return escalera.Resultados.TramoT.size() == EstacionesDeTramo && !escalera.Resultados.DescansoT.empty();
}

}  // namespace

std::span<const char* const> MetodoDeEscaleras() {
    return Metodo;
}

lote::ParteDeMemoria MemoriaDeEscalera(const EscaleraCalculada& escalera, const Avisos& avisos,
                                       const Separadores& numeros) {
    const DatosEscaleraT& datos = escalera.Datos;
    lote::ParteDeMemoria parte;
    documento::Ficha ficha;
    ficha.Columnas = 2;
    ficha.Datos = {{"Longitud del tramo L", datos.L, "0.00", "m"},
                   {"Ancho B", datos.B, "0.00", "m"},
                   {"Altura H", datos.H, "0.00", "m"},
                   {"Espesor del tramo", datos.HT, "0.00", "m"},
                   {"Espesor del descanso", datos.Hd, "0.00", "m"},
                   {"Carga total del tramo", datos.WT, "#,##0", "kgf/m"},
                   {"Carga total del descanso", datos.Wd, "#,##0", "kgf/m"},
                   {"Permanente del descanso", datos.WpD, "#,##0", "kgf/m"}};
    parte.Datos = {Titulo{3, "Datos"}, std::move(ficha), lote::FichaDeMateriales(escalera.Generales, false)};
    auto& bloques = parte.Resultados;
    if (TieneEstaciones(escalera)) {
        bloques.emplace_back(Titulo{3, "Estaciones del tramo, desde el apoyo"});
        bloques.emplace_back(TablaDelTramo(escalera));
        bloques.emplace_back(Titulo{3, "Estaciones del descanso"});
        bloques.emplace_back(TablaDelDescanso(escalera));
        PasosQueRigen(escalera, numeros, bloques);
        bloques.emplace_back(Titulo{3, "Verificaciones"});
        documento::Ficha reacciones;
        reacciones.Columnas = 2;
        reacciones.Datos = {{"Reacción vertical", escalera.Resultados.ReaccionVertical, "#,##0", "kgf"},
                            {"Reacción horizontal", escalera.Resultados.ReaccionHorizontal, "#,##0", "kgf"},
                            {"Acero mínimo del tramo", AceroMinimoTramo(escalera, 100), "0.00", "cm²"},
                            {"Acero mínimo del descanso", AceroMinimoDescanso(escalera, 100), "0.00", "cm²"}};
        bloques.emplace_back(std::move(reacciones));
    }
    bloques.emplace_back(lote::BloqueDeAvisos(avisos));
    return parte;
}

std::vector<std::pair<std::string, documento::Tabla>> TablasDeEscalera(const EscaleraCalculada& escalera) {
    if (!TieneEstaciones(escalera)) return {};
    return {{"Escaleras, tramos", TablaDelTramo(escalera)},
            {"Escaleras, descansos", TablaDelDescanso(escalera)}};
}

}  // namespace trabex::escaleras::salida
