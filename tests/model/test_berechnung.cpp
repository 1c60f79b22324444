#include "Bildprobe.h"

namespace {

constexpr int Unberuehrt = -77; ///< a count that no picture stores

void allesUnberuehrt(Mandelbrot& m) {
    for (auto& zeile : m.ImageIntegers) {
        zeile.fill(Unberuehrt);
    }
}

/// Borders of what was stored since allesUnberuehrt: x0, x1, y0, y1.
QList<int> beruehrt(const Mandelbrot& m) {
    QList<int> r{9999, -1, 9999, -1};
    for (int zeile = 0; zeile < Mandelbrot::BildMax; ++zeile) {
        for (int spalte = 0; spalte < Mandelbrot::BildMax; ++spalte) {
            if (m.ImageIntegers[std::size_t(zeile) + 1][std::size_t(spalte)] != Unberuehrt) {
                r = {std::min(r[0], spalte), std::max(r[1], spalte + 1), std::min(r[2], zeile),
                     std::max(r[3], zeile + 1)};
            }
        }
    }
    return r;
}

/// Escape count of z*z + c under the measure |z|^2, spelled out.
int flucht(double zx, double zy, double cx, double cy, int grenze, double wert) {
    int n = 1;
    double mass = 0.0;
    do {
        const double neu = zx * zx - zy * zy + cx;
        zy = (zx + zx) * zy + cy;
        zx = neu;
        mass = zy * zy + zx * zx;
        ++n;
    } while (n < grenze && mass < wert);
    return n;
}

QStringList meldungen;
QByteArray kontext;

void merken(QtMsgType, const QMessageLogContext& k, const QString& text) {
    if (text.startsWith("Zeile")) {
        meldungen << text;
        kontext = QByteArray(k.file) + "|" + k.function;
    }
}

} // namespace

class TestBerechnung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void pixelUndRahmen_data();
    void pixelUndRahmen();
    void placement_data();
    void placement();
    void unveraendert_data();
    void unveraendert();
    void summeNullRechnetNeu();
    void reparaturenRechnenNichtNochmal();
    void bildhaelften();
    void loeschen_data();
    void loeschen();
    void matrix();
    void fortschritt();
    void exponent_data();
    void exponent();
    void vorschauMasse();
    void festeGroesseOhneVorschau();
    void signaturSumme();
    void nurMarken();
    void absurd_data();
    void absurd();
    void unsichtbar();
};

void TestBerechnung::pixelUndRahmen_data() {
    QTest::addColumn<int>("gleichung");
    QTest::newRow("Mandelbrot type") << 1;
    QTest::newRow("Julia type") << 2;
}

void TestBerechnung::pixelUndRahmen() {
    QFETCH(int, gleichung);
    const auto m = bildprobe(81, 60);
    m->wahl_Gleichung = gleichung;
    m->CJ_x = -0.4;
    m->CJ_y = 0.6;
    malen(*m);
    QCOMPARE(m->g_JuliaJa, gleichung == 2 ? 1 : 0);
    const double schritt = std::abs(m->R_Max - m->R_Min) / 81;
    double y = m->I_Max;
    for (int zeile = 0; zeile < 60; ++zeile, y -= schritt) {
        double x = m->R_Min;
        for (int spalte = 0; spalte < 81; ++spalte, x += schritt) {
            const bool rahmen = zeile % 59 == 0 || spalte % 80 == 0;
            const int soll = rahmen           ? 0
                             : gleichung == 1 ? flucht(0.0, 0.0, x, y, 50, 400.0)
                                              : flucht(x, y, m->CJ_x, m->CJ_y, 50, 400.0);
            QCOMPARE(m->ImageIntegers[std::size_t(zeile) + 1][std::size_t(spalte)], soll);
            if (rahmen) {
                QCOMPARE(m->ImageDoubles[std::size_t(zeile) + 1][std::size_t(spalte)], 0.0);
            }
        }
    }
}

