#pragma once

#include "equations/formeln/Verzeichnis.h"

class Mandelbrot;

/// What a kernel is given for one pixel, plane units: start value and constant.
struct Pixel {
    double xqr, yqr, Cxqr, Cyqr;
};

/// An orbit on its way: main value x + iy and twin value p + it after `getan` steps, each tested.
struct Zwischenstand {
    double x, y, p, t;
    qint32 getan;
};

/// The kernel of one equation for single pixels.
struct Punktkern {
    /// The final bailout measure; the count is left in privateIterat. Makes the lasting repairs
    /// first. With `ab` the orbit is taken over from there instead of begun.
    double (*rechnen)(const Mandelbrot& m, const Pixel& pixel, const Zwischenstand* ab);

    /// The equation's lasting repairs of the model alone.
    void (*reparieren)(const Mandelbrot& m);
};

/// The kernel of a plain (not folded) equation number, also where a family has no such member.
/// nullptr for a number without a kernel.
[[nodiscard]] const Punktkern* punktkernFuer(qint32 wahl_Gleichung);

/// The settings that formulas read, as they stand.
[[nodiscard]] Formelwerte werteAus(const Mandelbrot& m);
