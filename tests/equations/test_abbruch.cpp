#include "equations/Zeilenkern.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <memory>

namespace {

constexpr qint32 Kleinste = std::numeric_limits<qint32>::min();
constexpr qint32 Groesste = std::numeric_limits<qint32>::max();

} // namespace

class TestAbbruch : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void betrag_data();
    void betrag();
    void variantenreparatur_data();
    void variantenreparatur();
    void zykluszahlReparatur_data();
    void zykluszahlReparatur();
    void zyklen();
    void juengsterTreffer();
    void ohneToleranz();
    void voreinstellung_data();
    void voreinstellung();
    void orbit_data();
    void orbit();

  private:
    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
};

void TestAbbruch::init() {
    m->g_Max_glg_Abbruch = 9;
    m->glg_Abbruch = 0;
    m->g_Genauigkeit = 0.0001;
    m->g_zycmax = 7;
    m->g_Max_rgbFarben = 582;
    m->xm.fill(1000.0);
    m->ym.fill(1000.0);
    m->Orbitmodus = 0;
}

void TestAbbruch::betrag_data() {
    QTest::addColumn<qint32>("art");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("rq");
    QTest::newRow("modulus") << 0 << -3.0 << 4.0 << 5.0;
    QTest::newRow("squared modulus") << 1 << -3.0 << 4.0 << 25.0;
    QTest::newRow("sum of magnitudes") << 2 << -3.0 << 4.0 << 7.0;
    QTest::newRow("sum") << 3 << -3.0 << 4.0 << 1.0;
    QTest::newRow("sum, left half plane") << 3 << -30.0 << 4.0 << -26.0;
    QTest::newRow("hyperbola") << 6 << -3.0 << 4.0 << -7.0;
    QTest::newRow("hyperbola squared") << 7 << -3.0 << 4.0 << 49.0;
    QTest::newRow("hyperbola cubed") << 8 << -3.0 << 4.0 << -343.0;
    QTest::newRow("hyperbola to the fourth") << 9 << -3.0 << 4.0 << 2401.0;
}

// The twin value handed in has no influence.
void TestAbbruch::betrag() {
    QFETCH(qint32, art);
    QFETCH(double, x);
    QFETCH(double, y);
    m->glg_Abbruch = art;
    m->g_GenauJa = 1;
    QTEST(m->BetrQ_Varianten(x, y, 77.0, qQNaN()), "rq");
    QCOMPARE(m->g_GenauJa, 0);
}

void TestAbbruch::variantenreparatur_data() {
    QTest::addColumn<qint32>("art");
    QTest::addColumn<qint32>("hoechste");
    QTest::newRow("above the highest") << 10 << 9;
    QTest::newRow("above a lowered highest") << 2 << 1;
    QTest::newRow("highest beyond the measures") << 20 << 50;
    QTest::newRow("negative") << -1 << 9;
    QTest::newRow("smallest") << Kleinste << Groesste;
}

void TestAbbruch::variantenreparatur() {
    QFETCH(qint32, art);
    QFETCH(qint32, hoechste);
    m->glg_Abbruch = art;
    m->g_Max_glg_Abbruch = hoechste;
    QCOMPARE(m->BetrQ_Varianten(3.0, 4.0, 0.0, 0.0), 5.0);
    QCOMPARE(m->glg_Abbruch, 0);
}

void TestAbbruch::zykluszahlReparatur_data() {
    QTest::addColumn<qint32>("zycmax");
    QTest::addColumn<qint32>("danach");
    QTest::newRow("0 becomes 7") << 0 << 7;
    QTest::newRow("24 fits") << 24 << 24;
    QTest::newRow("25 does not") << 25 << 24;
    QTest::newRow("largest") << Groesste << 24;
    QTest::newRow("negative searches nothing") << -1 << -1;
    QTest::newRow("smallest") << Kleinste << Kleinste;
}

void TestAbbruch::zykluszahlReparatur() {
    QFETCH(qint32, zycmax);
    QFETCH(qint32, danach);
    m->glg_Abbruch = 5;
    m->g_zycmax = zycmax;
    m->g_Max_rgbFarben = Kleinste;
    for (int i = 1; i <= 40; ++i) {
        QCOMPARE(m->BetrQ_Varianten(i, -i, 0.0, 0.0), -0.0001);
    }
    QCOMPARE(m->g_zycmax, danach);
    QCOMPARE(m->xm[0], 40.0);
    QCOMPARE(m->ym[0], -40.0);
    const qint32 behalten = std::max(danach, 0);
    QCOMPARE(m->xm[static_cast<std::size_t>(behalten)], 40.0 - behalten);
    QCOMPARE(m->xm[24], danach == 24 ? 16.0 : 1000.0);
    if (danach > 0) {
        // 40 matches the entry before last: a cycle of length 2, without overflow of its colour.
        m->BetrQ_Varianten(41.0, -41.0, 0.0, 0.0);
        QCOMPARE(m->BetrQ_Varianten(40.0, -40.0, 0.0, 0.0),
                 2.0 * double(qint64{Kleinste} / danach) + 100.0);
    }
}

