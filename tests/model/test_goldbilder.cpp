// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (one line an equation: number, checksum of the counts, the counts compressed).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

#include <QCryptographicHash>
#include <QFile>
#include <QMap>

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Largest share of pixels that may differ where sine, exponential, logarithm, power or complex
/// division come in: libraries differ there in the last bit, and near the border of a set a last
/// bit moves a count.
constexpr double Toleranz = 0.02;

const QString Datei = QString(GOLDORDNER) + "/zaehler.txt";

QList<qint32> zaehler(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = 0;
    malen(*m);
    QList<qint32> werte;
    for (std::size_t zeile = 1; zeile <= Hoehe; ++zeile) {
        for (std::size_t spalte = 0; spalte < Breite; ++spalte) {
            werte << m->ImageIntegers[zeile][spalte];
        }
    }
    return werte;
}

QByteArray packen(const QList<qint32>& werte) {
    QByteArray roh;
    QDataStream strom(&roh, QIODevice::WriteOnly);
    strom << werte;
    return roh;
}

QByteArray pruefsumme(const QByteArray& roh) {
    return QCryptographicHash::hash(roh, QCryptographicHash::Sha1).toHex().left(12);
}

/// Every operation of these is exactly rounded: the same counts everywhere.
bool exakt(qint32 gleichung) {
    const qint32 f = familie(gleichung);
    return gleichung < 100 ? gleichung != 7 && gleichung != 8 : f >= 1 && f <= 4;
}

} // namespace

class TestGoldbilder : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void zaehlerWieGespeichert_data();
    void zaehlerWieGespeichert();

  private:
    QMap<qint32, QList<QByteArray>> gold; ///< number to checksum and compressed counts
};

void TestGoldbilder::initTestCase() {
    qInstallMessageHandler([](QtMsgType art, const QMessageLogContext&, const QString& text) {
        if (art != QtDebugMsg) {
            fprintf(stderr, "%s\n", qPrintable(text));
        }
    });
    QFile datei(Datei);
    if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
        QVERIFY(datei.open(QIODevice::WriteOnly));
        for (const Gleichung& g : gleichungen()) {
            const QByteArray roh = packen(zaehler(g.nummer));
            datei.write(QByteArray::number(g.nummer) + ' ' + pruefsumme(roh) + ' ' +
                        qCompress(roh, 9).toBase64() + '\n');
        }
        datei.close();
    }
    QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(Datei));
    while (!datei.atEnd()) {
        const QList<QByteArray> worte = datei.readLine().trimmed().split(' ');
        QCOMPARE(worte.size(), 3);
        gold[worte[0].toInt()] = {worte[1], worte[2]};
    }
}

void TestGoldbilder::zaehlerWieGespeichert_data() {
    QTest::addColumn<int>("gleichung");
    for (const Gleichung& g : gleichungen()) {
        QTest::addRow("%d", g.nummer) << g.nummer;
    }
}

void TestGoldbilder::zaehlerWieGespeichert() {
    QFETCH(int, gleichung);
    QVERIFY2(gold.contains(gleichung), "no golden picture stored; renew them");
    const QList<qint32> ist = zaehler(gleichung);
    if (pruefsumme(packen(ist)) == gold[gleichung][0]) {
        return;
    }
    QList<qint32> soll;
    QDataStream strom(qUncompress(QByteArray::fromBase64(gold[gleichung][1])));
    strom >> soll;
    QCOMPARE(ist.size(), soll.size());
    int anzahl = 0;
    QString erster;
    for (int i = 0; i < ist.size(); ++i) {
        if (ist[i] != soll[i] && ++anzahl == 1) {
            erster = QString("column %1, row %2: count %3 instead of %4")
                         .arg(i % Breite)
                         .arg(i / Breite)
                         .arg(ist[i])
                         .arg(soll[i]);
        }
    }
    const double hoechstens = exakt(gleichung) ? 0.0 : Toleranz * Breite * Hoehe;
    QVERIFY2(anzahl > 0, "equal counts, but another checksum: the golden file is damaged");
    QVERIFY2(anzahl <= hoechstens, qPrintable(QString("%1 of %2 pixels differ, the first at %3")
                                                  .arg(anzahl)
                                                  .arg(ist.size())
                                                  .arg(erster)));
}

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
