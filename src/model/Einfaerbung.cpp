#include "model/Einfaerbung.h"

#include "colours/Farbwahl.h"
#include "Runden.h"

#include <algorithm>

namespace {

// --- From value and count to a colour number -----------------------------------------------------

/// What the formulas read of the model.
struct Faktoren {
    double div, konv, abbruch;
};

/// Colour number of a point with the value v and the count n.
using Formel = quint32 (*)(double v, qint32 n, const Faktoren& f);

constexpr quint32 ganz(double wert) { return static_cast<quint32>(trunc32(wert)); }
constexpr quint32 mal(quint32 faktor, qint32 n) { return faktor * static_cast<quint32>(n); }

// Rows 0 and 1 are plain black and white. The order of the operations settles the last bit.
// clang-format off
constexpr std::array<Formel, 19> DivergentFormeln{
    nullptr,
    nullptr,
    [](double, qint32 n, const Faktoren&) { return mal(1, n); },
    [](double, qint32 n, const Faktoren&) { return mal(2, n); },
    [](double, qint32 n, const Faktoren&) { return mal(5, n); },
    [](double, qint32 n, const Faktoren&) { return mal(10, n); },
    [](double, qint32 n, const Faktoren& f) { return ganz(f.div * n); },
    [](double v, qint32, const Faktoren& f) { return ganz(v / f.div); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::log(v) * f.div); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::log(v) * f.div / 3.0); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::log(v) * f.div / 6.0); },
    [](double v, qint32, const Faktoren& f) { return ganz(2.0 * std::log(v) * f.div); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::sin(v) * f.div); },
    [](double v, qint32, const Faktoren& f) { return ganz(1000.0 * f.div / v); },
    [](double v, qint32, const Faktoren& f) { return ganz(f.abbruch * 1000.0 * f.div / v); },
    [](double v, qint32, const Faktoren& f) { return ganz(f.abbruch * f.abbruch * f.div / v); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::sqrt(f.div * v)); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::sqrt(f.div * v / 5.0)); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::sqrt(f.div * v / 20.0)); },
};

constexpr std::array<Formel, 13> KonvergentFormeln{
    nullptr,
    nullptr,
    [](double, qint32 n, const Faktoren& f) { return ganz(f.konv * n); },
    [](double v, qint32, const Faktoren& f) { return ganz(f.konv * v); },
    [](double v, qint32, const Faktoren& f) { return ganz(5.0 * f.konv * v); },
    [](double v, qint32, const Faktoren& f) { return ganz(10.0 * f.konv * v); },
    [](double v, qint32, const Faktoren& f) { return ganz(100.0 * f.konv * v); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::log(v) * f.konv); },
    [](double v, qint32, const Faktoren& f) { return ganz(10.0 * f.konv * std::log(v)); },
    [](double v, qint32, const Faktoren& f) { return ganz(100.0 * f.konv * std::log(v)); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::log(v) * f.konv / 10.0); },
    [](double v, qint32, const Faktoren& f) { return ganz(f.konv / v); },
    [](double v, qint32, const Faktoren& f) { return ganz(std::sqrt(f.konv * v)); },
};
// clang-format on

constexpr qint32 NurZaehler = 2;         ///< divergent: the count itself
constexpr qint32 DivergentDarueber = 8;  ///< stands for every variant beyond the table
constexpr qint32 KonvergentDarueber = 4; ///< stands for every variant beyond the table
constexpr qint32 InnenFrei = 1000;       ///< convergent: draw nothing; above: one palette colour

// --- Fields: what a pixel is drawn in ------------------------------------------------------------

/// A pixel's field is a row of the palette or one of the fixed colours behind it. It is the same
/// in every matrix cell; only the colours of the fields differ.
enum Feld : quint16 {
    ErsteMarke = HauptFarben,
    Schwarz = ErsteMarke + Kreuzfarben.size(),
    Weiss,
    Innen, ///< the one palette colour of the whole inside
    FelderZahl,
    Unberuehrt ///< keeps what the image showed
};
using Feldfarben = std::array<QRgb, FelderZahl>;

