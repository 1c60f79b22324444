#include "equations/Reihe.h"

#if defined(__AVX2__)

#include "equations/Reihenlauf.h"

namespace {

struct Satz {
    static constexpr int Breite = 4;
    static constexpr int Vektoren = 4;
    typedef double Gleitkommazahlen __attribute__((vector_size(32)));
    typedef long long Ganzzahlen __attribute__((vector_size(32)));
};

} // namespace

Reihenkern reihenkernAvx2() { return &Reihenwahl<Satz>::rechnen; }

#else

Reihenkern reihenkernAvx2() { return nullptr; }

#endif
