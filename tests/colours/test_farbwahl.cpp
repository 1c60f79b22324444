#include "colours/Farbwahl.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <memory>

namespace {

constexpr Farbtripel Grund{10, 20, 40};

/// First matrix column of (10, 20, 40), by z_reduz: codes 11, 21, 31, 41.
constexpr std::array<std::array<Farbtripel, 4>, 12> ErsteSpalte{{
    {{{10, 20, 40}, {10, 10, 10}, {20, 20, 20}, {40, 40, 40}}},
    {{{245, 235, 215}, {245, 245, 245}, {235, 235, 235}, {215, 215, 215}}},
    {{{10, 40, 20}, {10, 20, 40}, {40, 40, 40}, {20, 20, 20}}},
    {{{20, 10, 40}, {20, 20, 20}, {10, 10, 10}, {10, 20, 40}}},
    {{{20, 40, 10}, {40, 40, 40}, {10, 20, 40}, {245, 245, 245}}},
    {{{40, 10, 20}, {10, 20, 40}, {40, 20, 10}, {40, 10, 20}}},
    {{{40, 20, 10}, {10, 40, 20}, {10, 40, 20}, {10, 20, 40}}},
    {{{245, 235, 40}, {20, 10, 40}, {10, 20, 40}, {20, 10, 40}}},
    {{{245, 20, 215}, {10, 20, 40}, {20, 10, 40}, {20, 40, 10}}},
    {{{10, 235, 215}, {40, 10, 20}, {20, 40, 10}, {10, 20, 40}}},
    {{{10, 10, 10}, {40, 20, 10}, {10, 20, 40}, {40, 20, 10}}},
    {{{20, 20, 20}, {20, 40, 10}, {40, 10, 20}, {10, 40, 20}}},
}};

// clang-format off
/// What the other columns start from, by z_reduz.
constexpr std::array<Farbtripel, 12> Reduziert{{
    {10, 20, 40}, {245, 235, 215}, {128, 20, 40}, {10, 128, 40}, {10, 20, 128}, {0, 20, 40},
    {10, 0, 40}, {10, 20, 0}, {255, 20, 40}, {10, 255, 40}, {10, 20, 255}, {10, 80, 40},
}};

constexpr quint8 nicht(quint8 b) { return static_cast<quint8>(255 - b); }

/// The other columns of a reduced colour.
struct Zelle {
    int code;
    Farbtripel (*aus)(quint8 r, quint8 g, quint8 b);
};
using Q = quint8;
constexpr std::array<Zelle, 12> WeitereSpalten{{
    {12, [](Q r, Q g, Q b) { return Farbtripel{r, b, g}; }},
    {13, [](Q r, Q g, Q b) { return Farbtripel{g, r, b}; }},
    {14, [](Q r, Q g, Q b) { return Farbtripel{g, b, r}; }},
    {22, [](Q r, Q g, Q b) { return Farbtripel{b, r, g}; }},
    {23, [](Q r, Q g, Q b) { return Farbtripel{b, g, r}; }},
    {24, [](Q r, Q g, Q b) { return Farbtripel{nicht(r), b, g}; }},
    {32, [](Q r, Q g, Q b) { return Farbtripel{g, nicht(r), b}; }},
    {33, [](Q r, Q g, Q b) { return Farbtripel{nicht(g), b, nicht(r)}; }},
    {34, [](Q r, Q g, Q b) { return Farbtripel{b, r, nicht(g)}; }},
    {42, [](Q r, Q g, Q b) { return Farbtripel{b, nicht(g), r}; }},
    {43, [](Q r, Q g, Q b) { return Farbtripel{nicht(b), r, g}; }},
    {44, [](Q r, Q g, Q b) { return Farbtripel{b, g, nicht(r)}; }},
}};
// clang-format on

} // namespace

Q_DECLARE_METATYPE(Farbtripel)

class TestFarbwahl : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void variantenAllerZellen();
    void andereCodes_data();
    void andereCodes();
    void index_data();
    void index();
    void palettenGrenzen_data();
    void palettenGrenzen();
    void grau();
    void tafelGleichEinzelfarbe();
    void kreuz_data();
    void kreuz();
    void palettenBefehle();
    void versatz_data();
    void versatz();

  private:
    std::unique_ptr<Mandelbrot> m;
};

