#include "stairs/salida/RecorrerEscaleras.h"

#include "stairs/CalcularEscaleraT.h"
#include "store/Posicion.h"
#include "store/tablas/TablasEscalera.h"

namespace trabex::escaleras::salida {

void RecorrerEscaleras(almacen::proyecto::ProyectoAbierto& proyecto, const DatosGenerales& generales,
                       const std::function<void(int, const EscaleraCalculada&)>& accion) {
    almacen::Recordset& lista = proyecto.RegistrosProyecto;
    const auto posicion = almacen::PosicionGuardada(lista);
    for (int fila = 1; fila <= lista.NumeroRegistros(); ++fila) {
        lista.MoverA(fila);
        DatosEscaleraT escalera;
        ResultadosEscaleraT resultados;
        almacen::tablas::LeaDatosEscalera(proyecto, escalera);
        CalcularEscaleraT(escalera, generales, resultados);
        accion(fila, {escalera, generales, resultados});
    }
}

}  // namespace trabex::escaleras::salida
