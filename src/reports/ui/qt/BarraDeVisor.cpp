#include "reports/ui/qt/BarraDeVisor.h"

#include <QAction>
#include <QToolBar>

#include "reports/salidas/qt/VistaPaginas.h"
#include "shell/qt/Iconos.h"

namespace trabex::reportes::ui::qt {

QAction* AccionDeBarra(QToolBar& barra, const char* icono, const QString& titulo, const QKeySequence& tecla) {
    QAction* accion = barra.addAction(programa::qt::Icono(icono), titulo);
    accion->setShortcut(tecla);
    accion->setToolTip(tecla.isEmpty() ? titulo
                                       : titulo + " (" + tecla.toString(QKeySequence::NativeText) + ")");
    return accion;
}

void PonerAccionesDePaginas(QToolBar& barra, salidas::qt::VistaPaginas& vista, QWidget* centro) {
    const auto poner = [&barra, &vista](const char* icono, const QString& titulo, const char* tecla,
                                        const std::function<int()>& pagina) {
        QObject::connect(AccionDeBarra(barra, icono, titulo, QKeySequence(tecla)), &QAction::triggered,
                         &vista, [&vista, pagina] { vista.IrAPagina(pagina()); });
    };
    poner("pagina-primera", "Primera página", "Ctrl+Home", [] { return 0; });
    poner("pagina-anterior", "Página anterior", "Ctrl+PgUp", [&vista] { return vista.PaginaActual() - 1; });
    barra.addWidget(centro);
    poner("pagina-siguiente", "Página siguiente", "Ctrl+PgDown",
          [&vista] { return vista.PaginaActual() + 1; });
    poner("pagina-ultima", "Última página", "Ctrl+End", [&vista] { return vista.NumeroPaginas() - 1; });
}

}  // namespace trabex::reportes::ui::qt
