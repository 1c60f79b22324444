#include "Mandelbrot.h"
#include "Meldung.h"
#include "Testbasis.h"

#include <memory>

namespace {

/// Gives every field of the record its own value, so that a swapped entry shows.
void fuelle(Mandelbrot& m, int n) {
    qint32 ganz = n;
    for (auto* const feld :
         {&m.bilddatenInteger, &m.wahl_Gleichung, &m.g_ZwillingJa, &m.glg_Abbruch,
          &m.Max_Iterationen, &m.g_JuliaJa, &m.g_GenauJa, &m.g_oberesHalbbild, &m.g_zycmax,
          &m.g_MittelkreuzJa, &m.g_NullkreuzJa, &m.g_GitterJa}) {
        *feld = ganz++;
    }
    double reell = n + 0.5;
    for (auto* const feld : {&m.bilddatenDouble, &m.bilddatenSumme, &m.Br_x, &m.MP_x, &m.MP_y,
                             &m.wert_Abbruch, &m.Koppl_x, &m.Koppl_y, &m.g_Genauigkeit, &m.CJ_x,
                             &m.CJ_y, &m.g_Bildverhaeltnis, &m.g_Gitterabstand}) {
        *feld = reell++;
    }
}

/// Whether the fields hold what fuelle(m, n) gave them.
bool gefuellt(const Mandelbrot& m, int n) {
    return m.bilddatenInteger == n && m.wahl_Gleichung == n + 1 && m.g_ZwillingJa == n + 2 &&
           m.glg_Abbruch == n + 3 && m.Max_Iterationen == n + 4 && m.g_JuliaJa == n + 5 &&
           m.g_GenauJa == n + 6 && m.g_oberesHalbbild == n + 7 && m.g_zycmax == n + 8 &&
           m.g_MittelkreuzJa == n + 9 && m.g_NullkreuzJa == n + 10 && m.g_GitterJa == n + 11 &&
           m.bilddatenDouble == n + 0.5 && m.bilddatenSumme == n + 1.5 && m.Br_x == n + 2.5 &&
           m.MP_x == n + 3.5 && m.MP_y == n + 4.5 && m.wert_Abbruch == n + 5.5 &&
           m.Koppl_x == n + 6.5 && m.Koppl_y == n + 7.5 && m.g_Genauigkeit == n + 8.5 &&
           m.CJ_x == n + 9.5 && m.CJ_y == n + 10.5 && m.g_Bildverhaeltnis == n + 11.5 &&
           m.g_Gitterabstand == n + 12.5;
}

void sichere(Mandelbrot& m, int n) {
    fuelle(m, n);
    m.DatenSichern();
}

const QString Titel = "Nachricht/Hinweis";
const QString KeinVorletztes = "Bisher kein vorletztes Bild gespeichert";
const QString GarKeins = "Bisher gar kein Bild gespeichert";

} // namespace

class TestBildspeicher : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() {
        m = std::make_unique<Mandelbrot>();
        m->g_halbesBild = 1;
    }
    void aufbau();
    void platz_data();
    void platz();
    void teilbild();
    void ganzesBildUndViertel1();
    void verlauf();
    void schritteZurueck();
    void schrittOhneBild();
    void wiederholen();
    void wiederholenOhneQuelle();
    void pruefsummeNull();
    void loeschen();

  private:
    void vergleiche(const Meldung& meldung, const QString& text) const {
        QCOMPARE(meldung.anzahl, 1);
        QCOMPARE(meldung.titel, Titel);
        QCOMPARE(meldung.text, text);
        QCOMPARE(meldung.besitzer, m.get());
    }

    std::unique_ptr<Mandelbrot> m;
};

void TestBildspeicher::aufbau() {
    m->g_halbesBild = 3;
    sichere(*m, 100);
    const auto& ganze = m->ImageIntegers[0];
    const auto& reelle = m->ImageDoubles[0];
    QCOMPARE(ganze[40], 100);
    QCOMPARE(ganze[41], 3);
    for (std::size_t i = 2; i < 13; ++i) {
        QCOMPARE(ganze[40 + i], 99 + qint32(i));
    }
    for (std::size_t i = 0; i < 13; ++i) {
        QCOMPARE(reelle[40 + i], 100.5 + double(i));
    }
    QCOMPARE(ganze[53], 0); // behind the record
    QCOMPARE(reelle[53], 0.0);
    QCOMPARE(ganze[21], 0); // the slot before
}

