#include "Mandelbrot.h"
#include "Testbasis.h"

#include <memory>

class TestOperationen : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void falten();
};

void TestOperationen::falten() {
    const auto m = std::make_unique<Mandelbrot>();
    m->wahl_Gleichung = 305;
    m->g_ZwillingJa = 2;
    QCOMPARE(m->get_wahl_Gleichung(), 3050002);
    QCOMPARE(m->wahl_Gleichung, 3050002);
    QCOMPARE(m->get_wahl_Gleichung(), 3050002);
    m->set_wahl_Gleichung(3050002);
    QCOMPARE(m->wahl_Gleichung, 305);
    QCOMPARE(m->g_ZwillingJa, 2);
}

QTEST_MAIN(TestOperationen)
#include "test_operationen.moc"
