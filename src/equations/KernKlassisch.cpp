#include "equations/FormelnReell.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

double Mandelbrot::IterateZmalZplusC(double xqr, double yqr, double Cxqr, double Cyqr) const {
    if (g_ZwillingJa > ReelleKopplung::Letzte) {
        g_ZwillingJa = 0;
    }
    const Paar<double> c{Cxqr, Cyqr};
    return gekoppeltIterieren<ReelleKopplung>(*this, Ungebremst<Quadrat>{}, Paar<double>{xqr, yqr},
                                              c, c);
}

double Mandelbrot::IterateZmalZSplusC(double xqr, double yqr, double Cxqr, double Cyqr) const {
    if (g_ZwillingJa == 6) {
        g_ZwillingJa = 5;
    }
    const Paar<double> c{Cxqr, Cyqr};
    return gekoppeltIterieren<AugenKopplung>(*this, Ungebremst<Auge>{}, Paar<double>{xqr, yqr}, c,
                                             c);
}
