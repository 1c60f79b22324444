#include "window/Parameter.h"
#include "window/Zahleneingabe.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>

#include <algorithm>
#include <numeric>
#include <variant>

namespace {

// --- What the cells of the panel hold ----------------------------------------------------------

struct Wertfeld {
    const Parameter* wert;
};
struct Beschriftung {
    const char* text;
};
struct Knopf {
    QPushButton* UI::*ziel;
    const char* text;
    const char* slot;
    const char* stil = "";
    int spalten = 1;
};
struct Anzeige {
    QLabel* UI::*ziel;
};
struct Schieber {
    int spalten;
};
struct Fueller {
    int spalten;
};
using Zelle =
    std::variant<std::monostate, Wertfeld, Beschriftung, Knopf, Anzeige, Schieber, Fueller>;

constexpr int Spalten = 3;
constexpr int ZeilenOben = 10; ///< rows of the grey panel; the others follow in the lower one
using Zeile = std::array<Zelle, Spalten>;

constexpr Zelle Leer{};
constexpr Zelle wert(const Parameter* parameter) { return Wertfeld{parameter}; }
constexpr Zelle text(const char* inhalt) { return Beschriftung{inhalt}; }
constexpr Zelle anzeige(QLabel* UI::*ziel) { return Anzeige{ziel}; }
constexpr Zelle knopf(QPushButton* UI::*ziel, const char* inhalt, const char* slot) {
    return Knopf{ziel, inhalt, slot};
}

/// The panel, row by row as the user sees it. German and English captions stand mixed, and the
/// offset steps by +25 and -5: both meant.
constexpr std::array<Zeile, 24> Steuerfeld{{
    {wert(Werte::Gleichung), text("Gleichung Nr"), text("Equation No")},
    {wert(Werte::MPx), text("Mittelpkt. X"),
     knopf(&UI::UI_MPxGleich0, "CenterX =0", "MP_xGleich0Slot()")},
    {wert(Werte::MPy), text("Mittelpkt. Y"),
     knopf(&UI::UI_MPyGleich0, "CenterY =0", "MP_yGleich0Slot()")},
    {wert(Werte::Brx), knopf(&UI::UI_BrxMal2, "BreiteX *2", "BreiteMal2Slot()"),
     knopf(&UI::UI_BrxDurch2, "widthX /2", "BreiteDurch2Slot()")},
    {wert(Werte::Iterationen), knopf(&UI::UI_ItMal2, "maxIter*2", "Max_IterationenMal2Slot()"),
     knopf(&UI::UI_ItDurch2, "maxIter/2", "Max_IterationenDurch2Slot()")},
    {wert(Werte::glgAbbruch), knopf(&UI::UI_AbbruchP1, "NrAbbr +1", "glg_AbbruchPlus1Slot()"),
     knopf(&UI::UI_AbbruchM1, "VariLimit-1", "glg_AbbruchMinus1Slot()")},
    {wert(Werte::wertAbbruch), knopf(&UI::UI_AbbruchMal2, "ZahlAbbr*2", "wert_AbbruchMal2Slot()"),
     knopf(&UI::UI_AbbruchDurch2, "ValueLimit/2", "wert_AbbruchDurch2Slot()")},
    {wert(Werte::click2Zoom), knopf(&UI::UI_ZoomMal2, "Zoom *2", "ZoomMal2Slot()"),
     knopf(&UI::UI_ZoomDurch2, "Zoom /2", "ZoomDurch2Slot()")},
    {wert(Werte::Kopplx), knopf(&UI::UI_KopplxMalZoom, "koppX*Zoom", "ZwillingXMalZoomSlot()"),
     knopf(&UI::UI_KopplxyMal2, "koppX,Y*2", "ZwillingXYMal2Slot()")},
    {wert(Werte::Kopply), knopf(&UI::UI_KopplyMalZoom, "koppY*Zoom", "ZwillingYMalZoomSlot()"),
     knopf(&UI::UI_KopplxyDurch2, "koppX,Y/2", "ZwillingXYDurch2Slot()")},
    {wert(Werte::itFactor), knopf(&UI::UI_itFactorMal2, "Fakt.Iter. *2", "itFactorMal2Slot()"),
     knopf(&UI::UI_itFactorDurch2, "Fact.Iter. /2", "itFactorDurch2Slot()")},
    {wert(Werte::divFactor), knopf(&UI::UI_divFactorMal2, "FaktDiv *2", "divFactorMal2Slot()"),
     knopf(&UI::UI_divFactorDurch2, "FacDiv /2", "divFactorDurch2Slot()")},
    {wert(Werte::VarianteDiv),
     knopf(&UI::UI_varDivP1, "varDiv +1", "rechen_VarianteDivPlus1Slot()"),
     knopf(&UI::UI_varDivM1, "varDiv -1", "rechen_VarianteDivMinus1Slot()")},
    {wert(Werte::konvFactor), knopf(&UI::UI_konvFactorMal2, "FacKonv *2", "konvFactorMal2Slot()"),
     knopf(&UI::UI_konvFactorDurch2, "FacKonv /2", "konvFactorDurch2Slot()")},
    {wert(Werte::VarianteKonv),
     knopf(&UI::UI_varKonP1, "varKonv +1", "rechen_VarianteKonvPlus1Slot()"),
     knopf(&UI::UI_varKonM1, "varKonv -1", "rechen_VarianteKonvMinus1Slot()")},
    {wert(Werte::colorOffset), knopf(&UI::UI_colOffsetP, "cOffset +25", "color_OffsetPlusSlot()"),
     knopf(&UI::UI_colOffsetM, "colOffs -5", "color_OffsetMinusSlot()")},
    {Schieber{3}, Leer, Leer},
    {wert(Werte::zahlfarbtab), knopf(&UI::UI_cTabP1, "cTab +1", "zahl_farbtabPlus1Slot()"),
     knopf(&UI::UI_cTabM1, "cTab -1", "zahl_farbtabMinus1Slot()")},
    {wert(Werte::zahlMatrix), knopf(&UI::UI_Matrix, "cTab/Matrix +1", "Next_MatrixSlot()"),
     anzeige(&UI::infoLabelPalette)},
    {Knopf{&UI::UI_Start, "Start!", "NeueBerechnungSlot()", "background-color:green; color:white;",
           2},
     Leer,
     Knopf{&UI::UI_Vorschau, "Vorschau", "VorschauSlot()", "background-color:blue; color:white;"}},
    {wert(Werte::CJx), text("C-Julia X"), anzeige(&UI::infoLabelCx33)},
    {wert(Werte::CJy), text("C-Julia Y"), anzeige(&UI::infoLabelCy33)},
    {anzeige(&UI::infoLabel11), anzeige(&UI::infoLabel22), anzeige(&UI::infoLabel33)},
    {Fueller{2}, Leer, Leer},
}};

// --- Sizes, pixels -----------------------------------------------------------------------------

constexpr int RandAussen = 4;
constexpr int AbstandFelder = 6; ///< between picture and panels
constexpr int RandFeld = 2;
constexpr int AbstandSpalten = 2;
constexpr int AbstandZeilen = 3;
constexpr int RandAufschrift = 2; ///< left and right of a caption
constexpr int KleinsteSchrift = 8;
constexpr int SchmaleSpalte = 60; ///< below it the arrows of a spin box leave no room for digits
/// Shares of the panel's width. The columns follow them alone, never the texts in them; as pixels
/// they are the columns of the start size.
constexpr std::array<int, Spalten> Anteile{71, 87, 80};

int spaltenbreite(int feldbreite, std::size_t spalte) {
    const int summe = std::accumulate(Anteile.begin(), Anteile.end(), 0);
    const int platz = feldbreite - 2 * RandFeld - (Spalten - 1) * AbstandSpalten;
    return platz * Anteile.at(spalte) / summe;
}

const char* aufschrift(const Zelle& zelle) {
    if (const auto* beschriftung = std::get_if<Beschriftung>(&zelle)) {
        return beschriftung->text;
    }
    const auto* taste = std::get_if<Knopf>(&zelle);
    return taste != nullptr ? taste->text : "";
}

bool passt(const QFont& schrift, const char* inhalt, int breite) {
    return QFontMetrics(schrift).horizontalAdvance(UI::tr(inhalt)) <= breite - 2 * RandAufschrift;
}

/// The largest font, up to the given one, in which all captions of the panel fit their columns.
QFont passendeSchrift(QFont schrift, int feldbreite) {
    const auto alleAufschriften = [&] {
        return std::ranges::all_of(Steuerfeld, [&](const Zeile& zeile) {
            for (std::size_t s = 0; s < zeile.size(); ++s) {
                if (!passt(schrift, aufschrift(zeile[s]), spaltenbreite(feldbreite, s))) {
                    return false;
                }
            }
            return true;
        });
    };
    int pixel = QFontInfo(schrift).pixelSize();
    do {
        schrift.setPixelSize(pixel);
    } while (--pixel >= KleinsteSchrift && !alleAufschriften());
    return schrift;
}

// --- Building ----------------------------------------------------------------------------------

/// Builds one cell, connects it and puts it into the grid.
struct Zellenbauer {
    UI& ui;
    QGridLayout& gitter;
    const QFont& schrift;
    int breite; ///< of the column
    int zeile;
    int spalte;

