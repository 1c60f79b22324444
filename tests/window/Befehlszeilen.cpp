#include "Befehlszeilen.h"

#include <set>

namespace {

constexpr double Kleinste = -2147483648.0, Groesste = 2147483647.0;

/// A step with wrap-around to the other end.
double rundum(double wert, int schritt, int hoechster) {
    const double neu = wert + schritt;
    return neu > hoechster ? 0 : neu < 0 ? hoechster : neu;
}

} // namespace

Befehle::Befehle() {
    zahlen();
    breite();
    zwilling();
    farben();
    matrix();
    linien();
    orbit();
    orbitNurAn();
    gleichungen();
    abbruch();
    groesse();
    vorschau();
    verlauf();
}

void Befehle::neu(const QString& slot, const std::function<Ausgang(Stand&)>& wirkung) {
    zeilen.push_back({slot + "Slot", wirkung});
}

void Befehle::neu(const QString& slot, const Ausgang& ausgang, const Tun& tun) {
    neu(slot, [=](Stand& s) {
        tun(s);
        return ausgang;
    });
}

void Befehle::setze(const QString& slot, const Ausgang& ausgang, const Werte& werte) {
    neu(slot, ausgang, [=](Stand& s) { s.setze(werte); });
}

void Befehle::zahlen() {
    const auto mal = [this](const QString& slot, const QString& feld, double d, double request) {
        neu(slot, Bild, [=](Stand& s) {
            s[feld] *= d;
            s["g_RechnenJa"] = request;
            s.echo(feld);
        });
    };
    for (const auto& [name, d] :
         Werte{{"Mal2", 2}, {"Durch2", 0.5}, {"Mal10", 10}, {"Durch10", 0.1}}) {
        mal("wert_Abbruch" + name, "wert_Abbruch", d, 3);
        neu("Max_Iterationen" + name, Bild, [d = d](Stand& s) {
            s["Max_Iterationen"] = std::min(std::trunc(s["Max_Iterationen"] * d), Groesste);
            s["g_RechnenJa"] = 3;
            s.echo("Max_Iterationen");
        });
    }
    for (const auto& [name, d] : Werte{{"Mal2", 2}, {"Durch2", 0.5}}) {
        mal("itFactor" + name, "it_Factor", d, 0);
        mal("divFactor" + name, "div_Factor", d, 0);
        mal("konvFactor" + name, "konv_Factor", d, 0);
    }
    const auto plus = [this](const QString& feld, int hoechster, double request) {
        for (const int m : {1, -1}) {
            neu(feld + (m > 0 ? "Plus1" : "Minus1"), Bild, [=](Stand& s) {
                s[feld] = rundum(s[feld], m, hoechster);
                s["g_RechnenJa"] = request;
                s.echo(feld);
            });
        }
    };
    plus("glg_Abbruch", 9, 3);
    plus("rechen_VarianteDiv", 18, 0);
    plus("rechen_VarianteKonv", 12, 0);
    for (const auto& [name, d] :
         Werte{{"GleichEins", 1}, {"Gleich0k25", 0.25}, {"Gleich0k5", 0.5}}) {
        neu("Zoom" + name, Still, [d = d](Stand& s) {
            s["click2_Zoom"] = d;
            s.echo("click2_Zoom");
        });
    }
    for (const auto& [name, d] : Werte{{"Mal2", 2},
                                       {"Durch2", 0.5},
                                       {"Mal3", 3},
                                       {"Durch3", 0.3333333},
                                       {"Mal10", 10},
                                       {"Durch10", 0.1}}) {
        neu("Zoom" + name, Still, [d = d](Stand& s) {
            s["click2_Zoom"] *= d;
            s.echo("click2_Zoom");
        });
    }
}

