#include "Mandelbrot.h"
#include "Runden.h"

#include <QFile>
#include <QLineF>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <vector>

// Renders the program's icon, the Mandelbrot set on a tile with round corners, in all sizes:
//   wirbelwerk_symbol FOLDER   writes FOLDER/wirbelwerk-SIZE.png and FOLDER/wirbelwerk.svg

namespace {
constexpr std::array<int, 9> Groessen{16, 22, 24, 32, 48, 64, 128, 256, 512};
constexpr int Proben = 2048;     ///< edge of the picture that all sizes are scaled down from
constexpr double MitteX = -0.68; ///< centre, plane units; the other coordinate is 0
constexpr double Breite = 2.75;  ///< width, plane units
constexpr double Rand = 0.03;    ///< margin around the tile, share of its edge
constexpr double Rundung = 0.18; ///< corner radius, share of the edge
constexpr double HellsterSchritt = 14.0; ///< smooth count that gets the last colour
constexpr int LetzteFarbe = 255;
constexpr double Innen = 1e3; ///< what the inside counts as, more than any step

/// The count of a point of the plane continued to the reals.
double Schritt(const Mandelbrot& modell, double x, double y) {
    const double betrag = modell.IterateZmalZplusC(0.0, 0.0, x, y);
    if (modell.privateIterat >= modell.Max_Iterationen) {
        return Innen;
    }
    return modell.privateIterat - std::log2(std::log(betrag)); // one step doubles the logarithm
}

/// Bright towards the border of the set, black inside.
QRgb Farbe(Mandelbrot& modell, double schritt) {
    if (schritt >= Innen) {
        return qRgb(0, 0, 0);
    }
    const double anteil = std::sqrt(std::clamp(schritt / HellsterSchritt, 0.0, 1.0));
    return modell.FarbeV1(static_cast<quint32>(trunc32(anteil * LetzteFarbe)), 0, 0).rgb();
}

/// The point of the plane at a place of the tile, both from 0 to 1.
double EbeneX(double x) { return MitteX + Breite * (x - 0.5); }
double EbeneY(double y) { return Breite * (0.5 - y); }

QImage Mengenbild(Mandelbrot& modell) {
    QImage bild(Proben, Proben, QImage::Format_RGB32);
    for (int zeile = 0; zeile < Proben; ++zeile) {
        auto* ziel = reinterpret_cast<QRgb*>(bild.scanLine(zeile));
        for (int spalte = 0; spalte < Proben; ++spalte) {
            ziel[spalte] = Farbe(modell, Schritt(modell, EbeneX(double(spalte) / Proben),
                                                 EbeneY(double(zeile) / Proben)));
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

// --- The icon without pixels -------------------------------------------------------------------

constexpr int Netz = 1024;       ///< edge of the drawing and of the grid of samples
constexpr double Kantenmass = 4; ///< shortest line of an outline
constexpr int KleinsterZug = 12; ///< corners; smaller outlines would be dust
constexpr std::array<double, 9> Stufen{2.0, 2.7, 3.5, 4.5, 6.0, 8.0, 10.5, 14.0, 100.0};

/// Samples of the continued count, a border of small ones around, so that every outline closes.
std::vector<double> Feld(const Mandelbrot& modell) {
    std::vector<double> feld(std::size_t{Netz} * Netz, -1.0);
    for (int y = 1; y < Netz - 1; ++y) {
        for (int x = 1; x < Netz - 1; ++x) {
            feld[std::size_t{Netz} * std::size_t(y) + std::size_t(x)] =
                Schritt(modell, EbeneX(double(x) / Netz), EbeneY(double(y) / Netz));
        }
    }
    return feld;
}

/// Where an outline crosses the edge between two samples; equal for both cells at the edge.
struct Kreuzung {
    std::size_t von, bis; ///< samples, the one within the outline first
    auto operator<=>(const Kreuzung&) const = default;
};

/// In every cell each crossing out of the area leads to the next one into it; the neighbour sees
/// that one the other way round, and so the outline goes on there.
std::map<Kreuzung, Kreuzung> Umrisse(const std::vector<double>& feld, double stufe) {
    std::map<Kreuzung, Kreuzung> weiter;
    for (std::size_t i = 0; i + Netz + 1 < feld.size(); ++i) {
        const std::array<std::size_t, 4> ecken{i, i + 1, i + Netz + 1, i + Netz};
        const auto drin = [&](std::size_t k) { return feld[ecken[k % 4]] >= stufe; };
        for (std::size_t k = 0; k < 4; ++k) {
            if (drin(k) && !drin(k + 1)) {
                std::size_t ein = k + 1;
                while (drin(ein) || !drin(ein + 1)) {
                    ++ein;
                }
                weiter[{ecken[k], ecken[(k + 1) % 4]}] = {ecken[(ein + 1) % 4], ecken[ein % 4]};
            }
        }
    }
    return weiter;
}

QPointF Lage(const std::vector<double>& feld, double stufe, const Kreuzung& k) {
    const auto ort = [](std::size_t i) { return QPointF(double(i % Netz), double(i / Netz)); };
    const double innen = std::min(feld[k.von], 2.0 * stufe);
    const double anteil = (innen - stufe) / (innen - feld[k.bis]);
    return ort(k.von) + anteil * (ort(k.bis) - ort(k.von));
}

/// The area above a level as data of an SVG path.
QString Pfad(const std::vector<double>& feld, double stufe) {
    std::map<Kreuzung, Kreuzung> weiter = Umrisse(feld, stufe);
    QString text;
    while (!weiter.empty()) {
        QList<QPoint> zug;
        QPointF letzter(-Netz, -Netz);
        for (auto da = weiter.begin(); da != weiter.end();) {
            const QPointF punkt = Lage(feld, stufe, da->first);
            if (QLineF(letzter, punkt).length() >= Kantenmass) {
                zug << punkt.toPoint();
                letzter = punkt;
            }
            const Kreuzung naechste = da->second;
            weiter.erase(da);
            da = weiter.find(naechste);
        }
        for (qsizetype i = 0; i < zug.size() && zug.size() >= KleinsterZug; ++i) {
            const QPoint schritt = i > 0 ? zug[i] - zug[i - 1] : zug[i];
            text += QString(i > 0 ? (i > 1 ? " %1 %2" : "l%1 %2") : "M%1 %2")
                        .arg(schritt.x())
                        .arg(schritt.y());
        }
        text += zug.size() >= KleinsterZug ? "z" : "";
    }
    return text.replace(" -", "-");
}

bool VektorbildSchreiben(Mandelbrot& modell, const QString& datei) {
    const std::vector<double> feld = Feld(modell);
    QString bild = QString("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %1 %1\">\n"
                           "<clipPath id=\"k\"><rect x=\"%2\" y=\"%2\" width=\"%3\" "
                           "height=\"%3\" rx=\"%4\"/></clipPath>\n<g clip-path=\"url(#k)\">\n"
                           "<path fill=\"%5\" d=\"M0 0h%1v%1h-%1z\"/>\n")
                       .arg(Netz)
                       .arg(Rand * Netz)
                       .arg((1 - 2 * Rand) * Netz)
                       .arg(Rundung * Netz)
                       .arg(QColor(Farbe(modell, Stufen[0] / 2)).name());
    for (std::size_t i = 0; i < Stufen.size(); ++i) {
        const double mitte = i + 1 < Stufen.size() ? (Stufen[i] + Stufen[i + 1]) / 2 : Innen;
        bild += QString("<path fill=\"%1\" d=\"%2\"/>\n")
                    .arg(QColor(Farbe(modell, mitte)).name(), Pfad(feld, Stufen[i]));
    }
    QFile ziel(datei);
    return ziel.open(QIODevice::WriteOnly) && ziel.write((bild + "</g>\n</svg>\n").toLatin1()) > 0;
}
} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: wirbelwerk_symbol FOLDER\n", stderr);
        return 2;
    }
    // The start state: equation 1, bailout by the square of the modulus.
    const auto modell = std::make_unique<Mandelbrot>();
    modell->TabelleArray();
    const QImage kachel = Kachel(Mengenbild(*modell));
    for (const int kante : Groessen) {
        const QString datei =
            QStringLiteral("%1/wirbelwerk-%2.png").arg(QString::fromLocal8Bit(argv[1])).arg(kante);
        if (!Verkleinert(kachel, kante).save(datei)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(datei));
            return 1;
        }
    }
    if (!VektorbildSchreiben(*modell, QString::fromLocal8Bit(argv[1]) + "/wirbelwerk.svg")) {
        std::fputs("cannot write wirbelwerk.svg\n", stderr);
        return 1;
    }
    return 0;
}
