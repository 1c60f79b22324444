#include "Meldung.h"
#include "Texttabelle.h"

namespace {

/// The fields of a record. Every field has its own value, so that a swapped entry shows; n = 0: all
/// are 0 as in an empty record.
QString werte(int n) {
    const QString felder =
        "wahl_Gleichung g_ZwillingJa glg_Abbruch Max_Iterationen g_JuliaJa g_GenauJa "
        "g_oberesHalbbild g_zycmax g_MittelkreuzJa g_NullkreuzJa g_GitterJa Br_x MP_x MP_y "
        "wert_Abbruch Koppl_x Koppl_y g_Genauigkeit CJ_x CJ_y g_Bildverhaeltnis g_Gitterabstand "
        "bilddatenInteger bilddatenDouble bilddatenSumme";
    QString text;
    double wert = n;
    for (const QString& feld : felder.split(' ')) {
        text += QString("%1=%2 ").arg(feld).arg(n > 0 ? ++wert : 0);
    }
    return text;
}

} // namespace

class TestBildspeicher : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m;

    const std::map<char, std::function<void(int)>> befehle{
        {'v', [this](int n) { m->g_halbesBild = n; }},
        {'f', [this](int n) { setze(*m, werte(n)); }},
        {'s', [this](int) { m->DatenSichern(); }},
        {'t', [this](int) { m->DatenTeilbildLaden(); }},
        {'u',
         [this](int n) { n == 1 ? m->UnDo1DatenTeilbildLaden() : m->UnDo2DatenTeilbildLaden(); }},
        {'r', [this](int) { m->WiederholenDatenTeilbildLaden(); }},
        {'d', [this](int) { m->BildSicherungLoeschen(); }},
        {'=', [this](int n) { QCOMPARE(abweichung(*m, werte(n)), QString()); }},
        {'!', [](int) {}}};

  private Q_SLOTS:
    void verlauf_data() { zeilenAus("store/verlauf.txt"); }
    void verlauf() {
        QFETCH(QStringList, spalten);
        m = std::make_unique<M>();
        m->g_halbesBild = ViertelLinksOben;
        const QStringList schritte = spalten[0].split(' ');
        for (int i = 0; i < schritte.size(); ++i) {
            const QString schritt = schritte[i];
            const int modus = m->g_halbesBild;
            m->g_UnDo = 7;
            const Meldung meldung = meldungBei(
                [&] { befehle.at(schritt[0].toLatin1())(QStringView(schritt).mid(1).toInt()); });
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
};

QTEST_MAIN(TestBildspeicher)
#include "test_bildspeicher.moc"