void TestBerechnung::placement_data() {
    QTest::addColumn<int>("modus");
    QTest::addColumn<int>("anforderung");
    QTest::addColumn<int>("modusDanach");
    QTest::addColumn<QList<int>>("rechteck");
    QTest::newRow("full") << 0 << 1 << 0 << QList<int>{0, 301, 0, 200};
    QTest::newRow("quarter 1") << 1 << 1 << 1 << QList<int>{0, 150, 0, 100};
    QTest::newRow("quarter 4") << 4 << 1 << 4 << QList<int>{150, 301, 100, 200};
    QTest::newRow("quarter 3 becomes a preview") << 3 << 3 << 13 << QList<int>{0, 100, 100, 166};
    QTest::newRow("full becomes a preview") << 0 << 3 << 10 << QList<int>{201, 301, 0, 66};
    QTest::newRow("preview 12 becomes quarter 2") << 12 << 1 << 2 << QList<int>{150, 301, 0, 100};
    QTest::newRow("preview 10 becomes full") << 10 << 1 << 0 << QList<int>{0, 301, 0, 200};
    QTest::newRow("preview bottom left") << 300 << 3 << 300 << QList<int>{0, 100, 134, 200};
    QTest::newRow("preview with the orbit") << 11 << 2 << 11 << QList<int>{0, 100, 0, 66};
}

void TestBerechnung::placement() {
    QFETCH(int, modus);
    QFETCH(int, anforderung);
    QFETCH(QList<int>, rechteck);
    const auto m = bildprobe(301, 200);
    m->g_halbesBild = modus;
    m->g_RechnenJa = anforderung;
    allesUnberuehrt(*m);
    malen(*m);
    QTEST(m->g_halbesBild, "modusDanach");
    m->ImageIntegers[0].fill(Unberuehrt);
    QCOMPARE(beruehrt(*m), rechteck);
    // The whole plane rectangle is drawn into the placement: its left part escapes at once.
    const auto zeile = std::size_t(rechteck[2] + (rechteck[3] - rechteck[2]) / 2) + 1;
    const auto spalte = std::size_t(rechteck[0]);
    const double schritt = 4.0 / (modus > 9 && anforderung != 1 ? 100.0
                                  : anforderung == 3            ? 100.0
                                  : m->g_halbesBild > 0         ? 150.0
                                                                : 301.0);
    QCOMPARE(m->ImageIntegers[zeile][spalte + 1],
             flucht(0.0, 0.0, -2.5 + schritt, 0.02, 50, 400.0));
}

void TestBerechnung::unveraendert_data() {
    QTest::addColumn<int>("aenderung");
    QTest::addColumn<bool>("neu");
    QTest::newRow("nothing") << 0 << false;
    QTest::newRow("colour factor") << 1 << false;
    QTest::newRow("a move lost in the sum beside a bailout value of 1e8") << 2 << true;
    QTest::newRow("centre coordinates exchanged") << 3 << true;
    QTest::newRow("two whole numbers whose weighted sum stays") << 4 << true;
    QTest::newRow("the size of the picture") << 5 << true;
    QTest::newRow("NaN as Julia constant, again") << 6 << false;
}

void TestBerechnung::unveraendert() {
    QFETCH(int, aenderung);
    const auto m = bildprobe(60, 40);
    m->wert_Abbruch = 1e8;
    m->MP_x = 0.25;
    m->MP_y = -0.75;
    if (aenderung == 6) {
        m->CJ_x = std::numeric_limits<double>::quiet_NaN();
    }
    malen(*m);
    m->ImageIntegers[10][10] = Unberuehrt;
    switch (aenderung) {
    case 1:
        m->divFactorMalD(2.0);
        break;
    case 2:
        m->MP_x += 1e-12;
        break;
    case 3:
        std::swap(m->MP_x, m->MP_y);
        break;
    case 4:
        m->Max_Iterationen -= 13;
        m->glg_Abbruch += 1;
        break;
    case 5:
        m->resize(83, 43);
        break;
    default:
        break;
    }
    m->g_RechnenJa = 1;
    malen(*m);
    QTEST(m->ImageIntegers[10][10] != Unberuehrt, "neu");
    malen(*m);
    QCOMPARE(m->g_RechnenJa, 0);
}

void TestBerechnung::summeNullRechnetNeu() {
    const auto m = bildprobe(60, 40);
    malen(*m);
    m->ImageIntegers[10][10] = Unberuehrt;
    m->g_SummeGross = 0.0;
    malen(*m);
    QVERIFY(m->ImageIntegers[10][10] != Unberuehrt);
}

// Kernels repair fields that the signature holds; the paint after must not compute again.
void TestBerechnung::reparaturenRechnenNichtNochmal() {
    const auto m = bildprobe(60, 40);
    m->g_ZwillingJa = 9; // equation 1 knows six variants
    m->glg_Abbruch = 5;
    m->g_zycmax = 99;
    malen(*m);
    QCOMPARE(m->g_ZwillingJa, 0);
    QCOMPARE(m->g_zycmax, 24);
    QCOMPARE(m->g_GenauJa, 1);
    m->ImageIntegers[10][10] = Unberuehrt;
    m->g_RechnenJa = 1;
    malen(*m);
    QCOMPARE(m->ImageIntegers[10][10], Unberuehrt);
    m->wahl_Gleichung = 20003; // equation 2 with twin variant 3
    m->glg_Abbruch = 0;
    m->g_zycmax = 99;
    malen(*m);
    QCOMPARE(m->g_JuliaJa, 1);
    QCOMPARE((QList<int>{m->wahl_Gleichung, m->g_ZwillingJa, m->g_zycmax}), (QList<int>{2, 3, 24}));
}

