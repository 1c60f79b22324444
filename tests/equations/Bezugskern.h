#pragma once

#include "Testbasis.h"

#include <bit>
#include <complex>
#include <vector>

class Mandelbrot;

/// All equation numbers that have a picture.
[[nodiscard]] const std::vector<qint32>& alleGleichungen();

/// Equal to the bit; any NaN equals any NaN.
[[nodiscard]] inline bool bitgleich(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b);
}

/// A second implementation of all kernels, as plain as can be: one loop over numbers, no lanes, no
/// templates, no shortcut. The kernels must agree with it to the bit.
struct Bezugskern {
    qint32 gleichung = 1, zwilling = 0, grenze = 256, art = 1, zycmax = 7, farben = 582;
    qint32 k = 10, hg = 5, hu = 4;
    double kx = 0.2, ky = 0.1, wert = 400.0, genau = 0.0001;
    double cjx = -1.0, cjy = 0.0;
    std::array<double, 25> xm{}, ym{};
    qint32 genauJa = 0; ///< a cycle search was the last bailout test
    qint32 zaehler = 0; ///< result: the count

    void uebertragen(Mandelbrot& m) const;
    /// Empty, or the name of the first field in which the model differs.
    [[nodiscard]] QString unterschied(const Mandelbrot& m) const;
    double rechnen(double xqr, double yqr, double Cxqr, double Cyqr);

  private:
    using C = std::complex<double>;
    enum class Schritt { Gut, Abbruch, Ungezaehlt };

    C z, w, c, cw;
    C newtonA, newtonP, newtonB;

    void vorbereiten(double xqr, double yqr, double Cxqr, double Cyqr);
    void newtonVorbereiten(double xqr, double yqr, double Cxqr, double Cyqr);
    Schritt schritt();
    Schritt newton();
    Schritt hyperwurzel();
    [[nodiscard]] C reellGekoppelt(bool haupt) const;
    [[nodiscard]] C komplexGekoppelt(bool haupt) const;
    /// Replaces u by its successor with the constant a; false when that fails.
    [[nodiscard]] bool bild(C& u, C a, bool haupt) const;
    [[nodiscard]] bool reellesBild(C& u, C a, bool haupt) const;
    [[nodiscard]] C term(C u) const;
    double betrag();
};
