#include "colours/Paletten.h"

#include "Mandelbrot.h"
#include "Runden.h"

#include <algorithm>

namespace {

constexpr std::size_t Kanaele = 3;

static_assert(SpektralFarben == std::size_t{Mandelbrot::ColormapSize});
static_assert(HauptFarben == std::size_t{Mandelbrot::Palette48Farben});

/// The low eight bits of the truncated value.
constexpr quint8 byteAus(double wert) { return static_cast<quint8>(trunc32(wert)); }

// --- Spectral palette ----------------------------------------------------------------------------

/// One band of the spectrum: each channel is (welle - ab) / breite, or constant where breite is 0.
struct Flanke {
    double ab, breite;
    [[nodiscard]] constexpr double bei(double welle) const {
        return breite == 0.0 ? ab : (welle - ab) / breite;
    }
};
struct Band {
    double bis; ///< last wavelength, nm, inclusive
    std::array<Flanke, Kanaele> kanaele;
};

constexpr Flanke Aus{0.0, 0.0};
constexpr Flanke Voll{1.0, 0.0};

constexpr std::array<Band, 6> Spektrum{{
    {440.0, {{{440.0, -60.0}, Aus, Voll}}},
    {490.0, {{Aus, {440.0, 50.0}, Voll}}},
    {510.0, {{Aus, Voll, {510.0, -20.0}}}},
    {580.0, {{{510.0, 70.0}, Voll, Aus}}},
    {645.0, {{Voll, {645.0, -65.0}, Aus}}},
    {780.0, {{Voll, Aus, Aus}}},
}};

/// The eye's fading sensitivity at both ends, 0.3 .. 1.
double helligkeit(double welle) {
    if (welle > 700.0) {
        return 0.3 + 0.7 * (780.0 - welle) / 80.0;
    }
    return welle < 420.0 ? 0.3 + 0.7 * (welle - 380.0) / 40.0 : 1.0;
}

// --- Main colour palettes ------------------------------------------------------------------------

/// A run of colours that leads to one main colour.
struct Abschnitt {
    int farben;            ///< length
    std::size_t ziel;      ///< main colour, index into the chosen rows
    int teiler;            ///< colour difference / teiler is the step; 0 = the main colour itself
    bool einrasten;        ///< a channel that leaves 0..255 takes the main colour's value
    bool beiseite = false; ///< the working values stay what the ramp before left
};

// The divisor 132 is meant: its steps are wider than the run is long, so the channels overshoot
// and snap to the main colour.
constexpr std::array<Abschnitt, 5> DreiAbschnitte{{
    {33, 0, 0, false},
    {232, 1, 132, true},
    {33, 1, 0, false},
    {232, 2, 232, false},
    {52, 2, 0, false},
}};
// Only colour B is where the next ramp starts; the one after colour E goes on from what the ramps
// before it left. Meant.
constexpr std::array<Abschnitt, 8> SechsAbschnitte{{
    {1, 0, 0, false},
    {101, 1, 101, true},
    {33, 1, 0, false},
    {102, 2, 102, true},
    {102, 3, 102, true},
    {102, 4, 102, true},
    {33, 4, 0, false, true},
    {108, 5, 108, true},
}};

constexpr int laenge(std::span<const Abschnitt> abschnitte) {
    int summe = 0;
    for (const Abschnitt& a : abschnitte) {
        summe += a.farben;
    }
    return summe;
}
static_assert(laenge(DreiAbschnitte) == int{HauptFarben});
static_assert(laenge(SechsAbschnitte) == int{HauptFarben});

const std::array<qint32, Kanaele>& grundfarbe(qint8 zeile) {
    constexpr int letzte = static_cast<int>(Palroot.size()) - 1;
    return Palroot[static_cast<std::size_t>(std::clamp<int>(zeile, 0, letzte))];
}

/// The working values run on from section to section: what the whole-number steps leave over is
/// carried into the next ramp.
void rampen(std::span<quint8> ziel, std::span<const Abschnitt> abschnitte,
            std::span<const qint8> zeilen) {
    std::array<qint32, Kanaele> arbeit{};
    std::array<qint32, Kanaele> von{};
    std::size_t stelle = 0;
    for (const Abschnitt& a : abschnitte) {
        const std::array<qint32, Kanaele>& nach = grundfarbe(zeilen[a.ziel]);
        const auto davor = arbeit;
        for (int i = 0; i < a.farben; ++i) {
            for (std::size_t k = 0; k < Kanaele; ++k) {
                if (a.teiler == 0) {
                    arbeit[k] = nach[k];
                } else {
                    arbeit[k] += (nach[k] - von[k]) / a.teiler;
                    if (a.einrasten && (arbeit[k] < 0 || arbeit[k] > 255)) {
                        arbeit[k] = nach[k];
                    }
                }
                ziel[stelle++] = static_cast<quint8>(arbeit[k]);
            }
        }
        if (a.beiseite) {
            arbeit = davor;
        }
        von = nach;
    }
}

// --- Fixed palette -------------------------------------------------------------------------------

struct Anker {
    int zeile;
    std::array<int, Kanaele> farbe;
};

// Row 116 ends the stretch without green.
constexpr std::array<Anker, 18> FestAnker{{
    {0, {3, 0, 3}},
    {16, {53, 0, 36}},
    {32, {66, 0, 41}},
    {48, {74, 2, 48}},
    {64, {88, 0, 48}},
    {96, {109, 2, 51}},
    {112, {124, 2, 50}},
    {116, {127, 2, 50}},
    {128, {136, 18, 51}},
    {144, {145, 38, 52}},
    {160, {159, 62, 52}},
    {176, {167, 78, 52}},
    {192, {182, 108, 52}},
    {208, {200, 142, 52}},
    {224, {213, 172, 54}},
    {240, {230, 204, 52}},
    {248, {244, 230, 52}},
    {255, {253, 249, 52}},
}};
constexpr int GruenAb = 116;
constexpr int BlauMax = 54;

/// Straight lines between the anchors. Odd rows differ by 2 in blue, and in green while there is
/// hardly any: the fine grain keeps wide areas of one tone from looking flat.
consteval std::array<quint8, Kanaele * FestFarben> festeFarben() {
    std::array<quint8, Kanaele * FestFarben> tabelle{};
    for (std::size_t a = 0; a + 1 < FestAnker.size(); ++a) {
        const Anker& links = FestAnker[a];
        const Anker& rechts = FestAnker[a + 1];
        const int breite = rechts.zeile - links.zeile;
        for (int i = 0; i <= breite; ++i) {
            const int zeile = links.zeile + i;
            std::array<int, Kanaele> farbe{};
            for (std::size_t k = 0; k < Kanaele; ++k) {
                farbe[k] = (2 * (links.farbe[k] * (breite - i) + rechts.farbe[k] * i) + breite) /
                           (2 * breite);
            }
            if (i > 0 && i < breite) {
                const bool ungerade = zeile % 2 != 0;
                if (zeile < GruenAb) {
                    farbe[1] = ungerade ? 2 : 0;
                }
                if (ungerade) {
                    farbe[2] += farbe[2] + 2 > BlauMax ? -2 : 2;
                }
            }
            for (std::size_t k = 0; k < Kanaele; ++k) {
                tabelle[Kanaele * static_cast<std::size_t>(zeile) + k] =
                    static_cast<quint8>(farbe[k]);
            }
        }
    }
    return tabelle;
}

constexpr std::array<quint8, Kanaele* FestFarben> Palette = festeFarben();

} // namespace

