#include "reports/montaje/AlbumGraficos.h"

#include "base/Avance.h"

namespace trabex::montaje {

AlbumGraficos::AlbumGraficos(almacen::Conexion& temporal, const EntornoReportes& entorno,
                             SuperficieOculta& superficie, PanelProgreso& panel, std::size_t total,
                             const TamanoGrafico& tamano, std::size_t porPaso)
    : entorno_(entorno),
      superficie_(superficie),
      panel_(panel),
      total_(total),
      tamano_(tamano),
      porPaso_(porPaso),
      tabla_(temporal) {}

AlbumGraficos::~AlbumGraficos() {
    if (tabla_.Cuantos() > 0) DejarFoto(entorno_, superficie_.Foto());
}

void AlbumGraficos::Agregar(const std::string& nombre, const std::string& titulo, const std::string& avance,
                            const std::function<void(dibujo::Lienzo&)>& dibujar) {
    const auto avanzar = [&] {
        const std::size_t hechos = tabla_.Cuantos() / porPaso_ * porPaso_;
        panel_.Avanzar(100.0 * static_cast<double>(hechos) / static_cast<double>(total_), avance);
    };
    avanzar();
    if (panel_.Cancelado()) throw TrabajoCancelado();
    superficie_.Dibujar(tamano_.Ancho, tamano_.Alto, dibujar);
    tabla_.Agregar(nombre, titulo, superficie_.Imagen());
    avanzar();
}

}  // namespace trabex::montaje
