#include "store/tablas/TablasMarcus.h"

#include "store/Filas.h"

namespace trabex::almacen::tablas {

void LeerMarcus(ProyectoAbierto& proyecto, marcus::NivelMarcus& nivel) {
    nivel.Nombre = proyecto.RegistrosProyecto.Texto("Nombre");
    nivel.Panos = proyecto.RegistrosProyecto.Entero16("Paños");
    Recordset registros;
    AbrirRecordset(proyecto.ConexionProyecto, registros, ConsultaDe("Marcus", nivel.Nombre, "Numero"));
    nivel.Filas.assign(static_cast<std::size_t>(registros.NumeroRegistros()), {});
    for (marcus::PanoMarcus& pano : nivel.Filas) {
        pano.Carga = registros.Doble("Carga");
        pano.Caso = registros.Entero16("Caso");
        pano.LX = registros.Doble("LX");
        pano.LY = registros.Doble("LY");
        registros.MoverAlSiguiente();
    }
}

bool GuardarMarcus(ProyectoAbierto& proyecto, const marcus::NivelMarcus& nivel) {
    Recordset& lista = proyecto.RegistrosProyecto;
    if (lista.NumeroRegistros() == 0) return false;
    Transaccion guardado(proyecto.ConexionProyecto);
    BuscarRegistro(lista, "Nombre=" + EntreComillas(nivel.Nombre));
    if (lista.Encontrado()) {
        lista.Poner("Paños", NumeroDeFila(nivel.Filas.size()));
        lista.Actualizar();
    }
    const bool escritas = EscribirFilas(proyecto.ConexionProyecto, "Marcus", nivel.Nombre, nivel.Filas.size(),
                                        [&](Recordset& r, std::size_t k) {
                                            const marcus::PanoMarcus& pano = nivel.Filas[k - 1];
                                            r.Poner("Numero", NumeroDeFila(k));
                                            r.Poner("Carga", pano.Carga);
                                            r.Poner("Caso", pano.Caso);
                                            r.Poner("LX", pano.LX);
                                            r.Poner("LY", pano.LY);
                                        });
    return escritas && guardado.Confirmar();
}

}  // namespace trabex::almacen::tablas
