#include "shell/Arranque.h"

#include <cstdint>

#include "base/Archivos.h"
#include "store/Mantenimiento.h"
#include "store/antiguo/Convertir.h"

namespace trabex::programa {

namespace {

constexpr const char* CarpetaPropia = "Trabex24";
constexpr std::uintmax_t DiferenciaDeTapiz = 10;  // bytes by which a picture may differ and still be the same

std::filesystem::path BaseDeDatos(const Plataforma& plataforma) {
    const auto raiz = plataforma.RaizComun();
    return raiz && Existe(*raiz / CarpetaComun) ? *raiz : plataforma.CarpetaDeDocumentos();
}

void CrearCarpetas(const std::filesystem::path& base, const Carpetas& carpetas) {
    for (const std::filesystem::path& carpeta :
         {base / CarpetaComun, carpetas.CaminoUsuario, carpetas.Proyectos(), carpetas.ReportesExportados(),
          carpetas.Tapices(), carpetas.Trabajo(), carpetas.CaminoTemporales}) {
        std::error_code ignorado;
        std::filesystem::create_directory(carpeta, ignorado);
    }
}

std::filesystem::path ImagenEntregada(const Carpetas& carpetas) {
    return carpetas.CaminoPrograma / "Imagen" / "TapizTBX.jpg";
}

/// A wallpaper of the default name that differs from the delivered one goes, so that a new edition's replaces
/// it.
void RefrescarTapiz(const std::filesystem::path& entregado, const std::filesystem::path& tapiz) {
    std::error_code error;
    const std::uintmax_t nuevo = std::filesystem::file_size(entregado, error);
    if (error) return;
    const std::uintmax_t actual = std::filesystem::file_size(tapiz, error);
    if (error) return;
    const std::uintmax_t diferencia = nuevo > actual ? nuevo - actual : actual - nuevo;
    if (diferencia > DiferenciaDeTapiz) std::filesystem::remove(tapiz, error);
}

void CopiarSiFalta(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    if (Existe(destino)) return;
    try {
        almacen::OlvidarGuardado(destino);
        CopiarArchivo(origen, destino);
    } catch (const ErrorEjecucion&) {
        return;  // it shows where the file is needed
    }
}

void CopiarArchivos(const Carpetas& carpetas) {
    const std::filesystem::path imagen = carpetas.CaminoPrograma / "Imagen";
    CopiarSiFalta(imagen / "Ejemplo Demostrativo.tbx", carpetas.Proyectos() / "Ejemplo Demostrativo.los");
    CopiarSiFalta(ImagenEntregada(carpetas), ImagenPorDefecto(carpetas));
    CopiarSiFalta(imagen / "AnalisisCarga.tbx", carpetas.AnalisisCarga());
    // Of an earlier edition of the program: it can't be read otherwise.
    if (almacen::antiguo::EsBaseAntigua(carpetas.AnalisisCarga()))
        almacen::antiguo::ConvertirEnSuSitio(carpetas.CaminoPrograma, carpetas.AnalisisCarga(),
                                             imagen / "AnalisisCarga.tbx");
}

}  // namespace

std::filesystem::path ArchivoTapiz(const Carpetas& carpetas) {
    return carpetas.CaminoUsuario / "Tapiz.tbx";
}

std::filesystem::path ImagenPorDefecto(const Carpetas& carpetas) {
    return carpetas.Tapices() / "TapizTBX.jpg";
}

void PrepararArranque(Plataforma& plataforma, Carpetas& carpetas, Aplicacion& aplicacion) {
    const std::filesystem::path base = BaseDeDatos(plataforma);
    carpetas.CaminoPrograma = plataforma.CarpetaDelPrograma();
    carpetas.CaminoUsuario = base / CarpetaComun / CarpetaPropia;
    carpetas.CaminoTemporales = carpetas.CaminoUsuario / "Temporales";
    aplicacion.Usuario = plataforma.NombreDelUsuario();
    aplicacion.Respaldos = carpetas.Respaldos();
    CrearCarpetas(base, carpetas);
    CopiarArchivos(carpetas);
    LeerPreferencias(carpetas, aplicacion);
}

void LeerPreferencias(const Carpetas& carpetas, Aplicacion& aplicacion) {
    const std::filesystem::path imagen = ImagenPorDefecto(carpetas);
    RefrescarTapiz(ImagenEntregada(carpetas), imagen);
    aplicacion.Preferencias = LeerTapiz(ArchivoTapiz(carpetas), imagen);
}

}  // namespace trabex::programa
