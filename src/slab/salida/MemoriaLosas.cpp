#include "slab/salida/MemoriaLosas.h"

#include <array>
#include <cmath>
#include <utility>

#include "base/Formatos.h"
#include "lote/BloquesDeMemoria.h"
#include "slab/Avisos.h"
#include "slab/DisenoSeccion.h"

namespace trabex::losas::salida {

namespace {

using documento::FilaDeTabla;
using documento::Tabla;
using documento::Titulo;
using lote::ColumnaDeMemoria;

constexpr std::array<const char*, 6> Metodo{
    "Cada losa se analiza como un pórtico plano de barras prismáticas de sección rectangular, por el método "
    "de las "
    "rigideces, con deformación axial y de flexión, para la carga permanente y la variable por separado. De "
    "una losa nervada "
    "se analiza un nervio; de una maciza, una franja de su ancho.",
    "No se alternan cargas entre tramos: la envolvente es la suma mayorada de los dos casos, FCP·CP + "
    "FCV·CV, en toda la losa.",
    "El acero es el teórico por resistencia última con el bloque rectangular de Whitney, con acero a "
    "compresión cuando el "
    "momento pasa del límite de cuantía 0.2. El acero mínimo se informa y no se aplica.",
    "En las losas nervadas el macizado junto a un apoyo es el mayor de dos largos: hasta donde el concreto "
    "solo toma el corte, y "
    "hasta donde el momento baja al límite del nervio. La sección de momento positivo se toma rectangular, "
    "sin la loseta.",
    "Los puntos de inflexión son aquellos donde el momento mayorado del tramo se anula, con sus cargas "
    "uniformes y puntuales.",
    "Momentos en kgf·m, negativos los que traccionan la cara superior; cortes y reacciones en kgf; "
    "reacciones por metro de viga."};

constexpr std::array<const char*, 6> Apoyos{"Otro",         "Fijo",      "Rodillo en X",
                                            "Rodillo en Y", "Empotrado", "Sin apoyo"};

std::string ApoyoDe(std::int16_t tipo) {
    return Apoyos[tipo >= ApoyoFijo && tipo <= SinApoyo ? static_cast<std::size_t>(tipo) : 0];
}

std::string TramoDe(const Losa& losa, std::size_t i) {
    return losa.Ejes[i].Eje + "-" + losa.Ejes[i + 1].Eje;
}

Tabla TablaDeTramos() {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("Tramo"),
                      ColumnaDeMemoria("Longitud (m)", "0.00"),
                      ColumnaDeMemoria("Permanente", "#,##0", "Carga uniforme (kgf/m)"),
                      ColumnaDeMemoria("Variable", "#,##0", "Carga uniforme (kgf/m)"),
                      ColumnaDeMemoria("Carga (kgf)", "#,##0", "Carga puntual permanente"),
                      ColumnaDeMemoria("a (m)", "0.00", "Carga puntual permanente")};
    return tabla;
}

FilaDeTabla FilaDeTramo(const Losa& losa, std::size_t i) {
    const Tramo& tramo = losa.Tramos[i];
    return {{TramoDe(losa, i), tramo.LT, tramo.Wp, tramo.WV, tramo.p1, tramo.L1}};
}

Tabla TablaDeApoyos(const Losa& losa) {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("Eje"), ColumnaDeMemoria("Apoyo"),
                      ColumnaDeMemoria("X (m)", "0.000", "Desplazamiento de la junta"),
                      ColumnaDeMemoria("Y (m)", "0.000", "Desplazamiento de la junta")};
    for (std::size_t i = 1; i < losa.Ejes.size(); ++i) {
        double x = 0, y = 0;
        for (const JuntaD& junta : losa.JuntasD) {
            if (junta.Junta != static_cast<std::int16_t>(i)) continue;
            x += junta.x;
            y += junta.y;
        }
        tabla.Filas.push_back({{losa.Ejes[i].Eje, ApoyoDe(losa.Ejes[i].Tipo), x, y}});
    }
    return tabla;
}

documento::Ficha Seccion(const Losa& losa) {
    documento::Ficha ficha;
    ficha.Columnas = 3;
    if (losa.OpcionMaciza)
        ficha.Datos = {{"Tipo", std::string("Maciza"), "", ""},
                       {"Ancho de la franja", losa.Bm, "0.00", "m"},
                       {"Espesor", losa.Hm, "0.00", "m"}};
    else
        ficha.Datos = {{"Tipo", std::string("Nervada"), "", ""},
                       {"Ancho del nervio", losa.Bo, "0.00", "m"},
                       {"Altura", losa.Ho, "0.00", "m"},
                       {"Separación de nervios", losa.So, "0.00", "m"},
                       {"Espesor de la loseta", losa.Loseta, "0.00", "m"}};
    return ficha;
}

