#include "Bezugskern.h"

#include "equations/Gleichungen.h"

#if !defined(__x86_64__)
#include "equations/formeln/Quotient.h"
#endif

namespace {

// The library's quotient and power. On other processors than x86-64 it may fuse products and sums,
// and the program's own stand in; what they give there is held against x86-64 by the golden values.
#if defined(__x86_64__)
C durch(C z, C n) { return z / n; }
C hoch(C z, qint32 n) { return std::pow(z, n); }
#else
C durch(C z, C n) { return geteilt(z, n); }
C hoch(C z, qint32 n) { return hochGanz(z, n); }
#endif

C abgerueckt(C v, double g) {
    const auto teil = [g](double t) { return std::fabs(t) < g ? (t < 0 ? -g : g) : t; };
    return {teil(v.real()), teil(v.imag())};
}

} // namespace

std::unique_ptr<M> kernmodell() {
    auto m = std::make_unique<M>();
    m->Orbitmodus = 0;
    setze(*m, "wahl_Gleichung=1 g_Max_glg_Abbruch=9 glg_Abbruch=1 wert_Abbruch=400 g_zycmax=7 "
              "g_Max_rgbFarben=582 g_Genauigkeit=0.0001 g_kPotenz=10 kPotHg=5 kPotHu=4 Koppl_x=0.2 "
              "Koppl_y=0.1 CJ_x=-0.7 CJ_y=0.2 Max_Iterationen=256");
    return m;
}

void alleGleichungen() {
    QTest::addColumn<qint32>("gleichung");
    for (const Gleichung& gleichung : gleichungen()) {
        QTest::addRow("%d", gleichung.nummer) << gleichung.nummer;
    }
}

void uebertragen(const M& von, M& nach) {
    const auto kopieren = [&](const auto feld) { nach.*feld = von.*feld; };
    std::ranges::for_each(Ganze, kopieren);
    std::ranges::for_each(Reelle, kopieren);
    std::ranges::for_each(Verlaeufe, kopieren);
}

QString unterschied(const M& ist, const M& soll) {
    QString text;
    const auto vergleichen = [&](const auto feld) {
        if (!bitgleich(ist.*feld, soll.*feld)) {
            text += QString("%1 instead of %2; ").arg(ist.*feld).arg(soll.*feld);
        }
    };
    std::ranges::for_each(Ganze, vergleichen);
    std::ranges::for_each(Reelle, vergleichen);
    const auto gleich = [&](const auto feld) {
        return std::ranges::equal(ist.*feld, soll.*feld, bitgleich);
    };
    return std::ranges::all_of(Verlaeufe, gleich) ? text : text + "history";
}

double Bezugskern::betrag() {
    const double x = z.real(), y = z.imag(), h = x * x - y * y, r = x * x + y * y;
    const double masse[] = {
        std::sqrt(r), r, std::fabs(x) + std::fabs(y), x + y, 0.0, 0.0, h, h * h, h * h * h,
        h * h * h * h};
    const bool delta = m.glg_Abbruch == 4;
    m.g_GenauJa = delta || m.glg_Abbruch == 5 ? 1 : 0;
    if (m.g_GenauJa == 0) {
        return masse[m.glg_Abbruch];
    }
    double rq = -m.g_Genauigkeit;
    const auto xm = m.xm.begin(), ym = m.ym.begin();
    for (int i = m.g_zycmax; i >= 0; --i) { // the most recent match stays
        const double dd = std::fabs(xm[i] - x) + std::fabs(ym[i] - y);
        if (dd < m.g_Genauigkeit) {
            rq = delta ? 100.0 + 2 * (m.g_Max_rgbFarben * (dd / m.g_Genauigkeit))
                       : (i + 1) * (m.g_Max_rgbFarben / m.g_zycmax) + 100;
        }
    }
    std::rotate(xm, xm + m.g_zycmax, xm + m.g_zycmax + 1);
    std::rotate(ym, ym + m.g_zycmax, ym + m.g_zycmax + 1);
    *xm = x;
    *ym = y;
    return rq;
}

