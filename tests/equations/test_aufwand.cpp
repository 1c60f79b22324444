#include "equations/Gleichungen.h"
#include "equations/Rechenweise.h"
#include "equations/Zeilenkern.h"
#include "Testbasis.h"

#include <numeric>

/// What a picture costs, told without a clock: pixels in lanes, and steps really made.
class TestAufwand : public QObject {
    Q_OBJECT

    static constexpr int Breite = 60, Zeilen = 9;
    const std::unique_ptr<Mandelbrot> bild = std::make_unique<Mandelbrot>();
    Mandelbrot& m = *bild;
    const Rechenweise anfang = rechenweise();
    const Rechenaufwand& aufwand = rechenaufwand();

    void starteinstellung(qint32 gleichung, bool zyklussuche = false) {
        m.resize(Breite + Mandelbrot::Streifenbreite, Breite);
        m.wahl_Gleichung = gleichung;
        m.Initialisierung();
        m.kPotHg = m.kPotHu = m.g_kPotenz / 2;
        m.glg_Abbruch = zyklussuche ? 4 : m.glg_Abbruch;
        m.wert_Abbruch = zyklussuche ? 1e8 : m.wert_Abbruch; // what is found ends no orbit
    }

    /// Computes some rows of the picture; the steps that its counts stand for.
    qint64 rechnen() {
        std::array<double, Breite> x{}, wert{};
        std::array<qint32, Breite> zaehler{};
        for (std::size_t i = 0; i < Breite; ++i) {
            x[i] = m.R_Min + m.Br_x * double(i) / Breite;
        }
        rechenaufwand() = {};
        qint64 schritte = 0;
        for (int zeile = 0; zeile < Zeilen; ++zeile) {
            const double y = m.I_Max - m.Br_y * zeile / Zeilen;
            zeileRechnen(m, {x, y, m.wahl_Gleichung % 2 == 0, wert, zaehler});
            schritte += std::accumulate(zaehler.begin(), zaehler.end(), qint64{-Breite});
        }
        return schritte;
    }

  private Q_SLOTS:
    void cleanup() { rechenweise() = anfang; }

    /// All equations but those with complex exponents. Of 809 and 909 most pixels overflow; they
    /// are handed over late.
    void inSpuren() {
        for (const Gleichung& g : gleichungen()) {
            if (familie(g.nummer) == 7 || familie(g.nummer) == 8) {
                continue;
            }
            starteinstellung(g.nummer);
            rechnen();
            const bool laeuftUeber = g.nummer == 809 || g.nummer == 909;
            QVERIFY2(aufwand.pixelInSpuren > Breite * Zeilen * (laeuftUeber ? 5 : 98) / 100 &&
                         aufwand.schritteEinzeln <
                             aufwand.pixelEinzeln * (laeuftUeber ? 8 : 30) + 1,
                     g.name.data());
        }
    }

    /// Orbits that settle do not cost the limit, in lanes and point by point, with and without a
    /// search for cycles.
    void abkuerzung() {
        QVERIFY(anfang.abkuerzung);
        for (const Befehlssatz satz : {anfang.befehlssatz, Befehlssatz::Punktweise}) {
            for (const qint32 nummer : {2, 4, 9, 10, 102, 104, 109, 302, 309, 404, 504, 509, 606,
                                        811, 7, 107, 407, 607, 707}) {
                for (const bool zyklussuche : {false, true}) {
                    starteinstellung(nummer, zyklussuche);
                    m.Max_Iterationen = 5000;
                    rechenweise().befehlssatz = satz;
                    const qint64 alle = rechnen();
                    const qint64 gemacht = aufwand.schritteInSpuren + aufwand.schritteEinzeln;
                    QVERIFY2(gemacht > 0 && gemacht * 10 < alle,
                             qPrintable(QString::number(nummer)));
                }
            }
        }
        // Without the shortcut every step is made, and counted.
        starteinstellung(1);
        rechenweise() = {false, Befehlssatz::Punktweise};
        const qint64 alle = rechnen();
        QCOMPARE(aufwand.schritteEinzeln, alle);
        QCOMPARE(aufwand.pixelEinzeln, Breite * Zeilen);
        rechenweise() = {false, anfang.befehlssatz};
        rechnen();
        QVERIFY(aufwand.schritteInSpuren > alle);
    }

    /// The widest registers that the processor has; a search for cycles fills one with pixels.
    void befehlssatz() {
        auto breiteste = Befehlssatz::Grundsatz;
#if defined(__x86_64__)
        const bool avx512 = __builtin_cpu_supports("avx512f") &&
                            __builtin_cpu_supports("avx512dq") &&
                            __builtin_cpu_supports("avx512vl");
        breiteste = avx512                           ? Befehlssatz::Avx512
                    : __builtin_cpu_supports("avx2") ? Befehlssatz::Avx2
                                                     : breiteste;
#endif
        QCOMPARE(anfang.befehlssatz, breiteste);
        for (const int spuren : {2, 4, 8}) {
            const auto satz = static_cast<Befehlssatz>(std::countr_zero(unsigned(spuren)));
            if (satz > breiteste) {
                qInfo("not tested: %d lanes, which this processor lacks", spuren);
                continue;
            }
            starteinstellung(1, true);
            rechenweise() = {false, satz};
            rechenaufwand() = {};
            std::array<double, 2> x{-0.1, 0.1}, wert{};
            std::array<qint32, 2> zaehler{};
            zeileRechnen(m, {x, 0.0, false, wert, zaehler});
            QCOMPARE(aufwand.schritteInSpuren, spuren * (m.Max_Iterationen - 1));
        }
    }
};

QTEST_MAIN(TestAufwand)
#include "test_aufwand.moc"
