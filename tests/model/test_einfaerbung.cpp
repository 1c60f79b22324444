// The colour pass and the overlay marks.

#include "model/Einfaerbung.h"
#include "model/Linien.h"
#include "Texttabelle.h"

namespace {

constexpr QRgb Vorher = qRgb(1, 2, 3); ///< what the image showed before the pass
constexpr double Gross = 2147483647;
const QMap<QString, QRgb> Feste{
    {"black", qRgb(0, 0, 0)}, {"white", qRgb(255, 255, 255)}, {"untouched", Vorher}};

/// Colour of the row that a colour number falls on in the test's palette.
QRgb farbeVon(qint64 nummer) {
    const auto reihe = static_cast<int>(((nummer % 512) + 512) % 512);
    return qRgb(reihe % 256, reihe / 256, 77);
}

/// The marks by the plain rule: every line of the grid is tried at every pixel.
class AlleLinien {
  public:
    AlleLinien(const M& menge, double s) : m(menge), S(s) {}

    int marke(double x, double y) {
        const double g = m.g_Gitterabstand;
        mark = 0;
        if (m.g_GitterJa == 1) {
            const int n = int(m.Br_x / g);
            for (int k = -n; k < n; ++k) {
                setzen(4, std::abs(x - (int(m.MP_x / g) + k) * g) < S / 2);
            }
            for (int k = -n; k < n; ++k) {
                setzen(5, std::abs(y - (int(m.MP_y / g) + k) * g) < S / 2);
            }
        }
        for (int n = int(m.Br_x / g / 2.0), k = -n; m.g_GitterJa == 2 && k < n; ++k) {
            setzen(6, std::abs(x - (m.MP_x + k * g)) < S / 2);
            setzen(7, std::abs(y - (m.MP_y + k * g)) < S / 2);
        }
        setzen(0, m.g_MittelkreuzJa == 1 && x <= m.MP_x + S && x >= m.MP_x - S);
        setzen(1, m.g_MittelkreuzJa == 1 && y <= m.MP_y + S && y >= m.MP_y - S);
        setzen(2, m.g_NullkreuzJa == 1 && x <= S && x >= -S);
        setzen(3, m.g_NullkreuzJa == 1 && y <= S && y >= -S);
        return mark;
    }

  private:
    void setzen(std::size_t paar, bool trifft) {
        if (trifft) {
            mark = zaehler[paar];
            zaehler[paar] ^= 3; // 101 <-> 102 and so on
        }
    }

    const M& m;
    double S;
    int mark = 0;
    std::array<int, 8> zaehler{101, 101, 201, 201, 301, 301, 401, 401};
};

} // namespace

