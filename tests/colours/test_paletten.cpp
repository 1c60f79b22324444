#include "colours/Paletten.h"
#include "Mandelbrot.h"
#include "Testbasis.h"

#include <algorithm>
#include <memory>

namespace {
using Farbe = std::array<int, 3>;
using Hauptfarben = std::array<quint32, 6>;

Farbe farbeAus(std::span<const quint8> palette, int index) {
    const auto i = 3 * static_cast<std::size_t>(index);
    return {palette[i], palette[i + 1], palette[i + 2]};
}
} // namespace

Q_DECLARE_METATYPE(Farbe)
Q_DECLARE_METATYPE(Hauptfarben)

class TestPaletten : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void hauptfarben_data();
    void hauptfarben();
    void andereKennzahlAendertNichts();
    void spektrum_data();
    void spektrum();
    void festeAnker();
    void festerVerlauf();

  private:
    std::unique_ptr<Mandelbrot> m = std::make_unique<Mandelbrot>();
};

void TestPaletten::hauptfarben_data() {
    QTest::addColumn<quint32>("kontr");
    QTest::addColumn<Hauptfarben>("wunsch");
    QTest::addColumn<int>("index");
    QTest::addColumn<Farbe>("soll");
    const auto zeile = [](const char* name, quint32 kontr, Hauptfarben wunsch, int index,
                          Farbe soll) { QTest::newRow(name) << kontr << wunsch << index << soll; };
    constexpr Hauptfarben ohne{};

    zeile("three: first", 1, ohne, 0, {0, 0, 255});
    zeile("three: first step", 1, ohne, 33, {1, 1, 255});
    zeile("three: end of ramp", 1, ohne, 264, {232, 232, 255});
    zeile("three: first of B", 1, ohne, 265, {255, 255, 255});
    zeile("three: first step down", 1, ohne, 298, {254, 254, 255});
    zeile("three: end of second ramp", 1, ohne, 529, {23, 23, 255});
    zeile("three: first of C", 1, ohne, 530, {0, 0, 160});
    zeile("three: last", 1, ohne, 581, {0, 0, 160});

    // From (128, 64, 64) to white only green and blue get a step; they reach 255 after 191 steps
    // and snap there.
    zeile("three: before the snap", 1, {16, 47}, 33 + 189, {128, 254, 254});
    zeile("three: snapped", 1, {16, 47}, 33 + 191, {128, 255, 255});
    zeile("three: snapped at the lower end", 1, {45, 40}, 33 + 192, {0, 0, 0});

    zeile("row beyond the table", 1, {100}, 0, {255, 255, 255});
    zeile("row below the table", 1, {200}, 0, {255, 128, 128});
    zeile("low eight bits of a row", 1, {0x1200 + 13}, 0, {0, 128, 192});
    zeile("row 0 through the low bits", 1, {256}, 0, {255, 128, 128});

    zeile("six: A", 2, ohne, 0, {255, 0, 0});
    zeile("six: first step", 2, ohne, 1, {255, 2, 0});
    zeile("six: end of first ramp", 2, ohne, 101, {255, 202, 0});
    zeile("six: first of B", 2, ohne, 102, {255, 255, 0});
    zeile("six: towards C", 2, ohne, 135, {253, 255, 0});
    zeile("six: remainder left of C", 2, ohne, 236, {51, 255, 0});
    zeile("six: towards D carries on", 2, ohne, 237, {51, 255, 1});
    zeile("six: remainder left of D", 2, ohne, 338, {51, 255, 102});
    zeile("six: towards E carries on", 2, ohne, 339, {51, 253, 102});
    zeile("six: remainder left of E", 2, ohne, 440, {51, 51, 102});
    zeile("six: first of E", 2, ohne, 441, {0, 0, 255});
    zeile("six: towards F", 2, ohne, 474, {2, 0, 255});
    zeile("six: last", 2, ohne, 581, {216, 0, 255});
    // From grey 192 to grey 128 the step is 0, then +1 to white, which is passed after 63 steps.
    zeile("six: snapped after a carry", 2, {0, 45, 43, 47, 0, 0}, 236 + 70, {255, 255, 255});
    zeile("six: F chosen", 2, {0, 0, 0, 0, 0, 18}, 581, {0, 216, 39});
}

