#include "Testbasis.h"
#include "UI_Hauptfenster.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QTextDocument>

#include <memory>

namespace {

QGridLayout* gitter(const QWidget* feld) { return qobject_cast<QGridLayout*>(feld->layout()); }

/// Class and caption of the cell that starts at (zeile, spalte), and its span if it has one.
QString zelle(const QGridLayout* feld, int zeile, int spalte) {
    for (int i = 0; i < feld->count(); ++i) {
        int z = 0;
        int s = 0;
        int zeilen = 0;
        int spalten = 0;
        feld->getItemPosition(i, &z, &s, &zeilen, &spalten);
        if (z != zeile || s != spalte) {
            continue;
        }
        const QWidget* teil = feld->itemAt(i)->widget();
        QString text = teil->metaObject()->className();
        if (const auto* label = qobject_cast<const QLabel*>(teil)) {
            text += ":" + label->text();
        } else if (const auto* knopf = qobject_cast<const QPushButton*>(teil)) {
            text += ":" + knopf->text();
        }
        return zeilen == 1 && spalten == 1 ? text : text + QString(" x%1").arg(spalten);
    }
    return {};
}

QList<QWidget*> zellen(const UI& ui) {
    QList<QWidget*> alle;
    for (const QWidget* feld : {ui.KonfigC, ui.Konfig}) {
        for (int i = 0; i < feld->layout()->count(); ++i) {
            alle << feld->layout()->itemAt(i)->widget();
        }
    }
    return alle;
}

QRect imFenster(const UI& ui, const QWidget* teil) {
    return {teil->mapTo(&ui, QPoint(0, 0)), teil->size()};
}

QList<QRect> lagen(const UI& ui) {
    QList<QRect> rechtecke{imFenster(ui, ui.Menge)};
    for (const QWidget* teil : zellen(ui)) {
        rechtecke << imFenster(ui, teil);
    }
    return rechtecke;
}

/// The widest texts that the commands write into the info labels.
void spaeteTexte(const UI& ui) {
    ui.infoLabel11->setText("<b>Zwilling Aus</b>");
    ui.infoLabel22->setText("<b>Maus-Orbit</b>");
    ui.infoLabel33->setText("<b>Mittelpunkt</b>");
    ui.infoLabelCx33->setText("<b>256 Iter.Max.</b>");
    ui.infoLabelCy33->setText("<b>abIter=Zoom</b>");
    ui.infoLabelPalette->setText("<b>Palette 4</b>");
}

/// Pixels that the text of a label or button needs; 0 for other widgets.
int textbreite(const QWidget* teil) {
    if (const auto* knopf = qobject_cast<const QPushButton*>(teil)) {
        constexpr int kanten = 2; // one line of frame on each side
        return QFontMetrics(knopf->font()).horizontalAdvance(knopf->text()) + kanten;
    }
    if (const auto* label = qobject_cast<const QLabel*>(teil)) {
        QTextDocument inhalt;
        inhalt.setDefaultFont(label->font());
        inhalt.setDocumentMargin(0);
        inhalt.setHtml(label->text());
        return static_cast<int>(std::ceil(inhalt.idealWidth())) + std::max(0, label->indent());
    }
    return 0;
}

} // namespace

class TestSteuerfeld : public QObject {
    Q_OBJECT

    std::unique_ptr<UI> ui;

  private Q_SLOTS:
    void init() { ui = std::make_unique<UI>(); }

    void fenster();
    void anordnung_data();
    void anordnung();
    void werte();
    void aussehen();
    void verbindungen_data();
    void verbindungen();
    void signaleDesModells();
    void groessen_data();
    void groessen();
    void anfangDerZahl();
    void neuAufgebaut();
};

