#include "reports/xls/ContenedorOle.h"

#include <memory>

#include <gsf/gsf.h>

#include "base/ErrorEjecucion.h"

namespace trabex::xls {

namespace {

struct Soltar {
    void operator()(gpointer objeto) const { g_object_unref(objeto); }
};
template <class Objeto>
using Dueno = std::unique_ptr<Objeto, Soltar>;

void Exigir(bool bien) {
    if (!bien) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
}

void PonerPropiedad(GsfDocMetaData* propiedades, const char* nombre, const std::string& texto) {
    if (texto.empty()) return;
    GValue* valor = g_new0(GValue, 1);
    g_value_init(valor, G_TYPE_STRING);
    g_value_take_string(valor, g_utf8_make_valid(texto.data(), static_cast<gssize>(texto.size())));
    gsf_doc_meta_data_insert(propiedades, g_strdup(nombre), valor);
}  // NOLINT(clang-analyzer-unix.Malloc): the properties take name and value over

void EscribirFlujo(GsfOutfile* contenedor, const char* nombre, std::string_view bytes) {
    const Dueno<GsfOutput> hijo(gsf_outfile_new_child(contenedor, nombre, FALSE));
    Exigir(hijo != nullptr);
    Exigir(gsf_output_write(hijo.get(), bytes.size(), reinterpret_cast<const guint8*>(bytes.data())));
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

std::string ContenedorOle(const char* nombreDelFlujo, std::string_view flujo,
                          const PropiedadesOle& propiedades) {
    gsf_init();
    const Dueno<GsfOutput> memoria(gsf_output_memory_new());
    {
        const Dueno<GsfOutfile> contenedor(gsf_outfile_msole_new(memoria.get()));
        Exigir(contenedor != nullptr);
        EscribirFlujo(contenedor.get(), nombreDelFlujo, flujo);
        EscribirPropiedades(contenedor.get(), propiedades);
        Exigir(gsf_output_close(GSF_OUTPUT(contenedor.get())));
    }
    const auto* bytes = gsf_output_memory_get_bytes(GSF_OUTPUT_MEMORY(memoria.get()));
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(gsf_output_size(memoria.get()))};
}

}  // namespace trabex::xls
