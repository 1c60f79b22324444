#pragma once

#include "equations/zeile/Rundenlauf.h"
#include "equations/zeile/Satz.h"
#include "equations/zeile/Zyklenlauf.h"

// From the list to the functions of a group, for the instruction set that is being compiled.

/// Runs a piece with the loop that its settings ask for.
template <class Satz, class Formel>
class Laufwahl {
  public:
    static void rechnen(Zeilenstueck& r) {
        if constexpr (Formel::Kopplung::Letzte > 0) {
            if (r.werte.zwilling > 0) {
                return mitMass<true>(r);
            }
        }
        mitMass<false>(r);
    }

  private:
    template <bool mitZwilling>
    static void mitMass(Zeilenstueck& r) {
        if (r.abbruchart == Abbruchart::Delta || r.abbruchart == Abbruchart::Zyklen) {
            Zyklenlauf<Satz, Formel, mitZwilling>(r).rechnen();
        } else {
            Rundenlauf<Satz, Formel, mitZwilling>(r).rechnen();
        }
    }
};

template <class Satz, class Formel>
[[nodiscard]] consteval Zeilenlauf zeilenlauf() {
    if constexpr (requires { requires Formel::inSpuren; }) { // an empty place is void
        return &Laufwahl<Satz, Formel>::rechnen;
    }
    return nullptr;
}

template <class Satz, class Formeln>
struct Zeilenlaeufe;

/// The functions by place. A plain array: one of the library would bring shared functions.
template <class Satz, class... Formel>
struct Zeilenlaeufe<Satz, formeln::Liste<Formel...>> {
    static constexpr Zeilenlauf Tafel[] = {zeilenlauf<Satz, Formel>()...};
};

template <Befehlssatz satz, class Gruppe>
const Zeilenlauf* zeilentafel() {
    return Zeilenlaeufe<typename Satzwahl<satz>::Typ, typename Gruppe::Formeln>::Tafel;
}
