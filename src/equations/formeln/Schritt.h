#pragma once

#include "equations/formeln/Formelwerte.h"
#include "equations/formeln/Zwilling.h"

/// One step of an orbit: replaces the state by its successor and tells whether that failed (true,
/// or the lanes whose orbit is aborted). What a step does is said by the formula (Formen.h); most
/// run the same map over main and twin value, each with the constant that the other one gives.
/// While such a twin is off its value has no influence and is not carried.
template <class Formel, class Kopplung, class Wert>
struct Schritt {
    Formel formel;
    Kopplung kopplung;
    Wert c;         ///< constant of the main value
    Wert cZwilling; ///< constant of the twin value

    auto operator()(Stand<Wert>& s) const {
        if constexpr (Formel::eigenerSchritt) {
            return formel.schritt(s, c, kopplung);
        } else {
            if (kopplung.art == 0) {
                return formel.haupt(s.z, c);
            }
            const Wert alt = s.z;
            const auto abbrHaupt = formel.haupt(s.z, kopplung.haupt(s.w, c));
            const auto abbrZwilling = formel.zwilling(s.w, kopplung.zwilling(alt, cZwilling));
            return Formel::abbruch(abbrHaupt, abbrZwilling);
        }
    }
};
