#include "equations/Reihe.h"
#include "equations/Reihenlauf.h"

namespace {

struct Satz {
    static constexpr int Breite = 2;
    static constexpr int Vektoren = 2;
    typedef double Gleitkommazahlen __attribute__((vector_size(16)));
    typedef long long Ganzzahlen __attribute__((vector_size(16)));
};

} // namespace

Reihenkern reihenkernGrundsatz() { return &Reihenwahl<Satz>::rechnen; }
