#include "model/Einfaerbung.h"

void palettenstreifen(Mandelbrot& /*menge*/, const Bildlauf& /*lauf*/, QImage& /*bild*/) {}

void einfaerben(Mandelbrot& /*menge*/, const Bildlauf& /*lauf*/, QImage& /*bild*/) {}
