#pragma once

#include <QDialog>

#include "shell/Compactar1.h"
#include "shell/qt/ComunVentanas.h"

class QFileSystemModel;
class QLabel;
class QListWidget;
class QProgressBar;
class QTreeView;

namespace trabex::programa::qt {

/// Chooses project files in a folder and repairs them.
class VentanaCompactar : public QDialog, public PantallaCompactar {
  public:
    VentanaCompactar(Aplicacion& aplicacion, const Servicios& servicios, QWidget* padre);

    void MostrarProgreso(bool visible) override;
    void Avanzar(double porcentaje, const std::string& rotulo) override;
    void PunteroDeEspera(bool espera) override;
    void RefrescarLista() override;
    void Cerrar() override;

  private:
    void Armar();
    QLayout* CrearBotones();
    std::filesystem::path Carpeta() const;
    void Aceptar();

    Aplicacion& aplicacion_;
    Compactar1 operaciones_;
    QFileSystemModel* modelo_;
    QTreeView* carpetas_;
    QListWidget* archivos_;
    QWidget* panel_;
    QProgressBar* barra_;
    QLabel* rotulo_;
    PunteroDeTrabajo puntero_;
};

}  // namespace trabex::programa::qt
