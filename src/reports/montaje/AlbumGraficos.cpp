#include "reports/montaje/AlbumGraficos.h"

#include "drawing/Superficie.h"

namespace trabex::montaje {

AlbumGraficos::AlbumGraficos(almacen::Conexion& temporal, const EntornoReportes& entorno,
                             SuperficieOculta& superficie, PanelProgreso& panel, std::size_t total)
    : entorno_(entorno), superficie_(superficie), panel_(panel), total_(total), tabla_(temporal) {}

AlbumGraficos::~AlbumGraficos() {
    if (tabla_.Cuantos() > 0) DejarFoto(entorno_, superficie_.Foto());
}

void AlbumGraficos::Agregar(const std::string& nombre, const std::string& titulo, const std::string& avance,
                            const std::function<void(dibujo::Lienzo&)>& dibujar) {
    const auto avanzar = [&] {
        panel_.Avanzar(100.0 * static_cast<double>(tabla_.Cuantos()) / static_cast<double>(total_), avance);
    };
    avanzar();
    superficie_.Dibujar(dibujo::AnchoGraficoTwips, dibujo::AltoGraficoTwips, dibujar);
    tabla_.Agregar(nombre, titulo, superficie_.Imagen());
    avanzar();
}

}  // namespace trabex::montaje
