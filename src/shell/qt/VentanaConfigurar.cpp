#include "shell/qt/VentanaConfigurar.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDateTime>
#include <QEventLoop>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "base/Archivos.h"
#include "shell/ConfigurarPrograma.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

namespace {

constexpr const char* FiltroDibujos = "Archivos de Dibujo|*.bmp; *.jpg; *.gif; *.dib; *.wmf, *.emf";

QColor ColorDe(std::uint32_t bgr) {
    return {static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
            static_cast<int>((bgr >> 16) & 0xFF)};
}

std::uint32_t BgrDe(const QColor& color) {
    return static_cast<std::uint32_t>(color.red() | color.green() << 8 | color.blue() << 16);
}

/// A label that can be clicked.
class Muestra : public QLabel {
  public:
    Muestra(std::function<void()> alPulsar, QWidget* padre) : QLabel(padre), alPulsar_(std::move(alPulsar)) {
        setFrameShape(QFrame::StyledPanel);
        setMinimumSize(120, 24);
        setAutoFillBackground(true);
        setCursor(Qt::PointingHandCursor);
        setFocusPolicy(Qt::StrongFocus);
    }

  protected:
    void mouseReleaseEvent(QMouseEvent*) override { alPulsar_(); }
    void keyPressEvent(QKeyEvent* evento) override {
        if (evento->key() == Qt::Key_Space)
            alPulsar_();
        else
            QLabel::keyPressEvent(evento);
    }

  private:
    std::function<void()> alPulsar_;
};

void PintarMuestra(QLabel* muestra, std::uint32_t color) {
    QPalette paleta = muestra->palette();
    paleta.setColor(QPalette::Window, ColorDe(color));
    muestra->setPalette(paleta);
}

}  // namespace

VentanaConfigurar::VentanaConfigurar(Aplicacion& aplicacion, const Servicios& servicios, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), servicios_(servicios), elegida_(aplicacion.Preferencias) {
    setObjectName("ConfigurarPrograma");
    setWindowTitle("Configurar la Pantalla");
    auto* paginas = new QTabWidget(this);
    paginas->addTab(PaginaImagen(), "Imágen del Menú Principal");
    paginas->addTab(PaginaAyudas(), "ToolTip de Ayuda de los Botones");
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(paginas, 1);
    columna->addLayout(FilaAceptarCancelar(this, [this] { Aceptar(); }));
    setMinimumWidth(540);
    resize(620, 460);
    Refrescar();
    PrepararVentana(this, aplicacion_.Preferencias);
}

QButtonGroup* VentanaConfigurar::Opciones(QLayout* donde, const QString& titulo, const QStringList& textos,
                                          std::uint8_t actual) {
    auto* marco = new QGroupBox(titulo, this);
    auto* fila = new QVBoxLayout(marco);
    auto* grupo = new QButtonGroup(marco);
    for (int i = 0; i < textos.size(); ++i) {
        auto* opcion = new QRadioButton(textos[i], marco);
        opcion->setChecked(i == actual);
        grupo->addButton(opcion, i);
        fila->addWidget(opcion);
    }
    connect(grupo, &QButtonGroup::idClicked, this, [this] { Refrescar(); });
    donde->addWidget(marco);
    return grupo;
}

QWidget* VentanaConfigurar::PaginaImagen() {
    auto* pagina = new QWidget(this);
    ruta_ = new QLineEdit(Q(elegida_.Imagen), pagina);
    ruta_->setReadOnly(true);
    auto* elegir = Boton("&Seleccionar...", "abrir", pagina);
    auto* capturar = Boton("&Capturar Imagen", "camara", pagina);
    ajustar_ = new QCheckBox("&Ajustar la Imagen", pagina);
    ajustar_->setChecked(elegida_.Ajustar);
    muestra_ = new LienzoTapiz(pagina);
    if (const auto* menu = qobject_cast<QMainWindow*>(parentWidget()))
        muestra_->Representar(menu->centralWidget()->size());
    connect(elegir, &QPushButton::clicked, this, [this] { ElegirImagen(); });
    connect(capturar, &QPushButton::clicked, this, [this] {
        porCapturar_ = frameGeometry();
        hide();
    });
    connect(ajustar_, &QCheckBox::toggled, this, [this] { Refrescar(); });

    auto* filaRuta = new QHBoxLayout;
    filaRuta->addWidget(ruta_, 1);
    filaRuta->addWidget(elegir);
    filaRuta->addWidget(capturar);
    auto* lado = new QVBoxLayout;
    horizontal_ =
        Opciones(lado, "Alineación Horizontal", {"Centrado", "Izquierda", "Derecha"}, elegida_.Horizontal);
    vertical_ = Opciones(lado, "Alineación Vertical", {"Centrado", "Al tope", "Al fondo"}, elegida_.Vertical);
    setTabOrder(vertical_->buttons().constLast(), ajustar_);
    lado->addWidget(ajustar_);
    lado->addStretch(1);
    auto* centro = new QHBoxLayout;
    centro->addLayout(lado);
    centro->addWidget(muestra_, 1);
    auto* columna = new QVBoxLayout(pagina);
    columna->addWidget(new QLabel("Seleccione el Tapiz (Imagen) del Menú Principal", pagina));
    columna->addLayout(filaRuta);
    columna->addLayout(centro, 1);
    return pagina;
}