void Befehle::breite() {
    for (const auto& [name, d] : Werte{{"Mal10", 10},
                                       {"Durch10", 0.1},
                                       {"Mal2", 2},
                                       {"Durch2", 0.5},
                                       {"Mal0k75", 0.75},
                                       {"Mal1k5", 1.5}}) {
        neu("Breite" + name, Bild, [d = d](Stand& s) { s.breite(s["Br_x"] * d); });
    }
    for (const bool mal : {true, false}) {
        neu(mal ? "BreiteMalZoom" : "BreiteDurchZoom", [=](Stand& s) {
            const double zoom = s["click2_Zoom"];
            if (zoom == 1.0) {
                s.echo("Br_x");
                return Ausgang{true, false, "Nachricht/Hinweis:|Achtung ZOOM = 1 "};
            }
            s.breite(mal ? s["Br_x"] * zoom : s["Br_x"] / zoom);
            return Bild;
        });
    }
    const auto mitteNull = [this](const QString& slot, const QStringList& felder) {
        neu(slot, Bild, [=](Stand& s) {
            for (const QString& feld : felder) {
                s[feld] = 0;
            }
            s["g_RechnenJa"] = 3;
            s.echo("MP_x");
            s.echo("MP_y");
        });
    };
    mitteNull("MP_xGleich0", {"MP_x"});
    mitteNull("MP_yGleich0", {"MP_y"});
    mitteNull("MP_xyGleich0", {"MP_x", "MP_y"});
}

void Befehle::zwilling() {
    const auto koppeln = [this](const QString& slot, const Tun& tun) {
        neu("Zwilling" + slot, Bild, [=](Stand& s) {
            tun(s);
            s["g_RechnenJa"] = 0;
            s.echo("Koppl_x");
            s.echo("Koppl_y");
        });
    };
    const auto malZoom = [](Stand& s, const QString& feld) {
        s[feld] = (s[feld] == 0 ? 1 : s[feld]) * s["click2_Zoom"];
    };
    koppeln("XMalZoom", [=](Stand& s) { malZoom(s, "Koppl_x"); });
    koppeln("YMalZoom", [=](Stand& s) { malZoom(s, "Koppl_y"); });
    koppeln("XYgleichZoom", [](Stand& s) { s["Koppl_x"] = s["Koppl_y"] = s["click2_Zoom"]; });
    koppeln("YgleichX", [](Stand& s) { s["Koppl_y"] = s["Koppl_x"]; });
    for (const auto& [name, d] : Werte{{"XYMal2", 2}, {"XYDurch2", 0.5}}) {
        koppeln(name, [d = d](Stand& s) {
            s["Koppl_x"] *= d;
            s["Koppl_y"] *= d;
        });
    }
    for (int n = 1; n <= 11; ++n) {
        neu(QString("Zwilling%1An").arg(n), BildTitel, [=](Stand& s) {
            s.entfalte();
            s["g_ZwillingJa"] = n;
            s["g_RechnenJa"] = 3;
            s.echoGleichung();
            s.entfalte();
            for (const QString feld : {"Koppl_x", "Koppl_y"}) {
                s[feld] = s[feld] == 0 ? s["click2_Zoom"] : s[feld];
                s.echo(feld);
            }
            s.label["11"] = QString("<b>Zwilling %1</b>").arg(n);
        });
    }
    neu("ZwillingAus", BildTitel, [](Stand& s) {
        s.entfalte();
        s["g_ZwillingJa"] = 0;
        s.echoGleichung();
        s.echo("Koppl_x");
        s.echo("Koppl_y");
        s.label["11"] = "<b>Zwilling Aus</b>";
    });
}

void Befehle::farben() {
    const auto offset = [this](const QString& slot, const std::function<double(Stand&)>& wert) {
        neu(slot, Bild, [=](Stand& s) {
            s["color_Offset"] = wert(s);
            s["g_RechnenJa"] = 0;
            s.echo("color_Offset");
            s.stelleSchieber();
        });
    };
    const auto plus = [](Stand& s, int d) {
        const double anzahl = s["g_Max_rgbFarben"], wert = s["color_Offset"] + d;
        return wert > anzahl ? wert - anzahl : wert < 0 ? wert + anzahl : wert;
    };
    offset("color_OffsetPlus", [=](Stand& s) { return plus(s, 25); });
    offset("color_OffsetMinus", [=](Stand& s) { return plus(s, -5); });
    offset("setupColShift", [](Stand& s) { return s.schieber; });
    neu("setColShiftSlider", Still, [](Stand& s) { s.stelleSchieber(); });

    const QStringList paletten{"FarbtabelleWave", "Farbtabelle3", "Farbtabelle6"};
    for (int n = 0; n < 3; ++n) {
        neu(paletten.at(n), BildTitel, [=](Stand& s) {
            s.farbtabelle(std::floor(s["zahl_farbtab"] / 12) == n ? s["zahl_farbtab"] : 12 * n);
            s["wahlPalette48"] = n > 0 ? n : s["wahlPalette48"];
            s["g_RechnenJa"] = 0;
            s.echos(ErsteFarbbox);
            s.stelleSchieber();
            s.zeigePalette();
        });
    }
    neu("TabelleArray", BildTitel, [](Stand& s) {
        s.farbtabelle(36);
        s.echos(ErsteFarbbox);
        s.stelleSchieber();
        s.zeigePalette();
    });
}

