#pragma once

#include "Orbitstand.h"
#include "Schalter.h"
#include "Signatur.h"
#include "stdafx.h"

#include <optional>

/// The fractal: every parameter and switch of the current picture, the picture buffers, the
/// palettes, the orbit and the record store; it computes, colours and draws itself.
///
/// One object belongs to one window and is used on the GUI thread only. It is about 24 MB large
/// (the picture buffers), so it lives on the heap and is never copied. All members are public:
/// window, tests and benchmarks reach them by name. Setters store what they are given; every value
/// is bounded where it is used.
///
/// Lengths in the complex plane are plane units, sizes on screen are pixels, counts are iterations.
/// Fields that kernels write (counters and lasting repairs) are mutable, because kernels are const.
class Mandelbrot : public QWidget {
    Q_OBJECT

  public:
    static constexpr int ColormapSize = 512;    ///< colours of the spectral palette
    static constexpr int Palette48Farben = 582; ///< colours of the three- and six-colour palettes
    static constexpr int BildMax = 1200;        ///< most columns and rows of a full picture
    static constexpr int ViertelMax = 300;      ///< most columns and rows of a matrix cell
    static constexpr int Streifenbreite = 20;   ///< pixels right of the picture: palette strip
    static constexpr int MatrixEin = 1000;      ///< zahl_Matrix while the matrix view is on
    static constexpr int ZyklusMax = 24;        ///< highest index of the cycle history
    static constexpr int OrbitMax = 258;        ///< most recorded orbit points
    static constexpr int VerlaufLaenge = 300;   ///< entries of row 0 that the history keeps
    static constexpr double OrbitEnde = 1000.123456789; ///< both coordinates: end of the orbit

    template <class T>
    using Bild = std::array<std::array<T, BildMax>, BildMax + 1>;
    template <class T>
    using Viertelbild = std::array<std::array<T, ViertelMax>, ViertelMax + 1>;

    /// Takes the start state of equation 1. The widget has no parent.
    Mandelbrot();
    ~Mandelbrot() override;

    // --- Switches and small counters -------------------------------------------------------------
    qint32 wahlPalette48 = 0;        ///< which palette Palette48 holds: 1 three, 2 six main colours
    mutable qint32 g_ZwillingJa = 0; ///< twin variant 1..11, 0 = off
    qint32 g_MittelkreuzJa = 0;      ///< 1 = centre cross
    qint32 g_NullkreuzJa = 0;        ///< 1 = zero cross
    qint32 g_GitterJa = 0;           ///< 1 = grid around zero, 2 = around the centre
    qint32 g_JuliaJa = 0;            ///< 1 = Julia type; set by the driver from the number's parity
    qint32 g_halbesBild = 0;         ///< picture mode, a Bildmodus
    mutable qint32 g_GenauJa = 0;    ///< 1 = the last bailout test was a cycle search
    qint32 g_Max_glg_Abbruch = 0;    ///< highest bailout variant
    qint32 g_Max_rgbFarben = 0;      ///< colours of the palette used last: 256, 512 or 582
    qint32 g_RechnenJa = 0;          ///< request, an Anforderung
    qint32 g_oberesHalbbild = 0;     ///< 1 upper, 2 lower half of the picture only
    qint32 g_BildLoeschen = 0;       ///< 1 or 2: clear the picture
    qint32 g_linienLoeschenJa = 0;   ///< 1..5: lines were switched off
    qint32 g_UnDo = 0;               ///< 0 none, 1 and 2 steps back, 3 redo
    mutable qint32 g_kPotenz = 0;    ///< the power K
    mutable qint32 g_zycmax = 0;     ///< how many earlier values the cycle search keeps, 0..24
    qint32 g_VorschauAusJa = 0;      ///< 1 = no automatic preview
    qint32 g_PixVorschauX = 0;       ///< preview width, pixels
    qint32 g_PixVorschauY = 0;       ///< preview height, pixels; 0 = from the aspect ratio
    qint32 g_PixConstX = 0;          ///< fixed picture width, pixels; 0 = the widget's
    qint32 g_PixConstY = 0;          ///< fixed picture height, pixels; 0 = the widget's
    qint32 OPx = 0;                  ///< orbit start pixel, column in the computed rectangle
    qint32 OPy = 0;                  ///< orbit start pixel, row in the computed rectangle
    qint32 g_OrbitJa = 0;            ///< an Orbitfarbe
    qint32 g_OrbitDuennJa = 0;       ///< an Orbitdarstellung
    qint32 g_maxOrbitIterat = 0;     ///< most orbit points recorded
    qint32 g_OrbitMP = 0;            ///< 1 = orbit starts at the picture centre
    qint32 g_OrbitAbIterAn = 0;      ///< the orbit is recorded after this iteration
    qint32 g_Zeile = 0;              ///< row of the driver's last progress line

