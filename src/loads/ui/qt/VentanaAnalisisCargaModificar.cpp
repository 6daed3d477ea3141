#include "loads/ui/qt/VentanaAnalisisCargaModificar.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "loads/ui/qt/ClaseDePeso.h"
#include "loads/ui/qt/ColumnasDePesos.h"
#include "loads/ui/qt/Mandos.h"
#include "loads/ui/qt/VentanaAnalisisCargaBDCP.h"
#include "loads/ui/qt/VentanasDeCreacion.h"
#include "loads/ui/qt/VentanasDeEleccion.h"
#include "reports/ui/qt/VistaDeTablas.h"
#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::cargas::ui::qt {

using programa::qt::Q;
using programa::qt::S;

VentanaAnalisisCargaModificar::VentanaAnalisisCargaModificar(reportes::ui::EntornoSalida& entorno,
                                                             const VarianteAnalisis& variante,
                                                             AnalisisCargaModificar& operaciones,
                                                             QWidget* padre)
    : QDialog(padre), entorno_(entorno), operaciones_(operaciones) {
    setObjectName(variante.Modificar);
    setWindowTitle("MODIFICAR EL ANÁLISIS DE CARGA[*]");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    Armar();
    programa::qt::TamanoInicial(this, {760, 600});
    operaciones_.Abrir(*this);
    programa::qt::PrepararVentana(this, entorno.LaAplicacion.Preferencias);
    tabla_->setFocus();
}

void VentanaAnalisisCargaModificar::Armar() {
    // What is being entered is taken before a command acts.
    const auto tras = [this](const std::function<void()>& hacer) {
        return [this, hacer] {
            if (programa::qt::EntradasEnOrden(this)) hacer();
        };
    };
    auto* columna = new QVBoxLayout(this);
    PonerMandos(*this, *columna, "&Análisis",
                {{"ID_Salvar", "salvar", "&Salvar", "Salvar las modificaciones realizadas.", "Ctrl+S",
                  [this] { Salvar(); }},
                 {"ID_CrearLinea", "nuevo", "Crear &Nueva Fila", "Agregar una fila en blanco al final.",
                  "Ctrl+N", tras([this] { operaciones_.CrearLinea(); })},
                 {"ID_EliminarLinea", "eliminar", "&Eliminar la Fila Seleccionada",
                  "Eliminar la fila de las cargas permanentes.", "Ctrl+Del",
                  tras([this] { operaciones_.EliminarLinea(tabla_->FilaActual()); })},
                 {"ID_Permanentes", "base", "Base de Datos de Cargas &Permanentes",
                  "Buscar en los pesos unitarios de elementos constructivos.", "Ctrl+B",
                  tras([this] { operaciones_.BuscarPesos(PesosPermanentes); })},
                 {"ID_Variables", "carga", "Base de Datos de Cargas &Variables",
                  "Buscar en los pesos unitarios de cargas variables.", "Ctrl+Shift+B",
                  tras([this] { operaciones_.BuscarPesos(PesosVariables); })},
                 {"ID_Imprimir", "imprimir", "&Imprimir la Pantalla Actual",
                  "Ver, imprimir y exportar las cargas del análisis.", "Ctrl+P", tras([this] {
                      reportes::ui::qt::ImprimirPantallaActual(entorno_, {{tabla_, "Cargas Permanentes"}},
                                                               S(descripcion_->text()), this);
                  })},
                 {"ID_Normas", "manual", "N&ormas", "Ver la norma de acciones mínimas.", "Ctrl+M",
                  tras([this] { operaciones_.VerNorma(); })}});
    columna->addWidget(Desplazador());
    columna->addWidget(Permanentes(), 1);
    columna->addWidget(Variable());
    columna->addWidget(Sumas());
}

