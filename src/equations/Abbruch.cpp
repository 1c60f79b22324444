#include "equations/Abbruch.h"

#include "Mandelbrot.h"

#include <algorithm>

namespace {

void orbitpunktAufzeichnen(const Mandelbrot& m, double x, double y) {
    const qint32 grenze = std::min(m.g_maxOrbitIterat, Mandelbrot::OrbitMax);
    if (m.IteratSubf <= m.g_OrbitAbIterAn || m.OZaehler >= grenze) {
        return;
    }
    m.OZaehler = std::max(m.OZaehler, 0) + 1;
    const auto i = static_cast<std::size_t>(m.OZaehler);
    m.OrbitX[i] = x;
    m.OrbitY[i] = y;
    m.OrbitX[i + 1] = m.OrbitY[i + 1] = Mandelbrot::OrbitEnde;
}

} // namespace

bool abbruchBekannt(const Mandelbrot& m) {
    return m.glg_Abbruch >= 0 && m.glg_Abbruch <= std::min(m.g_Max_glg_Abbruch, AbbruchMax);
}

Abbruchart abbruchVorbereiten(const Mandelbrot& m) {
    m.g_GenauJa = 0;
    if (!abbruchBekannt(m)) {
        m.glg_Abbruch = 0;
    }
    const auto art = static_cast<Abbruchart>(m.glg_Abbruch);
    if (istZyklussuche(art)) {
        m.g_GenauJa = 1;
        if (m.g_zycmax == 0) {
            m.g_zycmax = 7;
        }
        m.g_zycmax = std::min(m.g_zycmax, Mandelbrot::ZyklusMax);
    }
    return art;
}

// The most recent match wins. The history is not cleared between pixels.
double zyklusBetrag(const Mandelbrot& m, Abbruchart art, double x, double y) {
    const double genau = m.g_Genauigkeit;
    const qint32 letzter = m.g_zycmax;
    double rq = -genau;
    for (qint32 zyklus = 0; zyklus <= letzter; ++zyklus) {
        const auto i = static_cast<std::size_t>(zyklus);
        const double dd = std::fabs(m.xm[i] - x) + std::fabs(m.ym[i] - y);
        if (genau > dd) {
            rq = art == Abbruchart::Delta ? deltabetrag<double>(m.g_Max_rgbFarben, dd, genau)
                                          : laengenbetrag(m.g_Max_rgbFarben, letzter, zyklus);
            break;
        }
    }
    if (letzter > 0) {
        std::copy_backward(m.xm.begin(), m.xm.begin() + letzter, m.xm.begin() + letzter + 1);
        std::copy_backward(m.ym.begin(), m.ym.begin() + letzter, m.ym.begin() + letzter + 1);
    }
    m.xm[0] = x;
    m.ym[0] = y;
    return rq;
}

double Mandelbrot::BetrQ_Varianten(double x, double y, double p, double t) const {
    // The measure belongs to the main value alone, whatever the twin does.
    p = x;
    t = y;
    const Abbruchart art = abbruchVorbereiten(*this);
    const double rq =
        istZyklussuche(art) ? zyklusBetrag(*this, art, x, y) : betragOhneZyklus(art, p, t);
    if (Orbitmodus == 2) {
        orbitpunktAufzeichnen(*this, x, y);
    }
    return rq;
}
