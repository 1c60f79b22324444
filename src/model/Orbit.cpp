#include "model/Orbit.h"

#include "model/Orbitliste.h"
#include "Runden.h"

#include <QLineF>

#include <algorithm>
#include <bit>
#include <optional>
#include <vector>

namespace {

constexpr double PfadGrenze = 1000000; ///< pixels; beyond it paths lose precision

struct Stifte {
    QColor haupt, c, d, e;
};

Stifte stifteFuer(qint32 farbe) {
    const QColor weiss(255, 255, 255);
    const QColor schwarz(0, 0, 0);
    const QColor grau(128, 128, 128);
    const QColor rot(255, 0, 0);
    switch (farbe) {
    case OrbitSchwarz:
        return {schwarz, schwarz, schwarz, schwarz};
    case OrbitGrau:
        return {grau, grau, grau, grau};
    case OrbitRot:
        return {rot, rot, rot, rot};
    case OrbitBunt:
        return {QColor(255, 255, 0), rot, QColor(0, 255, 0), QColor(80, 80, 255)};
    default:
        return {weiss, weiss, weiss, weiss};
    }
}

/// Maps plane points to pixels of this run. The pixels may lie anywhere, or be infinite or NaN.
struct Abbildung {
    double startX, startY; ///< start pixel
    double nullX, nullY;   ///< pixel of the plane's origin
    double jeX, jeY;       ///< picture size that the plane rectangle is drawn into, pixels
    double breite, hoehe;  ///< plane rectangle

    Abbildung(const Mandelbrot& m, const Bildlauf& lauf)
        : startX(static_cast<double>(qint64{lauf.CxStart} + m.OPx)),
          startY(static_cast<double>(qint64{lauf.CyStart} + m.OPy)), jeX(2.0 * lauf.SpaltenKLHalbe),
          jeY(2.0 * lauf.ZeilenKLHalbe), breite(m.Br_x), hoehe(m.Br_y) {
        nullX = (lauf.CxStart + lauf.SpaltenKLHalbe) - std::trunc(jeX * m.MP_x / breite);
        nullY = std::trunc(jeY * m.MP_y / hoehe) + lauf.CyStart + lauf.ZeilenKLHalbe;
    }

