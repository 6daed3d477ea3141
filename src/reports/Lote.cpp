#include "reports/Lote.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <string_view>
#include <thread>

#include "base/Texto.h"
#include "reports/ResultadosJson.h"
#include "slab/CalcularLosa.h"
#include "store/TablasLosa.h"

namespace trabex {

namespace {

constexpr std::size_t LosasPorHilo = 32;  // fewer do not pay for a thread

bool AbrirLista(ProyectoAbierto& proyecto) {
    AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    return proyecto.RegistrosProyecto.Abierto();
}

/// A name as one line of a table shows it.
std::string EnUnaLinea(std::string_view nombre) {
    std::string linea = TextoValido(nombre);
    std::replace_if(
        linea.begin(), linea.end(), [](unsigned char c) { return c < ' '; }, ' ');
    return linea;
}

ResumenLosa Resumir(const Losa& losa, const ResultadosLosa& r) {
    ResumenLosa resumen;
    resumen.Nombre = EnUnaLinea(losa.Nombre);
    resumen.OpcionMaciza = losa.OpcionMaciza;
    resumen.Tramos = losa.Tramos.size() - 1;
    for (const Tramo& tramo : losa.Tramos) resumen.Longitud += tramo.LT;
    resumen.MaxMomentoApoyo = r.MaxMomentoApoyo;
    resumen.MaxMomentoTramo = r.MaxMomentoTramo;
    resumen.MaxCorte = r.MaxCorte;
    for (const DisenoDeEje& eje : r.DisenoEje)
        resumen.AceroSuperior = std::max(resumen.AceroSuperior, eje.AS1);
    for (const DisenoDeTramo& tramo : r.DisenoTramo)
        resumen.AceroInferior = std::max(resumen.AceroInferior, tramo.AS2);
    if (r.Error) resumen.Error = r.Error->Texto();
    return resumen;
}

using FilaDeTabla = std::array<std::string, 9>;

const FilaDeTabla Encabezado{
    "Losa",        "Tipo",         "Tramos",      "Longitud (m)", "M apoyo (kgf-m)", "M tramo (kgf-m)",
    "Corte (kgf)", "As sup (cm2)", "As inf (cm2)"};

FilaDeTabla FilaDe(const ResumenLosa& losa, const Separadores& separadores) {
    const auto numero = [&](double valor, const char* formato) {
        return Formato(valor, formato, separadores);
    };
    return {losa.Nombre,
            losa.OpcionMaciza ? "MACIZA" : "NERVADA",
            std::to_string(losa.Tramos),
            numero(losa.Longitud, "0.00"),
            numero(losa.MaxMomentoApoyo, "#,##0"),
            numero(losa.MaxMomentoTramo, "#,##0"),
            numero(losa.MaxCorte, "#,##0"),
            numero(losa.AceroSuperior, "0.00"),
            numero(losa.AceroInferior, "0.00")};
}

}  // namespace

bool CalcularProyecto(const std::filesystem::path& camino, unsigned hilos, ProyectoCalculado& calculado) {
    ProyectoAbierto proyecto;
    AbrirCopiaEnMemoria(proyecto.ConexionProyecto, camino);
    if (!AbrirLista(proyecto)) return false;
    LeerDatosGenerales(proyecto.ConexionProyecto, "", calculado.Datos, calculado.Generales);
    const auto losas = static_cast<std::size_t>(proyecto.RegistrosProyecto.NumeroRegistros());
    calculado.LosasJson.resize(losas);
    calculado.Losas.resize(losas);

    std::atomic<std::size_t> siguiente{0};
    const auto trabajar = [&](ProyectoAbierto& copia) {
        Losa losa;
        ResultadosLosa resultados;
        for (std::size_t i = siguiente++; i < losas; i = siguiente++) {
            copia.RegistrosProyecto.MoverA(static_cast<int>(i) + 1);
            losa = {};
            resultados = {};
            LeerLosa(copia, losa);
            CalcularLosa(losa, calculado.Generales, resultados);
            calculado.LosasJson[i] = LosaJson(losa, resultados);
            calculado.Losas[i] = Resumir(losa, resultados);
        }
    };
    // A connection serves one thread: each further one reads a copy of the same copy.
    std::vector<std::unique_ptr<ProyectoAbierto>> copias;
    for (unsigned h = 1; h < hilos && h * LosasPorHilo < losas; ++h) {
        copias.push_back(std::make_unique<ProyectoAbierto>());
        CopiarEnMemoria(proyecto.ConexionProyecto, copias.back()->ConexionProyecto);
        if (!AbrirLista(*copias.back())) copias.pop_back();
    }
    std::vector<std::jthread> equipo;
    equipo.reserve(copias.size());
    for (const auto& copia : copias) equipo.emplace_back([&trabajar, &copia] { trabajar(*copia); });
    trabajar(proyecto);
    return true;
}

std::string DocumentoJson(const ProyectoCalculado& calculado) {
    std::string json = "{\"Proyecto\":" + ProyectoJson(calculado.Datos) +
                       ",\n\"LosaG\":" + GeneralesJson(calculado.Generales) + ",\n\"losas\":[";
    for (std::size_t i = 0; i < calculado.LosasJson.size(); ++i) {
        json += i == 0 ? "\n" : ",\n";
        json += calculado.LosasJson[i];
    }
    return json + "\n]}\n";
}

std::string TablaResumen(const ProyectoCalculado& calculado, const Separadores& separadores) {
    std::vector<FilaDeTabla> filas{Encabezado};
    for (const ResumenLosa& losa : calculado.Losas) filas.push_back(FilaDe(losa, separadores));
    std::array<std::size_t, std::tuple_size_v<FilaDeTabla>> anchos{};
    for (const FilaDeTabla& fila : filas) {
        for (std::size_t c = 0; c < fila.size(); ++c)
            anchos[c] = std::max(anchos[c], NumeroDeCaracteres(fila[c]));
    }
    std::string tabla;
    for (std::size_t f = 0; f < filas.size(); ++f) {
        for (std::size_t c = 0; c < anchos.size(); ++c) {
            const std::string relleno(anchos[c] - NumeroDeCaracteres(filas[f][c]), ' ');
            tabla += c < 2 ? filas[f][c] + relleno : relleno + filas[f][c];
            tabla += c + 1 < anchos.size() ? "  " : "";
        }
        if (f > 0 && !calculado.Losas[f - 1].Error.empty()) tabla += "  " + calculado.Losas[f - 1].Error;
        tabla += '\n';
    }
    return tabla;
}

}  // namespace trabex
