// Picture data, picture export and orbit list.

#include "equations/Gleichungen.h"
#include "files/Bilddaten.h"
#include "files/Dateiausgabe.h"
#include "Texttabelle.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>
#include <QFileDialog>
#include <QLineEdit>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#endif

namespace {

/// What panel and model hold, in the order of the file: integers, then reals.
using Inhalt = QList<double>;
constexpr int Alle = 40;
constexpr int Ganze = 26;
constexpr int Geschrieben = 38; // tolerance and grid spacing are read only

Inhalt inhalt(const UI& u) {
    const Mandelbrot& m = *u.Menge;
    // clang-format off
    const QList<int> ganze{
        u.UI_Iterationen->value(), u.UI_rechenVarianteDiv->value(), u.UI_rechenVarianteKonv->value(),
        u.UI_wahlGleichung->value(), u.UI_colorOffset->value(), u.UI_zahlfarbtab->value(),
        u.UI_glgAbbruch->value(), u.UI_zahlMatrix->value(),
        m.g_ZwillingJa, m.g_MittelkreuzJa, m.g_NullkreuzJa, m.g_GitterJa, m.g_kPotenz, m.g_zycmax,
        m.OPx, m.OPy, m.g_OrbitJa, m.g_OrbitDuennJa, m.g_maxOrbitIterat, m.g_halbesBild,
        m.g_oberesHalbbild, m.g_VorschauAusJa, m.g_PixVorschauX, m.g_PixVorschauY, m.g_PixConstX, m.g_PixConstY};
    return Inhalt(ganze.begin(), ganze.end()) + Inhalt{
        u.UI_MPx->value(), u.UI_MPy->value(), u.UI_Brx->value(), u.UI_Kopplx->value(), u.UI_Kopply->value(),
        u.UI_wertAbbruch->value(), u.UI_click2Zoom->value(), u.UI_divFactor->value(), u.UI_konvFactor->value(),
        u.UI_itFactor->value(), u.UI_CJx->value(), u.UI_CJy->value(), m.g_Genauigkeit, m.g_Gitterabstand};
    // clang-format on
}

/// Where an entry begins: integers from byte 0, reals from byte 104.
int stelle(int i) { return i < Ganze ? 4 * i : 104 + 8 * (i - Ganze); }

QByteArray datei(const Inhalt& werte) {
    QByteArray bytes(216, '\0');
    for (int i = 0; i < Alle; ++i) {
        char* const zahl = bytes.data() + stelle(i);
        i < Ganze ? qToLittleEndian(static_cast<qint32>(werte[i]), zahl)
                  : qToLittleEndian(werte[i], zahl);
    }
    return bytes;
}

/// Every value different, exact in five decimals.
Inhalt beispiel() {
    Inhalt werte;
    for (int i = 0; i < Alle; ++i) {
        werte << (i < Ganze ? 1001 + i : 3.0 * i - 98.25);
    }
    return werte;
}

/// The entry that a file gives: of a number of which a byte is missing 0, like all behind it.
double eintrag(const QByteArray& bytes, int i) {
    if (stelle(i + 1) > bytes.size()) {
        return 0.0;
    }
    const char* const zahl = bytes.constData() + stelle(i);
    const double wert =
        i < Ganze ? qFromLittleEndian<qint32>(zahl) : qFromLittleEndian<double>(zahl);
    const double grenze = i < Ganze ? 9e7 : 1e30; // of the boxes
    return i < 8 || (i >= Ganze && i < Geschrieben) ? std::clamp(wert, -grenze, grenze) : wert;
}

/// What differs from the file. A box rounds, and may make of NaN what it likes.
QString abweichung(const UI& fenster, const QByteArray& bytes) {
    const Inhalt da = inhalt(fenster);
    QString text;
    for (int i = 0; i < Alle; ++i) {
        const double soll = eintrag(bytes, i);
        if (da[i] != soll && !(std::abs(da[i] - soll) < 1e-5) && !std::isnan(soll)) {
            text += QString("entry %1 is %2, not %3; ").arg(i).arg(da[i]).arg(soll);
        }
    }
    return text;
}

void lesen(UI& fenster, QByteArray bytes) {
    QBuffer quelle(&bytes);
    quelle.open(QIODevice::ReadOnly);
    bilddatenLesen(quelle, fenster);
}

QByteArray zufall(QRandomGenerator& wuerfel, int laenge) {
    QByteArray bytes(laenge, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return char(wuerfel.bounded(256)); });
    return bytes;
}

