#include "equations/Gleichungen.h"
#include "Felder.h"
#include "Testbasis.h"

#include <memory>
#include <vector>

namespace {

const QStringList Spalten =
    QString("MP_x MP_y Br_x Max_Iterationen glg_Abbruch wert_Abbruch Koppl_x "
            "Koppl_y div_Factor konv_Factor it_Factor rechen_VarianteDiv "
            "rechen_VarianteKonv color_Offset zahl_farbtab zahl_Matrix "
            "g_ZwillingJa g_JuliaJa CJ_x CJ_y")
        .split(' ');
using Werte = std::array<double, 20>; ///< in the order of the columns

/// The complete start state of each equation that has one of its own, all fields written out.
struct Gruppe {
    std::vector<int> nummern;
    Werte werte;
};

// clang-format off
const std::vector<Gruppe> Gruppen{
    {{5, 105, 205, 305, 405, 505, 605, 705},
     {-0.5, 0.5, 6, 256, 4, 400, 0.38, 0.38, 100, 100, 1, 16, 5, 0, 32, 33, 2, 0, -1, 0}},
    {{6, 106, 206, 306, 406, 506, 606, 706},
     {-0.5, 0.5, 11, 256, 0, 400, 0.2, 0.1, 100, 500, 1, 4, 44, 182, 12, 11, 0, 1, -1, 0}},
    {{7},
     {-200, 0, 700, 100, 1, 1e8, 0.01, 0.01, 50, 20, 1, 7, 2, 281, 20, 44, 0, 0, -1, 0}},
    {{8},
     {-200, 0, 700, 100, 1, 1e8, 0.01, 0.01, 50, 20, 1, 7, 2, 281, 20, 44, 1, 1, -1, 0}},
    {{9},
     {0, 0, 0.5, 256, 3, 10000, 5, 5, 1, 5, 0.2, 2, 6, 344, 6, 11, 0, 0, -1, 0}},
    {{10},
     {0, 0, 20, 256, 3, 10000, 0.05, 0.05, 1, 10, 1, 2, 6, 344, 6, 11, 0, 1, 1, 1}},
    {{107, 207, 208, 307, 308, 407, 408, 507, 508, 607, 608, 707, 708},
     {0, 0, 4, 100, 0, 1e8, 0.01, 0.01, 1, 1, 8, 4, 2, 236, 24, 32, 0, 0, -1, 0}},
    {{108},
     {0, 0, 4, 100, 0, 1e8, 0.01, 0.01, 1, 1, 8, 4, 2, 236, 24, 32, 1, 1, -1, 0}},
    {{109, 209, 309, 409, 709, 809, 909},
     {0, 0, 4, 256, 3, 10000, 1, 0, 1, 200, 15, 2, 6, 48, 3, 11, 0, 0, -1, 0}},
    {{509, 609},
     {-2, 0, 6, 256, 1, 400, 1, 0, 100, 100, 1, 8, 3, 512, 9, 11, 0, 0, -1, 0}},
    {{110},
     {0, 0, 8, 256, 3, 10000, 1, 0, 1, 10, 4, 2, 6, 180, 9, 11, 0, 1, 1, 0}},
    {{210, 310, 410},
     {0, 0, 4, 256, 3, 10000, 1, 0, 1, 200, 15, 2, 6, 48, 3, 11, 0, 1, -1, 0}},
    {{510, 610, 710, 810, 910},
     {0, 0, 3, 256, 3, 10000, 1, 0, 1, 10, 4, 2, 6, 180, 7, 21, 0, 1, -1, 0.618032}},
};
// clang-format on

constexpr Werte Grundwerte{-0.5, 0, 4, 256, 1,  400, 0.2, 0.1, 100, 100,
                           1,    8, 3, 0,   12, 11,  0,   0,   -1,  0};

const Werte& erwarteteWerte(int nummer) {
    for (const Gruppe& gruppe : Gruppen) {
        for (const int n : gruppe.nummern) {
            if (n == nummer) {
                return gruppe.werte;
            }
        }
    }
    return Grundwerte;
}

} // namespace

class TestStartwerte : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() { m = std::make_unique<Mandelbrot>(); }
    void init() {
        m->resize(725, 635);
        m->g_halbesBild = 1;
        m->zahl_Matrix = 11;
        m->wahl_Gleichung = 1;
    }
    void jedeGleichung_data();
    void jedeGleichung();
    void schalter();
    void matrixBleibt();
    void ersterAufruf();
    void gefalteteNummer();
    void palettenFarben_data();
    void palettenFarben();
    void orbitStart_data();
    void orbitStart();
    void vorschaugroesse_data();
    void vorschaugroesse();
    void seitenverhaeltnis_data();
    void seitenverhaeltnis();

  private:
    std::unique_ptr<Mandelbrot> m;
};

