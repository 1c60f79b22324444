#include "Bezugskern.h"

#include "Mandelbrot.h"

using C = std::complex<double>;

const std::vector<qint32>& alleGleichungen() {
    static const std::vector<qint32> liste = [] {
        std::vector<qint32> alle;
        for (qint32 n = 1; n <= 10; ++n) {
            alle.push_back(n);
        }
        // First and last hundreds digit of each family.
        constexpr qint32 familien[][3] = {{1, 1, 5}, {3, 1, 7}, {5, 1, 7},
                                          {7, 1, 7}, {9, 1, 9}, {11, 1, 9}};
        for (const auto& f : familien) {
            for (qint32 h = f[1]; h <= f[2]; ++h) {
                alle.push_back(100 * h + f[0]);
                alle.push_back(100 * h + f[0] + 1);
            }
        }
        return alle;
    }();
    return liste;
}

void Bezugskern::uebertragen(Mandelbrot& m) const {
    m.wahl_Gleichung = gleichung;
    m.g_ZwillingJa = zwilling;
    m.Max_Iterationen = grenze;
    m.glg_Abbruch = art;
    m.g_Max_glg_Abbruch = 9;
    m.g_zycmax = zycmax;
    m.g_Max_rgbFarben = farben;
    m.g_kPotenz = k;
    m.kPotHg = hg;
    m.kPotHu = hu;
    m.Koppl_x = kx;
    m.Koppl_y = ky;
    m.wert_Abbruch = wert;
    m.g_Genauigkeit = genau;
    m.CJ_x = cjx;
    m.CJ_y = cjy;
    m.xm = xm;
    m.ym = ym;
    m.g_GenauJa = genauJa;
    m.Orbitmodus = 0;
}

QString Bezugskern::unterschied(const Mandelbrot& m) const {
    if (m.privateIterat != zaehler) {
        return QStringLiteral("count %1 instead of %2").arg(m.privateIterat).arg(zaehler);
    }
    const std::pair<const char*, bool> felder[] = {{"g_ZwillingJa", m.g_ZwillingJa == zwilling},
                                                   {"g_kPotenz", m.g_kPotenz == k},
                                                   {"g_zycmax", m.g_zycmax == zycmax},
                                                   {"Koppl_x", bitgleich(m.Koppl_x, kx)},
                                                   {"CJ_x", bitgleich(m.CJ_x, cjx)},
                                                   {"CJ_y", bitgleich(m.CJ_y, cjy)},
                                                   {"g_GenauJa", m.g_GenauJa == genauJa}};
    for (const auto& [name, gleich] : felder) {
        if (!gleich) {
            return QString::fromLatin1(name);
        }
    }
    for (std::size_t i = 0; i < xm.size(); ++i) {
        if (!bitgleich(m.xm[i], xm[i]) || !bitgleich(m.ym[i], ym[i])) {
            return QStringLiteral("history %1").arg(i);
        }
    }
    return {};
}

double Bezugskern::betrag() {
    const double x = z.real();
    const double y = z.imag();
    const double h = x * x - y * y;
    genauJa = art == 4 || art == 5 ? 1 : 0;
    switch (art) {
    case 0:
        return std::sqrt(x * x + y * y);
    case 1:
        return x * x + y * y;
    case 2:
        return std::fabs(x) + std::fabs(y);
    case 3:
        return x + y;
    case 6:
        return h;
    case 7:
        return h * h;
    case 8:
        return h * h * h;
    case 9:
        return h * h * h * h;
    default:
        break;
    }
    double rq = -genau;
    for (int i = 0; i <= zycmax; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const double dd = std::fabs(xm[j] - x) + std::fabs(ym[j] - y);
        if (genau > dd) {
            rq = art == 4 ? 100.0 + 2 * (farben * (dd / genau)) : (i + 1) * (farben / zycmax) + 100;
            break;
        }
    }
    for (auto j = static_cast<std::size_t>(zycmax); j > 0; --j) {
        xm[j] = xm[j - 1];
        ym[j] = ym[j - 1];
    }
    xm[0] = x;
    ym[0] = y;
    return rq;
}

