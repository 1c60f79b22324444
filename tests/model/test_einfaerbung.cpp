#include "model/Einfaerbung.h"
#include "Testbasis.h"

#include <memory>

namespace {

constexpr double Unendlich = std::numeric_limits<double>::infinity();
constexpr double KeineZahl = std::numeric_limits<double>::quiet_NaN();
constexpr QRgb Vorher = qRgb(1, 2, 3); ///< what the image showed before the pass
constexpr QRgb Schwarz = qRgb(0, 0, 0);
constexpr QRgb Weiss = qRgb(255, 255, 255);
constexpr qint32 Grenze = 100;

/// Colour of the row that a colour number falls on in the test's palette.
QRgb farbeVon(qint64 nummer) {
    const auto reihe = static_cast<int>(((nummer % 512) + 512) % 512);
    return qRgb(reihe % 256, reihe / 256, 77);
}

void spalten() {
    QTest::addColumn<int>("variante");
    QTest::addColumn<double>("v");
    QTest::addColumn<qint32>("n");
    QTest::addColumn<QRgb>("soll");
}

void zeile(const char* name, int variante, double v, qint32 n, QRgb soll) {
    QTest::newRow(name) << variante << v << n << soll;
}

} // namespace

class TestEinfaerbung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void divergent_data();
    void divergent();
    void konvergent_data();
    void konvergent();
    void faktorUndVersatz();
    void groessen_data();
    void groessen();
    void marken();
    void matrix();
    void matrixInnen();
    void streifen();

  private:
    void pruefe(qint32& variantenfeld);
    QRgb einPixel(double v, qint32 n);
    void matrixLauf();

    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
    Bildlauf lauf;
    QImage bild;
};

void TestEinfaerbung::init() {
    for (std::size_t i = 0; i < 512; ++i) {
        const QRgb f = farbeVon(static_cast<qint64>(i));
        m->colormapWave[3 * i] = static_cast<quint8>(qRed(f));
        m->colormapWave[3 * i + 1] = static_cast<quint8>(qGreen(f));
        m->colormapWave[3 * i + 2] = static_cast<quint8>(qBlue(f));
    }
    m->zahl_farbtab = 0;
    m->zahl_Matrix = 11;
    m->color_Offset = 0;
    m->it_Factor = 1.0;
    m->div_Factor = 50.0;
    m->konv_Factor = 700.0;
    m->wert_Abbruch = 4.0;
    m->Max_Iterationen = Grenze;
    m->rechen_VarianteDiv = 2;
    m->rechen_VarianteKonv = 0;
    m->g_halbesBild = 0;
    for (auto& reihe : m->ImageIntegers) {
        reihe.fill(0);
    }
    lauf = {};
    lauf.SpaltenKLGross = 40;
    lauf.ZeilenKLGross = 30;
    bild = QImage(60, 30, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Vorher);
}

void TestEinfaerbung::pruefe(qint32& variantenfeld) {
    QFETCH(const int, variante);
    QFETCH(const double, v);
    QFETCH(const qint32, n);
    variantenfeld = variante;
    QTEST(einPixel(v, n), "soll");
}

QRgb TestEinfaerbung::einPixel(double v, qint32 n) {
    m->ImageDoubles[8][5] = v;
    m->ImageIntegers[8][5] = n;
    einfaerben(*m, lauf, bild);
    return bild.pixel(5, 7);
}

void TestEinfaerbung::divergent_data() {
    spalten();
    zeile("0 black", 0, 20.0, 7, Schwarz);
    zeile("1 white", 1, 20.0, 7, Weiss);
    zeile("negative: the count", -3, 20.0, 7, farbeVon(7));
    // Colour numbers worked out by hand for v = 20, n = 7, factor 50, bailout value 4.
    constexpr std::array<int, 17> nummern{7,   14, 35,   70,    350, 0,  149, 49, 24,
                                          299, 45, 2500, 10000, 40,  31, 14,  7};
    for (std::size_t i = 0; i < nummern.size(); ++i) {
        QTest::addRow("%d", static_cast<int>(i) + 2)
            << static_cast<int>(i) + 2 << 20.0 << 7 << farbeVon(nummern[i]);
    }
    zeile("19 as 8", 19, 20.0, 7, farbeVon(149));
    zeile("999 as 8", 999, 20.0, 7, farbeVon(149));
    zeile("1000 as 8", 1000, 20.0, 7, farbeVon(149));
    zeile("last below the limit", 2, 20.0, Grenze - 1, farbeVon(99));
    zeile("negative number", 8, 0.5, 7, farbeVon(-34));
    // What no 32-bit number holds is -2^31, whose row is 0.
    zeile("logarithm of 0", 8, 0.0, 0, farbeVon(0));
    zeile("logarithm of a negative", 8, -1.0, 3, farbeVon(0));
    zeile("reciprocal of 0", 13, 0.0, 0, farbeVon(0));
    zeile("NaN", 7, KeineZahl, 3, farbeVon(0));
    zeile("infinite", 16, Unendlich, 3, farbeVon(0));
    zeile("sine of infinity", 12, Unendlich, 3, farbeVon(0));
    zeile("negative count", 5, 1.0, std::numeric_limits<qint32>::min() + 1, farbeVon(10));
}