/// The whole file, nothing when it does not open.
QByteArray bytesVon(const QString& name) {
    QFile quelle(name);
    return quelle.open(QIODevice::ReadOnly) ? quelle.readAll() : QByteArray();
}

/// The name when its format makes it of a time since von, else another.
QString mitZeit(const QString& format, QDateTime von, const QString& name) {
    while (von.toString(format) != name && von <= QDateTime::currentDateTime()) {
        von = von.addSecs(1);
    }
    return von.toString(format);
}

/// Answers every modal dialog that opens while it lives, and notes what it showed. File dialogs get
/// the name and one of their filters, an empty name cancels; a question before replacing gets a
/// yes. danach runs between their acceptance and their return.
struct Dialogfuehrer {
    explicit Dialogfuehrer(
        const QString& name, const std::function<void()>& danach = [] {}, int filter = 0) {
        const auto antworten = [=, this] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(modal)) {
                gezeigt << box->windowTitle() << box->text();
                eltern << box->parentWidget();
                auto* const ja = box->button(QMessageBox::Yes);
                (ja != nullptr ? ja : box->button(QMessageBox::Ok))->click();
            } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
                auto* zeile = dialog->findChild<QLineEdit*>("fileNameEdit");
                gezeigt << dialog->windowTitle() << zeile->text() << dialog->nameFilters()
                        << (dialog->acceptMode() == QFileDialog::AcceptSave ? "save" : "open");
                eltern << dialog->parentWidget();
                dialog->selectNameFilter(dialog->nameFilters().at(filter));
                QObject::connect(dialog, &QDialog::accepted, dialog, danach);
                zeile->setText(name);
                static_cast<QDialog*>(dialog)->accept();
                if (dialog->isVisible()) { // without a name, or it was refused
                    dialog->reject();
                }
            }
        };
        // Queued, since a timer rests while its own slot runs, and an answer may open a question.
        QObject::connect(&uhr, &QTimer::timeout, &uhr, antworten, Qt::QueuedConnection);
        uhr.start(1);
    }

    QStringList gezeigt; ///< title, suggested name, filters, save or open; of boxes title, text
    QList<QWidget*> eltern;
    QTimer uhr;
};

} // namespace

class TestDateien : public QObject {
    Q_OBJECT

    UI fenster;
    std::unique_ptr<QTemporaryDir> ordner;
    QString pfad(const QString& name) const { return ordner->filePath(name); }
    QStringList dateien() const { return QDir(ordner->path()).entryList(QDir::Files); }

  private Q_SLOTS:
    void init() {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        ordner = std::make_unique<QTemporaryDir>();
        QVERIFY(ordner->isValid());
        lesen(fenster, datei(beispiel()));
    }

    void lesenUndSchreiben() {
        QByteArrayList proben;
        for (const double extrem : {-HUGE_VAL, -1e308, 1e308, HUGE_VAL}) {
            const double ganz = extrem < 0 ? -2147483648.0 : 2147483647.0;
            proben << datei(Inhalt(Ganze, ganz) + Inhalt(Alle - Ganze, extrem));
        }
        for (int laenge = 0; laenge <= 216; ++laenge) {
            proben << datei(beispiel()).left(laenge);
        }
        QRandomGenerator wuerfel(20240309);
        for (int nr = 0; nr < 1500; ++nr) {
            proben << zufall(wuerfel, wuerfel.bounded(300));
        }
        for (const QByteArray& bytes : proben) {
            lesen(fenster, datei(Inhalt(Alle, 7)));
            fenster.Menge->g_RechnenJa = 0;
            lesen(fenster, bytes);
            QCOMPARE(abweichung(fenster, bytes), QString());
            QCOMPARE(fenster.Menge->g_RechnenJa, 2);
            const Inhalt vorher = inhalt(fenster).first(Geschrieben);
            const QByteArray gespeichert = bilddatenSchreiben(fenster);
            lesen(fenster, gespeichert);
            QCOMPARE(abweichung(fenster, gespeichert), QString());
            QCOMPARE(inhalt(fenster).first(Geschrieben), vorher);
        }
    }

