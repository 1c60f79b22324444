#pragma once

#include <QtGlobal>

#include <complex>

// Values of an orbit. The number type T is double, or a vector of lanes that carries many pixels.

/// A value x + iy of the real-arithmetic equations.
template <class T>
struct Paar {
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

/// State of an orbit: main value Z and twin value W.
template <class Wert>
struct Stand {
    Wert z;
    Wert w;
};
