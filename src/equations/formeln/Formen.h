#pragma once

#include "equations/formeln/Glieder.h"
#include "equations/formeln/Schritt.h"

// The kinds of equations: what a family does with its members. A formula is a kind with its member,
// or an equation of its own (Reell.h).

namespace formeln {

/// What a formula says of itself; each overrides what does not suit.
struct Form {
    Formelwerte werte;

    static constexpr bool eigenerSchritt = false; ///< steps main and twin value in its own way
    static constexpr bool zweiWerte = false;      ///< needs the twin value also without a twin
    static constexpr bool zaehltAbbruch = true;   ///< an aborted step counts
    static constexpr bool inSpuren = true;        ///< lanes can carry it
    static constexpr bool teuer = false;          ///< its step outweighs all that a loop adds to it

    // Lasting repairs of the settings.
    static constexpr bool mitK = false;           ///< a power K of 0 becomes 10
    static constexpr bool mitFaktor = false;      ///< a Koppl_x of 0 becomes 1
    static constexpr bool festeKonstante = false; ///< the Julia constant becomes -1
    static constexpr qint32 zwillingRepariert(qint32 g_ZwillingJa) { return g_ZwillingJa; }

    /// Turns start value and constant, as they are handed in, into those of the orbit. The twin's
    /// constant stays the one that was handed in.
    template <class K>
    void beginnen(K& /*z*/, K& /*c*/) const {}
};

/// The forms that step main and twin value by the same map, in complex arithmetic.
struct KomplexeForm : Form {
    using Kopplung = KomplexeKopplung;
    template <class T>
    using Wert = KomplexVon<T>;
};

/// Term(Z) + C. Without a member the value stays what it was.
template <class Glied>
struct PlusC : KomplexeForm {
    static constexpr bool mitK = Glied::mitK;

    template <class K>
    bool haupt(K& z, const K& a) const {
        z = Glied::wert(z, werte) + a;
        return false;
    }
    template <class K>
    bool zwilling(K& w, const K& a) const {
        return haupt(w, a);
    }
    [[gnu::always_inline]] static constexpr bool abbruch(bool /*haupt*/, bool /*zwilling*/) {
        return false;
    }
};

template <>
struct PlusC<Keins> : KomplexeForm {
    static constexpr bool inSpuren = false;

    template <class K>
    bool haupt(K& /*z*/, const K& /*a*/) const {
        return false;
    }
    template <class K>
    bool zwilling(K& /*w*/, const K& /*a*/) const {
        return false;
    }
    [[gnu::always_inline]] static constexpr bool abbruch(bool /*haupt*/, bool /*zwilling*/) {
        return false;
    }
};

/// A complex power of Z, plus C. The start value is pushed off zero, where it has no logarithm.
template <class Glied>
struct Exponent : PlusC<Glied> {
    static constexpr bool inSpuren = false;

    template <class K>
    void beginnen(K& z, K& /*c*/) const {
        z = beideAbgerueckt(z, this->werte.abrueckung);
    }
};

/// (Z + C) / (1 + C*Term(Z)). A denominator whose real part is not greater than 1e-20 in magnitude
/// aborts the orbit; its imaginary part is deliberately not looked at. Without a member the value
/// stays what it was.
template <class Glied>
struct Pol : KomplexeForm {
    static constexpr double Schwelle = 1e-20;
    static constexpr bool teuer = true;
    static constexpr bool mitK = Glied::mitK;

    template <class K>
    void beginnen(K& z, K& /*c*/) const {
        z = beideAbgerueckt(z, werte.abrueckung);
    }
    template <class K>
    auto haupt(K& z, const K& a) const {
        using T = typename K::value_type;
        const K nenner = eins<K>() + a * Glied::wert(z, werte);
        z = geteilt(z + a, nenner);
        return nicht(T(Schwelle) < absolut(re(nenner)));
    }
    template <class K>
    auto zwilling(K& w, const K& a) const {
        return haupt(w, a);
    }
    template <class Maske>
    static Maske abbruch(const Maske& haupt, const Maske& zwilling) {
        return haupt | zwilling;
    }
};

template <>
struct Pol<Keins> : PlusC<Keins> {
    template <class K>
    void beginnen(K& z, K& /*c*/) const {
        z = beideAbgerueckt(z, werte.abrueckung);
    }
};

/// Z - (Polynomial - R) / (Derivative * A), Newton's step as a feedback. There is no twin. A
/// denominator whose real part is not greater than 1e-290 in magnitude refuses the step and ends
/// the orbit, and a refused step is not counted; the imaginary part is deliberately not looked at.
/// Without a member there is no denominator, so the first step is refused.
///
/// The roots of 1 (the odd family) take the coupling factor P as A and start at the pixel, which is
/// handed in as the constant. The roots of P take the constant as A, with a real part of 1 where it
/// was zero, or tiny and not negative.
template <class Glied, bool einswurzel>
struct Newton : Form {
    static constexpr double errorpow = 1e-290;
    static constexpr double Abrueckung = 1e-20; ///< smallest magnitude of a coordinate handed in
    static constexpr bool eigenerSchritt = true;
    static constexpr bool zaehltAbbruch = false;
    static constexpr bool inSpuren = !std::is_same_v<Glied, Keins>;
    static constexpr bool teuer = true;
    static constexpr bool mitFaktor = true;
    static constexpr bool mitK = [] {
        if constexpr (inSpuren) {
            return Glied::mitK;
        }
        return false;
    }();
    using Kopplung = OhneKopplung;
    template <class T>
    using Wert = KomplexVon<T>;

    template <class K>
    void beginnen(K& z, K& c) const {
        using T = typename K::value_type;
        z = beideAbgerueckt(einswurzel ? c : z, Abrueckung);
        const T x = abgerueckt(re(c), Abrueckung);
        const auto winzig = nicht(T(Abrueckung) < x) & (T(0.0) < x);
        c = einswurzel ? konstante<K>(werte.px, werte.py)
                       : K(wahl(winzig, T(1.0), x), abgerueckt(im(c), Abrueckung));
    }

    template <class K>
    auto schritt(Stand<K>& s, const K& a, const OhneKopplung& /*kopplung*/) const {
        using T = typename K::value_type;
        if constexpr (inSpuren) {
            const K b = Glied::template faktor<K>(werte);
            const K nenner = Glied::ableitung(s.z, b, werte) * a;
            const K r = einswurzel ? eins<K>() : konstante<K>(werte.px, werte.py);
            s.z = s.z - geteilt(Glied::polynom(s.z, werte) - r, nenner);
            return nicht(T(errorpow) < absolut(re(nenner)));
        } else {
            return true;
        }
    }
};

template <class Glied>
using NewtonEins = Newton<Glied, true>;
template <class Glied>
using NewtonP = Newton<Glied, false>;

} // namespace formeln
