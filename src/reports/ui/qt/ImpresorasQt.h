#pragma once

#include "reports/ui/SalidaReporte.h"

class QPainter;
class QPrinter;

namespace trabex::reportes::ui::qt {

/// Sends a document to a printer that is set up: on its own sheet, the pages and copies that were chosen.
/// Throws ErrorEjecucion 482 when the printer refuses, and TrabajoCancelado: nothing more of it comes out.
void ImprimirPaginas(const documento::Documento& documento, QPrinter& impresora, const Avance& avance = {});
/// Takes back what a printer has not printed yet; a file that it was writing goes.
void Desechar(QPrinter& impresora, QPainter& pintor);

/// The system's printers by the toolkit.
class ImpresorasQt : public Impresoras {
  public:
    std::vector<std::string> Disponibles() const override;
    std::string PorDefecto() const override;
    bool Imprimir(const documento::Documento& documento, const std::string& impresora,
                  const PedidoDeImpresion& pedido, const Avance& avance) override;
};

}  // namespace trabex::reportes::ui::qt
