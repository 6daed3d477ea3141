#include "reports/documento/MaquetaReporte.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <utility>

#include "base/Archivos.h"
#include "reports/documento/PalabrasMaqueta.h"

namespace trabex::documento {

namespace {

/// The words of one line, taken from left to right.
class Argumentos {
  public:
    Argumentos(MaquetaReporte& maqueta, const Linea& linea) : maqueta_(maqueta), linea_(linea) {}

    int Numero() const { return linea_.Numero; }
    bool Quedan() const { return siguiente_ < linea_.Palabras.size(); }
    bool QuedaCitada() const { return Quedan() && linea_.Palabras[siguiente_].Citada; }
    bool Si(std::string_view palabra) {
        const bool es = Quedan() && !QuedaCitada() && linea_.Palabras[siguiente_].Texto == palabra;
        siguiente_ += es ? 1 : 0;
        return es;
    }
    std::string Palabra(const char* que) {
        if (!Quedan() || QuedaCitada()) Fallar(std::string("falta ") + que);
        return linea_.Palabras[siguiente_++].Texto;
    }
    std::string Citada(const char* que) {
        if (!QuedaCitada()) Fallar(std::string("falta entre comillas ") + que);
        return linea_.Palabras[siguiente_++].Texto;
    }
    double Medida(const char* que) {
        const std::string palabra = Palabra(que);
        double valor = 0;
        const char* fin = palabra.data() + palabra.size();
        const auto leido = std::from_chars(palabra.data(), fin, valor);
        if (leido.ec != std::errc() || leido.ptr != fin || !(valor >= 0 && valor <= 1000))
            Fallar("no es una medida: \"" + palabra + "\"");
        return valor;
    }
    std::string Tabla(const char* que) { return Anotada(Palabra(que)); }
    Referencia Campo(const char* que) { return ComoReferencia(Palabra(que)); }
    Plantilla Texto(const char* que) { return ComoPlantilla(Citada(que)); }

    Referencia ComoReferencia(const std::string& palabra) {
        const std::size_t punto = palabra.find('.');
        if (punto == std::string::npos) return {"", palabra, linea_.Numero};
        return {Anotada(palabra.substr(0, punto)), palabra.substr(punto + 1), linea_.Numero};
    }
    Plantilla ComoPlantilla(const std::string& texto);

    void Terminar() const {
        if (Quedan()) Fallar("sobra \"" + linea_.Palabras[siguiente_].Texto + "\"");
    }
    [[noreturn]] void Fallar(const std::string& falta) const {
        throw ErrorDeMaqueta(maqueta_.Archivo, linea_.Numero, falta);
    }

  private:
    /// The name of a table, kept among those that the layout reads.
    std::string Anotada(const std::string& nombre) {
        const auto conocida = std::find_if(maqueta_.Tablas.begin(), maqueta_.Tablas.end(),
                                           [&](const auto& tabla) { return tabla.Nombre == nombre; });
        if (conocida == maqueta_.Tablas.end()) maqueta_.Tablas.push_back({nombre, {}, linea_.Numero});
        return nombre;
    }

    MaquetaReporte& maqueta_;
    const Linea& linea_;
    std::size_t siguiente_ = 0;
};

/// "{Columna}", "{Tabla.Columna:0.00}", "{pagina}" and "{paginas}" in a text; "{{" is a brace.
Plantilla Argumentos::ComoPlantilla(const std::string& texto) {
    Plantilla plantilla;
    std::string literal;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        if (texto[i] != '{' || texto.compare(i, 2, "{{") == 0) {
            i += texto[i] == '{' ? 1 : 0;
            literal += texto[i];
            continue;
        }
        const std::size_t fin = texto.find('}', i);
        if (fin == std::string::npos) Fallar("falta } en \"" + texto + "\"");
        const std::string dentro = texto.substr(i + 1, fin - i - 1);
        i = fin;
        if (dentro == "pagina" || dentro == "paginas") {
            literal += dentro == "pagina" ? MarcaPagina : MarcaPaginas;
            continue;
        }
        const std::size_t dosPuntos = dentro.find(':');
        plantilla.Trozos.push_back({std::exchange(literal, {}), ComoReferencia(dentro.substr(0, dosPuntos)),
                                    dosPuntos == std::string::npos ? "" : dentro.substr(dosPuntos + 1)});
    }
    if (!literal.empty()) plantilla.Trozos.push_back({literal, std::nullopt, {}});
    return plantilla;
}

/// Reads one layout file, line by line.
class Lector {
  public:
    Lector(std::filesystem::path archivo, std::vector<std::filesystem::path> alrededor)
        : alrededor_(std::move(alrededor)) {
        maqueta_.Archivo = std::move(archivo);
        alrededor_.push_back(maqueta_.Archivo);
        lineas_ = documento::LeerLineas(maqueta_.Archivo);
    }

