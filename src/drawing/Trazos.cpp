#include "drawing/Trazos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "drawing/LienzoMudo.h"

namespace trabex::dibujo {

namespace {

// A drawing: the mark, width, height and side of a pixel, then its strokes, each a letter and what it needs.
// Whole numbers take seven bits a byte, the small ones of either sign first.
constexpr std::string_view Marca = "TRAZOS1\n";
enum Trazo : char {
    Letra = 'F',
    ColorDeTexto = 'C',
    Escrito = 'T',
    Recta = 'L',
    Figura = 'P',
    Rueda = 'O',
    Punto = 'X',
    Capa = 'K',
    Metros = 'M'
};
constexpr std::int32_t LadoMayor = 1 << 24;

class Escritor {
  public:
    explicit Escritor(std::string& bytes) : bytes_(bytes) {}

    Escritor& Octeto(char valor) {
        bytes_ += valor;
        return *this;
    }
    Escritor& Entero(std::int64_t valor) {
        auto resto = static_cast<std::uint64_t>(valor) << 1U ^ static_cast<std::uint64_t>(valor >> 63);
        for (; resto >= 0x80; resto >>= 7U) bytes_ += static_cast<char>(resto | 0x80U);
        return Octeto(static_cast<char>(resto));
    }
    Escritor& Texto(std::string_view texto) {
        Entero(static_cast<std::int64_t>(texto.size()));
        bytes_ += texto;
        return *this;
    }
    Escritor& Real(double valor) {
        std::array<char, 32> cifras{};
        const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor).ptr;
        return Texto({cifras.data(), static_cast<std::size_t>(fin - cifras.data())});
    }
    Escritor& Lugar(PuntoLienzo punto) { return Entero(punto.x).Entero(punto.y); }
    Escritor& Tinta(Color color) {
        return Octeto(static_cast<char>(color.R))
            .Octeto(static_cast<char>(color.G))
            .Octeto(static_cast<char>(color.B));
    }
    Escritor& Trazado(const Pluma& pluma) {
        return Entero(pluma.Ancho).Octeto(static_cast<char>(pluma.Estilo)).Tinta(pluma.Tinta);
    }
    Escritor& Aspecto(const std::optional<Pluma>& pluma, const std::optional<Color>& relleno) {
        Octeto(static_cast<char>((pluma ? 1 : 0) | (relleno ? 2 : 0)));
        if (pluma) Trazado(*pluma);
        if (relleno) Tinta(*relleno);
        return *this;
    }

  private:
    std::string& bytes_;
};

/// Reads what the writer wrote. Past the end, or past what can be meant, everything is 0 and `Bien` false.
class Lector {
  public:
    explicit Lector(std::string_view bytes) : bytes_(bytes) {}

    bool Bien() const { return bien_; }
    bool Quedan() const { return bien_ && !bytes_.empty(); }

    char Octeto() {
        if (bytes_.empty()) return Mal(), '\0';
        const char valor = bytes_.front();
        bytes_.remove_prefix(1);
        return valor;
    }
    std::int32_t Entero() {
        std::uint64_t valor = 0;
        for (unsigned corrimiento = 0; corrimiento < 35; corrimiento += 7) {
            const auto octeto = static_cast<unsigned char>(Octeto());
            valor |= static_cast<std::uint64_t>(octeto & 0x7FU) << corrimiento;
            if (octeto >= 0x80) continue;
            const std::int64_t entero =
                static_cast<std::int64_t>(valor >> 1U) ^ -static_cast<std::int64_t>(valor & 1U);
            if (entero == static_cast<std::int32_t>(entero)) return static_cast<std::int32_t>(entero);
            break;
        }
        return Mal(), 0;
    }
    std::string Texto() {
        const std::int32_t largo = Entero();
        if (largo < 0 || static_cast<std::size_t>(largo) > bytes_.size()) return Mal(), "";
        std::string texto(bytes_.substr(0, static_cast<std::size_t>(largo)));
        bytes_.remove_prefix(texto.size());
        return texto;
    }
    double Real() {
        const std::string cifras = Texto();
        double valor = 0;
        const auto leido = std::from_chars(cifras.data(), cifras.data() + cifras.size(), valor);
        if (leido.ec != std::errc() || !std::isfinite(valor)) return Mal(), 0;
        return valor;
    }
    PuntoLienzo Lugar() {
        const std::int32_t x = Entero();
        return {x, Entero()};
    }
    Color Tinta() {
        const auto R = static_cast<std::uint8_t>(Octeto());
        const auto G = static_cast<std::uint8_t>(Octeto());
        return {R, G, static_cast<std::uint8_t>(Octeto())};
    }
    Pluma Trazado() {
        const std::int32_t ancho = Entero();
        const auto estilo = static_cast<EstiloLinea>(Octeto());
        return {ancho, estilo, Tinta()};
    }
    struct Aspecto {
        std::optional<Pluma> Borde;
        std::optional<Color> Relleno;
    };
    Aspecto LeerAspecto() {
        const char cuales = Octeto();
        Aspecto aspecto;
        if ((cuales & 1) != 0) aspecto.Borde = Trazado();
        if ((cuales & 2) != 0) aspecto.Relleno = Tinta();
        return aspecto;
    }
    std::vector<PuntoLienzo> Puntos() {
        const std::int32_t cuantos = Entero();
        if (cuantos < 0 || static_cast<std::size_t>(cuantos) > bytes_.size())
            return Mal(), std::vector<PuntoLienzo>();
        std::vector<PuntoLienzo> puntos;
        puntos.reserve(static_cast<std::size_t>(cuantos));
        for (std::int32_t i = 0; i < cuantos; ++i) puntos.push_back(Lugar());
        return puntos;
    }
    void Mal() {
        bien_ = false;
        bytes_ = {};
    }

