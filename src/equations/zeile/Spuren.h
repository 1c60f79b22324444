#pragma once

// Vectors of lanes on the compiler's vector extension: one number type that carries many pixels.
//
// `Satz` names the instruction set and belongs to one source file alone (a type of its unnamed
// namespace), so that nothing compiled for a wider instruction set can be linked into code that
// runs on every processor. For the same reason nothing here calls an inline function of a library.
// Satz::Breite is the number of lanes of one register, Gleitkommazahlen and Ganzzahlen are the
// registers of double and long long.

#include <cstddef>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

// The comparisons of two lanes are written out for the base set: g++ 12 can fail on the plain ones.

/// Lanes of whole numbers that are equal.
template <class Satz, class Register = typename Satz::Ganzzahlen>
Register gleicheSpuren(const Register& l, const Register& r) {
#if defined(__SSE2__)
    if constexpr (Satz::Breite == 2) { // it compares halves of a lane only
        const __m128i halb = _mm_cmpeq_epi32((__m128i)l, (__m128i)r);
        return (Register)_mm_and_si128(halb, _mm_shuffle_epi32(halb, _MM_SHUFFLE(2, 3, 0, 1)));
    } else
#endif
        return (Register)(l == r);
}

/// n registers of Satz::Breite doubles, as a tree of halves: registers stay registers.
template <class Satz, int n>
struct Spuren {
    using Haelfte = Spuren<Satz, n / 2>;
    static constexpr int Anzahl = n * Satz::Breite;
    static constexpr int HalbeAnzahl = Anzahl / 2;

    Haelfte a;
    Haelfte b;

    Spuren() = default;
    Spuren(double wert) : a(wert), b(wert) {}
    Spuren(const Haelfte& erste, const Haelfte& zweite) : a(erste), b(zweite) {}

    static Spuren laden(const double* p) {
        return {Haelfte::laden(p), Haelfte::laden(p + HalbeAnzahl)};
    }
    void speichern(double* p) const {
        a.speichern(p);
        b.speichern(p + HalbeAnzahl);
    }

    friend Spuren operator+(const Spuren& l, const Spuren& r) { return {l.a + r.a, l.b + r.b}; }
    friend Spuren operator-(const Spuren& l, const Spuren& r) { return {l.a - r.a, l.b - r.b}; }
    friend Spuren operator*(const Spuren& l, const Spuren& r) { return {l.a * r.a, l.b * r.b}; }
    friend Spuren operator/(const Spuren& l, const Spuren& r) { return {l.a / r.a, l.b / r.b}; }
    friend Spuren operator-(const Spuren& l) { return {-l.a, -l.b}; }
    friend Spuren absolut(const Spuren& l) { return {absolut(l.a), absolut(l.b)}; }
};

/// Truth values of n registers of lanes: all bits of a lane are set or none. As whole numbers they
/// are -1 and 0; counters of lanes are kept in the same type.
template <class Satz, int n>
struct Maske {
    using Haelfte = Maske<Satz, n / 2>;
    Haelfte a;
    Haelfte b;

    Maske() = default;
    explicit Maske(long long wert) : a(wert), b(wert) {}
    Maske(const Haelfte& erste, const Haelfte& zweite) : a(erste), b(zweite) {}

    friend Maske operator&(const Maske& l, const Maske& r) { return {l.a & r.a, l.b & r.b}; }
    friend Maske operator|(const Maske& l, const Maske& r) { return {l.a | r.a, l.b | r.b}; }
    friend Maske operator-(const Maske& l, const Maske& r) { return {l.a - r.a, l.b - r.b}; }
    friend Maske operator~(const Maske& l) { return {~l.a, ~l.b}; }
    friend Maske gleich(const Maske& l, const Maske& r) {
        return {gleich(l.a, r.a), gleich(l.b, r.b)};
    }
    static Maske laden(const long long* p) {
        return {Haelfte::laden(p), Haelfte::laden(p + n / 2 * Satz::Breite)};
    }
    void speichern(long long* p) const {
        a.speichern(p);
        b.speichern(p + n / 2 * Satz::Breite);
    }
};

template <class Satz>
struct Maske<Satz, 1> {
    using Register = typename Satz::Ganzzahlen;
    Register v;

