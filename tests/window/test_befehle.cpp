#include "Befehlszeilen.h"
#include "Meldung.h"

#include <set>

// Every command in several starting states: the whole record is compared before and after, so a
// command that writes one field more than its row says is caught as well.

namespace {

/// Counts the paints of the picture and swallows them: nothing is computed here.
class Bildzaehler : public QObject {
  public:
    int anzahl = 0;

  protected:
    bool eventFilter(QObject* /*beobachtet*/, QEvent* ereignis) override {
        anzahl += ereignis->type() == QEvent::Paint;
        return ereignis->type() == QEvent::Paint;
    }
};

struct Anfang {
    const char* name;
    std::map<QString, double> felder;
    double cjX, cjY; ///< in the boxes of the Julia constant
};

const std::vector<Anfang> Anfaenge{
    {"start picture", {{"OPx", 100}, {"OPy", 51}, {"g_Max_rgbFarben", 512}}, 0.0, 0.0},
    {"preview with twin and orbit",
     {{"wahl_Gleichung", 1010003},
      {"g_ZwillingJa", 3},
      {"Koppl_x", 0.25},
      {"Koppl_y", 0.0},
      {"g_OrbitJa", 4},
      {"g_OrbitDuennJa", 1},
      {"g_RechnenJa", 3},
      {"g_halbesBild", 12},
      {"click2_Zoom", 0.25},
      {"glg_Abbruch", 9},
      {"rechen_VarianteDiv", 18},
      {"rechen_VarianteKonv", 12},
      {"zahl_farbtab", 47},
      {"zahl_Matrix", 1000},
      {"g_UnDo", 1},
      {"g_maxOrbitIterat", 1},
      {"g_Max_rgbFarben", 256},
      {"color_Offset", 2}},
     0.5,
     0.0},
    {"orbit from the centre in quarter 1",
     {{"g_OrbitJa", 5},
      {"g_OrbitDuennJa", 20},
      {"g_OrbitMP", 1},
      {"g_RechnenJa", 3},
      {"g_halbesBild", 1},
      {"OPx", 1.5e9},
      {"OPy", -1.5e9},
      {"g_maxOrbitIterat", -2147483648.0},
      {"Koppl_x", 2.0},
      {"Koppl_y", 4.0},
      {"click2_Zoom", 8.5},
      {"Max_Iterationen", 4e8},
      {"glg_Abbruch", 0},
      {"rechen_VarianteDiv", 0},
      {"rechen_VarianteKonv", 0},
      {"zahl_farbtab", 0},
      {"zahl_Matrix", 44},
      {"color_Offset", 560},
      {"g_Max_rgbFarben", 582},
      {"g_Gitterabstand", 8.5},
      {"g_GitterJa", 1},
      {"g_BildLoeschen", 2},
      {"g_SummeGross", 5.0},
      {"g_oberesHalbbild", 1}},
     0.0,
     0.1},
    {"all orbits, zoom 1",
     {{"g_OrbitJa", 1},
      {"g_OrbitDuennJa", 21},
      {"g_RechnenJa", 1},
      {"g_halbesBild", 3},
      {"click2_Zoom", 1.0},
      {"zahl_farbtab", 24},
      {"g_MittelkreuzJa", 1},
      {"g_NullkreuzJa", 1},
      {"g_OrbitAbIterAn", 7},
      {"g_VorschauAusJa", 1},
      {"g_Max_rgbFarben", 582}},
     77.0,
     77.0},
};

} // namespace

class TestBefehle : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void jederBefehlHatEineZeile();
    void befehl_data();
    void befehl();
    void viertelLaedtSeinenStand();
    void verlaufLaedtFruehereBilder();
    void resetStelltStartwerteHer();
    void fenstergroesse_data();
    void fenstergroesse();
    void orbitAusKommtVerzoegertUndEinmal();
    void orbitAusEinesErsetztenModells();

  private:
    /// The starting state on a panel that shows none of its values, so every echo is seen.
    Stand anfangen(const Anfang& anfang);

    UI fenster;
    Bildzaehler bilder;
    Stand frisch;
    Befehle befehle;
};

