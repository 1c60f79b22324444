#include "Befehle.h"

// The menu Datei/File without the file commands: undo, redo, reset.

namespace {

void zeigeUndRechne(UI& f) {
    f.WerteAktualisierenSlot();
    f.NeueBerechnungSlot();
}

/// Sets the undo state, loads an earlier picture's parameters and computes it.
void verlauf(UI& f, qint32 zustand, void (Mandelbrot::*laden)()) {
    f.Menge->g_UnDo = zustand;
    (f.Menge->*laden)();
    zeigeUndRechne(f);
}

} // namespace

void UI::UnDo1DatenTeilbildLadenSlot() { verlauf(*this, 1, &Mandelbrot::UnDo1DatenTeilbildLaden); }

void UI::UnDo2DatenTeilbildLadenSlot() {
    if (Menge->g_UnDo != 1) {
        QMessageBox::about(this, tr("Achtung! "), tr("Bitte erst genau 1 Mal Undo 1 einschalten."));
        return;
    }
    verlauf(*this, 2, &Mandelbrot::UnDo2DatenTeilbildLaden);
}

void UI::WiederholenDatenTeilbildLadenSlot() {
    verlauf(*this, 3, &Mandelbrot::WiederholenDatenTeilbildLaden);
}

void UI::ResetSlot() {
    Menge->Initialisierung();
    zeigeUndRechne(*this);
}