Tabla FuerzasDeTramos() {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("Tramo"),
                      ColumnaDeMemoria("M (kgf·m)", "#,##0.0", "Extremo izquierdo"),
                      ColumnaDeMemoria("V (kgf)", "#,##0.0", "Extremo izquierdo"),
                      ColumnaDeMemoria("M (kgf·m)", "#,##0.0", "Mayor en el tramo"),
                      ColumnaDeMemoria("x (m)", "0.00", "Mayor en el tramo"),
                      ColumnaDeMemoria("M (kgf·m)", "#,##0.0", "Extremo derecho"),
                      ColumnaDeMemoria("V (kgf)", "#,##0.0", "Extremo derecho"),
                      ColumnaDeMemoria("sup. (cm²)", "0.00", "As en el tramo"),
                      ColumnaDeMemoria("inf. (cm²)", "0.00", "As en el tramo")};
    return tabla;
}

FilaDeTabla FuerzasDe(const LosaCalculada& losa, std::size_t i) {
    const ExtremosDeTramo e = ExtremosDe(losa, i);
    const DisenoDeTramo diseno = DisenoEnTramo(losa, i);
    return {{TramoDe(losa.Datos, i), e.MA, e.VA, e.MT, e.x, e.MB, e.VB, diseno.AS1, diseno.AS2}};
}

Tabla DisenoDeEjes(bool maciza) {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("Eje"),
                      ColumnaDeMemoria("M (kgf·m)", "#,##0.0"),
                      ColumnaDeMemoria("sup. (cm²)", "0.00", "As en el eje"),
                      ColumnaDeMemoria("inf. (cm²)", "0.00", "As en el eje"),
                      ColumnaDeMemoria("izq. (m)", "0.00", "Punto de inflexión"),
                      ColumnaDeMemoria("der. (m)", "0.00", "Punto de inflexión")};
    if (!maciza) {
        tabla.Columnas.push_back(ColumnaDeMemoria("izq. (m)", "0.00", "Macizado"));
        tabla.Columnas.push_back(ColumnaDeMemoria("der. (m)", "0.00", "Macizado"));
    }
    return tabla;
}

FilaDeTabla DisenoDe(const LosaCalculada& losa, std::size_t i, bool maciza) {
    const DisenoDeEje diseno = DisenoEnEje(losa, i);
    FilaDeTabla fila{
        {losa.Datos.Ejes[i].Eje, MomentoSuperior(losa, i), diseno.AS1, diseno.AS2, diseno.PtoI, diseno.PtoD}};
    if (!maciza) {
        fila.Celdas.emplace_back(MacizadoVisible(diseno.MczI));
        fila.Celdas.emplace_back(MacizadoVisible(diseno.MczD));
    }
    return fila;
}

Tabla Reacciones() {
    Tabla tabla;
    tabla.Columnas = {ColumnaDeMemoria("Eje"),
                      ColumnaDeMemoria("Permanente", "#,##0.0", "Vertical (kgf/m)"),
                      ColumnaDeMemoria("Variable", "#,##0.0", "Vertical (kgf/m)"),
                      ColumnaDeMemoria("Total", "#,##0.0", "Vertical (kgf/m)"),
                      ColumnaDeMemoria("Permanente", "#,##0.0", "Horizontal (kgf/m)"),
                      ColumnaDeMemoria("Variable", "#,##0.0", "Horizontal (kgf/m)"),
                      ColumnaDeMemoria("Total", "#,##0.0", "Horizontal (kgf/m)")};
    return tabla;
}

FilaDeTabla ReaccionDe(const LosaCalculada& losa, std::size_t i) {
    const ReaccionesPorMetro r = ReaccionesEnEje(losa, i);
    return {{losa.Datos.Ejes[i].Eje, r.Permanente.V, r.Variable.V, r.Total.V, r.Permanente.H, r.Variable.H,
             r.Total.H}};
}

/// The moment for which an axis is designed: of the span to its right, at the last axis of the one to its
/// left.
double MomentoDeEje(const LosaCalculada& losa, std::size_t eje) {
    const std::size_t N = NumeroTramos(losa.Datos);
    return eje <= N ? ExtremosDe(losa, eje).MA : ExtremosDe(losa, N).MB;
}

void PasosQueRigen(const LosaCalculada& losa, const Separadores& numeros,
                   std::vector<documento::Bloque>& bloques) {
    const std::size_t N = NumeroTramos(losa.Datos);
    const DisenoSeccion seccion(losa.Datos, losa.Generales);
    std::size_t eje = 1, tramo = 1;
    for (std::size_t i = 1; i <= N + 1; ++i)
        if (std::fabs(DisenoEnEje(losa, i).AS1) > std::fabs(DisenoEnEje(losa, eje).AS1)) eje = i;
    for (std::size_t i = 1; i <= N; ++i)
        if (std::fabs(DisenoEnTramo(losa, i).AS2) > std::fabs(DisenoEnTramo(losa, tramo).AS2)) tramo = i;
    Relato deEje, deTramo;
    seccion.CalcularAcero(MomentoDeEje(losa, eje), Pasos(deEje));
    seccion.CalcularAcero(ExtremosDe(losa, tramo).MT, Pasos(deTramo));
    bloques.emplace_back(Titulo{3, "Sección que rige sobre los apoyos: eje " + losa.Datos.Ejes[eje].Eje});
    bloques.emplace_back(lote::TablaDePasos(deEje, numeros));
    bloques.emplace_back(Titulo{3, "Sección que rige en los tramos: tramo " + TramoDe(losa.Datos, tramo)});
    bloques.emplace_back(lote::TablaDePasos(deTramo, numeros));
    bloques.emplace_back(documento::Ficha{1,
                                          {{"Acero mínimo, que se informa y no se aplica",
                                            AceroMinimo(losa.Datos, losa.Generales), "0.00", "cm²"}}});
}

