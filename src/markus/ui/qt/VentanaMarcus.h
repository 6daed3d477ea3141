#pragma once

#include <QDialog>
#include <QTimer>
#include <functional>
#include <map>
#include <string_view>

#include "markus/ui/Marcus.h"

class QLabel;
class QMenuBar;
class QTableView;

namespace trabex::marcus::ui::qt {

class FiguraCasos;
class TablaDeNiveles;
class TablaDePanos;

/// What sends the panels out of the window.
struct SalidasDeMarcus {
    std::function<void(QWidget& ventana)> Reporte;  ///< shows the window of report output
    std::function<void(const QTableView& panos, const std::string& nivel, QWidget& ventana)> Pantalla;
};

/// The window `Marcus`: the levels of a project, the panels of the selected one with their shares, and the
/// support cases.
class VentanaMarcus : public QDialog, public programa::PantallaEspacio, public PantallaMarcus {
  public:
    VentanaMarcus(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                  SalidasDeMarcus salidas, QWidget* padre);

    QAction* Accion(std::string_view clave) const { return acciones_.at(clave); }

    void PonerEstado(const std::string& texto) override;
    void PonerAvisos(const Avisos& avisos) override;
    void MarcarFila(int fila) override;
    void MostrarRenombrar(programa::Renombrar& operaciones) override;
    // The title is fixed, names come with their counts, and there are no sheets.
    void PonerTitulo(const std::string& /*titulo*/) override {}
    void PonerEncabezado(const std::string& /*texto*/) override {}
    void LlenarLista(const std::vector<std::string>& /*nombres*/) override {}
    void MarcarFalla(int /*fila*/, bool /*falla*/) override {}
    void MarcarHoja(int /*hoja*/) override {}
    void RestablecerVista() override {}
    void Redibujar() override {}

    void MostrarNiveles() override;
    void MostrarNivel() override;
    void MostrarPanos() override;
    void SoltarBloque() override;
    std::string Pedir(const std::string& texto, const std::string& encabezado) override;
    bool MostrarMarcusNuevo() override;
    void MostrarReporte() override { salidas_.Reporte(*this); }

    /// The window's cross.
    void reject() override;

  protected:
    /// Escape leaves a cell; the window closes by " Retorno " or its cross.
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void CrearAcciones();
    QMenuBar* BarraDeMenus();
    QWidget* BarraDeMandos();
    QWidget* PanelDeNiveles();
    QWidget* PanelDePanos();
    QLayout* LineaDelPie();
    /// What follows from a change, once for all cells that one event changes.
    void AsentarCambio();
    void MostrarCaso();

    programa::Aplicacion& aplicacion_;
    SalidasDeMarcus salidas_;
    Marcus operaciones_;
    std::map<std::string_view, QAction*> acciones_;
    TablaDeNiveles* niveles_ = nullptr;
    QLabel* encabezado_ = nullptr;
    TablaDePanos* panos_ = nullptr;
    FiguraCasos* casos_ = nullptr;
    QLabel* pie_ = nullptr;
    QLabel* avisos_ = nullptr;
    QTimer cambio_;
    bool mostrando_ = false;
};

}  // namespace trabex::marcus::ui::qt
