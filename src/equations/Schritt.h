#pragma once

#include "equations/Rahmen.h"
#include "equations/Zwilling.h"

/// One step of a coupled pair of orbits: the main value with the constant that the twin value
/// gives, and the twin value with the constant that the old main value gives.
///
/// `Abbildung` is the equation: `haupt(z, a)` replaces the main value z by its successor with the
/// constant a and tells whether that failed, `zwilling(w, a)` does the same for the twin, and
/// `abbruch(haupt, zwilling)` whether two such answers abort the orbit. While the twin is off its
/// value has no influence and is not carried.
template <class Abbildung, class Kopplung, class Wert>
struct Doppelschritt {
    static constexpr bool zaehltAbbruch = true;

    Abbildung abbildung;
    Kopplung kopplung;
    Wert c;         ///< constant of the main value
    Wert cZwilling; ///< constant of the twin value

    auto operator()(Stand<Wert>& s) const {
        if (kopplung.art == 0) {
            return abbildung.haupt(s.z, c);
        }
        const Wert alt = s.z;
        const auto abbrHaupt = abbildung.haupt(s.z, kopplung.haupt(s.w, c));
        const auto abbrZwilling = abbildung.zwilling(s.w, kopplung.zwilling(alt, cZwilling));
        return abbildung.abbruch(abbrHaupt, abbrZwilling);
    }
};

/// An equation that never fails, from its plain formula `Wert formel(z, a)`.
template <class Formel>
struct Ungebremst : Formel {
    template <class Wert>
    bool haupt(Wert& z, const Wert& a) const {
        z = Formel::formel(z, a);
        return false;
    }
    template <class Wert>
    bool zwilling(Wert& w, const Wert& a) const {
        return haupt(w, a);
    }
    static bool abbruch(bool /*haupt*/, bool /*zwilling*/) { return false; }
};

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
