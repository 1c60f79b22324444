#include "Signatur.h"

#include "Mandelbrot.h"

namespace {

struct GanzerSummand {
    qint32 Mandelbrot::*feld;
    quint32 gewicht;
    bool orbit; ///< a setting of the orbit display only
};

constexpr std::array<GanzerSummand, Signatur::GanzeAnzahl> GanzeSummanden{{
    {&Mandelbrot::Max_Iterationen, 1, false},
    {&Mandelbrot::g_JuliaJa, 2, false},
    {&Mandelbrot::g_halbesBild, 3, false},
    {&Mandelbrot::g_linienLoeschenJa, 23, false},
    {&Mandelbrot::g_ZwillingJa, 17, false},
    {&Mandelbrot::g_UnDo, 31, false},
    {&Mandelbrot::OPx, 1, true},
    {&Mandelbrot::OPy, 1, true},
    {&Mandelbrot::g_OrbitJa, 1, true},
    {&Mandelbrot::g_OrbitDuennJa, 2, true},
    {&Mandelbrot::g_maxOrbitIterat, 3, true},
    {&Mandelbrot::g_GenauJa, 5, false},
    {&Mandelbrot::g_zycmax, 9, false},
    {&Mandelbrot::glg_Abbruch, 13, false},
    {&Mandelbrot::wahl_Gleichung, 11, false},
    {&Mandelbrot::g_oberesHalbbild, 7, false},
    {&Mandelbrot::g_kPotenz, 29, false},
}};

constexpr std::array<double Mandelbrot::*, Signatur::ReelleAnzahl> ReelleSummanden{
    &Mandelbrot::Br_x,    &Mandelbrot::wert_Abbruch, &Mandelbrot::g_Bildverhaeltnis,
    &Mandelbrot::MP_x,    &Mandelbrot::MP_y,         &Mandelbrot::g_Genauigkeit,
    &Mandelbrot::CJ_x,    &Mandelbrot::CJ_y,         &Mandelbrot::Koppl_x,
    &Mandelbrot::Koppl_y,
};

bool gleichOderNaN(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

} // namespace

bool Signatur::gleichBisAufOrbit(const Signatur& andere) const {
    for (std::size_t i = 0; i < ganze.size(); ++i) {
        if (!GanzeSummanden[i].orbit && ganze[i] != andere.ganze[i]) {
            return false;
        }
    }
    return breite == andere.breite && hoehe == andere.hoehe &&
           std::equal(reelle.begin(), reelle.end(), andere.reelle.begin(), gleichOderNaN);
}

bool Signatur::gleich(const Signatur& andere) const {
    return ganze == andere.ganze && gleichBisAufOrbit(andere);
}

Signatur signaturBilden(Mandelbrot& menge, qint32 breite, qint32 hoehe) {
    Signatur s;
    quint32 summe = 0; // unsigned: the sum wraps
    for (std::size_t i = 0; i < s.ganze.size(); ++i) {
        s.ganze[i] = menge.*GanzeSummanden[i].feld;
        summe += GanzeSummanden[i].gewicht * static_cast<quint32>(s.ganze[i]);
    }
    for (std::size_t i = 0; i < s.reelle.size(); ++i) {
        s.reelle[i] = menge.*ReelleSummanden[i];
    }
    s.breite = breite;
    s.hoehe = hoehe;

    menge.bilddatenInteger = static_cast<qint32>(summe);
    // The order of these additions is fixed: sums are compared for exact equality.
    menge.bilddatenDouble =
        menge.Br_x + (((menge.wert_Abbruch + menge.g_Bildverhaeltnis) + menge.MP_x) + menge.MP_y);
    menge.bilddatenDouble =
        (menge.g_Genauigkeit + (((menge.CJ_x + menge.CJ_y) + menge.Koppl_x) + menge.Koppl_y)) +
        menge.bilddatenDouble;
    menge.bilddatenSumme = static_cast<double>(menge.bilddatenInteger) + menge.bilddatenDouble;
    return s;
}
