#include "model/Linien.h"
#include "Testbasis.h"

#include <memory>

namespace {

/// The marks by the plain rule: every line of the grid is tried at every pixel.
class AlleLinien {
  public:
    AlleLinien(const Mandelbrot& menge, double s) : m(menge), S(s) {}

    int marke(double x, double y) {
        const double g = m.g_Gitterabstand;
        const double h = S / 2.0;
        int mark = 0;
        const auto setzen = [&](std::size_t paar) {
            mark = zaehler[paar];
            zaehler[paar] ^= 3; // 101 <-> 102 and so on
        };
        if (m.g_GitterJa == 1) {
            const int nB = int(m.Br_x / g);
            for (int k = int(m.MP_x / g) - nB; k <= int(m.MP_x / g) + nB - 1; ++k) {
                if (k * g + h > x && x > k * g - h) {
                    setzen(4);
                }
            }
            for (int k = int(m.MP_y / g) - nB; k <= int(m.MP_y / g) + nB - 1; ++k) {
                if (k * g + h > y && y > k * g - h) {
                    setzen(5);
                }
            }
        }
        if (m.g_GitterJa == 2) {
            const int nH = int(m.Br_x / g / 2.0);
            for (int k = -nH; k <= nH - 1; ++k) {
                if (m.MP_x + k * g + h > x && x > m.MP_x + k * g - h) {
                    setzen(6);
                }
                if (m.MP_y + k * g + h > y && y > m.MP_y + k * g - h) {
                    setzen(7);
                }
            }
        }
        if (m.g_MittelkreuzJa == 1 && x <= m.MP_x + S && x >= m.MP_x - S) {
            setzen(0);
        }
        if (m.g_MittelkreuzJa == 1 && y <= m.MP_y + S && y >= m.MP_y - S) {
            setzen(1);
        }
        if (m.g_NullkreuzJa == 1 && x <= S && x >= -S) {
            setzen(2);
        }
        if (m.g_NullkreuzJa == 1 && y <= S && y >= -S) {
            setzen(3);
        }
        return mark;
    }

  private:
    const Mandelbrot& m;
    double S;
    std::array<int, 8> zaehler{101, 101, 201, 201, 301, 301, 401, 401};
};

} // namespace

class TestLinien : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void marken_data();
    void marken();
    void bedingung_data();
    void bedingung();
    void absurderAbstand_data();
    void absurderAbstand();
};

void TestLinien::marken_data() {
    QTest::addColumn<QList<double>>("bild");  // centre x, y, width, spacing
    QTest::addColumn<QList<int>>("schalter"); // grid, centre cross, zero cross
    const QList<QList<double>> bilder{{-0.5, 0.0, 4.0, 0.5},
                                      {-0.5, 0.25, 4.0, 0.37},
                                      {3.1, -2.2, 1.0, 0.1},
                                      {-0.5, 0.0, 4.0, 7.0}};
    for (int i = 0; i < bilder.size(); ++i) {
        for (int schalter = 1; schalter < 12; ++schalter) {
            QTest::addRow("picture %d, lines %d", i, schalter)
                << bilder[i] << QList<int>{schalter / 4, schalter & 1, (schalter >> 1) & 1};
        }
    }
}

void TestLinien::marken() {
    QFETCH(QList<double>, bild);
    QFETCH(QList<int>, schalter);
    const auto m = std::make_unique<Mandelbrot>();
    m->MP_x = bild[0];
    m->MP_y = bild[1];
    m->Br_x = bild[2];
    m->g_Gitterabstand = bild[3];
    m->g_GitterJa = schalter[0];
    m->g_MittelkreuzJa = schalter[1];
    m->g_NullkreuzJa = schalter[2];
    m->g_linienLoeschenJa = 0;
    Bildlauf lauf;
    lauf.LinienRechnen = true;
    lauf.Schritte_Spalte = m->Br_x / 100;
    Linien linien(*m, lauf);
    AlleLinien erwartet(*m, lauf.Schritte_Spalte);
    for (int zeile = 0; zeile < 80; ++zeile) {
        for (int spalte = 0; spalte < 100; ++spalte) {
            const double x = m->MP_x - m->Br_x / 2 + spalte * lauf.Schritte_Spalte;
            const double y = m->MP_y + 0.4 * m->Br_x - zeile * lauf.Schritte_Spalte;
            const int soll = erwartet.marke(x, y);
            const int ist = linien.marke(x, y);
            QVERIFY2(ist == soll, qPrintable(QString("(%1, %2): %3 instead of %4")
                                                 .arg(spalte)
                                                 .arg(zeile)
                                                 .arg(ist)
                                                 .arg(soll)));
        }
    }
}

void TestLinien::bedingung_data() {
    QTest::addColumn<bool>("verlangt");
    QTest::addColumn<int>("loeschen");
    QTest::addColumn<int>("marke");
    QTest::newRow("lines on") << true << 0 << 201;
    QTest::newRow("no line wanted") << false << 0 << 0;
    QTest::newRow("others switched off, this one stays") << true << 1 << 201;
    QTest::newRow("kinds 1 to 4 mark without a request") << false << 4 << 201;
    QTest::newRow("all lines off") << true << 5 << 0;
}

void TestLinien::bedingung() {
    QFETCH(bool, verlangt);
    QFETCH(int, loeschen);
    const auto m = std::make_unique<Mandelbrot>();
    m->g_NullkreuzJa = 1;
    m->g_linienLoeschenJa = loeschen;
    Bildlauf lauf;
    lauf.LinienRechnen = verlangt;
    lauf.Schritte_Spalte = 0.01;
    QTEST(Linien(*m, lauf).marke(0.0, 1.0), "marke");
}

void TestLinien::absurderAbstand_data() {
    QTest::addColumn<double>("abstand");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("negative") << -0.5;
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("1e300") << 1e300;
    QTest::newRow("1e-300") << 1e-300;
    QTest::newRow("denormal") << 5e-324;
}

void TestLinien::absurderAbstand() {
    QFETCH(double, abstand);
    const auto m = std::make_unique<Mandelbrot>();
    m->MP_x = -0.5;
    m->MP_y = 0.1;
    m->Br_x = 4.0;
    m->g_Gitterabstand = abstand;
    Bildlauf lauf;
    lauf.LinienRechnen = true;
    lauf.Schritte_Spalte = 0.04;
    for (const int gitter : {1, 2}) {
        m->g_GitterJa = gitter;
        Linien linien(*m, lauf);
        const int marke = linien.marke(0.3, 0.2);
        // A spacing far below a pixel covers the picture as long as its lines can be counted.
        QVERIFY(marke == 0 || (abstand > 0.0 && abstand < 1e-100 && marke / 100 == 2 + gitter));
        QCOMPARE(linien.marke(-1e300, 1e300), 0);
    }
}

QTEST_MAIN(TestLinien)
#include "test_linien.moc"
