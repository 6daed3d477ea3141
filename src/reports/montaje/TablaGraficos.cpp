#include "reports/montaje/TablaGraficos.h"

#include <utility>

#include "base/Archivos.h"
#include "store/Vaciado.h"

namespace trabex::montaje {

namespace {

almacen::Conexion& SinGraficos(almacen::Conexion& temporal) {
    almacen::VaciarTabla(temporal, "Grafico");
    return temporal;
}

}  // namespace

TablaGraficos::TablaGraficos(almacen::Conexion& temporal) : tabla_(SinGraficos(temporal), "Grafico") {}

void TablaGraficos::Agregar(const std::string& nombre, const std::string& titulo, ImagenMontada imagen) {
    tabla_.Poner("Numero", static_cast<double>(++numero_));
    tabla_.Poner("Nombre", nombre);
    tabla_.Poner("Losa", titulo);
    tabla_.Poner("Grafico", std::move(imagen.MapaDeBits));
    tabla_.Poner("GraficoPng", std::move(imagen.Png));
    tabla_.Poner("GraficoTrazos", std::move(imagen.Trazos));
    tabla_.Agregar();
}

void DejarFoto(const EntornoReportes& entorno, const almacen::Bytes& foto) {
    try {
        EscribirArchivo(entorno.Trabajo / "Foto", {reinterpret_cast<const char*>(foto.data()), foto.size()});
    } catch (const ErrorEjecucion&) {
        // Staging ignores the disk's errors.
    }
}

}  // namespace trabex::montaje
