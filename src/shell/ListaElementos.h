#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/Aplicacion.h"
#include "shell/PantallaEspacio.h"
#include "shell/Renombrar.h"
#include "shell/Servicios.h"
#include "store/Elementos.h"

namespace trabex::programa {

/// A message about an element: what stands before its name and after it, and the heading.
struct TextoDeElemento {
    std::string_view Antes;
    std::string_view Despues;
    std::string_view Encabezado;
};

/// What one kind of element states of its list: tables and texts.
struct ClaseDeElemento {
    std::string_view Consulta;  ///< opens its list on RegistrosProyecto
    almacen::TablasDeElemento Tablas;
    TextoDeElemento YaExiste;  ///< a new element's name is taken
    TextoDeElemento Eliminar;  ///< the question before it is deleted
    TextosDeRenombrar Renombrar;
    /// The column that the same question tells in brackets behind the name; empty: none.
    std::string_view EntreParentesis{};
    std::string_view TituloVentana{};  ///< of its workspace; empty: the program's, with the project's name
};

/// What an element does as its list moves.
class ElementoDeLista {
  public:
    virtual ~ElementoDeLista() = default;
    /// A project was connected: reads what holds for all of its elements.
    virtual void AlConectar() = 0;
    /// The list stands on another element: reads it, shows it and calculates it.
    virtual void AlSeleccionar() = 0;
    /// The list stands on an element that was just added: its data are entered, and it is calculated.
    virtual void AlAgregar() = 0;
    /// There is no element.
    virtual void AlVaciar() = 0;
    /// The list stands on the element that was just given another name.
    virtual void AlRenombrar() { AlSeleccionar(); }
    /// The list was filled anew, and none of its rows is marked as failing.
    virtual void AlLlenar() {}
};

/// The operations of a workspace's list that are the same for every element. The selected row is the position
/// of the project's list of records.
class ListaElementos {
  public:
    ListaElementos(Aplicacion& aplicacion, const Servicios& servicios, PantallaEspacio& pantalla,
                   const ClaseDeElemento& clase, ElementoDeLista& elemento);

    /// Closes the list, then the connection.
    ~ListaElementos() { Cerrar(); }
    ListaElementos(const ListaElementos&) = delete;
    ListaElementos& operator=(const ListaElementos&) = delete;

    /// Connects to the current project and selects its first element. A project that can't be read counts as
    /// empty. Nothing is drawn before the end.
    void Abrir();
    void Cerrar();
    /// The workspace's own open command: another project takes the place of this one.
    void AbrirProyecto();

    /// Nothing for a row that is not there.
    void Seleccionar(int fila);
    void Anterior() { Seleccionar(Fila() - 1); }
    void Siguiente() { Seleccionar(Fila() + 1); }
    int Fila() const { return aplicacion_.Proyecto.RegistrosProyecto.Posicion(); }
    int NumeroDeElementos() const { return aplicacion_.Proyecto.RegistrosProyecto.NumeroRegistros(); }
    bool Vacia() const { return NumeroDeElementos() == 0; }
    /// The elements in list order.
    std::vector<std::string> Nombres();

    /// Lets `nombrar` show the window that names a new element, and has the data entered of what it added,
    /// which stands last until the list is next filled.
    void Crear(const std::function<bool()>& nombrar);
    /// The same for a copy of the selected element; nothing while there is none.
    void Copiar(const std::function<bool()>& nombrar);
    void Renombrar();
    void Eliminar();

    /// For a window that names a new element: the name is not taken; otherwise says so.
    bool VerifiqueNombre(const std::string& nombre);
    /// Adds a record of that name to the list; `escribir` sets its other columns and writes what else the
    /// element keeps, all as one save. False, with a message, when it could not be stored.
    bool Agregar(const std::string& nombre, const std::function<void(almacen::Recordset& lista)>& columnas,
                 const std::function<void(almacen::Conexion& conexion)>& hijas = {});

    /// Says why a save did not go through. When another program changed what was read, the list is read
    /// again.
    void AvisarSinGuardar();
    /// Reads the project again, and selects the element that was selected where it is still there.
    void Releer();
    /// Reads the project again where another program changed it. For a window that comes to the front.
    void NotarCambios();

    /// Draws the sheet on show, unless the workspace is still opening.
    void Redibujar();

  private:
    almacen::Recordset& Lista() { return aplicacion_.Proyecto.RegistrosProyecto; }
    void Conectar();
    void AbrirLista();
    void Llenar();
    void MostrarPrimera();
    void MostrarEstado(bool releido);

    Aplicacion& aplicacion_;
    Servicios servicios_;
    PantallaEspacio& pantalla_;
    const ClaseDeElemento& clase_;
    ElementoDeLista& elemento_;
    bool cargando_ = true;
};

}  // namespace trabex::programa
