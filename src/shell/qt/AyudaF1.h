#pragma once

#include <QObject>
#include <string>

#include "shell/Servicios.h"

namespace trabex::programa::qt {

/// F1 in any window opens the help at the page of the workspace in front. One for the program.
class AyudaF1 : public QObject {
  public:
    explicit AyudaF1(const Servicios& servicios);

    /// The page that F1 opens from now on: the name of its file, without extension.
    void PonerPagina(std::string pagina) { pagina_ = std::move(pagina); }

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    const Servicios& servicios_;
    std::string pagina_;
};

}  // namespace trabex::programa::qt
