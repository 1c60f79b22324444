#include "Bezugskern.h"
#include "equations/FormelnKomplex.h"
#include "equations/Kernwahl.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <algorithm>
#include <memory>
#include <random>

Q_DECLARE_METATYPE(std::complex<double>)

namespace {

using Komplex = std::complex<double>;

constexpr qint32 Kleinste = std::numeric_limits<qint32>::min();
constexpr qint32 Groesste = std::numeric_limits<qint32>::max();

} // namespace

/// What the mathematics says about the kernels, and that no input harms them.
class TestKerntatsachen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void gleichesBild_data();
    void gleichesBild();
    void ersterSchritt_data();
    void ersterSchritt();
    void wurzeln_data();
    void wurzeln();
    void hyperwurzeln();
    void spiegelbild_data();
    void spiegelbild();
    void schrittgrenzen_data();
    void schrittgrenzen();
    void ganzePotenz_data();
    void ganzePotenz();
    void unsinn_data();
    void unsinn();

  private:
    double kern(qint32 gleichung, Komplex start, Komplex c);
    [[nodiscard]] Komplex orbitpunkt(qint32 i) const;

    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
};

void TestKerntatsachen::init() {
    Bezugskern().uebertragen(*m);
    m->Orbitmodus = 2;
    m->g_maxOrbitIterat = 258;
    m->g_OrbitAbIterAn = 0;
}

double TestKerntatsachen::kern(qint32 gleichung, Komplex start, Komplex c) {
    m->wahl_Gleichung = gleichung;
    m->OZaehler = 0;
    return ((*m).*kernFuer(gleichung))(start.real(), start.imag(), c.real(), c.imag());
}

Komplex TestKerntatsachen::orbitpunkt(qint32 i) const {
    const auto j = static_cast<std::size_t>(i);
    return {m->OrbitX[j], m->OrbitY[j]};
}

void TestKerntatsachen::gleichesBild_data() {
    QTest::addColumn<qint32>("eine");
    QTest::addColumn<qint32>("andere");
    QTest::addColumn<qint32>("k");
    QTest::newRow("complex and real arithmetic") << 101 << 1 << 10;
    QTest::newRow("complex and real arithmetic, eye") << 103 << 3 << 10;
    QTest::newRow("K = 2") << 501 << 101 << 2;
    QTest::newRow("K = 4") << 501 << 301 << 4;
    QTest::newRow("Zm^1") << 503 << 103 << 2;
    QTest::newRow("Zm^1 Z") << 603 << 203 << 3;
    QTest::newRow("pole with Z^3") << 505 << 105 << 3;
    QTest::newRow("the two orders of Zm Z") << 111 << 211 << 10;
}

void TestKerntatsachen::gleichesBild() {
    QFETCH(qint32, eine);
    QFETCH(qint32, andere);
    QFETCH(qint32, k);
    m->g_kPotenz = k;
    m->kPotHg = m->kPotHu = k / 2;
    std::mt19937 zufall(5);
    std::uniform_real_distribution<double> koordinate(-2.0, 2.0);
    for (int i = 0; i < 200; ++i) {
        const Komplex start(koordinate(zufall), koordinate(zufall));
        const Komplex c(koordinate(zufall), koordinate(zufall));
        m->glg_Abbruch = i % 3;
        const double a = kern(eine, start, c);
        const qint32 zaehler = m->privateIterat;
        const double b = kern(andere, start, c);
        QVERIFY2(bitgleich(a, b), qPrintable(QStringLiteral("%1, %2").arg(a).arg(b)));
        QCOMPARE(m->privateIterat, zaehler);
    }
}

