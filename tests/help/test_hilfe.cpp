#include "colours/Farbwahl.h"
#include "equations/Gleichungen.h"
#include "help/Hilfetexte.h"
#include "Netzadresse.h"
#include "Testbasis.h"
#include "UI_Hauptfenster.h"
#include "window/Menuetafeln.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
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

/// Visible text of a topic without its blanks.
static QString dicht(const Hilfetabelle& sprache, Hilfethema thema) {
    return sichtbar(sprache.at(static_cast<std::size_t>(thema)).text)
        .remove(QRegularExpression("\\s"));
}

/// The numbers of the rows "7: ..." that a text has, in ascending order.
static QList<int> zeilennummern(const Hilfetabelle& sprache, Hilfethema thema) {
    QList<int> nummern;
    static const QRegularExpression zeile(R"((?:<tr><td>|<td>(?:&nbsp;)+)(\d+):)");
    auto treffer = zeile.globalMatch(sprache.at(static_cast<std::size_t>(thema)).text);
    while (treffer.hasNext()) {
        nummern << treffer.next().captured(1).toInt();
    }
    std::sort(nummern.begin(), nummern.end());
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
    void gleicheFormeln();
    void tatsachen_data();
    void tatsachen();
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

/// The formulas of twins and colour variants are the same in both languages.
void TestHilfe::gleicheFormeln() {
    static const QRegularExpression formel("<td>([^<]*(?:C|Fac|rq)[^<]*)</td>");
    const auto formeln = [](const Hilfetabelle& sprache, Hilfethema thema) {
        QStringList liste;
        const QString text = sprache.at(static_cast<std::size_t>(thema)).text;
        for (auto t = formel.globalMatch(text); t.hasNext();) {
            liste << t.next().captured(1);
        }
        return liste;
    };
    for (const auto& [thema, anzahl] :
         {std::pair{Hilfethema::Zwilling, 22}, {Hilfethema::Div, 13}, {Hilfethema::Konv, 11}}) {
        QCOMPARE(formeln(g_HilfeDeutsch, thema), formeln(g_HilfeEnglisch, thema));
        QCOMPARE(formeln(g_HilfeDeutsch, thema).size(), anzahl);
    }
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
    const QString abbruch = dicht(sprache, Hilfethema::Berechnung);
    static const QRegularExpression formel(R"(^[0-36-9]: rq= )");
    int formeln = 0;
    for (const Menuezeile& zeile : menuetafeln::AbbruchXYZeilen) {
        QString text = QString::fromUtf8(zeile.text);
        if (text.contains(formel)) {
            ++formeln;
            QVERIFY2(abbruch.contains(text.remove(' ')), qPrintable(text));
        }
    }
    QCOMPARE(formeln, 8);

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

QTEST_MAIN(TestHilfe)
#include "test_hilfe.moc"