void spektralpalette(std::span<quint8, Kanaele * SpektralFarben> ziel) {
    for (std::size_t i = 0; i < SpektralFarben; ++i) {
        const double welle = 380.0 + 400.0 * static_cast<double>(i) / 512.0;
        const auto* const band =
            std::ranges::find_if(Spektrum, [welle](const Band& b) { return welle <= b.bis; });
        for (std::size_t k = 0; k < Kanaele; ++k) {
            const double kanal = band->kanaele[k].bei(welle) * helligkeit(welle);
            ziel[Kanaele * i + k] = byteAus(255.0 * std::pow(kanal, 0.8));
        }
    }
}

void dreifarbenpalette(std::span<quint8, Kanaele * HauptFarben> ziel,
                       std::span<const qint8, 3> zeilen) {
    rampen(ziel, DreiAbschnitte, zeilen);
}

void sechsfarbenpalette(std::span<quint8, Kanaele * HauptFarben> ziel,
                        std::span<const qint8, 6> zeilen) {
    rampen(ziel, SechsAbschnitte, zeilen);
}

std::span<const quint8, Kanaele * FestFarben> festpalette() { return Palette; }

void Mandelbrot::fillPaletteWave() { spektralpalette(colormapWave); }

void Mandelbrot::fillPalette48(quint32 kontr, quint32 col_A, quint32 col_B, quint32 col_C,
                               quint32 col_D, quint32 col_E, quint32 col_F) {
    const std::array<quint32, 6> wunsch{col_A, col_B, col_C, col_D, col_E, col_F};
    const auto ersetzt = [&wunsch](auto zeilen) {
        for (std::size_t i = 0; i < zeilen.size(); ++i) {
            if (wunsch[i] != 0) {
                zeilen[i] = static_cast<qint8>(wunsch[i]);
            }
        }
        return zeilen;
    };
    if (kontr < 2) {
        dreifarbenpalette(Palette48, ersetzt(DreiHauptfarben));
    } else if (kontr == 2) {
        sechsfarbenpalette(Palette48, ersetzt(SechsHauptfarben));
    }
}
