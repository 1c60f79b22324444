#include "UI_Hauptfenster.h"
#include "window/Sprache.h"

#include <QIcon>

#include <memory>

namespace {
/// The icon in every size that the resources hold; the desktop entry's name ties the window to its
/// menu entry where the display system asks for it.
void SymbolSetzen() {
    QIcon symbol;
    for (const int kante : {16, 22, 24, 32, 48, 64, 128, 256}) {
        symbol.addFile(QStringLiteral(":/icons/wirbelwerk-%1.png").arg(kante));
    }
    QApplication::setWindowIcon(symbol);
    QGuiApplication::setDesktopFileName(QStringLiteral("wirbelwerk"));
}
} // namespace

/// Creates the application and one window and runs until the window is closed. Returns 0.
int qMain(int argc, char** argv) {
    const auto app = std::make_unique<QApplication>(argc, argv);
    qtTexteUebersetzen(*app);
    SymbolSetzen();
    const auto fenster = std::make_unique<UI>();
    fenster->show();
    QApplication::exec();
    QCoreApplication::exit(0);
    return 0;
}

int main(int argc, char** argv) { return qMain(argc, argv); }
