#pragma once

#include "slab/CalcularLosa.h"
#include "slab/salida/ReporteLosas.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex::prueba {

using namespace almacen;

/// Makes a scratch database with the results of some slabs.
inline void EscribirTemporal(const std::filesystem::path& camino, const std::vector<Losa>& losas,
                             bool desplazamientos = true) {
    CrearBaseDatos(
        camino,
        LeerArchivo(Install() + "/Imagen/Temporal.sql") +
            "INSERT INTO Generales VALUES ('ING. NÚÑEZ', '2024', 'ANALISIS Y DISEÑO DE LOSAS', 'Inversiones"
            " Peñón & Cía', 'Ing. José Ñáñez <C.I.V. 12345>', '2024-02-29', 'Edificio \"Los Cedros\" ½ – "
            "Etapa"
            " 2', 'L1', " +
            (desplazamientos ? "1);" : "0);"));
    Conexion temporal;
    AbrirConexion(temporal, camino);
    Transaccion guardado(temporal);
    const DatosGenerales generales;
    losas::salida::MontajeDeLosas montaje(temporal, generales);
    for (const Losa& losa : losas) {
        ResultadosLosa resultados;
        CalcularLosa(losa, generales, resultados);
        montaje.Agregar({losa, generales, resultados});
    }
    guardado.Confirmar();
}

}  // namespace trabex::prueba
