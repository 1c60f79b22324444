#include "Befehle.h"

// The menu NrAbbruch/Limit: bailout variant, precision, cycles.

using namespace befehle;

namespace {

void abbruch(UI& f, int n) {
    f.Menge->glg_AbbruchNew(n);
    f.UI_glgAbbruch->setValue(f.Menge->get_glg_Abbruch());
    f.zeichnenUndTitel();
}

/// The end of all precision slots: a preview, like after every change of the picture.
void genauigkeitGeaendert(UI& f) {
    f.Menge->g_RechnenJa = VorschauRechnen;
    f.zeichnenUndTitel();
}

void genauigkeit(UI& f, double wert) {
    f.Menge->g_Genauigkeit = wert;
    genauigkeitGeaendert(f);
}

} // namespace

void UI::glg_Abbruch0Slot() { abbruch(*this, 0); }
void UI::glg_Abbruch1Slot() { abbruch(*this, 1); }
void UI::glg_Abbruch2Slot() { abbruch(*this, 2); }
void UI::glg_Abbruch3Slot() { abbruch(*this, 3); }
void UI::glg_Abbruch4Slot() { abbruch(*this, 4); }
void UI::glg_Abbruch5Slot() { abbruch(*this, 5); }
void UI::glg_Abbruch6Slot() { abbruch(*this, 6); }
void UI::glg_Abbruch7Slot() { abbruch(*this, 7); }
void UI::glg_Abbruch8Slot() { abbruch(*this, 8); }
void UI::glg_Abbruch9Slot() { abbruch(*this, 9); }

void UI::GenauigkeitStandardSlot() { genauigkeit(*this, 0.0001); }
void UI::GenauigkeitMal10Slot() { genauigkeit(*this, Menge->g_Genauigkeit * 10.0); }
void UI::GenauigkeitDurch100Slot() { genauigkeit(*this, Menge->g_Genauigkeit / 100.0); }
void UI::GenauigkeitGleichZoomSlot() {
    Menge->GenauigkeitGleichZoom();
    genauigkeitGeaendert(*this);
}

void UI::ZykluszahlGleichZoomSlot() {
    Menge->ZykluszahlGleichZoom();
    SetNewTitle();
}
