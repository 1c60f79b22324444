#include "Mandelbrot.h"
#include "Runden.h"

#include <algorithm>
#include <cstdio>
#include <memory>

// Renders the program's icon, the Mandelbrot set on a tile with round corners, in all sizes:
//   wirbelwerk_symbol FOLDER   writes FOLDER/wirbelwerk-SIZE.png

namespace {
constexpr std::array<int, 8> Groessen{16, 24, 32, 48, 64, 128, 256, 512};
constexpr int Proben = 2048;     ///< edge of the picture that all sizes are scaled down from
constexpr double MitteX = -0.68; ///< centre, plane units; the other coordinate is 0
constexpr double Breite = 2.75;  ///< width, plane units
constexpr double Rand = 0.03;    ///< margin around the tile, share of its edge
constexpr double Rundung = 0.18; ///< corner radius, share of the edge
constexpr double HellsterSchritt = 14.0; ///< smooth count that gets the last colour
constexpr int LetzteFarbe = 255;

/// Colour of one point: the inside black, the outside brighter towards the border of the set.
QRgb Punkt(Mandelbrot& modell, double x, double y) {
    const double betrag = modell.IterateZmalZplusC(0.0, 0.0, x, y);
    if (modell.privateIterat >= modell.Max_Iterationen) {
        return qRgb(0, 0, 0);
    }
    // The count continued to the reals: one step doubles the logarithm of the measure.
    const double schritt = modell.privateIterat - std::log2(std::log(betrag));
    const double anteil = std::sqrt(std::clamp(schritt / HellsterSchritt, 0.0, 1.0));
    return modell.FarbeV1(static_cast<quint32>(trunc32(anteil * LetzteFarbe)), 0, 0).rgb();
}

QImage Mengenbild() {
    // The start state: equation 1, bailout by the square of the modulus.
    const auto modell = std::make_unique<Mandelbrot>();
    modell->TabelleArray();
    QImage bild(Proben, Proben, QImage::Format_RGB32);
    for (int zeile = 0; zeile < Proben; ++zeile) {
        auto* ziel = reinterpret_cast<QRgb*>(bild.scanLine(zeile));
        for (int spalte = 0; spalte < Proben; ++spalte) {
            ziel[spalte] = Punkt(*modell, MitteX + Breite * (double(spalte) / Proben - 0.5),
                                 Breite * (0.5 - double(zeile) / Proben));
        }
    }
    return bild;
}

QImage Kachel(const QImage& menge) {
    QImage bild(menge.size(), QImage::Format_ARGB32_Premultiplied);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(QBrush(menge));
    const double rand = Rand * Proben;
    maler.drawRoundedRect(QRectF(bild.rect()).adjusted(rand, rand, -rand, -rand), Rundung * Proben,
                          Rundung * Proben);
    return bild;
}

/// Scaled down by halves, so that every sample counts.
QImage Verkleinert(QImage bild, int kante) {
    while (bild.width() >= 2 * kante) {
        const int halb = bild.width() / 2;
        bild = bild.scaled(halb, halb, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return bild.scaled(kante, kante, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}
} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: wirbelwerk_symbol FOLDER\n", stderr);
        return 2;
    }
    const QImage kachel = Kachel(Mengenbild());
    for (const int kante : Groessen) {
        const QString datei =
            QStringLiteral("%1/wirbelwerk-%2.png").arg(QString::fromLocal8Bit(argv[1])).arg(kante);
        if (!Verkleinert(kachel, kante).save(datei)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(datei));
            return 1;
        }
    }
    return 0;
}
