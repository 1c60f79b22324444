#include "model/Pixelpass.h"

#include "equations/Kernwahl.h"
#include "model/Linien.h"
#include "model/Orbit.h"

namespace {

constexpr qint32 Meldungsabstand = 60; ///< rows between two progress lines
/// Added to the start value: no stored point can match the first iterates by accident.
constexpr double Zyklusversatz = 1000.111;

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
        : m(menge), lauf(bildlauf), kern(kernFuer(menge.wahl_Gleichung)), linien(menge, bildlauf) {}

    /// One row; the imaginary coordinate is the caller's.
    void zeileRechnen(qint32 zeile, double y) {
        const std::span<qint32> marken = lauf.marken(m, zeile);
        double x = m.R_Min;
        for (qint32 spalte = lauf.CxStart; spalte < lauf.Spalten; ++spalte) {
            const auto index = static_cast<std::size_t>(spalte);
            marken[index] = lauf.LinienRechnen ? linien.marke(x, y) : 0;
            if (istOrbitStart(m, lauf, spalte, zeile)) {
                startpixelRechnen(spalte, zeile, kernwerte(x, y));
            } else if (m.g_RechnenJa >= 1 && lauf.allePixel) {
                pixelRechnen(spalte, zeile, kernwerte(x, y));
            }
            x += lauf.Schritte_Spalte;
        }
    }

  private:
    [[nodiscard]] Kernwerte kernwerte(double x, double y) const {
        return lauf.Juliamenge == 1 ? Kernwerte{x, y, m.CJ_x, m.CJ_y} : Kernwerte{0.0, 0.0, x, y};
    }

    void zyklusVorbesetzen(const Kernwerte& w) {
        if (m.glg_Abbruch != 4 && m.glg_Abbruch != 5) {
            return;
        }
        for (qint32 i = 0; i <= std::min(m.g_zycmax, qint32{Mandelbrot::ZyklusMax}); ++i) {
            const auto k = static_cast<std::size_t>(i);
            m.xm[k] = m.pm[k] = w.wertx0 + Zyklusversatz;
            m.ym[k] = m.tm[k] = w.werty0 + Zyklusversatz;
        }
    }

    void iterieren(const Kernwerte& w) {
        zyklusVorbesetzen(w);
        if (kern != nullptr) {
            lauf.betrQ = (m.*kern)(w.wertx0, w.werty0, w.wertCx, w.wertCy);
        }
    }

    void speichern(qint32 spalte, qint32 zeile) {
        const auto index = static_cast<std::size_t>(spalte);
        const bool rahmen = spalte == lauf.CxStart || spalte == lauf.Spalten - 1 ||
                            zeile == lauf.CyStart || zeile == lauf.Zeilen - 1;
        if (rahmen) {
            lauf.betrQ = 0.0;
        }
        lauf.werte(m, zeile)[index] = lauf.betrQ;
        lauf.anzahlen(m, zeile)[index] = rahmen ? 0 : m.privateIterat;
    }

    void pixelRechnen(qint32 spalte, qint32 zeile, const Kernwerte& w) {
        iterieren(w);
        speichern(spalte, zeile);
    }

    void startpixelRechnen(qint32 spalte, qint32 zeile, Kernwerte w) {
        orbitBeginnen(m, lauf, w);
        m.Orbitmodus = 2;
        iterieren(w);
        m.Orbitmodus = 1;
        if (m.g_RechnenJa >= 1) {
            speichern(spalte, zeile);
        }
    }

    Mandelbrot& m;
    Bildlauf& lauf;
    Kern kern;
    Linien linien;
};

} // namespace

void pixelPass(Mandelbrot& menge, Bildlauf& lauf) {
    menge.Orbitmodus = menge.g_OrbitJa > 0 ? 1 : 0;
    Pass pass(menge, lauf);
    double y = menge.I_Max;
    for (qint32 zeile = lauf.CyStart; zeile < lauf.Zeilen; ++zeile) {
        fortschrittMelden(menge, zeile);
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
