#include "shell/Arranque.h"

#include <cstdint>

#include "base/Archivos.h"
#include "store/Mantenimiento.h"

namespace trabex::programa {

namespace {

constexpr const char* CarpetaPropia = "Trabex24";
constexpr std::uintmax_t DiferenciaDeTapiz = 10;  // bytes by which a picture may differ and still be the same

std::filesystem::path BaseDeDatos(const Plataforma& plataforma) {
    const auto raiz = plataforma.RaizComun();
    return raiz && Existe(*raiz / CarpetaComun) ? *raiz : plataforma.CarpetaDeDocumentos();
}

void CrearCarpetas(const std::filesystem::path& base, const Aplicacion& aplicacion) {
    const std::filesystem::path& usuario = aplicacion.CaminoUsuario;
    for (const std::filesystem::path& carpeta :
         {base / CarpetaComun, usuario, usuario / "Proyectos", usuario / "ReportesExportados",
          usuario / "Tapices", usuario / "Trabajo", aplicacion.CaminoTemporales}) {
        std::error_code ignorado;
        std::filesystem::create_directory(carpeta, ignorado);
    }
}

std::filesystem::path ImagenEntregada(const Aplicacion& aplicacion) {
    return aplicacion.CaminoPrograma / "Imagen" / "TapizTBX.jpg";
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

void CopiarArchivos(const Aplicacion& aplicacion) {
    const std::filesystem::path imagen = aplicacion.CaminoPrograma / "Imagen";
    const std::filesystem::path& usuario = aplicacion.CaminoUsuario;
    CopiarSiFalta(imagen / "Ejemplo Demostrativo.tbx", usuario / "Proyectos" / "Ejemplo Demostrativo.los");
    CopiarSiFalta(ImagenEntregada(aplicacion), ImagenPorDefecto(aplicacion));
    CopiarSiFalta(imagen / "AnalisisCarga.tbx", usuario / "Proyectos" / "AnalisisCarga.mdb");
}

}  // namespace

std::filesystem::path ArchivoTapiz(const Aplicacion& aplicacion) {
    return aplicacion.CaminoUsuario / "Tapiz.tbx";
}

std::filesystem::path ImagenPorDefecto(const Aplicacion& aplicacion) {
    return aplicacion.CaminoUsuario / "Tapices" / "TapizTBX.jpg";
}

void PrepararArranque(Plataforma& plataforma, Aplicacion& aplicacion) {
    const std::filesystem::path base = BaseDeDatos(plataforma);
    aplicacion.CaminoPrograma = plataforma.CarpetaDelPrograma();
    aplicacion.CaminoUsuario = base / CarpetaComun / CarpetaPropia;
    aplicacion.CaminoTemporales = aplicacion.CaminoUsuario / "Temporales";
    aplicacion.Usuario = plataforma.NombreDelUsuario();
    CrearCarpetas(base, aplicacion);
    CopiarArchivos(aplicacion);
    LeerPreferencias(aplicacion);
}

void LeerPreferencias(Aplicacion& aplicacion) {
    const std::filesystem::path imagen = ImagenPorDefecto(aplicacion);
    RefrescarTapiz(ImagenEntregada(aplicacion), imagen);
    aplicacion.Preferencias = LeerTapiz(ArchivoTapiz(aplicacion), imagen);
}

}  // namespace trabex::programa
