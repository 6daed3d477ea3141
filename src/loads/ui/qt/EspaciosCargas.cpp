#include "loads/ui/qt/EspaciosCargas.h"

#include "loads/ui/qt/VentanaListaAnalisis.h"

namespace trabex::cargas::ui::qt {

namespace {

programa::qt::Espacio EspacioDe(std::string_view clave, const VarianteAnalisis& variante,
                                reportes::ui::qt::SalidaDelPrograma& salida) {
    return {clave,
            [&salida, &variante](programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                                 QWidget* padre) {
                reportes::ui::EntornoSalida entorno = salida.Entorno(aplicacion, servicios);
                ListaAnalisis operaciones(aplicacion, servicios, variante, AzarDelSistema());
                VentanaListaAnalisis(entorno, operaciones, padre).exec();
            },
            "05-markus"};
}

}  // namespace

programa::qt::Espacio EspacioAnalisisCargaP(reportes::ui::qt::SalidaDelPrograma& salida) {
    return EspacioDe("ID_CargaP", AnalisisDeProyecto, salida);
}

programa::qt::Espacio EspacioAnalisisCarga(reportes::ui::qt::SalidaDelPrograma& salida) {
    return EspacioDe("ID_Carga", AnalisisCompartido, salida);
}

}  // namespace trabex::cargas::ui::qt
