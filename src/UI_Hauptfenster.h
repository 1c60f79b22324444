#pragma once

#include "Mandelbrot.h"
#include "stdafx.h"
#include "UI_QDoubleSpinBox.h"
#include "UI_QDoubleSpinBoxK.h"
#include "UI_QSpinBox.h"

/// The main window: the picture on the left, the control panel on the right, the menus above.
///
/// Panel and model hold the same parameters twice. Values pass from the panel into the model only
/// by "Start!", "Vorschau" and the slots that stand for them, and back only when a slot or the
/// model asks for it. All widgets, menus and actions belong to their Qt parents.
class UI : public QMainWindow {
    Q_OBJECT

  public:
    UI();

    /// Builds central widget, model and panels anew; a previous model is discarded.
    void AufbauLayout();
    /// Builds the menu bar; called once.
    void AufbauMenu();
    /// Creates the help actions.
    void createActions();
    /// Repaint and title, the last steps of most slots: requests the paint of the picture, builds
    /// the title at once and once more when that paint has been handled, because equation name,
    /// Julia flag and orbit start are only written there.
    void zeichnenUndTitel();

    QWidget* Layout = nullptr;
    Mandelbrot* Menge = nullptr;
    QWidget* Konfig = nullptr;  ///< lower control panel
    QWidget* KonfigC = nullptr; ///< upper control panel, grey

    QMenuBar* Menuleiste = nullptr;
    QMenu *MenuDatei = nullptr, *MenuGroesse = nullptr, *MenuZahlen = nullptr,
          *MenuGleichung = nullptr, *MenuAbbruchXY = nullptr, *MenuFarbtab = nullptr,
          *MenuZwilling = nullptr, *MenuLinien = nullptr, *hilfeMenu = nullptr, *helpMenu = nullptr;
    QMenu *submenuG101 = nullptr, *submenuG103 = nullptr, *submenuG105 = nullptr,
          *submenuG111 = nullptr, *submenuG107 = nullptr, *submenuG109 = nullptr;
    QMenu *submenuFrakt01 = nullptr, *submenuFrakt02 = nullptr, *submenuFrakt03 = nullptr,
          *submenuFrakt01En = nullptr, *submenuFrakt02En = nullptr, *submenuFrakt03En = nullptr;
    QAction *aboutKomplexeZahlenAct = nullptr, *aboutComplexNumbersAct = nullptr,
            *aboutFraktaleAct = nullptr, *aboutFractalsAct = nullptr,
            *aboutSpezialFraktaleAct = nullptr, *aboutSpecialFractalsAct = nullptr,
            *aboutGleichungenAct = nullptr, *aboutEquationsAct = nullptr,
            *aboutBerechnungAct = nullptr, *aboutCalcAct = nullptr, *aboutZwillingAct = nullptr,
            *aboutTwinAct = nullptr, *aboutOrbitAct = nullptr, *aboutOrbitEnAct = nullptr,
            *aboutFarbTabAct = nullptr, *aboutColorTabAct = nullptr, *aboutDivAct = nullptr,
            *aboutDivEnAct = nullptr, *aboutKonvAct = nullptr, *aboutKonvEnAct = nullptr,
            *aboutAct = nullptr, *aboutQtAct = nullptr, *exitAct = nullptr;

