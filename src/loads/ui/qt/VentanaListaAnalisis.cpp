#include "loads/ui/qt/VentanaListaAnalisis.h"

#include <QVBoxLayout>

#include "base/Texto.h"
#include "loads/ui/qt/Mandos.h"
#include "loads/ui/qt/VentanaAnalisisCargaModificar.h"
#include "loads/ui/qt/VentanasDeCreacion.h"
#include "loads/ui/qt/VentanasDeEleccion.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VistaDeTablas.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/LineaElidida.h"
#include "shell/qt/TablaDatos.h"

namespace trabex::cargas::ui::qt {

namespace {

/// Whatever total an engineer types over the computed one.
constexpr ClaseNumero CargaEntrada{false, -9999999999.99, 9999999999.99, 0};

}  // namespace

VentanaListaAnalisis::VentanaListaAnalisis(reportes::ui::EntornoSalida& entorno, ListaAnalisis& operaciones,
                                           QWidget* padre)
    : QDialog(padre),
      entorno_(entorno),
      operaciones_(operaciones),
      tabla_(Tabla()),
      pie_(new programa::qt::LineaElidida("Pie", this)) {
    setObjectName(operaciones.Variante().Lista);
    setWindowTitle(operaciones.Variante().Titulo);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Armar();
    programa::qt::TamanoInicial(this, {760, 560});
    operaciones_.Abrir(*this);
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
    programa::qt::AlVenirAlFrente(this, [this] { operaciones_.NotarCambios(); });
    tabla_->setFocus();
}

programa::qt::TablaDatos* VentanaListaAnalisis::Tabla() {
    const auto linea = [this](int fila) {
        const auto i = static_cast<std::size_t>(fila) - 1;
        return i < lineas_.size() ? lineas_[i] : LineaDeAnalisis{};
    };
    const auto alPoner = [this](CampoDeLinea campo) {
        return [this, campo](int fila, const QVariant& valor) { return Poner(fila, campo, valor); };
    };
    auto* tabla = new programa::qt::TablaDatos(
        {{.Titulo = "Descripción",
          .Numero = std::nullopt,
          .Leer = [linea](int fila) { return programa::qt::Q(linea(fila).Descripcion); },
          .Poner = alPoner(CampoDeLinea::Descripcion),
          .Largo = LargoDeDescripcion},
         {.Titulo = "Carga (kgf/m²)",
          .Numero = CargaEntrada,
          .Leer = [linea](int fila) { return linea(fila).Carga; },
          .Poner = alPoner(CampoDeLinea::Carga),
          .Ancho = 130}},
        entorno_.LaAplicacion.SeparadoresLocales, this);
    tabla->setObjectName("Analisis");
    tabla->AlCambiarFila([this](int fila) {
        if (!llenando_) operaciones_.Seleccionar(fila);
    });
    return tabla;
}

void VentanaListaAnalisis::Armar() {
    const auto modificar = [this] {
        if (programa::qt::EntradasEnOrden(this)) operaciones_.Modificar();
    };
    std::vector<Mando> mandos{
        {"ID_Crear", "nuevo", "&Crear Análisis de Carga", "Agregar un análisis de carga a la lista.",
         "Ctrl+N", [this] { operaciones_.Crear(); }},
        {"ID_Modificar", "editar", "&Modificar el Análisis de Carga",
         "Ver y modificar las cargas del análisis seleccionado.", "Ctrl+Return", modificar},
        {"ID_Eliminar", "eliminar", "&Eliminar el Análisis de Carga", "Eliminar el análisis seleccionado.",
         "Ctrl+Del", [this] { operaciones_.Eliminar(); }},
        {"ID_Exportar", "exportar", "E&xportar los Análisis de Carga",
         "Reporte del análisis seleccionado o de todos.", "Ctrl+E", [this] { operaciones_.Exportar(); }},
        {"ID_Imprimir", "imprimir", "&Imprimir la Pantalla Actual", "Ver, imprimir y exportar la lista.",
         "Ctrl+P", [this] {
             if (!programa::qt::EntradasEnOrden(this)) return;
             reportes::ui::qt::ImprimirPantallaActual(entorno_, {{tabla_, "Análisis de Carga"}},
                                                      operaciones_.Variante().Titulo, this);
         }}};
    if (operaciones_.Variante().Donde == Ambito::Proyecto)
        mandos.push_back({"ID_Compartidos", "base", "&Base de Datos de Análisis de Carga",
                          "Ver los análisis de carga de todos los proyectos, y capturarlos.", "Ctrl+B",
                          [this] { operaciones_.VerCompartidos(); }});
    if (operaciones_.PuedeCapturar())
        mandos.push_back({"ID_Capturar", "copiar", "Ca&pturar al Análisis de Carga",
                          "Copiar el análisis seleccionado al proyecto.", "Ctrl+T",
                          [this] { operaciones_.Capturar(); }});
    auto* columna = new QVBoxLayout(this);
    PonerMandos(*this, *columna, "&Análisis", mandos);
    columna->addWidget(tabla_, 1);
    PonerModificarCeldas(*tabla_, *columna, modificar);
    columna->addWidget(pie_);
}

void VentanaListaAnalisis::reject() {
    if (programa::qt::EntradasEnOrden(this)) QDialog::reject();
}

void VentanaListaAnalisis::LlenarLista(const std::vector<LineaDeAnalisis>& lineas) {
    llenando_ = true;
    lineas_ = lineas;
    tabla_->OlvidarCambios();
    tabla_->PonerFilas(static_cast<int>(lineas_.size()));
    llenando_ = false;
}

void VentanaListaAnalisis::MarcarFila(int fila) {
    tabla_->IrA(fila, 0);
}

void VentanaListaAnalisis::PonerCarga(int fila, double carga) {
    lineas_[static_cast<std::size_t>(fila) - 1].Carga = carga;
    tabla_->Refrescar();
}

void VentanaListaAnalisis::EnfocarLista() {
    tabla_->setFocus();
}

void VentanaListaAnalisis::PonerEstado(const std::string& texto) {
    pie_->setText(programa::qt::Q(texto));
}

bool VentanaListaAnalisis::Poner(int fila, CampoDeLinea campo, const QVariant& valor) {
    const std::string texto = TextoEntrado(valor);
    if (!operaciones_.ModificarCelda(fila, campo, texto)) return false;
    LineaDeAnalisis& linea = lineas_[static_cast<std::size_t>(fila) - 1];
    if (campo == CampoDeLinea::Descripcion)
        linea.Descripcion = Recortar(texto);
    else
        linea.Carga = valor.toDouble();
    return true;
}

void VentanaListaAnalisis::MostrarNuevo(NuevoAnalisisCarga& operaciones) {
    VentanaNuevoAnalisisCarga ventana(entorno_.LaAplicacion, operaciones_.Variante(), operaciones, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaListaAnalisis::MostrarModificar(AnalisisCargaModificar& operaciones) {
    VentanaAnalisisCargaModificar ventana(entorno_, operaciones_.Variante(), operaciones, this);
    programa::qt::MostrarModal(ventana);
}

std::optional<bool> VentanaListaAnalisis::MostrarOpcion() {
    VentanaOpcionAnalisisCarga ventana(entorno_.LaAplicacion.Preferencias, this);
    programa::qt::MostrarModal(ventana);
    if (ventana.result() != QDialog::Accepted) return std::nullopt;
    return ventana.Elegida() == 1;
}

void VentanaListaAnalisis::MostrarReporte(std::int16_t reporteActual) {
    entorno_.Estado.ReporteActual = reporteActual;
    using reportes::ui::qt::VentanaSalidaReporte;
    VentanaSalidaReporte ventana(entorno_, VentanaSalidaReporte::Clase::Tabular, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaListaAnalisis::MostrarCompartidos(ListaAnalisis& operaciones) {
    VentanaListaAnalisis ventana(entorno_, operaciones, this);
    programa::qt::MostrarModal(ventana);
}

}  // namespace trabex::cargas::ui::qt
