#include "shell/qt/PlataformaQt.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <array>

#include "base/Archivos.h"
#include "shell/qt/ComunVentanas.h"

#ifdef Q_OS_WIN
#include <windows.h>
#define SECURITY_WIN32
#include <security.h>
#else
#include <pwd.h>
#include <unistd.h>
#endif

namespace trabex::programa::qt {

namespace {

/// The account's full name, or its short one where it has none.
QString NombreDeCuenta() {
#ifdef Q_OS_WIN
    std::array<wchar_t, 256> nombre{};
    ULONG largo = static_cast<ULONG>(nombre.size());
    if (GetUserNameExW(NameDisplay, nombre.data(), &largo)) return QString::fromWCharArray(nombre.data());
    largo = static_cast<ULONG>(nombre.size());
    return GetUserNameW(nombre.data(), &largo) ? QString::fromWCharArray(nombre.data()) : QString();
#else
    const passwd* cuenta = getpwuid(getuid());
    if (cuenta == nullptr) return {};
    const QString completo = QString::fromLocal8Bit(cuenta->pw_gecos).section(',', 0, 0).trimmed();
    return completo.isEmpty() ? QString::fromLocal8Bit(cuenta->pw_name) : completo;
#endif
}

}  // namespace

std::filesystem::path PlataformaQt::CarpetaDelPrograma() const {
    return CaminoDeTexto(S(QCoreApplication::applicationDirPath()));
}

std::filesystem::path PlataformaQt::CarpetaDeDocumentos() const {
    const QString documentos = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QDir().mkpath(documentos);
    return CaminoDeTexto(S(documentos));
}

std::optional<std::filesystem::path> PlataformaQt::RaizComun() const {
#ifdef Q_OS_WIN
    return std::filesystem::path("C:\\");
#else
    return std::nullopt;
#endif
}

std::string PlataformaQt::NombreDelUsuario() const {
    return S(NombreDeCuenta());
}

std::string PlataformaQt::NumeroDeMuestra() const {
    // The toolkit leaves four figures together where the locale's usage does.
    const QLocale local = QLocale::system();
    return S("1" + local.groupSeparator() + "234" + local.decimalPoint() + "56");
}

bool PlataformaQt::AbrirArchivo(const std::filesystem::path& archivo) {
    const QString ruta = Q(TextoDeCamino(archivo));
    return QFileInfo::exists(ruta) && QDesktopServices::openUrl(QUrl::fromLocalFile(ruta));
}

bool PlataformaQt::AbrirCarpeta(const std::filesystem::path& carpeta) {
    return AbrirArchivo(carpeta);
}

bool PlataformaQt::LlevarAPapelera(const std::filesystem::path& archivo) {
    // Without that folder the toolkit takes the current one for the trash.
    QDir().mkpath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    return QFile::moveToTrash(Q(TextoDeCamino(archivo)));
}

bool PlataformaQt::InformacionDelSistema() {
    constexpr std::array<const char*, 4> herramientas{"msinfo32", "kinfocenter", "gnome-system-monitor",
                                                      "hardinfo"};
    for (const char* herramienta : herramientas) {
        const QString programa = QStandardPaths::findExecutable(herramienta);
        if (!programa.isEmpty()) return QProcess::startDetached(programa, {});
    }
    return false;
}

}  // namespace trabex::programa::qt
