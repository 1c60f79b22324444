// The program's own start. It makes the application itself, so the test looks in from its event
// loop.

#define main programmstart
#include "main.cpp"
#undef main

#include <QThread>
#include <QTimer>

static QString g_gesehen; ///< name and title of the running program

static void hineinsehen() {
    auto* uhr = new QTimer(qApp);
    QObject::connect(uhr, &QTimer::timeout, qApp, [] {
        for (QWidget* fenster : QApplication::topLevelWidgets()) {
            const bool laeuft = QThread::currentThread()->loopLevel() > 0 && fenster->isVisible();
            if (qobject_cast<UI*>(fenster) != nullptr && laeuft) {
                g_gesehen += QGuiApplication::desktopFileName() + ' ' + fenster->windowTitle();
                fenster->close();
            }
        }
    });
    uhr->start(20);
}
Q_COREAPP_STARTUP_FUNCTION(hineinsehen)

class TestStart : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    /// The name ties the window to its menu entry where the display goes by names.
    void start() {
        QByteArray name("w");
        std::array<char*, 2> argumente{name.data(), nullptr};
        QCOMPARE(programmstart(1, argumente.data()), 0);
        QVERIFY2(g_gesehen.startsWith("wirbelwerk Wirbelwerk ("), qPrintable(g_gesehen));
    }
};

QTEST_APPLESS_MAIN(TestStart)
#include "test_start.moc"
