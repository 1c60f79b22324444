#include "equations/Kernwahl.h"

#include "equations/Gleichungen.h"

namespace {

/// Index: the numbers 1 to 10.
constexpr std::array<Kern, 11> ReelleKerne = {nullptr,
                                              &Mandelbrot::IterateZmalZplusC,
                                              &Mandelbrot::IterateZmalZplusC,
                                              &Mandelbrot::IterateZmalZSplusC,
                                              &Mandelbrot::IterateZmalZSplusC,
                                              &Mandelbrot::IterateVierpol,
                                              &Mandelbrot::IterateVierpol,
                                              &Mandelbrot::IterateZhZSminus1,
                                              &Mandelbrot::IterateZhZSminus1,
                                              &Mandelbrot::IterateWurzelXXX,
                                              &Mandelbrot::IterateWurzelXXX};

/// Index: the family, the last two digits of a number above 99.
constexpr std::array<Kern, 13> KomplexeKerne = {nullptr,
                                                &Mandelbrot::IterateZmalZ_Complex_plusC,
                                                &Mandelbrot::IterateZmalZ_Complex_plusC,
                                                &Mandelbrot::IterateZmalZS_Complex_plusC,
                                                &Mandelbrot::IterateZmalZS_Complex_plusC,
                                                &Mandelbrot::IterateVierpol_Complex,
                                                &Mandelbrot::IterateVierpol_Complex,
                                                &Mandelbrot::IterateZhZS_Complex_minus1,
                                                &Mandelbrot::IterateZhZS_Complex_minus1,
                                                &Mandelbrot::IterateWurzel_Complex,
                                                &Mandelbrot::IterateWurzel_Complex,
                                                &Mandelbrot::IterateVierpol_Complex,
                                                &Mandelbrot::IterateVierpol_Complex};

} // namespace

Kern kernFuer(qint32 wahl_Gleichung) {
    const auto suchen = [](std::span<const Kern> tabelle, qint32 index) -> Kern {
        const auto i = static_cast<std::size_t>(index);
        return i < tabelle.size() ? tabelle[i] : nullptr;
    };
    if (wahl_Gleichung < 0) {
        return nullptr;
    }
    return wahl_Gleichung > 99 ? suchen(KomplexeKerne, familie(wahl_Gleichung))
                               : suchen(ReelleKerne, wahl_Gleichung);
}
