#include "Stand.h"

#include "Felder.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>
#include <variant>

namespace {

template <auto Zeiger>
QWidget* boxAus(const UI& ui) {
    return ui.*Zeiger;
}

} // namespace

// clang-format off
const std::map<QString, QWidget* (*)(const UI&)> Boxen{
    {"rechen_VarianteKonv", boxAus<&UI::UI_rechenVarianteKonv>}, {"MP_x", boxAus<&UI::UI_MPx>},
    {"rechen_VarianteDiv", boxAus<&UI::UI_rechenVarianteDiv>}, {"Koppl_x", boxAus<&UI::UI_Kopplx>},
    {"wahl_Gleichung", boxAus<&UI::UI_wahlGleichung>}, {"click2_Zoom", boxAus<&UI::UI_click2Zoom>},
    {"Max_Iterationen", boxAus<&UI::UI_Iterationen>}, {"wert_Abbruch", boxAus<&UI::UI_wertAbbruch>},
    {"color_Offset", boxAus<&UI::UI_colorOffset>}, {"zahl_farbtab", boxAus<&UI::UI_zahlfarbtab>},
    {"glg_Abbruch", boxAus<&UI::UI_glgAbbruch>}, {"konv_Factor", boxAus<&UI::UI_konvFactor>},
    {"zahl_Matrix", boxAus<&UI::UI_zahlMatrix>}, {"div_Factor", boxAus<&UI::UI_divFactor>},
    {"it_Factor", boxAus<&UI::UI_itFactor>}, {"Koppl_y", boxAus<&UI::UI_Kopply>},
    {"MP_y", boxAus<&UI::UI_MPy>}, {"Br_x", boxAus<&UI::UI_Brx>}, {"CJ_x", boxAus<&UI::UI_CJx>},
    {"CJ_y", boxAus<&UI::UI_CJy>}};
const std::map<QString, QLabel* UI::*> Labels{
    {"Palette", &UI::infoLabelPalette}, {"Cx33", &UI::infoLabelCx33}, {"Cy33", &UI::infoLabelCy33},
    {"11", &UI::infoLabel11}, {"22", &UI::infoLabel22}, {"33", &UI::infoLabel33}};
// clang-format on

namespace {

QRegularExpressionMatch passt(const char* muster, const QString& text) {
    return QRegularExpression(QRegularExpression::anchoredPattern(muster)).match(text);
}

bool gleich(double a, double b) { return std::abs(a - b) <= 1e-12 * std::max(1.0, std::abs(b)); }
bool gleich(const QString& a, const QString& b) { return a == b; }

} // namespace

void Stand::tue(const QString& schritte) {
    for (const QString& text : schritte.split("; ", Qt::SkipEmptyParts)) {
        if (!schritt(text)) {
            return;
        }
    }
}

bool Stand::schritt(QString text) {
    const qsizetype frage = text.lastIndexOf('?');
    const bool gilt = frage < 0 || erfuellt(text.mid(frage + 1));
    if (frage == 0 || !gilt) {
        ende = gilt || frage > 0 ? ende : "-";
        return gilt || frage > 0;
    }
    text.truncate(frage > 0 ? frage - 1 : text.size());
    const auto teile = passt(R"((\[?\w+\]?)([-=+*/])(.+))", text);
    const auto schrift = passt(R"re((\w+) "(.*)")re", text);
    if (text.startsWith('!') || text.startsWith('&')) {
        meldung = text.mid(1);
        ende = text.startsWith('!') ? "-" : ende;
        return text.startsWith('&');
    }
    if (text.startsWith('>')) {
        for (const QString& name : text.mid(1).split(' ')) {
            box.at(name) = std::clamp(feld.at(name), -9e7, 9e7);
        }
    } else if (schrift.hasMatch()) {
        label.at(schrift.captured(1)) = schrift.captured(2);
    } else if (teile.hasMatch()) {
        rechne(teile.captured(1), teile.captured(2).at(0).toLatin1(), wert(teile.captured(3)));
    } else if (text == "falte" || text == "entfalte") {
        falte(text == "falte");
    } else {
        tue(woerter.at(text));
    }
    return true;
}

double Stand::wert(const QString& text) const {
    bool zahl = false;
    const double ergebnis = text.toDouble(&zahl);
    return zahl ? ergebnis : text.startsWith('[') ? box.at(text.mid(1).chopped(1)) : feld.at(text);
}

