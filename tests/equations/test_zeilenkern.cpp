#include "Bezugskern.h"
#include "equations/Gleichungen.h"
#include "equations/Rechenweise.h"
#include "equations/Zeilenkern.h"

#include <random>

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

    void rechnen(M& modell, Zeile& z, Befehlssatz satz, bool abkuerzung) const;
    void vergleichen(Zeile z);

  private Q_SLOTS:
    void init() { m = kernmodell(); }
    void cleanup() { rechenweise() = anfang; }
    void befehlssatz();
    void wieEinzeln_data();
    void wieEinzeln();
    void lange_data();
    void lange();
    void ohneKern();
    void orbitaufzeichnung();
};

void TestZeilenkern::rechnen(M& modell, Zeile& z, Befehlssatz satz, bool abkuerzung) const {
    rechenweise() = {abkuerzung, satz};
    uebertragen(*m, modell);
    // Longer than the row, to see that nothing is written behind it.
    z.wert.assign(z.x.size() + Rand, -77.0);
    z.zaehler.assign(z.x.size() + Rand, -77);
    zeileRechnen(modell, {z.x, z.y, m->wahl_Gleichung % 2 == 0, std::span(z.wert).first(z.x.size()),
                          std::span(z.zaehler).first(z.x.size())});
}

// Every instruction set that the processor has, the plain kernel with the shortcut, and lanes
// without it.
void TestZeilenkern::vergleichen(Zeile z) {
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
                    anders = QString("pixel %1: %2, %3 instead of %4, %5")
                                 .arg(i)
                                 .arg(neu.wert[i], 0, 'g', 17)
                                 .arg(neu.zaehler[i])
                                 .arg(z.wert[i], 0, 'g', 17)
                                 .arg(z.zaehler[i]);
                }
            }
            QVERIFY2(anders.isEmpty(),
                     qPrintable(QString("set %1, shortcut %2, twin %3, bailout %4, limit %5: %6")
                                    .arg(static_cast<int>(satz))
                                    .arg(abkuerzung)
                                    .arg(m->g_ZwillingJa)
                                    .arg(m->glg_Abbruch)
                                    .arg(m->Max_Iterationen)
                                    .arg(anders)));
        }
    }
}

void TestZeilenkern::befehlssatz() {
    QCOMPARE(verfuegbar(Befehlssatz::Punktweise), Befehlssatz::Punktweise);
    QCOMPARE(verfuegbar(Befehlssatz::Grundsatz), Befehlssatz::Grundsatz);
    QVERIFY(verfuegbar(Befehlssatz::Avx2) >= Befehlssatz::Grundsatz);
    QVERIFY(verfuegbar(Befehlssatz::Avx512) >= verfuegbar(Befehlssatz::Avx2));
    QCOMPARE(anfang.befehlssatz, verfuegbar(Befehlssatz::Avx512));
    QVERIFY(anfang.abkuerzung);
    // Which ones this run compares; what the processor lacks is not tested, and says so.
    constexpr const char* namen[] = {"point by point", "base set", "AVX2", "AVX-512"};
    for (qint32 i = 0; i < 4; ++i) {
        const auto satz = static_cast<Befehlssatz>(i);
        qInfo("%s: %s", namen[i], verfuegbar(satz) == satz ? "compared" : "NOT on this processor");
    }
}

void TestZeilenkern::wieEinzeln_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const Gleichung& gleichung : gleichungen()) {
        QTest::addRow("%d", gleichung.nummer) << gleichung.nummer;
    }
    QTest::newRow("no such member") << 601;
}

// Twins and bailouts, known and unknown ones, each pair with usual and with special numbers.
void TestZeilenkern::wieEinzeln() {
    QFETCH(qint32, gleichung);
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double besondere[] = {0.0,   -0.0,   inf, -inf, qQNaN(), 5e-324, -1e-310, 1e160,
                                -1e80, 1e-160, 0.3, -1.2, 2.0,     -0.5,   1e308,   1.0};
    constexpr double abbruchwerte[] = {4.0, 1e8, 400.0, 400.0, inf};
    constexpr qint32 grenzen[] = {256, 1, 255, 2, 600, 3, 30};
    constexpr qint32 potenzen[] = {2, 7, 0, 3, 10, -2, 6};
    std::mt19937 zufall(static_cast<unsigned>(gleichung));
    // The equations without lanes differ by the shortcut alone and are slow: fewer settings.
    const bool inSpuren = gleichung < 7 || (gleichung > 99 && gleichung % 100 < 5);
    for (qint32 n = 0; n < 336 && !QTest::currentTestFailed(); n += inSpuren ? 1 : 4) {
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

void TestZeilenkern::lange_data() {
    QTest::addColumn<qint32>("gleichung");
    QTest::addColumn<double>("links");
    QTest::addColumn<double>("breite");
    QTest::addColumn<double>("y");
    for (const qint32 n : {1, 2, 3, 4, 5, 6, 9, 101, 203, 302, 403, 501, 105, 109, 207, 310}) {
        QTest::addRow("%d, whole figure", n) << n << -2.0 << 3.0 << 0.1;
        QTest::addRow("%d, inside", n) << n << -0.9 << 0.6 << 0.05;
        QTest::addRow("%d, on the axis", n) << n << -1.8 << 2.1 << 0.0;
    }
}

// Long orbits: settled ones of many periods, chaotic ones, and such as leave late. The last row is
// longer than one piece of the lanes.
void TestZeilenkern::lange() {
    QFETCH(qint32, gleichung);
    QFETCH(double, links);
    QFETCH(double, breite);
    QFETCH(double, y);
    constexpr qint32 arten[] = {1, 0, 2, 4, 5, 8, 4, 1};
    constexpr qint32 zwillinge[] = {0, 1, 4, 0, 1, 4, 0, 0};
    const qint32 anzahl = gleichung <= 6 || gleichung == 101 ? 8 : 7;
    for (qint32 n = 0; n < anzahl && !QTest::currentTestFailed(); ++n) {
        const bool langeZeile = n == 7;
        m->wahl_Gleichung = gleichung;
        m->g_ZwillingJa = zwillinge[n];
        m->glg_Abbruch = arten[n];
        m->Max_Iterationen = langeZeile ? 256 : 5000 - n;
        m->g_kPotenz = 3;
        m->Koppl_x = 0.1;
        m->CJ_x = -0.12;
        m->CJ_y = 0.74;
        m->g_zycmax = 7 + n;
        m->wert_Abbruch = n == 4 || n == 6 ? 1e6 : 400.0;
        Zeile z{std::vector<double>(langeZeile ? 2500 : 37), y};
        for (std::size_t i = 0; i < z.x.size(); ++i) {
            z.x[i] = links + breite * double(i) / double(z.x.size());
        }
        vergleichen(z);
    }
}

void TestZeilenkern::ohneKern() {
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
void TestZeilenkern::orbitaufzeichnung() {
    Zeile z{{-0.1, -0.1}};
    m->Orbitmodus = 2;
    ist->OZaehler = ist->g_OrbitAbIterAn = 0;
    ist->g_maxOrbitIterat = 200;
    rechnen(*ist, z, Befehlssatz::Avx512, true);
    QCOMPARE(ist->OZaehler, 200);
    QCOMPARE(z.zaehler[1], 256);
}

QTEST_MAIN(TestZeilenkern)
#include "test_zeilenkern.moc"
