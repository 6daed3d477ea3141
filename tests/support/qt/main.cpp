#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace {

/// Looks at every window that any test shows: Tab walks its controls as the eye does, line by line, or one
/// column of them after another.
class OrdenDeTab : public QObject {
  public:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        auto* ventana = qobject_cast<QWidget*>(objeto);
        if (evento->type() == QEvent::Show && ventana != nullptr && ventana->isWindow() &&
            !ventana->objectName().isEmpty())
            QTimer::singleShot(0, ventana, [this, ventana] { Revisar(*ventana); });
        return false;
    }

  private:
    static QRect Lugar(const QWidget& control) {
        return {control.mapTo(control.window(), QPoint(0, 0)), control.size()};
    }
    /// The toolkit puts the button that shows the rest of a tool bar where it likes.
    static bool SeLlega(const QWidget& control) {
        return control.objectName() != "qt_toolbar_ext_button" && control.isVisible() &&
               control.isEnabled() && (control.focusPolicy() & Qt::TabFocus) != 0 &&
               control.focusProxy() == nullptr;
    }
    /// `b` is read before `a`: above it, or on its line to the left.
    static bool Antes(const QRect& b, const QRect& a) {
        if (b.bottom() <= a.top()) return b.left() < a.right();
        return b.top() < a.bottom() && b.right() <= a.left();
    }
    void Revisar(const QWidget& ventana) {
        if (!ventana.isVisible() || !vistas_.insert(ventana.objectName()).second) return;
        std::vector<QWidget*> camino;
        for (QWidget* c = ventana.nextInFocusChain(); c != &ventana; c = c->nextInFocusChain())
            if (SeLlega(*c)) camino.push_back(c);
        // The walk goes round: it begins at the highest of those before which none is read.
        const auto alto = [&](const QWidget* c) {
            const bool otra = std::any_of(camino.begin(), camino.end(),
                                          [&](const QWidget* d) { return Antes(Lugar(*d), Lugar(*c)); });
            return std::pair(otra, Lugar(*c).top());
        };
        const auto primera = std::min_element(camino.begin(), camino.end(),
                                              [&](auto* a, auto* b) { return alto(a) < alto(b); });
        std::rotate(camino.begin(), primera, camino.end());
        for (std::size_t i = 1; i < camino.size(); ++i)
            EXPECT_FALSE(Antes(Lugar(*camino[i]), Lugar(*camino[i - 1])))
                << ventana.objectName().toStdString() << ": " << Nombre(*camino[i - 1]) << " -> "
                << Nombre(*camino[i]);
    }
    static std::string Nombre(const QWidget& control) {
        return control.metaObject()->className() + (" " + control.objectName().toStdString());
    }

    std::set<QString> vistas_;
};

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication aplicacion(argc, argv);
    OrdenDeTab orden;
    aplicacion.installEventFilter(&orden);
    return RUN_ALL_TESTS();
}
