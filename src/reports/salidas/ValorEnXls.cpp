#include "reports/salidas/ValorEnXls.h"

namespace trabex::salidas {

namespace {

/// `formato` with the unit after it: the cell stays a number.
std::string FormatoConUnidad(const std::string& formato, const std::string& unidad) {
    if (unidad.empty()) return formato;
    std::string limpia;
    for (const char c : unidad) limpia += c == '"' ? '\'' : c;
    return (formato.empty() ? "General" : formato) + "\" " + limpia + "\"";
}

}  // namespace

ValorEnXls ValorDeCelda(const almacen::Valor& valor, const std::string& formato, const std::string& unidad,
                        const Separadores& separadores) {
    const std::optional<double> numero = documento::NumeroDe(valor);
    if (numero && formato.find('|') == std::string::npos) return {*numero, FormatoConUnidad(formato, unidad)};
    if (const auto* fecha = std::get_if<Fecha>(&valor)) return {*fecha, {}};
    const std::string texto = documento::TextoDeValor(valor, formato, separadores);
    if (texto.empty()) return {};
    return {texto + (unidad.empty() ? "" : " " + unidad), {}};
}

xls::AlineacionXls LadoEnXls(documento::Alineacion lado) {
    switch (lado) {
        case documento::Alineacion::Izquierda:
            return xls::AlineacionXls::Izquierda;
        case documento::Alineacion::Centro:
            return xls::AlineacionXls::Centro;
        default:
            return xls::AlineacionXls::Derecha;
    }
}

}  // namespace trabex::salidas
