#include "model/Orbitliste.h"
#include "Testbasis.h"

/// A list whose every number is different, so that exchanged fields show.
static Orbitlistendaten beispiel() {
    Orbitlistendaten daten;
    daten.zeit = QDateTime(QDate(2024, 3, 9), QTime(7, 5, 2));
    daten.version = "1.5";
    daten.gleichung = "Z*Z+C";
    daten.mittelX = -0.5;
    daten.mittelY = 0.25;
    daten.breite = 4.0;
    daten.maxIterationen = 256;
    daten.maxZyklen = 7;
    daten.abbruch = 3;
    daten.abbruchwert = 100.0;
    daten.kopplX = 1.5;
    daten.kopplY = -2.5;
    daten.juliaX = 0.125;
    daten.juliaY = -0.75;
    daten.potenz = 10;
    daten.maxPunkte = 120;
    daten.startX = 0.123456789;
    daten.startY = -2.0;
    daten.abIteration = 10;
    daten.punkte = {{-1.0, 0.5, 11, 22}, {0.25, -0.5, 301, 412}};
    return daten;
}

class TestOrbitliste : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void ganzeListe();
    void zwilling();
    void startVomMittelpunkt();
    void grenzen_data();
    void grenzen();
    void starttext_data();
    void starttext();
};

void TestOrbitliste::ganzeListe() {
    const QStringList stuecke{
        "<html><head><title>Orbit-Liste09 07:05</title></head><body><br>Wirbelwerk1.5",
        "(https://wirbelwerk.example) am 2024-03-09 07:05:02<br>",
        "Gleichung Z*Z+C<br>",
        "Bildmittelpunkt (-0.5000000000000000, 0.2500000000000000)<br>",
        "Bildbreite 4.0000000000000000 , maxIterat.= 256 , maxZyklen= 7<br>",
        "NrAbbr.= 3, ZahlAbbr.= 100.0000000000000000<br>",
        "C-Julia= (0.1250000000000000, -0.7500000000000000) , K-Potenz= 10<br>",
        "Hinweise: Mit <b>Linien/(Orbit-Start vom Bild-Mittelpunkt)</b> kann scharf eingestellter ",
        "Orbit-Start trotz anschließend vergrößertem Grafikbild gerechnet werden. (Start ohne ",
        "Maus)",
        "<br>Für Fortsetzung: maxIt.erhöhen, dann z.B. Zoom=255.0, Start!-Button zum Einlesen von ",
        "ZOOM, ",
        "<br>und dann <b>Linien/(Orbit erst ab Iterat..)</b> anwählen",
        "<br>Verkürztes Orbit: <b>Linien/(maximal 15 Iterationen)</b> usw.",
        "<br><br>Z(x+iy)-Werte für 120 Iterationen am Punkt (0.123457, -2), ab Iteration=11 und ",
        "angezeigter Pixel-Position<br><br>",
        "11. (-1.0000000000000000, 0.5000000000000000) 11,22<br>",
        "12. (0.2500000000000000, -0.5000000000000000) 301,412<br>",
        "</body></html><br>"};
    QString liste = orbitliste(beispiel());
    for (const QString& stueck : stuecke) { // in this order, nothing between them
        QCOMPARE(liste.left(stueck.size()), stueck);
        liste.remove(0, stueck.size());
    }
    QCOMPARE(liste, QString());
}

void TestOrbitliste::zwilling() {
    Orbitlistendaten daten = beispiel();
    const QString ohne = orbitliste(daten);
    daten.zwilling = 4;
    QString mit = orbitliste(daten);
    const QString zeile = "Zwilling = 4, KopplXY (1.5000000000000000, -2.5000000000000000)<br>";
    QVERIFY(mit.contains("<br>" + zeile + "C-Julia= "));
    QCOMPARE(mit.remove(zeile), ohne);
    daten.zwilling = -1;
    QCOMPARE(orbitliste(daten), ohne);
}

void TestOrbitliste::startVomMittelpunkt() {
    Orbitlistendaten daten = beispiel();
    daten.vomMittelpunkt = true;
    QVERIFY(orbitliste(daten).contains(
        "K-Potenz= 10<br>Hinweise: Orbit vom Mittelpunkt <br>Für Fortsetzung: "));
}

void TestOrbitliste::grenzen_data() {
    QTest::addColumn<int>("punkte");
    QTest::addColumn<int>("zeilen");
    QTest::newRow("no point") << 0 << 0;
    QTest::newRow("all") << 256 << 256;
    QTest::newRow("one too many") << 257 << 256;
}

void TestOrbitliste::grenzen() {
    QFETCH(const int, punkte);
    QFETCH(const int, zeilen);
    Orbitlistendaten daten = beispiel();
    daten.abIteration = std::numeric_limits<qint32>::max();
    daten.punkte.assign(static_cast<std::size_t>(punkte), {1.0, 2.0, -3, 4});
    const QString liste = orbitliste(daten);
    QCOMPARE(liste.count(". (1.0000000000000000, 2.0000000000000000) -3,4<br>"), zeilen);
    QVERIFY(liste.contains("ab Iteration=2147483648 "));
    QCOMPARE(liste.contains("<br>" + QString::number(2147483647LL + 256) + ". ("), zeilen == 256);
}

void TestOrbitliste::starttext_data() {
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<QString>("erwartet");
    QTest::newRow("six digits") << -0.123456789 << 0.5 << "(-0.123457, 0.5) Pixel (301, -4)";
    QTest::newRow("huge and not a number")
        << 1e30 << std::numeric_limits<double>::quiet_NaN() << "(1e+30, nan) Pixel (301, -4)";
}

void TestOrbitliste::starttext() {
    QFETCH(const double, x);
    QFETCH(const double, y);
    QTEST(orbitstart(x, y, 301, -4), "erwartet");
}

QTEST_MAIN(TestOrbitliste)
#include "test_orbitliste.moc"
