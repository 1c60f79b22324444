#include "Bezugskern.h"
#include "equations/Gleichungen.h"
#include "equations/Rechenweise.h"
#include "equations/Zeilenkern.h"

#if defined(__x86_64__)
#include <cpuid.h>
#endif

namespace {

constexpr std::size_t Rand = 64;

/// A row of pixels and what comes out for it.
struct Zeile {
    std::vector<double> x;
    double y = 0.0;
    std::vector<double> wert{};
    std::vector<qint32> zaehler{};
};

} // namespace

/// Lanes and the exact shortcut change nothing: row kernel against the plain point kernel.
class TestZeilenkern : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m; ///< settings
    const std::unique_ptr<M> soll = kernmodell(), ist = kernmodell();
    const Rechenweise anfang = rechenweise();

    void rechnen(M& modell, Zeile& z, Befehlssatz satz, bool abkuerzung) const {
        rechenweise() = {abkuerzung, satz};
        uebertragen(*m, modell);
        // Longer than the row, to see that nothing is written behind it.
        z.wert.assign(z.x.size() + Rand, -77.0);
        z.zaehler.assign(z.x.size() + Rand, -77);
        zeileRechnen(modell,
                     {z.x, z.y, m->wahl_Gleichung % 2 == 0, std::span(z.wert).first(z.x.size()),
                      std::span(z.zaehler).first(z.x.size())});
    }

    // Every instruction set that the processor has, the plain kernel with the shortcut, and lanes
    // without it.
    void vergleichen(Zeile z) {
        m->privateIterat = m->IteratSubf = -1;
        rechnen(*soll, z, Befehlssatz::Punktweise, false);
        for (const Befehlssatz satz : {Befehlssatz::Punktweise, Befehlssatz::Grundsatz,
                                       Befehlssatz::Avx2, Befehlssatz::Avx512}) {
            for (const bool abkuerzung : {true, false}) {
                if (verfuegbar(satz) != satz || (!abkuerzung && satz != anfang.befehlssatz)) {
                    continue;
                }
                Zeile neu = z;
                rechnen(*ist, neu, satz, abkuerzung);
                QString anders = unterschied(*ist, *soll);
                for (std::size_t i = 0; i < z.wert.size(); ++i) {
                    if (!bitgleich(neu.wert[i], z.wert[i]) || neu.zaehler[i] != z.zaehler[i]) {
                        anders =
                            QString::asprintf("pixel %zu: %.17g, %d instead of %.17g, %d", i,
                                              neu.wert[i], neu.zaehler[i], z.wert[i], z.zaehler[i]);
                    }
                }
                const QString wo = QString::asprintf(
                    "set %d, shortcut %d, twin %d, bailout %d, limit %d: ", static_cast<int>(satz),
                    abkuerzung, m->g_ZwillingJa, m->glg_Abbruch, m->Max_Iterationen);
                QVERIFY2(anders.isEmpty(), qPrintable(wo + anders));
            }
        }
    }

  private Q_SLOTS:
    void init() { m = kernmodell(); }
    void cleanup() { rechenweise() = anfang; }
    void wieEinzeln_data() {
        alleGleichungen();
        for (qint32 f = 1; f <= 12; ++f) { // and no such member
            qint32 nummer = 100 + f;
            while (findeGleichung(nummer) != nullptr) {
                nummer += 100;
            }
            QTest::addRow("%d, a gap", nummer) << nummer;
        }
    }

    // Twins and bailouts, known and unknown ones, each pair with usual and with special numbers.
    void wieEinzeln() {
        QFETCH(qint32, gleichung);
        constexpr double inf = std::numeric_limits<double>::infinity();
        const double besondere[] = {0.0,   -0.0,   inf, -inf, qQNaN(), 5e-324, -1e-310, 1e160,
                                    -1e80, 1e-160, 0.3, -1.2, 2.0,     -0.5,   1e308,   1.0};
        constexpr double abbruchwerte[] = {4.0, 1e8, 400.0, 400.0, inf};
        constexpr qint32 grenzen[] = {256, 1, 255, 2, 600, 3, 30};
        constexpr qint32 potenzen[] = {2, 7, 0, 3, 10, -2, 6};
        std::mt19937 zufall(static_cast<unsigned>(gleichung));
        // The equations without lanes differ by the shortcut alone and are slow: fewer settings.
        const bool inSpuren = familie(gleichung) != 7 && familie(gleichung) != 8;
        for (qint32 n = 0; n < 336 && !QTest::currentTestFailed(); n += inSpuren ? 1 : 11) {
            const bool besonders = (n / 7 + n / 168) % 2 == 1;
            const auto zahl = [&](double von, double bis) {
                return besonders ? besondere[zufall() % std::size(besondere)]
                                 : std::uniform_real_distribution<double>(von, bis)(zufall);
            };
            const double genau = n % 11 == 3 ? 1e9 : (n % 3 == 0 ? 0.01 : 0.0001); // 1e9: 5 aborts
            m->wahl_Gleichung = gleichung;
            m->g_ZwillingJa = n % 5 == 0 ? 0 : n / 12 % 14 - 1;
            m->glg_Abbruch = n % 12 - 1;
            m->Max_Iterationen = grenzen[n % 7];
            m->g_kPotenz = potenzen[n % 6];
            m->kPotHg = m->kPotHu = m->g_kPotenz / 2;
            m->Koppl_x = n % 13 == 0 ? 0.0 : zahl(-0.5, 0.5);
            m->Koppl_y = zahl(-0.3, 0.3);
            m->wert_Abbruch = besonders && n % 3 == 0 ? zahl(0, 0) : abbruchwerte[n % 5];
            m->g_Genauigkeit = besonders && n % 4 == 0 ? zahl(0, 0) : genau;
            m->g_zycmax = n % 9 == 0 ? 0 : 1 + n % 26;
            m->g_Max_rgbFarben = n % 10 == 0 ? -3 : 582;
            m->g_GenauJa = n % 2;
            m->CJ_x = zahl(-1.2, 0.4);
            m->CJ_y = zahl(-0.6, 0.6);
            Zeile z{{}, n % 8 == 0 ? 0.0 : zahl(-1.0, 1.0)};
            const double links = zahl(-2.0, 0.0), schritt = zahl(0.001, 0.08);
            for (qint32 i = 0; i < 1 + n % 40; ++i) {
                z.x.push_back(besonders ? besondere[i % 16] : links + i * schritt);
            }
            vergleichen(z);
        }
    }

    void lange_data() {
        QTest::addColumn<qint32>("gleichung");
        QTest::addColumn<QList<double>>("ort"); // left end, width, y
        for (const qint32 n : {1, 2, 3, 4, 5, 6, 9, 101, 203, 302, 403, 501, 105, 109, 207, 310}) {
            QTest::addRow("%d, whole figure", n) << n << QList{-2.0, 3.0, 0.1};
            QTest::addRow("%d, inside", n) << n << QList{-0.9, 0.6, 0.05};
            QTest::addRow("%d, on the axis", n) << n << QList{-1.8, 2.1, 0.0};
        }
    }

    // Long orbits: settled ones of many periods, chaotic ones, and such as leave late. The last row
    // is longer than one piece of the lanes.
    void lange() {
        QFETCH(qint32, gleichung);
        QFETCH(QList<double>, ort);
        constexpr qint32 arten[] = {1, 0, 2, 4, 5, 8, 4, 1};
        constexpr qint32 zwillinge[] = {0, 1, 4, 0, 1, 4, 0, 0};
        const qint32 anzahl = gleichung <= 6 || gleichung == 101 ? 8 : 7;
        for (qint32 n = 0; n < anzahl && !QTest::currentTestFailed(); ++n) {
            const bool langeZeile = n == 7;
            setze(*m, "g_kPotenz=3 Koppl_x=0.1 CJ_x=-0.12 CJ_y=0.74");
            m->wahl_Gleichung = gleichung;
            m->g_ZwillingJa = zwillinge[n];
            m->glg_Abbruch = arten[n];
            m->Max_Iterationen = langeZeile ? 256 : 5000 - n;
            m->g_zycmax = 7 + n;
            m->wert_Abbruch = n == 4 || n == 6 ? 1e6 : 400.0;
            Zeile z{std::vector<double>(langeZeile ? 2500 : 37), ort[2]};
            for (std::size_t i = 0; i < z.x.size(); ++i) {
                z.x[i] = ort[0] + ort[1] * double(i) / double(z.x.size());
            }
            vergleichen(z);
        }
    }

    void ohneKern() {
        Zeile z{{0.0, 1.0}};
        m->privateIterat = -1;
        m->wahl_Gleichung = 100;
        rechnen(*ist, z, Befehlssatz::Avx512, true);
        QCOMPARE(z.zaehler, std::vector<qint32>(2 + Rand, -77));
        QCOMPARE(ist->privateIterat, -1);
        m->wahl_Gleichung = 1;
        z.x.clear();
        rechnen(*ist, z, Befehlssatz::Avx512, true);
        QCOMPARE(ist->privateIterat, -1);
    }

    // While an orbit is recorded every step is made, also by a row.
    void orbitaufzeichnung() {
        Zeile z{{-0.1, -0.1}};
        m->Orbitmodus = 2;
        ist->OZaehler = ist->g_OrbitAbIterAn = 0;
        ist->g_maxOrbitIterat = 200;
        rechnen(*ist, z, Befehlssatz::Avx512, true);
        QCOMPARE(ist->OZaehler, 200);
        QCOMPARE(z.zaehler[1], 256);
    }

    void vektorregister();
};

