#include "Befehle.h"

// The menu Gleichung/Equation: the choice of the equation and the power K.

using namespace befehle;

namespace befehle {

void echoGleichung(UI& fenster) {
    fenster.UI_wahlGleichung->setValue(fenster.Menge->get_wahl_Gleichung());
}

void gleichungUebernehmen(UI& fenster) {
    echoGleichung(fenster);
    fenster.Menge->set_wahl_Gleichung(fenster.UI_wahlGleichung->value());
}

} // namespace befehle

namespace {

void gleichung(UI& f, int nummer) {
    f.Menge->wahl_GleichungNew(nummer);
    gleichungUebernehmen(f);
    f.zeichnenUndTitel();
}

/// As gleichung, without taking the number back from the panel: a twin stays folded into it until
/// the picture is computed. Two equations are meant to differ so.
void gleichungNurZeigen(UI& f, int nummer) {
    f.Menge->wahl_GleichungNew(nummer);
    echoGleichung(f);
    f.zeichnenUndTitel();
}

constexpr const char* HinweisCxCy =
    QT_TRANSLATE_NOOP("UI", "Bitte vorher ein C wählen mit Doppelklick im großen Bild, "
                            "oder bei Cx,Cy Zahlen eintragen.");
constexpr const char* HinweisCJulia =
    QT_TRANSLATE_NOOP("UI", "Bitte vorher ein C wählen mit Doppelklick im großen Bild, "
                            "oder bei C-Julia Zahlen eintragen.");

/// A Julia equation that wants its constant first: refused while both boxes are exactly 0.
void juliaGleichung(UI& f, int nummer, const char* hinweis) {
    if (f.UI_CJx->value() == 0.0 && f.UI_CJy->value() == 0.0) {
        const QString titel = UI::tr("In Gleichung %1 wird eine Juliamenge berechnet").arg(nummer);
        QMessageBox::about(&f, titel, UI::tr(hinweis));
        return;
    }
    gleichung(f, nummer);
}

void potenz(UI& f, qint32 k) {
    f.Menge->g_kPotenz = k;
    f.SetNewTitle();
}

} // namespace

void UI::Gleichung1Slot() { gleichung(*this, 1); }
void UI::Gleichung2Slot() { juliaGleichung(*this, 2, HinweisCxCy); }
void UI::Gleichung3Slot() { gleichung(*this, 3); }
void UI::Gleichung4Slot() { juliaGleichung(*this, 4, HinweisCxCy); }
void UI::Gleichung5Slot() { gleichung(*this, 5); }
void UI::Gleichung6Slot() { juliaGleichung(*this, 6, HinweisCJulia); }
void UI::Gleichung7Slot() { gleichung(*this, 7); }
void UI::Gleichung8Slot() { gleichung(*this, 8); }
void UI::Gleichung9Slot() { gleichung(*this, 9); }
void UI::Gleichung10Slot() { gleichung(*this, 10); }

void UI::Gleichung101Slot() { gleichung(*this, 101); }
void UI::Gleichung201Slot() { gleichung(*this, 201); }
void UI::Gleichung301Slot() { gleichung(*this, 301); }
void UI::Gleichung401Slot() { gleichung(*this, 401); }
void UI::Gleichung501Slot() { gleichung(*this, 501); }

void UI::Gleichung102Slot() { juliaGleichung(*this, 102, HinweisCxCy); }
void UI::Gleichung202Slot() { gleichung(*this, 202); }
void UI::Gleichung302Slot() { gleichung(*this, 302); }
void UI::Gleichung402Slot() { gleichung(*this, 402); }
void UI::Gleichung502Slot() { gleichung(*this, 502); }

void UI::Gleichung103Slot() { gleichung(*this, 103); }
void UI::Gleichung203Slot() { gleichung(*this, 203); }
void UI::Gleichung303Slot() { gleichung(*this, 303); }
void UI::Gleichung403Slot() { gleichung(*this, 403); }
void UI::Gleichung503Slot() { gleichung(*this, 503); }
void UI::Gleichung603Slot() { gleichung(*this, 603); }
void UI::Gleichung703Slot() { gleichung(*this, 703); }

void UI::Gleichung104Slot() { juliaGleichung(*this, 104, HinweisCxCy); }
void UI::Gleichung204Slot() { gleichung(*this, 204); }
void UI::Gleichung304Slot() { gleichungNurZeigen(*this, 304); }
void UI::Gleichung404Slot() { gleichung(*this, 404); }
void UI::Gleichung504Slot() { gleichungNurZeigen(*this, 504); }
void UI::Gleichung604Slot() { gleichung(*this, 604); }
void UI::Gleichung704Slot() { gleichung(*this, 704); }

