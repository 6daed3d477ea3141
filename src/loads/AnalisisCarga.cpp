#include "loads/AnalisisCarga.h"

namespace trabex::cargas {

SumasDeCarga Recalcule(const AnalisisCarga& analisis) {
    SumasDeCarga sumas;
    for (const PesoUnitario& item : analisis.Permanentes) sumas.Permanente += item.Peso;
    sumas.Total = sumas.Permanente + analisis.Variable.Peso;
    return sumas;
}

void Totalice(AnalisisCarga& analisis) {
    const SumasDeCarga sumas = Recalcule(analisis);
    analisis.CP = sumas.Permanente;
    analisis.CV = analisis.Variable.Peso;
    analisis.Carga = sumas.Total;
    analisis.REL = analisis.CP > 0 ? analisis.CV / analisis.CP : 0;
}

}  // namespace trabex::cargas
