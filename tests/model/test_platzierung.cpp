#include "model/Platzierung.h"
#include "Testbasis.h"

class TestPlatzierung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void plaetze_data();
    void plaetze();
    void modus_data();
    void modus();
};

void TestPlatzierung::plaetze_data() {
    QTest::addColumn<int>("modus");
    QTest::addColumn<QList<int>>("masse"); // W, H, pX, pY
    QTest::addColumn<QList<int>>("rechteck");
    const QList<int> m{401, 301, 100, 75};
    QTest::newRow("full") << 0 << m << QList<int>{0, 401, 0, 301};
    QTest::newRow("quarter 1") << 1 << m << QList<int>{0, 200, 0, 150};
    QTest::newRow("quarter 2") << 2 << m << QList<int>{200, 401, 0, 150};
    QTest::newRow("quarter 3") << 3 << m << QList<int>{0, 200, 150, 301};
    QTest::newRow("quarter 4") << 4 << m << QList<int>{200, 401, 150, 301};
    QTest::newRow("preview of the full picture") << 10 << m << QList<int>{301, 401, 0, 75};
    QTest::newRow("preview 1") << 11 << m << QList<int>{0, 100, 0, 75};
    QTest::newRow("preview 2") << 12 << m << QList<int>{200, 300, 0, 75};
    QTest::newRow("preview 3") << 13 << m << QList<int>{0, 100, 150, 225};
    QTest::newRow("preview 4") << 14 << m << QList<int>{200, 300, 150, 225};
    QTest::newRow("preview top left") << 100 << m << QList<int>{0, 100, 0, 75};
    QTest::newRow("preview bottom left") << 300 << m << QList<int>{0, 100, 226, 301};
    QTest::newRow("preview bottom right") << 400 << m << QList<int>{301, 401, 226, 301};
    const QList<int> gross{401, 301, 900, 2000000000};
    QTest::newRow("preview wider than the picture") << 10 << gross << QList<int>{0, 401, 0, 301};
    QTest::newRow("large preview in quarter 4") << 14 << gross << QList<int>{200, 401, 150, 301};
    QTest::newRow("large preview bottom right") << 400 << gross << QList<int>{0, 401, 0, 301};
    QTest::newRow("unknown mode") << 7 << m << QList<int>{0, 200, 0, 150};
    QTest::newRow("negative mode") << -3 << m << QList<int>{0, 401, 0, 301};
}

void TestPlatzierung::plaetze() {
    QFETCH(int, modus);
    QFETCH(QList<int>, masse);
    QFETCH(QList<int>, rechteck);
    const Rechteck r =
        platzierung(modus, {masse[0], masse[1], masse[0] / 2, masse[1] / 2, masse[2], masse[3]});
    QCOMPARE((QList<int>{int(r.x0), int(r.x1), int(r.y0), int(r.y1)}), rechteck);
}

void TestPlatzierung::modus_data() {
    QTest::addColumn<int>("vorher");
    QTest::addColumn<int>("anforderung");
    QTest::addColumn<int>("nachher");
    QTest::newRow("computing leaves a quarter") << 2 << 1 << 2;
    QTest::newRow("computing ends a preview") << 12 << 1 << 2;
    QTest::newRow("computing ends the full preview") << 10 << 1 << 0;
    QTest::newRow("computing ends a corner preview") << 300 << 1 << 0;
    QTest::newRow("changed parameters make a preview") << 3 << 3 << 13;
    QTest::newRow("changed parameters, full picture") << 0 << 3 << 10;
    QTest::newRow("a preview stays one") << 14 << 3 << 14;
    QTest::newRow("a corner preview stays one") << 400 << 3 << 400;
    QTest::newRow("recolouring changes nothing") << 11 << 0 << 11;
    QTest::newRow("computing with the orbit changes nothing") << 11 << 2 << 11;
    QTest::newRow("no preview of an unknown mode") << 5 << 3 << 5;
}

void TestPlatzierung::modus() {
    QFETCH(int, vorher);
    QFETCH(int, anforderung);
    QTEST(modusNachAnforderung(vorher, anforderung), "nachher");
}

QTEST_GUILESS_MAIN(TestPlatzierung)
#include "test_platzierung.moc"
