#pragma once

#include "model/Bildlauf.h"

/// What a kernel is given for one pixel: start value and constant, plane units.
struct Kernwerte {
    double wertx0 = 0.0, werty0 = 0.0;
    double wertCx = 0.0, wertCy = 0.0;
};

/// True for the pixel at which the orbit starts.
[[nodiscard]] bool istOrbitStart(const Mandelbrot& menge, const Bildlauf& lauf, qint32 spalte,
                                 qint32 zeile);

/// Prepares the recording at the start pixel: with the orbit from the picture centre the start
/// value (or the constant, where the start value counts as zero) is replaced by the centre; entry 0
/// of the orbit is the start point, entry 1 the end mark. The orbit of this run will be drawn.
void orbitBeginnen(Mandelbrot& menge, Bildlauf& lauf, Kernwerte& werte);

/// Draws the recorded orbit over the picture, collects it if it is a new one, and builds the orbit
/// list. A newly drawn orbit sets the zoom factor to 1, so that a following click does not zoom by
/// accident.
void orbitZeichnen(Mandelbrot& menge, const Bildlauf& lauf);
