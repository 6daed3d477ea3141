#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "shell/PantallaEspacio.h"
#include "shell/Renombrar.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"

namespace trabex::prueba {

/// What every workspace asks of its window, as a record of what was shown.
struct PantallaEspacioGuiada : PantallaEspacio {
    void PonerTitulo(const std::string& titulo) override { Titulo = titulo; }
    void PonerEstado(const std::string& texto) override { Pie = texto; }
    void PonerEncabezado(const std::string& texto) override { Encabezado = texto; }
    void PonerAvisos(const Avisos& avisos) override { Puestos = avisos; }
    void LlenarLista(const std::vector<std::string>& nombres) override {
        Filas = nombres;
        Fallan.clear();
    }
    void MarcarFalla(int fila, bool falla) override { Fallan[fila] = falla; }
    void MarcarFila(int fila) override { Marcada = fila; }
    void MarcarHoja(int hoja) override { Hoja = hoja; }
    void RestablecerVista() override { ++Restablecida; }
    void Redibujar() override { ++Dibujos; }
    void MostrarRenombrar(programa::Renombrar& operaciones) override {
        if (Renombrar) Renombrar(operaciones);
    }

    std::string Titulo, Pie, Encabezado;
    std::vector<std::string> Filas;
    Avisos Puestos;
    std::map<int, bool> Fallan;
    int Marcada = 0, Restablecida = 0, Dibujos = 0;
    int Hoja = -1;
    std::function<void(programa::Renombrar&)> Renombrar;
};

/// A program on a project of its own, on disk, with the given rows.
struct ProgramaGuiado : Maquina {
    explicit ProgramaGuiado(const std::string& filas) {
        carpetas.CaminoUsuario = carpeta.Camino();
        aplicacion.ArchivoProyecto = Proyecto("obra.los", filas);
        aplicacion.NombreProyecto = "obra.los";
    }
    std::filesystem::path Proyecto(const std::string& nombre, const std::string& filas) const {
        CrearBaseDatos(carpeta / nombre, EsquemaDeProyecto() + filas);
        return carpeta / nombre;
    }
    /// A column of a table, in the order of the file.
    std::vector<std::string> Columna(std::string_view tabla, std::string_view columna) const {
        Conexion conexion;
        AbrirConexion(conexion, aplicacion.ArchivoProyecto);
        Recordset filas;
        AbrirRecordset(conexion, filas, tabla);
        std::vector<std::string> valores;
        for (int fila = 1; fila <= filas.NumeroRegistros(); ++fila) {
            filas.MoverA(fila);
            valores.push_back(filas.Texto(columna));
        }
        return valores;
    }
};

}  // namespace trabex::prueba