void TestFarbwahl::init() {
    m = std::make_unique<Mandelbrot>();
    m->wahlPalette48 = 1;
    m->fillPaletteWave();
    m->fillPalette48(1, 0, 0, 0, 0, 0, 0);
    m->zahl_farbtab = 0;
    m->zahl_Matrix = 11;
    m->color_Offset = 0;
    m->it_Factor = 1.0;
}

void TestFarbwahl::variantenAllerZellen() {
    for (qint32 z = 0; z < 12; ++z) {
        const auto platz = static_cast<std::size_t>(z);
        for (std::size_t reihe = 0; reihe < 4; ++reihe) {
            const auto code = static_cast<qint64>(10 * reihe + 11);
            QCOMPARE(farbvariante(Grund, code, z), ErsteSpalte[platz][reihe]);
        }
        const auto [r, g, b] = Reduziert[platz];
        for (const Zelle& zelle : WeitereSpalten) {
            QCOMPARE(farbvariante(Grund, zelle.code, z), zelle.aus(r, g, b));
        }
    }
}

void TestFarbwahl::andereCodes_data() {
    QTest::addColumn<qint64>("code");
    QTest::addColumn<qint32>("z");
    QTest::addColumn<Farbtripel>("soll");
    constexpr Farbtripel komplement{245, 235, 215};
    QTest::newRow("0 acts as 11") << qint64{0} << 1 << komplement;
    QTest::newRow("10 acts as 11") << qint64{10} << 1 << komplement;
    QTest::newRow("column 5") << qint64{15} << 1 << Grund;
    QTest::newRow("row 5") << qint64{51} << 1 << Grund;
    QTest::newRow("matrix view") << qint64{1000} << 1 << Grund;
    QTest::newRow("unsigned maximum") << qint64{0xffffffff} << 1 << Grund;
    QTest::newRow("no place, first column") << qint64{21} << -1 << Grund;
    QTest::newRow("no place, other column") << qint64{13} << -1 << Farbtripel{20, 10, 40};
}

void TestFarbwahl::andereCodes() {
    QFETCH(const qint64, code);
    QFETCH(const qint32, z);
    QTEST(farbvariante(Grund, code, z), "soll");
}

void TestFarbwahl::index_data() {
    QTest::addColumn<quint32>("farben");
    QTest::addColumn<double>("versatz");
    QTest::addColumn<double>("faktor");
    QTest::addColumn<quint32>("nummer");
    QTest::addColumn<quint32>("soll");
    QTest::newRow("512: turns") << 512U << 0.0 << 1.0 << 512U << 0U;
    QTest::newRow("582: turns") << 582U << 0.0 << 1.0 << 582U << 0U;
    QTest::newRow("256: turns") << 256U << 0.0 << 1.0 << 256U << 0U;
    QTest::newRow("512: -1") << 512U << -1.0 << 1.0 << 0U << 511U;
    QTest::newRow("256: -1") << 256U << -1.0 << 1.0 << 0U << 255U;
    QTest::newRow("582: -1") << 582U << -1.0 << 1.0 << 0U << 519U;
    QTest::newRow("the sum is truncated") << 512U << 3.0 << 0.5 << 7U << 6U;
    QTest::newRow("towards zero") << 512U << -1.0 << 0.25 << 1U << 0U;
    // 2^32 - 1 halved, plus 10
    QTest::newRow("negative number, factor") << 512U << 10.0 << 0.5 << 0xffffffffU << 9U;
    // 1e12 = 232 * 2^32 + 3567587328
    QTest::newRow("low 32 bits") << 582U << 0.0 << 1e6 << 1000000U << 3567587328U % 582U;
    QTest::newRow("beyond 64 bits") << 582U << 0.0 << 1e300 << 7U << 0U;
    QTest::newRow("NaN") << 256U << 0.0 << std::numeric_limits<double>::quiet_NaN() << 1U << 0U;
}

void TestFarbwahl::index() {
    QFETCH(const quint32, farben);
    QFETCH(const double, versatz);
    QFETCH(const double, faktor);
    QFETCH(const quint32, nummer);
    const Indexregel regel{versatz, faktor, farben};
    QTEST(regel(nummer), "soll");
}

