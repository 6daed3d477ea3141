#pragma once

#include <QIcon>

class QString;

namespace trabex::programa::qt {

/// A line icon by its name, drawn in the text colour of the current palette, so that it fits light and dark
/// themes.
QIcon Icono(const QString& nombre);

/// A picture in its own colours: the program's, or one of the message box.
QPixmap Figura(const QString& nombre, int lado);

}  // namespace trabex::programa::qt
