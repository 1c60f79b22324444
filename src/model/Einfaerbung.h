#pragma once

#include "model/Bildlauf.h"

/// Draws the palette strip: the 18 columns right of the picture, two columns away from it, one
/// colour per row. bild is as large as the picture with its strip; rows and columns outside it are
/// skipped.
void palettenstreifen(Mandelbrot& menge, const Bildlauf& lauf, QImage& bild);

/// Colours the whole stored picture into bild (Format_ARGB32_Premultiplied): overlay marks first,
/// then the colour of value and count. A point that the chosen variant does not draw keeps what
/// bild showed. In the matrix view the stored cell is drawn 16 times.
void einfaerben(Mandelbrot& menge, const Bildlauf& lauf, QImage& bild);
