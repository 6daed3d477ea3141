#include "jet/Paginas.h"

namespace trabex::jet {

namespace {

constexpr std::size_t LugarLibre = 2, LugarDuena = 4, LugarCuantas = 12;
/// A row is named by a byte.
constexpr std::size_t MaximoDeFilas = 255;

}  // namespace

void Pagina::Corto(std::size_t donde, std::size_t valor) {
    Byte(donde, static_cast<std::uint8_t>(valor & 0xFF));
    Byte(donde + 1, static_cast<std::uint8_t>(valor >> 8 & 0xFF));
}

void Pagina::Largo(std::size_t donde, std::uint32_t valor) {
    Corto(donde, valor & 0xFFFF);
    Corto(donde + 2, valor >> 16);
}

void Pagina::Bytes(std::size_t donde, std::string_view bytes) {
    bytes.copy(bytes_.data() + donde, bytes_.size() - donde);
}

std::uint16_t Pagina::Corto(std::size_t donde) const {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(bytes_[donde]) |
                                      static_cast<unsigned char>(bytes_[donde + 1]) << 8);
}

void Pagina::Encender(std::size_t byte, unsigned bit) {
    bytes_[byte] = static_cast<char>(static_cast<unsigned char>(bytes_[byte]) | 1U << bit);
}

std::uint32_t Paginas::Nueva() {
    paginas_.emplace_back();
    return Cuantas() - 1;
}

std::string Paginas::Todo() const {
    std::string todo;
    todo.reserve(paginas_.size() * TamanoPagina);
    for (const Pagina& pagina : paginas_) todo += pagina.Todo();
    return todo;
}

Puntero PaginasDeFilas::Agregar(std::string_view fila) {
    if (numeros_.empty() || fila.size() + 2 > libre_ || filas_ == MaximoDeFilas) {
        numeros_.push_back(numeros_.empty() && primera_ != 0 ? primera_ : paginas_.Nueva());
        Pagina& nueva = paginas_[numeros_.back()];
        nueva.Byte(0, 1);
        nueva.Byte(1, 1);
        nueva.Largo(LugarDuena, duena_);
        libre_ = TamanoPagina - Cabecera;
        filas_ = 0;
    }
    Pagina& pagina = paginas_[numeros_.back()];
    const std::size_t fin = filas_ == 0 ? TamanoPagina : pagina.Corto(Cabecera + 2 * (filas_ - 1));
    pagina.Bytes(fin - fila.size(), fila);
    pagina.Corto(Cabecera + 2 * filas_, fin - fila.size());
    libre_ -= fila.size() + 2;
    ++filas_;
    pagina.Corto(LugarLibre, libre_);
    pagina.Corto(LugarCuantas, filas_);
    return {numeros_.back(), static_cast<std::uint8_t>(filas_ - 1)};
}

}  // namespace trabex::jet
