#include "Bildprobe.h"

class TestMaus : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void annahme_data();
    void annahme();
    void zoomen_data();
    void zoomen();
    void grosserWidget();
    void matrixzelle_data();
    void matrixzelle();
    void orbitpunkt();
};

void TestMaus::annahme_data() {
    QTest::addColumn<int>("modus");
    QTest::addColumn<QPoint>("stelle");
    QTest::addColumn<bool>("angenommen");
    const QPoint obenLinks(350, 100);
    const QPoint obenRechts(450, 100);
    const QPoint untenLinks(100, 301);
    const QPoint mitte(400, 300);
    QTest::newRow("full picture") << 0 << untenLinks << true;
    QTest::newRow("quarter 1 inside") << 1 << obenLinks << true;
    QTest::newRow("quarter 1 right of it") << 1 << obenRechts << false;
    QTest::newRow("quarter 1 below") << 1 << untenLinks << false;
    QTest::newRow("quarter 2 inside") << 2 << obenRechts << true;
    QTest::newRow("quarter 2 left of it") << 2 << obenLinks << false;
    QTest::newRow("quarter 3 inside") << 3 << untenLinks << true;
    QTest::newRow("quarter 3 above") << 3 << obenLinks << false;
    QTest::newRow("quarter 4 outside") << 4 << untenLinks << false;
    for (const int modus : {1, 2, 3, 4}) {
        QTest::addRow("middle of quarter %d", modus) << modus << mitte << true;
    }
    for (const int modus : {10, 11, 12, 13, 14, 100, 300, 400}) {
        QTest::addRow("preview %d", modus) << modus << obenLinks << false;
    }
}

void TestMaus::annahme() {
    QFETCH(int, modus);
    QFETCH(QPoint, stelle);
    QFETCH(bool, angenommen);
    const auto m = bildprobe(800, 600);
    m->g_halbesBild = modus;
    m->g_Bildverhaeltnis = 0.123;
    m->g_RechnenJa = 0;
    m->BildbreiteNeueEckpunkte();
    QStringList folge;
    connect(m.get(), &Mandelbrot::WerteAktualisierenSignal, this, [&] { folge << "Werte"; });
    connect(m.get(), &Mandelbrot::NeueBerechnungSignal, this, [&] { folge << "Neu"; });
    QTest::mousePress(m.get(), Qt::RightButton, {}, stelle);
    QCOMPARE(folge, angenommen ? QStringList({"Werte", "Neu"}) : QStringList());
    QCOMPARE(m->g_Bildverhaeltnis, angenommen ? 0.75 : 0.123);
    QCOMPARE(m->g_RechnenJa, angenommen ? 1 : 0);
    QCOMPARE(m->Br_x, angenommen ? 2.0 : 4.0);
}

void TestMaus::zoomen_data() {
    QTest::addColumn<int>("gleichung");
    QTest::addColumn<int>("modus");
    QTest::addColumn<QPoint>("stelle");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<QPointF>("punkt");
    QTest::newRow("full") << 1 << 0 << QPoint(200, 150) << 0.5 << QPointF(-1.5, 0.75);
    QTest::newRow("zoom 1 only moves") << 1 << 0 << QPoint(600, 450) << 1.0 << QPointF(0.5, -0.75);
    QTest::newRow("Julia keeps its constant")
        << 2 << 0 << QPoint(200, 150) << 3.0 << QPointF(-1.5, 0.75);
    QTest::newRow("quarter 2") << 1 << 2 << QPoint(500, 75) << 0.5 << QPointF(-1.5, 0.75);
    QTest::newRow("quarter 3") << 1 << 3 << QPoint(100, 375) << 0.5 << QPointF(-1.5, 0.75);
    QTest::newRow("folded number") << 10003 << 0 << QPoint(200, 150) << 0.5 << QPointF(-1.5, 0.75);
}