void TestStartwerte::jedeGleichung_data() {
    QTest::addColumn<int>("nummer");
    for (const Gleichung& gleichung : gleichungen()) {
        QTest::addRow("%d", gleichung.nummer) << gleichung.nummer;
    }
    QTest::newRow("0 becomes 1") << 0;
    QTest::newRow("negative") << -105;
    QTest::newRow("no equation") << 1001;
}

void TestStartwerte::jedeGleichung() {
    QFETCH(int, nummer);
    m->wahl_Gleichung = 705; // leave the traces of another equation
    m->Initialisierung();
    m->wahl_Gleichung = nummer;
    m->Initialisierung();
    QCOMPARE(m->wahl_Gleichung, nummer == 0 ? 1 : nummer);
    const Werte& soll = erwarteteWerte(nummer);
    for (std::size_t i = 0; i < soll.size(); ++i) {
        const QString& name = Spalten[int(i)];
        const double ist = feldwert(*m, Felder.at(name));
        QVERIFY2(ist == soll[i],
                 qPrintable(QString("%1 is %2, not %3").arg(name).arg(ist).arg(soll[i])));
    }
    const double verhaeltnis = 635.0 / 705.0;
    QCOMPARE(m->g_Bildverhaeltnis, verhaeltnis);
    QCOMPARE(m->Br_y, verhaeltnis * soll[2]);
    QCOMPARE(m->R_Min, soll[0] - soll[2] / 2);
    QCOMPARE(m->I_Max, soll[1] + verhaeltnis * soll[2] / 2);
}

void TestStartwerte::schalter() {
    // clang-format off
    const std::map<QString, double> grundstellung{
        {"g_PixConstX", 0}, {"g_PixConstY", 0}, {"g_VorschauAusJa", 0}, {"g_kPotenz", 10},
        {"g_UnDo", 0}, {"wahlPalette48", 1}, {"g_oberesHalbbild", 0}, {"g_ZwillingJa", 0},
        {"g_MittelkreuzJa", 0}, {"g_NullkreuzJa", 0}, {"g_GitterJa", 0}, {"g_GenauJa", 0},
        {"g_RechnenJa", 1}, {"g_BildLoeschen", 0}, {"g_linienLoeschenJa", 0}, {"g_OrbitJa", 0},
        {"g_OrbitDuennJa", 0}, {"g_maxOrbitIterat", 256}, {"g_OrbitMP", 0}, {"g_OrbitAbIterAn", 0},
        {"g_zycmax", 7}, {"click2_Zoom", 0.5}, {"g_Gitterabstand", 0}, {"g_Genauigkeit", 0.0001},
    };
    // clang-format on
    for (const auto& [name, wert] : grundstellung) {
        setzeFeld(*m, Felder.at(name), 77.0);
    }
    m->g_Max_glg_Abbruch = m->Orbitmodus = 77;
    m->Initialisierung();
    for (const auto& [name, wert] : grundstellung) {
        QVERIFY2(feldwert(*m, Felder.at(name)) == wert, qPrintable(name));
    }
    QCOMPARE(m->g_Max_glg_Abbruch, 9);
    QCOMPARE(m->Orbitmodus, 0);
    QCOMPARE(m->g_Versionsnummer, QString("1.5"));
}

void TestStartwerte::matrixBleibt() {
    for (const Gleichung& gleichung : gleichungen()) {
        m->wahl_Gleichung = gleichung.nummer;
        m->zahl_Matrix = 1000;
        m->g_halbesBild = 3;
        m->Initialisierung();
        QCOMPARE(m->zahl_Matrix, 1000);
        QCOMPARE(m->g_halbesBild, 1);
    }
    m->zahl_Matrix = 11;
    m->g_halbesBild = 3;
    m->Initialisierung();
    QCOMPARE(m->g_halbesBild, 3);
}

