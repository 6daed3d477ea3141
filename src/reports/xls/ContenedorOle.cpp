#include "reports/xls/ContenedorOle.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include <gsf/gsf-output-stdio.h>
#include <gsf/gsf.h>

#include "base/Archivos.h"
#include "base/ErrorEjecucion.h"

namespace trabex::xls {

namespace {

struct Soltar {
    void operator()(gpointer objeto) const { g_object_unref(objeto); }
};
template <class Objeto>
using Dueno = std::unique_ptr<Objeto, Soltar>;

/// Told by what the system answered last.
void Exigir(bool bien) {
    if (bien) return;
    const std::error_code causa(errno, std::generic_category());
    throw ErrorEjecucion(causa ? ErrorDeSistema(causa) : CodigoError::ErrorDispositivo);
}

std::FILE* AbrirParaEscribir(const std::filesystem::path& archivo) {
#ifdef _WIN32
    return _wfopen(archivo.c_str(), L"wb");
#else
    return std::fopen(archivo.c_str(), "wb");
#endif
}

void PonerPropiedad(GsfDocMetaData* propiedades, const char* nombre, const std::string& texto) {
    if (texto.empty()) return;
    GValue* valor = g_new0(GValue, 1);
    g_value_init(valor, G_TYPE_STRING);
    g_value_take_string(valor, g_utf8_make_valid(texto.data(), static_cast<gssize>(texto.size())));
    gsf_doc_meta_data_insert(propiedades, g_strdup(nombre), valor);
}  // NOLINT(clang-analyzer-unix.Malloc): the properties take name and value over

void EscribirFlujo(GsfOutfile* contenedor, const char* nombre,
                   const std::function<void(const Salida&)>& escribir) {
    const Dueno<GsfOutput> hijo(gsf_outfile_new_child(contenedor, nombre, FALSE));
    Exigir(hijo != nullptr);
    escribir([&hijo](std::string_view bytes) {
        Exigir(gsf_output_write(hijo.get(), bytes.size(), reinterpret_cast<const guint8*>(bytes.data())));
    });
    Exigir(gsf_output_close(hijo.get()));
}

void EscribirPropiedades(GsfOutfile* contenedor, const PropiedadesOle& propiedades) {
    const Dueno<GsfDocMetaData> datos(gsf_doc_meta_data_new());
    PonerPropiedad(datos.get(), GSF_META_NAME_TITLE, propiedades.Titulo);
    PonerPropiedad(datos.get(), GSF_META_NAME_CREATOR, propiedades.Autor);
    const Dueno<GsfOutput> hijo(gsf_outfile_new_child(contenedor, "\05SummaryInformation", FALSE));
    Exigir(hijo != nullptr);
    Exigir(gsf_doc_meta_data_write_to_msole(datos.get(), hijo.get(), FALSE));
    Exigir(gsf_output_close(hijo.get()));
}

}  // namespace

void EscribirContenedorOle(const std::filesystem::path& archivo, const char* nombreDelFlujo,
                           const std::function<void(const Salida&)>& escribir,
                           const PropiedadesOle& propiedades) {
    gsf_init();
    errno = 0;
    std::FILE* abierto = AbrirParaEscribir(archivo);
    Exigir(abierto != nullptr);
    const Dueno<GsfOutput> salida(gsf_output_stdio_new_FILE("", abierto, FALSE));
    {
        const Dueno<GsfOutfile> contenedor(gsf_outfile_msole_new(salida.get()));
        Exigir(contenedor != nullptr);
        EscribirFlujo(contenedor.get(), nombreDelFlujo, escribir);
        EscribirPropiedades(contenedor.get(), propiedades);
        Exigir(gsf_output_close(GSF_OUTPUT(contenedor.get())));
    }
    if (!gsf_output_is_closed(salida.get()))
        Exigir(gsf_output_close(salida.get()));  // the container closes it
}

}  // namespace trabex::xls