    UI_QDoubleSpinBox *UI_MPx = nullptr, *UI_MPy = nullptr, *UI_Brx = nullptr;
    UI_QDoubleSpinBoxK *UI_Kopplx = nullptr, *UI_Kopply = nullptr;
    UI_QDoubleSpinBox* UI_wertAbbruch = nullptr;
    UI_QDoubleSpinBox* UI_click2Zoom = nullptr;
    UI_QDoubleSpinBoxK *UI_divFactor = nullptr, *UI_konvFactor = nullptr, *UI_itFactor = nullptr;
    UI_QDoubleSpinBox *UI_CJx = nullptr, *UI_CJy = nullptr;
    UI_QSpinBox *UI_rechenVarianteDiv = nullptr, *UI_rechenVarianteKonv = nullptr,
                *UI_wahlGleichung = nullptr, *UI_colorOffset = nullptr;
    UI_QSpinBox *UI_zahlfarbtab = nullptr, *UI_glgAbbruch = nullptr, *UI_zahlMatrix = nullptr;
    UI_QSpinBox* UI_Iterationen = nullptr;
    QSlider* colShift_Slider = nullptr;
    QPushButton *UI_MPxGleich0 = nullptr, *UI_MPyGleich0 = nullptr, *UI_BrxMal2 = nullptr,
                *UI_BrxDurch2 = nullptr, *UI_ItMal2 = nullptr, *UI_ItDurch2 = nullptr,
                *UI_AbbruchP1 = nullptr, *UI_AbbruchM1 = nullptr, *UI_AbbruchMal2 = nullptr,
                *UI_AbbruchDurch2 = nullptr, *UI_ZoomMal2 = nullptr, *UI_ZoomDurch2 = nullptr,
                *UI_KopplxMalZoom = nullptr, *UI_KopplxyMal2 = nullptr, *UI_KopplyMalZoom = nullptr,
                *UI_KopplxyDurch2 = nullptr, *UI_itFactorMal2 = nullptr,
                *UI_itFactorDurch2 = nullptr, *UI_divFactorMal2 = nullptr,
                *UI_divFactorDurch2 = nullptr, *UI_varDivP1 = nullptr, *UI_varDivM1 = nullptr,
                *UI_konvFactorMal2 = nullptr, *UI_konvFactorDurch2 = nullptr,
                *UI_varKonP1 = nullptr, *UI_varKonM1 = nullptr, *UI_colOffsetP = nullptr,
                *UI_colOffsetM = nullptr, *UI_cTabP1 = nullptr, *UI_cTabM1 = nullptr,
                *UI_Matrix = nullptr, *UI_Start = nullptr, *UI_Vorschau = nullptr;
    QLabel *infoLabelPalette = nullptr, *infoLabelCx33 = nullptr, *infoLabelCy33 = nullptr,
           *infoLabel11 = nullptr, *infoLabel22 = nullptr, *infoLabel33 = nullptr;
    QDateTime dt;               ///< time stamp of the file commands
    bool TitelNachBild = false; ///< the next paint of the picture is followed by a new title

  protected:
    /// Watches the picture's paint events for zeichnenUndTitel.
    bool eventFilter(QObject* beobachtet, QEvent* ereignis) override;

  private:
    /// Panel to model, all 20 parameters, then slider, repaint and title.
    void FeldLesen();

  public Q_SLOTS:
    // Panel and model (window/Abgleich.cpp)
    /// Model to panel, all 20 parameter widgets.
    void WerteAktualisierenSlot();
    /// Model to panel, the 8 colour widgets.
    void WerteColorAktualisierenSlot();
    /// "Start!": panel to model, then repaint.
    void NeueBerechnungSlot();
    /// "Vorschau": panel to model, then repaint as preview.
    void VorschauSlot();
    /// Panel to model, the 8 colour widgets, then repaint without iterating.
    void NeueColorBerechnungSlot();
    /// Window title from the model's modes.
    void SetNewTitle();