    QString g_PalettenZahl; ///< "1".."4": the palette in use
    QString g_NameGlg;      ///< name of the equation, " " for an unknown number
    QString g_OrbitStartString = QString("");
    QString g_OrbitEndString = QString("");
    QString g_Versionsnummer;
    QString g_OrbitListeHTMStr; ///< list of the last orbit drawn, HTML

    // --- Picture geometry and summaries ----------------------------------------------------------
    double g_Gitterabstand = 0.0;   ///< grid spacing, plane units
    double g_Genauigkeit = 0.0;     ///< tolerance of the cycle search, plane units
    double g_Bildverhaeltnis = 0.0; ///< rows / columns
    double g_SummeGross = 0.0;      ///< signature of the last full picture
    double g_SummeViertel = 0.0;    ///< signature of the last matrix picture

    // --- Fractal parameters ----------------------------------------------------------------------
    double R_Min = 0.0, I_Min = 0.0;             ///< lower left corner
    double R_Max = 0.0, I_Max = 0.0;             ///< upper right corner
    double MP_x = 0.0, MP_y = 0.0;               ///< centre
    double Br_x = 0.0, Br_y = 0.0;               ///< width and height, plane units
    mutable double CJ_x = 0.0, CJ_y = 0.0;       ///< the constant of Julia sets
    mutable double Koppl_x = 0.0, Koppl_y = 0.0; ///< twin coupling factors
    double wert_Abbruch = 0.0;                   ///< bailout value
    qint32 Max_Iterationen = 0;                  ///< iteration limit
    mutable qint32 privateIterat = 0;            ///< iterations of the last kernel call
    mutable qint32 IteratSubf = 0;               ///< running step of a kernel
    double click2_Zoom = 0.0; ///< zoom factor of a click, operand of the Zoom operations
    double div_Factor = 0.0, konv_Factor = 0.0, it_Factor = 0.0; ///< colour factors
    qint32 rechen_VarianteDiv = 0;  ///< colour variant of divergent points, 0..18
    qint32 rechen_VarianteKonv = 0; ///< colour variant of convergent points, 0..12
    qint32 wahl_Gleichung = 0;      ///< equation number, or number * 10000 + twin variant
    qint32 color_Offset = 0;        ///< rotation of the palette
    qint32 zahl_farbtab = 0;        ///< colour table 0..47
    mutable qint32 glg_Abbruch = 0; ///< bailout variant, 0..g_Max_glg_Abbruch
    qint32 zahl_Matrix = 0;         ///< 1000 = 4x4 matrix view, else the cell code 11..44
    double TeilerColorbild = 0.0;   ///< picture size / matrix cell size

    // --- Palettes and cycle history --------------------------------------------------------------
    std::array<quint8, std::size_t{3} * Palette48Farben> Palette48{}; ///< red, green, blue
    std::array<quint8, std::size_t{3} * ColormapSize> colormapWave{}; ///< red, green, blue
    mutable std::array<double, ZyklusMax + 1> xm{}, ym{}; ///< earlier values, latest first
    mutable std::array<double, ZyklusMax + 1> pm{}, tm{};

    // --- Picture buffers: pixel (column, row) at [row + 1][column], row 0 holds the records ------
    Bild<double> ImageDoubles{};        ///< final bailout measure
    Bild<qint32> ImageIntegers{};       ///< iteration count
    Bild<qint32> ImageGitterIntegers{}; ///< overlay mark
    Viertelbild<double> ImageViertelDoubles{};
    Viertelbild<qint32> ImageViertelIntegers{};
    Viertelbild<qint32> ImageViertelGitterIntegers{};

    // --- History of records: copies of row 0 -----------------------------------------------------
    std::array<double, VerlaufLaenge> UnDo0Doubles{}, UnDo1Doubles{}, UnDo2Doubles{},
        UnDo3Doubles{}, UnDo4Doubles{};
    std::array<qint32, VerlaufLaenge> UnDo0Integers{}, UnDo1Integers{}, UnDo2Integers{},
        UnDo3Integers{}, UnDo4Integers{};

    // --- Signature and exponent halves -----------------------------------------------------------
    qint32 bilddatenInteger = 0;
    double bilddatenDouble = 0.0;
    double bilddatenSumme = 0.0;
    qint32 kPotHalbe = 0; ///< K / 2
    qint32 kPotHu = 0;    ///< K / 2 of the last odd K
    qint32 kPotHg = 0;    ///< K / 2 of the last even K

