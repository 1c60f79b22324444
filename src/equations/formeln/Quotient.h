#pragma once

#include "equations/formeln/Zahlen.h"

// The complex quotient, one for a single pixel and for lanes: equal to the bit to the standard
// library's on x86-64, and the same on every other processor, where the library may fuse products
// and sums. It is Smith's method (R. L. Smith, Algorithm 116, 1962) with the care for very small
// and very large parts of Baudin and Smith (A robust complex division in Scilab, 2012).

namespace quotient {

inline constexpr double Kleinste = 0x1p-1022;                   ///< smallest normal number
inline constexpr double HalbeGroesste = 0x1.fffffffffffffp1022; ///< half the largest number
inline constexpr double Epsilon = 0x1p-52;
inline constexpr double Vergroesserung = 0x1p52;
inline constexpr double Vergroesserbar = HalbeGroesste * Epsilon;

/// Numerator and denominator, each ordered by the parts of the denominator: g + k is its larger and
/// smaller part, u and v are the numerator's parts on the same places.
template <class T>
struct Teile {
    T u, v, g, k;

    void strecken(const T& faktor) {
        u = u * faktor;
        v = v * faktor;
        g = g * faktor;
        k = k * faktor;
    }
};

/// Moves the parts into the range where no intermediate result is lost.
template <class T>
void einpassen(Teile<T>& t) {
    const T halb = wahl(absolut(t.g) < HalbeGroesste, T(1.0), T(0.5));
    t.strecken(halb);
    const T u = absolut(t.u), v = absolut(t.v), g = absolut(t.g);
    const auto einerKlein = ((u < Kleinste) & (v < Vergroesserbar) & (g < Vergroesserbar)) |
                            ((v < Kleinste) & (u < Vergroesserbar) & (g < Vergroesserbar));
    t.strecken(wahl((g < Epsilon) | einerKlein, T(Vergroesserung), T(1.0)));
}

/// Whether einpassen has something to do in any lane.
template <class T>
[[nodiscard]] bool passtNicht(const Teile<T>& t) {
    const T u = absolut(t.u), v = absolut(t.v), g = absolut(t.g);
    return eine((u < Kleinste) | (v < Kleinste) | (g < Epsilon) | nicht(g < HalbeGroesste));
}

} // namespace quotient

/// z / n. In lanes, a quotient whose parts are both NaN is left to the point kernel; there the
/// library decides, which recovers infinities.
template <class K>
[[nodiscard]] K geteilt(const K& z, const K& n) {
    using T = typename K::value_type;
    const auto getauscht = absolut(re(n)) < absolut(im(n));
    quotient::Teile<T> t{wahl(getauscht, im(z), re(z)), wahl(getauscht, re(z), im(z)),
                         wahl(getauscht, im(n), re(n)), wahl(getauscht, re(n), im(n))};
    if (quotient::passtNicht(t)) {
        quotient::einpassen(t);
    }
    const T q = t.k / t.g;
    const T norm = t.k * q + t.g;
    T uq = t.u * q;
    T vq = t.v * q;
    const auto winzig = nicht(T(quotient::Kleinste) < absolut(q));
    if (eine(winzig)) {
        uq = wahl(winzig, t.k * (t.u / t.g), uq);
        vq = wahl(winzig, t.k * (t.v / t.g), vq);
    }
    // Not the one difference negated: the sign of a zero would differ.
    const T x = (t.u + vq) / norm;
    const T y = wahl(getauscht, uq - t.v, t.v - uq) / norm;
    if constexpr (std::is_same_v<T, double>) {
        if (std::isnan(x) && std::isnan(y)) {
            return z / n;
        }
    }
    return K(x, y);
}

/// z^n by repeated squaring, equal to the bit to the standard library's complex power for an int
/// exponent; z^0 is 1, a negative exponent gives the reciprocal. Any n is safe.
template <class K>
[[nodiscard]] constexpr K hochGanz(K z, qint64 n) {
    quint64 rest = n < 0 ? quint64{0} - static_cast<quint64>(n) : static_cast<quint64>(n);
    K potenz = rest % 2 == 1 ? z : eins<K>();
    while ((rest >>= 1) != 0) {
        z = z * z;
        if (rest % 2 == 1) {
            potenz = potenz * z;
        }
    }
    return n < 0 ? geteilt(eins<K>(), potenz) : potenz;
}
