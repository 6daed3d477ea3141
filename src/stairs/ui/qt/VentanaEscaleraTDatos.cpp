#include "stairs/ui/qt/VentanaEscaleraTDatos.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "drawing/escalera/GraficoEscalera.h"
#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/CampoNumero.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::escaleras::ui::qt {

namespace {

struct Rotulo {
    const char* Marco;  ///< the frame that the field begins; null: it stands in the one before
    const char* Texto;
    bool Entero;
};
constexpr std::array<Rotulo, 8> Rotulos{{
    {"Dimensiones (m)", "Longitud (m) L =", false},
    {nullptr, "Longitud (m) B =", false},
    {nullptr, "Altura (m) H =", false},
    {"Espesor de la Losa (m)", "Tramo (m) e1 =", false},
    {nullptr, "Descanso (m) e2 =", false},
    {"Carga Total en el Tramo (kgf/ml)", "WT (kgf/ml) =", true},
    {"Carga en el Descanso (kgf/ml)", "Carga Total WT =", true},
    {nullptr, "Carga Permanente =", true},
}};

constexpr QSize TamanoDelBoceto(380, 440);

}  // namespace

VentanaEscaleraTDatos::VentanaEscaleraTDatos(const TrabajoEscaleraT& trabajo,
                                             const programa::Aplicacion& aplicacion,
                                             programa::CajaMensajes& caja, QWidget* padre)
    : QDialog(padre), aplicacion_(aplicacion), operaciones_(trabajo, caja, *this) {
    setObjectName("EscaleraTDatos");
    setWindowTitle("GEOMETRÍA DE LA ESCALERA AUTOPORTANTE");
    vista_.CuadriculaVisible = false;
    auto* partes = new QHBoxLayout;
    partes->addWidget(Campos());
    partes->addWidget(Boceto(), 1);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(partes, 1);
    columna->addLayout(Botones());
    Rellenar();
    programa::qt::PrepararVentana(this, aplicacion.Preferencias);
    campos_[0]->setFocus();
}

QWidget* VentanaEscaleraTDatos::Campos() {
    auto* marco = new QGroupBox("Datos Generales de la Escalera", this);
    auto* columna = new QVBoxLayout(marco);
    nombre_ = new QLabel(marco);
    nombre_->setObjectName("Nombre");
    nombre_->setTextFormat(Qt::PlainText);
    nombre_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    columna->addWidget(nombre_);
    QFormLayout* formulario = nullptr;
    for (std::size_t i = 0; i < Rotulos.size(); ++i) {
        const Rotulo& rotulo = Rotulos[i];
        if (rotulo.Marco != nullptr) {
            auto* grupo = new QGroupBox(rotulo.Marco, marco);
            formulario = new QFormLayout(grupo);
            columna->addWidget(grupo);
        }
        campos_[i] =
            new programa::qt::CampoNumero(rotulo.Entero ? programa::qt::EnteroDe32 : programa::qt::Distancia,
                                          aplicacion_.SeparadoresLocales, marco);
        auto* etiqueta = new QLabel(rotulo.Texto, marco);
        etiqueta->setMinimumWidth(etiqueta->fontMetrics().horizontalAdvance(Rotulos.back().Texto) + 12);
        formulario->addRow(etiqueta, campos_[i]);
        connect(campos_[i], &QLineEdit::textEdited, this, [this] { operaciones_.Cambiar(); });
        connect(campos_[i], &QLineEdit::textChanged, this, [this] {
            if (boceto_ != nullptr) boceto_->RedibujeVista();
        });
    }
    columna->addStretch(1);
    return marco;
}

QWidget* VentanaEscaleraTDatos::Boceto() {
    boceto_ = new dibujo::qt::WidgetLienzo(
        vista_, [this](dibujo::Lienzo& lienzo) { DibujarBoceto(lienzo); }, this);
    boceto_->setMinimumSize(TamanoDelBoceto * 0.6);
    boceto_->setFocusPolicy(Qt::ClickFocus);
    return boceto_;
}

/// Plan and section of what stands in the fields. It keeps its scale state in this window's viewport.
void VentanaEscaleraTDatos::DibujarBoceto(dibujo::Lienzo& lienzo) {
    const DatosEscaleraT entrados = Entrados();
    const DatosGenerales sinUso;
    const ResultadosEscaleraT sinCalcular;
    dibujo::escalera::HojaEscalera hoja;
    hoja.Vista = vista_;
    hoja.Numeros = aplicacion_.SeparadoresLocales;
    dibujo::escalera::RedibujeVista(lienzo, hoja, {entrados, sinUso, sinCalcular},
                                    dibujo::escalera::HojaDeBoceto);
    vista_ = hoja.Vista;
}

QLayout* VentanaEscaleraTDatos::Botones() {
    const auto boton = [this](const char* texto, const char* icono, const char* ayuda, auto accion) {
        QPushButton* nuevo = programa::qt::Boton(texto, icono, this);
        programa::qt::PonerAyuda(nuevo, QString(texto).remove('&').trimmed(), ayuda);
        nuevo->setAutoDefault(false);
        connect(nuevo, &QPushButton::clicked, this, accion);
        return nuevo;
    };
    auto* fila = new QHBoxLayout;
    fila->addWidget(
        boton("Escalera &Anterior", "anterior", "Descarta los cambios. ", [this] { Rellenar(); }));
    fila->addWidget(
        boton("Siguiente &Escalera", "siguiente", "Descarta los cambios. ", [this] { Rellenar(); }));
    fila->addStretch(1);
    QPushButton* salvar = boton(" &Salvar ", "salvar", "Guardar la escalera en el proyecto. ",
                                [this] { operaciones_.Salvar(Entrados()); });
    salvar->setObjectName("Salvar");
    salvar->setDefault(true);
    fila->addWidget(salvar);
    fila->addWidget(
        boton(" &Retorno ", "salida", "Volver a las escaleras del proyecto. ", [this] { reject(); }));
    return fila;
}

void VentanaEscaleraTDatos::Rellenar() {
    const DatosEscaleraT e = operaciones_.Mostrar();
    nombre_->setText("ESCALERA: " + programa::qt::Q(operaciones_.Nombre()));
    const std::array<double, 8> valores{e.L, e.B, e.H, e.HT, e.Hd, 1.0 * e.WT, 1.0 * e.Wd, 1.0 * e.WpD};
    for (std::size_t i = 0; i < valores.size(); ++i) campos_[i]->PonerValor(valores[i]);
}

DatosEscaleraT VentanaEscaleraTDatos::Entrados() const {
    using enum CampoEscaleraT;
    const auto valor = [&](CampoEscaleraT campo) {
        return campos_[static_cast<std::size_t>(campo)]->Valor();
    };
    const auto entero = [&](CampoEscaleraT campo) { return static_cast<std::int32_t>(valor(campo)); };
    return {"", "", valor(L), valor(B), valor(H), valor(HT), valor(Hd), entero(WT), entero(Wd), entero(WpD)};
}

void VentanaEscaleraTDatos::Enfocar(CampoEscaleraT campo) {
    programa::qt::CampoNumero* elegido = campos_[static_cast<std::size_t>(campo)];
    elegido->setFocus();
    elegido->selectAll();
}

void VentanaEscaleraTDatos::reject() {
    if (operaciones_.Cerrar(Entrados())) QDialog::reject();
}

}  // namespace trabex::escaleras::ui::qt
