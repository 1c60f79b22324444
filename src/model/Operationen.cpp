#include "colours/Palettenwahl.h"
#include "Mandelbrot.h"
#include "Runden.h"

namespace {

constexpr int VarianteDivMax = 18;
constexpr int VarianteKonvMax = 12;

/// wert + schritt; beyond either end it becomes the opposite end, not the remainder.
qint32 rundum(qint32 wert, int schritt, qint32 hoechster) {
    const qint64 summe = qint64{wert} + schritt;
    if (summe > hoechster) {
        return 0;
    }
    return summe < 0 ? hoechster : static_cast<qint32>(summe);
}

/// Tells the user that a zoom factor of exactly 1 changes no width.
bool zoomIstEins(Mandelbrot& m) {
    if (m.click2_Zoom != 1.0) {
        return false;
    }
    QMessageBox::about(&m, Mandelbrot::tr("Nachricht/Hinweis:"),
                       Mandelbrot::tr("Achtung ZOOM = 1 "));
    return true;
}

} // namespace

void Mandelbrot::ZoomGleich(double d) { click2_Zoom = d; }

void Mandelbrot::ZoomMalD(double d) { click2_Zoom = click2_Zoom * d; }

void Mandelbrot::itFactorMalD(double d) {
    it_Factor = it_Factor * d;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::divFactorMalD(double d) {
    div_Factor = div_Factor * d;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::konvFactorMalD(double d) {
    konv_Factor = konv_Factor * d;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::rechen_VarianteDivPlusM(int m) {
    rechen_VarianteDiv = rundum(rechen_VarianteDiv, m, VarianteDivMax);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::rechen_VarianteKonvPlusM(int m) {
    rechen_VarianteKonv = rundum(rechen_VarianteKonv, m, VarianteKonvMax);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::MatrixOn() { zahl_Matrix = MatrixEin; }

void Mandelbrot::Next_Matrix() {
    if (zahl_Matrix == MatrixEin) {
        zahl_farbtabPlusM(1);
    }
    if (zahl_Matrix < MatrixEin) {
        zahl_Matrix = MatrixEin;
    }
}

void Mandelbrot::Vorher_Matrix() {
    if (zahl_Matrix == MatrixEin) {
        zahl_farbtabPlusM(-1);
    }
}

void Mandelbrot::Erste_Matrix() {
    zahl_Matrix = MatrixEin;
    zahl_farbtab = 0;
    g_PalettenZahl = palettenZahl(zahl_farbtab);
}

void Mandelbrot::BildbreiteNeueEckpunkte() {
    R_Min = MP_x - Br_x / 2;
    I_Min = MP_y - Br_y / 2;
    R_Max = MP_x + Br_x / 2;
    I_Max = MP_y + Br_y / 2;
}

void Mandelbrot::BildbreiteMalD(double d) {
    Br_y = g_Bildverhaeltnis * (Br_x * d);
    Br_x = Br_x * d;
    BildbreiteNeueEckpunkte();
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::BildbreiteMalZoom() {
    if (zoomIstEins(*this)) {
        return;
    }
    Br_y = g_Bildverhaeltnis * (click2_Zoom * Br_x);
    Br_x = Br_x * click2_Zoom;
    BildbreiteNeueEckpunkte();
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::BildbreiteDurchZoom() {
    if (zoomIstEins(*this)) {
        return;
    }
    Br_y = g_Bildverhaeltnis * Br_x / click2_Zoom;
    Br_x = Br_x / click2_Zoom;
    BildbreiteNeueEckpunkte();
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::MP_xyGleich0(int k) {
    if (k == 1 || k == 3) {
        MP_x = 0.0;
    }
    if (k == 2 || k == 3) {
        MP_y = 0.0;
    }
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::GenauigkeitGleichZoom() {
    g_Genauigkeit = click2_Zoom;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::kPotenzGleichZoom() {
    g_kPotenz = truncSat(click2_Zoom);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::ZykluszahlGleichZoom() {
    g_zycmax = std::min(truncSat(click2_Zoom), qint32{ZyklusMax});
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::wahl_GleichungNew(int n) {
    wahl_Gleichung = n;
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::OrbitAbIterAnGleichZoom() {
    if (static_cast<double>(Max_Iterationen) > click2_Zoom) {
        g_OrbitAbIterAn = truncSat(click2_Zoom);
    }
}

void Mandelbrot::VorschauXYPixelNeu(int k) {
    struct Format {
        qint32 x, y;
    };
    constexpr std::array<Format, 3> filmformate{{{160, 90}, {320, 180}, {640, 360}}};
    if (k == 0) {
        g_PixVorschauX = 100;
        g_PixVorschauY = 0;
    } else if (k == 1) {
        g_PixVorschauX = truncSat(click2_Zoom);
    } else if (k == 2) {
        g_PixVorschauY = truncSat(click2_Zoom);
    } else if (k >= 3 && k <= 5) {
        const Format& format = filmformate[static_cast<std::size_t>(k - 3)];
        g_PixVorschauX = format.x;
        g_PixVorschauY = format.y;
    }
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Max_IterationenMalD(double d) {
    Max_Iterationen = truncSat(Max_Iterationen * d);
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::glg_AbbruchPlusM(int m) {
    glg_Abbruch = rundum(glg_Abbruch, m, g_Max_glg_Abbruch);
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::glg_AbbruchNew(int n) {
    glg_Abbruch = n;
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::wert_AbbruchMalD(double d) {
    wert_Abbruch = wert_Abbruch * d;
    g_RechnenJa = VorschauRechnen;
}

void Mandelbrot::ZwillingAn() {
    if (Koppl_x == 0.0) {
        Koppl_x = click2_Zoom;
    }
    if (Koppl_y == 0.0) {
        Koppl_y = click2_Zoom;
    }
    g_RechnenJa = VorschauRechnen;
}

// The coupling operations leave NurFaerben although they change the picture: the signature holds
// the factors, so the driver computes anew.

namespace {
void malZoom(double& koppl, double zoom) {
    if (std::abs(zoom) > 0.0) {
        koppl = zoom * (koppl == 0.0 ? 1.0 : koppl);
    }
}
} // namespace

void Mandelbrot::Koppl_xMalZoom() {
    malZoom(Koppl_x, click2_Zoom);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Koppl_yMalZoom() {
    malZoom(Koppl_y, click2_Zoom);
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Koppl_xyGleichZoom() {
    if (std::abs(click2_Zoom) > 0.0) {
        Koppl_x = Koppl_y = click2_Zoom;
    }
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Koppl_yGleichx() {
    Koppl_y = Koppl_x;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::Koppl_xyMalD(double d) {
    Koppl_x = Koppl_x * d;
    Koppl_y = Koppl_y * d;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::GitterNullOn() {
    if (g_Gitterabstand == click2_Zoom) {
        return;
    }
    g_Gitterabstand = click2_Zoom;
    g_RechnenJa = NurFaerben;
}

void Mandelbrot::GitterMitteOn() { GitterNullOn(); }