void TestStartwerte::ersterAufruf() {
    const auto fuelle = [this] {
        m->ImageDoubles[1200][1199] = m->ImageViertelDoubles[300][299] = 1.0;
        m->ImageIntegers[0][0] = m->ImageGitterIntegers[1][0] = 1;
        m->ImageViertelIntegers[0][5] = m->ImageViertelGitterIntegers[7][0] = 1;
        m->UnDo0Doubles[299] = m->UnDo4Doubles[0] = m->OrbitX[258] = m->OrbitY[258] = 1.0;
        m->UnDo1Integers[299] = m->UnDo3Integers[0] = 1;
        m->g_halbesBild = 2;
    };
    const auto summe = [this] {
        return m->ImageDoubles[1200][1199] + m->ImageViertelDoubles[300][299] +
               m->ImageIntegers[0][0] + m->ImageGitterIntegers[1][0] +
               m->ImageViertelIntegers[0][5] + m->ImageViertelGitterIntegers[7][0] +
               m->UnDo0Doubles[299] + m->UnDo4Doubles[0] + m->OrbitX[258] + m->OrbitY[258] +
               m->UnDo1Integers[299] + m->UnDo3Integers[0];
    };
    fuelle();
    m->Initialisierung();
    QCOMPARE(summe(), 12.0);
    QCOMPARE(m->g_halbesBild, 2);
    m->initIstdurchJa = 0;
    m->Initialisierung();
    QCOMPARE(summe(), 0.0);
    QCOMPARE(m->g_halbesBild, 1);
    QCOMPARE(m->initIstdurchJa, 1);
}

void TestStartwerte::gefalteteNummer() {
    m->wahl_Gleichung = 1080011;
    m->Initialisierung();
    QCOMPARE(m->wahl_Gleichung, 108);
    QCOMPARE(m->g_ZwillingJa, 1);
    QCOMPARE(m->Max_Iterationen, 100);
}

void TestStartwerte::palettenFarben_data() {
    QTest::addColumn<int>("nummer");
    QTest::addColumn<int>("farben");
    QTest::addColumn<QString>("zahl");
    QTest::newRow("three colours, table 12") << 1 << 582 << "2";
    QTest::newRow("six colours, table 32") << 5 << 582 << "3";
    QTest::newRow("spectrum, table 6") << 9 << 512 << "1";
    QTest::newRow("spectrum, table 9") << 110 << 512 << "1";
}

void TestStartwerte::palettenFarben() {
    QFETCH(int, nummer);
    m->wahl_Gleichung = nummer;
    m->Initialisierung();
    QTEST(m->g_Max_rgbFarben, "farben");
    QTEST(m->g_PalettenZahl, "zahl");
}

void TestStartwerte::orbitStart_data() {
    QTest::addColumn<int>("halbesBild");
    QTest::addColumn<QPoint>("start");
    QTest::newRow("full picture") << 0 << QPoint(422, 250);
    QTest::newRow("quarter") << 1 << QPoint(211, 125);
    QTest::newRow("preview") << 10 << QPoint(211, 125);
}

void TestStartwerte::orbitStart() {
    QFETCH(int, halbesBild);
    m->g_halbesBild = halbesBild;
    m->Initialisierung();
    QTEST(QPoint(m->OPx, m->OPy), "start");
}

void TestStartwerte::vorschaugroesse_data() {
    QTest::addColumn<QSize>("vorher");
    QTest::addColumn<QSize>("nachher");
    QTest::newRow("unset") << QSize(0, 90) << QSize(100, 0);
    QTest::newRow("default with height") << QSize(100, 64) << QSize(100, 0);
    QTest::newRow("own size") << QSize(101, 64) << QSize(101, 64);
}

void TestStartwerte::vorschaugroesse() {
    QFETCH(QSize, vorher);
    m->g_PixVorschauX = vorher.width();
    m->g_PixVorschauY = vorher.height();
    m->Initialisierung();
    QTEST(QSize(m->g_PixVorschauX, m->g_PixVorschauY), "nachher");
}

void TestStartwerte::seitenverhaeltnis_data() {
    QTest::addColumn<QSize>("groesse");
    QTest::addColumn<double>("vorher");
    QTest::addColumn<double>("nachher");
    QTest::newRow("narrowest picture") << QSize(21, 40) << 0.9 << 40.0;
    QTest::newRow("strip only") << QSize(20, 40) << 0.9 << 0.9;
    QTest::newRow("narrower than the strip") << QSize(5, 40) << 0.0 << 1.0;
    QTest::newRow("no height") << QSize(300, 0) << qInf() << 1.0;
}

void TestStartwerte::seitenverhaeltnis() {
    QFETCH(QSize, groesse);
    QFETCH(double, vorher);
    m->resize(groesse);
    QCOMPARE(m->size(), groesse);
    m->g_Bildverhaeltnis = vorher;
    m->Initialisierung();
    QTEST(m->g_Bildverhaeltnis, "nachher");
}

QTEST_MAIN(TestStartwerte)
#include "test_startwerte.moc"
