#pragma once

#include <QTableView>

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::reportes::ui::qt {

/// A sheet of cells to be looked at, under headings of two levels, and copied into a spreadsheet: what is
/// selected, or all of it with its headings. A line between the rows of numbers takes the whole width.
class VistaDeHoja : public QTableView {
  public:
    VistaDeHoja(const char* nombre, const Separadores& separadores, QWidget* padre);

    void Mostrar(cuadricula::HojaDeCuadricula hoja);

  protected:
    void resizeEvent(QResizeEvent* evento) override;

  private:
    class Modelo;

    void CrearMenu();
    /// Tab-separated; numbers as they are shown, but without marks of thousands.
    void Copiar() const;
    void CopiarTodo() const;
    QString Linea(int fila, int primera, int ultima) const;
    /// Each column as wide as its widest text; what is left is shared in their own proportion.
    void Repartir();
    void MedirColumnas();

    Modelo* modelo_;
    std::vector<int> minimos_;  // widths, pixels
};

}  // namespace trabex::reportes::ui::qt
