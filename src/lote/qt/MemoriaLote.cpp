#include "lote/qt/MemoriaLote.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Archivos.h"
#include "base/Fecha.h"
#include "base/Formatos.h"
#include "drawing/Superficie.h"
#include "lote/EnParalelo.h"
#include "lote/Memoria.h"
#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"

namespace trabex::lote::qt {

namespace {

/// The drawings of a project, each drawn once for all formats: as strokes, and where a format takes no
/// strokes, as a picture.
class Pinturas {
  public:
    Pinturas(const ProyectoCalculado& calculado, bool conPixeles, const Marcha& marcha) {
        std::vector<std::pair<Pintura*, Dibujo>> dibujos;
        for (const Lista& lista : calculado.Listas) {
            if (lista.De->Memoria == nullptr || lista.De->Dibujos == nullptr) continue;
            for (const Elemento& elemento : lista.Elementos) {
                std::vector<Dibujo> suyos = lista.De->Dibujos(lista, elemento);
                std::vector<Pintura>& pinturas = de_[&elemento];
                pinturas.resize(suyos.size());
                for (std::size_t i = 0; i < suyos.size(); ++i) {
                    pinturas[i].Titulo = suyos[i].Titulo;
                    dibujos.emplace_back(&pinturas[i], std::move(suyos[i]));
                }
            }
        }
        Repartir(marcha, "Dibujando la memoria", dibujos.size(), [&](std::size_t i, unsigned) {
            montaje::qt::SuperficieQt superficie;
            superficie.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips,
                               dibujos[i].second.Dibujar);
            dibujos[i].first->Trazos = superficie.Trazos();
            if (conPixeles) dibujos[i].first->Png = superficie.Png();
        });
    }

    std::vector<documento::Imagen> De(const Elemento& elemento) const {
        std::vector<documento::Imagen> imagenes;
        const auto suyas = de_.find(&elemento);
        if (suyas == de_.end()) return imagenes;
        for (const Pintura& pintura : suyas->second)
            imagenes.push_back({[&pintura] { return pintura.Png; }, 0, 0, pintura.Titulo,
                                [&pintura] { return pintura.Trazos; }});
        return imagenes;
    }

  private:
    struct Pintura {
        std::string Titulo;
        almacen::Bytes Trazos;
        almacen::Bytes Png;
    };
    std::map<const Elemento*, std::vector<Pintura>> de_;
};

constexpr std::array<std::pair<std::string_view, int>, 4> Formatos{{{".pdf", salidas::FormatoPdf},
                                                                    {".htm", salidas::FormatoHtml},
                                                                    {".rtf", salidas::FormatoRtf},
                                                                    {".xls", salidas::FormatoXls}}};

int FormatoDe(std::string_view extension) {
    const auto* cual = std::find_if(Formatos.begin(), Formatos.end(),
                                    [&](const auto& formato) { return formato.first == extension; });
    return cual == Formatos.end() ? salidas::FormatoPdf : cual->second;
}

}  // namespace

void EscribirMemoria(const ProyectoCalculado& calculado, bool dibujos, const Separadores& numeros,
                     std::span<const ArchivoDeMemoria> archivos, const Marcha& marcha, Faltas& faltas) {
    salidas::MotorReportes motor;
    motor.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
    std::optional<Pinturas> pinturas;
    Ilustrar ilustrar;
    if (dibujos) {
        const bool conPixeles = std::any_of(archivos.begin(), archivos.end(), [](const auto& archivo) {
            return FormatoDe(archivo.Extension) != salidas::FormatoPdf;
        });
        pinturas.emplace(calculado, conPixeles, marcha);
        ilustrar = [&pinturas](const Elemento& elemento) { return pinturas->De(elemento); };
    }
    const std::string fecha = FormatoFecha(Hoy());
    Repartir(marcha, "Escribiendo la memoria", archivos.size(), [&](std::size_t i, unsigned) {
        const int formato = FormatoDe(archivos[i].Extension);
        try {
            motor.Exportar(formato == salidas::FormatoXls
                               ? ComponerMemoriaEnHojas(calculado, fecha, numeros, ilustrar)
                               : ComponerMemoria(calculado, fecha, numeros, ilustrar),
                           formato, archivos[i].Camino);
        } catch (const ErrorEjecucion& error) {
            faltas.Anotar(TextoDeCamino(archivos[i].Camino.filename()), error.Texto());
        }
    });
}

}  // namespace trabex::lote::qt
