#include "reports/ui/qt/VentanaExportarGrafico.h"

#include <QBuffer>
#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "base/Archivos.h"
#include "drawing/archivos/DibujoDxf.h"
#include "drawing/archivos/DibujoSvg.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/TrazosFinos.h"
#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

namespace {

constexpr double Finura = 2;  // pixels of the saved picture to one of the window's: sharp in a document
constexpr int Calidad = 100;

}  // namespace

VentanaExportarGrafico::VentanaExportarGrafico(EntornoGrafico entorno, DibujoDeEspacio dibujar,
                                               QWidget* padre)
    : QDialog(padre),
      entorno_(entorno),
      operaciones_(entorno_, *this),
      dibujar_(std::move(dibujar)),
      lienzo_(new dibujo::qt::WidgetLienzo(
          operaciones_.Viewport(),
          [this](dibujo::Lienzo& lienzo) { dibujar_(lienzo, operaciones_.Viewport()); }, this)) {
    setObjectName("ExportarGrafico");
    setWindowTitle("EXPORTAR GRÁFICOS");
    auto* columna = new QVBoxLayout(this);
    columna->addWidget(lienzo_, 1);
    columna->addLayout(Controles());
    // Before the drawing takes the key.
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QDialog::reject);
    programa::qt::TamanoInicial(this, {980, 700});
    programa::qt::PrepararVentana(this, entorno_.LaAplicacion.Preferencias);
}

QLayout* VentanaExportarGrafico::Controles() {
    auto* marco = new QGroupBox("Formato de la Imagen", this);
    auto* opciones = new QVBoxLayout(marco);
    formatos_ = new QButtonGroup(this);
    for (std::size_t i = 0; i < FormatosGrafico.size(); ++i) {
        auto* opcion = new QRadioButton(FormatosGrafico[i].Opcion, marco);
        formatos_->addButton(opcion, static_cast<int>(i));
        opciones->addWidget(opcion);
    }
    formatos_->button(0)->setChecked(true);

    const auto boton = [this](QLayout& fila, const QString& texto, const char* icono, const char* ayuda,
                              auto accion) {
        auto* nuevo = programa::qt::Boton(texto, icono, this);
        nuevo->setAutoDefault(false);
        programa::qt::PonerAyuda(
            nuevo, texto.trimmed().isEmpty() ? "Carpeta" : QString(texto).remove('&').trimmed(), ayuda);
        connect(nuevo, &QPushButton::clicked, this, accion);
        fila.addWidget(nuevo);
        return nuevo;
    };
    dibujo::Visor& visor = lienzo_->Comandos();
    auto* delZoom = new QHBoxLayout;
    delZoom->addStretch(1);
    boton(*delZoom, " Zoom &Más ", "acercar", "Acercar el gráfico.", [&visor] { visor.EjecuteZoomIn(); });
    boton(*delZoom, " Zoom Me&nos ", "alejar", "Alejar el gráfico.", [&visor] { visor.EjecuteZoomOut(); });
    boton(*delZoom, " Zoom E&xtents ", "pantalla", "Ver el gráfico completo.",
          [&visor] { visor.EjecuteZoomExtents(); });
    auto* deSalida = new QHBoxLayout;
    deSalida->addStretch(1);
    boton(*deSalida, "", "carpeta", "Abrir la carpeta de las imágenes exportadas.", [this] {
        operaciones_.AbrirCarpeta();
    })->setObjectName("Carpeta");
    boton(*deSalida, " &Exportar ", "camara", "Salvar el gráfico como imagen.", [this] {
        operaciones_.ExportarPantalla(FormatosGrafico[static_cast<std::size_t>(formatos_->checkedId())]);
    })->setDefault(true);
    boton(*deSalida, " &Retorno ", "salida", "Cerrar la ventana.", [this] { reject(); });
    auto* botones = new QVBoxLayout;
    botones->addStretch(1);
    botones->addLayout(delZoom);
    botones->addLayout(deSalida);
    auto* fila = new QHBoxLayout;
    fila->addWidget(marco);
    fila->addLayout(botones, 1);
    return fila;
}

void VentanaExportarGrafico::Guardar(const std::filesystem::path& archivo, const FormatoGrafico& formato) {
    // On a copy of the viewport, since a drawing leaves its scale in it.
    dibujo::EstadoVista visor = operaciones_.Viewport();
    const std::string_view clase = formato.Clase;
    if (clase == "SVG" || clase == "DXF") {
        visor = dibujo::qt::EnTrazosFinos(visor);
        const std::string trazos = dibujo::qt::TrazosFinos(
            lienzo_->width(), lienzo_->height(), [&](dibujo::Lienzo& lienzo) { dibujar_(lienzo, visor); });
        EscribirArchivo(archivo, clase == "DXF" ? dibujo::archivos::DibujoDxf(trazos)
                                                : dibujo::archivos::DibujoSvg(trazos, "Trabex 2024"));
        return;
    }
    const QImage imagen = dibujo::qt::DibujarImagen(lienzo_->width(), lienzo_->height(), Finura,
                                                    [&](dibujo::Lienzo& lienzo) { dibujar_(lienzo, visor); });
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (!imagen.save(&bytes, formato.Clase, Calidad)) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
    EscribirArchivo(archivo, {bytes.data().constData(), static_cast<std::size_t>(bytes.data().size())});
}

}  // namespace trabex::reportes::ui::qt
