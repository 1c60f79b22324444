#pragma once

#include "equations/FormelnKomplex.h"

/// The constants of one Newton picture.
template <class K>
struct NewtonKonstanten {
    K faktor;         ///< factor of the derivative, the degree of the polynomial
    K p;              ///< the number whose root is sought (the even numbers)
    K a;              ///< further factor of the derivative
    qint64 k, hg, hu; ///< the power K, its half for even and for odd K
};

/// One Newton equation Z - N/D by its number, 109 to 910 (families 09 and 10).
template <int nummer>
struct NewtonFormel {
    static constexpr bool Einswurzel = nummer % 100 == 9;

    /// Numerator N: the polynomial whose root is sought.
    template <class K>
    [[nodiscard]] static constexpr K zaehler(const K& z, const NewtonKonstanten<K>& c) {
        return polynom(z, c) - (Einswurzel ? eins<K>() : c.p);
    }

    /// Denominator D: the derivative times the factor a, or what stands in its place.
    template <class K>
    [[nodiscard]] static constexpr K nenner(const K& z, const NewtonKonstanten<K>& c) {
        return ableitung(z, c) * c.a;
    }

  private:
    template <class K>
    static constexpr K polynom(const K& z, const NewtonKonstanten<K>& c) {
        const K zq = z * z;
        const K z4 = zq * zq;
        switch (nummer) {
        case 210:
            return zq;
        case 109:
        case 209:
        case 509:
        case 310:
            return zq * z;
        case 609:
        case 709:
            return z * konj(z) * z;
        case 410:
            return z4;
        case 309:
        case 409:
        case 510:
            return z4 * z;
        case 610:
            return z4 * zq;
        case 710:
            return z4 * zq * z;
        case 810:
            return z4 * z4;
        case 910:
            return z4 * z4 * z;
        case 110:
            return hochGanz(z, c.k);
        case 809:
            return hochGanz(z * konj(z), c.hg);
        default:
            static_assert(istBekannt());
            return konj(z) * hochGanz(z * konj(z), c.hu);
        }
    }

    template <class K>
    static constexpr K ableitung(const K& z, const NewtonKonstanten<K>& c) {
        const K zq = z * z;
        const K z4 = zq * zq;
        switch (nummer) {
        case 210:
            return c.faktor * z;
        case 109:
        case 209:
        case 709:
        case 310:
            return c.faktor * zq;
        case 509:
        case 609:
            return c.faktor * z * konj(z);
        case 410:
            return c.faktor * zq * z;
        case 309:
        case 409:
        case 510:
            return c.faktor * z4;
        case 610:
            return c.faktor * z4 * z;
        case 710:
            return c.faktor * z4 * zq;
        case 810:
            return c.faktor * z4 * zq * z;
        case 910:
            return c.faktor * z4 * z4;
        case 110:
            return c.faktor * hochGanz(z, c.k - 1);
        case 809:
            return c.faktor * hochGanz(z * konj(z), c.hg - 1);
        default:
            return c.faktor * konj(z) * hochGanz(z * konj(z), c.hu - 1);
        }
    }

    static constexpr bool istBekannt() {
        return nummer >= 109 && nummer <= 910 && (nummer % 100 == 9 || nummer % 100 == 10);
    }
};
