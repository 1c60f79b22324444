#include "equations/Kernlauf.h"
#include "Mandelbrot.h"

namespace {

/// ZS^Z + C (the conjugate of Z^ZS). A power beyond the limits cannot be taken: the value then
/// stays what it was, plus the constant.
struct Spinne {
    static constexpr double Grenze = 1e290;

    static bool haupt(Paar<double>& z, const Paar<double>& a) {
        const bool versagt = !potenzieren(z);
        z.x += a.x;
        z.y += a.y;
        return versagt;
    }
    static bool zwilling(Paar<double>& w, const Paar<double>& a) { return haupt(w, a); }
    /// The twin's power is the last one taken and decides.
    static bool abbruch(bool /*haupt*/, bool zwilling) { return zwilling; }

  private:
    static bool potenzieren(Paar<double>& z) {
        const double u = z.x;
        const double v = z.y;
        const double r = std::sqrt(u * u + v * v);
        const double theta = std::atan2(v, u);
        if (r < 1.0 / Grenze) {
            return false;
        }
        const double m = std::pow(r, u) * std::exp(theta * v);
        if (m > Grenze) {
            return false;
        }
        const double phi = v * std::log(r) - theta * u;
        z = {m * std::cos(phi), m * std::sin(phi)};
        return true;
    }
};

} // namespace

double Mandelbrot::IterateZhZSminus1(double xqr, double yqr, double Cxqr, double Cyqr) const {
    const double g = g_Genauigkeit / 10000.0;
    const Paar<double> start{abgerueckt(xqr, g), abgerueckt(yqr, g)};
    if (g_ZwillingJa > 1) {
        g_ZwillingJa = 1;
    }
    // The twin keeps the given constant also in equation 8, where the main value's is fixed.
    const Paar<double> cZwilling{Cxqr, Cyqr};
    Paar<double> c = cZwilling;
    if (wahl_Gleichung == 8) {
        c = {-1.0, 0.0};
        CJ_x = -1.0;
        CJ_y = 0.0;
    }
    return gekoppeltIterieren<ReelleKopplung>(*this, Spinne{}, start, c, cZwilling);
}
