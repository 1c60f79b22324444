#include "equations/Gleichungen.h"
#include "Texttabelle.h"

class TestStartwerte : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m = std::make_unique<M>();

  private Q_SLOTS:
    void jedeGleichung() {
        for (const Gleichung& gleichung : gleichungen()) {
            const QString nummer = QString::number(gleichung.nummer);
            QString soll, palette;
            for (const QStringList& zeile : tabelle("equations/startwerte.txt")) {
                if (zeile[0] == "all" || zeile[0].split(' ').contains(nummer)) {
                    soll += zeile[1] + ' '; // the last number of a field counts
                    palette = zeile.value(2, palette);
                }
            }
            for (const auto& [name, wert] : zahlen(soll)) {
                setzeFeld(*m, Felder.at(name), 77.0);
            }
            m->wahl_Gleichung = gleichung.nummer;
            m->Orbitmodus = 2;
            m->Initialisierung();
            QCOMPARE(nummer + abweichung(*m, soll), nummer);
            QCOMPARE(m->g_PalettenZahl, palette);
            QCOMPARE(m->Orbitmodus, 0);
        }
    }

    void fall_data() { zeilenAus("equations/startfaelle.txt"); }
    void fall() {
        QFETCH(QStringList, spalten);
        m->wahl_Gleichung = 1;
        m->resize(spalten[0].section('x', 0, 0).toInt(), spalten[0].section('x', 1).toInt());
        m->zahl_Matrix = 11;
        setze(*m, spalten[1]);
        m->Initialisierung();
        QCOMPARE(abweichung(*m, spalten[2]), QString());
    }

    // The first time all pictures and lists are emptied, later none.
    void ersterAufruf() {
        const auto zellen = std::tie(
            m->ImageDoubles[1200][1199], m->ImageViertelDoubles[300][299], m->UnDo0Doubles[299],
            m->UnDo1Doubles[0], m->UnDo2Doubles[0], m->UnDo3Doubles[0], m->UnDo4Doubles[0],
            m->OrbitX[258], m->OrbitY[258], m->ImageIntegers[0][0], m->ImageGitterIntegers[1][0],
            m->ImageViertelIntegers[0][5], m->ImageViertelGitterIntegers[7][0],
            m->UnDo0Integers[299], m->UnDo4Integers[0]);
        for (const int soll : {0, 1}) {
            std::apply([](auto&... zelle) { ((zelle = 1), ...); }, zellen);
            m->initIstdurchJa = soll;
            m->g_halbesBild = ViertelRechtsOben;
            m->Initialisierung();
            QVERIFY(std::apply([&](auto... zelle) { return ((zelle == soll) && ...); }, zellen));
            QCOMPARE(m->g_halbesBild, soll == 0 ? ViertelLinksOben : ViertelRechtsOben);
            QCOMPARE(m->initIstdurchJa, 1);
        }
    }
};

QTEST_MAIN(TestStartwerte)
#include "test_startwerte.moc"
