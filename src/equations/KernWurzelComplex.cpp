#include "equations/FormelnNewton.h"
#include "equations/Gleichungen.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

#include <algorithm>

namespace {

using Komplex = std::complex<double>;

constexpr double Abrueckung = 1e-20; ///< smallest magnitude of a coordinate handed in

/// Newton's step as a feedback. A denominator whose real part is not greater than `errorpow` in
/// magnitude refuses the step and ends the orbit; its imaginary part is deliberately not looked
/// at. A refused step is not counted. There is no twin.
template <int nummer>
struct Newtonschritt {
    static constexpr bool zaehltAbbruch = false;
    static constexpr double errorpow = 1e-290;

    NewtonKonstanten<Komplex> konstanten;

    bool operator()(Stand<Komplex>& s) const {
        const Komplex nenner = NewtonFormel<nummer>::nenner(s.z, konstanten);
        if (!(absolut(nenner.real()) > errorpow)) {
            return true;
        }
        s.z = s.z - NewtonFormel<nummer>::zaehler(s.z, konstanten) / nenner;
        return false;
    }
};

/// A number without a formula: there is no denominator, so the first step is refused.
struct KeinSchritt {
    static constexpr bool zaehltAbbruch = false;
    bool operator()(Stand<Komplex>& /*s*/) const { return true; }
};

/// One row per equation: the factor of the derivative (KFaktor: the power K) and the frame's run.
using Lauf = double (*)(const Mandelbrot&, const NewtonKonstanten<Komplex>&, const Komplex&);

struct NewtonZeile {
    qint32 nummer = 0;
    double faktorRe = 3.0;
    double faktorIm = 0.0;
    Lauf lauf = nullptr;
};

constexpr double KFaktor = 0.0;

template <int nummer>
double laufen(const Mandelbrot& m, const NewtonKonstanten<Komplex>& k, const Komplex& start) {
    return iterieren(m, Newtonschritt<nummer>{k}, Stand<Komplex>{start, start});
}

template <int n>
constexpr NewtonZeile zeile(double faktorRe, double faktorIm = 0.0) {
    return {n, faktorRe, faktorIm, &laufen<n>};
}

constexpr std::array Zeilen = {zeile<109>(3.0),      zeile<209>(3.0, 3.0), zeile<309>(5.0),
                               zeile<409>(5.0, 5.0), zeile<509>(3.0),      zeile<609>(3.0),
                               zeile<709>(3.0),      zeile<809>(KFaktor),  zeile<909>(KFaktor),
                               zeile<110>(KFaktor),  zeile<210>(2.0),      zeile<310>(3.0),
                               zeile<410>(4.0),      zeile<510>(5.0),      zeile<610>(6.0),
                               zeile<710>(7.0),      zeile<810>(8.0),      zeile<910>(9.0)};

} // namespace

double Mandelbrot::IterateWurzel_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const bool einswurzel = familie(wahl_Gleichung) == 9;
    const Komplex pixel(abgerueckt(xqr, Abrueckung), abgerueckt(yqr, Abrueckung));
    Komplex c(abgerueckt(Cxqr, Abrueckung), abgerueckt(Cyqr, Abrueckung));

    const auto* const zeile = std::find_if(Zeilen.begin(), Zeilen.end(), [&](const NewtonZeile& z) {
        return z.nummer == wahl_Gleichung;
    });
    NewtonKonstanten<Komplex> k{};
    if (zeile != Zeilen.end()) {
        k.faktor = Komplex(zeile->faktorRe == KFaktor ? kPotenzRepariert(*this) : zeile->faktorRe,
                           zeile->faktorIm);
    }
    if (Koppl_x == 0.0) {
        Koppl_x = 1.0;
    }
    k.p = Komplex(Koppl_x, Koppl_y);
    k.k = g_kPotenz;
    k.hg = kPotHg;
    k.hu = kPotHu;
    // A real part of the constant that was zero, or tiny and not negative, counts as 1.
    if (!einswurzel && c.real() == Abrueckung) {
        c.real(1.0);
    }
    // The driver hands the pixel of an odd number in as the constant.
    k.a = einswurzel ? k.p : c;
    const Komplex start = einswurzel ? c : pixel;
    if (zeile == Zeilen.end()) {
        return iterieren(*this, KeinSchritt{}, Stand<Komplex>{start, start});
    }
    return zeile->lauf(*this, k, start);
}
