#include "model/Linien.h"

#include <algorithm>

qint32 Linien::Wechselmarke::naechste() {
    const qint32 jetzt = wert;
    wert = wert % 2 != 0 ? wert + 1 : wert - 1;
    return jetzt;
}

Linien::Linien(const Mandelbrot& menge, const Bildlauf& lauf)
    : m(menge), schritt(lauf.Schritte_Spalte), abstand(menge.g_Gitterabstand) {
    const qint32 loeschen = m.g_linienLoeschenJa;
    aktiv = (lauf.LinienRechnen && loeschen == 0) || (loeschen >= 1 && loeschen <= 4);
    // Counted in doubles: with a tiny spacing the numbers exceed every integer type.
    const double anzahl = std::trunc(m.Br_x / abstand);
    const double mitteAnzahlX = std::trunc(m.MP_x / abstand);
    const double mitteAnzahlY = std::trunc(m.MP_y / abstand);
    const double haelfte = std::trunc(m.Br_x / abstand / 2.0);
    nullX = {0.0, mitteAnzahlX - anzahl, mitteAnzahlX + anzahl};
    nullY = {0.0, mitteAnzahlY - anzahl, mitteAnzahlY + anzahl};
    mitteX = {m.MP_x, -haelfte, haelfte};
    mitteY = {m.MP_y, -haelfte, haelfte};
}

/// Strictly within half a pixel of the line k.
bool Linien::trifft(const Raster& raster, double k, double wert) const {
    const double halb = schritt / 2.0;
    const double linie = raster.ursprung + k * abstand;
    return k >= raster.von && k < raster.bis && linie + halb > wert && wert > linie - halb;
}

// Only the two lines next to the point can meet it (unless they are closer than a pixel), so the
// work does not grow with the number of lines.

void Linien::nullgitterMarken(double x, double y, qint32& marke) {
    for (const double k : {std::floor(x / abstand), std::floor(x / abstand) + 1.0}) {
        if (trifft(nullX, k, x)) {
            marke = nullgitter.senkrecht.naechste();
        }
    }
    for (const double k : {std::floor(y / abstand), std::floor(y / abstand) + 1.0}) {
        if (trifft(nullY, k, y)) {
            marke = nullgitter.waagrecht.naechste();
        }
    }
}

/// Here vertical and horizontal lines are tested number by number, so the line with the higher
/// number leaves its mark.
void Linien::mittelgitterMarken(double x, double y, qint32& marke) {
    const double kx = std::floor((x - m.MP_x) / abstand);
    const double ky = std::floor((y - m.MP_y) / abstand);
    if (std::isnan(kx) || std::isnan(ky)) {
        return;
    }
    std::array<double, 4> nummern{kx, kx + 1.0, ky, ky + 1.0};
    std::sort(nummern.begin(), nummern.end());
    for (std::size_t i = 0; i < nummern.size(); ++i) {
        const double k = nummern[i];
        if (i > 0 && k == nummern[i - 1]) {
            continue;
        }
        if (trifft(mitteX, k, x)) {
            marke = mittelgitter.senkrecht.naechste();
        }
        if (trifft(mitteY, k, y)) {
            marke = mittelgitter.waagrecht.naechste();
        }
    }
}

qint32 Linien::marke(double x, double y) {
    qint32 marke = 0;
    if (!aktiv) {
        return marke;
    }
    // A later rule overwrites an earlier mark. Grid lines test strictly within half a step,
    // crosses inclusively within a whole one, so crosses are wider: meant.
    if (abstand > 0.0 && m.g_GitterJa == 1) {
        nullgitterMarken(x, y, marke);
    }
    if (abstand > 0.0 && m.g_GitterJa == 2) {
        mittelgitterMarken(x, y, marke);
    }
    if (m.g_MittelkreuzJa == 1) {
        if (m.MP_x + schritt >= x && x >= m.MP_x - schritt) {
            marke = mittelkreuz.senkrecht.naechste();
        }
        if (m.MP_y + schritt >= y && y >= m.MP_y - schritt) {
            marke = mittelkreuz.waagrecht.naechste();
        }
    }
    if (m.g_NullkreuzJa == 1) {
        if (std::abs(x) <= schritt) {
            marke = nullkreuz.senkrecht.naechste();
        }
        if (std::abs(y) <= schritt) {
            marke = nullkreuz.waagrecht.naechste();
        }
    }
    return marke;
}
