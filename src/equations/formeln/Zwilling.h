#pragma once

#include "equations/formeln/Formelwerte.h"
#include "equations/formeln/Zahlen.h"

// The coupling of the twin orbit: the constant that is added to the main value Z comes from the
// twin value W, the twin's constant from Z. The number type is double or a vector of lanes.

/// Variant number of a kernel whose table ends at `letzte`: 0 = off (also for negative numbers), 1
/// to letzte, and letzte + 1 for all numbers above (the twin runs, both constants stay plain).
[[nodiscard, gnu::always_inline]] constexpr qint32 zwillingsart(qint32 g_ZwillingJa,
                                                                qint32 letzte) noexcept {
    return g_ZwillingJa <= 0 ? 0 : (g_ZwillingJa > letzte ? letzte + 1 : g_ZwillingJa);
}

/// The coupling that the twin settings ask for.
template <class Kopplung>
[[nodiscard, gnu::always_inline]] inline Kopplung kopplungAus(const Formelwerte& werte) {
    Kopplung k{};
    if constexpr (Kopplung::Letzte > 0) {
        k.art = zwillingsart(werte.zwilling, Kopplung::Letzte);
        k.px = werte.px;
        k.py = werte.py;
    }
    return k;
}

/// No twin: both constants stay plain.
struct OhneKopplung {
    static constexpr qint32 Letzte = 0;
    static constexpr qint32 art = 0;

    template <class Wert>
    [[nodiscard]] static constexpr Wert haupt(const Wert& /*w*/, const Wert& c) {
        return c;
    }
    template <class Wert>
    [[nodiscard]] static constexpr Wert zwilling(const Wert& /*z*/, const Wert& c) {
        return c;
    }
};

/// Coupling of the real-arithmetic kernels, variants 1 to 6. `c` is the plain constant. The sign
/// patterns of the variants are irregular on purpose.
struct ReelleKopplung {
    static constexpr qint32 Letzte = 6;

    qint32 art;    ///< as zwillingsart gives it
    double px, py; ///< coupling factors

    /// Constant of the main value, from the twin value w.
    template <class T>
    [[nodiscard]] constexpr Paar<T> haupt(const Paar<T>& w, const Paar<T>& c) const {
        const T &p = w.x, &t = w.y;
        switch (art) {
        case 1:
            return {px * p + c.x, py * t + c.y};
        case 2:
            return {(1.0 + px * p) * c.x, (1.0 - py * t) * c.y};
        case 3:
            return {(1.0 + px * p) * c.x, (1.0 + py * t) * c.y};
        case 4:
            return {px * p - py * t + c.x, py * p + px * t + c.y};
        case 5:
            return {c.x * px * p - c.y * px * t + c.x, c.y * px * p + c.x * px * t + c.y};
        case 6:
            return {c.x * px * p - c.y * px * t + c.x, c.y * py * p + c.x * py * t + c.y};
        default:
            return c;
        }
    }

    /// Constant of the twin value, from the old main value z.
    template <class T>
    [[nodiscard]] constexpr Paar<T> zwilling(const Paar<T>& z, const Paar<T>& c) const {
        const T &x = z.x, &y = z.y;
        switch (art) {
        case 1:
            return {c.x - px * x, c.y - py * y};
        case 2:
            return {(1.0 + px * x) * c.x, (1.0 - py * y) * c.y};
        case 3:
            return {(1.0 - px * x) * c.x, (1.0 - py * y) * c.y};
        case 4:
            return {c.x - (px * x - py * y), c.y - (px * y + py * x)};
        case 5:
            return {c.x - (c.x * px * x - c.y * px * y), c.y - (c.x * px * y + c.y * px * x)};
        case 6:
            return {c.x - (c.x * px * x - c.y * px * y), c.y - (c.x * py * y + c.y * py * x)};
        default:
            return c;
        }
    }
};

/// Coupling of equations 3 and 4: variant 5 of the main value is C(1 + KW) component by component.
struct AugenKopplung : ReelleKopplung {
    template <class T>
    [[nodiscard]] constexpr Paar<T> haupt(const Paar<T>& w, const Paar<T>& c) const {
        if (art == 5) {
            return {(1.0 + (px * w.x - py * w.y)) * c.x, (1.0 + (px * w.y + py * w.x)) * c.y};
        }
        return ReelleKopplung::haupt(w, c);
    }
};

/// Coupling of the complex kernels, variants 1 to 11. K is std::complex<double> or a complex type
/// of lanes. Variant 10 differs from 9 only in the twin's sign.
struct KomplexeKopplung {
    static constexpr qint32 Letzte = 11;

    qint32 art;    ///< as zwillingsart gives it
    double px, py; ///< coupling factors

    /// Constant of the main value, from the twin value w.
    template <class K>
    [[nodiscard]] constexpr K haupt(const K& w, const K& c) const {
        switch (art) {
        case 1:
            return reellHaupt<1>(w, c);
        case 2:
            return reellHaupt<2>(w, c);
        case 3:
            return reellHaupt<3>(w, c);
        case 6:
            return reellHaupt<6>(w, c);
        case 4:
            return c + konstante<K>(px, py) * w;
        case 5:
            return c * (eins<K>() + mal(px, w));
        case 7:
            return c * (konstante<K>(1.0, 1.0) + mal(px, w));
        case 8:
            return c * (eins<K>() + konstante<K>(px, py) * w);
        case 9:
        case 10:
            return c * (konstante<K>(1.0, 1.0) + konstante<K>(px, py) * w);
        case 11:
            return c * (konstante<K>(1.0, 1.0) - konstante<K>(px, py) * w);
        default:
            return c;
        }
    }

    /// Constant of the twin value, from the old main value z.
    template <class K>
    [[nodiscard]] constexpr K zwilling(const K& z, const K& c) const {
        switch (art) {
        case 1:
            return reellZwilling<1>(z, c);
        case 2:
            return reellZwilling<2>(z, c);
        case 3:
            return reellZwilling<3>(z, c);
        case 6:
            return reellZwilling<6>(z, c);
        case 4:
            return c - konstante<K>(px, py) * z;
        case 5:
            return c * (eins<K>() - mal(px, z));
        case 7:
            return c * (konstante<K>(1.0, 1.0) - mal(px, z));
        case 8:
            return c * (eins<K>() - konstante<K>(px, py) * z);
        case 9:
        case 11:
            return c * (konstante<K>(1.0, 1.0) - konstante<K>(px, py) * z);
        case 10:
            return c * (konstante<K>(1.0, 1.0) + konstante<K>(px, py) * z);
        default:
            return c;
        }
    }

  private:
    // The row of the real table; a constant number, so that the compiler keeps that row only.
    template <qint32 variante, class K>
    [[nodiscard]] constexpr K reellHaupt(const K& w, const K& c) const {
        return komplex<K>(ReelleKopplung{variante, px, py}.haupt(paar(w), paar(c)));
    }
    template <qint32 variante, class K>
    [[nodiscard]] constexpr K reellZwilling(const K& z, const K& c) const {
        return komplex<K>(ReelleKopplung{variante, px, py}.zwilling(paar(z), paar(c)));
    }

    template <class K>
    [[nodiscard]] static constexpr K mal(double faktor, const K& z) {
        return K(faktor * re(z), faktor * im(z));
    }
    template <class K>
    [[nodiscard]] static constexpr Paar<typename K::value_type> paar(const K& z) {
        return {re(z), im(z)};
    }
    template <class K>
    [[nodiscard]] static constexpr K komplex(const Paar<typename K::value_type>& z) {
        return K(z.x, z.y);
    }
};
