#include "Mandelbrot.h"

double Mandelbrot::IterateWurzelXXX(double, double, double, double) const { return 0.0; }
double Mandelbrot::IterateZmalZ_Complex_plusC(double, double, double, double) const { return 0.0; }
double Mandelbrot::IterateZmalZS_Complex_plusC(double, double, double, double) const { return 0.0; }
double Mandelbrot::IterateVierpol_Complex(double, double, double, double) const { return 0.0; }
double Mandelbrot::IterateZhZS_Complex_minus1(double, double, double, double) const { return 0.0; }
double Mandelbrot::IterateWurzel_Complex(double, double, double, double) const { return 0.0; }
