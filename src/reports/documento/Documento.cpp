#include "reports/documento/Documento.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace trabex::documento {

namespace {

/// All the digits that tell a number from its neighbours, up to the 15 that a double holds for sure.
std::string TextoGeneral(double valor, const Separadores& separadores) {
    if (!std::isfinite(valor)) return {};
    std::array<char, 32> cifras{};
    char* const hasta = cifras.data() + cifras.size();
    // Whole numbers, as those of rows, are written in a tenth of the time; a negative zero has no sign.
    constexpr double enterosCortos = 1e15;
    if (std::fabs(valor) < enterosCortos && valor == std::trunc(valor))
        return {cifras.data(), std::to_chars(cifras.data(), hasta, static_cast<std::int64_t>(valor)).ptr};
    std::string texto(cifras.data(),
                      std::to_chars(cifras.data(), hasta, valor, std::chars_format::general, 15).ptr);
    const std::size_t punto = texto.find('.');
    if (punto != std::string::npos) texto.replace(punto, 1, separadores.Decimal);
    return texto;
}

std::string TextoLogico(bool valor, const std::string& formato) {
    const std::string textos = formato.empty() ? "Sí|No" : formato;
    const std::size_t barra = textos.find('|');
    if (valor) return textos.substr(0, barra);
    return barra == std::string::npos ? std::string() : textos.substr(barra + 1);
}

/// The text at a place among those between bars; nothing past the last.
std::optional<std::string> TextoDeOpcion(double numero, const std::string& formato) {
    std::string_view resto = formato;
    for (double i = 0;; ++i) {
        const std::size_t barra = resto.find('|');
        if (i == numero) return std::string(resto.substr(0, barra));
        if (barra == std::string_view::npos) return std::nullopt;
        resto.remove_prefix(barra + 1);
    }
}

std::string TextoDeNumero(double numero, const std::string& formato, const Separadores& separadores) {
    if (formato.find('|') != std::string::npos)
        return TextoDeOpcion(numero, formato).value_or(TextoGeneral(numero, separadores));
    return formato.empty() ? TextoGeneral(numero, separadores) : Formato(numero, formato, separadores);
}

}  // namespace

MedidaPagina MedidaDe(const Pagina& pagina) {
    const MedidaPagina vertical =
        pagina.Tamano == TamanoPagina::A4 ? MedidaPagina{210, 297} : MedidaPagina{215.9, 279.4};
    return pagina.Apaisada ? MedidaPagina{vertical.Alto, vertical.Ancho} : vertical;
}

MedidaPagina MedidaUtil(const Pagina& pagina) {
    const MedidaPagina hoja = MedidaDe(pagina);
    return {hoja.Ancho - pagina.MargenIzquierdo - pagina.MargenDerecho,
            hoja.Alto - pagina.MargenSuperior - pagina.MargenInferior};
}

MedidaPagina MedidaDe(const Imagen& imagen, double pixelesAncho, double pixelesAlto,
                      const MedidaPagina& sitio) {
    const double ancho = imagen.Ancho > 0 ? std::min(imagen.Ancho, sitio.Ancho) : sitio.Ancho;
    const double alto = imagen.Alto > 0 ? std::min(imagen.Alto, sitio.Alto) : sitio.Alto;
    const double escala = std::min(ancho / pixelesAncho, alto / pixelesAlto);
    return {pixelesAncho * escala, pixelesAlto * escala};
}

std::optional<double> NumeroDe(const almacen::Valor& valor) {
    return std::visit(
        [](const auto& v) -> std::optional<double> {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>)
                return static_cast<double>(v);
            else
                return std::nullopt;
        },
        valor);
}

std::string TextoDeValor(const almacen::Valor& valor, const std::string& formato,
                         const Separadores& separadores) {
    if (const auto numero = NumeroDe(valor)) return TextoDeNumero(*numero, formato, separadores);
    if (const auto* texto = std::get_if<std::string>(&valor)) return *texto;
    if (const auto* fecha = std::get_if<Fecha>(&valor)) return FormatoFecha(*fecha);
    if (const auto* logico = std::get_if<bool>(&valor)) return TextoLogico(*logico, formato);
    return {};
}

bool Tabla::TieneGrupos() const {
    return std::any_of(Columnas.begin(), Columnas.end(),
                       [](const auto& columna) { return !columna.Grupo.empty(); });
}

std::size_t Tabla::Abarca(const FilaDeTabla& fila, std::size_t columna) const {
    return fila.Rotulo && columna + 1 == fila.Celdas.size() ? Columnas.size() - columna : 1;
}

Alineacion Tabla::Lado(const FilaDeTabla& fila, std::size_t columna) const {
    return Abarca(fila, columna) > 1 ? Alineacion::Izquierda : Columnas[columna].Lado;
}

std::vector<double> Tabla::Anchos(double ancho) const {
    double suma = 0;
    for (const ColumnaDeTabla& columna : Columnas) suma += columna.Ancho;
    const double factor = suma > ancho ? ancho / suma : 1;
    std::vector<double> anchos;
    for (const ColumnaDeTabla& columna : Columnas) anchos.push_back(columna.Ancho * factor);
    return anchos;
}

std::vector<GrupoDeColumnas> GruposDe(const Tabla& tabla) {
    std::vector<GrupoDeColumnas> grupos;
    for (std::size_t i = 0; i < tabla.Columnas.size(); ++i) {
        const std::string& titulo = tabla.Columnas[i].Grupo;
        if (!grupos.empty() && !titulo.empty() && grupos.back().Titulo == titulo)
            ++grupos.back().Cuantas;
        else
            grupos.push_back({titulo, i, 1});
    }
    return grupos;
}

std::vector<std::string> Documento::SeccionesTras(const Indice& indice) const {
    const auto es = [&](const Bloque& bloque) { return std::get_if<Indice>(&bloque) == &indice; };
    const auto suya = std::find_if(Secciones.begin(), Secciones.end(), [&](const Seccion& seccion) {
        return std::any_of(seccion.Bloques.begin(), seccion.Bloques.end(), es);
    });
    std::vector<std::string> nombres;
    for (auto seccion = suya; seccion != Secciones.end(); ++seccion)
        if (seccion != suya && !seccion->Nombre.empty()) nombres.push_back(seccion->Nombre);
    return nombres;
}

}  // namespace trabex::documento