bool Stand::erfuellt(const QString& bedingung) const {
    const auto eine = [this](const QString& text) {
        const auto teile = passt("(.+?)(==|!=|<|>)(.+)", text);
        const double a = wert(teile.captured(1)), b = wert(teile.captured(3));
        const QString art = teile.captured(2);
        return art == "<" ? a < b : art == ">" ? a > b : (a == b) == (art == "==");
    };
    return std::ranges::any_of(bedingung.split('|'), [&](const QString& alle) {
        return std::ranges::all_of(alle.split('&'), eine);
    });
}

void Stand::rechne(const QString& name, char art, double zahl) {
    const double alt = wert(name);
    double neu = art == '='   ? zahl
                 : art == '+' ? alt + zahl
                 : art == '-' ? alt - zahl
                 : art == '*' ? alt * zahl
                              : alt / zahl;
    if (name.startsWith('[')) {
        box.at(name.mid(1).chopped(1)) = neu;
        return;
    }
    const auto zeiger = Felder.find(name);
    if (zeiger != Felder.end() && std::holds_alternative<qint32 Mandelbrot::*>(zeiger->second)) {
        using Grenzen = std::numeric_limits<qint32>;
        neu = std::clamp<double>(std::trunc(neu), Grenzen::min(), Grenzen::max());
    }
    feld.at(name) = neu;
}

void Stand::falte(bool hinein) {
    double &nummer = feld["wahl_Gleichung"], &zwilling = feld["g_ZwillingJa"];
    if (hinein && zwilling > 0 && nummer < 10000) {
        nummer = nummer * 10000 + zwilling;
    } else if (!hinein && nummer > 9999) {
        zwilling = std::fmod(nummer, 10000);
        nummer = std::floor(nummer / 10000);
    }
}

Stand lies(const UI& ui) {
    Stand stand;
    for (const auto& [name, zeiger] : Felder) {
        stand.feld[name] =
            std::visit([&](auto z) { return static_cast<double>(ui.Menge->*z); }, zeiger);
    }
    stand.feld["Schieber"] = ui.colShift_Slider->value();
    stand.feld["g_PalettenZahl"] = ui.Menge->g_PalettenZahl.toDouble();
    for (const auto& [name, zeiger] : Boxen) {
        stand.box[name] = zeiger(ui)->property("value").toDouble();
    }
    for (const auto& [name, zeiger] : Labels) {
        stand.label[name] = (ui.*zeiger)->text();
    }
    return stand;
}

void stelle(UI& ui, const Stand& stand) {
    for (const auto& [name, zeiger] : Felder) {
        const auto setze = [&, wert = stand.feld.at(name)](auto z) {
            auto& ziel = ui.Menge->*z;
            ziel = static_cast<std::remove_reference_t<decltype(ziel)>>(wert);
        };
        std::visit(setze, zeiger);
    }
    for (const auto& [name, zeiger] : Boxen) {
        zeiger(ui)->setProperty("value", stand.box.at(name));
    }
    for (const auto& [name, zeiger] : Labels) {
        (ui.*zeiger)->setText(stand.label.at(name));
    }
    ui.Menge->g_Bildverhaeltnis = Stand::Verhaeltnis;
    ui.Menge->g_PalettenZahl = QString::number(stand.feld.at("g_PalettenZahl"));
    const QSignalBlocker stumm(ui.colShift_Slider);
    ui.colShift_Slider->setValue(static_cast<int>(stand.feld.at("Schieber")));
}

QString unterschied(const Stand& ist, const Stand& soll) {
    QStringList zeilen;
    const auto vergleiche = [&](const char* art, const auto& werte, const auto& erwartet) {
        for (const auto& [name, wert] : werte) {
            const auto& anders = erwartet.at(name);
            if (!gleich(wert, anders)) {
                zeilen << QString("%1 %2: %3 instead of %4").arg(art, name).arg(wert).arg(anders);
            }
        }
    };
    vergleiche("field", ist.feld, soll.feld);
    vergleiche("box", ist.box, soll.box);
    vergleiche("label", ist.label, soll.label);
    return zeilen.join("; ");
}

QStringList zeilenAus(const char* datei) {
    QFile quelle(QFINDTESTDATA(datei));
    if (!quelle.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qFatal("no %s", datei);
    }
    QStringList zeilen = QString::fromUtf8(quelle.readAll()).split('\n');
    zeilen.removeIf([](const QString& zeile) { return zeile.isEmpty() || zeile.startsWith('#'); });
    return zeilen;
}
