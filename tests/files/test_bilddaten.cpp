#include "files/Bilddaten.h"

#include "Dialogfuehrer.h"
#include "Testdateien.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#include <memory>

namespace {

constexpr int Ganze = 26;
constexpr int Reelle = 14;
constexpr int GanzeImFeld = 8;   // the first ones live in boxes
constexpr int ReelleImFeld = 12; // likewise
constexpr int BoxGrenze = 90'000'000;

struct Inhalt {
    std::array<qint32, Ganze> ganze{};
    std::array<double, Reelle> reelle{};

    bool operator==(const Inhalt&) const = default;
};

/// What panel and model hold, in the order of the file.
Inhalt inhalt(const UI& u) {
    const Mandelbrot& m = *u.Menge;
    return {{u.UI_Iterationen->value(),
             u.UI_rechenVarianteDiv->value(),
             u.UI_rechenVarianteKonv->value(),
             u.UI_wahlGleichung->value(),
             u.UI_colorOffset->value(),
             u.UI_zahlfarbtab->value(),
             u.UI_glgAbbruch->value(),
             u.UI_zahlMatrix->value(),
             m.g_ZwillingJa,
             m.g_MittelkreuzJa,
             m.g_NullkreuzJa,
             m.g_GitterJa,
             m.g_kPotenz,
             m.g_zycmax,
             m.OPx,
             m.OPy,
             m.g_OrbitJa,
             m.g_OrbitDuennJa,
             m.g_maxOrbitIterat,
             m.g_halbesBild,
             m.g_oberesHalbbild,
             m.g_VorschauAusJa,
             m.g_PixVorschauX,
             m.g_PixVorschauY,
             m.g_PixConstX,
             m.g_PixConstY},
            {u.UI_MPx->value(), u.UI_MPy->value(), u.UI_Brx->value(), u.UI_Kopplx->value(),
             u.UI_Kopply->value(), u.UI_wertAbbruch->value(), u.UI_click2Zoom->value(),
             u.UI_divFactor->value(), u.UI_konvFactor->value(), u.UI_itFactor->value(),
             u.UI_CJx->value(), u.UI_CJy->value(), m.g_Genauigkeit, m.g_Gitterabstand}};
}

/// A file laid out by hand: integers from byte 0, reals from byte 104.
QByteArray datei(const Inhalt& werte) {
    QByteArray bytes(216, '\0');
    char* stelle = bytes.data();
    for (const qint32 wert : werte.ganze) {
        qToLittleEndian(wert, stelle);
        stelle += 4;
    }
    for (const double wert : werte.reelle) {
        qToLittleEndian(wert, stelle);
        stelle += 8;
    }
    return bytes;
}

/// Every value different, exact in five decimals.
Inhalt beispiel() {
    Inhalt werte;
    for (std::size_t i = 0; i < Ganze; ++i) {
        werte.ganze[i] = 1001 + static_cast<qint32>(i);
    }
    for (std::size_t i = 0; i < Reelle; ++i) {
        werte.reelle[i] = -20.25 + 3.0 * static_cast<double>(i);
    }
    return werte;
}

Inhalt alle(qint32 ganz, double reell) {
    Inhalt werte;
    werte.ganze.fill(ganz);
    werte.reelle.fill(reell);
    return werte;
}

/// What is left of a file after the boxes' bounds.
Inhalt begrenzt(Inhalt werte) {
    for (std::size_t i = 0; i < GanzeImFeld; ++i) {
        werte.ganze[i] = std::clamp(werte.ganze[i], -BoxGrenze, BoxGrenze);
    }
    for (std::size_t i = 0; i < ReelleImFeld; ++i) {
        werte.reelle[i] = std::clamp(werte.reelle[i], -1e30, 1e30);
    }
    return werte;
}

void lesen(UI& fenster, QByteArray bytes) {
    QBuffer quelle(&bytes);
    quelle.open(QIODevice::ReadOnly);
    bilddatenLesen(quelle, fenster);
}

QByteArray zufall(QRandomGenerator& wuerfel, qsizetype laenge) {
    QByteArray bytes(laenge, '\0');
    for (char& byte : bytes) {
        byte = static_cast<char>(wuerfel.bounded(256));
    }
    return bytes;
}

} // namespace

