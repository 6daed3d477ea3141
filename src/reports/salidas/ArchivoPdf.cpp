#include "reports/salidas/ArchivoPdf.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include <libdeflate.h>

#include "base/Texto.h"

namespace trabex::salidas {

namespace {

/// Pages are mostly short numbers: the fastest way takes a tenth more room and half the time.
constexpr int Rapidez = 1;

struct Soltar {
    void operator()(libdeflate_compressor* compresor) const { libdeflate_free_compressor(compresor); }
};

}  // namespace

/// Compresses one stream after another in the same memory.
class ArchivoPdf::Compresor {
  public:
    Compresor() : compresor_(libdeflate_alloc_compressor(Rapidez)) {
        if (!compresor_) throw ErrorEjecucion(CodigoError::MemoriaInsuficiente);
    }

    /// Valid until the next.
    std::string_view Comprimir(std::string_view bytes) {
        const std::size_t cota = libdeflate_zlib_compress_bound(compresor_.get(), bytes.size());
        if (salida_.size() < cota) salida_.resize(cota);
        const std::size_t largo = libdeflate_zlib_compress(compresor_.get(), bytes.data(), bytes.size(),
                                                           salida_.data(), salida_.size());
        if (largo == 0) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        return std::string_view(salida_).substr(0, largo);
    }

  private:
    std::unique_ptr<libdeflate_compressor, Soltar> compresor_;
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

std::int64_t UnidadesPdf(double valor, unsigned decimales) {
    constexpr std::array<double, 7> potencias{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    constexpr double limite = 1e12;
    if (!(std::fabs(valor) < limite)) valor = std::isnan(valor) ? 0 : std::copysign(limite, valor);
    return static_cast<std::int64_t>(valor * potencias[decimales] + std::copysign(0.5, valor));
}

void AgregarNumeroPdf(std::string& salida, std::int64_t unidades, unsigned decimales) {
    std::array<char, 32> cifras{};
    char* primera = cifras.data() + cifras.size();
    char* const fin = primera;
    std::int64_t resto = std::abs(unidades);
    for (unsigned i = 0; i < decimales; ++i, resto /= 10) {
        if (resto % 10 == 0 && primera == fin) continue;  // a last zero
        *--primera = static_cast<char>('0' + resto % 10);
    }
    if (primera != fin) *--primera = '.';
    do {
        *--primera = static_cast<char>('0' + resto % 10);
        resto /= 10;
    } while (resto > 0);
    if (unidades < 0) *--primera = '-';
    salida.append(primera, fin);
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
