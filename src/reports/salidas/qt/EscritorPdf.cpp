#include "reports/salidas/qt/EscritorPdf.h"

#include <QDateTime>
#include <cmath>
#include <string>
#include <vector>

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "base/Marcado.h"
#include "reports/salidas/ArchivoPdf.h"
#include "reports/salidas/qt/HojaPdf.h"
#include "reports/salidas/qt/Paginador.h"

namespace trabex::salidas::qt {

namespace {

/// What the document is called and who made it, as readers of PDF look for it.
std::string Metadatos(const documento::Documento& documento, const std::string& hoy) {
    return "<?xpacket begin='\xEF\xBB\xBF' id='W5M0MpCehiHzreSzNTczkc9d'?>\n"
           "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
           "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/' "
           "xmlns:xmp='http://ns.adobe.com/xap/1.0/'>"
           "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>" +
           TextoDeMarcado(documento.Titulo) + "</rdf:li></rdf:Alt></dc:title><dc:creator><rdf:Seq><rdf:li>" +
           TextoDeMarcado(documento.Autor) + "</rdf:li></rdf:Seq></dc:creator><xmp:CreateDate>" + hoy +
           "</xmp:CreateDate></rdf:Description></rdf:RDF></x:xmpmeta>\n<?xpacket end='w'?>";
}

constexpr unsigned DecimalesDeHoja = 3;

/// A file of a document's pages while it is written.
class Escritura {
  public:
    Escritura(const documento::Documento& documento, ArchivoNuevo& destino)
        : documento_(documento), paginas_(documento), archivo_(destino), imagenes_(archivo_) {}

    void Escribir(const Avance& avance) {
        const std::size_t raiz = archivo_.Reservar();
        const std::size_t ficha = archivo_.Reservar();
        EscribirPaginas(avance);
        const QDateTime ahora = QDateTime::currentDateTime();
        const std::size_t metadatos = archivo_.Reservar();
        archivo_.Flujo(metadatos, "/Type/Metadata/Subtype/XML",
                       Metadatos(documento_, ahora.toString(Qt::ISODate).toStdString()), false);
        archivo_.Objeto(raiz, "/Type/Catalog/Pages " + ArchivoPdf::Enlace(arbol_) + "/Metadata " +
                                  ArchivoPdf::Enlace(metadatos) + EscribirMarcadores());
        archivo_.Objeto(
            ficha, "/Title " + TextoPdf(documento_.Titulo) + "/Author " + TextoPdf(documento_.Autor) +
                       "/Creator " + TextoPdf(ProgramaYEdicion) + "/Producer " + TextoPdf(ProgramaYEdicion) +
                       "/CreationDate (D:" + ahora.toString("yyyyMMddHHmmss").toStdString() + ")");
        archivo_.Terminar(raiz, ficha);
    }

  private:
    void EscribirPaginas(const Avance& avance) {
        arbol_ = archivo_.Reservar();
        const std::size_t recursos = archivo_.Reservar();
        const double alto = paginas_.Papel().Alto * Milimetro;
        std::string hijas;
        for (int i = 0; i < paginas_.NumeroPaginas(); ++i) {
            Avisar(avance, numeros_.size(), static_cast<std::size_t>(paginas_.NumeroPaginas()));
            TintaPdf tinta(letras_, imagenes_, alto);
            paginas_.Pintar(i, tinta);
            const std::size_t contenido = archivo_.Reservar();
            archivo_.Flujo(contenido, "", tinta.Terminar());
            numeros_.push_back(archivo_.Reservar());
            archivo_.Objeto(numeros_.back(), "/Type/Page/Parent " + ArchivoPdf::Enlace(arbol_) +
                                                 "/Contents " + ArchivoPdf::Enlace(contenido));
            hijas += ArchivoPdf::Enlace(numeros_.back()) + "\n";
        }
        std::string medida = "/MediaBox[0 0";
        for (const double lado : {paginas_.Papel().Ancho * Milimetro, alto}) {
            medida += ' ';
            AgregarNumeroPdf(medida, UnidadesPdf(lado / PuntoTipografico, DecimalesDeHoja), DecimalesDeHoja);
        }
        archivo_.Objeto(arbol_, "/Type/Pages/Count " + std::to_string(numeros_.size()) + medida +
                                    "]/Resources " + ArchivoPdf::Enlace(recursos) + "/Kids[" + hijas + "]");
        archivo_.Objeto(recursos,
                        "/Font<<" + letras_.Escribir(archivo_) + ">>/XObject<<" + imagenes_.Nombres() + ">>");
    }

    /// One bookmark a section, where there are several; what the root says of them.
    std::string EscribirMarcadores() {
        const std::vector<Comienzo>& comienzos = paginas_.Comienzos();
        if (comienzos.size() < 2) return {};
        const std::size_t indice = archivo_.Reservar();
        std::vector<std::size_t> marcadores;
        for (std::size_t i = 0; i < comienzos.size(); ++i) marcadores.push_back(archivo_.Reservar());
        const auto enlace = [&](const char* nombre, std::size_t i) {
            return nombre + ArchivoPdf::Enlace(marcadores[i]);
        };
        for (std::size_t i = 0; i < comienzos.size(); ++i) {
            const double y = (paginas_.Papel().Alto * Milimetro - comienzos[i].Y) / PuntoTipografico;
            archivo_.Objeto(marcadores[i],
                            "/Title " + TextoPdf(comienzos[i].Seccion) + "/Parent " +
                                ArchivoPdf::Enlace(indice) + (i > 0 ? enlace("/Prev ", i - 1) : "") +
                                (i + 1 < comienzos.size() ? enlace("/Next ", i + 1) : "") + "/Dest[" +
                                ArchivoPdf::Enlace(numeros_[static_cast<std::size_t>(comienzos[i].Pagina)]) +
                                "/XYZ 0 " + std::to_string(std::lround(y)) + " 0]");
        }
        archivo_.Objeto(indice, "/Type/Outlines/Count " + std::to_string(marcadores.size()) +
                                    enlace("/First ", 0) + enlace("/Last ", marcadores.size() - 1));
        return "/PageMode/UseOutlines/Outlines " + ArchivoPdf::Enlace(indice);
    }

    const documento::Documento& documento_;
    Paginador paginas_;
    ArchivoPdf archivo_;
    LetrasPdf letras_;
    ImagenesPdf imagenes_;
    std::size_t arbol_ = 0;
    std::vector<std::size_t> numeros_;  // of the pages
};

}  // namespace

void EscribirPdf(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance) {
    ArchivoNuevo archivo(destino);
    Escritura(documento, archivo).Escribir(avance);
    archivo.Colocar();
}

}  // namespace trabex::salidas::qt
