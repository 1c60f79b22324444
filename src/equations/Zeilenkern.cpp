#include "equations/Zeilenkern.h"

#include "equations/Abbruch.h"
#include "equations/zeile/Zeilenstueck.h"

#include <algorithm>

namespace {

static_assert(Zeilenstueck::ZyklusMax == Mandelbrot::ZyklusMax);

// --- The lanes of an equation --------------------------------------------------------------------

template <class Gruppe>
Zeilenlauf laufAus(Befehlssatz satz, std::size_t stelle) {
    if constexpr (formeln::mitSpuren(typename Gruppe::Formeln{})) {
        switch (satz) {
        case Befehlssatz::Grundsatz:
            return zeilentafel<Befehlssatz::Grundsatz, Gruppe>()[stelle];
#if defined(__x86_64__)
        case Befehlssatz::Avx2:
            return zeilentafel<Befehlssatz::Avx2, Gruppe>()[stelle];
        case Befehlssatz::Avx512:
            return zeilentafel<Befehlssatz::Avx512, Gruppe>()[stelle];
#endif
        default:
            break;
        }
    }
    return nullptr;
}

/// nullptr where single pixels are all there is.
Zeilenlauf laufFuer(const Mandelbrot& m) {
    if (m.Orbitmodus == 2) {
        return nullptr;
    }
    const auto lauf = [satz = verfuegbar(rechenweise().befehlssatz)]<class Gruppe>(
                          std::size_t stelle) { return laufAus<Gruppe>(satz, stelle); };
    return formeln::nachschlagen<Zeilenlauf>(m.wahl_Gleichung, lauf, formeln::Verzeichnis{});
}

// --- What the lanes are given --------------------------------------------------------------------

/// The smallest number whose square root is not below `wert`: sqrt(s) < wert exactly when s is
/// below it, since the root is rounded correctly and so does not fall.
double normgrenze(double wert) {
    if (!(wert > 0.0)) {
        return std::isnan(wert) ? wert : 0.0;
    }
    constexpr double inf = std::numeric_limits<double>::infinity();
    double s = wert * wert;
    while (s > 0.0 && !(std::sqrt(std::nextafter(s, 0.0)) < wert)) {
        s = std::nextafter(s, 0.0);
    }
    while (s < inf && std::sqrt(s) < wert) {
        s = std::nextafter(s, inf);
    }
    return s;
}

/// Whether the bailout test has nothing left to repair; it repairs at the first test made.
bool abbruchBereit(const Mandelbrot& m) {
    return abbruchBekannt(m) && (!istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch)) ||
                                 (m.g_zycmax >= 1 && m.g_zycmax <= Mandelbrot::ZyklusMax));
}

void abbruchEintragen(const Mandelbrot& m, Zeilenstueck& r) {
    const auto art = static_cast<Abbruchart>(m.glg_Abbruch);
    const bool betrag = art == Abbruchart::Betrag;
    r.abbruchart = betrag ? Abbruchart::Norm : art;
    r.grenze = betrag ? normgrenze(m.wert_Abbruch) : m.wert_Abbruch;
    r.schritte = std::max<qint64>(1, qint64{m.Max_Iterationen} - 1);
    if (istZyklussuche(art)) {
        r.zycmax = m.g_zycmax;
        r.genau = m.g_Genauigkeit;
        r.farben = m.g_Max_rgbFarben;
        for (qint32 i = 0; i <= r.zycmax; ++i) {
            r.zyklusBetrag[i] = laengenbetrag(m.g_Max_rgbFarben, m.g_zycmax, i);
        }
    }
}

/// Everything but the pixels.
Zeilenstueck vorbereiten(const Mandelbrot& m, const Zeilenauftrag& a) {
    Zeilenstueck r;
    r.werte = werteAus(m);
    abbruchEintragen(m, r);
    r.abkuerzung = rechenweise().abkuerzung;
    r.y = a.y;
    r.julia = a.julia;
    r.cx = m.CJ_x;
    r.cy = m.CJ_y;
    return r;
}

// --- The row -------------------------------------------------------------------------------------