    void setzen(QWidget* teil, int spalten = 1) const {
        teil->setFont(schrift); // not inherited in a panel with a style sheet
        teil->setSizePolicy(QSizePolicy::Ignored, teil->sizePolicy().verticalPolicy());
        if (zeile < ZeilenOben) {
            // The upper panel stays light grey on a dark desktop too.
            QPalette farben = teil->palette();
            for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
                farben.setColor(rolle, Qt::black);
            }
            teil->setPalette(farben);
        }
        gitter.addWidget(teil, zeile, spalte, 1, spalten);
    }

    void operator()(std::monostate /*leer*/) const {}

    void operator()(const Wertfeld& feld) const {
        QAbstractSpinBox* box = feld.wert->bauen(ui);
        if (breite < SchmaleSpalte) {
            box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        }
        zahleneingabeEinrichten(box);
        setzen(box);
    }

    void operator()(const Beschriftung& beschriftung) const {
        auto* neu = new QLabel(UI::tr(beschriftung.text));
        neu->setIndent(RandAufschrift);
        setzen(neu);
    }

    void operator()(const Knopf& taste) const {
        auto* neu = new QPushButton(UI::tr(taste.text));
        ui.*taste.ziel = neu;
        neu->setStyleSheet(taste.stil);
        if (!passt(schrift, taste.text, breite)) {
            neu->setToolTip(neu->text());
        }
        setzen(neu, taste.spalten);
        const QByteArray slot = QByteArray::number(QSLOT_CODE) + taste.slot;
        QObject::connect(neu, SIGNAL(clicked()), &ui, slot.constData());
    }

