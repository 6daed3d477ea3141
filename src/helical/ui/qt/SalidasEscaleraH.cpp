#include "helical/ui/qt/SalidasEscaleraH.h"

#include "drawing/helice/GraficoHelice.h"
#include "reports/ui/qt/ImprimirDibujos.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"

namespace trabex::helices::ui::qt {

OperacionesDeHelices SalidasEscaleraH::Operaciones() {
    const auto propia = [this](void (SalidasEscaleraH::*operacion)(EscaleraH&, VentanaEscaleraH&)) {
        return [this, operacion](EscaleraH& escaleras, VentanaEscaleraH& ventana) {
            if (escaleras.Lista().Vacia()) return;
            if (const auto& fallo = escaleras.Estado().Fallo)
                return reportes::ui::ExportadorReportes(entorno_).Avisar(*fallo);
            (this->*operacion)(escaleras, ventana);
        };
    };
    return {{"ID_Imprimir", propia(&SalidasEscaleraH::ImprimirGrafico)},
            {"ID_ExportarG", propia(&SalidasEscaleraH::ExportarImagen)}};
}

void SalidasEscaleraH::ImprimirGrafico(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    reportes::ui::qt::PedirEImprimirDibujos(entorno_, ventana, [&](dibujo::qt::PapelQt& papel) {
        papel.Pagina([&](dibujo::Lienzo& pagina) {
            dibujo::helice::DibujeEnPapel(
                pagina, escaleras.Estado().Hoja, escaleras.Calculada(),
                {aplicacion_.Usuario, aplicacion_.Datos.Proyecto, aplicacion_.Datos.Calculista});
        });
    });
}

/// The texts are those of paper, on a picture that is none.
void SalidasEscaleraH::ExportarImagen(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    dibujo::helice::EstiloHelice estilo = dibujo::helice::HeliceEnPapel;
    estilo.Medio = dibujo::helice::HeliceEnPantalla.Medio;
    estilo.Cabecera = dibujo::helice::HeliceEnPantalla.Cabecera;
    estilo.Pie = dibujo::helice::HeliceEnPantalla.Pie;
    reportes::ui::qt::VentanaExportarGrafico(
        {aplicacion_, salida_.Opciones, entorno_.Servicios},
        reportes::ui::qt::DibujoDeHoja(escaleras.Estado().Hoja,
                                       [&](dibujo::Lienzo& lienzo, dibujo::helice::HojaHelice& hoja) {
                                           dibujo::helice::RedibujeVista(lienzo, hoja, escaleras.Calculada(),
                                                                         estilo);
                                       }),
        &ventana)
        .exec();
}

}  // namespace trabex::helices::ui::qt
