#include "reports/xls/CadenasBiff.h"

#include <algorithm>

#include "reports/xls/Biff.h"

namespace trabex::xls {

namespace {

constexpr std::uint16_t SST = 0x00FC;
constexpr std::size_t MaximoDeTexto = 32767;
constexpr std::size_t CabeceraDeTexto = 3;

/// A record that continues in others at places that the texts choose.
class RegistroPartido {
  public:
    explicit RegistroPartido(std::string& flujo) : flujo_(flujo) {}
    ~RegistroPartido() { Cortar(); }
    RegistroPartido(const RegistroPartido&) = delete;
    RegistroPartido& operator=(const RegistroPartido&) = delete;

    std::size_t Libres() const { return DatosPorRegistro - datos_.Bytes().size(); }
    Octetos& Datos() { return datos_; }
    void Cortar() {
        AgregarRegistro(flujo_, primero_ ? SST : Continuacion, datos_);
        primero_ = false;
        datos_ = {};
    }

  private:
    std::string& flujo_;
    Octetos datos_;
    bool primero_ = true;
};

void EscribirTexto(RegistroPartido& registro, const TextoBiff& texto) {
    const std::size_t ancho = texto.OctetosPorCaracter();
    if (registro.Libres() < CabeceraDeTexto + ancho) registro.Cortar();
    registro.Datos().U16(texto.Caracteres()).U8(texto.Marca());
    for (std::size_t escritos = 0; escritos < texto.Caracteres();) {
        if (registro.Libres() < ancho) {
            registro.Cortar();
            registro.Datos().U8(texto.Marca());
        }
        const std::size_t caben = std::min(texto.Caracteres() - escritos, registro.Libres() / ancho);
        registro.Datos().Crudo(texto.Trozo(escritos, caben));
        escritos += caben;
    }
}

}  // namespace

std::uint32_t CadenasBiff::Indice(const std::string& texto) {
    ++referencias_;
    const auto [lugar, nuevo] = indices_.try_emplace(texto, static_cast<std::uint32_t>(textos_.size()));
    if (nuevo) textos_.push_back(&lugar->first);
    return lugar->second;
}

void CadenasBiff::Escribir(std::string& flujo) const {
    RegistroPartido registro(flujo);
    registro.Datos().U32(referencias_).U32(textos_.size());
    for (const std::string* texto : textos_) EscribirTexto(registro, TextoBiff(*texto, MaximoDeTexto));
}

}  // namespace trabex::xls
