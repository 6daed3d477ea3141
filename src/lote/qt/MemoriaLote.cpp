#include "lote/qt/MemoriaLote.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Archivos.h"
#include "base/Fecha.h"
#include "base/Formatos.h"
#include "lote/Memoria.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"

namespace trabex::lote::qt {

namespace {

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
                     std::span<const ArchivoDeMemoria> archivos, const Marcha& marcha, Faltas& faltas,
                     Pinturas* hechas) {
    salidas::MotorReportes motor;
    motor.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
    Pinturas propias;
    Pinturas& pinturas = hechas ? *hechas : propias;
    Ilustrar ilustrar;
    if (dibujos) {
        const bool conPixeles = std::any_of(archivos.begin(), archivos.end(), [](const auto& archivo) {
            return FormatoDe(archivo.Extension) != salidas::FormatoPdf;
        });
        pinturas.Completar(calculado, conPixeles, marcha);
        ilustrar = [&pinturas](const Elemento& elemento) { return pinturas.De(elemento); };
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
