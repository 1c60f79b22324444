// Picture data, picture export and orbit list.

#include "Dialogfuehrer.h"
#include "files/Bilddaten.h"
#include "files/Dateiausgabe.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#include <memory>
#include <numeric>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

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
    // clang-format off
    return {{u.UI_Iterationen->value(), u.UI_rechenVarianteDiv->value(), u.UI_rechenVarianteKonv->value(),
             u.UI_wahlGleichung->value(), u.UI_colorOffset->value(), u.UI_zahlfarbtab->value(),
             u.UI_glgAbbruch->value(), u.UI_zahlMatrix->value(),
             m.g_ZwillingJa, m.g_MittelkreuzJa, m.g_NullkreuzJa, m.g_GitterJa, m.g_kPotenz, m.g_zycmax,
             m.OPx, m.OPy, m.g_OrbitJa, m.g_OrbitDuennJa, m.g_maxOrbitIterat, m.g_halbesBild, m.g_oberesHalbbild,
             m.g_VorschauAusJa, m.g_PixVorschauX, m.g_PixVorschauY, m.g_PixConstX, m.g_PixConstY},
            {u.UI_MPx->value(), u.UI_MPy->value(), u.UI_Brx->value(), u.UI_Kopplx->value(), u.UI_Kopply->value(),
             u.UI_wertAbbruch->value(), u.UI_click2Zoom->value(), u.UI_divFactor->value(), u.UI_konvFactor->value(),
             u.UI_itFactor->value(), u.UI_CJx->value(), u.UI_CJy->value(), m.g_Genauigkeit, m.g_Gitterabstand}};
    // clang-format on
}

/// A file laid out by hand: integers from byte 0, reals from byte 104.
QByteArray datei(const Inhalt& werte) {
    QByteArray bytes(216, '\0');
    for (int i = 0; i < Ganze; ++i) {
        qToLittleEndian(werte.ganze[std::size_t(i)], bytes.data() + 4 * i);
    }
    for (int i = 0; i < Reelle; ++i) {
        qToLittleEndian(werte.reelle[std::size_t(i)], bytes.data() + 104 + 8 * i);
    }
    return bytes;
}

