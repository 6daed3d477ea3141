#include "reports/ui/qt/ImprimirDibujos.h"

#include <QPrintDialog>
#include <QPrinter>

#include "base/Edicion.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

void ImprimirDibujos(QPrinter& impresora, const DibujarPaginas& dibujar, const Avance& avance) {
    impresora.setResolution(dibujo::qt::UnidadesPorPulgadaDePapel);
    dibujo::qt::PapelQt papel(impresora);
    try {
        dibujar(papel, avance);
    } catch (const TrabajoCancelado&) {
        Desechar(impresora, papel.Pintor());
        throw;
    }
    papel.Terminar();
}

void PedirEImprimirDibujos(EntornoSalida& entorno, QWidget& ventana, const DibujarPaginas& dibujar) {
    ExportadorReportes exportador(entorno);
    if (!exportador.HayImpresoras()) return;
    QPrinter impresora(QPrinter::HighResolution);
    if (!entorno.Estado.Impresora.empty())
        impresora.setPrinterName(programa::qt::Q(entorno.Estado.Impresora));
    impresora.setDocName(ProgramaYEdicion);
    QPrintDialog dialogo(&impresora, &ventana);
    if (dialogo.exec() != QDialog::Accepted) return;
    programa::qt::PunteroDeTrabajo puntero;
    puntero.Poner(true);
    try {
        exportador.ConPanel("Imprimiendo los Gráficos",
                            [&](const Avance& avance) { ImprimirDibujos(impresora, dibujar, avance); });
        puntero.Poner(false);
    } catch (const ErrorEjecucion& error) {
        puntero.Poner(false);
        exportador.Avisar(error);
    }
}

}  // namespace trabex::reportes::ui::qt
