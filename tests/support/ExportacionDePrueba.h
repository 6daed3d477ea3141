#pragma once

#include <gtest/gtest.h>

#include "shell/Arranque.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;
using namespace programa;

/// The schema of an exchange file without data, as the program delivers it.
inline std::string EsquemaCAD() {
    return LeerArchivo(TRABEX_INSTALL "/Imagen/ImagenCAD.sql");
}

/// A connected project of three slabs: a solid one, a ribbed one with a cantilever, and one without spans.
class Exportacion : public testing::Test {
  protected:
    Exportacion() : plataforma(carpeta.Camino()) {
        for (const char* plantilla : {"ImagenCAD8.tbx", "ImagenCAD23.tbx"})
            CrearBaseDatos(carpeta / "programa" / "Imagen" / plantilla, EsquemaCAD());
        PrepararArranque(plataforma, carpetas, aplicacion);
        aplicacion.ArchivoProyecto = carpetas.Proyectos() / "obra.los";
        aplicacion.NombreProyecto = "obra.los";
        CrearBaseDatos(aplicacion.ArchivoProyecto, EsquemaDeProyecto());
        LlenarProyecto();
    }

    void LlenarProyecto() {
        ProyectoAbierto& proyecto = aplicacion.Proyecto;
        ASSERT_TRUE(Abrir(proyecto, aplicacion.ArchivoProyecto));
        LeerDatosGenerales(proyecto.ConexionProyecto, "ING. NÚÑEZ", aplicacion.Datos, aplicacion.Generales);
        Losa maciza = LosaContinua({6.5, 3}, 600, 300);
        maciza.Nombre = "A MACIZA";
        maciza.OpcionMaciza = true;
        Losa nervada = LosaContinua({5.99, 6.0, 1.5}, 300, 150);
        nervada.Nombre = "B NERVADA";
        nervada.Ejes[4].Tipo = SinApoyo;
        Losa vacia;
        vacia.Nombre = "C SIN TRAMOS";
        for (const Losa& losa : {maciza, nervada, vacia}) ASSERT_TRUE(AgregarLosa(proyecto, losa));
        AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
    }

    CarpetaTemporal carpeta;
    PlataformaGuiada plataforma;
    CajaGuiada caja;
    DialogosGuiados dialogos;
    Carpetas carpetas;
    Servicios servicios{caja, dialogos, plataforma, carpetas};
    Aplicacion aplicacion;
};

}  // namespace trabex::prueba