class TestBilddaten : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> fenster;
    std::unique_ptr<QTemporaryDir> ordner;
    QString pfad(const QString& name) const { return ordner->filePath(name); }

  private Q_SLOTS:
    void initTestCase();
    void init();
    void schreibenBytegenau();
    void hinUndZurueck();
    void grenzwerte_data();
    void grenzwerte();
    void abgeschnitten();
    void zufallsdateien();
    void speichernDialog();
    void speichernFehler_data();
    void speichernFehler();
    void ladenDialog();
    void ladenStartet();
    void ladenFehler_data();
    void ladenFehler();
    void abbrechen();
    void zufallsbilder();
};

void TestBilddaten::initTestCase() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    fenster = std::make_unique<UI>();
}

void TestBilddaten::init() {
    ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(ordner->isValid());
    lesen(*fenster, datei(beispiel()));
}

void TestBilddaten::schreibenBytegenau() {
    QCOMPARE(bilddatenSchreiben(*fenster), datei(beispiel()).left(200));
    // The panel counts, not the model behind it.
    const qint32 modell = fenster->Menge->Max_Iterationen;
    fenster->UI_Iterationen->setValue(0x01020304);
    QCOMPARE(bilddatenSchreiben(*fenster).left(4), QByteArray("\x04\x03\x02\x01"));
    QCOMPARE(fenster->Menge->Max_Iterationen, modell);
}

void TestBilddaten::hinUndZurueck() {
    const Inhalt vorher = inhalt(*fenster);
    QCOMPARE(vorher.ganze, beispiel().ganze);
    QCOMPARE(vorher.reelle, beispiel().reelle); // 216 bytes: tolerance and spacing as well
    const QByteArray gespeichert = bilddatenSchreiben(*fenster);
    lesen(*fenster, datei(alle(1, 1.0)));
    fenster->Menge->g_RechnenJa = 0;
    lesen(*fenster, gespeichert);
    QCOMPARE(fenster->Menge->g_RechnenJa, 2);
    Inhalt erwartet = beispiel();
    erwartet.reelle[12] = erwartet.reelle[13] = 0.0;
    QCOMPARE(inhalt(*fenster).ganze, erwartet.ganze);
    QCOMPARE(inhalt(*fenster).reelle, erwartet.reelle);
}

void TestBilddaten::grenzwerte_data() {
    QTest::addColumn<int>("ganz");
    QTest::addColumn<double>("reell");
    const double unendlich = std::numeric_limits<double>::infinity();
    QTest::newRow("smallest") << std::numeric_limits<int>::min() << -1e308;
    QTest::newRow("largest") << std::numeric_limits<int>::max() << 1e308;
    QTest::newRow("infinite") << -1 << unendlich;
    QTest::newRow("minus infinite") << BoxGrenze << -unendlich;
    QTest::newRow("boxes' bounds") << -BoxGrenze << -1e30;
    QTest::newRow("zero") << 0 << 0.0;
}

void TestBilddaten::grenzwerte() {
    QFETCH(const int, ganz);
    QFETCH(const double, reell);
    lesen(*fenster, datei(alle(ganz, reell)));
    const Inhalt erwartet = begrenzt(alle(ganz, reell));
    QVERIFY(inhalt(*fenster) == erwartet);
}

void TestBilddaten::abgeschnitten() {
    const Inhalt voll = beispiel();
    for (int laenge = 0; laenge <= 216; ++laenge) {
        lesen(*fenster, datei(alle(7, 7.0)));
        lesen(*fenster, datei(voll).left(laenge));
        Inhalt erwartet = voll; // a number of which a byte is missing is 0, like all behind it
        for (int i = std::min(laenge / 4, Ganze); i < Ganze; ++i) {
            erwartet.ganze[static_cast<std::size_t>(i)] = 0;
        }
        for (int i = std::max(0, (laenge - 104) / 8); i < Reelle; ++i) {
            erwartet.reelle[static_cast<std::size_t>(i)] = 0.0;
        }
        QVERIFY2(inhalt(*fenster) == erwartet, qPrintable(QString("length %1").arg(laenge)));
    }
}

