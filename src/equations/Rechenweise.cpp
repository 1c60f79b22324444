#include "equations/Rechenweise.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {

bool vorhanden(Befehlssatz satz) {
    switch (satz) {
    case Befehlssatz::Punktweise:
    case Befehlssatz::Grundsatz:
        return true;
#if defined(__x86_64__)
    case Befehlssatz::Avx2:
        return __builtin_cpu_supports("avx2") != 0;
    case Befehlssatz::Avx512:
        return __builtin_cpu_supports("avx512f") != 0 && __builtin_cpu_supports("avx512dq") != 0 &&
               __builtin_cpu_supports("avx512vl") != 0;
#else
    case Befehlssatz::Avx2:
    case Befehlssatz::Avx512:
        return false;
#endif
    }
    return false;
}

#if defined(__x86_64__)
[[gnu::target("avx"), gnu::noinline]] void obereHaelftenLeeren() { _mm256_zeroupper(); }
#endif

} // namespace

Befehlssatz verfuegbar(Befehlssatz gewuenscht) {
    for (auto i = static_cast<qint32>(gewuenscht); i > 0; --i) {
        if (vorhanden(static_cast<Befehlssatz>(i))) {
            return static_cast<Befehlssatz>(i);
        }
    }
    return Befehlssatz::Punktweise;
}

Rechenweise& rechenweise() {
    static Rechenweise weise{true, verfuegbar(Befehlssatz::Avx512)};
    return weise;
}

Rechenaufwand& rechenaufwand() {
    static Rechenaufwand aufwand;
    return aufwand;
}

void vektorregisterFreigeben() {
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx") != 0) {
        obereHaelftenLeeren();
    }
#endif
}
