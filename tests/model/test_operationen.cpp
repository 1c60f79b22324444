#include "equations/Gleichungen.h"
#include "Mandelbrot.h"
#include "Meldung.h"
#include "Testbasis.h"

#include <memory>
#include <variant>
#include <vector>

namespace {

using M = Mandelbrot;
using Feld = std::variant<double M::*, qint32 M::*>;

/// A field and the value that it has.
struct Stand {
    Feld feld;
    double wert;
};

double lies(const M& m, Feld feld) {
    return std::visit([&m](auto zeiger) { return static_cast<double>(m.*zeiger); }, feld);
}

void setze(M& m, Feld feld, double wert) {
    std::visit(
        [&m, wert](auto zeiger) {
            using Typ = std::remove_reference_t<decltype(m.*zeiger)>;
            m.*zeiger = static_cast<Typ>(wert);
        },
        feld);
}

bool gleich(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

/// Every field that an operation could change by mistake.
const std::vector<Feld> Felder{
    &M::click2_Zoom,
    &M::it_Factor,
    &M::div_Factor,
    &M::konv_Factor,
    &M::zahl_Matrix,
    &M::rechen_VarianteDiv,
    &M::rechen_VarianteKonv,
    &M::zahl_farbtab,
    &M::Br_x,
    &M::Br_y,
    &M::MP_x,
    &M::MP_y,
    &M::R_Min,
    &M::I_Min,
    &M::R_Max,
    &M::I_Max,
    &M::g_Genauigkeit,
    &M::g_kPotenz,
    &M::g_zycmax,
    &M::wahl_Gleichung,
    &M::g_ZwillingJa,
    &M::g_OrbitAbIterAn,
    &M::g_PixVorschauX,
    &M::g_PixVorschauY,
    &M::g_PixConstX,
    &M::g_PixConstY,
    &M::Max_Iterationen,
    &M::glg_Abbruch,
    &M::wert_Abbruch,
    &M::Koppl_x,
    &M::Koppl_y,
    &M::g_Gitterabstand,
    &M::g_GitterJa,
    &M::color_Offset,
    &M::g_Bildverhaeltnis,
    &M::CJ_x,
    &M::CJ_y,
    &M::g_halbesBild,
    &M::g_Max_glg_Abbruch,
    &M::g_Max_rgbFarben,
};

constexpr qint32 Unberuehrt = 2; ///< request before each operation; none of them leaves a 2

struct Fall {
    const char* name;
    std::vector<Stand> vorher;
    void (*schritt)(M& m);
    std::vector<Stand> nachher; ///< all other fields keep their value
    qint32 anforderung;
};

constexpr double Groesste = 2147483647.0;
constexpr double Kleinste = -2147483648.0;
constexpr double Unendlich = std::numeric_limits<double>::infinity();
constexpr double KeineZahl = std::numeric_limits<double>::quiet_NaN();

// clang-format off
const std::vector<Fall> Faelle{
    {"ZoomGleich", {}, [](M& m) { m.ZoomGleich(2.5); }, {{&M::click2_Zoom, 2.5}}, Unberuehrt},
    {"ZoomMalD", {{&M::click2_Zoom, 0.5}},
        [](M& m) { m.ZoomMalD(-3.0); }, {{&M::click2_Zoom, -1.5}}, Unberuehrt},

    {"itFactorMalD", {{&M::it_Factor, 3.0}}, [](M& m) { m.itFactorMalD(2.0); }, {{&M::it_Factor, 6.0}}, 0},
    {"divFactorMalD", {{&M::div_Factor, 3.0}},
        [](M& m) { m.divFactorMalD(0.0); }, {{&M::div_Factor, 0.0}}, 0},
    {"konvFactorMalD", {{&M::konv_Factor, 3.0}},
        [](M& m) { m.konvFactorMalD(0.5); }, {{&M::konv_Factor, 1.5}}, 0},
    {"VarianteDiv within", {{&M::rechen_VarianteDiv, 17}},
        [](M& m) { m.rechen_VarianteDivPlusM(1); }, {{&M::rechen_VarianteDiv, 18}}, 0},
    {"VarianteDiv above", {{&M::rechen_VarianteDiv, 18}},
        [](M& m) { m.rechen_VarianteDivPlusM(1); }, {{&M::rechen_VarianteDiv, 0}}, 0},
    {"VarianteDiv above, no remainder", {{&M::rechen_VarianteDiv, 16}},
        [](M& m) { m.rechen_VarianteDivPlusM(5); }, {{&M::rechen_VarianteDiv, 0}}, 0},
    {"VarianteDiv below", {{&M::rechen_VarianteDiv, 0}},
        [](M& m) { m.rechen_VarianteDivPlusM(-1); }, {{&M::rechen_VarianteDiv, 18}}, 0},
    {"VarianteDiv beyond 32 bits", {{&M::rechen_VarianteDiv, Groesste}},
        [](M& m) { m.rechen_VarianteDivPlusM(2147483647); }, {{&M::rechen_VarianteDiv, 0}}, 0},
    {"VarianteKonv above", {{&M::rechen_VarianteKonv, 12}},
        [](M& m) { m.rechen_VarianteKonvPlusM(1); }, {{&M::rechen_VarianteKonv, 0}}, 0},
    {"VarianteKonv below", {{&M::rechen_VarianteKonv, 0}},
        [](M& m) { m.rechen_VarianteKonvPlusM(-1); }, {{&M::rechen_VarianteKonv, 12}}, 0},
    {"VarianteKonv from far above", {{&M::rechen_VarianteKonv, 44}},
        [](M& m) { m.rechen_VarianteKonvPlusM(-1); }, {{&M::rechen_VarianteKonv, 0}}, 0},

    {"MatrixOn", {{&M::zahl_Matrix, 33}}, [](M& m) { m.MatrixOn(); }, {{&M::zahl_Matrix, 1000}}, Unberuehrt},
    {"Next_Matrix switches on only", {{&M::zahl_Matrix, 999}},
        [](M& m) { m.Next_Matrix(); }, {{&M::zahl_Matrix, 1000}}, Unberuehrt},
    {"Next_Matrix steps the colour table", {{&M::zahl_Matrix, 1000}, {&M::zahl_farbtab, 12}}, [](M& m) { m.Next_Matrix(); },
        {{&M::zahl_farbtab, 13}}, 0},
    {"Next_Matrix above", {{&M::zahl_Matrix, 1001}}, [](M& m) { m.Next_Matrix(); }, {}, Unberuehrt},
    {"Vorher_Matrix steps the colour table", {{&M::zahl_Matrix, 1000}, {&M::zahl_farbtab, 0}}, [](M& m) { m.Vorher_Matrix(); },
        {{&M::zahl_farbtab, 47}}, 0},
    {"Vorher_Matrix off", {{&M::zahl_Matrix, 11}}, [](M& m) { m.Vorher_Matrix(); }, {}, Unberuehrt},
    {"Erste_Matrix", {{&M::zahl_Matrix, 11}, {&M::zahl_farbtab, 30}},
        [](M& m) { m.Erste_Matrix(); }, {{&M::zahl_Matrix, 1000}, {&M::zahl_farbtab, 0}}, Unberuehrt},

    {"BildbreiteNeueEckpunkte", {{&M::MP_x, 1}, {&M::MP_y, 2}, {&M::Br_x, 4}, {&M::Br_y, 3}},
        [](M& m) { m.BildbreiteNeueEckpunkte(); },
        {{&M::R_Min, -1}, {&M::I_Min, 0.5}, {&M::R_Max, 3}, {&M::I_Max, 3.5}}, Unberuehrt},
    {"set_Br_x", {{&M::g_Bildverhaeltnis, 0.5}},
        [](M& m) { m.set_Br_x(7.0); }, {{&M::Br_x, 7}, {&M::Br_y, 3.5}}, Unberuehrt},
    {"BildbreiteMalD", {{&M::g_Bildverhaeltnis, 0.5}, {&M::MP_x, 1}, {&M::MP_y, 2}, {&M::Br_x, 3}},
        [](M& m) { m.BildbreiteMalD(2.0); },
        {{&M::Br_x, 6}, {&M::Br_y, 3}, {&M::R_Min, -2}, {&M::I_Min, 0.5}, {&M::R_Max, 4}, {&M::I_Max, 3.5}}, 3},
    {"BildbreiteMalZoom", {{&M::g_Bildverhaeltnis, 0.5}, {&M::MP_x, 1}, {&M::MP_y, 2}, {&M::Br_x, 3}, {&M::click2_Zoom, 2}},
        [](M& m) { m.BildbreiteMalZoom(); },
        {{&M::Br_x, 6}, {&M::Br_y, 3}, {&M::R_Min, -2}, {&M::I_Min, 0.5}, {&M::R_Max, 4}, {&M::I_Max, 3.5}}, 3},
    {"BildbreiteDurchZoom", {{&M::g_Bildverhaeltnis, 0.5}, {&M::MP_x, 1}, {&M::MP_y, 2}, {&M::Br_x, 3}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.BildbreiteDurchZoom(); },
        {{&M::Br_x, 6}, {&M::Br_y, 3}, {&M::R_Min, -2}, {&M::I_Min, 0.5}, {&M::R_Max, 4}, {&M::I_Max, 3.5}}, 3},
    {"BildbreiteDurchZoom, zero", {{&M::g_Bildverhaeltnis, 0.5}, {&M::Br_x, 3}, {&M::click2_Zoom, 0}},
        [](M& m) { m.BildbreiteDurchZoom(); },
        {{&M::Br_x, Unendlich}, {&M::Br_y, Unendlich}, {&M::R_Min, -Unendlich}, {&M::I_Min, -Unendlich}, {&M::R_Max, Unendlich}, {&M::I_Max, Unendlich}}, 3},
    {"MP_xyGleich0, x", {{&M::MP_x, 1}, {&M::MP_y, 2}}, [](M& m) { m.MP_xyGleich0(1); }, {{&M::MP_x, 0}}, 3},
    {"MP_xyGleich0, y", {{&M::MP_x, 1}, {&M::MP_y, 2}}, [](M& m) { m.MP_xyGleich0(2); }, {{&M::MP_y, 0}}, 3},
    {"MP_xyGleich0, both", {{&M::MP_x, 1}, {&M::MP_y, 2}},
        [](M& m) { m.MP_xyGleich0(3); }, {{&M::MP_x, 0}, {&M::MP_y, 0}}, 3},
    {"MP_xyGleich0, neither", {{&M::MP_x, 1}, {&M::MP_y, 2}}, [](M& m) { m.MP_xyGleich0(0); }, {}, 3},

    {"GenauigkeitGleichZoom", {{&M::click2_Zoom, -0.25}},
        [](M& m) { m.GenauigkeitGleichZoom(); }, {{&M::g_Genauigkeit, -0.25}}, 0},
    {"kPotenzGleichZoom", {{&M::click2_Zoom, -2.9}},
        [](M& m) { m.kPotenzGleichZoom(); }, {{&M::g_kPotenz, -2}}, 0},
    {"kPotenzGleichZoom, not a number", {{&M::click2_Zoom, KeineZahl}},
        [](M& m) { m.kPotenzGleichZoom(); }, {{&M::g_kPotenz, 0}}, 0},
    {"kPotenzGleichZoom, huge", {{&M::click2_Zoom, 1e300}},
        [](M& m) { m.kPotenzGleichZoom(); }, {{&M::g_kPotenz, Groesste}}, 0},
    {"ZykluszahlGleichZoom", {{&M::click2_Zoom, 9.9}},
        [](M& m) { m.ZykluszahlGleichZoom(); }, {{&M::g_zycmax, 9}}, 0},
    {"ZykluszahlGleichZoom, too many", {{&M::click2_Zoom, 25}},
        [](M& m) { m.ZykluszahlGleichZoom(); }, {{&M::g_zycmax, 24}}, 0},
    {"ZykluszahlGleichZoom, infinite", {{&M::click2_Zoom, Unendlich}},
        [](M& m) { m.ZykluszahlGleichZoom(); }, {{&M::g_zycmax, 24}}, 0},
    {"wahl_GleichungNew", {}, [](M& m) { m.wahl_GleichungNew(205); }, {{&M::wahl_Gleichung, 205}}, 3},
    {"OrbitAbIterAn below the limit", {{&M::Max_Iterationen, 256}, {&M::click2_Zoom, 255.9}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {{&M::g_OrbitAbIterAn, 255}}, Unberuehrt},
    {"OrbitAbIterAn at the limit", {{&M::Max_Iterationen, 256}, {&M::click2_Zoom, 256}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {}, Unberuehrt},
    {"OrbitAbIterAn, not a number", {{&M::click2_Zoom, KeineZahl}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {}, Unberuehrt},
    {"OrbitAbIterAn, minus infinity", {{&M::click2_Zoom, -Unendlich}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {{&M::g_OrbitAbIterAn, Kleinste}}, Unberuehrt},

    {"Vorschau default", {{&M::g_PixVorschauX, 7}, {&M::g_PixVorschauY, 8}},
        [](M& m) { m.VorschauXYPixelNeu(0); }, {{&M::g_PixVorschauX, 100}, {&M::g_PixVorschauY, 0}}, 0},
    {"Vorschau width", {{&M::click2_Zoom, 250.7}},
        [](M& m) { m.VorschauXYPixelNeu(1); }, {{&M::g_PixVorschauX, 250}}, 0},
    {"Vorschau height", {{&M::click2_Zoom, 250.7}},
        [](M& m) { m.VorschauXYPixelNeu(2); }, {{&M::g_PixVorschauY, 250}}, 0},
    {"Vorschau 160 x 90", {},
        [](M& m) { m.VorschauXYPixelNeu(3); }, {{&M::g_PixVorschauX, 160}, {&M::g_PixVorschauY, 90}}, 0},
    {"Vorschau 320 x 180", {},
        [](M& m) { m.VorschauXYPixelNeu(4); }, {{&M::g_PixVorschauX, 320}, {&M::g_PixVorschauY, 180}}, 0},
    {"Vorschau 640 x 360", {},
        [](M& m) { m.VorschauXYPixelNeu(5); }, {{&M::g_PixVorschauX, 640}, {&M::g_PixVorschauY, 360}}, 0},
    {"Vorschau above the formats", {}, [](M& m) { m.VorschauXYPixelNeu(6); }, {}, 0},
    {"Vorschau below the formats", {}, [](M& m) { m.VorschauXYPixelNeu(-1); }, {}, 0},

    {"Max_IterationenMalD", {{&M::Max_Iterationen, 257}},
        [](M& m) { m.Max_IterationenMalD(0.5); }, {{&M::Max_Iterationen, 128}}, 3},
    {"Max_IterationenMalD, too many", {{&M::Max_Iterationen, Groesste}},
        [](M& m) { m.Max_IterationenMalD(10.0); }, {{&M::Max_Iterationen, Groesste}}, 3},
    {"Max_IterationenMalD, too few", {{&M::Max_Iterationen, Kleinste}},
        [](M& m) { m.Max_IterationenMalD(2.0); }, {{&M::Max_Iterationen, Kleinste}}, 3},
    {"Max_IterationenMalD, not a number", {{&M::Max_Iterationen, 0}},
        [](M& m) { m.Max_IterationenMalD(Unendlich); }, {{&M::Max_Iterationen, 0}}, 3},
    {"glg_Abbruch within", {{&M::glg_Abbruch, 3}},
        [](M& m) { m.glg_AbbruchPlusM(-1); }, {{&M::glg_Abbruch, 2}}, 3},
    {"glg_Abbruch above", {{&M::glg_Abbruch, 9}},
        [](M& m) { m.glg_AbbruchPlusM(1); }, {{&M::glg_Abbruch, 0}}, 3},
    {"glg_Abbruch below", {{&M::glg_Abbruch, 0}, {&M::g_Max_glg_Abbruch, 5}},
        [](M& m) { m.glg_AbbruchPlusM(-1); }, {{&M::glg_Abbruch, 5}}, 3},
    {"glg_Abbruch beyond 32 bits", {{&M::glg_Abbruch, Kleinste}},
        [](M& m) { m.glg_AbbruchPlusM(-1); }, {{&M::glg_Abbruch, 9}}, 3},
    {"glg_AbbruchNew", {}, [](M& m) { m.glg_AbbruchNew(7); }, {{&M::glg_Abbruch, 7}}, 3},
    {"wert_AbbruchMalD", {{&M::wert_Abbruch, 8}},
        [](M& m) { m.wert_AbbruchMalD(-0.5); }, {{&M::wert_Abbruch, -4}}, 3},

    {"ZwillingAn x", {{&M::Koppl_x, 0}, {&M::Koppl_y, 0.3}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.ZwillingAn(); }, {{&M::Koppl_x, 0.5}}, 3},
    {"ZwillingAn y", {{&M::Koppl_x, 0.3}, {&M::Koppl_y, -0.0}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.ZwillingAn(); }, {{&M::Koppl_y, 0.5}}, 3},
    {"Koppl_xMalZoom from 0", {{&M::Koppl_x, 0}, {&M::click2_Zoom, 2.5}},
        [](M& m) { m.Koppl_xMalZoom(); }, {{&M::Koppl_x, 2.5}}, 0},
    {"Koppl_xMalZoom", {{&M::Koppl_x, 0.25}, {&M::click2_Zoom, -2}},
        [](M& m) { m.Koppl_xMalZoom(); }, {{&M::Koppl_x, -0.5}}, 0},
    {"Koppl_xMalZoom, zoom 0", {{&M::Koppl_x, 0}, {&M::click2_Zoom, 0}},
        [](M& m) { m.Koppl_xMalZoom(); }, {}, 0},
    {"Koppl_yMalZoom from 0", {{&M::Koppl_y, 0}, {&M::click2_Zoom, 2.5}},
        [](M& m) { m.Koppl_yMalZoom(); }, {{&M::Koppl_y, 2.5}}, 0},
    {"Koppl_yMalZoom, not a number", {{&M::Koppl_y, 0.25}, {&M::click2_Zoom, KeineZahl}},
        [](M& m) { m.Koppl_yMalZoom(); }, {}, 0},
    {"Koppl_xyGleichZoom", {{&M::click2_Zoom, -2}},
        [](M& m) { m.Koppl_xyGleichZoom(); }, {{&M::Koppl_x, -2}, {&M::Koppl_y, -2}}, 0},
    {"Koppl_xyGleichZoom, zoom 0", {{&M::click2_Zoom, 0}}, [](M& m) { m.Koppl_xyGleichZoom(); }, {}, 0},
    {"Koppl_yGleichx", {{&M::Koppl_x, 0.25}}, [](M& m) { m.Koppl_yGleichx(); }, {{&M::Koppl_y, 0.25}}, 0},
    {"Koppl_xyMalD", {{&M::Koppl_x, 0.25}, {&M::Koppl_y, 3}},
        [](M& m) { m.Koppl_xyMalD(2.0); }, {{&M::Koppl_x, 0.5}, {&M::Koppl_y, 6}}, 0},

    {"GitterNullOn", {{&M::g_Gitterabstand, 1}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.GitterNullOn(); }, {{&M::g_Gitterabstand, 0.5}}, 0},
    {"GitterNullOn, equal", {{&M::g_Gitterabstand, 0.5}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.GitterNullOn(); }, {}, Unberuehrt},
    {"GitterMitteOn", {{&M::g_Gitterabstand, 1}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.GitterMitteOn(); }, {{&M::g_Gitterabstand, 0.5}}, 0},
    {"GitterMitteOn, equal", {{&M::g_Gitterabstand, 0.5}, {&M::click2_Zoom, 0.5}},
        [](M& m) { m.GitterMitteOn(); }, {}, Unberuehrt},
};
// clang-format on

} // namespace

class TestOperationen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { m = std::make_unique<M>(); }
    void schritt_data();
    void schritt();
    void breiteMitZoomEins_data();
    void breiteMitZoomEins();
    void setzenUndLesen();
    void aufbau();
    void falten();
    void entfalten_data();
    void entfalten();
    void faltenSaettigt();

  private:
    std::unique_ptr<M> m;
};

void TestOperationen::schritt_data() {
    QTest::addColumn<int>("nummer");
    for (std::size_t i = 0; i < Faelle.size(); ++i) {
        QTest::newRow(Faelle[i].name) << int(i);
    }
}

void TestOperationen::schritt() {
    QFETCH(int, nummer);
    const Fall& fall = Faelle[std::size_t(nummer)];
    for (const Stand& stand : fall.vorher) {
        setze(*m, stand.feld, stand.wert);
    }
    std::vector<double> soll;
    soll.reserve(Felder.size());
    for (const Feld feld : Felder) {
        soll.push_back(lies(*m, feld));
    }
    for (const Stand& stand : fall.nachher) {
        const auto stelle = std::find(Felder.begin(), Felder.end(), stand.feld);
        QVERIFY(stelle != Felder.end());
        soll[std::size_t(stelle - Felder.begin())] = stand.wert;
    }
    m->g_RechnenJa = Unberuehrt;
    fall.schritt(*m);
    QCOMPARE(m->g_RechnenJa, fall.anforderung);
    for (std::size_t i = 0; i < Felder.size(); ++i) {
        const double ist = lies(*m, Felder[i]);
        QVERIFY2(
            gleich(ist, soll[i]),
            qPrintable(QString("field %1 of the list is %2, not %3").arg(i).arg(ist).arg(soll[i])));
    }
}

void TestOperationen::breiteMitZoomEins_data() {
    QTest::addColumn<bool>("mal");
    QTest::newRow("times") << true;
    QTest::newRow("divided") << false;
}

void TestOperationen::breiteMitZoomEins() {
    QFETCH(bool, mal);
    m->click2_Zoom = 1.0;
    m->Br_y = 17.0; // shows a height that was derived anew
    m->R_Min = 18.0;
    m->g_RechnenJa = Unberuehrt;
    const Meldung meldung =
        meldungBei([this, mal] { mal ? m->BildbreiteMalZoom() : m->BildbreiteDurchZoom(); });
    QCOMPARE(meldung.anzahl, 1);
    QCOMPARE(meldung.titel, QString("Nachricht/Hinweis:"));
    QCOMPARE(meldung.text, QString("Achtung ZOOM = 1 "));
    QCOMPARE(meldung.besitzer, m.get());
    QCOMPARE(m->Br_x, 4.0);
    QCOMPARE(m->Br_y, 17.0);
    QCOMPARE(m->R_Min, 18.0);
    QCOMPARE(m->g_RechnenJa, Unberuehrt);
}

void TestOperationen::setzenUndLesen() {
    struct Reell {
        double M::*feld;
        void (M::*setzen)(double);
        double (M::*lesen)() const;
    };
    struct Ganz {
        qint32 M::*feld;
        void (M::*setzen)(int);
        int (M::*lesen)() const;
    };
    const std::vector<Reell> reelle{
        {&M::MP_x, &M::set_MP_x, &M::get_MP_x},
        {&M::MP_y, &M::set_MP_y, &M::get_MP_y},
        {&M::Br_x, &M::set_Br_x, &M::get_Br_x},
        {&M::Koppl_x, &M::set_Koppl_x, &M::get_Koppl_x},
        {&M::Koppl_y, &M::set_Koppl_y, &M::get_Koppl_y},
        {&M::wert_Abbruch, &M::set_wert_Abbruch, &M::get_wert_Abbruch},
        {&M::click2_Zoom, &M::set_click2_Zoom, &M::get_click2_Zoom},
        {&M::div_Factor, &M::set_div_Factor, &M::get_div_Factor},
        {&M::konv_Factor, &M::set_konv_Factor, &M::get_konv_Factor},
        {&M::it_Factor, &M::set_it_Factor, &M::get_it_Factor},
        {&M::CJ_x, &M::set_CJ_x, &M::get_CJ_x},
        {&M::CJ_y, &M::set_CJ_y, &M::get_CJ_y},
    };
    const std::vector<Ganz> ganze{
        {&M::Max_Iterationen, &M::set_Max_Iterationen, &M::get_Max_Iterationen},
        {&M::rechen_VarianteDiv, &M::set_rechen_VarianteDiv, &M::get_rechen_VarianteDiv},
        {&M::rechen_VarianteKonv, &M::set_rechen_VarianteKonv, &M::get_rechen_VarianteKonv},
        {&M::color_Offset, &M::set_color_Offset, &M::get_color_Offset},
        {&M::zahl_farbtab, &M::set_zahl_farbtab, &M::get_zahl_farbtab},
        {&M::glg_Abbruch, &M::set_glg_Abbruch, &M::get_glg_Abbruch},
        {&M::zahl_Matrix, &M::set_zahl_Matrix, &M::get_zahl_Matrix},
    };
    m->g_RechnenJa = Unberuehrt;
    double wert = -1e9; // beyond every spin box: nothing is bounded here
    for (const Reell& zeile : reelle) {
        ((*m).*zeile.setzen)(--wert);
        QCOMPARE((*m).*zeile.feld, wert);
        QCOMPARE(((*m).*zeile.lesen)(), wert);
    }
    int zahl = 2000000000;
    for (const Ganz& zeile : ganze) {
        ((*m).*zeile.setzen)(++zahl);
        QCOMPARE((*m).*zeile.feld, zahl);
        QCOMPARE(((*m).*zeile.lesen)(), zahl);
    }
    QCOMPARE(m->g_RechnenJa, Unberuehrt);
}

void TestOperationen::aufbau() {
    QVERIFY(m->parentWidget() == nullptr);
    QCOMPARE(m->cursor().shape(), Qt::CrossCursor);
    QCOMPARE(m->TeilerColorbild, 4.0);
    QCOMPARE(m->pathExist, 0);
    QCOMPARE(m->initIstdurchJa, 1);
    QCOMPARE(m->wahl_Gleichung, 1);
}

void TestOperationen::falten() {
    for (const Gleichung& gleichung : gleichungen()) {
        for (int zwilling = 0; zwilling <= 11; ++zwilling) {
            m->wahl_Gleichung = gleichung.nummer;
            m->g_ZwillingJa = zwilling;
            const int gefaltet =
                zwilling == 0 ? gleichung.nummer : gleichung.nummer * 10000 + zwilling;
            QCOMPARE(m->get_wahl_Gleichung(), gefaltet);
            QCOMPARE(m->wahl_Gleichung, gefaltet);
            QCOMPARE(m->get_wahl_Gleichung(), gefaltet); // not folded twice
            m->g_ZwillingJa = 99;
            m->set_wahl_Gleichung(gefaltet);
            QCOMPARE(m->wahl_Gleichung, gleichung.nummer);
            QCOMPARE(m->g_ZwillingJa, zwilling == 0 ? 99 : zwilling);
        }
    }
}

void TestOperationen::entfalten_data() {
    QTest::addColumn<int>("gefaltet");
    QTest::addColumn<int>("nummer");
    QTest::addColumn<int>("zwilling"); // 5 before
    QTest::newRow("twin 0") << 1010000 << 101 << 0;
    QTest::newRow("largest plain number") << 9999 << 9999 << 5;
    QTest::newRow("smallest folded number") << 10000 << 1 << 0;
    QTest::newRow("only three digits are the twin") << 1014003 << 101 << 3;
    QTest::newRow("largest integer") << 2147483647 << 214748 << 647;
    QTest::newRow("negative") << -1010004 << -1010004 << 5;
}

void TestOperationen::entfalten() {
    QFETCH(int, gefaltet);
    m->g_ZwillingJa = 5;
    m->set_wahl_Gleichung(gefaltet);
    QTEST(m->wahl_Gleichung, "nummer");
    QTEST(m->g_ZwillingJa, "zwilling");
}

// Numbers that no command sets, but a file can.
void TestOperationen::faltenSaettigt() {
    m->wahl_Gleichung = 912;
    m->g_ZwillingJa = 2147483647;
    QCOMPARE(m->get_wahl_Gleichung(), 2147483647);
    m->wahl_Gleichung = -2147483647;
    m->g_ZwillingJa = 1;
    QCOMPARE(m->get_wahl_Gleichung(), std::numeric_limits<int>::min());
    m->wahl_Gleichung = 101;
    m->g_ZwillingJa = -3;
    QCOMPARE(m->get_wahl_Gleichung(), 101);
}

QTEST_MAIN(TestOperationen)
#include "test_operationen.moc"