QWidget* VentanaAnalisisCargaModificar::Desplazador() {
    auto* marco = new QWidget(this);
    descripcion_ = new QLabel(marco);
    descripcion_->setObjectName("DescripcionAnalisis");
    descripcion_->setTextFormat(Qt::PlainText);
    descripcion_->setWordWrap(true);
    QFont fuente = descripcion_->font();
    fuente.setBold(true);
    fuente.setPointSize(fuente.pointSize() + 1);
    descripcion_->setFont(fuente);
    descripcion_->setAlignment(Qt::AlignCenter);
    deslizador_ = new QScrollBar(Qt::Horizontal, marco);
    deslizador_->setPageStep(1);
    deslizador_->setTracking(false);  // an analysis is left where the handle is let go
    deslizador_->setFocusPolicy(Qt::StrongFocus);
    deslizador_->setMinimumHeight(20);
    programa::qt::PonerAyuda(deslizador_, "Análisis de Carga", "Pasar a otro análisis de carga de la lista.");
    connect(deslizador_, &QScrollBar::valueChanged, this, [this](int posicion) { Desplazar(posicion); });
    lugar_ = new QLabel(marco);
    auto* fila = new QHBoxLayout;
    fila->addWidget(deslizador_, 1);
    fila->addWidget(lugar_);
    auto* columna = new QVBoxLayout(marco);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(descripcion_);
    columna->addLayout(fila);
    return marco;
}

QWidget* VentanaAnalisisCargaModificar::Permanentes() {
    auto* marco = new QGroupBox("Cargas Permanentes", this);
    tabla_ = new programa::qt::TablaDatos(
        ColumnasDePesos(items_, [this](int fila, CampoDePeso campo,
                                       const std::string& texto) { return PonerItem(fila, campo, texto); }),
        entorno_.LaAplicacion.SeparadoresLocales, marco);
    tabla_->setObjectName("Items");
    auto* columna = new QVBoxLayout(marco);
    columna->addWidget(tabla_);
    return marco;
}

QWidget* VentanaAnalisisCargaModificar::Variable() {
    auto* marco = new QGroupBox("Carga Variable", this);
    texto1_ = new programa::qt::CampoTexto(LargoDeDescripcion, marco);
    texto1_->setObjectName("Text1");
    long1_ = new programa::qt::CampoNumero(PesoEntrado, entorno_.LaAplicacion.SeparadoresLocales, marco);
    long1_->setObjectName("Long1");
    long1_->setMaximumWidth(120);
    connect(texto1_, &QLineEdit::textEdited, this, [this](const QString& texto) {
        operaciones_.CambiarVariable(CampoDePeso::Descripcion, S(texto));
    });
    connect(long1_, &QLineEdit::textChanged, this, [this] { TomarPesoVariable(); });
    long1_->AlEntrar([this](double) { long1_->PonerValor(pesoVariable_); });
    auto* rotulo = new QLabel("&Descripción:", marco);
    rotulo->setBuddy(texto1_);
    auto* rotuloPeso = new QLabel("P&eso (kgf/m²):", marco);
    rotuloPeso->setBuddy(long1_);
    auto* fila = new QHBoxLayout(marco);
    fila->addWidget(rotulo);
    fila->addWidget(texto1_, 1);
    fila->addWidget(rotuloPeso);
    fila->addWidget(long1_);
    return marco;
}

QWidget* VentanaAnalisisCargaModificar::Sumas() {
    auto* marco = new QWidget(this);
    const auto suma = [marco](const char* nombre) {
        auto* etiqueta = new QLabel(marco);
        etiqueta->setObjectName(nombre);
        QFont fuente = etiqueta->font();
        fuente.setBold(true);
        etiqueta->setFont(fuente);
        return etiqueta;
    };
    sumaPermanente_ = suma("SumaPermanente");
    sumaTotal_ = suma("SumaTotal");
    auto* fila = new QHBoxLayout(marco);
    fila->setContentsMargins(4, 0, 4, 0);
    fila->addWidget(new QLabel("Carga Permanente CP (kgf/m²) =", marco));
    fila->addWidget(sumaPermanente_);
    fila->addStretch(1);
    fila->addWidget(new QLabel("Carga Total (kgf/m²) =", marco));
    fila->addWidget(sumaTotal_);
    return marco;
}

