#include "Meldung.h"
#include "Texttabelle.h"
#include "UI_Hauptfenster.h"

#include <QTranslator>

// Every command: all that it can change is compared before and after, so a command that writes one
// field more than its row says is caught as well.

namespace {

/// Counts the paints of the picture and swallows them: nothing is computed.
class Bildzaehler : public QObject {
  public:
    int anzahl = 0;

  protected:
    bool eventFilter(QObject* /*bild*/, QEvent* ereignis) override {
        const bool paint = ereignis->type() == QEvent::Paint;
        anzahl += paint ? 1 : 0;
        return paint;
    }
};

/// Translates every text into small letters.
class Kleinschrift : public QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* quelle, const char* /*disambiguation*/,
                      int /*n*/) const override {
        return QString::fromUtf8(quelle).toLower();
    }
};

/// What a command can change, as text: fields, boxes (">" and the name), labels and the rest.
using Stand = std::map<QString, QString>;

QString alsText(double wert) { return QString::number(wert, 'g', 17); }

/// The parameters in the order of their boxes in the panel: equation, picture, colours, constant.
const QStringList Boxnamen =
    QString("wahl_Gleichung MP_x MP_y Br_x Max_Iterationen glg_Abbruch wert_Abbruch click2_Zoom "
            "Koppl_x Koppl_y it_Factor div_Factor rechen_VarianteDiv konv_Factor "
            "rechen_VarianteKonv color_Offset zahl_farbtab zahl_Matrix CJ_x CJ_y")
        .split(' ');
const QStringList Farbwerte = Boxnamen.mid(10, 8);

/// Applies what a row says to the state before the command.
void erwarte(Stand& stand, const QString& worte) {
    for (const QString& wort : worte.split(' ', Qt::SkipEmptyParts)) {
        const QString name = wort.section('=', 0, 0);
        const QString feld = name.mid(1);
        if (feld == "alles" || feld == "farben") {
            for (const QString& eines : feld == "alles" ? Boxnamen.mid(1) : Farbwerte) {
                erwarte(stand, name[0] + eines);
            }
        } else if (wort.contains('=')) {
            stand.at(name) = alsText(wort.section('=', 1).toDouble());
        } else if (name.startsWith('>')) {
            stand.at(name) = stand.at(feld);
        } else {
            stand.at(feld) = stand.at('>' + feld);
        }
    }
}

QStringList zeilen(const Stand& stand) {
    QStringList zeilen;
    for (const auto& [name, wert] : stand) {
        zeilen << name + ": " + wert;
    }
    return zeilen;
}

} // namespace

