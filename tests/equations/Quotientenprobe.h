#pragma once

#include "equations/Rechenweise.h"

/// Quotients x + iy = (a + ib) / (c + id) in lanes of one instruction set, 32 of them.
inline constexpr int Probenbreite = 32;

/// Made in a source that is built once for each set.
template <Befehlssatz satz>
void inSpurenTeilen(const double* a, const double* b, const double* c, const double* d, double* x,
                    double* y);