C Bezugskern::reellGekoppelt(bool haupt) const {
    const double px = kx, py = ky;
    if (haupt) {
        const double p = w.real(), t = w.imag(), Cx = c.real(), Cy = c.imag();
        if (zwilling == 5 && (gleichung == 3 || gleichung == 4)) {
            return {(1 + (px * p - py * t)) * Cx, (1 + (px * t + py * p)) * Cy};
        }
        switch (zwilling) {
        case 1:
            return {px * p + Cx, py * t + Cy};
        case 2:
            return {(1 + px * p) * Cx, (1 - py * t) * Cy};
        case 3:
            return {(1 + px * p) * Cx, (1 + py * t) * Cy};
        case 4:
            return {px * p - py * t + Cx, py * p + px * t + Cy};
        case 5:
            return {Cx * px * p - Cy * px * t + Cx, Cy * px * p + Cx * px * t + Cy};
        case 6:
            return {Cx * px * p - Cy * px * t + Cx, Cy * py * p + Cx * py * t + Cy};
        default:
            return c;
        }
    }
    const double x = z.real(), y = z.imag(), Cp = cw.real(), Ct = cw.imag();
    switch (zwilling) {
    case 1:
        return {Cp - px * x, Ct - py * y};
    case 2:
        return {(1 + px * x) * Cp, (1 - py * y) * Ct};
    case 3:
        return {(1 - px * x) * Cp, (1 - py * y) * Ct};
    case 4:
        return {Cp - (px * x - py * y), Ct - (px * y + py * x)};
    case 5:
        return {Cp - (Cp * px * x - Ct * px * y), Ct - (Cp * px * y + Ct * px * x)};
    case 6:
        return {Cp - (Cp * px * x - Ct * px * y), Ct - (Cp * py * y + Ct * py * x)};
    default:
        return cw;
    }
}

C Bezugskern::komplexGekoppelt(bool haupt) const {
    if (zwilling <= 3 || zwilling == 6) {
        return reellGekoppelt(haupt);
    }
    const C param(kx, ky), B1(1, 0), B11(1, 1);
    const C& v = haupt ? w : z;
    const C produkt = param * v;
    switch (zwilling) {
    case 4:
        return haupt ? c + produkt : c - produkt;
    case 5:
        return haupt ? c * (B1 + kx * v) : c * (B1 - kx * v);
    case 7:
        return haupt ? c * (B11 + kx * v) : c * (B11 - kx * v);
    case 8:
        return haupt ? c * (B1 + produkt) : c * (B1 - produkt);
    case 9:
        return haupt ? c * (B11 + produkt) : c * (B11 - produkt);
    case 10:
        return c * (B11 + produkt);
    case 11:
        return c * (B11 - produkt);
    default:
        return c;
    }
}

C Bezugskern::term(C u) const {
    const C us = std::conj(u), m = u * us, q = u * u;
    const int h = gleichung / 100;
    switch (gleichung % 100) {
    case 1:
    case 2: {
        const C werte[] = {q, q * u, q * q, q * q * u};
        return h == 5 ? std::pow(u, k) : werte[h - 1];
    }
    case 3:
    case 4: {
        const C werte[] = {u * us, m * u, us * m, m * m};
        return h <= 4 ? werte[h - 1]
                      : (h == 5 ? std::pow(m, hg)
                                : (h == 6 ? std::pow(m, hu) * u : us * std::pow(m, hu)));
    }
    case 5:
    case 6: {
        const C werte[] = {q * u, q * q, q * q * u, q * q * q, C(), u, q};
        return h == 5 ? std::pow(u, k) : werte[h - 1];
    }
    case 7:
    case 8:
        switch (h) {
        case 1:
            return std::pow(u, us);
        case 2:
            return std::pow(u, u);
        case 3:
            return std::pow(u, -u);
        case 4:
            return std::pow(u, 1.0 / u);
        case 5:
            return std::pow(u, -us);
        case 6:
            return std::pow(u, 1.0 / us);
        default:
            return std::pow(us, u);
        }
    default: {
        const C werte[] = {m * u, u * m, m * m, m * m * u, C(), C(), C(), us, m};
        switch (h) {
        case 5:
            return std::pow(m, hg);
        case 6:
            return std::pow(m, hu) * u;
        case 7:
            return us * std::pow(m, hu);
        default:
            return werte[h - 1];
        }
    }
    }
}

