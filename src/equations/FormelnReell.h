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
