#include "Netzadresse.h"
#include "UI_Hauptfenster.h"

UI::UI() : QMainWindow(nullptr) {
    // The trailing blank is meant; SetNewTitle replaces the title later.
    setWindowTitle(tr("Wirbelwerk (%1) ").arg(Netzadresse));
    // No maximise button: the size of the picture is chosen from the menu.
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    resize(985, 675);
    AufbauLayout();
    AufbauMenu();
}
