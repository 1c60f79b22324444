#include "colours/Farbwahl.h"
#include "equations/Abbruch.h"
#include "equations/Gleichungen.h"
#include "equations/Zwilling.h"
#include "help/Hilfetexte.h"
#include "model/Einfaerbung.h"
#include "Netzadresse.h"
#include "Testbasis.h"
#include "UI_Hauptfenster.h"
#include "window/Menuetafeln.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTimer>

#include <complex>
#include <map>

/// What a help box showed.
struct Kasten {
    int anzahl = 0;
    QString titel, text;
    QWidget* besitzer = nullptr;
    QSize groesse;
};

/// Runs a help slot and closes its box.
static Kasten oeffne(UI& fenster, const char* slot) {
    Kasten kasten;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&kasten] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            kasten = {kasten.anzahl + 1, box->windowTitle(), box->text(), box->parentWidget(),
                      box->size()};
            box->close();
        }
    });
    timer.start(1);
    QMetaObject::invokeMethod(&fenster, slot);
    return kasten;
}

static QString sichtbar(const QString& html) {
    QTextDocument dokument;
    dokument.setHtml(html);
    return dokument.toPlainText().replace(QChar::Nbsp, ' ');
}

/// The rows "7: ..." of a topic: their further cells without blanks, by number.
static std::map<int, QStringList> zeilen(const Hilfetabelle& sprache, Hilfethema thema) {
    static const QRegularExpression zeile(
        R"((?:<tr><td>|<td>(?:&nbsp;)+)(\d+):(?:&nbsp;)?</td>\s*<td>([^<]*)</td>(?:\s*<td>(?!(?:&nbsp;)+\d+:)([^<]*)</td>)?)");
    std::map<int, QStringList> liste;
    const QString text = sprache.at(static_cast<std::size_t>(thema)).text;
    for (auto t = zeile.globalMatch(text); t.hasNext();) {
        const auto m = t.next();
        for (const int zelle : {2, 3}) {
            liste[m.captured(1).toInt()] << m.captured(zelle).remove("&nbsp;").remove(' ');
        }
    }
    return liste;
}

using Komplex = std::complex<double>;

/// Works out a formula as the texts write it.
class Rechner {
  public:
    explicit Rechner(std::map<QString, Komplex> werte) : m_werte(std::move(werte)) {
        m_werte["i"] = {0.0, 1.0};
    }

    /// NaN where the formula cannot be read.
    Komplex operator()(const QString& formel) {
        m_rest = formel;
        const Komplex wert = summe();
        return m_rest.isEmpty() ? wert : Komplex(std::nan(""));
    }

  private:
    bool nimm(QChar zeichen) {
        const bool da = m_rest.startsWith(zeichen);
        m_rest.remove(0, da ? 1 : 0);
        return da;
    }
    Komplex summe() {
        Komplex s = produkt();
        for (;;) {
            if (nimm('+')) {
                s += produkt();
            } else if (nimm('-')) {
                s -= produkt();
            } else {
                return s;
            }
        }
    }
    Komplex produkt() {
        Komplex p = potenz();
        for (;;) {
            if (nimm('*')) {
                p *= potenz();
            } else if (nimm('/')) {
                p /= potenz();
            } else {
                return p;
            }
        }
    }
    Komplex potenz() {
        const Komplex grund = faktor();
        return nimm('^') ? std::pow(grund, static_cast<int>(faktor().real())) : grund;
    }
    Komplex faktor() {
        static const QRegularExpression wort("^(?:\\d+|[A-Za-z]+)");
        const QString name = wort.match(m_rest).captured();
        m_rest.remove(0, name.size());
        if (const auto wert = m_werte.find(name); wert != m_werte.end()) {
            return wert->second;
        }
        if (nimm('(') || nimm('|')) {
            const Komplex k = summe();
            const bool betrag = nimm('|');
            return betrag || nimm(')') ? funktion(betrag ? "abs" : name, k) : Komplex(std::nan(""));
        }
        bool zahl = false;
        const double wert = name.toDouble(&zahl);
        return zahl ? wert : std::nan("");
    }
    static Komplex funktion(const QString& name, const Komplex& k) {
        static const std::map<QString, Komplex (*)(const Komplex&)> funktionen{
            {"", [](const Komplex& z) { return z; }},
            {"Re", [](const Komplex& z) { return Komplex(z.real()); }},
            {"Im", [](const Komplex& z) { return Komplex(z.imag()); }},
            {"abs", [](const Komplex& z) { return Komplex(std::abs(z)); }},
            {"ln", [](const Komplex& z) { return std::log(z); }},
            {"sin", [](const Komplex& z) { return std::sin(z); }},
            {"sqrt", [](const Komplex& z) { return std::sqrt(z); }}};
        return funktionen.at(name)(k);
    }

