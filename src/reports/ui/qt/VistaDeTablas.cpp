#include "reports/ui/qt/VistaDeTablas.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <utility>

#include "reports/ui/qt/VentanaVistaPreviaR.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/EncabezadoAgrupado.h"

namespace trabex::reportes::ui::qt {

namespace {

using programa::qt::Q;
using programa::qt::S;

std::string Rotulo(const QTableView& tabla, int seccion, Qt::Orientation orientacion) {
    return S(tabla.model()->headerData(seccion, orientacion).toString());
}

documento::Alineacion LadoDe(const QModelIndex& celda) {
    const auto lado =
        Qt::Alignment::fromInt(static_cast<Qt::Alignment::Int>(celda.data(Qt::TextAlignmentRole).toInt()));
    if (lado.testFlag(Qt::AlignRight)) return documento::Alineacion::Derecha;
    return lado.testFlag(Qt::AlignHCenter) ? documento::Alineacion::Centro : documento::Alineacion::Izquierda;
}

/// How the numbers of a column show.
struct FormatoLeido {
    bool Miles = false;
    qsizetype Decimales = 0;

    std::string Texto() const {
        return (Miles ? "#,##0" : "0") +
               (Decimales == 0 ? "" : "." + std::string(static_cast<std::size_t>(Decimales), '0'));
    }
};

/// A sheet on its way from its table.
class LectorDeTabla {
  public:
    LectorDeTabla(const QTableView& tabla, const Separadores& separadores)
        : tabla_(tabla), separadores_(separadores) {}

    cuadricula::HojaDeCuadricula Leer(const QString& nombre) const {
        cuadricula::HojaDeCuadricula hoja;
        hoja.Nombre = S(nombre);
        hoja.AnchoDeCabeceras = Milimetros(tabla_.verticalHeader()->width());
        for (int fila = 0; fila < tabla_.model()->rowCount(); ++fila) {
            if (tabla_.isRowHidden(fila)) continue;
            hoja.Cabeceras.push_back(Rotulo(tabla_, fila, Qt::Vertical));
            hoja.Celdas.Filas.emplace_back();
        }
        for (int c = 0; c < tabla_.model()->columnCount(); ++c)
            if (!tabla_.isColumnHidden(c)) LeerColumna(c, hoja.Celdas);
        return hoja;
    }

  private:
    double Milimetros(int pixeles) const { return pixeles * 25.4 / tabla_.logicalDpiX(); }

    void LeerColumna(int columna, documento::Tabla& celdas) const {
        documento::ColumnaDeTabla leida;
        leida.Titulo = Rotulo(tabla_, columna, Qt::Horizontal);
        if (const auto* encabezado =
                dynamic_cast<const programa::qt::EncabezadoAgrupado*>(tabla_.horizontalHeader()))
            if (const auto* grupo = encabezado->GrupoDe(columna)) leida.Grupo = S(grupo->Titulo);
        leida.Ancho = Milimetros(tabla_.columnWidth(columna));
        leida.Lado = documento::Alineacion::Izquierda;
        FormatoLeido formato;
        auto destino = celdas.Filas.begin();
        for (int fila = 0; fila < tabla_.model()->rowCount(); ++fila) {
            if (tabla_.isRowHidden(fila)) continue;
            const QModelIndex celda = tabla_.model()->index(fila, columna);
            leida.Lado = LadoDe(celda);
            destino++->Celdas.push_back(ValorDe(celda.data().toString(), leida.Lado, formato));
        }
        leida.Formato = formato.Texto();
        celdas.Columnas.push_back(std::move(leida));
    }

    /// A number only where it would show again as the very text that was read.
    almacen::Valor ValorDe(const QString& texto, documento::Alineacion lado, FormatoLeido& formato) const {
        if (lado != documento::Alineacion::Derecha) return S(texto);
        QString cifras = texto;
        cifras.remove(Q(separadores_.Miles));
        const auto coma = cifras.lastIndexOf(Q(separadores_.Decimal));
        FormatoLeido propio{cifras != texto, coma < 0 ? 0 : cifras.size() - coma - 1};
        const auto numero = LeerNumero(S(cifras.replace(Q(separadores_.Decimal), ".")));
        if (!numero || Formato(*numero, propio.Texto(), separadores_) != S(texto)) return S(texto);
        formato.Miles = formato.Miles || propio.Miles;
        formato.Decimales = std::max(formato.Decimales, propio.Decimales);
        return *numero;
    }

    const QTableView& tabla_;
    const Separadores& separadores_;
};

}  // namespace

cuadricula::Cuadricula CuadriculaDe(const std::vector<TablaEnPantalla>& tablas,
                                    const Separadores& separadores) {
    cuadricula::Cuadricula grilla;
    grilla.Locales = separadores;
    for (const TablaEnPantalla& tabla : tablas)
        grilla.Hojas.push_back(LectorDeTabla(*tabla.Tabla, separadores).Leer(tabla.Nombre));
    return grilla;
}

void ImprimirPantallaActual(EntornoSalida& entorno, const std::vector<TablaEnPantalla>& tablas,
                            const std::string& titulo, QWidget* padre, bool apaisada) {
    ImprimirPantallaActual(entorno, CuadriculaDe(tablas, entorno.LaAplicacion.SeparadoresLocales).Hojas,
                           titulo, padre, apaisada);
}

void ImprimirPantallaActual(EntornoSalida& entorno, std::vector<cuadricula::HojaDeCuadricula> hojas,
                            const std::string& titulo, QWidget* padre, bool apaisada) {
    const cuadricula::Cuadricula GrillaPreview{std::move(hojas), entorno.LaAplicacion.SeparadoresLocales};
    VentanaVistaPreviaR ventana(entorno, GrillaPreview, titulo, documento::Alineacion::Centro, apaisada,
                                padre);
    programa::qt::MostrarModal(ventana);
}

}  // namespace trabex::reportes::ui::qt
