// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (an equation's number, then its picture: a line for each row, a sign for each count) and
// werte.txt (number, checksum of the values).

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
    QByteArray werte; ///< checksum of the bits, every NaN alike
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
    bild.werte = summe.result().toHex().first(16);
    return bild;
}

/// What differs from the stored counts, empty when no more pixels do than given.
QString unterschied(const QString& ist, const QString& soll, int hoechstens) {
    QString text;
    QRect kasten;
    int falsche = 0;
    for (int i = 0; i < ist.size(); ++i) {
        if (ist[i] != soll[i]) {
            const QPoint stelle(i % (Breite + 1), i / (Breite + 1));
            kasten |= QRect(stelle, QSize(1, 1));
            if (++falsche == 1) {
                QDebug(&text) << stelle << Zeichen.indexOf(ist[i]) << "instead of"
                              << Zeichen.indexOf(soll[i]);
            }
        }
    }
    QDebug(&text) << falsche << "in" << kasten;
    return falsche > hoechstens ? text : QString();
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
                QTextStream(&datei) << g.nummer << '\n' << startbild(g.nummer).zaehler;
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        for (const Gleichung& g : gleichungen()) {
            QCOMPARE(datei.readLine().toInt(), g.nummer); // else renew them
            QString soll;
            for (int zeile = 0; zeile < Hoehe; ++zeile) {
                soll += QString::fromUtf8(datei.readLine());
            }
            QCOMPARE(soll.size(), (Breite + 1) * Hoehe);
            const QString anders =
                unterschied(startbild(g.nummer).zaehler, soll, exakt(g.nummer) ? 0 : Hoechstens);
            QVERIFY2(anders.isEmpty(), qPrintable(QString("equation %1: ").arg(g.nummer) + anders));
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