    [[nodiscard]] double x(double wert) const { return std::trunc(jeX * wert / breite) + nullX; }
    [[nodiscard]] double y(double wert) const { return nullY - std::trunc(jeY * wert / hoehe); }
};

/// Recorded points up to the end mark, at most OrbitLaengeVoll.
std::size_t punktzahl(const Mandelbrot& m) {
    std::size_t n = 0;
    while (n < OrbitLaengeVoll && !(m.OrbitX[n + 1] == Mandelbrot::OrbitEnde &&
                                    m.OrbitY[n + 1] == Mandelbrot::OrbitEnde)) {
        ++n;
    }
    return n;
}

Orbitstand standVon(const Mandelbrot& m, const Abbildung& abb, std::size_t n) {
    const auto bits = [](double wert) { return std::bit_cast<quint64>(wert); };
    Orbitstand stand;
    for (std::size_t i = 0; i <= n; ++i) {
        stand.punkte.push_back(bits(m.OrbitX[i]));
        stand.punkte.push_back(bits(m.OrbitY[i]));
    }
    stand.geometrie = {bits(abb.startX), bits(abb.startY), bits(abb.nullX),  bits(abb.nullY),
                       bits(abb.jeX),    bits(abb.jeY),    bits(abb.breite), bits(abb.hoehe)};
    stand.einstellungen = {m.g_OrbitJa, m.g_OrbitDuennJa, m.g_maxOrbitIterat, m.g_OrbitMP,
                           m.g_OrbitAbIterAn};
    return stand;
}

/// The part of a line that lies within +-PfadGrenze. Lines are cut, not coordinates: a line to a
/// far point must leave the picture in its true direction.
std::optional<QLineF> zugeschnitten(const QLineF& linie) {
    double ab = 0.0;
    double bis = 1.0;
    for (const auto& [von, nach] :
         {std::pair{linie.x1(), linie.x2()}, std::pair{linie.y1(), linie.y2()}}) {
        const double halberWeg = nach / 2 - von / 2; // the whole way can exceed the largest double
        if (halberWeg == 0.0) {
            if (std::abs(von) > PfadGrenze) {
                return std::nullopt;
            }
            continue;
        }
        const double links = (-PfadGrenze / 2 - von / 2) / halberWeg;
        const double rechts = (PfadGrenze / 2 - von / 2) / halberWeg;
        ab = std::max(ab, std::min(links, rechts));
        bis = std::min(bis, std::max(links, rechts));
    }
    if (ab >= bis) {
        return std::nullopt;
    }
    const auto bei = [&linie](double t) {
        const auto auf = [t](double von, double nach) {
            return std::clamp(std::lerp(von, nach, t), -PfadGrenze, PfadGrenze);
        };
        return QPointF(auf(linie.x1(), linie.x2()), auf(linie.y1(), linie.y2()));
    };
    return QLineF(bei(ab), bei(bis));
}

struct Pfadschritt {
    QPointF ziel;
    bool linie = true; ///< false: a new piece begins here
};
using Linienzug = std::vector<Pfadschritt>;

/// The polygon through the orbit. What lies beyond the limit becomes a gap; a point that is not
/// finite ends it.
Linienzug linienzug(const Mandelbrot& m, const Abbildung& abb, std::size_t n) {
    QPointF von(abb.startX, abb.startY);
    Linienzug zug{{von, false}};
    for (std::size_t i = 1; i <= n; ++i) {
        const QPointF nach(abb.x(m.OrbitX[i]), abb.y(m.OrbitY[i]));
        if (!std::isfinite(nach.x()) || !std::isfinite(nach.y())) {
            break;
        }
        if (const auto teil = zugeschnitten({von, nach})) {
            if (teil->p1() != zug.back().ziel) {
                zug.push_back({teil->p1(), false});
            }
            zug.push_back({teil->p2()});
        }
        von = nach;
    }
    return zug;
}

/// Adds the polygon, shifted by whole pixels.
void anhaengen(QPainterPath& pfad, const Linienzug& zug, int dx, int dy) {
    for (const auto& [ziel, linie] : zug) {
        const QPointF punkt = ziel + QPointF(dx, dy);
        linie ? pfad.lineTo(punkt) : pfad.moveTo(punkt);
    }
}

void leerenWennVerlangt(Mandelbrot& m) {
    if (m.g_OrbitDuennJa < LoeschenDick) {
        return;
    }
    for (QPainterPath* pfad :
         {&m.polygonPathM1, &m.polygonPathM2, &m.polygonPathM3, &m.polygonPathM4}) {
        *pfad = QPainterPath();
    }
    m.g_OrbitDuennJa = m.g_OrbitDuennJa == LoeschenDick ? LetzterDick : LetzterDuenn;
    m.letzterOrbit.reset();
}

void sammeln(Mandelbrot& m, const Linienzug& zug) {
    anhaengen(m.polygonPathM1, zug, 0, 0);
    anhaengen(m.polygonPathM2, zug, 1, 1);
    anhaengen(m.polygonPathM3, zug, 1, 0);
    anhaengen(m.polygonPathM4, zug, 0, 1);
}

void malen(QPainter& maler, const QPainterPath& pfad, const QColor& farbe) {
    maler.setPen(QPen(farbe));
    maler.drawPath(pfad);
}

void pfadeMalen(const Mandelbrot& m, const Linienzug& zug, QPainter& maler) {
    const Stifte stifte = stifteFuer(m.g_OrbitJa);
    const auto dieserOrbit = [&](int dx, int dy) {
        QPainterPath pfad;
        anhaengen(pfad, zug, dx, dy);
        return pfad;
    };
    if (m.g_OrbitDuennJa < AlleDick) {
        malen(maler, dieserOrbit(0, 0), stifte.haupt);
    } else if (m.g_OrbitDuennJa == AlleDick || m.g_OrbitDuennJa == AlleDuenn) {
        malen(maler, m.polygonPathM1, stifte.haupt);
    }
    if (m.g_OrbitDuennJa == LetzterDick) {
        malen(maler, dieserOrbit(1, 1), stifte.c);
        malen(maler, dieserOrbit(1, 0), stifte.d);
        malen(maler, dieserOrbit(0, 1), stifte.e);
    } else if (m.g_OrbitDuennJa == AlleDick) {
        malen(maler, m.polygonPathM2, stifte.c);
        malen(maler, m.polygonPathM3, stifte.d);
        malen(maler, m.polygonPathM4, stifte.e);
    }
}

QString listeVon(const Mandelbrot& m, const Abbildung& abb, std::size_t n) {
    Orbitlistendaten daten{
        .zeit = m.dtm,
        .version = m.g_Versionsnummer,
        .gleichung = m.g_NameGlg,
        .mittelX = m.MP_x,
        .mittelY = m.MP_y,
        .breite = m.Br_x,
        .maxIterationen = m.Max_Iterationen,
        .maxZyklen = m.g_zycmax,
        .abbruch = m.glg_Abbruch,
        .abbruchwert = m.wert_Abbruch,
        .zwilling = m.g_ZwillingJa,
        .kopplX = m.Koppl_x,
        .kopplY = m.Koppl_y,
        .juliaX = m.CJ_x,
        .juliaY = m.CJ_y,
        .potenz = m.g_kPotenz,
        .vomMittelpunkt = m.g_OrbitMP > 0,
        .maxPunkte = m.g_maxOrbitIterat,
        .startX = m.OrbitX[0],
        .startY = m.OrbitY[0],
        .abIteration = m.g_OrbitAbIterAn,
        .punkte = {},
    };
    for (std::size_t i = 1; i <= n; ++i) {
        daten.punkte.push_back(
            {m.OrbitX[i], m.OrbitY[i], trunc32(abb.x(m.OrbitX[i])), trunc32(abb.y(m.OrbitY[i]))});
    }
    return orbitliste(daten);
}

} // namespace

