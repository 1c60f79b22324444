#include "Messbild.h"

#include "equations/Zeilenkern.h"

#include <bit>
#include <ctime>
#include <memory>

Messbild::Messbild(qint32 gleichung, const std::function<void(Mandelbrot&)>& abweichung)
    : einstellen([gleichung, abweichung](Mandelbrot& m) {
          m.wahl_Gleichung = gleichung;
          m.Initialisierung();
          if (abweichung) {
              abweichung(m);
          }
          m.kPotHg = m.kPotHu = m.g_kPotenz / 2;
          m.g_Bildverhaeltnis = double{Zeilen} / Spalten;
          m.Br_y = m.g_Bildverhaeltnis * m.Br_x;
          m.BildbreiteNeueEckpunkte();
      }),
      x(Spalten) {}

Mandelbrot& Messbild::modell() {
    static const auto einziges = std::make_unique<Mandelbrot>();
    return *einziges;
}

double Messbild::rechnen(qint32 abstand) {
    Mandelbrot& m = modell();
    einstellen(m);
    const double schritt = std::fabs(m.R_Max - m.R_Min) / Spalten;
    double laufend = m.R_Min;
    for (double& wertX : x) {
        wertX = laufend;
        laufend += schritt;
    }
    constexpr std::size_t breite = Spalten;
    const std::size_t zeilen = static_cast<std::size_t>((Zeilen + abstand - 1) / abstand);
    wert.resize(breite * zeilen);
    zaehler.resize(breite * zeilen);
    // Processor time: other programs on the machine do not count.
    const std::clock_t beginn = std::clock();
    double y = m.I_Max;
    for (qint32 zeile = 0; zeile < Zeilen; ++zeile) {
        if (zeile % abstand == 0) {
            const std::size_t ab = breite * static_cast<std::size_t>(zeile / abstand);
            zeileRechnen(m, {.x = x,
                             .y = y,
                             .julia = m.wahl_Gleichung % 2 == 0,
                             .wert = std::span(wert).subspan(ab, breite),
                             .zaehler = std::span(zaehler).subspan(ab, breite)});
        }
        y -= schritt;
    }
    return 1000.0 * static_cast<double>(std::clock() - beginn) / CLOCKS_PER_SEC;
}

qint64 Messbild::unterschiede(const Messbild& anderes) const {
    const auto gleich = [](double a, double b) {
        return std::bit_cast<quint64>(a) == std::bit_cast<quint64>(b) ||
               (std::isnan(a) && std::isnan(b));
    };
    qint64 anzahl = 0;
    for (std::size_t i = 0; i < wert.size(); ++i) {
        anzahl += gleich(wert[i], anderes.wert[i]) && zaehler[i] == anderes.zaehler[i] ? 0 : 1;
    }
    return anzahl;
}
