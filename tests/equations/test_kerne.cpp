#include "Bezugskern.h"
#include "equations/Kernwahl.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <memory>
#include <random>

namespace {

constexpr qint32 Kleinste = std::numeric_limits<qint32>::min();
constexpr qint32 Groesste = std::numeric_limits<qint32>::max();

} // namespace

/// Every kernel against the plain second implementation, to the bit.
class TestKerne : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void kernwahl_data();
    void kernwahl();
    void gleichBezug_data();
    void gleichBezug();
    void ohneFormel_data();
    void ohneFormel();

  private:
    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
};

void TestKerne::kernwahl_data() {
    QTest::addColumn<qint32>("nummer");
    QTest::addColumn<qint32>("gleicherKernWie"); // 0 = none
    QTest::newRow("none below 1") << 0 << 0;
    QTest::newRow("negative") << -101 << 0;
    QTest::newRow("smallest") << Kleinste << 0;
    QTest::newRow("between the two kinds") << 11 << 0;
    QTest::newRow("99 is not complex") << 99 << 0;
    QTest::newRow("family 0") << 100 << 0;
    QTest::newRow("family 13") << 113 << 0;
    QTest::newRow("Julia type") << 2 << 1;
    QTest::newRow("pole eye shares the pole kernel") << 911 << 105;
    QTest::newRow("family without that member") << 1007 << 108;
    QTest::newRow("largest of a family") << 2147483609 << 110;
}

void TestKerne::kernwahl() {
    QFETCH(qint32, nummer);
    QFETCH(qint32, gleicherKernWie);
    QVERIFY(kernFuer(nummer) == (gleicherKernWie == 0 ? nullptr : kernFuer(gleicherKernWie)));
    QVERIFY(gleicherKernWie == 0 || kernFuer(nummer) != nullptr);
}

void TestKerne::gleichBezug_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const qint32 n : alleGleichungen()) {
        QTest::addRow("%d", n) << n;
    }
    QCOMPARE(alleGleichungen().size(), std::size_t{98});
}

void TestKerne::gleichBezug() {
    QFETCH(qint32, gleichung);
    constexpr qint32 potenzen[] = {0, 2, 6, 7, 10, -3, Kleinste, Groesste};
    constexpr qint32 grenzen[] = {50, 1, 50, 2, 50, 300, 3000};
    constexpr double weiten[] = {2.0, 0.7, 20.0};
    constexpr double amNullpunkt[] = {0.0, -1e-21, 5e-9, -5e-9}; // where starts are pushed off
    std::mt19937 zufall(static_cast<unsigned>(gleichung));
    const auto koordinate = [&](double weite) {
        return zufall() % 16 == 0 ? amNullpunkt[zufall() % std::size(amNullpunkt)]
                                  : std::uniform_real_distribution<double>(-weite, weite)(zufall);
    };
    const Kern kern = kernFuer(gleichung);
    QVERIFY(kern);
    std::size_t n = 0;
    for (qint32 zwilling = -1; zwilling <= 13; ++zwilling) {
        for (qint32 art = 0; art <= 9; ++art, ++n) {
            Bezugskern b;
            b.gleichung = gleichung;
            b.zwilling = zwilling;
            b.art = art;
            b.grenze = grenzen[n % std::size(grenzen)];
            b.k = potenzen[n % std::size(potenzen)];
            b.hg = b.hu = b.k / 2;
            b.kx = n % 11 == 0 ? 0.0 : koordinate(1.0);
            b.ky = koordinate(0.5);
            b.wert = n % 3 == 0 ? 4.0 : (n % 3 == 1 ? 400.0 : 1e8);
            b.genau = n % 5 == 0 ? 0.01 : 0.0001;
            b.zycmax = 1 + static_cast<qint32>(n % 24);
            b.xm.fill(koordinate(1.0));
            b.ym.fill(koordinate(1.0));
            b.uebertragen(*m);
            // Pixel after pixel on the same model: repairs and history last.
            for (const double weite : weiten) {
                const double xqr = koordinate(weite), yqr = koordinate(weite);
                const double cx = koordinate(weite), cy = koordinate(weite);
                const double soll = b.rechnen(xqr, yqr, cx, cy);
                const double ist = ((*m).*kern)(xqr, yqr, cx, cy);
                const QString wo =
                    QStringLiteral("twin %1, bailout %2, K %3, limit %4: %5 instead of %6")
                        .arg(zwilling)
                        .arg(art)
                        .arg(b.k)
                        .arg(b.grenze)
                        .arg(ist, 0, 'g', 17)
                        .arg(soll, 0, 'g', 17);
                QVERIFY2(bitgleich(ist, soll), qPrintable(wo));
                const QString feld = b.unterschied(*m);
                QVERIFY2(feld.isEmpty(), qPrintable(wo + QStringLiteral(", ") + feld));
            }
        }
    }
}

void TestKerne::ohneFormel_data() {
    QTest::addColumn<qint32>("gleichung");
    QTest::addColumn<double>("wert");
    QTest::addColumn<qint32>("zaehler");
    QTest::newRow("power") << 601 << 5.0 << 50;
    QTest::newRow("eye, far number") << 1203 << 5.0 << 50;
    QTest::newRow("pole") << 805 << 5.0 << 50;
    QTest::newRow("exponent") << 807 << 5.0 << 50;
    QTest::newRow("Newton refuses its first step") << 1010 << 0.0 << 1;
}

// A number of a known family that has no formula leaves the value where it starts.
void TestKerne::ohneFormel() {
    QFETCH(qint32, gleichung);
    QFETCH(double, wert);
    QFETCH(qint32, zaehler);
    Bezugskern b;
    b.grenze = 50;
    b.art = 0;
    b.uebertragen(*m);
    m->wahl_Gleichung = gleichung;
    for (const qint32 zwilling : {0, 4, 12}) {
        m->g_ZwillingJa = zwilling;
        QCOMPARE(((*m).*kernFuer(gleichung))(3.0, -4.0, 0.25, 0.5), wert);
        QCOMPARE(m->privateIterat, zaehler);
    }
}

QTEST_MAIN(TestKerne)
#include "test_kerne.moc"
