// The help texts: their form, and their numbers and formulas against the program's own.

#include "colours/Farbwahl.h"
#include "colours/Palettenwahl.h"
#include "equations/Abbruch.h"
#include "equations/formeln/Zwilling.h"
#include "equations/Gleichungen.h"
#include "help/Hilfetexte.h"
#include "Meldung.h"
#include "model/Einfaerbung.h"
#include "Netzadresse.h"
#include "Texttabelle.h"
#include "UI_Hauptfenster.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QXmlStreamReader>

namespace {

using Komplex = std::complex<double>;
using Werte = std::map<QString, Komplex>;

QString sichtbar(const QString& html) {
    QTextDocument dokument;
    dokument.setHtml(html);
    return dokument.toPlainText().replace(QChar::Nbsp, ' ');
}

/// What the pattern and its brackets match, one list for each place.
QList<QStringList> treffer(const QString& muster, const QString& text) {
    QList<QStringList> liste;
    for (const auto& stelle : QRegularExpression(muster).globalMatch(text)) {
        liste << stelle.capturedTexts();
    }
    return liste;
}

/// The texts of a topic, German and English.
std::array<QString, 2> texte(Hilfethema thema) {
    const auto platz = static_cast<std::size_t>(thema);
    return {g_HilfeDeutsch.at(platz).text, g_HilfeEnglisch.at(platz).text};
}

/// The rows "7: ..." of a topic in both languages: their two further cells without blanks, by
/// number.
std::multimap<int, QStringList> zeilen(Hilfethema thema) {
    std::multimap<int, QStringList> liste;
    for (QString text : texte(thema)) {
        text.remove("&nbsp;").remove(' ').remove('\n');
        for (const QStringList& zeile :
             treffer(R"(<td>(\d+):</td><td>([^<]*)</td>(?:<td>(?!\d+:)([^<]*)</td>)?)", text)) {
            liste.insert({zeile[1].toInt(), {zeile[2], zeile.value(3)}});
        }
    }
    return liste;
}

QString nimm(QString& text, qsizetype laenge) {
    const QString anfang = text.left(laenge);
    text.remove(0, laenge);
    return anfang;
}

/// Works out the formula that the text begins with, and takes it off. Stages: sum, product, power,
/// factor. NaN where it cannot be read.
Komplex ausdruck(QString& text, const Werte& werte, std::size_t stufe = 0) {
    static const std::array<QString, 3> zeichen{"+-", "*/", "^"};
    if (stufe < zeichen.size()) {
        Komplex a = ausdruck(text, werte, stufe + 1);
        while (!text.isEmpty() && zeichen[stufe].contains(text[0])) {
            const QString rechnung = nimm(text, 1);
            const Komplex b = ausdruck(text, werte, stufe + 1);
            a = rechnung == "+"   ? a + b
                : rechnung == "-" ? a - b
                : rechnung == "*" ? a * b
                : rechnung == "/" ? a / b
                                  : std::pow(a, static_cast<int>(b.real()));
        }
        return a;
    }
    static const std::map<QString, Komplex (*)(const Komplex&)> funktionen{
        {"(", [](const Komplex& z) { return z; }},
        {"|", [](const Komplex& z) { return Komplex(std::abs(z)); }},
        {"Re(", [](const Komplex& z) { return Komplex(z.real()); }},
        {"Im(", [](const Komplex& z) { return Komplex(z.imag()); }},
        {"ln(", [](const Komplex& z) { return std::log(z); }},
        {"sin(", [](const Komplex& z) { return std::sin(z); }},
        {"sqrt(", [](const Komplex& z) { return std::sqrt(z); }}};
    static const QRegularExpression wort(R"(^(\d+|[A-Za-z]*\(|\||[A-Za-z]+))");
    const QString name = nimm(text, wort.match(text).capturedLength());
    if (const auto funktion = funktionen.find(name); funktion != funktionen.end()) {
        const Komplex wert = ausdruck(text, werte);
        nimm(text, 1); // the bracket at the end
        return funktion->second(wert);
    }
    bool istZahl = false;
    const double zahl = name.toDouble(&istZahl);
    return istZahl ? zahl : werte.count(name) > 0 ? werte.at(name) : std::nan("");
}

/// A formula as the texts write it.
Komplex rechne(QString formel, const Werte& werte) {
    const Komplex wert = ausdruck(formel, werte);
    return formel.isEmpty() ? wert : std::nan("");
}

QList<int> farbe(int code, int platz) {
    const Farbtripel f = farbvariante({10, 20, 40}, code, platz);
    return {f[0], f[1], f[2]};
}

} // namespace