void TestFarbwahl::palettenGrenzen_data() {
    QTest::addColumn<qint32>("farbtab");
    QTest::addColumn<qint32>("farben");
    QTest::addColumn<qint32>("wahl48"); // after the lookup, 1 before it
    QTest::addColumn<quint32>("nummer");
    QTest::addColumn<QColor>("soll");
    QTest::newRow("spectral, place 0") << 0 << 512 << 1 << 340U << QColor(255, 0, 0);
    QTest::newRow("spectral, place 11") << 11 << 512 << 1 << 340U << QColor(0, 0, 0);
    QTest::newRow("negative table") << -7 << 512 << 1 << 340U << QColor(255, 0, 0);
    QTest::newRow("three colours, place 0") << 12 << 582 << 1 << 33U << QColor(1, 1, 255);
    QTest::newRow("three colours, place 11") << 23 << 582 << 1 << 0U << QColor(0, 0, 0);
    QTest::newRow("six colours are built") << 24 << 582 << 2 << 1U << QColor(255, 2, 0);
    QTest::newRow("six colours, place 1") << 25 << 582 << 2 << 0U << QColor(0, 255, 255);
    QTest::newRow("six colours, last table") << 35 << 582 << 2 << 441U << QColor(0, 0, 0);
    QTest::newRow("fixed, place 0") << 36 << 256 << 1 << 255U << QColor(253, 249, 52);
    QTest::newRow("fixed, last table") << 47 << 256 << 1 << 255U << QColor(249, 249, 249);
    // 2147483647 mod 12 is 7: red and green complemented
    QTest::newRow("huge table") << 2147483647 << 256 << 1 << 0U << QColor(252, 255, 3);
}

void TestFarbwahl::palettenGrenzen() {
    QFETCH(const qint32, farbtab);
    QFETCH(const quint32, nummer);
    m->zahl_farbtab = farbtab;
    QTEST(m->FarbeV1(nummer, 0, 0), "soll");
    QTEST(m->g_Max_rgbFarben, "farben");
    QTEST(m->wahlPalette48, "wahl48");
    // Back to the three colours through the lookup alone.
    m->zahl_farbtab = 12;
    QCOMPARE(m->FarbeV1(0, 0, 0), QColor(0, 0, 255));
    QCOMPARE(m->wahlPalette48, 1);
}

void TestFarbwahl::grau() {
    m->zahl_farbtab = 13; // complements the palette, not the grey
    QCOMPARE(m->FarbeV1(5, 33, 1), QColor(0, 0, 0));
    QCOMPARE(m->FarbeV1(5, 33, 256), QColor(255, 255, 255));
    QCOMPARE(m->FarbeV1(5, 33, 101), QColor(100, 100, 100));
    QCOMPARE(m->FarbeV1(5, 33, 257), QColor(0, 0, 0)); // low eight bits
    QCOMPARE(m->g_Max_rgbFarben, 582);
}

void TestFarbwahl::tafelGleichEinzelfarbe() {
    m->color_Offset = 500;
    m->it_Factor = 3.7;
    for (const qint32 farbtab : {3, 14, 26, 41}) {
        m->zahl_farbtab = farbtab;
        std::array<QRgb, HauptFarben> tafel{};
        farbtafel(*m, 33, tafel);
        const Indexregel regel = indexregel(*m);
        for (quint32 nummer = 0; nummer < 700; nummer += 9) {
            QCOMPARE(tafel[regel(nummer)], m->FarbeV1(nummer, 33, 0).rgba());
        }
    }
}

void TestFarbwahl::kreuz_data() {
    QTest::addColumn<quint32>("marke");
    QTest::addColumn<QColor>("soll");
    const QColor weiss(255, 255, 255);
    QTest::newRow("below") << 100U << weiss;
    QTest::newRow("none") << 0U << weiss;
    QTest::newRow("centre cross 1") << 101U << QColor(255, 0, 0);
    QTest::newRow("centre cross 2") << 102U << QColor(0, 255, 0);
    QTest::newRow("other") << 103U << QColor(0, 0, 0);
    QTest::newRow("zero cross 1") << 201U << weiss;
    QTest::newRow("zero cross 2") << 202U << QColor(0, 0, 0);
    QTest::newRow("zero grid 1") << 301U << QColor(128, 128, 128);
    QTest::newRow("zero grid 2") << 302U << QColor(128, 128, 128);
    QTest::newRow("centre grid 1") << 401U << QColor(255, 128, 128);
    QTest::newRow("centre grid 2") << 402U << QColor(128, 255, 128);
    QTest::newRow("above") << 403U << weiss;
}