void TestBefehle::initTestCase() {
    fenster.Menge->installEventFilter(&bilder);
    fenster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&fenster));
    frisch = lies(fenster);
    frisch.titel = "old";
    frisch.schieber = 300;
    frisch.palette = "1";
    for (auto& [name, wert] : frisch.box) {
        wert = 77;
    }
    for (auto& [name, text] : frisch.label) {
        text = "old";
    }
}

Stand TestBefehle::anfangen(const Anfang& anfang) {
    Stand stand = frisch;
    stand.setze(anfang.felder);
    stand.farbtabelle(stand["zahl_farbtab"]);
    stand["Br_y"] = stand["Br_x"] * Stand::Verhaeltnis;
    stand.box["CJ_x"] = anfang.cjX;
    stand.box["CJ_y"] = anfang.cjY;
    stelle(fenster, stand);
    QCoreApplication::processEvents();
    bilder.anzahl = 0;
    return stand;
}

void TestBefehle::jederBefehlHatEineZeile() {
    // Sync of panel and model, files and sizes have tests of their own.
    std::set<QString> erwartet{"WerteAktualisierenSlot",
                               "WerteColorAktualisierenSlot",
                               "NeueBerechnungSlot",
                               "NeueColorBerechnungSlot",
                               "VorschauSlot",
                               "Bild_SpeichernSlot",
                               "Koordinaten_LadenSlot",
                               "Koordinaten_SpeichernSlot",
                               "OrbitListeHTM_SpeichernSlot",
                               "ResetSlot",
                               "Pixel985x675Slot",
                               "Pixel520x600Slot",
                               "Pixel1520x1210Slot"};
    for (const Befehle::Zeile& zeile : befehle.zeilen) {
        QVERIFY2(erwartet.insert(zeile.slot).second, qPrintable(zeile.slot));
    }
    const QMetaObject& meta = UI::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QString name = QString::fromLatin1(meta.method(i).name());
        if (name.endsWith("Slot")) {
            QVERIFY2(erwartet.erase(name) == 1, qPrintable(name));
        }
    }
    QCOMPARE(QStringList(erwartet.begin(), erwartet.end()), QStringList());
}

void TestBefehle::befehl_data() {
    QTest::addColumn<qsizetype>("nummer");
    for (qsizetype i = 0; i < std::ssize(befehle.zeilen); ++i) {
        QTest::newRow(qPrintable(befehle.zeilen[static_cast<std::size_t>(i)].slot)) << i;
    }
}

void TestBefehle::befehl() {
    QFETCH(qsizetype, nummer);
    const Befehle::Zeile& zeile = befehle.zeilen[static_cast<std::size_t>(nummer)];
    for (const Anfang& anfang : Anfaenge) {
        Stand soll = anfangen(anfang);
        const Ausgang ausgang = zeile.wirkung(soll);
        const Meldung meldung =
            meldungBei([&] { QMetaObject::invokeMethod(&fenster, zeile.slot.toLatin1()); });
        const Stand ist = lies(fenster);
        QCoreApplication::processEvents();

        const QString fehler = unterschied(ist, soll);
        QVERIFY2(fehler.isEmpty(), qPrintable(QString(anfang.name) + ": " + fehler));
        QVERIFY2((ist.titel != "old") == ausgang.titel, anfang.name);
        QVERIFY2((bilder.anzahl > 0) == ausgang.bild, anfang.name);
        QCOMPARE(meldung.anzahl, ausgang.meldung.isEmpty() ? 0 : 1);
        if (meldung.anzahl > 0) {
            QCOMPARE(meldung.titel + "|" + meldung.text, ausgang.meldung);
        }
    }
}

void TestBefehle::viertelLaedtSeinenStand() {
    anfangen(Anfaenge[0]);
    Mandelbrot& m = *fenster.Menge;
    m.g_halbesBild = 2;
    m.MP_x = 0.5;
    m.DatenSichern();
    m.MP_x = -3.0;
    fenster.PixelXYDurch2Pos2Slot();
    QCOMPARE(m.MP_x, 0.5);
    QCOMPARE(fenster.UI_MPx->value(), 0.5);
    fenster.BildSchwarzSlot(); // discards the quarter's record
    m.MP_x = -3.0;
    fenster.PixelXYDurch2Pos2Slot();
    QCOMPARE(m.MP_x, -3.0);
}

