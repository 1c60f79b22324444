#include "Meldung.h"
#include "Texttabelle.h"

namespace {

/// The record's fields in its order; the quarter is entry 1 of the integers.
const QStringList Ganze = QString("wahl_Gleichung g_ZwillingJa glg_Abbruch Max_Iterationen "
                                  "g_JuliaJa g_GenauJa g_oberesHalbbild g_zycmax g_MittelkreuzJa "
                                  "g_NullkreuzJa g_GitterJa")
                              .split(' ');
const QStringList Reelle = QString("Br_x MP_x MP_y wert_Abbruch Koppl_x Koppl_y g_Genauigkeit CJ_x "
                                   "CJ_y g_Bildverhaeltnis g_Gitterabstand")
                               .split(' ');

/// Every field has its own value, so that a swapped entry shows; n = 0: all are 0 as in an empty
/// record.
QString werte(int n) {
    QString text;
    for (int i = 0; i < Ganze.size(); ++i) {
        text += QString("%1=%2 ").arg(Ganze[i]).arg(n > 0 ? n + 2 + i : 0);
        text += QString("%1=%2 ").arg(Reelle[i]).arg(n > 0 ? n + 2.5 + i : 0);
    }
    return text;
}

void fuelle(M& m, int n) {
    setze(m, werte(n));
    m.bilddatenInteger = n;
    m.bilddatenDouble = n > 0 ? n + 0.5 : 0;
    m.bilddatenSumme = n > 0 ? n + 1.5 : 0;
}

} // namespace

class TestBildspeicher : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m;

  private Q_SLOTS:
    void init() {
        m = std::make_unique<M>();
        m->g_halbesBild = 1;
    }

    void verlauf_data() { zeilenAus("store/verlauf.txt"); }
    void verlauf() {
        QFETCH(QStringList, spalten);
        const QStringList schritte = spalten[0].split(' ');
        for (int i = 0; i < schritte.size(); ++i) {
            const QString schritt = schritte[i];
            const int n = schritt.mid(1).toInt();
            const int modus = m->g_halbesBild;
            m->g_UnDo = 7;
            const Meldung meldung = meldungBei([&] {
                switch (schritt[0].toLatin1()) {
                case 'v':
                    m->g_halbesBild = n;
                    break;
                case 's':
                    if (schritt.size() > 1) {
                        fuelle(*m, n);
                    }
                    m->DatenSichern();
                    break;
                case 'f':
                    fuelle(*m, n);
                    break;
                case 't':
                    m->DatenTeilbildLaden();
                    break;
                case 'u':
                    n == 1 ? m->UnDo1DatenTeilbildLaden() : m->UnDo2DatenTeilbildLaden();
                    break;
                case 'r':
                    m->WiederholenDatenTeilbildLaden();
                    break;
                case 'd':
                    m->BildSicherungLoeschen();
                    break;
                case '=':
                    QCOMPARE(abweichung(*m, werte(n)), QString());
                    QCOMPARE(m->bilddatenInteger, n);
                    QCOMPARE(m->bilddatenSumme - m->bilddatenDouble, n > 0 ? 1 : 0);
                }
            });
            QVERIFY(m->g_halbesBild == modus || schritt[0] == 'v');
            QCOMPARE(m->g_UnDo, schritt == "u2" || schritt == "r" ? 0 : 7);
            QCOMPARE(meldung.anzahl, schritte.value(i + 1) == "!" ? 1 : 0);
            if (meldung.anzahl == 1) {
                QCOMPARE(meldung.titel, "Nachricht/Hinweis");
                QCOMPARE(meldung.text, schritt == "r" ? "Bisher gar kein Bild gespeichert"
                                                      : "Bisher kein vorletztes Bild gespeichert");
                QCOMPARE(meldung.besitzer, m.get());
            }
        }
    }

    void aufbau() {
        m->g_halbesBild = 3;
        fuelle(*m, 100);
        m->DatenSichern();
        const auto& ganze = m->ImageIntegers[0];
        const auto& reelle = m->ImageDoubles[0];
        for (std::size_t i = 0; i < 13; ++i) {
            QCOMPARE(ganze[40 + i], i == 0 ? 100 : i == 1 ? 3 : 100 + qint32(i));
            QCOMPARE(reelle[40 + i], 100.5 + double(i));
        }
        QCOMPARE(ganze[53], 0); // behind the record
        QCOMPARE(reelle[53], 0.0);
        QCOMPARE(ganze[21], 0); // the slot before
    }

    // The copies shift from one to the next; stepping back keeps the newest and the oldest for
    // "again", also when there is nothing to go back to.
    void kopien() {
        m->ImageIntegers[0][299] = 7; // the last entry that is kept
        m->ImageDoubles[0][299] = 7.5;
        for (const int n : {100, 200, 300}) {
            fuelle(*m, n);
            m->DatenSichern();
        }
        m->g_halbesBild = 2;
        QCOMPARE(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }).anzahl, 1);
        QCOMPARE((QList<qint32>{m->UnDo0Integers[0], m->UnDo1Integers[0], m->UnDo2Integers[0],
                                m->UnDo3Integers[0], m->UnDo4Integers[0]}),
                 (QList<qint32>{300, 200, 100, 300, 100}));
        QCOMPARE((QList<double>{m->UnDo0Doubles[0], m->UnDo1Doubles[0], m->UnDo2Doubles[0],
                                m->UnDo3Doubles[0], m->UnDo4Doubles[0]}),
                 (QList<double>{300.5, 200.5, 100.5, 300.5, 100.5}));
        QCOMPARE(m->UnDo4Integers[299], 7);
        QCOMPARE(m->UnDo3Doubles[299], 7.5);
    }
};

QTEST_MAIN(TestBildspeicher)
#include "test_bildspeicher.moc"
