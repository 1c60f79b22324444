#include "Mandelbrot.h"

void Mandelbrot::EquationName() { g_NameGlg = " "; }
