// The model's operations and clicks: the rows of operationen.txt and klicks.txt.

#include "Bildprobe.h"
#include "equations/Gleichungen.h"
#include "Meldung.h"
#include "Runden.h"

namespace {

// The ends of the ranges, to the last value that the integer holds.
constexpr double Unendlich = std::numeric_limits<double>::infinity();
constexpr double KeineZahl = std::numeric_limits<double>::quiet_NaN();
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

using Operation = std::variant<void (M::*)(), void (M::*)(int), void (M::*)(double), int (M::*)()>;

// clang-format off
const std::map<QString, Operation> Operationen{
    {"ZoomGleich", &M::ZoomGleich}, {"ZoomMalD", &M::ZoomMalD}, {"itFactorMalD", &M::itFactorMalD},
    {"divFactorMalD", &M::divFactorMalD}, {"konvFactorMalD", &M::konvFactorMalD}, {"MatrixOn", &M::MatrixOn},
    {"rechen_VarianteDivPlusM", &M::rechen_VarianteDivPlusM}, {"Next_Matrix", &M::Next_Matrix},
    {"rechen_VarianteKonvPlusM", &M::rechen_VarianteKonvPlusM}, {"Vorher_Matrix", &M::Vorher_Matrix},
    {"Erste_Matrix", &M::Erste_Matrix}, {"BildbreiteNeueEckpunkte", &M::BildbreiteNeueEckpunkte},
    {"set_Br_x", &M::set_Br_x}, {"BildbreiteMalD", &M::BildbreiteMalD}, {"BildbreiteMalZoom", &M::BildbreiteMalZoom},
    {"BildbreiteDurchZoom", &M::BildbreiteDurchZoom}, {"MP_xyGleich0", &M::MP_xyGleich0},
    {"GenauigkeitGleichZoom", &M::GenauigkeitGleichZoom}, {"kPotenzGleichZoom", &M::kPotenzGleichZoom},
    {"ZykluszahlGleichZoom", &M::ZykluszahlGleichZoom}, {"wahl_GleichungNew", &M::wahl_GleichungNew},
    {"OrbitAbIterAnGleichZoom", &M::OrbitAbIterAnGleichZoom}, {"VorschauXYPixelNeu", &M::VorschauXYPixelNeu},
    {"Max_IterationenMalD", &M::Max_IterationenMalD}, {"glg_AbbruchPlusM", &M::glg_AbbruchPlusM},
    {"glg_AbbruchNew", &M::glg_AbbruchNew}, {"wert_AbbruchMalD", &M::wert_AbbruchMalD}, {"ZwillingAn", &M::ZwillingAn},
    {"Koppl_xMalZoom", &M::Koppl_xMalZoom}, {"Koppl_yMalZoom", &M::Koppl_yMalZoom}, {"Koppl_xyMalD", &M::Koppl_xyMalD},
    {"Koppl_xyGleichZoom", &M::Koppl_xyGleichZoom}, {"Koppl_yGleichx", &M::Koppl_yGleichx},
    {"GitterNullOn", &M::GitterNullOn}, {"GitterMitteOn", &M::GitterMitteOn},
    {"set_wahl_Gleichung", &M::set_wahl_Gleichung}, {"get_wahl_Gleichung", &M::get_wahl_Gleichung}};
// clang-format on

struct Aufruf {
    M& m;
    double wert;
    void operator()(void (M::*schritt)()) const { (m.*schritt)(); }
    void operator()(void (M::*schritt)(int)) const { (m.*schritt)(int(wert)); }
    void operator()(void (M::*schritt)(double)) const { (m.*schritt)(wert); }
    void operator()(int (M::*lesen)()) const {
        const int ergebnis = (m.*lesen)();
        QCOMPARE(ergebnis, m.wahl_Gleichung); // the folded number stays in the model
    }
};

std::map<QString, double> alleFelder(const M& m) {
    std::map<QString, double> werte;
    for (const auto& [name, feld] : AlleFelder) {
        werte[name] = feldwert(m, feld);
    }
    return werte;
}

} // namespace