    std::map<QString, Komplex> m_werte;
    QString m_rest;
};

/// The numbers of those rows.
static QList<int> zeilennummern(const Hilfetabelle& sprache, Hilfethema thema) {
    QList<int> nummern;
    for (const auto& zeile : zeilen(sprache, thema)) {
        nummern << zeile.first;
    }
    return nummern;
}

static QList<int> von(int erste, int letzte) {
    QList<int> liste;
    for (int i = erste; i <= letzte; ++i) {
        liste << i;
    }
    return liste;
}

class TestHilfe : public QObject {
    Q_OBJECT

    UI m_fenster;

  private Q_SLOTS:
    void kaesten_data();
    void kaesten();
    void autor();
    void qtVersion();
    void zitierteBeschriftungen();
    void tatsachen_data();
    void tatsachen();
    void abbruchformeln_data() { tatsachen_data(); }
    void abbruchformeln();
    void zwillingsformeln_data() { tatsachen_data(); }
    void zwillingsformeln();
    void farbformeln_data() { tatsachen_data(); }
    void farbformeln();
};

void TestHilfe::kaesten_data() {
    QTest::addColumn<QString>("titel");
    QTest::addColumn<bool>("deutsch");
    const auto zeile = [](const char* slot, const char* titel, bool deutsch) {
        QTest::newRow(slot) << QString::fromUtf8(titel) << deutsch;
    };
    zeile("aboutKomplexeZahlen", "Komplexe Zahlen", true);
    zeile("aboutComplexNumbers", "Complex numbers", false);
    zeile("aboutFraktale", "Die Mandelbrotmenge als Beispiel", true);
    zeile("aboutFractals", "The Mandelbrot set as an example", false);
    zeile("aboutSpezialFraktale", "Was ist hier anders?", true);
    zeile("aboutSpecialFractals", "What is different here?", false);
    zeile("aboutGleichungen", "Zur Auswahl der Gleichung", true);
    zeile("aboutEquations", "To select the equation", false);
    zeile("aboutBerechnung",
          "Wählbare Variable für den Iterations-Abbruch, Ermittlung von rq bei ZahlAbbr", true);
    zeile("aboutCalc",
          "Selectable variable for the iteration abort, determination of rq for ZahlAbbr", false);
    zeile("aboutZwilling", "Zum Zwillingsverfahren siehe auch https://wirbelwerk.example", true);
    zeile("aboutTwin", "On the twin method see also https://wirbelwerk.example", false);
    zeile("aboutOrbit", "Orbit: Der Weg von Z zwischen den Iterationen, eingeblendet als Polygon",
          true);
    zeile("aboutOrbitEn", "Orbit: The path of Z between the iterations, displayed as a polygon",
          false);
    zeile("aboutFarbTab",
          "Wählbare Farb-Tabellen mit vielen Farbvertauschungen, ohne neue Rechnung", true);
    zeile("aboutColorTab", "Selectable color tables with many color swaps, without new calculation",
          false);
    zeile("aboutDiv",
          "Wählbare Variante für die Color-Berechnung im divergente Bereich, zusammen mit dem "
          "Divergenz-Faktor FacDiv",
          true);
    zeile("aboutDivEn",
          "Selectable variant for the color calculation in the divergent range, together with the "
          "divergence factor FacDiv",
          false);
    zeile("aboutKonv",
          "Wählbare Variante für die Color-Berechnung im konvergenten Bereich, zusammen mit dem "
          "Konvergenz-Faktor FacKonv",
          true);
    zeile("aboutKonvEn",
          "Selectable variant for the color calculation in the convergent range, together with the "
          "convergence factor FacKonv",
          false);
}

