// The desktop program: wiring, nothing else.

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "EspaciosTrabex.h"
#include "shell/Arranque.h"
#include "shell/qt/CajaMensajesQt.h"
#include "shell/qt/DialogosArchivoQt.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/PlataformaQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "shell/qt/VentanaSplash.h"

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    QApplication::setOrganizationName("Nodara Software");
    QApplication::setApplicationName("Trabex24");
    QApplication::setWindowIcon(trabex::programa::qt::Figura("trabex", 48));
    QTranslator textosDelToolkit;
    if (textosDelToolkit.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&textosDelToolkit);

    trabex::programa::Aplicacion aplicacion;
    trabex::programa::qt::PlataformaQt plataforma;
    trabex::programa::qt::CajaMensajesQt caja;
    trabex::programa::qt::DialogosArchivoQt dialogos;
    trabex::EspaciosTrabex espacios(aplicacion, caja, dialogos, plataforma);
    std::unique_ptr<trabex::programa::qt::VentanaMenuPrincipal> menu;
    trabex::programa::qt::VentanaSplash splash([&] {
        menu = std::make_unique<trabex::programa::qt::VentanaMenuPrincipal>(aplicacion, caja, dialogos,
                                                                            plataforma, espacios);
        menu->show();
    });
    splash.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    trabex::programa::PrepararArranque(plataforma, aplicacion);
    splash.Contar();
    return QApplication::exec();
}
