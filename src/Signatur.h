#pragma once

#include <QtGlobal>

#include <array>

class Mandelbrot;

/// Everything that tells whether a stored picture still shows the parameters: every summand of the
/// picture signature and the size. The sums alone are not enough: beside a bailout value of 1e8 a
/// small move of the centre is lost in them, and so is an exchange of x and y.
struct Signatur {
    static constexpr int GanzeAnzahl = 17;
    static constexpr int ReelleAnzahl = 10;

    std::array<qint32, GanzeAnzahl> ganze{};
    std::array<double, ReelleAnzahl> reelle{};
    qint32 breite = -1; ///< pixels of the picture; -1 = no picture stored yet
    qint32 hoehe = -1;

    /// Same picture; a NaN equals any NaN.
    [[nodiscard]] bool gleich(const Signatur& andere) const;
    /// Same picture but for the settings of the orbit display.
    [[nodiscard]] bool gleichBisAufOrbit(const Signatur& andere) const;
};

/// Takes the summands from the model and writes bilddatenInteger (sum of the whole numbers with
/// their weights, wrapping at 32 bits), bilddatenDouble and bilddatenSumme. Size in pixels.
Signatur signaturBilden(Mandelbrot& menge, qint32 breite, qint32 hoehe);
