#include "colours/Farbwahl.h"
#include "colours/Palettenwahl.h"
#include "equations/Gleichungen.h"
#include "Mandelbrot.h"

#include <algorithm>
#include <optional>
#include <span>

namespace {

/// Start settings that a group of equations shares, named like the fields of Mandelbrot (plane
/// units, iterations). An empty field leaves the model's as an earlier row set it.
struct Startwerte {
    std::optional<double> MP_x{}, MP_y{}, Br_x{};
    std::optional<qint32> Max_Iterationen{}, glg_Abbruch{};
    std::optional<double> wert_Abbruch{}, Koppl_x{}, Koppl_y{};
    std::optional<double> div_Factor{}, konv_Factor{}, it_Factor{};
    std::optional<qint32> rechen_VarianteDiv{}, rechen_VarianteKonv{}, color_Offset{};
    std::optional<qint32> zahl_farbtab{};
    std::optional<qint32> zahl_Matrix{}; ///< not taken while the matrix view is on
    std::optional<qint32> g_ZwillingJa{}, g_JuliaJa{};
    std::optional<double> CJ_x{}, CJ_y{};
};

/// One row of a table of start settings.
struct Startzeile {
    bool (*gilt)(qint32 nummer); ///< whether the row applies to a plain equation number
    Startwerte werte{};
};

constexpr qint32 LetzteOhneZusatz = 106; ///< equations above it get the second table

/// What every equation starts with.
constexpr Startwerte Allgemein{.MP_x = -0.5,
                               .MP_y = 0.0,
                               .Br_x = 4.0,
                               .Max_Iterationen = 256,
                               .glg_Abbruch = 1,
                               .wert_Abbruch = 400.0,
                               .Koppl_x = 0.2,
                               .Koppl_y = 0.1,
                               .div_Factor = 100.0,
                               .konv_Factor = 100.0,
                               .it_Factor = 1.0,
                               .rechen_VarianteDiv = 8,
                               .rechen_VarianteKonv = 3,
                               .color_Offset = 0,
                               .zahl_farbtab = 12,
                               .zahl_Matrix = 11,
                               .g_ZwillingJa = 0,
                               .g_JuliaJa = 0,
                               .CJ_x = -1.0,
                               .CJ_y = 0.0};

// clang-format off
// Columns: MP_x, MP_y, Br_x | Max_Iterationen, glg_Abbruch | wert_Abbruch, Koppl_x, Koppl_y |
//          div_Factor, konv_Factor, it_Factor | rechen_VarianteDiv, rechen_VarianteKonv,
//          color_Offset | zahl_farbtab | zahl_Matrix | g_ZwillingJa, g_JuliaJa | CJ_x, CJ_y
// The irregularities between the families, also values beyond a range as the variant 44, are meant.
constexpr std::nullopt_t o = std::nullopt; // the field stays as it was

// A later row wins.
constexpr auto Tabelle = std::to_array<Startzeile>({
    {[](qint32 n) { return familie(n) == 5; },
     {-0.5, 0.5, 6.0,  256, 4,  400.0, 0.38, 0.38,
      100.0, 100.0, 1.0,  16, 5, 0,  32,  33,  2, o,  o, o}},
    {[](qint32 n) { return familie(n) == 6; },
     {-0.5, 0.5, 11.0,  256, 0,  400.0, 0.2, 0.1,
      100.0, 500.0, 1.0,  4, 44, 182,  12,  11,  0, 1,  -1.0, 0.0}},
    {[](qint32 n) { return n == 7 || n == 8; },
     {-200.0, 0.0, 700.0,  100, 1,  1e8, 0.01, 0.01,
      50.0, 20.0, 1.0,  7, 2, 281,  20,  44,  0, o,  o, o}},
    {[](qint32 n) { return n == 8; },
     {.g_ZwillingJa = 1, .g_JuliaJa = 1, .CJ_x = -1.0, .CJ_y = 0.0}},
    {[](qint32 n) { return n == 9; },
     {0.0, 0.0, 0.5,  256, 3,  10000.0, 5.0, 5.0,
      1.0, 5.0, 0.2,  2, 6, 344,  6,  11,  0, 0,  o, o}},
    {[](qint32 n) { return n == 10; },
     {0.0, 0.0, 20.0,  256, 3,  10000.0, 0.05, 0.05,
      1.0, 10.0, 1.0,  2, 6, 344,  6,  11,  0, 1,  1.0, 1.0}},
});

// For the equations above 106, applied after the first table.
constexpr auto TabelleGreater100 = std::to_array<Startzeile>({
    {[](qint32 n) { return familie(n) == 7 || familie(n) == 8; },
     {0.0, 0.0, 4.0,  100, 0,  1e8, 0.01, 0.01,
      1.0, 1.0, 8.0,  4, 2, 236,  24,  32,  0, o,  o, o}},
    {[](qint32 n) { return n == 108; },
     {.g_ZwillingJa = 1, .g_JuliaJa = 1, .CJ_x = -1.0, .CJ_y = 0.0}},
    {[](qint32 n) { return familie(n) == 9; },
     {0.0, 0.0, 4.0,  256, 3,  10000.0, 1.0, 0.0,
      1.0, 200.0, 15.0,  2, 6, 48,  3,  11,  o, o,  o, o}},
    {[](qint32 n) { return n == 509 || n == 609; },
     {-2.0, 0.0, 6.0,  256, 1,  400.0, 1.0, 0.0,
      100.0, 100.0, 1.0,  8, 3, 512,  9,  11,  o, o,  o, o}},
    {[](qint32 n) { return n == 110; },
     {0.0, 0.0, 8.0,  256, 3,  10000.0, 1.0, 0.0,
      1.0, 10.0, 4.0,  2, 6, 180,  9,  11,  o, 1,  1.0, 0.0}},
    {[](qint32 n) { return n == 210 || n == 310 || n == 410; },
     {0.0, 0.0, 4.0,  256, 3,  10000.0, 1.0, 0.0,
      1.0, 200.0, 15.0,  2, 6, 48,  3,  11,  o, 1,  -1.0, 0.0}},
    {[](qint32 n) { return familie(n) == 10 && n >= 510; },
     {0.0, 0.0, 3.0,  256, 3,  10000.0, 1.0, 0.0,
      1.0, 10.0, 4.0,  2, 6, 180,  7,  21,  o, 1,  -1.0, 0.618032}},
});
// clang-format on

template <class T>
void setze(T& feld, const std::optional<T>& wert) {
    feld = wert.value_or(feld);
}

void uebernehmen(Mandelbrot& m, const Startwerte& werte) {
    setze(m.MP_x, werte.MP_x);
    setze(m.MP_y, werte.MP_y);
    setze(m.Br_x, werte.Br_x);
    setze(m.Max_Iterationen, werte.Max_Iterationen);
    setze(m.glg_Abbruch, werte.glg_Abbruch);
    setze(m.wert_Abbruch, werte.wert_Abbruch);
    setze(m.Koppl_x, werte.Koppl_x);
    setze(m.Koppl_y, werte.Koppl_y);
    setze(m.div_Factor, werte.div_Factor);
    setze(m.konv_Factor, werte.konv_Factor);
    setze(m.it_Factor, werte.it_Factor);
    setze(m.rechen_VarianteDiv, werte.rechen_VarianteDiv);
    setze(m.rechen_VarianteKonv, werte.rechen_VarianteKonv);
    setze(m.color_Offset, werte.color_Offset);
    setze(m.zahl_farbtab, werte.zahl_farbtab);
    if (m.zahl_Matrix != Mandelbrot::MatrixEin) {
        setze(m.zahl_Matrix, werte.zahl_Matrix);
    }
    setze(m.g_ZwillingJa, werte.g_ZwillingJa);
    setze(m.g_JuliaJa, werte.g_JuliaJa);
    setze(m.CJ_x, werte.CJ_x);
    setze(m.CJ_y, werte.CJ_y);
}

void anwenden(Mandelbrot& m, std::span<const Startzeile> zeilen) {
    for (const Startzeile& zeile : zeilen) {
        if (zeile.gilt(m.wahl_Gleichung)) {
            uebernehmen(m, zeile.werte);
        }
    }
}

/// Rows over columns of the picture. A widget without room for a picture keeps a ratio that
/// is usable and has 1 otherwise, so that no width or height becomes infinite.
void seitenverhaeltnis(Mandelbrot& m) {
    const int breite = m.width() - Mandelbrot::Streifenbreite;
    if (breite > 0 && m.height() > 0) {
        m.g_Bildverhaeltnis = static_cast<double>(m.height()) / breite;
    } else if (!std::isfinite(m.g_Bildverhaeltnis) || m.g_Bildverhaeltnis <= 0.0) {
        m.g_Bildverhaeltnis = 1.0;
    }
}

void vorschauGrundstellung(Mandelbrot& m) {
    m.g_PixConstX = 0;
    m.g_PixConstY = 0;
    m.g_VorschauAusJa = 0;
    if (m.g_PixVorschauX < 101) {
        m.g_PixVorschauX = 100;
        m.g_PixVorschauY = 0;
    }
}

void speicherLeeren(Mandelbrot& m) {
    const auto leereBilder = [](auto&... bilder) {
        const auto leere = [](auto& bild) {
            for (auto& zeile : bild) {
                zeile.fill(0);
            }
        };
        (leere(bilder), ...);
    };
    const auto leereFolgen = [](auto&... folgen) { (folgen.fill(0), ...); };
    leereBilder(m.ImageDoubles, m.ImageIntegers, m.ImageGitterIntegers, m.ImageViertelDoubles,
                m.ImageViertelIntegers, m.ImageViertelGitterIntegers);
    leereFolgen(m.UnDo0Doubles, m.UnDo1Doubles, m.UnDo2Doubles, m.UnDo3Doubles, m.UnDo4Doubles,
                m.UnDo0Integers, m.UnDo1Integers, m.UnDo2Integers, m.UnDo3Integers,
                m.UnDo4Integers);
    std::fill_n(m.OrbitX.begin(), Mandelbrot::OrbitMax + 1, 0.0);
    std::fill_n(m.OrbitY.begin(), Mandelbrot::OrbitMax + 1, 0.0);
}

/// Switches, overlays, orbit and cycle search as every equation starts with them.
void schalterGrundstellung(Mandelbrot& m) {
    m.g_oberesHalbbild = 0;
    m.g_MittelkreuzJa = 0;
    m.g_NullkreuzJa = 0;
    m.g_GitterJa = 0;
    m.g_GenauJa = 0;
    m.g_RechnenJa = Rechnen;
    m.g_BildLoeschen = 0;
    m.g_linienLoeschenJa = 0;
    m.g_OrbitJa = OrbitAus;
    m.g_OrbitDuennJa = LetzterDick;
    m.g_maxOrbitIterat = OrbitLaengeVoll;
    m.Orbitmodus = 0;
    m.g_OrbitMP = 0;
    m.g_OrbitAbIterAn = 0;
    m.g_Gitterabstand = 0.0;
    m.g_Genauigkeit = 0.0001;
    m.g_zycmax = 7;
    const bool ganz = m.g_halbesBild == Vollbild;
    m.OPx = ganz ? 422 : 211;
    m.OPy = ganz ? 250 : 125;
}

} // namespace

