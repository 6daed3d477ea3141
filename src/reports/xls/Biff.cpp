#include "reports/xls/Biff.h"

#include <algorithm>
#include <bit>
#include <memory>

#include <glib.h>

namespace trabex::xls {

namespace {

/// UTF-16 of a text; bytes that are no UTF-8 become U+FFFD.
std::u16string Utf16(std::string_view utf8) {
    const std::unique_ptr<gchar, decltype(&g_free)> valido(
        g_utf8_make_valid(utf8.empty() ? "" : utf8.data(), static_cast<gssize>(utf8.size())), g_free);
    glong unidades = 0;
    const std::unique_ptr<gunichar2, decltype(&g_free)> texto(
        g_utf8_to_utf16(valido.get(), -1, nullptr, &unidades, nullptr), g_free);
    return {texto.get(), texto.get() + unidades};
}

bool MitadDePar(char16_t unidad) {
    return unidad >= 0xD800 && unidad < 0xDC00;
}

}  // namespace

Octetos& Octetos::F64(double valor) {
    return Entero<8>(std::bit_cast<std::uint64_t>(valor));
}

Octetos& Octetos::TextoCorto(std::string_view utf8, std::size_t maximo) {
    const TextoBiff texto(utf8, maximo);
    return U8(texto.Caracteres()).U8(texto.Marca()).Crudo(texto.Trozo(0, texto.Caracteres()));
}

Octetos& Octetos::TextoLargo(std::string_view utf8, std::size_t maximo) {
    const TextoBiff texto(utf8, maximo);
    return U16(texto.Caracteres()).U8(texto.Marca()).Crudo(texto.Trozo(0, texto.Caracteres()));
}

TextoBiff::TextoBiff(std::string_view utf8, std::size_t maximo) : utf16_(Utf16(utf8)) {
    if (utf16_.size() > maximo) utf16_.resize(MitadDePar(utf16_[maximo - 1]) ? maximo - 1 : maximo);
    const bool latino = std::all_of(utf16_.begin(), utf16_.end(), [](char16_t u) { return u < 0x100; });
    ancho_ = latino ? 1 : 2;
}

std::string TextoBiff::Trozo(std::size_t desde, std::size_t cuantos) const {
    Octetos octetos;
    for (std::size_t i = desde; i < desde + cuantos; ++i) {
        if (ancho_ == 1)
            octetos.U8(utf16_[i]);
        else
            octetos.U16(utf16_[i]);
    }
    return octetos.Bytes();
}

namespace {

std::string Cabecera(std::uint16_t tipo, std::size_t largo) {
    return Octetos().U16(tipo).U16(largo).Bytes();
}

}  // namespace

void AgregarRegistro(std::string& flujo, std::uint16_t tipo, const Octetos& datos) {
    const std::size_t largo = datos.Bytes().size();
    if (largo <= DatosPorRegistro) {  // as nearly all are
        const auto octeto = [](std::size_t valor) { return static_cast<char>(valor & 0xFF); };
        const std::array<char, 4> cabecera{octeto(tipo), octeto(tipo >> 8U), octeto(largo),
                                           octeto(largo >> 8U)};
        flujo.append(cabecera.data(), cabecera.size());
        flujo += datos.Bytes();
        return;
    }
    const Salida alFlujo = [&flujo](std::string_view bytes) { flujo += bytes; };
    RegistroPorPartes registro(alFlujo, tipo);
    registro.Agregar(datos.Bytes());
    registro.Terminar();
}

void RegistroPorPartes::Agregar(std::string_view bytes) {
    while (!bytes.empty()) {
        if (parte_.size() == DatosPorRegistro) Terminar();
        const std::string_view cabe = bytes.substr(0, DatosPorRegistro - parte_.size());
        parte_ += cabe;
        bytes.remove_prefix(cabe.size());
    }
}

void RegistroPorPartes::Terminar() {
    salida_(Cabecera(tipo_, parte_.size()));
    salida_(parte_);
    parte_.clear();
    tipo_ = Continuacion;
}

std::size_t RegistroPorPartes::Largo(std::size_t datos) {
    constexpr std::size_t cabecera = 4;
    const std::size_t registros = datos == 0 ? 1 : (datos + DatosPorRegistro - 1) / DatosPorRegistro;
    return datos + cabecera * registros;
}

}  // namespace trabex::xls
