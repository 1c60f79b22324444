#include "equations/Gleichungen.h"

#include "Mandelbrot.h"
#include "Testbasis.h"

#include <memory>

#include <QCryptographicHash>

class TestGleichungen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void katalog();
    void namenUnveraendert();
    void ohneName_data();
    void ohneName();
    void partner_data();
    void partner();
    void partnerGegenseitig();
};

void TestGleichungen::katalog() {
    const auto m = std::make_unique<Mandelbrot>();
    QCOMPARE(gleichungen().size(), std::size_t{98});
    for (const Gleichung& gleichung : gleichungen()) {
        QCOMPARE(findeGleichung(gleichung.nummer), &gleichung);
        m->wahl_Gleichung = gleichung.nummer;
        m->EquationName();
        QVERIFY2(m->g_NameGlg.startsWith(QString("%1: ").arg(gleichung.nummer)),
                 qPrintable(m->g_NameGlg));
        QCOMPARE(m->g_NameGlg.toStdString(), gleichung.name);
        QVERIFY(familie(gleichung.nummer) >= 1 && familie(gleichung.nummer) <= 12);
    }
}

// The names are fixed to the byte. The value is the checksum of the lines "number, tab, name",
// formed from the printed list.
void TestGleichungen::namenUnveraendert() {
    QCryptographicHash summe(QCryptographicHash::Sha256);
    for (const Gleichung& gleichung : gleichungen()) {
        summe.addData(QByteArray::number(gleichung.nummer) + '\t' +
                      QByteArray(gleichung.name.data(), qsizetype(gleichung.name.size())) + '\n');
    }
    QCOMPARE(summe.result().toHex(),
             QByteArray("4e83b06fee804a6ad40c162beb2ce1349843767b06818ec93da7de291b5a0a26"));
}

void TestGleichungen::ohneName_data() {
    QTest::addColumn<int>("nummer");
    QTest::newRow("zero") << 0;
    QTest::newRow("negative") << -1;
    QTest::newRow("negative of a number") << -101;
    QTest::newRow("between the groups") << 11;
    QTest::newRow("family without this member") << 801;
    QTest::newRow("above the last") << 1001;
    QTest::newRow("folded") << 1010004;
    QTest::newRow("smallest integer") << std::numeric_limits<int>::min();
    QTest::newRow("largest integer") << std::numeric_limits<int>::max();
}

void TestGleichungen::ohneName() {
    QFETCH(int, nummer);
    const auto m = std::make_unique<Mandelbrot>();
    m->g_NameGlg = "x";
    m->wahl_Gleichung = nummer;
    m->EquationName();
    QCOMPARE(m->g_NameGlg, QString(" "));
}

void TestGleichungen::partner_data() {
    QTest::addColumn<int>("nummer");
    QTest::addColumn<int>("erwartet");
    QTest::newRow("1") << 1 << 2;
    QTest::newRow("8") << 8 << 7;
    QTest::newRow("9 Newton") << 9 << 0;
    QTest::newRow("911") << 911 << 912;
    QTest::newRow("810 Newton") << 810 << 0;
    QTest::newRow("no equation") << 601 << 0;
    QTest::newRow("largest integer") << std::numeric_limits<int>::max() << 0;
}

void TestGleichungen::partner() {
    QFETCH(int, nummer);
    QTEST(juliaPartner(nummer), "erwartet");
}

void TestGleichungen::partnerGegenseitig() {
    int mitPartner = 0;
    for (const Gleichung& gleichung : gleichungen()) {
        if (const qint32 partner = juliaPartner(gleichung.nummer); partner != 0) {
            QCOMPARE(juliaPartner(partner), gleichung.nummer);
            ++mitPartner;
        }
    }
    QCOMPARE(mitPartner, 98 - 2 - 18); // all but the Newton equations
}

QTEST_MAIN(TestGleichungen)
#include "test_gleichungen.moc"
