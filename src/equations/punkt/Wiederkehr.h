#pragma once

#include "equations/formeln/Zahlen.h"

#include <bit>

/// Steps after which the kept state is renewed, at step n of an orbit. The distances grow with n,
/// as in Brent's method of finding a cycle, by a quarter rather than doubling: a settled orbit is
/// recognised at most so much later. At least 8, so that short periods fit at once.
[[nodiscard, gnu::always_inline]] constexpr qint64 wiederkehrFenster(qint64 n) noexcept {
    return n < 32 ? 8 : n / 4;
}

/// Looks for the return of an orbit to an earlier state, equal to the bit.
template <class Wert>
class Wiederkehr {
  public:
    explicit Wiederkehr(const Stand<Wert>& s) : gemerkt(s) {}

    /// Takes the next state. Returns a multiple of the period when the state has come back, else 0.
    qint64 periode(const Stand<Wert>& s) {
        ++abstand;
        if (bitgleich(s.z, gemerkt.z) && bitgleich(s.w, gemerkt.w)) {
            return abstand;
        }
        if (abstand == fenster) {
            schritte += abstand;
            fenster = wiederkehrFenster(schritte);
            abstand = 0;
            gemerkt = s;
        }
        return 0;
    }

  private:
    static bool bitgleich(const Wert& a, const Wert& b) {
        return std::bit_cast<quint64>(re(a)) == std::bit_cast<quint64>(re(b)) &&
               std::bit_cast<quint64>(im(a)) == std::bit_cast<quint64>(im(b));
    }

    Stand<Wert> gemerkt;
    qint64 schritte = 0; ///< at which the state was kept
    qint64 abstand = 0;  ///< steps since then
    qint64 fenster = wiederkehrFenster(0);
};
