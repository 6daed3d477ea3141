#include "lote/Resumen.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Texto.h"

namespace trabex::lote {

namespace {

/// A column of a summary: its heading, the format of its numbers, and what it shows of a record.
template <class Resumen>
struct ColumnaResumen {
    const char* Encabezado;
    const char* Formato;
    double (*Valor)(const Resumen&);
};

using Linea = std::vector<std::string>;

/// A name as one line of a table shows it.
std::string EnUnaLinea(const std::string& nombre) {
    std::string linea = TextoValido(nombre);
    std::replace_if(
        linea.begin(), linea.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return linea;
}

/// Lines with their columns aligned: the first `deTexto` to the left, the others to the right.
std::string Alinear(const std::vector<Linea>& lineas, std::size_t deTexto,
                    const std::vector<std::string>& errores) {
    std::vector<std::size_t> anchos(lineas.front().size());
    for (const Linea& linea : lineas) {
        for (std::size_t c = 0; c < linea.size(); ++c)
            anchos[c] = std::max(anchos[c], NumeroDeCaracteres(linea[c]));
    }
    std::string tabla;
    for (std::size_t f = 0; f < lineas.size(); ++f) {
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            const std::string& celda = lineas[f][c];
            const std::string relleno(anchos[c] - NumeroDeCaracteres(celda), ' ');
            tabla += c < deTexto ? celda + relleno : relleno + celda;
            tabla += c + 1 < anchos.size() ? "  " : "";
        }
        if (f > 0 && !errores[f - 1].empty()) tabla += "  " + errores[f - 1];
        tabla += '\n';
    }
    return tabla;
}

/// A table whose first columns are texts, made by `textos`, and the rest `columnas`.
template <class Resumen, std::size_t N>
std::string Tabla(const std::vector<Resumen>& resumenes, Linea encabezado, Linea (*textos)(const Resumen&),
                  const std::array<ColumnaResumen<Resumen>, N>& columnas, const Separadores& separadores) {
    const std::size_t deTexto = encabezado.size();
    for (const ColumnaResumen<Resumen>& columna : columnas) encabezado.emplace_back(columna.Encabezado);
    std::vector<Linea> lineas{std::move(encabezado)};
    std::vector<std::string> errores;
    for (const Resumen& resumen : resumenes) {
        Linea linea = textos(resumen);
        std::transform(linea.begin(), linea.end(), linea.begin(), EnUnaLinea);
        for (const ColumnaResumen<Resumen>& columna : columnas)
            linea.push_back(Formato(columna.Valor(resumen), columna.Formato, separadores));
        lineas.push_back(std::move(linea));
        errores.push_back(resumen.Error);
    }
    return Alinear(lineas, deTexto, errores);
}

template <class Resumen>
Linea SoloNombre(const Resumen& resumen) {
    return {resumen.Nombre};
}

/// Raises `mayor` to the absolute of a value that passes it.
void Subir(double& mayor, double valor) {
    mayor = std::max(mayor, std::fabs(valor));
}

/// Lowers `menor` to a spacing under it; 0 is none yet.
template <class Numero>
void Bajar(Numero& menor, Numero valor) {
    if (menor == 0 || (valor != 0 && valor < menor)) menor = valor;
}

}  // namespace

ResumenLosa Resumir(const losas::Losa& losa, const losas::ResultadosLosa& r) {
    ResumenLosa resumen;
    resumen.Nombre = losa.Nombre;
    resumen.OpcionMaciza = losa.OpcionMaciza;
    resumen.Tramos = losa.Tramos.size() - 1;
    for (const losas::Tramo& tramo : losa.Tramos) resumen.Longitud += tramo.LT;
    resumen.MaxMomentoApoyo = r.MaxMomentoApoyo;
    resumen.MaxMomentoTramo = r.MaxMomentoTramo;
    resumen.MaxCorte = r.MaxCorte;
    for (const losas::DisenoDeEje& eje : r.DisenoEje)
        resumen.AceroSuperior = std::max(resumen.AceroSuperior, eje.AS1);
    for (const losas::DisenoDeTramo& tramo : r.DisenoTramo)
        resumen.AceroInferior = std::max(resumen.AceroInferior, tramo.AS2);
    if (r.Error) resumen.Error = r.Error->Texto();
    return resumen;
}

ResumenEscaleraT Resumir(const escaleras::DatosEscaleraT& escalera, const escaleras::ResultadosEscaleraT& r) {
    ResumenEscaleraT resumen;
    resumen.Nombre = escalera.Nombre;
    resumen.L = escalera.L;
    resumen.B = escalera.B;
    resumen.H = escalera.H;
    resumen.ReaccionVertical = r.ReaccionVertical;
    resumen.ReaccionHorizontal = r.ReaccionHorizontal;
    for (const escaleras::EscaleraTramoPunto& punto : r.TramoT) {
        Subir(resumen.MaxMomento, punto.MomentoTotal);
        Subir(resumen.MaxMomento, punto.MomentoPermanente);
        Subir(resumen.AceroSuperior, punto.AsSuperior + punto.AsTorsion);
        Subir(resumen.AceroInferior, punto.AsInferior + punto.AsTorsion);
        Bajar(resumen.Estribos, punto.SeparacionEstribo);
    }
    if (r.Error) resumen.Error = r.Error->Texto();
    return resumen;
}

ResumenEscaleraH Resumir(const helices::DatosEscaleraH& escalera, const helices::ResultadosEscaleraH& r) {
    ResumenEscaleraH resumen;
    resumen.Nombre = escalera.Nombre;
    resumen.R = escalera.R;
    resumen.Angulo = escalera.Angulo;
    resumen.H = escalera.H;
    resumen.FV = r.FV;
    resumen.Fh = r.Fh;
    for (const auto* tramo : {&r.TramoSuperior, &r.TramoInferior}) {
        for (const helices::EstacionEscaleraH& estacion : *tramo) {
            Subir(resumen.MaxMX, estacion.MX);
            Subir(resumen.MaxMY, estacion.MY);
            Subir(resumen.MaxMT, estacion.MT);
            Bajar(resumen.Estribos, estacion.SEP);
        }
    }
    if (r.Error) resumen.Error = r.Error->Texto();
    return resumen;
}

ResumenMarcus Resumir(const marcus::NivelMarcus& nivel, const std::string& error) {
    ResumenMarcus resumen;
    resumen.Nombre = nivel.Nombre;
    resumen.Panos = nivel.Filas.size();
    resumen.MinCX = nivel.Filas.empty() ? 0 : 1;
    for (const marcus::PanoMarcus& pano : nivel.Filas) {
        resumen.MinCX = std::min(resumen.MinCX, pano.Reparto.CX);
        resumen.MaxCX = std::max(resumen.MaxCX, pano.Reparto.CX);
        Subir(resumen.MaxWX, pano.Reparto.WX);
        Subir(resumen.MaxWY, pano.Reparto.WY);
    }
    resumen.Error = error;
    return resumen;
}

std::string TablaDe(const std::vector<ResumenLosa>& losas, const Separadores& separadores) {
    using R = ResumenLosa;
    static constexpr std::array<ColumnaResumen<R>, 7> columnas{
        {{"Tramos", "0", [](const R& r) { return static_cast<double>(r.Tramos); }},
         {"Longitud (m)", "0.00", [](const R& r) { return r.Longitud; }},
         {"M apoyo (kgf-m)", "#,##0", [](const R& r) { return r.MaxMomentoApoyo; }},
         {"M tramo (kgf-m)", "#,##0", [](const R& r) { return r.MaxMomentoTramo; }},
         {"Corte (kgf)", "#,##0", [](const R& r) { return r.MaxCorte; }},
         {"As sup (cm2)", "0.00", [](const R& r) { return r.AceroSuperior; }},
         {"As inf (cm2)", "0.00", [](const R& r) { return r.AceroInferior; }}}};
    const auto textos = [](const R& r) { return Linea{r.Nombre, r.OpcionMaciza ? "MACIZA" : "NERVADA"}; };
    return Tabla<R>(losas, {"Losa", "Tipo"}, textos, columnas, separadores);
}

std::string TablaDe(const std::vector<ResumenEscaleraT>& escaleras, const Separadores& separadores) {
    using R = ResumenEscaleraT;
    static constexpr std::array<ColumnaResumen<R>, 9> columnas{
        {{"L (m)", "0.00", [](const R& r) { return r.L; }},
         {"B (m)", "0.00", [](const R& r) { return r.B; }},
         {"H (m)", "0.00", [](const R& r) { return r.H; }},
         {"RV (kgf)", "#,##0", [](const R& r) { return r.ReaccionVertical; }},
         {"RH (kgf)", "#,##0", [](const R& r) { return r.ReaccionHorizontal; }},
         {"M (kgf-m)", "#,##0", [](const R& r) { return r.MaxMomento; }},
         {"As sup (cm2)", "0.00", [](const R& r) { return r.AceroSuperior; }},
         {"As inf (cm2)", "0.00", [](const R& r) { return r.AceroInferior; }},
         {"Estribos @ (cm)", "0.0", [](const R& r) { return r.Estribos; }}}};
    return Tabla<R>(escaleras, {"Escalera autoportante"}, SoloNombre<R>, columnas, separadores);
}

std::string TablaDe(const std::vector<ResumenEscaleraH>& escaleras, const Separadores& separadores) {
    using R = ResumenEscaleraH;
    static constexpr std::array<ColumnaResumen<R>, 9> columnas{
        {{"R (m)", "0.00", [](const R& r) { return r.R; }},
         {"Angulo (º)", "0.0", [](const R& r) { return r.Angulo; }},
         {"H (m)", "0.00", [](const R& r) { return r.H; }},
         {"RV (kgf)", "#,##0", [](const R& r) { return static_cast<double>(r.FV); }},
         {"RH (kgf)", "#,##0", [](const R& r) { return static_cast<double>(r.Fh); }},
         {"MX (kgf-m)", "#,##0", [](const R& r) { return r.MaxMX; }},
         {"MY (kgf-m)", "#,##0", [](const R& r) { return r.MaxMY; }},
         {"MT (kgf-m)", "#,##0", [](const R& r) { return r.MaxMT; }},
         {"Estribos @ (cm)", "0", [](const R& r) { return static_cast<double>(r.Estribos); }}}};
    return Tabla<R>(escaleras, {"Escalera helicoidal"}, SoloNombre<R>, columnas, separadores);
}

std::string TablaDe(const std::vector<ResumenMarcus>& niveles, const Separadores& separadores) {
    using R = ResumenMarcus;
    static constexpr std::array<ColumnaResumen<R>, 5> columnas{
        {{"Paños", "0", [](const R& r) { return static_cast<double>(r.Panos); }},
         {"Cx menor", "0.000", [](const R& r) { return r.MinCX; }},
         {"Cx mayor", "0.000", [](const R& r) { return r.MaxCX; }},
         {"Wx mayor", "#,##0.0", [](const R& r) { return r.MaxWX; }},
         {"Wy mayor", "#,##0.0", [](const R& r) { return r.MaxWY; }}}};
    return Tabla<R>(niveles, {"Nivel (Markus)"}, SoloNombre<R>, columnas, separadores);
}

}  // namespace trabex::lote
