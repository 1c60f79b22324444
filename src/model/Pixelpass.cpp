#include "model/Pixelpass.h"

#include "equations/punkt/Punktkern.h"
#include "equations/Zeilenkern.h"
#include "model/Linien.h"
#include "model/Orbit.h"
#include "model/Wartezeiger.h"

#include <algorithm>

namespace {

constexpr qint32 Meldungsabstand = 60; ///< rows between two progress lines

/// "Zeile = n" with a fixed context, in release builds too.
void fortschrittMelden(Mandelbrot& m, qint32 zeile) {
    if (zeile % Meldungsabstand == 0) {
        m.g_Zeile = zeile;
        QMessageLogger("Mandelbrot", 0, "void Mandelbrot::Berechnung(QPainter*)").debug().nospace()
            << "Zeile = " << zeile;
    }
}

class Pass {
  public:
    Pass(Mandelbrot& menge, Bildlauf& bildlauf)
        : m(menge), lauf(bildlauf), kern(punktkernFuer(menge.wahl_Gleichung)),
          linien(menge, bildlauf) {}

    /// One row; the imaginary coordinate is the caller's.
    void zeileRechnen(qint32 zeile, double y) {
        const std::span<qint32> marken = lauf.marken(m, zeile);
        qint32 start = lauf.Spalten; // column of the orbit's start pixel, if it is in this row
        double x = m.R_Min;
        for (qint32 spalte = lauf.CxStart; spalte < lauf.Spalten; ++spalte) {
            const auto index = static_cast<std::size_t>(spalte);
            xWerte[index] = x;
            marken[index] = lauf.LinienRechnen ? linien.marke(x, y) : 0;
            if (istOrbitStart(m, lauf, spalte, zeile)) {
                start = spalte;
            }
            x += lauf.Schritte_Spalte;
        }
        stueckRechnen(zeile, y, lauf.CxStart, start);
        if (start < lauf.Spalten) {
            startpixelRechnen(zeile, y, start);
            stueckRechnen(zeile, y, start + 1, lauf.Spalten);
        }
        if (m.g_RechnenJa >= Rechnen) {
            rahmenSetzen(zeile);
        }
    }

  private:
    /// Columns [von, bis) without the orbit's start pixel.
    void stueckRechnen(qint32 zeile, double y, qint32 von, qint32 bis) {
        if (m.g_RechnenJa < Rechnen || !lauf.allePixel || von >= bis) {
            return;
        }
        const auto ab = static_cast<std::size_t>(von);
        const auto anzahl = static_cast<std::size_t>(bis - von);
        const std::span<double> werte = lauf.werte(m, zeile).subspan(ab, anzahl);
        const std::span<qint32> zaehler = lauf.anzahlen(m, zeile).subspan(ab, anzahl);
        if (kern == nullptr) {
            // Nothing computes: the count that was preset, and the 0 of the first frame pixel.
            std::fill(werte.begin(), werte.end(), 0.0);
            std::fill(zaehler.begin(), zaehler.end(), m.privateIterat);
            return;
        }
        ::zeileRechnen(m, {.x = std::span(xWerte).subspan(ab, anzahl),
                           .y = y,
                           .julia = lauf.Juliamenge == 1,
                           .wert = werte,
                           .zaehler = zaehler});
    }

    void startpixelRechnen(qint32 zeile, double y, qint32 spalte) {
        const auto index = static_cast<std::size_t>(spalte);
        const double x = xWerte[index];
        Kernwerte w =
            lauf.Juliamenge == 1 ? Kernwerte{x, y, m.CJ_x, m.CJ_y} : Kernwerte{0.0, 0.0, x, y};
        orbitBeginnen(m, lauf, w);
        m.Orbitmodus = 2;
        double betrQ = 0.0;
        if (kern != nullptr) {
            zyklusVoreinstellen(m, w.wertx0, w.werty0);
            betrQ = kern->rechnen(m, {w.wertx0, w.werty0, w.wertCx, w.wertCy}, nullptr);
        }
        m.Orbitmodus = 1;
        if (m.g_RechnenJa >= Rechnen) {
            lauf.werte(m, zeile)[index] = betrQ;
            lauf.anzahlen(m, zeile)[index] = m.privateIterat;
        }
    }

    /// The outermost computed rows and columns are stored as 0, whatever the kernel returned.
    void rahmenSetzen(qint32 zeile) {
        const auto nullSetzen = [&](qint32 von, qint32 bis) {
            const auto ab = static_cast<std::size_t>(von);
            const auto anzahl = static_cast<std::size_t>(bis - von);
            std::ranges::fill(lauf.werte(m, zeile).subspan(ab, anzahl), 0.0);
            std::ranges::fill(lauf.anzahlen(m, zeile).subspan(ab, anzahl), 0);
        };
        if (zeile == lauf.CyStart || zeile == lauf.Zeilen - 1) {
            nullSetzen(lauf.CxStart, lauf.Spalten);
        } else if (lauf.CxStart < lauf.Spalten) {
            nullSetzen(lauf.CxStart, lauf.CxStart + 1);
            nullSetzen(lauf.Spalten - 1, lauf.Spalten);
        }
    }

    Mandelbrot& m;
    Bildlauf& lauf;
    const Punktkern* kern;
    Linien linien;
    std::array<double, Mandelbrot::BildMax> xWerte{}; ///< real coordinates of the row's columns
};

} // namespace

void pixelPass(Mandelbrot& menge, Bildlauf& lauf) {
    menge.Orbitmodus = menge.g_OrbitJa > 0 ? 1 : 0;
    Pass pass(menge, lauf);
    Wartezeiger zeiger;
    double y = menge.I_Max;
    for (qint32 zeile = lauf.CyStart; zeile < lauf.Zeilen; ++zeile) {
        fortschrittMelden(menge, zeile);
        zeiger.nachsehen();
        if (menge.g_oberesHalbbild == 1 && zeile >= lauf.ZeilenKLHalbe) {
            break;
        }
        // A skipped row does not advance the coordinate: the lower half starts at I_Max, meant.
        if (menge.g_oberesHalbbild == 2 && zeile < lauf.ZeilenKLHalbe) {
            continue;
        }
        pass.zeileRechnen(zeile, y);
        y -= lauf.Schritte_Zeile;
    }
}
