#include "loads/ui/Entrada.h"

#include "base/Enteros.h"
#include "base/Formatos.h"
#include "base/Texto.h"
#include "loads/Creacion.h"
#include "store/Filas.h"

namespace trabex::cargas::ui {

std::optional<std::int32_t> PesoDeTexto(std::string_view texto) {
    const std::string escrito = Recortar(texto);
    if (escrito.empty()) return 0;
    const std::optional<double> numero = LeerNumero(escrito);
    if (!numero) return std::nullopt;
    try {
        return Redondear32(*numero);
    } catch (const ErrorEjecucion&) {
        return std::nullopt;
    }
}

bool PonerCelda(PesoUnitario& peso, CampoDePeso campo, const std::string& texto) {
    if (campo == CampoDePeso::Descripcion) {
        peso.Descripcion = texto;
        return true;
    }
    const std::optional<std::int32_t> entrado = PesoDeTexto(texto);
    if (entrado) peso.Peso = *entrado;
    return entrado.has_value();
}

bool VerifiqueDescripcion(almacen::Recordset& lista, const std::string& descripcion,
                          const char* textoYaExiste, programa::CajaMensajes& caja) {
    const int donde = lista.Posicion();
    almacen::BuscarRegistro(lista, almacen::Criterio({"Descripcion", descripcion}));
    if (SigueLaCreacion(lista.Encontrado())) return true;
    lista.MoverA(donde);
    caja.Mostrar(programa::Aviso(textoYaExiste, EncabezadoCrear));
    return false;
}

}  // namespace trabex::cargas::ui
