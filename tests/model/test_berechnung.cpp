#include "Bildprobe.h"

#include "model/Platzierung.h"
#include "model/Signatur.h"

namespace {

constexpr int Unberuehrt = -77; ///< a count that no picture stores

template <class Bild>
void allesUnberuehrt(Bild& bild) {
    for (auto& zeile : bild) {
        zeile.fill(Unberuehrt);
    }
}

/// Escape count of z*z + c under the measure |z|^2, spelled out.
int flucht(double zx, double zy, double cx, double cy) {
    int n = 1;
    double mass = 0.0;
    do {
        const double neu = zx * zx - zy * zy + cx;
        zy = (zx + zx) * zy + cy;
        zx = neu;
        mass = zy * zy + zx * zx;
        ++n;
    } while (n < 50 && mass < 400.0);
    return n;
}

/// Looks at every count of a picture of equation 1 or 2: rechteck is columns, rows and width of the
/// placement. Its border stores 0, beside it nothing is touched.
template <class Bild>
void pruefeZaehler(const M& m, const Bild& bild, const QList<int>& rechteck) {
    const double schritt = std::abs(m.R_Max - m.R_Min) / rechteck[4];
    const int mitte = (rechteck[2] + rechteck[3]) / 2;
    const int oben = m.g_oberesHalbbild == 2 ? mitte : rechteck[2];
    const int unten = m.g_oberesHalbbild == 1 ? mitte : rechteck[3];
    double y = m.I_Max;
    for (int zeile = 0; zeile + 1 < int(bild.size()); ++zeile) {
        double x = m.R_Min;
        for (int spalte = 0; spalte < int(bild[0].size()); ++spalte) {
            int soll = Unberuehrt;
            if (zeile >= oben && zeile < unten && spalte >= rechteck[0] && spalte < rechteck[1]) {
                const bool rahmen = zeile == rechteck[2] || zeile == rechteck[3] - 1 ||
                                    spalte == rechteck[0] || spalte == rechteck[1] - 1;
                soll = rahmen             ? 0
                       : m.g_JuliaJa == 1 ? flucht(x, y, m.CJ_x, m.CJ_y)
                                          : flucht(0.0, 0.0, x, y);
                x += schritt;
            }
            const int ist = bild[std::size_t(zeile) + 1][std::size_t(spalte)];
            if (ist != soll) {
                QCOMPARE(QString("%1, %2: %3").arg(spalte).arg(zeile).arg(ist),
                         QString("%1, %2: %3").arg(spalte).arg(zeile).arg(soll));
            }
        }
        y -= zeile >= oben ? schritt : 0.0;
    }
}

QList<int> ganze(const QString& text) {
    QList<int> werte;
    for (const QString& wort : text.split(' ', Qt::SkipEmptyParts)) {
        werte << wort.toInt();
    }
    return werte;
}

QStringList meldungen;

} // namespace

