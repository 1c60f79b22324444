#include "Texttabelle.h"
#include "UI_Hauptfenster.h"
#include "window/Sprache.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTextDocument>
#include <QToolTip>
#include <QTranslator>

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

double zahlIn(const QWidget* box) { return box->property("value").toDouble(); }

bool wartend() {
    const QCursor* zeiger = QGuiApplication::overrideCursor();
    return zeiger != nullptr && zeiger->shape() == Qt::WaitCursor;
}

} // namespace

class TestFenster : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> ui;

    QHash<QAction*, QString> befehle; ///< what the entries of the menus call
    QList<QStringList> menues = tabelle("window/menues.txt");

    /// Compares the menus among these entries with the next rows of the table.
    void menuesPruefen(const QList<QAction*>& eintraege) {
        for (const QAction* titel : eintraege) {
            if (titel->menu() == nullptr) {
                continue;
            }
            QVERIFY2(!menues.isEmpty() && titel->text().remove('&').contains(menues[0][0]),
                     qPrintable(titel->text()));
            const QStringList worte = menues.takeFirst().last().split(' ');
            const QList<QAction*> da = titel->menu()->actions();
            QStringList ist; // the row as it is
            for (QAction* eintrag : da) {
                ist << alsWort(eintrag, worte.value(ist.size()));
            }
            QCOMPARE(ist.join(' '), worte.join(' '));
            menuesPruefen(da);
        }
    }

    /// The word itself when the entry is what it says, else what the entry is.
    QString alsWort(QAction* eintrag, const QString& wort) {
        const QString text = eintrag->text().remove(' ').remove('&');
        if (eintrag->isSeparator()) {
            return "|";
        }
        if (eintrag->menu() != nullptr) {
            return ('>' + text).contains(wort) ? wort : text;
        }
        if (!befehle.contains(eintrag)) {
            befehle[eintrag] = slotVon(*ui, eintrag, SIGNAL(triggered())) + "()";
        }
        const QString aufschrift = wort.contains('=') ? wort.section('=', 0, -2) : wort;
        const auto tasten = QKeySequence::keyBindings(QKeySequence::Quit); // none without a display
        const bool gleich =
            text.contains(aufschrift, Qt::CaseInsensitive) &&
            befehle[eintrag].contains(wort.section('=', -1), Qt::CaseInsensitive) &&
            eintrag->isEnabled() &&
            eintrag->shortcuts() == (eintrag == ui->exitAct ? tasten : QList<QKeySequence>());
        return gleich ? wort : text + '=' + befehle[eintrag];
    }

  private Q_SLOTS:
    void initTestCase() { QApplication::setPalette(QPalette(QColor("#303030"))); } // a dark desktop
    void init() { ui = std::make_unique<UI>(); }

    /// Every entry, on the way through the menus that the user takes.
    void menueeintraege() {
        menuesPruefen(ui->menuBar()->actions());
        QVERIFY(menues.isEmpty());
    }

    /// A button changes the value in its row, in the direction that its caption says.
    void knoepfe() {
        int anzahl = 0, zeile = 0, spalte = 0, hoehe = 0, breite = 0;
        for (QPushButton* knopf : ui->findChildren<QPushButton*>()) {
            const auto* gitter = qobject_cast<QGridLayout*>(knopf->parentWidget()->layout());
            gitter->getItemPosition(gitter->indexOf(knopf), &zeile, &spalte, &hoehe, &breite);
            const QWidget* box = gitter->itemAtPosition(zeile, 0)->widget();
            if (qobject_cast<const QAbstractSpinBox*>(box) == nullptr) {
                continue;
            }
            setze(*ui->Menge,
                  "MP_x=1 MP_y=1 Koppl_x=3 Koppl_y=3 click2_Zoom=2 glg_Abbruch=3 "
                  "zahl_farbtab=3 zahl_Matrix=22 color_Offset=30 it_Factor=1 div_Factor=1 "
                  "konv_Factor=1 rechen_VarianteDiv=3 rechen_VarianteKonv=3");
            ui->WerteAktualisierenSlot();
            const double vorher = zahlIn(box);
            knopf->click();
            const bool mehr = knopf->text().contains('*') || knopf->text().contains('+');
            QVERIFY2(mehr ? zahlIn(box) > vorher : zahlIn(box) < vorher, qPrintable(knopf->text()));
            ++anzahl;
        }
        QCOMPARE(anzahl, 31);
    }

    // Panel and model are joined by clicks on the picture, the two big buttons and the slider.
    void feldUndBild() {
        QTest::mousePress(ui->Menge, Qt::LeftButton, {}, QPoint(40, 30));
        QVERIFY(ui->Menge->MP_x < -0.5 && ui->UI_MPx->value() == ui->Menge->MP_x);
        QVERIFY(ui->windowTitle().contains(">>"));
        ui->UI_MPx->setValue(0.25);
        QVERIFY(ui->Menge->MP_x < -0.5); // nothing listens to the boxes
        ui->UI_Start->click();
        QCOMPARE(ui->Menge->MP_x, 0.25);
        ui->UI_Vorschau->click();
        QCOMPARE(ui->Menge->g_RechnenJa, 3);
        ui->colShift_Slider->setValue(100);
        QVERIFY(ui->Menge->color_Offset == 100 && ui->UI_colorOffset->value() == 100);
        ui->UI_itFactor->setValue(0.123456); // five decimals, one a step
        ui->UI_itFactor->stepUp();
        QCOMPARE(ui->UI_itFactor->value(), 1.12346);
    }

    void kaesten() {
        const auto boxen = ui->findChildren<QAbstractSpinBox*>();
        QCOMPARE(boxen.size(), 20);
        for (QAbstractSpinBox* box : boxen) {
            const double vorher = zahlIn(box);
            QVERIFY(box->isEnabled() && !box->isReadOnly());
            QTest::keyClick(box, Qt::Key_Up);
            QVERIFY(zahlIn(box) > vorher);
        }
    }

    void zahlen_data() { zeilenAus("window/zahlen.txt"); }
    void zahlen() {
        QFETCH(QStringList, spalten);
        for (const auto sprache : {QLocale::German, QLocale::English}) {
            QLocale::setDefault(sprache);
            const UI fenster;
            auto* box = fenster.findChildren<QAbstractSpinBox*>().at(spalten[0].toInt());
            box->setProperty("value", 7);
            box->selectAll();
            spalten[1] == "typed" ? QTest::keyClicks(box, spalten[2])
                                  : box->findChild<QLineEdit*>()->insert(spalten[2]);
            const double wert = spalten[3].toDouble();
            QVERIFY(std::abs(zahlIn(box) - wert) <
                    std::pow(10, -box->property("decimals").toInt()));
            QTest::keyClick(box, Qt::Key_Return);
            QCOMPARE(zahlIn(box), wert);
            QCOMPARE(box->text(), spalten[4]);
        }
        QLocale::setDefault(QLocale::c());
    }

    /// A long number looks like one of its beginnings: no digit is cut. The tool tip has it whole.
    void ganzeZiffern() {
        ui->show();
        for (const double wert : {0.1234567890123456, -0.5, 1.0 / 3, 4e-6, 1e30}) {
            ui->UI_MPx->setValue(wert);
            auto* zeile = ui->UI_MPx->findChild<QLineEdit*>();
            const QString text = zeile->text();
            zeile->home(false);
            const QImage lang = zeile->grab().toImage();
            int gleiche = 0;
            const QFontMetrics schrift(zeile->font());
            for (int n = 1; schrift.horizontalAdvance(text, n) <= zeile->width() - 2; ++n) {
                zeile->setText(text.left(n));
                zeile->home(false);
                gleiche += zeile->grab().toImage() == lang;
            }
            QCOMPARE(gleiche, 1);
            ui->UI_MPx->setValue(wert);
            QHelpEvent frage(QEvent::ToolTip, {}, zeile->mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(zeile, &frage);
            QCOMPARE(QToolTip::text().toDouble(), ui->UI_MPx->value());
            QVERIFY(QToolTip::text().size() <= 19);
        }
    }

    /// Qt's texts follow the language; the "OK" of boxes and the direction do not.
    void qtTexte() {
        for (const QString worte : {"de_DE Speichern", "es_ES Guardar", "ar_EG احفظ", "xx Save"}) {
            qtTexteUebersetzen(*qApp, QLocale(worte.section(' ', 0, 0)));
            const QDialogButtonBox tasten(QDialogButtonBox::Ok | QDialogButtonBox::Save);
            QCOMPARE(tasten.button(QDialogButtonBox::Save)->text().remove('&'),
                     worte.section(' ', 1));
            QCOMPARE(tasten.button(QDialogButtonBox::Ok)->text().remove('&'), "OK");
            QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
            qDeleteAll(qApp->findChildren<QTranslator*>());
        }
    }

    /// The wait cursor comes during a long picture only, and goes with it.
    void wartezeiger() {
        static QList<bool> gesehen; // at every progress line
        static int pause = 0;
        ui->show();
        ui->Menge->grab();
        for (const int ms : {0, 300}) {
            pause = ms;
            gesehen.clear();
            setze(*ui->Menge, QString("g_RechnenJa=1 Max_Iterationen=%1").arg(1 + ms));
            const auto bisher = qInstallMessageHandler([](auto, const auto&, const auto&) {
                gesehen << wartend();
                QTest::qSleep(pause);
            });
            QGuiApplication::setOverrideCursor(Qt::BusyCursor); // somebody else's
            ui->Menge->grab();
            QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BusyCursor);
            QGuiApplication::restoreOverrideCursor();
            qInstallMessageHandler(bisher);
            QVERIFY(gesehen.size() > 3 && !gesehen.takeFirst());
            QCOMPARE(gesehen, QList<bool>(gesehen.size(), ms > 0));
            QCOMPARE(QGuiApplication::overrideCursor(), nullptr);
        }
        QCOMPARE(ui->Menge->cursor().shape(), Qt::CrossCursor);
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
        QCOMPARE(ui->UI_Start->grab().toImage().pixelColor(5, 9).hue(), QColor("green").hue());
        QCOMPARE(ui->UI_Vorschau->grab().toImage().pixelColor(5, 9).hue(), QColor("blue").hue());
        // The widest texts of the commands move nothing.
        ui->infoLabel11->setText("<b>Zwilling Aus</b>");
        ui->infoLabel22->setText("<b>Maus-Orbit</b>");
        ui->infoLabel33->setText("<b>Mittelpunkt</b>");
        ui->infoLabelCx33->setText("<b>256 Iter.Max.</b>");
        ui->infoLabelCy33->setText("<b>abIter=Zoom</b>");
        ui->infoLabelPalette->setText("<b>Palette 4</b>");
        QTest::qWait(0);
        QCOMPARE(lagen(*ui), vorher);
        QString texte; // in the order of the rows
        for (const QWidget* teil : zellen(*ui)) {
            const bool taste = qobject_cast<const QPushButton*>(teil) != nullptr;
            const auto* label = qobject_cast<const QLabel*>(teil);
            const QString text = taste || label != nullptr ? teil->property("text").toString() : "";
            texte += text.isEmpty() ? text : text + '|';
            QTextDocument inhalt;
            inhalt.setDefaultFont(teil->font());
            inhalt.setDocumentMargin(label != nullptr ? std::max(0, label->indent()) / 2.0 : 1.0);
            inhalt.setHtml(text);
            const bool ganz = inhalt.idealWidth() <= teil->width();
            QVERIFY(teil->height() >= QFontMetrics(teil->font()).height() || text.isEmpty());
            QVERIFY2(ganz || fenster.width() < 985, qPrintable(text));
            QVERIFY2(ganz || !taste || teil->toolTip() == text, qPrintable(text));
            // The upper panel is light on a dark desktop too.
            const bool schwarz = teil->palette().color(QPalette::ButtonText) == Qt::black;
            QVERIFY(schwarz == (teil->parent() == ui->KonfigC) || !teil->styleSheet().isEmpty());
        }
        QVERIFY(texte.contains("|Mittelpkt. X|CenterX =0|Mittelpkt. Y|CenterY =0|"));
        QVERIFY(texte.endsWith("|<b>Palette 4</b>|Start!|Vorschau|C-Julia X|<b>256 Iter.Max.</b>|"
                               "C-Julia Y|<b>abIter=Zoom</b>|<b>Zwilling Aus</b>|<b>Maus-Orbit</b>|"
                               "<b>Mittelpunkt</b>|"));
    }

    /// A narrow box shows the first digits also after a step, a tab and an input.
    void anfangDerZahl() {
        ui->show();
        ui->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(ui.get()));
        const auto* zeile = ui->UI_MPx->findChild<QLineEdit*>();
        ui->UI_MPx->setFocus();
        QTest::keyClick(ui->UI_MPx, Qt::Key_Up);
        QVERIFY(zeile->cursorPosition() == 0 && zeile->selectedText() == zeile->text());
        QTest::keyClicks(ui->UI_MPx, "0.1234567890123456");
        QVERIFY(zeile->cursorPosition() > 0);
        QTest::keyClick(ui->UI_MPx, Qt::Key_Tab);
        QVERIFY(zeile->cursorPosition() == 0 && ui->UI_MPx->value() == 0.1234567890123456);
        QTest::keyClick(ui->focusWidget(), Qt::Key_Backtab);
        QCOMPARE(zeile->cursorPosition(), 0);
    }
};

QTEST_MAIN(TestFenster)
#include "test_fenster.moc"
