#pragma once

#include "colours/Paletten.h"
#include "Runden.h"

#include <QRgb>

class Mandelbrot;

/// How a colour number finds its row in the palette: offset + factor * number, truncated, its low
/// 32 bits reduced to the palette's size. Constant for a picture.
struct Indexregel {
    double versatz = 0.0; ///< color_Offset
    double faktor = 0.0;  ///< it_Factor
    quint32 farben = 512; ///< colours of the palette: 256, 512 or 582

    /// Row 0 .. farben - 1 of any number. Constant divisors, because the colour pass comes here
    /// once per pixel.
    [[nodiscard]] constexpr quint32 operator()(quint32 nummer) const noexcept {
        const auto summe = static_cast<quint32>(trunc64(versatz + faktor * nummer));
        switch (farben) {
        case FestFarben:
            return summe % FestFarben;
        case HauptFarben:
            return summe % HauptFarben;
        default:
            return summe % SpektralFarben;
        }
    }
};

/// Number of colours of the palette that a colour table number (0..47) selects. Numbers outside
/// act as the nearest end.
[[nodiscard]] constexpr quint32 palettenFarben(qint32 farbtab) noexcept {
    if (farbtab > 35) {
        return FestFarben;
    }
    return farbtab > 11 ? HauptFarben : SpektralFarben;
}

/// The base colour under the colour variant of a matrix cell. code is 11..14, 21..24, 31..34 or
/// 41..44, below 11 it acts as 11, any other leaves the colour unchanged. z_reduz is the place
/// 0..11 within the palette's colour tables; others change and reduce nothing.
[[nodiscard]] Farbtripel farbvariante(const Farbtripel& grund, qint64 code, qint32 z_reduz);

/// The index rule of the model's palette, offset and factor.
[[nodiscard]] Indexregel indexregel(const Mandelbrot& menge);

/// Writes the model's palette under the colour variant of the cell farbNr (0 = zahl_Matrix), opaque
/// colours in the order of the rows that Indexregel gives. Like FarbeV1 it notes the palette's
/// size in g_Max_rgbFarben and rebuilds Palette48 when it holds the other palette. Entries beyond
/// the palette's size stay as they are.
void farbtafel(Mandelbrot& menge, quint32 farbNr, std::span<QRgb, HauptFarben> ziel);

/// Colour of one kind of overlay mark.
struct Kreuzfarbe {
    quint32 marke;
    QRgb farbe;
};

/// The marks with a colour of their own; the last row stands for all others from 101 to 402.
inline constexpr std::array<Kreuzfarbe, 9> Kreuzfarben{{
    {101, qRgb(255, 0, 0)},
    {102, qRgb(0, 255, 0)},
    {201, qRgb(255, 255, 255)},
    {202, qRgb(0, 0, 0)},
    {301, qRgb(128, 128, 128)},
    {302, qRgb(128, 128, 128)},
    {401, qRgb(255, 128, 128)},
    {402, qRgb(128, 255, 128)},
    {0, qRgb(0, 0, 0)},
}};

/// Row of Kreuzfarben that a mark is drawn in. Marks outside 101..402 count as 201.
[[nodiscard]] constexpr std::size_t kreuzzeile(quint32 marke) noexcept {
    const quint32 gueltig = marke < 101 || marke > 402 ? 201 : marke;
    std::size_t zeile = 0;
    while (zeile + 1 < Kreuzfarben.size() && Kreuzfarben[zeile].marke != gueltig) {
        ++zeile;
    }
    return zeile;
}
