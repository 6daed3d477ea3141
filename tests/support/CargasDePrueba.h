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
class CargasDePrueba : public testing::Test {
  protected:
    CargasDePrueba() : sistema_(carpeta_ / "maquina") {
        const std::string imagen = Install() + "/Imagen/";
        carpetas_.CaminoUsuario = carpeta_ / "usuario";
        carpetas_.CaminoPrograma = carpeta_ / "programa";
        aplicacion_.ArchivoProyecto = carpeta_ / "p.los";
        std::filesystem::create_directories(carpetas_.Proyectos());
        CrearBaseDatos(aplicacion_.ArchivoProyecto,
                       EsquemaDeProyecto() + LeerArchivo(imagen + "Ejemplo Demostrativo.sql"));
        CrearBaseDatos(Compartido(), LeerArchivo(imagen + "AnalisisCarga.sql"));
    }

    std::filesystem::path Compartido() const { return carpetas_.AnalisisCarga(); }
    programa::Servicios Servicios() { return {caja_, dialogos_, sistema_, carpetas_}; }
    static cargas::FuenteAzar Azar() {
        return [] { return 0.25; };
    }
    std::string UltimoTexto() const { return caja_.Mensajes.empty() ? "" : caja_.Mensajes.back().Texto; }
    std::string UltimoEncabezado() const { return caja_.Mensajes.back().Encabezado; }

    /// A statement's rows in the file of a place, through another connection.
    Recordset EnArchivo(cargas::Ambito ambito, const std::string& fuente) {
        AbrirConexion(otra_, ambito == cargas::Ambito::Proyecto ? aplicacion_.ArchivoProyecto : Compartido());
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

    CarpetaTemporal carpeta_;
    PlataformaGuiada sistema_;
    CajaGuiada caja_;
    DialogosGuiados dialogos_;
    programa::Carpetas carpetas_;
    programa::Aplicacion aplicacion_;
    Conexion otra_;
};

}  // namespace trabex::prueba
