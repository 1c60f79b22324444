#include "Mandelbrot.h"

void Mandelbrot::fillPalette48(quint32, quint32, quint32, quint32, quint32, quint32, quint32) {}
void Mandelbrot::fillPaletteWave() {}
QColor Mandelbrot::FarbeV1(quint32, quint32, quint32) { return {}; }
QColor Mandelbrot::FarbeKreuze(quint32) const { return {}; }
void Mandelbrot::Farbtabelle3Farben() {}
void Mandelbrot::Farbtabelle6Farben() {}
void Mandelbrot::FarbtabelleWaveLaden() {}
void Mandelbrot::FarbtabelleWaveAn() {}
void Mandelbrot::TabelleArray() {}
void Mandelbrot::color_OffsetPlusM(int) {}
void Mandelbrot::color_OffsetSlider(int) {}
void Mandelbrot::zahl_farbtabPlusM(int) {}
