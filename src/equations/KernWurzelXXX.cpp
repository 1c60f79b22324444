#include "equations/FormelnReell.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

// Equation 9 seeks the roots of 1 and equation 10 those of the constant; both start at the pixel,
// which the driver hands in as the constant of an odd number.
double Mandelbrot::IterateWurzelXXX(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const bool einswurzel = wahl_Gleichung % 2 != 0;
    const Paar<double> start = einswurzel ? Paar<double>{Cxqr, Cyqr} : Paar<double>{xqr, yqr};
    const Paar<double> c = einswurzel ? Paar<double>{1.0, 0.0} : Paar<double>{Cxqr, Cyqr};
    return iterieren(*this, Hyperwurzel<double>{kopplungAus<ReelleKopplung>(*this), c},
                     Stand<Paar<double>>{start, start});
}
