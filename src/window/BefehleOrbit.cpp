#include "Befehle.h"

#include <limits>

// The orbit commands of the menu Linien/Lines.

using namespace befehle;

namespace {

void zeigeDuenn(UI& f) {
    switch (f.Menge->g_OrbitDuennJa) {
    case LetzterDick:
    case AlleDick:
        f.infoLabel33->setText(UI::tr("<b>Orbit dick</b>"));
        break;
    case LetzterDuenn:
    case AlleDuenn:
        f.infoLabel33->setText(UI::tr("<b>Orbit dünn</b>"));
        break;
    default: // a request to delete is no way of drawing
        break;
    }
}

/// Switches the orbit on in a colour; refused in a preview unless the orbit starts at the centre.
/// The varied colour is refused in every preview, which is meant so.
void orbitFarbe(UI& f, Orbitfarbe farbe) {
    Mandelbrot& m = *f.Menge;
    const bool vorschau = m.g_RechnenJa == VorschauRechnen;
    if (vorschau && (m.g_OrbitMP == 0 || farbe == OrbitBunt)) {
        QMessageBox::about(&f, UI::tr("Orbit-Modus nicht im Vorschaubild möglich!"),
                           UI::tr("Vorher Viertelbild oder Vollbild wählen für Orbit-Modus."));
        return;
    }
    if (m.g_OrbitJa == OrbitAus) {
        m.g_OrbitDuennJa = LetzterDuenn;
    }
    if (!vorschau || m.g_OrbitMP == 1) {
        m.g_OrbitJa = farbe;
    }
    f.zeichnenUndTitel();
    zeigeDuenn(f);
}

/// Exchanges the way of drawing: the first pair that holds the present value gives the new one.
void darstellung(Mandelbrot& m, std::initializer_list<std::pair<qint32, qint32>> tausch) {
    for (const auto& [von, nach] : tausch) {
        if (m.g_OrbitDuennJa == von) {
            m.g_OrbitDuennJa = nach;
            return;
        }
    }
}

void orbitMax(UI& f, qint32 anzahl) {
    if (f.Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    f.Menge->g_maxOrbitIterat = anzahl;
    f.SetNewTitle();
    f.infoLabelCx33->setText(UI::tr("<b>%1 Iter.Max.</b>").arg(anzahl));
}

} // namespace

void UI::OrbitWeissSlot() { orbitFarbe(*this, OrbitWeiss); }
void UI::OrbitSchwarzSlot() { orbitFarbe(*this, OrbitSchwarz); }
void UI::OrbitGrauSlot() { orbitFarbe(*this, OrbitGrau); }
void UI::OrbitRotSlot() { orbitFarbe(*this, OrbitRot); }
void UI::OrbitBuntSlot() { orbitFarbe(*this, OrbitBunt); }

void UI::OrbitMax256Slot() { orbitMax(*this, OrbitLaengeVoll); }
void UI::OrbitMax120Slot() { orbitMax(*this, 120); }
void UI::OrbitMax60Slot() { orbitMax(*this, 60); }
void UI::OrbitMax30Slot() { orbitMax(*this, 30); }
void UI::OrbitMax15Slot() { orbitMax(*this, 15); }
void UI::OrbitMax5Slot() { orbitMax(*this, 5); }

void UI::OrbitMaxMinus1Slot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    if (Menge->g_maxOrbitIterat > std::numeric_limits<qint32>::min()) {
        --Menge->g_maxOrbitIterat;
    }
    SetNewTitle();
    infoLabelCy33->setText(tr("<b>IterMax -1</b>"));
}

void UI::OrbitDuennSlot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    darstellung(*Menge, {{LetzterDick, LetzterDuenn},
                         {LetzterDuenn, LetzterDick},
                         {AlleDick, AlleDuenn},
                         {AlleDuenn, AlleDick}});
    SetNewTitle();
    zeigeDuenn(*this);
}

void UI::OrbitAlleSlot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    darstellung(*Menge, {{LetzterDuenn, AlleDuenn}, {LetzterDick, AlleDick}});
    SetNewTitle();
    infoLabel22->setText(tr("<b>Alle Orbit</b>"));
    zeigeDuenn(*this);
}

void UI::OrbitLetzterSlot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    darstellung(*Menge, {{AlleDuenn, LetzterDuenn}, {AlleDick, LetzterDick}});
    SetNewTitle();
    infoLabel22->setText(tr(" "));
    zeigeDuenn(*this);
}

void UI::OrbitAlleDeleteSlot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        return;
    }
    Menge->g_OrbitDuennJa = Menge->g_OrbitDuennJa == AlleDick ? LoeschenDick : LoeschenDuenn;
    SetNewTitle();
    zeigeDuenn(*this);
}

void UI::OrbitMPSlot() {
    if (Menge->g_OrbitJa == OrbitAus) {
        Menge->g_OrbitJa = OrbitWeiss;
        Menge->g_OrbitDuennJa = LetzterDuenn;
    }
    Menge->g_OrbitMP = 1;
    SetNewTitle();
    infoLabel22->setText(tr("<b>MP-Orbit</b>"));
    infoLabel33->setText(tr("<b>Mittelpunkt</b>"));
}

void UI::OrbitMausSlot() {
    Menge->g_OrbitMP = 0;
    SetNewTitle();
    infoLabel22->setText(tr("<b>Maus-Orbit</b>"));
    infoLabel33->setText(tr("<b>mit Klick</b>"));
}

void UI::OrbitAbIterAnSlot() {
    Menge->OrbitAbIterAnGleichZoom();
    SetNewTitle();
    infoLabelCx33->setText(tr("<b>Orbit erst</b>"));
    infoLabelCy33->setText(tr("<b>abIter=Zoom</b>"));
}

void UI::OrbitAbIterAusSlot() {
    Menge->g_OrbitAbIterAn = 0;
    zeichnenUndTitel();
}

void UI::OrbitAktualierenSlot() { zeichnenUndTitel(); }

void UI::OrbitOffSlot() {
    // The model's signal comes queued: a second one may arrive when the orbit is off already, or
    // one from a model that has been replaced meanwhile. Commands and direct calls always act.
    const auto* absender = qobject_cast<Mandelbrot*>(sender());
    if (absender != nullptr && (absender != Menge || Menge->g_OrbitJa == OrbitAus)) {
        return;
    }
    Menge->g_OrbitJa = OrbitAus;
    Menge->g_OrbitDuennJa = LetzterDick;
    Menge->g_maxOrbitIterat = OrbitLaengeVoll;
    Menge->g_OrbitMP = 0;
    Menge->g_OrbitAbIterAn = 0;
    ZoomGleich0k5Slot();
    QMessageBox::about(this, tr("Orbit war an. Jetzt Aus."),
                       tr("Orbit wurde abgeschaltet.<br>Parameter Zoom wurde von 1,0 auf 0,5 "
                          "gesetzt"));
    zeichnenUndTitel();
    infoLabelCx33->setText(tr("<b>256 Iter.Max.</b>"));
    infoLabelCy33->setText(tr(" "));
    infoLabel22->setText(tr(" "));
    infoLabel33->setText(tr("<b>Orbit Aus</b>"));
}
