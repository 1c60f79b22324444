#include "files/Dateiausgabe.h"

#include "Dialogfuehrer.h"
#include "Testdateien.h"

#include "UI_Hauptfenster.h"

#include <QTemporaryDir>

#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

class TestExport : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> fenster;
    std::unique_ptr<QTemporaryDir> ordner;
    QString ausgangsordner;
    QString pfad(const QString& name) const { return ordner->filePath(name); }
    QStringList dateien() const { return QDir(ordner->path()).entryList(QDir::Files); }

  private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void schreiben();
    void verweisBleibt();
    void volleAblage();
    void bildDialog();
    void bildAbbrechen();
    void bildFehler_data();
    void bildFehler();
    void listeAnhaengen();
    void listeOhneOrbit();
    void listeOhneOrdner();
};

void TestExport::initTestCase() {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    ausgangsordner = QDir::currentPath();
    fenster = std::make_unique<UI>();
}

void TestExport::init() {
    ordner = std::make_unique<QTemporaryDir>();
    QVERIFY(ordner->isValid());
}

void TestExport::cleanup() { QDir::setCurrent(ausgangsordner); }

void TestExport::schreiben() {
    const QString name = pfad("datei");
    QVERIFY(dateiSchreiben(name, "eine lange Zeile"));
    QVERIFY(dateiSchreiben(name, "kurz"));
    QCOMPARE(bytesVon(name), QByteArray("kurz"));
    QCOMPARE(dateien(), QStringList("datei")); // nothing temporary is left
}

void TestExport::verweisBleibt() {
    ablegen(pfad("ziel"), "alt");
    QVERIFY(QFile::link(pfad("ziel"), pfad("verweis")));
    QVERIFY(dateiSchreiben(pfad("verweis"), "neu"));
    QVERIFY(QFileInfo(pfad("verweis")).isSymLink());
    QCOMPARE(bytesVon(pfad("ziel")), QByteArray("neu"));
}

void TestExport::volleAblage() {
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
    QVERIFY(!kurz);
    QVERIFY(!lang);
    QCOMPARE(bytesVon(name), QByteArray("alt"));
    QCOMPARE(dateien(), QStringList("datei"));
#else
    QSKIP("no limit of file sizes here");
#endif
}

void TestExport::bildDialog() {
    fenster->show();
    QVERIFY(QTest::qWaitForWindowExposed(fenster.get()));
    const QString name = pfad("bild.png");
    Dialogfuehrer fuehrer(name);
    fenster->Bild_SpeichernSlot();
    QCOMPARE(fuehrer.titel, QString("Bild speichern"));
    QCOMPARE(fuehrer.vorschlag, "Fraktal" + fenster->dt.toString("yyMMdd-hh-mm-ss") + ".png");
    QCOMPARE(fuehrer.filter, QStringList({"PNG-Bilder (*.png)", "Alle Dateien (*.*)"}));
    QCOMPARE(fuehrer.art, QFileDialog::AcceptSave);
    QCOMPARE(fuehrer.optionen, QFileDialog::Options());
    QCOMPARE(fuehrer.elter, fenster.get());
    QCOMPARE(fuehrer.meldungen, QStringList());
    QVERIFY(std::abs(fenster->dt.secsTo(QDateTime::currentDateTime())) < 600);
    QVERIFY(bytesVon(name).startsWith("\x89PNG"));
    const QImage bild = fenster->Menge->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QCOMPARE(bild.size(), fenster->Menge->size());
    QCOMPARE(QImage(name).convertToFormat(QImage::Format_RGB32), bild);
    fenster->hide();
}

void TestExport::bildAbbrechen() {
    Dialogfuehrer fuehrer("");
    fenster->Bild_SpeichernSlot();
    QCOMPARE(fuehrer.dateidialoge, 1);
    QCOMPARE(fuehrer.meldungen, QStringList());
    QCOMPARE(dateien(), QStringList());
}

void TestExport::bildFehler_data() { speicherfehlerZeilen(); }

void TestExport::bildFehler() {
    pruefeSpeicherfehler(ordner->path(), [this] { fenster->Bild_SpeichernSlot(); });
}

void TestExport::listeAnhaengen() {
    QVERIFY(QDir::setCurrent(ordner->path()));
    fenster->Menge->g_OrbitListeHTMStr = "<html>größer</html>";
    QDateTime zuvor;
    do { // twice within one second
        fenster->OrbitListeHTM_SpeichernSlot();
        zuvor = fenster->dt;
        fenster->OrbitListeHTM_SpeichernSlot();
    } while (zuvor.toSecsSinceEpoch() != fenster->dt.toSecsSinceEpoch());
    const QString name = "OrbitWirbel" + fenster->Menge->g_Versionsnummer +
                         fenster->dt.toString("-yyyyMMdd-hh-mm-ss") + ".htm";
    QVERIFY(dateien().contains(name));
    QCOMPARE(bytesVon(name), QByteArray("<html>größer</html><html>größer</html>"));
}

void TestExport::listeOhneOrbit() {
    QVERIFY(QDir::setCurrent(ordner->path()));
    fenster->Menge->g_OrbitListeHTMStr.clear();
    fenster->OrbitListeHTM_SpeichernSlot();
    QCOMPARE(dateien().size(), 1);
    QCOMPARE(QFileInfo(dateien().value(0)).size(), 0);
}

void TestExport::listeOhneOrdner() {
    QVERIFY(QDir::setCurrent(ordner->path()));
    ordner->remove(); // the working directory is gone, nothing can be made in it
    fenster->Menge->g_OrbitListeHTMStr = "<html></html>";
    Dialogfuehrer fuehrer("");
    fenster->OrbitListeHTM_SpeichernSlot();
    QCOMPARE(fuehrer.dateidialoge, 0);
    QCOMPARE(fuehrer.meldungen, QStringList());
    QVERIFY(dateien().isEmpty());
}

QTEST_MAIN(TestExport)
#include "test_export.moc"
