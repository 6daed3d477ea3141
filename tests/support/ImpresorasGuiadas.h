#pragma once

#include <string>
#include <vector>

#include "reports/ui/SalidaReporte.h"

namespace trabex::prueba {

/// Printers that print nothing and keep how they were asked to.
struct ImpresorasGuiadas : reportes::ui::Impresoras {
    std::vector<std::string> Nombres{"HP LaserJet", "Epson Ñ"};
    bool Acepta = true;
    std::vector<std::string> Impresos;
    reportes::ui::PedidoDeImpresion Ultimo;
    documento::Pagina Papel;
    std::vector<std::string> Disponibles() const override { return Nombres; }
    std::string PorDefecto() const override { return "EPSON ñ"; }
    bool Imprimir(const documento::Documento& documento, const std::string& impresora,
                  const reportes::ui::PedidoDeImpresion& pedido, const Avance& /*avance*/) override {
        Ultimo = pedido;
        Papel = documento.Papel;
        if (Acepta) Impresos.push_back(impresora);
        return Acepta;
    }
};

}  // namespace trabex::prueba
