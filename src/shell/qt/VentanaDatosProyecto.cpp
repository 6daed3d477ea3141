#include "shell/qt/VentanaDatosProyecto.h"

#include <QDate>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextCursor>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaCalendario.h"

namespace trabex::programa::qt {

namespace {

constexpr int AnchoTexto = 120;  // characters that the project's columns hold
constexpr int AnchoComentario = 255;

QLineEdit* Campo(QWidget* padre, const char* nombre) {
    auto* campo = new QLineEdit(padre);
    campo->setObjectName(nombre);
    campo->setMaxLength(AnchoTexto);
    return campo;
}

/// Takes back what is typed or pasted past the width of a column, in sight, so that nothing is cut on saving.
void Limitar(QPlainTextEdit* campo, int ancho) {
    QObject::connect(campo, &QPlainTextEdit::textChanged, campo, [campo, ancho] {
        if (campo->toPlainText().size() <= ancho) return;
        QTextCursor sobra = campo->textCursor();
        sobra.setPosition(ancho);
        sobra.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
        sobra.removeSelectedText();
    });
}

/// The date of a text as the day, month and year, or as the locale's short form.
std::optional<Fecha> LeerFechaDe(const QString& texto) {
    QDate dia = QDate::fromString(texto.trimmed(), "dd/MM/yyyy");
    if (!dia.isValid()) dia = QLocale::system().toDate(texto.trimmed(), QLocale::ShortFormat);
    if (!dia.isValid()) return std::nullopt;
    return Fecha{std::chrono::year(dia.year()) / dia.month() / dia.day()};
}

}  // namespace

VentanaDatosProyecto::VentanaDatosProyecto(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), operaciones_(aplicacion, caja), fecha_(Hoy()) {
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
    fechaTexto_ = Campo(this, "Fecha");
    cliente_ = Campo(this, "Cliente");
    comentario_ = new QPlainTextEdit(this);
    comentario_->setObjectName("Comentario");
    comentario_->setTabChangesFocus(true);
    comentario_->setMinimumHeight(72);
    Limitar(comentario_, AnchoComentario);
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
    filaFecha->addWidget(fechaTexto_);
    filaFecha->addWidget(calendario);
    filaFecha->addStretch(1);
    auto* rotuloFecha = new QLabel("&Fecha:", this);
    rotuloFecha->setBuddy(fechaTexto_);
    formulario->addRow(rotuloFecha, filaFecha);
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
    PonerFecha(datos.Fecha);
    cliente_->setText(Q(datos.Cliente));
    comentario_->setPlainText(Q(datos.Comentario));
}

void VentanaDatosProyecto::PonerFecha(const Fecha& fecha) {
    fecha_ = fecha;
    fechaTexto_->setText(Q(FormatoFecha(fecha)));
}

void VentanaDatosProyecto::ElegirFecha() {
    VentanaCalendario calendario(LeerFechaDe(fechaTexto_->text()).value_or(fecha_), aplicacion_.Preferencias,
                                 this);
    if (calendario.exec() == QDialog::Accepted) PonerFecha(calendario.Elegida());
}

void VentanaDatosProyecto::Salvar() {
    const auto fecha = LeerFechaDe(fechaTexto_->text());
    if (!fecha) {
        fechaTexto_->setFocus();
        fechaTexto_->selectAll();
        return;
    }
    const DatosDelProyecto datos{.Proyecto = S(proyecto_->text()),
                                 .Propietario = S(propietario_->text()),
                                 .Calculista = S(calculista_->text()),
                                 .Fecha = *fecha,
                                 .Cliente = S(cliente_->text()),
                                 .Comentario = S(comentario_->toPlainText())};
    if (operaciones_.Salvar(datos)) accept();
}

}  // namespace trabex::programa::qt