void TestBerechnung::bildhaelften() {
    const auto m = bildprobe(60, 40);
    malen(*m);
    const auto oben = m->ImageIntegers;
    allesUnberuehrt(*m);
    m->g_oberesHalbbild = 1;
    malen(*m);
    QCOMPARE(beruehrt(*m), (QList<int>{0, 60, 0, 20}));
    m->g_oberesHalbbild = 2;
    allesUnberuehrt(*m);
    malen(*m);
    QCOMPARE(beruehrt(*m), (QList<int>{0, 60, 20, 40}));
    // The lower half starts at the upper border of the plane rectangle.
    for (std::size_t spalte = 1; spalte < 59; ++spalte) {
        QCOMPARE(m->ImageIntegers[1 + 20 + 5][spalte], oben[1 + 5][spalte]);
    }
}

void TestBerechnung::loeschen_data() {
    QTest::addColumn<int>("art");
    QTest::addColumn<int>("orbit");
    QTest::addColumn<int>("anzahl");
    QTest::newRow("kind 1") << 1 << 0 << 0;
    QTest::newRow("kind 2") << 2 << 0 << 50;
    QTest::newRow("with the orbit on") << 2 << 1 << 50;
}

void TestBerechnung::loeschen() {
    QFETCH(int, art);
    QFETCH(int, orbit);
    const auto m = bildprobe(60, 40);
    m->g_OrbitJa = orbit;
    malen(*m);
    m->g_BildLoeschen = art;
    malen(*m);
    QCOMPARE(m->g_BildLoeschen, 0);
    QCOMPARE(m->wahl_Gleichung, 1);
    QTEST(m->ImageIntegers[20][30], "anzahl");
    QCOMPARE(m->ImageDoubles[20][30], 0.0);
    malen(*m);
    QTEST(m->ImageIntegers[20][30], "anzahl"); // stays cleared
}

void TestBerechnung::matrix() {
    const auto m = bildprobe(403, 242);
    m->zahl_Matrix = 1000;
    allesUnberuehrt(*m);
    const QImage bild = malen(*m);
    m->ImageIntegers[0].fill(Unberuehrt);
    QCOMPARE(beruehrt(*m)[1], -1);
    const double schritt = 4.0 / 100;
    double x = m->R_Min;
    double y = m->I_Max;
    for (int i = 0; i < 30; ++i, x += schritt, y -= schritt) {
        if (i > 0) {
            QCOMPARE(m->ImageViertelIntegers[std::size_t(i) + 1][std::size_t(i)],
                     flucht(0.0, 0.0, x, y, 50, 400.0));
        }
    }
    QCOMPARE(m->ImageViertelIntegers[60][50], 0); // last row of a cell is frame
    QVERIFY(bild.pixel(10, 30) != bild.pixel(110, 30) || bild.pixel(10, 30) != bild.pixel(210, 90));
}

void TestBerechnung::fortschritt() {
    const auto m = bildprobe(30, 130);
    meldungen.clear();
    const auto vorher = qInstallMessageHandler(merken);
    malen(*m);
    qInstallMessageHandler(vorher);
    QCOMPARE(meldungen, (QStringList{"Zeile = 0", "Zeile = 60", "Zeile = 120"}));
    QCOMPARE(kontext, QByteArray("Mandelbrot|void Mandelbrot::Berechnung(QPainter*)"));
    QCOMPARE(m->g_Zeile, 120);
}

void TestBerechnung::exponent_data() {
    QTest::addColumn<int>("gleichung");
    QTest::addColumn<int>("K");
    QTest::addColumn<QList<int>>("danach"); // K, kPotHg, kPotHu; -1 = untouched
    QTest::newRow("even") << 503 << 6 << QList<int>{6, 3, -1};
    QTest::newRow("odd") << 603 << 7 << QList<int>{7, -1, 3};
    QTest::newRow("zero above 500") << 511 << 0 << QList<int>{10, 5, -1};
    QTest::newRow("zero of the exponent family stays") << 507 << 0 << QList<int>{0, 0, -1};
    QTest::newRow("zero below 500 stays") << 1 << 0 << QList<int>{0, 0, -1};
    QTest::newRow("largest") << 1 << 2147483647 << QList<int>{2147483647, -1, 1073741823};
}