void Befehle::matrix() {
    const auto schritt = [](Stand& s, int m) {
        s.farbtabelle(rundum(s["zahl_farbtab"], m, 47));
        s["g_RechnenJa"] = 0;
    };
    neu("zahl_farbtabPlus1", Bild, [=](Stand& s) {
        schritt(s, 1);
        s.echo("zahl_farbtab");
        const QStringList texte{"Pal.1 bis 11", "Pal.2 ab 12", "Pal.3 ab 24", "Pal.4 ab 36"};
        s.label["Palette"] = texte.at(s.palette.toInt() - 1);
    });
    neu("zahl_farbtabMinus1", Bild, [=](Stand& s) {
        schritt(s, -1);
        s.echo("zahl_farbtab");
        s.zeigePalette();
    });
    const auto matrix = [this](const QString& slot, const Tun& tun) {
        neu(slot, Bild, [=](Stand& s) {
            s["g_halbesBild"] = std::min(s["g_halbesBild"], 1.0);
            tun(s);
            s.echo("zahl_Matrix");
            s.echo("zahl_farbtab");
            s.zeigePalette();
        });
    };
    matrix("Matrix", [](Stand& s) { s["zahl_Matrix"] = 1000; });
    matrix("Next_Matrix", [=](Stand& s) {
        if (s["zahl_Matrix"] == 1000) {
            schritt(s, 1);
        }
        s["zahl_Matrix"] = 1000;
    });
    matrix("Vorher_Matrix", [=](Stand& s) {
        if (s["zahl_Matrix"] == 1000) {
            schritt(s, -1);
        }
    });
    matrix("Erste_Matrix", [](Stand& s) {
        s["zahl_Matrix"] = 1000;
        s.farbtabelle(0);
    });
}

void Befehle::linien() {
    const auto linie = [this](const QString& slot, const QString& schalter, double wert,
                              double loeschen, double request) {
        setze(slot, BildTitel,
              {{schalter, wert}, {"g_linienLoeschenJa", loeschen}, {"g_RechnenJa", request}});
    };
    linie("MittelkreuzOn", "g_MittelkreuzJa", 1, 0, 1);
    linie("MittelkreuzOff", "g_MittelkreuzJa", 0, 1, 2);
    linie("NullkreuzOn", "g_NullkreuzJa", 1, 0, 1);
    linie("NullkreuzOff", "g_NullkreuzJa", 0, 2, 2);
    for (const auto& [slot, art] : Werte{{"GitterNullOn", 1}, {"GitterMitteOn", 2}}) {
        neu(slot, BildTitel, [art = art](Stand& s) {
            s.setze({{"g_GitterJa", art}, {"g_linienLoeschenJa", 0}, {"g_RechnenJa", 1}});
            s["g_Gitterabstand"] = s["click2_Zoom"];
        });
    }
    setze(
        "GitterOff", BildTitel,
        {{"g_linienLoeschenJa", 3}, {"g_GitterJa", 0}, {"g_Gitterabstand", 0}, {"g_RechnenJa", 2}});
    setze("AlleGitterOff", BildTitel,
          {{"g_linienLoeschenJa", 5},
           {"g_OrbitJa", 0},
           {"g_OrbitDuennJa", 0},
           {"g_GitterJa", 0},
           {"g_MittelkreuzJa", 0},
           {"g_NullkreuzJa", 0},
           {"g_Gitterabstand", 0},
           {"g_RechnenJa", 1},
           {"g_maxOrbitIterat", 256},
           {"g_OrbitMP", 0},
           {"g_OrbitAbIterAn", 0}});
}