class TestHilfe : public QObject {
    Q_OBJECT

    UI m_fenster;

  private Q_SLOTS:
    void kaesten_data() { zeilenAus("help/kaesten.txt"); }
    void kaesten() {
        QFETCH(QStringList, spalten);
        const Meldung kasten =
            meldungBei([&] { QMetaObject::invokeMethod(&m_fenster, qPrintable(spalten[0])); });
        QVERIFY2(kasten.titel.contains(spalten[1]), qPrintable(kasten.titel));
        QVERIFY(kasten.anzahl == 1 && kasten.besitzer == &m_fenster);
        QVERIFY(kasten.groesse.width() <= 985 && kasten.groesse.height() <= 675);

        // Well-formed, with the few kinds of tags that are meant, and nothing left to fill in.
        QString html = kasten.text;
        QVERIFY(!html.contains('%') && Qt::mightBeRichText(html));
        QVERIFY(!html.contains(QRegularExpression("<(?!/?(b|br|i|span|table|tr|td)\\b)")));
        QXmlStreamReader leser(html.replace("<br>", "<br/>").replace("&nbsp;", " "));
        while (!leser.atEnd()) {
            leser.readNext();
        }
        QVERIFY2(!leser.hasError(), qPrintable(leser.errorString()));

        const QString text = sichtbar(kasten.text);
        QVERIFY2(text.size() >= 1000 && text.size() <= 3000, qPrintable(text));
    }

    void autorUndQt() {
        m_fenster.Menge->g_Versionsnummer = "9.87";
        const Meldung kasten = meldungBei([this] { m_fenster.about(); });
        QCOMPARE(kasten.titel, "About Menu");
        const QString text = sichtbar(kasten.text);
        QVERIFY2(text.startsWith("Wirbelwerk 9.87\n") && text.endsWith(Netzadresse) &&
                     text.contains("die Entwickler von Wirbelwerk"),
                 qPrintable(text));
        QVERIFY(meldungBei([this] { m_fenster.aboutQtAct->trigger(); }).titel.contains("Qt"));
        QCOMPARE(m_fenster.infoLabel11->text(), "<b>qt 6.7.2</b>");
    }

    /// What a help text quotes begins a caption of the window, or names an equation there.
    void zitierteBeschriftungen() {
        QStringList alle;
        for (const QObject* teil : m_fenster.findChildren<QObject*>()) {
            if (!teil->inherits("QAbstractSpinBox") && !teil->inherits("QLineEdit")) {
                alle << teil->property("text").toString().remove('&');
            }
        }
        int zitate = 0;
        for (const Hilfetabelle* sprache : {&g_HilfeDeutsch, &g_HilfeEnglisch}) {
            for (const Hilfetext& hilfe : *sprache) {
                for (const auto& m : treffer("[„\"]([^“\"]+)[“\"]", sichtbar(hilfe.text))) {
                    const QRegularExpression zitat("^(.*\\d: .*\\W)?" +
                                                   QRegularExpression::escape(m[1]) + "(\\W|$)");
                    QVERIFY2(!alle.filter(zitat).isEmpty(), qPrintable(m[1]));
                    ++zitate;
                }
            }
        }
        QVERIFY2(zitate > 60, qPrintable(QString::number(zitate)));
    }