    // Panel only, or without a menu entry
    void MP_xGleich0Slot();
    void MP_yGleich0Slot();
    void BreiteMal2Slot();
    void BreiteDurch2Slot();
    void Max_IterationenMal2Slot();
    void Max_IterationenDurch2Slot();
    void glg_AbbruchPlus1Slot();
    void glg_AbbruchMinus1Slot();
    void wert_AbbruchDurch2Slot();
    void ZoomMal2Slot();
    void ZoomDurch2Slot();
    void ZwillingXMalZoomSlot();
    void ZwillingYMalZoomSlot();
    void ZwillingXYMal2Slot();
    void ZwillingXYDurch2Slot();
    void itFactorMal2Slot();
    void itFactorDurch2Slot();
    void divFactorMal2Slot();
    void divFactorDurch2Slot();
    void rechen_VarianteDivPlus1Slot();
    void rechen_VarianteDivMinus1Slot();
    void konvFactorMal2Slot();
    void konvFactorDurch2Slot();
    void rechen_VarianteKonvPlus1Slot();
    void rechen_VarianteKonvMinus1Slot();
    void color_OffsetPlusSlot();
    void color_OffsetMinusSlot();
    void setupColShiftSlot();
    void zahl_farbtabPlus1Slot();
    void zahl_farbtabMinus1Slot();
    void setColShiftSliderSlot();
    void UnDo2DatenTeilbildLadenSlot();
    // Menu Datei/File
    void UnDo1DatenTeilbildLadenSlot();
    void WiederholenDatenTeilbildLadenSlot();
    void ResetSlot();
    void Bild_SpeichernSlot();
    void Koordinaten_LadenSlot();
    void Koordinaten_SpeichernSlot();
    void OrbitListeHTM_SpeichernSlot();
    // Menu Groesse/Size
    void NeuRechnenJaSlot();
    void GanzesBildSlot();
    void PixelXYDurch2Pos1Slot();
    void PixelXYDurch2Pos2Slot();
    void PixelXYDurch2Pos3Slot();
    void PixelXYDurch2Pos4Slot();
    void VorschauPos1Slot();
    void VorschauPos2Slot();
    void VorschauPos3Slot();
    void VorschauPos4Slot();
    void VorschauVollbildSlot();
    void VorschauVollbild4Slot();
    void VorschauVollbild1Slot();
    void VorschauVollbild3Slot();
    void VorschauAusSlot();
    void VorschauAnSlot();
    void BildSchwarzSlot();
    void BildWeissSlot();
    void OberesHalbbildEinSlot();
    void UnteresHalbbildEinSlot();
    void OuU_HalbbildAusSlot();
    void VorschauXYPixelNeu3Slot();
    void VorschauXYPixelNeu4Slot();
    void VorschauXYPixelNeu5Slot();
    void VorschauXYPixelNeu1Slot();
    void VorschauXYPixelNeu2Slot();
    void VorschauXYPixelNeu0Slot();
    void VorschauUebernehmenSlot();
    void Pixel1520x1210Slot();
    void Pixel985x675Slot();
    void Pixel520x600Slot();
    // Menu Zahlen/Numbers
    void MP_xyGleich0Slot();
    void ZoomGleichEinsSlot();
    void ZoomGleich0k25Slot();
    void ZoomGleich0k5Slot();
    void ZoomMal3Slot();
    void ZoomDurch3Slot();
    void ZoomMal10Slot();
    void ZoomDurch10Slot();
    void BreiteMal10Slot();
    void BreiteDurch10Slot();
    void BreiteMal0k75Slot();
    void BreiteMal1k5Slot();
    void BreiteMalZoomSlot();
    void BreiteDurchZoomSlot();
    void Max_IterationenMal10Slot();
    void Max_IterationenDurch10Slot();
    void wert_AbbruchDurch10Slot();
    void wert_AbbruchMal10Slot();
    // Menu Gleichung/Equation: a slot for each number, since the menu connects by name
    void tu_nixSlot();
    void Gleichung1Slot();
    void Gleichung2Slot();
    void Gleichung3Slot();
    void Gleichung4Slot();
    void Gleichung5Slot();
    void Gleichung6Slot();
    void Gleichung7Slot();
    void Gleichung8Slot();
    void Gleichung9Slot();
    void Gleichung10Slot();
    void kPotenzGleichZoomSlot();
    void kPotenz6Slot();
    void kPotenz7Slot();
    void kPotenz0Slot();
    void kPotenz10Slot();
    void Gleichung101Slot();
    void Gleichung201Slot();
    void Gleichung301Slot();
    void Gleichung401Slot();
    void Gleichung501Slot();
    void Gleichung102Slot();
    void Gleichung202Slot();
    void Gleichung302Slot();
    void Gleichung402Slot();
    void Gleichung502Slot();
    void Gleichung103Slot();
    void Gleichung203Slot();
    void Gleichung303Slot();
    void Gleichung403Slot();
    void Gleichung503Slot();
    void Gleichung603Slot();
    void Gleichung703Slot();
    void Gleichung104Slot();
    void Gleichung204Slot();
    void Gleichung304Slot();
    void Gleichung404Slot();
    void Gleichung504Slot();
    void Gleichung604Slot();
    void Gleichung704Slot();
    void Gleichung105Slot();
    void Gleichung205Slot();
    void Gleichung305Slot();
    void Gleichung405Slot();
    void Gleichung505Slot();
    void Gleichung605Slot();
    void Gleichung705Slot();
    void Gleichung106Slot();
    void Gleichung206Slot();
    void Gleichung306Slot();
    void Gleichung406Slot();
    void Gleichung506Slot();
    void Gleichung606Slot();
    void Gleichung706Slot();
    void Gleichung111Slot();
    void Gleichung211Slot();
    void Gleichung311Slot();
    void Gleichung411Slot();
    void Gleichung511Slot();
    void Gleichung611Slot();
    void Gleichung711Slot();
    void Gleichung811Slot();
    void Gleichung911Slot();
    void Gleichung112Slot();
    void Gleichung212Slot();
    void Gleichung312Slot();
    void Gleichung412Slot();
    void Gleichung512Slot();
    void Gleichung612Slot();
    void Gleichung712Slot();
    void Gleichung812Slot();
    void Gleichung912Slot();
    void Gleichung107Slot();
    void Gleichung207Slot();
    void Gleichung307Slot();
    void Gleichung407Slot();
    void Gleichung507Slot();
    void Gleichung607Slot();
    void Gleichung707Slot();
    void Gleichung108Slot();
    void Gleichung208Slot();
    void Gleichung308Slot();
    void Gleichung408Slot();
    void Gleichung508Slot();
    void Gleichung608Slot();
    void Gleichung708Slot();
    void Gleichung109Slot();
    void Gleichung209Slot();
    void Gleichung309Slot();
    void Gleichung409Slot();
    void Gleichung509Slot();
    void Gleichung609Slot();
    void Gleichung709Slot();
    void Gleichung809Slot();
    void Gleichung909Slot();
    void Gleichung110Slot();
    void Gleichung210Slot();
    void Gleichung310Slot();
    void Gleichung410Slot();
    void Gleichung510Slot();
    void Gleichung610Slot();
    void Gleichung710Slot();
    void Gleichung810Slot();
    void Gleichung910Slot();
    // Menu NrAbbruch/Limit
    void glg_Abbruch0Slot();
    void glg_Abbruch1Slot();
    void glg_Abbruch2Slot();
    void glg_Abbruch3Slot();
    void glg_Abbruch4Slot();
    void glg_Abbruch5Slot();
    void glg_Abbruch6Slot();
    void glg_Abbruch7Slot();
    void glg_Abbruch8Slot();
    void glg_Abbruch9Slot();
    void wert_AbbruchMal2Slot();
    void GenauigkeitStandardSlot();
    void GenauigkeitMal10Slot();
    void GenauigkeitDurch100Slot();
    void GenauigkeitGleichZoomSlot();
    void ZykluszahlGleichZoomSlot();
    // Menu Zwillinge/Twins
    void Zwilling1AnSlot();
    void Zwilling2AnSlot();
    void Zwilling3AnSlot();
    void Zwilling4AnSlot();
    void Zwilling5AnSlot();
    void Zwilling6AnSlot();
    void Zwilling7AnSlot();
    void Zwilling8AnSlot();
    void Zwilling9AnSlot();
    void Zwilling10AnSlot();
    void Zwilling11AnSlot();
    void ZwillingYgleichXSlot();
    void ZwillingXYgleichZoomSlot();
    void ZwillingAusSlot();
    // Menu Farben/Colors
    void MatrixSlot();
    void Next_MatrixSlot();
    void Vorher_MatrixSlot();
    void Erste_MatrixSlot();
    void FarbtabelleWaveSlot();
    void Farbtabelle3Slot();
    void Farbtabelle6Slot();
    void TabelleArraySlot();
    // Menu Linien/Lines
    void MittelkreuzOnSlot();
    void MittelkreuzOffSlot();
    void NullkreuzOnSlot();
    void NullkreuzOffSlot();
    void GitterNullOnSlot();
    void GitterMitteOnSlot();
    void GitterOffSlot();
    void OrbitWeissSlot();
    void OrbitSchwarzSlot();
    void OrbitGrauSlot();
    void OrbitRotSlot();
    void OrbitBuntSlot();
    void OrbitDuennSlot();
    void OrbitMax120Slot();
    void OrbitMax60Slot();
    void OrbitMax30Slot();
    void OrbitMax15Slot();
    void OrbitMax5Slot();
    void OrbitMax256Slot();
    void OrbitMaxMinus1Slot();
    void OrbitAlleSlot();
    void OrbitAlleDeleteSlot();
    void OrbitLetzterSlot();
    void OrbitMPSlot();
    void OrbitMausSlot();
    void OrbitAbIterAnSlot();
    void OrbitAbIterAusSlot();
    void OrbitAktualierenSlot();
    void OrbitOffSlot();
    void AlleGitterOffSlot();
    // Menu Hilfe, Help
    void aboutKomplexeZahlen();
    void aboutComplexNumbers();
    void aboutFraktale();
    void aboutFractals();
    void aboutSpezialFraktale();
    void aboutSpecialFractals();
    void aboutGleichungen();
    void aboutEquations();
    void aboutBerechnung();
    void aboutCalc();
    void aboutZwilling();
    void aboutTwin();
    void aboutOrbit();
    void aboutOrbitEn();
    void aboutFarbTab();
    void aboutColorTab();
    void aboutDiv();
    void aboutDivEn();
    void aboutKonv();
    void aboutKonvEn();
    void about();
    void aboutQt();
};
