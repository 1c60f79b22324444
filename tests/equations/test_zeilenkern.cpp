#include "Bezugskern.h"
#include "equations/Rechenweise.h"
#include "equations/Zeilenkern.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

/// One setting of the model and one row.
struct Versuch {
    Bezugskern werte;
    qint32 genauJa = 0;
    std::vector<double> x;
    double y = 0.0;
    bool julia = false;
};

/// What a row leaves behind.
struct Ergebnis {
    std::vector<double> wert;
    std::vector<qint32> zaehler;
    std::vector<double> reellesModell;
    std::vector<qint32> ganzesModell;
};

Ergebnis rechnen(Mandelbrot& m, const Versuch& v, Befehlssatz satz, bool abkuerzung) {
    rechenweise() = {abkuerzung, satz};
    v.werte.uebertragen(m);
    m.g_GenauJa = v.genauJa;
    m.privateIterat = m.IteratSubf = -1;
    m.pm.fill(0.0);
    m.tm.fill(0.0);
    Ergebnis e;
    e.wert.assign(v.x.size(), -77.0);
    e.zaehler.assign(v.x.size(), -77);
    zeileRechnen(m, {v.x, v.y, v.julia, e.wert, e.zaehler});
    e.ganzesModell = {m.privateIterat, m.IteratSubf, m.g_GenauJa,   m.g_zycmax,
                      m.g_ZwillingJa,  m.g_kPotenz,  m.glg_Abbruch, m.Orbitmodus};
    e.reellesModell = {m.Koppl_x, m.Koppl_y, m.CJ_x, m.CJ_y};
    for (const auto& verlauf : {m.xm, m.ym, m.pm, m.tm}) {
        e.reellesModell.insert(e.reellesModell.end(), verlauf.begin(), verlauf.end());
    }
    return e;
}

bool gleich(const std::vector<double>& a, const std::vector<double>& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), bitgleich);
}

QString unterschied(const Ergebnis& ist, const Ergebnis& soll) {
    for (std::size_t i = 0; i < soll.wert.size(); ++i) {
        if (!bitgleich(ist.wert[i], soll.wert[i]) || ist.zaehler[i] != soll.zaehler[i]) {
            return QStringLiteral("pixel %1: %2, %3 instead of %4, %5")
                .arg(i)
                .arg(ist.wert[i], 0, 'g', 17)
                .arg(ist.zaehler[i])
                .arg(soll.wert[i], 0, 'g', 17)
                .arg(soll.zaehler[i]);
        }
    }
    if (ist.ganzesModell != soll.ganzesModell) {
        return QStringLiteral("whole numbers left in the model");
    }
    return gleich(ist.reellesModell, soll.reellesModell)
               ? QString()
               : QStringLiteral("numbers or history left in the model");
}

} // namespace

/// Lanes and the exact shortcut change nothing: row kernel against the plain point kernel.
class TestZeilenkern : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void cleanup();
    void befehlssatz();
    void wieEinzeln_data();
    void wieEinzeln();
    void lange_data();
    void lange();
    void sonderwerte_data();
    void sonderwerte();
    void ohneKern();
    void orbitaufzeichnung();

  private:
    void vergleichen(const Versuch& v);

    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
    const Rechenweise anfang = rechenweise();
};

void TestZeilenkern::cleanup() { rechenweise() = anfang; }

// Every instruction set that the processor has, the plain kernel with the shortcut, and lanes
// without it.
void TestZeilenkern::vergleichen(const Versuch& v) {
    const Ergebnis soll = rechnen(*m, v, Befehlssatz::Punktweise, false);
    struct Weg {
        Befehlssatz satz;
        bool abkuerzung;
    };
    constexpr Weg wege[] = {{Befehlssatz::Punktweise, true},
                            {Befehlssatz::Grundsatz, true},
                            {Befehlssatz::Avx2, true},
                            {Befehlssatz::Avx512, true},
                            {Befehlssatz::Avx512, false}};
    for (const auto& [satz, abkuerzung] : wege) {
        if (abkuerzung && verfuegbar(satz) != satz) {
            continue;
        }
        const QString anders = unterschied(rechnen(*m, v, satz, abkuerzung), soll);
        QVERIFY2(anders.isEmpty(),
                 qPrintable(QStringLiteral("set %1, shortcut %2, twin %3, bailout %4, K %5, limit "
                                           "%6, width %7, zycmax %8: %9")
                                .arg(static_cast<int>(satz))
                                .arg(abkuerzung)
                                .arg(v.werte.zwilling)
                                .arg(v.werte.art)
                                .arg(v.werte.k)
                                .arg(v.werte.grenze)
                                .arg(v.x.size())
                                .arg(v.werte.zycmax)
                                .arg(anders)));
    }
}

