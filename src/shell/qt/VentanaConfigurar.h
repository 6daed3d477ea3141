#pragma once

#include <QDialog>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"
#include "shell/qt/LienzoTapiz.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace trabex::programa::qt {

/// The user's settings, with a live preview: the wallpaper on one tab, the tool tips on the other.
class VentanaConfigurar : public QDialog {
  public:
    VentanaConfigurar(Aplicacion& aplicacion, const Servicios& servicios, QWidget* padre);
    bool Guardada() const { return guardada_; }
    int exec() override;

  private:
    QWidget* PaginaImagen();
    QWidget* PaginaAyudas();
    QButtonGroup* Opciones(QLayout* donde, const QString& titulo, const QStringList& textos,
                           std::uint8_t actual);
    QLabel* MuestraDeColor(std::uint32_t& color);
    void ElegirImagen();
    void Capturar();
    void GuardarCaptura() const;
    void ElegirColor(std::uint32_t& color);
    void Refrescar();
    void Aceptar();

    Aplicacion& aplicacion_;
    Servicios servicios_;
    Tapiz elegida_;
    bool guardada_ = false;
    QPixmap captura_;    // chosen, without a file yet
    QRect porCapturar_;  // what of the screen is asked for; the window closes meanwhile
    QLineEdit* ruta_;
    QButtonGroup* horizontal_;
    QButtonGroup* vertical_;
    QCheckBox* ajustar_;
    LienzoTapiz* muestra_;
    QComboBox* tamano_;
    QLabel* fondo_;
    QLabel* color_;
    QCheckBox* ocultar_;
    QCheckBox* globo_;
    QLabel* ejemplo_;
};

}  // namespace trabex::programa::qt