class TestBerechnung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void plaetze_data() { zeilenAus("model/platzierung.txt"); }
    void plaetze() {
        QFETCH(QStringList, spalten);
        const QList<int> g = ganze(spalten[1]);
        const Rechteck r =
            platzierung(spalten[0].toInt(), {g[0], g[1], g[0] / 2, g[1] / 2, g[2], g[3]});
        QCOMPARE((QList<int>{int(r.x0), int(r.x1), int(r.y0), int(r.y1)}), ganze(spalten[2]));
    }

    void modus() {
        // mode before, request, mode after: computing ends a preview, changed parameters make one
        for (const auto& [vorher, anforderung, nachher] :
             std::initializer_list<std::array<int, 3>>{{2, 1, 2},
                                                       {12, 1, 2},
                                                       {10, 1, 0},
                                                       {300, 1, 0},
                                                       {3, 3, 13},
                                                       {0, 3, 10},
                                                       {14, 3, 14},
                                                       {400, 3, 400},
                                                       {11, 0, 11},
                                                       {11, 2, 11},
                                                       {5, 3, 5}}) {
            QCOMPARE(modusNachAnforderung(vorher, anforderung), nachher);
        }
    }

    void bild_data() { zeilenAus("model/bilder.txt"); }
    void bild() {
        QFETCH(QStringList, spalten);
        const QList<int> groesse = ganze(spalten[0]);
        const auto m = bildprobe(groesse[0], groesse[1]);
        setze(*m, spalten[1]);
        allesUnberuehrt(m->ImageIntegers);
        allesUnberuehrt(m->ImageViertelIntegers);
        malen(*m);
        QCOMPARE(abweichung(*m, spalten[2]), QString());
        if (spalten.size() > 3) {
            const bool matrix = m->zahl_Matrix == 1000;
            const QList<int> leer{0, 0, 0, 0, 1};
            pruefeZaehler(*m, m->ImageIntegers, matrix ? leer : ganze(spalten[3]));
            pruefeZaehler(*m, m->ImageViertelIntegers, matrix ? ganze(spalten[3]) : leer);
        }
    }

    void neu_data() { zeilenAus("model/neu.txt"); }
    void neu() {
        QFETCH(QStringList, spalten);
        const auto m = bildprobe(60, 40);
        setze(*m, spalten[0]);
        const QImage vorher = malen(*m);
        m->ImageIntegers[10][9] = Unberuehrt;
        setze(*m, spalten[1]);
        const bool kreuz = m->g_MittelkreuzJa == 1;
        const QImage nachher = malen(*m);
        QCOMPARE(m->ImageIntegers[10][9] == Unberuehrt ? "kept" : "new", spalten[2]);
        QCOMPARE(abweichung(*m, spalten.value(3)), QString());
        QVERIFY(spalten[2] == "new" || (nachher.pixel(30, 5) != vorher.pixel(30, 5)) == kreuz);
        malen(*m);
        QCOMPARE(m->g_RechnenJa, 0);
    }

    void loeschen() {
        for (const auto& [art, orbit, anzahl] :
             std::initializer_list<std::array<int, 3>>{{1, 0, 0}, {2, 0, 50}, {2, 1, 50}}) {
            const auto m = bildprobe(60, 40);
            m->g_OrbitJa = orbit;
            malen(*m);
            m->g_BildLoeschen = art;
            for (int mal = 0; mal < 2; ++mal) { // and stays cleared
                malen(*m);
                QCOMPARE(abweichung(*m, "g_BildLoeschen=0 wahl_Gleichung=1"), QString());
                QCOMPARE(m->ImageIntegers[20][30], anzahl);
                QCOMPARE(m->ImageDoubles[20][30], 0.0);
            }
        }
    }

    void fortschritt() {
        const auto m = bildprobe(30, 130);
        meldungen.clear();
        const auto vorher = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext& ort, const QString& text) {
                meldungen << text << ort.file << ort.function;
            });
        malen(*m);
        qInstallMessageHandler(vorher);
        const QString datei = "Mandelbrot";
        const QString ort = "void Mandelbrot::Berechnung(QPainter*)";
        QCOMPARE(meldungen, QStringList({"Zeile = 0", datei, ort, "Zeile = 60", datei, ort,
                                         "Zeile = 120", datei, ort}));
        QCOMPARE(m->g_Zeile, 120);
    }

    void vorschauMasse() {
        const auto m = bildprobe(400, 200);
        const auto schritt = [&m](const char* vorher, const char* nachher) {
            setze(*m, vorher);
            malen(*m);
            QCOMPARE(abweichung(*m, nachher), QString());
        };
        // From the first paint of the preview on; changed parameters turn it into its picture.
        schritt("g_PixVorschauX=160 g_PixVorschauY=90 g_RechnenJa=3", "g_Bildverhaeltnis=0.5625");
        schritt("g_RechnenJa=1 Max_Iterationen=51", "g_halbesBild=0 g_Bildverhaeltnis=0.5 Br_y=2");
        schritt("g_PixVorschauX=100 g_PixVorschauY=0", "g_PixVorschauY=50");
        m->resize(421, 200);
        schritt("g_PixVorschauX=130 g_PixVorschauY=0 g_RechnenJa=3",
                "g_PixVorschauY=64 g_Bildverhaeltnis=0.49230769230769234"); // 64 / 130
    }

    void signaturSumme() {
        const auto m = std::make_unique<M>();
        setze(*m, "Max_Iterationen=2000000000 g_JuliaJa=1 g_halbesBild=2 g_linienLoeschenJa=3 "
                  "g_ZwillingJa=4 g_UnDo=5 OPx=600 OPy=7000 g_OrbitJa=80000 g_OrbitDuennJa=21 "
                  "g_maxOrbitIterat=256 g_GenauJa=100 g_zycmax=24 glg_Abbruch=500000 "
                  "wahl_Gleichung=30000000 g_oberesHalbbild=1000 g_kPotenz=10000");
        setze(*m, "wert_Abbruch=0.5 g_Bildverhaeltnis=0.5 MP_x=0.5 MP_y=0.5 g_Genauigkeit=0.5 "
                  "CJ_x=0.5 CJ_y=0.5 Koppl_x=0.5 Koppl_y=0.5 Br_x=1e16"); // swallows single halves
        signaturBilden(*m, 60, 40);
        const qint64 soll = 2000000000LL + 2 * 1 + 3 * 2 + 23 * 3 + 17 * 4 + 31 * 5 + 600 + 7000 +
                            80000 + 2 * 21 + 3 * 256 + 5 * 100 + 9 * 24 + 13 * 500000 +
                            11 * 30000000 + 7 * 1000 + 29 * 10000;
        QCOMPARE(qint64{m->bilddatenInteger}, soll - (qint64{1} << 32)); // wrapped
        QCOMPARE(m->bilddatenDouble, 1e16 + 4.0); // 2 and 2.5 added, each rounded to even numbers
        QCOMPARE(m->bilddatenSumme, m->bilddatenInteger + m->bilddatenDouble);
    }

    void absurd_data() { zeilenAus("model/absurd.txt"); }
    void absurd() {
        QFETCH(QStringList, spalten);
        for (const QString ganz :
             {"g_PixConstX=2147483647 g_PixConstY=2147483647 g_PixVorschauX=1 g_halbesBild=14",
              "wahl_Gleichung=-5 g_PixConstX=-1 g_PixConstY=-1 zahl_Matrix=1000 OPx=-9 OPy=-9",
              "wahl_Gleichung=90000000 g_PixConstX=3 g_PixConstY=3 zahl_Matrix=-7 OPx=5 OPy=5",
              "wahl_Gleichung=99 zahl_Matrix=1000 OPx=2147483647 OPy=2147483647 g_halbesBild=400",
              "wahl_Gleichung=8 g_PixConstX=5000 g_PixConstY=5000 zahl_Matrix=2147483647",
              "wahl_Gleichung=511 g_halbesBild=2147483647 OPx=-2147483647 OPy=-2147483647"}) {
            const auto m = bildprobe(50, 40);
            setze(*m, "Max_Iterationen=3 g_GitterJa=1 " + ganz + " " + spalten[0]);
            for (const char* anforderung :
                 {"g_RechnenJa=1", "g_RechnenJa=3", "g_RechnenJa=2 g_OrbitJa=5",
                  "g_RechnenJa=0 g_OrbitJa=0"}) {
                setze(*m, anforderung);
                malen(*m);
            }
            QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(20, 10));
            malen(*m);
            QVERIFY(m->Bildflaeche.width() <= M::BildMax + 20);
            QVERIFY(m->Bildflaeche.height() <= M::BildMax);
        }
    }

    void unsichtbarUndWinzig() {
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
        m->show();
        for (const QSize groesse : {QSize(1, 1), QSize(20, 50), QSize(21, 1), QSize(1500, 1300)}) {
            m->resize(groesse);
            m->g_RechnenJa = 1;
            malen(*m);
        }
        QCOMPARE(m->Bildflaeche.size(), QSize(1220, 1200));
    }
};

QTEST_MAIN(TestBerechnung)
#include "test_berechnung.moc"
