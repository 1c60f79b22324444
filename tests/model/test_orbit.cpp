#include "Bildprobe.h"

namespace {

constexpr double Ende = 1000.123456789;

/// Picture of equation 1 with the orbit on and its start pixel in the middle.
std::unique_ptr<Mandelbrot> orbitprobe(int farbe, int art) {
    auto m = bildprobe(201, 151);
    m->Br_x = 4.0;
    malen(*m);
    m->g_OrbitJa = farbe;
    m->g_OrbitDuennJa = art;
    m->OPx = 60;
    m->OPy = 40;
    return m;
}

/// Pixels by which two pictures differ, as a list of points.
QList<QPoint> unterschiede(const QImage& a, const QImage& b) {
    QList<QPoint> punkte;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixel(x, y) != b.pixel(x, y)) {
                punkte << QPoint(x, y);
            }
        }
    }
    return punkte;
}

} // namespace

class TestOrbit : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void punkte_data();
    void punkte();
    void startpunkt_data();
    void startpunkt();
    void startAufDerAntidiagonale();
    void pfade();
    void lage_data();
    void lage();
    void dickeUndSammlung_data();
    void dickeUndSammlung();
    void farben_data();
    void farben();
    void unveraendertesOrbit();
    void nurDerStartpixel();
    void bildBleibt();
    void aenderungSchaltetAus();
    void ausserhalb();
    void absurd_data();
    void absurd();
    void liste();
};

void TestOrbit::punkte_data() {
    QTest::addColumn<int>("hoechstens");
    QTest::addColumn<int>("abIteration");
    QTest::addColumn<int>("anzahl");
    QTest::newRow("all of 20 iterations") << 256 << 0 << 19;
    QTest::newRow("at most five") << 5 << 0 << 5;
    QTest::newRow("from the tenth on") << 256 << 9 << 10;
    QTest::newRow("none") << 0 << 0 << 0;
    QTest::newRow("negative number") << -8 << 0 << 0;
}

void TestOrbit::punkte() {
    QFETCH(int, hoechstens);
    QFETCH(int, abIteration);
    const auto m = orbitprobe(1, 1);
    m->OPx = 95; // inside the set
    m->OPy = 75;
    m->Max_Iterationen = 20;
    m->g_maxOrbitIterat = hoechstens;
    m->g_OrbitAbIterAn = abIteration;
    malen(*m);
    QTEST(m->OZaehler, "anzahl");
    double cx = m->R_Min;
    double cy = m->I_Max;
    const double schritt = 4.0 / 201;
    for (int i = 0; i < 95; ++i) {
        cx += schritt;
    }
    for (int i = 0; i < 75; ++i) {
        cy -= schritt;
    }
    QCOMPARE(m->OrbitX[0], cx);
    QCOMPARE(m->OrbitY[0], cy);
    double x = 0.0;
    double y = 0.0;
    for (int n = 1; n <= abIteration + m->OZaehler; ++n) {
        const double neu = x * x - y * y + cx;
        y = 2 * x * y + cy;
        x = neu;
        if (n > abIteration) {
            QCOMPARE(m->OrbitX[std::size_t(n - abIteration)], x);
            QCOMPARE(m->OrbitY[std::size_t(n - abIteration)], y);
        }
    }
    QCOMPARE(m->OrbitX[std::size_t(m->OZaehler) + 1], Ende);
}

void TestOrbit::startpunkt_data() {
    QTest::addColumn<int>("gleichung");
    QTest::addColumn<bool>("mittelpunkt");
    QTest::addColumn<QPointF>("punkt");
    const double s = 4.0 / 200;
    QTest::newRow("Mandelbrot: the constant") << 1 << false << QPointF(-2.5 + 60 * s, 1.5 - 40 * s);
    QTest::newRow("Julia: the start value") << 2 << false << QPointF(-2.5 + 60 * s, 1.5 - 40 * s);
    QTest::newRow("picture centre") << 2 << true << QPointF(-0.5, 0.0);
}