void Befehle::orbit() {
    const QStringList farben{"Weiss", "Schwarz", "Grau", "Rot", "Bunt"};
    for (int n = 1; n <= 5; ++n) {
        neu("Orbit" + farben.at(n - 1), [=](Stand& s) {
            if (s["g_RechnenJa"] == 3 && (s["g_OrbitMP"] == 0 || n == 5)) {
                return Ausgang{false, false,
                               "Orbit-Modus nicht im Vorschaubild möglich!|"
                               "Vorher Viertelbild oder Vollbild wählen für Orbit-Modus."};
            }
            s["g_OrbitDuennJa"] = s["g_OrbitJa"] == 0 ? 1 : s["g_OrbitDuennJa"];
            s["g_OrbitJa"] = n;
            s.zeigeDuenn();
            return BildTitel;
        });
    }
    neu("OrbitMP", Titel, [](Stand& s) {
        if (s["g_OrbitJa"] == 0) {
            s.setze({{"g_OrbitJa", 1}, {"g_OrbitDuennJa", 1}});
        }
        s["g_OrbitMP"] = 1;
        s.beschrifte({{"22", "<b>MP-Orbit</b>"}, {"33", "<b>Mittelpunkt</b>"}});
    });
    neu("OrbitMaus", Titel, [](Stand& s) {
        s["g_OrbitMP"] = 0;
        s.beschrifte({{"22", "<b>Maus-Orbit</b>"}, {"33", "<b>mit Klick</b>"}});
    });
    neu("OrbitAbIterAn", Titel, [](Stand& s) {
        const double zoom = s["click2_Zoom"];
        s["g_OrbitAbIterAn"] =
            s["Max_Iterationen"] > zoom ? std::trunc(zoom) : s["g_OrbitAbIterAn"];
        s.beschrifte({{"Cx33", "<b>Orbit erst</b>"}, {"Cy33", "<b>abIter=Zoom</b>"}});
    });
    setze("OrbitAbIterAus", BildTitel, {{"g_OrbitAbIterAn", 0}});
    setze("OrbitAktualieren", BildTitel, {});
    neu("OrbitOff", [](Stand& s) {
        s.setze({{"g_OrbitJa", 0},
                 {"g_OrbitDuennJa", 0},
                 {"g_maxOrbitIterat", 256},
                 {"g_OrbitMP", 0},
                 {"g_OrbitAbIterAn", 0},
                 {"click2_Zoom", 0.5}});
        s.echo("click2_Zoom");
        s.beschrifte({{"Cx33", "<b>256 Iter.Max.</b>"},
                      {"Cy33", " "},
                      {"22", " "},
                      {"33", "<b>Orbit Aus</b>"}});
        return Ausgang{true, true,
                       "Orbit war an. Jetzt Aus.|Orbit wurde abgeschaltet.<br>"
                       "Parameter Zoom wurde von 1,0 auf 0,5 gesetzt"};
    });
}

/// The commands that act only while an orbit is on: otherwise even the title stays.
void Befehle::orbitNurAn() {
    const auto beiOrbit = [this](const QString& slot, const Tun& tun) {
        neu(slot, [=](Stand& s) {
            if (s["g_OrbitJa"] == 0) {
                return Still;
            }
            tun(s);
            return Titel;
        });
    };
    for (const int n : {256, 120, 60, 30, 15, 5}) {
        beiOrbit(QString("OrbitMax%1").arg(n), [=](Stand& s) {
            s["g_maxOrbitIterat"] = n;
            s.label["Cx33"] = QString("<b>%1 Iter.Max.</b>").arg(n);
        });
    }
    beiOrbit("OrbitMaxMinus1", [](Stand& s) {
        s["g_maxOrbitIterat"] = std::max(s["g_maxOrbitIterat"] - 1, Kleinste);
        s.label["Cy33"] = "<b>IterMax -1</b>";
    });
    const auto tausche = [=](const QString& slot, const std::map<double, double>& paare,
                             const QString& label22) {
        beiOrbit(slot, [=](Stand& s) {
            const auto paar = paare.find(s["g_OrbitDuennJa"]);
            s["g_OrbitDuennJa"] = paar != paare.end() ? paar->second : s["g_OrbitDuennJa"];
            s.label["22"] = label22.isEmpty() ? s.label["22"] : label22;
            s.zeigeDuenn();
        });
    };
    tausche("OrbitDuenn", {{0, 1}, {1, 0}, {20, 21}, {21, 20}}, "");
    tausche("OrbitAlle", {{1, 21}, {0, 20}}, "<b>Alle Orbit</b>");
    tausche("OrbitLetzter", {{21, 1}, {20, 0}}, " ");
    tausche("OrbitAlleDelete", {{20, 200}, {0, 201}, {1, 201}, {21, 201}}, "");
}