C Bezugskern::gekoppelt(C v, C k, double vorzeichen) const {
    const double kx = vorzeichen * m.Koppl_x, ky = vorzeichen * m.Koppl_y;
    const C eins(1, 0), schraeg(1, 1), produkt = C(kx, ky) * v;
    const double x = v.real(), y = v.imag(), a = k.real(), b = k.imag();
    const bool komplex = gleichung > 99; // in complex arithmetic alone
    const bool auge = vorzeichen > 0 && (gleichung == 3 || gleichung == 4);
    const C formeln[] = {k,
                         {kx * x + a, ky * y + b},
                         {(1 + m.Koppl_x * x) * a, (1 - m.Koppl_y * y) * b},
                         {(1 + kx * x) * a, (1 + ky * y) * b},
                         k + produkt,
                         komplex ? k * (eins + kx * v)
                         : auge  ? C((1 + produkt.real()) * a, (1 + produkt.imag()) * b)
                                 : C(a * kx * x - b * kx * y + a, b * kx * x + a * kx * y + b),
                         {a * kx * x - b * kx * y + a, b * ky * x + a * ky * y + b},
                         k * (schraeg + kx * v),
                         k * (eins + produkt),
                         k * (schraeg + produkt),
                         k * (schraeg + vorzeichen * produkt),
                         k * (schraeg - vorzeichen * produkt)};
    const qint32 art = m.g_ZwillingJa;
    return art > 0 && art <= (komplex ? 11 : 6) ? formeln[art] : k;
}

C Bezugskern::term(C u) const {
    const C us = std::conj(u), r = u * us, q = u * u;
    if (familie == 7 || familie == 8) {
        const C exponenten[] = {us, u, -u, durch(1.0, u), -us, durch(1.0, us), u};
        return std::pow(hunderter == 7 ? us : u, exponenten[hunderter - 1]);
    }
    const bool auge = familie == 3 || familie == 4 || familie > 10;
    const qint32 n = !auge ? m.g_kPotenz : (hunderter == 5 ? m.kPotHg : m.kPotHu);
    const C uHochN = hunderter >= 5 && hunderter <= 7 ? hoch(auge ? r : u, n) : C();
    const C terme[][9] = {{q, q * u, q * q, q * q * u, uHochN},
                          {r, r * u, us * r, r * r, uHochN, uHochN * u, us * uHochN},
                          {q * u, q * q, q * q * u, q * q * q, uHochN, u, q},
                          {},
                          {},
                          {r * u, u * r, r * r, r * r * u, uHochN, uHochN * u, us * uHochN, us, r}};
    return terme[(familie - 1) / 2][hunderter - 1];
}

bool Bezugskern::bild(C& u, C a, bool haupt) const {
    const double x = u.real(), y = u.imag();
    if (gleichung <= 2) {
        u = C(x * x - y * y, 2 * x * y) + a;
    } else if (gleichung <= 4) {
        u = C(x * x + y * y, 0) + a;
    } else if (gleichung <= 6) {
        const C u3 = C(x * x - y * y, 2 * x * y) * u, n = u + a;
        const C d(1 + a.real() * u3.real() - a.imag() * u3.imag(), (a * u3).imag());
        const double dd = d.real() * d.real() + d.imag() * d.imag();
        u = n * std::conj(d) / dd;
        return !(dd < (haupt ? m.g_Genauigkeit / 1e6 : 1e-10));
    } else if (gleichung <= 8) {
        const double r = std::sqrt(x * x + y * y), theta = std::atan2(y, x);
        const double potenz = std::pow(r, x) * std::exp(theta * y);
        const double phi = y * std::log(r) - theta * x;
        const bool gut = !(r < 1e-290 || potenz > 1e290);
        u = (gut ? C(potenz * std::cos(phi), potenz * std::sin(phi)) : u) + a;
        return gut;
    } else if (pol) {
        const C d = C(1, 0) + a * term(u);
        u = durch(u + a, d);
        return std::fabs(d.real()) > 1e-20;
    } else {
        u = term(u) + a;
    }
    return true;
}

Bezugskern::Schritt Bezugskern::newton() {
    const int art = familie - 9; // 0: roots of 1
    const C zs = std::conj(z), q = z * z, v = q * q, r = z * zs, B = newtonB;
    const qint32 n = art == 1 ? m.g_kPotenz : (hunderter == 8 ? m.kPotHg : m.kPotHu);
    C potenz, davor;
    if (art == 1 ? hunderter == 1 : hunderter > 7) {
        potenz = hoch(art == 1 ? z : r, n);
        davor = hoch(art == 1 ? z : r, n - 1);
    }
    const C polynome[][9] = {{q * z, q * z, v * z, v * z, q * z, r * z, r * z, potenz, zs * potenz},
                             {potenz, q, q * z, v, v * z, v * q, v * q * z, v * v, v * v * z}};
    const C ableitungen[][9] = {
        {B * q, B * q, B * v, B * v, B * z * zs, B * z * zs, B * q, B * davor, B * zs * davor},
        {B * davor, B * z, B * q, B * q * z, B * v, B * v * z, B * v * q, B * v * q * z,
         B * v * v}};
    const C nenner = ableitungen[art][hunderter - 1] * newtonA;
    if (!(std::fabs(nenner.real()) > 1e-290)) {
        return Schritt::Ungezaehlt;
    }
    z -= durch(polynome[art][hunderter - 1] - (art == 1 ? newtonP : 1.0), nenner);
    return Schritt::Gut;
}