void TestOrbit::startpunkt() {
    QFETCH(int, gleichung);
    QFETCH(bool, mittelpunkt);
    QFETCH(QPointF, punkt);
    const auto m = orbitprobe(1, 1);
    m->resize(220, 150);
    m->wahl_Gleichung = gleichung;
    m->g_OrbitMP = mittelpunkt ? 1 : 0;
    malen(*m);
    QVERIFY(std::abs(m->OrbitX[0] - punkt.x()) < 1e-12);
    QVERIFY(std::abs(m->OrbitY[0] - punkt.y()) < 1e-12);
    QCOMPARE(m->OPx, mittelpunkt ? 100 : 60);
    QVERIFY(m->g_OrbitStartString.contains(QString::number(m->OPx)));
}

// Where the parts of the start value cancel each other it counts as zero: the constant is shown.
void TestOrbit::startAufDerAntidiagonale() {
    const auto m = orbitprobe(1, 1);
    m->resize(276, 192); // 64 pixels a plane unit: coordinates are exact
    m->MP_x = 0.0;
    m->wahl_Gleichung = 2;
    m->CJ_x = 0.375;
    m->OPx = 42;
    m->OPy = 10;
    malen(*m);
    QCOMPARE(m->OrbitX[0], 0.375);
    m->OPy = 11;
    malen(*m);
    QCOMPARE(m->OrbitX[0], -2.0 + 42.0 / 64.0);
}

void TestOrbit::pfade() {
    const auto m = orbitprobe(4, 20);
    m->resize(220, 150); // 200 x 150: 50 pixels a plane unit
    m->MP_x = 0.0;
    m->MP_y = 0.0;
    m->OPx = 50; // c = -1
    m->OPy = 75;
    m->g_maxOrbitIterat = 3;
    malen(*m);
    const QPainterPath& pfad = m->polygonPathM1;
    QCOMPARE(pfad.elementCount(), 4);
    QCOMPARE(QPointF(pfad.elementAt(0)), QPointF(50, 75));
    const auto x = [&](int i) { return 100 + std::trunc(50 * m->OrbitX[std::size_t(i)]); };
    const auto y = [&](int i) { return 75 - std::trunc(50 * m->OrbitY[std::size_t(i)]); };
    for (int i = 1; i <= 3; ++i) {
        QCOMPARE(QPointF(pfad.elementAt(i)), QPointF(x(i), y(i)));
        QCOMPARE(QPointF(m->polygonPathM2.elementAt(i)), QPointF(x(i) + 1, y(i) + 1));
        QCOMPARE(QPointF(m->polygonPathM3.elementAt(i)), QPointF(x(i) + 1, y(i)));
        QCOMPARE(QPointF(m->polygonPathM4.elementAt(i)), QPointF(x(i), y(i) + 1));
    }
    QVERIFY(std::abs(m->OrbitX[1] + 1.0) < 1e-9);
}

void TestOrbit::lage_data() {
    QTest::addColumn<int>("modus");
    QTest::addColumn<int>("matrix");
    QTest::addColumn<QRect>("rechteck"); // where the whole plane rectangle is drawn
    QTest::newRow("full") << 0 << 11 << QRect(0, 0, 416, 320);
    QTest::newRow("quarter 1") << 1 << 11 << QRect(0, 0, 208, 160);
    QTest::newRow("quarter 2") << 2 << 11 << QRect(208, 0, 208, 160);
    QTest::newRow("quarter 3") << 3 << 11 << QRect(0, 160, 208, 160);
    QTest::newRow("quarter 4") << 4 << 11 << QRect(208, 160, 208, 160);
    QTest::newRow("preview") << 10 << 11 << QRect(256, 0, 160, 80);
    QTest::newRow("preview 1") << 11 << 11 << QRect(0, 0, 160, 80);
    QTest::newRow("preview 4") << 14 << 11 << QRect(208, 160, 160, 80);
    QTest::newRow("preview bottom right") << 400 << 11 << QRect(256, 240, 160, 80);
    QTest::newRow("matrix") << 0 << 1000 << QRect(0, 0, 104, 80);
    QTest::newRow("matrix, quarter") << 1 << 1000 << QRect(0, 0, 52, 40);
    QTest::newRow("matrix, preview") << 10 << 1000 << QRect(0, 0, 52, 40);
}