void TestBerechnung::exponent() {
    QFETCH(int, gleichung);
    QFETCH(int, K);
    const auto m = bildprobe(24, 20);
    m->wahl_Gleichung = gleichung;
    m->Max_Iterationen = 2;
    m->g_kPotenz = K;
    m->kPotHg = m->kPotHu = -1;
    malen(*m);
    QTEST((QList<int>{m->g_kPotenz, m->kPotHg, m->kPotHu}), "danach");
}

void TestBerechnung::vorschauMasse() {
    const auto m = bildprobe(400, 200);
    m->g_PixVorschauX = 160;
    m->g_PixVorschauY = 90;
    m->g_RechnenJa = 3;
    malen(*m);
    QCOMPARE(m->g_Bildverhaeltnis, 90.0 / 160.0); // from the first paint of the preview on
    m->g_RechnenJa = 1;
    m->Max_Iterationen = 51; // changed parameters: the preview turns into its picture
    malen(*m);
    QCOMPARE(m->g_halbesBild, 0);
    QCOMPARE(m->g_Bildverhaeltnis, 0.5);
    QCOMPARE(m->Br_y, 0.5 * m->Br_x);
    m->g_PixVorschauX = 100;
    m->g_PixVorschauY = 0;
    malen(*m);
    QCOMPARE(m->g_PixVorschauY, 50);
    m->g_PixVorschauX = 130;
    m->g_PixVorschauY = 0;
    m->resize(421, 200);
    m->g_RechnenJa = 3;
    malen(*m);
    QCOMPARE(m->g_PixVorschauY, 64);
    QCOMPARE(m->g_Bildverhaeltnis, 64.0 / 130.0);
}

void TestBerechnung::festeGroesseOhneVorschau() {
    const auto m = bildprobe(300, 200);
    m->g_PixConstX = 210;
    m->g_PixConstY = 140;
    m->g_VorschauAusJa = 1;
    m->g_RechnenJa = 3;
    allesUnberuehrt(*m);
    malen(*m);
    m->ImageIntegers[0].fill(Unberuehrt);
    QCOMPARE(beruehrt(*m), (QList<int>{0, 210, 0, 140}));
    QCOMPARE(m->g_halbesBild, 0);
    QCOMPARE(m->Bildflaeche.size(), QSize(230, 140));
}

void TestBerechnung::signaturSumme() {
    const auto m = std::make_unique<Mandelbrot>();
    qint64 soll = 0;
    const auto summand = [&](qint32 Mandelbrot::*feld, qint32 wert, qint32 gewicht) {
        (*m).*feld = wert;
        soll += qint64{wert} * gewicht;
    };
    summand(&Mandelbrot::Max_Iterationen, 2000000000, 1);
    summand(&Mandelbrot::g_JuliaJa, 1, 2);
    summand(&Mandelbrot::g_halbesBild, 2, 3);
    summand(&Mandelbrot::g_linienLoeschenJa, 3, 23);
    summand(&Mandelbrot::g_ZwillingJa, 4, 17);
    summand(&Mandelbrot::g_UnDo, 5, 31);
    summand(&Mandelbrot::OPx, 600, 1);
    summand(&Mandelbrot::OPy, 7000, 1);
    summand(&Mandelbrot::g_OrbitJa, 80000, 1);
    summand(&Mandelbrot::g_OrbitDuennJa, 21, 2);
    summand(&Mandelbrot::g_maxOrbitIterat, 256, 3);
    summand(&Mandelbrot::g_GenauJa, 100, 5);
    summand(&Mandelbrot::g_zycmax, 24, 9);
    summand(&Mandelbrot::glg_Abbruch, 500000, 13);
    summand(&Mandelbrot::wahl_Gleichung, 30000000, 11);
    summand(&Mandelbrot::g_oberesHalbbild, 1000, 7);
    summand(&Mandelbrot::g_kPotenz, 10000, 29);
    m->Br_x = 1e16; // swallows a single half
    m->wert_Abbruch = m->g_Bildverhaeltnis = m->MP_x = m->MP_y = 0.5;
    m->g_Genauigkeit = m->CJ_x = m->CJ_y = m->Koppl_x = m->Koppl_y = 0.5;
    signaturBilden(*m, 60, 40);
    QCOMPARE(qint64{m->bilddatenInteger}, soll - (qint64{1} << 32)); // wrapped
    QCOMPARE(m->bilddatenDouble, 1e16 + 4.0); // 2 and 2.5 added, each rounded to even numbers
    QCOMPARE(m->bilddatenSumme, m->bilddatenInteger + m->bilddatenDouble);
}

