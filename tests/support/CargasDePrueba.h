#pragma once

#include <gtest/gtest.h>

#include "loads/Creacion.h"
#include "store/tablas/TablasCargas.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {

using namespace almacen;
using namespace almacen::tablas;

/// The example project beside the shared load database as it is delivered, and their services.
class CargasDePrueba : public testing::Test, public Maquina {
  protected:
    CargasDePrueba() {
        const std::string imagen = Install() + "/Imagen/";
        carpetas.CaminoUsuario = carpeta / "usuario";
        carpetas.CaminoPrograma = carpeta / "programa";
        aplicacion.ArchivoProyecto = carpeta / "p.los";
        std::filesystem::create_directories(carpetas.Proyectos());
        CrearBaseDatos(aplicacion.ArchivoProyecto,
                       EsquemaDeProyecto() + LeerArchivo(imagen + "Ejemplo Demostrativo.sql"));
        CrearBaseDatos(Compartido(), LeerArchivo(imagen + "AnalisisCarga.sql"));
    }

    std::filesystem::path Compartido() const { return carpetas.AnalisisCarga(); }
    static cargas::FuenteAzar Azar() {
        return [] { return 0.25; };
    }
    std::string UltimoTexto() const { return caja.Mensajes.empty() ? "" : caja.Mensajes.back().Texto; }

    /// A statement's rows in the file of a place, through another connection.
    Recordset EnArchivo(cargas::Ambito ambito, const std::string& fuente) {
        AbrirConexion(otra_, ambito == cargas::Ambito::Proyecto ? aplicacion.ArchivoProyecto : Compartido());
        Recordset registros;
        AbrirRecordset(otra_, registros, fuente);
        return registros;
    }
    cargas::AnalisisCarga EnArchivo(cargas::Ambito ambito, std::int32_t id) {
        Recordset lista = EnArchivo(ambito, std::string(TablasDe(ambito).Generales));
        BuscarRegistro(lista, Criterio(PorID(id)));
        cargas::AnalisisCarga analisis;
        LeerAnalisis(otra_, lista, ambito, analisis);
        return analisis;
    }

    Conexion otra_;
};

}  // namespace trabex::prueba