    // --- Orbit -----------------------------------------------------------------------------------
    QPainterPath polygonPathM1, polygonPathM2, polygonPathM3, polygonPathM4; ///< all orbits so far
    mutable qint32 Orbitmodus = 0; ///< 0 off, 1 orbit on, 2 the start pixel is being recorded
    qint32 initIstdurchJa = 0;     ///< 1 after the first Initialisierung
    qint32 pathExist = 0;          ///< an orbit path exists
    mutable qint32 OZaehler = 0;   ///< recorded points
    mutable std::array<double, OrbitMax + 2> OrbitX{}, OrbitY{}; ///< [0] start, then the iterates
    double x_itdavor = 0.0, y_itdavor = 0.0;
    QDateTime dtm;                          ///< time of the last orbit drawn
    std::optional<Orbitstand> letzterOrbit; ///< the orbit drawn last, collected in the paths

    // --- What the driver keeps between two paints ------------------------------------------------
    Signatur SignaturGross, SignaturViertel; ///< of the stored full and matrix picture
    QImage Bildflaeche;                      ///< picture and palette strip as last drawn

    // --- Getters and setters: store and return the field of that name (model/Modell.cpp) ---------
    [[nodiscard]] double get_MP_x() const { return MP_x; }
    [[nodiscard]] double get_MP_y() const { return MP_y; }
    [[nodiscard]] double get_Br_x() const { return Br_x; }
    [[nodiscard]] double get_Koppl_x() const { return Koppl_x; }
    [[nodiscard]] double get_Koppl_y() const { return Koppl_y; }
    [[nodiscard]] double get_wert_Abbruch() const { return wert_Abbruch; }
    [[nodiscard]] double get_click2_Zoom() const { return click2_Zoom; }
    [[nodiscard]] double get_div_Factor() const { return div_Factor; }
    [[nodiscard]] double get_konv_Factor() const { return konv_Factor; }
    [[nodiscard]] double get_it_Factor() const { return it_Factor; }
    [[nodiscard]] double get_CJ_x() const { return CJ_x; }
    [[nodiscard]] double get_CJ_y() const { return CJ_y; }
    [[nodiscard]] int get_Max_Iterationen() const { return Max_Iterationen; }
    [[nodiscard]] int get_rechen_VarianteDiv() const { return rechen_VarianteDiv; }
    [[nodiscard]] int get_rechen_VarianteKonv() const { return rechen_VarianteKonv; }
    [[nodiscard]] int get_color_Offset() const { return color_Offset; }
    [[nodiscard]] int get_zahl_farbtab() const { return zahl_farbtab; }
    [[nodiscard]] int get_glg_Abbruch() const { return glg_Abbruch; }
    [[nodiscard]] int get_zahl_Matrix() const { return zahl_Matrix; }
    /// The equation number; while a twin is on it is first folded, and kept, as
    /// number * 10000 + twin variant. A folded number is not folded again.
    int get_wahl_Gleichung();

    void set_MP_x(double wert) { MP_x = wert; }
    void set_MP_y(double wert) { MP_y = wert; }
    /// Stores the width and derives the height from the aspect ratio.
    void set_Br_x(double wert);
    void set_Koppl_x(double wert) { Koppl_x = wert; }
    void set_Koppl_y(double wert) { Koppl_y = wert; }
    void set_wert_Abbruch(double wert) { wert_Abbruch = wert; }
    void set_click2_Zoom(double wert) { click2_Zoom = wert; }
    void set_div_Factor(double wert) { div_Factor = wert; }
    void set_konv_Factor(double wert) { konv_Factor = wert; }
    void set_it_Factor(double wert) { it_Factor = wert; }
    void set_CJ_x(double wert) { CJ_x = wert; }
    void set_CJ_y(double wert) { CJ_y = wert; }
    void set_Max_Iterationen(int wert) { Max_Iterationen = wert; }
    void set_rechen_VarianteDiv(int wert) { rechen_VarianteDiv = wert; }
    void set_rechen_VarianteKonv(int wert) { rechen_VarianteKonv = wert; }
    void set_color_Offset(int wert) { color_Offset = wert; }
    void set_zahl_farbtab(int wert) { zahl_farbtab = wert; }
    void set_glg_Abbruch(int wert) { glg_Abbruch = wert; }
    void set_zahl_Matrix(int wert) { zahl_Matrix = wert; }
    /// Stores an equation number. A folded number (above 9999) is unfolded: its last three digits
    /// become the twin variant.
    void set_wahl_Gleichung(int nummer);