// With request 0 overlay lines appear and vanish over untouched values and counts.
void TestBerechnung::nurMarken() {
    const auto m = bildprobe(60, 40);
    malen(*m);
    allesUnberuehrt(*m);
    const QImage ohne = malen(*m);
    m->g_MittelkreuzJa = 1;
    QVERIFY(malen(*m) != ohne);
    QCOMPARE(m->ImageGitterIntegers[5][30] / 100, 1);
    QCOMPARE(m->ImageIntegers[20][20], Unberuehrt);
    m->g_MittelkreuzJa = 0;
    QCOMPARE(malen(*m), ohne);
}

void TestBerechnung::absurd_data() {
    QTest::addColumn<QList<double>>("reell"); // width, zoom, centre, Julia constant, bailout
    QTest::addColumn<QList<int>>("ganz");     // equation, mode, preview, fixed, matrix, orbit pixel
    const double unendlich = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const int gross = 2147483647;
    const QList<QList<double>> reelle{{0, 0, 0, 0, 0},           {-4, -1, 1e30, 1e30, -1e30},
                                      {1e30, 1e30, -1e30, 0, 1}, {unendlich, 1, nan, nan, nan},
                                      {nan, nan, 0, 0, 400},     {5e-324, 1e-300, 1, 1, unendlich}};
    const QList<QList<int>> ganze{{0, 0, 0, 0, 11, 0},
                                  {-5, 10, -3, -1, 1000, -9},
                                  {99, 400, gross, 1, 1000, gross},
                                  {913, 14, 1, gross, 44, -gross},
                                  {90000000, 300, 5000, 3, -7, 5},
                                  {8, -gross, gross, 5000, gross, 1},
                                  {511, gross, 0, 0, 11, 211}};
    for (int i = 0; i < reelle.size(); ++i) {
        for (int k = 0; k < ganze.size(); ++k) {
            QTest::addRow("%d, %d", i, k) << reelle[i] << ganze[k];
        }
    }
}

void TestBerechnung::absurd() {
    QFETCH(QList<double>, reell);
    QFETCH(QList<int>, ganz);
    const auto m = bildprobe(50, 40);
    m->Max_Iterationen = 3;
    m->Br_x = reell[0];
    m->click2_Zoom = reell[1];
    m->MP_x = m->MP_y = reell[2];
    m->CJ_x = m->CJ_y = reell[3];
    m->wert_Abbruch = reell[4];
    m->wahl_Gleichung = ganz[0];
    m->g_halbesBild = ganz[1];
    m->g_PixVorschauX = m->g_PixVorschauY = ganz[2];
    m->g_PixConstX = m->g_PixConstY = ganz[3];
    m->zahl_Matrix = ganz[4];
    m->OPx = m->OPy = ganz[5];
    m->g_Gitterabstand = reell[1];
    m->g_GitterJa = 1;
    m->TeilerColorbild = reell[1];
    for (const int anforderung : {1, 3, 2, 0}) {
        m->g_RechnenJa = anforderung;
        m->g_OrbitJa = anforderung == 2 ? 5 : 0;
        malen(*m);
    }
    QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(20, 10));
    malen(*m);
    QVERIFY(m->Bildflaeche.width() <= Mandelbrot::BildMax + 20);
    QVERIFY(m->Bildflaeche.height() <= Mandelbrot::BildMax);
}

void TestBerechnung::unsichtbar() {
    const auto m = bildprobe(60, 40);
    m->hide();
    m->g_RechnenJa = 1;
    QImage ziel(80, 40, QImage::Format_ARGB32_Premultiplied);
    ziel.fill(Qt::magenta);
    QPainter maler(&ziel);
    m->Berechnung(&maler);
    maler.end();
    QCOMPARE(m->g_RechnenJa, 1);
    QCOMPARE(ziel.pixelColor(30, 20), QColor(Qt::magenta));
    for (const QSize groesse : {QSize(1, 1), QSize(20, 50), QSize(21, 1), QSize(1500, 1300)}) {
        m->resize(groesse);
        m->show();
        m->g_RechnenJa = 1;
        malen(*m);
    }
    QCOMPARE(m->Bildflaeche.size(), QSize(1220, 1200));
}

QTEST_MAIN(TestBerechnung)
#include "test_berechnung.moc"
