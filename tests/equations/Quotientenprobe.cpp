// Built once for every instruction set.

#include "Quotientenprobe.h"

#include "equations/formeln/Quotient.h"
#include "equations/zeile/Satz.h"
#include "equations/zeile/Spuren.h"

template <Befehlssatz satz>
void inSpurenTeilen(const double* a, const double* b, const double* c, const double* d, double* x,
                    double* y) {
    using T = Spuren<typename Satzwahl<satz>::Typ, 2>;
    for (int i = 0; i < Probenbreite; i += T::Anzahl) {
        const auto q = geteilt(Spurenkomplex<T>(T::laden(a + i), T::laden(b + i)),
                               Spurenkomplex<T>(T::laden(c + i), T::laden(d + i)));
        q.x.speichern(x + i);
        q.y.speichern(y + i);
    }
}

template void inSpurenTeilen<Satz::Befehle>(const double* a, const double* b, const double* c,
                                            const double* d, double* x, double* y);
