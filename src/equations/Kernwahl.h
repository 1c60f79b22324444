#pragma once

#include "Mandelbrot.h"

/// A kernel: start value and constant (real, imaginary each) to the final bailout measure; the
/// count is left in privateIterat.
using Kern = double (Mandelbrot::*)(double, double, double, double) const;

/// The kernel of a plain (not folded) equation number: 1 to 10 by number, numbers above 99 by their
/// family, also where the catalogue has no such member. nullptr for a number without a kernel.
[[nodiscard]] Kern kernFuer(qint32 wahl_Gleichung);