Bezugskern::Schritt Bezugskern::hyperwurzel() {
    // Componentwise in the two idempotents: z - iw and z + iw.
    const C i(0, 1), r = gekoppelt(w, c, 1.0);
    bool gut = true;
    const auto newtonschritt = [&](C e) {
        const C d = 3.0 * (e * e);
        const double dd = d.real() * d.real() + d.imag() * d.imag();
        gut = gut && !(dd < 1e-20);
        return e - (e * e * e - r) * std::conj(d) / dd;
    };
    const C minus = newtonschritt(z - i * w), plus = newtonschritt(z + i * w);
    z = 0.5 * (minus + plus);
    w = 0.5 * i * (minus - plus);
    return gut ? Schritt::Gut : Schritt::Abbruch;
}

Bezugskern::Schritt Bezugskern::schritt() {
    if (familie == 9 || familie == 10) {
        return newton();
    }
    if (gleichung == 9 || gleichung == 10) {
        return hyperwurzel();
    }
    const C aw = gekoppelt(z, cw, -1.0); // from the old main value
    bool gut = bild(z, gekoppelt(w, c, 1.0), true);
    if (m.g_ZwillingJa > 0) {
        const bool zwillingGut = bild(w, aw, false);
        gut = gleichung == 7 || gleichung == 8 ? zwillingGut : gut && zwillingGut;
    }
    return gut ? Schritt::Gut : Schritt::Abbruch;
}

void Bezugskern::newtonVorbereiten(C start, C konstante) {
    const C pixel = abgerueckt(start, 1e-20), k = abgerueckt(konstante, 1e-20);
    const C faktoren[][9] = {{3, C(3, 3), 5, C(5, 5), 3, 3, 3, m.g_kPotenz, m.g_kPotenz},
                             {m.g_kPotenz, 2, 3, 4, 5, 6, 7, 8, 9}};
    newtonB = faktoren[familie - 9][hunderter - 1];
    m.Koppl_x = m.Koppl_x == 0.0 ? 1.0 : m.Koppl_x;
    newtonP = {m.Koppl_x, m.Koppl_y};
    z = w = familie == 9 ? k : pixel;
    newtonA = familie == 9 ? newtonP : C(k.real() == 1e-20 ? 1.0 : k.real(), k.imag());
}

void Bezugskern::vorbereiten(C start, C konstante) {
    gleichung = m.wahl_Gleichung;
    familie = gleichung < 100 ? 0 : gleichung % 100;
    hunderter = gleichung / 100;
    pol = familie == 5 || familie == 6 || familie > 10;
    const bool spinne = gleichung == 7 || gleichung == 8;
    if (gleichung <= 2 && m.g_ZwillingJa > 6) {
        m.g_ZwillingJa = 0;
    } else if ((gleichung == 3 || gleichung == 4) && m.g_ZwillingJa == 6) {
        m.g_ZwillingJa = 5;
    } else if (spinne && m.g_ZwillingJa > 1) {
        m.g_ZwillingJa = 1;
    }
    const bool mitK = gleichung == 501 || gleichung == 502 || gleichung == 505 ||
                      gleichung == 506 || gleichung == 110 || gleichung == 809 || gleichung == 909;
    m.g_kPotenz = mitK && m.g_kPotenz == 0 ? 10 : m.g_kPotenz;
    const bool abruecken = spinne || pol || familie == 7 || familie == 8;
    z = w = abruecken ? abgerueckt(start, m.g_Genauigkeit / 10000) : start;
    c = cw = konstante;
    if (gleichung == 8) {
        c = m.CJ_x = -1;
        m.CJ_y = 0;
    } else if (gleichung == 9) {
        z = w = konstante;
        c = 1.0;
    } else if (familie == 9 || familie == 10) {
        newtonVorbereiten(start, konstante);
    }
}

double Bezugskern::rechnen(C start, C konstante) {
    vorbereiten(start, konstante);
    double rq = 0.0;
    Schritt s = Schritt::Gut;
    m.privateIterat = 1;
    do {
        s = schritt();
        m.privateIterat += s == Schritt::Ungezaehlt ? 0 : 1;
        rq = s == Schritt::Gut ? betrag() : 0.0;
    } while (s == Schritt::Gut && m.privateIterat < m.Max_Iterationen && m.wert_Abbruch > rq);
    m.IteratSubf = m.privateIterat;
    return rq == -m.g_Genauigkeit ? 0.0 : rq;
}
