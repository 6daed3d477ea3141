#include "reports/salidas/ArchivoPdf.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <zlib.h>

#include "base/Texto.h"

namespace trabex::salidas {

namespace {

/// Pages are mostly short numbers: the fastest way takes a tenth more room and a third of the time.
constexpr int Rapidez = Z_BEST_SPEED;

}  // namespace

/// Compresses one stream after another in the same memory.
class ArchivoPdf::Compresor {
  public:
    Compresor() {
        if (deflateInit(&estado_, Rapidez) != Z_OK) throw ErrorEjecucion(CodigoError::MemoriaInsuficiente);
    }
    ~Compresor() { deflateEnd(&estado_); }
    Compresor(const Compresor&) = delete;
    Compresor& operator=(const Compresor&) = delete;

    /// Valid until the next.
    std::string_view Comprimir(std::string_view bytes) {
        const uLong cota = deflateBound(&estado_, static_cast<uLong>(bytes.size()));
        if (salida_.size() < cota) salida_.resize(cota);
        deflateReset(&estado_);
        estado_.next_in = reinterpret_cast<z_const Bytef*>(const_cast<char*>(bytes.data()));
        estado_.avail_in = static_cast<uInt>(bytes.size());
        estado_.next_out = reinterpret_cast<Bytef*>(salida_.data());
        estado_.avail_out = static_cast<uInt>(salida_.size());
        if (deflate(&estado_, Z_FINISH) != Z_STREAM_END) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        return std::string_view(salida_).substr(0, estado_.total_out);
    }

  private:
    z_stream estado_{};
    std::string salida_;
};

std::string TextoPdf(std::string_view texto) {
    std::string salida = "<FEFF";
    const auto unidad = [&salida](std::uint32_t valor) {
        std::array<char, 5> cifras{};
        std::snprintf(cifras.data(), cifras.size(), "%04X", static_cast<unsigned>(valor & 0xFFFFU));
        salida += cifras.data();
    };
    while (!texto.empty()) {
        const char32_t c = TomarCaracter(texto);
        if (c >= 0x10000) unidad(0xD7C0 + (c >> 10));
        unidad(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c);
    }
    return salida + ">";
}

void AgregarNumeroPdf(std::string& salida, double valor) {
    constexpr double limite = 1e12;
    constexpr std::int64_t milesimas = 1000;
    const double acotado = std::isfinite(valor) ? std::fmin(std::fmax(valor, -limite), limite) : 0;
    const std::int64_t redondeado = std::llround(acotado * milesimas);
    const std::int64_t entero = std::abs(redondeado);
    std::array<char, 24> cifras{'-'};
    char* const primera = cifras.data() + (redondeado < 0 ? 1 : 0);
    char* fin = std::to_chars(primera, cifras.data() + cifras.size(), entero / milesimas).ptr;
    const auto resto = static_cast<int>(entero % milesimas);
    if (resto > 0) {
        *fin++ = '.';
        *fin++ = static_cast<char>('0' + resto / 100);
        if (resto % 100 > 0) *fin++ = static_cast<char>('0' + resto / 10 % 10);
        if (resto % 10 > 0) *fin++ = static_cast<char>('0' + resto % 10);
    }
    salida.append(cifras.data(), fin);
}

ArchivoPdf::~ArchivoPdf() = default;

ArchivoPdf::ArchivoPdf(ArchivoNuevo& destino) : destino_(destino), compresor_(std::make_unique<Compresor>()) {
    Escribir("%PDF-1.4\n%\xE2\xE3\xCF\xD3\n");
}

std::size_t ArchivoPdf::Reservar() {
    lugares_.push_back(0);
    return lugares_.size() - 1;
}

void ArchivoPdf::Escribir(std::string_view bytes) {
    destino_.Escribir(bytes);
    largo_ += bytes.size();
}

void ArchivoPdf::Empezar(std::size_t numero) {
    lugares_[numero] = largo_;
    Escribir(std::to_string(numero) + " 0 obj\n");
}

void ArchivoPdf::Objeto(std::size_t numero, std::string_view contenido) {
    Empezar(numero);
    Escribir("<<" + std::string(contenido) + ">>\nendobj\n");
}

void ArchivoPdf::Flujo(std::size_t numero, std::string_view contenido, std::string_view bytes,
                       bool comprimir) {
    const std::string_view guardados = comprimir ? compresor_->Comprimir(bytes) : bytes;
    Empezar(numero);
    Escribir("<<" + std::string(contenido) + (comprimir ? "/Filter/FlateDecode" : "") + "/Length " +
             std::to_string(guardados.size()) + ">>\nstream\n");
    Escribir(guardados);
    Escribir("\nendstream\nendobj\n");
}

void ArchivoPdf::Terminar(std::size_t raiz, std::size_t ficha) {
    const std::size_t tabla = largo_;
    std::string fin = "xref\n0 " + std::to_string(lugares_.size()) + "\n0000000000 65535 f \n";
    for (std::size_t i = 1; i < lugares_.size(); ++i) {
        std::array<char, 32> entrada{};
        std::snprintf(entrada.data(), entrada.size(), "%010zu 00000 n \n", lugares_[i]);
        fin += entrada.data();
    }
    Escribir(fin + "trailer\n<</Size " + std::to_string(lugares_.size()) + "/Root " + Enlace(raiz) +
             "/Info " + Enlace(ficha) + ">>\nstartxref\n" + std::to_string(tabla) + "\n%%EOF\n");
}

}  // namespace trabex::salidas
