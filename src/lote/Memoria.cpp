#include "lote/Memoria.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "base/Formatos.h"
#include "base/Texto.h"

namespace trabex::lote {

namespace {

using documento::Alineacion;
using documento::Bloque;
using documento::Seccion;

constexpr const char* TituloMemoria = "MEMORIA DE CÁLCULO";
constexpr double AltoDeDibujo = 105;  // mm: two to a page

Seccion Portada(const DatosDelProyecto& datos, const std::string& fecha) {
    documento::Ficha ficha;
    ficha.Columnas = 1;
    ficha.Datos = {{"Proyecto", datos.Proyecto, "", ""},        {"Propietario", datos.Propietario, "", ""},
                   {"Cliente", datos.Cliente, "", ""},          {"Calculista", datos.Calculista, "", ""},
                   {"Fecha del proyecto", datos.Fecha, "", ""}, {"Fecha de impresión", fecha, "", ""},
                   {"Comentario", datos.Comentario, "", ""}};
    documento::Tabla firmas;
    // Texts to the left keep their line feeds: room to sign.
    for (const char* quien : {"Elaboró", "Revisó", "Aprobó"})
        firmas.Columnas.push_back({quien, "", "", 60, Alineacion::Izquierda});
    firmas.Estilo.Lineas = true;
    firmas.Filas = {{{datos.Calculista + "\n\n\n\n\nFirma y fecha:", "\n\n\n\n\nFirma y fecha:",
                      "\n\n\n\n\nFirma y fecha:"}}};
    const documento::Parrafo blanco{"\n\n\n\n"};
    return {
        "Portada",
        false,
        false,
        {blanco, documento::Titulo{1, TituloMemoria}, blanco, std::move(ficha), blanco, std::move(firmas)}};
}

documento::Tabla TablaResumida(const Lista& lista) {
    documento::Tabla tabla;
    for (const ColumnaResumen& columna : lista.De->Columnas) {
        const double ancho = tabla.Columnas.empty() ? 60 : columna.Formato ? 20 : 30;
        tabla.Columnas.push_back({columna.Encabezado, "", columna.Formato ? columna.Formato : "", ancho,
                                  columna.Formato ? Alineacion::Derecha : Alineacion::Izquierda});
    }
    for (const Elemento& elemento : lista.Elementos) {
        documento::FilaDeTabla fila{{elemento.Nombre}};
        if (elemento.Error.empty()) {
            for (const Celda& celda : lista.De->Resumir(elemento))
                std::visit([&](const auto& valor) { fila.Celdas.emplace_back(valor); }, celda);
        } else {
            fila.Celdas.emplace_back("No se pudo calcular: " + elemento.Error);
        }
        fila.Celdas.resize(tabla.Columnas.size());
        tabla.Filas.push_back(std::move(fila));
    }
    return tabla;
}

std::string Capitulo(const Lista& lista) {
    return Mayusculas(lista.De->Plural);
}

bool TieneCapitulo(const Lista& lista) {
    return lista.De->Memoria != nullptr && !lista.Elementos.empty();
}

Seccion Resumen(const ProyectoCalculado& calculado) {
    Seccion seccion{"Resumen", true, false, {documento::Titulo{1, "RESUMEN"}}};
    for (const Lista& lista : calculado.Listas) {
        if (!TieneCapitulo(lista)) continue;
        seccion.Bloques.emplace_back(documento::Titulo{3, Capitulo(lista)});
        seccion.Bloques.emplace_back(TablaResumida(lista));
    }
    return seccion;
}

/// An element: what its module tells, with its drawings behind the data.
Seccion SeccionDe(const Lista& lista, const Elemento& elemento, const Separadores& numeros,
                  const Ilustrar& ilustrar) {
    Seccion seccion{elemento.Nombre, true, false, {documento::Titulo{2, elemento.Nombre}}};
    ParteDeMemoria parte = lista.De->Memoria->Contar(lista, elemento, numeros);
    std::move(parte.Datos.begin(), parte.Datos.end(), std::back_inserter(seccion.Bloques));
    if (!elemento.Error.empty())
        seccion.Bloques.emplace_back(documento::Parrafo{"El cálculo no terminó: " + elemento.Error, true});
    if (ilustrar)
        for (documento::Imagen& imagen : ilustrar(elemento)) {
            imagen.Alto = AltoDeDibujo;
            seccion.Bloques.emplace_back(std::move(imagen));
        }
    std::move(parte.Resultados.begin(), parte.Resultados.end(), std::back_inserter(seccion.Bloques));
    return seccion;
}

documento::Documento Vacio(const ProyectoCalculado& calculado, const std::string& fecha,
                           const Separadores& numeros) {
    documento::Documento memoria;
    memoria.Titulo = std::string(TituloMemoria) + ": " + calculado.Datos.Proyecto;
    memoria.Autor = calculado.Datos.Calculista;
    memoria.Locales = numeros;
    memoria.Papel.Tamano = documento::TamanoPagina::Carta;
    memoria.Papel.Encabezado = {calculado.Datos.Proyecto, "", "Memoria de Cálculo"};
    memoria.Papel.Pie = {fecha, calculado.Datos.Calculista,
                         std::string("Página ") + documento::MarcaPagina + " de " + documento::MarcaPaginas};
    return memoria;
}

void Agregar(documento::Documento& memoria, const ProyectoCalculado& calculado, const std::string& fecha,
             const Ilustrar& ilustrar) {
    memoria.Secciones.push_back(Portada(calculado.Datos, fecha));
    memoria.Secciones.push_back(
        {"Índice", true, false, {documento::Titulo{1, "ÍNDICE"}, documento::Indice{}}});
    memoria.Secciones.push_back(Resumen(calculado));
    for (const Lista& lista : calculado.Listas) {
        if (!TieneCapitulo(lista)) continue;
        Seccion capitulo{Capitulo(lista), true, false, {documento::Titulo{1, Capitulo(lista)}}};
        for (const char* parrafo : lista.De->Memoria->Metodo())
            capitulo.Bloques.emplace_back(documento::Parrafo{parrafo});
        memoria.Secciones.push_back(std::move(capitulo));
        for (const Elemento& elemento : lista.Elementos) {
            memoria.Secciones.push_back(SeccionDe(lista, elemento, memoria.Locales, ilustrar));
            // Without drawings an element is a few rows: several share a page.
            const bool corta = lista.De->Dibujos == nullptr;
            memoria.Secciones.back().PaginaNueva = !corta && &elemento != lista.Elementos.data();
            memoria.Secciones.back().Junta = corta;
        }
    }
}

/// The flat tables of a kind: its elements' rows behind their names.
std::vector<std::pair<std::string, documento::Tabla>> TablasPlanas(const Lista& lista) {
    std::vector<std::pair<std::string, documento::Tabla>> planas;
    for (const Elemento& elemento : lista.Elementos) {
        for (auto& [nombre, suya] : lista.De->Memoria->Tablas(lista, elemento)) {
            const auto igual = [&nombre = nombre](const auto& plana) { return plana.first == nombre; };
            auto plana = std::find_if(planas.begin(), planas.end(), igual);
            if (plana == planas.end()) {
                suya.Columnas.insert(suya.Columnas.begin(), {lista.De->Columnas.front().Encabezado, "", "",
                                                             45, Alineacion::Izquierda});
                plana = planas.insert(planas.end(), {nombre, {std::move(suya.Columnas), {}}});
                plana->second.Estilo.Filtros = true;
            }
            for (documento::FilaDeTabla& fila : suya.Filas) {
                fila.Celdas.insert(fila.Celdas.begin(), elemento.Nombre);
                fila.Celdas.resize(plana->second.Columnas.size());
                plana->second.Filas.push_back(std::move(fila));
            }
        }
    }
    return planas;
}

}  // namespace

documento::Documento ComponerMemoria(const ProyectoCalculado& calculado, const std::string& fecha,
                                     const Separadores& numeros, const Ilustrar& ilustrar) {
    documento::Documento memoria = Vacio(calculado, fecha, numeros);
    Agregar(memoria, calculado, fecha, ilustrar);
    return memoria;
}

documento::Documento ComponerMemoriaEnHojas(const ProyectoCalculado& calculado, const std::string& fecha,
                                            const Separadores& numeros, const Ilustrar& ilustrar) {
    documento::Documento memoria = Vacio(calculado, fecha, numeros);
    for (const Lista& lista : calculado.Listas)
        if (TieneCapitulo(lista))
            for (auto& [nombre, tabla] : TablasPlanas(lista))
                memoria.Secciones.push_back({nombre, false, false, {std::move(tabla)}});
    Agregar(memoria, calculado, fecha, ilustrar);
    return memoria;
}

}  // namespace trabex::lote