void TestHilfe::kaesten() {
    QFETCH(QString, titel);
    QFETCH(bool, deutsch);
    const Kasten kasten = oeffne(m_fenster, QTest::currentDataTag());
    QCOMPARE(kasten.anzahl, 1);
    QCOMPARE(kasten.titel, titel);
    QCOMPARE(kasten.besitzer, &m_fenster);
    QVERIFY2(
        kasten.groesse.width() <= 985 && kasten.groesse.height() <= 675,
        qPrintable(QString("%1 x %2").arg(kasten.groesse.width()).arg(kasten.groesse.height())));

    // Tags balanced and of the few kinds that are meant, every & an entity, nothing left over.
    QVERIFY(Qt::mightBeRichText(kasten.text));
    QStringList offen;
    static const QRegularExpression marke(
        R"(<(/?)(b|br|i|span|table|tr|td)((?: [\w-]+="[^"<>]*")*)>)");
    auto treffer = marke.globalMatch(kasten.text);
    while (treffer.hasNext()) {
        const QRegularExpressionMatch t = treffer.next();
        if (t.captured(1) == "/") {
            QVERIFY2(!offen.isEmpty() && offen.takeLast() == t.captured(2),
                     qPrintable(t.captured()));
        } else if (t.captured(2) != "br") {
            offen << t.captured(2);
        }
    }
    QVERIFY2(offen.isEmpty(), qPrintable(offen.join(' ')));
    QString rest = kasten.text;
    rest.remove(marke).remove(QRegularExpression("&(nbsp|lt|gt|amp);"));
    QVERIFY2(!rest.contains(QRegularExpression("[<>&%]")), qPrintable(rest));

    const QString text = sichtbar(kasten.text);
    QVERIFY2(text.size() >= 1000 && text.size() <= 3000, qPrintable(QString::number(text.size())));
    const auto deutsche = text.count(QRegularExpression("\\b(der|die|das|und|nicht|ist|ein)\\b"));
    const auto englische = text.count(QRegularExpression("\\b(the|of|and|not|is|a)\\b"));
    QVERIFY(deutsch ? deutsche > 10 + englische : englische > 10 + deutsche);
    if (deutsch) {
        QVERIFY(text.contains(QRegularExpression("[äöüÄÖÜ]")));
    }
}

void TestHilfe::autor() {
    m_fenster.Menge->g_Versionsnummer = "9.87";
    const Kasten kasten = oeffne(m_fenster, "about");
    QCOMPARE(kasten.titel, "About Menu");
    const QString text = sichtbar(kasten.text);
    QVERIFY(text.startsWith("Wirbelwerk 9.87\n"));
    QVERIFY(text.contains("die Entwickler von Wirbelwerk"));
    QVERIFY(text.endsWith(Netzadresse));
}

void TestHilfe::qtVersion() {
    QLabel* const label = m_fenster.infoLabel11;
    m_fenster.aboutQt();
    QCOMPARE(label->text(), "<b>qt 6.7.2</b>");
    m_fenster.infoLabel11 = nullptr; // a window without panel
    m_fenster.aboutQt();
    m_fenster.infoLabel11 = label;
}

/// Every caption that a help text quotes stands on a menu, a button or a label of the window.
void TestHilfe::zitierteBeschriftungen() {
    QStringList beschriftungen;
    for (const auto* aktion : m_fenster.findChildren<QAction*>()) {
        beschriftungen << aktion->text();
    }
    for (const auto* knopf : m_fenster.findChildren<QPushButton*>()) {
        beschriftungen << knopf->text();
    }
    for (const auto* label : m_fenster.findChildren<QLabel*>()) {
        beschriftungen << label->text();
    }
    const QString alle = beschriftungen.join('\n');
    int zitate = 0;
    static const QRegularExpression zitat("[„\"]([^“\"]+)[“\"]");
    for (const Hilfetabelle* sprache : {&g_HilfeDeutsch, &g_HilfeEnglisch}) {
        for (const Hilfetext& hilfe : *sprache) {
            auto treffer = zitat.globalMatch(sichtbar(hilfe.text));
            while (treffer.hasNext()) {
                const QString stelle = treffer.next().captured(1);
                QVERIFY2(alle.contains(stelle), qPrintable(stelle));
                ++zitate;
            }
        }
    }
    QVERIFY2(zitate > 60, qPrintable(QString::number(zitate)));
}

void TestHilfe::tatsachen_data() {
    QTest::addColumn<bool>("deutsch");
    QTest::newRow("German") << true;
    QTest::newRow("English") << false;
}

