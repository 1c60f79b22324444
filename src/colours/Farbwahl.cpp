#include "colours/Farbwahl.h"

#include "Mandelbrot.h"

#include <algorithm>

namespace {

constexpr int TabellenJePalette = 12;
constexpr int ErsterCode = 11;

/// How a colour is made of the channels of another: which channel is the source of red, green and
/// blue, and whether it is complemented.
struct Mischung {
    struct Kanal {
        std::size_t quelle = 0;
        quint8 maske = 0; ///< 255 complements
    };
    std::array<Kanal, 3> kanaele{};

    /// Three letters for red, green and blue: the source channel, small when it is complemented.
    consteval Mischung(const char (&muster)[4]) {
        constexpr std::array<char, 6> zeichen{'R', 'G', 'B', 'r', 'g', 'b'};
        for (std::size_t k = 0; k < kanaele.size(); ++k) {
            const auto* const stelle = std::ranges::find(zeichen, muster[k]);
            if (stelle == zeichen.end()) {
                throw "unknown channel";
            }
            const auto platz = static_cast<std::size_t>(stelle - zeichen.begin());
            kanaele[k] = {platz % 3, static_cast<quint8>(platz < 3 ? 0 : 255)};
        }
    }

    [[nodiscard]] constexpr Farbtripel aus(const Farbtripel& f) const {
        Farbtripel ergebnis{};
        for (std::size_t k = 0; k < kanaele.size(); ++k) {
            ergebnis[k] = f[kanaele[k].quelle] ^ kanaele[k].maske;
        }
        return ergebnis;
    }
};

/// First matrix column, codes 11, 21, 31 and 41: the base colour's channels, by z_reduz.
constexpr std::array<std::array<Mischung, 4>, TabellenJePalette> ErsteSpalte{{
    {{"RGB", "RRR", "GGG", "BBB"}},
    {{"rgb", "rrr", "ggg", "bbb"}},
    {{"RBG", "RGB", "BBB", "GGG"}},
    {{"GRB", "GGG", "RRR", "RGB"}},
    {{"GBR", "BBB", "RGB", "rrr"}},
    {{"BRG", "RGB", "BGR", "BRG"}},
    {{"BGR", "RBG", "RBG", "RGB"}},
    {{"rgB", "GRB", "RGB", "GRB"}},
    {{"rGb", "RGB", "GRB", "GBR"}},
    {{"Rgb", "BRG", "GBR", "RGB"}},
    {{"RRR", "BGR", "RGB", "BGR"}},
    {{"GGG", "GBR", "BRG", "RBG"}},
}};

/// Other matrix columns, codes r2, r3 and r4: the reduced colour's channels.
constexpr std::array<std::array<Mischung, 3>, 4> WeitereSpalten{{
    {{"RBG", "GRB", "GBR"}},
    {{"BRG", "BGR", "rBG"}},
    {{"GrB", "gBr", "BRg"}},
    {{"BgR", "bRG", "BGr"}},
}};

/// One channel of the base colour replaced by a fixed value.
struct Reduktion {
    std::size_t kanal;
    quint8 wert;
};
constexpr qint32 ErsteReduktion = 2; ///< z_reduz of the first row
constexpr std::array<Reduktion, 10> Reduktionen{{
    {0, 128},
    {1, 128},
    {2, 128},
    {0, 0},
    {1, 0},
    {2, 0},
    {0, 255},
    {1, 255},
    {2, 255},
    {1, 80},
}};

Farbtripel reduziert(Farbtripel farbe, qint32 z_reduz) {
    if (z_reduz == 1) {
        return Mischung("rgb").aus(farbe);
    }
    if (z_reduz >= ErsteReduktion) {
        const Reduktion& r = Reduktionen[static_cast<std::size_t>(z_reduz - ErsteReduktion)];
        farbe[r.kanal] = r.wert;
    }
    return farbe;
}

/// The bytes of the palette in use, with the two side effects of every lookup.
std::span<const quint8> aktivePalette(Mandelbrot& menge) {
    const qint32 farbtab = menge.zahl_farbtab;
    const quint32 farben = palettenFarben(farbtab);
    menge.g_Max_rgbFarben = static_cast<qint32>(farben);
    if (farben == FestFarben) {
        return festpalette();
    }
    if (farben == SpektralFarben) {
        return menge.colormapWave;
    }
    const qint32 gehalten = menge.wahlPalette48;
    const qint32 gebraucht = farbtab < 24 ? 1 : 2;
    if (gehalten == 3 - gebraucht) {
        menge.wahlPalette48 = gebraucht;
        menge.fillPalette48(static_cast<quint32>(gebraucht), 0, 0, 0, 0, 0, 0);
    }
    return menge.Palette48;
}

Farbtripel grundfarbe(std::span<const quint8> palette, std::size_t zeile) {
    return {palette[3 * zeile], palette[3 * zeile + 1], palette[3 * zeile + 2]};
}

/// Code of the colour variant: the asked cell, or the model's where none is asked.
qint64 variantencode(const Mandelbrot& menge, quint32 farbNr) {
    return farbNr != 0 ? qint64{farbNr} : qint64{menge.zahl_Matrix};
}

/// Place within the twelve colour tables of a palette. A negative number is no place.
qint32 tabellenplatz(const Mandelbrot& menge) {
    return menge.zahl_farbtab < 0 ? -1 : menge.zahl_farbtab % TabellenJePalette;
}

} // namespace

