#pragma once

#include "equations/Rechenweise.h"

// The registers of the instruction set that a source is compiled for (WIRBELWERK_BEFEHLSSATZ). The
// type belongs to one source alone, so that nothing compiled for a wider instruction set can be
// linked into code that runs on every processor.

namespace {

/// Registers of `breite` lanes; a bundle holds up to `vektoren` of them.
template <Befehlssatz satz, int breite, int vektoren>
struct Register {
    static constexpr Befehlssatz Befehle = satz;
    static constexpr int Breite = breite;
    static constexpr int Vektoren = vektoren;
    typedef double Gleitkommazahlen __attribute__((vector_size(breite * sizeof(double))));
    typedef long long Ganzzahlen __attribute__((vector_size(breite * sizeof(long long))));
};

template <Befehlssatz satz>
struct Satzwahl;
template <>
struct Satzwahl<Befehlssatz::Grundsatz> {
    using Typ = Register<Befehlssatz::Grundsatz, 2, 2>;
};
template <>
struct Satzwahl<Befehlssatz::Avx2> {
    using Typ = Register<Befehlssatz::Avx2, 4, 4>;
};
template <>
struct Satzwahl<Befehlssatz::Avx512> {
    using Typ = Register<Befehlssatz::Avx512, 8, 4>;
};

using Satz = Satzwahl<Befehlssatz::WIRBELWERK_BEFEHLSSATZ>::Typ;

} // namespace
