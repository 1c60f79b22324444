// The colour pass, the palette strip and the overlay marks, as painted pictures show them.

#include "Bildprobe.h"

namespace {

constexpr QRgb Vorher = qRgb(1, 2, 3); ///< what the image showed before the pass
const QMap<QString, QRgb> Feste{
    {"black", qRgb(0, 0, 0)}, {"white", qRgb(255, 255, 255)}, {"untouched", Vorher}};

/// Colour of the row that a colour number falls on in the test's palette.
QRgb farbeVon(qint64 nummer) {
    const auto reihe = static_cast<int>(((nummer % 512) + 512) % 512);
    return qRgb(reihe % 256, reihe / 256, 77);
}

/// Family of the mark by the plain rule, in which every line of a grid is tried at every pixel: 1
/// centre cross, 2 zero cross, 3 zero grid, 4 centre grid.
int markenfamilie(const M& m, double S, double x, double y) {
    const double g = m.g_Gitterabstand;
    const bool null = m.g_GitterJa == 1;
    const int n = m.g_GitterJa > 0 && g > 0 ? int(m.Br_x / g / m.g_GitterJa) : 0;
    int familie = 0;
    for (int k = -n; k < n; ++k) {
        const double linieX = null ? (int(m.MP_x / g) + k) * g : m.MP_x + k * g;
        const double linieY = null ? (int(m.MP_y / g) + k) * g : m.MP_y + k * g;
        if (std::abs(x - linieX) < S / 2 || std::abs(y - linieY) < S / 2) {
            familie = 2 + m.g_GitterJa;
        }
    }
    const auto kreuz = [&](double mitteX, double mitteY) {
        return (x <= mitteX + S && x >= mitteX - S) || (y <= mitteY + S && y >= mitteY - S);
    };
    familie = m.g_MittelkreuzJa == 1 && kreuz(m.MP_x, m.MP_y) ? 1 : familie;
    familie = m.g_NullkreuzJa == 1 && kreuz(0, 0) ? 2 : familie;
    return m.g_linienLoeschenJa == 5 ? 0 : familie;
}

} // namespace

class TestEinfaerbung : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m;

    QImage faerben(const QString& felder) {
        m->Bildflaeche.fill(Vorher);
        return malen(*m, felder);
    }

  private Q_SLOTS:
    void init() {
        m = bildprobe(40, 30);
        for (std::size_t i = 0; i < 512; ++i) {
            const QRgb f = farbeVon(static_cast<qint64>(i));
            m->colormapWave[3 * i] = static_cast<quint8>(qRed(f));
            m->colormapWave[3 * i + 1] = static_cast<quint8>(qGreen(f));
            m->colormapWave[3 * i + 2] = static_cast<quint8>(qBlue(f));
        }
        setze(*m, "zahl_farbtab=0 zahl_Matrix=11 color_Offset=0 it_Factor=1 div_Factor=50 "
                  "konv_Factor=700 wert_Abbruch=4 Max_Iterationen=100 rechen_VarianteDiv=2 "
                  "rechen_VarianteKonv=0");
        malen(*m);
    }

    void farbnummer_data() { zeilenAus("model/farben.txt"); }
    void farbnummer() {
        QFETCH(QStringList, spalten);
        m->ImageDoubles[8][5] = spalten[1].section(' ', 0, 0).toDouble();
        m->ImageIntegers[8][5] = spalten[1].section(' ', 1).toInt();
        const QRgb soll = Feste.value(spalten[2], farbeVon(spalten[2].toLongLong()));
        QCOMPARE(faerben(spalten[0]).pixel(5, 7), soll);
    }

    // Every cell shows the same small picture in its own variant; marks and the one colour of the
    // inside are the same in all.
    void matrix() {
        faerben("zahl_Matrix=1000"); // the image gets its size
        const QImage bild = faerben("rechen_VarianteKonv=1005 g_NullkreuzJa=1");
        for (int y = 0; y < 30; ++y) {
            for (int x = 0; x < 40; ++x) {
                const auto zeile = std::size_t(y % 7 + 1), spalte = std::size_t(x % 10);
                const auto n = quint32(m->ImageViertelIntegers[zeile][spalte]);
                const int marke = m->ImageViertelGitterIntegers[zeile][spalte];
                const auto code = quint32(10 * (y / 7 + 1) + x / 10 + 1);
                const QRgb soll = y >= 28      ? Vorher
                                  : marke != 0 ? m->FarbeKreuze(quint32(marke)).rgb()
                                  : n < 100    ? m->FarbeV1(n, code, 0).rgb()
                                               : farbeVon(5);
                QCOMPARE(bild.pixel(x, y), soll);
            }
        }
    }

    void streifen() {
        // The strip shows the variant in use (green and red exchanged), each row the colour number
        // of the row above it.
        const QImage bild = faerben("zahl_Matrix=13 color_Offset=250");
        for (int y = 0; y < 30; ++y) {
            const QRgb f = farbeVon(250 + std::max(y - 1, 0));
            const QRgb soll = qRgb(qGreen(f), qRed(f), qBlue(f));
            QCOMPARE((QList<QRgb>{bild.pixel(41, y), bild.pixel(42, y), bild.pixel(59, y)}),
                     (QList<QRgb>{Vorher, soll, soll}));
        }
        faerben("zahl_farbtab=40");
        QCOMPARE(m->g_Max_rgbFarben, 256);
    }

    void marken_data() { zeilenAus("model/gitter.txt"); }
    void marken() {
        QFETCH(QStringList, spalten);
        for (int schalter = 0; schalter < 12; ++schalter) {
            m->g_GitterJa = schalter / 4;
            m->g_MittelkreuzJa = schalter & 1;
            m->g_NullkreuzJa = (schalter >> 1) & 1;
            const QImage bild = faerben("g_RechnenJa=2 " + spalten[0]);
            const double S = m->Br_x / 40;
            QSet<int> arten;
            double y = m->I_Max;
            for (int zeile = 0; zeile < 30; ++zeile) {
                double x = m->R_Min;
                for (int spalte = 0; spalte < 40; ++spalte) {
                    const int marke =
                        m->ImageGitterIntegers[std::size_t(zeile) + 1][std::size_t(spalte)];
                    QCOMPARE(marke / 100, markenfamilie(*m, S, x, y));
                    QCOMPARE(bild.pixel(spalte, zeile) == m->FarbeKreuze(quint32(marke)).rgb(),
                             marke != 0);
                    arten << marke % 100;
                    x += S;
                }
                y -= S;
            }
            // Every line alternates between two colours.
            QCOMPARE(arten.contains(1), arten.contains(2));
        }
    }
};

QTEST_MAIN(TestEinfaerbung)
#include "test_einfaerbung.moc"
