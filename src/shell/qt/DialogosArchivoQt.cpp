#include "shell/qt/DialogosArchivoQt.h"

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>

#include "base/Archivos.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

namespace {

/// "label|*.a; *.b" as the toolkit writes it, "label (*.a *.b)".
QString FiltroDe(const std::string& filtro) {
    const QStringList partes = Q(filtro).split('|');
    QString patrones = partes.value(1);
    patrones.replace(QChar(';'), QChar(' ')).replace(QChar(','), QChar(' '));
    return partes.value(0) + " (" + patrones.simplified() + ")";
}

/// The folder, or the nearest one above it that exists.
std::filesystem::path CarpetaExistente(std::filesystem::path carpeta) {
    std::error_code error;
    while (carpeta.has_relative_path() && !std::filesystem::is_directory(carpeta, error))
        carpeta = carpeta.parent_path();
    return carpeta;
}

}  // namespace

std::optional<std::filesystem::path> DialogosArchivoQt::Elegir(const PeticionArchivo& peticion) {
    QFileDialog dialogo(QApplication::activeWindow(), Q(peticion.Titulo),
                        Q(TextoDeCamino(CarpetaExistente(peticion.Carpeta))), FiltroDe(peticion.Filtro));
    dialogo.setAcceptMode(peticion.Guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogo.setFileMode(peticion.DebeExistir ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    dialogo.setOption(QFileDialog::DontConfirmOverwrite, !peticion.AvisarReemplazo);
    const QString patron =
        Q(peticion.Filtro).section("*.", 1, 1).section(QRegularExpression("[^a-zA-Z0-9]"), 0, 0);
    dialogo.setDefaultSuffix(patron);  // a name typed without it is completed, to open as to save
    if (!peticion.Nombre.empty()) dialogo.selectFile(Q(peticion.Nombre));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) return std::nullopt;
    return CaminoDeTexto(S(dialogo.selectedFiles().constFirst()));
}

}  // namespace trabex::programa::qt
