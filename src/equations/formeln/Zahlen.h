#pragma once

#include <QtGlobal>

#include <cmath>
#include <complex>
#include <type_traits>
#include <utility>

// Values of an orbit. The number type T is double, or a vector of lanes that carries many pixels.
//
// Formulas are compiled for several instruction sets, and the linker keeps any one copy of a shared
// function. So whatever lanes call is a template over a type of lanes, or always inlined.

/// A value x + iy of the real-arithmetic equations.
template <class T>
struct Paar {
    using value_type = T;
    T x;
    T y;
};

template <class T>
[[nodiscard]] constexpr T re(const Paar<T>& z) {
    return z.x;
}
template <class T>
[[nodiscard]] constexpr T im(const Paar<T>& z) {
    return z.y;
}
template <class T>
[[nodiscard]] constexpr T re(const std::complex<T>& z) {
    return z.real();
}
template <class T>
[[nodiscard]] constexpr T im(const std::complex<T>& z) {
    return z.imag();
}

/// Complex number of lanes. The product is the plain one: where both parts come out NaN the
/// library's product may recover an infinity, and the pixel is left to the point kernel.
template <class T>
struct Spurenkomplex {
    using value_type = T;
    T x;
    T y;

    Spurenkomplex() = default;
    Spurenkomplex(const T& realteil, const T& imaginaerteil) : x(realteil), y(imaginaerteil) {}

    friend T re(const Spurenkomplex& z) { return z.x; }
    friend T im(const Spurenkomplex& z) { return z.y; }
    friend Spurenkomplex operator+(const Spurenkomplex& l, const Spurenkomplex& r) {
        return {l.x + r.x, l.y + r.y};
    }
    friend Spurenkomplex operator-(const Spurenkomplex& l, const Spurenkomplex& r) {
        return {l.x - r.x, l.y - r.y};
    }
    friend Spurenkomplex operator*(const Spurenkomplex& l, const Spurenkomplex& r) {
        return {l.x * r.x - l.y * r.y, l.x * r.y + l.y * r.x};
    }
};

/// The complex number of the number type T.
template <class T>
using KomplexVon =
    std::conditional_t<std::is_same_v<T, double>, std::complex<double>, Spurenkomplex<T>>;

/// The conjugate ZS.
template <class K>
[[nodiscard]] constexpr K konj(const K& z) {
    return K(re(z), -im(z));
}

/// A complex constant.
template <class K>
[[nodiscard]] constexpr K konstante(double realteil, double imaginaerteil = 0.0) {
    using T = typename K::value_type;
    return K(T(realteil), T(imaginaerteil));
}

/// 1 + 0i.
template <class K>
[[nodiscard]] constexpr K eins() {
    return konstante<K>(1.0);
}

/// State of an orbit: main value Z and twin value W.
template <class Wert>
struct Stand {
    Wert z;
    Wert w;
};

// What lanes do with their own types, for a single number. (Spuren.h has the lanes' side.)

[[nodiscard]] inline double absolut(double wert) noexcept { return std::fabs(wert); }
[[nodiscard]] constexpr double wahl(bool m, double dann, double sonst) noexcept {
    return m ? dann : sonst;
}
inline void tauschen(bool m, double& l, double& r) noexcept {
    if (m) {
        std::swap(l, r);
    }
}
[[nodiscard]] constexpr double kleineres(double l, double r) noexcept { return l < r ? l : r; }
[[nodiscard]] constexpr bool nicht(bool m) noexcept { return !m; }
[[nodiscard]] constexpr bool eine(bool m) noexcept { return m; }

/// A start coordinate pushed off zero: below `grenze` in magnitude it becomes +grenze, or -grenze
/// when it is negative.
template <class T>
[[nodiscard]] constexpr T abgerueckt(const T& wert, double grenze) {
    return wahl(absolut(wert) < grenze, wahl(wert < 0.0, T(-grenze), T(grenze)), wert);
}
template <class K>
[[nodiscard]] constexpr K beideAbgerueckt(const K& z, double grenze) {
    return K{abgerueckt(re(z), grenze), abgerueckt(im(z), grenze)};
}
