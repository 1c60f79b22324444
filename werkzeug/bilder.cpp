// Renders every equation at its start settings: one PNG each and a contact sheet of all.
//
//     wirbelwerk_bilder FOLDER [WIDTH HEIGHT]      (pixels of one picture, default 320 x 280)
//     wirbelwerk_bilder page FILE                  writes the catalogue page of the documentation,
//                                                  the small pictures into bilder/katalog beside it
//
// Needs no display: QT_QPA_PLATFORM=offscreen.

#include "equations/Gleichungen.h"
#include "Katalogtexte.h"
#include "Mandelbrot.h"

#include <QDir>
#include <QSaveFile>
#include <QTextStream>

#include <memory>

namespace {

constexpr int Spaltenzahl = 10; ///< pictures in a row of the sheet
constexpr int Schrifthoehe = 16;

/// The start picture of an equation, full size, without the palette strip.
QImage startbild(Mandelbrot& menge, qint32 nummer, const QSize& groesse) {
    menge.wahl_Gleichung = nummer;
    menge.resize(groesse.width() + Mandelbrot::Streifenbreite, groesse.height());
    menge.Initialisierung();
    menge.g_halbesBild = Vollbild;
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

// --- Catalogue page ----------------------------------------------------------------------------

constexpr QSize Kleinbild(160, 140);
constexpr const char* Bildordner = "bilder/katalog"; ///< beside the page
constexpr std::size_t BilderJeZeile = 2; ///< an equation and its Julia equation; Newton: any two

/// One row of a table of the page: the pictures, then names and remarks.
QString seitenzeile(std::span<const Gleichung> mitglieder) {
    QString bilder;
    QStringList texte;
    for (const Gleichung& g : mitglieder) {
        bilder += QString("| ![equation %1](%2/%1.png) ").arg(g.nummer).arg(Bildordner);
        const QByteArrayView name(g.name.data(), static_cast<qsizetype>(g.name.size()));
        texte += QString("`%1`").arg(QString::fromUtf8(name).trimmed());
    }
    for (const Bemerkung& b : Bemerkungen) {
        const auto trifft = [&](const Gleichung& g) { return g.nummer == b.nummer; };
        if (std::ranges::any_of(mitglieder, trifft)) {
            texte += QString("<br>%1: %2").arg(b.nummer).arg(QString::fromUtf8(b.text));
        }
    }
    for (std::size_t i = mitglieder.size(); i < BilderJeZeile; ++i) {
        bilder += "| ";
    }
    return bilder + "| " + texte.join("<br>") + " |\n";
}

QString katalogseite() {
    QString seite = QString::fromUtf8(Seitenkopf).arg(gleichungen().size());
    for (const Familie& familie : Familien) {
        std::vector<Gleichung> mitglieder;
        std::ranges::copy_if(gleichungen(), std::back_inserter(mitglieder),
                             [&](const Gleichung& g) { return familie.enthaelt(g.nummer); });
        seite += QString("\n## %1\n\n%2\n\n| | | |\n| --- | --- | --- |\n")
                     .arg(QString::fromUtf8(familie.titel), QString::fromUtf8(familie.text));
        std::span<const Gleichung> rest(mitglieder);
        while (!rest.empty()) {
            const std::size_t n = std::min(BilderJeZeile, rest.size());
            seite += seitenzeile(rest.first(n));
            rest = rest.subspan(n);
        }
    }
    return seite;
}

bool seiteSchreiben(Mandelbrot& menge, const QString& name) {
    const QDir ordner(QFileInfo(name).dir().filePath(Bildordner));
    bool gut = ordner.mkpath(".");
    for (const Gleichung& gleichung : gleichungen()) {
        // Twice the size, so that scaling down smooths it.
        const QImage bild = startbild(menge, gleichung.nummer, 2 * Kleinbild)
                                .scaled(Kleinbild, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        gut = bild.save(ordner.filePath(QString("%1.png").arg(gleichung.nummer))) && gut;
    }
    QSaveFile datei(name);
    gut = datei.open(QIODevice::WriteOnly) && gut;
    datei.write(katalogseite().toUtf8());
    return datei.commit() && gut;
}

bool ordnerSchreiben(Mandelbrot& menge, const QDir& ordner, const QSize& groesse) {
    bool gut = ordner.mkpath(".");
    QImage bogen = leererBogen(groesse, static_cast<int>(gleichungen().size()));
    int i = 0;
    for (const Gleichung& gleichung : gleichungen()) {
        const QImage bild = startbild(menge, gleichung.nummer, groesse);
        gut = bild.save(ordner.filePath(QString("%1.png").arg(gleichung.nummer))) && gut;
        einkleben(bogen, i++, bild, gleichung.nummer);
    }
    return bogen.save(ordner.filePath("kontaktbogen.png")) && gut;
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
    const bool seite = worte.size() == 3 && worte[1] == "page";
    if (!seite && worte.size() != 2 && worte.size() != 4) {
        QTextStream(stderr) << "usage: wirbelwerk_bilder FOLDER [WIDTH HEIGHT]\n"
                               "       wirbelwerk_bilder page FILE\n";
        return 2;
    }
    qInstallMessageHandler(stumm);
    const auto menge = std::make_unique<Mandelbrot>();
    menge->show();
    if (seite) {
        return seiteSchreiben(*menge, worte[2]) ? 0 : 1;
    }
    QSize groesse(320, 280);
    if (worte.size() == 4) {
        groesse = QSize(std::clamp(worte[2].toInt(), 8, Mandelbrot::BildMax),
                        std::clamp(worte[3].toInt(), 8, Mandelbrot::BildMax));
    }
    return ordnerSchreiben(*menge, QDir(worte[1]), groesse) ? 0 : 1;
}
