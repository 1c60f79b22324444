// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (an equation's number, then its picture: a line for each row, a sign for each count) and
// werte.txt (number, checksum of the values).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

#include <QCryptographicHash>

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Most pixels that may differ where sine, exponential, logarithm and power come in: libraries
/// differ there in the last bit, and near the border of a set a last bit moves a count.
constexpr int Hoechstens = Breite * Hoehe / 50;

/// The sign of a count is at its place: digits, letters, letters with accents; 256, the limit of
/// most pictures, is a point.
const QString Zeichen = [] {
    QString alle = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (char16_t weitere = u'À'; alle.size() <= 256; ++weitere) {
        alle += weitere;
    }
    alle.back() = '.';
    return alle;
}();

struct Startbild {
    QString zaehler;  ///< as they are stored
    QByteArray werte; ///< number and checksum of the bits, every NaN alike
};

Startbild startbild(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = Vollbild;
    malen(*m);
    Startbild bild;
    QCryptographicHash summe(QCryptographicHash::Sha256);
    for (std::size_t i = 0; i < Breite * Hoehe; ++i) {
        const qint32 n = m->ImageIntegers[i / Breite + 1][i % Breite];
        bild.zaehler += n >= 0 && n < Zeichen.size() ? Zeichen[n] : '?';
        bild.zaehler += i % Breite == Breite - 1 ? "\n" : "";
        const double wert = m->ImageDoubles[i / Breite + 1][i % Breite];
        const auto bits = std::bit_cast<quint64>(std::isnan(wert) ? qQNaN() : wert);
        summe.addData(QByteArray::number(bits, 16) + '\n');
    }
    bild.werte = QByteArray::number(gleichung) + ' ' + summe.result().toHex().first(16) + '\n';
    return bild;
}

/// The first of the wrong counts and how many there are, empty when no more than given.
QString unterschied(const QString& ist, const QString& soll, int hoechstens) {
    QString text;
    int falsche = 0;
    for (int i = 0; i < ist.size(); ++i) {
        if (ist[i] != soll[i] && ++falsche == 1) {
            QDebug(&text) << QPoint(i % (Breite + 1), i / (Breite + 1)) << Zeichen.indexOf(ist[i])
                          << "instead of" << Zeichen.indexOf(soll[i]);
        }
    }
    return falsche > hoechstens ? QString("%1 wrong, first ").arg(falsche) + text : QString();
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
    void wieGespeichert() {
        QFile zaehler(QString(GOLDORDNER) + "/zaehler.txt"),
            werte(QString(GOLDORDNER) + "/werte.txt");
        if (qEnvironmentVariableIntValue("WIRBELWERK_GOLD_ERNEUERN") == 1) {
            QVERIFY(zaehler.open(QIODevice::WriteOnly) && werte.open(QIODevice::WriteOnly));
            for (const Gleichung& g : gleichungen()) {
                const Startbild bild = startbild(g.nummer);
                QTextStream(&zaehler) << g.nummer << '\n' << bild.zaehler;
                werte.write(exakt(g.nummer) ? bild.werte : "");
            }
            zaehler.close();
            werte.close();
        }
        QVERIFY(zaehler.open(QIODevice::ReadOnly) && werte.open(QIODevice::ReadOnly));
        for (const Gleichung& g : gleichungen()) {
            const Startbild bild = startbild(g.nummer);
            QCOMPARE(zaehler.readLine().toInt(), g.nummer); // else renew them
            QString soll;
            for (int zeile = 0; zeile < Hoehe; ++zeile) {
                soll += QString::fromUtf8(zaehler.readLine());
            }
            QCOMPARE(soll.size(), (Breite + 1) * Hoehe);
            const QString anders =
                unterschied(bild.zaehler, soll, exakt(g.nummer) ? 0 : Hoechstens);
            QVERIFY2(anders.isEmpty(), qPrintable(QString("equation %1: ").arg(g.nummer) + anders));
            QCOMPARE(bild.werte, exakt(g.nummer) ? werte.readLine() : bild.werte);
        }
        QVERIFY(zaehler.atEnd() && werte.atEnd());
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