class TestEinfaerbung : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m = std::make_unique<M>();
    Bildlauf lauf;
    QImage bild;

    void neuesBild(const QSize& groesse) {
        bild = QImage(groesse, QImage::Format_ARGB32_Premultiplied);
        bild.fill(Vorher);
    }

    void matrixLauf() {
        setze(*m, "zahl_Matrix=1000 rechen_VarianteDiv=8");
        lauf.Matrix = lauf.LinienRechnen = true;
        lauf.SpaltenKL = lauf.Spalten1 = 10;
        lauf.ZeilenKL = lauf.Zeilen1 = 7;
        std::tie(lauf.Spalten2, lauf.Spalten3) = std::tuple(20, 30);
        std::tie(lauf.Zeilen2, lauf.Zeilen3) = std::tuple(14, 21);
        for (std::size_t y = 0; y < 7; ++y) {
            for (std::size_t x = 0; x < 10; ++x) {
                m->ImageViertelDoubles[y + 1][x] = 2.0 + static_cast<double>(10 * y + x);
                m->ImageViertelIntegers[y + 1][x] = 3;
            }
        }
        m->ImageViertelIntegers[5][6] = 100;
        m->ImageViertelGitterIntegers[2][3] = 402;
    }

  private Q_SLOTS:
    void init() {
        for (std::size_t i = 0; i < 512; ++i) {
            const QRgb f = farbeVon(static_cast<qint64>(i));
            m->colormapWave[3 * i] = static_cast<quint8>(qRed(f));
            m->colormapWave[3 * i + 1] = static_cast<quint8>(qGreen(f));
            m->colormapWave[3 * i + 2] = static_cast<quint8>(qBlue(f));
        }
        setze(*m, "zahl_farbtab=0 zahl_Matrix=11 color_Offset=0 it_Factor=1 div_Factor=50 "
                  "konv_Factor=700 wert_Abbruch=4 Max_Iterationen=100 rechen_VarianteDiv=2 "
                  "rechen_VarianteKonv=0 g_halbesBild=0");
        for (auto& reihe : m->ImageIntegers) {
            reihe.fill(0);
        }
        lauf = {};
        lauf.SpaltenKLGross = 40;
        lauf.ZeilenKLGross = 30;
        neuesBild({60, 30});
    }

    void farbnummer_data() { zeilenAus("model/farben.txt"); }
    void farbnummer() {
        QFETCH(QStringList, spalten);
        setze(*m, spalten[0]);
        m->ImageDoubles[8][5] = spalten[1].section(' ', 0, 0).toDouble();
        m->ImageIntegers[8][5] = spalten[1].section(' ', 1).toInt();
        einfaerben(*m, lauf, bild);
        const QRgb soll = Feste.value(spalten[2], farbeVon(spalten[2].toLongLong()));
        QCOMPARE(bild.pixel(5, 7), soll);
    }

    void groessen() {
        // stored picture, image, what is coloured of it
        for (const auto& [groesse, bildgroesse, gefaerbt] :
             std::initializer_list<std::array<QSize, 3>>{
                 {QSize(40, 20), QSize(60, 30), QSize(40, 20)},
                 {QSize(400, 200), QSize(9, 8), QSize(9, 8)},
                 {QSize(5000, 5000), QSize(1300, 1250), QSize(1200, 1200)},
                 {QSize(-5, -5), QSize(9, 8), QSize(0, 0)}}) {
            lauf.SpaltenKLGross = groesse.width();
            lauf.ZeilenKLGross = groesse.height();
            neuesBild(bildgroesse);
            QImage soll = bild;
            einfaerben(*m, lauf, bild);
            QPainter(&soll).fillRect(QRect(QPoint(), gefaerbt), QColor::fromRgb(farbeVon(0)));
            QCOMPARE(bild, soll);
        }
    }

    void gezeichneteMarken() {
        auto& reihe = m->ImageGitterIntegers[8];
        std::tie(reihe[4], reihe[5], reihe[6]) = std::tuple(101, -1, 999);
        einfaerben(*m, lauf, bild); // nobody asks for lines
        QCOMPARE(bild.pixel(4, 7), farbeVon(0));
        for (const bool linien : {true, false}) {
            lauf.LinienRechnen = linien;
            m->g_halbesBild = linien ? 0 : 1;
            neuesBild({60, 30});
            einfaerben(*m, lauf, bild);
            const QList<QRgb> ist{bild.pixel(3, 7), bild.pixel(4, 7), bild.pixel(5, 7),
                                  bild.pixel(6, 7)};
            QCOMPARE(ist, (QList<QRgb>{farbeVon(0), qRgb(255, 0, 0), Vorher, Feste["white"]}));
        }
        reihe.fill(0);
    }

    void matrix() {
        matrixLauf();
        m->zahl_farbtab = 3;
        einfaerben(*m, lauf, bild);
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 60; ++x) {
                const auto code = static_cast<quint32>(10 * (y / 7 + 1) + x / 10 + 1);
                const double wert = 2.0 + 10 * (y % 7) + x % 10;
                QRgb soll = m->FarbeV1(static_cast<quint32>(50 * std::log(wert)), code, 0).rgba();
                soll = x % 10 == 3 && y % 7 == 1   ? qRgb(128, 255, 128) // the mark
                       : x % 10 == 6 && y % 7 == 4 ? Feste["black"]      // the inside
                                                   : soll;
                QCOMPARE(bild.pixel(x, y), x < 40 && y < 28 ? soll : Vorher);
            }
        }
    }

    void matrixInnen() {
        matrixLauf();
        m->rechen_VarianteKonv = 1005; // unchanged by the cell's colour variant
        einfaerben(*m, lauf, bild);
        QCOMPARE(bild.pixel(6, 4), farbeVon(5));
        QCOMPARE(bild.pixel(36, 25), farbeVon(5));
        // A cell larger than its buffer, and cells beyond the image or with absurd borders.
        lauf.SpaltenKL = lauf.ZeilenKL = lauf.Spalten2 = lauf.Zeilen3 = qint32(Gross);
        lauf.Spalten3 = -7;
        neuesBild({60, 30});
        einfaerben(*m, lauf, bild);
        QCOMPARE(bild.pixel(0, 0), farbeVon(34));
        QCOMPARE(bild.pixel(10, 0), m->FarbeV1(34, 12, 0).rgba());
    }

    void streifen() {
        // The strip shows the variant in use (green and red exchanged), each row the colour number
        // of the row above it.
        setze(*m, "zahl_Matrix=13 color_Offset=250");
        palettenstreifen(*m, lauf, bild);
        for (int y = 0; y < 30; ++y) {
            const QRgb f = farbeVon(250 + std::max(y - 1, 0));
            const QRgb soll = qRgb(qGreen(f), qRed(f), qBlue(f));
            QCOMPARE((QList<QRgb>{bild.pixel(41, y), bild.pixel(42, y), bild.pixel(59, y)}),
                     (QList<QRgb>{Vorher, soll, soll}));
        }
        m->zahl_farbtab = 40;
        lauf.SpaltenKLGross = lauf.ZeilenKLGross = qint32(Gross);
        palettenstreifen(*m, lauf, bild);
        QCOMPARE(m->g_Max_rgbFarben, 256);
    }

    void marken_data() { zeilenAus("model/gitter.txt"); }
    void marken() {
        QFETCH(QStringList, spalten);
        setze(*m, spalten[0]);
        lauf.LinienRechnen = true;
        lauf.Schritte_Spalte = m->Br_x / 100;
        for (int schalter = 1; schalter < 12; ++schalter) {
            m->g_GitterJa = schalter / 4;
            m->g_MittelkreuzJa = schalter & 1;
            m->g_NullkreuzJa = (schalter >> 1) & 1;
            Linien linien(*m, lauf);
            AlleLinien erwartet(*m, lauf.Schritte_Spalte);
            for (int i = 0; i < 8000; ++i) {
                const double x = m->MP_x - m->Br_x / 2 + i % 100 * lauf.Schritte_Spalte;
                const double y = m->MP_y + 0.4 * m->Br_x - i / 100 * lauf.Schritte_Spalte;
                QCOMPARE(linien.marke(x, y), erwartet.marke(x, y));
            }
        }
    }

    void markenbedingung() {
        lauf.LinienRechnen = true;
        lauf.Schritte_Spalte = 0.04;
        setze(*m, "g_GitterJa=0 g_MittelkreuzJa=0 g_NullkreuzJa=1");
        // wanted, kind switched off (1 to 4 mark without a request, 5 none), mark
        for (const auto& [verlangt, loeschen, marke] : std::initializer_list<std::array<int, 3>>{
                 {1, 0, 201}, {0, 0, 0}, {1, 1, 201}, {0, 4, 201}, {1, 5, 0}}) {
            m->g_linienLoeschenJa = loeschen;
            lauf.LinienRechnen = verlangt == 1;
            QCOMPARE(Linien(*m, lauf).marke(0.0, 1.0), marke);
        }
        setze(*m, "g_linienLoeschenJa=0 g_NullkreuzJa=0");
    }

    void absurderAbstand() {
        setze(*m, "MP_x=-0.5 MP_y=0.1 Br_x=4");
        lauf.LinienRechnen = true;
        lauf.Schritte_Spalte = 0.04;
        for (const QString abstand : {"0", "-0.5", "nan", "inf", "1e300", "1e-300", "5e-324"}) {
            for (const int gitter : {1, 2}) {
                setze(*m, "g_Gitterabstand=" + abstand);
                m->g_GitterJa = gitter;
                Linien linien(*m, lauf);
                const int marke = linien.marke(0.3, 0.2);
                // A spacing far below a pixel covers the picture as long as its lines count.
                const bool winzig = abstand.contains("e-");
                QVERIFY(marke == 0 || (winzig && marke / 100 == 2 + gitter));
                QCOMPARE(linien.marke(-1e300, 1e300), 0);
            }
        }
        m->g_GitterJa = 0;
    }
};

QTEST_MAIN(TestEinfaerbung)
#include "test_einfaerbung.moc"