void TestPaletten::hauptfarben() {
    QFETCH(const quint32, kontr);
    QFETCH(const Hauptfarben, wunsch);
    QFETCH(const int, index);
    m->fillPalette48(kontr, wunsch[0], wunsch[1], wunsch[2], wunsch[3], wunsch[4], wunsch[5]);
    QTEST(farbeAus(m->Palette48, index), "soll");
}

void TestPaletten::andereKennzahlAendertNichts() {
    m->Palette48.fill(77);
    m->fillPalette48(3, 1, 2, 3, 4, 5, 6);
    QVERIFY(std::ranges::all_of(m->Palette48, [](quint8 b) { return b == 77; }));
}

void TestPaletten::spektrum_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<Farbe>("soll");
    // 380 + index / 1.28 nm
    QTest::newRow("380.0, dimmed to 0.3") << 0 << Farbe{97, 0, 97};
    QTest::newRow("419.8, still dimmed") << 51 << Farbe{106, 0, 254};
    QTest::newRow("420.6, full") << 52 << Farbe{103, 0, 255};
    QTest::newRow("439.4, end of violet") << 76 << Farbe{6, 0, 255};
    QTest::newRow("440.2, begin of blue") << 77 << Farbe{0, 2, 255};
    QTest::newRow("490.2, begin of cyan") << 141 << Farbe{0, 255, 253};
    QTest::newRow("509.7, end of cyan") << 166 << Farbe{0, 255, 9};
    QTest::newRow("510.5, begin of green") << 167 << Farbe{4, 255, 0};
    QTest::newRow("580.0, yellow") << 256 << Farbe{255, 255, 0};
    QTest::newRow("614.4, orange") << 300 << Farbe{255, 139, 0};
    QTest::newRow("645.6, red") << 340 << Farbe{255, 0, 0};
    QTest::newRow("700.3, dimmed again") << 410 << Farbe{254, 0, 0};
    QTest::newRow("779.2, last") << 511 << Farbe{99, 0, 0};
}

void TestPaletten::spektrum() {
    QFETCH(const int, index);
    m->colormapWave.fill(1);
    m->fillPaletteWave();
    QTEST(farbeAus(m->colormapWave, index), "soll");
}

void TestPaletten::festeAnker() {
    struct Anker {
        int index;
        Farbe farbe;
    };
    // clang-format off
    constexpr std::array<Anker, 17> anker{{
        {0, {3, 0, 3}}, {16, {53, 0, 36}}, {32, {66, 0, 41}}, {48, {74, 2, 48}}, {64, {88, 0, 48}},
        {96, {109, 2, 51}}, {112, {124, 2, 50}}, {128, {136, 18, 51}}, {144, {145, 38, 52}},
        {160, {159, 62, 52}}, {176, {167, 78, 52}}, {192, {182, 108, 52}}, {208, {200, 142, 52}},
        {224, {213, 172, 54}}, {240, {230, 204, 52}}, {248, {244, 230, 52}}, {255, {253, 249, 52}},
    }};
    // clang-format on
    for (const Anker& a : anker) {
        QCOMPARE(farbeAus(festpalette(), a.index), a.farbe);
    }
}

void TestPaletten::festerVerlauf() {
    int gruenWechsel = 0;
    int blauWechsel = 0;
    for (int i = 1; i < 256; ++i) {
        const Farbe vor = farbeAus(festpalette(), i - 1);
        const Farbe jetzt = farbeAus(festpalette(), i);
        QVERIFY2(jetzt[0] >= vor[0] && jetzt[0] - vor[0] <= 4, qPrintable(QString::number(i)));
        QVERIFY(i > 116 || jetzt[1] == 0 || jetzt[1] == 2);
        QVERIFY(i <= 116 || (jetzt[1] >= vor[1] && jetzt[1] - vor[1] <= 5));
        QVERIFY(i < 48 || (jetzt[2] >= 48 && jetzt[2] <= 54));
        QVERIFY(std::abs(jetzt[2] - vor[2]) <= 5);
        gruenWechsel += i <= 116 && jetzt[1] != vor[1] ? 1 : 0;
        blauWechsel += std::abs(jetzt[2] - vor[2]) == 2 ? 1 : 0;
    }
    QVERIFY(gruenWechsel > 20);
    QVERIFY(blauWechsel > 40);
}

QTEST_MAIN(TestPaletten)
#include "test_paletten.moc"