void punktweise(const Mandelbrot& m, const Punktkern& kern, const Zeilenauftrag& a, std::size_t i,
                const Zwischenstand* ab = nullptr) {
    const double startX = a.julia ? a.x[i] : 0.0;
    const double startY = a.julia ? a.y : 0.0;
    const Pixel pixel =
        a.julia ? Pixel{startX, startY, m.CJ_x, m.CJ_y} : Pixel{startX, startY, a.x[i], a.y};
    zyklusVoreinstellen(m, startX, startY);
    a.wert[i] = kern.rechnen(m, pixel, ab);
    a.zaehler[i] = m.privateIterat;
}

/// Turns what the lanes left of a piece into results; the point kernel finishes the rest.
void nachbereiten(const Mandelbrot& m, const Punktkern& kern, const Zeilenauftrag& a,
                  const Zeilenstueck& r) {
    const bool betrag = m.glg_Abbruch == static_cast<qint32>(Abbruchart::Betrag);
    qint64 inSpuren = 0;
    for (std::size_t i = 0; i < a.x.size(); ++i) {
        if (a.zaehler[i] == 0) {
            punktweise(m, kern, a, i, r.ab[i].getan > 0 ? &r.ab[i] : nullptr);
            continue;
        }
        ++inSpuren;
        const double wert = betrag ? std::sqrt(a.wert[i]) : a.wert[i];
        a.wert[i] = wert == -m.g_Genauigkeit ? 0.0 : wert;
    }
    rechenaufwand().pixelInSpuren += inSpuren;
}

void inSpurenRechnen(const Mandelbrot& m, const Punktkern& kern, const Zeilenauftrag& a,
                     Zeilenlauf lauf) {
    Zeilenstueck r = vorbereiten(m, a);
    std::array<Zwischenstand, Zeilenstueck::Hoechstens> ab;
    r.ab = ab.data();
    for (std::size_t von = 0; von < a.x.size(); von += Zeilenstueck::Hoechstens) {
        const std::size_t anzahl =
            std::min<std::size_t>(Zeilenstueck::Hoechstens, a.x.size() - von);
        const Zeilenauftrag stueck = a.teil(von, anzahl);
        r.x = stueck.x.data();
        r.wert = stueck.wert.data();
        r.zaehler = stueck.zaehler.data();
        r.anzahl = static_cast<qint32>(anzahl);
        lauf(r);
        nachbereiten(m, kern, stueck, r);
    }
    rechenaufwand().schritteInSpuren += r.schritteGetan;
    const bool zyklussuche = istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch));
    if (r.getestet) {
        m.g_GenauJa = zyklussuche ? 1 : 0;
    }
    if (zyklussuche) {
        // The history that stays behind is the last pixel's.
        punktweise(m, kern, a, a.x.size() - 1);
    }
    m.privateIterat = m.IteratSubf = a.zaehler.back();
}

} // namespace

void zyklusVoreinstellen(const Mandelbrot& m, double wertx0, double werty0) {
    if (!istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch))) {
        return;
    }
    const auto anzahl = std::clamp<qint64>(qint64{m.g_zycmax} + 1, 0, Mandelbrot::ZyklusMax + 1);
    std::fill_n(m.xm.begin(), anzahl, wertx0 + Zeilenstueck::Voreinstellung);
    std::fill_n(m.pm.begin(), anzahl, wertx0 + Zeilenstueck::Voreinstellung);
    std::fill_n(m.ym.begin(), anzahl, werty0 + Zeilenstueck::Voreinstellung);
    std::fill_n(m.tm.begin(), anzahl, werty0 + Zeilenstueck::Voreinstellung);
}

void zeileRechnen(const Mandelbrot& m, const Zeilenauftrag& auftrag) {
    const Punktkern* kern = punktkernFuer(m.wahl_Gleichung);
    if (kern == nullptr) {
        return;
    }
    vektorregisterFreigeben();
    const Zeilenlauf lauf = laufFuer(m);
    // Pixel by pixel until the bailout test has made its repairs; then in lanes.
    for (std::size_t i = 0; i < auftrag.x.size(); ++i) {
        if (lauf != nullptr && auftrag.x.size() - i > 1 && abbruchBereit(m)) {
            kern->reparieren(m);
            inSpurenRechnen(m, *kern, auftrag.teil(i, auftrag.x.size() - i), lauf);
            return;
        }
        punktweise(m, *kern, auftrag, i);
    }
}
