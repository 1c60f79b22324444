#pragma once

#include "Mandelbrot.h"
#include "model/Platzierung.h"

/// Working values of one run of the render driver, handed from step to step.
/// Sizes, columns and rows are pixels, steps are plane units per pixel.
struct Bildlauf {
    QPainter* maler = nullptr;

    Bildmasse masse;                                 ///< sizes that the placement is made of
    qint32 SpaltenKLGross = 0, ZeilenKLGross = 0;    ///< full picture, within the buffers
    qint32 Spalten = 0, Zeilen = 0;                  ///< end (exclusive) of the computed rectangle
    qint32 CxStart = 0, CyStart = 0;                 ///< first computed column and row
    qint32 SpaltenKLHalbe = 0, ZeilenKLHalbe = 0;    ///< half of the size that the plane maps to
    qint32 SpaltenKL = 0, ZeilenKL = 0;              ///< one matrix cell; 0 outside the matrix view
    qint32 Spalten1 = 0, Spalten2 = 0, Spalten3 = 0; ///< left borders of cell columns 2 to 4
    qint32 Zeilen1 = 0, Zeilen2 = 0, Zeilen3 = 0;    ///< upper borders of cell rows 2 to 4
    double Schritte_Spalte = 0.0, Schritte_Zeile = 0.0;

    bool Matrix = false;        ///< 4x4 matrix view
    qint16 Juliamenge = 0;      ///< 1 = start value is the pixel, 0 = the constant is
    qint32 wahlGlgEndzahl = 0;  ///< family: the number's last two digits
    bool LinienRechnen = false; ///< overlays or an orbit are switched on
    bool orbitDraw = false;     ///< the start pixel was met, its orbit is to be drawn
    bool allePixel = true;      ///< false: of the pixels only the orbit's start is computed
    qint32 wahlrett = 0;        ///< the equation number while a picture is being cleared

    [[nodiscard]] Signatur& signatur(Mandelbrot& m) const {
        return Matrix ? m.SignaturViertel : m.SignaturGross;
    }
    [[nodiscard]] double& summe(Mandelbrot& m) const {
        return Matrix ? m.g_SummeViertel : m.g_SummeGross;
    }
    /// Whole picture row of the buffers, BildMax or ViertelMax columns.
    [[nodiscard]] std::span<double> werte(Mandelbrot& m, qint32 zeile) const {
        return zeileVon(m.ImageDoubles, m.ImageViertelDoubles, zeile);
    }
    [[nodiscard]] std::span<qint32> anzahlen(Mandelbrot& m, qint32 zeile) const {
        return zeileVon(m.ImageIntegers, m.ImageViertelIntegers, zeile);
    }
    [[nodiscard]] std::span<qint32> marken(Mandelbrot& m, qint32 zeile) const {
        return zeileVon(m.ImageGitterIntegers, m.ImageViertelGitterIntegers, zeile);
    }

  private:
    template <class T>
    [[nodiscard]] std::span<T> zeileVon(Mandelbrot::Bild<T>& voll,
                                        Mandelbrot::Viertelbild<T>& viertel, qint32 zeile) const {
        const auto index = static_cast<std::size_t>(zeile) + 1; // row 0 holds the records
        return Matrix ? std::span<T>(viertel[index]) : std::span<T>(voll[index]);
    }
};
