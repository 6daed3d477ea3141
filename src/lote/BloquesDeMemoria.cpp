#include "lote/BloquesDeMemoria.h"

#include <array>

namespace trabex::lote {

namespace {

using documento::Alineacion;

/// The decimal points of a formula as the locale writes them.
std::string EnLocal(std::string texto, const Separadores& numeros) {
    const auto cifra = [](char letra) { return letra >= '0' && letra <= '9'; };
    for (std::size_t i = 1; i + 1 < texto.size(); ++i)
        if (texto[i] == '.' && cifra(texto[i - 1]) && cifra(texto[i + 1]))
            texto.replace(i, 1, numeros.Decimal);
    return texto;
}

constexpr std::array<const char*, 3> Pesos{"Nota", "Advertencia", "Falla"};

}  // namespace

documento::ColumnaDeTabla ColumnaDeMemoria(const std::string& titulo, const std::string& formato,
                                           const std::string& grupo) {
    return {titulo, grupo, formato, 20, formato.empty() ? Alineacion::Izquierda : Alineacion::Derecha};
}

documento::Tabla TablaDePasos(const Relato& relato, const Separadores& numeros) {
    documento::Tabla tabla;
    tabla.Columnas = {{"", "", "", 14, Alineacion::Izquierda},
                      {"Fórmula", "", "", 52, Alineacion::Izquierda},
                      {"Con los números", "", "", 76, Alineacion::Izquierda},
                      {"Valor", "", "", 20, Alineacion::Derecha},
                      {"", "", "", 16, Alineacion::Izquierda}};
    for (const PasoDeDiseno& paso : relato)
        tabla.Filas.push_back(
            {{paso.Simbolo, EnLocal(paso.Formula, numeros), EnLocal(paso.ConNumeros, numeros),
              EnLocal(CincoCifras(paso.Valor), numeros), paso.Unidad}});
    return tabla;
}

documento::Bloque BloqueDeAvisos(const Avisos& avisos) {
    if (avisos.empty()) return documento::Parrafo{"Sin avisos."};
    documento::Tabla tabla;
    tabla.Columnas = {{"Aviso", "", "", 22, Alineacion::Izquierda},
                      {"Lugar", "", "", 52, Alineacion::Izquierda},
                      {"Qué", "", "", 103, Alineacion::Izquierda}};
    for (const Aviso& aviso : avisos)
        tabla.Filas.push_back({{Pesos[static_cast<std::size_t>(aviso.Peso)], aviso.Lugar, aviso.Texto}});
    return tabla;
}

documento::Ficha FichaDeMateriales(const DatosGenerales& generales, bool deLosas) {
    documento::Ficha ficha;
    ficha.Columnas = 3;
    ficha.Datos = {{"F'c", generales.FC, "0", "kgf/cm²"},
                   {"Fy", generales.FY, "0", "kgf/cm²"},
                   {"Recubrimiento D8", generales.D8, "0.000", "m"},
                   {"φ de flexión", generales.FiMomento, "0.00", ""}};
    if (deLosas) {
        ficha.Datos.push_back({"φ de corte", generales.FiCorte, "0.00", ""});
        ficha.Datos.push_back({"Factor de carga permanente", generales.FCP, "0.00", ""});
        ficha.Datos.push_back({"Factor de carga variable", generales.FCV, "0.00", ""});
    } else {
        ficha.Datos.push_back({"Factor de seguridad FS", generales.FS, "0.00", ""});
    }
    return ficha;
}

}  // namespace trabex::lote
