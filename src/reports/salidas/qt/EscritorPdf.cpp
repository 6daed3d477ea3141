#include "reports/salidas/qt/EscritorPdf.h"

#include <QBuffer>
#include <QDateTime>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <string_view>
#include <vector>

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "reports/salidas/ComplementoPdf.h"
#include "reports/salidas/qt/Paginador.h"

namespace trabex::salidas::qt {

namespace {

/// What the document is called and who made it, as readers of PDF look for it.
QByteArray Metadatos(const documento::Documento& documento) {
    const auto texto = [](const std::string& t) {
        return QString::fromStdString(t).toHtmlEscaped().toUtf8();
    };
    return "<?xpacket begin='\xEF\xBB\xBF' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
           "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' "
           "xmlns:xmp='http://ns.adobe.com/xap/1.0/'>"
           "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>" +
           texto(documento.Titulo) + "</rdf:li></rdf:Alt></dc:title><dc:creator><rdf:Seq><rdf:li>" +
           texto(documento.Autor) + "</rdf:li></rdf:Seq></dc:creator><xmp:CreateDate>" +
           QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8() +
           "</xmp:CreateDate></rdf:Description></rdf:RDF></x:xmpmeta>\n<?xpacket end='w'?>";
}

constexpr int PuntosPorPulgada = 2540;  // hundredths of a millimetre, the unit of the pages

void Pintar(const documento::Documento& documento, const Paginador& paginas, QIODevice& dispositivo) {
    QPdfWriter escritor(&dispositivo);
    escritor.setResolution(PuntosPorPulgada);
    escritor.setTitle(QString::fromStdString(documento.Titulo));
    escritor.setCreator(ProgramaYEdicion);
    escritor.setDocumentXmpMetadata(Metadatos(documento));
    const QPageSize hoja(QSizeF(paginas.Papel().Ancho, paginas.Papel().Alto), QPageSize::Millimeter);
    escritor.setPageLayout(QPageLayout(hoja, QPageLayout::Portrait, QMarginsF()));
    QPainter pintor(&escritor);
    TintaDePintor tinta(pintor);
    for (int i = 0; i < paginas.NumeroPaginas(); ++i) {
        if (i > 0) escritor.newPage();
        paginas.Pintar(i, tinta);
    }
}

/// One bookmark a section, where there are several.
std::vector<MarcadorPdf> Marcadores(const Paginador& paginas) {
    std::vector<MarcadorPdf> marcadores;
    if (paginas.Comienzos().size() < 2) return marcadores;
    for (const Paginador::Comienzo& comienzo : paginas.Comienzos())
        marcadores.push_back({comienzo.Seccion, static_cast<std::size_t>(comienzo.Pagina),
                              (paginas.Papel().Alto * Milimetro - comienzo.Y) / PuntoTipografico});
    return marcadores;
}

}  // namespace

void EscribirPdf(const documento::Documento& documento, const std::filesystem::path& destino) {
    const Paginador paginas(documento);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    Pintar(documento, paginas, bytes);
    ArchivoNuevo archivo(destino);
    const std::string_view pdf(bytes.data().constData(), static_cast<std::size_t>(bytes.data().size()));
    archivo.Escribir(pdf);
    archivo.Escribir(ComplementoPdf(pdf, documento.Autor, Marcadores(paginas)));
    archivo.Colocar();
}

}  // namespace trabex::salidas::qt