    MaquetaReporte Leer() {
        while (HayLinea()) {
            Argumentos linea = Siguiente();
            const std::string palabra = linea.Palabra("el elemento");
            if (!LeerAjuste(palabra, linea)) LeerElemento(palabra, linea, maqueta_.Cuerpo);
        }
        for (TablaDeMaqueta& tabla : maqueta_.Tablas) tabla.Ubicacion = base_;
        return std::move(maqueta_);
    }

  private:
    using AlLeer = void (Lector::*)(Argumentos&);
    using AlLeerElemento = void (Lector::*)(Argumentos&, Elementos&);

    bool HayLinea() const { return actual_ < lineas_.size(); }
    Argumentos Siguiente() { return {maqueta_, lineas_[actual_++]}; }
    bool LeerAjuste(const std::string& palabra, Argumentos& linea);
    void LeerElemento(const std::string& palabra, Argumentos& linea, Elementos& destino);
    bool LeerBloque(const Argumentos& cabeza, Elementos& destino, bool admiteSino);
    FuenteDeFilas LeerFuente(Argumentos& linea);
    std::array<Plantilla, 3> LeerBanda(Argumentos& linea);
    CeldaDeMaqueta LeerCelda(Argumentos& linea, bool esTotal);
    ColumnaDeTabla LeerColumna(Argumentos& linea, std::vector<CeldaDeMaqueta>& celdas);
    void LeerFila(Argumentos& linea, ElementoTabla::Cuando cuando, ElementoTabla& tabla);

    void PonerTitulo(Argumentos& linea) { maqueta_.Titulo = linea.Texto("el título"); }
    void PonerAutor(Argumentos& linea) { maqueta_.Autor = linea.Texto("el autor"); }
    void PonerPagina(Argumentos& linea);
    void PonerMargenes(Argumentos& linea);
    void PonerLetra(Argumentos& linea) { maqueta_.Letra = std::clamp(linea.Medida("el tamaño"), 4.0, 24.0); }
    void PonerCabecera(Argumentos& linea) { maqueta_.Cabecera = LeerBanda(linea); }
    void PonerPie(Argumentos& linea) { maqueta_.Pie = LeerBanda(linea); }
    void PonerBase(Argumentos& linea) { base_ = CaminoDeTexto(linea.Citada("la base de datos")); }

    void LeerTitulo(Argumentos& linea, Elementos& destino);
    void LeerParrafo(Argumentos& linea, Elementos& destino);
    void LeerDestacado(Argumentos& linea, Elementos& destino);
    void LeerFicha(Argumentos& linea, Elementos& destino);
    void LeerTabla(Argumentos& linea, Elementos& destino);
    void LeerImagen(Argumentos& linea, Elementos& destino);
    void LeerSeccion(Argumentos& linea, Elementos& destino);
    void LeerGrupo(Argumentos& linea, Elementos& destino);
    void LeerSi(Argumentos& linea, Elementos& destino);
    void LeerSubreporte(Argumentos& linea, Elementos& destino);
    void LeerSalto(Argumentos& linea, Elementos& destino);

