#pragma once

#include "markus/ui/Marcus.h"
#include "shell/qt/TablaDatos.h"

namespace trabex::marcus::ui::qt {

/// The levels: their names, which can't be entered, and their counts of panels. The selected one is seen
/// wherever the keyboard is; only the arrows and the mouse lead to another.
class TablaDeNiveles : public programa::qt::TablaDatos {
  public:
    TablaDeNiveles(Marcus& operaciones, const Separadores& numeros, QWidget* padre);

    /// Called on Enter, once the count is taken.
    void AlEntrar(std::function<void()> accion) { alEntrar_ = std::move(accion); }

    bool EnMano() const override { return true; }

  protected:
    void currentChanged(const QModelIndex& actual, const QModelIndex& anterior) override;
    void Seguir(int tecla, Qt::KeyboardModifiers mas) override;

  private:
    std::function<void()> alEntrar_;
};

}  // namespace trabex::marcus::ui::qt
