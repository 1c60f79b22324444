#include "Testbasis.h"
#include "UI_Hauptfenster.h"

#include <memory>
#include <variant>

namespace {

/// One parameter: its box and its field.
struct Paar {
    const char* name;
    QWidget* (*box)(const UI& ui);
    std::variant<double Mandelbrot::*, qint32 Mandelbrot::*> feld;
    bool farbe = false;
};

template <auto Feld>
QWidget* box(const UI& ui) {
    return ui.*Feld;
}

const std::array<Paar, 20> Paare{{
    {"wahl_Gleichung", box<&UI::UI_wahlGleichung>, &Mandelbrot::wahl_Gleichung},
    {"MP_x", box<&UI::UI_MPx>, &Mandelbrot::MP_x},
    {"MP_y", box<&UI::UI_MPy>, &Mandelbrot::MP_y},
    {"Br_x", box<&UI::UI_Brx>, &Mandelbrot::Br_x},
    {"Koppl_x", box<&UI::UI_Kopplx>, &Mandelbrot::Koppl_x},
    {"Koppl_y", box<&UI::UI_Kopply>, &Mandelbrot::Koppl_y},
    {"Max_Iterationen", box<&UI::UI_Iterationen>, &Mandelbrot::Max_Iterationen},
    {"wert_Abbruch", box<&UI::UI_wertAbbruch>, &Mandelbrot::wert_Abbruch},
    {"glg_Abbruch", box<&UI::UI_glgAbbruch>, &Mandelbrot::glg_Abbruch},
    {"CJ_x", box<&UI::UI_CJx>, &Mandelbrot::CJ_x},
    {"CJ_y", box<&UI::UI_CJy>, &Mandelbrot::CJ_y},
    {"click2_Zoom", box<&UI::UI_click2Zoom>, &Mandelbrot::click2_Zoom},
    {"div_Factor", box<&UI::UI_divFactor>, &Mandelbrot::div_Factor, true},
    {"konv_Factor", box<&UI::UI_konvFactor>, &Mandelbrot::konv_Factor, true},
    {"it_Factor", box<&UI::UI_itFactor>, &Mandelbrot::it_Factor, true},
    {"rechen_VarianteDiv", box<&UI::UI_rechenVarianteDiv>, &Mandelbrot::rechen_VarianteDiv, true},
    {"rechen_VarianteKonv", box<&UI::UI_rechenVarianteKonv>, &Mandelbrot::rechen_VarianteKonv,
     true},
    {"color_Offset", box<&UI::UI_colorOffset>, &Mandelbrot::color_Offset, true},
    {"zahl_farbtab", box<&UI::UI_zahlfarbtab>, &Mandelbrot::zahl_farbtab, true},
    {"zahl_Matrix", box<&UI::UI_zahlMatrix>, &Mandelbrot::zahl_Matrix, true},
}};

double modell(const UI& ui, const Paar& paar) {
    return std::visit([&](auto feld) { return static_cast<double>(ui.Menge->*feld); }, paar.feld);
}

void setzeModell(UI& ui, const Paar& paar, int wert) {
    std::visit([&](auto feld) { ui.Menge->*feld = wert; }, paar.feld);
}

double panel(const UI& ui, const Paar& paar) { return paar.box(ui)->property("value").toDouble(); }

/// Different values, none of them used by the start settings.
int zahl(const Paar& paar) { return 2001 + static_cast<int>(&paar - Paare.data()); }

/// Counts the paint events of the picture and writes the count into the field that the title shows
/// as "ab Iteration", as a paint writes equation name and orbit start.
class Bildzaehler : public QObject {
  public:
    explicit Bildzaehler(Mandelbrot* modell) : bild(modell) { bild->installEventFilter(this); }
    bool eventFilter(QObject* /*bild*/, QEvent* ereignis) override {
        if (ereignis->type() == QEvent::Paint) {
            bild->g_OrbitAbIterAn = ++anzahl;
        }
        return false;
    }
    [[nodiscard]] QString imTitel() const { return QString("ab Iteration %1,").arg(anzahl); }
    Mandelbrot* bild;
    int anzahl = 0;
};

struct Titelfall {
    const char* name;
    void (*setze)(Mandelbrot& m);
    const char* titel; ///< after "WirbelwerkV"
};

const std::array<Titelfall, 21> Titelfaelle{{
    {"plain", [](Mandelbrot&) {}, " >> Name << "},
    {"Julia", [](Mandelbrot& m) { m.g_JuliaJa = 1; }, " >> Name << (Julia-Verfahren), "},
    {"orbit hides name and Julia",
     [](Mandelbrot& m) {
         m.g_JuliaJa = 1;
         m.g_OrbitJa = 3;
     },
     " Orbit bei [a] [b],"},
    {"orbit from the centre",
     [](Mandelbrot& m) {
         m.g_OrbitJa = 1;
         m.g_OrbitMP = 1;
     },
     " MP-Orbit bei [a] [b],"},
    {"centre without orbit", [](Mandelbrot& m) { m.g_OrbitMP = 1; }, " >> Name << MP-"},
    {"orbit display later", [](Mandelbrot& m) { m.g_OrbitAbIterAn = 12; },
     " >> Name <<  Orbit-Anzeige ab Iteration 12,"},
    {"power and cycles",
     [](Mandelbrot& m) {
         m.g_kPotenz = -3;
         m.g_zycmax = 8;
     },
     " >> Name <<  Potenz K=-3, Zyklen bis 8,"},
    {"twin", [](Mandelbrot& m) { m.g_ZwillingJa = 11; }, " >> Name <<  Zwilling 11,"},
    {"grid at zero", [](Mandelbrot& m) { m.g_GitterJa = 1; },
     " >> Name <<  Grid-Null d= 0.125000,"},
    {"grid at the centre", [](Mandelbrot& m) { m.g_GitterJa = 2; },
     " >> Name <<  Grid-Central d= 0.125000,"},
    {"precision",
     [](Mandelbrot& m) {
         m.g_GenauJa = 1;
         m.g_Genauigkeit = 0.0001;
     },
     " >> Name <<  Genau= 0.0001000000000000,"},
    {"quarter 1", [](Mandelbrot& m) { m.g_halbesBild = 1; },
     " >> Name <<  1/4 Bild Nr.1 (Menue Groesse)"},
    {"quarter 1, no preview",
     [](Mandelbrot& m) {
         m.g_halbesBild = 1;
         m.g_VorschauAusJa = 1;
     },
     " >> Name <<  1/4 Bild Nr.1 Vorschau Aus (Menue Groesse)"},
    {"full, no preview", [](Mandelbrot& m) { m.g_VorschauAusJa = 1; }, " >> Name << "},
    {"quarter 4", [](Mandelbrot& m) { m.g_halbesBild = 4; }, " >> Name <<  1/4 Bild Nr.4,"},
    {"preview 12", [](Mandelbrot& m) { m.g_halbesBild = 12; }, " >> Name <<  Vorschau Nr.2,"},
    {"preview 10", [](Mandelbrot& m) { m.g_halbesBild = 10; },
     " >> Name <<  Vorschau Nr.0 Vorschau Vollbild,"},
    {"preview 100", [](Mandelbrot& m) { m.g_halbesBild = 100; },
     " >> Name <<  Vorschau Nr.0 Vorschau Vollb. li/o,"},
    {"preview 300", [](Mandelbrot& m) { m.g_halbesBild = 300; },
     " >> Name <<  Vorschau Nr.0 Vorschau Vollb. li/u,"},
    {"preview 400", [](Mandelbrot& m) { m.g_halbesBild = 400; },
     " >> Name <<  Vorschau Nr.0 Vorschau Vollb. re/u,"},
    {"halves last",
     [](Mandelbrot& m) {
         m.g_ZwillingJa = 2;
         m.g_halbesBild = 3;
         m.g_oberesHalbbild = 2;
     },
     " >> Name <<  Zwilling 2, 1/4 Bild Nr.3, Untere Bildhälfte"},
}};

} // namespace