    Maske() = default;
    Maske(const Maske& m) : v(m.v) {}  // NOLINT(modernize-use-equals-default): see Spuren
    Maske& operator=(const Maske& m) { // NOLINT(modernize-use-equals-default)
        v = m.v;
        return *this;
    }
    explicit Maske(long long wert) : v(Register{} + wert) {}
    Maske(Register r) : v(r) {}

    friend Maske operator&(const Maske& l, const Maske& r) { return {l.v & r.v}; }
    friend Maske operator|(const Maske& l, const Maske& r) { return {l.v | r.v}; }
    friend Maske operator-(const Maske& l, const Maske& r) { return {l.v - r.v}; }
    friend Maske operator~(const Maske& l) { return {~l.v}; }
    friend Maske gleich(const Maske& l, const Maske& r) { return {gleicheSpuren<Satz>(l.v, r.v)}; }
    static Maske laden(const long long* p) {
        Register r{};
        __builtin_memcpy(&r, p, sizeof r);
        return {r};
    }
    void speichern(long long* p) const { __builtin_memcpy(p, &v, sizeof v); }
};

template <class Satz>
struct Spuren<Satz, 1> {
    using Register = typename Satz::Gleitkommazahlen;
    static constexpr int Anzahl = Satz::Breite;
    Register v;

    Spuren() = default;
    // Not defaulted: a default copy is one of memory, this one stays in a register.
    Spuren(const Spuren& s) : v(s.v) {}  // NOLINT(modernize-use-equals-default)
    Spuren& operator=(const Spuren& s) { // NOLINT(modernize-use-equals-default)
        v = s.v;
        return *this;
    }
    Spuren(double wert) : v(Register{} + wert) {}
    Spuren(Register r) : v(r) {}

    static Spuren laden(const double* p) {
        Register r{};
        __builtin_memcpy(&r, p, sizeof r);
        return {r};
    }
    void speichern(double* p) const { __builtin_memcpy(p, &v, sizeof v); }

    friend Spuren operator+(const Spuren& l, const Spuren& r) { return {l.v + r.v}; }
    friend Spuren operator-(const Spuren& l, const Spuren& r) { return {l.v - r.v}; }
    friend Spuren operator*(const Spuren& l, const Spuren& r) { return {l.v * r.v}; }
    friend Spuren operator/(const Spuren& l, const Spuren& r) { return {l.v / r.v}; }
    friend Spuren operator-(const Spuren& l) { return {-l.v}; }
    friend Spuren absolut(const Spuren& l) {
        using Bits = typename Maske<Satz, 1>::Register;
        constexpr long long ohneVorzeichen = 0x7fffffffffffffff;
        return {(Register)((Bits)l.v & (Bits{} + ohneVorzeichen))};
    }
};

template <class Satz>
Maske<Satz, 1> operator<(const Spuren<Satz, 1>& l, const Spuren<Satz, 1>& r) {
    using Bits = typename Maske<Satz, 1>::Register;
#if defined(__SSE2__)
    if constexpr (Satz::Breite == 2) {
        return {(Bits)_mm_cmplt_pd((__m128d)l.v, (__m128d)r.v)};
    } else
#endif
        return {(Bits)(l.v < r.v)};
}
template <class Satz, int n>
Maske<Satz, n> operator<(const Spuren<Satz, n>& l, const Spuren<Satz, n>& r) {
    return {l.a < r.a, l.b < r.b};
}
template <class Satz, int n>
Maske<Satz, n> operator<(const Spuren<Satz, n>& l, double r) {
    return l < Spuren<Satz, n>(r);
}

/// Lanes that hold a NaN.
template <class Satz>
Maske<Satz, 1> istNaN(const Spuren<Satz, 1>& l) {
    return {(typename Maske<Satz, 1>::Register)(l.v != l.v)};
}
template <class Satz, int n>
Maske<Satz, n> istNaN(const Spuren<Satz, n>& l) {
    return {istNaN(l.a), istNaN(l.b)};
}

/// Lanes that are equal to the bit.
template <class Satz>
Maske<Satz, 1> bitgleich(const Spuren<Satz, 1>& l, const Spuren<Satz, 1>& r) {
    using Bits = typename Maske<Satz, 1>::Register;
    return {gleicheSpuren<Satz>((Bits)l.v, (Bits)r.v)};
}
template <class Satz, int n>
Maske<Satz, n> bitgleich(const Spuren<Satz, n>& l, const Spuren<Satz, n>& r) {
    return {bitgleich(l.a, r.a), bitgleich(l.b, r.b)};
}