void TestBildspeicher::platz_data() {
    QTest::addColumn<int>("halbesBild");
    QTest::addColumn<int>("beginn"); // -1: none
    QTest::newRow("full picture") << 0 << 0;
    QTest::newRow("negative") << -5 << 0;
    QTest::newRow("smallest integer") << std::numeric_limits<int>::min() << 0;
    QTest::newRow("quarter 1") << 1 << 0;
    QTest::newRow("quarter 2") << 2 << 20;
    QTest::newRow("quarter 4") << 4 << 60;
    QTest::newRow("no quarter") << 5 << -1;
    QTest::newRow("preview") << 10 << -1;
    QTest::newRow("preview over the picture") << 300 << -1;
    QTest::newRow("largest integer") << std::numeric_limits<int>::max() << -1;
}

// Every operation keeps within the store, whatever the quarter word.
void TestBildspeicher::platz() {
    QFETCH(int, halbesBild);
    QFETCH(int, beginn);
    m->g_halbesBild = halbesBild;
    sichere(*m, 100);
    sichere(*m, 200);
    sichere(*m, 300);
    for (int slot = 0; slot < 4; ++slot) {
        const auto entry = std::size_t(slot) * 20;
        QCOMPARE(m->ImageIntegers[0][entry], slot * 20 == beginn ? 300 : 0);
        QCOMPARE(m->UnDo1Integers[entry], slot * 20 == beginn ? 200 : 0);
    }
    const int boxen = beginn < 0 ? 1 : 0;
    QCOMPARE(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }).anzahl, boxen);
    QVERIFY(gefuellt(*m, beginn < 0 ? 300 : 200));
    QCOMPARE(meldungBei([this] { m->UnDo2DatenTeilbildLaden(); }).anzahl, boxen);
    QVERIFY(gefuellt(*m, beginn < 0 ? 300 : 100));
    QCOMPARE(meldungBei([this] { m->WiederholenDatenTeilbildLaden(); }).anzahl, boxen);
    QVERIFY(gefuellt(*m, 300));
    m->BildSicherungLoeschen();
    fuelle(*m, 400);
    m->DatenTeilbildLaden();
    QVERIFY(gefuellt(*m, 400));
    QCOMPARE(m->g_halbesBild, halbesBild);
}

void TestBildspeicher::teilbild() {
    for (int viertel = 1; viertel <= 4; ++viertel) {
        m->g_halbesBild = viertel;
        sichere(*m, 100 * viertel);
    }
    for (int viertel = 1; viertel <= 4; ++viertel) {
        m->g_halbesBild = viertel;
        m->DatenTeilbildLaden();
        QVERIFY(gefuellt(*m, 100 * viertel));
        QCOMPARE(m->g_halbesBild, viertel);
    }
}

// Both use the first slot; the mark keeps them apart.
void TestBildspeicher::ganzesBildUndViertel1() {
    m->g_halbesBild = 0;
    sichere(*m, 100);
    fuelle(*m, 200);
    m->DatenTeilbildLaden(); // not for the full picture
    QVERIFY(gefuellt(*m, 200));
    m->g_halbesBild = 1;
    m->DatenTeilbildLaden();
    QVERIFY(gefuellt(*m, 200));
    m->g_halbesBild = 0;
    m->DatenSichern();
    m->g_halbesBild = 1;
    vergleiche(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }), KeinVorletztes);
    m->g_halbesBild = 0;
    QCOMPARE(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }).anzahl, 0);
    QVERIFY(gefuellt(*m, 100));
}

void TestBildspeicher::verlauf() {
    m->ImageIntegers[0][299] = 7; // the last entry that is kept
    m->ImageDoubles[0][299] = 7.5;
    for (const int n : {100, 200, 300}) {
        sichere(*m, n);
    }
    QCOMPARE(m->UnDo0Integers[0], 300);
    QCOMPARE(m->UnDo1Integers[0], 200);
    QCOMPARE(m->UnDo2Integers[0], 100);
    QCOMPARE(m->UnDo0Doubles[0], 300.5);
    QCOMPARE(m->UnDo1Doubles[0], 200.5);
    QCOMPARE(m->UnDo2Doubles[0], 100.5);
    QCOMPARE(m->UnDo2Integers[299], 7);
    QCOMPARE(m->UnDo2Doubles[299], 7.5);
}

