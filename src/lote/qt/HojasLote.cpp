#include "lote/qt/HojasLote.h"

#include <QBuffer>
#include <QPdfWriter>
#include <array>
#include <atomic>
#include <exception>
#include <string>
#include <thread>
#include <vector>

#include "base/Archivos.h"
#include "drawing/losa/GraficoLosasPrinter.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/PapelQt.h"
#include "slab/salida/RecorrerLosas.h"

namespace trabex::lote::qt {

namespace {

/// A name without the characters that file systems refuse.
std::string ParaArchivo(std::string nombre) {
    for (char& letra : nombre) {
        if (std::string_view("\\/:*?\"<>|").find(letra) != std::string_view::npos ||
            static_cast<unsigned char>(letra) < ' ')
            letra = '_';
    }
    return nombre;
}

void EscribirPng(const QImage& imagen, const std::filesystem::path& archivo) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!imagen.save(&bytes, "PNG")) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
    EscribirArchivo(archivo, {bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())});
}

/// The three sheets, each on its page of A4 across.
void EscribirPapel(const losas::salida::LosaDelProyecto& losa, const dibujo::DatosDePagina& pagina,
                   const std::filesystem::path& archivo) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter papel(&bytes);
    papel.setResolution(dibujo::qt::UnidadesPorPulgadaDePapel);
    papel.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                                    QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter));
    papel.setTitle(QString::fromStdString(losa.Datos.Nombre));
    papel.setCreator("Trabex 2024");
    dibujo::qt::PapelQt hojas(papel);
    for (const std::uint8_t vista :
         {dibujo::losa::VistaGeometria, dibujo::losa::VistaFuerzas, dibujo::losa::VistaDiseno}) {
        dibujo::losa::HojaLosa hoja;
        hoja.VistaActual = vista;
        hojas.Pagina([&](dibujo::Lienzo& lienzo) {
            dibujo::losa::GuardeGraficos1(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados},
                                          pagina);
        });
    }
    hojas.Terminar();
    EscribirArchivo(archivo, {bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())});
}

std::string NombreDeHoja(const losas::salida::LosaDelProyecto& losa, const std::string& final) {
    return std::to_string(losa.Numero) + "-" + ParaArchivo(losa.Datos.Nombre) + "-" + final;
}

/// The pictures and the pages of one slab.
void EscribirLosa(const losas::salida::LosaDelProyecto& losa, const std::filesystem::path& carpeta) {
    constexpr std::array<const char*, 3> vistas{"geometria", "fuerzas", "diseno"};
    dibujo::losa::HojaLosa hoja;
    hoja.Vista.ExportandoGrafico = true;
    for (const std::uint8_t vista :
         {dibujo::losa::VistaGeometria, dibujo::losa::VistaFuerzas, dibujo::losa::VistaDiseno}) {
        hoja.VistaActual = vista;
        const QImage imagen = dibujo::qt::DibujarImagen(
            dibujo::qt::AnchoSuperficie, dibujo::qt::AltoSuperficie, 1, [&](dibujo::Lienzo& lienzo) {
                dibujo::losa::RedibujeVista(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados});
            });
        EscribirPng(imagen, carpeta / CaminoDeTexto(NombreDeHoja(losa, std::string(vistas[vista]) + ".png")));
    }
    EscribirPapel(losa, {"", losa.Proyecto.Proyecto, losa.Proyecto.Calculista},
                  carpeta / CaminoDeTexto(NombreDeHoja(losa, "papel.pdf")));
}

struct LosaGuardada {
    DatosDelProyecto Proyecto;
    losas::Losa Datos;
    DatosGenerales Generales;
    losas::ResultadosLosa Resultados;
};

}  // namespace

void EscribirHojas(const std::filesystem::path& proyecto, unsigned hilos,
                   const std::filesystem::path& carpeta) {
    std::vector<LosaGuardada> losas;
    losas::salida::RecorrerLosas(proyecto, [&](const losas::salida::LosaDelProyecto& losa) {
        losas.push_back({losa.Proyecto, losa.Datos, losa.Generales, losa.Resultados});
    });
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);

    std::atomic<std::size_t> siguiente{0};
    std::vector<std::exception_ptr> faltas(hilos);
    const auto trabajar = [&](unsigned hilo) {
        try {
            for (std::size_t i = siguiente++; i < losas.size(); i = siguiente++) {
                const LosaGuardada& losa = losas[i];
                EscribirLosa({i + 1, losa.Proyecto, losa.Datos, losa.Generales, losa.Resultados}, carpeta);
            }
        } catch (...) {
            faltas[hilo] = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> equipo;
        for (unsigned hilo = 1; hilo < hilos; ++hilo) equipo.emplace_back(trabajar, hilo);
        trabajar(0);
    }
    for (const std::exception_ptr& falta : faltas) {
        if (falta) std::rethrow_exception(falta);
    }
}

}  // namespace trabex::lote::qt