void UI::Gleichung105Slot() { gleichung(*this, 105); }
void UI::Gleichung205Slot() { gleichung(*this, 205); }
void UI::Gleichung305Slot() { gleichung(*this, 305); }
void UI::Gleichung405Slot() { gleichung(*this, 405); }
void UI::Gleichung505Slot() { gleichung(*this, 505); }
void UI::Gleichung605Slot() { gleichung(*this, 605); }
void UI::Gleichung705Slot() { gleichung(*this, 705); }

void UI::Gleichung106Slot() { juliaGleichung(*this, 106, HinweisCxCy); }
void UI::Gleichung206Slot() { gleichung(*this, 206); }
void UI::Gleichung306Slot() { gleichung(*this, 306); }
void UI::Gleichung406Slot() { gleichung(*this, 406); }
void UI::Gleichung506Slot() { gleichung(*this, 506); }
void UI::Gleichung606Slot() { gleichung(*this, 606); }
void UI::Gleichung706Slot() { gleichung(*this, 706); }

void UI::Gleichung111Slot() { gleichung(*this, 111); }
void UI::Gleichung211Slot() { gleichung(*this, 211); }
void UI::Gleichung311Slot() { gleichung(*this, 311); }
void UI::Gleichung411Slot() { gleichung(*this, 411); }
void UI::Gleichung511Slot() { gleichung(*this, 511); }
void UI::Gleichung611Slot() { gleichung(*this, 611); }
void UI::Gleichung711Slot() { gleichung(*this, 711); }
void UI::Gleichung811Slot() { gleichung(*this, 811); }
void UI::Gleichung911Slot() { gleichung(*this, 911); }

void UI::Gleichung112Slot() { gleichung(*this, 112); }
void UI::Gleichung212Slot() { gleichung(*this, 212); }
void UI::Gleichung312Slot() { gleichung(*this, 312); }
void UI::Gleichung412Slot() { gleichung(*this, 412); }
void UI::Gleichung512Slot() { gleichung(*this, 512); }
void UI::Gleichung612Slot() { gleichung(*this, 612); }
void UI::Gleichung712Slot() { gleichung(*this, 712); }
void UI::Gleichung812Slot() { gleichung(*this, 812); }
void UI::Gleichung912Slot() { gleichung(*this, 912); }

void UI::Gleichung107Slot() { gleichung(*this, 107); }
void UI::Gleichung207Slot() { gleichung(*this, 207); }
void UI::Gleichung307Slot() { gleichung(*this, 307); }
void UI::Gleichung407Slot() { gleichung(*this, 407); }
void UI::Gleichung507Slot() { gleichung(*this, 507); }
void UI::Gleichung607Slot() { gleichung(*this, 607); }
void UI::Gleichung707Slot() { gleichung(*this, 707); }

void UI::Gleichung108Slot() { gleichung(*this, 108); }
void UI::Gleichung208Slot() { gleichung(*this, 208); }
void UI::Gleichung308Slot() { gleichung(*this, 308); }
void UI::Gleichung408Slot() { gleichung(*this, 408); }
void UI::Gleichung508Slot() { gleichung(*this, 508); }
void UI::Gleichung608Slot() { gleichung(*this, 608); }
void UI::Gleichung708Slot() { gleichung(*this, 708); }

void UI::Gleichung109Slot() { gleichung(*this, 109); }
void UI::Gleichung209Slot() { gleichung(*this, 209); }
void UI::Gleichung309Slot() { gleichung(*this, 309); }
void UI::Gleichung409Slot() { gleichung(*this, 409); }
void UI::Gleichung509Slot() { gleichung(*this, 509); }
void UI::Gleichung609Slot() { gleichung(*this, 609); }
void UI::Gleichung709Slot() { gleichung(*this, 709); }
void UI::Gleichung809Slot() { gleichung(*this, 809); }
void UI::Gleichung909Slot() { gleichung(*this, 909); }

void UI::Gleichung110Slot() { gleichung(*this, 110); }
void UI::Gleichung210Slot() { gleichung(*this, 210); }
void UI::Gleichung310Slot() { gleichung(*this, 310); }
void UI::Gleichung410Slot() { gleichung(*this, 410); }
void UI::Gleichung510Slot() { gleichung(*this, 510); }
void UI::Gleichung610Slot() { gleichung(*this, 610); }
void UI::Gleichung710Slot() { gleichung(*this, 710); }
void UI::Gleichung810Slot() { gleichung(*this, 810); }
void UI::Gleichung910Slot() { gleichung(*this, 910); }

void UI::kPotenz6Slot() { potenz(*this, 6); }
void UI::kPotenz7Slot() { potenz(*this, 7); }
void UI::kPotenz0Slot() { potenz(*this, 0); }
void UI::kPotenz10Slot() { potenz(*this, 10); }
void UI::kPotenzGleichZoomSlot() {
    Menge->kPotenzGleichZoom();
    SetNewTitle();
}

void UI::tu_nixSlot() {} // entries that are headings or hints