class TestAbgleich : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> ui;

  private Q_SLOTS:
    void init() { ui = std::make_unique<UI>(); }

    void modellZumFeld();
    void feldZumModell();
    void zwillingGefaltet();
    void ausloeser_data();
    void ausloeser();
    void schieberStumm();
    void titel_data();
    void titel();
    void titelNachDemBild();
};

void TestAbgleich::modellZumFeld() {
    for (const bool nurFarben : {true, false}) {
        for (const Paar& paar : Paare) {
            setzeModell(*ui, paar, zahl(paar));
            paar.box(*ui)->setProperty("value", -5);
        }
        const QString titelVorher = ui->windowTitle();
        nurFarben ? ui->WerteColorAktualisierenSlot() : ui->WerteAktualisierenSlot();
        for (const Paar& paar : Paare) {
            QVERIFY2(panel(*ui, paar) == (nurFarben && !paar.farbe ? -5 : zahl(paar)), paar.name);
        }
        QCOMPARE(ui->windowTitle(), titelVorher);
        QCOMPARE(ui->colShift_Slider->value(), 0);
    }
}

void TestAbgleich::feldZumModell() {
    using Slot = void (UI::*)();
    for (const Slot slot :
         {&UI::NeueColorBerechnungSlot, &UI::VorschauSlot, &UI::NeueBerechnungSlot}) {
        const bool nurFarben = slot == &UI::NeueColorBerechnungSlot;
        for (const Paar& paar : Paare) {
            setzeModell(*ui, paar, -5);
            paar.box(*ui)->setProperty("value", zahl(paar));
        }
        ui->Menge->g_Bildverhaeltnis = 0.5;
        ((*ui).*slot)();
        for (const Paar& paar : Paare) {
            QVERIFY2(modell(*ui, paar) == (nurFarben && !paar.farbe ? -5 : zahl(paar)), paar.name);
        }
        QVERIFY(nurFarben || ui->Menge->Br_y == 0.5 * ui->Menge->Br_x);
    }
}

