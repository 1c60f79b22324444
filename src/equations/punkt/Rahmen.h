#pragma once

#include "equations/Abbruch.h"
#include "equations/punkt/Wiederkehr.h"
#include "equations/Rechenweise.h"
#include "Mandelbrot.h"

#include <utility>

// The frame that all kernels share: counters, bailout call, loop test and result rule. It repeats
// the step
//     bool schritt(Stand<Wert>& s)     (true: the step aborts the orbit)
// which depends on the state alone, so that the loop is a deterministic map.
//
// The first step counts as 1 and at most Max_Iterationen - 1 steps are made (one if the limit is
// below 2); where `zaehltAbbruch` is false, an aborted step is not counted. A measure that is not
// below wert_Abbruch, NaN included, ends the loop. An orbit that is taken over begins after
// `getan` steps, each of which was tested.

namespace rahmen {

/// Leaves the count in the model, notes the steps really made, and gives the result: the last
/// measure, or 0.0 when the orbit was aborted or a cycle search found nothing.
inline double ergebnis(const Mandelbrot& m, qint32 iterationen, qint64 schritte, double betrQ,
                       bool abbr) {
    rechenaufwand().pixelEinzeln += 1;
    rechenaufwand().schritteEinzeln += schritte;
    m.IteratSubf = iterationen;
    m.privateIterat = iterationen;
    return abbr || betrQ == -m.g_Genauigkeit ? 0.0 : betrQ;
}

/// Every step with its full bailout test, which also records the orbit.
template <bool zaehltAbbruch, class Schritt, class Wert>
[[gnu::flatten]] double schrittweise(const Mandelbrot& m, const Schritt& schritt, Stand<Wert> s,
                                     qint32 getan) {
    double betrQ = 0.0;
    bool abbr = false;
    m.IteratSubf = 1 + getan;
    do {
        abbr = schritt(s);
        if (!abbr) {
            betrQ = m.BetrQ_Varianten(re(s.z), im(s.z), re(s.w), im(s.w));
        }
        if (!abbr || zaehltAbbruch) {
            m.IteratSubf += 1;
        }
    } while (m.IteratSubf < m.Max_Iterationen && m.wert_Abbruch > betrQ && !abbr);
    return ergebnis(m, m.IteratSubf, m.IteratSubf - 1 - getan, betrQ, abbr);
}

/// The same values and counts, without the steps whose outcome is known. When a state repeats, to
/// the bit, all that follows is periodic and has been tested: the steps that remain are reduced
/// modulo the period. A cycle search looks back further than the state; it is periodic, and wholly
/// tested, g_zycmax + 1 steps after the repeat.
template <bool zaehltAbbruch, class Schritt, class Wert>
[[gnu::flatten]] double abgekuerzt(const Mandelbrot& m, const Schritt& schritt, Stand<Wert> s,
                                   qint32 getan) {
    const double wertAbbruch = m.wert_Abbruch;
    const qint32 grenze = m.Max_Iterationen;
    Wiederkehr<Wert> wiederkehr(s);
    Abbruchart art{};
    bool zyklussuche = false;
    qint64 periode = 0;
    qint32 nachlauf = -1; // steps until the remaining ones may be reduced
    bool ersterTest = true;
    qint64 schritte = 0;
    for (qint32 iterationen = 1 + getan;;) {
        ++schritte;
        if (schritt(s)) {
            return ergebnis(m, iterationen + (zaehltAbbruch ? 1 : 0), schritte, 0.0, true);
        }
        const bool erster = std::exchange(ersterTest, false);
        if (erster) {
            art = abbruchVorbereiten(m);
            zyklussuche = istZyklussuche(art);
            // The history does not hold the start value, so the first step is where to begin.
            wiederkehr = Wiederkehr<Wert>(s);
        }
        const double betrQ = zyklussuche ? zyklusBetrag(m, art, re(s.z), im(s.z))
                                         : betragOhneZyklus(art, re(s.z), im(s.z));
        ++iterationen;
        if (iterationen >= grenze || !(wertAbbruch > betrQ)) {
            return ergebnis(m, iterationen, schritte, betrQ, false);
        }
        if (periode == 0 && !erster) {
            periode = wiederkehr.periode(s);
            nachlauf = periode == 0 ? -1 : (zyklussuche ? m.g_zycmax + 1 : 0);
        }
        if (nachlauf >= 0 && nachlauf-- == 0) {
            iterationen = grenze - static_cast<qint32>((grenze - iterationen) % periode);
            if (iterationen == grenze) {
                return ergebnis(m, grenze, schritte, betrQ, false);
            }
        }
    }
}

} // namespace rahmen

/// Runs the frame from the state s, `getan` steps after the start. Returns the kernel's result and
/// leaves the count in privateIterat.
template <bool zaehltAbbruch, class Schritt, class Wert>
double iterieren(const Mandelbrot& m, const Schritt& schritt, const Stand<Wert>& s, qint32 getan) {
    return m.Orbitmodus != 2 && rechenweise().abkuerzung
               ? rahmen::abgekuerzt<zaehltAbbruch>(m, schritt, s, getan)
               : rahmen::schrittweise<zaehltAbbruch>(m, schritt, s, getan);
}
