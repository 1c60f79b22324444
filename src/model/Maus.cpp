#include "Mandelbrot.h"
#include "model/Platzierung.h"
#include "Runden.h"

#include <QMouseEvent>

#include <algorithm>

namespace {

/// A click made local to the picture that is shown.
struct Klick {
    qint32 x = 0, y = 0;
    qint32 Spalten = 0, Zeilen = 0; ///< size of that picture, pixels
    double verhaeltnis = 0.0;       ///< rows / columns of the whole picture
    bool gogo = true;               ///< accepted
};

/// Quarters accept only clicks on themselves (the middle lines included), previews none.
Klick klickOrten(const Mandelbrot& m, const QPoint& stelle) {
    Klick k{.x = stelle.x(),
            .y = stelle.y(),
            .Spalten = std::min(m.width() - Mandelbrot::Streifenbreite, int{Mandelbrot::BildMax}),
            .Zeilen = std::min(m.height(), int{Mandelbrot::BildMax})};
    if (istVorschau(m.g_halbesBild) || k.Spalten < 1 || k.Zeilen < 1) {
        k.gogo = false;
        return k;
    }
    k.verhaeltnis = static_cast<double>(k.Zeilen) / k.Spalten;
    if (!istViertel(m.g_halbesBild)) {
        return k;
    }
    k.Spalten /= 2;
    k.Zeilen /= 2;
    const bool rechts = m.g_halbesBild == ViertelRechtsOben || m.g_halbesBild == ViertelRechtsUnten;
    const bool unten = m.g_halbesBild >= ViertelLinksUnten;
    k.gogo = (rechts ? k.x >= k.Spalten : k.x <= k.Spalten) &&
             (unten ? k.y >= k.Zeilen : k.y <= k.Zeilen) && k.Spalten > 0 && k.Zeilen > 0;
    k.x -= rechts ? k.Spalten : 0;
    k.y -= unten ? k.Zeilen : 0;
    return k;
}

/// The clicked point becomes the centre, the width is multiplied by the zoom factor.
void zoomen(Mandelbrot& m, const Klick& k) {
    const double schritt = std::abs(m.R_Max - m.R_Min) / k.Spalten;
    const double R = k.x * schritt + m.R_Min;
    const double I = m.I_Max - k.y * schritt;
    const double bildV = 1.0 / (static_cast<double>(k.Spalten) / k.Zeilen);
    double T = k.Spalten * m.click2_Zoom / 2.0;
    m.R_Min = R - schritt * T;
    m.R_Max = schritt * T + R;
    T = T * bildV;
    m.I_Min = I - schritt * T;
    m.I_Max = schritt * T + I;
    m.MP_x = R;
    m.MP_y = I;
    m.Br_x = m.Br_x * m.click2_Zoom;
    // Squares the zoom in the height; harmless and meant, the driver derives it anew.
    m.Br_y = m.Br_x * bildV * m.click2_Zoom;
    if (m.wahl_Gleichung % 2 != 0) {
        m.CJ_x = R;
        m.CJ_y = I;
    }
    m.g_RechnenJa = Rechnen;
}

/// Band 1 to 4 of a position, 0 exactly on a border.
int band(qint32 wert, qint64 zelle) {
    for (int i = 1; i <= 3; ++i) {
        if (wert == i * zelle) {
            return 0;
        }
        if (wert < i * zelle) {
            return i;
        }
    }
    return 4;
}

/// The clicked cell ends the matrix view; a click exactly on a border takes cell 21.
void zelleWaehlen(Mandelbrot& m, const Klick& k) {
    const int spalte = band(k.x, trunc32(k.Spalten / m.TeilerColorbild));
    const int zeile = band(k.y, trunc32(k.Zeilen / m.TeilerColorbild));
    m.zahl_Matrix = spalte > 0 && zeile > 0 ? 10 * zeile + spalte : 21;
    m.g_RechnenJa = m.g_SummeGross == m.g_SummeViertel ? NurFaerben : Rechnen;
}

} // namespace

void Mandelbrot::paintEvent(QPaintEvent* /*event*/) {
    QPainter maler;
    maler.begin(this);
    Berechnung(&maler);
    maler.end();
}

void Mandelbrot::mousePressEvent(QMouseEvent* event) {
    const Klick klick = klickOrten(*this, event->position().toPoint());
    if (!klick.gogo) {
        return;
    }
    set_wahl_Gleichung(wahl_Gleichung);
    g_Bildverhaeltnis = klick.verhaeltnis;
    if (g_OrbitJa >= 1) {
        OPx = klick.x;
        OPy = klick.y;
    } else if (zahl_Matrix != MatrixEin) {
        zoomen(*this, klick);
    } else if (g_halbesBild <= ViertelLinksOben) {
        zelleWaehlen(*this, klick);
    }
    Q_EMIT WerteAktualisierenSignal();
    Q_EMIT NeueBerechnungSignal();
}
