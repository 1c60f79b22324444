#pragma once

#include "Felder.h"
#include "Testbasis.h"
#include "UI_Hauptfenster.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <variant>
#include <vector>

// A record of what a command can change in model and window, read from a live window, changed by
// an expectation and compared.

using Box =
    std::variant<UI_QDoubleSpinBox * UI::*, UI_QDoubleSpinBoxK * UI::*, UI_QSpinBox * UI::*>;

/// The boxes of the panel by the field that they show; the colour boxes come last.
inline const std::vector<std::pair<QString, Box>> Boxen{
    {"MP_x", &UI::UI_MPx},
    {"MP_y", &UI::UI_MPy},
    {"Br_x", &UI::UI_Brx},
    {"click2_Zoom", &UI::UI_click2Zoom},
    {"Koppl_x", &UI::UI_Kopplx},
    {"Koppl_y", &UI::UI_Kopply},
    {"wert_Abbruch", &UI::UI_wertAbbruch},
    {"Max_Iterationen", &UI::UI_Iterationen},
    {"CJ_x", &UI::UI_CJx},
    {"CJ_y", &UI::UI_CJy},
    {"wahl_Gleichung", &UI::UI_wahlGleichung},
    {"glg_Abbruch", &UI::UI_glgAbbruch},
    {"div_Factor", &UI::UI_divFactor},
    {"konv_Factor", &UI::UI_konvFactor},
    {"it_Factor", &UI::UI_itFactor},
    {"rechen_VarianteDiv", &UI::UI_rechenVarianteDiv},
    {"rechen_VarianteKonv", &UI::UI_rechenVarianteKonv},
    {"color_Offset", &UI::UI_colorOffset},
    {"zahl_farbtab", &UI::UI_zahlfarbtab},
    {"zahl_Matrix", &UI::UI_zahlMatrix}};
inline constexpr std::size_t ErsteFarbbox = 12;

inline const std::map<QString, QLabel * UI::*> Labels{
    {"Palette", &UI::infoLabelPalette}, {"Cx33", &UI::infoLabelCx33}, {"Cy33", &UI::infoLabelCy33},
    {"11", &UI::infoLabel11},           {"22", &UI::infoLabel22},     {"33", &UI::infoLabel33},
};

/// The record, and the steps of which the expectations are made.
struct Stand {
    std::map<QString, double> feld, box;
    std::map<QString, QString> label;
    QString palette, titel;
    double schieber = 0;

    double& operator[](const QString& name) { return feld.at(name); }

    void setze(const std::map<QString, double>& werte) {
        for (const auto& [name, wert] : werte) {
            feld.at(name) = wert;
        }
    }
    void beschrifte(const std::map<QString, QString>& texte) {
        for (const auto& [name, text] : texte) {
            label.at(name) = text;
        }
    }
    void echo(const QString& name) { box[name] = std::clamp(feld.at(name), -9e7, 9e7); }
    /// The equation's box folds number and twin into one; the model keeps the folded number.
    void echoGleichung() {
        double& nummer = feld["wahl_Gleichung"];
        if (feld["g_ZwillingJa"] > 0 && nummer < 10000) {
            nummer = nummer * 10000 + feld["g_ZwillingJa"];
        }
        echo("wahl_Gleichung");
    }
    void entfalte() {
        double& nummer = feld["wahl_Gleichung"];
        if (nummer > 9999) {
            feld["g_ZwillingJa"] = std::fmod(nummer, 10000);
            nummer = std::floor(nummer / 10000);
        }
    }
    void echos(std::size_t ab) {
        for (std::size_t i = ab; i < Boxen.size(); ++i) {
            Boxen[i].first == "wahl_Gleichung" ? echoGleichung() : echo(Boxen[i].first);
        }
    }
    void stelleSchieber() { schieber = std::clamp(box["color_Offset"], 0.0, 512.0); }
    /// All values to the panel and back, as "Start!" does it.
    void zeigeUndStarte() {
        echos(0);
        if (feld["g_halbesBild"] > 4 && feld["g_RechnenJa"] != 2) {
            feld["g_halbesBild"] = std::fmod(feld["g_halbesBild"], 10);
            feld["g_RechnenJa"] = 1;
        }
        for (const auto& [name, wert] : box) {
            feld[name] = wert;
        }
        feld["Br_y"] = feld["Br_x"] * Verhaeltnis;
        entfalte();
        stelleSchieber();
    }
    void breite(double wert) {
        const double hoehe = Verhaeltnis * wert;
        feld["Br_x"] = wert;
        feld["Br_y"] = hoehe;
        feld["R_Min"] = feld["MP_x"] - wert / 2;
        feld["R_Max"] = feld["MP_x"] + wert / 2;
        feld["I_Min"] = feld["MP_y"] - hoehe / 2;
        feld["I_Max"] = feld["MP_y"] + hoehe / 2;
        feld["g_RechnenJa"] = 3;
        echo("Br_x");
    }
    void farbtabelle(double nummer) {
        feld["zahl_farbtab"] = nummer;
        palette = QString::number(std::floor(nummer / 12) + 1);
    }
    void zeigePalette() { label["Palette"] = "<b>Palette " + palette + "</b>"; }
    void zeigeDuenn() {
        const double art = feld["g_OrbitDuennJa"];
        if (art == 0 || art == 20) {
            label["33"] = "<b>Orbit dick</b>";
        } else if (art == 1 || art == 21) {
            label["33"] = "<b>Orbit dünn</b>";
        }
    }

