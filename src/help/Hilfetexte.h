#pragma once

#include <array>
#include <cstddef>

/// One help box. Title and text are source texts of the translation context "UI"; in both, "%1"
/// stands for the maker's web address and "%2" for the program's version.
struct Hilfetext {
    const char* titel; ///< window title, plain text
    const char* text;  ///< rich text: b, br, i, span, table, tr, td, and &lt; &gt; &amp; escaped
};

/// The topics of the help menus, in menu order. Each exists in German and in English.
enum class Hilfethema : std::size_t {
    KomplexeZahlen,
    Fraktale,
    SpezialFraktale,
    Gleichungen,
    Berechnung,
    Zwilling,
    Orbit,
    FarbTab,
    Div,
    Konv,
};
inline constexpr std::size_t g_Hilfethemen = 10;

/// The boxes of one language, indexed by Hilfethema.
using Hilfetabelle = std::array<Hilfetext, g_Hilfethemen>;

extern const Hilfetabelle g_HilfeDeutsch;
extern const Hilfetabelle g_HilfeEnglisch;
/// The author box, the same in both help menus.
extern const Hilfetext g_HilfeAutor;