Farbtripel farbvariante(const Farbtripel& grund, qint64 code, qint32 z_reduz) {
    const bool mitPlatz = z_reduz >= 0 && z_reduz < TabellenJePalette;
    const qint64 zelle = std::max<qint64>(code, ErsterCode);
    const qint64 zeile = zelle / 10 - 1;
    const qint64 spalte = zelle % 10 - 1;
    if (zeile > 3 || spalte < 0 || spalte > 3) {
        return grund;
    }
    const auto r = static_cast<std::size_t>(zeile);
    const auto s = static_cast<std::size_t>(spalte);
    // The reductions reach the picture through the other columns only: the first column shows
    // the palette's own colours, for comparison.
    if (s == 0) {
        return mitPlatz ? ErsteSpalte[static_cast<std::size_t>(z_reduz)][r].aus(grund) : grund;
    }
    return WeitereSpalten[r][s - 1].aus(mitPlatz ? reduziert(grund, z_reduz) : grund);
}

Indexregel indexregel(const Mandelbrot& menge) {
    return {static_cast<double>(menge.color_Offset), menge.it_Factor,
            palettenFarben(menge.zahl_farbtab)};
}

void farbtafel(Mandelbrot& menge, quint32 farbNr, std::span<QRgb, HauptFarben> ziel) {
    const std::span<const quint8> palette = aktivePalette(menge);
    const qint64 code = variantencode(menge, farbNr);
    const qint32 platz = tabellenplatz(menge);
    for (std::size_t i = 0; i < palette.size() / 3; ++i) {
        const Farbtripel f = farbvariante(grundfarbe(palette, i), code, platz);
        ziel[i] = qRgb(f[0], f[1], f[2]);
    }
}

QColor Mandelbrot::FarbeV1(quint32 Iterationen, quint32 farbNr, quint32 sw1oder256) {
    const std::span<const quint8> palette = aktivePalette(*this);
    if (sw1oder256 != 0) {
        const auto grau = static_cast<quint8>(sw1oder256 - 1);
        return {grau, grau, grau};
    }
    const Farbtripel grund = grundfarbe(palette, indexregel(*this)(Iterationen));
    const Farbtripel f = farbvariante(grund, variantencode(*this, farbNr), tabellenplatz(*this));
    return {f[0], f[1], f[2]};
}

QColor Mandelbrot::FarbeKreuze(quint32 wechselindex) const {
    return QColor::fromRgb(Kreuzfarben[kreuzzeile(wechselindex)].farbe);
}