void TestKerntatsachen::ersterSchritt_data() {
    QTest::addColumn<qint32>("gleichung");
    QTest::addColumn<qint32>("zwilling");
    QTest::addColumn<Komplex>("start");
    QTest::addColumn<Komplex>("c");
    QTest::addColumn<Komplex>("z");
    const Komplex c(0.25, 0.5);
    QTest::newRow("103: |Z|^2 + C") << 103 << 0 << Komplex(3, -4) << c << Komplex(25.25, 0.5);
    QTest::newRow("3: the imaginary part is C's")
        << 3 << 0 << Komplex(3, -4) << Komplex(1, 0) << Komplex(26, 0);
    QTest::newRow("5 at 0 gives C") << 5 << 0 << Komplex() << c << c;
    QTest::newRow("605 with C = 0 stays")
        << 605 << 0 << Komplex(2, 3) << Komplex() << Komplex(2, 3);
    QTest::newRow("407 at 1: P = 1") << 407 << 0 << Komplex(1, 0) << Komplex() << Komplex(1, 0);
    QTest::newRow("1, twin 4: K W added") << 1 << 4 << Komplex(1, 1) << c << Komplex(0.35, 2.8);
    QTest::newRow("101, twin 9 and 10 have one main row")
        << 101 << 9 << Komplex(1, 1) << Komplex(1, 0) << Komplex(1.1, 3.3);
    QTest::newRow("101, twin 10") << 101 << 10 << Komplex(1, 1) << Komplex(1, 0)
                                  << Komplex(1.1, 3.3);
    QTest::newRow("8 has its own constant") << 8 << 0 << Komplex(1, 0) << c << Komplex(0, 0);
}

void TestKerntatsachen::ersterSchritt() {
    QFETCH(qint32, gleichung);
    QFETCH(qint32, zwilling);
    QFETCH(Komplex, start);
    QFETCH(Komplex, c);
    QFETCH(Komplex, z);
    m->g_ZwillingJa = zwilling;
    m->Max_Iterationen = 1;
    kern(gleichung, start, c);
    QCOMPARE(m->privateIterat, 2);
    QCOMPARE(m->OZaehler, 1);
    // The poles and powers push the start off the axes by 1e-8.
    QVERIFY2(std::abs(orbitpunkt(1) - z) < 1e-7,
             qPrintable(QStringLiteral("%1 %2").arg(m->OrbitX[1]).arg(m->OrbitY[1])));
}

void TestKerntatsachen::wurzeln_data() {
    QTest::addColumn<qint32>("gleichung");
    QTest::addColumn<qint32>("k");
    QTest::addColumn<int>("grad");
    QTest::newRow("109") << 109 << 10 << 3;
    QTest::newRow("309") << 309 << 10 << 5;
    QTest::newRow("110, K = 7") << 110 << 7 << 7;
    QTest::newRow("110, K = 0 counts as 10") << 110 << 0 << 10;
    for (int grad = 2; grad <= 9; ++grad) {
        QTest::addRow("%d", 100 * grad + 10) << 100 * grad + 10 << 10 << grad;
    }
}

// An orbit that settles settles on a root: of 1 for the odd numbers (with the derivative's factor
// 1), of the coupling constant for the even ones.
void TestKerntatsachen::wurzeln() {
    QFETCH(qint32, gleichung);
    QFETCH(qint32, k);
    QFETCH(int, grad);
    const bool einswurzel = gleichung % 2 != 0;
    const Komplex p = einswurzel ? Komplex(1, 0) : Komplex(0.3, 0.4);
    m->g_kPotenz = k;
    m->glg_Abbruch = 1;
    m->Koppl_x = p.real();
    m->Koppl_y = p.imag();
    m->wert_Abbruch = 1e9;
    m->Max_Iterationen = 200;
    const Komplex pixel(0.9, 0.7);
    kern(gleichung, einswurzel ? Komplex() : pixel, einswurzel ? pixel : Komplex(1, 0));
    QCOMPARE(m->privateIterat, 200);
    const Komplex z = orbitpunkt(m->OZaehler);
    QVERIFY2(std::abs(std::pow(z, grad) - p) < 1e-12,
             qPrintable(QStringLiteral("%1 %2").arg(z.real()).arg(z.imag())));
}