class TestOperationen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void schritt_data() { zeilenAus("model/operationen.txt"); }
    void schritt() {
        QFETCH(QStringList, spalten);
        const auto m = std::make_unique<M>();
        setze(*m, "g_RechnenJa=2 " + spalten[1]);
        auto soll = alleFelder(*m);
        for (const auto& [name, wert] : zahlen(spalten[2])) {
            soll[name] = wert;
        }
        const Aufruf aufruf{*m, spalten[0].section(' ', 1).toDouble()};
        const Meldung meldung =
            meldungBei([&] { std::visit(aufruf, Operationen.at(spalten[0].section(' ', 0, 0))); });
        QCOMPARE(abweichung(*m, soll), QString());
        QCOMPARE(m->g_PalettenZahl, QString::number(m->zahl_farbtab / 12 + 1));
        QCOMPARE(meldung.anzahl, spalten.size() - 3);
        if (meldung.anzahl > 0) {
            QCOMPARE(meldung.titel + meldung.text, "Nachricht/Hinweis:Achtung ZOOM = 1 ");
            QCOMPARE(meldung.besitzer, m.get());
        }
    }

    void setzenUndLesen() {
        const auto m = std::make_unique<M>();
        m->g_RechnenJa = 2;
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
        QCOMPARE(m->g_RechnenJa, 2);
    }

    // Every number of the catalogue with every twin survives folding, also twice.
    void falten() {
        const auto m = std::make_unique<M>();
        QCOMPARE(m->cursor().shape(), Qt::CrossCursor);
        for (const Gleichung& gleichung : gleichungen()) {
            for (int zwilling = 1; zwilling <= 11; ++zwilling) {
                m->wahl_Gleichung = gleichung.nummer;
                m->g_ZwillingJa = zwilling;
                QCOMPARE(m->get_wahl_Gleichung(), gleichung.nummer * 10000 + zwilling);
                const int gefaltet = m->get_wahl_Gleichung();
                m->g_ZwillingJa = 99;
                m->set_wahl_Gleichung(gefaltet);
                QCOMPARE(m->wahl_Gleichung, gleichung.nummer);
                QCOMPARE(m->g_ZwillingJa, zwilling);
            }
        }
    }

    void klick_data() { zeilenAus("model/klicks.txt"); }
    void klick() {
        QFETCH(QStringList, spalten);
        const QPoint stelle(spalten[0].section(' ', 0, 0).toInt(),
                            spalten[0].section(' ', 1).toInt());
        const auto m = bildprobe(800, 600);
        setze(*m, "Br_x=4 Br_y=3 click2_Zoom=0.5 g_RechnenJa=0 g_Bildverhaeltnis=0.123");
        setze(*m, spalten[1]);
        m->BildbreiteNeueEckpunkte();
        QStringList folge;
        connect(m.get(), &M::WerteAktualisierenSignal, this, [&] { folge << "Werte"; });
        connect(m.get(), &M::NeueBerechnungSignal, this, [&] { folge << "Neu"; });
        const auto vorher = alleFelder(*m);
        QTest::mousePress(m.get(), Qt::RightButton, {}, stelle);
        if (spalten[2] == "refused") {
            QCOMPARE(abweichung(*m, vorher), QString());
            QCOMPARE(folge, QStringList());
            return;
        }
        QCOMPARE(abweichung(*m, "g_Bildverhaeltnis=0.75 " + spalten[2]), QString());
        QCOMPARE(folge, QStringList({"Werte", "Neu"}));
    }

    // Beyond the buffers the picture is cut to 1200 x 1200, and so is the click's scale.
    void grosserWidget() {
        const auto m = bildprobe(1500, 1300);
        m->BildbreiteNeueEckpunkte();
        QTest::mousePress(m.get(), Qt::LeftButton, {}, QPoint(600, 600));
        QCOMPARE(abweichung(*m, "MP_x=-0.5 g_Bildverhaeltnis=1"), QString());
    }
};

QTEST_MAIN(TestOperationen)
#include "test_operationen.moc"
