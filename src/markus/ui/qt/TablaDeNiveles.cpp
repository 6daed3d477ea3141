#include "markus/ui/qt/TablaDeNiveles.h"

#include <QHeaderView>

#include "shell/qt/ComunVentanas.h"

namespace trabex::marcus::ui::qt {

namespace {

constexpr ClaseNumero NumeroDePanos{true, 0, 32767, 0, std::nullopt};
constexpr int AnchoDePanos = 70;

const FilaDeNivel& Fila(const Marcus& operaciones, int fila) {
    return operaciones.Niveles()[static_cast<std::size_t>(fila) - 1];
}

std::vector<programa::qt::ColumnaDatos> ColumnasDeNivel(Marcus& operaciones) {
    return {
        {.Titulo = "Nivel",
         .Numero = std::nullopt,
         .Leer = [&operaciones](int fila) { return programa::qt::Q(Fila(operaciones, fila).Nombre); }},
        {.Titulo = "Paños",
         .Numero = NumeroDePanos,
         .Leer = [&operaciones](int fila) { return static_cast<double>(Fila(operaciones, fila).Panos); },
         .Poner =
             [&operaciones](int fila, const QVariant& panos) {
                 if (fila != operaciones.Lista().Fila()) return false;
                 operaciones.PonerNumeroDePanos(panos.toInt());
                 return true;
             },
         .Ancho = AnchoDePanos},
    };
}

}  // namespace

TablaDeNiveles::TablaDeNiveles(Marcus& operaciones, const Separadores& numeros, QWidget* padre)
    : TablaDatos(ColumnasDeNivel(operaciones), numeros, padre) {
    setObjectName("Niveles");
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    verticalHeader()->hide();
    DeshacerPor([&operaciones] { operaciones.Deshacer(); });
}

/// From a name to the count beside it.
void TablaDeNiveles::currentChanged(const QModelIndex& actual, const QModelIndex& anterior) {
    TablaDatos::currentChanged(actual, anterior);
    if (actual.isValid() && actual.column() == 0) setCurrentIndex(actual.siblingAtColumn(1));
}

/// Neither Enter nor Tab goes to another level: panels that were not saved would go with it.
void TablaDeNiveles::Seguir(int tecla, Qt::KeyboardModifiers mas) {
    switch (tecla) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (alEntrar_) alEntrar_();
            return;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            SalirDeLaTabla(tecla == Qt::Key_Tab && !mas.testFlag(Qt::ShiftModifier));
            return;
        default:
            TablaDatos::Seguir(tecla, mas);
    }
}

}  // namespace trabex::marcus::ui::qt