void TestAbgleich::zwillingGefaltet() {
    ui->Menge->wahl_Gleichung = 101;
    ui->Menge->g_ZwillingJa = 3;
    ui->WerteAktualisierenSlot();
    QCOMPARE(ui->UI_wahlGleichung->value(), 1010003);
    ui->UI_wahlGleichung->setValue(2020011);
    ui->NeueBerechnungSlot();
    QCOMPARE(ui->Menge->wahl_Gleichung, 202);
    QCOMPARE(ui->Menge->g_ZwillingJa, 11);
}

void TestAbgleich::ausloeser_data() {
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("bild");
    QTest::addColumn<int>("anforderung");
    QTest::addColumn<int>("bildDanach");
    QTest::addColumn<int>("anforderungDanach");
    const QByteArray start = "NeueBerechnungSlot";
    QTest::newRow("preview to its quarter") << start << 12 << 3 << 2 << 1;
    QTest::newRow("preview to full") << start << 400 << 0 << 0 << 1;
    QTest::newRow("preview with orbit stays") << start << 12 << 2 << 12 << 2;
    QTest::newRow("quarter keeps request 3") << start << 4 << 3 << 4 << 3;
    QTest::newRow("full keeps request 0") << start << 0 << 0 << 0 << 0;
    QTest::newRow("preview of a full picture") << QByteArray("VorschauSlot") << 0 << 2 << 0 << 3;
    QTest::newRow("colours only") << QByteArray("NeueColorBerechnungSlot") << 12 << 1 << 12 << 1;
}

void TestAbgleich::ausloeser() {
    QFETCH(QByteArray, slot);
    QFETCH(int, bild);
    QFETCH(int, anforderung);
    ui->Menge->g_halbesBild = bild;
    ui->Menge->g_RechnenJa = anforderung;
    ui->UI_colorOffset->setValue(77);
    QVERIFY(QMetaObject::invokeMethod(ui.get(), slot.constData()));
    QTEST(ui->Menge->g_halbesBild, "bildDanach");
    QTEST(ui->Menge->g_RechnenJa, "anforderungDanach");
    QCOMPARE(ui->colShift_Slider->value(), 77);
    QVERIFY(ui->windowTitle().startsWith("Wirbelwerk" + ui->Menge->g_Versionsnummer + " >> "));
}

void TestAbgleich::schieberStumm() {
    const QSignalSpy bewegt(ui->colShift_Slider, &QSlider::valueChanged);
    ui->UI_colorOffset->setValue(700); // beyond the slider
    ui->VorschauSlot();
    QCOMPARE(ui->colShift_Slider->value(), 512);
    QCOMPARE(ui->Menge->color_Offset, 700);
    QCOMPARE(ui->Menge->g_RechnenJa, 3);
    QCOMPARE(bewegt.count(), 0);
}

void TestAbgleich::titel_data() {
    QTest::addColumn<int>("nummer");
    for (int i = 0; const Titelfall& fall : Titelfaelle) {
        QTest::newRow(fall.name) << i++;
    }
}

void TestAbgleich::titel() {
    QFETCH(int, nummer);
    const Titelfall& fall = Titelfaelle.at(static_cast<std::size_t>(nummer));
    Mandelbrot& m = *ui->Menge;
    m.g_Versionsnummer = "V";
    m.g_NameGlg = "Name";
    m.g_OrbitStartString = "[a]";
    m.g_OrbitEndString = " [b]";
    m.g_Gitterabstand = 0.125;
    m.g_kPotenz = 10;
    m.g_zycmax = 7;
    for (qint32* aus :
         {&m.g_JuliaJa, &m.g_OrbitJa, &m.g_OrbitMP, &m.g_OrbitAbIterAn, &m.g_ZwillingJa,
          &m.g_GitterJa, &m.g_GenauJa, &m.g_halbesBild, &m.g_VorschauAusJa, &m.g_oberesHalbbild}) {
        *aus = 0;
    }
    fall.setze(m);
    ui->SetNewTitle();
    QCOMPARE(ui->windowTitle(), QString("WirbelwerkV") + fall.titel);
}

void TestAbgleich::titelNachDemBild() {
    const QString erster = ui->windowTitle();
    const Bildzaehler bilder(ui->Menge);
    ui->show();
    QTRY_VERIFY(bilder.anzahl > 0);
    QTest::qWait(0);
    QCOMPARE(ui->windowTitle(), erster);

    const int bisher = bilder.anzahl;
    ui->NeueBerechnungSlot();
    QVERIFY(ui->windowTitle().contains(bilder.imTitel()));
    QTRY_VERIFY(bilder.anzahl > bisher);
    QTRY_VERIFY(ui->windowTitle().contains(bilder.imTitel()));

    // A repaint of the window alone reaches the picture and leaves the title.
    const QString stand = ui->windowTitle();
    const int vorher = bilder.anzahl;
    ui->update();
    QTRY_VERIFY(bilder.anzahl > vorher);
    QTest::qWait(0);
    QCOMPARE(ui->windowTitle(), stand);
}

QTEST_MAIN(TestAbgleich)
#include "test_abgleich.moc"
