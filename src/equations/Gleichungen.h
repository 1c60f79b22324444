#pragma once

#include <QtGlobal>

#include <span>
#include <string_view>

/// One equation of the catalogue. Its row is the only place where its name is known.
struct Gleichung {
    qint32 nummer = 0;     ///< 1..10 real arithmetic, 101..912 complex arithmetic
    std::string_view name; ///< UTF-8, as the window title shows it; blanks at the end belong to it
};

/// The catalogue, sorted by number; window, documentation and tests iterate it.
[[nodiscard]] std::span<const Gleichung> gleichungen() noexcept;

/// The row of a plain (not folded) equation number, nullptr for a number without an equation.
[[nodiscard]] const Gleichung* findeGleichung(qint32 nummer) noexcept;

/// The last two digits, which choose the kernel of a complex equation: 1/2 powers, 3/4 eye,
/// 5/6 poles, 7/8 complex exponents, 9/10 Newton roots, 11/12 poles built from z * conj(z); odd
/// = Mandelbrot type, even = Julia type. A number below 0 has a family below 1.
[[nodiscard]] constexpr qint32 familie(qint32 nummer) noexcept { return nummer % 100; }

/// The equation with the same formula and the other type: an odd number's Julia equation is the
/// next even one, and back. 0 for numbers without an equation and for the Newton equations, which
/// stand alone.
[[nodiscard]] qint32 juliaPartner(qint32 nummer) noexcept;
