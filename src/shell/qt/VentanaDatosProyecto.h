#pragma once

#include <QDialog>

#include "shell/DatosProyecto.h"

class QLineEdit;
class QPlainTextEdit;

namespace trabex::programa::qt {

class CampoFecha;

/// Edits the project's title data.
class VentanaDatosProyecto : public QDialog {
  public:
    VentanaDatosProyecto(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre);

  private:
    void Armar();
    void Mostrar(const DatosDelProyecto& datos);
    void Salvar();
    void ElegirFecha();

    Aplicacion& aplicacion_;
    DatosProyecto operaciones_;
    QLineEdit* proyecto_;
    QLineEdit* propietario_;
    QLineEdit* calculista_;
    CampoFecha* fecha_;
    QLineEdit* cliente_;
    QPlainTextEdit* comentario_;
};

}  // namespace trabex::programa::qt