bool Bezugskern::reellesBild(C& u, C a, bool haupt) const {
    const double x = u.real(), y = u.imag();
    if (gleichung <= 2) {
        u = {x * x - y * y + a.real(), (x + x) * y + a.imag()};
    } else if (gleichung <= 4) {
        u = {y * y + x * x + a.real(), a.imag()};
    } else if (gleichung <= 6) {
        const double x2 = x * x - y * y, y2 = 2 * x * y;
        const double x3 = x2 * x - y2 * y, y3 = y2 * x + x2 * y;
        const double nx = x + a.real(), ny = y + a.imag();
        const double dx = 1 + a.real() * x3 - a.imag() * y3, dy = a.imag() * x3 + a.real() * y3;
        const double d = dx * dx + dy * dy;
        u = {(ny * dy + nx * dx) / d, (ny * dx - nx * dy) / d};
        return !(d < (haupt ? genau / 1e6 : 1e-10));
    } else {
        const double L = 1e290, r = std::sqrt(x * x + y * y), theta = std::atan2(y, x);
        bool gut = !(r < 1 / L);
        if (gut) {
            const double m = std::pow(r, x) * std::exp(theta * y);
            gut = !(m > L);
            if (gut) {
                const double phi = y * std::log(r) - theta * x;
                u = {m * std::cos(phi), m * std::sin(phi)};
            }
        }
        u = {u.real() + a.real(), u.imag() + a.imag()};
        return gut;
    }
    return true;
}

bool Bezugskern::bild(C& u, C a, bool haupt) const {
    if (gleichung < 100) {
        return reellesBild(u, a, haupt);
    }
    const int familie = gleichung % 100;
    if (familie == 5 || familie == 6 || familie > 10) {
        const C d = C(1, 0) + a * term(u);
        if (!(std::fabs(d.real()) > 1e-20)) {
            return false;
        }
        u = (u + a) / d;
    } else {
        u = term(u) + a;
    }
    return true;
}

Bezugskern::Schritt Bezugskern::newton() {
    const int h = gleichung / 100;
    const C zs = std::conj(z), q = z * z, v = q * q, m = z * zs, B = newtonB, A = newtonA;
    C d, n;
    if (gleichung % 100 == 9) {
        const C nenner[] = {B * q * A,      B * q * A,      B * v * A, B * v * A,
                            B * z * zs * A, B * z * zs * A, B * q * A};
        const C zaehlerTerme[] = {q * z, q * z, v * z, v * z, q * z, z * zs * z, z * zs * z};
        const C eins(1, 0);
        if (h <= 7) {
            d = nenner[h - 1];
            n = zaehlerTerme[h - 1] - eins;
        } else if (h == 8) {
            d = B * std::pow(m, hg - 1) * A;
            n = std::pow(m, hg) - eins;
        } else {
            d = B * zs * std::pow(m, hu - 1) * A;
            n = zs * std::pow(m, hu) - eins;
        }
    } else if (h == 1) {
        // K - 1 does not exist as an int for the smallest K: |K| + 1 is 2^31 + 1 then.
        const bool kleinste = k == std::numeric_limits<qint32>::min();
        C hoch = kleinste ? z : std::pow(z, k - 1);
        if (kleinste) {
            C quadrat = z;
            for (int i = 0; i < 31; ++i) {
                quadrat *= quadrat;
            }
            hoch = C(1) / (z * quadrat);
        }
        d = B * hoch * A;
        n = std::pow(z, k) - newtonP;
    } else {
        const C nenner[] = {B * z * A,     B * q * A,     B * q * z * A,     B * v * A,
                            B * v * z * A, B * v * q * A, B * v * q * z * A, B * v * v * A};
        const C zaehlerTerme[] = {q, q * z, v, v * z, v * q, v * q * z, v * v, v * v * z};
        d = nenner[h - 2];
        n = zaehlerTerme[h - 2] - newtonP;
    }
    if (!(std::fabs(d.real()) > 1e-290)) {
        return Schritt::Ungezaehlt;
    }
    z = z - n / d;
    return Schritt::Gut;
}

Bezugskern::Schritt Bezugskern::hyperwurzel() {
    // Componentwise in the two idempotents: z - iw and z + iw, here with complex variables.
    const C r = zwilling > 0 ? reellGekoppelt(true) : c;
    bool abbruch = false;
    const auto newtonschritt = [&](double ex, double ey) -> C {
        const double x2 = ex * ex - ey * ey, y2 = 2 * ex * ey;
        const double nx = x2 * ex - y2 * ey - r.real(), ny = y2 * ex + x2 * ey - r.imag();
        const double dx = 3 * x2, dy = 3 * y2, d = dx * dx + dy * dy;
        abbruch = abbruch || d < 1e-20;
        return {ex - (nx * dx + ny * dy) / d, ey - (ny * dx - nx * dy) / d};
    };
    const C minus = newtonschritt(z.real() + w.imag(), z.imag() - w.real());
    const C plus = newtonschritt(z.real() - w.imag(), z.imag() + w.real());
    z = {(minus.real() + plus.real()) / 2, (minus.imag() + plus.imag()) / 2};
    w = {(plus.imag() - minus.imag()) / 2, (minus.real() - plus.real()) / 2};
    return abbruch ? Schritt::Abbruch : Schritt::Gut;
}