/// The facts that the code holds as values or tables of its own.
void TestHilfe::tatsachen() {
    QFETCH(bool, deutsch);
    const Hilfetabelle& sprache = deutsch ? g_HilfeDeutsch : g_HilfeEnglisch;

    Mandelbrot& menge = *m_fenster.Menge;
    const QString fraktale = sichtbar(sprache.at(1).text);
    for (const auto& ecke :
         {QString("C(%1, %2)").arg(menge.MP_x - menge.Br_x / 2).arg(menge.Br_x / 2),
          QString("C(%1, %2)").arg(menge.MP_x + menge.Br_x / 2).arg(-menge.Br_x / 2),
          QString("ZahlAbbr = %1").arg(menge.wert_Abbruch),
          QString("Zoom = %1").arg(menge.click2_Zoom)}) {
        QVERIFY2(fraktale.contains(ecke), qPrintable(ecke));
    }
    QVERIFY(sichtbar(sprache.at(2).text).contains(QString("%1 ").arg(gleichungen().size())));

    QCOMPARE(zeilennummern(sprache, Hilfethema::Berechnung), von(0, menge.g_Max_glg_Abbruch));
    int zwillinge = 0;
    for (const Menuezeile& zeile : menuetafeln::ZwillingZeilen) {
        zwillinge += QByteArray(zeile.text).endsWith(" EIN") ? 1 : 0;
    }
    QCOMPARE(zeilennummern(sprache, Hilfethema::Zwilling), von(1, zwillinge));

    menge.rechen_VarianteDiv = menge.rechen_VarianteKonv = 0;
    menge.rechen_VarianteDivPlusM(-1);
    menge.rechen_VarianteKonvPlusM(-1);
    QCOMPARE(zeilennummern(sprache, Hilfethema::Div), von(0, menge.rechen_VarianteDiv));
    QCOMPARE(zeilennummern(sprache, Hilfethema::Konv), von(0, menge.rechen_VarianteKonv));

    QVERIFY(sichtbar(sprache.at(4).text)
                .contains(deutsch ? "Die Fixpunkte um Null haben die Zykluszahl 1."
                                  : "increase/double the ZahlAbbruch (default=400)"));
    const QString farben = sichtbar(sprache.at(7).text);
    QVERIFY(farben.contains("cTab 0-11, 12-23,  24-32, 36-47")); // slip and double blank are meant
    QVERIFY(farben.contains("if (zahl_Tab == 11) G11 = 80;"));
    static const QRegularExpression palette(R"(^Palette (\d): \((\d+)\).*cTab\.= ?(\d+)$)");
    int paletten = 0;
    for (const Menuezeile& zeile : menuetafeln::FarbtabZeilen) {
        const auto m = palette.match(QString::fromUtf8(zeile.text));
        if (m.hasMatch()) {
            ++paletten;
            const QRegularExpression satz(QString(R"(Palette %1:\s+%2\b[^=]*cTab = %3\b)")
                                              .arg(m.captured(1), m.captured(2), m.captured(3)));
            QVERIFY2(farben.contains(satz), qPrintable(satz.pattern()));
        }
    }
    QCOMPARE(paletten, 4);

    // The swaps and reductions as the text words them, carried out and compared with the lookup.
    const std::map<QString, int> grund{{"R", 10}, {"G", 20}, {"B", 40}};
    const auto wert = [](const std::map<QString, int>& kanaele, const QString& wort) {
        return wort.startsWith('~') ? 255 - kanaele.at(wort.mid(1)) : kanaele.at(wort);
    };
    static const QRegularExpression zelle(R"((\d\d): (~?[RGB]) (~?[RGB]) (~?[RGB])\b)");
    int zellen = 0;
    for (auto t = zelle.globalMatch(farben); t.hasNext(); ++zellen) {
        const auto m = t.next();
        const Farbtripel farbe = farbvariante({10, 20, 40}, m.captured(1).toInt(), 0);
        for (int kanal = 0; kanal < 3; ++kanal) {
            QCOMPARE(int{farbe.at(static_cast<std::size_t>(kanal))},
                     wert(grund, m.captured(kanal + 2)));
        }
    }
    QCOMPARE(zellen, 12);
    static const QRegularExpression regel(R"(if \(zahl_Tab == (\d+)\) ([RGB])11 = (\d+);)");
    int regeln = 0;
    for (auto t = regel.globalMatch(farben); t.hasNext(); ++regeln) {
        const auto m = t.next();
        auto kanaele = grund;
        kanaele[m.captured(2)] = m.captured(3).toInt();
        const Farbtripel farbe = farbvariante({10, 20, 40}, 13, m.captured(1).toInt()); // G R B
        QCOMPARE(QList<int>({farbe[0], farbe[1], farbe[2]}),
                 QList<int>({kanaele.at("G"), kanaele.at("R"), kanaele.at("B")}));
    }
    QCOMPARE(regeln, 10);
    const Farbtripel umgekehrt = farbvariante({10, 20, 40}, 13, 1); // the rule of three statements
    QCOMPARE(QList<int>({umgekehrt[0], umgekehrt[1], umgekehrt[2]}), QList<int>({235, 245, 215}));
    QVERIFY(farben.contains("if (zahl_Tab == 1) { R11 = ~R11; G11 = ~G11; B11 = ~B11; }"));
}

// The formulas as the texts write them, worked out and compared with the code's.