// The main value of a hypercomplex root is the mean of two complex cube roots of the constant.
void TestKerntatsachen::hyperwurzeln() {
    m->glg_Abbruch = 1;
    m->wert_Abbruch = 1e9;
    m->Max_Iterationen = 200;
    const Komplex c(1.0, 1.0), drehung = std::polar(1.0, 2 * M_PI / 3);
    int paare = 0;
    for (const Komplex& start : {Komplex(1, 0.1), Komplex(-2, 3), Komplex(0.2, -0.3)}) {
        for (const qint32 gleichung : {9, 10}) {
            kern(gleichung, gleichung == 10 ? start : Komplex(), gleichung == 10 ? c : start);
            QCOMPARE(m->privateIterat, 200);
            const Komplex wurzel = gleichung == 10 ? std::pow(c, 1.0 / 3) : Komplex(1, 0);
            for (int i = 0; i < 9; ++i) {
                const Komplex mitte =
                    0.5 * wurzel * (std::pow(drehung, i / 3) + std::pow(drehung, i % 3));
                if (std::abs(mitte - orbitpunkt(m->OZaehler)) < 1e-12) {
                    ++paare;
                    break;
                }
            }
        }
    }
    QCOMPARE(paare, 6);
}

void TestKerntatsachen::spiegelbild_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const qint32 n : {1, 3, 5, 101, 203, 305, 411, 501, 711, 109, 310, 910}) {
        QTest::addRow("%d", n) << n;
    }
}

// Equations with real coefficients give pictures that are symmetric about the real axis.
void TestKerntatsachen::spiegelbild() {
    QFETCH(qint32, gleichung);
    m->Koppl_y = 0.0;
    m->wert_Abbruch = 50.0;
    std::mt19937 zufall(3);
    std::uniform_real_distribution<double> koordinate(-1.5, 1.5);
    for (int i = 0; i < 100; ++i) {
        const Komplex start(koordinate(zufall), koordinate(zufall));
        const Komplex c(koordinate(zufall), koordinate(zufall));
        const double oben = kern(gleichung, start, c);
        const qint32 zaehler = m->privateIterat;
        QVERIFY(bitgleich(kern(gleichung, std::conj(start), std::conj(c)), oben));
        QCOMPARE(m->privateIterat, zaehler);
    }
}

void TestKerntatsachen::schrittgrenzen_data() {
    QTest::addColumn<qint32>("gleichung");
    QTest::addColumn<qint32>("zwilling");
    QTest::addColumn<double>("genau");
    QTest::addColumn<Komplex>("start");
    QTest::addColumn<Komplex>("c");
    QTest::addColumn<qint32>("punkte"); // of two steps
    QTest::addColumn<qint32>("zaehler");
    QTest::addColumn<bool>("abgebrochen");
    const auto zeile = [](const char* name, qint32 gleichung, qint32 zwilling, double genau,
                          Komplex start, Komplex c, qint32 punkte, qint32 zaehler, bool abbruch) {
        QTest::newRow(name) << gleichung << zwilling << genau << start << c << punkte << zaehler
                            << abbruch;
    };
    const Komplex eins(1, 0), schraeg(1, 1);
    const auto hoch2 = [](int n) { return std::ldexp(1.0, n); };
    zeile("605, D = i", 605, 0, 0.01, schraeg, {0, 1}, 0, 2, true);
    zeile("605, smallest real part", 605, 0, 0.01, schraeg, {0, 1 - hoch2(-53)}, 2, 3, false);
    zeile("605, real part of the twin's", 605, 1, 0.01, schraeg, {99.5, 0.5}, 0, 2, true);
    zeile("109, D imaginary: not counted", 109, 0, 0.01, {}, {0.5, 0.5}, 0, 1, true);
    zeile("5, |D|^2 below", 5, 0, 0.01, eins, {hoch2(-14) - 1, 0}, 0, 2, true);
    zeile("5, |D|^2 above", 5, 0, 0.01, eins, {hoch2(-13) - 1, 0}, 2, 3, false);
    zeile("5, |D|^2 below, twin above", 5, 1, 0.01, eins, {hoch2(-14) - 101, 0}, 0, 2, true);
    zeile("5, twin's below", 5, 1, 0.01, eins, {hoch2(-17) + 99, 0}, 0, 2, true);
    zeile("5, twin's above", 5, 1, 0.01, eins, {hoch2(-16) + 99, 0}, 2, 3, false);
    zeile("7, power above 1e290", 7, 0, 0.01, {136, 0}, {}, 0, 2, true);
    zeile("7, power below 1e290", 7, 0, 0.01, {135.9, 0}, {}, 1, 2, false);
    zeile("7, no logarithm", 7, 0, 0.0, {}, {}, 0, 2, true);
    zeile("7, main power fails, twin's not", 7, 1, 0.01, eins, {99, 0}, 2, 3, false);
    zeile("8, twin's power fails, main not", 8, 1, 0.01, eins, {300, 0}, 1, 3, true);
}

