#include "Meldung.h"
#include "Stand.h"

#include <QRegularExpression>

// Every command in several starting states: the whole record is compared before and after, so a
// command that writes one field more than its line says is caught as well.

namespace {

/// Counts the paints of the picture and swallows them: nothing is computed. It writes the count
/// where a paint writes the equation's name, which the title shows.
class Bildzaehler : public QObject {
  public:
    int anzahl = 0;

  protected:
    bool eventFilter(QObject* bild, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::Paint) {
            return false;
        }
        static_cast<Mandelbrot*>(bild)->g_NameGlg = QString("name %1").arg(++anzahl);
        return true;
    }
};

struct Zeile {
    QString name, ende, schritte;
};

/// A line of befehle.txt, one for each name in its braces.
QList<Zeile> entpackt(const QString& text) {
    const QString kopf = text.section("; ", 0, 0);
    const Zeile zeile{kopf.section(' ', 0, -2), kopf.section(' ', -1), text.section("; ", 1)};
    const auto klammer = QRegularExpression("\\{(.*)\\}").match(zeile.name);
    QList<Zeile> zeilen;
    for (const QString& teil : klammer.captured(1).split(' ')) {
        QString name = zeile.name;
        name.replace(klammer.captured(), teil.section(':', 0, 0));
        QString schritte = zeile.schritte;
        zeilen << Zeile{name, zeile.ende, schritte.replace('#', teil.section(':', -1))};
    }
    return klammer.hasMatch() ? zeilen : QList<Zeile>{zeile};
}

} // namespace

