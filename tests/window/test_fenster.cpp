#include "Texttabelle.h"
#include "UI_Hauptfenster.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QRegularExpression>
#include <QTextDocument>

// What the user sees: that every command is at hand, what the panel does, sizes, readable captions.

namespace {

/// The slot of the window that a signal reaches, found by taking each connection away.
QString slotVon(UI& fenster, QObject* sender, const char* signal) {
    const QMetaObject* meta = fenster.metaObject();
    for (int i = 0; i < meta->methodCount(); ++i) {
        const QByteArray slot = QByteArray::number(QSLOT_CODE) + meta->method(i).methodSignature();
        if (meta->method(i).methodType() == QMetaMethod::Slot &&
            QObject::disconnect(sender, signal, &fenster, slot.constData())) {
            return QString::fromLatin1(meta->method(i).name());
        }
    }
    return {};
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

} // namespace

class TestFenster : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> ui;

  private Q_SLOTS:
    void init() { ui = std::make_unique<UI>(); }

    /// By menu or button; the last number in a command's name is in the caption.
    void jederBefehlIstErreichbar() {
        QSet<QString> erreicht;
        for (QAction* aktion : ui->findChildren<QAction*>()) {
            if (aktion->isSeparator() || aktion->menu() != nullptr) {
                continue;
            }
            const QString slot = slotVon(*ui, aktion, SIGNAL(triggered()));
            QVERIFY2(!slot.isEmpty() || aktion == ui->aboutQtAct, qPrintable(aktion->text()));
            QVERIFY2(!aktion->associatedObjects().isEmpty(), qPrintable(aktion->text()));
            erreicht << slot;
            const auto zahl =
                QRegularExpression("^(?!Vorschau(XY|Voll)).*?(\\d+)\\D*$").match(slot);
            QVERIFY2(aktion->text().contains(zahl.captured(2)), qPrintable(slot));
        }
        for (QPushButton* knopf : ui->findChildren<QPushButton*>()) {
            erreicht << slotVon(*ui, knopf, SIGNAL(clicked()));
        }
        const QMetaObject& meta = UI::staticMetaObject;
        QStringList nie;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QString name = QString::fromLatin1(meta.method(i).name());
            if (name.endsWith("Slot") && !erreicht.contains(name)) {
                nie << name;
            }
        }
        // Only signals and other commands call these.
        QCOMPARE(nie.join(' '), "WerteAktualisierenSlot WerteColorAktualisierenSlot "
                                "NeueColorBerechnungSlot setupColShiftSlot setColShiftSliderSlot "
                                "UnDo2DatenTeilbildLadenSlot");
    }

    /// A button changes the value in its row, in the direction that its caption says.
    void knoepfe() {
        int anzahl = 0, zeile = 0, spalte = 0, hoehe = 0, breite = 0;
        for (QPushButton* knopf : ui->findChildren<QPushButton*>()) {
            const auto* gitter = qobject_cast<QGridLayout*>(knopf->parentWidget()->layout());
            gitter->getItemPosition(gitter->indexOf(knopf), &zeile, &spalte, &hoehe, &breite);
            const QWidget* kasten = gitter->itemAtPosition(zeile, 0)->widget();
            if (qobject_cast<const QAbstractSpinBox*>(kasten) == nullptr) {
                continue;
            }
            setze(*ui->Menge,
                  "MP_x=1 MP_y=1 Koppl_x=3 Koppl_y=3 click2_Zoom=2 glg_Abbruch=3 "
                  "zahl_farbtab=3 zahl_Matrix=22 color_Offset=30 it_Factor=1 div_Factor=1 "
                  "konv_Factor=1 rechen_VarianteDiv=3 rechen_VarianteKonv=3");
            ui->WerteAktualisierenSlot();
            const double vorher = kasten->property("value").toDouble();
            knopf->click();
            const double nachher = kasten->property("value").toDouble();
            const bool mehr = knopf->text().contains('*') || knopf->text().contains('+');
            QVERIFY2(mehr ? nachher > vorher : nachher < vorher, qPrintable(knopf->text()));
            ++anzahl;
        }
        QCOMPARE(anzahl, 31);
    }

    // Panel and model are joined by clicks on the picture, the two big buttons and the slider.
    void feldUndBild() {
        QTest::mousePress(ui->Menge, Qt::LeftButton, {}, QPoint(40, 30));
        QVERIFY(ui->Menge->MP_x < -0.5);
        QCOMPARE(ui->UI_MPx->value(), ui->Menge->MP_x);
        QVERIFY(ui->windowTitle().contains(">>"));
        ui->UI_MPx->setValue(0.25);
        QVERIFY(ui->Menge->MP_x < -0.5); // nothing listens to the boxes
        ui->UI_Start->click();
        QCOMPARE(ui->Menge->MP_x, 0.25);
        ui->UI_Vorschau->click();
        QCOMPARE(ui->Menge->g_RechnenJa, 3);
        ui->colShift_Slider->setValue(100);
        QCOMPARE(ui->Menge->color_Offset, 100);
        QCOMPARE(ui->UI_colorOffset->value(), 100);
        ui->UI_itFactor->setValue(0.123456); // five decimals, one a step
        ui->UI_itFactor->stepUp();
        QCOMPARE(ui->UI_itFactor->value(), 1.12346);
    }

    void groessen_data() { zeilenAus("window/groessen.txt"); }
    void groessen() {
        QFETCH(QStringList, spalten);
        const QSize fenster(spalten[1].toInt(), spalten[2].toInt());
        ui->show();
        QVERIFY(QTest::qWaitForWindowExposed(ui.get()));
        QVERIFY(!ui->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        const QPointer<Mandelbrot> vorgaenger = ui->Menge;
        if (!spalten[0].isEmpty()) {
            ui->Menge->MP_x = 17.0;
            QVERIFY(QMetaObject::invokeMethod(ui.get(), spalten[0].toUtf8().constData()));
            QTRY_VERIFY(vorgaenger.isNull());
            QCOMPARE(ui->UI_MPx->value(), -0.5);
        }
        QTRY_VERIFY(ui->Menge->isVisible() && ui->Menge->width() > fenster.width() / 2);
        QCOMPARE(ui->Menge->cursor().shape(), Qt::CrossCursor);
        QCOMPARE(ui->size(), fenster);
        QCOMPARE(ui->KonfigC->maximumWidth(), fenster.width() / 4);

        const QList<QRect> vorher = lagen(*ui);
        for (qsizetype i = 0; i < vorher.size(); ++i) {
            QVERIFY(ui->rect().contains(vorher[i]));
            for (qsizetype j = 0; j < i; ++j) {
                QVERIFY2(!vorher[i].intersects(vorher[j]), qPrintable(QString::number(i)));
            }
        }
        // The widest texts of the commands move nothing.
        ui->infoLabel11->setText("<b>Zwilling Aus</b>");
        ui->infoLabel22->setText("<b>Maus-Orbit</b>");
        ui->infoLabel33->setText("<b>Mittelpunkt</b>");
        ui->infoLabelCx33->setText("<b>256 Iter.Max.</b>");
        ui->infoLabelCy33->setText("<b>abIter=Zoom</b>");
        ui->infoLabelPalette->setText("<b>Palette 4</b>");
        QTest::qWait(0);
        QCOMPARE(lagen(*ui), vorher);
        for (const QWidget* teil : zellen(*ui)) {
            const auto* label = qobject_cast<const QLabel*>(teil);
            const bool box = qobject_cast<const QAbstractSpinBox*>(teil) != nullptr;
            const QString text = box ? QString() : teil->property("text").toString();
            QTextDocument inhalt;
            inhalt.setDefaultFont(teil->font());
            inhalt.setDocumentMargin(label != nullptr ? std::max(0, label->indent()) / 2.0
                                                      : 1.0); // frame or indent
            inhalt.setHtml(text);
            QVERIFY(teil->height() >= QFontMetrics(teil->font()).height() || text.isNull());
            QVERIFY2(fenster.width() < 985 || inhalt.idealWidth() <= teil->width(),
                     qPrintable(text));
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