/// Lane by lane: dann where m is set, else sonst.
template <class Satz>
Spuren<Satz, 1> wahl(const Maske<Satz, 1>& m, const Spuren<Satz, 1>& dann,
                     const Spuren<Satz, 1>& sonst) {
    using Bits = typename Maske<Satz, 1>::Register;
    return {(typename Spuren<Satz, 1>::Register)((m.v & (Bits)dann.v) | (~m.v & (Bits)sonst.v))};
}
template <class Satz, int n>
Spuren<Satz, n> wahl(const Maske<Satz, n>& m, const Spuren<Satz, n>& dann,
                     const Spuren<Satz, n>& sonst) {
    return {wahl(m.a, dann.a, sonst.a), wahl(m.b, dann.b, sonst.b)};
}

/// Exchanges the values of two variables in the lanes where m is set.
template <class Satz>
void tauschen(const Maske<Satz, 1>& m, Spuren<Satz, 1>& l, Spuren<Satz, 1>& r) {
    using Bits = typename Maske<Satz, 1>::Register;
    using Register = typename Spuren<Satz, 1>::Register;
    const Bits anders = ((Bits)l.v ^ (Bits)r.v) & m.v;
    l.v = (Register)((Bits)l.v ^ anders);
    r.v = (Register)((Bits)r.v ^ anders);
}
template <class Satz, int n>
void tauschen(const Maske<Satz, n>& m, Spuren<Satz, n>& l, Spuren<Satz, n>& r) {
    tauschen(m.a, l.a, r.a);
    tauschen(m.b, l.b, r.b);
}

/// The smaller one lane by lane, the second where either is NaN.
template <class Satz>
Spuren<Satz, 1> kleineres(const Spuren<Satz, 1>& l, const Spuren<Satz, 1>& r) {
    return {l.v < r.v ? l.v : r.v};
}
template <class Satz, int n>
Spuren<Satz, n> kleineres(const Spuren<Satz, n>& l, const Spuren<Satz, n>& r) {
    return {kleineres(l.a, r.a), kleineres(l.b, r.b)};
}

/// The truth values as bits, the first lane lowest.
template <class Satz>
unsigned bits(const Maske<Satz, 1>& m) {
#if defined(__AVX512DQ__)
    if constexpr (Satz::Breite == 8) {
        return _mm512_movepi64_mask((__m512i)m.v);
    }
#endif
#if defined(__AVX2__)
    if constexpr (Satz::Breite == 4) {
        return (unsigned)_mm256_movemask_pd((__m256d)m.v);
    }
#endif
#if defined(__SSE2__)
    if constexpr (Satz::Breite == 2) {
        return (unsigned)_mm_movemask_pd((__m128d)m.v);
    }
#endif
    unsigned ergebnis = 0;
    for (int i = 0; i < Satz::Breite; ++i) {
        ergebnis |= (m.v[i] != 0 ? 1u : 0u) << i;
    }
    return ergebnis;
}
template <class Satz, int n>
unsigned bits(const Maske<Satz, n>& m) {
    return bits(m.a) | bits(m.b) << (n / 2 * Satz::Breite);
}

/// The other truth values.
template <class Satz, int n>
Maske<Satz, n> nicht(const Maske<Satz, n>& m) {
    return ~m;
}

/// Whether any truth value is set.
template <class Satz>
[[nodiscard]] bool eine(const Maske<Satz, 1>& m) {
    return bits(m) != 0;
}
template <class Satz, int n>
[[nodiscard]] bool eine(const Maske<Satz, n>& m) {
    return eine(m.a | m.b);
}

/// The lanes 0 to anzahl - 1.
template <class Satz, int n>
Maske<Satz, n> ersteSpuren(int anzahl) {
    if constexpr (n == 1) {
        typename Maske<Satz, 1>::Register r{};
        for (int i = 0; i < Satz::Breite; ++i) {
            r[i] = i < anzahl ? -1 : 0;
        }
        return {r};
    } else {
        constexpr int haelfte = n / 2 * Satz::Breite;
        return {ersteSpuren<Satz, n / 2>(anzahl), ersteSpuren<Satz, n / 2>(anzahl - haelfte)};
    }
}
