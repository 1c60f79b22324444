#pragma once

#include "equations/formeln/Glieder.h"

// The members of the Newton families: the power of Z in the polynomial, and the derivative or what
// stands in its place, in terms of the factor B. They read
//     polynom(z, werte)        Z^n
//     ableitung(z, b, werte)   B*Z^(n-1)
//     faktor<K>(werte)         B, the degree of the polynomial
// The order of the operations fixes the last bits of every picture.

namespace formeln {

/// A factor with two whole parts.
template <int realteil, int imaginaerteil = 0>
struct FesterFaktor : Glied {
    template <class K>
    static constexpr K faktor(const Formelwerte& /*werte*/) {
        return konstante<K>(realteil, imaginaerteil);
    }
};

/// The factor K.
struct FaktorK : Glied {
    static constexpr bool mitK = true;
    template <class K>
    static constexpr K faktor(const Formelwerte& werte) {
        return konstante<K>(static_cast<double>(werte.k));
    }
};

template <class K>
[[nodiscard]] constexpr K quadrat(const K& z) {
    return z * z;
}

/// Z^2.
struct Wurzel2 : FesterFaktor<2> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(z);
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * z;
    }
};

/// Z^3, with the factor 3 or another.
template <class Faktor>
struct DritteWurzel : Faktor {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(z) * z;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * quadrat(z);
    }
};
using Wurzel3 = DritteWurzel<FesterFaktor<3>>;
using Wurzel3Schraeg = DritteWurzel<FesterFaktor<3, 3>>;

/// Z^4.
struct Wurzel4 : FesterFaktor<4> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(quadrat(z));
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * quadrat(z) * z;
    }
};

/// Z^5, with the factor 5 or another.
template <class Faktor>
struct FuenfteWurzel : Faktor {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(quadrat(z)) * z;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * quadrat(quadrat(z));
    }
};
using Wurzel5 = FuenfteWurzel<FesterFaktor<5>>;
using Wurzel5Schraeg = FuenfteWurzel<FesterFaktor<5, 5>>;

/// Z^6.
struct Wurzel6 : FesterFaktor<6> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        const K zq = quadrat(z);
        return quadrat(zq) * zq;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * quadrat(quadrat(z)) * z;
    }
};

/// Z^7.
struct Wurzel7 : FesterFaktor<7> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        const K zq = quadrat(z);
        return quadrat(zq) * zq * z;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        const K zq = quadrat(z);
        return b * quadrat(zq) * zq;
    }
};

/// Z^8.
struct Wurzel8 : FesterFaktor<8> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(quadrat(quadrat(z)));
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        const K zq = quadrat(z);
        return b * quadrat(zq) * zq * z;
    }
};

/// Z^9.
struct Wurzel9 : FesterFaktor<9> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(quadrat(quadrat(z))) * z;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        const K z4 = quadrat(quadrat(z));
        return b * z4 * z4;
    }
};

/// Z^K.
struct WurzelK : FaktorK {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& werte) {
        return hochGanz(z, werte.k);
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& werte) {
        return b * hochGanz(z, werte.k - 1);
    }
};

/// Z^3 over 3*Z*ZS.
struct Augenwurzel3 : FesterFaktor<3> {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return quadrat(z) * z;
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& /*werte*/) {
        return b * z * konj(z);
    }
};

/// Z*ZS*Z over 3*Z*ZS.
struct AugenwurzelZm : Augenwurzel3 {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return z * konj(z) * z;
    }
};

/// Z*ZS*Z over 3*Z^2.
struct AugenwurzelZ2 : Wurzel3 {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& /*werte*/) {
        return z * konj(z) * z;
    }
};

/// Zm^(K/2), K even.
struct AugenwurzelHg : FaktorK {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& werte) {
        return hochGanz(z * konj(z), werte.hg);
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& werte) {
        return b * hochGanz(z * konj(z), werte.hg - 1);
    }
};

/// ZS*Zm^(K/2), K odd.
struct AugenwurzelHu : FaktorK {
    template <class K>
    static constexpr K polynom(const K& z, const Formelwerte& werte) {
        return konj(z) * hochGanz(z * konj(z), werte.hu);
    }
    template <class K>
    static constexpr K ableitung(const K& z, const K& b, const Formelwerte& werte) {
        return b * konj(z) * hochGanz(z * konj(z), werte.hu - 1);
    }
};

} // namespace formeln
