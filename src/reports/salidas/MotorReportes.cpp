#include "reports/salidas/MotorReportes.h"

#include <utility>

#include "reports/documento/Componer.h"
#include "reports/salidas/EscritorHtml.h"
#include "reports/salidas/EscritorRtf.h"
#include "reports/salidas/EscritorXls.h"

namespace trabex::salidas {

namespace {

void UbicarTablas(documento::MaquetaReporte& maqueta, const std::filesystem::path& base) {
    for (documento::TablaDeMaqueta& tabla : maqueta.Tablas) tabla.Ubicacion = base;
    for (documento::MaquetaReporte& subreporte : maqueta.Subreportes) UbicarTablas(subreporte, base);
}

}  // namespace

Reporte::Reporte(const std::filesystem::path& archivo, Separadores separadores)
    : maqueta_(documento::LeerMaqueta(archivo)), separadores_(std::move(separadores)) {}

void Reporte::Ubicar(const std::filesystem::path& base) {
    UbicarTablas(maqueta_, base);
    DescartarDatos();
}

void Reporte::PonerPapel(documento::TamanoPagina tamano, bool apaisado) {
    maqueta_.Papel.Tamano = tamano;
    maqueta_.Papel.Apaisada = apaisado;
    DescartarDatos();
}

const documento::Documento& Reporte::Contenido() {
    if (!compuesto_) compuesto_ = documento::Componer(maqueta_, separadores_);
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
                             const std::filesystem::path& destino, const Avance& avance) const {
    const auto escritor = escritores_.find(codigo);
    if (escritor == escritores_.end()) throw ErrorEjecucion(CodigoError::ArgumentoInvalido);
    escritor->second(documento, destino, avance);
}

}  // namespace trabex::salidas
