#include "reports/ui/qt/ImprimirDibujos.h"

#include <QPrintDialog>
#include <QPrinter>

#include "base/Edicion.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

void ImprimirDibujos(QPrinter& impresora, const std::function<void(dibujo::qt::PapelQt&)>& dibujar) {
    impresora.setResolution(dibujo::qt::UnidadesPorPulgadaDePapel);
    dibujo::qt::PapelQt papel(impresora);
    dibujar(papel);
    papel.Terminar();
}

void PedirEImprimirDibujos(EntornoSalida& entorno, QWidget& ventana,
                           const std::function<void(dibujo::qt::PapelQt&)>& dibujar) {
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
        ImprimirDibujos(impresora, dibujar);
        puntero.Poner(false);
    } catch (const ErrorEjecucion& error) {
        puntero.Poner(false);
        exportador.Avisar(error);
    }
}

}  // namespace trabex::reportes::ui::qt
