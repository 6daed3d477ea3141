#include "reports/ui/qt/ImpresorasQt.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "reports/salidas/qt/Paginador.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

namespace {

QPageLayout HojaDe(const documento::Pagina& pagina) {
    const QPageSize tamano(pagina.Tamano == documento::TamanoPagina::A4 ? QPageSize::A4 : QPageSize::Letter);
    const auto orientacion = pagina.Apaisada ? QPageLayout::Landscape : QPageLayout::Portrait;
    return {tamano, orientacion, QMarginsF()};
}

}  // namespace

void Desechar(QPrinter& impresora, QPainter& pintor) {
    impresora.abort();
    pintor.end();
    if (!impresora.outputFileName().isEmpty()) QFile::remove(impresora.outputFileName());
}

void ImprimirPaginas(const documento::Documento& documento, QPrinter& impresora, const Avance& avance) {
    const QRectF papel = impresora.paperRect(QPrinter::Millimeter);
    const salidas::qt::Paginador paginas(documento, {papel.width(), papel.height()});
    const int primera = impresora.fromPage() > 0 ? impresora.fromPage() - 1 : 0;
    const int ultima = std::min(impresora.toPage() > 0 ? impresora.toPage() : paginas.NumeroPaginas(),
                                paginas.NumeroPaginas());
    // The system makes the copies where it can.
    const int copias = impresora.supportsMultipleCopies() ? 1 : impresora.copyCount();
    QPainter pintor;
    if (!pintor.begin(&impresora)) throw ErrorEjecucion(CodigoError::ErrorImpresora);
    const double escala = impresora.resolution() / (25.4 * salidas::qt::Milimetro);
    pintor.scale(escala, escala);
    const int hojas = copias * std::max(0, ultima - primera);
    try {
        for (int hoja = 0; hoja < hojas; ++hoja) {
            trabex::Avisar(avance, static_cast<std::size_t>(hoja), static_cast<std::size_t>(hojas));
            if (hoja > 0 && !impresora.newPage()) throw ErrorEjecucion(CodigoError::ErrorImpresora);
            salidas::qt::TintaDePintor tinta(pintor);
            paginas.Pintar(primera + hoja % (ultima - primera), tinta);
        }
    } catch (const TrabajoCancelado&) {
        Desechar(impresora, pintor);
        throw;
    }
}

std::vector<std::string> ImpresorasQt::Disponibles() const {
    std::vector<std::string> nombres;
    for (const QString& nombre : QPrinterInfo::availablePrinterNames())
        nombres.push_back(programa::qt::S(nombre));
    return nombres;
}

std::string ImpresorasQt::PorDefecto() const {
    return programa::qt::S(QPrinterInfo::defaultPrinterName());
}

bool ImpresorasQt::Imprimir(const documento::Documento& documento, const std::string& impresora,
                            const PedidoDeImpresion& pedido, const Avance& avance) {
    QPrinter salida(QPrinter::HighResolution);
    if (!impresora.empty()) salida.setPrinterName(programa::qt::Q(impresora));
    salida.setDocName(programa::qt::Q(documento.Titulo));
    salida.setCopyCount(pedido.Copias);
    if (pedido.Paginas.Ultima > 0) salida.setFromTo(pedido.Paginas.Primera, pedido.Paginas.Ultima);
    salida.setFullPage(true);
    salida.setPageLayout(HojaDe(documento.Papel));
    if (pedido.Preguntar) {
        QPrintDialog dialogo(&salida, QApplication::activeWindow());
        dialogo.setOption(QAbstractPrintDialog::PrintPageRange);
        if (dialogo.exec() != QDialog::Accepted) return false;
        salida.setFullPage(true);
    }
    ImprimirPaginas(documento, salida, avance);
    return true;
}

}  // namespace trabex::reportes::ui::qt