class TestBefehle : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        fenster.Menge->installEventFilter(&bilder);
        fenster.Menge->installEventFilter(&fenster); // the window sees the paints first
        fenster.show();
        QTRY_VERIFY(bilder.anzahl > 0);
        QTest::qWait(0);
        QVERIFY(fenster.windowTitle().startsWith("Wirbelwerk (")); // not yet renewed
    }

    /// A row with braces stands for one command for each word in them; "$" is what follows the
    /// word's colon, or the word.
    void befehl_data() {
        QTest::addColumn<QStringList>("spalten");
        for (const QStringList& spalten : tabelle("window/befehle.txt")) {
            const QString zeile = spalten.join(';');
            const QString klammer = zeile.section('{', 1).section('}', 0, 0);
            for (const QString& wort : klammer.split(' ')) {
                QString eine = zeile;
                eine.replace('{' + klammer + '}', wort.section(':', 0, 0));
                eine.replace('$', wort.section(':', -1));
                QTest::newRow(qPrintable(eine)) << eine.split(';');
            }
        }
    }
    void befehl() {
        QFETCH(QStringList, spalten);
        anfangen(spalten[1]);
        Stand soll = lies();
        erwarte(soll, spalten[2]);
        soll["Ende"] = spalten[3];
        for (const QString& text : spalten.mid(4)) {
            soll.at(text.section(' ', 0, 0)) = text.section('"', 1, -2);
        }
        const QByteArray slot = spalten[0].toUtf8() + "Slot";
        const Meldung meldung = meldungBei([&] { QMetaObject::invokeMethod(&fenster, slot); });
        Stand ist = lies();
        const bool titel = fenster.windowTitle() != "old";
        QTest::qWait(0);
        ist["Ende"] = QString(bilder.anzahl > 0 ? "B" : "") + (titel ? "T" : "");
        ist["Ende"] += ist["Ende"].isEmpty() ? "-" : "";
        ist["Meldung"] = meldung.anzahl > 0 ? meldung.titel + '|' + meldung.text : "";
        QCOMPARE(zeilen(ist), zeilen(soll));
        QVERIFY(meldung.anzahl < 2 && (meldung.besitzer != nullptr) == (meldung.anzahl == 1));
    }

    void titel_data() { zeilenAus("window/titel.txt"); }
    void titel() {
        QFETCH(QStringList, spalten);
        for (const auto& [name, feld] : Felder) {
            setzeFeld(*fenster.Menge, feld, 0);
        }
        setze(*fenster.Menge, "g_Gitterabstand=0.125 g_kPotenz=10 g_zycmax=7 " + spalten[0]);
        fenster.Menge->g_Versionsnummer = "v";
        fenster.Menge->g_NameGlg = "name";
        fenster.Menge->g_OrbitStartString = "[a]";
        fenster.Menge->g_OrbitEndString = " [b]";
        fenster.SetNewTitle();
        const QString soll = "\"Wirbelwerkv" + spalten[1].mid(1);
        QCOMPARE('"' + fenster.windowTitle() + '"', soll);
        // All of its words can be translated, the equation's name as well.
        Kleinschrift uebersetzer;
        QVERIFY(QCoreApplication::installTranslator(&uebersetzer));
        fenster.SetNewTitle();
        fenster.Menge->wahl_Gleichung = 105;
        fenster.Menge->EquationName();
        QCoreApplication::removeTranslator(&uebersetzer);
        QCOMPARE('"' + fenster.windowTitle() + '"', soll.toLower());
        QCOMPARE(fenster.Menge->g_NameGlg, "105: z=(z+c)/(1+c*z^3) complex vierpol");
    }

    /// A quarter shows the parameters that were stored, clearing discards them; start settings.
    void fruehereBilder() {
        Mandelbrot& m = *fenster.Menge;
        anfangen("g_halbesBild=2");
        m.DatenSichern();
        m.MP_x = -3.0;
        fenster.PixelXYDurch2Pos2Slot();
        QVERIFY(m.MP_x == 1.0 && fenster.UI_MPx->value() == 1.0);
        fenster.BildSchwarzSlot();
        m.MP_x = -3.0;
        fenster.PixelXYDurch2Pos2Slot();
        QCOMPARE(m.MP_x, -3.0);
        fenster.ResetSlot();
        QVERIFY(m.MP_x == -0.5 && fenster.UI_MPx->value() == -0.5 && m.g_OrbitJa == 0);
    }

    /// Queued, so that no box opens inside a paint, and only for the present model's orbit.
    void orbitAusKommtSpaeterUndEinmal() {
        anfangen({});
        const auto zweimal = [&] {
            Q_EMIT fenster.Menge->OrbitOffSignal();
            Q_EMIT fenster.Menge->OrbitOffSignal();
        };
        const auto warten = [] { QTest::qWait(50); };
        QCOMPARE(meldungBei(zweimal).anzahl, 0);
        QCOMPARE(meldungBei(warten).anzahl, 1);
        QCOMPARE(fenster.Menge->g_OrbitJa, 0);
        QVERIFY(bilder.anzahl > 0);

        UI neues;
        Q_EMIT neues.Menge->OrbitOffSignal();
        neues.Pixel985x675Slot();
        neues.Menge->g_OrbitJa = 2;
        QCOMPARE(meldungBei(warten).anzahl, 0);
        QCOMPARE(neues.Menge->g_OrbitJa, 2);
    }

  private:
    Stand lies() const {
        Stand stand{{"Ende", {}}, {"Meldung", {}}};
        for (const auto& [name, feld] : Felder) {
            stand[name] = alsText(feldwert(*fenster.Menge, feld));
        }
        for (int i = 0; i < Boxnamen.size(); ++i) {
            stand['>' + Boxnamen[i]] = alsText(boxen[i]->property("value").toDouble());
        }
        for (const auto& [name, label] : labels) {
            stand[name] = label->text();
        }
        stand["Schieber"] = alsText(fenster.colShift_Slider->value());
        stand["Palettenzahl"] = fenster.Menge->g_PalettenZahl;
        return stand;
    }

    /// The window shows the base state with the given changes.
    void anfangen(const QString& worte) {
        for (int i = 0; i < Boxnamen.size(); ++i) {
            boxen[i]->setProperty("value", 2001 + i);
        }
        for (const auto& [name, label] : labels) {
            label->setText("old");
        }
        QString grundstand;
        for (const QStringList& zeile : tabelle("window/grundstand.txt")) {
            grundstand += zeile[0] + ' ';
        }
        for (const auto& [name, wert] : zahlen(grundstand + worte)) {
            if (name == "Schieber") {
                const QSignalBlocker stumm(fenster.colShift_Slider);
                fenster.colShift_Slider->setValue(int(wert));
            } else if (name == "Palettenzahl") {
                fenster.Menge->g_PalettenZahl = alsText(wert);
            } else if (name.startsWith('>')) {
                boxen[Boxnamen.indexOf(name.mid(1))]->setProperty("value", wert);
            } else {
                setzeFeld(*fenster.Menge, Felder.at(name), wert);
            }
        }
        QTest::qWait(0);
        fenster.setWindowTitle("old"); // the last command's paint may have renewed it
        bilder.anzahl = 0;
    }

    UI fenster;
    Bildzaehler bilder;
    const std::map<QString, QLabel*> labels{
        {"11", fenster.infoLabel11},     {"22", fenster.infoLabel22},
        {"33", fenster.infoLabel33},     {"Cx33", fenster.infoLabelCx33},
        {"Cy33", fenster.infoLabelCy33}, {"Palette", fenster.infoLabelPalette}};
    const QList<QAbstractSpinBox*> boxen = fenster.findChildren<QAbstractSpinBox*>();
};

QTEST_MAIN(TestBefehle)
#include "test_befehle.moc"