// The polygon lies on the pixels that show its points, also with the orbit from the centre.
void TestOrbit::lage() {
    QFETCH(int, modus);
    QFETCH(int, matrix);
    QFETCH(QRect, rechteck);
    const auto m = bildprobe(416, 320);
    m->MP_x = -0.9; // its orbit jumps to and fro
    m->MP_y = 0.2;
    m->Br_x = 2.5;
    m->zahl_Matrix = matrix;
    m->g_PixVorschauX = 160;
    m->g_PixVorschauY = 80;
    m->g_halbesBild = modus;
    m->g_maxOrbitIterat = 6;
    m->g_RechnenJa = modus > 9 ? 3 : 1;
    malen(*m);
    m->g_OrbitJa = 5;
    m->g_OrbitDuennJa = 1;
    m->g_OrbitMP = 1;
    const QImage bild = malen(*m);
    QCOMPARE(QPoint(m->OPx, m->OPy), QPoint(rechteck.width() / 2, rechteck.height() / 2));
    const double schritt = m->Br_x / rechteck.width();
    const auto pixel = [&](double x, double y) {
        return QPointF(rechteck.x() + rechteck.width() / 2.0 + (x - m->MP_x) / schritt,
                       rechteck.y() + rechteck.height() / 2.0 - (y - m->MP_y) / schritt);
    };
    const QPainterPath& pfad = m->polygonPathM1;
    QCOMPARE(pfad.elementCount(), 6); // the first iterate is the start point itself
    for (int i = 0; i < 6; ++i) {
        const QPointF ist = pfad.elementAt(i);
        const QPointF soll = pixel(m->OrbitX[std::size_t(i) + 1], m->OrbitY[std::size_t(i) + 1]);
        QVERIFY2((ist - soll).manhattanLength() <= 3.0,
                 qPrintable(QString("point %1: (%2, %3) instead of (%4, %5)")
                                .arg(i)
                                .arg(ist.x())
                                .arg(ist.y())
                                .arg(soll.x())
                                .arg(soll.y())));
        QCOMPARE(bild.pixelColor(ist.toPoint()), QColor(255, 255, 0));
    }
    m->g_RechnenJa = modus > 9 ? 3 : 0;
    QCOMPARE(malen(*m), bild);
}

void TestOrbit::dickeUndSammlung_data() {
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("artDanach");
    QTest::addColumn<bool>("ersterSichtbar"); // the orbit drawn before, elsewhere
    QTest::addColumn<bool>("dick");
    QTest::newRow("thick, last") << 0 << 0 << false << true;
    QTest::newRow("thin, last") << 1 << 1 << false << false;
    QTest::newRow("thick, all") << 20 << 20 << true << true;
    QTest::newRow("thin, all") << 21 << 21 << true << false;
    QTest::newRow("delete, then thick") << 200 << 0 << false << true;
    QTest::newRow("delete, then thin") << 201 << 1 << false << false;
}

void TestOrbit::dickeUndSammlung() {
    QFETCH(int, art);
    const auto m = orbitprobe(4, 1);
    m->g_maxOrbitIterat = 2;
    m->g_OrbitJa = 0;
    const QImage ohne = malen(*m);
    m->g_OrbitJa = 4;
    m->OPx = 150;
    m->OPy = 20;
    const QList<QPoint> erster = unterschiede(ohne, malen(*m));
    m->OPx = 40;
    m->OPy = 100;
    const QList<QPoint> zweiter = unterschiede(ohne, malen(*m));
    QVERIFY(erster.size() > 10 && zweiter.size() > 10);
    m->g_OrbitDuennJa = art;
    const QList<QPoint> jetzt = unterschiede(ohne, malen(*m));
    QTEST(m->g_OrbitDuennJa, "artDanach");
    QTEST(jetzt.contains(erster[5]), "ersterSichtbar");
    QVERIFY(jetzt.contains(zweiter[5]));
    QTEST(jetzt.contains(zweiter[5] + QPoint(1, 1)) && jetzt.size() > zweiter.size() * 3 / 2 &&
              jetzt.contains(zweiter[7] + QPoint(0, 1)),
          "dick");
    if (art >= 200) {
        QCOMPARE(m->polygonPathM1.elementCount(), 1 + m->OZaehler);
    }
}

