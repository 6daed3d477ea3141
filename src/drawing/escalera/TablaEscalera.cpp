#include "drawing/escalera/TablaEscalera.h"

#include <algorithm>
#include <string>

#include "drawing/Primitivas.h"
#include "drawing/Reparto.h"

namespace trabex::dibujo::escalera {

namespace {

using escaleras::Cifra;
using escaleras::DatosEscaleraT;
using escaleras::EstacionesDeDescanso;
using escaleras::EstacionesDeTramo;
using escaleras::FilaDeHoja;
using escaleras::LineaDeCifras;
using escaleras::LugarDeCifra;

constexpr double SobreBase = 0.04;  // m from the base line to a number above it
constexpr double BajoBase = 0.05;
constexpr std::int32_t PixelesEntreFilas = 3;
constexpr double LetraMenor = 6;  // points
constexpr Color TintaFalla{255, 0, 0};
constexpr Color TintaRegla{200, 206, 210};

/// Canvas columns of the stations as they stand in the drawing.
std::vector<double> ColumnasDe(const Plano& p, const DatosEscaleraT& e) {
    const double medio = escaleras::LongitudEnPlanta(e) / 2;
    std::vector<double> columnas;
    for (std::size_t c = 0; c < EstacionesDeTramo; ++c)
        columnas.push_back(p.X(-medio + static_cast<double>(c) * (e.L / 10)));
    for (std::size_t c = 0; c < EstacionesDeDescanso; ++c)
        columnas.push_back(p.X(medio - e.B + static_cast<double>(c) * (e.B / 6)));
    return columnas;
}

/// The text in lines of up to `ancho`; a word that is longer has a line of its own.
std::vector<std::string> EnLineas(Lienzo& lienzo, std::string_view texto, double ancho) {
    std::vector<std::string> lineas;
    while (!texto.empty()) {
        const std::size_t fin = std::min(texto.find(' '), texto.size());
        const std::string palabra(texto.substr(0, fin));
        texto.remove_prefix(std::min(fin + 1, texto.size()));
        if (!lineas.empty() && lienzo.Medir(lineas.back() + " " + palabra).Ancho <= ancho)
            lineas.back() += " " + palabra;
        else
            lineas.push_back(palabra);
    }
    return lineas;
}

/// A row on its canvas: how far its numbers and its label reach from its base line.
struct FilaMedida {
    const FilaDeHoja& Fila;
    std::vector<std::string> Rotulo;
    double Sobre = 0;
    double Bajo = 0;
    double MedioRotulo = 0;
    double Base = 0;
};

class Tabla {
  public:
    /// The table in the current font.
    Tabla(const Plano& plano, const std::vector<double>& columnas, const SitioDeTabla& sitio,
          const std::vector<FilaDeHoja>& filas)
        : p_(plano),
          sitio_(sitio),
          alto_(plano.ElLienzo().Medir("WW").Alto),
          columnas_(Repartir(columnas, alto_)),
          finDeRotulos_(std::min(sitio.FinDeRotulos,
                                 columnas_.front() - alto_ / 2 - plano.Unidades(PixelesEntreFilas))) {
        for (const FilaDeHoja& fila : filas) filas_.push_back(Medir(fila));
        UbicarFilas();
    }

    bool Cabe() const {
        const FilaMedida& ultima = filas_.back();
        return ultima.Base + std::max(ultima.Bajo, ultima.MedioRotulo) <= sitio_.Hasta &&
               std::all_of(filas_.begin(), filas_.end(), [&](const FilaMedida& fila) {
                   return std::all_of(fila.Rotulo.begin(), fila.Rotulo.end(), [&](const std::string& linea) {
                       return p_.ElLienzo().Medir(linea).Ancho <= finDeRotulos_;
                   });
               });
    }

    void Dibujar() const {
        for (const FilaMedida& fila : filas_) {
            DibujarRegla(fila);
            DibujarRotulo(fila);
            for (const LineaDeCifras& linea : fila.Fila.Lineas) DibujarLinea(linea, fila.Base);
        }
        DibujarDivision(filas_.front().Base - filas_.front().Sobre, filas_.back().Base + filas_.back().Bajo);
    }

  private:
    double AnchoMayor(const LineaDeCifras& linea) const {
        std::int32_t mayor = 0;
        for (const auto* parte : {&linea.Tramo, &linea.Descanso})
            for (const Cifra& cifra : *parte) mayor = std::max(mayor, p_.ElLienzo().Medir(cifra.Texto).Ancho);
        return mayor;
    }

