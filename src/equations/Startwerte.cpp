#include "Mandelbrot.h"

void Mandelbrot::Initialisierung() {}
void Mandelbrot::InitGreater100() {}
void Mandelbrot::InitGreater300() {}