void TestSteuerfeld::fenster() {
    QCOMPARE(ui->windowTitle(), QString("Wirbelwerk (https://wirbelwerk.example) "));
    QVERIFY(!ui->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(ui->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(ui->windowFlags().testFlag(Qt::WindowCloseButtonHint));
    QCOMPARE(ui->centralWidget(), ui->Layout);
    QCOMPARE(ui->Menge->parentWidget(), ui->Layout);
}

void TestSteuerfeld::anordnung_data() {
    QTest::addColumn<QStringList>("erwartet");
    const QString zahl = "UI_QSpinBox";
    const QString real = "UI_QDoubleSpinBox";
    const QString faktor = "UI_QDoubleSpinBoxK";
    const auto knopf = [](const char* text) { return QString("QPushButton:") + text; };
    const auto label = [](const char* text) { return QString("QLabel:") + text; };
    int nr = 0;
    const auto zeile = [&](const QString& a, const QString& b, const QString& c) {
        QTest::addRow("%d", nr++) << QStringList{a, b, c};
    };
    zeile(zahl, label("Gleichung Nr"), label("Equation No"));
    zeile(real, label("Mittelpkt. X"), knopf("CenterX =0"));
    zeile(real, label("Mittelpkt. Y"), knopf("CenterY =0"));
    zeile(real, knopf("BreiteX *2"), knopf("widthX /2"));
    zeile(zahl, knopf("maxIter*2"), knopf("maxIter/2"));
    zeile(zahl, knopf("NrAbbr +1"), knopf("VariLimit-1"));
    zeile(real, knopf("ZahlAbbr*2"), knopf("ValueLimit/2"));
    zeile(real, knopf("Zoom *2"), knopf("Zoom /2"));
    zeile(faktor, knopf("koppX*Zoom"), knopf("koppX,Y*2"));
    zeile(faktor, knopf("koppY*Zoom"), knopf("koppX,Y/2"));
    zeile(faktor, knopf("Fakt.Iter. *2"), knopf("Fact.Iter. /2"));
    zeile(faktor, knopf("FaktDiv *2"), knopf("FacDiv /2"));
    zeile(zahl, knopf("varDiv +1"), knopf("varDiv -1"));
    zeile(faktor, knopf("FacKonv *2"), knopf("FacKonv /2"));
    zeile(zahl, knopf("varKonv +1"), knopf("varKonv -1"));
    zeile(zahl, knopf("cOffset +25"), knopf("colOffs -5"));
    zeile("QSlider x3", "", "");
    zeile(zahl, knopf("cTab +1"), knopf("cTab -1"));
    zeile(zahl, knopf("cTab/Matrix +1"), label(""));
    zeile("QPushButton:Start! x2", "", knopf("Vorschau"));
    zeile(real, label("C-Julia X"), label(""));
    zeile(real, label("C-Julia Y"), label(""));
    zeile(label(""), label(""), label(""));
    zeile("QFrame x2", "", "");
}

void TestSteuerfeld::anordnung() {
    QFETCH(QStringList, erwartet);
    const int zeile = QString(QTest::currentDataTag()).toInt();
    const bool oben = zeile < 10;
    const QGridLayout* hier = gitter(oben ? ui->KonfigC : ui->Konfig);
    const QGridLayout* dort = gitter(oben ? ui->Konfig : ui->KonfigC);
    for (int spalte = 0; spalte < 3; ++spalte) {
        QCOMPARE(zelle(hier, zeile, spalte), erwartet.at(spalte));
        QCOMPARE(zelle(dort, zeile, spalte), QString());
    }
}

/// Every box stands in its row and shows the model's value.
void TestSteuerfeld::werte() {
    const Mandelbrot& m = *ui->Menge;
    const std::vector<std::tuple<int, QWidget*, double>> boxen{
        {0, ui->UI_wahlGleichung, m.wahl_Gleichung},
        {1, ui->UI_MPx, m.MP_x},
        {2, ui->UI_MPy, m.MP_y},
        {3, ui->UI_Brx, m.Br_x},
        {4, ui->UI_Iterationen, m.Max_Iterationen},
        {5, ui->UI_glgAbbruch, m.glg_Abbruch},
        {6, ui->UI_wertAbbruch, m.wert_Abbruch},
        {7, ui->UI_click2Zoom, m.click2_Zoom},
        {8, ui->UI_Kopplx, m.Koppl_x},
        {9, ui->UI_Kopply, m.Koppl_y},
        {10, ui->UI_itFactor, m.it_Factor},
        {11, ui->UI_divFactor, m.div_Factor},
        {12, ui->UI_rechenVarianteDiv, m.rechen_VarianteDiv},
        {13, ui->UI_konvFactor, m.konv_Factor},
        {14, ui->UI_rechenVarianteKonv, m.rechen_VarianteKonv},
        {15, ui->UI_colorOffset, m.color_Offset},
        {17, ui->UI_zahlfarbtab, m.zahl_farbtab},
        {18, ui->UI_zahlMatrix, m.zahl_Matrix},
        {20, ui->UI_CJx, m.CJ_x},
        {21, ui->UI_CJy, m.CJ_y},
    };
    for (const auto& [zeile, box, wert] : boxen) {
        const QWidget* feld = zeile < 10 ? ui->KonfigC : ui->Konfig;
        QCOMPARE(gitter(feld)->itemAtPosition(zeile, 0)->widget(), box);
        QCOMPARE(box->property("value").toDouble(), wert);
        const auto* real = qobject_cast<QDoubleSpinBox*>(box);
        const bool faktor = qobject_cast<UI_QDoubleSpinBoxK*>(box) != nullptr;
        QCOMPARE(box->property("maximum").toDouble(), real != nullptr ? 1e30 : 9e7);
        QCOMPARE(box->property("minimum").toDouble(), real != nullptr ? -1e30 : -9e7);
        QCOMPARE(box->property("singleStep").toDouble(), real != nullptr && !faktor ? 0.1 : 1.0);
        if (real != nullptr) {
            QCOMPARE(real->decimals(), faktor ? 5 : 16);
        }
        // Nothing listens to a box: the model changes by the triggers only.
        box->setProperty("value", wert + 1.0);
    }
    QCOMPARE(m.MP_x, UI().Menge->MP_x);
    QCOMPARE(m.zahl_farbtab, UI().Menge->zahl_farbtab);
}

void TestSteuerfeld::aussehen() {
    QCOMPARE(ui->KonfigC->styleSheet(), QString("background-color:#dddddd; "));
    QCOMPARE(ui->UI_Start->styleSheet(), QString("background-color:green; color:white;"));
    QCOMPARE(ui->UI_Vorschau->styleSheet(), QString("background-color:blue; color:white;"));
    QCOMPARE(ui->colShift_Slider->minimum(), 0);
    QCOMPARE(ui->colShift_Slider->maximum(), 512);
    QCOMPARE(ui->colShift_Slider->value(), 0);
    QCOMPARE(ui->colShift_Slider->tickPosition(), QSlider::TicksBelow);
    QCOMPARE(ui->colShift_Slider->orientation(), Qt::Horizontal);
    QCOMPARE(ui->Menge->cursor().shape(), Qt::CrossCursor);
}

using KnopfFeld = QPushButton* UI::*;
Q_DECLARE_METATYPE(KnopfFeld)

void TestSteuerfeld::verbindungen_data() {
    QTest::addColumn<KnopfFeld>("feld");
    const std::vector<std::pair<KnopfFeld, const char*>> paare{
        {&UI::UI_MPxGleich0, "MP_xGleich0Slot()"},
        {&UI::UI_MPyGleich0, "MP_yGleich0Slot()"},
        {&UI::UI_BrxMal2, "BreiteMal2Slot()"},
        {&UI::UI_BrxDurch2, "BreiteDurch2Slot()"},
        {&UI::UI_ItMal2, "Max_IterationenMal2Slot()"},
        {&UI::UI_ItDurch2, "Max_IterationenDurch2Slot()"},
        {&UI::UI_AbbruchP1, "glg_AbbruchPlus1Slot()"},
        {&UI::UI_AbbruchM1, "glg_AbbruchMinus1Slot()"},
        {&UI::UI_AbbruchMal2, "wert_AbbruchMal2Slot()"},
        {&UI::UI_AbbruchDurch2, "wert_AbbruchDurch2Slot()"},
        {&UI::UI_ZoomMal2, "ZoomMal2Slot()"},
        {&UI::UI_ZoomDurch2, "ZoomDurch2Slot()"},
        {&UI::UI_KopplxMalZoom, "ZwillingXMalZoomSlot()"},
        {&UI::UI_KopplyMalZoom, "ZwillingYMalZoomSlot()"},
        {&UI::UI_KopplxyMal2, "ZwillingXYMal2Slot()"},
        {&UI::UI_KopplxyDurch2, "ZwillingXYDurch2Slot()"},
        {&UI::UI_itFactorMal2, "itFactorMal2Slot()"},
        {&UI::UI_itFactorDurch2, "itFactorDurch2Slot()"},
        {&UI::UI_divFactorMal2, "divFactorMal2Slot()"},
        {&UI::UI_divFactorDurch2, "divFactorDurch2Slot()"},
        {&UI::UI_varDivP1, "rechen_VarianteDivPlus1Slot()"},
        {&UI::UI_varDivM1, "rechen_VarianteDivMinus1Slot()"},
        {&UI::UI_konvFactorMal2, "konvFactorMal2Slot()"},
        {&UI::UI_konvFactorDurch2, "konvFactorDurch2Slot()"},
        {&UI::UI_varKonP1, "rechen_VarianteKonvPlus1Slot()"},
        {&UI::UI_varKonM1, "rechen_VarianteKonvMinus1Slot()"},
        {&UI::UI_colOffsetP, "color_OffsetPlusSlot()"},
        {&UI::UI_colOffsetM, "color_OffsetMinusSlot()"},
        {&UI::UI_cTabP1, "zahl_farbtabPlus1Slot()"},
        {&UI::UI_cTabM1, "zahl_farbtabMinus1Slot()"},
        {&UI::UI_Matrix, "Next_MatrixSlot()"},
        {&UI::UI_Start, "NeueBerechnungSlot()"},
        {&UI::UI_Vorschau, "VorschauSlot()"},
    };
    for (const auto& [feld, slot] : paare) {
        QTest::newRow(slot) << feld;
    }
}

/// Only a connection that exists can be cut.
void TestSteuerfeld::verbindungen() {
    QFETCH(KnopfFeld, feld);
    const QByteArray slot = QByteArray::number(QSLOT_CODE) + QTest::currentDataTag();
    const QPushButton* knopf = (*ui).*feld;
    QVERIFY(disconnect(knopf, SIGNAL(clicked()), ui.get(), slot.constData()));
    QVERIFY(!disconnect(knopf, SIGNAL(clicked()), ui.get(), nullptr));
}

void TestSteuerfeld::signaleDesModells() {
    Mandelbrot* m = ui->Menge;
    m->MP_x = 0.25;
    Q_EMIT m->WerteAktualisierenSignal();
    QCOMPARE(ui->UI_MPx->value(), 0.25);
    ui->UI_MPy->setValue(0.75);
    Q_EMIT m->NeueBerechnungSignal();
    QCOMPARE(m->MP_y, 0.75);

    // Queued: nothing of it happens inside the emitting paint event.
    m->g_OrbitJa = 1;
    Q_EMIT m->OrbitOffSignal();
    QCOMPARE(m->g_OrbitJa, 1);
    m->g_OrbitJa = 0; // the late delivery finds nothing to do
    QVERIFY(disconnect(m, SIGNAL(OrbitOffSignal()), ui.get(), SLOT(OrbitOffSlot())));

    ui->UI_colorOffset->setValue(-1);
    ui->colShift_Slider->setValue(100);
    QCOMPARE(m->color_Offset, 100);
    QCOMPARE(ui->UI_colorOffset->value(), 100);
}

void TestSteuerfeld::groessen_data() {
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QSize>("fenster");
    QTest::addColumn<bool>("lesbar");
    QTest::newRow("start") << QByteArray() << QSize(985, 675) << true;
    QTest::newRow("small") << QByteArray("Pixel520x600Slot") << QSize(520, 600) << false;
    QTest::newRow("back") << QByteArray("Pixel985x675Slot") << QSize(985, 675) << true;
    QTest::newRow("large") << QByteArray("Pixel1520x1210Slot") << QSize(1520, 1210) << true;
}

void TestSteuerfeld::groessen() {
    QFETCH(QByteArray, slot);
    QFETCH(QSize, fenster);
    QFETCH(bool, lesbar);
    ui->show();
    QVERIFY(QTest::qWaitForWindowExposed(ui.get()));
    if (!slot.isEmpty()) {
        QVERIFY(QMetaObject::invokeMethod(ui.get(), slot.constData()));
    }
    QTRY_VERIFY(ui->Menge->isVisible() && ui->Menge->width() > fenster.width() / 2);
    QCOMPARE(ui->size(), fenster);
    QCOMPARE(ui->KonfigC->maximumWidth(), fenster.width() / 4);
    QCOMPARE(ui->Konfig->maximumWidth(), fenster.width() / 4);

    const QList<QRect> vorher = lagen(*ui);
    for (qsizetype i = 0; i < vorher.size(); ++i) {
        QVERIFY(ui->rect().contains(vorher.at(i)));
        for (qsizetype j = 0; j < i; ++j) {
            QVERIFY2(!vorher.at(i).intersects(vorher.at(j)),
                     qPrintable(QString("%1 and %2").arg(i).arg(j)));
        }
    }
    spaeteTexte(*ui);
    QTest::qWait(0);
    QCOMPARE(lagen(*ui), vorher);
    for (const QWidget* teil : zellen(*ui)) {
        if (qobject_cast<const QFrame*>(teil) == nullptr || textbreite(teil) > 0) {
            QVERIFY(teil->width() > 0 && teil->height() >= QFontMetrics(teil->font()).height());
        }
        if (lesbar) {
            QVERIFY2(textbreite(teil) <= teil->width(),
                     qPrintable(QString("%1 > %2: %3")
                                    .arg(textbreite(teil))
                                    .arg(teil->width())
                                    .arg(teil->property("text").toString())));
        }
    }
}

/// A narrow box shows the first digits also after a step, a tab and an input.
void TestSteuerfeld::anfangDerZahl() {
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

void TestSteuerfeld::neuAufgebaut() {
    const QPointer<Mandelbrot> alt = ui->Menge;
    alt->MP_x = 17.0;
    ui->resize(520, 600);
    ui->AufbauLayout();
    QVERIFY(ui->Menge != alt);
    QVERIFY(ui->Menge->MP_x != 17.0);
    QCOMPARE(ui->UI_MPx->value(), ui->Menge->MP_x);
    QCOMPARE(ui->KonfigC->maximumWidth(), 130);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(alt.isNull());
}

QTEST_MAIN(TestSteuerfeld)
#include "test_steuerfeld.moc"
