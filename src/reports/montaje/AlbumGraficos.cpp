#include "reports/montaje/AlbumGraficos.h"

#include "base/Archivos.h"
#include "drawing/Superficie.h"

namespace trabex::montaje {

AlbumGraficos::AlbumGraficos(almacen::Conexion& temporal, const EntornoReportes& entorno,
                             SuperficieOculta& superficie, PanelProgreso& panel, std::size_t total)
    : entorno_(entorno), superficie_(superficie), panel_(panel), total_(total), tabla_(temporal, "Grafico") {
    temporal.Ejecutar("DELETE * FROM Grafico");
}

AlbumGraficos::~AlbumGraficos() {
    if (numero_ == 0) return;
    try {
        const almacen::Bytes foto = superficie_.Foto();
        EscribirArchivo(CarpetaTrabajo(entorno_) / "Foto",
                        {reinterpret_cast<const char*>(foto.data()), foto.size()});
    } catch (const ErrorEjecucion&) {
        // Staging ignores the disk's errors: the report itself does not read this copy.
    }
}

void AlbumGraficos::Agregar(const std::string& nombre, const std::string& titulo, const std::string& avance,
                            const std::function<void(dibujo::Lienzo&)>& dibujar) {
    panel_.Avanzar(100.0 * static_cast<double>(numero_) / static_cast<double>(total_), avance);
    superficie_.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips, dibujar);
    ++numero_;
    tabla_.Poner("Numero", static_cast<double>(numero_));
    tabla_.Poner("Nombre", nombre);
    tabla_.Poner("Losa", titulo);
    tabla_.Poner("Grafico", superficie_.MapaDeBits());
    tabla_.Agregar();
    panel_.Avanzar(100.0 * static_cast<double>(numero_) / static_cast<double>(total_), avance);
}

}  // namespace trabex::montaje
