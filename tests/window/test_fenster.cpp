#include "Stand.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QTextDocument>

#include <cmath>
#include <memory>

// What the user sees: menus and panel as text, sizes, readable captions.

namespace {

/// The slots of the window that a signal reaches, found by taking each connection away and putting
/// it back.
QString slotsVon(UI& fenster, QObject* sender, const char* signal) {
    QStringList gefunden;
    const QMetaObject* meta = fenster.metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QByteArray signatur = meta->method(i).methodSignature();
        const QByteArray slot = QByteArray::number(QSLOT_CODE) + signatur;
        if (meta->method(i).methodType() == QMetaMethod::Slot &&
            QObject::disconnect(sender, signal, &fenster, slot.constData())) {
            gefunden << QString::fromLatin1(signatur);
            QObject::connect(sender, signal, &fenster, slot.constData());
        }
    }
    return gefunden.join(' ');
}

/// A menu, one line a row, indented by depth.
QStringList alsText(UI& fenster, const QMenu* menue, int tiefe) {
    const QString rand(qsizetype{2} * tiefe, ' ');
    QStringList zeilen{QString("%1menu \"%2\"").arg(rand, menue->title())};
    for (QAction* aktion : menue->actions()) {
        if (aktion->menu() != nullptr) {
            zeilen << alsText(fenster, aktion->menu(), tiefe + 1);
        } else {
            const QString ziel = slotsVon(fenster, aktion, SIGNAL(triggered()));
            zeilen << rand + (aktion->isSeparator()
                                  ? "  -"
                                  : QString("  \"%1\" %2").arg(aktion->text(), ziel));
        }
    }
    return zeilen;
}

QString zelleAlsText(UI& fenster, QWidget* teil) {
    for (const auto& [name, box] : Boxen) {
        if (box(fenster) == teil) {
            return name + ":" + teil->metaObject()->className();
        }
    }
    for (const auto& [name, label] : Labels) {
        if (fenster.*label == teil) {
            return "label " + name + (fenster.*label)->text();
        }
    }
    if (const auto* beschriftung = qobject_cast<QLabel*>(teil)) {
        return '"' + beschriftung->text() + '"';
    }
    if (auto* knopf = qobject_cast<QPushButton*>(teil)) {
        return '"' + knopf->text() + "\" " + slotsVon(fenster, knopf, SIGNAL(clicked()));
    }
    return teil->metaObject()->className();
}

/// A panel, one line a row of its grid; "<" continues the cell to its left.
QStringList feldAlsText(UI& fenster, const QWidget* feld) {
    const auto* gitter = qobject_cast<QGridLayout*>(feld->layout());
    QStringList zeilen;
    for (int zeile = 0; zeile < gitter->rowCount(); ++zeile) {
        QStringList texte;
        for (int spalte = 0; spalte < gitter->columnCount(); ++spalte) {
            const QLayoutItem* hier = gitter->itemAtPosition(zeile, spalte);
            const bool weiter = spalte > 0 && hier == gitter->itemAtPosition(zeile, spalte - 1);
            texte << (hier == nullptr ? "" : weiter ? "<" : zelleAlsText(fenster, hier->widget()));
        }
        zeilen << QString("%1: %2").arg(zeile).arg(texte.join(" | "));
    }
    return zeilen;
}

QList<QWidget*> zellen(const UI& ui) {
    return ui.KonfigC->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly) +
           ui.Konfig->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QList<QRect> lagen(const UI& ui) {
    QList<QRect> rechtecke{ui.Menge->geometry().translated(ui.Layout->pos())};
    for (const QWidget* teil : zellen(ui)) {
        rechtecke << QRect(teil->mapTo(&ui, QPoint(0, 0)), teil->size());
    }
    return rechtecke;
}

