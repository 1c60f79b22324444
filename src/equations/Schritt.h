#pragma once

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