/// The name of the variable load may be saved alone: the command is never off.
void VentanaAnalisisCargaModificar::Salvar() {
    if (programa::qt::EntradasEnOrden(this) && operaciones_.Salvar()) setWindowModified(false);
}

void VentanaAnalisisCargaModificar::Desplazar(int posicion) {
    if (posicion == posicion_) return;
    if (programa::qt::EntradasEnOrden(this) && operaciones_.Desplazar(posicion)) return;
    const QSignalBlocker quieto(deslizador_);
    deslizador_->setValue(posicion_);
}

void VentanaAnalisisCargaModificar::reject() {
    if (programa::qt::EntradasEnOrden(this) && operaciones_.Cerrar()) QDialog::reject();
}

void VentanaAnalisisCargaModificar::PonerAnalisis(const AnalisisCarga& analisis, int posicion, int cuantos) {
    posicion_ = posicion;
    const QSignalBlocker quieto(deslizador_);
    deslizador_->setRange(1, cuantos);
    deslizador_->setValue(posicion);
    lugar_->setText(QString("%1 de %2").arg(posicion).arg(cuantos));
    descripcion_->setText(Q(analisis.Descripcion));
    tabla_->OlvidarCambios();
    LlenarItems(analisis.Permanentes);
    tabla_->IrA(1, 0);
    PonerVariable(analisis.Variable);
}

void VentanaAnalisisCargaModificar::LlenarItems(const std::vector<PesoUnitario>& items) {
    if (items.size() < items_.size()) tabla_->OlvidarCambios();  // rows have moved up
    items_ = items;
    tabla_->PonerFilas(static_cast<int>(items_.size()));
}

void VentanaAnalisisCargaModificar::MarcarItem(int fila) {
    tabla_->IrA(fila, 0);
    tabla_->setFocus();
}

void VentanaAnalisisCargaModificar::PonerVariable(const PesoUnitario& variable) {
    texto1_->setText(Q(variable.Descripcion));
    pesoVariable_ = variable.Peso;
    long1_->PonerValor(pesoVariable_);
}

void VentanaAnalisisCargaModificar::PonerSumas(const SumasDeCarga& sumas) {
    const auto numero = [this](double valor) {
        return Q(Formato(valor, "#,##0", entorno_.LaAplicacion.SeparadoresLocales));
    };
    sumaPermanente_->setText(numero(sumas.Permanente));
    sumaTotal_->setText(numero(sumas.Total));
    setWindowModified(operaciones_.Modificado());
}

/// Also where the field goes back to what stood in it.
void VentanaAnalisisCargaModificar::TomarPesoVariable() {
    const auto peso = PesoDeTexto(TextoEntrado(long1_->Valor()));
    if (!long1_->Motivo().isEmpty() || !peso || *peso == pesoVariable_) return;
    pesoVariable_ = *peso;
    operaciones_.CambiarVariable(CampoDePeso::Peso, TextoEntrado(long1_->Valor()));
}

bool VentanaAnalisisCargaModificar::PonerItem(int fila, CampoDePeso campo, const std::string& texto) {
    return operaciones_.CambiarItem(fila, campo, texto) &&
           PonerCelda(items_[static_cast<std::size_t>(fila) - 1], campo, texto);
}

void VentanaAnalisisCargaModificar::MostrarPesos(AnalisisCargaBDCP& operaciones) {
    VentanaAnalisisCargaBDCP ventana(entorno_, operaciones, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaAnalisisCargaModificar::MostrarNormas(Normas& operaciones) {
    MostrarVentanaNormas(operaciones, entorno_.LaAplicacion.Preferencias, this);
}

}  // namespace trabex::cargas::ui::qt