    void operator()(const Anzeige& feld) const {
        ui.*feld.ziel = new QLabel;
        setzen(ui.*feld.ziel);
        // Neither the width nor the height of a later text moves anything.
        (ui.*feld.ziel)->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        QFont kleiner = schrift; // the texts to come are bold
        kleiner.setPixelSize(std::max(KleinsteSchrift, schrift.pixelSize() - 1));
        (ui.*feld.ziel)->setFont(kleiner);
        gitter.setRowMinimumHeight(zeile, QFontMetrics(schrift).height() + 2 * RandAufschrift);
    }

    void operator()(const Schieber& feld) const {
        auto* neu = new QSlider(Qt::Horizontal);
        ui.colShift_Slider = neu;
        neu->setRange(0, 512);
        neu->setValue(0);
        neu->setTickPosition(QSlider::TicksBelow);
        setzen(neu, feld.spalten);
        QObject::connect(neu, &QSlider::valueChanged, &ui, &UI::setupColShiftSlot);
    }

    void operator()(const Fueller& feld) const {
        setzen(new QFrame, feld.spalten);
        gitter.setRowStretch(zeile, 1);
    }
};

/// A grid for one of the two panels, with the columns in their shares.
QGridLayout* feldgitter(QWidget* feld, int breite) {
    feld->setFixedWidth(breite);
    auto* gitter = new QGridLayout;
    gitter->setContentsMargins(RandFeld, RandFeld, RandFeld, RandFeld);
    gitter->setHorizontalSpacing(AbstandSpalten);
    gitter->setVerticalSpacing(AbstandZeilen);
    for (int s = 0; s < Spalten; ++s) {
        gitter->setColumnStretch(s, Anteile.at(static_cast<std::size_t>(s)));
    }
    feld->setLayout(gitter);
    return gitter;
}

} // namespace

void UI::AufbauLayout() {
    Layout = new QWidget(this);
    Layout->setGeometry(0, 0, width(), height());
    // The window may become smaller than the panel would like to be.
    Layout->setMinimumSize(1, 1);
    setCentralWidget(Layout); // deletes the previous one with its model
    auto* nebeneinander = new QHBoxLayout(Layout);
    nebeneinander->setContentsMargins(RandAussen, RandAussen, RandAussen, RandAussen);
    nebeneinander->setSpacing(AbstandFelder);
    auto* bildspalte = new QVBoxLayout;
    auto* feldspalte = new QVBoxLayout;
    feldspalte->setSpacing(AbstandZeilen);

    Menge = new Mandelbrot;
    Menge->installEventFilter(this);
    bildspalte->addWidget(Menge, 0);
    connect(Menge, SIGNAL(WerteAktualisierenSignal()), this, SLOT(WerteAktualisierenSlot()));
    connect(Menge, SIGNAL(NeueBerechnungSignal()), this, SLOT(NeueBerechnungSlot()));
    // Queued, so that its message never opens inside the paint event that sends it.
    connect(Menge, SIGNAL(OrbitOffSignal()), this, SLOT(OrbitOffSlot()), Qt::QueuedConnection);

    KonfigC = new QWidget;
    KonfigC->setStyleSheet("background-color:#dddddd; ");
    Konfig = new QWidget;
    const int breite = width() / 4;
    const QFont schrift = passendeSchrift(font(), breite);
    QGridLayout* oben = feldgitter(KonfigC, breite);
    QGridLayout* unten = feldgitter(Konfig, breite);
    feldspalte->addWidget(KonfigC, 0);
    feldspalte->addWidget(Konfig, 1);
    nebeneinander->addLayout(bildspalte);
    nebeneinander->addLayout(feldspalte);

    for (int zeile = 0; const Zeile& inhalt : Steuerfeld) {
        QGridLayout& gitter = zeile < ZeilenOben ? *oben : *unten;
        for (int spalte = 0; const Zelle& zelle : inhalt) {
            const int platz = spaltenbreite(breite, static_cast<std::size_t>(spalte));
            std::visit(Zellenbauer{*this, gitter, schrift, platz, zeile, spalte}, zelle);
            ++spalte;
        }
        ++zeile;
    }
    // The layout stays on the central widget: Qt refuses this with a warning, which is meant.
    setLayout(nebeneinander);
}
