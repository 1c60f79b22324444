#include "Bildprobe.h"

#include "model/Orbitliste.h"

#include <complex>

namespace {

const QString Innen = "OPx=95 OPy=75 "; ///< a start pixel inside the set

/// A painted picture of equation 1, then the orbit switched on and what else is given. Without the
/// given the orbit is white, thin and starts at pixel (60, 40).
std::unique_ptr<M> orbitprobe(const QString& felder = {}, const QSize& groesse = {201, 151}) {
    auto m = bildprobe(groesse.width(), groesse.height());
    m->Br_x = 4.0;
    malen(*m);
    setze(*m, "g_OrbitJa=1 g_OrbitDuennJa=1 OPx=60 OPy=40 " + felder);
    return m;
}

QImage malen(M& m, const QString& felder) {
    setze(m, felder);
    return malen(m);
}

/// Pixels by which two pictures differ.
QList<QPoint> unterschiede(const QImage& a, const QImage& b) {
    QList<QPoint> punkte;
    for (int i = 0; i < a.width() * a.height(); ++i) {
        const QPoint punkt(i % a.width(), i / a.width());
        if (a.pixel(punkt) != b.pixel(punkt)) {
            punkte << punkt;
        }
    }
    return punkte;
}

/// A list whose every number is different, so that exchanged fields show.
Orbitlistendaten listenbeispiel() {
    // clang-format off
    return {.zeit = QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2)), .version = "1.5", .gleichung = "Z*Z+C",
            .mittelX = -0.5, .mittelY = 0.25, .breite = 4.0, .maxIterationen = 256, .maxZyklen = 7,
            .abbruch = 3, .abbruchwert = 100.0, .zwilling = 4, .kopplX = 1.5, .kopplY = -2.5,
            .juliaX = 0.125, .juliaY = -0.75, .potenz = 10, .vomMittelpunkt = false, .maxPunkte = 120,
            .startX = 0.123456789, .startY = -2.0, .abIteration = 10,
            .punkte = {{-1.0, 0.5, 11, 22}, {0.25, -0.5, 301, 412}}};
    // clang-format on
}

} // namespace

