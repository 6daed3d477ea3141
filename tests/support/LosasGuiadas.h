#pragma once

#include "slab/ui/LosaDatos.h"
#include "slab/ui/Losas.h"
#include "store/Filas.h"
#include "support/EspacioGuiado.h"
#include "support/LosasDePrueba.h"

namespace trabex::prueba {

using namespace almacen;
using namespace almacen::tablas;
using namespace losas;
using namespace losas::ui;
using namespace programa;

/// Modal windows are functions of the test.
struct PantallaLosasGuiada : PantallaEspacioGuiada, PantallaLosas {
    void MarcarOpcionCarga(dibujo::losa::OpcionDeCarga opcion) override { OpcionCarga = opcion; }
    void MarcarPorGrupos(bool porGrupos) override { PorGrupos = porGrupos; }
    bool MostrarLosaNueva() override { return LosaNueva && LosaNueva(); }
    bool MostrarLosaSalvarComo() override { return SalvarComo && SalvarComo(); }
    bool MostrarLosaDatos(const std::optional<dibujo::losa::Toque>& lugar) override {
        Lugar = lugar;
        return Datos && Datos();
    }
    bool MostrarLosaGeneral() override { return General && General(); }

    dibujo::losa::OpcionDeCarga OpcionCarga = dibujo::losa::CargaPorCasos;
    bool PorGrupos = false;
    std::optional<dibujo::losa::Toque> Lugar;
    std::function<bool()> LosaNueva, SalvarComo, Datos, General;
};

struct PantallaLosaDatosGuiada : PantallaLosaDatos {
    void Rellenar() override { ++Rellenos; }
    void Refrescar() override { ++Refrescos; }
    void Redibujar() override {}
    PaginaLosa Pagina() const override { return EnPagina; }
    void MostrarPagina(PaginaLosa pagina) override { EnPagina = pagina; }
    void EnfocarCampo(CampoSeccion campo) override { Enfocado = campo; }
    std::size_t FilaDeApoyo() const override { return Apoyo; }
    void IrAFilaDeApoyo(std::size_t fila) override { Apoyo = fila; }
    bool MostrarCarga01(const EntradaDeCarga& entrada) override { return Carga && Carga(entrada); }
    bool MostrarCarga02(const EntradaDeCarga& entrada) override { return MostrarCarga01(entrada); }
    void Cerrar() override { Cerrada = true; }

    PaginaLosa EnPagina = PaginaLosa::Cargas;
    std::optional<CampoSeccion> Enfocado;
    std::size_t Apoyo = 1;
    int Rellenos = 0, Refrescos = 0;
    bool Cerrada = false;
    std::function<bool(const EntradaDeCarga&)> Carga;
};

/// A project on disk with the given slabs, and the workspace open on it.
class EspacioDePrueba : public ProgramaGuiado {
  public:
    explicit EspacioDePrueba(const std::vector<Losa>& losas) : ProgramaGuiado("") {
        for (const Losa& losa : losas) Agregar(aplicacion.ArchivoProyecto, losa);
        espacio.Lista().Abrir();
    }
    std::filesystem::path CrearProyecto(const std::string& nombre, const std::vector<Losa>& losas) const {
        auto archivo = Proyecto(nombre, "");
        for (const Losa& losa : losas) Agregar(archivo, losa);
        return archivo;
    }
    /// The slab of that name as the file holds it.
    Losa Guardada(const std::string& nombre) const {
        ProyectoAbierto proyecto;
        prueba::Abrir(proyecto, aplicacion.ArchivoProyecto);
        BuscarRegistro(proyecto.RegistrosProyecto, Criterio(PorNombre(nombre)));
        Losa losa;
        if (proyecto.RegistrosProyecto.Encontrado()) LeerLosa(proyecto, losa);
        return losa;
    }
    /// Rows of a table under a name.
    int Filas(const std::string& tabla, const std::string& nombre) const {
        Conexion conexion;
        AbrirConexion(conexion, aplicacion.ArchivoProyecto);
        Recordset registros;
        AbrirRecordset(conexion, registros,
                       "SELECT * FROM " + tabla + " WHERE " + Criterio(PorNombre(nombre)));
        return registros.NumeroRegistros();
    }

    MemoriaLosas memoria;
    PantallaLosasGuiada pantalla;
    Losas espacio{aplicacion, servicios, pantalla, pantalla, memoria};

  private:
    static void Agregar(const std::filesystem::path& archivo, const Losa& losa) {
        ProyectoAbierto proyecto;
        prueba::Abrir(proyecto, archivo);
        AgregarLosa(proyecto, losa);
    }
};

inline Losa Nombrada(Losa losa, const std::string& nombre) {
    losa.Nombre = nombre;
    return losa;
}

}  // namespace trabex::prueba
