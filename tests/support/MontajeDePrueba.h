#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "base/ErrorEjecucion.h"
#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/EstadoReportes.h"
#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/SuperficieOculta.h"
#include "support/BaseSqlite.h"
#include "support/CarpetaTemporal.h"
#include "support/LienzoGrabador.h"
#include "support/ProyectoDePrueba.h"

namespace trabex::prueba {

/// A surface whose picture is its texts, each with a bar after it; it fails where it is told to.
class SuperficieDeTextos : public montaje::SuperficieOculta {
  public:
    void Dibujar(std::int32_t ancho, std::int32_t alto,
                 const std::function<void(Lienzo&)>& dibujar) override {
        if (--FallaEn == 0) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        LienzoGrabador lienzo(ancho / TwipsPorUnidad, alto / TwipsPorUnidad);
        dibujar(lienzo);
        Tamano = {ancho, alto};
        Textos.clear();
        for (const auto& texto : lienzo.Textos) Textos += texto.Texto + "|";
    }
    montaje::ImagenMontada Imagen() const override {
        return {ComoBytes(Textos), ComoBytes("png de " + Textos)};
    }
    almacen::Bytes Foto() const override { return ComoBytes("foto de " + Textos); }

    int FallaEn = 0;
    montaje::TamanoGrafico Tamano;
    std::string Textos;

  private:
    static almacen::Bytes ComoBytes(const std::string& texto) {
        const auto* datos = reinterpret_cast<const std::byte*>(texto.data());
        return {datos, datos + texto.size()};
    }
};

struct PanelAnotado : montaje::PanelProgreso {
    std::size_t CancelaEn = 1000;  // steps
    bool Cancelado() const override { return Pasos.size() >= CancelaEn; }
    void Mostrar() override { Visible = true; }
    void Avanzar(double porcentaje, const std::string& rotulo) override {
        if (Pasos.empty() || Pasos.back() != porcentaje) Pasos.push_back(porcentaje);
        Rotulo = rotulo;
    }
    void Ocultar() override { Visible = false; }
    bool Visible = false;
    std::vector<double> Pasos;
    std::string Rotulo;
};

/// The folders of a program that stages reports, a project, and the rows that were staged.
struct ConMontaje : testing::Test {
    explicit ConMontaje(const std::string& filas = {}) {
        std::filesystem::create_directories(Entorno.CaminoPrograma / "Imagen");
        std::filesystem::create_directories(Entorno.Trabajo);
        CrearBaseDatos(Entorno.CaminoPrograma / "Imagen" / "Temporal.tbx",
                       LeerArchivo(Install() + "/Imagen/Temporal.sql"));
        CrearBaseDatos(Carpeta / "obra.los", EsquemaDeProyecto() + filas);
    }
    /// Each row of a scratch table in a form of SQLite's printf.
    std::vector<std::string> Montado(const std::string& tabla, const std::string& forma) const {
        std::vector<std::string> textos;
        for (const FilaSqlite& fila :
             ConsultarSqlite(montaje::TemporalMdb(Entorno),
                             "SELECT printf(" + forma + ") AS T FROM " + tabla + " ORDER BY rowid"))
            textos.push_back(fila.at("T"));
        return textos;
    }

    CarpetaTemporal Carpeta;
    montaje::EntornoReportes Entorno{Carpeta / "programa", Carpeta / "trabajo", "ING. NÚÑEZ"};
    ProyectoAbierto Proyecto;
    SuperficieDeTextos Superficie;
    PanelAnotado Panel;
    montaje::EstadoReportes Estado;
};

}  // namespace trabex::prueba
