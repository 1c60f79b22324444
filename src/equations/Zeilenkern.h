#pragma once

#include "Mandelbrot.h"

/// One row of a picture, or a piece of it. x, wert and zaehler have one entry per pixel.
struct Zeilenauftrag {
    std::span<const double> x; ///< real coordinates of the pixels, plane units, left to right
    double y = 0.0;            ///< imaginary coordinate of the row
    bool julia = false;        ///< true: the pixel is the start value and CJ_x + i CJ_y (read
                               ///< anew for each pixel) the constant; false: the start value is 0
                               ///< and the pixel the constant
    std::span<double> wert;    ///< out: what the kernel returns
    std::span<qint32> zaehler; ///< out: the kernel's count

    /// `anzahl` pixels from index `von` on.
    [[nodiscard]] Zeilenauftrag teil(std::size_t von, std::size_t anzahl) const {
        return {x.subspan(von, anzahl), y, julia, wert.subspan(von, anzahl),
                zaehler.subspan(von, anzahl)};
    }
};

/// Computes a row with the kernel of m.wahl_Gleichung (a plain number that has a kernel; with any
/// other nothing is written). Values, counts and everything that stays behind in the model (the
/// counters, the lasting repairs, the cycle history) are those of the point kernel called pixel
/// after pixel, to the bit, each call after zyklusVoreinstellen.
void zeileRechnen(const Mandelbrot& m, const Zeilenauftrag& auftrag);

/// With a cycle search (bailout 4 or 5): sets the history entries 0 to g_zycmax far off the start
/// value (wertx0, werty0), so that no earlier pixel matches the first iterates by accident.
void zyklusVoreinstellen(const Mandelbrot& m, double wertx0, double werty0);
