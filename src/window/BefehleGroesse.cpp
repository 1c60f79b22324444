#include "Befehle.h"

#include <limits>

// The menu Groesse/Size: recomputing, quarters, previews, clearing, halves, sizes.

using namespace befehle;

namespace {

/// Twice the pixel, kept inside the integer range: a loaded file may bring any number.
qint32 doppelt(qint32 pixel) {
    using Grenzen = std::numeric_limits<qint32>;
    return static_cast<qint32>(
        std::clamp<qint64>(qint64{pixel} * 2, Grenzen::min(), Grenzen::max()));
}

void viertel(UI& f, Bildmodus modus, Anforderung anforderung) {
    f.Menge->g_halbesBild = modus;
    f.Menge->g_RechnenJa = anforderung;
    f.Menge->DatenTeilbildLaden();
    f.WerteAktualisierenSlot();
    f.zeichnenUndTitel();
}

void vorschau(UI& f, Bildmodus modus) {
    f.Menge->g_halbesBild = modus;
    f.Menge->g_RechnenJa = VorschauRechnen;
    f.zeichnenUndTitel();
}

void vorschauAus(UI& f, qint32 ja) {
    f.Menge->g_VorschauAusJa = ja;
    f.SetNewTitle();
}

void bildLoeschen(UI& f, qint32 art) {
    f.Menge->g_BildLoeschen = art;
    f.Menge->g_RechnenJa = Rechnen;
    f.Menge->BildSicherungLoeschen();
    f.zeichnenUndTitel();
}

void halbbild(UI& f, qint32 haelfte, Anforderung anforderung) {
    f.Menge->g_oberesHalbbild = haelfte;
    f.Menge->g_RechnenJa = anforderung;
    f.zeichnenUndTitel();
}

void vorschauPixel(UI& f, int k, const QString& text) {
    f.Menge->VorschauXYPixelNeu(k);
    f.infoLabel22->setText(UI::tr("Preview"));
    f.infoLabel33->setText(text);
}

/// Starts anew in a window of that size, with a new model.
void fenstergroesse(UI& f, int breite, int hoehe) {
    f.resize(breite, hoehe);
    f.AufbauLayout();
    f.ResetSlot();
}

} // namespace

void UI::NeuRechnenJaSlot() {
    Menge->g_RechnenJa = RechnenMitOrbit;
    Menge->g_SummeGross = 0.0;
    Menge->g_SummeViertel = 0.0;
    Menge->g_BildLoeschen = 0;
    Menge->g_UnDo = 0;
    WerteAktualisierenSlot();
    NeueBerechnungSlot();
}

// Only quarter 1 takes the orbit's start pixel along.
void UI::GanzesBildSlot() {
    if (Menge->g_halbesBild == ViertelLinksOben) {
        Menge->OPx = doppelt(Menge->OPx);
        Menge->OPy = doppelt(Menge->OPy);
    }
    Menge->g_halbesBild = Vollbild;
    Menge->g_RechnenJa = Rechnen;
    zeichnenUndTitel();
}

void UI::PixelXYDurch2Pos1Slot() {
    if (Menge->g_halbesBild == Vollbild) {
        Menge->OPx /= 2;
        Menge->OPy /= 2;
    }
    viertel(*this, ViertelLinksOben, RechnenMitOrbit);
}
void UI::PixelXYDurch2Pos2Slot() { viertel(*this, ViertelRechtsOben, Rechnen); }
void UI::PixelXYDurch2Pos3Slot() { viertel(*this, ViertelLinksUnten, Rechnen); }
void UI::PixelXYDurch2Pos4Slot() { viertel(*this, ViertelRechtsUnten, Rechnen); }

void UI::VorschauPos1Slot() { vorschau(*this, ViertelvorschauLinksOben); }
void UI::VorschauPos2Slot() { vorschau(*this, ViertelvorschauRechtsOben); }
void UI::VorschauPos3Slot() { vorschau(*this, ViertelvorschauLinksUnten); }
void UI::VorschauPos4Slot() { vorschau(*this, ViertelvorschauRechtsUnten); }
void UI::VorschauVollbildSlot() { vorschau(*this, VollvorschauRechtsOben); }
void UI::VorschauVollbild1Slot() { vorschau(*this, VollvorschauLinksOben); }
void UI::VorschauVollbild3Slot() { vorschau(*this, VollvorschauLinksUnten); }
void UI::VorschauVollbild4Slot() { vorschau(*this, VollvorschauRechtsUnten); }

void UI::VorschauAusSlot() { vorschauAus(*this, 1); }
void UI::VorschauAnSlot() { vorschauAus(*this, 0); }

void UI::BildSchwarzSlot() { bildLoeschen(*this, 1); }
void UI::BildWeissSlot() { bildLoeschen(*this, 2); }

void UI::OberesHalbbildEinSlot() { halbbild(*this, 1, RechnenMitOrbit); }
void UI::UnteresHalbbildEinSlot() { halbbild(*this, 2, RechnenMitOrbit); }
void UI::OuU_HalbbildAusSlot() { halbbild(*this, 0, VorschauRechnen); }

void UI::VorschauXYPixelNeu0Slot() { vorschauPixel(*this, 0, tr("<b>100 Pixel</b>")); }
void UI::VorschauXYPixelNeu1Slot() { vorschauPixel(*this, 1, tr("<b>New Size</b>")); }
void UI::VorschauXYPixelNeu2Slot() { vorschauPixel(*this, 2, tr("<b>New Size</b>")); }
void UI::VorschauXYPixelNeu3Slot() { vorschauPixel(*this, 3, tr("<b>160x90</b>")); }
void UI::VorschauXYPixelNeu4Slot() { vorschauPixel(*this, 4, tr("<b>320x180</b>")); }
void UI::VorschauXYPixelNeu5Slot() { vorschauPixel(*this, 5, tr("<b>640x360</b>")); }

void UI::VorschauUebernehmenSlot() {
    Menge->g_PixConstX = Menge->g_PixVorschauX;
    Menge->g_PixConstY = Menge->g_PixVorschauY;
    SetNewTitle();
}

void UI::Pixel985x675Slot() { fenstergroesse(*this, 985, 675); }
void UI::Pixel520x600Slot() { fenstergroesse(*this, 520, 600); }
void UI::Pixel1520x1210Slot() { fenstergroesse(*this, 1520, 1210); }