void TestBilddaten::zufallsdateien() {
    QRandomGenerator wuerfel(20240309);
    for (int nr = 0; nr < 3000; ++nr) {
        const QByteArray bytes = zufall(wuerfel, wuerfel.bounded(300));
        lesen(*fenster, bytes);
        const Inhalt da = inhalt(*fenster);
        const QByteArray lang = bytes + QByteArray(216, '\0');
        for (qsizetype i = 0; i < Ganze && 4 * i + 4 <= bytes.size(); ++i) {
            const qint32 gelesen = qFromLittleEndian<qint32>(lang.constData() + 4 * i);
            QCOMPARE(da.ganze[static_cast<std::size_t>(i)],
                     i < GanzeImFeld ? std::clamp(gelesen, -BoxGrenze, BoxGrenze) : gelesen);
        }
        for (std::size_t i = 0; i < ReelleImFeld; ++i) {
            QVERIFY(std::abs(da.reelle[i]) <= 1e30);
        }
        // Saved and loaded again, it is the same (a box may turn -0 into 0: equal).
        const QByteArray gespeichert = bilddatenSchreiben(*fenster);
        QCOMPARE(gespeichert.size(), 200);
        lesen(*fenster, gespeichert);
        Inhalt erwartet = da;
        erwartet.reelle[12] = erwartet.reelle[13] = 0.0;
        QVERIFY(inhalt(*fenster) == erwartet);
    }
}

void TestBilddaten::speichernDialog() {
    const QString name = pfad("bild.fraktal");
    Dialogfuehrer fuehrer(name);
    fenster->Koordinaten_SpeichernSlot();
    QCOMPARE(fuehrer.titel, QString("Bilddaten speichern"));
    QCOMPARE(fuehrer.vorschlag, "DatenWirbel" + fenster->Menge->g_Versionsnummer +
                                    fenster->dt.toString("-yyyyMMdd-hh-mm-ss") + ".fraktal");
    QCOMPARE(fuehrer.filter, QStringList({"DatenWirbel (*.fraktal)", "Alle Dateien (*.*)"}));
    QCOMPARE(fuehrer.art, QFileDialog::AcceptSave);
    QCOMPARE(fuehrer.optionen, QFileDialog::Options());
    QCOMPARE(fuehrer.elter, fenster.get());
    QCOMPARE(fuehrer.meldungen, QStringList());
    QCOMPARE(bytesVon(name), datei(beispiel()).left(200));
    QVERIFY(std::abs(fenster->dt.secsTo(QDateTime::currentDateTime())) < 600);

    fenster->Menge->OPx = -5; // an older, longer file is replaced as a whole
    ablegen(name, QByteArray(1000, 'x'));
    fenster->Koordinaten_SpeichernSlot();
    QCOMPARE(bytesVon(name), bilddatenSchreiben(*fenster));
}

void TestBilddaten::speichernFehler_data() { speicherfehlerZeilen(); }

void TestBilddaten::speichernFehler() {
    pruefeSpeicherfehler(ordner->path(), [this] { fenster->Koordinaten_SpeichernSlot(); });
}

void TestBilddaten::ladenDialog() {
    const QString name = pfad("bild.fraktal");
    ablegen(name, datei(beispiel()));
    lesen(*fenster, datei(alle(1, 1.0)));
    Dialogfuehrer fuehrer(name);
    fenster->Koordinaten_LadenSlot();
    QCOMPARE(fuehrer.titel, QString("Bilddaten laden"));
    QCOMPARE(fuehrer.vorschlag, QString("Bilddaten.fraktal"));
    QCOMPARE(fuehrer.filter, QStringList({"Bilddaten (*.fraktal)", "Alle Dateien (*.*)"}));
    QCOMPARE(fuehrer.art, QFileDialog::AcceptOpen);
    QCOMPARE(fuehrer.optionen, QFileDialog::Options());
    QCOMPARE(fuehrer.elter, fenster.get());
    QCOMPARE(fuehrer.meldungen, QStringList());
    QCOMPARE(inhalt(*fenster).reelle, beispiel().reelle);
}

