#include "lote/qt/HojasLote.h"

#include <QBuffer>
#include <QPdfWriter>
#include <string>
#include <utility>
#include <vector>

#include "base/Archivos.h"
#include "base/Edicion.h"
#include "drawing/Superficie.h"
#include "drawing/archivos/DibujoDxf.h"
#include "drawing/archivos/DibujoSvg.h"
#include "drawing/qt/PapelQt.h"
#include "drawing/qt/TrazosFinos.h"
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

/// The files of one element. Each goes its own way: one that can't be written is noted.
class ArchivosDeElemento {
  public:
    ArchivosDeElemento(const Lista& lista, std::size_t numero, std::filesystem::path carpeta, Faltas& faltas)
        : modulo_(*lista.De),
          nombre_(lista.Elementos[numero].Nombre),
          inicio_(std::to_string(numero + 1) + "-" + ParaArchivo(nombre_) + "-"),
          carpeta_(std::move(carpeta)),
          faltas_(faltas) {}

    template <class Escribir>
    void Intentar(const std::string& hoja, const char* extension, const Escribir& escribir) const {
        try {
            escribir(carpeta_ / CaminoDeTexto(inicio_ + hoja + extension));
        } catch (const ErrorEjecucion& falta) {
            faltas_.Anotar(SalidaDe("la hoja " + hoja, modulo_.Nombre, nombre_), falta.Texto());
        }
    }

  private:
    const Modulo& modulo_;
    const std::string& nombre_;
    std::string inicio_;
    std::filesystem::path carpeta_;
    Faltas& faltas_;
};

template <class Accion>
void PorElemento(const Lista& lista, const std::filesystem::path& carpeta, const Marcha& marcha,
                 Faltas& faltas, const Accion& accion) {
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    Repartir(marcha, "Dibujando", lista.Elementos.size(), [&](std::size_t i, unsigned) {
        accion(lista.Elementos[i], ArchivosDeElemento(lista, i, carpeta, faltas));
    });
}

}  // namespace

void EscribirHojas(const Lista& lista, const DatosDelProyecto& datos, const std::filesystem::path& carpeta,
                   const Marcha& marcha, Faltas& faltas) {
    const Modulo& modulo = *lista.De;
    PorElemento(lista, carpeta, marcha, faltas,
                [&](const Elemento& elemento, const ArchivosDeElemento& archivos) {
                    for (const Dibujo& dibujo : modulo.Dibujos(lista, elemento))
                        archivos.Intentar(dibujo.Clave, ".png", [&](const std::filesystem::path& archivo) {
                            EscribirPng(dibujo, archivo);
                        });
                    if (modulo.Papel)
                        archivos.Intentar("papel", ".pdf", [&](const std::filesystem::path& archivo) {
                            EscribirPapel(elemento.Nombre, modulo.Papel(lista, elemento, datos), archivo);
                        });
                });
}

void EscribirVectores(const Lista& lista, const std::filesystem::path& carpeta, const Marcha& marcha,
                      Faltas& faltas) {
    PorElemento(lista, carpeta, marcha, faltas,
                [&](const Elemento& elemento, const ArchivosDeElemento& archivos) {
                    for (const Dibujo& dibujo : lista.De->Dibujos(lista, elemento)) {
                        const std::string trazos = dibujo::qt::TrazosFinos(
                            dibujo::AnchoGraficoTwips / dibujo::TwipsPorUnidad,
                            dibujo::AltoGraficoTwips / dibujo::TwipsPorUnidad, dibujo.Dibujar);
                        archivos.Intentar(dibujo.Clave, ".svg", [&](const std::filesystem::path& archivo) {
                            EscribirArchivo(archivo, dibujo::archivos::DibujoSvg(trazos, dibujo.Titulo));
                        });
                        archivos.Intentar(dibujo.Clave, ".dxf", [&](const std::filesystem::path& archivo) {
                            EscribirArchivo(archivo, dibujo::archivos::DibujoDxf(trazos));
                        });
                    }
                });
}

}  // namespace trabex::lote::qt
