#include "equations/Gleichungen.h"
#include "equations/punkt/Punktlauf.h"

// The model's kernel members.

namespace {

/// The kernel of a family for the equation in force; another family's number has no member here.
template <class Gruppe>
double inGruppe(const Mandelbrot& m, const Pixel& pixel) {
    const qint32 nummer = m.wahl_Gleichung;
    const std::size_t stelle = Gruppe::umfasst(nummer) ? Gruppe::stelle(nummer) : 0;
    return Punktkerne<Gruppe>[stelle].rechnen(m, pixel, nullptr);
}

} // namespace

double Mandelbrot::IterateZmalZplusC(double xqr, double yqr, double Cxqr, double Cyqr) const {
    return punktRechnen<formeln::Quadrat>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateZmalZSplusC(double xqr, double yqr, double Cxqr, double Cyqr) const {
    return punktRechnen<formeln::Auge>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateVierpol(double xqr, double yqr, double Cxqr, double Cyqr) const {
    return punktRechnen<formeln::Vierpol>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateZhZSminus1(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const Pixel pixel{xqr, yqr, Cxqr, Cyqr};
    return wahl_Gleichung == 8 ? punktRechnen<formeln::Schaedel>(*this, pixel)
                               : punktRechnen<formeln::Spinne>(*this, pixel);
}

double Mandelbrot::IterateWurzelXXX(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const Pixel pixel{xqr, yqr, Cxqr, Cyqr};
    return wahl_Gleichung % 2 != 0 ? punktRechnen<formeln::Hyperwurzel<true>>(*this, pixel)
                                   : punktRechnen<formeln::Hyperwurzel<false>>(*this, pixel);
}

double Mandelbrot::IterateZmalZ_Complex_plusC(double xqr, double yqr, double Cxqr,
                                              double Cyqr) const {
    return inGruppe<formeln::Potenzen>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateZmalZS_Complex_plusC(double xqr, double yqr, double Cxqr,
                                               double Cyqr) const {
    return inGruppe<formeln::Augen>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateVierpol_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const Pixel pixel{xqr, yqr, Cxqr, Cyqr};
    return familie(wahl_Gleichung) > 10 ? inGruppe<formeln::Polaugen>(*this, pixel)
                                        : inGruppe<formeln::Pole>(*this, pixel);
}

double Mandelbrot::IterateZhZS_Complex_minus1(double xqr, double yqr, double Cxqr,
                                              double Cyqr) const {
    return inGruppe<formeln::Exponenten>(*this, {xqr, yqr, Cxqr, Cyqr});
}

double Mandelbrot::IterateWurzel_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const Pixel pixel{xqr, yqr, Cxqr, Cyqr};
    return familie(wahl_Gleichung) == 9 ? inGruppe<formeln::Einswurzeln>(*this, pixel)
                                        : inGruppe<formeln::Wurzeln>(*this, pixel);
}
