#pragma once

#include "equations/Rahmen.h"
#include "equations/Schritt.h"

// How the kernels set up their step and run the frame over it.

/// The coupling that the model's twin settings ask for; the factors count only while a twin is on.
template <class Kopplung>
[[nodiscard]] Kopplung kopplungAus(const Mandelbrot& m) {
    Kopplung k{};
    k.art = zwillingsart(m.g_ZwillingJa, Kopplung::Letzte);
    if (k.art > 0) {
        k.px = m.Koppl_x;
        k.py = m.Koppl_y;
    }
    return k;
}

/// Runs the frame over an equation with coupling; both orbits start at `start`.
template <class Kopplung, class Abbildung, class Wert>
double gekoppeltIterieren(const Mandelbrot& m, const Abbildung& abbildung, const Wert& start,
                          const Wert& c, const Wert& cZwilling) {
    const Doppelschritt<Abbildung, Kopplung, Wert> schritt{abbildung, kopplungAus<Kopplung>(m), c,
                                                           cZwilling};
    return iterieren(m, schritt, Stand<Wert>{start, start});
}

/// A start coordinate pushed off zero: below `grenze` in magnitude it becomes +grenze, or -grenze
/// when it is negative.
[[nodiscard]] constexpr double abgerueckt(double wert, double grenze) noexcept {
    if ((wert < 0.0 ? -wert : wert) < grenze) {
        return wert < 0.0 ? -grenze : grenze;
    }
    return wert;
}

/// The power K; 0 is lastingly replaced by 10.
[[nodiscard]] inline qint32 kPotenzRepariert(const Mandelbrot& m) {
    if (m.g_kPotenz == 0) {
        m.g_kPotenz = 10;
    }
    return m.g_kPotenz;
}
