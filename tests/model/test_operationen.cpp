#include "equations/Gleichungen.h"
#include "Felder.h"
#include "Meldung.h"
#include "Runden.h"
#include "Testbasis.h"

#include <memory>
#include <vector>

namespace {

bool gleich(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }

/// Every field that an operation could change by mistake.
const std::map<QString, Feld> AlleFelder = [] {
    auto felder = Felder;
    felder["g_Bildverhaeltnis"] = &M::g_Bildverhaeltnis;
    felder["g_Max_glg_Abbruch"] = &M::g_Max_glg_Abbruch;
    return felder;
}();

constexpr qint32 Unberuehrt = 2; ///< request before each operation; none of them leaves a 2

struct Fall {
    const char* name;
    std::map<QString, double> vorher;
    void (*schritt)(M& m);
    std::map<QString, double> nachher; ///< all other fields keep their value
    qint32 anforderung;
};

constexpr double Groesste = 2147483647.0;
constexpr double Kleinste = -2147483648.0;
constexpr double Unendlich = std::numeric_limits<double>::infinity();
constexpr double KeineZahl = std::numeric_limits<double>::quiet_NaN();

// The ends of the ranges, to the last value that the integer holds.
constexpr qint32 Kleinste32 = std::numeric_limits<qint32>::min();
constexpr qint64 Kleinste64 = std::numeric_limits<qint64>::min();
static_assert(trunc32(-2147483647.9) == -2147483647 && trunc32(-2147483648.9) == Kleinste32);
static_assert(trunc32(2147483647.9) == 2147483647 && trunc32(2147483648.0) == Kleinste32);
static_assert(trunc32(-2147483649.0) == Kleinste32 && trunc32(KeineZahl) == Kleinste32);
static_assert(trunc64(9223372036854774784.0) == 9223372036854774784 && trunc64(-1.9) == -1);
static_assert(trunc64(9223372036854775808.0) == Kleinste64 && trunc64(KeineZahl) == Kleinste64);
static_assert(truncSat(2147483646.9) == 2147483646 && truncSat(-2147483647.9) == -2147483647);
static_assert(truncSat(Unendlich) == 2147483647 && truncSat(-Unendlich) == Kleinste32);
static_assert(truncSat(KeineZahl) == 0);

// clang-format off
const std::vector<Fall> Faelle{
    {"ZoomGleich", {}, [](M& m) { m.ZoomGleich(2.5); }, {{"click2_Zoom", 2.5}}, Unberuehrt},
    {"ZoomMalD", {{"click2_Zoom", 0.5}}, [](M& m) { m.ZoomMalD(-3.0); }, {{"click2_Zoom", -1.5}}, Unberuehrt},

    {"itFactorMalD", {{"it_Factor", 3.0}}, [](M& m) { m.itFactorMalD(2.0); }, {{"it_Factor", 6.0}}, 0},
    {"divFactorMalD", {{"div_Factor", 3.0}}, [](M& m) { m.divFactorMalD(0.0); }, {{"div_Factor", 0.0}}, 0},
    {"konvFactorMalD", {{"konv_Factor", 3.0}}, [](M& m) { m.konvFactorMalD(0.5); }, {{"konv_Factor", 1.5}}, 0},
    {"VarianteDiv above", {{"rechen_VarianteDiv", 18}},
        [](M& m) { m.rechen_VarianteDivPlusM(1); }, {{"rechen_VarianteDiv", 0}}, 0},
    {"VarianteDiv above, no remainder", {{"rechen_VarianteDiv", 16}},
        [](M& m) { m.rechen_VarianteDivPlusM(5); }, {{"rechen_VarianteDiv", 0}}, 0},
    {"VarianteDiv below", {{"rechen_VarianteDiv", 0}},
        [](M& m) { m.rechen_VarianteDivPlusM(-1); }, {{"rechen_VarianteDiv", 18}}, 0},
    {"VarianteDiv beyond 32 bits", {{"rechen_VarianteDiv", Groesste}},
        [](M& m) { m.rechen_VarianteDivPlusM(2147483647); }, {{"rechen_VarianteDiv", 0}}, 0},
    {"VarianteKonv above", {{"rechen_VarianteKonv", 12}},
        [](M& m) { m.rechen_VarianteKonvPlusM(1); }, {{"rechen_VarianteKonv", 0}}, 0},
    {"VarianteKonv below", {{"rechen_VarianteKonv", 0}},
        [](M& m) { m.rechen_VarianteKonvPlusM(-1); }, {{"rechen_VarianteKonv", 12}}, 0},
    {"VarianteKonv from far above", {{"rechen_VarianteKonv", 44}},
        [](M& m) { m.rechen_VarianteKonvPlusM(-1); }, {{"rechen_VarianteKonv", 0}}, 0},

    {"MatrixOn", {{"zahl_Matrix", 33}}, [](M& m) { m.MatrixOn(); }, {{"zahl_Matrix", 1000}}, Unberuehrt},
    {"Next_Matrix switches on only", {{"zahl_Matrix", 999}},
        [](M& m) { m.Next_Matrix(); }, {{"zahl_Matrix", 1000}}, Unberuehrt},
    {"Next_Matrix steps the colour table", {{"zahl_Matrix", 1000}, {"zahl_farbtab", 12}}, [](M& m) { m.Next_Matrix(); },
        {{"zahl_farbtab", 13}}, 0},
    {"Next_Matrix above", {{"zahl_Matrix", 1001}}, [](M& m) { m.Next_Matrix(); }, {}, Unberuehrt},
    {"Vorher_Matrix steps the colour table", {{"zahl_Matrix", 1000}, {"zahl_farbtab", 0}}, [](M& m) { m.Vorher_Matrix(); },
        {{"zahl_farbtab", 47}}, 0},
    {"Vorher_Matrix off", {{"zahl_Matrix", 11}}, [](M& m) { m.Vorher_Matrix(); }, {}, Unberuehrt},
    {"Erste_Matrix", {{"zahl_Matrix", 11}, {"zahl_farbtab", 30}},
        [](M& m) { m.Erste_Matrix(); }, {{"zahl_Matrix", 1000}, {"zahl_farbtab", 0}}, Unberuehrt},

    {"BildbreiteNeueEckpunkte", {{"MP_x", 1}, {"MP_y", 2}, {"Br_x", 4}, {"Br_y", 3}},
        [](M& m) { m.BildbreiteNeueEckpunkte(); },
        {{"R_Min", -1}, {"I_Min", 0.5}, {"R_Max", 3}, {"I_Max", 3.5}}, Unberuehrt},
    {"set_Br_x", {{"g_Bildverhaeltnis", 0.5}}, [](M& m) { m.set_Br_x(7.0); }, {{"Br_x", 7}, {"Br_y", 3.5}}, Unberuehrt},
    {"BildbreiteMalD", {{"g_Bildverhaeltnis", 0.5}, {"MP_x", 1}, {"MP_y", 2}, {"Br_x", 3}},
        [](M& m) { m.BildbreiteMalD(2.0); },
        {{"Br_x", 6}, {"Br_y", 3}, {"R_Min", -2}, {"I_Min", 0.5}, {"R_Max", 4}, {"I_Max", 3.5}}, 3},
    {"BildbreiteMalZoom", {{"g_Bildverhaeltnis", 0.5}, {"MP_x", 1}, {"MP_y", 2}, {"Br_x", 3}, {"click2_Zoom", 2}},
        [](M& m) { m.BildbreiteMalZoom(); },
        {{"Br_x", 6}, {"Br_y", 3}, {"R_Min", -2}, {"I_Min", 0.5}, {"R_Max", 4}, {"I_Max", 3.5}}, 3},
    {"BildbreiteDurchZoom", {{"g_Bildverhaeltnis", 0.5}, {"MP_x", 1}, {"MP_y", 2}, {"Br_x", 3}, {"click2_Zoom", 0.5}},
        [](M& m) { m.BildbreiteDurchZoom(); },
        {{"Br_x", 6}, {"Br_y", 3}, {"R_Min", -2}, {"I_Min", 0.5}, {"R_Max", 4}, {"I_Max", 3.5}}, 3},
    {"MP_xyGleich0, x", {{"MP_x", 1}, {"MP_y", 2}}, [](M& m) { m.MP_xyGleich0(1); }, {{"MP_x", 0}}, 3},
    {"MP_xyGleich0, y", {{"MP_x", 1}, {"MP_y", 2}}, [](M& m) { m.MP_xyGleich0(2); }, {{"MP_y", 0}}, 3},
    {"MP_xyGleich0, both", {{"MP_x", 1}, {"MP_y", 2}}, [](M& m) { m.MP_xyGleich0(3); }, {{"MP_x", 0}, {"MP_y", 0}}, 3},
    {"MP_xyGleich0, neither", {{"MP_x", 1}, {"MP_y", 2}}, [](M& m) { m.MP_xyGleich0(0); }, {}, 3},

    {"GenauigkeitGleichZoom", {{"click2_Zoom", -0.25}},
        [](M& m) { m.GenauigkeitGleichZoom(); }, {{"g_Genauigkeit", -0.25}}, 0},
    {"kPotenzGleichZoom", {{"click2_Zoom", -2.9}}, [](M& m) { m.kPotenzGleichZoom(); }, {{"g_kPotenz", -2}}, 0},
    {"kPotenzGleichZoom, huge", {{"click2_Zoom", 1e300}},
        [](M& m) { m.kPotenzGleichZoom(); }, {{"g_kPotenz", Groesste}}, 0},
    {"ZykluszahlGleichZoom", {{"click2_Zoom", 9.9}}, [](M& m) { m.ZykluszahlGleichZoom(); }, {{"g_zycmax", 9}}, 0},
    {"ZykluszahlGleichZoom, too many", {{"click2_Zoom", 25}},
        [](M& m) { m.ZykluszahlGleichZoom(); }, {{"g_zycmax", 24}}, 0},
    {"ZykluszahlGleichZoom, infinite", {{"click2_Zoom", Unendlich}},
        [](M& m) { m.ZykluszahlGleichZoom(); }, {{"g_zycmax", 24}}, 0},
    {"wahl_GleichungNew", {}, [](M& m) { m.wahl_GleichungNew(205); }, {{"wahl_Gleichung", 205}}, 3},
    {"OrbitAbIterAn below the limit", {{"Max_Iterationen", 256}, {"click2_Zoom", 255.9}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {{"g_OrbitAbIterAn", 255}}, Unberuehrt},
    {"OrbitAbIterAn at the limit", {{"Max_Iterationen", 256}, {"click2_Zoom", 256}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {}, Unberuehrt},
    {"OrbitAbIterAn, minus infinity", {{"click2_Zoom", -Unendlich}},
        [](M& m) { m.OrbitAbIterAnGleichZoom(); }, {{"g_OrbitAbIterAn", Kleinste}}, Unberuehrt},

    {"Vorschau default", {{"g_PixVorschauX", 7}, {"g_PixVorschauY", 8}},
        [](M& m) { m.VorschauXYPixelNeu(0); }, {{"g_PixVorschauX", 100}, {"g_PixVorschauY", 0}}, 0},
    {"Vorschau width", {{"click2_Zoom", 250.7}}, [](M& m) { m.VorschauXYPixelNeu(1); }, {{"g_PixVorschauX", 250}}, 0},
    {"Vorschau height", {{"click2_Zoom", 250.7}}, [](M& m) { m.VorschauXYPixelNeu(2); }, {{"g_PixVorschauY", 250}}, 0},
    {"Vorschau 160 x 90", {},
        [](M& m) { m.VorschauXYPixelNeu(3); }, {{"g_PixVorschauX", 160}, {"g_PixVorschauY", 90}}, 0},
    {"Vorschau 320 x 180", {},
        [](M& m) { m.VorschauXYPixelNeu(4); }, {{"g_PixVorschauX", 320}, {"g_PixVorschauY", 180}}, 0},
    {"Vorschau 640 x 360", {},
        [](M& m) { m.VorschauXYPixelNeu(5); }, {{"g_PixVorschauX", 640}, {"g_PixVorschauY", 360}}, 0},
    {"Vorschau above the formats", {}, [](M& m) { m.VorschauXYPixelNeu(6); }, {}, 0},
    {"Vorschau below the formats", {}, [](M& m) { m.VorschauXYPixelNeu(-1); }, {}, 0},

    {"Max_IterationenMalD", {{"Max_Iterationen", 257}},
        [](M& m) { m.Max_IterationenMalD(0.5); }, {{"Max_Iterationen", 128}}, 3},
    {"Max_IterationenMalD, too many", {{"Max_Iterationen", Groesste}},
        [](M& m) { m.Max_IterationenMalD(10.0); }, {{"Max_Iterationen", Groesste}}, 3},
    {"Max_IterationenMalD, not a number", {{"Max_Iterationen", 0}},
        [](M& m) { m.Max_IterationenMalD(Unendlich); }, {{"Max_Iterationen", 0}}, 3},
    {"glg_Abbruch within", {{"glg_Abbruch", 3}}, [](M& m) { m.glg_AbbruchPlusM(-1); }, {{"glg_Abbruch", 2}}, 3},
    {"glg_Abbruch above", {{"glg_Abbruch", 9}}, [](M& m) { m.glg_AbbruchPlusM(1); }, {{"glg_Abbruch", 0}}, 3},
    {"glg_Abbruch below", {{"glg_Abbruch", 0}, {"g_Max_glg_Abbruch", 5}},
        [](M& m) { m.glg_AbbruchPlusM(-1); }, {{"glg_Abbruch", 5}}, 3},
    {"glg_Abbruch beyond 32 bits", {{"glg_Abbruch", Kleinste}},
        [](M& m) { m.glg_AbbruchPlusM(-1); }, {{"glg_Abbruch", 9}}, 3},
    {"glg_AbbruchNew", {}, [](M& m) { m.glg_AbbruchNew(7); }, {{"glg_Abbruch", 7}}, 3},
    {"wert_AbbruchMalD", {{"wert_Abbruch", 8}}, [](M& m) { m.wert_AbbruchMalD(-0.5); }, {{"wert_Abbruch", -4}}, 3},

    {"ZwillingAn x", {{"Koppl_x", 0}, {"Koppl_y", 0.3}, {"click2_Zoom", 0.5}},
        [](M& m) { m.ZwillingAn(); }, {{"Koppl_x", 0.5}}, 3},
    {"ZwillingAn y", {{"Koppl_x", 0.3}, {"Koppl_y", -0.0}, {"click2_Zoom", 0.5}},
        [](M& m) { m.ZwillingAn(); }, {{"Koppl_y", 0.5}}, 3},
    {"Koppl_xMalZoom from 0", {{"Koppl_x", 0}, {"click2_Zoom", 2.5}},
        [](M& m) { m.Koppl_xMalZoom(); }, {{"Koppl_x", 2.5}}, 0},
    {"Koppl_xMalZoom", {{"Koppl_x", 0.25}, {"click2_Zoom", -2}},
        [](M& m) { m.Koppl_xMalZoom(); }, {{"Koppl_x", -0.5}}, 0},
    {"Koppl_xMalZoom, zoom 0", {{"Koppl_x", 0}, {"click2_Zoom", 0}}, [](M& m) { m.Koppl_xMalZoom(); }, {}, 0},
    {"Koppl_yMalZoom from 0", {{"Koppl_y", 0}, {"click2_Zoom", 2.5}},
        [](M& m) { m.Koppl_yMalZoom(); }, {{"Koppl_y", 2.5}}, 0},
    {"Koppl_yMalZoom, not a number", {{"Koppl_y", 0.25}, {"click2_Zoom", KeineZahl}},
        [](M& m) { m.Koppl_yMalZoom(); }, {}, 0},
    {"Koppl_xyGleichZoom", {{"click2_Zoom", -2}},
        [](M& m) { m.Koppl_xyGleichZoom(); }, {{"Koppl_x", -2}, {"Koppl_y", -2}}, 0},
    {"Koppl_xyGleichZoom, zoom 0", {{"click2_Zoom", 0}}, [](M& m) { m.Koppl_xyGleichZoom(); }, {}, 0},
    {"Koppl_yGleichx", {{"Koppl_x", 0.25}}, [](M& m) { m.Koppl_yGleichx(); }, {{"Koppl_y", 0.25}}, 0},
    {"Koppl_xyMalD", {{"Koppl_x", 0.25}, {"Koppl_y", 3}},
        [](M& m) { m.Koppl_xyMalD(2.0); }, {{"Koppl_x", 0.5}, {"Koppl_y", 6}}, 0},

    {"GitterNullOn", {{"g_Gitterabstand", 1}, {"click2_Zoom", 0.5}},
        [](M& m) { m.GitterNullOn(); }, {{"g_Gitterabstand", 0.5}}, 0},
    {"GitterNullOn, equal", {{"g_Gitterabstand", 0.5}, {"click2_Zoom", 0.5}},
        [](M& m) { m.GitterNullOn(); }, {}, Unberuehrt},
    {"GitterMitteOn", {{"g_Gitterabstand", 1}, {"click2_Zoom", 0.5}},
        [](M& m) { m.GitterMitteOn(); }, {{"g_Gitterabstand", 0.5}}, 0},
    {"GitterMitteOn, equal", {{"g_Gitterabstand", 0.5}, {"click2_Zoom", 0.5}},
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
    for (const auto& [name, wert] : fall.vorher) {
        setzeFeld(*m, AlleFelder.at(name), wert);
    }
    std::map<QString, double> soll;
    for (const auto& [name, feld] : AlleFelder) {
        soll[name] = feldwert(*m, feld);
    }
    for (const auto& [name, wert] : fall.nachher) {
        soll.at(name) = wert;
    }
    soll["g_RechnenJa"] = fall.anforderung;
    m->g_RechnenJa = Unberuehrt;
    fall.schritt(*m);
    for (const auto& [name, feld] : AlleFelder) {
        const double ist = feldwert(*m, feld);
        QVERIFY2(gleich(ist, soll[name]),
                 qPrintable(QString("%1 is %2, not %3").arg(name).arg(ist).arg(soll[name])));
    }
    QCOMPARE(m->g_PalettenZahl, QString::number(m->zahl_farbtab / 12 + 1));
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
    m->g_RechnenJa = Unberuehrt;
    int zahl = 2000000000; // beyond every spin box: nothing is bounded here
    const auto pruefe = [&](auto feld, auto setzen, auto lesen) {
        ((*m).*setzen)(++zahl);
        QCOMPARE((*m).*feld, zahl);
        QCOMPARE(((*m).*lesen)(), zahl);
    };
    pruefe(&M::MP_x, &M::set_MP_x, &M::get_MP_x);
    pruefe(&M::MP_y, &M::set_MP_y, &M::get_MP_y);
    pruefe(&M::Br_x, &M::set_Br_x, &M::get_Br_x);
    pruefe(&M::Koppl_x, &M::set_Koppl_x, &M::get_Koppl_x);
    pruefe(&M::Koppl_y, &M::set_Koppl_y, &M::get_Koppl_y);
    pruefe(&M::wert_Abbruch, &M::set_wert_Abbruch, &M::get_wert_Abbruch);
    pruefe(&M::click2_Zoom, &M::set_click2_Zoom, &M::get_click2_Zoom);
    pruefe(&M::div_Factor, &M::set_div_Factor, &M::get_div_Factor);
    pruefe(&M::konv_Factor, &M::set_konv_Factor, &M::get_konv_Factor);
    pruefe(&M::it_Factor, &M::set_it_Factor, &M::get_it_Factor);
    pruefe(&M::CJ_x, &M::set_CJ_x, &M::get_CJ_x);
    pruefe(&M::CJ_y, &M::set_CJ_y, &M::get_CJ_y);
    pruefe(&M::Max_Iterationen, &M::set_Max_Iterationen, &M::get_Max_Iterationen);
    pruefe(&M::rechen_VarianteDiv, &M::set_rechen_VarianteDiv, &M::get_rechen_VarianteDiv);
    pruefe(&M::rechen_VarianteKonv, &M::set_rechen_VarianteKonv, &M::get_rechen_VarianteKonv);
    pruefe(&M::color_Offset, &M::set_color_Offset, &M::get_color_Offset);
    pruefe(&M::zahl_farbtab, &M::set_zahl_farbtab, &M::get_zahl_farbtab);
    pruefe(&M::glg_Abbruch, &M::set_glg_Abbruch, &M::get_glg_Abbruch);
    pruefe(&M::zahl_Matrix, &M::set_zahl_Matrix, &M::get_zahl_Matrix);
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