/// How a kind of points (divergent or convergent) comes to its field.
struct Regel {
    Formel formel = nullptr; ///< gives a colour number; nullptr = all points take feld
    quint16 feld = Schwarz;
};

Regel divergentRegel(qint32 variante) {
    if (variante == 0 || variante == 1) {
        return {nullptr, variante == 0 ? Schwarz : Weiss};
    }
    const qint32 obere = variante < qint32{DivergentFormeln.size()} ? variante : DivergentDarueber;
    return {DivergentFormeln[static_cast<std::size_t>(std::max(obere, NurZaehler))], Schwarz};
}

Regel konvergentRegel(qint32 variante) {
    if (variante >= InnenFrei) {
        return {nullptr, variante == InnenFrei ? Unberuehrt : Innen};
    }
    if (variante < 2) {
        return {nullptr, variante == 1 ? Weiss : Schwarz};
    }
    const bool inTabelle = variante < qint32{KonvergentFormeln.size()};
    return {KonvergentFormeln[static_cast<std::size_t>(inTabelle ? variante : KonvergentDarueber)],
            Schwarz};
}

/// Everything that is constant for a picture.
struct Farbregel {
    explicit Farbregel(const Mandelbrot& m)
        : index(indexregel(m)), divergent(divergentRegel(m.rechen_VarianteDiv)),
          konvergent(konvergentRegel(m.rechen_VarianteKonv)), faktoren{m.div_Factor, m.konv_Factor,
                                                                       m.wert_Abbruch},
          grenze(m.Max_Iterationen) {}

    [[nodiscard]] quint16 feld(double v, qint32 n) const {
        const Regel& regel = n < grenze ? divergent : konvergent;
        return regel.formel != nullptr ? static_cast<quint16>(index(regel.formel(v, n, faktoren)))
                                       : regel.feld;
    }

    Indexregel index;
    Regel divergent, konvergent;
    Faktoren faktoren;
    qint32 grenze;
};

/// A mark below 0 is not drawn, but it hides the point all the same.
quint16 markenfeld(qint32 marke) {
    return marke < 0 ? quint16{Unberuehrt}
                     : static_cast<quint16>(ErsteMarke + kreuzzeile(static_cast<quint32>(marke)));
}

Feldfarben feldfarben(Mandelbrot& menge, quint32 zelle) {
    Feldfarben farben{};
    farbtafel(menge, zelle, std::span(farben).first<HauptFarben>());
    for (std::size_t i = 0; i < Kreuzfarben.size(); ++i) {
        farben[ErsteMarke + i] = Kreuzfarben[i].farbe;
    }
    farben[Schwarz] = qRgb(0, 0, 0);
    farben[Weiss] = qRgb(255, 255, 255);
    if (menge.rechen_VarianteKonv > InnenFrei) {
        const auto nummer = static_cast<quint32>(menge.rechen_VarianteKonv - InnenFrei);
        farben[Innen] = menge.FarbeV1(nummer, 0, 0).rgb();
    }
    return farben;
}

// --- The pass ------------------------------------------------------------------------------------

/// One place in the image where the stored picture is drawn.
struct Zelle {
    qint32 x = 0, y = 0; ///< left and upper border
    Feldfarben farben{};
};

/// Draws one row of fields at (x, y). Pixels outside the image are skipped.
void zeichneZeile(std::span<const quint16> felder, const Zelle& zelle, qint32 zeile, QImage& bild) {
    const qint64 y = qint64{zelle.y} + zeile;
    if (zelle.x < 0 || zelle.x >= bild.width() || y < 0 || y >= bild.height()) {
        return;
    }
    const auto platz = static_cast<std::size_t>(bild.width() - zelle.x);
    QRgb* const ziel = reinterpret_cast<QRgb*>(bild.scanLine(static_cast<int>(y))) + zelle.x;
    for (std::size_t x = 0; x < std::min(felder.size(), platz); ++x) {
        if (felder[x] != Unberuehrt) {
            ziel[x] = zelle.farben[felder[x]];
        }
    }
}

