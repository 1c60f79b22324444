#include "window/Befehle.h"
#include "window/Parameter.h"

namespace {

/// The colour parameters, in the order of both directions.
constexpr std::array<const Parameter*, 8> Farbwerte{
    Werte::divFactor,    Werte::konvFactor,  Werte::itFactor,    Werte::VarianteDiv,
    Werte::VarianteKonv, Werte::colorOffset, Werte::zahlfarbtab, Werte::zahlMatrix,
};

/// Panel to model before the colour parameters. The equation number comes first, since it can
/// switch the twin.
constexpr std::array<const Parameter*, 12> LeseFolge{
    Werte::Gleichung,  Werte::MPx,    Werte::MPy,         Werte::Brx,
    Werte::Kopplx,     Werte::Kopply, Werte::Iterationen, Werte::wertAbbruch,
    Werte::glgAbbruch, Werte::CJx,    Werte::CJy,         Werte::click2Zoom,
};

/// Model to panel, all parameters.
constexpr std::array<const Parameter*, LeseFolge.size() + Farbwerte.size()> ZeigeFolge{
    Werte::MPx,         Werte::MPy,         Werte::Brx,          Werte::click2Zoom,
    Werte::Kopplx,      Werte::Kopply,      Werte::wertAbbruch,  Werte::Iterationen,
    Werte::CJx,         Werte::CJy,         Werte::divFactor,    Werte::konvFactor,
    Werte::itFactor,    Werte::VarianteDiv, Werte::VarianteKonv, Werte::Gleichung,
    Werte::colorOffset, Werte::zahlfarbtab, Werte::glgAbbruch,   Werte::zahlMatrix,
};

void zeigen(UI& ui, std::span<const Parameter* const> folge) {
    for (const Parameter* wert : folge) {
        wert->zeigen(ui);
    }
}

void lesen(UI& ui, std::span<const Parameter* const> folge) {
    for (const Parameter* wert : folge) {
        wert->lesen(ui);
    }
}

constexpr int UeblicherExponent = 10; ///< values that the title does not mention
constexpr int UeblicheZyklen = 7;

/// How the four previews in full size name themselves.
struct Vollvorschau {
    Bildmodus halbesBild;
    const char* text;
};
constexpr std::array<Vollvorschau, 4> Vollvorschauen{{
    {VollvorschauRechtsOben, " Vorschau Vollbild"},
    {VollvorschauRechtsUnten, " Vorschau Vollb. re/u"},
    {VollvorschauLinksOben, " Vorschau Vollb. li/o"},
    {VollvorschauLinksUnten, " Vorschau Vollb. li/u"},
}};

/// Equation, orbit, power and cycles: the first part of the title.
QString titelGleichung(const Mandelbrot& m) {
    QString text;
    if (m.g_OrbitJa == 0) {
        text += UI::tr(" >> ") + m.g_NameGlg + UI::tr(" <<");
    }
    if (m.g_JuliaJa == 1 && m.g_OrbitJa == 0) {
        text += UI::tr(" (Julia-Verfahren),");
    }
    text += m.g_OrbitMP == 1 ? UI::tr(" MP-") : QString(" ");
    if (m.g_OrbitJa > 0) {
        text += UI::tr("Orbit bei ") + m.g_OrbitStartString + m.g_OrbitEndString + ",";
    }
    if (m.g_OrbitAbIterAn > 0) {
        text += UI::tr(" Orbit-Anzeige ab Iteration ") + QString::number(m.g_OrbitAbIterAn) + ",";
    }
    if (m.g_kPotenz != UeblicherExponent) {
        text += UI::tr(" Potenz K=") + QString::number(m.g_kPotenz) + ",";
    }
    if (m.g_zycmax != UeblicheZyklen) {
        text += UI::tr(" Zyklen bis ") + QString::number(m.g_zycmax) + ",";
    }
    return text;
}

/// Quarter or preview. The previews in full size name position 0 first: meant.
QString titelBildlage(const Mandelbrot& m) {
    QString text;
    const int lage = m.g_halbesBild;
    if (istViertel(lage)) {
        text += UI::tr(" 1/4 Bild Nr.") + QString::number(lage);
    }
    if (istVorschau(lage)) {
        text += UI::tr(" Vorschau Nr.") + QString::number(lage % VorschauAbstand);
    }
    for (const auto& vorschau : Vollvorschauen) {
        if (vorschau.halbesBild == lage) {
            text += UI::tr(vorschau.text);
        }
    }
    if (lage > Vollbild && m.g_VorschauAusJa == 1) {
        text += UI::tr(" Vorschau Aus");
    }
    if (lage == ViertelLinksOben) {
        text += UI::tr(" (Menue Groesse)");
    }
    if (lage > ViertelLinksOben) {
        text += ",";
    }
    return text;
}

/// Twin, grid, precision and the part of the picture: the second part of the title.
QString titelBild(const Mandelbrot& m) {
    QString text;
    if (m.g_ZwillingJa > 0) {
        text += UI::tr(" Zwilling ") + QString::number(m.g_ZwillingJa) + ",";
    }
    const QString abstand = QString::number(m.g_Gitterabstand, 'f', 6) + ",";
    if (m.g_GitterJa == 1) {
        text += UI::tr(" Grid-Null d= ") + abstand;
    }
    if (m.g_GitterJa == 2) {
        text += UI::tr(" Grid-Central d= ") + abstand;
    }
    if (m.g_GenauJa == 1) {
        text += UI::tr(" Genau= ") + QString::number(m.g_Genauigkeit, 'f', 16) + ",";
    }
    text += titelBildlage(m);
    if (m.g_oberesHalbbild == 1) {
        text += UI::tr(" Obere Bildhälfte");
    }
    if (m.g_oberesHalbbild == 2) {
        text += UI::tr(" Untere Bildhälfte");
    }
    return text;
}

} // namespace

void UI::WerteAktualisierenSlot() { zeigen(*this, ZeigeFolge); }

void UI::WerteColorAktualisierenSlot() { zeigen(*this, Farbwerte); }

void UI::NeueBerechnungSlot() {
    // Nothing else here touches the request: an unchanged picture is only coloured anew.
    if (Menge->g_halbesBild > ViertelRechtsUnten && Menge->g_RechnenJa != RechnenMitOrbit) {
        Menge->g_halbesBild %= VorschauAbstand;
        Menge->g_RechnenJa = Rechnen;
    }
    FeldLesen();
}

void UI::VorschauSlot() {
    Menge->g_RechnenJa = VorschauRechnen;
    FeldLesen();
}

void UI::NeueColorBerechnungSlot() {
    lesen(*this, Farbwerte);
    setColShiftSliderSlot();
    zeichnenUndTitel();
}

void UI::FeldLesen() {
    lesen(*this, LeseFolge);
    lesen(*this, Farbwerte);
    setColShiftSliderSlot();
    zeichnenUndTitel();
}

void UI::SetNewTitle() {
    setWindowTitle(tr("Wirbelwerk") + Menge->g_Versionsnummer + titelGleichung(*Menge) +
                   titelBild(*Menge));
}

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