void TestEinfaerbung::divergent() { pruefe(m->rechen_VarianteDiv); }

void TestEinfaerbung::konvergent_data() {
    spalten();
    zeile("0 black", 0, 0.31, Grenze, Schwarz);
    zeile("negative black", -1, 0.31, Grenze, Schwarz);
    zeile("1 white", 1, 0.31, Grenze, Weiss);
    // Colour numbers worked out by hand for v = 0.31, n = 100, factor 700.
    constexpr std::array<int, 11> nummern{70000, 217,    1085, 2170, 21700, -819,
                                          -8198, -81982, -81,  2258, 14};
    for (std::size_t i = 0; i < nummern.size(); ++i) {
        QTest::addRow("%d", static_cast<int>(i) + 2)
            << static_cast<int>(i) + 2 << 0.31 << Grenze << farbeVon(nummern[i]);
    }
    zeile("13 as 4", 13, 0.31, Grenze, farbeVon(1085));
    zeile("999 as 4", 999, 0.31, Grenze, farbeVon(1085));
    zeile("1000 draws nothing", 1000, 0.31, Grenze, Vorher);
    zeile("1001 one palette colour", 1001, 0.31, Grenze, farbeVon(1));
    zeile("1005 one palette colour", 1005, 0.31, Grenze, farbeVon(5));
    zeile("above the limit", 3, 0.31, Grenze + 1, farbeVon(217));
    zeile("logarithm of 0", 7, 0.0, Grenze, farbeVon(0));
    zeile("NaN", 12, KeineZahl, Grenze, farbeVon(0));
}

void TestEinfaerbung::konvergent() { pruefe(m->rechen_VarianteKonv); }

void TestEinfaerbung::faktorUndVersatz() {
    m->it_Factor = 2.5;
    m->color_Offset = -30;
    QCOMPARE(einPixel(0.0, 7), farbeVon(-12)); // -12.5 truncated
    // A negative colour number counts as unsigned before the factor: 2.5 * (2^32 - 34) - 30.
    m->rechen_VarianteDiv = 8;
    QCOMPARE(einPixel(0.5, 7), farbeVon(10737418240 - 85 - 30));
    // The inside's fixed colour is turned as well.
    m->rechen_VarianteKonv = 1005;
    QCOMPARE(einPixel(0.5, Grenze), farbeVon(-17));
    QCOMPARE(m->g_Max_rgbFarben, 512);
}

void TestEinfaerbung::groessen_data() {
    QTest::addColumn<QSize>("groesse"); // of the stored picture
    QTest::addColumn<QSize>("bildgroesse");
    QTest::addColumn<QSize>("gefaerbt");
    QTest::newRow("smaller than the image") << QSize(40, 20) << QSize(60, 30) << QSize(40, 20);
    QTest::newRow("larger than the image") << QSize(400, 200) << QSize(9, 8) << QSize(9, 8);
    QTest::newRow("beyond the buffers")
        << QSize(5000, 5000) << QSize(1300, 1250) << QSize(1200, 1200);
    QTest::newRow("negative") << QSize(-5, -5) << QSize(9, 8) << QSize(0, 0);
}

void TestEinfaerbung::groessen() {
    QFETCH(const QSize, groesse);
    QFETCH(const QSize, bildgroesse);
    QFETCH(const QSize, gefaerbt);
    lauf.SpaltenKLGross = groesse.width();
    lauf.ZeilenKLGross = groesse.height();
    bild = QImage(bildgroesse, QImage::Format_ARGB32_Premultiplied);
    bild.fill(Vorher);
    einfaerben(*m, lauf, bild);
    QImage soll(bildgroesse, QImage::Format_ARGB32_Premultiplied);
    soll.fill(Vorher);
    for (int y = 0; y < gefaerbt.height(); ++y) {
        for (int x = 0; x < gefaerbt.width(); ++x) {
            soll.setPixel(x, y, farbeVon(0));
        }
    }
    QCOMPARE(bild, soll);
}