void Befehle::gleichungen() {
    const std::set<int> mitPruefung{2, 4, 6, 102, 104, 106}, ohneSetzen{304, 504};
    const auto gleichung = [=, this](int nummer) {
        neu(QString("Gleichung%1").arg(nummer), [=](Stand& s) {
            if (mitPruefung.contains(nummer) && s.box["CJ_x"] == 0 && s.box["CJ_y"] == 0) {
                const QString text = "In Gleichung %1 wird eine Juliamenge berechnet|"
                                     "Bitte vorher ein C wählen mit Doppelklick im großen Bild, "
                                     "oder bei %2 Zahlen eintragen.";
                return Ausgang{false, false,
                               text.arg(nummer).arg(nummer == 6 ? "C-Julia" : "Cx,Cy")};
            }
            s["wahl_Gleichung"] = nummer;
            s["g_RechnenJa"] = 3;
            s.echoGleichung();
            if (!ohneSetzen.contains(nummer)) {
                s.entfalte();
            }
            return BildTitel;
        });
    };
    for (int n = 1; n <= 10; ++n) {
        gleichung(n);
    }
    constexpr std::array<int, 12> JeFamilie{5, 5, 7, 7, 7, 7, 7, 7, 9, 9, 9, 9};
    for (int familie = 1; familie <= 12; ++familie) {
        for (int n = 1; n <= JeFamilie.at(static_cast<std::size_t>(familie - 1)); ++n) {
            gleichung(100 * n + familie);
        }
    }
    for (const int k : {0, 6, 7, 10}) {
        setze(QString("kPotenz%1").arg(k), Titel, {{"g_kPotenz", k}});
    }
    const auto gleichZoom = [this](const QString& slot, const QString& feld) {
        neu(slot, Titel, [=](Stand& s) {
            s[feld] = std::trunc(s["click2_Zoom"]);
            s["g_RechnenJa"] = 0;
        });
    };
    gleichZoom("kPotenzGleichZoom", "g_kPotenz");
    gleichZoom("ZykluszahlGleichZoom", "g_zycmax");
    setze("tu_nix", Still, {});
}

void Befehle::abbruch() {
    for (int n = 0; n <= 9; ++n) {
        neu(QString("glg_Abbruch%1").arg(n), BildTitel, [=](Stand& s) {
            s.setze({{"glg_Abbruch", n}, {"g_RechnenJa", 3}});
            s.echo("glg_Abbruch");
        });
    }
    const auto genau = [this](const QString& name, const std::function<double(Stand&)>& wert) {
        neu("Genauigkeit" + name, BildTitel, [=](Stand& s) {
            s["g_Genauigkeit"] = wert(s);
            s["g_RechnenJa"] = 3;
        });
    };
    genau("Standard", [](Stand&) { return 0.0001; });
    genau("Mal10", [](Stand& s) { return s["g_Genauigkeit"] * 10; });
    genau("Durch100", [](Stand& s) { return s["g_Genauigkeit"] / 100; });
    genau("GleichZoom", [](Stand& s) { return s["click2_Zoom"]; });
}