    MaquetaReporte maqueta_;
    std::filesystem::path base_;
    std::vector<std::filesystem::path> alrededor_;  // the files whose subreport this is, and itself
    std::vector<Linea> lineas_;
    std::size_t actual_ = 0;
};

bool Lector::LeerAjuste(const std::string& palabra, Argumentos& linea) {
    static constexpr std::array<std::pair<std::string_view, AlLeer>, 8> ajustes{{
        {"titulo", &Lector::PonerTitulo},
        {"autor", &Lector::PonerAutor},
        {"pagina", &Lector::PonerPagina},
        {"margenes", &Lector::PonerMargenes},
        {"letra", &Lector::PonerLetra},
        {"cabecera", &Lector::PonerCabecera},
        {"pie", &Lector::PonerPie},
        {"base", &Lector::PonerBase},
    }};
    const auto* ajuste = std::find_if(ajustes.begin(), ajustes.end(),
                                      [&](const auto& candidato) { return candidato.first == palabra; });
    if (ajuste == ajustes.end()) return false;
    (this->*ajuste->second)(linea);
    linea.Terminar();
    return true;
}

void Lector::LeerElemento(const std::string& palabra, Argumentos& linea, Elementos& destino) {
    static constexpr std::array<std::pair<std::string_view, AlLeerElemento>, 11> elementos{{
        {"encabezado", &Lector::LeerTitulo},
        {"parrafo", &Lector::LeerParrafo},
        {"destacado", &Lector::LeerDestacado},
        {"ficha", &Lector::LeerFicha},
        {"tabla", &Lector::LeerTabla},
        {"imagen", &Lector::LeerImagen},
        {"seccion", &Lector::LeerSeccion},
        {"grupo", &Lector::LeerGrupo},
        {"si", &Lector::LeerSi},
        {"subreporte", &Lector::LeerSubreporte},
        {"salto", &Lector::LeerSalto},
    }};
    const auto* elemento = std::find_if(elementos.begin(), elementos.end(),
                                        [&](const auto& candidato) { return candidato.first == palabra; });
    if (elemento == elementos.end()) linea.Fallar("no existe el elemento \"" + palabra + "\"");
    (this->*elemento->second)(linea, destino);
}

/// The elements up to the `fin` of the block that `cabeza` began. True when a `sino` ended it.
bool Lector::LeerBloque(const Argumentos& cabeza, Elementos& destino, bool admiteSino) {
    while (HayLinea()) {
        Argumentos linea = Siguiente();
        const std::string palabra = linea.Palabra("el elemento");
        const bool sino = admiteSino && palabra == "sino";
        if (palabra == "fin" || sino) {
            linea.Terminar();
            return sino;
        }
        LeerElemento(palabra, linea, destino);
    }
    cabeza.Fallar("falta el \"fin\" de lo que empieza aquí");
}

FuenteDeFilas Lector::LeerFuente(Argumentos& linea) {
    FuenteDeFilas fuente;
    fuente.Linea = linea.Numero();
    fuente.Tabla = linea.Tabla("la tabla");
    while (linea.Quedan()) {
        if (linea.Si("con"))
            fuente.Enlace = linea.Palabra("la columna de enlace");
        else if (linea.Si("orden"))
            fuente.Orden = linea.Palabra("la columna de orden");
        else if (linea.Si("por"))
            fuente.Por = linea.Palabra("la columna del grupo");
        else
            linea.Terminar();
    }
    return fuente;
}

void Lector::PonerPagina(Argumentos& linea) {
    const std::string tamano = linea.Palabra("el tamaño");
    if (tamano != "A4" && tamano != "Carta") linea.Fallar("no existe la página \"" + tamano + "\"");
    maqueta_.Papel.Tamano = tamano == "A4" ? TamanoPagina::A4 : TamanoPagina::Carta;
    maqueta_.Papel.Apaisada = linea.Si("apaisada");
    if (!maqueta_.Papel.Apaisada) linea.Si("vertical");
}

void Lector::PonerMargenes(Argumentos& linea) {
    for (double* margen : {&maqueta_.Papel.MargenIzquierdo, &maqueta_.Papel.MargenSuperior,
                           &maqueta_.Papel.MargenDerecho, &maqueta_.Papel.MargenInferior})
        *margen = std::min(linea.Medida("el margen"), 60.0);
}

std::array<Plantilla, 3> Lector::LeerBanda(Argumentos& linea) {
    std::array<Plantilla, 3> banda;
    for (Plantilla& texto : banda) {
        if (linea.Quedan()) texto = linea.Texto("el texto");
    }
    return banda;
}

void Lector::LeerTitulo(Argumentos& linea, Elementos& destino) {
    const double nivel = linea.Medida("el nivel");
    if (nivel != 1 && nivel != 2 && nivel != 3) linea.Fallar("el nivel de un encabezado es 1, 2 o 3");
    destino.push_back({ElementoTitulo{static_cast<int>(nivel), linea.Texto("el encabezado")}});
    linea.Terminar();
}

void Lector::LeerParrafo(Argumentos& linea, Elementos& destino) {
    destino.push_back({ElementoParrafo{false, linea.Texto("el párrafo")}});
    linea.Terminar();
}

void Lector::LeerDestacado(Argumentos& linea, Elementos& destino) {
    destino.push_back({ElementoParrafo{true, linea.Texto("el párrafo")}});
    linea.Terminar();
}

void Lector::LeerFicha(Argumentos& linea, Elementos& destino) {
    ElementoFicha ficha;
    const Argumentos cabeza = linea;
    if (linea.Quedan()) ficha.Columnas = static_cast<int>(linea.Medida("las columnas"));
    if (ficha.Columnas < 1 || ficha.Columnas > 6) linea.Fallar("una ficha tiene de 1 a 6 columnas");
    linea.Terminar();
    while (HayLinea()) {
        Argumentos campo = Siguiente();
        const std::string palabra = campo.Palabra("el campo");
        if (palabra == "fin") {
            campo.Terminar();
            destino.push_back({std::move(ficha)});
            return;
        }
        if (palabra != "campo") campo.Fallar("no existe el elemento \"" + palabra + "\" en una ficha");
        ElementoFicha::Campo nuevo{campo.Citada("el rótulo"), campo.Campo("la columna"), {}, {}};
        while (campo.Quedan()) {
            if (campo.Si("formato"))
                nuevo.Formato = campo.Citada("el formato");
            else if (campo.Si("unidad"))
                nuevo.Unidad = campo.Citada("la unidad");
            else
                campo.Terminar();
        }
        ficha.Campos.push_back(std::move(nuevo));
    }
    cabeza.Fallar("falta el \"fin\" de lo que empieza aquí");
}

/// A column of the record, a text between quotes, "-" for nothing; of totals, "suma:Columna" and the like.
CeldaDeMaqueta Lector::LeerCelda(Argumentos& linea, bool esTotal) {
    using enum CeldaDeMaqueta::Clase;
    CeldaDeMaqueta celda;
    if (linea.QuedaCitada()) {
        celda.Que = Texto;
        celda.Texto = linea.Texto("el texto");
        return celda;
    }
    const std::string palabra = linea.Palabra("la celda");
    if (palabra == "-") return celda;
    static constexpr std::array<std::pair<std::string_view, CeldaDeMaqueta::Clase>, 4> funciones{
        {{"suma", Suma}, {"maximo", Maximo}, {"minimo", Minimo}, {"cuenta", Cuenta}}};
    const std::size_t dosPuntos = palabra.find(':');
    celda.Que = Campo;
    celda.Campo = linea.ComoReferencia(palabra.substr(dosPuntos == std::string::npos ? 0 : dosPuntos + 1));
    if (esTotal) {
        const auto* funcion = std::find_if(funciones.begin(), funciones.end(), [&](const auto& candidata) {
            return candidata.first == palabra.substr(0, dosPuntos);
        });
        if (funcion == funciones.end()) linea.Fallar("no existe el total \"" + palabra + "\"");
        celda.Que = funcion->second;
    }
    return celda;
}

/// columna "title" [Content] [ancho mm] [formato "0.00"] [lado izquierda|centro|derecha] [bajo "group"]
ColumnaDeTabla Lector::LeerColumna(Argumentos& linea, std::vector<CeldaDeMaqueta>& celdas) {
    ColumnaDeTabla columna;
    columna.Titulo = linea.Citada("el título de la columna");
    static constexpr std::array<std::pair<std::string_view, Alineacion>, 3> lados{
        {{"izquierda", Alineacion::Izquierda},
         {"centro", Alineacion::Centro},
         {"derecha", Alineacion::Derecha}}};
    while (linea.Quedan()) {
        if (linea.Si("ancho")) {
            columna.Ancho = std::max(linea.Medida("el ancho"), 1.0);
        } else if (linea.Si("formato")) {
            columna.Formato = linea.Citada("el formato");
        } else if (linea.Si("bajo")) {
            columna.Grupo = linea.Citada("el título del grupo");
        } else if (linea.Si("lado")) {
            const std::string nombre = linea.Palabra("el lado");
            const auto* lado = std::find_if(lados.begin(), lados.end(),
                                            [&](const auto& candidato) { return candidato.first == nombre; });
            if (lado == lados.end()) linea.Fallar("no existe el lado \"" + nombre + "\"");
            columna.Lado = lado->second;
        } else {
            celdas.push_back(LeerCelda(linea, false));
        }
    }
    return columna;
}

void Lector::LeerFila(Argumentos& linea, ElementoTabla::Cuando cuando, ElementoTabla& tabla) {
    ElementoTabla::Fila fila{cuando, {}};
    while (linea.Quedan()) fila.Celdas.push_back(LeerCelda(linea, cuando == ElementoTabla::Cuando::Total));
    if (fila.Celdas.size() > tabla.Columnas.size()) linea.Fallar("la fila tiene más celdas que la tabla");
    fila.Celdas.resize(tabla.Columnas.size());
    tabla.Filas.push_back(std::move(fila));
}

void Lector::LeerTabla(Argumentos& linea, Elementos& destino) {
    ElementoTabla tabla;
    const Argumentos cabeza = linea;
    tabla.Fuente = LeerFuente(linea);
    std::vector<CeldaDeMaqueta> deLasColumnas;  // a column that names its content needs no `fila`
    while (HayLinea()) {
        Argumentos dentro = Siguiente();
        const std::string palabra = dentro.Palabra("la columna");
        if (palabra == "columna") {
            tabla.Columnas.push_back(LeerColumna(dentro, deLasColumnas));
        } else if (palabra == "fila") {
            const bool ultima = dentro.Si("ultima");
            LeerFila(dentro, ultima ? ElementoTabla::Cuando::Ultima : ElementoTabla::Cuando::Siempre, tabla);
        } else if (palabra == "total") {
            LeerFila(dentro, ElementoTabla::Cuando::Total, tabla);
        } else if (palabra == "fin") {
            dentro.Terminar();
            if (tabla.Columnas.empty()) cabeza.Fallar("la tabla no tiene columnas");
            if (!deLasColumnas.empty() && deLasColumnas.size() != tabla.Columnas.size())
                cabeza.Fallar("unas columnas dicen su contenido y otras no");
            if (!deLasColumnas.empty())
                tabla.Filas.insert(tabla.Filas.begin(), {ElementoTabla::Cuando::Siempre, deLasColumnas});
            destino.push_back({std::move(tabla)});
            return;
        } else {
            dentro.Fallar("no existe el elemento \"" + palabra + "\" en una tabla");
        }
    }
    cabeza.Fallar("falta el \"fin\" de lo que empieza aquí");
}

void Lector::LeerImagen(Argumentos& linea, Elementos& destino) {
    ElementoImagen imagen;
    if (linea.QuedaCitada())
        imagen.Archivo = linea.Texto("el archivo");
    else
        imagen.Campo = linea.Campo("la columna");
    while (linea.Quedan()) {
        if (linea.Si("ancho"))
            imagen.Ancho = linea.Medida("el ancho");
        else if (linea.Si("alto"))
            imagen.Alto = linea.Medida("el alto");
        else if (linea.Si("pie"))
            imagen.Pie = linea.Texto("el pie");
        else
            linea.Terminar();
    }
    destino.push_back({std::move(imagen)});
}

void Lector::LeerSeccion(Argumentos& linea, Elementos& destino) {
    ElementoSeccion seccion;
    seccion.Nombre = linea.Texto("el nombre de la sección");
    seccion.PaginaNueva = linea.Si("pagina");
    seccion.Junta = linea.Si("junta");
    linea.Terminar();
    LeerBloque(linea, seccion.Dentro, false);
    destino.push_back({std::move(seccion)});
}

void Lector::LeerGrupo(Argumentos& linea, Elementos& destino) {
    ElementoGrupo grupo;
    grupo.Fuente = LeerFuente(linea);
    LeerBloque(linea, grupo.Dentro, false);
    destino.push_back({std::move(grupo)});
}

void Lector::LeerSi(Argumentos& linea, Elementos& destino) {
    ElementoSi si;
    si.Niega = linea.Si("no");
    if (linea.Si("hay"))
        si.Hay = LeerFuente(linea);
    else
        si.Condicion = linea.Campo("la columna");
    linea.Terminar();
    if (LeerBloque(linea, si.Dentro, true)) LeerBloque(linea, si.Sino, false);
    destino.push_back({std::move(si)});
}

void Lector::LeerSubreporte(Argumentos& linea, Elementos& destino) {
    const std::filesystem::path archivo =
        maqueta_.Archivo.parent_path() / CaminoDeTexto(linea.Citada("el archivo"));
    linea.Terminar();
    if (std::find(alrededor_.begin(), alrededor_.end(), archivo) != alrededor_.end())
        linea.Fallar("el reporte \"" + TextoDeCamino(archivo.filename()) + "\" se contiene a sí mismo");
    destino.push_back({ElementoSubreporte{maqueta_.Subreportes.size()}});
    maqueta_.Subreportes.push_back(Lector(archivo, alrededor_).Leer());
}

void Lector::LeerSalto(Argumentos& linea, Elementos& destino) {
    linea.Terminar();
    destino.push_back({ElementoSalto{}});
}

}  // namespace

ErrorEjecucion ErrorDeMaqueta(const std::filesystem::path& archivo, int linea, const std::string& falta) {
    return {CodigoError::FormatoNoValido,
            TextoDeCamino(archivo.filename()) + ", línea " + std::to_string(linea) + ": " + falta};
}

MaquetaReporte LeerMaqueta(const std::filesystem::path& archivo) {
    return Lector(archivo, {}).Leer();
}

}  // namespace trabex::documento
