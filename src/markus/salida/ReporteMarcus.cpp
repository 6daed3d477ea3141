#include "markus/salida/ReporteMarcus.h"

#include "store/Insercion.h"
#include "store/Vaciado.h"
#include "store/tablas/CamposMarcus.h"

namespace trabex::marcus::salida {

void MontarPanos(almacen::Conexion& temporal, std::span<const PanoMarcus> panos) {
    almacen::VaciarTabla(temporal, "Marcus");
    almacen::Insercion tabla(temporal, "Marcus");
    double numero = 0;
    for (const PanoMarcus& pano : panos) {
        tabla.Poner("Numero", ++numero);
        almacen::PonerCampos(tabla, pano, almacen::tablas::CamposPano);
        almacen::PonerCampos(tabla, pano.Reparto, almacen::tablas::CamposReparto);
        tabla.Agregar();
    }
}

bool LLeneDatos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                const std::string& nivel, std::span<const PanoMarcus> panos) {
    almacen::Conexion temporal;
    montaje::AbrirTemporal(entorno, datos, {TituloReporteMarcus, nivel}, temporal);
    if (!temporal.Abierta()) return false;
    almacen::Transaccion guardado(temporal);
    MontarPanos(temporal, panos);
    return guardado.Confirmar();
}

}  // namespace trabex::marcus::salida
