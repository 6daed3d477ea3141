#pragma once

#include <QDialog>

#include "reports/ui/VistaPreviaR.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QToolBar;

namespace trabex::salidas::qt {
class VistaPaginas;
}

namespace trabex::reportes::ui::qt {

/// The preview of a grid in pages, to be titled, printed and exported. The grid is the caller's.
class VentanaVistaPreviaR : public QDialog {
  public:
    VentanaVistaPreviaR(EntornoSalida& entorno, const cuadricula::Cuadricula& GrillaPreview,
                        const std::string& titulo, documento::Alineacion lado, bool apaisada, QWidget* padre);

  private:
    void Armar();
    void ArmarZoom(QToolBar& barra);
    QComboBox* ListaDePaginas(QToolBar& barra, const char* nombre);
    void Componer();
    void Acercar();
    void MostrarPagina(int pagina);
    void Imprimir();
    void Exportar();

    EntornoSalida& entorno_;
    VistaPreviaR operaciones_;
    documento::Documento documento_;
    salidas::qt::VistaPaginas* vista_;
    QLineEdit* titulo_ = nullptr;
    QComboBox* modo_ = nullptr;
    QComboBox* porcentaje_ = nullptr;
    QComboBox* columnas_ = nullptr;
    QComboBox* filas_ = nullptr;
    QLabel* pagina_ = nullptr;
};

}  // namespace trabex::reportes::ui::qt
