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

/// Each drawing as a picture, made once for all formats.
class Pinturas {
  public:
    Pinturas(const ProyectoCalculado& calculado, const Marcha& marcha) {
        std::vector<Dibujo> dibujos;
        for (const Lista& lista : calculado.Listas) {
            if (lista.De->Memoria == nullptr || lista.De->Dibujos == nullptr) continue;
            for (const Elemento& elemento : lista.Elementos)
                for (Dibujo& dibujo : lista.De->Dibujos(lista, elemento))
                    dibujos.push_back(std::move(dibujo));
        }
        std::vector<almacen::Bytes> hechas(dibujos.size());
        Repartir(marcha, "Dibujando la memoria", dibujos.size(), [&](std::size_t i, unsigned) {
            montaje::qt::SuperficieQt superficie;
            superficie.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips, dibujos[i].Dibujar);
            hechas[i] = superficie.Imagen().Png;
        });
        for (std::size_t i = 0; i < dibujos.size(); ++i)
            de_[dibujos[i].Clave + '\n' + dibujos[i].Titulo] = std::move(hechas[i]);
    }

    almacen::Bytes operator()(const Dibujo& dibujo) const {
        const auto cual = de_.find(dibujo.Clave + '\n' + dibujo.Titulo);
        return cual == de_.end() ? almacen::Bytes{} : cual->second;
    }

  private:
    std::map<std::string, almacen::Bytes> de_;
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
    Pintar pintar;
    if (dibujos) {
        pinturas.emplace(calculado, marcha);
        pintar = [&pinturas](const Dibujo& dibujo) { return (*pinturas)(dibujo); };
    }
    const std::string fecha = FormatoFecha(Hoy());
    Repartir(marcha, "Escribiendo la memoria", archivos.size(), [&](std::size_t i, unsigned) {
        const int formato = FormatoDe(archivos[i].Extension);
        try {
            motor.Exportar(formato == salidas::FormatoXls
                               ? ComponerMemoriaEnHojas(calculado, fecha, numeros, pintar)
                               : ComponerMemoria(calculado, fecha, numeros, pintar),
                           formato, archivos[i].Camino);
        } catch (const ErrorEjecucion& error) {
            faltas.Anotar(TextoDeCamino(archivos[i].Camino.filename()), error.Texto());
        }
    });
}

}  // namespace trabex::lote::qt
