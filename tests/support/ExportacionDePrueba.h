#pragma once

#include <gtest/gtest.h>

#include "base/Archivos.h"
#include "shell/Arranque.h"
#include "store/antiguo/BaseEnJet.h"
#include "store/antiguo/Convertir.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {

/// A connected project of three slabs: a solid one, a ribbed one with a cantilever, and one without spans.
class Exportacion : public testing::Test, protected Maquina {
  protected:
    Exportacion() {
        const std::filesystem::path programa = prueba::Programa();
        for (const char* plantilla : {"ImagenCAD8.tbx", "ImagenCAD23.tbx"})
            CopiarArchivo(programa / "Imagen" / plantilla, carpeta / "programa" / "Imagen" / plantilla);
        std::filesystem::create_symlink(programa / "trabex-jet", carpeta / "programa" / "trabex-jet");
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

    /// An exchange file's rows.
    Recordset Filas(const std::filesystem::path& archivo, const std::string& consulta) {
        antiguo::CopiarBaseAntigua(carpetas.CaminoPrograma, archivo, carpeta / "leido.db");
        AbrirConexion(conexion, carpeta / "leido.db");
        Recordset filas;
        AbrirRecordset(conexion, filas, consulta);
        return filas;
    }

    /// What the drawing program does to its file.
    void EnPlanex(const std::filesystem::path& archivo, const std::vector<std::string>& sentencias) {
        antiguo::BaseEnJet base(carpetas.CaminoPrograma, archivo, carpeta / "planex.db");
        for (const std::string& sentencia : sentencias)
            EXPECT_TRUE(base.Conexion().Ejecutar(sentencia)) << sentencia;
        base.Guardar(archivo);
    }

    Conexion conexion;
};

}  // namespace trabex::prueba
