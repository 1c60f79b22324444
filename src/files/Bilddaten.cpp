#include "files/Bilddaten.h"

#include "files/Dateiausgabe.h"
#include "files/Speicherdialog.h"

#include <QDataStream>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

#include <variant>

namespace {

using Feld = std::variant<UI_QSpinBox * UI::*, qint32 Mandelbrot::*, UI_QDoubleSpinBox * UI::*,
                          UI_QDoubleSpinBoxK * UI::*, double Mandelbrot::*>;

struct Eintrag {
    int offset; ///< bytes
    Feld feld;

    [[nodiscard]] constexpr bool istGanzzahl() const { return feld.index() < 2; }
};

constexpr std::array<Eintrag, 40> tabelle{{
    {0, &UI::UI_Iterationen},
    {4, &UI::UI_rechenVarianteDiv},
    {8, &UI::UI_rechenVarianteKonv},
    {12, &UI::UI_wahlGleichung},
    {16, &UI::UI_colorOffset},
    {20, &UI::UI_zahlfarbtab},
    {24, &UI::UI_glgAbbruch},
    {28, &UI::UI_zahlMatrix},
    {32, &Mandelbrot::g_ZwillingJa},
    {36, &Mandelbrot::g_MittelkreuzJa},
    {40, &Mandelbrot::g_NullkreuzJa},
    {44, &Mandelbrot::g_GitterJa},
    {48, &Mandelbrot::g_kPotenz},
    {52, &Mandelbrot::g_zycmax},
    {56, &Mandelbrot::OPx},
    {60, &Mandelbrot::OPy},
    {64, &Mandelbrot::g_OrbitJa},
    {68, &Mandelbrot::g_OrbitDuennJa},
    {72, &Mandelbrot::g_maxOrbitIterat},
    {76, &Mandelbrot::g_halbesBild},
    {80, &Mandelbrot::g_oberesHalbbild},
    {84, &Mandelbrot::g_VorschauAusJa},
    {88, &Mandelbrot::g_PixVorschauX},
    {92, &Mandelbrot::g_PixVorschauY},
    {96, &Mandelbrot::g_PixConstX},
    {100, &Mandelbrot::g_PixConstY},
    {104, &UI::UI_MPx},
    {112, &UI::UI_MPy},
    {120, &UI::UI_Brx},
    {128, &UI::UI_Kopplx},
    {136, &UI::UI_Kopply},
    {144, &UI::UI_wertAbbruch},
    {152, &UI::UI_click2Zoom},
    {160, &UI::UI_divFactor},
    {168, &UI::UI_konvFactor},
    {176, &UI::UI_itFactor},
    {184, &UI::UI_CJx},
    {192, &UI::UI_CJy},
    {200, &Mandelbrot::g_Genauigkeit},
    {208, &Mandelbrot::g_Gitterabstand},
}};

constexpr std::size_t AnzahlGanze = 26;
// The writer stops before the last two, the reader asks for them: meant so, the file stays as it
// is.
constexpr std::size_t AnzahlGeschrieben = 38;

/// Integers first, every entry right behind the one before.
constexpr bool lueckenlos() {
    int offset = 0;
    for (std::size_t i = 0; i < tabelle.size(); ++i) {
        if (tabelle[i].offset != offset || tabelle[i].istGanzzahl() != (i < AnzahlGanze)) {
            return false;
        }
        offset += tabelle[i].istGanzzahl() ? 4 : 8;
    }
    return true;
}
static_assert(lueckenlos() && tabelle[AnzahlGeschrieben].offset == 200);

constexpr int VersionSchreiben = 22;
constexpr int VersionLesen = 12; // older than the writer's on purpose: same bytes

template <class Box>
auto lesenAus(const UI& fenster, Box* UI::*feld) {
    return (fenster.*feld)->value();
}

template <class Zahl>
Zahl lesenAus(const UI& fenster, Zahl Mandelbrot::*feld) {
    return fenster.Menge->*feld;
}

template <class Box>
void setzen(UI& fenster, Box* UI::*feld, decltype(std::declval<Box>().value()) wert) {
    (fenster.*feld)->setValue(wert);
}

template <class Zahl>
void setzen(UI& fenster, Zahl Mandelbrot::*feld, Zahl wert) {
    fenster.Menge->*feld = wert;
}

void lesen(QDataStream& strom, UI& fenster, std::span<const Eintrag> eintraege) {
    for (const Eintrag& eintrag : eintraege) {
        std::visit(
            [&](auto feld) {
                decltype(lesenAus(fenster, feld)) wert{};
                strom >> wert;
                setzen(fenster, feld, wert);
            },
            eintrag.feld);
    }
}

} // namespace

QByteArray bilddatenSchreiben(const UI& fenster) {
    QByteArray bytes;
    QDataStream strom(&bytes, QIODevice::WriteOnly);
    strom.setByteOrder(QDataStream::LittleEndian);
    strom.setVersion(VersionSchreiben);
    for (const Eintrag& eintrag : std::span(tabelle).first(AnzahlGeschrieben)) {
        std::visit([&](auto feld) { strom << lesenAus(fenster, feld); }, eintrag.feld);
    }
    return bytes;
}

void bilddatenLesen(QIODevice& quelle, UI& fenster) {
    QDataStream strom(&quelle);
    strom.setByteOrder(QDataStream::LittleEndian);
    strom.setVersion(VersionLesen);
    const std::span<const Eintrag> eintraege(tabelle);
    lesen(strom, fenster, eintraege.first(AnzahlGanze));
    fenster.Menge->g_RechnenJa = RechnenMitOrbit;
    lesen(strom, fenster, eintraege.subspan(AnzahlGanze));
}

void UI::Koordinaten_SpeichernSlot() {
    dt = QDateTime::currentDateTime();
    const QString endung = ".fraktal";
    const QString vorschlag =
        "DatenWirbel" + Menge->g_Versionsnummer + dt.toString("-yyyyMMdd-hh-mm-ss") + endung;
    const QString name =
        speichernameErfragen(this, tr("Bilddaten speichern"), vorschlag,
                             tr("DatenWirbel (*.fraktal);;Alle Dateien (*.*)"), endung);
    if (!name.isEmpty() && !dateiSchreiben(name, bilddatenSchreiben(*this))) {
        speicherfehlerMelden(name);
    }
}

void UI::Koordinaten_LadenSlot() {
    const QString name =
        QFileDialog::getOpenFileName(this, tr("Bilddaten laden"), "Bilddaten.fraktal",
                                     tr("Bilddaten (*.fraktal);;Alle Dateien (*.*)"));
    if (name.isEmpty()) {
        return;
    }
    QFile datei(name);
    // Only regular files: opening a pipe would wait for its other end.
    if (!QFileInfo(name).isFile() || !datei.open(QIODevice::ReadOnly)) {
        ladefehlerMelden(name);
        ResetSlot();
        return;
    }
    bilddatenLesen(datei, *this);
    datei.close();
    NeueBerechnungSlot();
}
