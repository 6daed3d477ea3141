#include "reports/documento/Componer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <memory>
#include <unordered_set>
#include <utility>

#include "base/Archivos.h"
#include "base/Texto.h"
#include "reports/documento/DatosReporte.h"

namespace trabex::documento {

namespace {

/// A row around an element; rows nest as the elements do.
struct FilaActual {
    const TablaDeDatos* Tabla;          // null: its database is not there
    std::optional<std::size_t> Numero;  // nothing while names are only looked up
    const FilaActual* Fuera;
};

/// A column that a reference came to, and the row to read it from.
struct Hallada {
    const TablaDeDatos* Tabla = nullptr;
    std::size_t Columna = 0;
    std::optional<std::size_t> Fila;
};

/// Names of one layout in their rows.
class Nombres {
  public:
    Nombres(const MaquetaReporte& maqueta, DatosReporte& datos) : maqueta_(maqueta), datos_(datos) {}

    bool HayDatos(const std::string& tabla) { return datos_.Hay(Ubicacion(tabla)); }

    /// Null when its database is not there.
    const TablaDeDatos* Tabla(const FuenteDeFilas& fuente) {
        if (fuente.Orden.empty()) return SinOrden(fuente.Tabla, fuente.Linea);
        if (!HayDatos(fuente.Tabla)) return nullptr;
        const TablaDeDatos* tabla = datos_.Tabla(Ubicacion(fuente.Tabla), fuente.Tabla, fuente.Orden);
        // Without order it tells whether the table is missing or its column.
        if (tabla == nullptr) Exigir(*SinOrden(fuente.Tabla, fuente.Linea), fuente.Orden, fuente.Linea);
        return tabla;
    }

    /// The numbers of a source's rows below the rows around it.
    std::vector<std::size_t> Filas(const FuenteDeFilas& fuente, const FilaActual* alrededor);

    /// Where a reference leads. Its `Tabla` is null when no database is there to look into.
    Hallada Buscar(const Referencia& referencia, const FilaActual* alrededor);

    /// The table that holds the picture of a reference, and its row.
    Hallada BuscarImagen(const Referencia& referencia, const FilaActual* alrededor);

  private:
    std::filesystem::path Ubicacion(const std::string& tabla) const {
        for (const TablaDeMaqueta& conocida : maqueta_.Tablas) {
            if (conocida.Nombre == tabla) return conocida.Ubicacion;
        }
        return {};
    }
    const TablaDeDatos* SinOrden(const std::string& nombre, int linea) {
        if (!HayDatos(nombre)) return nullptr;
        const TablaDeDatos* tabla = datos_.Tabla(Ubicacion(nombre), nombre, {});
        if (tabla == nullptr)
            throw ErrorDeMaqueta(maqueta_.Archivo, linea, "no existe la tabla \"" + nombre + "\"");
        return tabla;
    }
    std::size_t Exigir(const TablaDeDatos& tabla, const std::string& columna, int linea) const {
        if (const auto numero = tabla.Columna(columna)) return *numero;
        const bool esImagen = tabla.EsImagen(columna);
        throw ErrorDeMaqueta(maqueta_.Archivo, linea,
                             (esImagen ? "es una imagen la columna \"" : "no existe la columna \"") +
                                 tabla.Nombre() + "." + columna + "\"");
    }