void TestHilfe::abbruchformeln() {
    QFETCH(bool, deutsch);
    const Hilfetabelle& sprache = deutsch ? g_HilfeDeutsch : g_HilfeEnglisch;
    constexpr double x = -1.5;
    constexpr double y = 0.75;
    Rechner betrag({{"x", x}, {"y", y}});
    for (const auto& [nummer, zellen] : zeilen(sprache, Hilfethema::Berechnung)) {
        const auto art = static_cast<Abbruchart>(nummer);
        if (!istZyklussuche(art)) {
            QVERIFY2(zellen[0].startsWith("rq="), qPrintable(zellen[0]));
            QCOMPARE(betrag(zellen[0].mid(3)), Komplex(betragOhneZyklus(art, x, y)));
        }
    }
}

void TestHilfe::zwillingsformeln() {
    QFETCH(bool, deutsch);
    const Hilfetabelle& sprache = deutsch ? g_HilfeDeutsch : g_HilfeEnglisch;
    const Komplex c(0.5, -3.0);
    const Komplex w(2.0, 1.25);
    const Komplex z(-1.5, 0.75);
    const Komplex p(0.25, 5.0);
    Rechner zwilling({{"C", c},
                      {"Cx", c.real()},
                      {"Cy", c.imag()},
                      {"W", w},
                      {"p", w.real()},
                      {"t", w.imag()},
                      {"Z", z},
                      {"x", z.real()},
                      {"y", z.imag()},
                      {"P", p},
                      {"koppX", p.real()},
                      {"koppY", p.imag()}});
    for (const auto& [nummer, zellen] : zeilen(sprache, Hilfethema::Zwilling)) {
        const KomplexeKopplung kopplung{nummer, p.real(), p.imag()};
        QCOMPARE(zwilling(zellen[0]), kopplung.haupt(w, c));
        QCOMPARE(zwilling(zellen[1]), kopplung.zwilling(z, c));
    }
    static const QRegularExpression auge("A = (.*)<br>");
    const QString text = sprache.at(static_cast<std::size_t>(Hilfethema::Zwilling)).text;
    const auto a = AugenKopplung{{5, p.real(), p.imag()}}.haupt<double>({w.real(), w.imag()},
                                                                        {c.real(), c.imag()});
    QCOMPARE(zwilling(auge.match(text).captured(1).remove(' ')), Komplex(a.x, a.y));
}

void TestHilfe::farbformeln() {
    QFETCH(bool, deutsch);
    const Hilfetabelle& sprache = deutsch ? g_HilfeDeutsch : g_HilfeEnglisch;

    // A palette whose colours tell the colour number.
    Mandelbrot& menge = *m_fenster.Menge;
    for (std::size_t i = 0; i < Mandelbrot::ColormapSize; ++i) {
        menge.colormapWave[3 * i] = static_cast<quint8>(i);
        menge.colormapWave[3 * i + 1] = static_cast<quint8>(i / 256);
    }
    menge.zahl_farbtab = menge.color_Offset = menge.g_halbesBild = 0;
    menge.it_Factor = 1.0;
    menge.zahl_Matrix = 13; // G R B
    menge.div_Factor = 50.0;
    menge.konv_Factor = 700.0;
    menge.wert_Abbruch = 4.0;
    menge.ImageDoubles[1][0] = 20.0;
    Bildlauf lauf;
    lauf.SpaltenKLGross = lauf.ZeilenKLGross = 1;
    QImage bild(1, 1, QImage::Format_ARGB32_Premultiplied);
    Rechner farbe(
        {{"n", 7.0}, {"rq", 20.0}, {"FacDiv", 50.0}, {"FacKonv", 700.0}, {"ZahlAbbr", 4.0}});
    for (const auto& [thema, variante, grenze] :
         {std::tuple{Hilfethema::Div, &Mandelbrot::rechen_VarianteDiv, 8},
          {Hilfethema::Konv, &Mandelbrot::rechen_VarianteKonv, 7}}) {
        menge.ImageIntegers[1][0] = 7;
        menge.Max_Iterationen = grenze;
        for (const auto& [nummer, zellen] : zeilen(sprache, thema)) {
            menge.*variante = nummer;
            einfaerben(menge, lauf, bild);
            const QColor da = bild.pixelColor(0, 0);
            if (nummer < 2) { // in words: all black, all white
                QCOMPARE(da, QColor(nummer == 0 ? Qt::black : Qt::white));
                continue;
            }
            const int soll = static_cast<int>(farbe(zellen[0]).real()) % 512;
            QVERIFY2(da.green() == soll % 256 && da.red() == soll / 256, qPrintable(zellen[0]));
        }
    }
}

QTEST_MAIN(TestHilfe)
#include "test_hilfe.moc"
