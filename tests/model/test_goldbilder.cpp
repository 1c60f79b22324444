// Golden pictures: the iteration counts of small start pictures against stored ones, so that no
// change of kernels, driver or start settings goes unseen.
//
// To renew them after a change that is meant to alter pictures, run this program with
// WIRBELWERK_GOLD_ERNEUERN=1 in the environment and review the difference of tests/gold/zaehler.txt
// (an equation's number, then its picture: a line for each row, a sign for each count).

#include "Bildprobe.h"
#include "equations/Gleichungen.h"

namespace {

constexpr int Breite = 60;
constexpr int Hoehe = 52;
/// Most pixels that may differ where sine, exponential, logarithm, power or complex
/// division come in: libraries differ there in the last bit, and near the border of a set a last
/// bit moves a count.
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

/// The number of the equation and the counts as they are stored.
QString startbild(qint32 gleichung) {
    const auto m = bildprobe(Breite, Hoehe);
    m->wahl_Gleichung = gleichung;
    m->Initialisierung();
    m->g_halbesBild = 0;
    malen(*m);
    QString text = QString::number(gleichung);
    for (std::size_t i = 0; i < Breite * Hoehe; ++i) {
        const qint32 n = m->ImageIntegers[i / Breite + 1][i % Breite];
        text += i % Breite == 0 ? "\n" : "";
        text += n >= 0 && n < Zeichen.size() ? Zeichen[n] : '?';
    }
    return text;
}

/// What differs from the stored picture, empty when no more pixels do than given.
QString unterschied(const QString& ist, const QString& soll, int hoechstens) {
    QPoint erstes;
    QRect kasten;
    int falsche = 0;
    const auto zaehler = [](const QString& bild, QPoint p) {
        return Zeichen.indexOf(bild.section('\n', p.y() + 1, p.y() + 1).mid(p.x(), 1));
    };
    for (int i = 0; ist != soll && i < Breite * Hoehe; ++i) {
        const QPoint p(i % Breite, i / Breite);
        if (zaehler(ist, p) != zaehler(soll, p)) {
            erstes = falsche++ == 0 ? p : erstes;
            kasten |= QRect(p, QSize(1, 1));
        }
    }
    QString text;
    if (falsche > hoechstens) {
        QDebug(&text) << falsche << "pixels in" << kasten << "the first at" << erstes
                      << zaehler(ist, erstes) << "instead of" << zaehler(soll, erstes);
    }
    return text;
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
                QTextStream(&datei) << startbild(g.nummer) << '\n';
            }
            datei.close();
        }
        QVERIFY2(datei.open(QIODevice::ReadOnly), qPrintable(datei.fileName()));
        for (const Gleichung& g : gleichungen()) {
            QString soll = QString::fromUtf8(datei.readLine());
            QCOMPARE(soll.toInt(), g.nummer); // else renew them
            for (int zeile = 0; zeile < Hoehe; ++zeile) {
                soll += QString::fromUtf8(datei.readLine());
            }
            const QString anders =
                unterschied(startbild(g.nummer), soll.chopped(1), exakt(g.nummer) ? 0 : Hoechstens);
            QVERIFY2(anders.isEmpty(), qPrintable(QString("equation %1: ").arg(g.nummer) + anders));
        }
        QVERIFY(datei.atEnd());
    }
};

QTEST_MAIN(TestGoldbilder)
#include "test_goldbilder.moc"
