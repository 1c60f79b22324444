#include "equations/FormelnKomplex.h"
#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

namespace {

using Komplex = std::complex<double>;

/// Z^E(Z) + C with the principal branch of the logarithm. `zeile` is the hundreds digit of the
/// equation number.
template <int zeile>
struct Exponentialformel {
    static Komplex formel(const Komplex& z, const Komplex& a) { return potenz(z) + a; }

  private:
    static Komplex potenz(const Komplex& z) {
        const Komplex zs = konj(z);
        if constexpr (zeile == 1) {
            return std::pow(z, zs);
        } else if constexpr (zeile == 2) {
            return std::pow(z, z);
        } else if constexpr (zeile == 3) {
            return std::pow(z, -z);
        } else if constexpr (zeile == 4) {
            return std::pow(z, eins<Komplex>() / z);
        } else if constexpr (zeile == 5) {
            return std::pow(z, -zs);
        } else if constexpr (zeile == 6) {
            return std::pow(z, eins<Komplex>() / zs);
        } else {
            static_assert(zeile == 7);
            return std::pow(zs, z);
        }
    }
};

/// A number without a formula: the value stays what it was.
struct Stillstand {
    static Komplex formel(const Komplex& z, const Komplex& /*a*/) { return z; }
};

} // namespace

double Mandelbrot::IterateZhZS_Complex_minus1(double xqr, double yqr, double Cxqr,
                                              double Cyqr) const {
    const double g = g_Genauigkeit / 10000.0;
    const Komplex start(abgerueckt(xqr, g), abgerueckt(yqr, g));
    const Komplex c(Cxqr, Cyqr);
    const auto rechnen = [&](auto formel) {
        return gekoppeltIterieren<KomplexeKopplung>(*this, Ungebremst<decltype(formel)>{}, start, c,
                                                    c);
    };
    switch (wahl_Gleichung / 100) {
    case 1:
        return rechnen(Exponentialformel<1>{});
    case 2:
        return rechnen(Exponentialformel<2>{});
    case 3:
        return rechnen(Exponentialformel<3>{});
    case 4:
        return rechnen(Exponentialformel<4>{});
    case 5:
        return rechnen(Exponentialformel<5>{});
    case 6:
        return rechnen(Exponentialformel<6>{});
    case 7:
        return rechnen(Exponentialformel<7>{});
    default:
        return rechnen(Stillstand{});
    }
}
