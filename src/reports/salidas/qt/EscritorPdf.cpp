#include "reports/salidas/qt/EscritorPdf.h"

#include <QDateTime>
#include <QIODevice>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <optional>

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "reports/salidas/qt/Paginador.h"

namespace trabex::salidas::qt {

namespace {

/// The file as a device of the toolkit. The toolkit goes on past a failed write: the error is kept for the
/// end.
class Dispositivo : public QIODevice {
  public:
    explicit Dispositivo(ArchivoNuevo& archivo) : archivo_(archivo) { open(QIODevice::WriteOnly); }
    bool isSequential() const override { return true; }
    const std::optional<ErrorEjecucion>& Error() const { return error_; }

  protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char* bytes, qint64 cuantos) override {
        if (error_) return -1;
        try {
            archivo_.Escribir({bytes, static_cast<std::size_t>(cuantos)});
            return cuantos;
        } catch (const ErrorEjecucion& error) {
            error_ = error;
            return -1;
        }
    }

  private:
    ArchivoNuevo& archivo_;
    std::optional<ErrorEjecucion> error_;
};

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

void Pintar(const documento::Documento& documento, QIODevice& dispositivo) {
    const Paginador paginas(documento);
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

}  // namespace

void EscribirPdf(const documento::Documento& documento, const std::filesystem::path& destino) {
    ArchivoNuevo archivo(destino);
    Dispositivo dispositivo(archivo);
    Pintar(documento, dispositivo);
    if (dispositivo.Error()) throw ErrorEjecucion(*dispositivo.Error());
    archivo.Colocar();
}

}  // namespace trabex::salidas::qt