void LineaDeEquilibrio(const LosaCalculada& losa, std::vector<documento::Bloque>& bloques) {
    Tabla tabla;
    tabla.Columnas = {{"Equilibrio", "", "", 45, documento::Alineacion::Izquierda},
                      ColumnaDeMemoria("Cargas (kgf)", "#,##0.00"),
                      ColumnaDeMemoria("Reacciones verticales (kgf)", "#,##0.00"),
                      ColumnaDeMemoria("Reacciones horizontales (kgf)", "#,##0.00")};
    for (const auto& [caso, nombre] :
         {std::pair{CasoPermanente, "Carga permanente"}, {CasoVariable, "Carga variable"}}) {
        const Equilibrio equilibrio = EquilibrioDe(losa, caso);
        tabla.Filas.push_back({{std::string(nombre), equilibrio.Cargas, equilibrio.RV, equilibrio.RH}});
    }
    bloques.emplace_back(std::move(tabla));
}

}  // namespace

std::span<const char* const> MetodoDeLosas() {
    return Metodo;
}

lote::ParteDeMemoria MemoriaDeLosa(const LosaCalculada& losa, const Avisos& avisos,
                                   const Separadores& numeros) {
    const Losa& datos = losa.Datos;
    const std::size_t N = NumeroTramos(datos);
    lote::ParteDeMemoria parte;
    Tabla tramos = TablaDeTramos();
    for (std::size_t i = 1; i <= N; ++i) tramos.Filas.push_back(FilaDeTramo(datos, i));
    parte.Datos = {Titulo{3, "Datos"}, Seccion(datos), lote::FichaDeMateriales(losa.Generales, true),
                   std::move(tramos), TablaDeApoyos(datos)};
    if (N == 0 || losa.Resultados.DisenoTramo.size() != N + 1 || losa.Resultados.DisenoEje.size() != N + 2) {
        parte.Resultados = {lote::BloqueDeAvisos(avisos)};
        return parte;
    }
    Tabla fuerzas = FuerzasDeTramos(), ejes = DisenoDeEjes(datos.OpcionMaciza), reacciones = Reacciones();
    for (std::size_t i = 1; i <= N; ++i) fuerzas.Filas.push_back(FuerzasDe(losa, i));
    for (std::size_t i = 1; i <= N + 1; ++i) {
        ejes.Filas.push_back(DisenoDe(losa, i, datos.OpcionMaciza));
        reacciones.Filas.push_back(ReaccionDe(losa, i));
    }
    auto& bloques = parte.Resultados;
    bloques.emplace_back(Titulo{3, "Solicitaciones mayoradas y acero de los tramos"});
    bloques.emplace_back(std::move(fuerzas));
    bloques.emplace_back(Titulo{3, "Acero, puntos de inflexión y macizados en los ejes"});
    bloques.emplace_back(std::move(ejes));
    bloques.emplace_back(Titulo{3, "Reacciones de servicio por metro de viga"});
    bloques.emplace_back(std::move(reacciones));
    PasosQueRigen(losa, numeros, bloques);
    bloques.emplace_back(Titulo{3, "Verificaciones"});
    LineaDeEquilibrio(losa, bloques);
    bloques.emplace_back(lote::BloqueDeAvisos(avisos));
    return parte;
}

std::vector<std::pair<std::string, documento::Tabla>> TablasDeLosa(const LosaCalculada& losa) {
    Tabla datos = TablaDeTramos(), tramos = FuerzasDeTramos(), ejes = DisenoDeEjes(false),
          reacciones = Reacciones();
    const std::size_t N = NumeroTramos(losa.Datos);
    for (std::size_t i = 1; i <= N; ++i) {
        datos.Filas.push_back(FilaDeTramo(losa.Datos, i));
        tramos.Filas.push_back(FuerzasDe(losa, i));
    }
    for (std::size_t i = 1; i <= N + 1 && N > 0; ++i) {
        ejes.Filas.push_back(DisenoDe(losa, i, losa.Datos.OpcionMaciza));
        reacciones.Filas.push_back(ReaccionDe(losa, i));
    }
    return {{"Losas, cargas", std::move(datos)},
            {"Losas, tramos", std::move(tramos)},
            {"Losas, ejes", std::move(ejes)},
            {"Losas, reacciones", std::move(reacciones)}};
}

}  // namespace trabex::losas::salida
