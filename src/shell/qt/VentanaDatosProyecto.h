#pragma once

#include <QDialog>

#include "shell/DatosProyecto.h"

class QLineEdit;
class QPlainTextEdit;

namespace trabex::programa::qt {

/// Edits the project's title data.
class VentanaDatosProyecto : public QDialog {
  public:
    VentanaDatosProyecto(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre);

  private:
    void Armar();
    void Mostrar(const DatosDelProyecto& datos);
    void Salvar();
    void ElegirFecha();
    void PonerFecha(const Fecha& fecha);

    Aplicacion& aplicacion_;
    DatosProyecto operaciones_;
    Fecha fecha_;
    QLineEdit* proyecto_;
    QLineEdit* propietario_;
    QLineEdit* calculista_;
    QLineEdit* fechaTexto_;
    QLineEdit* cliente_;
    QPlainTextEdit* comentario_;
};

}  // namespace trabex::programa::qt