    const MaquetaReporte& maqueta_;
    DatosReporte& datos_;
};

Hallada Nombres::Buscar(const Referencia& referencia, const FilaActual* alrededor) {
    bool faltaBase = false;
    for (const FilaActual* fila = alrededor; fila != nullptr; fila = fila->Fuera) {
        faltaBase = faltaBase || fila->Tabla == nullptr;
        if (fila->Tabla == nullptr) continue;
        if (!referencia.Tabla.empty() && fila->Tabla->Nombre() != referencia.Tabla) continue;
        if (const auto columna = fila->Tabla->Columna(referencia.Columna))
            return {fila->Tabla, *columna, fila->Numero};
        if (!referencia.Tabla.empty()) Exigir(*fila->Tabla, referencia.Columna, referencia.Linea);
    }
    if (!referencia.Tabla.empty()) {
        const TablaDeDatos* tabla = SinOrden(referencia.Tabla, referencia.Linea);
        if (tabla == nullptr) return {};
        const std::size_t columna = Exigir(*tabla, referencia.Columna, referencia.Linea);
        return {tabla, columna, tabla->NumeroFilas() > 0 ? std::optional<std::size_t>(0) : std::nullopt};
    }
    if (faltaBase) return {};
    throw ErrorDeMaqueta(maqueta_.Archivo, referencia.Linea,
                         "no existe la columna \"" + referencia.Columna + "\"");
}

Hallada Nombres::BuscarImagen(const Referencia& referencia, const FilaActual* alrededor) {
    bool faltaBase = false;
    for (const FilaActual* fila = alrededor; fila != nullptr; fila = fila->Fuera) {
        faltaBase = faltaBase || fila->Tabla == nullptr;
        if (fila->Tabla != nullptr && fila->Tabla->EsImagen(referencia.Columna) &&
            (referencia.Tabla.empty() || fila->Tabla->Nombre() == referencia.Tabla))
            return {fila->Tabla, 0, fila->Numero};
    }
    if (faltaBase) return {};
    throw ErrorDeMaqueta(maqueta_.Archivo, referencia.Linea,
                         "no existe la imagen \"" + referencia.Columna + "\"");
}

std::vector<std::size_t> Nombres::Filas(const FuenteDeFilas& fuente, const FilaActual* alrededor) {
    const TablaDeDatos* tabla = Tabla(fuente);
    if (tabla == nullptr) return {};
    std::vector<std::size_t> filas;
    if (fuente.Enlace.empty()) {
        filas = tabla->Todas();
    } else {
        const std::size_t columna = Exigir(*tabla, fuente.Enlace, fuente.Linea);
        const Hallada fuera = Buscar({"", fuente.Enlace, fuente.Linea}, alrededor);
        if (fuera.Tabla != nullptr && fuera.Fila)
            filas = tabla->Donde(columna, fuera.Tabla->Leer(*fuera.Fila, fuera.Columna));
    }
    if (!fuente.Por.empty()) {
        const std::size_t columna = Exigir(*tabla, fuente.Por, fuente.Linea);
        std::unordered_set<std::string> vistos;
        std::erase_if(filas, [&](std::size_t fila) {
            return !vistos.insert(TextoDeValor(tabla->Leer(fila, columna), {}, {})).second;
        });
    }
    return filas;
}

/// Walks a layout's elements without rows, so that every name is looked up once, whatever the data.
class Revisor {
  public:
    Revisor(const MaquetaReporte& maqueta, DatosReporte& datos)
        : maqueta_(maqueta), datos_(datos), nombres_(maqueta, datos) {}

    void Revisar(const FilaActual* alrededor) {
        for (const Plantilla* texto : {&maqueta_.Titulo, &maqueta_.Autor}) Revisar(*texto, nullptr);
        for (const auto* banda : {&maqueta_.Cabecera, &maqueta_.Pie}) {
            for (const Plantilla& texto : *banda) Revisar(texto, nullptr);
        }
        Revisar(maqueta_.Cuerpo, alrededor);
    }

  private:
    void Revisar(const Elementos& elementos, const FilaActual* alrededor) {
        for (const Elemento& elemento : elementos)
            std::visit([&](const auto& e) { Revisar(e, alrededor); }, elemento.Contenido);
    }
    void Revisar(const Plantilla& texto, const FilaActual* alrededor) {
        for (const Plantilla::Trozo& trozo : texto.Trozos) {
            if (trozo.Campo) nombres_.Buscar(*trozo.Campo, alrededor);
        }
    }
    FilaActual Entrar(const FuenteDeFilas& fuente, const FilaActual* alrededor) {
        nombres_.Filas(fuente, alrededor);
        return {nombres_.Tabla(fuente), std::nullopt, alrededor};
    }
    void Revisar(const ElementoTitulo& e, const FilaActual* alrededor) { Revisar(e.Texto, alrededor); }
    void Revisar(const ElementoParrafo& e, const FilaActual* alrededor) { Revisar(e.Texto, alrededor); }
    void Revisar(const ElementoFicha& e, const FilaActual* alrededor) {
        for (const auto& campo : e.Campos) nombres_.Buscar(campo.Dato, alrededor);
    }
    void Revisar(const ElementoTabla& e, const FilaActual* alrededor) {
        const FilaActual dentro = Entrar(e.Fuente, alrededor);
        for (const ElementoTabla::Fila& fila : e.Filas) {
            for (const CeldaDeMaqueta& celda : fila.Celdas) {
                if (celda.Que == CeldaDeMaqueta::Clase::Texto)
                    Revisar(celda.Texto, &dentro);
                else if (celda.Que != CeldaDeMaqueta::Clase::Nada)
                    nombres_.Buscar(celda.Campo, &dentro);
            }
        }
    }
    void Revisar(const ElementoImagen& e, const FilaActual* alrededor) {
        if (e.Archivo.Trozos.empty())
            nombres_.BuscarImagen(e.Campo, alrededor);
        else
            Revisar(e.Archivo, alrededor);
        Revisar(e.Pie, alrededor);
    }
    void Revisar(const ElementoSeccion& e, const FilaActual* alrededor) {
        Revisar(e.Nombre, alrededor);
        Revisar(e.Dentro, alrededor);
    }
    void Revisar(const ElementoGrupo& e, const FilaActual* alrededor) {
        const FilaActual dentro = Entrar(e.Fuente, alrededor);
        Revisar(e.Dentro, &dentro);
    }
    void Revisar(const ElementoSi& e, const FilaActual* alrededor) {
        if (e.Hay)
            Entrar(*e.Hay, alrededor);
        else
            nombres_.Buscar(e.Condicion, alrededor);
        Revisar(e.Dentro, alrededor);
        Revisar(e.Sino, alrededor);
    }
    void Revisar(const ElementoSubreporte& e, const FilaActual* alrededor) {
        Revisor(maqueta_.Subreportes[e.Numero], datos_).Revisar(alrededor);
    }
    void Revisar(const ElementoSalto&, const FilaActual*) {}

