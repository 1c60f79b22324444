#include "Bildprobe.h"

// The driver: what it computes where and when, and the clicks that send it there.

namespace {

constexpr int Unberuehrt = -77; ///< a count that no picture stores
using Komplex = std::complex<double>;

/// Escape count of z*z + c under the measure |z|^2, spelled out.
int flucht(Komplex z, Komplex c) {
    int n = 1;
    do {
        z = {z.real() * z.real() - z.imag() * z.imag() + c.real(),
             2 * z.real() * z.imag() + c.imag()};
        ++n;
    } while (n < 50 && std::norm(z) < 400.0);
    return n;
}

/// The first wrong count of a picture of equation 1 or 2: rechteck is columns, rows and width of
/// the placement. Its border stores 0, beside it nothing is touched.
template <class Bild>
QString falscherZaehler(const M& m, const Bild& bild, const QList<int>& rechteck) {
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
                       : m.g_JuliaJa == 1 ? flucht({x, y}, {m.CJ_x, m.CJ_y})
                                          : flucht(0.0, {x, y});
                x += schritt;
            }
            const int ist = bild[std::size_t(zeile) + 1][std::size_t(spalte)];
            if (ist != soll) {
                return QString("%1, %2: %3, not %4").arg(spalte).arg(zeile).arg(ist).arg(soll);
            }
        }
        y -= zeile >= oben ? schritt : 0.0;
    }
    return {};
}

} // namespace

class TestBerechnung : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void bild_data() { zeilenAus("model/bilder.txt"); }
    void bild() {
        QFETCH(QStringList, spalten);
        const QList<int> groesse = liste(spalten[0]);
        const auto m = bildprobe(groesse[0], groesse[1]);
        setze(*m, spalten[1]);
        std::ranges::for_each(m->ImageIntegers, [](auto& zeile) { zeile.fill(Unberuehrt); });
        std::ranges::for_each(m->ImageViertelIntegers, [](auto& zeile) { zeile.fill(Unberuehrt); });
        malen(*m);
        QCOMPARE(abweichung(*m, spalten[2]), QString());
        if (spalten.size() > 3) {
            const QList<int> leer{0, 0, 0, 0, 1}, voll = liste(spalten[3]);
            const bool matrix = m->zahl_Matrix == 1000;
            QCOMPARE(falscherZaehler(*m, m->ImageIntegers, matrix ? leer : voll), QString());
            QCOMPARE(falscherZaehler(*m, m->ImageViertelIntegers, matrix ? voll : leer), QString());
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
        for (const QString felder : {"1", "2", "2 g_OrbitJa=1", "1 g_RechnenJa=3"}) {
            const auto m = bildprobe(60, 45);
            malen(*m, "g_PixVorschauX=20 g_PixVorschauY=20");
            setze(*m, "g_BildLoeschen=" + felder);
            const int anzahl = m->g_BildLoeschen == 1 ? 0 : 50;
            for (int mal = 0; mal < 2; ++mal) { // and stays cleared
                malen(*m);
                QCOMPARE(abweichung(*m, "g_BildLoeschen=0 wahl_Gleichung=1 g_halbesBild=0 Br_y=3"),
                         QString()); // with the picture's geometry, never a preview's
                QCOMPARE(m->ImageIntegers[20][30], anzahl);
                QCOMPARE(m->ImageDoubles[20][30], 0.0);
            }
        }
    }

    void klick_data() { zeilenAus("model/klicks.txt"); }
    void klick() {
        QFETCH(QStringList, spalten);
        const QList<int> stelle = liste(spalten[0]);
        const auto m = bildprobe(stelle.value(2, 800), stelle.value(3, 600));
        setze(*m, "Br_x=4 Br_y=3 click2_Zoom=0.5 g_RechnenJa=0 g_Bildverhaeltnis=0.75");
        setze(*m, spalten[1]);
        m->BildbreiteNeueEckpunkte();
        QStringList folge;
        connect(m.get(), &M::WerteAktualisierenSignal, this, [&] { folge << "Werte"; });
        connect(m.get(), &M::NeueBerechnungSignal, this, [&] { folge << "Neu"; });
        QTest::mousePress(m.get(), Qt::RightButton, {}, QPoint(stelle[0], stelle[1]));
        const bool angenommen = spalten[2] != "refused";
        QCOMPARE(folge.join(' '), angenommen ? "Werte Neu" : "");
        QCOMPARE(abweichung(*m, angenommen ? spalten[2] : "MP_x=-0.5 Br_x=4 g_RechnenJa=0"),
                 QString());
    }

    // Whatever fields and sizes: no crash, nothing beyond the buffers, paths that can be drawn.
    void absurd_data() { zeilenAus("model/absurd.txt"); }
    void absurd() {
        QFETCH(QStringList, spalten);
        for (const QStringList& ganz : tabelle("model/absurde_ganze.txt")) {
            const auto m = bildprobe(50, 40);
            setze(*m, "Max_Iterationen=3 g_GitterJa=1 " + ganz[0] + " " + spalten[0]);
            for (const char* anforderung :
                 {"g_RechnenJa=1", "g_RechnenJa=3", "g_RechnenJa=2 g_OrbitJa=5 g_OrbitDuennJa=20",
                  "g_RechnenJa=0 g_OrbitJa=0"}) {
                setze(*m, anforderung);
                malen(*m);
            }
            QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(20, 10));
            malen(*m);
            QVERIFY(m->Bildflaeche.width() <= M::BildMax + 20);
            QVERIFY(m->Bildflaeche.height() <= M::BildMax);
            const QRectF pfad = m->polygonPathM1.controlPointRect();
            QVERIFY(pfad.isEmpty() || QRectF(-1e6, -1e6, 2e6, 2e6).contains(pfad));
        }
    }

    void unsichtbar() {
        const auto m = bildprobe(60, 130);
        m->hide();
        QImage ziel(80, 130, QImage::Format_ARGB32_Premultiplied);
        ziel.fill(Qt::magenta);
        QPainter maler(&ziel);
        m->Berechnung(&maler);
        QCOMPARE(m->g_RechnenJa, 1);
        QCOMPARE(ziel.pixelColor(30, 20), QColor(Qt::magenta));
        for (const char* fortschritt : {"Zeile = 0", "Zeile = 60", "Zeile = 120"}) {
            QTest::ignoreMessage(QtDebugMsg, fortschritt);
        }
        m->show();
        malen(*m);
    }
};

QTEST_MAIN(TestBerechnung)
#include "test_berechnung.moc"