void TestBildspeicher::schritteZurueck() {
    for (const int n : {100, 200, 300}) {
        sichere(*m, n);
    }
    m->g_UnDo = 1;
    QCOMPARE(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }).anzahl, 0);
    QVERIFY(gefuellt(*m, 200));
    QCOMPARE(m->g_UnDo, 1);
    QCOMPARE(m->UnDo3Integers, m->UnDo0Integers);
    QCOMPARE(m->UnDo3Doubles, m->UnDo0Doubles);
    QCOMPARE(m->UnDo4Integers, m->UnDo2Integers);
    QCOMPARE(m->UnDo4Doubles, m->UnDo2Doubles);

    m->g_UnDo = 2;
    QCOMPARE(meldungBei([this] { m->UnDo2DatenTeilbildLaden(); }).anzahl, 0);
    QVERIFY(gefuellt(*m, 100));
    QCOMPARE(m->g_UnDo, 0);
}

void TestBildspeicher::schrittOhneBild() {
    sichere(*m, 100);
    fuelle(*m, 900);
    m->UnDo2Integers[7] = 8;
    m->UnDo2Doubles[7] = 8.5;
    m->g_UnDo = 1;
    vergleiche(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }), KeinVorletztes);
    QCOMPARE(m->UnDo3Integers[0], 100); // copied all the same
    QCOMPARE(m->UnDo3Doubles[0], 100.5);
    QCOMPARE(m->UnDo4Integers[7], 8);
    QCOMPARE(m->UnDo4Doubles[7], 8.5);
    m->g_UnDo = 2;
    vergleiche(meldungBei([this] { m->UnDo2DatenTeilbildLaden(); }), KeinVorletztes);
    QCOMPARE(m->g_UnDo, 0);
    m->g_UnDo = 3;
    vergleiche(meldungBei([this] { m->WiederholenDatenTeilbildLaden(); }), GarKeins);
    QCOMPARE(m->g_UnDo, 0);
    QVERIFY(gefuellt(*m, 900));
}

void TestBildspeicher::wiederholen() {
    for (const int n : {100, 200, 300}) {
        sichere(*m, n);
    }
    m->UnDo1DatenTeilbildLaden();
    m->DatenSichern(); // the repaint after the step
    m->g_UnDo = 3;
    QCOMPARE(meldungBei([this] { m->WiederholenDatenTeilbildLaden(); }).anzahl, 0);
    QVERIFY(gefuellt(*m, 300));
    QCOMPARE(m->g_UnDo, 0);
}

// Tested is one history entry, loaded another, which nobody filled here.
void TestBildspeicher::wiederholenOhneQuelle() {
    for (const int n : {100, 200, 300}) {
        sichere(*m, n);
    }
    QCOMPARE(meldungBei([this] { m->WiederholenDatenTeilbildLaden(); }).anzahl, 0);
    QCOMPARE(m->wahl_Gleichung, 0);
    QCOMPARE(m->g_GitterJa, 0);
    QCOMPARE(m->Br_x, 0.0);
    QCOMPARE(m->g_Gitterabstand, 0.0);
    QCOMPARE(m->g_halbesBild, 1);
}

void TestBildspeicher::pruefsummeNull() {
    sichere(*m, 0); // checksum 0, mark 1
    m->DatenSichern();
    fuelle(*m, 900);
    vergleiche(meldungBei([this] { m->UnDo1DatenTeilbildLaden(); }), KeinVorletztes);
    m->DatenTeilbildLaden(); // compares the mark alone
    QVERIFY(gefuellt(*m, 0));
}

void TestBildspeicher::loeschen() {
    m->g_halbesBild = 2;
    sichere(*m, 100);
    m->g_halbesBild = 3;
    sichere(*m, 200);
    m->BildSicherungLoeschen();
    fuelle(*m, 900);
    m->DatenTeilbildLaden();
    QVERIFY(gefuellt(*m, 900));
    m->g_halbesBild = 2;
    m->DatenTeilbildLaden();
    QVERIFY(gefuellt(*m, 100));
}

QTEST_MAIN(TestBildspeicher)
#include "test_bildspeicher.moc"