/// Colours columns x rows of the buffers (pixel (x, y) at [y + 1][x]) into every cell.
template <class Werte, class Ganze>
void faerbe(const Farbregel& regel, const Werte& werte, const Ganze& zaehler, const Ganze* marken,
            QSize groesse, std::span<const Zelle> zellen, QImage& bild) {
    std::array<quint16, Mandelbrot::BildMax> puffer{};
    const int breite = std::clamp(groesse.width(), 0, static_cast<int>(werte[0].size()));
    const int hoehe = std::clamp(groesse.height(), 0, static_cast<int>(werte.size()) - 1);
    const std::span felder = std::span(puffer).first(static_cast<std::size_t>(breite));
    for (qint32 zeile = 0; zeile < hoehe; ++zeile) {
        const auto r = static_cast<std::size_t>(zeile) + 1;
        for (std::size_t x = 0; x < felder.size(); ++x) {
            const qint32 marke = marken != nullptr ? (*marken)[r][x] : 0;
            felder[x] = marke != 0 ? markenfeld(marke) : regel.feld(werte[r][x], zaehler[r][x]);
        }
        for (const Zelle& zelle : zellen) {
            zeichneZeile(felder, zelle, zeile, bild);
        }
    }
}

} // namespace

void palettenstreifen(Mandelbrot& menge, const Bildlauf& lauf, QImage& bild) {
    constexpr qint32 Abstand = 2;
    constexpr qint32 Breite = 18;
    std::array<QRgb, HauptFarben> tafel{};
    farbtafel(menge, 0, tafel);
    const Indexregel index = indexregel(menge);
    const qint64 links = std::max<qint64>(qint64{lauf.SpaltenKLGross} + Abstand, 0);
    const qint64 rechts =
        std::min<qint64>(qint64{lauf.SpaltenKLGross} + Abstand + Breite, bild.width());
    if (links >= rechts) {
        return;
    }
    for (qint32 zeile = 0; zeile < std::min(lauf.ZeilenKLGross, bild.height()); ++zeile) {
        // Each row has the colour number of the row above it; meant.
        const auto nummer = static_cast<quint32>(std::max(zeile - 1, 0));
        QRgb* const ziel = reinterpret_cast<QRgb*>(bild.scanLine(zeile));
        std::fill(ziel + links, ziel + rechts, tafel[index(nummer)]);
    }
}

void einfaerben(Mandelbrot& menge, const Bildlauf& lauf, QImage& bild) {
    const Farbregel regel(menge);
    const bool mitMarken = lauf.LinienRechnen || menge.g_halbesBild > Vollbild;
    if (!lauf.Matrix) {
        const std::array zelle{Zelle{0, 0, feldfarben(menge, 0)}};
        faerbe(regel, menge.ImageDoubles, menge.ImageIntegers,
               mitMarken ? &menge.ImageGitterIntegers : nullptr,
               {lauf.SpaltenKLGross, lauf.ZeilenKLGross}, zelle, bild);
        return;
    }
    constexpr std::size_t Seite = 4; // cells per row and column
    const std::array<qint32, Seite> spalten{0, lauf.Spalten1, lauf.Spalten2, lauf.Spalten3};
    const std::array<qint32, Seite> zeilen{0, lauf.Zeilen1, lauf.Zeilen2, lauf.Zeilen3};
    std::array<Zelle, Seite * Seite> zellen;
    for (std::size_t r = 0; r < Seite; ++r) {
        for (std::size_t c = 0; c < Seite; ++c) {
            const auto code = static_cast<quint32>(10 * (r + 1) + c + 1);
            zellen[Seite * r + c] = {spalten[c], zeilen[r], feldfarben(menge, code)};
        }
    }
    faerbe(regel, menge.ImageViertelDoubles, menge.ImageViertelIntegers,
           mitMarken ? &menge.ImageViertelGitterIntegers : nullptr, {lauf.SpaltenKL, lauf.ZeilenKL},
           zellen, bild);
}
