#pragma once

#include <QWidget>
#include <functional>

#include "base/Formatos.h"
#include "shell/qt/TablaDatos.h"
#include "slab/ui/LosaDatos.h"

class QGroupBox;
class QLabel;
class QLayout;
class QScrollBar;

namespace trabex::losas::ui::qt {

/// The service loads of a slab: the commands and the scroller of spans over the table of their loads.
class PaginaDeCargas : public QWidget {
  public:
    /// The operations outlive it; `copiar` copies the span in hand to others.
    PaginaDeCargas(LosaDatos& operaciones, const Separadores& numeros, const std::function<void()>& copiar,
                   QWidget* padre);

    programa::qt::TablaDatos* Tabla() const { return tabla_; }

    /// What the loads are of: a rib, or a metre of a solid slab.
    void MostrarClase();
    void PonerTramos(int tramos);
    /// The span in hand.
    void MostrarTramo();

  private:
    QLayout* FilaDeBotones(const std::function<void()>& copiar);
    programa::qt::ColumnaDatos Columna(const QString& titulo, const ClaseNumero& clase,
                                       const std::function<double(const Tramo&)>& leer,
                                       const std::function<void(Tramo&, double)>& poner);
    void MoverATramo(int tramo);

    LosaDatos& operaciones_;
    QGroupBox* marco_;
    QLabel* leyenda_;
    QScrollBar* deslizador_;
    programa::qt::TablaDatos* tabla_;
};

}  // namespace trabex::losas::ui::qt