void TestFarbwahl::kreuz() {
    QFETCH(const quint32, marke);
    QTEST(m->FarbeKreuze(marke), "soll");
}

void TestFarbwahl::palettenBefehle() {
    struct Fall {
        void (*befehl)(Mandelbrot&);
        qint32 vorher, nachher, anforderung, wahl48;
        const char* zahl;
    };
    constexpr qint32 unberuehrt = 3;
    const auto drei = [](Mandelbrot& a) { a.Farbtabelle3Farben(); };
    const auto sechs = [](Mandelbrot& a) { a.Farbtabelle6Farben(); };
    const auto laden = [](Mandelbrot& a) { a.FarbtabelleWaveLaden(); };
    const auto an = [](Mandelbrot& a) { a.FarbtabelleWaveAn(); };
    const auto feld = [](Mandelbrot& a) { a.TabelleArray(); };
    const auto vor = [](Mandelbrot& a) { a.zahl_farbtabPlusM(1); };
    const auto zurueck = [](Mandelbrot& a) { a.zahl_farbtabPlusM(-1); };
    const auto weit = [](Mandelbrot& a) { a.zahl_farbtabPlusM(2147483647); };
    for (const Fall& f : std::initializer_list<Fall>{
             {drei, 11, 12, 0, 1, "2"},
             {drei, 23, 23, 0, 1, "2"},
             {drei, 24, 12, 0, 1, "2"},
             {sechs, 23, 24, 0, 2, "3"},
             {sechs, 35, 35, 0, 2, "3"},
             {sechs, 36, 24, 0, 2, "3"},
             {laden, 12, 0, unberuehrt, 9, "1"},
             {an, 11, 11, 0, 9, "1"},
             {an, 47, 0, 0, 9, "1"},
             {feld, 40, 36, unberuehrt, 9, "4"},
             {vor, 47, 0, 0, 9, "1"},
             {vor, 35, 36, 0, 9, "4"},
             {vor, 11, 12, 0, 9, "2"},
             {zurueck, 0, 47, 0, 9, "4"},
             {zurueck, 24, 23, 0, 9, "2"},
             {weit, 2147483647, 0, 0, 9, "1"},
         }) {
        m->zahl_farbtab = f.vorher;
        m->g_RechnenJa = unberuehrt;
        m->wahlPalette48 = 9;
        m->g_PalettenZahl = "?";
        f.befehl(*m);
        QCOMPARE(m->zahl_farbtab, f.nachher);
        QCOMPARE(m->g_RechnenJa, f.anforderung);
        QCOMPARE(m->wahlPalette48, f.wahl48);
        QCOMPARE(m->g_PalettenZahl, QString(f.zahl));
    }
    m->colormapWave.fill(0);
    m->FarbtabelleWaveAn();
    QCOMPARE(m->colormapWave[0], quint8{0});
    m->FarbtabelleWaveLaden();
    QCOMPARE(m->colormapWave[0], quint8{97});
}

void TestFarbwahl::versatz_data() {
    QTest::addColumn<qint32>("vorher");
    QTest::addColumn<int>("schritt");
    QTest::addColumn<qint32>("nachher");
    QTest::newRow("wraps") << 500 << 25 << 13;
    QTest::newRow("equal to the size is kept") << 487 << 25 << 512;
    QTest::newRow("negative wraps") << 2 << -5 << 509;
    QTest::newRow("one turn only") << 0 << 2000 << 1488;
    QTest::newRow("one turn back only") << 0 << -2000 << -1488;
    QTest::newRow("sum beyond 32 bits") << 2147483647 << 2147483647 << 2147483647;
    QTest::newRow("sum below 32 bits") << -2147483647 << -2147483647 << -2147483647 - 1;
}

void TestFarbwahl::versatz() {
    QFETCH(const qint32, vorher);
    QFETCH(const int, schritt);
    m->g_Max_rgbFarben = 512;
    m->g_RechnenJa = 3;
    m->color_OffsetSlider(vorher);
    QCOMPARE(m->g_RechnenJa, 0);
    m->g_RechnenJa = 3;
    m->color_OffsetPlusM(schritt);
    QTEST(m->color_Offset, "nachher");
    QCOMPARE(m->g_RechnenJa, 0);
}

QTEST_MAIN(TestFarbwahl)
#include "test_farbwahl.moc"
