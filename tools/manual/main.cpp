// Builds the engineer's manual from its pages: trabex_manual PAGES PICTURES PDF HELP-FOLDER
//
// PAGES holds *.md, in the order of their names; "![text](name)" is PICTURES/name.png. The PDF is the whole
// manual with a cover, an index and page numbers; the help folder has a page each, and an index.

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextImageFormat>
#include <algorithm>
#include <iostream>

namespace {

struct PaginaDelManual {
    QString Nombre;  ///< of its file, without extension
    QString Titulo;
    QString Texto;
};

QString Leer(const QString& archivo) {
    QFile entrada(archivo);
    return entrada.open(QIODevice::ReadOnly) ? QString::fromUtf8(entrada.readAll()) : QString();
}

bool Escribir(const QString& archivo, const QString& texto) {
    QFile salida(archivo);
    return salida.open(QIODevice::WriteOnly) && salida.write(texto.toUtf8()) >= 0;
}

QVector<PaginaDelManual> LeerPaginas(const QString& carpeta) {
    QVector<PaginaDelManual> paginas;
    const QDir dir(carpeta);
    for (const QString& archivo : dir.entryList({"*.md"}, QDir::Files, QDir::Name)) {
        const QString texto = Leer(dir.filePath(archivo));
        paginas.push_back({archivo.chopped(3), texto.section('\n', 0, 0).remove(0, 2), texto});
    }
    return paginas;
}

/// Pictures no wider than the text.
void AjustarImagenes(QTextDocument& documento, const QString& imagenes, double ancho) {
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        for (auto trozo = bloque.begin(); !trozo.atEnd(); ++trozo) {
            if (!trozo.fragment().charFormat().isImageFormat()) continue;
            QTextImageFormat formato = trozo.fragment().charFormat().toImageFormat();
            const QString archivo = imagenes + "/" + formato.name() + ".png";
            const QImage imagen(archivo);
            if (imagen.isNull()) std::cerr << "no picture " << archivo.toStdString() << '\n';
            documento.addResource(QTextDocument::ImageResource, QUrl(formato.name()), imagen);
            formato.setWidth(std::min(ancho, imagen.width() * 0.6));
            QTextCursor cursor(&documento);
            cursor.setPosition(trozo.fragment().position());
            cursor.setPosition(trozo.fragment().position() + trozo.fragment().length(),
                               QTextCursor::KeepAnchor);
            cursor.setCharFormat(formato);
            break;  // a paragraph holds one
        }
    }
}

constexpr double Puntos = 72;
constexpr QSizeF Carta(8.5 * Puntos, 11 * Puntos);
constexpr double Margen = 0.9 * Puntos;

constexpr const char* Estilo =
    "body { font-family: 'Liberation Sans', Arial, sans-serif; max-width: 46em; margin: 2em auto; "
    "line-height: 1.45; }"
    "h1, h2 { color: #1f5582; } td, th { border: 1px solid #bbb; padding: .3em .6em; } table { "
    "border-collapse: collapse; }"
    "img { max-width: 100%; border: 1px solid #ccc; } nav a { margin-right: 1em; }";

bool EscribirPdf(const QVector<PaginaDelManual>& paginas, const QString& imagenes, const QString& archivo) {
    QString todo = "# Trabex 2024\n\nManual del usuario\n\n## Contenido\n\n";
    for (const PaginaDelManual& pagina : paginas) todo += "- " + pagina.Titulo + "\n";
    for (const PaginaDelManual& pagina : paginas) todo += "\n" + pagina.Texto;
    QTextDocument documento;
    documento.setDefaultFont(QFont("Liberation Sans", 10));
    documento.setMarkdown(todo);
    const QSizeF util = Carta - QSizeF(2 * Margen, 2 * Margen);
    AjustarImagenes(documento, imagenes, util.width());
    bool primero = true;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        if (bloque.blockFormat().headingLevel() != 1) continue;
        if (!primero) {
            QTextCursor cursor(bloque);
            QTextBlockFormat formato;
            formato.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
            cursor.mergeBlockFormat(formato);
        }
        primero = false;
    }
    documento.setPageSize(util);

    QPdfWriter pdf(archivo);
    pdf.setTitle("Trabex 2024: manual del usuario");
    pdf.setPageSize(QPageSize(QPageSize::Letter));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    pdf.setResolution(static_cast<int>(Puntos));
    QPainter pintor;
    if (!pintor.begin(&pdf)) return false;
    for (int pagina = 0; pagina < documento.pageCount(); ++pagina) {
        if (pagina > 0) pdf.newPage();
        pintor.save();
        pintor.translate(Margen, Margen - pagina * util.height());
        QAbstractTextDocumentLayout::PaintContext contexto;
        contexto.clip = QRectF(0, pagina * util.height(), util.width(), util.height());
        contexto.palette.setColor(QPalette::Text, Qt::black);
        pintor.setClipRect(contexto.clip);
        documento.documentLayout()->draw(&pintor, contexto);
        pintor.restore();
        pintor.setFont(QFont("Liberation Sans", 8));
        pintor.drawText(QRectF(Margen, Carta.height() - Margen + 12, util.width(), 14), Qt::AlignRight,
                        QString::number(pagina + 1));
    }
    return true;
}

bool EscribirAyuda(const QVector<PaginaDelManual>& paginas, const QString& imagenes, const QString& carpeta) {
    QDir().mkpath(carpeta);
    QString menu;
    for (const PaginaDelManual& pagina : paginas)
        menu += "<a href=\"" + pagina.Nombre + ".html\">" + pagina.Titulo.toHtmlEscaped() + "</a> ";
    const auto escribir = [&](const QString& nombre, const QString& titulo, const QString& cuerpo) {
        return Escribir(carpeta + "/" + nombre + ".html",
                        "<!DOCTYPE html>\n<html lang=\"es\"><head><meta charset=\"utf-8\"><title>" +
                            titulo.toHtmlEscaped() + "</title><style>" + Estilo +
                            "</style></head><body><nav>" + menu + "</nav>\n" + cuerpo + "</body></html>\n");
    };
    bool hecho = escribir("index", "Trabex 2024", "<h1>Trabex 2024</h1>");
    static const QRegularExpression imagen("<img src=\"([^\"]+)\"[^>]*>");
    for (const PaginaDelManual& pagina : paginas) {
        QTextDocument documento;
        documento.setMarkdown(pagina.Texto);
        QString html = documento.toHtml();
        html = html.section("<body", 1).section('>', 1).section("</body>", 0, 0);
        html.replace(QRegularExpression(" style=\"[^\"]*\""), "");
        for (auto hallada = imagen.globalMatch(html); hallada.hasNext();) {
            const QString nombre = hallada.next().captured(1);
            QFile::remove(carpeta + "/" + nombre + ".png");
            QFile::copy(imagenes + "/" + nombre + ".png", carpeta + "/" + nombre + ".png");
        }
        html.replace(imagen, "<img src=\"\\1.png\" alt=\"\">");
        hecho = escribir(pagina.Nombre, pagina.Titulo, html) && hecho;
    }
    return hecho;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programa(argc, argv);
    const QVector<PaginaDelManual> paginas = LeerPaginas(argv[1]);
    const bool hecho = !paginas.isEmpty() && EscribirPdf(paginas, argv[2], argv[3]) &&
                       EscribirAyuda(paginas, argv[2], argv[4]);
    return hecho ? 0 : 1;
}
