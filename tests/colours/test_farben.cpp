// Palettes and colour lookup.

#include "colours/Farbwahl.h"
#include "Texttabelle.h"

namespace {

using Zahlen = QList<double>;

qint32 ganz(double wert) { return static_cast<qint32>(wert); }
quint32 natuerlich(double wert) { return static_cast<quint32>(wert); }

Zahlen ausZeile(std::span<const quint8> palette, double zeile) {
    const auto i = 3 * static_cast<std::size_t>(zeile);
    return {double(palette[i]), double(palette[i + 1]), double(palette[i + 2])};
}
Zahlen rgb(const QColor& f) { return {double(f.red()), double(f.green()), double(f.blue())}; }
Zahlen variante(double code, double platz) {
    return ausZeile(farbvariante({10, 20, 40}, static_cast<qint64>(code), ganz(platz)), 0);
}

void baue48(M& m, double art, const Zahlen& farben) {
    const auto wahl = [&farben](qsizetype i) { return natuerlich(farben.value(i)); };
    m.fillPalette48(natuerlich(art), wahl(0), wahl(1), wahl(2), wahl(3), wahl(4), wahl(5));
}

Zahlen farbe(M& m, const Zahlen& a) {
    m.zahl_farbtab = ganz(a[0]);
    m.wahlPalette48 = ganz(a[4]);
    baue48(m, a[4], {});
    const QColor f = m.FarbeV1(natuerlich(a[1]), natuerlich(a[2]), natuerlich(a[3]));
    const Zahlen ergebnis = rgb(f) << m.g_Max_rgbFarben << m.wahlPalette48;
    std::array<QRgb, HauptFarben> tafel{};
    farbtafel(m, natuerlich(a[2]), tafel);
    return ergebnis + Zahlen{tafel[indexregel(m)(natuerlich(a[1]))] == f.rgba() ? 1.0 : 0.0};
}

Zahlen laden(M& m, const Zahlen& a) {
    setze(m, QString("zahl_farbtab=%1 g_RechnenJa=3 wahlPalette48=9").arg(a[0]));
    m.FarbtabelleWaveLaden();
    return {double(m.zahl_farbtab), double(m.g_RechnenJa), double(m.wahlPalette48),
            m.g_PalettenZahl.toDouble()};
}

/// What the table's first column names.
const std::map<QString, Zahlen (*)(M&, const Zahlen&)> Tafel{
    {"palette",
     [](M& m, const Zahlen& a) {
         baue48(m, a[0], a.mid(2));
         return ausZeile(m.Palette48, a[1]);
     }},
    {"spektrum", [](M& m, const Zahlen& a) { return ausZeile(m.colormapWave, a[0]); }},
    {"fest", [](M&, const Zahlen& a) { return ausZeile(festpalette(), a[0]); }},
    {"erste",
     [](M&, const Zahlen& a) {
         return variante(11, a[0]) + variante(21, a[0]) + variante(31, a[0]) + variante(41, a[0]);
     }},
    {"variante", [](M&, const Zahlen& a) { return variante(a[1], a[0]); }},
    {"index",
     [](M&, const Zahlen& a) {
         return Zahlen{double(Indexregel{a[1], a[2], natuerlich(a[0])}(natuerlich(a[3])))};
     }},
    {"farbe", farbe},
    {"kreuz", [](M& m, const Zahlen& a) { return rgb(m.FarbeKreuze(natuerlich(a[0]))); }},
    {"laden", laden}};

} // namespace

class TestFarben : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m;

  private Q_SLOTS:
    void init() {
        m = std::make_unique<M>();
        setze(*m, "zahl_Matrix=11 color_Offset=0 it_Factor=1 wahlPalette48=1 zahl_farbtab=0");
        m->colormapWave.fill(1);
        m->FarbtabelleWaveLaden();
        baue48(*m, 1, {});
    }

    void werte_data() { zeilenAus("colours/farben.txt"); }
    void werte() {
        QFETCH(QStringList, spalten);
        QCOMPARE(Tafel.at(spalten[0])(*m, liste<double>(spalten[1])), liste<double>(spalten[2]));
    }
};

QTEST_MAIN(TestFarben)
#include "test_farben.moc"
