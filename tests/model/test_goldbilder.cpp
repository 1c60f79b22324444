// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen; and a checksum of their values, equal
// whatever compiler and processor made them.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (one line an equation: number, the counts compressed) and werte.txt (number, checksum).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

#include <bit>

#include <QCryptographicHash>

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Most pixels that may differ where sine, exponential, logarithm and power come in: libraries
/// differ there in the last bit, and near the border of a set a last bit moves a count.
constexpr int Hoechstens = Breite * Hoehe / 50;
using Zaehler = QList<qint32>; ///< row by row

struct Startbild {
    Zaehler zaehler;
    QByteArray werte; ///< checksum of the bits, every NaN alike
};

Startbild startbild(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = 0;
    malen(*m);
    Startbild bild;
    QCryptographicHash summe(QCryptographicHash::Sha256);
    for (std::size_t i = 0; i < Breite * Hoehe; ++i) {
        bild.zaehler << m->ImageIntegers[i / Breite + 1][i % Breite];
        const double wert = m->ImageDoubles[i / Breite + 1][i % Breite];
        const auto bits = std::bit_cast<quint64>(std::isnan(wert) ? qQNaN() : wert);
        summe.addData(QByteArray::number(bits, 16) + '\n');
    }
    bild.werte = summe.result().toHex().first(16);
    return bild;
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

/// Every operation of these is exactly rounded: the same values and counts everywhere. The others
/// are 7, 8 and the families 07 and 08.
bool exakt(qint32 gleichung) {
    const qint32 f = familie(gleichung);
    return f != 7 && f != 8;
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
                QTextStream(&datei)
                    << g.nummer << ' ' << gepackt(startbild(g.nummer).zaehler) << '\n';
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        for (const Gleichung& g : gleichungen()) {
            const QList<QByteArray> worte = datei.readLine().split(' ');
            QCOMPARE(worte[0].toInt(), g.nummer); // else renew them
            const Zaehler ist = startbild(g.nummer).zaehler, soll = entpackt(worte[1]);
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

    void werteWieGespeichert() {
        QByteArrayList zeilen;
        for (const Gleichung& g : gleichungen()) {
            if (exakt(g.nummer)) {
                zeilen << QByteArray::number(g.nummer) + ' ' + startbild(g.nummer).werte;
            }
        }
        QFile datei(QString(GOLDORDNER) + "/werte.txt");
        if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
            QVERIFY(datei.open(QIODevice::WriteOnly));
            datei.write(zeilen.join('\n') + '\n');
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        QCOMPARE(zeilen, datei.readAll().trimmed().split('\n')); // else renew them
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
