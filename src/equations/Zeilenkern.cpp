#include "equations/Zeilenkern.h"

#include "equations/Abbruch.h"
#include "equations/FormelnKomplex.h"
#include "equations/Gleichungen.h"
#include "equations/Kernwahl.h"
#include "equations/Rechenweise.h"
#include "equations/Reihe.h"
#include "equations/Zwilling.h"

#include <algorithm>
#include <utility>

namespace {

// --- Instruction sets ----------------------------------------------------------------------------

bool vorhanden(Befehlssatz satz) {
    switch (satz) {
    case Befehlssatz::Punktweise:
        return true;
    case Befehlssatz::Grundsatz:
        return reihenkernGrundsatz() != nullptr;
#if defined(__x86_64__)
    case Befehlssatz::Avx2:
        return reihenkernAvx2() != nullptr && __builtin_cpu_supports("avx2") != 0;
    case Befehlssatz::Avx512:
        return reihenkernAvx512() != nullptr && __builtin_cpu_supports("avx512f") != 0 &&
               __builtin_cpu_supports("avx512dq") != 0 && __builtin_cpu_supports("avx512vl") != 0;
#else
    case Befehlssatz::Avx2:
    case Befehlssatz::Avx512:
        return false;
#endif
    }
    return false;
}

Reihenkern reihenkern(Befehlssatz satz) {
    switch (satz) {
    case Befehlssatz::Grundsatz:
        return reihenkernGrundsatz();
    case Befehlssatz::Avx2:
        return reihenkernAvx2();
    case Befehlssatz::Avx512:
        return reihenkernAvx512();
    case Befehlssatz::Punktweise:
        break;
    }
    return nullptr;
}

// --- What the lanes are given --------------------------------------------------------------------

struct Zuordnung {
    Reihenformel formel = Reihenformel::Keine;
    qint64 exponent = 0;
};

constexpr std::array<std::pair<Term, Reihenformel>, 12> Termformeln = {{
    {Term::Z2, Reihenformel::Z2},
    {Term::Z3, Reihenformel::Z3},
    {Term::Z4, Reihenformel::Z4},
    {Term::Z5, Reihenformel::Z5},
    {Term::ZhochK, Reihenformel::ZhochK},
    {Term::Zm, Reihenformel::Zm},
    {Term::ZmZ, Reihenformel::ZmZ},
    {Term::ZSZm, Reihenformel::ZSZm},
    {Term::Zm2, Reihenformel::Zm2},
    {Term::ZmHochHg, Reihenformel::ZmHochHg},
    {Term::ZmHochHuZ, Reihenformel::ZmHochHuZ},
    {Term::ZSZmHochHu, Reihenformel::ZSZmHochHu},
}};

/// The equation as the lanes know it. None while a lasting repair of the kernel is due, and for a
/// reciprocal power.
Zuordnung zuordnen(const Mandelbrot& m) {
    const qint32 nummer = m.wahl_Gleichung;
    switch (nummer) {
    case 1:
    case 2:
        return {m.g_ZwillingJa > ReelleKopplung::Letzte ? Reihenformel::Keine
                                                        : Reihenformel::Quadrat};
    case 3:
    case 4:
        return {m.g_ZwillingJa == 6 ? Reihenformel::Keine : Reihenformel::Auge};
    case 5:
    case 6:
        return {Reihenformel::Vierpol};
    default:
        break;
    }
    const qint32 endzahl = nummer > 99 ? familie(nummer) : 0;
    if (endzahl < 1 || endzahl > 4) {
        return {};
    }
    const Term term = termAus(endzahl <= 2 ? PotenzTerme : AugenTerme, nummer);
    const auto* const zeile = std::find_if(Termformeln.begin(), Termformeln.end(),
                                           [&](const auto& z) { return z.first == term; });
    if (zeile == Termformeln.end()) {
        return {};
    }
    const bool mitK = term == Term::ZhochK;
    const qint64 exponent = mitK ? m.g_kPotenz : (term == Term::ZmHochHg ? m.kPotHg : m.kPotHu);
    if (exponent < 0 || (mitK && exponent == 0)) {
        return {};
    }
    return {zeile->second, exponent};
}

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

/// Bailout settings; false while a lasting repair of the bailout test is due.
bool abbruchEintragen(const Mandelbrot& m, Reihe& r) {
    if (m.glg_Abbruch < 0 || m.glg_Abbruch > std::min(m.g_Max_glg_Abbruch, AbbruchMax)) {
        return false;
    }
    const auto art = static_cast<Abbruchart>(m.glg_Abbruch);
    r.abbruchart = static_cast<qint32>(art == Abbruchart::Betrag ? Abbruchart::Norm : art);
    r.grenze = art == Abbruchart::Betrag ? normgrenze(m.wert_Abbruch) : m.wert_Abbruch;
    r.schritte = std::max<qint64>(1, qint64{m.Max_Iterationen} - 1);
    if (istZyklussuche(art)) {
        if (m.g_zycmax < 1 || m.g_zycmax > Mandelbrot::ZyklusMax) {
            return false;
        }
        r.zycmax = m.g_zycmax;
        r.genau = m.g_Genauigkeit;
        r.farben = m.g_Max_rgbFarben;
        for (qint32 i = 0; i <= r.zycmax; ++i) {
            const qint64 skalierung = qint64{m.g_Max_rgbFarben} / m.g_zycmax;
            r.zyklusBetrag[i] = static_cast<double>((i + 1) * skalierung + 100);
        }
    }
    return true;
}

/// Fills in everything but the pixels; false when the row has to be computed pixel by pixel.
bool vorbereiten(const Mandelbrot& m, const Zeilenauftrag& a, Reihe& r) {
    const Zuordnung gleichung = zuordnen(m);
    if (gleichung.formel == Reihenformel::Keine || m.Orbitmodus == 2 || !abbruchEintragen(m, r)) {
        return false;
    }
    r.formel = gleichung.formel;
    r.exponent = gleichung.exponent;
    r.schwelle = m.g_Genauigkeit / 1e6;
    r.zwilling = zwillingsart(m.g_ZwillingJa, m.wahl_Gleichung > 99 ? KomplexeKopplung::Letzte
                                                                    : ReelleKopplung::Letzte);
    r.kopplX = m.Koppl_x;
    r.kopplY = m.Koppl_y;
    r.abkuerzung = rechenweise().abkuerzung;
    r.y = a.y;
    r.julia = a.julia;
    r.cx = m.CJ_x;
    r.cy = m.CJ_y;
    return true;
}

// --- The row -------------------------------------------------------------------------------------

void punktRechnen(const Mandelbrot& m, Kern kern, const Zeilenauftrag& a, std::size_t i) {
    const double startX = a.julia ? a.x[i] : 0.0;
    const double startY = a.julia ? a.y : 0.0;
    zyklusVoreinstellen(m, startX, startY);
    a.wert[i] = a.julia ? (m.*kern)(startX, startY, m.CJ_x, m.CJ_y)
                        : (m.*kern)(startX, startY, a.x[i], a.y);
    a.zaehler[i] = m.privateIterat;
}

/// Turns what the lanes left into results; pixels that they could not finish are computed anew.
void nachbereiten(const Mandelbrot& m, Kern kern, const Zeilenauftrag& a) {
    const bool betrag = m.glg_Abbruch == static_cast<qint32>(Abbruchart::Betrag);
    for (std::size_t i = 0; i < a.x.size(); ++i) {
        if (a.zaehler[i] == 0) {
            punktRechnen(m, kern, a, i);
            continue;
        }
        const double wert = betrag ? std::sqrt(a.wert[i]) : a.wert[i];
        a.wert[i] = wert == -m.g_Genauigkeit ? 0.0 : wert;
    }
}

void inSpurenRechnen(const Mandelbrot& m, Kern kern, const Zeilenauftrag& a, Reihe& r,
                     Reihenkern lauf) {
    for (std::size_t von = 0; von < a.x.size(); von += Reihe::Hoechstens) {
        const std::size_t anzahl = std::min<std::size_t>(Reihe::Hoechstens, a.x.size() - von);
        r.x = a.x.data() + von;
        r.wert = a.wert.data() + von;
        r.zaehler = a.zaehler.data() + von;
        r.anzahl = static_cast<qint32>(anzahl);
        lauf(r);
    }
    nachbereiten(m, kern, a);
    const bool zyklussuche = istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch));
    if (r.getestet) {
        m.g_GenauJa = zyklussuche ? 1 : 0;
    }
    if (zyklussuche) {
        // The history that stays behind is the last pixel's.
        punktRechnen(m, kern, a, a.x.size() - 1);
    }
    m.privateIterat = m.IteratSubf = a.zaehler.back();
}

} // namespace

