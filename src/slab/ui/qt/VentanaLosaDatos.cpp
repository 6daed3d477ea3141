#include "slab/ui/qt/VentanaLosaDatos.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"
#include "slab/Analizar.h"
#include "slab/ui/SerieDeEjes.h"
#include "slab/ui/qt/ComunLosaDatos.h"
#include "slab/ui/qt/PaginaDeApoyos.h"
#include "slab/ui/qt/PaginaDeCargas.h"
#include "slab/ui/qt/VentanaCarga.h"
#include "slab/ui/qt/VentanaCopiarTramo.h"

namespace trabex::losas::ui::qt {

namespace {

constexpr int LargoDeEje = 20;  // characters that the axes' column holds

struct RotuloDeCampo {
    CampoSeccion Campo;
    const char* Nombre;
    const char* Texto;
};
constexpr std::array<RotuloDeCampo, 5> CamposDeSeccion{{
    {CampoSeccion::Bo, "Bo", "Ancho del Nervio (m)  Bo ="},
    {CampoSeccion::Ho, "Ho", "Altura de la Losa (m)  Ho ="},
    {CampoSeccion::So, "So", "Separación de Nervios (m)  So ="},
    {CampoSeccion::Loseta, "Loseta", "Altura de la Loseta (m) ="},
    {CampoSeccion::Hm, "Hm", "Altura de la Losa (m)  Hm ="},
}};

/// A list of names that takes the place it gets: a longer name shows its beginning and its end.
class SelectorElidido : public QComboBox {
  public:
    explicit SelectorElidido(QWidget* padre) : QComboBox(padre) {
        constexpr int letras = 24;
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        setMinimumContentsLength(letras);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

  protected:
    void paintEvent(QPaintEvent* /*evento*/) override {
        QStylePainter pintor(this);
        QStyleOptionComboBox opcion;
        initStyleOption(&opcion);
        pintor.drawComplexControl(QStyle::CC_ComboBox, opcion);
        constexpr int margen = 4;
        const QRect campo =
            style()->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, this);
        opcion.currentText =
            fontMetrics().elidedText(opcion.currentText, Qt::ElideMiddle, campo.width() - margen);
        pintor.drawControl(QStyle::CE_ComboBoxLabel, opcion);
    }
};

}  // namespace

VentanaLosaDatos::VentanaLosaDatos(Losas& losas, programa::CajaMensajes& caja, QWidget* padre)
    : QDialog(padre),
      losas_(losas),
      caja_(caja),
      operaciones_(losas, *this, caja),
      numeros_(losas.Programa().SeparadoresLocales) {
    setObjectName("LosaDatos");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    redibujo_.setSingleShot(true);
    connect(&redibujo_, &QTimer::timeout, this, [this] {
        static_cast<dibujo::qt::WidgetLienzo*>(bocetos_->currentWidget())->RedibujeVista();
        momentos_->setText(programa::qt::Q(operaciones_.MomentosDePrueba(numeros_)));
    });
    paginas_ = new QTabWidget(this);
    paginas_->addTab(PaginaDeSeccion(), "Sección");
    paginas_->addTab(PaginaDeTramos(), "Tramos y Ejes");
    paginas_->addTab(PaginaDeJuntasD(), "Juntas Desplazadas");
    auto* apoyos = new PaginaDeApoyos(operaciones_, numeros_, this);
    apoyos_ = apoyos->Tabla();
    apoyos_->AlCambiarFila([this](int) { Redibujar(); });
    primeros_[3] = apoyos_;
    paginas_->addTab(apoyos, "Apoyos");
    paginaDeCargas_ = new PaginaDeCargas(
        operaciones_, numeros_, [this] { CopiarTramo(); }, this);
    cargas_ = paginaDeCargas_->Tabla();
    primeros_[4] = cargas_;
    paginas_->addTab(paginaDeCargas_, "Cargas");
    paginas_->setMinimumWidth(paginas_->tabBar()->sizeHint().width());  // no tab out of sight
    auto* partes = new QSplitter(Qt::Horizontal, this);
    partes->addWidget(paginas_);
    partes->addWidget(Bocetos());
    partes->setStretchFactor(0, 2);
    partes->setStretchFactor(1, 3);
    partes->setChildrenCollapsible(false);
    auto* columna = new QVBoxLayout(this);
    columna->addLayout(FilaDeComandos());
    columna->addWidget(partes, 1);
    for (QPushButton* boton : findChildren<QPushButton*>()) boton->setAutoDefault(false);
    connect(paginas_, &QTabWidget::currentChanged, this, [this] { CambiarPagina(); });
    programa::qt::TamanoInicial(this, {1060, 600});
    operaciones_.Abrir();
    programa::qt::PrepararVentana(this, losas_.Programa().Preferencias);
    primeros_[0]->setFocus();
}

QLayout* VentanaLosaDatos::FilaDeComandos() {
    auto* salvar = BotonDeBarra("salvar", "&Salvar", "Salvar la modificaciones realizadas. ", this);
    auto* anterior = BotonDeBarra("anterior", "&Anterior", "Pantalla anterior. ", this);
    auto* siguiente = BotonDeBarra("siguiente", "Si&guiente", "Pantalla siguiente. ", this);
    auto* retorno = BotonDeBarra("salida", " &Retorno ", "Volver a las losas del proyecto. ", this);
    const auto unir = [this](QToolButton* boton, const QKeySequence& tecla,
                             const std::function<void()>& accion) {
        connect(boton, &QToolButton::clicked, this, accion);
        // A button's own shortcut acts a moment later, and what is typed meanwhile goes astray.
        if (!tecla.isEmpty()) connect(new QShortcut(tecla, this), &QShortcut::activated, this, accion);
    };
    unir(salvar, QKeySequence::Save, [this] { Salvar(); });
    unir(anterior, QKeySequence("Ctrl+PgUp"), [this] { operaciones_.PaginaAnterior(); });
    unir(siguiente, QKeySequence("Ctrl+PgDown"), [this] { operaciones_.PaginaSiguiente(); });
    unir(retorno, {}, [this] { reject(); });
    selector_ = new SelectorElidido(this);
    selector_->setFocusPolicy(Qt::TabFocus);
    programa::qt::PonerAyuda(selector_, "Losas", "Elegir otra losa del proyecto. ");
    connect(selector_, &QComboBox::activated, this, [this](int lugar) { ElegirLosa(lugar); });
    auto* rotulo = new QLabel("&Losa:", this);
    rotulo->setBuddy(selector_);
    auto* fila = new QHBoxLayout;
    for (QWidget* control : std::initializer_list<QWidget*>{salvar, anterior, siguiente, rotulo, selector_})
        fila->addWidget(control);
    fila->addStretch(1);
    fila->addWidget(retorno);
    setTabOrder(siguiente, selector_);
    return fila;
}

QWidget* VentanaLosaDatos::PaginaDeSeccion() {
    auto* pagina = new QWidget(this);
    auto* tipo = new QGroupBox("Tipo de Losa", pagina);
    nervada_ = new QRadioButton("Losa &Nervada", tipo);
    maciza_ = new QRadioButton("Losa &Maciza", tipo);
    auto* filaTipo = new QHBoxLayout(tipo);
    filaTipo->addWidget(nervada_);
    filaTipo->addWidget(maciza_);
    filaTipo->addStretch(1);
    connect(maciza_, &QRadioButton::toggled, this, [this](bool maciza) {
        if (rellenando_) return;
        operaciones_.PonerMaciza(maciza);
        MostrarClase();
    });
    auto* medidas = new QGroupBox("Sección", pagina);
    formulario_ = new QFormLayout(medidas);
    for (const RotuloDeCampo& rotulo : CamposDeSeccion) {
        auto* campo = new programa::qt::CampoNumero(Longitud, numeros_, medidas);
        seccion_[static_cast<std::size_t>(rotulo.Campo)] = campo;
        campo->setObjectName(rotulo.Nombre);
        formulario_->addRow(rotulo.Texto, campo);
        connect(campo, &QLineEdit::textEdited, this,
                [this, campo, cual = rotulo.Campo] { operaciones_.PonerSeccion(cual, campo->Valor()); });
        connect(campo, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    }
    auto* columna = new QVBoxLayout(pagina);
    columna->addWidget(tipo);
    columna->addWidget(medidas);
    columna->addStretch(1);
    primeros_[0] = nervada_;
    return pagina;
}

/// Enter in a count goes on to the table that it sizes.
void VentanaLosaDatos::SeguirEn(programa::qt::CampoNumero* contador, programa::qt::TablaDatos* tabla) {
    connect(contador, &QLineEdit::returnPressed, this, [contador, tabla] {
        if (tabla->Filas() == 0 || !contador->Motivo().isEmpty()) return;
        tabla->setFocus();
        tabla->IrA(1, 0);
    });
}

programa::qt::CampoNumero* VentanaLosaDatos::Contador(const ClaseNumero& clase, const char* nombre,
                                                      const std::function<void(double)>& alEntrar) {
    auto* contador = new programa::qt::CampoNumero(clase, numeros_, this);
    contador->setObjectName(nombre);
    contador->AlEntrar(alEntrar);
    return contador;
}

programa::qt::TablaDatos* VentanaLosaDatos::Tabla(std::vector<programa::qt::ColumnaDatos> columnas,
                                                  const char* nombre) {
    auto* tabla = new programa::qt::TablaDatos(std::move(columnas), numeros_, this);
    tabla->setObjectName(nombre);
    tabla->AlCambiarFila([this](int) { Redibujar(); });
    return tabla;
}

QWidget* VentanaLosaDatos::PaginaDeTramos() {
    auto* pagina = new QWidget(this);
    numeroTramos_ = Contador({true, 0, static_cast<double>(MaximoTramos), 0}, "NumeroTramos",
                             [this](double tramos) { PonerNumeroTramos(static_cast<int>(tramos)); });
    ejes_ = Tabla(
        {{.Titulo = "Nombre Eje",
          .Numero = std::nullopt,
          .Leer = [this](int j) { return programa::qt::Q(operaciones_.Edicion().Ejes[Indice(j)].Eje); },
          .Poner =
              [this](int j, const QVariant& eje) {
                  operaciones_.PonerEje(Indice(j), programa::qt::S(eje.toString().trimmed()));
                  return true;
              },
          .Siguiente =
              [](const QString& eje) { return programa::qt::Q(SiguienteEnSerie(programa::qt::S(eje))); },
          .Largo = LargoDeEje}},
        "Ejes");
    luces_ = Tabla({{.Titulo = "Longitud (m)",
                     .Numero = Longitud,
                     .Leer = [this](int i) { return operaciones_.Edicion().Tramos[Indice(i)].LT; },
                     .Poner =
                         [this](int i, const QVariant& LT) {
                             operaciones_.PonerLongitud(Indice(i), LT.toDouble());
                             return true;
                         }}},
                   "Luces");
    auto* fila = new QHBoxLayout;
    auto* rotulo = new QLabel("Número de &Tramos =", pagina);
    rotulo->setBuddy(numeroTramos_);
    fila->addWidget(rotulo);
    fila->addWidget(numeroTramos_);
    fila->addStretch(1);
    auto* tablas = new QHBoxLayout;
    tablas->addWidget(luces_);
    tablas->addWidget(ejes_);
    auto* columna = new QVBoxLayout(pagina);
    columna->addLayout(fila);
    columna->addLayout(tablas, 1);
    SeguirEn(numeroTramos_, luces_);
    setTabOrder(numeroTramos_, luces_);
    setTabOrder(luces_, ejes_);
    primeros_[1] = numeroTramos_;
    return pagina;
}

programa::qt::ColumnaDatos VentanaLosaDatos::ColumnaDeCorrimiento(const QString& titulo,
                                                                  double JuntaD::*campo) {
    return {.Titulo = titulo,
            .Numero = Distancia,
            .Leer = [this, campo](int k) { return operaciones_.Edicion().JuntasD[Indice(k)].*campo; },
            .Poner =
                [this, campo](int k, const QVariant& valor) {
                    JuntaD junta = operaciones_.Edicion().JuntasD[Indice(k)];
                    junta.*campo = valor.toDouble();
                    operaciones_.PonerCorrimiento(Indice(k), junta.x, junta.y);
                    return true;
                }};
}

QWidget* VentanaLosaDatos::PaginaDeJuntasD() {
    auto* pagina = new QWidget(this);
    numeroJuntasD_ =
        Contador(NaturalSinLimite, "NumeroJuntasD", [this](double juntas) { PonerNumeroJuntasD(juntas); });
    juntasD_ = Tabla(
        {{.Titulo = "Junta Número",
          .Numero = NaturalSinLimite,
          .Leer =
              [this](int k) { return static_cast<double>(operaciones_.Edicion().JuntasD[Indice(k)].Junta); },
          .Poner =
              [this](int k, const QVariant& junta) {
                  return operaciones_.PonerJunta(Indice(k), Entero64(junta.toDouble()));
              }},
         ColumnaDeCorrimiento("X (m)", &JuntaD::x),
         ColumnaDeCorrimiento("Y (m)", &JuntaD::y)},
        "JuntasD");
    auto* fila = new QHBoxLayout;
    auto* rotulo = new QLabel("&Juntas Desplazadas =", pagina);
    rotulo->setBuddy(numeroJuntasD_);
    fila->addWidget(rotulo);
    fila->addWidget(numeroJuntasD_);
    fila->addStretch(1);
    auto* columna = new QVBoxLayout(pagina);
    columna->addLayout(fila);
    columna->addWidget(juntasD_, 1);
    SeguirEn(numeroJuntasD_, juntasD_);
    primeros_[2] = numeroJuntasD_;
    return pagina;
}

QWidget* VentanaLosaDatos::Bocetos() {
    bocetos_ = new QStackedWidget(this);
    lienzos_[0] = new dibujo::qt::WidgetLienzo(
        vistas_[0],
        [this](dibujo::Lienzo& lienzo) {
            dibujo::losa::DibujeLosaDatos(lienzo, vistas_[0], operaciones_.Edicion(), Marca(), numeros_);
        },
        bocetos_);
    lienzos_[1] = new dibujo::qt::WidgetLienzo(
        vistas_[1],
        [this](dibujo::Lienzo& lienzo) {
            dibujo::losa::DibujeLosaCargas(lienzo, vistas_[1], operaciones_.Edicion(), Marca(), numeros_);
        },
        bocetos_);
    for (dibujo::qt::WidgetLienzo* lienzo : lienzos_) bocetos_->addWidget(lienzo);
    momentos_ = new QLabel(this);
    momentos_->setObjectName("MomentosDePrueba");
    momentos_->setWordWrap(true);
    momentos_->setAlignment(Qt::AlignCenter);
    auto* panel = new QWidget(this);
    auto* columna = new QVBoxLayout(panel);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->addWidget(bocetos_, 1);
    columna->addWidget(momentos_);
    return panel;
}

/// The span or the joint in hand on the page on show.
dibujo::losa::MarcaBoceto VentanaLosaDatos::Marca() const {
    switch (Pagina()) {
        case PaginaLosa::Tramos:
            if (ejes_->hasFocus()) return {0, Indice(ejes_->FilaActual())};
            return {Indice(luces_->FilaActual()), 0};
        case PaginaLosa::JuntasD: {
            const int fila = juntasD_->FilaActual();
            if (fila < 1) return {};
            return {0, Indice(operaciones_.Edicion().JuntasD[Indice(fila)].Junta)};
        }
        case PaginaLosa::Apoyos:
            return {0, Indice(apoyos_->FilaActual())};
        case PaginaLosa::Cargas:
            return {operaciones_.TramoActual(), 0};
        default:
            return {};
    }
}

void VentanaLosaDatos::Rellenar() {
    rellenando_ = true;
    for (programa::qt::TablaDatos* tabla : {luces_, ejes_, juntasD_, apoyos_, cargas_})
        tabla->OlvidarCambios();
    setWindowTitle(programa::qt::Q(operaciones_.Titulo()));
    selector_->clear();
    for (const std::string& nombre : losas_.Lista().Nombres()) selector_->addItem(programa::qt::Q(nombre));
    selector_->setCurrentIndex(losas_.Lista().Fila() - 1);
    (operaciones_.Edicion().OpcionMaciza ? maciza_ : nervada_)->setChecked(true);
    for (const RotuloDeCampo& rotulo : CamposDeSeccion)
        seccion_[static_cast<std::size_t>(rotulo.Campo)]->PonerValor(operaciones_.Seccion(rotulo.Campo));
    MostrarClase();
    Refrescar();
}

void VentanaLosaDatos::MostrarClase() {
    const bool maciza = operaciones_.Edicion().OpcionMaciza;
    for (const RotuloDeCampo& rotulo : CamposDeSeccion) {
        programa::qt::CampoNumero* campo = seccion_[static_cast<std::size_t>(rotulo.Campo)];
        const bool visible = (rotulo.Campo == CampoSeccion::Hm) == maciza;
        campo->setVisible(visible);
        formulario_->labelForField(campo)->setVisible(visible);
    }
    paginaDeCargas_->MostrarClase();
    Redibujar();
}

void VentanaLosaDatos::Refrescar() {
    rellenando_ = true;
    const int tramos = static_cast<int>(operaciones_.NumeroDeTramos());
    const int juntas = static_cast<int>(operaciones_.NumeroDeJuntasD());
    numeroTramos_->PonerValor(tramos);
    numeroJuntasD_->PonerValor(juntas);
    luces_->PonerFilas(tramos);
    paginaDeCargas_->PonerTramos(tramos);
    ejes_->PonerFilas(tramos + 1);
    apoyos_->PonerFilas(tramos + 1);
    juntasD_->PonerFilas(juntas);
    rellenando_ = false;
    paginaDeCargas_->MostrarTramo();
    Redibujar();
}

void VentanaLosaDatos::Redibujar() {
    if (!rellenando_) redibujo_.start(0);
}

PaginaLosa VentanaLosaDatos::Pagina() const {
    return static_cast<PaginaLosa>(paginas_->currentIndex());
}

void VentanaLosaDatos::MostrarPagina(PaginaLosa pagina) {
    paginas_->setCurrentIndex(static_cast<int>(pagina));
}

void VentanaLosaDatos::CambiarPagina() {
    if (!programa::qt::EntradasEnOrden(this)) return;
    apoyos_->Refrescar();  // names of axes may have changed on their own page
    bocetos_->setCurrentIndex(Pagina() == PaginaLosa::Cargas ? 1 : 0);
    QWidget* primero = primeros_[static_cast<std::size_t>(Pagina())];
    primero->setFocus();
    if (Pagina() == PaginaLosa::Apoyos && apoyos_->currentIndex().column() != 1)
        apoyos_->IrA(std::max(1, apoyos_->FilaActual()), 1);
    Redibujar();
}

void VentanaLosaDatos::EnfocarCampo(CampoSeccion campo) {
    programa::qt::CampoNumero* cual = seccion_[static_cast<std::size_t>(campo)];
    cual->setFocus();
    cual->selectAll();
}

void VentanaLosaDatos::IrA(const dibujo::losa::Toque& lugar) {
    struct Destino {
        PaginaLosa Pagina;
        programa::qt::TablaDatos* Tabla;
        int Columna;
    };
    const std::array<Destino, 5> destinos{{{PaginaLosa::Tramos, luces_, 0},
                                           {PaginaLosa::Tramos, ejes_, 0},
                                           {PaginaLosa::Apoyos, apoyos_, 1},
                                           {PaginaLosa::Cargas, cargas_, 0},
                                           {PaginaLosa::Cargas, cargas_, 2}}};
    const Destino& destino = destinos[static_cast<std::size_t>(lugar.Que)];
    const int fila = static_cast<int>(lugar.Lugar);
    if (fila > destino.Tabla->Filas()) return;
    MostrarPagina(destino.Pagina);
    destino.Tabla->setFocus();
    destino.Tabla->IrA(fila, destino.Columna);
}

std::size_t VentanaLosaDatos::FilaDeApoyo() const {
    return Indice(apoyos_->FilaActual());
}

void VentanaLosaDatos::IrAFilaDeApoyo(std::size_t fila) {
    apoyos_->Refrescar();
    apoyos_->IrA(static_cast<int>(fila), 1);
}

void VentanaLosaDatos::PonerNumeroTramos(int tramos) {
    if (rellenando_) return;
    operaciones_.PonerNumeroTramos(Indice(tramos));
    luces_->IrA(1, 0);
}

void VentanaLosaDatos::PonerNumeroJuntasD(double juntas) {
    if (!operaciones_.PonerNumeroJuntasD(static_cast<std::size_t>(Entero64(juntas)))) {
        numeroJuntasD_->PonerValor(static_cast<double>(operaciones_.NumeroDeJuntasD()));
        numeroJuntasD_->setFocus();
        numeroJuntasD_->selectAll();
    }
    Redibujar();
}

bool VentanaLosaDatos::MostrarCarga01(const EntradaDeCarga& entrada) {
    Carga01 operaciones(entrada, caja_);
    VentanaCarga01 ventana(operaciones, numeros_, losas_.Programa().Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return operaciones.LosaModificada();
}

bool VentanaLosaDatos::MostrarCarga02(const EntradaDeCarga& entrada) {
    Carga02 operaciones(entrada, caja_);
    VentanaCarga02 ventana(operaciones, numeros_, losas_.Programa().Preferencias, this);
    programa::qt::MostrarModal(ventana);
    return operaciones.LosaModificada();
}

void VentanaLosaDatos::CopiarTramo() {
    if (operaciones_.TramoActual() == 0 || !programa::qt::EntradasEnOrden(this)) return;
    VentanaCopiarTramo ventana(operaciones_, losas_.Programa().Preferencias, this);
    programa::qt::MostrarModal(ventana);
}

void VentanaLosaDatos::Salvar() {
    if (programa::qt::EntradasEnOrden(this)) operaciones_.Salvar();
}

void VentanaLosaDatos::ElegirLosa(int lugar) {
    if (lugar + 1 == losas_.Lista().Fila()) return;
    if (!programa::qt::EntradasEnOrden(this) || !operaciones_.ElegirLosa(lugar + 1))
        selector_->setCurrentIndex(losas_.Lista().Fila() - 1);
}

void VentanaLosaDatos::Cerrar() {
    QDialog::reject();
}

void VentanaLosaDatos::reject() {
    if (programa::qt::EntradasEnOrden(this)) operaciones_.Retorno();
}

}  // namespace trabex::losas::ui::qt
