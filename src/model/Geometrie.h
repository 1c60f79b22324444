#pragma once

#include "model/Bildlauf.h"

/// Size of the whole picture: the widget without its palette strip, or the fixed size, cut to the
/// buffers. False when there is nothing to compute on (width 20 or less, no height).
[[nodiscard]] bool bildgroesse(const Mandelbrot& menge, Bildlauf& lauf);

/// Aspect ratio, preview size, corners and the sizes and steps that follow from picture mode and
/// request. Writes g_Bildverhaeltnis, g_PixVorschauY (if it is unset), Br_y and the corners.
void abmessungen(Mandelbrot& menge, Bildlauf& lauf);

/// Size and borders of the 16 cells and the steps of one; nothing outside the matrix view.
void matrixGeometrie(const Mandelbrot& menge, Bildlauf& lauf);

/// Picture mode after the request and the rectangle that it computes, cut to picture and buffers;
/// in the matrix view always the whole cell. With the orbit from the picture centre the start pixel
/// moves to the middle of the rectangle.
void bildPlatzieren(Mandelbrot& menge, Bildlauf& lauf);
