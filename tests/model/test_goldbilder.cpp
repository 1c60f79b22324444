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
    m->g_halbesBild = Vollbild;
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

  private Q_SLOTS:
    void zaehlerWieGespeichert() {
        QFile datei(QString(GOLDORDNER) + "/zaehler.txt");
        if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
            QVERIFY(datei.open(QIODevice::WriteOnly));
            for (const Gleichung& g : gleichungen()) {
                QTextStream(&datei) << g.nummer << ' ' << gepackt(startbild(g.nummer)) << '\n';
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        for (const Gleichung& g : gleichungen()) {
            const QList<QByteArray> worte = datei.readLine().split(' ');
            QCOMPARE(worte[0].toInt(), g.nummer); // else renew them
            const Zaehler ist = startbild(g.nummer), soll = entpackt(worte[1]);
            QCOMPARE(ist.size(), soll.size());
            int falsche = 0;
            for (int i = 0; i < Breite * Hoehe; ++i) {
                if (ist[i] != soll[i] && ++falsche > (exakt(g.nummer) ? 0 : Hoechstens)) {
                    QFAIL(qPrintable(QString("equation %1, column %2, row %3: %4 instead of %5")
                                         .arg(g.nummer)
                                         .arg(i % Breite)
                                         .arg(i / Breite)
                                         .arg(ist[i])
                                         .arg(soll[i])));
                }
            }
        }
        QVERIFY(datei.atEnd());
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