    static constexpr double Verhaeltnis = 0.875; ///< of every record in these tests
};

inline Stand lies(const UI& ui) {
    Stand stand;
    for (const auto& [name, zeiger] : Felder) {
        stand.feld[name] = feldwert(*ui.Menge, zeiger);
    }
    for (const auto& [name, zeiger] : Boxen) {
        stand.box[name] =
            std::visit([&](auto z) { return static_cast<double>((ui.*z)->value()); }, zeiger);
    }
    for (const auto& [name, zeiger] : Labels) {
        stand.label[name] = (ui.*zeiger)->text();
    }
    stand.palette = ui.Menge->g_PalettenZahl;
    stand.titel = ui.windowTitle();
    stand.schieber = ui.colShift_Slider->value();
    return stand;
}

inline void stelle(UI& ui, const Stand& stand) {
    for (const auto& [name, zeiger] : Felder) {
        setzeFeld(*ui.Menge, zeiger, stand.feld.at(name));
    }
    for (const auto& [name, zeiger] : Boxen) {
        const double wert = stand.box.at(name);
        const auto zeige = [&](auto z) {
            (ui.*z)->setValue(static_cast<decltype((ui.*z)->value())>(wert));
        };
        std::visit(zeige, zeiger);
    }
    for (const auto& [name, zeiger] : Labels) {
        (ui.*zeiger)->setText(stand.label.at(name));
    }
    ui.Menge->g_Bildverhaeltnis = Stand::Verhaeltnis;
    ui.Menge->g_PalettenZahl = stand.palette;
    ui.setWindowTitle(stand.titel);
    const QSignalBlocker stumm(ui.colShift_Slider);
    ui.colShift_Slider->setValue(static_cast<int>(stand.schieber));
}

/// What differs, empty when nothing does. Titles are not compared.
inline QString unterschied(const Stand& ist, const Stand& soll) {
    QStringList zeilen;
    const auto zahl = [&](const QString& name, double a, double b) {
        if (std::abs(a - b) > 1e-12 * std::max(1.0, std::abs(b))) {
            zeilen
                << QString("%1: %2 instead of %3").arg(name).arg(a, 0, 'g', 17).arg(b, 0, 'g', 17);
        }
    };
    const auto text = [&](const QString& name, const QString& a, const QString& b) {
        if (a != b) {
            zeilen << QString("%1: '%2' instead of '%3'").arg(name, a, b);
        }
    };
    for (const auto& [name, wert] : ist.feld) {
        zahl(name, wert, soll.feld.at(name));
    }
    for (const auto& [name, wert] : ist.box) {
        zahl("box " + name, wert, soll.box.at(name));
    }
    for (const auto& [name, wert] : ist.label) {
        text("label " + name, wert, soll.label.at(name));
    }
    zahl("slider", ist.schieber, soll.schieber);
    text("g_PalettenZahl", ist.palette, soll.palette);
    return zeilen.join("; ");
}