void TestMaus::zoomen() {
    QFETCH(int, gleichung);
    QFETCH(double, zoom);
    QFETCH(QPointF, punkt);
    QFETCH(QPoint, stelle);
    const auto m = bildprobe(800, 600);
    QFETCH(int, modus);
    m->g_halbesBild = modus;
    m->Br_x = 4.0;
    m->Br_y = 3.0;
    m->BildbreiteNeueEckpunkte();
    m->wahl_Gleichung = gleichung;
    m->click2_Zoom = zoom;
    m->CJ_x = m->CJ_y = 9.0;
    QTest::mousePress(m.get(), Qt::LeftButton, {}, stelle);
    QCOMPARE(m->MP_x, punkt.x());
    QCOMPARE(m->MP_y, punkt.y());
    QCOMPARE(m->Br_x, 4.0 * zoom);
    QCOMPARE(m->Br_y, 3.0 * zoom * zoom); // the squared zoom is meant
    QCOMPARE(m->R_Max - m->R_Min, 4.0 * zoom);
    QCOMPARE(m->I_Max - m->I_Min, 3.0 * zoom);
    const bool julia = gleichung == 2;
    QCOMPARE(m->CJ_x, julia ? 9.0 : punkt.x());
    QCOMPARE(m->CJ_y, julia ? 9.0 : punkt.y());
    QCOMPARE(m->wahl_Gleichung, gleichung == 10003 ? 1 : gleichung);
}

// Beyond the buffers the picture is cut to 1200 x 1200, and so is the click's scale.
void TestMaus::grosserWidget() {
    const auto m = bildprobe(1500, 1300);
    m->BildbreiteNeueEckpunkte();
    const double mitte = m->MP_x;
    QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(600, 600));
    QCOMPARE(m->MP_x, mitte);
    QCOMPARE(m->g_Bildverhaeltnis, 1.0);
}

void TestMaus::matrixzelle_data() {
    QTest::addColumn<QPoint>("stelle");
    QTest::addColumn<int>("zelle");
    QTest::newRow("top left") << QPoint(10, 10) << 11;
    QTest::newRow("row 2, column 3") << QPoint(450, 200) << 23;
    QTest::newRow("bottom right") << QPoint(799, 599) << 44;
    QTest::newRow("row 4, column 1") << QPoint(0, 451) << 41;
    QTest::newRow("on a column border") << QPoint(200, 10) << 21;
    QTest::newRow("on a row border") << QPoint(700, 450) << 21;
}

void TestMaus::matrixzelle() {
    QFETCH(QPoint, stelle);
    const auto m = bildprobe(800, 600);
    m->zahl_Matrix = 1000;
    const double breite = m->Br_x;
    m->g_SummeGross = m->g_SummeViertel = 5.0;
    m->g_RechnenJa = 1;
    QTest::mousePress(m.get(), Qt::LeftButton, {}, stelle);
    QTEST(m->zahl_Matrix, "zelle");
    QCOMPARE(m->g_RechnenJa, 0); // matrix and full picture show the same parameters
    QCOMPARE(m->Br_x, breite);
    m->zahl_Matrix = 1000;
    m->g_SummeViertel = 6.0;
    QTest::mousePress(m.get(), Qt::LeftButton, {}, stelle);
    QCOMPARE(m->g_RechnenJa, 1);
    m->zahl_Matrix = 1000;
    m->g_halbesBild = 3; // quarters 2 to 4 have no cells to choose
    QTest::mousePress(m.get(), Qt::LeftButton, {}, stelle);
    QCOMPARE(m->zahl_Matrix, 1000);
    m->g_halbesBild = 0;
    m->TeilerColorbild = std::numeric_limits<double>::quiet_NaN();
    QTest::mousePress(m.get(), Qt::LeftButton, {}, stelle);
    QCOMPARE(m->zahl_Matrix, 44);
}

void TestMaus::orbitpunkt() {
    const auto m = bildprobe(800, 600);
    m->g_OrbitJa = 1;
    m->g_halbesBild = 4;
    const double mitte = m->MP_x;
    QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(450, 333));
    QCOMPARE(m->OPx, 50);
    QCOMPARE(m->OPy, 33);
    QCOMPARE(m->MP_x, mitte);
}

QTEST_MAIN(TestMaus)
#include "test_maus.moc"
