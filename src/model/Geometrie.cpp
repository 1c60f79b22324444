#include "model/Geometrie.h"

#include "Runden.h"

#include <algorithm>

namespace {

constexpr qint32 StandardVorschau = 100; ///< pixels

/// The picture that this paint will show is a preview. The matrix view always fills its cells.
bool zeigtVorschau(const Mandelbrot& m, const Bildlauf& lauf) {
    return !lauf.Matrix &&
           istVorschau(modusNachAnforderung(
               m.g_halbesBild, m.g_RechnenJa == VorschauRechnen ? VorschauRechnen : NurFaerben));
}

} // namespace

bool bildgroesse(const Mandelbrot& menge, Bildlauf& lauf) {
    if (menge.width() <= Mandelbrot::Streifenbreite || menge.height() < 1) {
        return false;
    }
    const bool fest = menge.g_PixConstX > 0 && menge.g_PixConstY > 0;
    const qint32 breite = fest ? menge.g_PixConstX : menge.width() - Mandelbrot::Streifenbreite;
    const qint32 hoehe = fest ? menge.g_PixConstY : menge.height();
    lauf.SpaltenKLGross = std::min(breite, qint32{Mandelbrot::BildMax});
    lauf.ZeilenKLGross = std::min(hoehe, qint32{Mandelbrot::BildMax});
    return true;
}

void abmessungen(Mandelbrot& menge, Bildlauf& lauf) {
    const bool vorschau = zeigtVorschau(menge, lauf);
    menge.g_Bildverhaeltnis = static_cast<double>(lauf.ZeilenKLGross) / lauf.SpaltenKLGross;
    const qint32 pX = menge.g_PixVorschauX < 1 ? StandardVorschau : menge.g_PixVorschauX;
    const qint32 hoeheDazu = truncSat(menge.g_Bildverhaeltnis * pX);
    if (menge.g_PixVorschauY == 0) {
        menge.g_PixVorschauY = hoeheDazu;
    }
    if (vorschau && pX != StandardVorschau && menge.g_PixVorschauY > 1) {
        menge.g_Bildverhaeltnis = static_cast<double>(menge.g_PixVorschauY) / pX;
    }
    const qint32 pY = menge.g_PixVorschauY < 1 ? std::max(hoeheDazu, 1) : menge.g_PixVorschauY;

    menge.Br_y = menge.g_Bildverhaeltnis * menge.Br_x;
    menge.BildbreiteNeueEckpunkte();

    lauf.masse = {lauf.SpaltenKLGross,
                  lauf.ZeilenKLGross,
                  lauf.SpaltenKLGross / 2,
                  lauf.ZeilenKLGross / 2,
                  pX,
                  pY};
    const bool halb = menge.g_halbesBild > Vollbild;
    lauf.Spalten = halb ? lauf.SpaltenKLGross / 2 : lauf.SpaltenKLGross;
    lauf.Zeilen = halb ? lauf.ZeilenKLGross / 2 : lauf.ZeilenKLGross;
    lauf.SpaltenKLHalbe = vorschau ? pX / 2 : lauf.Spalten / 2;
    lauf.ZeilenKLHalbe = vorschau ? pY / 2 : lauf.Zeilen / 2;
    // Pixels are square: the vertical extent follows from the aspect ratio.
    const double spalten = vorschau ? pX : lauf.Spalten;
    lauf.Schritte_Spalte = lauf.Schritte_Zeile = std::abs(menge.R_Max - menge.R_Min) / spalten;
}

void matrixGeometrie(const Mandelbrot& menge, Bildlauf& lauf) {
    if (!lauf.Matrix) {
        return;
    }
    lauf.ZeilenKL =
        std::clamp(trunc32(lauf.Zeilen / menge.TeilerColorbild), 0, qint32{Mandelbrot::ViertelMax});
    lauf.SpaltenKL = std::clamp(trunc32(lauf.Spalten / menge.TeilerColorbild), 0,
                                qint32{Mandelbrot::ViertelMax});
    lauf.Zeilen = lauf.ZeilenKL;
    lauf.Spalten = lauf.SpaltenKL;
    lauf.ZeilenKLHalbe = lauf.ZeilenKL / 2;
    lauf.SpaltenKLHalbe = lauf.SpaltenKL / 2;
    lauf.Schritte_Spalte = lauf.Schritte_Zeile =
        std::abs(menge.R_Max - menge.R_Min) / lauf.SpaltenKL;
    lauf.Spalten1 = lauf.SpaltenKL;
    lauf.Spalten2 = 2 * lauf.SpaltenKL;
    lauf.Spalten3 = 3 * lauf.SpaltenKL;
    lauf.Zeilen1 = lauf.ZeilenKL;
    lauf.Zeilen2 = 2 * lauf.ZeilenKL;
    lauf.Zeilen3 = 3 * lauf.ZeilenKL;
}

void bildPlatzieren(Mandelbrot& menge, Bildlauf& lauf) {
    const qint32 modus = modusNachAnforderung(menge.g_halbesBild, menge.g_RechnenJa);
    if (modus != menge.g_halbesBild) {
        menge.g_halbesBild = modus;
        lauf.allePixel = true;
        abmessungen(menge, lauf);
        matrixGeometrie(menge, lauf);
    }
    const Rechteck ganzeZelle{0, lauf.SpaltenKL, 0, lauf.ZeilenKL};
    const Rechteck r = lauf.Matrix ? ganzeZelle : platzierung(modus, lauf.masse);
    lauf.CxStart = static_cast<qint32>(r.x0);
    lauf.Spalten = static_cast<qint32>(r.x1);
    lauf.CyStart = static_cast<qint32>(r.y0);
    lauf.Zeilen = static_cast<qint32>(r.y1);
    if (menge.g_OrbitMP == 1) {
        menge.OPx = lauf.SpaltenKLHalbe;
        menge.OPy = lauf.ZeilenKLHalbe;
    }
}
