#pragma once

#include "equations/formeln/Formen.h"

// The equations 1 to 10 in real arithmetic. T is double or a vector of lanes. The order of the
// operations fixes the last bits of every picture.

namespace formeln {

struct ReelleForm : Form {
    using Kopplung = ReelleKopplung;
    template <class T>
    using Wert = Paar<T>;
};

/// A form whose step never fails, from its plain formula.
template <class Formel>
struct Ungebremst : ReelleForm {
    template <class T>
    bool haupt(Paar<T>& z, const Paar<T>& a) const {
        z = Formel::formel(z, a);
        return false;
    }
    template <class T>
    bool zwilling(Paar<T>& w, const Paar<T>& a) const {
        return haupt(w, a);
    }
    [[gnu::always_inline]] static constexpr bool abbruch(bool /*haupt*/, bool /*zwilling*/) {
        return false;
    }
};

/// Z*Z + C.
struct Quadrat : Ungebremst<Quadrat> {
    static constexpr qint32 zwillingRepariert(qint32 g_ZwillingJa) {
        return g_ZwillingJa > Kopplung::Letzte ? 0 : g_ZwillingJa;
    }
    template <class T>
    [[nodiscard]] static constexpr Paar<T> formel(const Paar<T>& z, const Paar<T>& a) {
        return {z.x * z.x - z.y * z.y + a.x, (z.x + z.x) * z.y + a.y};
    }
};

/// Z*ZS + C with ZS the conjugate: the product is real, so the imaginary part is C's alone.
struct Auge : Ungebremst<Auge> {
    using Kopplung = AugenKopplung;

    static constexpr qint32 zwillingRepariert(qint32 g_ZwillingJa) {
        return g_ZwillingJa == 6 ? 5 : g_ZwillingJa;
    }
    template <class T>
    [[nodiscard]] static constexpr Paar<T> formel(const Paar<T>& z, const Paar<T>& a) {
        return {z.y * z.y + z.x * z.x + a.x, a.y};
    }
};

/// (Z + C) / (1 + C*Z^3). A denominator whose squared magnitude is below the threshold aborts the
/// orbit; main and twin have different thresholds on purpose.
struct Vierpol : ReelleForm {
    static constexpr double SchwelleZwilling = 1e-10;

    template <class T>
    auto haupt(Paar<T>& z, const Paar<T>& a) const {
        return formel(z, a) < werte.schwelle;
    }
    template <class T>
    auto zwilling(Paar<T>& w, const Paar<T>& a) const {
        return formel(w, a) < SchwelleZwilling;
    }
    template <class Maske>
    static Maske abbruch(const Maske& haupt, const Maske& zwilling) {
        return haupt | zwilling;
    }

  private:
    /// Replaces z and returns the squared magnitude of the denominator.
    template <class T>
    static constexpr T formel(Paar<T>& z, const Paar<T>& a) {
        const T x2 = z.x * z.x - z.y * z.y;
        const T y2 = (z.x + z.x) * z.y;
        const T x3 = x2 * z.x - y2 * z.y;
        const T y3 = y2 * z.x + x2 * z.y;
        const T nx = z.x + a.x;
        const T ny = z.y + a.y;
        const T dx = 1.0 + a.x * x3 - a.y * y3;
        const T dy = a.y * x3 + a.x * y3;
        const T norm = dx * dx + dy * dy;
        z = {(ny * dy + nx * dx) / norm, (ny * dx - nx * dy) / norm};
        return norm;
    }
};

/// ZS^Z + C (the conjugate of Z^ZS). A power beyond the limits cannot be taken: the value then
/// stays what it was, plus the constant. The start value is pushed off the axes, so that it has a
/// logarithm.
struct Spinne : ReelleForm {
    static constexpr double Grenze = 1e290;
    static constexpr bool inSpuren = false;

    static constexpr qint32 zwillingRepariert(qint32 g_ZwillingJa) {
        return g_ZwillingJa > 1 ? 1 : g_ZwillingJa;
    }
    void beginnen(Paar<double>& z, Paar<double>& /*c*/) const {
        z = beideAbgerueckt(z, werte.abrueckung);
    }
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

/// The same with the constant -1; the twin keeps the constant that was handed in.
struct Schaedel : Spinne {
    static constexpr bool festeKonstante = true;

    void beginnen(Paar<double>& z, Paar<double>& c) const {
        Spinne::beginnen(z, c);
        c = {-1.0, 0.0};
    }
};

/// Newton's step for the cube root of r in commutative hypercomplex numbers of four real
/// components, H = z + jw with z = x + iy, w = p + it and i^2 = j^2 = -1, ij = ji. With the
/// idempotents (1 - ij)/2 and (1 + ij)/2 the algebra splits into two copies of the complex numbers,
/// z - iw and z + iw, and the step H - (H^3 - r)/(3 H^2) into one complex Newton step for each. So
/// the nine roots of H are the pairs of complex cube roots. (Zero divisors, and with them a
/// vanishing derivative, lie where one of the two components is 0.) A derivative whose squared
/// magnitude is below 1e-20 aborts the orbit. With a twin on, r is the constant that w gives.
///
/// The roots of 1 start at the pixel, which is handed in as the constant.
template <bool einswurzel>
struct Hyperwurzel : ReelleForm {
    static constexpr bool eigenerSchritt = true;
    static constexpr bool zweiWerte = true;
    static constexpr bool teuer = true;
    static constexpr double Schwelle = 1e-20;

    template <class T>
    void beginnen(Paar<T>& z, Paar<T>& c) const {
        if (einswurzel) {
            z = c;
            c = {T(1.0), T(0.0)};
        }
    }

    template <class T, class Kopplung>
    auto schritt(Stand<Paar<T>>& s, const Paar<T>& c, const Kopplung& kopplung) const {
        const Paar<T> r = kopplung.haupt(s.w, c);
        Paar<T> minus{s.z.x + s.w.y, s.z.y - s.w.x};
        Paar<T> plus{s.z.x - s.w.y, s.z.y + s.w.x};
        const auto abbrMinus = newton(minus, r) < Schwelle;
        const auto abbrPlus = newton(plus, r) < Schwelle;
        s.z = {0.5 * (minus.x + plus.x), 0.5 * (minus.y + plus.y)};
        s.w = {0.5 * (plus.y - minus.y), 0.5 * (minus.x - plus.x)};
        return abbrMinus | abbrPlus;
    }

  private:
    /// Replaces e by e - (e^3 - r)/(3 e^2) and returns the squared magnitude of 3 e^2.
    template <class T>
    static constexpr T newton(Paar<T>& e, const Paar<T>& r) {
        const T x2 = e.x * e.x - e.y * e.y;
        const T y2 = (e.x + e.x) * e.y;
        const T nx = x2 * e.x - y2 * e.y - r.x;
        const T ny = y2 * e.x + x2 * e.y - r.y;
        const T dx = 3.0 * x2;
        const T dy = 3.0 * y2;
        const T norm = dx * dx + dy * dy;
        e = {e.x - (nx * dx + ny * dy) / norm, e.y - (ny * dx - nx * dy) / norm};
        return norm;
    }
};

} // namespace formeln
