#include "Testbasis.h"
#include "UI_Hauptfenster.h"

namespace {

using Menuezeiger = QMenu* UI::*;

struct Menuename {
    const char* name;
    Menuezeiger menue;
};

constexpr Menuename Menuenamen[] = {
    {"MenuDatei", &UI::MenuDatei},
    {"MenuGroesse", &UI::MenuGroesse},
    {"MenuZahlen", &UI::MenuZahlen},
    {"MenuGleichung", &UI::MenuGleichung},
    {"submenuG101", &UI::submenuG101},
    {"submenuG103", &UI::submenuG103},
    {"submenuG105", &UI::submenuG105},
    {"submenuG111", &UI::submenuG111},
    {"submenuG107", &UI::submenuG107},
    {"submenuG109", &UI::submenuG109},
    {"MenuAbbruchXY", &UI::MenuAbbruchXY},
    {"MenuZwilling", &UI::MenuZwilling},
    {"MenuFarbtab", &UI::MenuFarbtab},
    {"MenuLinien", &UI::MenuLinien},
    {"hilfeMenu", &UI::hilfeMenu},
    {"submenuFrakt01", &UI::submenuFrakt01},
    {"submenuFrakt02", &UI::submenuFrakt02},
    {"submenuFrakt03", &UI::submenuFrakt03},
    {"helpMenu", &UI::helpMenu},
    {"submenuFrakt01En", &UI::submenuFrakt01En},
    {"submenuFrakt02En", &UI::submenuFrakt02En},
    {"submenuFrakt03En", &UI::submenuFrakt03En},
};

/// The slots of the window that an action triggers, found by taking each connection away and
/// putting it back.
QString slotsVon(UI& fenster, QAction* aktion) {
    QStringList gefunden;
    const QMetaObject* meta = fenster.metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QByteArray signatur = meta->method(i).methodSignature();
        const QByteArray slot = QByteArray::number(QSLOT_CODE) + signatur;
        if (meta->method(i).methodType() == QMetaMethod::Slot &&
            QObject::disconnect(aktion, SIGNAL(triggered()), &fenster, slot.constData())) {
            gefunden << QString::fromLatin1(signatur);
            QObject::connect(aktion, SIGNAL(triggered()), &fenster, slot.constData());
        }
    }
    return gefunden.join(u' ');
}

/// The live menu as text, one line a row, indented by depth.
void schreibe(UI& fenster, QMenu* menue, int tiefe, QStringList& zeilen) {
    QString name = "unknown";
    for (const Menuename& eintrag : Menuenamen) {
        if (fenster.*eintrag.menue == menue) {
            name = eintrag.name;
        }
    }
    const QString rand(qsizetype{2} * tiefe, u' ');
    zeilen << QString("%1menu %2 \"%3\"").arg(rand, name, menue->title());
    for (QAction* aktion : menue->actions()) {
        if (aktion->menu() != nullptr) {
            schreibe(fenster, aktion->menu(), tiefe + 1, zeilen);
        } else if (aktion->isSeparator()) {
            zeilen << rand + "  -";
        } else {
            zeilen << QString("%1  \"%2\" %3").arg(rand, aktion->text(), slotsVon(fenster, aktion));
        }
    }
}

} // namespace

class TestMenue : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void baum();
    void eintraegeSindSchlicht();
    void gemeinsameHilfeaktionen();
    void beenden_data();
    void beenden();
};

void TestMenue::baum() {
    QFile datei(QFINDTESTDATA("menuebaum.txt"));
    QVERIFY(datei.open(QIODevice::ReadOnly | QIODevice::Text));
    const QStringList erwartet = QString::fromUtf8(datei.readAll()).chopped(1).split(u'\n');

    UI fenster;
    QCOMPARE(fenster.menuBar(), fenster.Menuleiste);
    QStringList zeilen;
    for (const QAction* aktion : fenster.Menuleiste->actions()) {
        schreibe(fenster, aktion->menu(), 0, zeilen);
    }
    for (qsizetype i = 0; i < std::min(zeilen.size(), erwartet.size()); ++i) {
        QCOMPARE(zeilen[i], erwartet[i]);
    }
    QCOMPARE(zeilen.size(), erwartet.size());
}

void TestMenue::eintraegeSindSchlicht() {
    UI fenster;
    for (const Menuename& eintrag : Menuenamen) {
        QCOMPARE((fenster.*eintrag.menue)->parent(), fenster.Menuleiste);
        for (const QAction* aktion : (fenster.*eintrag.menue)->actions()) {
            QVERIFY(aktion->isEnabled());
            QVERIFY(!aktion->isCheckable());
            QVERIFY(aktion == fenster.exitAct || aktion->shortcuts().isEmpty());
        }
    }
    QCOMPARE(fenster.exitAct->shortcuts(), QKeySequence::keyBindings(QKeySequence::Quit));
}

void TestMenue::gemeinsameHilfeaktionen() {
    UI fenster;
    const QList<QAction*> gemeinsam{fenster.aboutAct, fenster.aboutQtAct, fenster.exitAct};
    for (QMenu* menue : {fenster.hilfeMenu, fenster.helpMenu}) {
        QList<QAction*> aktionen;
        for (QAction* aktion : menue->actions()) {
            if (!aktion->isSeparator() && aktion->menu() == nullptr) {
                aktionen << aktion;
            }
        }
        QCOMPARE(aktionen, gemeinsam);
    }
    QVERIFY(QObject::disconnect(fenster.aboutQtAct, SIGNAL(triggered()), qApp, SLOT(aboutQt())));
}

void TestMenue::beenden_data() {
    QTest::addColumn<bool>("hilfe");
    QTest::newRow("E&xit") << true;
    QTest::newRow("Beenden/Exit") << false;
}

void TestMenue::beenden() {
    QFETCH(bool, hilfe);
    UI fenster;
    fenster.setAttribute(Qt::WA_DontShowOnScreen);
    fenster.show();
    QVERIFY(fenster.isVisible());
    (hilfe ? fenster.exitAct : fenster.MenuDatei->actions().constLast())->trigger();
    QVERIFY(!fenster.isVisible());
}

QTEST_MAIN(TestMenue)
#include "test_menue.moc"
