#pragma once

#include <QDialog>
#include <QTimer>
#include <array>

#include "drawing/losa/GraficoLosaDatos.h"
#include "shell/qt/TablaDatos.h"
#include "slab/ui/LosaDatos.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QRadioButton;
class QStackedWidget;
class QTabWidget;

namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::losas::ui::qt {

class PaginaDeCargas;

/// Edits one slab: five pages of fields and tables beside a sketch that follows what is typed.
class VentanaLosaDatos : public QDialog, public PantallaLosaDatos {
  public:
    VentanaLosaDatos(Losas& losas, programa::CajaMensajes& caja, QWidget* padre);

    void Rellenar() override;
    void Refrescar() override;
    void Redibujar() override;
    PaginaLosa Pagina() const override;
    void MostrarPagina(PaginaLosa pagina) override;
    void EnfocarCampo(CampoSeccion campo) override;
    std::size_t FilaDeApoyo() const override;
    void IrAFilaDeApoyo(std::size_t fila) override;
    bool MostrarCarga01(const EntradaDeCarga& entrada) override;
    bool MostrarCarga02(const EntradaDeCarga& entrada) override;
    void Cerrar() override;

    /// Goes to the page and row where a thing of the slab is entered.
    void IrA(const dibujo::losa::Toque& lugar);

    /// Something was saved while the window was up.
    bool LosaModificada() const { return operaciones_.LosaModificada(); }

    /// Escape and the window's cross.
    void reject() override;

  private:
    QLayout* FilaDeComandos();
    QWidget* PaginaDeSeccion();
    QWidget* PaginaDeTramos();
    QWidget* PaginaDeJuntasD();
    QWidget* Bocetos();
    programa::qt::CampoNumero* Contador(const ClaseNumero& clase, const char* nombre,
                                        const std::function<void(double)>& alEntrar);
    void SeguirEn(programa::qt::CampoNumero* contador, programa::qt::TablaDatos* tabla);
    programa::qt::TablaDatos* Tabla(std::vector<programa::qt::ColumnaDatos> columnas, const char* nombre);
    programa::qt::ColumnaDatos ColumnaDeCorrimiento(const QString& titulo, double JuntaD::*campo);

    void PonerNumeroTramos(int tramos);
    void PonerNumeroJuntasD(double juntas);
    void MostrarClase();
    void CopiarTramo();
    void CambiarPagina();
    void Salvar();
    void ElegirLosa(int lugar);
    dibujo::losa::MarcaBoceto Marca() const;

    Losas& losas_;
    programa::CajaMensajes& caja_;
    LosaDatos operaciones_;
    Separadores numeros_;
    bool rellenando_ = true;
    QTimer redibujo_;

    QComboBox* selector_;
    QTabWidget* paginas_;
    QRadioButton* nervada_;
    QRadioButton* maciza_;
    QFormLayout* formulario_;
    std::array<programa::qt::CampoNumero*, 5> seccion_{};
    programa::qt::CampoNumero* numeroTramos_;
    programa::qt::CampoNumero* numeroJuntasD_;
    programa::qt::TablaDatos* ejes_;
    programa::qt::TablaDatos* luces_;
    programa::qt::TablaDatos* juntasD_;
    programa::qt::TablaDatos* apoyos_;
    programa::qt::TablaDatos* cargas_;
    PaginaDeCargas* paginaDeCargas_;
    std::array<QWidget*, PaginasDeLosa> primeros_{};  // what takes the focus on each page

    QStackedWidget* bocetos_;
    QLabel* momentos_;
    std::array<dibujo::EstadoVista, 2> vistas_;
    std::array<dibujo::qt::WidgetLienzo*, 2> lienzos_{};
};

}  // namespace trabex::losas::ui::qt
