#pragma once

#include "Texttabelle.h"

using C = std::complex<double>;

/// Equal to the bit; any NaN equals any NaN.
[[nodiscard]] inline bool bitgleich(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) ||
           std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b);
}

// What kernels read in the model and may leave behind there.
inline constexpr qint32 M::*Ganze[] = {
    &M::wahl_Gleichung,    &M::g_ZwillingJa,    &M::Max_Iterationen, &M::glg_Abbruch, &M::g_zycmax,
    &M::g_Max_glg_Abbruch, &M::g_Max_rgbFarben, &M::g_kPotenz,       &M::kPotHg,      &M::kPotHu,
    &M::Orbitmodus,        &M::g_GenauJa,       &M::privateIterat,   &M::IteratSubf};
inline constexpr double M::*Reelle[] = {&M::wert_Abbruch, &M::g_Genauigkeit, &M::Koppl_x,
                                        &M::Koppl_y,      &M::CJ_x,          &M::CJ_y};
inline constexpr decltype(&M::xm) Verlaeufe[] = {&M::xm, &M::ym, &M::pm, &M::tm};

/// A model with plain settings that the tests vary.
[[nodiscard]] std::unique_ptr<M> kernmodell();
void uebertragen(const M& von, M& nach);
/// Makes the catalogue's numbers the test rows, column "gleichung".
void alleGleichungen();
/// Empty when all of the above is equal to the bit, else what is not.
[[nodiscard]] QString unterschied(const M& ist, const M& soll);

/// A second implementation of all kernels, as plain as can be: one loop over numbers, no lanes, no
/// templates, no shortcut. The kernels must agree with it to the bit. Settings and counts are those
/// of the model; a bailout variant and g_zycmax in need of repair are not understood.
class Bezugskern {
  public:
    explicit Bezugskern(M& modell) : m(modell) {}
    double rechnen(C start, C konstante);

  private:
    enum class Schritt { Gut, Abbruch, Ungezaehlt };

    M& m;
    qint32 gleichung = 0, familie = 0, hunderter = 0;
    bool pol = false;
    C z, w, c, cw;
    C newtonA, newtonP, newtonB;

    void vorbereiten(C start, C konstante);
    void newtonVorbereiten(C start, C konstante);
    Schritt schritt();
    Schritt newton();
    Schritt hyperwurzel();
    /// The constant k of the main value (vorzeichen 1, v the twin value) or the twin's (-1).
    [[nodiscard]] C gekoppelt(C v, C k, double vorzeichen) const;
    /// Replaces u by its successor with the constant a; false when that fails.
    [[nodiscard]] bool bild(C& u, C a, bool haupt) const;
    [[nodiscard]] C term(C u) const;
    double betrag();
};
