#pragma once

#include "UI_Hauptfenster.h"

#include <span>

// The menu tree, each table from top to bottom as the user sees it. Blanks at the end of captions
// and double blanks are meant. A separator at the end of a menu is meant too.

struct Menuetafel;

/// One row of a menu. Exactly one of slot, unter and aktion is set; a separator has none of them.
struct Menuezeile {
    const char* text = nullptr;        ///< caption, UTF-8
    const char* slot = nullptr;        ///< slot of the window, with its brackets
    const Menuetafel* unter = nullptr; ///< submenu
    QAction* UI::*aktion = nullptr;    ///< an action that createActions made
};

/// One menu: the member that holds it, its title and its rows.
struct Menuetafel {
    QMenu* UI::*menue;
    const char* titel;
    std::span<const Menuezeile> zeilen;
};

/// One action of the help menus: the member that holds it, caption and slot of the window.
struct Hilfezeile {
    QAction* UI::*aktion;
    const char* text;
    const char* slot;
};

namespace menuetafeln {

inline constexpr Menuezeile Trenner{};

constexpr Menuezeile unter(const Menuetafel& tafel) { return {.unter = &tafel}; }
constexpr Menuezeile hilfe(QAction* UI::*aktion) { return {.aktion = aktion}; }

// One row a line.
// clang-format off

inline constexpr Menuezeile DateiZeilen[] = {
    {"Rückgängig/Undo 1 Bild/Picture zurück/back", "UnDo1DatenTeilbildLadenSlot()"},
    {"Wiederholen/Repeat before Undo", "WiederholenDatenTeilbildLadenSlot()"},
    Trenner,
    {"Reset zum Startbild der Gleichung", "ResetSlot()"},
    Trenner,
    {"Als PNG speichern/save", "Bild_SpeichernSlot()"},
    Trenner,
    {"Bilddaten laden/load + Start!", "Koordinaten_LadenSlot()"},
    {"Bilddaten speichern/save", "Koordinaten_SpeichernSlot()"},
    {"Letzten Orbit als Liste in HTML-Seite speichern/save", "OrbitListeHTM_SpeichernSlot()"},
    Trenner,
    {"Beenden/Exit", "close()"},
};
inline constexpr Menuetafel Datei{&UI::MenuDatei, "Datei/File", DateiZeilen};

inline constexpr Menuezeile GroesseZeilen[] = {
    {"Bild Aktualisieren/NewCalculation", "NeuRechnenJaSlot()"},
    Trenner,
    {"Aktives zum vollem Bild/FullPicture", "GanzesBildSlot()"},
    Trenner,
    {"1/4 Bild Pos.1", "PixelXYDurch2Pos1Slot()"},
    {"1/4 Bild Pos.2", "PixelXYDurch2Pos2Slot()"},
    {"1/4 Bild Pos.3", "PixelXYDurch2Pos3Slot()"},
    {"1/4 Bild Pos.4", "PixelXYDurch2Pos4Slot()"},
    Trenner,
    {"Vorschau Pos.1", "VorschauPos1Slot()"},
    {"Vorschau Pos.2", "VorschauPos2Slot()"},
    {"Vorschau Pos.3", "VorschauPos3Slot()"},
    {"Vorschau Pos.4", "VorschauPos4Slot()"},
    {"Vorschau Vollbild Rechts-Oben", "VorschauVollbildSlot()"},
    {"Vorschau Vollbild Rechts-Unten", "VorschauVollbild4Slot()"},
    {"Vorschau Vollbild Links-Oben", "VorschauVollbild1Slot()"},
    {"Vorschau Vollbild Links-Unten", "VorschauVollbild3Slot()"},
    Trenner,
    {"automatische Vorschau/Preview AUS/OFF", "VorschauAusSlot()"},
    {"automatische Vorschau/Preview wieder EIN/ON", "VorschauAnSlot()"},
    Trenner,
    {"aktuelles Bild LoeschenA/DeleteA ", "BildSchwarzSlot()"},
    {"aktuelles Bild LoeschenB/DeleteB", "BildWeissSlot()"},
    Trenner,
    {"Obere Bild-Hälfte EIN/ON", "OberesHalbbildEinSlot()"},
    {"Untere Bild-Hälfte EIN/ON", "UnteresHalbbildEinSlot()"},
    {"Bild-Hälften AUS/OFF", "OuU_HalbbildAusSlot()"},
    Trenner,
    {"Vorschau 160x90 Pixel", "VorschauXYPixelNeu3Slot()"},
    {"Vorschau 320x180 Pixel", "VorschauXYPixelNeu4Slot()"},
    {"Vorschau 640x360 Filmformat 16:9", "VorschauXYPixelNeu5Slot()"},
    {"Vorschau Pixel-X=Zoom", "VorschauXYPixelNeu1Slot()"},
    {"Vorschau Pixel-Y=Zoom", "VorschauXYPixelNeu2Slot()"},
    {"Vorschau Pixel-X=100 Standard", "VorschauXYPixelNeu0Slot()"},
    Trenner,
    {"Vorschau-Format in Arbeitsformat übernehmen", "VorschauUebernehmenSlot()"},
    Trenner,
    {"reset Gesamtwindow 1520x1210", "Pixel1520x1210Slot()"},
    Trenner,
    {"reset Gesamtwindow 985x675 =Startbild", "Pixel985x675Slot()"},
    Trenner,
    {"reset Gesamtwindow 520x600", "Pixel520x600Slot()"},
    Trenner,
};
inline constexpr Menuetafel Groesse{&UI::MenuGroesse, "Groesse/Size", GroesseZeilen};

inline constexpr Menuezeile ZahlenZeilen[] = {
    {"Mittelpunkt =  ( 0, 0 )", "MP_xyGleich0Slot()"},
    Trenner,
    {"Zoom = 1", "ZoomGleichEinsSlot()"},
    {"Zoom = 0,25", "ZoomGleich0k25Slot()"},
    {"Zoom = 0,5", "ZoomGleich0k5Slot()"},
    {"Zoom * 3", "ZoomMal3Slot()"},
    {"Zoom / 3", "ZoomDurch3Slot()"},
    {"Zoom * 10", "ZoomMal10Slot()"},
    {"Zoom / 10", "ZoomDurch10Slot()"},
    Trenner,
    {"Brx * 10", "BreiteMal10Slot()"},
    {"Brx / 10", "BreiteDurch10Slot()"},
    {"Brx * 0.75", "BreiteMal0k75Slot()"},
    {"Brx * 1.5", "BreiteMal1k5Slot()"},
    Trenner,
    {"Brx * Zoom", "BreiteMalZoomSlot()"},
    {"Brx / Zoom", "BreiteDurchZoomSlot()"},
    Trenner,
    {"maxIterations *10", "Max_IterationenMal10Slot()"},
    {"maxIterations /10", "Max_IterationenDurch10Slot()"},
    Trenner,
    {"ZahlAbbruch /10", "wert_AbbruchDurch10Slot()"},
    {"ZahlAbbruch *10", "wert_AbbruchMal10Slot()"},
};
inline constexpr Menuetafel Zahlen{&UI::MenuZahlen, "Zahlen/Numbers", ZahlenZeilen};

inline constexpr Menuezeile G101Zeilen[] = {
    {"101: Z=Z^2 +C", "Gleichung101Slot()"},
    {"201: Z=Z^3 +C", "Gleichung201Slot()"},
    {"301: Z=Z^4 +C", "Gleichung301Slot()"},
    {"401: Z=Z^5 +C", "Gleichung401Slot()"},
    {"501: Z=Z^K +C", "Gleichung501Slot()"},
    Trenner,
    {"102: Julia Z=Z^2 +C", "Gleichung102Slot()"},
    {"202: Julia Z=Z^3 +C", "Gleichung202Slot()"},
    {"302: Julia Z=Z^4 +C", "Gleichung302Slot()"},
    {"402: Julia Z=Z^5 +C", "Gleichung402Slot()"},
    {"502: Julia Z=Z^K +C", "Gleichung502Slot()"},
    Trenner,
};
inline constexpr Menuetafel G101{&UI::submenuG101, "&ab 101: Complex Z=Z^K+C Mandelbrotmenge und Verwandte", G101Zeilen};

inline constexpr Menuezeile G103Zeilen[] = {
    {"Z=x+iy, ZS=x-iy", "tu_nixSlot()"},
    {"103: Z=Z*ZS +C Auge", "Gleichung103Slot()"},
    {"203: Z=Z*ZS*Z +C  Dreier-AugeA", "Gleichung203Slot()"},
    {"303: Z=ZS*Z*ZS +C Dreier-AugeB", "Gleichung303Slot()"},
    {"403: Z=(Z*ZS)^2 +C Vierer-Auge (wie K=4)", "Gleichung403Slot()"},
    {"503: Z=(Z*ZS)^(K/2) +C, bei K gerade", "Gleichung503Slot()"},
    {"603: Z=(Z*ZS)^(K/2) *Z +C, bei K ungerade A", "Gleichung603Slot()"},
    {"703: Z=ZS*(Z*ZS)^(K/2) +C, bei K ungerade B", "Gleichung703Slot()"},
    Trenner,
    {"104: Julia Z=Z*ZS +C Auge", "Gleichung104Slot()"},
    {"204: Julia Z=Z*ZS*Z +C", "Gleichung204Slot()"},
    {"304: Julia Z=ZS*Z*ZS +C", "Gleichung304Slot()"},
    {"404: Julia Z=(Z*ZS)^2 +C", "Gleichung404Slot()"},
    {"504: Z=(Z*ZS)^(K/2) +C, bei K gerade", "Gleichung504Slot()"},
    {"604: Z=(Z*ZS)^(K/2) *Z +C, bei K ungerade A", "Gleichung604Slot()"},
    {"704: Z=ZS*(Z*ZS)^(K/2) +C, bei K ungerade B", "Gleichung704Slot()"},
    Trenner,
};
inline constexpr Menuetafel G103{&UI::submenuG103, "&ab 103: Complex Z=(Z*ZS)^(K/2) +C Auge und Verwandte", G103Zeilen};

inline constexpr Menuezeile G105Zeilen[] = {
    {"105: Z=(Z+C)/(1+C*Z^3) Vierpol", "Gleichung105Slot()"},
    {"205: Z=(Z+C)/(1+C*Z^4) Fünfpol", "Gleichung205Slot()"},
    {"305: Z=(Z+C)/(1+C*Z^5) Sechspol", "Gleichung305Slot()"},
    {"405: Z=(Z+C)/(1+C*Z^6) Siebenpol", "Gleichung405Slot()"},
    {"505: Z=(Z+C)/(1+C*Z^K) =(K+1)Pol", "Gleichung505Slot()"},
    {"605: Z=(Z+C)/(1+C*Z^1) Zweipol", "Gleichung605Slot()"},
    {"705: Z=(Z+C)/(1+C*Z^2) Dreipol", "Gleichung705Slot()"},
    Trenner,
    {"106: Julia Z=(Z+C)/(1+C*Z^3) Vierpol", "Gleichung106Slot()"},
    {"206: Julia Z=(Z+C)/(1+C*Z^4) Fünfpol", "Gleichung206Slot()"},
    {"306: Julia Z=(Z+C)/(1+C*Z^5) Sechspol", "Gleichung306Slot()"},
    {"406: Julia Z=(Z+C)/(1+C*Z^6) Siebenpol", "Gleichung406Slot()"},
    {"506: Julia Z=(Z+C)/(1+C*Z^K) =(K+1)Pol", "Gleichung506Slot()"},
    {"606: Julia Z=(Z+C)/(1+C*Z^1) Zweipol", "Gleichung606Slot()"},
    {"706: Julia Z=(Z+C)/(1+C*Z^2) Dreipol", "Gleichung706Slot()"},
    Trenner,
};
inline constexpr Menuetafel G105{&UI::submenuG105, "&ab 105: Complex Z=(Z+C)/(1+C*Z^K) Vierpol und Verwandte", G105Zeilen};

inline constexpr Menuezeile G111Zeilen[] = {
    {"Z=x+iy, ZS=x-iy", "tu_nixSlot()"},
    {"111: Z=(Z+C)/(1+C*Z*ZS*Z) Vierpol-AugeA, wie K=3 A", "Gleichung111Slot()"},
    {"211: Z=(Z+C)/(1+C*ZS*Z*ZS) Vierpol-AugeB", "Gleichung211Slot()"},
    {"311: Z=(Z+C)/(1+C*(Z*ZS)^2) Fünfpol-Auge", "Gleichung311Slot()"},
    {"411: Z=(Z+C)/(1+C*(Z*ZS)^2 *Z) Sechspol-AugeA", "Gleichung411Slot()"},
    {"511: Z=(Z+C)/(1+C*(Z*ZS)^(K/2)) K gerade", "Gleichung511Slot()"},
    {"611: Z=(Z+C)/(1+C*(Z*ZS)^(K/2) *Z) K ungerade A", "Gleichung611Slot()"},
    {"711: Z=(Z+C)/(1+C*ZS*(Z*ZS)^(K/2)) K ungerade B", "Gleichung711Slot()"},
    {"811: Z=(Z+C)/(1+C*ZS) Zweipol-Auge", "Gleichung811Slot()"},
    {"911: Z=(Z+C)/(1+C*Z*ZS) Dreipol-Auge", "Gleichung911Slot()"},
    Trenner,
    {"112: Julia Z=(Z+C)/(1+C*Z*ZS*Z) Vierpol-AugeA", "Gleichung112Slot()"},
    {"212: Julia Z=(Z+C)/(1+C*ZS*Z*ZS) Vierpol-AugeB", "Gleichung212Slot()"},
    {"312: Julia Z=(Z+C)/(1+C*(Z*ZS)^2) Fünfpol-Auge", "Gleichung312Slot()"},
    {"412: Julia Z=(Z+C)/(1+C*(Z*ZS)^2 *Z) Sechspol-AugeA", "Gleichung412Slot()"},
    {"512: Julia Z=(Z+C)/(1+C*(Z*ZS)^(K/2)) K gerade", "Gleichung512Slot()"},
    {"612: Julia Z=(Z+C)/(1+C*(Z*ZS)^(K/2) *Z) K ungerade", "Gleichung612Slot()"},
    {"712: Julia Z=(Z+C)/(1+C*ZS*(Z*ZS)^(K/2)) K ungerade", "Gleichung712Slot()"},
    {"812: Julia Z=(Z+C)/(1+C*ZS) Zweipol-Auge", "Gleichung812Slot()"},
    {"912: Julia Z=(Z+C)/(1+C*Z*ZS) Dreipol-Auge", "Gleichung912Slot()"},
    Trenner,
};
inline constexpr Menuetafel G111{&UI::submenuG111, "&ab 111: Complex Z=(Z+C)/(1+C*(Z*ZS)^(K/2))", G111Zeilen};

inline constexpr Menuezeile G107Zeilen[] = {
    {"Z=x+iy, ZS=x-iy", "tu_nixSlot()"},
    {"107: Z=Z^ZS +C ", "Gleichung107Slot()"},
    {"207: Z=Z^Z +C ", "Gleichung207Slot()"},
    {"307: Z=Z^(-Z) +C ", "Gleichung307Slot()"},
    {"407: Z=Z^(1/Z) +C ", "Gleichung407Slot()"},
    {"507: Z=Z^(-ZS) +C ", "Gleichung507Slot()"},
    {"607: Z=Z^(1/ZS) +C ", "Gleichung607Slot()"},
    {"707: Z=ZS^Z +C ", "Gleichung707Slot()"},
    Trenner,
    {"108: Julia Z=Z^ZS +C", "Gleichung108Slot()"},
    {"208: Julia Z=Z^Z +C ", "Gleichung208Slot()"},
    {"308: Julia Z=Z^(-Z) +C ", "Gleichung308Slot()"},
    {"408: Julia Z=Z^(1/Z) +C ", "Gleichung408Slot()"},
    {"508: Julia Z=Z^(-ZS) +C", "Gleichung508Slot()"},
    {"608: Julia Z=Z^(1/ZS) +C", "Gleichung608Slot()"},
    {"708: Julia Z=ZS^Z +C ", "Gleichung708Slot()"},
    Trenner,
};
inline constexpr Menuetafel G107{&UI::submenuG107, "&ab 107: Complex Z=Z^ZS +C Spinne/Schädel und Verwandte ", G107Zeilen};

inline constexpr Menuezeile G109Zeilen[] = {
    {"kein Zwilling, anstatt C: P=koppX+i*koppY, Z=x+iy, ZS=x-iy,", "tu_nixSlot()"},
    {"109: Julia Z=Z-(Z^3-1)/(3*Z^2 *P) complex 3.Wurzel(1)", "Gleichung109Slot()"},
    {"209: Julia Z=Z-(Z^3-1)/(B33*Z^2 *P) complex 3.Wurzel(1),B33(3,3i)", "Gleichung209Slot()"},
    {"309: Julia Z=Z-(Z^5-1)/(5*Z^4 *P) complex 5.Wurzel(1)", "Gleichung309Slot()"},
    {"409: Julia Z=Z-(Z^5-1)/(B55*Z^4 *P) complex 5.Wurzel(1),B55(5,5i)", "Gleichung409Slot()"},
    {"509: Julia AugeA 3.Wurzel Z=Z-(Z^3 -1)/(3*Z*ZS *P) complex, ZS=x-iy", "Gleichung509Slot()"},
    {"609: Julia AugeB 3.Wurzel Z=Z-(Z*ZS*Z -1)/(3*Z*ZS *P) complex,ZS=x-iy", "Gleichung609Slot()"},
    {"709: Julia AugeC 3.Wurzel Z=Z-(Z*ZS*Z -1)/(3*Z^2 *P) complex,ZS=x-iy", "Gleichung709Slot()"},
    {"809: Julia AugeC K-Wurzel Z=Z-((Z*ZS)^(K/2) -1)/(3*Z^2 *P) complex,ZS=x-iy, K gerade", "Gleichung809Slot()"},
    {"909: Julia AugeC K-Wurzel Z=Z-(ZS*(Z*ZS)^(K/2) -1)/(3*Z^2 *P) complex,ZS=x-iy, K ungerade", "Gleichung909Slot()"},
    Trenner,
    {"kein Zwilling, anstatt 1: P=koppX+i*koppY,", "tu_nixSlot()"},
    {"110: Julia K-Wurzel(P), Z=Z-(Z^K -P)/(K*Z^(K-1) *C)", "Gleichung110Slot()"},
    {"210: Julia Z=Z-(Z^2 -P)/(2*Z *C),   2.Wurzel(P)", "Gleichung210Slot()"},
    {"310: Julia Z=Z-(Z^3 -P)/(3*Z^2 *C), 3.Wurzel(P)", "Gleichung310Slot()"},
    {"410: Julia Z=Z-(Z^4 -P)/(4*Z^3 *C), 4.Wurzel(P)", "Gleichung410Slot()"},
    {"510: Julia Z=Z-(Z^5 -P)/(5*Z^4 *C), 5.Wurzel(P)", "Gleichung510Slot()"},
    {"610: Julia Z=Z-(Z^6 -P)/(6*Z^5 *C), 6.Wurzel(P)", "Gleichung610Slot()"},
    {"710: Julia Z=Z-(Z^7 -P)/(7*Z^6 *C), 7.Wurzel(P)", "Gleichung710Slot()"},
    {"810: Julia Z=Z-(Z^8 -P)/(8*Z^7 *C), 8.Wurzel(P)", "Gleichung810Slot()"},
    {"910: Julia Z=Z-(Z^9 -P)/(9*Z^8 *C), 9.Wurzel(P)", "Gleichung910Slot()"},
    Trenner,
};
inline constexpr Menuetafel G109{&UI::submenuG109, "&ab 109: Complex Z=Z-(Z^3-1)/(3*Z^2) Newton 3.Wurzel(1) und Verwandte ", G109Zeilen};

inline constexpr Menuezeile GleichungZeilen[] = {
    {"Z=x+iy, ZS=x-iy", "tu_nixSlot()"},
    {"1: Mandelbrotmenge Z=Z*Z+C", "Gleichung1Slot()"},
    {"2: Juliamenge Z=Z*Z +C(const)", "Gleichung2Slot()"},
    {"3: Auge-Menge Z=Z*ZS+C", "Gleichung3Slot()"},
    {"4: Julia-Auge-Menge", "Gleichung4Slot()"},
    {"5: Vierpol Z=(Z+C)/(1+C*Z^3)", "Gleichung5Slot()"},
    {"6: Julia-Vierpol", "Gleichung6Slot()"},
    {"7: Z=Z^ZS +C /Spinne", "Gleichung7Slot()"},
    {"8: Z=Z^ZS -1 /Schädel", "Gleichung8Slot()"},
    {"9: Julia 3.Wurzel hyperkomplex", "Gleichung9Slot()"},
    {"10: Julia Wurzel-derzeit nicht intakt", "Gleichung10Slot()"},
    Trenner,
    unter(G101),
    Trenner,
    unter(G103),
    Trenner,
    unter(G105),
    Trenner,
    unter(G111),
    Trenner,
    unter(G107),
    Trenner,
    unter(G109),
    Trenner,
    {"Potenzzahl K=Zoom", "kPotenzGleichZoomSlot()"},
    {"Potenzzahl K=6", "kPotenz6Slot()"},
    {"Potenzzahl K=7", "kPotenz7Slot()"},
    {"Potenzzahl K=0", "kPotenz0Slot()"},
    {"Standard-Potenzzahl K=10", "kPotenz10Slot()"},
};
inline constexpr Menuetafel Gleichung{&UI::MenuGleichung, "Gleichung/Equation", GleichungZeilen};

inline constexpr Menuezeile AbbruchXYZeilen[] = {
    {"ArtAbbruch 0..9 (rq bei ZahlAbbr):", "tu_nixSlot()"},
    {"0: rq= sqrt(x*x + y*y)", "glg_Abbruch0Slot()"},
    {"1: rq= x*x + y*y ", "glg_Abbruch1Slot()"},
    {"2: rq= |x|+|y|", "glg_Abbruch2Slot()"},
    {"3: rq= x+y ", "glg_Abbruch3Slot()"},
    {"4: rq= delta/Genau *Skal.", "glg_Abbruch4Slot()"},
    {"5: rq= Zyklen *Skal.", "glg_Abbruch5Slot()"},
    Trenner,
    {"6: rq= x*x - y*y", "glg_Abbruch6Slot()"},
    {"7: rq= (x*x - y*y)^2", "glg_Abbruch7Slot()"},
    {"8: rq= (x*x - y*y)^3", "glg_Abbruch8Slot()"},
    {"9: rq= (x*x - y*y)^4", "glg_Abbruch9Slot()"},
    Trenner,
    {"für 4 u.5: ZahlAbbr *2", "wert_AbbruchMal2Slot()"},
    {"für 4 u.5: Standard-Genau=0.0001", "GenauigkeitStandardSlot()"},
    {"für 4 u.5: Genau *10", "GenauigkeitMal10Slot()"},
    {"für 4 u.5: Genau /100", "GenauigkeitDurch100Slot()"},
    {"für 4 u.5: Genau=Zoom", "GenauigkeitGleichZoomSlot()"},
    {"für 4 u.5: ZyklusZahl=Zoom", "ZykluszahlGleichZoomSlot()"},
    Trenner,
};
inline constexpr Menuetafel AbbruchXY{&UI::MenuAbbruchXY, "NrAbbruch/Limit", AbbruchXYZeilen};

inline constexpr Menuezeile ZwillingZeilen[] = {
    {"Alle Glg. Zwilling 1 EIN", "Zwilling1AnSlot()"},
    {"Alle Glg. Zwilling 2 EIN", "Zwilling2AnSlot()"},
    {"Alle Glg. Zwilling 3 EIN", "Zwilling3AnSlot()"},
    {"Alle Glg. Zwilling 4 EIN", "Zwilling4AnSlot()"},
    {"Alle Glg. Zwilling 5 EIN", "Zwilling5AnSlot()"},
    {"Alle Glg. Zwilling 6 EIN", "Zwilling6AnSlot()"},
    {"Ab Glg.101: Zwilling 7 EIN", "Zwilling7AnSlot()"},
    {"Ab Glg.101: Zwilling 8 EIN", "Zwilling8AnSlot()"},
    {"Ab Glg.101: Zwilling 9 EIN", "Zwilling9AnSlot()"},
    {"Ab Glg.101: Zwilling 10 EIN", "Zwilling10AnSlot()"},
    {"Ab Glg.101: Zwilling 11 EIN", "Zwilling11AnSlot()"},
    {"wenn Ein: ZwillingY=ZwillingX", "ZwillingYgleichXSlot()"},
    {"wenn Ein: ZwillingX,Y = Zoom", "ZwillingXYgleichZoomSlot()"},
    Trenner,
    {"Zwilling AUS", "ZwillingAusSlot()"},
    Trenner,
};
inline constexpr Menuetafel Zwilling{&UI::MenuZwilling, "Zwillinge/Twins", ZwillingZeilen};

inline constexpr Menuezeile FarbtabZeilen[] = {
    {"zurück zu Einzelbild: Mausklick auf Wahlbild", "tu_nixSlot()"},
    {"oder per Zahl: 1.Zeile 11 12 13 14 +Start!", "tu_nixSlot()"},
    {"oder per Zahl: 2.Zeile 21 22 23 24 usw.", "tu_nixSlot()"},
    Trenner,
    {"Matrix 4x4 EIN", "MatrixSlot()"},
    {"Nächste Matrix (wie Button)", "Next_MatrixSlot()"},
    {"Matrix vorher", "Vorher_MatrixSlot()"},
    {"Erste Matrix", "Erste_MatrixSlot()"},
    Trenner,
    {"Palette 1: (512) Spektral-Farben   cTab.= 0", "FarbtabelleWaveSlot()"},
    {"Palette 2: (582) 3 Haupt-Farben ab cTab.=12", "Farbtabelle3Slot()"},
    {"Palette 3: (582) 6 Haupt-Farben ab cTab.=24", "Farbtabelle6Slot()"},
    {"Palette 4: (256) weniger bunt   ab cTab.=36", "TabelleArraySlot()"},
    Trenner,
};
inline constexpr Menuetafel Farbtab{&UI::MenuFarbtab, "Farben/Colors", FarbtabZeilen};

inline constexpr Menuezeile LinienZeilen[] = {
    {"Mittelkreuz", "MittelkreuzOnSlot()"},
    {"Mittelkreuz AUS/OFF", "MittelkreuzOffSlot()"},
    Trenner,
    {"Nullkreuz", "NullkreuzOnSlot()"},
    {"Nullkreuz AUS/OFF", "NullkreuzOffSlot()"},
    Trenner,
    {"Raster/Grid um Null, Abstand Zoom", "GitterNullOnSlot()"},
    {"Raster/Grid um Mitte, Abstand Zoom", "GitterMitteOnSlot()"},
    {"Raster/Grid AUS/OFF", "GitterOffSlot()"},
    Trenner,
    {"Orbit EIN Weiss/White", "OrbitWeissSlot()"},
    {"Orbit EIN Schwarz/Black", "OrbitSchwarzSlot()"},
    {"Orbit EIN Grau/Grey", "OrbitGrauSlot()"},
    {"Orbit EIN Rot/Red", "OrbitRotSlot()"},
    {"Orbit EIN Bunt/Varied", "OrbitBuntSlot()"},
    Trenner,
    {"Linien dünn-dick/thin-thick", "OrbitDuennSlot()"},
    Trenner,
    {"maximal 120 Iterationen/Iterations", "OrbitMax120Slot()"},
    {"maximal 60 Iterationen/Iterations", "OrbitMax60Slot()"},
    {"maximal 30 Iterationen/Iterations", "OrbitMax30Slot()"},
    {"maximal 15 Iterationen/Iterations", "OrbitMax15Slot()"},
    {"maximal 5 Iterationen/Iterations", "OrbitMax5Slot()"},
    {"zurueck/back zu max.256 Iterat.", "OrbitMax256Slot()"},
    Trenner,
    {"maximale Orbit-Iterat. minus 1 ", "OrbitMaxMinus1Slot()"},
    Trenner,
    {"Alle Orbit anzeigen", "OrbitAlleSlot()"},
    {"Orbit-Speicher Löschen/Delete", "OrbitAlleDeleteSlot()"},
    {"nur Letztes/Last Orbit anzeigen", "OrbitLetzterSlot()"},
    Trenner,
    {"Orbit-Start vom Bild-Mittelpunkt", "OrbitMPSlot()"},
    {"Orbit-Start wieder mit Maus", "OrbitMausSlot()"},
    Trenner,
    {"Orbit erst ab Iterat.(= ZOOM) EIN", "OrbitAbIterAnSlot()"},
    {"Orbit erst ab Iterat. AUS/OFF ", "OrbitAbIterAusSlot()"},
    Trenner,
    {"Orbit Aktualisieren/ShowOrbit", "OrbitAktualierenSlot()"},
    {"Orbit AUS/STOP", "OrbitOffSlot()"},
    Trenner,
    {"Alle Linien AUS/OFF", "AlleGitterOffSlot()"},
};
inline constexpr Menuetafel Linien{&UI::MenuLinien, "Linien/Lines", LinienZeilen};

inline constexpr Hilfezeile Hilfeaktionen[] = {
    {&UI::aboutKomplexeZahlenAct, "&About Komplexe Zahlen", "aboutKomplexeZahlen()"},
    {&UI::aboutComplexNumbersAct, "&About Complex Numbers", "aboutComplexNumbers()"},
    {&UI::aboutFraktaleAct, "&About Fraktale allgemein", "aboutFraktale()"},
    {&UI::aboutFractalsAct, "&About Fractals general", "aboutFractals()"},
    {&UI::aboutSpezialFraktaleAct, "&About Fraktale speziell hier", "aboutSpezialFraktale()"},
    {&UI::aboutSpecialFractalsAct, "&About Fractals special here", "aboutSpecialFractals()"},
    {&UI::aboutGleichungenAct, "&About Gleichungen", "aboutGleichungen()"},
    {&UI::aboutEquationsAct, "&About Equations", "aboutEquations()"},
    {&UI::aboutBerechnungAct, "&About Berechnung", "aboutBerechnung()"},
    {&UI::aboutCalcAct, "&About Calculation", "aboutCalc()"},
    {&UI::aboutZwillingAct, "&About Zwilling", "aboutZwilling()"},
    {&UI::aboutTwinAct, "&About Twin", "aboutTwin()"},
    {&UI::aboutOrbitAct, "&About Orbit", "aboutOrbit()"},
    {&UI::aboutOrbitEnAct, "&About Orbit", "aboutOrbitEn()"},
    {&UI::aboutFarbTabAct, "&About colTab für Farben", "aboutFarbTab()"},
    {&UI::aboutColorTabAct, "&About ColorTab", "aboutColorTab()"},
    {&UI::aboutDivAct, "&About Divergentes", "aboutDiv()"},
    {&UI::aboutDivEnAct, "&About The Divergent", "aboutDivEn()"},
    {&UI::aboutKonvAct, "&About Konvergentes", "aboutKonv()"},
    {&UI::aboutKonvEnAct, "&About The Konvergent", "aboutKonvEn()"},
    {&UI::aboutAct, "&AboutAutor", "about()"},
    {&UI::aboutQtAct, "About &Qt", "aboutQt()"},
    {&UI::exitAct, "E&xit", "close()"},
};

inline constexpr Menuezeile Frakt01Zeilen[] = {
    hilfe(&UI::aboutKomplexeZahlenAct),
    hilfe(&UI::aboutFraktaleAct),
    hilfe(&UI::aboutSpezialFraktaleAct),
};
inline constexpr Menuetafel Frakt01{&UI::submenuFrakt01, "&Fraktale Allgemein+Speziell", Frakt01Zeilen};

inline constexpr Menuezeile Frakt02Zeilen[] = {
    hilfe(&UI::aboutGleichungenAct),
    hilfe(&UI::aboutBerechnungAct),
    hilfe(&UI::aboutZwillingAct),
    hilfe(&UI::aboutOrbitAct),
};
inline constexpr Menuetafel Frakt02{&UI::submenuFrakt02, "&Berechnungen und Hilfsmittel", Frakt02Zeilen};

inline constexpr Menuezeile Frakt03Zeilen[] = {
    hilfe(&UI::aboutFarbTabAct),
    hilfe(&UI::aboutDivAct),
    hilfe(&UI::aboutKonvAct),
};
inline constexpr Menuetafel Frakt03{&UI::submenuFrakt03, "&Farben", Frakt03Zeilen};

inline constexpr Menuezeile HilfeZeilen[] = {
    unter(Frakt01),
    unter(Frakt02),
    unter(Frakt03),
    Trenner,
    hilfe(&UI::aboutAct),
    hilfe(&UI::aboutQtAct),
    Trenner,
    hilfe(&UI::exitAct),
};
inline constexpr Menuetafel Hilfe{&UI::hilfeMenu, "&Hilfe", HilfeZeilen};

inline constexpr Menuezeile Frakt01EnZeilen[] = {
    hilfe(&UI::aboutComplexNumbersAct),
    hilfe(&UI::aboutFractalsAct),
    hilfe(&UI::aboutSpecialFractalsAct),
};
inline constexpr Menuetafel Frakt01En{&UI::submenuFrakt01En, "&Fractals General+Special", Frakt01EnZeilen};

inline constexpr Menuezeile Frakt02EnZeilen[] = {
    hilfe(&UI::aboutEquationsAct),
    hilfe(&UI::aboutCalcAct),
    hilfe(&UI::aboutTwinAct),
    hilfe(&UI::aboutOrbitEnAct),
};
inline constexpr Menuetafel Frakt02En{&UI::submenuFrakt02En, "&Calculations", Frakt02EnZeilen};

inline constexpr Menuezeile Frakt03EnZeilen[] = {
    hilfe(&UI::aboutColorTabAct),
    hilfe(&UI::aboutDivEnAct),
    hilfe(&UI::aboutKonvEnAct),
};
inline constexpr Menuetafel Frakt03En{&UI::submenuFrakt03En, "&Colors", Frakt03EnZeilen};

inline constexpr Menuezeile HelpZeilen[] = {
    unter(Frakt01En),
    unter(Frakt02En),
    unter(Frakt03En),
    Trenner,
    hilfe(&UI::aboutAct),
    hilfe(&UI::aboutQtAct),
    Trenner,
    hilfe(&UI::exitAct),
};
inline constexpr Menuetafel Help{&UI::helpMenu, "&Help", HelpZeilen};

// clang-format on

/// The menu bar from left to right.
inline constexpr std::array<const Menuetafel*, 10> Menueleiste{
    &Datei, &Groesse, &Zahlen, &Gleichung, &AbbruchXY, &Zwilling, &Farbtab, &Linien, &Hilfe, &Help};

} // namespace menuetafeln
