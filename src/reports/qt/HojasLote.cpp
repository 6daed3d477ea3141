#include "reports/qt/HojasLote.h"

#include <QBuffer>
#include <array>
#include <string>

#include "base/Archivos.h"
#include "drawing/GraficoLosa.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "reports/RecorrerLosas.h"

namespace trabex {

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

}  // namespace

std::size_t EscribirHojas(const std::filesystem::path& proyecto, const std::filesystem::path& carpeta) {
    constexpr std::array<const char*, 3> vistas{"geometria", "fuerzas", "diseno"};
    std::error_code error;
    std::filesystem::create_directories(carpeta, error);
    std::size_t escritas = 0;
    RecorrerLosas(proyecto, [&](const LosaDelProyecto& losa) {
        HojaLosa hoja;
        hoja.Vista.ExportandoGrafico = true;
        for (std::uint8_t vista = 0; vista < vistas.size(); ++vista) {
            hoja.VistaActual = vista;
            const QImage imagen = DibujarImagen(AnchoSuperficie, AltoSuperficie, 1, [&](Lienzo& lienzo) {
                RedibujeVista(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados});
            });
            const std::string nombre = std::to_string(losa.Numero) + "-" + ParaArchivo(losa.Datos.Nombre) +
                                       "-" + vistas[vista] + ".png";
            EscribirPng(imagen, carpeta / CaminoDeTexto(nombre));
            ++escritas;
        }
    });
    return escritas;
}

}  // namespace trabex
