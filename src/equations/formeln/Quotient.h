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

/// Numerator and denominator, ordered by the denominator: g and k are its larger and its smaller
/// part, u and v the numerator's parts in the same places.
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

/// What leads from the parts to the quotient: norm = g + k*q with q = k/g, and the numerator's
/// parts times q.
template <class T>
struct Zwischenwerte {
    T q, norm, uq, vq;

    explicit Zwischenwerte(const Teile<T>& t)
        : q(t.k / t.g), norm(t.k * q + t.g), uq(t.u * q), vq(t.v * q) {}
};

/// Lanes where nothing underflows or overflows on the way, so that the plain order is exact:
/// neither the parts nor q are below the normal numbers, and g is neither small nor huge.
template <class T>
[[nodiscard]] auto gutartig(const Teile<T>& t, const T& q) {
    const T g = absolut(t.g);
    const T kleinstes = kleineres(kleineres(absolut(t.u), absolut(t.v)), absolut(q));
    const auto gNormal = nicht(g < Epsilon);
    return (T(Kleinste) < kleinstes) & gNormal & (g < HalbeGroesste);
}

/// Lanes where the same holds although some parts are zero, as they are for ever once an orbit has
/// come to the real axis: a zero stays a zero of the same sign in every order and at every scale.
template <class T>
[[nodiscard]] auto gutartigMitNull(const Teile<T>& t, const Zwischenwerte<T>& w) {
    const T u = absolut(t.u), v = absolut(t.v), g = absolut(t.g), q = absolut(w.q);
    const T uq = absolut(w.uq), vq = absolut(w.vq);
    const auto uNull = nicht(T(0.0) < u), vNull = nicht(T(0.0) < v);
    const auto kNull = nicht(T(0.0) < absolut(t.k));
    const auto uNormal = nicht(u < Kleinste), vNormal = nicht(v < Kleinste);
    const auto gNormal = nicht(g < Epsilon);
    const auto teile = (uNull | uNormal) & (vNull | vNormal) & (u < Vergroesserbar) &
                       (v < Vergroesserbar) & gNormal & (g < HalbeGroesste);
    // Strictly: a product that was rounded up to the smallest normal number has lost bits.
    const auto produkte =
        (uNull | (T(Kleinste) < uq)) & (vNull | (T(Kleinste) < vq)) & (T(Kleinste) < q);
    return teile & (kNull | produkte);
}

/// Moves the parts into the range where no intermediate result is lost.
template <class T>
void einpassen(Teile<T>& t) {
    t.strecken(wahl(absolut(t.g) < HalbeGroesste, T(1.0), T(0.5)));
    const T u = absolut(t.u), v = absolut(t.v), g = absolut(t.g);
    const auto einerKlein = ((u < Kleinste) & (v < Vergroesserbar) & (g < Vergroesserbar)) |
                            ((v < Kleinste) & (u < Vergroesserbar) & (g < Vergroesserbar));
    t.strecken(wahl((g < Epsilon) | einerKlein, T(Vergroesserung), T(1.0)));
}

/// The quotient from its parts; `getauscht` where the imaginary part of the denominator is the
/// larger one.
template <class K, class T, class Maske>
[[nodiscard]] K ausTeilen(Teile<T> t, const Maske& getauscht) {
    Zwischenwerte<T> w(t);
    if (eine(nicht(gutartig(t, w.q))) && eine(nicht(gutartigMitNull(t, w)))) {
        einpassen(t);
        w = Zwischenwerte<T>(t);
        // The other order, where the ratio of the denominator's parts would be too coarse.
        const auto winzig = nicht(T(Kleinste) < absolut(w.q));
        w.uq = wahl(winzig, t.k * (t.u / t.g), w.uq);
        w.vq = wahl(winzig, t.k * (t.v / t.g), w.vq);
    }
    const T x = (t.u + w.vq) / w.norm;
    // Exchanged, not negated: the sign of a zero would differ.
    tauschen(getauscht, t.v, w.uq);
    return K(x, (t.v - w.uq) / w.norm);
}

} // namespace quotient

/// z / n of a single pixel: compiled once, like the library's, and by value, so that the parts stay
/// in registers. Where both parts are NaN the library decides, which recovers infinities.
[[nodiscard]] std::complex<double> geteilt(std::complex<double> z, std::complex<double> n);

/// z / n in lanes. A quotient whose parts are both NaN is left to the point kernel.
template <class T>
[[nodiscard]] Spurenkomplex<T> geteilt(const Spurenkomplex<T>& z, const Spurenkomplex<T>& n) {
    const auto getauscht = absolut(n.x) < absolut(n.y);
    quotient::Teile<T> t{z.x, z.y, n.x, n.y};
    tauschen(getauscht, t.u, t.v);
    tauschen(getauscht, t.g, t.k);
    return quotient::ausTeilen<Spurenkomplex<T>>(t, getauscht);
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
