#include "jet/MapaDePaginas.h"

#include <algorithm>

namespace trabex::jet {

namespace {

constexpr std::uint32_t EnLaFila = 64 * 8;
constexpr std::size_t Largo = 1 + 4 + EnLaFila / 8;
constexpr std::uint32_t PorPagina = (TamanoPagina - 4) * 8;

void Encender(std::string& mapa, std::uint32_t bit) {
    char& byte = mapa[5 + bit / 8];
    byte = static_cast<char>(static_cast<unsigned char>(byte) | 1U << bit % 8);
}

void Entero(std::string& fila, std::size_t donde, std::uint32_t valor) {
    for (std::size_t i = 0; i < 4; ++i) fila[donde + i] = static_cast<char>(valor >> 8 * i & 0xFF);
}

/// The page of bits that a map's row points to for a page, made when it isn't there yet.
class MapaLargo {
  public:
    explicit MapaLargo(Paginas& paginas) : paginas_(paginas) { fila_[0] = 1; }

    std::uint32_t PaginaDeBits(std::uint32_t cual) {
        const std::size_t orden = cual / PorPagina;
        while (hechas_.size() <= orden) hechas_.push_back(0);
        if (hechas_[orden] == 0) {
            hechas_[orden] = paginas_.Nueva();
            paginas_[hechas_[orden]].Byte(0, 5);
            paginas_[hechas_[orden]].Byte(1, 1);
            Entero(fila_, 1 + 4 * orden, hechas_[orden]);
        }
        return hechas_[orden];
    }

    void Encender(std::uint32_t cual) {
        const std::uint32_t bit = cual % PorPagina;
        paginas_[PaginaDeBits(cual)].Encender(4 + bit / 8, bit % 8);
    }

    const std::string& Fila() const { return fila_; }

  private:
    Paginas& paginas_;
    std::string fila_ = std::string(Largo, '\0');
    std::deque<std::uint32_t> hechas_;
};

}  // namespace

std::string MapaDePaginas(Paginas& paginas, const std::deque<std::uint32_t>& cuales) {
    if (cuales.empty()) return std::string(Largo, '\0');
    const auto [menor, mayor] = std::minmax_element(cuales.begin(), cuales.end());
    const std::uint32_t desde = *menor / 8 * 8;
    if (*mayor - desde < EnLaFila) {
        std::string fila(Largo, '\0');
        Entero(fila, 1, desde);
        for (const std::uint32_t cual : cuales) Encender(fila, cual - desde);
        return fila;
    }
    MapaLargo mapa(paginas);
    for (const std::uint32_t cual : cuales) mapa.Encender(cual);
    return mapa.Fila();
}

std::string MapaDeLibres(Paginas& paginas) {
    if (paginas.Cuantas() <= EnLaFila) {
        std::string fila(Largo, '\0');
        for (std::uint32_t libre = paginas.Cuantas(); libre < EnLaFila; ++libre) Encender(fila, libre);
        return fila;
    }
    MapaLargo mapa(paginas);
    const std::uint32_t tramos = paginas.Cuantas() / PorPagina + 1;
    for (std::uint32_t i = 0; i < tramos; ++i) mapa.PaginaDeBits(i * PorPagina);
    for (std::uint32_t libre = paginas.Cuantas(); libre < (paginas.Cuantas() / PorPagina + 1) * PorPagina;
         ++libre)
        mapa.Encender(libre);
    return mapa.Fila();
}

}  // namespace trabex::jet
