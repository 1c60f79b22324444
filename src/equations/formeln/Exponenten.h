#pragma once

#include "equations/formeln/Glieder.h"

// The members of the exponent family: complex powers with the principal branch of the logarithm.
// They are the library's, to the bit, and so not for lanes.

namespace formeln {

/// P(Z) of a single pixel.
struct Exponentglied : Glied {
    using K = std::complex<double>;
};

/// Z^ZS.
struct ZhochZS : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) { return std::pow(z, konj(z)); }
};

/// Z^Z.
struct ZhochZ : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) { return std::pow(z, z); }
};

/// Z^(-Z).
struct ZhochMinusZ : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) { return std::pow(z, -z); }
};

/// Z^(1/Z).
struct ZhochKehrwert : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) {
        return std::pow(z, geteilt(eins<K>(), z));
    }
};

/// Z^(-ZS).
struct ZhochMinusZS : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) { return std::pow(z, -konj(z)); }
};

/// Z^(1/ZS).
struct ZhochKehrwertZS : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) {
        return std::pow(z, geteilt(eins<K>(), konj(z)));
    }
};

/// ZS^Z.
struct ZShochZ : Exponentglied {
    static K wert(const K& z, const Formelwerte& /*werte*/) { return std::pow(konj(z), z); }
};

} // namespace formeln
