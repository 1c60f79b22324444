// The colour pass, the palette strip and the overlay marks, as painted pictures show them.

#include "Bildprobe.h"

namespace {

constexpr QRgb Vorher = qRgb(1, 2, 3); ///< what the image showed before the pass
const QMap<QString, QRgb> Feste{
    {"black", qRgb(0, 0, 0)}, {"white", qRgb(255, 255, 255)}, {"untouched", Vorher}};

/// Colour of the row that a colour number falls on in the test's palette.
QRgb farbeVon(qint64 nummer) {
    const auto zeile = static_cast<int>(((nummer % 512) + 512) % 512);
    return qRgb(zeile % 256, zeile / 256, 77);
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
        for (std::size_t i = 0; i < 3 * 512; ++i) {
            const std::array<std::size_t, 3> farbe{i / 3 % 256, i / 3 / 256, 77};
            m->colormapWave[i] = static_cast<quint8>(farbe[i % 3]);
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
        m = bildprobe(16, 12);
        const QImage bild = malen(*m, "MP_x=-0.5 MP_y=0.25 Br_x=4 " + spalten[0]);
        QString ist;
        for (int i = 0; i < 16 * 12; ++i) {
            const int x = i % 16, y = i / 16;
            const int marke = m->ImageGitterIntegers[std::size_t(y) + 1][std::size_t(x)];
            const QChar art = QString(".abcd")[marke / 100];
            ist += QString(x == 0 && y > 0 ? " " : "") + (marke % 2 == 0 ? art.toUpper() : art);
            QVERIFY(marke == 0 || bild.pixel(x, y) == m->FarbeKreuze(quint32(marke)).rgb());
        }
        QCOMPARE(ist, spalten[1]);
    }
};

QTEST_MAIN(TestEinfaerbung)
#include "test_einfaerbung.moc"