void TestOrbit::farben_data() {
    QTest::addColumn<int>("farbe");
    QTest::addColumn<QList<QColor>>("soll"); // the start pixel and below, right, both
    const auto vier = [](const QColor& farbe) { return QList<QColor>(4, farbe); };
    QTest::newRow("white") << 1 << vier(QColor(255, 255, 255));
    QTest::newRow("black") << 2 << vier(QColor(0, 0, 0));
    QTest::newRow("grey") << 3 << vier(QColor(128, 128, 128));
    QTest::newRow("red") << 4 << vier(QColor(255, 0, 0));
    QTest::newRow("varied") << 5
                            << QList<QColor>{QColor(255, 255, 0), QColor(80, 80, 255),
                                             QColor(0, 255, 0), QColor(255, 0, 0)};
    QTest::newRow("unknown: white") << 77 << vier(QColor(255, 255, 255));
}

void TestOrbit::farben() {
    QFETCH(int, farbe);
    QFETCH(QList<QColor>, soll);
    const auto m = orbitprobe(farbe, 1);
    m->g_maxOrbitIterat = 2;
    m->OPx = 150;
    m->OPy = 20;
    QCOMPARE(malen(*m).pixelColor(150, 20), soll[0]);
    m->g_OrbitDuennJa = 0;
    const QImage dick = malen(*m);
    QCOMPARE(dick.pixelColor(150, 21), soll[1]);
    QCOMPARE(dick.pixelColor(151, 20), soll[2]);
    QCOMPARE(dick.pixelColor(151, 21), soll[3]);
}

// A repaint draws the orbit again without collecting it twice or touching the zoom factor.
void TestOrbit::unveraendertesOrbit() {
    const auto m = orbitprobe(4, 21);
    m->click2_Zoom = 0.5;
    const QImage erst = malen(*m);
    QCOMPARE(m->click2_Zoom, 1.0);
    const int elemente = m->polygonPathM1.elementCount();
    m->click2_Zoom = 0.25;
    const QImage zweit = malen(*m);
    QCOMPARE(zweit, erst);
    QCOMPARE(m->polygonPathM1.elementCount(), elemente);
    QCOMPARE(m->click2_Zoom, 0.25);
    m->OPx += 1;
    malen(*m);
    QVERIFY(m->polygonPathM1.elementCount() > elemente);
    QCOMPARE(m->click2_Zoom, 1.0);
}

void TestOrbit::nurDerStartpixel() {
    const auto m = orbitprobe(1, 1);
    malen(*m);
    const auto geruehrt = [&] {
        m->ImageIntegers[20][20] = -77;
        malen(*m);
        return m->ImageIntegers[20][20] != -77;
    };
    m->OPx += 3;
    m->g_RechnenJa = 1;
    QVERIFY(!geruehrt());
    m->Koppl_x = 0.7; // not an orbit setting
    QVERIFY(geruehrt());
    m->g_RechnenJa = 2;
    m->Koppl_x = 0.8;
    QVERIFY(geruehrt());
    QCOMPARE(m->g_RechnenJa, 1);
    QVERIFY(!geruehrt());
    m->ImageIntegers[std::size_t(m->OPy) + 1][std::size_t(m->OPx)] = -77;
    malen(*m); // request 0: iterated for its orbit only
    QCOMPARE(m->ImageIntegers[std::size_t(m->OPy) + 1][std::size_t(m->OPx)], -77);
}

