// The desktop program: its services and the list of its modules, nothing else.

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>
#include <utility>
#include <vector>

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/Arranque.h"
#include "shell/qt/CajaMensajesQt.h"
#include "shell/qt/DialogosArchivoQt.h"
#include "shell/qt/FocoAlCerrar.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/PlataformaQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "shell/qt/VentanaSplash.h"
#include "slab/ui/qt/EspacioLosas.h"
#include "stairs/ui/qt/EspacioEscaleraT.h"

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    QApplication::setOrganizationName("Nodara Software");
    QApplication::setApplicationName("Trabex24");
    QApplication::setWindowIcon(trabex::programa::qt::Figura("trabex", 48));
    QTranslator textosDelToolkit;
    if (textosDelToolkit.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&textosDelToolkit);
    const trabex::programa::qt::FocoAlCerrar foco;

    trabex::programa::Aplicacion aplicacion;
    trabex::programa::qt::PlataformaQt plataforma;
    trabex::programa::qt::CajaMensajesQt caja;
    trabex::programa::qt::DialogosArchivoQt dialogos;
    trabex::programa::Carpetas carpetas;
    const trabex::programa::Servicios servicios{caja, dialogos, plataforma, carpetas};
    trabex::reportes::ui::qt::SalidaDelPrograma salida;
    std::vector<trabex::programa::qt::Espacio> espacios{
        trabex::losas::ui::qt::EspacioLosas(salida),
        trabex::escaleras::ui::qt::EspacioEscaleraT(salida),
    };
    std::unique_ptr<trabex::programa::qt::VentanaMenuPrincipal> menu;
    trabex::programa::qt::VentanaSplash splash([&] {
        menu = std::make_unique<trabex::programa::qt::VentanaMenuPrincipal>(aplicacion, servicios,
                                                                            std::move(espacios));
        menu->show();
    });
    splash.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    trabex::programa::PrepararArranque(plataforma, carpetas, aplicacion);
    splash.Contar();
    return QApplication::exec();
}