    // Any file gives a picture. The equation is a known one, so that its kernel meets the settings.
    void zufallsbilder() {
        QRandomGenerator wuerfel(985);
        for (const Gleichung& gleichung : gleichungen()) {
            lesen(fenster, zufall(wuerfel, 216));
            fenster.UI_wahlGleichung->setValue(gleichung.nummer);
            fenster.UI_Iterationen->setValue(20); // millions would only take time
            fenster.Menge->g_ZwillingJa = wuerfel.bounded(13);
            fenster.NeueBerechnungSlot();
            QVERIFY(!fenster.Menge->grab().isNull());
        }
    }

    /// What the dialogs show; cancelled, they change nothing.
    void dialoge_data() { zeilenAus("files/dialoge.txt"); }
    void dialoge() {
        QFETCH(QStringList, spalten);
        fenster.Menge->g_RechnenJa = 0;
        const QDateTime von = QDateTime::currentDateTime();
        const Dialogfuehrer fuehrer("");
        QVERIFY(QMetaObject::invokeMethod(&fenster, qPrintable(spalten[0])));
        spalten[2] = mitZeit(spalten[2], von, fuehrer.gezeigt.value(1));
        QCOMPARE(fuehrer.gezeigt, spalten.mid(1));
        QCOMPARE(fuehrer.eltern, QList<QWidget*>{&fenster});
        QVERIFY(inhalt(fenster) == beispiel());
        QCOMPARE(fenster.Menge->g_RechnenJa, 0);
    }

    void speichernUndLaden() {
        Inhalt werte = beispiel();
        werte[3] = 1010003; // equation 101 with twin 3
        werte[8] = 0;
        werte[19] = 12; // a preview, left as it is by a request with orbit
        lesen(fenster, datei(werte));
        const Dialogfuehrer fuehrer(pfad("bild.fraktal"));
        fenster.Koordinaten_SpeichernSlot();
        QCOMPARE(bytesVon(pfad("bild.fraktal")), datei(werte).left(200));
        lesen(fenster, datei(Inhalt(Alle, 1)));
        fenster.Koordinaten_LadenSlot();
        // The values reach the model through the panel, as with "Start!".
        QCOMPARE(fenster.Menge->wahl_Gleichung, 101);
        QCOMPARE(fenster.Menge->g_halbesBild, ViertelvorschauRechtsOben);
        QCOMPARE(fenster.Menge->MP_x, werte[Ganze]);
    }

