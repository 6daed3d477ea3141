#include "reports/ui/qt/ImpresorasQt.h"

#include <QApplication>
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

void ImprimirPaginas(const documento::Documento& documento, QPrinter& impresora) {
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
    bool primeraHoja = true;
    for (int copia = 0; copia < copias; ++copia) {
        for (int i = primera; i < ultima; ++i) {
            if (!primeraHoja && !impresora.newPage()) throw ErrorEjecucion(CodigoError::ErrorImpresora);
            primeraHoja = false;
            salidas::qt::TintaDePintor tinta(pintor);
            paginas.Pintar(i, tinta);
        }
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
                            const PedidoDeImpresion& pedido) {
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
    ImprimirPaginas(documento, salida);
    return true;
}

}  // namespace trabex::reportes::ui::qt
