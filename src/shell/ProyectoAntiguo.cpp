#include "shell/ProyectoAntiguo.h"

#include "base/Archivos.h"
#include "shell/CajaMensajes.h"
#include "store/antiguo/Convertir.h"

namespace trabex::programa {

namespace {

constexpr const char* Encabezado = "Abrir un Proyecto Existente...";

std::string NombreDe(const std::filesystem::path& archivo) {
    return TextoDeCamino(archivo.filename());
}

}  // namespace

bool HacerLegible(const Servicios& servicios, const std::filesystem::path& archivo) {
    if (!almacen::antiguo::EsBaseAntigua(archivo)) return true;
    const std::string apartada = NombreDe(almacen::antiguo::NombreDeAntigua(archivo));
    if (servicios.Caja.Mostrar(Pregunta("El Proyecto: " + NombreDe(archivo) +
                                            " es de un Formato Anterior\nEl Archivo Original quedará como: " +
                                            apartada + "\n¿Desea Usted Convertirlo?",
                                        Encabezado)) != RespuestaSi)
        return false;
    const auto& programa = servicios.Carpetas.CaminoPrograma;
    const auto perdidas =
        almacen::antiguo::ConvertirEnSuSitio(programa, archivo, programa / "Imagen" / "LosaImagen.tbx");
    if (!perdidas) {
        Mensaje falla =
            Aviso("El Proyecto: " + NombreDe(archivo) + " no se pudo Leer\nEl Archivo queda como estaba",
                  Encabezado);
        falla.Icono = IconoCaja::Advertencia;
        servicios.Caja.Mostrar(falla);
        return false;
    }
    if (perdidas->Tablas + perdidas->Valores > 0)
        servicios.Caja.Mostrar(
            Aviso("El Proyecto: " + NombreDe(archivo) +
                      " se Convirtió\nTablas que no tenía: " + std::to_string(perdidas->Tablas) +
                      "\nValores que no se pudieron Leer: " + std::to_string(perdidas->Valores),
                  Encabezado));
    return true;
}

}  // namespace trabex::programa