  private:
    std::string_view bytes_;
    bool bien_ = true;
};

TextoTrazado LeerEscrito(Lector& lector) {
    TextoTrazado texto;
    texto.Texto = lector.Texto();
    texto.Lugar = lector.Lugar();
    texto.DecimasDeGrado = lector.Entero();
    texto.Medida.Ancho = lector.Entero();
    texto.Medida.Alto = lector.Entero();
    return texto;
}

/// Reads a stroke whole and then draws it.
template <class AlEscribir>
void RepetirUno(Lector& lector, Lienzo& destino, AlEscribir alEscribir) {
    switch (lector.Octeto()) {
        case Letra: {
            Fuente fuente;
            fuente.Nombre = lector.Texto();
            fuente.Puntos = lector.Entero() / 64.0;
            fuente.Negrita = lector.Octeto() != 0;
            if (lector.Bien()) destino.PonerFuente(fuente);
            return;
        }
        case ColorDeTexto: {
            const Color color = lector.Tinta();
            if (lector.Bien()) destino.PonerColorTexto(color);
            return;
        }
        case Escrito: {
            const TextoTrazado texto = LeerEscrito(lector);
            if (lector.Bien()) alEscribir(texto);
            return;
        }
        case Recta: {
            const PuntoLienzo desde = lector.Lugar();
            const PuntoLienzo hasta = lector.Lugar();
            const Pluma pluma = lector.Trazado();
            if (lector.Bien()) destino.Linea(desde, hasta, pluma);
            return;
        }
        case Figura: {
            const std::vector<PuntoLienzo> puntos = lector.Puntos();
            const Lector::Aspecto aspecto = lector.LeerAspecto();
            if (lector.Bien()) destino.Poligono(puntos, aspecto.Borde, aspecto.Relleno);
            return;
        }
        case Rueda: {
            const PuntoLienzo centro = lector.Lugar();
            const std::int32_t radio = lector.Entero();
            const Lector::Aspecto aspecto = lector.LeerAspecto();
            if (lector.Bien()) destino.Circulo(centro, radio, aspecto.Borde, aspecto.Relleno);
            return;
        }
        case Punto: {
            const PuntoLienzo lugar = lector.Lugar();
            const Color color = lector.Tinta();
            if (lector.Bien()) destino.Pixel(lugar, color);
            return;
        }
        case Capa: {
            const std::string capa = lector.Texto();
            if (lector.Bien()) destino.PonerCapa(capa);
            return;
        }
        case Metros: {
            const double porMetro = lector.Real();
            const MetrosEnLienzo metros{porMetro, lector.Lugar()};
            if (lector.Bien()) destino.PonerMetros(metros);
            return;
        }
        default:
            lector.Mal();
    }
}

std::optional<MedidaDeTrazos> LeerMedida(Lector& lector) {
    const MedidaDeTrazos medida{lector.Entero(), lector.Entero(), lector.Entero()};
    const auto vale = [](std::int32_t lado) { return lado > 0 && lado <= LadoMayor; };
    return lector.Bien() && vale(medida.Ancho) && vale(medida.Alto) && vale(medida.LadoDePixel)
               ? std::optional(medida)
               : std::nullopt;
}

/// Draws what the bytes hold on a canvas, save its texts, which are handed over.
template <class AlEscribir>
void Recorrer(std::string_view trazos, Lienzo& destino, AlEscribir alEscribir) {
    if (!MedidaDe(trazos)) return;
    Lector lector(trazos.substr(Marca.size()));
    LeerMedida(lector);
    while (lector.Quedan()) RepetirUno(lector, destino, alEscribir);
}

}  // namespace