Bezugskern::Schritt Bezugskern::schritt() {
    const int familie = gleichung < 100 ? 0 : gleichung % 100;
    if (familie == 9 || familie == 10) {
        return newton();
    }
    if (gleichung == 9 || gleichung == 10) {
        return hyperwurzel();
    }
    C a = c, aw = cw;
    if (zwilling > 0) {
        a = familie == 0 ? reellGekoppelt(true) : komplexGekoppelt(true);
        aw = familie == 0 ? reellGekoppelt(false) : komplexGekoppelt(false);
    }
    bool gut = bild(z, a, true);
    if (zwilling > 0) {
        const bool zwillingGut = bild(w, aw, false);
        gut = gleichung == 7 || gleichung == 8 ? zwillingGut : gut && zwillingGut;
    }
    return gut ? Schritt::Gut : Schritt::Abbruch;
}

void Bezugskern::newtonVorbereiten(double xqr, double yqr, double Cxqr, double Cyqr) {
    for (double* v : {&xqr, &yqr, &Cxqr, &Cyqr}) {
        if (std::fabs(*v) < 1e-20) {
            *v = *v < 0 ? -1e-20 : 1e-20;
        }
    }
    const int h = gleichung / 100;
    newtonB = 3.0;
    if (gleichung == 110 || gleichung == 809 || gleichung == 909) {
        k = k == 0 ? 10 : k;
        newtonB = static_cast<double>(k);
    } else if (gleichung % 100 == 9) {
        const C faktoren[] = {3.0, C(3, 3), 5.0, C(5, 5), 3.0, 3.0, 3.0};
        newtonB = faktoren[h - 1];
    } else {
        newtonB = static_cast<double>(h);
    }
    kx = kx == 0.0 ? 1.0 : kx;
    newtonP = {kx, ky};
    if (gleichung % 100 == 9) {
        z = {Cxqr, Cyqr};
        newtonA = newtonP;
    } else {
        z = {xqr, yqr};
        newtonA = {Cxqr == 1e-20 ? 1.0 : Cxqr, Cyqr};
    }
}

void Bezugskern::vorbereiten(double xqr, double yqr, double Cxqr, double Cyqr) {
    const int familie = gleichung < 100 ? 0 : gleichung % 100;
    const bool pol = familie == 5 || familie == 6 || familie > 10;
    if (gleichung <= 2 && zwilling > 6) {
        zwilling = 0;
    } else if ((gleichung == 3 || gleichung == 4) && zwilling == 6) {
        zwilling = 5;
    } else if ((gleichung == 7 || gleichung == 8) && zwilling > 1) {
        zwilling = 1;
    }
    if (gleichung == 7 || gleichung == 8 || pol || familie == 7 || familie == 8) {
        const double g = genau / 10000;
        xqr = std::fabs(xqr) < g ? (xqr < 0 ? -g : g) : xqr;
        yqr = std::fabs(yqr) < g ? (yqr < 0 ? -g : g) : yqr;
    }
    const bool mitK =
        (familie == 1 || familie == 2 || familie == 5 || familie == 6) && gleichung / 100 == 5;
    if (mitK && k == 0) {
        k = 10;
    }
    z = w = C(xqr, yqr);
    c = cw = C(Cxqr, Cyqr);
    if (gleichung == 8) {
        c = {-1, 0};
        cjx = -1;
        cjy = 0;
    } else if (gleichung == 9) {
        z = w = c;
        c = 1.0;
    } else if (familie == 9 || familie == 10) {
        newtonVorbereiten(xqr, yqr, Cxqr, Cyqr);
    }
}

double Bezugskern::rechnen(double xqr, double yqr, double Cxqr, double Cyqr) {
    vorbereiten(xqr, yqr, Cxqr, Cyqr);
    double rq = 0.0;
    zaehler = 1;
    for (;;) {
        const Schritt s = schritt();
        if (s != Schritt::Ungezaehlt) {
            ++zaehler;
        }
        if (s != Schritt::Gut) {
            return 0.0;
        }
        rq = betrag();
        if (zaehler >= grenze || !(wert > rq)) {
            return rq == -genau ? 0.0 : rq;
        }
    }
}
