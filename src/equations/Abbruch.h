#pragma once

#include <QtGlobal>

#include <cmath>

/// The bailout measures, by their number glg_Abbruch. The two cycle searches need the history of
/// the orbit; the others are functions of the main value alone.
enum class Abbruchart : qint32 {
    Betrag = 0,       ///< sqrt(x^2 + y^2)
    Norm = 1,         ///< x^2 + y^2
    Betragssumme = 2, ///< |x| + |y|
    Summe = 3,        ///< x + y; a negative sum never escapes
    Delta = 4,        ///< cycle search: distance to the matching earlier value
    Zyklen = 5,       ///< cycle search: length of the cycle
    Hyperbel = 6,     ///< h = x^2 - y^2
    Hyperbel2 = 7,    ///< h^2
    Hyperbel3 = 8,    ///< h^3
    Hyperbel4 = 9,    ///< h^4
};

inline constexpr qint32 AbbruchMax = 9;

[[nodiscard]] constexpr bool istZyklussuche(Abbruchart art) noexcept {
    return art == Abbruchart::Delta || art == Abbruchart::Zyklen;
}

[[nodiscard]] inline double wurzel(double wert) noexcept { return std::sqrt(wert); }
[[nodiscard]] inline double absolut(double wert) noexcept { return std::fabs(wert); }

/// Measure of the value (x, y), plane units to the measure's power. T is double or a vector of
/// lanes with `wurzel` and `absolut`. The cycle searches have no measure of this kind and give 0.
template <class T>
[[nodiscard]] constexpr T betragOhneZyklus(Abbruchart art, const T& x, const T& y) {
    const auto hyperbel = [&] { return x * x - y * y; };
    switch (art) {
    case Abbruchart::Betrag:
        return wurzel(x * x + y * y);
    case Abbruchart::Norm:
        return y * y + x * x;
    case Abbruchart::Betragssumme:
        return absolut(x) + absolut(y);
    case Abbruchart::Summe:
        return x + y;
    case Abbruchart::Hyperbel:
        return hyperbel();
    case Abbruchart::Hyperbel2: {
        const T h = hyperbel();
        return h * h;
    }
    case Abbruchart::Hyperbel3: {
        const T h = hyperbel();
        return h * h * h;
    }
    case Abbruchart::Hyperbel4: {
        const T h = hyperbel();
        return h * h * h * h;
    }
    case Abbruchart::Delta:
    case Abbruchart::Zyklen:
        break;
    }
    return T(0.0);
}

class Mandelbrot;

/// The repairs with which every bailout test begins, lasting ones of the model: a variant outside
/// 0..9 (or above g_Max_glg_Abbruch) becomes 0; with a cycle search g_zycmax 0 becomes 7 and a
/// number above 24 becomes 24. Sets g_GenauJa. Returns the variant in force.
Abbruchart abbruchVorbereiten(const Mandelbrot& m);

/// Measure of a cycle search after abbruchVorbereiten; also keeps (x, y) in the history. Gives
/// -g_Genauigkeit as long as no earlier value matches.
double zyklusBetrag(const Mandelbrot& m, Abbruchart art, double x, double y);
