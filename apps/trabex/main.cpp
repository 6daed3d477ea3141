// The desktop program: wiring, nothing else.

#include <QApplication>
#include <QLibraryInfo>
#include <QTranslator>
#include <memory>

#include "shell/Arranque.h"
#include "shell/qt/CajaMensajesQt.h"
#include "shell/qt/DialogosArchivoQt.h"
#include "shell/qt/Iconos.h"
#include "shell/qt/PlataformaQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "shell/qt/VentanaSplash.h"
#include "slab/ui/qt/VentanaLosas.h"

namespace {

/// The windows of the elements that are built; the commands of the others are disabled.
class Espacios : public trabex::EspaciosDeTrabajo {
  public:
    Espacios(trabex::Aplicacion& aplicacion, trabex::CajaMensajes& caja, trabex::DialogosArchivo& dialogos)
        : aplicacion_(aplicacion), caja_(caja), dialogos_(dialogos) {}

    void Mostrar(trabex::Espacio espacio, QWidget* padre) override {
        if (espacio == trabex::Espacio::Losas)
            trabex::VentanaLosas(aplicacion_, caja_, dialogos_, {}, padre).exec();
    }

  private:
    trabex::Aplicacion& aplicacion_;
    trabex::CajaMensajes& caja_;
    trabex::DialogosArchivo& dialogos_;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication programa(argc, argv);
    QApplication::setOrganizationName("Nodara Software");
    QApplication::setApplicationName("Trabex24");
    QApplication::setWindowIcon(trabex::Figura("trabex", 48));
    QTranslator textosDelToolkit;
    if (textosDelToolkit.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&textosDelToolkit);

    trabex::Aplicacion aplicacion;
    trabex::PlataformaQt plataforma;
    trabex::CajaMensajesQt caja;
    trabex::DialogosArchivoQt dialogos;
    Espacios espacios(aplicacion, caja, dialogos);
    std::unique_ptr<trabex::VentanaMenuPrincipal> menu;
    trabex::VentanaSplash splash([&] {
        menu =
            std::make_unique<trabex::VentanaMenuPrincipal>(aplicacion, caja, dialogos, plataforma, espacios);
        menu->show();
    });
    splash.show();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    trabex::PrepararArranque(plataforma, aplicacion);
    splash.Contar();
    return QApplication::exec();
}
