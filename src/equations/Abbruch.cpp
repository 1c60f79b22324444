#include "Mandelbrot.h"

double Mandelbrot::BetrQ_Varianten(double /*x*/, double /*y*/, double /*p*/, double /*t*/) const {
    return 0.0;
}