void Befehle::groesse() {
    const auto startpixelMal = [](Stand& s, double faktor) {
        for (const QString feld : {"OPx", "OPy"}) {
            s[feld] = std::clamp(std::trunc(s[feld] * faktor), Kleinste, Groesste);
        }
    };
    for (int n = 1; n <= 4; ++n) {
        neu(QString("PixelXYDurch2Pos%1").arg(n), BildTitel, [=](Stand& s) {
            if (n == 1 && s["g_halbesBild"] == 0) {
                startpixelMal(s, 0.5);
            }
            s.setze({{"g_halbesBild", n}, {"g_RechnenJa", n == 1 ? 2 : 1}});
            s.echos(0);
        });
    }
    neu("GanzesBild", BildTitel, [=](Stand& s) {
        if (s["g_halbesBild"] == 1) {
            startpixelMal(s, 2);
        }
        s.setze({{"g_halbesBild", 0}, {"g_RechnenJa", 1}});
    });
    setze("OberesHalbbildEin", BildTitel, {{"g_oberesHalbbild", 1}, {"g_RechnenJa", 2}});
    setze("UnteresHalbbildEin", BildTitel, {{"g_oberesHalbbild", 2}, {"g_RechnenJa", 2}});
    setze("OuU_HalbbildAus", BildTitel, {{"g_oberesHalbbild", 0}, {"g_RechnenJa", 3}});
    setze("BildSchwarz", BildTitel, {{"g_BildLoeschen", 1}, {"g_RechnenJa", 1}});
    setze("BildWeiss", BildTitel, {{"g_BildLoeschen", 2}, {"g_RechnenJa", 1}});
    neu("NeuRechnenJa", BildTitel, [](Stand& s) {
        s.setze({{"g_SummeGross", 0},
                 {"g_SummeViertel", 0},
                 {"g_BildLoeschen", 0},
                 {"g_UnDo", 0},
                 {"g_RechnenJa", 2}});
        s.zeigeUndStarte();
    });
}

void Befehle::vorschau() {
    for (const auto& [name, bild] : Werte{{"Pos1", 11},
                                          {"Pos2", 12},
                                          {"Pos3", 13},
                                          {"Pos4", 14},
                                          {"Vollbild", 10},
                                          {"Vollbild1", 100},
                                          {"Vollbild3", 300},
                                          {"Vollbild4", 400}}) {
        setze("Vorschau" + name, BildTitel, {{"g_halbesBild", bild}, {"g_RechnenJa", 3}});
    }
    setze("VorschauAus", Titel, {{"g_VorschauAusJa", 1}});
    setze("VorschauAn", Titel, {{"g_VorschauAusJa", 0}});
    neu("VorschauUebernehmen", Titel, [](Stand& s) {
        s["g_PixConstX"] = s["g_PixVorschauX"];
        s["g_PixConstY"] = s["g_PixVorschauY"];
    });
    const auto pixel = [this](int k, const QString& text, const Tun& tun) {
        neu(QString("VorschauXYPixelNeu%1").arg(k), Still, [=](Stand& s) {
            tun(s);
            s["g_RechnenJa"] = 0;
            s.beschrifte({{"22", "Preview"}, {"33", "<b>" + text + "</b>"}});
        });
    };
    const auto fest = [=](int k, const QString& text, double x, double y) {
        pixel(k, text, [=](Stand& s) { s.setze({{"g_PixVorschauX", x}, {"g_PixVorschauY", y}}); });
    };
    fest(0, "100 Pixel", 100, 0);
    pixel(1, "New Size", [](Stand& s) { s["g_PixVorschauX"] = std::trunc(s["click2_Zoom"]); });
    pixel(2, "New Size", [](Stand& s) { s["g_PixVorschauY"] = std::trunc(s["click2_Zoom"]); });
    fest(3, "160x90", 160, 90);
    fest(4, "320x180", 320, 180);
    fest(5, "640x360", 640, 360);
}

/// Undo and redo without a stored picture.
void Befehle::verlauf() {
    const auto zurueck = [](Stand& s, double zustand, const QString& text) {
        s["g_UnDo"] = zustand;
        s.zeigeUndStarte();
        return Ausgang{true, true, "Nachricht/Hinweis|" + text};
    };
    const QString keinVorletztes = "Bisher kein vorletztes Bild gespeichert";
    neu("UnDo1DatenTeilbildLaden", [=](Stand& s) { return zurueck(s, 1, keinVorletztes); });
    neu("UnDo2DatenTeilbildLaden", [=](Stand& s) {
        if (s["g_UnDo"] != 1) {
            return Ausgang{false, false, "Achtung! |Bitte erst genau 1 Mal Undo 1 einschalten."};
        }
        return zurueck(s, 0, keinVorletztes);
    });
    neu("WiederholenDatenTeilbildLaden",
        [=](Stand& s) { return zurueck(s, 0, "Bisher gar kein Bild gespeichert"); });
}
