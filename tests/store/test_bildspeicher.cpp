#include "Mandelbrot.h"
#include "Meldung.h"
#include "Testbasis.h"

#include <memory>

namespace {

using M = Mandelbrot;

/// The record's integers without the quarter mark, and its doubles, in the order of the entries.
// clang-format off
constexpr std::array Ganze{
    &M::bilddatenInteger, &M::wahl_Gleichung, &M::g_ZwillingJa, &M::glg_Abbruch,
    &M::Max_Iterationen, &M::g_JuliaJa, &M::g_GenauJa, &M::g_oberesHalbbild, &M::g_zycmax,
    &M::g_MittelkreuzJa, &M::g_NullkreuzJa, &M::g_GitterJa};
constexpr std::array Reelle{
    &M::bilddatenDouble, &M::bilddatenSumme, &M::Br_x, &M::MP_x, &M::MP_y, &M::wert_Abbruch,
    &M::Koppl_x, &M::Koppl_y, &M::g_Genauigkeit, &M::CJ_x, &M::CJ_y, &M::g_Bildverhaeltnis,
    &M::g_Gitterabstand};
// clang-format on

/// Gives every field of the record its own value, so that a swapped entry shows.
void fuelle(Mandelbrot& m, int n) {
    for (std::size_t i = 0; i < Ganze.size(); ++i) {
        m.*Ganze[i] = n + qint32(i);
    }
    for (std::size_t i = 0; i < Reelle.size(); ++i) {
        m.*Reelle[i] = n + 0.5 + double(i);
    }
}

/// Whether the fields hold what fuelle(m, n) gave them.
bool gefuellt(const Mandelbrot& m, int n) {
    bool gleich = true;
    for (std::size_t i = 0; i < Ganze.size(); ++i) {
        gleich = gleich && m.*Ganze[i] == n + qint32(i);
    }
    for (std::size_t i = 0; i < Reelle.size(); ++i) {
        gleich = gleich && m.*Reelle[i] == n + 0.5 + double(i);
    }
    return gleich;
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

void TestBildspeicher::schritteZurueck() {
    m->ImageIntegers[0][299] = 7; // the last entry that the history keeps
    m->ImageDoubles[0][299] = 7.5;
    for (const int n : {100, 200, 300}) {
        sichere(*m, n);
    }
    QCOMPARE(m->UnDo2Integers[299], 7);
    QCOMPARE(m->UnDo2Doubles[299], 7.5);
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
    for (const auto feld : Ganze) {
        QCOMPARE((*m).*feld, 0);
    }
    QCOMPARE(m->Br_x, 0.0);
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
