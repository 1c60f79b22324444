#pragma once

#include "equations/formeln/Zahlen.h"

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

/// Measure of a cycle search by distance: dd from the matching value, plane units, with the
/// tolerance genau.
template <class T>
[[nodiscard]] constexpr T deltabetrag(double farben, const T& dd, const T& genau) {
    return 100.0 + 2.0 * (farben * (dd / genau));
}

/// Measure of a cycle search by length: a match with entry `zyklus` of a history up to `letzter`,
/// which is not 0.
[[nodiscard, gnu::always_inline]] constexpr double laengenbetrag(qint32 farben, qint32 letzter,
                                                                 qint32 zyklus) noexcept {
    const qint64 skalierung = qint64{farben} / letzter;
    return static_cast<double>((zyklus + 1) * skalierung + 100);
}

/// Measure of the value (x, y), plane units to the measure's power. T is double or a vector of
/// lanes, which know no Betrag: they measure its square. The cycle searches have no measure of this
/// kind and give 0.
template <class T>
[[nodiscard]] constexpr T betragOhneZyklus(Abbruchart art, const T& x, const T& y) {
    const auto hyperbel = [&] { return x * x - y * y; };
    switch (art) {
    case Abbruchart::Betrag:
        if constexpr (std::is_same_v<T, double>) {
            return std::sqrt(x * x + y * y);
        }
        break;
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