    const MaquetaReporte& maqueta_;
    DatosReporte& datos_;
    Nombres nombres_;
};

/// Walks a layout's elements with the rows and writes the document.
class Compositor {
  public:
    Compositor(const MaquetaReporte& maqueta, std::shared_ptr<DatosReporte> datos, Documento& documento)
        : maqueta_(maqueta), datos_(std::move(datos)), nombres_(maqueta, *datos_), documento_(documento) {}

    void PonerAjustes() {
        documento_.Titulo = Texto(maqueta_.Titulo, nullptr);
        documento_.Autor = Texto(maqueta_.Autor, nullptr);
        documento_.Papel = maqueta_.Papel;
        documento_.Letra = maqueta_.Letra;
        documento_.Papel.Encabezado = Banda(maqueta_.Cabecera);
        documento_.Papel.Pie = Banda(maqueta_.Pie);
    }
    void Escribir(const FilaActual* alrededor) { Escribir(maqueta_.Cuerpo, alrededor); }

  private:
    void Escribir(const Elementos& elementos, const FilaActual* alrededor) {
        for (const Elemento& elemento : elementos)
            std::visit([&](const auto& e) { Escribir(e, alrededor); }, elemento.Contenido);
    }
    void Agregar(Bloque bloque) {
        if (documento_.Secciones.empty())
            documento_.Secciones.push_back({documento_.Titulo, false, false, {}});
        documento_.Secciones.back().Bloques.push_back(std::move(bloque));
    }
    almacen::Valor Leer(const Referencia& referencia, const FilaActual* alrededor) {
        const Hallada hallada = nombres_.Buscar(referencia, alrededor);
        return hallada.Tabla && hallada.Fila ? hallada.Tabla->Leer(*hallada.Fila, hallada.Columna)
                                             : almacen::Valor{};
    }
    std::string Texto(const Plantilla& plantilla, const FilaActual* alrededor) {
        std::string texto;
        for (const Plantilla::Trozo& trozo : plantilla.Trozos) {
            texto += trozo.Literal;
            if (trozo.Campo)
                texto += TextoDeValor(Leer(*trozo.Campo, alrededor), trozo.Formato, documento_.Locales);
        }
        return texto;
    }
    BandaDePagina Banda(const std::array<Plantilla, 3>& textos) {
        return {Texto(textos[0], nullptr), Texto(textos[1], nullptr), Texto(textos[2], nullptr)};
    }

