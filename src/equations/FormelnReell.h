#pragma once

#include "equations/Zwilling.h"

// The equations 1 to 6 in real arithmetic. T is double or a vector of lanes. The order of the
// operations fixes the last bits of every picture.

/// Z*Z + C.
struct Quadrat {
    template <class T>
    [[nodiscard]] static constexpr Paar<T> formel(const Paar<T>& z, const Paar<T>& a) {
        return {z.x * z.x - z.y * z.y + a.x, (z.x + z.x) * z.y + a.y};
    }
};

/// Z*ZS + C with ZS the conjugate: the product is real, so the imaginary part is C's alone.
struct Auge {
    template <class T>
    [[nodiscard]] static constexpr Paar<T> formel(const Paar<T>& z, const Paar<T>& a) {
        return {z.y * z.y + z.x * z.x + a.x, a.y};
    }
};

/// (Z + C) / (1 + C*Z^3). A denominator whose squared magnitude is below the threshold aborts the
/// orbit; main and twin have different thresholds on purpose.
struct Vierpol {
    static constexpr double SchwelleZwilling = 1e-10;
    double schwelle; ///< of the main value

    template <class T>
    auto haupt(Paar<T>& z, const Paar<T>& a) const {
        return formel(z, a) < schwelle;
    }
    template <class T>
    auto zwilling(Paar<T>& w, const Paar<T>& a) const {
        return formel(w, a) < SchwelleZwilling;
    }
    template <class Maske>
    static Maske abbruch(Maske haupt, Maske zwilling) {
        return haupt | zwilling;
    }

  private:
    /// Replaces z and returns the squared magnitude of the denominator.
    template <class T>
    static constexpr T formel(Paar<T>& z, const Paar<T>& a) {
        const T x2 = z.x * z.x - z.y * z.y;
        const T y2 = (z.x + z.x) * z.y;
        const T x3 = x2 * z.x - y2 * z.y;
        const T y3 = y2 * z.x + x2 * z.y;
        const T nx = z.x + a.x;
        const T ny = z.y + a.y;
        const T dx = 1.0 + a.x * x3 - a.y * y3;
        const T dy = a.y * x3 + a.x * y3;
        const T norm = dx * dx + dy * dy;
        z = {(ny * dy + nx * dx) / norm, (ny * dx - nx * dy) / norm};
        return norm;
    }
};

/// Newton's step for the cube root of r in commutative hypercomplex numbers of four real
/// components, H = z + jw with z = x + iy, w = p + it and i^2 = j^2 = -1, ij = ji. With the
/// idempotents (1 - ij)/2 and (1 + ij)/2 the algebra splits into two copies of the complex numbers,
/// z - iw and z + iw, and the step H - (H^3 - r)/(3 H^2) into one complex Newton step for each. So
/// the nine roots of H are the pairs of complex cube roots. (Zero divisors, and with them a
/// vanishing derivative, lie where one of the two components is 0.) A derivative whose squared
/// magnitude is below 1e-20 aborts the orbit. With a twin on, r is the constant that w gives.
template <class T>
struct Hyperwurzel {
    static constexpr bool zaehltAbbruch = true;
    static constexpr double Schwelle = 1e-20;

    ReelleKopplung kopplung;
    Paar<T> c;

    auto operator()(Stand<Paar<T>>& s) const {
        const Paar<T> r = kopplung.haupt(s.w, c);
        Paar<T> minus{s.z.x + s.w.y, s.z.y - s.w.x};
        Paar<T> plus{s.z.x - s.w.y, s.z.y + s.w.x};
        const auto abbrMinus = newton(minus, r) < Schwelle;
        const auto abbrPlus = newton(plus, r) < Schwelle;
        s.z = {0.5 * (minus.x + plus.x), 0.5 * (minus.y + plus.y)};
        s.w = {0.5 * (plus.y - minus.y), 0.5 * (minus.x - plus.x)};
        return abbrMinus | abbrPlus;
    }

  private:
    /// Replaces e by e - (e^3 - r)/(3 e^2) and returns the squared magnitude of 3 e^2.
    static constexpr T newton(Paar<T>& e, const Paar<T>& r) {
        const T x2 = e.x * e.x - e.y * e.y;
        const T y2 = (e.x + e.x) * e.y;
        const T nx = x2 * e.x - y2 * e.y - r.x;
        const T ny = y2 * e.x + x2 * e.y - r.y;
        const T dx = 3.0 * x2;
        const T dy = 3.0 * y2;
        const T norm = dx * dx + dy * dy;
        e = {e.x - (nx * dx + ny * dy) / norm, e.y - (ny * dx - nx * dy) / norm};
        return norm;
    }
};
