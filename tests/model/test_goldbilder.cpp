// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (one line an equation: number, the counts compressed).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Most pixels that may differ where sine, exponential, logarithm, power or complex
/// division come in: libraries differ there in the last bit, and near the border of a set a last
/// bit moves a count.
constexpr int Hoechstens = Breite * Hoehe / 50;
using Zaehler = QList<qint32>; ///< row by row

Zaehler startbild(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = 0;
    malen(*m);
    Zaehler werte;
    for (std::size_t i = 0; i < Breite * Hoehe; ++i) {
        werte << m->ImageIntegers[i / Breite + 1][i % Breite];
    }
    return werte;
}

QByteArray gepackt(const Zaehler& werte) {
    QByteArray roh;
    QDataStream strom(&roh, QIODevice::WriteOnly);
    strom << werte;
    return qCompress(roh, 9).toBase64();
}

Zaehler entpackt(const QByteArray& text) {
    Zaehler werte;
    QDataStream strom(qUncompress(QByteArray::fromBase64(text)));
    strom >> werte;
    return werte;
}

/// Every operation of these is exactly rounded: the same counts everywhere.
bool exakt(qint32 gleichung) {
    const qint32 f = familie(gleichung);
    return gleichung < 100 ? gleichung != 7 && gleichung != 8 : f >= 1 && f <= 4;
}

} // namespace

class TestGoldbilder : public QObject {
    Q_OBJECT

    QMap<qint32, Zaehler> gold;

  private Q_SLOTS:
    void initTestCase() {
        QFile datei(QString(GOLDORDNER) + "/zaehler.txt");
        if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
            QVERIFY(datei.open(QIODevice::WriteOnly));
            for (const Gleichung& g : gleichungen()) {
                QTextStream(&datei) << g.nummer << ' ' << gepackt(startbild(g.nummer)) << '\n';
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        while (!datei.atEnd()) {
            const QList<QByteArray> worte = datei.readLine().split(' ');
            gold[worte[0].toInt()] = entpackt(worte[1]);
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
        const Zaehler ist = startbild(gleichung), soll = gold[gleichung];
        QCOMPARE(ist.size(), soll.size());
        QStringList falsch;
        for (int i = 0; i < ist.size(); ++i) {
            if (ist[i] != soll[i]) {
                falsch << QString("column %1, row %2: count %3, not %4")
                              .arg(i % Breite)
                              .arg(i / Breite)
                              .arg(ist[i])
                              .arg(soll[i]);
            }
        }
        QVERIFY2(
            falsch.size() <= (exakt(gleichung) ? 0 : Hoechstens),
            qPrintable(
                QString("%1 pixels, the first at %2").arg(falsch.size()).arg(falsch.value(0))));
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