QLabel* VentanaConfigurar::MuestraDeColor(std::uint32_t& color) {
    auto* muestra = new Muestra([this, &color] { ElegirColor(color); }, this);
    PonerAyuda(muestra, "Color", " Haga Clic para Seleccionar el Color ");
    return muestra;
}

QWidget* VentanaConfigurar::PaginaAyudas() {
    auto* pagina = new QWidget(this);
    tamano_ = new QComboBox(pagina);
    for (std::uint8_t indice = 1; indice <= 7; ++indice)
        tamano_->addItem(QString::number(PuntosDeAyuda(indice)));
    tamano_->setCurrentIndex(elegida_.TamanoAyuda - 1);
    fondo_ = MuestraDeColor(elegida_.FondoAyuda);
    color_ = MuestraDeColor(elegida_.ColorAyuda);
    ocultar_ = new QCheckBox("&No Mostrar los ToolTips", pagina);
    ocultar_->setChecked(elegida_.OcultarAyuda);
    globo_ = new QCheckBox("Mostrar en Forma de &Globo", pagina);
    globo_->setChecked(elegida_.AyudaEnGlobo);
    ejemplo_ = new QLabel("<b>Crear Losa</b><br>Crear una nueva losa en el proyecto. ", pagina);
    ejemplo_->setAlignment(Qt::AlignCenter);
    connect(tamano_, &QComboBox::currentIndexChanged, this, [this] { Refrescar(); });
    connect(ocultar_, &QCheckBox::toggled, this, [this] { Refrescar(); });
    connect(globo_, &QCheckBox::toggled, this, [this] { Refrescar(); });

    auto* formulario = new QFormLayout(pagina);
    formulario->addRow("&Tamaño de la Letra:", tamano_);
    formulario->addRow("Color del Fondo:", fondo_);
    formulario->addRow("Color del Texto:", color_);
    formulario->addRow(ocultar_);
    formulario->addRow(globo_);
    formulario->addRow("Vista Previa:", ejemplo_);
    return pagina;
}

void VentanaConfigurar::ElegirImagen() {
    const auto archivo = servicios_.Dialogos.Elegir({"Cambiar el Tapiz del Menú Principal", FiltroDibujos,
                                                     servicios_.Carpetas.Tapices(), false, false, true});
    if (!archivo) return;
    elegida_.Imagen = TextoDeCamino(*archivo);
    captura_ = QPixmap();
    Refrescar();
}

/// Takes what the screen shows below this window, which is not there meanwhile: it closes, and opens again.
/// The picture gets its file when the settings are accepted.
int VentanaConfigurar::exec() {
    int resultado = QDialog::exec();
    while (!porCapturar_.isEmpty()) {
        Capturar();
        resultado = QDialog::exec();
    }
    return resultado;
}

void VentanaConfigurar::Capturar() {
    constexpr int espera = 300;  // ms in which the windows below repaint
    QEventLoop pausa;
    QTimer::singleShot(espera, &pausa, &QEventLoop::quit);
    pausa.exec();
    const QRect lugar = std::exchange(porCapturar_, {});
    const QPixmap captura = screen()->grabWindow(0, lugar.x(), lugar.y(), lugar.width(), lugar.height());
    if (captura.isNull()) {
        servicios_.Caja.Mostrar(
            MensajeDeError(ErrorEjecucion(CodigoError::ErrorDispositivo), ErrorInesperado));
        return;
    }
    captura_ = captura;
    const QString nombre = "Captura " + QDateTime::currentDateTime().toString("yyyyMMdd-HHmmss") + ".jpg";
    elegida_.Imagen = TextoDeCamino(servicios_.Carpetas.Tapices() / CaminoDeTexto(S(nombre)));
    Refrescar();
}

void VentanaConfigurar::GuardarCaptura() const {
    if (!captura_.isNull() && !captura_.save(Q(elegida_.Imagen), "JPG", 95))
        throw ErrorEjecucion(CodigoError::ErrorAccesoRuta);
}

void VentanaConfigurar::ElegirColor(std::uint32_t& color) {
    const QColor elegido = QColorDialog::getColor(ColorDe(color), this);
    if (elegido.isValid()) color = BgrDe(elegido);
    Refrescar();
}

void VentanaConfigurar::Refrescar() {
    elegida_.Horizontal = static_cast<std::uint8_t>(horizontal_->checkedId());
    elegida_.Vertical = static_cast<std::uint8_t>(vertical_->checkedId());
    elegida_.Ajustar = ajustar_->isChecked();
    elegida_.TamanoAyuda = static_cast<std::uint8_t>(tamano_->currentIndex() + 1);
    elegida_.OcultarAyuda = ocultar_->isChecked();
    elegida_.AyudaEnGlobo = globo_->isChecked();
    ruta_->setText(Q(elegida_.Imagen));
    muestra_->Poner(elegida_, captura_);
    PintarMuestra(fondo_, elegida_.FondoAyuda);
    PintarMuestra(color_, elegida_.ColorAyuda);
    ejemplo_->setVisible(!elegida_.OcultarAyuda);
    ejemplo_->setStyleSheet(EstiloDeAyudas(elegida_).replace("QToolTip", "QLabel"));
}

void VentanaConfigurar::Aceptar() {
    const ResultadoConfiguracion resultado =
        AceptarConfiguracion(aplicacion_, servicios_, elegida_, [this] { GuardarCaptura(); });
    if (resultado == ResultadoConfiguracion::SigueAbierta) return;
    guardada_ = resultado == ResultadoConfiguracion::Guardada;
    accept();
}

}  // namespace trabex::programa::qt
