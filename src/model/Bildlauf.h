#pragma once

#include "Mandelbrot.h"

/// Working values of one run of the render driver, handed from step to step.
/// Sizes, columns and rows are pixels, steps are plane units per pixel.
struct Bildlauf {
    QPainter* maler = nullptr;

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
    double betrQ = 0.0;         ///< last value that a kernel returned
};