    FilaMedida Medir(const FilaDeHoja& fila) const {
        FilaMedida medida{fila, EnLineas(p_.ElLienzo(), fila.Rotulo, finDeRotulos_)};
        medida.MedioRotulo = static_cast<double>(medida.Rotulo.size()) * alto_ / 2;
        for (const LineaDeCifras& linea : fila.Lineas) {
            const double ancho = AnchoMayor(linea);
            if (linea.Lugar == LugarDeCifra::Encima) medida.Sobre = SobreBase * p_.Escala() + ancho;
            if (linea.Lugar == LugarDeCifra::Debajo) medida.Bajo = BajoBase * p_.Escala() + ancho;
            if (linea.Lugar == LugarDeCifra::Centrada) medida.Sobre = medida.Bajo = ancho / 2;
        }
        return medida;
    }

    void UbicarFilas() {
        const double aire = p_.Unidades(PixelesEntreFilas);
        double cifras = sitio_.Libre;
        double rotulos = sitio_.Libre;
        for (FilaMedida& fila : filas_) {
            const double propia = sitio_.Arriba + fila.Fila.Desfase * p_.Escala();
            fila.Base = std::max({propia, cifras + aire + fila.Sobre, rotulos + fila.MedioRotulo});
            cifras = fila.Base + fila.Bajo;
            rotulos = fila.Base + fila.MedioRotulo;
        }
    }

    /// A line to read numbers along, where it does not run through them.
    void DibujarRegla(const FilaMedida& fila) const {
        if (fila.Fila.Lineas.front().Lugar == LugarDeCifra::Centrada) return;
        DibujeLinea(p_.ElLienzo(), Pixeles(finDeRotulos_), Pixeles(fila.Base),
                    Pixeles(columnas_.back() + alto_ / 2), Pixeles(fila.Base), 1, EstiloLinea::Solida,
                    TintaRegla);
    }

    /// Between the flight's columns and the landing's.
    void DibujarDivision(double desde, double hasta) const {
        const std::int32_t x = Pixeles((columnas_[EstacionesDeTramo - 1] + columnas_[EstacionesDeTramo]) / 2);
        DibujeLinea(p_.ElLienzo(), x, Pixeles(desde), x, Pixeles(hasta), 1, EstiloLinea::Solida, TintaRegla);
    }

    void DibujarRotulo(const FilaMedida& fila) const {
        double y = fila.Base - fila.MedioRotulo;
        for (const std::string& linea : fila.Rotulo) {
            p_.Escribir(linea, Ancla::Derecha, Pixeles(finDeRotulos_), Pixeles(y));
            y += alto_;
        }
    }

    void DibujarLinea(const LineaDeCifras& linea, double base) const {
        DibujarCifras(linea.Tramo, 0, linea.Lugar, base);
        DibujarCifras(linea.Descanso, EstacionesDeTramo, linea.Lugar, base);
    }

    void DibujarCifras(const std::vector<Cifra>& cifras, std::size_t primera, LugarDeCifra lugar,
                       double base) const {
        for (std::size_t c = 0; c < cifras.size(); ++c) {
            const double medio = p_.ElLienzo().Medir(cifras[c].Texto).Ancho / 2.0;
            double y = base;
            if (lugar == LugarDeCifra::Encima) y -= SobreBase * p_.Escala() + medio;
            if (lugar == LugarDeCifra::Debajo) y += BajoBase * p_.Escala() + medio;
            if (cifras[c].Falla) p_.ElLienzo().PonerColorTexto(TintaFalla);
            p_.EscribirCentrado(cifras[c].Texto, columnas_[primera + c], y, 90);
            if (cifras[c].Falla) p_.ElLienzo().PonerColorTexto(p_.ElLienzo().ColorTextoDeBotones());
        }
    }

    const Plano& p_;
    const SitioDeTabla& sitio_;
    double alto_;  // of a line of text
    std::vector<double> columnas_;
    double finDeRotulos_;  // clear of the first column
    std::vector<FilaMedida> filas_;
};

}  // namespace

void DibujeTabla(const Plano& plano, const DatosEscaleraT& escalera, const std::vector<FilaDeHoja>& filas,
                 const SitioDeTabla& sitio) {
    const std::vector<double> columnas = ColumnasDe(plano, escalera);
    for (double letra = LetraDeTabla;; letra -= 0.5) {
        plano.Letra(letra);
        const Tabla tabla(plano, columnas, sitio, filas);
        if (tabla.Cabe() || letra <= LetraMenor) return tabla.Dibujar();
    }
}

}  // namespace trabex::dibujo::escalera