    void Escribir(const ElementoTitulo& e, const FilaActual* alrededor) {
        Agregar(Titulo{e.Nivel, Texto(e.Texto, alrededor)});
    }
    void Escribir(const ElementoParrafo& e, const FilaActual* alrededor) {
        std::string texto = Texto(e.Texto, alrededor);
        if (!texto.empty()) Agregar(Parrafo{std::move(texto), e.Destacado});
    }
    void Escribir(const ElementoFicha& e, const FilaActual* alrededor) {
        Ficha ficha{e.Columnas, {}};
        for (const auto& campo : e.Campos)
            ficha.Datos.push_back({campo.Rotulo, Leer(campo.Dato, alrededor), campo.Formato, campo.Unidad});
        Agregar(std::move(ficha));
    }
    void Escribir(const ElementoTabla& e, const FilaActual* alrededor);
    void Escribir(const ElementoImagen& e, const FilaActual* alrededor);
    void Escribir(const ElementoSeccion& e, const FilaActual* alrededor) {
        documento_.Secciones.push_back({Texto(e.Nombre, alrededor), e.PaginaNueva, e.Junta, {}});
        Escribir(e.Dentro, alrededor);
    }
    void Escribir(const ElementoGrupo& e, const FilaActual* alrededor) {
        const TablaDeDatos* tabla = nombres_.Tabla(e.Fuente);
        for (const std::size_t numero : nombres_.Filas(e.Fuente, alrededor)) {
            const FilaActual fila{tabla, numero, alrededor};
            Escribir(e.Dentro, &fila);
        }
    }
    void Escribir(const ElementoSi& e, const FilaActual* alrededor) {
        const bool cierta =
            e.Hay ? !nombres_.Filas(*e.Hay, alrededor).empty() : EsCierto(Leer(e.Condicion, alrededor));
        Escribir(cierta != e.Niega ? e.Dentro : e.Sino, alrededor);
    }
    void Escribir(const ElementoSubreporte& e, const FilaActual* alrededor) {
        Compositor(maqueta_.Subreportes[e.Numero], datos_, documento_).Escribir(alrededor);
    }
    void Escribir(const ElementoSalto&, const FilaActual*) { Agregar(SaltoDePagina{}); }

    static bool EsCierto(const almacen::Valor& valor) {
        if (const auto numero = NumeroDe(valor)) return *numero != 0;
        if (const auto* texto = std::get_if<std::string>(&valor)) return !texto->empty();
        const auto* logico = std::get_if<bool>(&valor);
        return logico != nullptr && *logico;
    }
    /// The columns of a table's own rows, for the cells that show one.
    using Propias = std::vector<std::optional<std::size_t>>;
    static Propias PropiasDe(const ElementoTabla::Fila& fila, const TablaDeDatos& tabla) {
        Propias propias(fila.Celdas.size());
        for (std::size_t i = 0; i < propias.size(); ++i) {
            const CeldaDeMaqueta& celda = fila.Celdas[i];
            const bool suya = celda.Campo.Tabla.empty() || celda.Campo.Tabla == tabla.Nombre();
            if (celda.Que == CeldaDeMaqueta::Clase::Campo && suya)
                propias[i] = tabla.Columna(celda.Campo.Columna);
        }
        return propias;
    }
    almacen::Valor Celda(const CeldaDeMaqueta& celda, const FilaActual& fila) {
        if (celda.Que == CeldaDeMaqueta::Clase::Nada) return {};
        if (celda.Que == CeldaDeMaqueta::Clase::Texto) return Texto(celda.Texto, &fila);
        return Leer(celda.Campo, &fila);
    }
    almacen::Valor Total(const CeldaDeMaqueta& celda, const TablaDeDatos* tabla,
                         const std::vector<std::size_t>& filas, const FilaActual* alrededor);