class TestOrbit : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void punkte() {
        // most points, from which iteration on, points recorded of 20 iterations
        for (const auto& [hoechstens, ab, anzahl] : std::initializer_list<std::array<int, 3>>{
                 {256, 0, 19}, {5, 0, 5}, {256, 9, 10}, {0, 0, 0}, {-8, 0, 0}}) {
            const auto m = orbitprobe(Innen + "Max_Iterationen=20");
            m->g_maxOrbitIterat = hoechstens;
            m->g_OrbitAbIterAn = ab;
            malen(*m);
            QCOMPARE(m->OZaehler, anzahl);
            double cx = m->R_Min;
            double cy = m->I_Max;
            for (int i = 0; i < 95; ++i) {
                cx += 4.0 / 201;
                cy -= i < 75 ? 4.0 / 201 : 0.0;
            }
            std::complex<double> z(cx, cy);
            for (int n = 0; n <= ab + anzahl; ++n) {
                if (n == 0 || n > ab) {
                    const auto i = std::size_t(std::max(n - ab, 0));
                    QCOMPARE(m->OrbitX[i], z.real());
                    QCOMPARE(m->OrbitY[i], z.imag());
                }
                z = n == 0 ? z : z * z + std::complex(cx, cy);
            }
            QCOMPARE(m->OrbitX[std::size_t(anzahl) + 1], 1000.123456789); // the end mark
        }
    }

    // Mandelbrot type: the constant; Julia type: the start value, unless its parts cancel each
    // other. 64 pixels a plane unit: coordinates are exact.
    void startpunkt() {
        const auto m = orbitprobe({}, {256, 192});
        for (const auto& [felder, x, text] :
             std::initializer_list<std::tuple<QString, double, QString>>{
                 {"MP_x=0 OPx=42 OPy=11", -2.0 + 42 / 64.0, "(-1.34375, 1.32813) Pixel (42, 11)"},
                 {"wahl_Gleichung=2 CJ_x=0.375", -2.0 + 42 / 64.0,
                  "(-1.34375, 1.32813) Pixel (42, 11)"},
                 {"OPy=10", 0.375, "(0.375, "},
                 {"g_OrbitMP=1 MP_x=0.25", 0.25, "(0.25, 0) Pixel (128, 96)"}}) {
            malen(*m, felder);
            QCOMPARE(m->OrbitX[0], x);
            QVERIFY2(m->g_OrbitStartString.startsWith(text), qPrintable(m->g_OrbitStartString));
        }
        QCOMPARE(orbitstart(-0.123456789, std::numeric_limits<double>::quiet_NaN(), 301, -4),
                 QString("(-0.123457, nan) Pixel (301, -4)"));
    }

    void pfade() {
        const auto m = orbitprobe("g_OrbitDuennJa=20 g_maxOrbitIterat=3 MP_x=0 OPx=50 OPy=75",
                                  {200, 150}); // c = -1, 50 pixels a plane unit
        malen(*m);
        QCOMPARE(m->polygonPathM1.elementCount(), 4);
        QVERIFY(std::abs(m->OrbitX[1] + 1.0) < 1e-9);
        for (int i = 0; i <= 3; ++i) {
            const QPointF soll = i == 0 ? QPointF(50, 75)
                                        : QPointF(100 + std::trunc(50 * m->OrbitX[std::size_t(i)]),
                                                  75 - std::trunc(50 * m->OrbitY[std::size_t(i)]));
            QCOMPARE(QPointF(m->polygonPathM1.elementAt(i)), soll);
            QCOMPARE(QPointF(m->polygonPathM2.elementAt(i)), soll + QPointF(1, 1));
            QCOMPARE(QPointF(m->polygonPathM3.elementAt(i)), soll + QPointF(1, 0));
            QCOMPARE(QPointF(m->polygonPathM4.elementAt(i)), soll + QPointF(0, 1));
        }
    }

    // The polygon lies on the pixels that show its points, also with the orbit from the centre.
    void lage_data() { zeilenAus("model/orbitlage.txt"); }
    void lage() {
        QFETCH(QStringList, spalten);
        const QStringList zahl = spalten[1].split(' ');
        const QRectF r(zahl[0].toInt(), zahl[1].toInt(), zahl[2].toInt(), zahl[3].toInt());
        const auto m = bildprobe(416, 320);
        setze(*m, "MP_x=-0.9 MP_y=0.2 Br_x=2.5 g_maxOrbitIterat=6 " // jumps to and fro
                  "g_PixVorschauX=160 g_PixVorschauY=80 g_RechnenJa=1 " +
                      spalten[0]);
        const int anforderung = m->g_RechnenJa == 3 ? 3 : 0;
        malen(*m);
        const QImage bild = malen(*m, "g_OrbitJa=5 g_OrbitDuennJa=1 g_OrbitMP=1");
        QCOMPARE(QPointF(m->OPx, m->OPy), QPointF(r.width() / 2, r.height() / 2));
        QCOMPARE(m->polygonPathM1.elementCount(), 6); // the first iterate is the start point
        for (int i = 0; i < 6; ++i) {
            const QPointF ist = m->polygonPathM1.elementAt(i);
            const QPointF z(m->OrbitX[std::size_t(i) + 1] - m->MP_x,
                            m->MP_y - m->OrbitY[std::size_t(i) + 1]);
            QVERIFY((ist - (r.center() + z * r.width() / m->Br_x)).manhattanLength() <= 3.0);
            QCOMPARE(bild.pixelColor(ist.toPoint()), QColor(255, 255, 0));
        }
        m->g_RechnenJa = anforderung;
        QCOMPARE(malen(*m), bild);
    }

    void dickeUndSammlung() {
        // kind, kind afterwards, is the orbit drawn before seen, thick
        for (const auto& [art, danach, alle, dick] :
             std::initializer_list<std::array<int, 4>>{{0, 0, 0, 1},
                                                       {1, 1, 0, 0},
                                                       {20, 20, 1, 1},
                                                       {21, 21, 1, 0},
                                                       {200, 0, 0, 1},
                                                       {201, 1, 0, 0}}) {
            const auto m = orbitprobe("g_OrbitJa=0 g_maxOrbitIterat=2");
            const QImage ohne = malen(*m);
            const auto erster = unterschiede(ohne, malen(*m, "g_OrbitJa=4 OPx=150 OPy=20"));
            const auto zweiter = unterschiede(ohne, malen(*m, "OPx=40 OPy=100"));
            QVERIFY(erster.size() > 10 && zweiter.size() > 10);
            m->g_OrbitDuennJa = art;
            const auto jetzt = unterschiede(ohne, malen(*m));
            QCOMPARE(m->g_OrbitDuennJa, danach);
            QCOMPARE(jetzt.contains(erster[5]), alle == 1);
            QVERIFY(jetzt.contains(zweiter[5]));
            QCOMPARE(jetzt.contains(zweiter[5] + QPoint(1, 1)) &&
                         jetzt.size() > zweiter.size() * 3 / 2 &&
                         jetzt.contains(zweiter[7] + QPoint(0, 1)),
                     dick == 1);
            QVERIFY(art < 200 || m->polygonPathM1.elementCount() == 1 + m->OZaehler);
        }
    }

    void farben() {
        // the start pixel and below, right, both
        const QStringList soll{
            "#ffffff #ffffff #ffffff #ffffff", "#ffffff #ffffff #ffffff #ffffff",
            "#000000 #000000 #000000 #000000", "#808080 #808080 #808080 #808080",
            "#ff0000 #ff0000 #ff0000 #ff0000", "#ffff00 #5050ff #00ff00 #ff0000"};
        for (const int farbe : {1, 2, 3, 4, 5, 77}) {
            const auto m = orbitprobe("g_maxOrbitIterat=2 OPx=150 OPy=20");
            m->g_OrbitJa = farbe;
            QStringList ist{malen(*m).pixelColor(150, 20).name()};
            const QImage dick = malen(*m, "g_OrbitDuennJa=0");
            ist << dick.pixelColor(150, 21).name() << dick.pixelColor(151, 20).name()
                << dick.pixelColor(151, 21).name();
            QCOMPARE(ist.join(' '), soll[farbe % 77]);
        }
    }

    // A repaint draws the orbit again without collecting it twice or touching the zoom factor.
    void unveraendertesOrbit() {
        const auto m = orbitprobe("g_OrbitDuennJa=21 click2_Zoom=0.5");
        const QImage erst = malen(*m);
        QCOMPARE(m->click2_Zoom, 1.0);
        const int elemente = m->polygonPathM1.elementCount();
        QCOMPARE(malen(*m, "click2_Zoom=0.25"), erst);
        QCOMPARE(m->polygonPathM1.elementCount(), elemente);
        QCOMPARE(m->click2_Zoom, 0.25);
        malen(*m, "OPx=61");
        QVERIFY(m->polygonPathM1.elementCount() > elemente);
        QCOMPARE(m->click2_Zoom, 1.0);
        const int mitZweitem = m->polygonPathM1.elementCount();
        malen(*m, "OPx=500"); // outside the picture
        QCOMPARE(m->polygonPathM1.elementCount(), mitZweitem);
    }

    // Recording an orbit leaves values and counts as they are, also where the kernels keep a
    // history; with request 0 the start pixel is iterated for its orbit only.
    void bildBleibt() {
        const auto m = orbitprobe("g_OrbitJa=0 glg_Abbruch=5 g_Genauigkeit=0.05 wert_Abbruch=150");
        malen(*m);
        const auto werte = std::make_unique<M::Bild<double>>(m->ImageDoubles);
        const auto zaehler = std::make_unique<M::Bild<qint32>>(m->ImageIntegers);
        std::fill_n(m->ImageIntegers[76].begin(), 201, -77);
        malen(*m, Innen + "g_OrbitJa=1 g_RechnenJa=2");
        for (std::size_t zeile = 1; zeile <= 151; ++zeile) {
            QVERIFY(m->ImageDoubles[zeile] == (*werte)[zeile]);
            QVERIFY(m->ImageIntegers[zeile] == (*zaehler)[zeile]);
        }
        m->ImageIntegers[76][95] = -77;
        m->g_RechnenJa = 0;
        malen(*m);
        QCOMPARE(m->ImageIntegers[76][95], -77);
    }

    void aenderungSchaltetAus() {
        const auto m = orbitprobe();
        malen(*m);
        QSignalSpy aus(m.get(), &M::OrbitOffSignal);
        m->ImageIntegers[20][20] = -77;
        m->BildbreiteMalD(0.5);
        malen(*m);
        QCOMPARE(aus.count(), 1);
        QCOMPARE(m->ImageIntegers[20][20], -77);
        malen(*m, "g_OrbitMP=1"); // from the centre it stays on, also in the preview
        QCOMPARE(aus.count(), 1);
        QCOMPARE(abweichung(*m, "g_halbesBild=10 OPx=50"), QString());
        QCOMPARE(m->OrbitX[0], m->MP_x);
        // An orbit setting, but the preview gives way to its picture.
        malen(*m, "g_OrbitDuennJa=0 g_RechnenJa=1");
        QVERIFY(m->ImageIntegers[20][20] != -77);
    }

    void absurd() {
        for (const QString felder : {"wert_Abbruch=inf Br_x=4", "wert_Abbruch=1e300 Br_x=1e300",
                                     "Br_x=0", "Br_x=nan", "Br_x=1e-320"}) {
            const auto m = orbitprobe("g_OrbitJa=5 g_OrbitDuennJa=20 OPx=5 g_RechnenJa=2 "
                                      "g_maxOrbitIterat=2000000000 wert_Abbruch=400 " +
                                      felder);
            malen(*m);
            malen(*m);
            QVERIFY(m->OZaehler <= M::OrbitMax);
            for (int i = 0; i < m->polygonPathM1.elementCount(); ++i) {
                const QPointF p = m->polygonPathM1.elementAt(i);
                QVERIFY(std::abs(p.x()) <= 1e6 && std::abs(p.y()) <= 1e6);
            }
        }
    }

    void listeDesBildes() {
        const auto m = orbitprobe("g_maxOrbitIterat=3");
        malen(*m);
        const QString punkt = "2. (" + QString::number(m->OrbitX[2], 'f', 16) + ", ";
        QVERIFY2(m->g_OrbitListeHTMStr.contains(punkt), qPrintable(m->g_OrbitListeHTMStr));
        QVERIFY(m->g_OrbitListeHTMStr.contains(m->g_NameGlg));
        malen(*m, Innen + "g_maxOrbitIterat=300 Max_Iterationen=300"); // stays bounded
        QVERIFY(m->g_OrbitListeHTMStr.contains(">256. ("));
        QVERIFY(!m->g_OrbitListeHTMStr.contains(">257. ("));
    }

    void liste() {
        QFile datei(QFINDTESTDATA("orbitliste.txt"));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        const QString alles = QString::fromUtf8(datei.readAll()).remove('\n');
        const QString zwilling =
            "Zwilling = 4, KopplXY (1.5000000000000000, -2.5000000000000000)<br>";
        Orbitlistendaten daten = listenbeispiel();
        QCOMPARE(orbitliste(daten), alles);
        for (const int aus : {0, -1}) {
            daten.zwilling = aus;
            QCOMPARE(orbitliste(daten), QString(alles).remove(zwilling));
        }
        daten.vomMittelpunkt = true;
        QVERIFY(orbitliste(daten).contains(
            "K-Potenz= 10<br>Hinweise: Orbit vom Mittelpunkt <br>Für Fortsetzung: "));
        // At most 256 points; numbers beyond 32 bits.
        daten.abIteration = std::numeric_limits<qint32>::max();
        for (const int punkte : {0, 256, 257}) {
            daten.punkte.assign(std::size_t(punkte), {1.0, 2.0, -3, 4});
            const QString liste = orbitliste(daten);
            QCOMPARE(liste.count(". (1.0000000000000000, 2.0000000000000000) -3,4<br>"),
                     std::min(punkte, 256));
            QCOMPARE(liste.contains("<br>2147483903. ("), punkte > 0); // 2^31 - 1 + 256
        }
    }
};

QTEST_MAIN(TestOrbit)
#include "test_orbit.moc"