/// Pixels that the text of a label or button needs; hardly any for other widgets.
int textbreite(const QWidget* teil) {
    const auto* schild = qobject_cast<const QLabel*>(teil);
    const bool box = qobject_cast<const QAbstractSpinBox*>(teil) != nullptr;
    QTextDocument inhalt;
    inhalt.setDefaultFont(teil->font());
    inhalt.setDocumentMargin(0);
    inhalt.setHtml(box ? QString() : teil->property("text").toString());
    constexpr int kanten = 2; // one line of frame on each side
    return static_cast<int>(std::ceil(inhalt.idealWidth())) +
           (schild != nullptr ? std::max(0, schild->indent()) : kanten);
}

} // namespace

class TestFenster : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> ui;

  private Q_SLOTS:
    void init() { ui = std::make_unique<UI>(); }

    void fenster() {
        QCOMPARE(ui->windowTitle(), QString("Wirbelwerk (https://wirbelwerk.example) "));
        const Qt::WindowFlags knoepfe = Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint;
        QCOMPARE(ui->windowFlags() & (knoepfe | Qt::WindowMaximizeButtonHint), knoepfe);
        QCOMPARE(ui->KonfigC->styleSheet(), QString("background-color:#dddddd; "));
        QCOMPARE(ui->UI_Start->styleSheet(), QString("background-color:green; color:white;"));
        QCOMPARE(ui->UI_Vorschau->styleSheet(), QString("background-color:blue; color:white;"));
        QCOMPARE(ui->colShift_Slider->maximum(), 512);
        QCOMPARE(ui->Menge->cursor().shape(), Qt::CrossCursor);
    }

    void menuesUndFelder() {
        QStringList zeilen;
        for (const QAction* aktion : ui->menuBar()->actions()) {
            zeilen << alsText(*ui, aktion->menu(), 0);
        }
        zeilen << "panel above" << feldAlsText(*ui, ui->KonfigC) << "panel below"
               << feldAlsText(*ui, ui->Konfig);
        const QStringList erwartet = zeilenAus("menuebaum.txt") + zeilenAus("steuerfeld.txt");
        for (qsizetype i = 0; i < std::min(zeilen.size(), erwartet.size()); ++i) {
            QCOMPARE(zeilen[i], erwartet[i]);
        }
        QCOMPARE(zeilen.size(), erwartet.size());
    }

    void eintraegeSindSchlicht() {
        for (const QMenu* menue : ui->menuBar()->findChildren<QMenu*>()) {
            for (const QAction* aktion : menue->actions()) {
                QVERIFY(aktion->isEnabled() && !aktion->isCheckable());
                QVERIFY(aktion == ui->exitAct || aktion->shortcuts().isEmpty());
            }
        }
        QCOMPARE(ui->exitAct->shortcuts(), QKeySequence::keyBindings(QKeySequence::Quit));
        QVERIFY(QObject::disconnect(ui->aboutQtAct, SIGNAL(triggered()), qApp, SLOT(aboutQt())));
    }

    void kaesten() {
        const Stand start = lies(*ui);
        for (const auto& [name, box] : Boxen) {
            QWidget* kasten = box(*ui);
            QCOMPARE(start.box.at(name), start.feld.at(name));
            const QString art = kasten->metaObject()->className();
            const bool ganz = art == "UI_QSpinBox", faktor = art == "UI_QDoubleSpinBoxK";
            QCOMPARE(kasten->property("maximum").toDouble(), ganz ? 9e7 : 1e30);
            QCOMPARE(kasten->property("minimum").toDouble(), ganz ? -9e7 : -1e30);
            QCOMPARE(kasten->property("singleStep").toDouble(), ganz || faktor ? 1.0 : 0.1);
            QCOMPARE(kasten->property("decimals").toInt(), ganz ? 0 : faktor ? 5 : 16);
            kasten->setProperty("value", 77);
        }
        // Nothing listens to a box: the model changes by the triggers only.
        QVERIFY(lies(*ui).feld == start.feld);
    }

    void signaleDesModells() {
        Mandelbrot* m = ui->Menge;
        m->MP_x = 0.25;
        Q_EMIT m->WerteAktualisierenSignal();
        QCOMPARE(ui->UI_MPx->value(), 0.25);
        ui->UI_MPy->setValue(0.75);
        Q_EMIT m->NeueBerechnungSignal();
        QCOMPARE(m->MP_y, 0.75);
        ui->colShift_Slider->setValue(100);
        QCOMPARE(m->color_Offset, 100);
        QCOMPARE(ui->UI_colorOffset->value(), 100);
    }

    void groessen_data() {
        QTest::addColumn<QByteArray>("slot");
        QTest::addColumn<QSize>("fenster");
        QTest::addColumn<bool>("lesbar");
        QTest::newRow("start") << QByteArray() << QSize(985, 675) << true;
        QTest::newRow("small") << QByteArray("Pixel520x600Slot") << QSize(520, 600) << false;
        QTest::newRow("back") << QByteArray("Pixel985x675Slot") << QSize(985, 675) << true;
        QTest::newRow("large") << QByteArray("Pixel1520x1210Slot") << QSize(1520, 1210) << true;
    }

    void groessen() {
        QFETCH(QByteArray, slot);
        QFETCH(QSize, fenster);
        QFETCH(bool, lesbar);
        ui->show();
        QVERIFY(QTest::qWaitForWindowExposed(ui.get()));
        ui->Menge->MP_x = 17.0;
        const QPointer<Mandelbrot> vorgaenger = ui->Menge;
        if (!slot.isEmpty()) {
            QVERIFY(QMetaObject::invokeMethod(ui.get(), slot.constData()));
            QTRY_VERIFY(vorgaenger.isNull());
            QCOMPARE(ui->UI_MPx->value(), -0.5);
        }
        QTRY_VERIFY(ui->Menge->isVisible() && ui->Menge->width() > fenster.width() / 2);
        QCOMPARE(ui->size(), fenster);
        QCOMPARE(ui->KonfigC->maximumWidth(), fenster.width() / 4);

        const QList<QRect> vorher = lagen(*ui);
        for (qsizetype i = 0; i < vorher.size(); ++i) {
            QVERIFY(ui->rect().contains(vorher.at(i)));
            for (qsizetype j = 0; j < i; ++j) {
                QVERIFY2(!vorher.at(i).intersects(vorher.at(j)), qPrintable(QString::number(i)));
            }
        }
        // The widest texts of the commands move nothing.
        Stand spaet = lies(*ui);
        spaet.label = {{"11", "<b>Zwilling Aus</b>"},  {"22", "<b>Maus-Orbit</b>"},
                       {"33", "<b>Mittelpunkt</b>"},   {"Cx33", "<b>256 Iter.Max.</b>"},
                       {"Cy33", "<b>abIter=Zoom</b>"}, {"Palette", "<b>Palette 4</b>"}};
        stelle(*ui, spaet);
        QTest::qWait(0);
        QCOMPARE(lagen(*ui), vorher);
        for (const QWidget* teil : zellen(*ui)) {
            QVERIFY(teil->height() >= QFontMetrics(teil->font()).height() ||
                    teil->property("text").isNull());
            QVERIFY2(!lesbar || textbreite(teil) <= teil->width(),
                     qPrintable(teil->property("text").toString()));
        }
    }

    /// A narrow box shows the first digits also after a step, a tab and an input.
    void anfangDerZahl() {
        ui->show();
        ui->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ui.get()));
        const auto* zeile = ui->UI_MPx->findChild<QLineEdit*>();
        ui->UI_MPx->setFocus();
        QTest::keyClick(ui->UI_MPx, Qt::Key_Up);
        QCOMPARE(zeile->cursorPosition(), 0);
        QCOMPARE(zeile->selectedText(), zeile->text());
        QTest::keyClicks(ui->UI_MPx, "0.1234567890123456");
        QVERIFY(zeile->cursorPosition() > 0);
        QTest::keyClick(ui->UI_MPx, Qt::Key_Tab);
        QCOMPARE(ui->UI_MPx->value(), 0.1234567890123456);
        QCOMPARE(zeile->cursorPosition(), 0);
        QTest::keyClick(ui->focusWidget(), Qt::Key_Backtab);
        QCOMPARE(zeile->cursorPosition(), 0);
    }
};

QTEST_MAIN(TestFenster)
#include "test_fenster.moc"
