#include "UI_Hauptfenster.h"

void UI::WerteAktualisierenSlot() {}
void UI::NeueBerechnungSlot() {}
void UI::VorschauSlot() {}
void UI::WerteColorAktualisierenSlot() {}
void UI::NeueColorBerechnungSlot() {}
void UI::SetNewTitle() {}

void UI::zeichnenUndTitel() {
    update();
    SetNewTitle();
    TitelNachBild = true;
}

bool UI::eventFilter(QObject* beobachtet, QEvent* ereignis) {
    // The filter runs before the paint handler; a queued call runs after it.
    if (TitelNachBild && beobachtet == Menge && ereignis->type() == QEvent::Paint) {
        TitelNachBild = false;
        QMetaObject::invokeMethod(this, &UI::SetNewTitle, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(beobachtet, ereignis);
}
