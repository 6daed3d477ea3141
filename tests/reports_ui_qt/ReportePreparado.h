#pragma once

#include <QProcess>
#include <QString>

#include <gtest/gtest.h>

#include "base/Archivos.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"
#include "support/CarpetaTemporal.h"
#include "support/Errores.h"
#include "support/ShellGuiado.h"
#include "support/TemporalDePrueba.h"

namespace trabex::prueba {

using namespace losas;
using namespace salidas;
using namespace salidas::qt;

/// Runs a program and gives what it wrote; it must exist and end well.
inline QString Correr(const QString& programa, const QStringList& argumentos) {
    QProcess proceso;
    proceso.start(programa, argumentos);
    EXPECT_TRUE(proceso.waitForFinished(60000)) << programa.toStdString();
    EXPECT_EQ(proceso.exitCode(), 0) << programa.toStdString() << ": "
                                     << proceso.readAllStandardError().toStdString();
    return QString::fromUtf8(proceso.readAllStandardOutput());
}

inline QString Ruta(const std::filesystem::path& camino) {
    return QString::fromStdString(TextoDeCamino(camino));
}

/// A scratch database with the results of some slabs, and layouts that read it.
class ReportePreparado : public testing::Test, protected Maquina {
  protected:
    ReportePreparado() { motor.Registrar(FormatoPdf, EscribirPdf); }

    void Preparar(const std::vector<Losa>& losas) { EscribirTemporal(base, losas); }

    /// A layout of the program's, or the text of another.
    Reporte Abrir(const std::string& diseno) {
        std::filesystem::path archivo = std::filesystem::path(prueba::Install()) / "Reportes" / diseno;
        if (diseno.find('\n') != std::string::npos) {
            archivo = carpeta / "prueba.rpt";
            EscribirArchivo(archivo, diseno);
        }
        Reporte reporte(archivo, {});
        reporte.Ubicar(base);
        return reporte;
    }
    std::filesystem::path Exportar(Reporte& reporte, int codigo, const std::string& nombre) {
        std::filesystem::path destino = carpeta / nombre;
        motor.Exportar(reporte.Contenido(), codigo, destino);
        return destino;
    }

    std::filesystem::path base = carpeta / "Temporal.mdb";
    MotorReportes motor;
};

}  // namespace trabex::prueba
