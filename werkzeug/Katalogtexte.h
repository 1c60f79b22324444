#pragma once

#include "equations/Gleichungen.h"

#include <array>

// What the catalogue page says beside pictures and names.

/// One section of the page.
struct Familie {
    const char* titel;
    const char* text;
    bool (*enthaelt)(qint32 nummer);
};

/// A line about an equation whose start picture says little, or differs from what one expects.
struct Bemerkung {
    qint32 nummer;
    const char* text;
};

inline constexpr const char* Seitenkopf =
    R"(# Catalogue

All %1 equations with their start pictures, grouped as in the menu *Gleichung/Equation*. The names
are those of the window's title. `docs/bilder.sh` writes this page from the program's own table.

To see a start picture: choose the equation from the menu, then *Datei/File → Reset zum Startbild
der Gleichung*, then *Groesse/Size → Aktives zum vollem Bild/FullPicture*.

In all formulas `Z` is the value that is fed back, `ZS` its conjugate, `Zq` is `Z*Z`, `Zm` is
`Z*ZS`, `C` (or `A`, the constant with the twin's share) the constant, `K` the power from the end of
the equation menu (10 at the start). Odd numbers begin with 0 and take the pixel as `C`, but for
Newton's method, 9 and 109 to 909, which begins at the pixel. Even numbers begin at the pixel and take
*C-Julia X* and *C-Julia Y* as `C`, -1 + 0i at most starts. Left is the equation, right its Julia
equation; the Newton equations stand alone. The names are fixed; where a name or a menu entry says
something else than what is computed, a remark says so.

Settings named on this page are typed into the panel, then **Start!** is pressed; the centre is
*Mittelpkt. X* with *Mittelpkt. Y* 0, the width the field below. *Potenzzahl K=7* is
chosen from the menu *Gleichung/Equation*, before **Start!** as well. The equations for odd K work
with half of the last odd K, those for even K with half of the last even one.
)";

inline constexpr auto Familien = std::to_array<Familie>({
    {"1 to 10: real arithmetic",
     "Computed with the two real parts of each number; six twins. Equations 9 and 10 are Newton's "
     "method in hypercomplex numbers of four parts.",
     [](qint32 n) { return n <= 10; }},
    {"101 and relatives: powers",
     "The Mandelbrot set and its relatives of higher power. 101 shows the picture of 1 and knows "
     "eleven twins.",
     [](qint32 n) { return n > 100 && (familie(n) == 1 || familie(n) == 2); }},
    {"103 and relatives: eyes", "Powers in which the conjugate stands for some of the factors.",
     [](qint32 n) { return n > 100 && (familie(n) == 3 || familie(n) == 4); }},
    {"105 and relatives: poles",
     "Fractions with the power in the denominator. The odd numbers start with twin 2 and with "
     "bailout 4, which looks for cycles.",
     [](qint32 n) { return n > 100 && (familie(n) == 5 || familie(n) == 6); }},
    {"111 and relatives: pole eyes",
     "The fractions with the conjugate in the denominator. 111 and 211, 112 and 212 are the same "
     "product in another order.",
     [](qint32 n) { return familie(n) == 11 || familie(n) == 12; }},
    {"107 and relatives: complex exponents",
     "Powers of one complex number by another, principal branch of the logarithm.",
     [](qint32 n) { return n > 100 && (familie(n) == 7 || familie(n) == 8); }},
    {"109 and relatives: Newton's method for the roots of 1",
     "`P` = koppX + i * koppY multiplies the derivative; 1 is Newton's method as it is usually "
     "known. No twin.",
     [](qint32 n) { return n > 100 && familie(n) == 9; }},
    {"110 and relatives: Newton's method for the roots of P",
     "`P` = koppX + i * koppY is the number whose roots are sought, `C` multiplies the derivative. "
     "Where C is not 1 the steps are turned and stretched, and the borders with them. No twin.",
     [](qint32 n) { return n > 100 && familie(n) == 10; }},
});

inline constexpr auto Bemerkungen = std::to_array<Bemerkung>({
    {7, "computes `ZS^Z`, the conjugate of the `Z^ZS` in the name. The start picture is the far "
        "field; "
        "the spider sits at the origin: centre 0, width 8."},
    {8, "computes `ZS^Z - 1`, the conjugate of the power in the name. C is always -1, whatever is "
        "typed."},
    {10, "the menu says \"derzeit nicht intakt\", not working at present; it works."},
    {108, "adds C, not always -1 as the name says; C is -1 at the start."},
    {112, "at C = -1 little happens; try C-Julia 0.2, 0.9."},
    {206, "at C = -1 most points settle after a few steps; try Mittelpkt. X and Y 0, width 4, "
          "Fakt.Iter. 20."},
    {208, "almost all points settle or run away at once; try C-Julia X 0.3, centre 2, width 8."},
    {211, "the menu says `ZS*Z*ZS`; computed is `Z*Zm`, that is `Z*Z*ZS`, as in the title."},
    {212, "as 211 and 112."},
    {406, "as 206: centre 0, width 4, Fakt.Iter. 20."},
    {407, "the detail is near the origin: centre -0.5, width 0.5."},
    {408, "the detail is farther out: centre 5, width 16."},
    {505, "computes `Z^K`, not `Zq^K`."},
    {506, "`Z^K` as 505. Flat as 206: centre 0, width 3, Fakt.Iter. 20."},
    {507, "the spots lie to the left: centre -4, width 8."},
    {508, "at C = -1 nearly flat; try C-Julia -2.2, 0.1."},
    {512, "at C = -1 flat; try C-Julia 0.2, 0.9."},
    {603,
     "for odd K only. K starts even, the half is 0 and the formula Z = Z + C, which walks away; "
     "try Potenzzahl K=7."},
    {604, "as 603: Potenzzahl K=7."},
    {606, "at C = -1 every point becomes -1 in the first step. With C = i (C-Julia 0, 1) the map "
          "turns around two centres."},
    {607, "the detail is near the origin: width 1."},
    {608, "the detail is near the origin: centre 0, width 0.3."},
    {611, "for odd K only; at the start its formula is that of 605. Try Potenzzahl K=7."},
    {612, "for odd K only; at the start its formula is that of 606. Try Potenzzahl K=7."},
    {703, "for odd K only. At the start its formula is Z = ZS + C; try Potenzzahl K=7."},
    {704, "as 703: Potenzzahl K=7."},
    {711, "for odd K only; at the start its formula is that of 811. Try Potenzzahl K=7."},
    {712, "for odd K only; at the start its formula is that of 812. Try Potenzzahl K=7."},
    {809, "divides by `K*(Z*ZS)^(K/2-1) *P`, not by `3*Z^2 *P`."},
    {811, "flat by its formula: Z stays on the ray through C and tends to the distance 1 from the "
          "origin, whatever C is. NrAbbr 4 shows how fast."},
    {812, "at C = -1 every point gets the distance 1 in the first step and keeps it; try C-Julia "
          "0.3, 0.6."},
    {909, "divides by `K*ZS*(Z*ZS)^(K/2-1) *P`, not by `3*Z^2 *P`. For odd K; try Potenzzahl K=7."},
});