    /// The numbers of the start picture and the catalogue, what single points come to, and what is
    /// worded on purpose.
    void tatsachen() {
        M& m = *m_fenster.Menge;
        const double rand = m.Br_x / 2;
        QList<std::pair<Hilfethema, QString>> saetze{
            {Hilfethema::Fraktale, QString("C(%1, %2)").arg(m.MP_x - rand).arg(rand)},
            {Hilfethema::Fraktale, QString("C(%1, %2)").arg(m.MP_x + rand).arg(-rand)},
            {Hilfethema::Fraktale, QString("ZahlAbbr = %1?").arg(m.wert_Abbruch)},
            {Hilfethema::Fraktale, QString("Zoom = %1 ").arg(m.click2_Zoom)},
            {Hilfethema::SpezialFraktale, QString("%1 ").arg(gleichungen().size())},
            {Hilfethema::Fraktale, QString(" %1").arg(m.Max_Iterationen - 1)},
            {Hilfethema::Berechnung, QString(" %1").arg(m.Max_Iterationen - 1)},
            {Hilfethema::Berechnung, QString("/%1, ").arg(m.g_zycmax)},
            // Slip and double blank are meant.
            {Hilfethema::FarbTab, "cTab 0-11, 12-23,  24-32, 36-47"},
            {Hilfethema::FarbTab, "if (zahl_Tab == 1) { R11 = ~R11; G11 = ~G11; B11 = ~B11; }"}};
        // constant, bailout, does the text say the count
        for (const auto& [thema, c, art, mitZahl] : {std::tuple{Hilfethema::Div, 100.0, 1, true},
                                                     {Hilfethema::Div, 1.0, 1, true},
                                                     {Hilfethema::Berechnung, 100.0, 1, true},
                                                     {Hilfethema::Berechnung, -0.5, 4, true},
                                                     {Hilfethema::Berechnung, -0.5, 5, false}}) {
            m.glg_Abbruch = art;
            m.xm.fill(1000.0);
            const int rq = qRound(m.IterateZmalZplusC(0.0, 0.0, c, 0.0));
            saetze << std::pair{thema, QString("rq = %1").arg(rq)};
            saetze << std::pair{thema, mitZahl ? QString("n = %1").arg(m.privateIterat) : ""};
        }
        m.glg_Abbruch = 1;
        for (const auto& [thema, satz] : saetze) {
            for (const QString& text : texte(thema)) {
                QVERIFY2(sichtbar(text).contains(satz), qPrintable(satz));
            }
        }
    }

    // What the texts say of palettes and colour variants, carried out and compared with the lookup.
    void farbvarianten() {
        const std::map<QString, int> grund{{"R", 10},   {"G", 20},   {"B", 40},
                                           {"~R", 245}, {"~G", 235}, {"~B", 215}};
        for (const QString& html : texte(Hilfethema::FarbTab)) {
            const QString text = sichtbar(html);
            const auto zellen = treffer(R"((\d\d): (~?[RGB]) (~?[RGB]) (~?[RGB])\b)", text);
            QCOMPARE(zellen.size(), 12);
            for (const QStringList& m : zellen) {
                QCOMPARE(farbe(m[1].toInt(), 0),
                         QList<int>({grund.at(m[2]), grund.at(m[3]), grund.at(m[4])}));
            }
            const auto regeln = treffer(R"(if \(zahl_Tab == (\d+)\) ([RGB])11 = (\d+);)", text);
            QCOMPARE(regeln.size(), 10);
            for (const QStringList& m : regeln) {
                auto kanaele = grund;
                kanaele[m[2]] = m[3].toInt();
                QCOMPARE(farbe(13, m[1].toInt()), // G R B
                         QList<int>({kanaele["G"], kanaele["R"], kanaele["B"]}));
            }
            const auto paletten = treffer(R"(Palette (\d):\s+(\d+)[^=]*cTab = (\d+))", text);
            QCOMPARE(paletten.size(), 4);
            for (const QStringList& m : paletten) {
                QCOMPARE(palettenZahl(m[3].toInt()), m[1]);
                QVERIFY(m[1] == "1" || palettenZahl(m[3].toInt() - 1) != m[1]);
                QCOMPARE(palettenFarben(m[3].toInt()), m[2].toUInt());
            }
        }
        QCOMPARE(farbe(13, 1), QList<int>({235, 245, 215})); // the rule of three statements
    }

    // The formulas as the texts write them, worked out and compared with the program's.

