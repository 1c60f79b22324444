#pragma once

#include "model/Bildlauf.h"

/// Fills the buffers of the computed rectangle: overlay marks, then value and count of every pixel
/// by the equation's kernel, frame pixels as 0. With NurFaerben only the marks are renewed and the
/// orbit's start pixel is iterated for its orbit; stored values and counts stay.
void pixelPass(Mandelbrot& menge, Bildlauf& lauf);
