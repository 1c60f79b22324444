#include "equations/Gleichungen.h"

#include "Mandelbrot.h"

#include <algorithm>

namespace {

constexpr auto Katalog = std::to_array<Gleichung>({
    {1, "1: Z=Z*Z+C Mandelbrot"},
    {2, "2: Julia Z=Z*Z+C"},
    {3, "3: Z=Z*ZS+C Auge"},
    {4, "4: Julia Z=Z*ZS+C Auge"},
    {5, "5: Z=(Z+C)/(1+C*Z^3) Vierpol"},
    {6, "6: Julia Z=(Z+C)/(1+C*Z^3) Vierpol"},
    {7, "7: Z=Z^ZS+C Spinne"},
    {8, "8: Z=Z^ZS-1 Schaedel"},
    {9, "9: Dritte Wurzel Newton"},
    {10, "10: Julia Wurzel"},
    {101, "101: Z=Z*Z+C complex Mandelbrot"},
    {102, "102: Julia Z=Z*Z+C complex"},
    {103, "103: Z=Z*ZS+C complex Auge"},
    {104, "104: Julia Z=Z*ZS+C complex Auge"},
    {105, "105: Z=(Z+C)/(1+C*Z^3) complex Vierpol"},
    {106, "106: Julia Z=(Z+C)/(1+C*Z^3) complex Vierpol"},
    {107, "107: Z=Z^ZS+C complex"},
    {108, "108: Julia Z=Z^ZS-1 complex"},
    {109, "109: Julia Z=Z-(Z^3-1)/(3*Z^2 *P) complex 3.Wurzel(1)"},
    {110, "110: Julia Z=Z-(Z^K -P)/(K*Z^(K-1) *C),K-Wurzel(P),P(koppX,koppYi) "},
    {111, "111: Z=(Z+C)/(1+C*Zm*Z) complex(Zm=Z*ZS)Vierpol-AugeA"},
    {112, "112: Julia Z=(Z+C)/(1+C*Zm*Z) complex Vierpol-AugeA"},
    {201, "201: Z=Zq*Z+C complex(Zq=Z*Z)"},
    {202, "202: Julia Z=Zq*Z+C complex"},
    {203, "203: Z=Zm*Z+A complex(Zm=Z*ZS)"},
    {204, "204: Julia Z=Zm*Z+A complex"},
    {205, "205: Z=(Z+C)/(1+C*Zq*Zq) complex(Zq=Z*Z)Fünfpol"},
    {206, "206: Julia Z=(Z+C)/(1+C*Zq*Zq) complex Fünfpol"},
    {207, "207: Z=Z^Z+C complex"},
    {208, "208: Julia Z=Z^Z+C complex"},
    {209, "209: Julia Z=Z-(Z^3-1)/(B33*Z^2 *P) complex 3.Wurzel(1),B33(3,3i)"},
    {210, "210: Julia Z=Z-(Z^2 -P)/(2*Z *C), 2.Wurzel(P),P(koppX,koppYi)"},
    {211, "211: Z=(Z+C)/(1+C*Z*Zm) complex(Zm=Z*ZS)Vierpol-AugeB"},
    {212, "212: Julia Z=(Z+C)/(1+C*Z*Zm) complex Vierpol-AugeB"},
    {301, "301: Z=Zq*Zq+C complex(Zq=Z*Z)"},
    {302, "302: Julia Z=Zq*Zq+C complex"},
    {303, "303: Z=ZS*Zm+A complex(Zm=Z*ZS)"},
    {304, "304: Julia Z=ZS*Zm+A complex"},
    {305, "305: Z=(Z+C)/(1+C*Zq*Zq*Z) complex(Zq=Z*Z)Sechspol"},
    {306, "306: Julia Z=(Z+C)/(1+C*Zq*Zq*Z) complex Sechspol"},
    {307, "307: Z=Z^(-Z)+C complex"},
    {308, "308: Julia Z=Z^(-Z)+C complex"},
    {309, "309: Julia Z=Z-(Z^5-1)/(5*Z^4 *P) complex 5.Wurzel(1)"},
    {310, "310: Julia Z=Z-(Z^3 -P)/(3*Z^2 *C), 3.Wurzel(P),P(koppX,koppYi)"},
    {311, "311: Z=(Z+C)/(1+C*Zm*Zm) complex(Zm=Z*ZS)Fünfpol-Auge"},
    {312, "312: Julia Z=(Z+C)/(1+C*Zm*Zm) complex Fünfpol-Auge"},
    {401, "401: Z=Zq*Zq*Z+C complex(Zq=Z*Z)"},
    {402, "402: Julia Z = Zq*Zq*Z+C complex"},
    {403, "403: Z=Zm*Zm+A complex(Zm=Z*ZS)"},
    {404, "404: Julia Z=Zm*Zm+A complex"},
    {405, "405: Z=(Z+C)/(1+C*Zq*Zq*Zq) complex(Zq=Z*Z)Siebenpol"},
    {406, "406: Julia Z=(Z+C)/(1+C*Zq*Zq*Zq) complex Siebenpol"},
    {407, "407: Z=Z^(1/Z)+C complex"},
    {408, "408: Julia Z=Z^(1/Z)+C complex"},
    {409, "409: Julia Z=Z-(Z^5-1)/(B55*Z^4 *P) complex 5.Wurzel(1),B55(5,5i)"},
    {410, "410: Julia Z=Z-(Z^4 -P)/(4*Z^3 *C), 4.Wurzel(P),P(koppX,koppYi)"},
    {411, "411: Z=(Z+C)/(1+C*Zm*Zm*Z) complex(Zm=Z*ZS)Sechspol-AugeA"},
    {412, "412: Julia Z=(Z+C)/(1+C*Zm*Zm*Z) complex Sechspol-AugeA"},
    {501, "501: Z=Z^K +C complex"},
    {502, "502: Julia Z=Z^K +C complex"},
    {503, "503: Z=Zm^(K/2)+C complex(Zm=Z*ZS),K gerade"},
    {504, "504: Julia Z=Zm^(K/2) +C, complex,K gerade"},
    {505, "505: Z=(Z+C)/(1+C*Zq^K) complex(Zq=Z*Z),(K+1)Pol"},
    {506, "506: Julia Z=(Z+C)/(1+C*Zq^K) complex (K+1)Pol"},
    {507, "507: Z=Z^(-ZS)+C complex"},
    {508, "508: Julia Z=Z^(-ZS)+C complex"},
    {509, "509: Julia AugeA 3.Wurzel Z=Z-(Z^3 -1)/(3*Z*ZS *P) complex, ZS=x-iy"},
    {510, "510: Julia Z=Z-(Z^5 -P)/(5*Z^4 *C), 5.Wurzel(P),P(koppX,koppYi)"},
    {511, "511: Z=(Z+C)/(1+C*Zm^(K/2)) complex(Zm=Z*ZS),K gerade,(K+1)Pol-Auge "},
    {512, "512: Julia Z=(Z+C)/(1+C*Zm^(K/2)) complex (K+1)Pol"},
    {603, "603: Z=Zm^(K/2)*Z+C complex(Zm=Z*ZS),K ungerade"},
    {604, "604: Julia Z=Zm^(K/2)*Z+C complex,K ungerade"},
    {605, "605: Z=(Z+C)/(1+C*Z) complex Zweipol"},
    {606, "606: Julia Z=(Z+C)/(1+C*Z) complex Zweipol"},
    {607, "607: Z=Z^(1/ZS)+C complex"},
    {608, "608: Julia Z=Z^(1/ZS)+C complex"},
    {609, "609: Julia AugeB 3.Wurzel Z=Z-(Z*ZS*Z -1)/(3*Z*ZS *P) complex,ZS=x-iy"},
    {610, "610: Julia Z=Z-(Z^6 -P)/(6*Z^5 *C), 6.Wurzel(P),P(koppX,koppYi)"},
    {611, "611: Z=(Z+C)/(1+C*(Zm^(K/2))*Z) complex(Zm=Z*ZS),K ungerade,(K+1)Pol-AugeA "},
    {612, "612: Julia Z=(Z+C)/(1+C*(Zm^(K/2))*Z) complex (K+1)Pol-AugeA"},
    {703, "703: Z=ZS*Zm^(K/2)+C complex(Zm=Z*ZS),K ungerade"},
    {704, "704: Julia Z=ZS*Zm^(K/2)+C complex,K ungerade"},
    {705, "705: Z=(Z+C)/(1+C*Zq) complex(Zq=Z*Z)Dreipol"},
    {706, "706: Julia Z=(Z+C)/(1+C*Zq) complex(Zq=Z*Z)Dreipol"},
    {707, "707: Z=ZS^Z+C complex"},
    {708, "708: Julia Z=ZS^Z+C complex"},
    {709, "709: Julia AugeC 3.Wurzel Z=Z-(Z*ZS*Z -1)/(3*Z^2 *P) complex,ZS=x-iy"},
    {710, "710: Julia Z=Z-(Z^7 -P)/(7*Z^6 *C), 7.Wurzel(P),P(koppX,koppYi)"},
    {711, "711: Z=(Z+C)/(1+C*ZS*Zm^(K/2)) complex(Zm=Z*ZS),K ungerade,(K+1)Pol-AugeB "},
    {712, "712: Julia Z=(Z+C)/(1+C*ZS*Zm^(K/2)) complex (K+1)Pol-AugeB"},
    {809, "809: Julia AugeC K-Wurzel Z=Z-((Z*ZS)^(K/2) -1)/(3*Z^2 *P) complex,ZS=x-iy, K gerade"},
    {810, "810: Julia Z=Z-(Z^8 -P)/(8*Z^7 *C), 8.Wurzel(P),P(koppX,koppYi)"},
    {811, "811: Z=(Z+C)/(1+C*ZS) complex Zweipol-Auge"},
    {812, "812: Julia Z=(Z+C)/(1+C*ZS) complex Zweipol-Auge"},
    {909,
     "909: Julia AugeC K-Wurzel Z=Z-(ZS*(Z*ZS)^(K/2) -1)/(3*Z^2 *P) complex,ZS=x-iy, K ungerade"},
    {910, "910: Julia Z=Z-(Z^9 -P)/(9*Z^8 *C), 9.Wurzel(P),P(koppX,koppYi)"},
    {911, "911: Z=(Z+C)/(1+C*Zm) complex(Zm=Z*ZS)Dreipol-Auge"},
    {912, "912: Julia Z=(Z+C)/(1+C*Zm) complex Dreipol-Auge"},
});

// Strictly rising: what the look-up needs, and no number twice.
static_assert(std::ranges::adjacent_find(Katalog, std::ranges::greater_equal{},
                                         &Gleichung::nummer) == Katalog.end());

} // namespace

std::span<const Gleichung> gleichungen() noexcept { return Katalog; }

const Gleichung* findeGleichung(qint32 nummer) noexcept {
    const auto stelle = std::ranges::lower_bound(Katalog, nummer, {}, &Gleichung::nummer);
    return stelle != Katalog.end() && stelle->nummer == nummer ? &*stelle : nullptr;
}

qint32 juliaPartner(qint32 nummer) noexcept {
    constexpr qint32 newtonUngerade = 9;
    constexpr qint32 newtonGerade = 10;
    if (findeGleichung(nummer) == nullptr || familie(nummer) == newtonUngerade ||
        familie(nummer) == newtonGerade) {
        return 0;
    }
    const qint32 partner = nummer % 2 != 0 ? nummer + 1 : nummer - 1;
    return findeGleichung(partner) != nullptr ? partner : 0;
}

void Mandelbrot::EquationName() {
    const Gleichung* gleichung = findeGleichung(wahl_Gleichung);
    // Every name is a whole literal, so it ends in a zero byte as tr wants it.
    g_NameGlg = gleichung != nullptr ? tr(gleichung->name.data()) : QString(" ");
}