void TestEinfaerbung::marken() {
    auto& reihe = m->ImageGitterIntegers[8];
    reihe[4] = 101;
    reihe[5] = -1;
    reihe[6] = 999;
    einfaerben(*m, lauf, bild); // nobody asks for lines
    QCOMPARE(bild.pixel(4, 7), farbeVon(0));
    for (const bool linien : {true, false}) {
        lauf.LinienRechnen = linien;
        m->g_halbesBild = linien ? 0 : 1;
        bild.fill(Vorher);
        einfaerben(*m, lauf, bild);
        QCOMPARE(bild.pixel(3, 7), farbeVon(0));
        QCOMPARE(bild.pixel(4, 7), qRgb(255, 0, 0));
        QCOMPARE(bild.pixel(5, 7), Vorher);
        QCOMPARE(bild.pixel(6, 7), Weiss);
    }
    reihe.fill(0);
}

void TestEinfaerbung::matrixLauf() {
    m->zahl_Matrix = 1000;
    m->rechen_VarianteDiv = 8;
    lauf.Matrix = true;
    lauf.SpaltenKL = 10;
    lauf.ZeilenKL = 7;
    std::tie(lauf.Spalten1, lauf.Spalten2, lauf.Spalten3) = std::tuple(10, 20, 30);
    std::tie(lauf.Zeilen1, lauf.Zeilen2, lauf.Zeilen3) = std::tuple(7, 14, 21);
    for (std::size_t y = 0; y < 7; ++y) {
        for (std::size_t x = 0; x < 10; ++x) {
            m->ImageViertelDoubles[y + 1][x] = 2.0 + static_cast<double>(10 * y + x);
            m->ImageViertelIntegers[y + 1][x] = 3;
        }
    }
    m->ImageViertelIntegers[5][6] = Grenze;
    m->ImageViertelGitterIntegers[2][3] = 402;
    lauf.LinienRechnen = true;
}

void TestEinfaerbung::matrix() {
    matrixLauf();
    m->zahl_farbtab = 3;
    einfaerben(*m, lauf, bild);
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 4; ++c) {
            const auto code = static_cast<quint32>(10 * (r + 1) + c + 1);
            for (int y = 0; y < 7; ++y) {
                for (int x = 0; x < 10; ++x) {
                    const auto nummer = static_cast<quint32>(50.0 * std::log(2.0 + 10 * y + x));
                    QRgb soll = m->FarbeV1(nummer, code, 0).rgba();
                    if (x == 3 && y == 1) {
                        soll = qRgb(128, 255, 128);
                    } else if (x == 6 && y == 4) {
                        soll = Schwarz;
                    }
                    QCOMPARE(bild.pixel(10 * c + x, 7 * r + y), soll);
                }
            }
        }
    }
    QCOMPARE(bild.pixel(40, 0), Vorher);
    QCOMPARE(bild.pixel(0, 28), Vorher);
}

void TestEinfaerbung::matrixInnen() {
    matrixLauf();
    m->rechen_VarianteKonv = 1005; // unchanged by the cell's colour variant
    einfaerben(*m, lauf, bild);
    QCOMPARE(bild.pixel(6, 4), farbeVon(5));
    QCOMPARE(bild.pixel(36, 25), farbeVon(5));
    // A cell larger than its buffer, and cells beyond the image or with absurd borders.
    lauf.SpaltenKL = 2147483647;
    lauf.ZeilenKL = 2147483647;
    lauf.Spalten2 = 2147483647;
    lauf.Spalten3 = -7;
    lauf.Zeilen3 = 2147483647;
    bild.fill(Vorher);
    einfaerben(*m, lauf, bild);
    QCOMPARE(bild.pixel(0, 0), farbeVon(34));
    QCOMPARE(bild.pixel(10, 0), m->FarbeV1(34, 12, 0).rgba());
}

void TestEinfaerbung::streifen() {
    m->zahl_Matrix = 13; // the strip shows the variant in use: green and red exchanged
    m->color_Offset = 250;
    palettenstreifen(*m, lauf, bild);
    for (int y = 0; y < 30; ++y) {
        const QRgb f = farbeVon(250 + std::max(y - 1, 0));
        const QRgb soll = qRgb(qGreen(f), qRed(f), qBlue(f));
        QCOMPARE(bild.pixel(41, y), Vorher);
        QCOMPARE(bild.pixel(42, y), soll);
        QCOMPARE(bild.pixel(59, y), soll);
    }
    m->zahl_farbtab = 40;
    lauf.SpaltenKLGross = 2147483647;
    lauf.ZeilenKLGross = 2147483647;
    palettenstreifen(*m, lauf, bild);
    QCOMPARE(m->g_Max_rgbFarben, 256);
}

QTEST_MAIN(TestEinfaerbung)
#include "test_einfaerbung.moc"