LienzoConTrazos::LienzoConTrazos(Lienzo& destino) : destino_(destino) {
    Empezar();
}

void LienzoConTrazos::Empezar() {
    trazos_ = Marca;
    Escritor(trazos_).Entero(ScaleWidth()).Entero(ScaleHeight()).Entero(LadoDePixel());
}

void LienzoConTrazos::Limpiar() {
    destino_.Limpiar();
    Empezar();
    // Font and colour outlive the picture.
    if (fuente_.Nombre.empty()) return;
    PonerFuente(fuente_);
    PonerColorTexto(texto_);
}

void LienzoConTrazos::PonerFuente(const Fuente& fuente) {
    destino_.PonerFuente(fuente);
    fuente_ = fuente;
    const double puntos = std::isfinite(fuente.Puntos) ? std::clamp(fuente.Puntos, 0.0, 1e6) : 0.0;
    Escritor(trazos_)
        .Octeto(Letra)
        .Texto(fuente.Nombre)
        .Entero(std::llround(64 * puntos))
        .Octeto(fuente.Negrita ? 1 : 0);
}

void LienzoConTrazos::PonerColorTexto(Color color) {
    destino_.PonerColorTexto(color);
    texto_ = color;
    Escritor(trazos_).Octeto(ColorDeTexto).Tinta(color);
}

void LienzoConTrazos::Texto(std::string_view texto, PuntoLienzo lugar, std::int32_t decimasDeGrado) {
    destino_.Texto(texto, lugar, decimasDeGrado);
    const MedidaTexto medida = destino_.Medir(texto);
    Escritor(trazos_)
        .Octeto(Escrito)
        .Texto(texto)
        .Lugar(lugar)
        .Entero(decimasDeGrado)
        .Entero(medida.Ancho)
        .Entero(medida.Alto);
}

void LienzoConTrazos::Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) {
    destino_.Linea(desde, hasta, pluma);
    Escritor(trazos_).Octeto(Recta).Lugar(desde).Lugar(hasta).Trazado(pluma);
}

void LienzoConTrazos::Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                               const std::optional<Color>& relleno) {
    destino_.Poligono(puntos, pluma, relleno);
    Escritor escritor(trazos_);
    escritor.Octeto(Figura).Entero(static_cast<std::int64_t>(puntos.size()));
    for (const PuntoLienzo& punto : puntos) escritor.Lugar(punto);
    escritor.Aspecto(pluma, relleno);
}

void LienzoConTrazos::Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                              const std::optional<Color>& relleno) {
    destino_.Circulo(centro, radio, pluma, relleno);
    Escritor(trazos_).Octeto(Rueda).Lugar(centro).Entero(radio).Aspecto(pluma, relleno);
}

void LienzoConTrazos::Pixel(PuntoLienzo lugar, Color color) {
    destino_.Pixel(lugar, color);
    Escritor(trazos_).Octeto(Punto).Lugar(lugar).Tinta(color);
}

void LienzoConTrazos::PonerCapa(std::string_view capa) {
    destino_.PonerCapa(capa);
    Escritor(trazos_).Octeto(Capa).Texto(capa);
}

void LienzoConTrazos::PonerMetros(const MetrosEnLienzo& metros) {
    destino_.PonerMetros(metros);
    Escritor(trazos_).Octeto(Metros).Real(metros.PorMetro).Lugar(metros.Origen);
}

std::optional<MedidaDeTrazos> MedidaDe(std::string_view trazos) {
    if (!trazos.starts_with(Marca)) return std::nullopt;
    Lector lector(trazos.substr(Marca.size()));
    return LeerMedida(lector);
}

void Repetir(std::string_view trazos, Lienzo& destino,
             const std::function<void(const TextoTrazado&)>& alEscribir) {
    Recorrer(trazos, destino, alEscribir);
}

void Repetir(std::string_view trazos, Lienzo& destino) {
    Recorrer(trazos, destino, [&](const TextoTrazado& texto) {
        destino.Texto(texto.Texto, texto.Lugar, texto.DecimasDeGrado);
    });
}

std::vector<TextoTrazado> TextosDe(std::string_view trazos) {
    std::vector<TextoTrazado> textos;
    LienzoMudo mudo;
    Recorrer(trazos, mudo, [&](const TextoTrazado& texto) { textos.push_back(texto); });
    return textos;
}

}  // namespace trabex::dibujo