void TestBefehle::verlaufLaedtFruehereBilder() {
    anfangen(Anfaenge[0]);
    Mandelbrot& m = *fenster.Menge;
    m.bilddatenInteger = 1;
    for (const double mitte : {1.0, 2.0, 3.0, 3.0}) { // the last record is only in row 0
        m.MP_x = mitte;
        m.DatenSichern();
    }
    const auto nach = [&](void (UI::*slot)()) {
        const Meldung meldung = meldungBei([&] { (fenster.*slot)(); });
        return meldung.anzahl == 0 ? fenster.UI_MPx->value() : std::nan("");
    };
    QCOMPARE(nach(&UI::UnDo1DatenTeilbildLadenSlot), 3.0);
    QCOMPARE(m.g_UnDo, 1);
    QCOMPARE(nach(&UI::UnDo2DatenTeilbildLadenSlot), 2.0);
    QCOMPARE(m.g_UnDo, 0);
    QCOMPARE(nach(&UI::WiederholenDatenTeilbildLadenSlot), 3.0);
    QCOMPARE(m.g_UnDo, 0);
}

void TestBefehle::resetStelltStartwerteHer() {
    Mandelbrot& m = *fenster.Menge;
    anfangen(Anfaenge[0]);
    fenster.ResetSlot();
    const Stand start = lies(fenster);
    anfangen(Anfaenge[0]);
    m.MP_x = 5.0;
    m.Max_Iterationen = 3;
    m.g_OrbitJa = 2;
    fenster.ResetSlot();
    const QString fehler = unterschied(lies(fenster), start);
    QVERIFY2(fehler.isEmpty(), qPrintable(fehler));
    QVERIFY(m.Max_Iterationen > 3);
    QCOMPARE(fenster.UI_Iterationen->value(), m.Max_Iterationen);
}

void TestBefehle::fenstergroesse_data() {
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QSize>("groesse");
    QTest::newRow("985x675") << QByteArray("Pixel985x675Slot") << QSize(985, 675);
    QTest::newRow("520x600") << QByteArray("Pixel520x600Slot") << QSize(520, 600);
    QTest::newRow("1520x1210") << QByteArray("Pixel1520x1210Slot") << QSize(1520, 1210);
}

void TestBefehle::fenstergroesse() {
    QFETCH(QByteArray, slot);
    QFETCH(QSize, groesse);
    UI neues;
    neues.Menge->MP_x = 5.0;
    const QPointer<Mandelbrot> altes = neues.Menge;
    QVERIFY(QMetaObject::invokeMethod(&neues, slot.constData()));
    QCOMPARE(neues.size(), groesse);
    QVERIFY(neues.Menge != altes);
    QVERIFY(neues.Konfig->maximumWidth() <= groesse.width() / 4);
    QCOMPARE(neues.UI_MPx->value(), neues.Menge->MP_x);
    QVERIFY(neues.Menge->MP_x != 5.0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(altes.isNull());
}

void TestBefehle::orbitAusKommtVerzoegertUndEinmal() {
    anfangen(Anfaenge[1]);
    const Meldung sofort = meldungBei([&] {
        Q_EMIT fenster.Menge->OrbitOffSignal();
        Q_EMIT fenster.Menge->OrbitOffSignal();
    });
    QCOMPARE(sofort.anzahl, 0);
    QCOMPARE(fenster.Menge->g_OrbitJa, 4);
    const Meldung spaeter = meldungBei([&] { QTest::qWait(50); });
    QCOMPARE(spaeter.anzahl, 1);
    QCOMPARE(spaeter.titel, QString("Orbit war an. Jetzt Aus."));
    QCOMPARE(spaeter.besitzer, &fenster);
    QCOMPARE(fenster.Menge->g_OrbitJa, 0);
    QVERIFY(bilder.anzahl > 0);
}

void TestBefehle::orbitAusEinesErsetztenModells() {
    UI neues;
    Q_EMIT neues.Menge->OrbitOffSignal();
    neues.Pixel985x675Slot();
    neues.Menge->g_OrbitJa = 2;
    QCOMPARE(meldungBei([] { QTest::qWait(50); }).anzahl, 0);
    QCOMPARE(neues.Menge->g_OrbitJa, 2);
}

QTEST_MAIN(TestBefehle)
#include "test_befehle.moc"
