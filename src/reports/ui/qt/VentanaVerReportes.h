#pragma once

#include <QDialog>

#include "reports/ui/SalidaReporte.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolBar;

namespace trabex::salidas::qt {
class VistaPaginas;
}

namespace trabex::reportes::ui::qt {

/// `VerReportes`: a report on the screen, to be read, searched, printed and exported.
class VentanaVerReportes : public QDialog {
  public:
    /// The document must outlive the window.
    VentanaVerReportes(EntornoSalida& entorno, const documento::Documento& documento, QWidget* padre);

  private:
    void Armar();
    void ArmarSalidas(QToolBar& barra);
    void ArmarPaginas(QToolBar& barra);
    void ArmarZoom(QToolBar& barra);
    void ArmarBusqueda(QToolBar& barra);
    void Imprimir();
    void Exportar(std::uint8_t salida);
    void PonerZoom(int opcion);
    void MostrarZoom(double porcentaje);
    void MostrarPagina(int pagina);
    void Buscar(bool adelante);

    ExportadorReportes exportador_;
    const documento::Documento& documento_;
    salidas::qt::VistaPaginas* vista_;
    QSpinBox* pagina_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QLineEdit* busqueda_ = nullptr;
    QLabel* hallazgos_ = nullptr;
    QString buscado_;
};

}  // namespace trabex::reportes::ui::qt
