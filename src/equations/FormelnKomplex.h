#pragma once

#include "equations/Abbruch.h"
#include "equations/Zahlen.h"

#include <array>

// The complex equations that need nothing but products, sums and quotients. K is
// std::complex<double> or a complex type of lanes. The order of the operations fixes the last bits
// of every picture.

template <class K>
[[nodiscard]] constexpr K konj(const K& z) {
    return K(re(z), -im(z));
}

/// 1 + 0i.
template <class K>
[[nodiscard]] constexpr K eins() {
    return K(typename K::value_type(1.0), typename K::value_type(0.0));
}

/// z^n by repeated squaring, equal to the bit to the standard library's complex power for an int
/// exponent; z^0 is 1, a negative exponent gives the reciprocal. Any n is safe.
template <class K>
[[nodiscard]] constexpr K hochGanz(K z, qint64 n) {
    quint64 rest = n < 0 ? quint64{0} - static_cast<quint64>(n) : static_cast<quint64>(n);
    K potenz = rest % 2 == 1 ? z : eins<K>();
    while ((rest >>= 1) != 0) {
        z = z * z;
        if (rest % 2 == 1) {
            potenz = potenz * z;
        }
    }
    if constexpr (requires { potenz / potenz; }) {
        return n < 0 ? eins<K>() / potenz : potenz;
    } else {
        return potenz; // lanes have no quotient and get no negative exponent
    }
}

/// What the power, eye and pole equations put in place of Z. ZS is the conjugate, Zm = Z*ZS. A new
/// one needs its value in termWert, its place in a family's table, and an entry in the list of that
/// family's kernel (KernTerm.cpp); without the last, its equation stands still.
enum class Term {
    Keiner, ///< the number has no formula
    Z,
    Z2,
    Z3,
    Z4,
    Z5,
    Z6,
    ZhochK,
    ZS,
    Zm,
    ZmZ,
    ZSZm,
    Zm2,
    Zm2Z,
    ZmHochHg,   ///< Zm^(K/2), K even
    ZmHochHuZ,  ///< Zm^(K/2)*Z, K odd
    ZSZmHochHu, ///< ZS*Zm^(K/2), K odd
};

/// Index: the hundreds digit of the equation number. Families 01/02, 03/04, 05/06 and 11/12.
using Termtabelle = std::array<Term, 10>;
inline constexpr Termtabelle PotenzTerme = {Term::Keiner, Term::Z2, Term::Z3,
                                            Term::Z4,     Term::Z5, Term::ZhochK};
inline constexpr Termtabelle AugenTerme = {Term::Keiner,    Term::Zm,        Term::ZmZ,
                                           Term::ZSZm,      Term::Zm2,       Term::ZmHochHg,
                                           Term::ZmHochHuZ, Term::ZSZmHochHu};
inline constexpr Termtabelle PolTerme = {Term::Keiner, Term::Z3,     Term::Z4, Term::Z5,
                                         Term::Z6,     Term::ZhochK, Term::Z,  Term::Z2};
inline constexpr Termtabelle PolAugenTerme = {
    Term::Keiner,   Term::ZmZ,       Term::ZmZ,        Term::Zm2, Term::Zm2Z,
    Term::ZmHochHg, Term::ZmHochHuZ, Term::ZSZmHochHu, Term::ZS,  Term::Zm};

[[nodiscard]] constexpr Term termAus(const Termtabelle& tabelle, qint32 nummer) noexcept {
    return nummer >= 100 && nummer < 1000 ? tabelle[static_cast<std::size_t>(nummer / 100)]
                                          : Term::Keiner;
}

/// The term's value; n is the exponent of the terms that have one (K, or its half).
template <Term term, class K>
[[nodiscard]] constexpr K termWert(const K& z, [[maybe_unused]] qint64 n) {
    if constexpr (term == Term::Z) {
        return z;
    } else if constexpr (term == Term::Z2) {
        return z * z;
    } else if constexpr (term == Term::Z3) {
        return z * z * z;
    } else if constexpr (term == Term::Z4 || term == Term::Z5 || term == Term::Z6) {
        const K zq = z * z;
        const K z4 = zq * zq;
        return term == Term::Z4 ? z4 : z4 * (term == Term::Z5 ? z : zq);
    } else if constexpr (term == Term::ZhochK) {
        return hochGanz(z, n);
    } else if constexpr (term == Term::ZS) {
        return konj(z);
    } else {
        const K zs = konj(z);
        const K zm = z * zs;
        if constexpr (term == Term::Zm) {
            return zm;
        } else if constexpr (term == Term::ZmZ) {
            return zm * z;
        } else if constexpr (term == Term::ZSZm) {
            return zs * zm;
        } else if constexpr (term == Term::Zm2) {
            return zm * zm;
        } else if constexpr (term == Term::Zm2Z) {
            return zm * zm * z;
        } else if constexpr (term == Term::ZmHochHg) {
            return hochGanz(zm, n);
        } else if constexpr (term == Term::ZmHochHuZ) {
            return hochGanz(zm, n) * z;
        } else {
            static_assert(term == Term::ZSZmHochHu);
            return zs * hochGanz(zm, n);
        }
    }
}

/// Calls f with the term as a constant of its type; `Term::Keiner` is handed out for all others
/// than those listed.
template <Term... terme, class F>
auto mitTerm(Term term, F&& f) {
    decltype(f(std::integral_constant<Term, Term::Keiner>{})) ergebnis{};
    const bool bekannt =
        ((term == terme && (ergebnis = f(std::integral_constant<Term, terme>{}), true)) || ...);
    return bekannt ? ergebnis : f(std::integral_constant<Term, Term::Keiner>{});
}

/// Term(Z) + C: the power and eye equations. Without a term the value stays what it was.
template <Term term>
struct TermPlusC {
    qint64 n; ///< exponent

    template <class K>
    [[nodiscard]] constexpr K formel(const K& z, const K& a) const {
        if constexpr (term == Term::Keiner) {
            return z;
        } else {
            return termWert<term>(z, n) + a;
        }
    }
};

/// (Z + C) / (1 + C*Term(Z)): the pole equations. A denominator whose real part is not greater
/// than 1e-20 in magnitude aborts the orbit; its imaginary part is deliberately not looked at.
/// Without a term the value stays what it was.
template <Term term>
struct Pol {
    static constexpr double Schwelle = 1e-20;
    qint64 n; ///< exponent

    template <class K>
    bool haupt(K& z, const K& a) const {
        if constexpr (term != Term::Keiner) {
            const K nenner = eins<K>() + a * termWert<term>(z, n);
            if (!(absolut(re(nenner)) > Schwelle)) {
                return true;
            }
            z = (z + a) / nenner;
        }
        return false;
    }
    template <class K>
    bool zwilling(K& w, const K& a) const {
        return haupt(w, a);
    }
    static bool abbruch(bool haupt, bool zwilling) { return haupt || zwilling; }
};
