#include "lote/qt/HojasLote.h"

#include <QBuffer>
#include <QPdfWriter>
#include <string>
#include <vector>

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "drawing/Superficie.h"
#include "drawing/qt/PapelQt.h"
#include "lote/NombreDeArchivo.h"
#include "reports/montaje/qt/SuperficieQt.h"

namespace trabex::lote::qt {

namespace {

void Escribir(const QBuffer& bytes, const std::filesystem::path& archivo) {
    EscribirArchivo(archivo, {bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())});
}

void EscribirPng(const Dibujo& dibujo, const std::filesystem::path& archivo) {
    montaje::qt::SuperficieQt superficie(1);
    superficie.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips, dibujo.Dibujar);
    const almacen::Bytes png = superficie.Png();
    EscribirArchivo(archivo, {reinterpret_cast<const char*>(png.data()), png.size()});
}

/// Each drawing on its page of A4 across.
void EscribirPapel(const std::string& titulo,
                   const std::vector<std::function<void(dibujo::Lienzo&)>>& paginas,
                   const std::filesystem::path& archivo) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter papel(&bytes);
    papel.setResolution(dibujo::qt::UnidadesPorPulgadaDePapel);
    papel.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                    QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
    papel.setTitle(QString::fromStdString(titulo));
    papel.setCreator(ProgramaYEdicion);
    dibujo::qt::PapelQt hojas(papel);
    for (const auto& pagina : paginas) hojas.Pagina(pagina);
    hojas.Terminar();
    Escribir(bytes, archivo);
}

}  // namespace

void EscribirHojas(const Lista& lista, const DatosDelProyecto& datos, const std::filesystem::path& carpeta,
                   const Marcha& marcha, Faltas& faltas) {
    const Modulo& modulo = *lista.De;
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    Repartir(marcha, "Dibujando", lista.Elementos.size(), [&](std::size_t i, unsigned) {
        const Elemento& elemento = lista.Elementos[i];
        const std::string inicio = std::to_string(i + 1) + "-" + ParaArchivo(elemento.Nombre) + "-";
        const auto intentar = [&](const std::string& hoja, const char* extension, const auto& escribir) {
            try {
                escribir(carpeta / CaminoDeTexto(inicio + hoja + extension));
            } catch (const ErrorEjecucion& falta) {
                faltas.Anotar(SalidaDe("la hoja " + hoja, modulo.Nombre, elemento.Nombre), falta.Texto());
            }
        };
        for (const Dibujo& dibujo : modulo.Dibujos(lista, elemento))
            intentar(dibujo.Clave, ".png",
                     [&](const std::filesystem::path& archivo) { EscribirPng(dibujo, archivo); });
        if (modulo.Papel)
            intentar("papel", ".pdf", [&](const std::filesystem::path& archivo) {
                EscribirPapel(elemento.Nombre, modulo.Papel(lista, elemento, datos), archivo);
            });
    });
}

}  // namespace trabex::lote::qt
