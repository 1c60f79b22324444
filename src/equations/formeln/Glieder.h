#pragma once

#include "equations/formeln/Formelwerte.h"
#include "equations/formeln/Quotient.h"

// The members of the power, eye and pole families: what they put in place of Z. ZS is the
// conjugate, Zm = Z*ZS. The order of the operations fixes the last bits of every picture.

namespace formeln {

/// A place in a family without a formula.
struct Keins {};

/// What a member says of itself; a new one overrides what does not suit.
struct Glied {
    static constexpr bool mitK = false; ///< reads the power K, of which 0 counts as 10
};

struct Z : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        return z;
    }
};

struct Z2 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        return z * z;
    }
};

struct Z3 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        return z * z * z;
    }
};

struct Z4 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        const K zq = z * z;
        return zq * zq;
    }
};

struct Z5 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return Z4::wert(z, werte) * z;
    }
};

struct Z6 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        const K zq = z * z;
        return zq * zq * zq;
    }
};

struct ZhochK : Glied {
    static constexpr bool mitK = true;
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return hochGanz(z, werte.k);
    }
};

struct ZS : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        return konj(z);
    }
};

struct Zm : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& /*werte*/) {
        return z * konj(z);
    }
};

struct ZmZ : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return Zm::wert(z, werte) * z;
    }
};

struct ZSZm : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return konj(z) * Zm::wert(z, werte);
    }
};

struct Zm2 : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        const K zm = Zm::wert(z, werte);
        return zm * zm;
    }
};

struct Zm2Z : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return Zm2::wert(z, werte) * z;
    }
};

/// Zm^(K/2), K even.
struct ZmHochHg : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return hochGanz(Zm::wert(z, werte), werte.hg);
    }
};

/// Zm^(K/2)*Z, K odd.
struct ZmHochHuZ : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return hochGanz(Zm::wert(z, werte), werte.hu) * z;
    }
};

/// ZS*Zm^(K/2), K odd.
struct ZSZmHochHu : Glied {
    template <class K>
    static constexpr K wert(const K& z, const Formelwerte& werte) {
        return konj(z) * hochGanz(Zm::wert(z, werte), werte.hu);
    }
};

} // namespace formeln