    void bildSpeichern() {
        fenster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fenster));
        const Dialogfuehrer fuehrer(pfad("bild.png"));
        fenster.Bild_SpeichernSlot();
        QVERIFY(bytesVon(pfad("bild.png")).startsWith("\x89PNG"));
        QCOMPARE(QImage(pfad("bild.png")).convertToFormat(QImage::Format_RGB32),
                 fenster.Menge->grab().toImage().convertToFormat(QImage::Format_RGB32));
    }

    // An ending is added where none is, in the dialog: the question is about the final name.
    void endungen_data() { zeilenAus("files/endungen.txt"); }
    void endungen() {
        QFETCH(QStringList, spalten);
        for (const int filter : {0, 1}) {
            for (const auto& [soll, slot] :
                 {std::pair(spalten[1], &UI::Bild_SpeichernSlot),
                  std::pair(spalten[2], &UI::Koordinaten_SpeichernSlot)}) {
                ordner = std::make_unique<QTemporaryDir>();
                QVERIFY(dateiSchreiben(pfad(soll), "alt"));
                const Dialogfuehrer fuehrer(
                    pfad(spalten[0]), [] {}, filter);
                (fenster.*slot)();
                QCOMPARE(fuehrer.gezeigt.size(), 7);
                QVERIFY(fuehrer.gezeigt[6].startsWith(soll + " already exists"));
                QCOMPARE(dateien(), QStringList(soll));
                QVERIFY(bytesVon(pfad(soll)) != "alt");
            }
        }
    }

    void fehler_data() { zeilenAus("files/fehler.txt"); }
    void fehler() {
        QFETCH(QStringList, spalten);
        const QString name = pfad(spalten[1]);
        const bool laden = spalten[3] == "laden";
        QVERIFY(!laden || dateiSchreiben(name, "x"));
        const Dialogfuehrer fuehrer(name, [&] {
            QFile::remove(name);
            QVERIFY(spalten[2] != "folder" || QDir().mkdir(name));
        });
        QVERIFY(QMetaObject::invokeMethod(&fenster, qPrintable(spalten[0])));
        const QString text = "Es ist ein Fehler beim %1 der Datei:\n\n%2\n\naufgetreten!";
        QCOMPARE(fuehrer.gezeigt.mid(5),
                 QStringList({"Es ist ein Fehler aufgetreten!", text.arg(spalten[3], name)}));
        QCOMPARE(fuehrer.eltern, QList<QWidget*>({&fenster, nullptr}));
        QCOMPARE(fenster.UI_MPx->value(), laden ? -0.5 : beispiel()[Ganze]); // start picture
        QCOMPARE(dateien(), QStringList());
    }

    void schreiben() {
        const QString name = pfad("datei");
        QVERIFY(dateiSchreiben(name, "eine lange Zeile"));
        QVERIFY(QFile::link(name, pfad("verweis")));
        QVERIFY(dateiSchreiben(pfad("verweis"), "kurz"));
        QVERIFY(QFileInfo(pfad("verweis")).isSymLink());
        QCOMPARE(bytesVon(name), QByteArray("kurz"));
        QCOMPARE(dateien(), QStringList({"datei", "verweis"})); // nothing temporary is left
    }

#ifdef Q_OS_LINUX
    void volleAblage() {
        const QString name = pfad("datei");
        QVERIFY(dateiSchreiben(name, "alt"));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit bisher{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &bisher), 0);
        const rlimit eng{100, bisher.rlim_max}; // like a disk with 100 bytes left
        setrlimit(RLIMIT_FSIZE, &eng);
        const bool kurz = dateiSchreiben(name, QByteArray(200, 'x'));
        const bool lang = dateiSchreiben(name, QByteArray(200'000, 'x'));
        setrlimit(RLIMIT_FSIZE, &bisher);
        QVERIFY(!kurz && !lang);
        QCOMPARE(bytesVon(name), QByteArray("alt"));
        QCOMPARE(dateien(), QStringList("datei"));
    }

    // Who may make a device uses one of his own: only he could replace the system's by a file.
    void vollesGeraet() {
        QByteArray name = pfad("voll").toLocal8Bit();
        if (mknod(name, S_IFCHR | S_IRUSR | S_IWUSR, makedev(1, 7)) != 0) {
            name = "/dev/full";
            if (geteuid() == 0 || !QFileInfo::exists(name)) {
                QSKIP("no full device here");
            }
        }
        QVERIFY(!dateiSchreiben(name, "kurz"));
        QVERIFY(QFileInfo::exists(name) && !QFileInfo(name).isFile()); // not replaced
    }
#endif

    void orbitliste() {
        QVERIFY(QDir::setCurrent(ordner->path()));
        fenster.Menge->g_OrbitListeHTMStr = "<html>größer</html>";
        QDateTime von;
        do { // twice within one second: appended
            for (const QString& alt : dateien()) {
                QFile::remove(alt);
            }
            von = QDateTime::currentDateTime();
            fenster.OrbitListeHTM_SpeichernSlot();
            fenster.OrbitListeHTM_SpeichernSlot();
        } while (dateien().size() > 1);
        const QString name = dateien().value(0);
        QCOMPARE(name, mitZeit("'OrbitWirbel1.5-'yyyyMMdd-hh-mm-ss'.htm'", von, name));
        QCOMPARE(bytesVon(name), QByteArray("<html>größer</html><html>größer</html>"));
        ordner->remove(); // the working directory is gone, nothing can be made in it
        const Dialogfuehrer fuehrer("");
        fenster.OrbitListeHTM_SpeichernSlot();
        QCOMPARE(fuehrer.gezeigt, QStringList());
    }
};

QTEST_MAIN(TestDateien)
#include "test_dateien.moc"