#if defined(__x86_64__)

namespace {

constexpr unsigned long long ObereHaelften = 1ULL << 2; ///< AVX state in the component bitmap

/// Puts the upper halves of the vector registers in use and leaves them so.
[[gnu::noinline]] void halftenBelegen() {
    // The compiler knows of the lower half alone: it would clean up the whole register.
    [[maybe_unused]] double unten;
    asm volatile("vpcmpeqd %0, %0, %0\n\tvinsertf128 $1, %0, %t0, %t0" : "=x"(unten));
}

/// Which components of the processor's state are in use.
[[gnu::noinline]] unsigned long long inBenutzung() {
    unsigned niedrig = 0, hoch = 0;
    asm volatile("xgetbv" : "=a"(niedrig), "=d"(hoch) : "c"(1));
    return niedrig | static_cast<unsigned long long>(hoch) << 32;
}

/// XGETBV with 1 is there (leaf 13, subleaf 1 of CPUID).
bool kannFragen() {
    unsigned a = 0, b = 0, c = 0, d = 0;
    return __builtin_cpu_supports("avx") != 0 && __get_cpuid_count(13, 1, &a, &b, &c, &d) != 0 &&
           (a >> 2 & 1U) != 0;
}

} // namespace

// Whatever ran before, a row begins with clean upper halves: asked of the processor, not the clock.
void TestZeilenkern::vektorregister() {
    if (!kannFragen()) {
        QSKIP("this processor cannot tell");
    }
    halftenBelegen();
    QVERIFY((inBenutzung() & ObereHaelften) != 0);
    for (const qint32 gleichung : {107, 1}) {
        Zeile z{{0.1, 0.2}, 0.0, {0.0, 0.0}, {0, 0}};
        m->wahl_Gleichung = gleichung;
        uebertragen(*m, *ist);
        rechenweise() = {true, Befehlssatz::Punktweise};
        halftenBelegen();
        zeileRechnen(*ist, {z.x, z.y, false, z.wert, z.zaehler});
        QCOMPARE(inBenutzung() & ObereHaelften, 0ULL);
    }
}

#else
void TestZeilenkern::vektorregister() { QSKIP("only this architecture has such halves"); }
#endif

QTEST_MAIN(TestZeilenkern)
#include "test_zeilenkern.moc"
