// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (one line an equation: number, checksum of the counts, the counts compressed).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

#include <QCryptographicHash>

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Most pixels that may differ where sine, exponential, logarithm, power or complex
/// division come in: libraries differ there in the last bit, and near the border of a set a last
/// bit moves a count.
constexpr int Hoechstens = Breite * Hoehe / 50;

/// The counts of a start picture row by row, serialised.
QByteArray zaehler(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = 0;
    malen(*m);
    QList<qint32> werte;
    for (std::size_t i = 0; i < Breite * Hoehe; ++i) {
        werte << m->ImageIntegers[i / Breite + 1][i % Breite];
    }
    QByteArray roh;
    QDataStream strom(&roh, QIODevice::WriteOnly);
    strom << werte;
    return roh;
}

QList<qint32> auspacken(const QByteArray& roh) {
    QList<qint32> werte;
    QDataStream strom(roh);
    strom >> werte;
    return werte;
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

    QMap<qint32, QList<QByteArray>> gold; ///< number to number, checksum and compressed counts

  private Q_SLOTS:
    void initTestCase() {
        QFile datei(QString(GOLDORDNER) + "/zaehler.txt");
        if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
            QVERIFY(datei.open(QIODevice::WriteOnly));
            for (const Gleichung& g : gleichungen()) {
                const QByteArray roh = zaehler(g.nummer);
                datei.write(QByteArray::number(g.nummer) + ' ' + pruefsumme(roh) + ' ' +
                            qCompress(roh, 9).toBase64() + '\n');
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        while (!datei.atEnd()) {
            const QList<QByteArray> worte = datei.readLine().trimmed().split(' ');
            QCOMPARE(worte.size(), 3);
            gold[worte[0].toInt()] = worte;
        }
    }

    void zaehlerWieGespeichert_data() {
        QTest::addColumn<int>("gleichung");
        for (const Gleichung& g : gleichungen()) {
            QTest::addRow("%d", g.nummer) << g.nummer;
        }
    }
    void zaehlerWieGespeichert() {
        QFETCH(int, gleichung);
        QVERIFY2(gold.contains(gleichung), "no golden picture stored; renew them");
        const QByteArray roh = zaehler(gleichung);
        if (pruefsumme(roh) == gold[gleichung][1]) {
            return;
        }
        const auto ist = auspacken(roh);
        const auto soll = auspacken(qUncompress(QByteArray::fromBase64(gold[gleichung][2])));
        QCOMPARE(ist.size(), soll.size());
        QStringList falsch;
        for (int i = 0; i < ist.size(); ++i) {
            if (ist[i] != soll[i]) {
                falsch << QString("column %1, row %2: count %3 instead of %4")
                              .arg(i % Breite)
                              .arg(i / Breite)
                              .arg(ist[i])
                              .arg(soll[i]);
            }
        }
        QVERIFY2(!falsch.isEmpty(), "equal counts, but another checksum: the file is damaged");
        QVERIFY2(
            falsch.size() <= (exakt(gleichung) ? 0 : Hoechstens),
            qPrintable(QString("%1 pixels differ, the first at ").arg(falsch.size()) + falsch[0]));
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
