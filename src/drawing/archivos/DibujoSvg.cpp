#include "drawing/archivos/DibujoSvg.h"

#include <array>
#include <charconv>

#include "base/Marcado.h"
#include "drawing/LienzoMudo.h"
#include "drawing/Trazos.h"

namespace trabex::dibujo::archivos {

namespace {

constexpr double PixelesPorPunto = 96.0 / 72;
constexpr double Ascenso = 0.81;  // of a line's height, above the text's base line

std::string Cifra(double valor) {
    std::array<char, 32> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor).ptr;
    return {cifras.data(), fin};
}

std::string Atributo(std::string_view nombre, std::string_view valor) {
    return " " + std::string(nombre) + "=\"" + TextoDeMarcado(valor) + "\"";
}
std::string Atributo(std::string_view nombre, double valor) {
    return Atributo(nombre, Cifra(valor));
}

std::string Tinta(Color color) {
    constexpr std::string_view cifras = "0123456789abcdef";
    std::string tinta = "#";
    for (const unsigned parte : {color.R, color.G, color.B}) {
        tinta += cifras[parte >> 4U];
        tinta += cifras[parte & 0xFU];
    }
    return tinta;
}

/// Writes what is repeated on it.
class LienzoSvg : public LienzoMudo {
  public:
    explicit LienzoSvg(std::int32_t lado) : lado_(lado) {}

    std::string Elementos() {
        CerrarCapa();
        return salida_;
    }

    void PonerCapa(std::string_view capa) override {
        CerrarCapa();
        salida_ += "<g" + Atributo("class", capa) + ">\n";
        enCapa_ = true;
    }
    void PonerFuente(const Fuente& fuente) override { fuente_ = fuente; }
    void PonerColorTexto(Color color) override { texto_ = color; }
    void Linea(PuntoLienzo desde, PuntoLienzo hasta, const Pluma& pluma) override {
        salida_ += "<line" + Atributo("x1", desde.x) + Atributo("y1", desde.y) + Atributo("x2", hasta.x) +
                   Atributo("y2", hasta.y) + Aspecto(pluma, std::nullopt) + "/>\n";
    }
    void Poligono(std::span<const PuntoLienzo> puntos, const std::optional<Pluma>& pluma,
                  const std::optional<Color>& relleno) override {
        std::string lugares;
        for (const PuntoLienzo& p : puntos)
            lugares += (lugares.empty() ? "" : " ") + std::to_string(p.x) + "," + std::to_string(p.y);
        salida_ += "<polygon" + Atributo("points", lugares) + Aspecto(pluma, relleno) + "/>\n";
    }
    void Circulo(PuntoLienzo centro, std::int32_t radio, const std::optional<Pluma>& pluma,
                 const std::optional<Color>& relleno) override {
        salida_ += "<circle" + Atributo("cx", centro.x) + Atributo("cy", centro.y) + Atributo("r", radio) +
                   Aspecto(pluma, relleno) + "/>\n";
    }
    void Pixel(PuntoLienzo lugar, Color color) override {
        salida_ += "<rect" + Atributo("x", lugar.x) + Atributo("y", lugar.y) + Atributo("width", lado_) +
                   Atributo("height", lado_) + Atributo("fill", Tinta(color)) + "/>\n";
    }
    void Escribir(const TextoTrazado& texto) {
        salida_ += "<text" + Atributo("x", texto.Lugar.x) +
                   Atributo("y", texto.Lugar.y + Ascenso * texto.Medida.Alto) +
                   Atributo("font-family",
                            fuente_.Nombre + ", Arial, 'Liberation Sans', 'DejaVu Sans', sans-serif") +
                   Atributo("font-size", fuente_.Puntos * PixelesPorPunto * lado_) +
                   Atributo("fill", Tinta(texto_)) + Atributo("textLength", texto.Medida.Ancho) +
                   Atributo("lengthAdjust", "spacingAndGlyphs");
        if (fuente_.Negrita) salida_ += Atributo("font-weight", "bold");
        if (texto.DecimasDeGrado != 0)
            salida_ += Atributo("transform", "rotate(" + Cifra(-texto.DecimasDeGrado / 10.0) + " " +
                                                 Cifra(texto.Lugar.x) + " " + Cifra(texto.Lugar.y) + ")");
        salida_ += ">" + TextoDeMarcado(texto.Texto) + "</text>\n";
    }

  private:
    std::string Aspecto(const std::optional<Pluma>& pluma, const std::optional<Color>& relleno) const {
        std::string aspecto = Atributo("fill", relleno ? Tinta(*relleno) : "none");
        if (!pluma) return aspecto;
        const double ancho = static_cast<double>(pluma->Ancho) * lado_;
        aspecto += Atributo("stroke", Tinta(pluma->Tinta)) + Atributo("stroke-width", ancho);
        if (pluma->Estilo == EstiloLinea::Punteada)
            aspecto += Atributo("stroke-dasharray", Cifra(ancho) + " " + Cifra(2 * ancho));
        return aspecto;
    }
    void CerrarCapa() {
        if (enCapa_) salida_ += "</g>\n";
        enCapa_ = false;
    }

    std::int32_t lado_;
    Fuente fuente_;
    Color texto_;
    bool enCapa_ = false;
    std::string salida_;
};

}  // namespace

std::string DibujoSvg(std::string_view trazos, std::string_view titulo) {
    const auto medida = MedidaDe(trazos);
    if (!medida) return {};
    LienzoSvg lienzo(medida->LadoDePixel);
    Repetir(trazos, lienzo, [&](const TextoTrazado& texto) { lienzo.Escribir(texto); });
    const double lado = medida->LadoDePixel;
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"" +
           Atributo("width", medida->Ancho / lado) + Atributo("height", medida->Alto / lado) +
           Atributo("viewBox", "0 0 " + Cifra(medida->Ancho) + " " + Cifra(medida->Alto)) +
           Atributo("xml:space", "preserve") + ">\n<title>" + TextoDeMarcado(titulo) +
           "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" + lienzo.Elementos() +
           "</svg>\n";
}

}  // namespace trabex::dibujo::archivos
