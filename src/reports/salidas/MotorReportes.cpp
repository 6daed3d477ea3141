#include "reports/salidas/MotorReportes.h"

#include <utility>

#include "reports/documento/Componer.h"
#include "reports/salidas/EscritorHtml.h"
#include "reports/salidas/EscritorRtf.h"
#include "reports/salidas/EscritorXls.h"

namespace trabex::salidas {

namespace {

void UbicarTablas(documento::DisenoReporte& diseno, const std::filesystem::path& base) {
    for (documento::TablaDeDiseno& tabla : diseno.Tablas) tabla.Ubicacion = base;
    for (documento::DisenoReporte& subreporte : diseno.Subreportes) UbicarTablas(subreporte, base);
}

}  // namespace

Reporte::Reporte(const std::filesystem::path& archivo, Separadores separadores)
    : diseno_(documento::LeerDiseno(archivo)), separadores_(std::move(separadores)) {}

void Reporte::Ubicar(const std::filesystem::path& base) {
    UbicarTablas(diseno_, base);
    DescartarDatos();
}

void Reporte::PonerPapel(documento::TamanoPagina tamano, bool apaisado) {
    diseno_.Hoja.Tamano = tamano;
    diseno_.Hoja.Apaisada = apaisado;
    DescartarDatos();
}

const documento::Documento& Reporte::Contenido() {
    if (!compuesto_) compuesto_ = documento::Componer(diseno_, separadores_);
    return *compuesto_;
}

MotorReportes::MotorReportes() {
    Registrar(FormatoHtml, EscribirHtml);
    Registrar(FormatoRtf, EscribirRtf);
    Registrar(FormatoXls, EscribirXls);
}

void MotorReportes::Registrar(int codigo, EscritorReporte escritor) {
    escritores_[codigo] = std::move(escritor);
}

void MotorReportes::Exportar(const documento::Documento& documento, int codigo,
                             const std::filesystem::path& destino) const {
    const auto escritor = escritores_.find(codigo);
    if (escritor == escritores_.end()) throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
    escritor->second(documento, destino);
}

}  // namespace trabex::salidas
