#include "colours/Palettenwahl.h"

#include "Mandelbrot.h"

#include <algorithm>

namespace {

/// First colour table of each palette, and the last table of all.
constexpr qint32 SpektralAb = 0, DreifarbenAb = 12, SechsfarbenAb = 24, FestAb = 36;
constexpr qint32 LetzteTabelle = 47;

/// Selects a colour table; the palette label follows at once.
void waehle(Mandelbrot& menge, qint32 farbtab) {
    menge.zahl_farbtab = farbtab;
    menge.g_PalettenZahl = palettenZahl(farbtab);
}

/// Keeps the colour table when it lies within von .. vor (exclusive), else selects von.
void waehleBereich(Mandelbrot& menge, qint32 von, qint32 vor) {
    const qint32 jetzt = menge.zahl_farbtab;
    waehle(menge, jetzt >= von && jetzt < vor ? jetzt : von);
}

/// A negative table number already shows the spectral palette and is kept.
void waehleSpektral(Mandelbrot& menge) {
    const qint32 jetzt = menge.zahl_farbtab;
    waehle(menge, jetzt < DreifarbenAb ? jetzt : SpektralAb);
}

} // namespace

QString palettenZahl(qint32 farbtab) {
    if (farbtab < DreifarbenAb) {
        return QStringLiteral("1");
    }
    if (farbtab < SechsfarbenAb) {
        return QStringLiteral("2");
    }
    return farbtab < FestAb ? QStringLiteral("3") : QStringLiteral("4");
}

void Mandelbrot::Farbtabelle3Farben() {
    waehleBereich(*this, DreifarbenAb, SechsfarbenAb);
    wahlPalette48 = 1;
    fillPalette48(1, 0, 0, 0, 0, 0, 0);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Farbtabelle6Farben() {
    waehleBereich(*this, SechsfarbenAb, FestAb);
    wahlPalette48 = 2;
    fillPalette48(2, 0, 0, 0, 0, 0, 0);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::FarbtabelleWaveLaden() {
    waehleSpektral(*this);
    fillPaletteWave();
}

void Mandelbrot::FarbtabelleWaveAn() {
    waehleSpektral(*this);
    g_RechnenJa = NurFaerben;
}

// Leaves the request alone, unlike its siblings; meant.
void Mandelbrot::TabelleArray() { waehle(*this, FestAb); }

void Mandelbrot::color_OffsetPlusM(int d) {
    g_RechnenJa = NurFaerben;
    // One turn at most, and an offset equal to the palette's size stays: the lookup reduces it.
    qint64 versatz = qint64{color_Offset} + d;
    if (versatz > g_Max_rgbFarben) {
        versatz -= g_Max_rgbFarben;
    }
    if (versatz < 0) {
        versatz += g_Max_rgbFarben;
    }
    using Grenzen = std::numeric_limits<qint32>;
    color_Offset = static_cast<qint32>(std::clamp<qint64>(versatz, Grenzen::min(), Grenzen::max()));
}

void Mandelbrot::color_OffsetSlider(int v) {
    g_RechnenJa = NurFaerben;
    color_Offset = v;
}

void Mandelbrot::zahl_farbtabPlusM(int d) {
    const qint64 summe = qint64{zahl_farbtab} + d;
    const qint64 rundum = summe < SpektralAb ? LetzteTabelle : summe;
    waehle(*this, rundum > LetzteTabelle ? SpektralAb : static_cast<qint32>(rundum));
    g_RechnenJa = NurFaerben;
}