void Mandelbrot::Initialisierung() {
    set_wahl_Gleichung(wahl_Gleichung); // the tables know plain numbers only
    g_Versionsnummer = QStringLiteral("1.5");
    seitenverhaeltnis(*this);
    vorschauGrundstellung(*this);
    const bool erstesMal = initIstdurchJa != 1;
    if (erstesMal) {
        speicherLeeren(*this);
        g_halbesBild = ViertelLinksOben;
    }

    if (wahl_Gleichung == 0) {
        wahl_Gleichung = 1;
    }
    g_Max_glg_Abbruch = 9;
    g_kPotenz = 10;
    g_UnDo = 0;
    click2_Zoom = 0.5;
    FarbtabelleWaveLaden();
    uebernehmen(*this, Allgemein);
    wahlPalette48 = zahl_farbtab > 24 ? 2 : 1;
    fillPalette48(static_cast<quint32>(wahlPalette48), 0, 0, 0, 0, 0, 0);
    schalterGrundstellung(*this);

    anwenden(*this, Tabelle);
    if (wahl_Gleichung > LetzteOhneZusatz) {
        InitGreater100();
    }
    if (g_halbesBild > ViertelLinksOben && zahl_Matrix == MatrixEin) {
        g_halbesBild = ViertelLinksOben;
    }
    g_PalettenZahl = palettenZahl(zahl_farbtab);
    g_Max_rgbFarben = static_cast<qint32>(palettenFarben(zahl_farbtab));
    Br_y = g_Bildverhaeltnis * Br_x;
    BildbreiteNeueEckpunkte();
    initIstdurchJa = 1;
}

void Mandelbrot::InitGreater100() { anwenden(*this, TabelleGreater100); }

void Mandelbrot::InitGreater300() {}
