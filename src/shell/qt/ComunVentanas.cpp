#include "shell/qt/ComunVentanas.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <algorithm>
#include <utility>

#include "shell/qt/EntradaJuzgada.h"
#include "shell/qt/Iconos.h"

namespace trabex::programa::qt {

namespace {

QString Color(std::uint32_t bgr) {
    return QString("rgb(%1, %2, %3)").arg(bgr & 0xFF).arg((bgr >> 8) & 0xFF).arg((bgr >> 16) & 0xFF);
}

constexpr const char* AyudasOcultas =
    "AyudasOcultas";  // of a window that was prepared: whether its tool tips are off

/// Keeps a window's geometry from one opening to the next, and its tool tips from showing when they are off.
class Guardian : public QObject {
  public:
    explicit Guardian(QWidget* ventana) : QObject(ventana), ventana_(ventana) {
        ventana->installEventFilter(this);
        for (QWidget* control : ventana->findChildren<QWidget*>()) control->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::ToolTip && ventana_->property(AyudasOcultas).toBool()) return true;
        if (objeto == ventana_ && evento->type() == QEvent::Hide && !ventana_->objectName().isEmpty())
            QSettings().setValue("geometria/" + ventana_->objectName(), ventana_->saveGeometry());
        return QObject::eventFilter(objeto, evento);
    }

  private:
    QWidget* ventana_;
};

class Vigia : public QObject {
  public:
    Vigia(QWidget* ventana, std::function<void()> hacer)
        : QObject(ventana), ventana_(ventana), hacer_(std::move(hacer)) {
        ventana->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (objeto == ventana_ && evento->type() == QEvent::WindowActivate)
            QTimer::singleShot(0, this, [this] {
                if (QApplication::activeModalWidget() == ventana_ && !SeEscribeEn(ventana_)) hacer_();
            });
        return QObject::eventFilter(objeto, evento);
    }

  private:
    QWidget* ventana_;
    std::function<void()> hacer_;
};

void PonerAyudas(QWidget* ventana, const Tapiz& preferencias) {
    ventana->setStyleSheet(EstiloDeAyudas(preferencias));
    ventana->setProperty(AyudasOcultas, preferencias.OcultarAyuda);
}

/// A window that opens for the first time is no larger than the screen, its frame included.
void CaberEnPantalla(QWidget* ventana) {
    constexpr QSize marco(16, 48);
    const QSize libre = ventana->screen()->availableSize() - marco;
    ventana->resize(ventana->size().boundedTo(libre.expandedTo(ventana->minimumSizeHint())));
}

/// A window is wide enough for its title beside the frame's buttons, as far as the screen gives it. Its
/// layout holds that width: a minimum of the window itself would take the place of what its controls need.
void TituloEntero(QWidget* ventana) {
    constexpr int botones = 140;
    const int ancho = ventana->fontMetrics().horizontalAdvance(ventana->windowTitle()) * 6 / 5 + botones;
    const int libre = ventana->screen()->availableSize().width() - 16;
    if (auto* columna = qobject_cast<QVBoxLayout*>(ventana->layout()))
        columna->addStrut(std::min(ancho, libre));
    else
        ventana->setMinimumWidth(std::max(ventana->minimumSizeHint().width(), std::min(ancho, libre)));
}

}  // namespace

QString TextoDeAyuda(const QString& titulo, const QString& texto) {
    return "<b>" + titulo.toHtmlEscaped() + "</b><br>" + texto.toHtmlEscaped().replace('\n', "<br>");
}

void PonerAyuda(QWidget* control, const QString& titulo, const QString& texto) {
    control->setToolTip(TextoDeAyuda(titulo, texto));
    control->setAccessibleDescription(texto);
}

QString EstiloDeAyudas(const Tapiz& p) {
    return QString(
               "QToolTip { background-color: %1; color: %2; font-family: Arial; font-size: %3pt;"
               " border: 1px solid %2; padding: 3px; border-radius: %4px; }")
        .arg(Color(p.FondoAyuda), Color(p.ColorAyuda))
        .arg(PuntosDeAyuda(p.TamanoAyuda))
        .arg(p.AyudaEnGlobo ? 8 : 0);
}

void PrepararVentana(QWidget* ventana, const Tapiz& preferencias) {
    PonerAyudas(ventana, preferencias);
    ventana->setWindowIcon(Figura("trabex", 48));
    new Guardian(ventana);
    TituloEntero(ventana);
    const QByteArray geometria = QSettings().value("geometria/" + ventana->objectName()).toByteArray();
    const bool recordada = !ventana->objectName().isEmpty() && !geometria.isEmpty();
    if (!recordada || !ventana->restoreGeometry(geometria)) CaberEnPantalla(ventana);
}

void AplicarAyudas(const Tapiz& preferencias) {
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (ventana->property(AyudasOcultas).isValid()) PonerAyudas(ventana, preferencias);
    }
}

void TamanoInicial(QWidget* ventana, const QSize& tamano) {
    const QSize marco(20, 50);  // what the desktop puts around it
    ventana->resize(tamano.boundedTo(ventana->screen()->availableSize() - marco));
}

void MostrarModal(QDialog& ventana) {
    ventana.exec();
    if (ventana.parentWidget() != nullptr) ventana.parentWidget()->activateWindow();
}

void AlVenirAlFrente(QWidget* ventana, std::function<void()> hacer) {
    new Vigia(ventana, std::move(hacer));
}

QPushButton* Boton(const QString& texto, const QString& icono, QWidget* padre) {
    auto* boton = new QPushButton(texto, padre);
    if (!icono.isEmpty()) boton->setIcon(Icono(icono));
    return boton;
}

void PonerMnemonicos(const QMenu& menu) {
    QString usadas;
    for (QAction* accion : menu.actions()) {
        const QString texto = accion->text();
        const auto libre = std::find_if(texto.begin(), texto.end(), [&](QChar letra) {
            return letra.isLetter() && !usadas.contains(letra, Qt::CaseInsensitive);
        });
        if (libre == texto.end()) continue;
        usadas += *libre;
        accion->setText(QString(texto).insert(libre - texto.begin(), '&'));
    }
}

QLayout* FilaAceptarCancelar(QDialog* dialogo, const std::function<void()>& alAceptar) {
    auto* aceptar = Boton(" Aceptar ", "", dialogo);
    auto* cancelar = Boton(" Cancelar ", "", dialogo);
    aceptar->setDefault(true);
    QObject::connect(aceptar, &QPushButton::clicked, dialogo, [dialogo, alAceptar] {
        if (EntradasEnOrden(dialogo)) alAceptar();
    });
    QObject::connect(cancelar, &QPushButton::clicked, dialogo, &QDialog::reject);
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    fila->addWidget(aceptar);
    fila->addWidget(cancelar);
    return fila;
}

void PunteroDeTrabajo::Poner(bool espera) {
    if (espera == esperando_) return;
    esperando_ = espera;
    if (espera)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

}  // namespace trabex::programa::qt