Befehlssatz verfuegbar(Befehlssatz gewuenscht) {
    for (auto i = static_cast<qint32>(gewuenscht); i > 0; --i) {
        if (vorhanden(static_cast<Befehlssatz>(i))) {
            return static_cast<Befehlssatz>(i);
        }
    }
    return Befehlssatz::Punktweise;
}

Rechenweise& rechenweise() {
    static Rechenweise weise{true, verfuegbar(Befehlssatz::Avx512)};
    return weise;
}

void zyklusVoreinstellen(const Mandelbrot& m, double wertx0, double werty0) {
    if (!istZyklussuche(static_cast<Abbruchart>(m.glg_Abbruch))) {
        return;
    }
    const auto anzahl = std::clamp<qint64>(qint64{m.g_zycmax} + 1, 0, Mandelbrot::ZyklusMax + 1);
    std::fill_n(m.xm.begin(), anzahl, wertx0 + Reihe::Voreinstellung);
    std::fill_n(m.pm.begin(), anzahl, wertx0 + Reihe::Voreinstellung);
    std::fill_n(m.ym.begin(), anzahl, werty0 + Reihe::Voreinstellung);
    std::fill_n(m.tm.begin(), anzahl, werty0 + Reihe::Voreinstellung);
}

void zeileRechnen(const Mandelbrot& m, const Zeilenauftrag& auftrag) {
    const Kern kern = kernFuer(m.wahl_Gleichung);
    const Reihenkern lauf = reihenkern(verfuegbar(rechenweise().befehlssatz));
    if (kern == nullptr) {
        return;
    }
    // Pixel by pixel until the lasting repairs, which the kernels make, are done; then in lanes.
    for (std::size_t i = 0; i < auftrag.x.size(); ++i) {
        Reihe r;
        const Zeilenauftrag rest{auftrag.x.subspan(i), auftrag.y, auftrag.julia,
                                 auftrag.wert.subspan(i), auftrag.zaehler.subspan(i)};
        if (lauf != nullptr && rest.x.size() > 1 && vorbereiten(m, rest, r)) {
            inSpurenRechnen(m, kern, rest, r, lauf);
            return;
        }
        punktRechnen(m, kern, auftrag, i);
    }
}