/// Every value different, exact in five decimals.
Inhalt beispiel() {
    Inhalt werte;
    std::iota(werte.ganze.begin(), werte.ganze.end(), 1001);
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

/// Without tolerance and grid spacing, which the writer leaves out.
Inhalt gespeichert(Inhalt werte) {
    werte.reelle[12] = werte.reelle[13] = 0.0;
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

void ablegen(const QString& name, const QByteArray& bytes) {
    QFile ziel(name);
    QVERIFY(ziel.open(QIODevice::WriteOnly));
    ziel.write(bytes);
}

/// The whole file, nothing when it does not open.
QByteArray bytesVon(const QString& name) {
    QFile quelle(name);
    return quelle.open(QIODevice::ReadOnly) ? quelle.readAll() : QByteArray();
}

QStringList fehler(const QString& tat, const QString& name) {
    return {"Es ist ein Fehler aufgetreten!",
            "Es ist ein Fehler beim " + tat + " der Datei:\n\n" + name + "\n\naufgetreten!", "OK",
            "no parent"};
}

} // namespace

class TestDateien : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> fenster;
    std::unique_ptr<QTemporaryDir> ordner;
    QString ausgangsordner = QDir::currentPath();
    QString pfad(const QString& name) const { return ordner->filePath(name); }
    QStringList dateien() const { return QDir(ordner->path()).entryList(QDir::Files); }

  private Q_SLOTS:
    void initTestCase() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        fenster = std::make_unique<UI>();
    }
    void init() {
        ordner = std::make_unique<QTemporaryDir>();
        QVERIFY(ordner->isValid());
        lesen(*fenster, datei(beispiel()));
    }
    void cleanup() { QDir::setCurrent(ausgangsordner); }

    void bytegenauHinUndZurueck() {
        QVERIFY(inhalt(*fenster) == beispiel()); // 216 bytes: tolerance and spacing as well
        const QByteArray bytes = bilddatenSchreiben(*fenster);
        QCOMPARE(bytes, datei(beispiel()).left(200));
        lesen(*fenster, datei(alle(1, 1.0)));
        fenster->Menge->g_RechnenJa = 0;
        lesen(*fenster, bytes);
        QCOMPARE(fenster->Menge->g_RechnenJa, 2);
        QVERIFY(inhalt(*fenster) == gespeichert(beispiel()));
        // The panel counts, not the model behind it.
        fenster->UI_Iterationen->setValue(0x01020304);
        QCOMPARE(bilddatenSchreiben(*fenster).left(4), QByteArray("\x04\x03\x02\x01"));
        QVERIFY(fenster->Menge->Max_Iterationen != 0x01020304);
    }

    void grenzwerte() {
        const double unendlich = std::numeric_limits<double>::infinity();
        for (const auto& [ganz, reell] : std::initializer_list<std::pair<qint32, double>>{
                 {std::numeric_limits<int>::min(), -1e308},
                 {std::numeric_limits<int>::max(), 1e308},
                 {-1, unendlich},
                 {BoxGrenze, -unendlich},
                 {-BoxGrenze, -1e30},
                 {0, 0.0}}) {
            lesen(*fenster, datei(alle(ganz, reell)));
            QVERIFY(inhalt(*fenster) == begrenzt(alle(ganz, reell)));
        }
    }

    void abgeschnitten() {
        for (int laenge = 0; laenge <= 216; ++laenge) {
            lesen(*fenster, datei(alle(7, 7.0)));
            lesen(*fenster, datei(beispiel()).left(laenge));
            Inhalt erwartet =
                beispiel(); // a number of which a byte is missing is 0, like all behind it
            std::fill(erwartet.ganze.begin() + std::min(laenge / 4, Ganze), erwartet.ganze.end(),
                      0);
            std::fill(erwartet.reelle.begin() + std::max(0, (laenge - 104) / 8),
                      erwartet.reelle.end(), 0.0);
            QVERIFY2(inhalt(*fenster) == erwartet, qPrintable(QString("length %1").arg(laenge)));
        }
    }

    void zufallsdateien() {
        QRandomGenerator wuerfel(20240309);
        for (int nr = 0; nr < 3000; ++nr) {
            const QByteArray bytes = zufall(wuerfel, wuerfel.bounded(300));
            lesen(*fenster, bytes);
            const Inhalt da = inhalt(*fenster);
            for (int i = 0; i < Ganze && 4 * i + 4 <= bytes.size(); ++i) {
                const auto gelesen = qFromLittleEndian<qint32>(bytes.constData() + 4 * i);
                QCOMPARE(da.ganze[std::size_t(i)],
                         i < GanzeImFeld ? std::clamp(gelesen, -BoxGrenze, BoxGrenze) : gelesen);
            }
            for (std::size_t i = 0; i < ReelleImFeld; ++i) {
                QVERIFY(std::abs(da.reelle[i]) <= 1e30);
            }
            // Saved and loaded again, it is the same (a box may turn -0 into 0: equal).
            lesen(*fenster, bilddatenSchreiben(*fenster));
            QVERIFY(inhalt(*fenster) == gespeichert(da));
        }
    }

    // Through dialog, panel and renderer: any file gives a picture. Every second one has a known
    // equation, so that its kernel meets the random settings.
    void zufallsbilder() {
        constexpr std::array<qint32, 12> gleichungen{1,   2,   5,   8,   9,   10,
                                                     101, 103, 106, 109, 407, 912};
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
            const Dialogfuehrer fuehrer(name);
            fenster->Koordinaten_LadenSlot();
            QCOMPARE(fenster->Menge->g_RechnenJa, 2);
            QCOMPARE(fenster->Menge->Max_Iterationen, fenster->UI_Iterationen->value());
            fenster->Menge->Max_Iterationen = 20; // millions would only take time
            QCOMPARE(fenster->Menge->grab().size(), QSize(90, 60));
            QCoreApplication::processEvents();
        }
        fenster->Menge->setMinimumSize(0, 0);
        fenster->Menge->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    }

    void speichernUndLaden() {
        const QString name = pfad("bild.fraktal");
        ablegen(name, QByteArray(1000, 'x')); // an older, longer file is replaced as a whole
        Inhalt werte = beispiel();
        werte.ganze[3] = 1010003; // equation 101 with twin 3
        werte.ganze[8] = 0;
        werte.ganze[19] = 12; // a preview, left as it is by a request with orbit
        lesen(*fenster, datei(werte));
        Dialogfuehrer fuehrer(name);
        fenster->Koordinaten_SpeichernSlot();
        QCOMPARE(fuehrer.dateidialoge,
                 QStringList({"Bilddaten speichern",
                              "DatenWirbel" + fenster->Menge->g_Versionsnummer +
                                  fenster->dt.toString("-yyyyMMdd-hh-mm-ss") + ".fraktal",
                              "DatenWirbel (*.fraktal), Alle Dateien (*.*)", "save", "UI"}));
        QCOMPARE(bytesVon(name), datei(werte).left(200));
        QVERIFY(std::abs(fenster->dt.secsTo(QDateTime::currentDateTime())) < 600);

        lesen(*fenster, datei(alle(1, 1.0)));
        fenster->Koordinaten_LadenSlot();
        QCOMPARE(fuehrer.dateidialoge.mid(5),
                 QStringList({"Bilddaten laden", "Bilddaten.fraktal",
                              "Bilddaten (*.fraktal), Alle Dateien (*.*)", "open", "UI"}));
        QCOMPARE(fuehrer.meldungen, QStringList());
        QCOMPARE(inhalt(*fenster).reelle, gespeichert(werte).reelle);
        // The values reach the model through the panel, as with "Start!".
        const Mandelbrot& modell = *fenster->Menge;
        QCOMPARE((QList<int>{modell.wahl_Gleichung, modell.g_ZwillingJa, modell.Max_Iterationen,
                             modell.g_halbesBild, modell.g_RechnenJa}),
                 (QList<int>{101, 3, werte.ganze[0], 12, 2}));
        QCOMPARE(modell.MP_x, werte.reelle[0]);
        QCOMPARE(modell.CJ_y, werte.reelle[11]);
    }

    void ladenFehler() {
        const QString name = pfad("bild.fraktal");
        for (const bool wirdOrdner : {false, true}) { // gone meanwhile, or a folder
            ablegen(name, datei(alle(5, 5.0)));
            fenster->Menge->wahl_Gleichung = 1;
            Dialogfuehrer fuehrer(name, [&] {
                QVERIFY(QFile::remove(name));
                QVERIFY(!wirdOrdner || QDir().mkdir(name));
            });
            fenster->Koordinaten_LadenSlot();
            QCOMPARE(fuehrer.meldungen, fehler("laden", name));
            QCOMPARE(fenster->UI_MPx->value(), -0.5); // reset to the start picture
            QCOMPARE(fenster->Menge->MP_x, -0.5);
        }
    }

    void speichernFehler_data() {
        QTest::addColumn<QString>("name"); // relative to the temporary folder
        QTest::newRow("folder missing") << "fehlt/bild";
        QTest::newRow("becomes a folder") << "bild";
        QTest::newRow("full device") << "/dev/full";
    }
    void speichernFehler() {
        QFETCH(QString, name);
        name = QDir(ordner->path()).absoluteFilePath(name);
        if (name == "/dev/full" && !QFileInfo::exists(name)) {
            QSKIP("no such device here");
        }
        const bool wirdOrdner = name == pfad("bild");
        for (const auto slot : {&UI::Koordinaten_SpeichernSlot, &UI::Bild_SpeichernSlot}) {
            QDir().rmdir(pfad("bild"));
            Dialogfuehrer fuehrer(name, [&] { QVERIFY(!wirdOrdner || QDir().mkdir(name)); });
            (fenster.get()->*slot)();
            QCOMPARE(fuehrer.meldungen, fehler("speichern", name));
            QVERIFY(!QFileInfo(name).isFile()); // the device is still one
            QCOMPARE(QFileInfo::exists(name), wirdOrdner || name == "/dev/full");
        }
    }

    void abbrechen() {
        fenster->Menge->g_RechnenJa = 0;
        const QString fenstertitel = fenster->windowTitle();
        Dialogfuehrer fuehrer("");
        fenster->Koordinaten_SpeichernSlot();
        fenster->Koordinaten_LadenSlot();
        fenster->Bild_SpeichernSlot();
        QCOMPARE(fuehrer.dateidialoge.size(), 3 * 5);
        QCOMPARE(fuehrer.meldungen, QStringList());
        QVERIFY(inhalt(*fenster) == beispiel());
        QCOMPARE(fenster->Menge->g_RechnenJa, 0);
        QCOMPARE(fenster->windowTitle(), fenstertitel);
        QVERIFY(QDir(ordner->path()).isEmpty());
    }

    void bildSpeichern() {
        fenster->show();
        QVERIFY(QTest::qWaitForWindowExposed(fenster.get()));
        const QString name = pfad("bild.png");
        Dialogfuehrer fuehrer(name);
        fenster->Bild_SpeichernSlot();
        QCOMPARE(fuehrer.dateidialoge,
                 QStringList({"Bild speichern",
                              "Fraktal" + fenster->dt.toString("yyMMdd-hh-mm-ss") + ".png",
                              "PNG-Bilder (*.png), Alle Dateien (*.*)", "save", "UI"}));
        QCOMPARE(fuehrer.meldungen, QStringList());
        QVERIFY(bytesVon(name).startsWith("\x89PNG"));
        const QImage bild = fenster->Menge->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(bild.size(), fenster->Menge->size());
        QCOMPARE(QImage(name).convertToFormat(QImage::Format_RGB32), bild);
        fenster->hide();
    }

    void schreiben() {
        const QString name = pfad("datei");
        QVERIFY(dateiSchreiben(name, "eine lange Zeile"));
        QVERIFY(dateiSchreiben(name, "kurz"));
        QCOMPARE(bytesVon(name), QByteArray("kurz"));
        QVERIFY(QFile::link(name, pfad("verweis")));
        QVERIFY(dateiSchreiben(pfad("verweis"), "neu"));
        QVERIFY(QFileInfo(pfad("verweis")).isSymLink());
        QCOMPARE(bytesVon(name), QByteArray("neu"));
        QCOMPARE(dateien(), QStringList({"datei", "verweis"})); // nothing temporary is left
    }

    void volleAblage() {
#ifdef Q_OS_UNIX
        const QString name = pfad("datei");
        ablegen(name, "alt");
        rlimit bisher{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &bisher), 0);
        const auto altesSignal = std::signal(SIGXFSZ, SIG_IGN);
        rlimit eng = bisher;
        eng.rlim_cur = 100; // like a disk with 100 bytes left
        setrlimit(RLIMIT_FSIZE, &eng);
        const bool kurz = dateiSchreiben(name, QByteArray(200, 'x'));
        const bool lang = dateiSchreiben(name, QByteArray(200'000, 'x'));
        setrlimit(RLIMIT_FSIZE, &bisher);
        std::signal(SIGXFSZ, altesSignal);
        QVERIFY(!kurz && !lang);
        QCOMPARE(bytesVon(name), QByteArray("alt"));
        QCOMPARE(dateien(), QStringList("datei"));
#else
        QSKIP("no limit of file sizes here");
#endif
    }

    void orbitliste() {
        QVERIFY(QDir::setCurrent(ordner->path()));
        for (const QByteArray text : {"", "<html>größer</html>"}) {
            fenster->Menge->g_OrbitListeHTMStr = QString::fromUtf8(text);
            QDateTime zuvor;
            do { // twice within one second: appended
                fenster->OrbitListeHTM_SpeichernSlot();
                zuvor = fenster->dt;
                fenster->OrbitListeHTM_SpeichernSlot();
            } while (zuvor.toSecsSinceEpoch() != fenster->dt.toSecsSinceEpoch());
            const QString name = "OrbitWirbel" + fenster->Menge->g_Versionsnummer +
                                 fenster->dt.toString("-yyyyMMdd-hh-mm-ss") + ".htm";
            QVERIFY(dateien().contains(name));
            QCOMPARE(bytesVon(name), text + text);
        }
        ordner->remove(); // the working directory is gone, nothing can be made in it
        Dialogfuehrer fuehrer("");
        fenster->OrbitListeHTM_SpeichernSlot();
        QCOMPARE(fuehrer.dateidialoge + fuehrer.meldungen + dateien(), QStringList());
    }
};

QTEST_MAIN(TestDateien)
#include "test_dateien.moc"