void TestBilddaten::ladenStartet() {
    // The values reach the model through the panel, as with "Start!".
    const QString name = pfad("bild.fraktal");
    Inhalt werte = beispiel();
    werte.ganze[3] = 1010003; // equation 101 with twin 3
    werte.ganze[8] = 0;
    werte.ganze[19] = 12; // a preview, left as it is by a request with orbit
    ablegen(name, datei(werte));
    Dialogfuehrer fuehrer(name);
    fenster->Koordinaten_LadenSlot();
    const Mandelbrot& modell = *fenster->Menge;
    QCOMPARE(modell.wahl_Gleichung, 101);
    QCOMPARE(modell.g_ZwillingJa, 3);
    QCOMPARE(modell.Max_Iterationen, werte.ganze[0]);
    QCOMPARE(modell.MP_x, werte.reelle[0]);
    QCOMPARE(modell.CJ_y, werte.reelle[11]);
    QCOMPARE(modell.g_halbesBild, 12);
    QCOMPARE(modell.g_RechnenJa, 2);
}

void TestBilddaten::ladenFehler_data() {
    QTest::addColumn<bool>("wirdOrdner");
    QTest::newRow("gone meanwhile") << false;
    QTest::newRow("a folder") << true;
}

void TestBilddaten::ladenFehler() {
    QFETCH(const bool, wirdOrdner);
    const QString name = pfad("bild.fraktal");
    ablegen(name, datei(alle(5, 5.0)));
    fenster->Menge->wahl_Gleichung = 1;
    Dialogfuehrer fuehrer(name, [&] {
        QVERIFY(QFile::remove(name));
        if (wirdOrdner) {
            QVERIFY(QDir().mkdir(name));
        }
    });
    fenster->Koordinaten_LadenSlot();
    QCOMPARE(fuehrer.meldungen,
             QStringList({"Es ist ein Fehler aufgetreten!",
                          "Es ist ein Fehler beim laden der Datei:\n\n" + name + "\n\naufgetreten!",
                          "OK", "no parent"}));
    QCOMPARE(fenster->UI_MPx->value(), -0.5); // reset to the start picture
    QCOMPARE(fenster->Menge->MP_x, -0.5);
}

void TestBilddaten::abbrechen() {
    fenster->Menge->g_RechnenJa = 0;
    const QString fenstertitel = fenster->windowTitle();
    Dialogfuehrer fuehrer("");
    fenster->Koordinaten_SpeichernSlot();
    fenster->Koordinaten_LadenSlot();
    QCOMPARE(fuehrer.dateidialoge, 2);
    QCOMPARE(fuehrer.meldungen, QStringList());
    QVERIFY(inhalt(*fenster) == beispiel());
    QCOMPARE(fenster->Menge->g_RechnenJa, 0);
    QCOMPARE(fenster->windowTitle(), fenstertitel);
    QVERIFY(QDir(ordner->path()).isEmpty());
}

void TestBilddaten::zufallsbilder() {
    // Through dialog, panel and renderer: any file gives a picture. Every second one has a known
    // equation, so that its kernel meets the random settings.
    constexpr std::array<qint32, 12> gleichungen{1, 2, 5, 8, 9, 10, 101, 103, 106, 109, 407, 912};
    QRandomGenerator wuerfel(985);
    const QString name = pfad("zufall.fraktal");
    fenster->Menge->setFixedSize(90, 60);
    for (std::size_t nr = 0; nr < 4 * gleichungen.size(); ++nr) {
        QByteArray bytes = zufall(wuerfel, nr % 3 == 0 ? 200 : 216);
        if (nr % 2 == 0) {
            qToLittleEndian(gleichungen[nr / 2 % gleichungen.size()], bytes.data() + 12);
            qToLittleEndian(qint32{wuerfel.bounded(13)}, bytes.data() + 32);
        }
        ablegen(name, bytes);
        Dialogfuehrer fuehrer(name);
        fenster->Koordinaten_LadenSlot();
        QCOMPARE(fuehrer.dateidialoge, 1);
        QCOMPARE(fenster->Menge->g_RechnenJa, 2);
        QCOMPARE(fenster->Menge->Max_Iterationen, fenster->UI_Iterationen->value());
        fenster->Menge->Max_Iterationen = 20; // millions would only take time
        QCOMPARE(fenster->Menge->grab().size(), QSize(90, 60));
        QCoreApplication::processEvents();
    }
}

QTEST_MAIN(TestBilddaten)
#include "test_bilddaten.moc"
