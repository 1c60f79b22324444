#include "equations/Reihe.h"

#if defined(__AVX512DQ__)

#include "equations/Reihenlauf.h"

namespace {

struct Satz {
    static constexpr int Breite = 8;
    static constexpr int Vektoren = 4;
    typedef double Gleitkommazahlen __attribute__((vector_size(64)));
    typedef long long Ganzzahlen __attribute__((vector_size(64)));
};

} // namespace

Reihenkern reihenkernAvx512() { return &Reihenwahl<Satz>::rechnen; }

#else

Reihenkern reihenkernAvx512() { return nullptr; }

#endif