    void abbruchformeln() {
        const auto liste = zeilen(Hilfethema::Berechnung);
        QCOMPARE(qint32(liste.size()), 2 * (m_fenster.Menge->g_Max_glg_Abbruch + 1));
        for (const auto& [nummer, zellen] : liste) {
            const auto art = static_cast<Abbruchart>(nummer);
            QVERIFY2(zellen[0].startsWith("rq="), qPrintable(zellen[0]));
            if (!istZyklussuche(art)) {
                QCOMPARE(rechne(zellen[0].mid(3), {{"x", -1.5}, {"y", 0.75}}),
                         Komplex(betragOhneZyklus(art, -1.5, 0.75)));
            }
        }
    }

    void zwillingsformeln() {
        const Komplex c(0.5, -3.0), w(2.0, 1.25), z(-1.5, 0.75), p(0.25, 5.0);
        // clang-format off
        const Werte werte{{"i", {0.0, 1.0}}, {"C", c}, {"Cx", c.real()}, {"Cy", c.imag()},
                          {"W", w}, {"p", w.real()}, {"t", w.imag()},
                          {"Z", z}, {"x", z.real()}, {"y", z.imag()},
                          {"P", p}, {"koppX", p.real()}, {"koppY", p.imag()}};
        // clang-format on
        const auto liste = zeilen(Hilfethema::Zwilling);
        QCOMPARE(qint32(liste.size()), 2 * KomplexeKopplung::Letzte);
        for (const auto& [nummer, zellen] : liste) {
            const KomplexeKopplung kopplung{nummer, p.real(), p.imag()};
            QCOMPARE(rechne(zellen[0], werte), kopplung.haupt(w, c));
            QCOMPARE(rechne(zellen[1], werte), kopplung.zwilling(z, c));
        }
        const auto auge = AugenKopplung{{5, p.real(), p.imag()}}.haupt<double>(
            {w.real(), w.imag()}, {c.real(), c.imag()});
        for (const QString& text : texte(Hilfethema::Zwilling)) {
            const auto formeln = treffer("A = (.*)<br>", text);
            QCOMPARE(formeln.size(), 1);
            QCOMPARE(rechne(QString(formeln[0][1]).remove(' '), werte), Komplex(auge.x, auge.y));
        }
    }

    void farbformeln() {
        const auto menge = std::make_unique<M>();
        M& m = *menge;
        for (std::size_t i = 0; i < M::ColormapSize; ++i) { // the colour tells its number
            m.colormapWave[3 * i] = static_cast<quint8>(i);
            m.colormapWave[3 * i + 1] = static_cast<quint8>(i / 256);
        }
        setze(m, "zahl_farbtab=0 zahl_Matrix=13 color_Offset=0 it_Factor=1 div_Factor=50 "
                 "konv_Factor=700 wert_Abbruch=4");
        m.ImageDoubles[1][0] = 20.0;
        m.ImageIntegers[1][0] = 7;
        Bildlauf lauf;
        lauf.SpaltenKLGross = lauf.ZeilenKLGross = 1;
        QImage bild(1, 1, QImage::Format_ARGB32_Premultiplied);
        const Werte werte{{"n", 7}, {"rq", 20}, {"FacDiv", 50}, {"FacKonv", 700}, {"ZahlAbbr", 4}};
        for (const auto& [thema, variante, grenze, anzahl] :
             {std::tuple{Hilfethema::Div, &M::rechen_VarianteDiv, 8, 19},
              {Hilfethema::Konv, &M::rechen_VarianteKonv, 7, 13}}) {
            m.Max_Iterationen = grenze;
            const auto liste = zeilen(thema);
            QCOMPARE(int(liste.size()), 2 * anzahl);
            for (const auto& [nummer, zellen] : liste) {
                m.*variante = nummer;
                einfaerben(m, lauf, bild);
                const QColor da = bild.pixelColor(0, 0);
                const int soll = static_cast<int>(rechne(zellen[0], werte).real()) % 512;
                QVERIFY2(nummer < 2 ? da == (nummer == 0 ? Qt::black : Qt::white)
                                    : da.green() + 256 * da.red() == soll,
                         qPrintable(zellen[0]));
            }
        }
    }
};

QTEST_MAIN(TestHilfe)
#include "test_hilfe.moc"
