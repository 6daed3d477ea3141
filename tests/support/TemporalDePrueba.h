#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"
#include "support/Lugares.h"
#include "support/ProyectoDePrueba.h"

namespace trabex::prueba {

using namespace almacen;
using namespace losas;

inline std::string TextoSql(const std::string& texto) {
    std::string salida = "'";
    for (const char c : texto) salida += c == '\'' ? std::string("''") : std::string(1, c);
    return salida + "'";
}

inline std::string FilaSql(const std::string& tabla, const std::string& textos,
                           const std::vector<double>& numeros) {
    std::string fila = "INSERT INTO " + tabla + " VALUES (" + textos;
    for (const double numero : numeros) {
        std::array<char, 40> texto{};
        std::snprintf(texto.data(), texto.size(), ", %.17g", numero);
        fila += texto.data();
    }
    return fila + ");\n";
}

/// The rows of a slab and its results.
inline std::string FilasDeLosa(const Losa& losa) {
    ResultadosLosa r;
    CalcularLosa(losa, {}, r);
    const std::string nombre = TextoSql(losa.Nombre);
    const double ancho = losa.OpcionMaciza ? 1 : losa.So;
    std::string filas = FilaSql("LosaDatos", nombre + (losa.OpcionMaciza ? ", 1" : ", 0"),
                                {losa.Bo, losa.Ho, losa.So, losa.Bm, losa.Hm});
    for (std::size_t i = 1; i < losa.Ejes.size() && losa.Tramos.size() > 1; ++i) {
        const EstadoJunta& p = r.ResultadoJunta[1][i];
        const EstadoJunta& v = r.ResultadoJunta[2][i];
        const DisenoDeEje& d = r.DisenoEje[i];
        filas += FilaSql("LosaEjes", nombre + ", " + std::to_string(i) + ", " + TextoSql(losa.Ejes[i].Eje),
                         {static_cast<double>(losa.Ejes[i].Tipo), p.x, p.y, p.DX + v.DX, p.DY + v.DY,
                          p.Giro + v.Giro, d.AS1, d.AS2, d.MczI > 0.3 ? d.MczI : 0, d.MczD > 0.3 ? d.MczD : 0,
                          d.PtoI, d.PtoD, p.RV + v.RV, p.RH + v.RH});
    }
    for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
        const EsfuerzosTramo& p = r.ResultadoTramo[1][i];
        const EsfuerzosTramo& v = r.ResultadoTramo[2][i];
        const EstadoJunta& pa = r.ResultadoJunta[1][i];
        const EstadoJunta& va = r.ResultadoJunta[2][i];
        const EstadoJunta& pb = r.ResultadoJunta[1][i + 1];
        const EstadoJunta& vb = r.ResultadoJunta[2][i + 1];
        const DisenoDeEje& a = r.DisenoEje[i];
        const DisenoDeEje& b = r.DisenoEje[i + 1];
        const DisenoDeTramo& t = r.DisenoTramo[i];
        filas += FilaSql("LosaTramos",
                         nombre + ", " + std::to_string(i) + ", " + TextoSql(losa.Ejes[i].Eje) + ", " +
                             TextoSql(losa.Ejes[i + 1].Eje),
                         {static_cast<double>(losa.Ejes[i].Tipo),
                          static_cast<double>(losa.Ejes[i + 1].Tipo),
                          1.2 * p.MomentoA + 1.6 * v.MomentoA,
                          1.2 * p.MomentoB + 1.6 * v.MomentoB,
                          1.2 * p.CorteA + 1.6 * v.CorteA,
                          1.2 * p.CorteB + 1.6 * v.CorteB,
                          (pa.RV + va.RV) / ancho,
                          (pa.RH + va.RH) / ancho,
                          (pb.RV + vb.RV) / ancho,
                          (pb.RH + vb.RH) / ancho,
                          pa.RV / ancho,
                          pa.RH / ancho,
                          pb.RV / ancho,
                          pb.RH / ancho,
                          va.RV / ancho,
                          va.RH / ancho,
                          vb.RV / ancho,
                          vb.RH / ancho,
                          t.MT,
                          t.x,
                          t.AS1,
                          t.AS2,
                          a.AS1,
                          a.AS2,
                          b.AS1,
                          b.AS2,
                          a.PtoD,
                          b.PtoI,
                          a.MczD > 0.3 ? a.MczD : 0,
                          b.MczI > 0.3 ? b.MczI : 0,
                          losa.Tramos[i].LT});
    }
    return filas;
}

/// Makes a scratch database with the results of some slabs.
inline void EscribirTemporal(const std::filesystem::path& camino, const std::vector<Losa>& losas,
                             bool desplazamientos = true) {
    std::string filas =
        "INSERT INTO Generales VALUES ('ING. NÚÑEZ', '2024', 'ANALISIS Y DISEÑO DE LOSAS', 'Inversiones Peñón"
        " & Cía', 'Ing. José Ñáñez <C.I.V. 12345>', '2024-02-29', 'Edificio \"Los Cedros\" ½ – Etapa 2',"
        " 'L1', " +
        std::string(desplazamientos ? "1" : "0") +
        ");INSERT INTO LosaG VALUES (250, 4200, 0.025, 1.2, 1.6, 0.9, 0.75);";
    for (const Losa& losa : losas) filas += FilasDeLosa(losa);
    CrearBaseDatos(camino, LeerArchivo(prueba::Install() + "/Imagen/Temporal.sql") + filas);
}

}  // namespace trabex::prueba
