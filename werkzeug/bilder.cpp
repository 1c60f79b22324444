// Renders every equation at its start settings: one PNG each and a contact sheet of all.
//
//     wirbelwerk_bilder FOLDER [WIDTH HEIGHT]      (pixels of one picture, default 320 x 280)
//
// Needs no display: QT_QPA_PLATFORM=offscreen.

#include "equations/Gleichungen.h"
#include "Mandelbrot.h"

#include <QDir>
#include <QTextStream>

#include <memory>

namespace {

constexpr int Streifenbreite = 20; ///< palette strip, cut off here
constexpr int Spaltenzahl = 10;    ///< pictures in a row of the sheet
constexpr int Schrifthoehe = 16;

/// The start picture of an equation, full size.
QImage startbild(Mandelbrot& menge, qint32 nummer, const QSize& groesse) {
    menge.wahl_Gleichung = nummer;
    menge.resize(groesse.width() + Streifenbreite, groesse.height());
    menge.Initialisierung();
    menge.g_halbesBild = 0;
    menge.Bildflaeche = QImage();
    return menge.grab().toImage().copy(QRect(QPoint(0, 0), groesse));
}

QImage leererBogen(const QSize& groesse, int anzahl) {
    const int zeilen = (anzahl + Spaltenzahl - 1) / Spaltenzahl;
    QImage bogen(Spaltenzahl * groesse.width(), zeilen * (groesse.height() + Schrifthoehe),
                 QImage::Format_RGB32);
    bogen.fill(Qt::white);
    return bogen;
}

/// The i-th picture with its number below.
void einkleben(QImage& bogen, int i, const QImage& bild, qint32 nummer) {
    const QPoint ecke(i % Spaltenzahl * bild.width(),
                      i / Spaltenzahl * (bild.height() + Schrifthoehe));
    QPainter maler(&bogen);
    maler.drawImage(ecke, bild);
    maler.setPen(Qt::black);
    maler.drawText(QRect(ecke + QPoint(2, bild.height()), QSize(bild.width(), Schrifthoehe)),
                   Qt::AlignVCenter, QString::number(nummer));
}

/// Draws without the progress lines of the driver.
void stumm(QtMsgType art, const QMessageLogContext& /*kontext*/, const QString& text) {
    if (art != QtDebugMsg) {
        QTextStream(stderr) << text << '\n';
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList worte = QApplication::arguments();
    if (worte.size() != 2 && worte.size() != 4) {
        QTextStream(stderr) << "usage: wirbelwerk_bilder FOLDER [WIDTH HEIGHT]\n";
        return 2;
    }
    qInstallMessageHandler(stumm);
    QSize groesse(320, 280);
    if (worte.size() == 4) {
        groesse = QSize(std::clamp(worte[2].toInt(), 8, Mandelbrot::BildMax),
                        std::clamp(worte[3].toInt(), 8, Mandelbrot::BildMax));
    }
    const QDir ordner(worte[1]);
    bool gut = ordner.mkpath(".");

    const auto menge = std::make_unique<Mandelbrot>();
    menge->show();
    QImage bogen = leererBogen(groesse, static_cast<int>(gleichungen().size()));
    int i = 0;
    for (const Gleichung& gleichung : gleichungen()) {
        const QImage bild = startbild(*menge, gleichung.nummer, groesse);
        gut = bild.save(ordner.filePath(QString("%1.png").arg(gleichung.nummer))) && gut;
        einkleben(bogen, i++, bild, gleichung.nummer);
    }
    gut = bogen.save(ordner.filePath("kontaktbogen.png")) && gut;
    return gut ? 0 : 1;
}