bool istOrbitStart(const Mandelbrot& menge, const Bildlauf& lauf, qint32 spalte, qint32 zeile) {
    return menge.Orbitmodus == 1 && spalte == qint64{lauf.CxStart} + menge.OPx &&
           zeile == qint64{lauf.CyStart} + menge.OPy;
}

void orbitBeginnen(Mandelbrot& menge, Bildlauf& lauf, Kernwerte& werte) {
    menge.pathExist = 2;
    lauf.orbitDraw = true;
    // The sum of both parts decides, not the modulus, so a start value on the line y = -x counts
    // as zero: meant.
    const bool vomStartwert = std::abs(werte.wertx0 + werte.werty0) > 0.0;
    double& x = vomStartwert ? werte.wertx0 : werte.wertCx;
    double& y = vomStartwert ? werte.werty0 : werte.wertCy;
    if (menge.g_OrbitMP == 1) {
        x = menge.MP_x;
        y = menge.MP_y;
    }
    menge.OZaehler = 0;
    menge.OrbitX[0] = x;
    menge.OrbitY[0] = y;
    menge.OrbitX[1] = menge.OrbitY[1] = Mandelbrot::OrbitEnde;
    menge.g_OrbitStartString = orbitstart(x, y, lauf.CxStart + menge.OPx, lauf.CyStart + menge.OPy);
}

void orbitZeichnen(Mandelbrot& menge, const Bildlauf& lauf) {
    leerenWennVerlangt(menge);
    const Abbildung abb(menge, lauf);
    const std::size_t n = punktzahl(menge);
    menge.dtm = QDateTime::currentDateTime();

    Orbitstand stand = standVon(menge, abb, n);
    const bool neu = menge.letzterOrbit != stand;
    const Linienzug zug = linienzug(menge, abb, n);
    if (neu) {
        sammeln(menge, zug);
        menge.letzterOrbit = std::move(stand);
    }
    menge.g_OrbitListeHTMStr = listeVon(menge, abb, n);
    pfadeMalen(menge, zug, *lauf.maler);
    if (neu) {
        menge.click2_Zoom = 1.0;
    }
}