void TestZeilenkern::befehlssatz() {
    QCOMPARE(verfuegbar(Befehlssatz::Punktweise), Befehlssatz::Punktweise);
    QCOMPARE(verfuegbar(Befehlssatz::Grundsatz), Befehlssatz::Grundsatz);
    QVERIFY(verfuegbar(Befehlssatz::Avx2) >= Befehlssatz::Grundsatz);
    QVERIFY(verfuegbar(Befehlssatz::Avx512) >= verfuegbar(Befehlssatz::Avx2));
    QCOMPARE(anfang.befehlssatz, verfuegbar(Befehlssatz::Avx512));
    QVERIFY(anfang.abkuerzung);
}

void TestZeilenkern::wieEinzeln_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const qint32 n : alleGleichungen()) {
        QTest::addRow("%d", n) << n;
    }
    QTest::newRow("no such member") << 601;
}

void TestZeilenkern::wieEinzeln() {
    QFETCH(qint32, gleichung);
    constexpr qint32 grenzen[] = {256, 1, 255, 2, 600, 3, 30};
    constexpr qint32 potenzen[] = {2, 7, 0, 3, 10, -2, 6};
    std::mt19937 zufall(static_cast<unsigned>(gleichung));
    const auto zwischen = [&](double von, double bis) {
        return std::uniform_real_distribution<double>(von, bis)(zufall);
    };
    // The equations without lanes differ by the shortcut alone and are slow: fewer settings.
    const bool inSpuren = gleichung < 7 || (gleichung > 99 && gleichung % 100 < 5);
    qint32 n = 0;
    for (qint32 zwilling = -1; zwilling <= 12; ++zwilling) {
        for (qint32 art = -1; art <= 10; ++art, ++n) {
            if (!inSpuren && n % 4 != 0) {
                continue;
            }
            Versuch v;
            v.werte.gleichung = gleichung;
            v.werte.zwilling = n % 5 == 0 ? 0 : zwilling;
            v.werte.art = art;
            v.werte.grenze = grenzen[n % 7];
            v.werte.k = potenzen[n % 6];
            v.werte.hg = v.werte.hu = v.werte.k / 2;
            v.werte.kx = n % 13 == 0 ? 0.0 : zwischen(-0.5, 0.5);
            v.werte.ky = zwischen(-0.3, 0.3);
            v.werte.wert = n % 4 == 0 ? 4.0 : (n % 4 == 1 ? 1e8 : 400.0);
            v.werte.genau = n % 3 == 0 ? 0.01 : 0.0001;
            v.werte.zycmax = n % 9 == 0 ? 0 : 1 + n % 26;
            v.genauJa = n % 2;
            v.werte.cjx = zwischen(-1.2, 0.4);
            v.werte.cjy = zwischen(-0.6, 0.6);
            v.julia = gleichung % 2 == 0;
            v.y = n % 8 == 0 ? 0.0 : zwischen(-1.0, 1.0);
            const double links = zwischen(-2.0, 0.0);
            const double schritt = zwischen(0.001, 0.08);
            for (qint32 i = 0; i < 1 + n % 40; ++i) {
                v.x.push_back(links + i * schritt);
            }
            vergleichen(v);
            if (QTest::currentTestFailed()) {
                return;
            }
        }
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

// Long orbits: settled ones of many periods, chaotic ones, and such as leave late.
void TestZeilenkern::lange() {
    QFETCH(qint32, gleichung);
    QFETCH(double, links);
    QFETCH(double, breite);
    QFETCH(double, y);
    constexpr qint32 arten[] = {1, 0, 2, 4, 5, 8, 4};
    constexpr qint32 zwillinge[] = {0, 1, 4};
    for (qint32 n = 0; n < 7; ++n) {
        Versuch v;
        v.werte.gleichung = gleichung;
        v.werte.zwilling = zwillinge[n % 3];
        v.werte.art = arten[n];
        v.werte.grenze = 5000 - n;
        v.werte.k = 3;
        v.werte.kx = 0.1;
        v.werte.cjx = -0.12;
        v.werte.cjy = 0.74;
        v.werte.zycmax = 7 + n;
        v.werte.wert = n > 2 && n % 2 == 0 ? 1e6 : 400.0;
        v.julia = gleichung % 2 == 0;
        v.y = y;
        for (qint32 i = 0; i < 37; ++i) {
            v.x.push_back(links + breite * i / 37);
        }
        vergleichen(v);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
    if (gleichung <= 6 || gleichung == 101) {
        Versuch v; // longer than one piece of the lanes
        v.werte.gleichung = gleichung;
        v.julia = gleichung % 2 == 0;
        v.y = y;
        for (qint32 i = 0; i < 2500; ++i) {
            v.x.push_back(links + breite * i / 2500);
        }
        vergleichen(v);
    }
}

void TestZeilenkern::sonderwerte_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const qint32 n : alleGleichungen()) {
        QTest::addRow("%d", n) << n;
    }
}

void TestZeilenkern::sonderwerte() {
    QFETCH(qint32, gleichung);
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double zahlen[] = {0.0,   -0.0,   inf, -inf, qQNaN(), 5e-324, -1e-310, 1e160,
                             -1e80, 1e-160, 0.3, -1.2, 2.0,     -0.5,   1e308,   1.0};
    std::mt19937 zufall(static_cast<unsigned>(gleichung) + 1);
    const auto zahl = [&] { return zahlen[zufall() % std::size(zahlen)]; };
    for (qint32 n = 0; n < 160; ++n) {
        Versuch v;
        v.werte.gleichung = gleichung;
        v.werte.zwilling = n % 13;
        v.werte.art = n % 10;
        v.werte.grenze = n % 2 == 0 ? 40 : 41 + n;
        v.werte.k = 2 + n % 3;
        v.werte.hg = v.werte.hu = n % 4;
        v.werte.kx = zahl();
        v.werte.ky = zahl();
        v.werte.wert = n % 3 == 0 ? zahl() : (n % 3 == 1 ? inf : 400.0);
        v.werte.genau = n % 4 == 0 ? zahl() : 0.0001;
        v.werte.farben = n % 5 == 0 ? -3 : 582;
        v.werte.cjx = zahl();
        v.werte.cjy = zahl();
        v.julia = gleichung % 2 == 0;
        v.y = zahl();
        for (const double x : zahlen) {
            v.x.push_back(x);
        }
        vergleichen(v);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestZeilenkern::ohneKern() {
    Versuch v;
    v.werte.gleichung = 100;
    v.x = {0.0, 1.0};
    const Ergebnis e = rechnen(*m, v, Befehlssatz::Avx512, true);
    QCOMPARE(e.zaehler, std::vector<qint32>(2, -77));
    QCOMPARE(m->privateIterat, -1);
    v.werte.gleichung = 1;
    v.x.clear();
    rechnen(*m, v, Befehlssatz::Avx512, true);
    QCOMPARE(m->privateIterat, -1);
}

// While an orbit is recorded every step is made, also by a row.
void TestZeilenkern::orbitaufzeichnung() {
    Bezugskern().uebertragen(*m);
    m->Orbitmodus = 2;
    m->OZaehler = 0;
    m->g_maxOrbitIterat = 200;
    m->g_OrbitAbIterAn = 0;
    const std::vector<double> x = {-0.1, -0.1};
    std::vector<double> wert(2);
    std::vector<qint32> zaehler(2);
    zeileRechnen(*m, {x, 0.0, false, wert, zaehler});
    QCOMPARE(m->OZaehler, 200);
    QCOMPARE(zaehler[1], 256);
    m->Orbitmodus = 0;
}

QTEST_MAIN(TestZeilenkern)
#include "test_zeilenkern.moc"
