#include "equations/FormelnReell.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

double Mandelbrot::IterateVierpol(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const Paar<double> c{Cxqr, Cyqr};
    return gekoppeltIterieren<ReelleKopplung>(*this, Vierpol{g_Genauigkeit / 1e6},
                                              Paar<double>{xqr, yqr}, c, c);
}
