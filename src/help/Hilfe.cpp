#include "help/Hilfetexte.h"
#include "Netzadresse.h"
#include "UI_Hauptfenster.h"

// Left to itself, a message box wraps at 500 pixels and a long text grows taller than the screen.
static constexpr int g_Textbreite = 116; // average characters

/// A translated text with its placeholders filled.
static QString fuelle(const UI& fenster, const char* quelle) {
    QString s = UI::tr(quelle);
    s.replace(QLatin1String("%1"), QLatin1String(Netzadresse));
    if (fenster.Menge != nullptr) {
        s.replace(QLatin1String("%2"), fenster.Menge->g_Versionsnummer);
    }
    return s;
}

/// Shows one topic and returns when its box is closed.
static void zeige(UI* fenster, const Hilfetabelle& sprache, Hilfethema thema) {
    const Hilfetext& hilfe = sprache.at(static_cast<std::size_t>(thema));
    const int breite = g_Textbreite * fenster->fontMetrics().averageCharWidth();
    QMessageBox::about(fenster, fuelle(*fenster, hilfe.titel),
                       QStringLiteral("<table width=\"%1\"><tr><td>%2</td></tr></table>")
                           .arg(QString::number(breite), fuelle(*fenster, hilfe.text)));
}

void UI::aboutKomplexeZahlen() { zeige(this, g_HilfeDeutsch, Hilfethema::KomplexeZahlen); }
void UI::aboutComplexNumbers() { zeige(this, g_HilfeEnglisch, Hilfethema::KomplexeZahlen); }
void UI::aboutFraktale() { zeige(this, g_HilfeDeutsch, Hilfethema::Fraktale); }
void UI::aboutFractals() { zeige(this, g_HilfeEnglisch, Hilfethema::Fraktale); }
void UI::aboutSpezialFraktale() { zeige(this, g_HilfeDeutsch, Hilfethema::SpezialFraktale); }
void UI::aboutSpecialFractals() { zeige(this, g_HilfeEnglisch, Hilfethema::SpezialFraktale); }
void UI::aboutGleichungen() { zeige(this, g_HilfeDeutsch, Hilfethema::Gleichungen); }
void UI::aboutEquations() { zeige(this, g_HilfeEnglisch, Hilfethema::Gleichungen); }
void UI::aboutBerechnung() { zeige(this, g_HilfeDeutsch, Hilfethema::Berechnung); }
void UI::aboutCalc() { zeige(this, g_HilfeEnglisch, Hilfethema::Berechnung); }
void UI::aboutZwilling() { zeige(this, g_HilfeDeutsch, Hilfethema::Zwilling); }
void UI::aboutTwin() { zeige(this, g_HilfeEnglisch, Hilfethema::Zwilling); }
void UI::aboutOrbit() { zeige(this, g_HilfeDeutsch, Hilfethema::Orbit); }
void UI::aboutOrbitEn() { zeige(this, g_HilfeEnglisch, Hilfethema::Orbit); }
void UI::aboutFarbTab() { zeige(this, g_HilfeDeutsch, Hilfethema::FarbTab); }
void UI::aboutColorTab() { zeige(this, g_HilfeEnglisch, Hilfethema::FarbTab); }
void UI::aboutDiv() { zeige(this, g_HilfeDeutsch, Hilfethema::Div); }
void UI::aboutDivEn() { zeige(this, g_HilfeEnglisch, Hilfethema::Div); }
void UI::aboutKonv() { zeige(this, g_HilfeDeutsch, Hilfethema::Konv); }
void UI::aboutKonvEn() { zeige(this, g_HilfeEnglisch, Hilfethema::Konv); }

void UI::about() {
    QMessageBox::about(this, fuelle(*this, g_HilfeAutor.titel), fuelle(*this, g_HilfeAutor.text));
}

void UI::aboutQt() {
    if (infoLabel11 != nullptr) {
        infoLabel11->setText(tr("<b>qt 6.7.2</b>")); // fixed on purpose, whatever Qt runs
    }
}