// Where a step is refused: just inside and just outside of each guard. The coupling is strong, so
// that main and twin part.
void TestKerntatsachen::schrittgrenzen() {
    QFETCH(qint32, gleichung);
    QFETCH(qint32, zwilling);
    QFETCH(double, genau);
    QFETCH(Komplex, start);
    QFETCH(Komplex, c);
    QFETCH(bool, abgebrochen);
    m->g_ZwillingJa = zwilling;
    m->g_Genauigkeit = genau;
    m->Koppl_x = 100.0;
    m->Koppl_y = 0.0;
    m->glg_Abbruch = 1;
    m->wert_Abbruch = 1e300;
    m->Max_Iterationen = 3;
    QCOMPARE(kern(gleichung, start, c) == 0.0, abgebrochen);
    QTEST(m->OZaehler, "punkte");
    QTEST(m->privateIterat, "zaehler");
}

void TestKerntatsachen::ganzePotenz_data() {
    QTest::addColumn<qint32>("n");
    for (const qint32 n : {0, 1, 2, 3, 7, 10, 25, -1, -2, -9, Groesste, Kleinste}) {
        QTest::addRow("%d", n) << n;
    }
}

void TestKerntatsachen::ganzePotenz() {
    QFETCH(qint32, n);
    std::mt19937 zufall(7);
    std::uniform_real_distribution<double> koordinate(-1.5, 1.5);
    for (int i = 0; i < 50; ++i) {
        const Komplex z = i == 0 ? Komplex() : Komplex(koordinate(zufall), koordinate(zufall));
        const Komplex soll = std::pow(z, n);
        const Komplex ist = hochGanz(z, n);
        QVERIFY(bitgleich(ist.real(), soll.real()) && bitgleich(ist.imag(), soll.imag()));
    }
}

void TestKerntatsachen::unsinn_data() {
    QTest::addColumn<qint32>("gleichung");
    for (const qint32 n : alleGleichungen()) {
        QTest::addRow("%d", n) << n;
    }
    QTest::newRow("no such member") << 999911;
}

// Absurd settings end with a count within the limit and a value that has a reason.
void TestKerntatsachen::unsinn() {
    QFETCH(qint32, gleichung);
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double werte[] = {0.0, -0.0, inf, -inf, qQNaN(), 1e300, 5e-324, -1.5, 0.3};
    constexpr qint32 zahlen[] = {-5, 0, 1, 3, 12, 1000000, Kleinste, Groesste};
    std::mt19937 zufall(11);
    const auto wert = [&] { return werte[zufall() % std::size(werte)]; };
    const auto zahl = [&] { return zahlen[zufall() % std::size(zahlen)]; };
    m->Orbitmodus = 0;
    for (int i = 0; i < 400; ++i) {
        m->g_ZwillingJa = i % 2 == 0 ? zahl() : i % 15;
        m->glg_Abbruch = i % 3 == 0 ? zahl() : i % 10;
        m->g_zycmax = zahl();
        m->g_Max_rgbFarben = zahl();
        m->g_kPotenz = zahl();
        m->kPotHg = zahl();
        m->kPotHu = zahl();
        m->Koppl_x = wert();
        m->Koppl_y = wert();
        m->g_Genauigkeit = wert();
        m->wert_Abbruch = i % 4 == 0 ? wert() : 400.0;
        m->Max_Iterationen = i % 4 == 1 ? -i : 40;
        const double rq = kern(gleichung, {wert(), wert()}, {wert(), wert()});
        const qint32 zaehler = m->privateIterat;
        QVERIFY(zaehler >= 1 && zaehler <= std::max(2, m->Max_Iterationen));
        QVERIFY(zaehler == std::max(2, m->Max_Iterationen) || rq == 0.0 || !(m->wert_Abbruch > rq));
    }
}

QTEST_MAIN(TestKerntatsachen)
#include "test_kerntatsachen.moc"
