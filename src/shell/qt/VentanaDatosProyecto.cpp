#include "shell/qt/VentanaDatosProyecto.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "shell/qt/CampoFecha.h"
#include "shell/qt/CampoTexto.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaCalendario.h"

namespace trabex::programa::qt {

namespace {

constexpr int AnchoTexto = 120;  // characters that the project's columns hold
constexpr int AnchoComentario = 255;

QLineEdit* Campo(QWidget* padre, const char* nombre) {
    auto* campo = new CampoTexto(AnchoTexto, padre);
    campo->setObjectName(nombre);
    return campo;
}

}  // namespace

VentanaDatosProyecto::VentanaDatosProyecto(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), operaciones_(aplicacion, caja) {
    setObjectName("DatosProyecto");
    setWindowTitle("DATOS DEL PROYECTO");
    Armar();
    Mostrar(operaciones_.Leer());
    PrepararVentana(this, aplicacion_.Preferencias);
}

void VentanaDatosProyecto::Armar() {
    proyecto_ = Campo(this, "Proyecto");
    propietario_ = Campo(this, "Propietario");
    calculista_ = Campo(this, "Calculista");
    fecha_ = new CampoFecha(this);
    fecha_->setObjectName("Fecha");
    cliente_ = Campo(this, "Cliente");
    comentario_ = new CampoParrafo(AnchoComentario, this);
    comentario_->setObjectName("Comentario");
    comentario_->setTabChangesFocus(true);
    comentario_->setMinimumHeight(72);
    auto* calendario = Boton("", "calendario", this);
    calendario->setObjectName("Calendario");
    calendario->setAutoDefault(false);
    PonerAyuda(calendario, "Calendario", "Elegir la fecha en un calendario. ");
    connect(calendario, &QPushButton::clicked, this, [this] { ElegirFecha(); });

    auto* formulario = new QFormLayout;
    formulario->addRow("&Proyecto:", proyecto_);
    formulario->addRow("Pr&opietario:", propietario_);
    formulario->addRow("C&alculista:", calculista_);
    auto* filaFecha = new QHBoxLayout;
    filaFecha->addWidget(fecha_);
    filaFecha->addWidget(calendario);
    filaFecha->addStretch(1);
    auto* rotuloFecha = new QLabel("&Fecha:", this);
    rotuloFecha->setBuddy(fecha_);
    formulario->addRow(rotuloFecha, filaFecha);
    setTabOrder(fecha_, calendario);
    setTabOrder(calendario, cliente_);
    formulario->addRow("C&liente:", cliente_);
    formulario->addRow("Co&mentario:", comentario_);

    auto* salvar = Boton(" Salvar ", "salvar", this);
    salvar->setDefault(true);
    auto* retorno = Boton(" Retorno ", "salida", this);
    connect(salvar, &QPushButton::clicked, this, [this] { Salvar(); });
    connect(retorno, &QPushButton::clicked, this, &QDialog::reject);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(salvar);
    botones->addWidget(retorno);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(formulario, 1);
    columna->addLayout(botones);
    resize(520, 330);
}

void VentanaDatosProyecto::Mostrar(const DatosDelProyecto& datos) {
    proyecto_->setText(Q(datos.Proyecto));
    propietario_->setText(Q(datos.Propietario));
    calculista_->setText(Q(datos.Calculista));
    fecha_->PonerValor(datos.Fecha);
    cliente_->setText(Q(datos.Cliente));
    comentario_->setPlainText(Q(datos.Comentario));
}

void VentanaDatosProyecto::ElegirFecha() {
    VentanaCalendario calendario(fecha_->Valor(), aplicacion_.Preferencias, this);
    if (calendario.exec() == QDialog::Accepted) fecha_->PonerValor(calendario.Elegida());
}

void VentanaDatosProyecto::Salvar() {
    if (!EntradasEnOrden(this)) return;
    const DatosDelProyecto datos{.Proyecto = S(proyecto_->text()),
                                 .Propietario = S(propietario_->text()),
                                 .Calculista = S(calculista_->text()),
                                 .Fecha = fecha_->Valor(),
                                 .Cliente = S(cliente_->text()),
                                 .Comentario = S(comentario_->toPlainText())};
    if (operaciones_.Salvar(datos)) accept();
}

}  // namespace trabex::programa::qt
