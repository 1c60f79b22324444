#include "Befehle.h"

// The menu Zwillinge/Twins and the coupling buttons of the panel.

using namespace befehle;

namespace befehle {

void echoKopplung(UI& fenster) {
    fenster.UI_Kopplx->setValue(fenster.Menge->get_Koppl_x());
    fenster.UI_Kopply->setValue(fenster.Menge->get_Koppl_y());
}

} // namespace befehle

namespace {

/// A number still folded with the twin variant that is about to be replaced would bring it back.
void entfalteGleichung(UI& f) { f.Menge->set_wahl_Gleichung(f.Menge->wahl_Gleichung); }

void zwillingAn(UI& f, int n) {
    entfalteGleichung(f);
    f.Menge->g_ZwillingJa = n;
    f.Menge->ZwillingAn();
    gleichungUebernehmen(f);
    echoKopplung(f);
    f.zeichnenUndTitel();
    f.infoLabel11->setText(UI::tr("<b>Zwilling %1</b>").arg(n));
}

} // namespace

void UI::ZwillingXMalZoomSlot() { schritt(*this, echoKopplung, &Mandelbrot::Koppl_xMalZoom); }
void UI::ZwillingYMalZoomSlot() { schritt(*this, echoKopplung, &Mandelbrot::Koppl_yMalZoom); }
void UI::ZwillingXYgleichZoomSlot() {
    schritt(*this, echoKopplung, &Mandelbrot::Koppl_xyGleichZoom);
}
void UI::ZwillingYgleichXSlot() { schritt(*this, echoKopplung, &Mandelbrot::Koppl_yGleichx); }
void UI::ZwillingXYMal2Slot() { schritt(*this, echoKopplung, &Mandelbrot::Koppl_xyMalD, 2.0); }
void UI::ZwillingXYDurch2Slot() { schritt(*this, echoKopplung, &Mandelbrot::Koppl_xyMalD, 0.5); }

void UI::Zwilling1AnSlot() { zwillingAn(*this, 1); }
void UI::Zwilling2AnSlot() { zwillingAn(*this, 2); }
void UI::Zwilling3AnSlot() { zwillingAn(*this, 3); }
void UI::Zwilling4AnSlot() { zwillingAn(*this, 4); }
void UI::Zwilling5AnSlot() { zwillingAn(*this, 5); }
void UI::Zwilling6AnSlot() { zwillingAn(*this, 6); }
void UI::Zwilling7AnSlot() { zwillingAn(*this, 7); }
void UI::Zwilling8AnSlot() { zwillingAn(*this, 8); }
void UI::Zwilling9AnSlot() { zwillingAn(*this, 9); }
void UI::Zwilling10AnSlot() { zwillingAn(*this, 10); }
void UI::Zwilling11AnSlot() { zwillingAn(*this, 11); }

void UI::ZwillingAusSlot() {
    entfalteGleichung(*this);
    Menge->g_ZwillingJa = 0;
    echoKopplung(*this);
    echoGleichung(*this);
    zeichnenUndTitel();
    infoLabel11->setText(tr("<b>Zwilling Aus</b>"));
}
