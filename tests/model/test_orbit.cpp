#include "Bildprobe.h"

#include <QRegularExpression>

namespace {

const QString Innen = "OPx=95 OPy=75 "; ///< a start pixel inside the set

/// A painted picture of equation 1, then the orbit switched on and what else is given. Without the
/// given the orbit is white, thin and starts at pixel (60, 40).
std::unique_ptr<M> orbitprobe(const QString& felder = {}, const QSize& groesse = {201, 151}) {
    auto m = bildprobe(groesse.width(), groesse.height());
    malen(*m, "Br_x=4");
    setze(*m, "g_OrbitJa=1 g_OrbitDuennJa=1 OPx=60 OPy=40 " + felder);
    return m;
}

} // namespace

class TestOrbit : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void punkte() {
        // most points, from which iteration on, points recorded of 20 iterations
        for (const QString zeile : {"256 0 19", "5 0 5", "256 9 10", "0 0 0", "-8 0 0"}) {
            const QList<int> zahl = liste(zeile);
            const int ab = zahl[1], anzahl = zahl[2];
            const auto m = orbitprobe(Innen + "Max_Iterationen=20", {256, 192});
            m->g_maxOrbitIterat = zahl[0];
            m->g_OrbitAbIterAn = ab;
            malen(*m);
            QCOMPARE(m->OZaehler, anzahl);
            const std::complex<double> c(m->R_Min + 95 / 64.0, m->I_Max - 75 / 64.0);
            std::complex<double> z = c;
            for (int n = 1; n <= ab + anzahl; ++n) {
                if (n > ab) {
                    QCOMPARE(m->OrbitX[std::size_t(n - ab)], z.real());
                    QCOMPARE(m->OrbitY[std::size_t(n - ab)], z.imag());
                }
                z = z * z + c;
            }
            QCOMPARE(m->OrbitX[std::size_t(anzahl) + 1], 1000.123456789); // the end mark
        }
    }

    void startpunkt_data() { zeilenAus("model/orbitstart.txt"); }
    void startpunkt() {
        QFETCH(QStringList, spalten);
        const auto m = orbitprobe("MP_x=0 OPx=42 OPy=11 " + spalten[0], {256, 192});
        malen(*m);
        QCOMPARE(m->g_OrbitStartString, spalten[1]);
    }

    // The polygon lies on the pixels that show its points, also with the orbit from the centre.
    void lage_data() { zeilenAus("model/orbitlage.txt"); }
    void lage() {
        QFETCH(QStringList, spalten);
        const QList<int> zahl = liste(spalten[1]);
        const QRectF r(zahl[0], zahl[1], zahl[2], zahl[3]);
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

    void fernePunkte_data() { zeilenAus("model/orbitfern.txt"); }
    void fernePunkte() {
        QFETCH(QStringList, spalten);
        const auto m = orbitprobe("g_OrbitMP=1 " + spalten[0]);
        malen(*m);
        QString pfad;
        for (int i = 0; i < m->polygonPathM1.elementCount(); ++i) {
            const auto e = m->polygonPathM1.elementAt(i);
            pfad += QString::asprintf(" %s %.0f %.0f", e.isMoveTo() ? "M" : "L", e.x, e.y);
        }
        QCOMPARE(pfad.trimmed(), spalten[1]);
        QCOMPARE(m->polygonPathM2, m->polygonPathM1.translated(1, 1));
        QCOMPARE(m->polygonPathM3, m->polygonPathM1.translated(1, 0));
        QCOMPARE(m->polygonPathM4, m->polygonPathM1.translated(0, 1));
        QVERIFY2(m->g_OrbitListeHTMStr.contains(spalten[2]), qPrintable(m->g_OrbitListeHTMStr));
    }

    void farbenUndSammlung() {
        const QStringList farben{"#ffffff", "#ffffff", "#000000", "#808080", "#ff0000", "#ffff00"};
        for (const int farbe : {1, 2, 3, 4, 5, 77}) {
            const auto m = orbitprobe("g_maxOrbitIterat=2");
            m->g_OrbitJa = farbe;
            QCOMPARE(malen(*m).pixelColor(60, 40).name(), farben[farbe % 77]);
        }
        // kind, kind afterwards, is the orbit drawn before seen, thick
        for (const QString zeile :
             {"0 0 0 1", "1 1 0 0", "20 20 1 1", "21 21 1 0", "200 0 0 1", "201 1 0 0"}) {
            const QList<int> z = liste(zeile);
            const auto m = orbitprobe("g_OrbitJa=0 g_maxOrbitIterat=2");
            const QImage ohne = malen(*m);
            malen(*m, "g_OrbitJa=5 OPx=40 OPy=100");
            malen(*m, "OPx=150 OPy=20");
            const QImage bild = malen(*m, QString("g_OrbitDuennJa=%1").arg(z[0]));
            const auto farbe = [&](int x, int y) { return bild.pixelColor(x, y).name(); };
            QCOMPARE(m->g_OrbitDuennJa, z[1]);
            QCOMPARE(bild.pixel(40, 100) != ohne.pixel(40, 100), z[2] == 1);
            QCOMPARE(farbe(150, 20) == "#ffff00", z[3] == 0);
            QCOMPARE(farbe(150, 21) == "#5050ff", z[3] == 1);
            QCOMPARE(farbe(151, 20) + farbe(151, 21) == "#00ff00#ff0000", z[3] == 1);
            QVERIFY(z[0] < 200 || m->polygonPathM1.elementCount() == 1 + m->OZaehler);
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
        malen(*m, "g_OrbitJa=0"); // only the comparison is forgotten
        const QString liste = m->g_OrbitListeHTMStr;
        QVERIFY(m->polygonPathM1.elementCount() == elemente && !liste.isEmpty());
        malen(*m, "g_OrbitJa=1 g_OrbitDuennJa=21");
        QCOMPARE(m->polygonPathM1.elementCount(), 2 * elemente);
        QCOMPARE(m->click2_Zoom, 1.0);
        malen(*m, "OPx=61 click2_Zoom=0.5");
        QVERIFY(m->polygonPathM1.elementCount() > 2 * elemente);
        QCOMPARE(m->click2_Zoom, 1.0);
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
        m->ImageDoubles[0] = (*werte)[0]; // no picture row
        m->ImageIntegers[0] = (*zaehler)[0];
        QVERIFY(m->ImageDoubles == *werte);
        QVERIFY(m->ImageIntegers == *zaehler);
        m->ImageIntegers[76][95] = -77;
        malen(*m, "g_RechnenJa=0");
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

    void orbitliste() {
        QFile datei(QFINDTESTDATA("orbitliste.txt"));
        QVERIFY(datei.open(QIODevice::ReadOnly));
        const auto m =
            orbitprobe("MP_x=0.5 MP_y=0.25 OPx=42 OPy=11 g_maxOrbitIterat=3 g_zycmax=9 g_kPotenz=8 "
                       "CJ_x=0.125 CJ_y=-0.75 g_OrbitAbIterAn=1",
                       {256, 192});
        malen(*m);
        const QRegularExpression zeit("(\\d{4}-\\d\\d-)?\\d\\d \\d\\d:\\d\\d(:\\d\\d)?");
        QCOMPARE(QString(m->g_OrbitListeHTMStr).replace(zeit, "now"),
                 QString::fromUtf8(datei.readAll()).remove('\n'));
        malen(*m, "g_OrbitMP=1 g_ZwillingJa=4 Koppl_x=1.5 Koppl_y=-2.5");
        for (const QString teil :
             {"Zwilling = 4, KopplXY (1.5000000000000000, -2.5000000000000000)<br>C-Julia",
              "K-Potenz= 8<br>Hinweise: Orbit vom Mittelpunkt <br>Für Fortsetzung: "}) {
            QVERIFY2(m->g_OrbitListeHTMStr.contains(teil), qPrintable(teil));
        }
    }
};

QTEST_MAIN(TestOrbit)
#include "test_orbit.moc"
