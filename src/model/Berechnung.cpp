#include "Mandelbrot.h"

void Mandelbrot::Berechnung(QPainter* /*Paint*/) {}
