#pragma once

#include "Mandelbrot.h"

/// State of an orbit: main value Z and twin value W. A value type is a pair of numbers (Paar, or a
/// complex number) with the functions re and im.
template <class Wert>
struct Stand {
    Wert z;
    Wert w;
};

/// The frame that all kernels share: counters, bailout call, loop test and result rule. It repeats
/// the step
///     bool schritt(Stand<Wert>& s)     (true: the step aborts the orbit)
/// which must depend on the state alone, so that the loop is a deterministic map.
///
/// The first step counts as 1 and at most Max_Iterationen - 1 steps are made (one if the limit is
/// below 2); with `zaehltAbbruch` false in the step's type, an aborted step is not counted. A
/// measure that is not below wert_Abbruch, NaN included, ends the loop.
/// Returns the last measure; 0.0 when the orbit was aborted or a cycle search found nothing. The
/// count is left in privateIterat.
template <class Schritt, class Wert>
double iterieren(const Mandelbrot& m, const Schritt& schritt, Stand<Wert> s) {
    double betrQ = 0.0;
    bool abbr = false;
    m.IteratSubf = 1;
    do {
        abbr = schritt(s);
        if (!abbr) {
            betrQ = m.BetrQ_Varianten(re(s.z), im(s.z), re(s.w), im(s.w));
        }
        if (!abbr || Schritt::zaehltAbbruch) {
            m.IteratSubf += 1;
        }
    } while (m.IteratSubf < m.Max_Iterationen && m.wert_Abbruch > betrQ && !abbr);
    m.privateIterat = m.IteratSubf;
    return abbr || betrQ == -m.g_Genauigkeit ? 0.0 : betrQ;
}
