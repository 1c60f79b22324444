#include "Mandelbrot.h"

void Mandelbrot::DatenSichern() {}
void Mandelbrot::DatenTeilbildLaden() {}
void Mandelbrot::UnDo1DatenTeilbildLaden() {}
void Mandelbrot::UnDo2DatenTeilbildLaden() {}
void Mandelbrot::WiederholenDatenTeilbildLaden() {}
void Mandelbrot::BildSicherungLoeschen() {}