// Recording an orbit leaves values and counts as they are, also where the kernels keep a history.
void TestOrbit::bildBleibt() {
    const auto m = orbitprobe(0, 1);
    m->glg_Abbruch = 5;
    m->g_Genauigkeit = 0.05;
    m->wert_Abbruch = 150.0;
    malen(*m);
    const auto werte = std::make_unique<Mandelbrot::Bild<double>>(m->ImageDoubles);
    const auto zaehler = std::make_unique<Mandelbrot::Bild<qint32>>(m->ImageIntegers);
    m->g_OrbitJa = 1;
    m->OPx = 95;
    m->OPy = 75;
    m->g_RechnenJa = 2;
    std::fill_n(m->ImageIntegers[76].begin(), 201, -77);
    malen(*m);
    for (std::size_t zeile = 1; zeile <= 151; ++zeile) {
        QVERIFY(m->ImageDoubles[zeile] == (*werte)[zeile]);
        QVERIFY(m->ImageIntegers[zeile] == (*zaehler)[zeile]);
    }
}

void TestOrbit::aenderungSchaltetAus() {
    const auto m = orbitprobe(1, 1);
    malen(*m);
    QSignalSpy aus(m.get(), &Mandelbrot::OrbitOffSignal);
    m->ImageIntegers[20][20] = -77;
    m->BildbreiteMalD(0.5);
    malen(*m);
    QCOMPARE(aus.count(), 1);
    QCOMPARE(m->ImageIntegers[20][20], -77);
    m->g_OrbitMP = 1; // from the centre the orbit stays on, also in the preview
    malen(*m);
    QCOMPARE(aus.count(), 1);
    QCOMPARE(m->g_halbesBild, 10);
    QCOMPARE(m->OPx, 50);
    QCOMPARE(m->OrbitX[0], m->MP_x);
    m->g_OrbitDuennJa = 0; // an orbit setting, but the preview gives way to its picture
    m->g_RechnenJa = 1;
    malen(*m);
    QVERIFY(m->ImageIntegers[20][20] != -77);
}

void TestOrbit::ausserhalb() {
    const auto m = orbitprobe(1, 1);
    m->OPx = 500;
    malen(*m);
    QVERIFY(!m->letzterOrbit.has_value());
    QCOMPARE(m->polygonPathM1.elementCount(), 0);
}

void TestOrbit::absurd_data() {
    QTest::addColumn<double>("wert");
    QTest::addColumn<double>("breite");
    QTest::newRow("escapes to infinity") << std::numeric_limits<double>::infinity() << 4.0;
    QTest::newRow("huge width") << 1e300 << 1e300;
    QTest::newRow("no width") << 400.0 << 0.0;
    QTest::newRow("NaN width") << 400.0 << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("tiny width") << 400.0 << 1e-320;
}

void TestOrbit::absurd() {
    QFETCH(double, wert);
    QFETCH(double, breite);
    const auto m = orbitprobe(5, 20);
    m->OPx = 5;
    m->wert_Abbruch = wert;
    m->Br_x = breite;
    m->g_maxOrbitIterat = 2000000000;
    m->g_RechnenJa = 2;
    malen(*m);
    malen(*m);
    QVERIFY(m->OZaehler <= Mandelbrot::OrbitMax);
    for (int i = 0; i < m->polygonPathM1.elementCount(); ++i) {
        const QPointF p = m->polygonPathM1.elementAt(i);
        QVERIFY(std::abs(p.x()) <= 1e6 && std::abs(p.y()) <= 1e6);
    }
}

void TestOrbit::liste() {
    const auto m = orbitprobe(1, 1);
    m->g_maxOrbitIterat = 3;
    malen(*m);
    const QString punkt = QString::number(m->OrbitX[2], 'f', 16);
    QVERIFY2(m->g_OrbitListeHTMStr.contains("2. (" + punkt + ", "),
             qPrintable(m->g_OrbitListeHTMStr));
    QVERIFY(m->g_OrbitListeHTMStr.contains(m->g_NameGlg));
    m->OPx = 95; // stays bounded
    m->OPy = 75;
    m->g_maxOrbitIterat = m->Max_Iterationen = 300;
    malen(*m);
    QVERIFY(m->g_OrbitListeHTMStr.contains(">256. ("));
    QVERIFY(!m->g_OrbitListeHTMStr.contains(">257. ("));
}

QTEST_MAIN(TestOrbit)
#include "test_orbit.moc"