void TestAbbruch::zyklen() {
    m->glg_Abbruch = 5;
    QCOMPARE(m->BetrQ_Varianten(0.5, 0.25, 0.0, 0.0), -0.0001);
    QCOMPARE(m->g_GenauJa, 1);
    QCOMPARE(m->BetrQ_Varianten(0.5, 0.25, 0.0, 0.0), 183.0);
    m->BetrQ_Varianten(-1.0, 0.0, 0.0, 0.0);
    QCOMPARE(m->BetrQ_Varianten(0.5, 0.25, 0.0, 0.0), 266.0);
    m->glg_Abbruch = 4;
    QCOMPARE(m->BetrQ_Varianten(0.5, 0.25, 0.0, 0.0), 100.0);
    const double dd = std::fabs(0.5 - (0.5 + 0.00004)) + std::fabs(0.25 - 0.25);
    QCOMPARE(m->BetrQ_Varianten(0.5 + 0.00004, 0.25, 0.0, 0.0), 100.0 + 2 * (582 * (dd / 0.0001)));
}

void TestAbbruch::juengsterTreffer() {
    m->glg_Abbruch = 5;
    for (std::size_t i = 2; i < 6; ++i) {
        m->xm[i] = m->ym[i] = 3.0;
    }
    QCOMPARE(m->BetrQ_Varianten(3.0, 3.0, 0.0, 0.0), 3 * 83 + 100.0);
}

void TestAbbruch::ohneToleranz() {
    m->glg_Abbruch = 4;
    for (const double genau : {0.0, -1.0, qQNaN()}) {
        m->g_Genauigkeit = genau;
        m->xm.fill(1.0);
        m->ym.fill(1.0);
        const double rq = m->BetrQ_Varianten(1.0, 1.0, 0.0, 0.0);
        QVERIFY(qIsNaN(genau) ? qIsNaN(rq) : rq == -genau);
    }
}

void TestAbbruch::voreinstellung_data() {
    QTest::addColumn<qint32>("art");
    QTest::addColumn<qint32>("zycmax");
    QTest::addColumn<qint32>("eintraege");
    QTest::newRow("no cycle search") << 3 << 7 << 0;
    QTest::newRow("one more than kept") << 4 << 7 << 8;
    QTest::newRow("0: one") << 5 << 0 << 1;
    QTest::newRow("largest") << 5 << Groesste << 25;
    QTest::newRow("negative") << 4 << -1 << 0;
    QTest::newRow("smallest") << 4 << Kleinste << 0;
}

void TestAbbruch::voreinstellung() {
    QFETCH(qint32, art);
    QFETCH(qint32, zycmax);
    QFETCH(qint32, eintraege);
    m->glg_Abbruch = art;
    m->g_zycmax = zycmax;
    m->pm = m->tm = m->xm;
    zyklusVoreinstellen(*m, 0.5, -0.25);
    for (qint32 i = 0; i < 25; ++i) {
        const auto j = static_cast<std::size_t>(i);
        const bool gesetzt = i < eintraege;
        QCOMPARE(m->xm[j], gesetzt ? 0.5 + 1000.111 : 1000.0);
        QCOMPARE(m->ym[j], gesetzt ? -0.25 + 1000.111 : 1000.0);
        QCOMPARE(m->pm[j], m->xm[j]);
        QCOMPARE(m->tm[j], m->ym[j]);
    }
}

void TestAbbruch::orbit_data() {
    QTest::addColumn<qint32>("modus");
    QTest::addColumn<qint32>("hoechstens");
    QTest::addColumn<qint32>("abIteration");
    QTest::addColumn<qint32>("vorher");
    QTest::addColumn<qint32>("punkte"); // after 400 steps
    QTest::newRow("off") << 1 << 256 << 0 << 0 << 0;
    QTest::newRow("few") << 2 << 5 << 0 << 0 << 5;
    QTest::newRow("late") << 2 << 256 << 397 << 0 << 3;
    QTest::newRow("more than fit") << 2 << Groesste << Kleinste << 0 << 258;
    QTest::newRow("none wanted") << 2 << -3 << 0 << 0 << 0;
    QTest::newRow("counter below zero") << 2 << 2 << 0 << Kleinste << 2;
}

void TestAbbruch::orbit() {
    QFETCH(qint32, modus);
    QFETCH(qint32, hoechstens);
    QFETCH(qint32, abIteration);
    QFETCH(qint32, vorher);
    QFETCH(qint32, punkte);
    m->Orbitmodus = modus;
    m->g_maxOrbitIterat = hoechstens;
    m->g_OrbitAbIterAn = abIteration;
    m->OZaehler = vorher;
    m->OrbitX.fill(0.0);
    for (m->IteratSubf = 1; m->IteratSubf <= 400; ++m->IteratSubf) {
        m->BetrQ_Varianten(m->IteratSubf, -m->IteratSubf, 0.0, 0.0);
    }
    QCOMPARE(m->OZaehler, punkte);
    if (punkte > 0) {
        const auto letzter = static_cast<std::size_t>(punkte);
        const double ab = std::max(abIteration, 0) + 1.0;
        QCOMPARE(m->OrbitX[1], ab);
        QCOMPARE(m->OrbitY[letzter], -(ab + punkte - 1));
        QCOMPARE(m->OrbitX[letzter + 1], Mandelbrot::OrbitEnde);
        QCOMPARE(m->OrbitY[letzter + 1], Mandelbrot::OrbitEnde);
    }
}

QTEST_MAIN(TestAbbruch)
#include "test_abbruch.moc"