class TestBefehle : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase() {
        for (const QString& zeile : zeilenAus("befehle.txt")) {
            if (zeile.startsWith('@')) {
                anfaenge << zeile;
            } else if (zeile.startsWith('*')) {
                andere << zeile.split(' ').mid(1);
            } else if (zeile.startsWith('=')) {
                Stand::woerter[zeile.section("; ", 0, 0).mid(2)] = zeile.section("; ", 1);
            } else {
                befehle << entpackt(zeile);
            }
        }
        fenster.Menge->installEventFilter(&bilder);
        fenster.Menge->installEventFilter(&fenster); // the window sees the paints first
        fenster.show();
        QTRY_VERIFY(bilder.anzahl > 0);
        QTest::qWait(0);
        QVERIFY(fenster.windowTitle().startsWith("Wirbelwerk (")); // not yet renewed
        frisch = lies(fenster);
        frisch.feld["Schieber"] = 300;
        for (double zahl = 2001; auto& [name, wert] : frisch.box) {
            wert = zahl++;
        }
        for (auto& [name, text] : frisch.label) {
            text = "old";
        }
    }

    void jederBefehlHatEineZeile() {
        QStringList slotliste, zeilen = andere;
        for (const Zeile& zeile : befehle) {
            zeilen << zeile.name;
        }
        const QMetaObject& meta = UI::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QString name = QString::fromLatin1(meta.method(i).name());
            if (name.endsWith("Slot")) {
                slotliste << name.chopped(4);
            }
        }
        slotliste.sort();
        zeilen.sort();
        QCOMPARE(zeilen, slotliste);
    }

    void befehl_data() {
        QTest::addColumn<QString>("ende");
        QTest::addColumn<QString>("schritte");
        for (const Zeile& zeile : befehle) {
            QTest::newRow(qPrintable(zeile.name)) << zeile.ende << zeile.schritte;
        }
    }

    void befehl() {
        QFETCH(QString, ende);
        QFETCH(QString, schritte);
        const QByteArray slot = QByteArray(QTest::currentDataTag()) + "Slot";
        for (qsizetype i = 0; i < anfaenge.size(); ++i) {
            Stand soll = anfangen(i);
            soll.ende = ende;
            soll.tue(schritte);
            const Meldung meldung =
                meldungBei([&] { QMetaObject::invokeMethod(&fenster, slot.constData()); });
            const Stand ist = lies(fenster);
            const bool neuerTitel = fenster.windowTitle() != "old";
            QTest::qWait(0);

            const QByteArray anfang = anfaenge[i].section(';', 0, 0).toUtf8() + ": ";
            const QString fehler = unterschied(ist, soll);
            QVERIFY2(fehler.isEmpty(), anfang + fehler.toUtf8());
            QVERIFY2(neuerTitel == soll.ende.contains('T'), anfang + "title");
            QVERIFY2((bilder.anzahl > 0) == soll.ende.contains('B'), anfang + "repaint");
            QCOMPARE(meldung.anzahl, soll.meldung.isEmpty() ? 0 : 1);
            QCOMPARE(meldung.anzahl > 0 ? meldung.titel + "|" + meldung.text : "", soll.meldung);
        }
    }

    void titel_data() {
        QTest::addColumn<QString>("erwartet");
        for (const QString& zeile : zeilenAus("titel.txt")) {
            QTest::newRow(qPrintable(zeile.section(" -> ", 0, 0)))
                << zeile.section(" -> ", 1).mid(1).chopped(1);
        }
    }

    void titel() {
        QFETCH(QString, erwartet);
        Stand stand = frisch;
        for (auto& [name, wert] : stand.feld) {
            wert = 0;
        }
        stand.tue("g_Gitterabstand=0.125; g_kPotenz=10; g_zycmax=7");
        stand.tue(QTest::currentDataTag());
        stelle(fenster, stand);
        fenster.Menge->g_Versionsnummer = "V";
        fenster.Menge->g_NameGlg = "Name";
        fenster.Menge->g_OrbitStartString = "[a]";
        fenster.Menge->g_OrbitEndString = " [b]";
        fenster.SetNewTitle();
        QCOMPARE(fenster.windowTitle(), "WirbelwerkV" + erwartet);
    }

    void titelNachDemBild() {
        anfangen(0);
        fenster.Menge->g_NameGlg = "before";
        fenster.NeueBerechnungSlot();
        QVERIFY(fenster.windowTitle().contains(">> before <<"));
        QTRY_VERIFY(fenster.windowTitle().contains(">> name 1 <<"));
        fenster.update(); // alone, it reaches the picture and leaves the title
        QTRY_COMPARE(bilder.anzahl, 2);
        QTest::qWait(0);
        QVERIFY(fenster.windowTitle().contains(">> name 1 <<"));
    }

    void viertelUndReset() {
        anfangen(0);
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

        anfangen(2);
        fenster.ResetSlot();
        QCOMPARE(m.g_OrbitJa, 0);
        QCOMPARE(m.Max_Iterationen, 256);
        QCOMPARE(fenster.UI_Iterationen->value(), 256);
    }

    void verlaufLaedtFruehereBilder() {
        anfangen(0);
        Mandelbrot& m = *fenster.Menge;
        m.bilddatenInteger = 1;
        for (const double mitte : {1.0, 2.0, 3.0, 3.0}) { // the last record is only in row 0
            m.MP_x = mitte;
            m.DatenSichern();
        }
        fenster.UnDo1DatenTeilbildLadenSlot();
        QCOMPARE(fenster.UI_MPx->value(), 3.0);
        fenster.UnDo2DatenTeilbildLadenSlot();
        QCOMPARE(fenster.UI_MPx->value(), 2.0);
        fenster.WiederholenDatenTeilbildLadenSlot();
        QCOMPARE(fenster.UI_MPx->value(), 3.0);
    }

    /// Queued, so that no box opens inside a paint, and only for the present model's orbit.
    void orbitAusKommtSpaeterUndEinmal() {
        anfangen(1);
        const auto zweimal = [&] {
            Q_EMIT fenster.Menge->OrbitOffSignal();
            Q_EMIT fenster.Menge->OrbitOffSignal();
        };
        QCOMPARE(meldungBei(zweimal).anzahl, 0);
        QCOMPARE(fenster.Menge->g_OrbitJa, 4);
        const Meldung spaeter = meldungBei([&] { QTest::qWait(50); });
        QCOMPARE(spaeter.anzahl, 1);
        QCOMPARE(spaeter.besitzer, &fenster);
        QCOMPARE(fenster.Menge->g_OrbitJa, 0);
        QVERIFY(bilder.anzahl > 0);

        UI neues;
        Q_EMIT neues.Menge->OrbitOffSignal();
        neues.Pixel985x675Slot();
        neues.Menge->g_OrbitJa = 2;
        QCOMPARE(meldungBei([] { QTest::qWait(50); }).anzahl, 0);
        QCOMPARE(neues.Menge->g_OrbitJa, 2);
    }

  private:
    /// The window shows a starting state, by its number.
    Stand anfangen(qsizetype nummer) {
        Stand stand = frisch;
        stand.feld["Br_y"] = stand.feld["Br_x"] * Stand::Verhaeltnis;
        stand.tue(anfaenge.at(nummer).section("; ", 1) + "; zahl");
        stelle(fenster, stand);
        QTest::qWait(0);
        fenster.setWindowTitle("old"); // the last command's paint may have renewed it
        bilder.anzahl = 0;
        return stand;
    }

    UI fenster;
    Bildzaehler bilder;
    Stand frisch;
    QStringList anfaenge, andere;
    QList<Zeile> befehle;
};

QTEST_MAIN(TestBefehle)
#include "test_befehle.moc"