    const MaquetaReporte& maqueta_;
    std::shared_ptr<DatosReporte> datos_;
    Nombres nombres_;
    Documento& documento_;
};

almacen::Valor Compositor::Total(const CeldaDeMaqueta& celda, const TablaDeDatos* tabla,
                                 const std::vector<std::size_t>& filas, const FilaActual* alrededor) {
    using Clase = CeldaDeMaqueta::Clase;
    if (celda.Que == Clase::Nada) return {};
    const FilaActual ultima{tabla, filas.back(), alrededor};
    if (celda.Que == Clase::Texto) return Texto(celda.Texto, &ultima);
    double suma = 0;
    std::int32_t cuenta = 0;
    std::optional<double> maximo;
    std::optional<double> minimo;
    for (const std::size_t numero : filas) {
        const FilaActual fila{tabla, numero, alrededor};
        const auto valor = NumeroDe(Leer(celda.Campo, &fila));
        if (!valor) continue;
        ++cuenta;
        suma += *valor;
        maximo = maximo ? std::max(*maximo, *valor) : *valor;
        minimo = minimo ? std::min(*minimo, *valor) : *valor;
    }
    if (celda.Que == Clase::Cuenta) return cuenta;
    if (celda.Que == Clase::Suma) return suma;
    const auto extremo = celda.Que == Clase::Maximo ? maximo : minimo;
    return extremo ? almacen::Valor{*extremo} : almacen::Valor{};
}

void Compositor::Escribir(const ElementoTabla& e, const FilaActual* alrededor) {
    const TablaDeDatos* origen = nombres_.Tabla(e.Fuente);
    const std::vector<std::size_t> numeros = nombres_.Filas(e.Fuente, alrededor);
    if (numeros.empty()) return;
    Tabla tabla{e.Columnas, {}};
    std::vector<Propias> propias;
    propias.reserve(e.Filas.size());
    for (const ElementoTabla::Fila& fila : e.Filas) propias.push_back(PropiasDe(fila, *origen));
    tabla.Filas.reserve(numeros.size() + e.Filas.size());
    for (const std::size_t numero : numeros) {
        const FilaActual actual{origen, numero, alrededor};
        for (std::size_t k = 0; k < e.Filas.size(); ++k) {
            const ElementoTabla::Fila& fila = e.Filas[k];
            const bool sale = fila.Sale == ElementoTabla::Cuando::Siempre ||
                              (fila.Sale == ElementoTabla::Cuando::Ultima && numero == numeros.back());
            if (!sale) continue;
            FilaDeTabla& nueva = tabla.Filas.emplace_back();
            nueva.Celdas.reserve(fila.Celdas.size());
            for (std::size_t i = 0; i < fila.Celdas.size(); ++i)
                nueva.Celdas.push_back(propias[k][i] ? origen->Leer(numero, *propias[k][i])
                                                     : Celda(fila.Celdas[i], actual));
        }
    }
    for (const ElementoTabla::Fila& fila : e.Filas) {
        if (fila.Sale != ElementoTabla::Cuando::Total) continue;
        FilaDeTabla& nueva = tabla.Filas.emplace_back();
        nueva.Destacada = true;
        for (const CeldaDeMaqueta& celda : fila.Celdas)
            nueva.Celdas.push_back(Total(celda, origen, numeros, alrededor));
    }
    Agregar(std::move(tabla));
}

almacen::Bytes BytesDe(const std::filesystem::path& archivo) {
    almacen::Bytes bytes;
    std::error_code error;
    if (!std::filesystem::is_regular_file(archivo, error)) return bytes;
    std::ifstream lectura(archivo, std::ios::binary);
    for (std::array<char, 65536> parte{}; lectura.read(parte.data(), parte.size()) || lectura.gcount() > 0;) {
        const auto* desde = reinterpret_cast<const std::byte*>(parte.data());
        bytes.insert(bytes.end(), desde, desde + lectura.gcount());
    }
    return bytes;
}

void Compositor::Escribir(const ElementoImagen& e, const FilaActual* alrededor) {
    if (!e.Archivo.Trozos.empty()) {
        const auto archivo = maqueta_.Archivo.parent_path() / CaminoDeTexto(Texto(e.Archivo, alrededor));
        Agregar(Imagen{[archivo] { return BytesDe(archivo); }, e.Ancho, e.Alto, Texto(e.Pie, alrededor)});
        return;
    }
    const Hallada hallada = nombres_.BuscarImagen(e.Campo, alrededor);
    if (hallada.Tabla == nullptr || !hallada.Fila) return;
    // The rows live as long as a picture that is read from them.
    const auto leer = [&](almacen::Bytes (TablaDeDatos::*cual)(std::size_t, std::string_view) const) {
        return [datos = datos_, tabla = hallada.Tabla, fila = *hallada.Fila, columna = e.Campo.Columna,
                cual] { return (tabla->*cual)(fila, columna); };
    };
    Agregar(Imagen{leer(&TablaDeDatos::LeerImagen), e.Ancho, e.Alto, Texto(e.Pie, alrededor),
                   leer(&TablaDeDatos::LeerTrazos)});
}

}  // namespace

Documento Componer(const MaquetaReporte& maqueta, const Separadores& separadores) {
    const auto datos = std::make_shared<DatosReporte>();
    Revisor(maqueta, *datos).Revisar(nullptr);
    Documento documento;
    documento.Locales = separadores;
    Compositor compositor(maqueta, datos, documento);
    compositor.PonerAjustes();
    compositor.Escribir(nullptr);
    return documento;
}

}  // namespace trabex::documento
