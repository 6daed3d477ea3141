// The desktop program: its services and the list of its modules, nothing else.

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <array>
#include <memory>
#include <utility>
#include <vector>

#include "base/Archivos.h"
#include "helical/salida/ModuloEscalerasH.h"
#include "helical/ui/qt/EspacioEscaleraH.h"
#include "loads/salida/ModuloCargas.h"
#include "loads/ui/qt/EspaciosCargas.h"
#include "lote/ui/qt/EspacioMemoria.h"
#include "markus/salida/ModuloMarcus.h"
#include "markus/ui/qt/EspacioMarcus.h"
#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/Arranque.h"
#include "shell/qt/CajaMensajesQt.h"
#include "shell/qt/DialogosArchivoQt.h"
#include "shell/qt/FocoAlCerrar.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/PlataformaQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "shell/qt/VentanaSplash.h"
#include "slab/salida/ModuloLosas.h"
#include "slab/ui/qt/EspacioLosas.h"
#include "stairs/salida/ModuloEscalerasT.h"
#include "stairs/ui/qt/EspacioEscaleraT.h"

int main(int argc, char** argv) {
    const std::array<const trabex::lote::Modulo*, 5> modulos{
        &trabex::losas::salida::ModuloLosas, &trabex::escaleras::salida::ModuloEscalerasT,
        &trabex::helices::salida::ModuloEscalerasH, &trabex::marcus::salida::ModuloMarcus,
        &trabex::cargas::salida::ModuloCargas};
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
        trabex::helices::ui::qt::EspacioEscaleraH(salida),
        trabex::cargas::ui::qt::EspacioAnalisisCargaP(salida),
        trabex::cargas::ui::qt::EspacioAnalisisCarga(salida),
        trabex::lote::ui::qt::EspacioMemoria(modulos),
        trabex::marcus::ui::qt::EspacioMarcus(salida),
    };
    std::unique_ptr<trabex::programa::qt::VentanaMenuPrincipal> menu;
    trabex::programa::qt::VentanaSplash splash([&] {
        menu = std::make_unique<trabex::programa::qt::VentanaMenuPrincipal>(aplicacion, servicios,
                                                                            std::move(espacios));
        menu->show();
        const QStringList argumentos = QApplication::arguments();
        if (argumentos.size() > 1) menu->AbrirProyecto(trabex::CaminoDeTexto(argumentos[1].toStdString()));
    });
    splash.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    trabex::programa::PrepararArranque(plataforma, carpetas, aplicacion);
    splash.Contar();
    return QApplication::exec();
}