    // --- Small operations: one named step each (model/Operationen.cpp) ---------------------------
    void ZoomGleich(double d);
    void ZoomMalD(double d);
    void itFactorMalD(double d);
    void divFactorMalD(double d);
    void konvFactorMalD(double d);
    void rechen_VarianteDivPlusM(int m);
    void rechen_VarianteKonvPlusM(int m);
    void MatrixOn();
    void Next_Matrix();
    void Vorher_Matrix();
    void Erste_Matrix();
    /// Corners from centre and width.
    void BildbreiteNeueEckpunkte();
    void BildbreiteMalD(double d);
    /// Multiplies the width by the zoom factor; refused with a message at exactly 1.
    void BildbreiteMalZoom();
    /// Divides the width by the zoom factor; refused with a message at exactly 1.
    void BildbreiteDurchZoom();
    /// k = 1: x, 2: y, 3: both coordinates of the centre become 0.
    void MP_xyGleich0(int k);
    void GenauigkeitGleichZoom();
    void kPotenzGleichZoom();
    void ZykluszahlGleichZoom();
    void wahl_GleichungNew(int n);
    void OrbitAbIterAnGleichZoom();
    /// k = 0: default, 1: width, 2: height from the zoom factor, 3 to 5: fixed formats.
    void VorschauXYPixelNeu(int k);
    void Max_IterationenMalD(double d);
    void glg_AbbruchPlusM(int m);
    void glg_AbbruchNew(int n);
    void wert_AbbruchMalD(double d);
    /// A coupling factor of exactly 0 becomes the zoom factor.
    void ZwillingAn();
    void Koppl_xMalZoom();
    void Koppl_yMalZoom();
    void Koppl_xyGleichZoom();
    void Koppl_yGleichx();
    void Koppl_xyMalD(double d);
    void GitterNullOn();
    void GitterMitteOn();

    // --- Equations (equations/) ------------------------------------------------------------------
    /// Puts the model into the start state of the current equation; the first call also clears the
    /// buffers.
    void Initialisierung();
    /// Further start settings of the equations above 106.
    void InitGreater100();
    /// Kept empty: the equations above 300 need nothing further.
    void InitGreater300();
    /// Writes the name of the current equation into g_NameGlg.
    void EquationName();
    /// Bailout measure of the main value (x, y); the twin value (p, t) has no influence. Records
    /// the orbit point while Orbitmodus is 2.
    double BetrQ_Varianten(double x, double y, double p, double t) const;

    /// The kernels: start value xqr + i yqr, constant Cxqr + i Cyqr. Return the last bailout
    /// measure (0.0 when none was reached) and leave the number of iterations in privateIterat.
    double IterateZmalZplusC(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateZmalZSplusC(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateVierpol(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateZhZSminus1(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateWurzelXXX(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateZmalZ_Complex_plusC(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateZmalZS_Complex_plusC(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateVierpol_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateZhZS_Complex_minus1(double xqr, double yqr, double Cxqr, double Cyqr) const;
    double IterateWurzel_Complex(double xqr, double yqr, double Cxqr, double Cyqr) const;

    // --- Colours (colours/) ----------------------------------------------------------------------
    /// Builds Palette48: kontr 0 or 1 three, 2 six main colours, other values change nothing.
    /// col_A .. col_F replace the default main colours where they are not 0 (rows of Palroot,
    /// taken to 8 bits).
    void fillPalette48(quint32 kontr, quint32 col_A, quint32 col_B, quint32 col_C, quint32 col_D,
                       quint32 col_E, quint32 col_F);
    /// Builds colormapWave.
    void fillPaletteWave();
    /// Colour of the number Iterationen; farbNr is a matrix cell 11..44 (0 = zahl_Matrix),
    /// sw1oder256 other than 0 gives the grey sw1oder256 - 1.
    QColor FarbeV1(quint32 Iterationen, quint32 farbNr, quint32 sw1oder256);
    /// Colour of an overlay mark.
    [[nodiscard]] QColor FarbeKreuze(quint32 wechselindex) const;
    void Farbtabelle3Farben();
    void Farbtabelle6Farben();
    void FarbtabelleWaveLaden();
    void FarbtabelleWaveAn();
    void TabelleArray();
    void color_OffsetPlusM(int d);
    void color_OffsetSlider(int v);
    void zahl_farbtabPlusM(int d);

    // --- Record store (store/Bildspeicher.cpp) ---------------------------------------------------
    void DatenSichern();
    void DatenTeilbildLaden();
    void UnDo1DatenTeilbildLaden();
    void UnDo2DatenTeilbildLaden();
    void WiederholenDatenTeilbildLaden();
    void BildSicherungLoeschen();

    // --- Picture (model/) ------------------------------------------------------------------------
    /// Computes what the request asks for, colours the stored picture and draws it.
    void Berechnung(QPainter* Paint);

  Q_SIGNALS:
    void WerteAktualisierenSignal(); ///< the model changed values that the panel shows
    void NeueBerechnungSignal();     ///< a new computation is wanted
    void OrbitOffSignal();           ///< the orbit display must be switched off

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
