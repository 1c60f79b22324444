#pragma once

#include "Mandelbrot.h"

#include <functional>
#include <vector>

/// One picture of 725 x 635 computed pixels, without colours: what the kernels have to do for the
/// window at its start size.
class Messbild {
  public:
    static constexpr qint32 Spalten = 725;
    static constexpr qint32 Zeilen = 635;

    /// The start picture of an equation, changed by `abweichung` where it is given.
    explicit Messbild(qint32 gleichung, const std::function<void(Mandelbrot&)>& abweichung = {});

    /// Computes the rows 0, abstand, 2 * abstand, ... and returns the milliseconds of
    /// processor time. The settings are those of rechenweise().
    double rechnen(qint32 abstand = 1);

    /// Pixels of the last picture whose value (to the bit; any NaN equals any NaN) or count is not
    /// that of another picture with the same rows.
    [[nodiscard]] qint64 unterschiede(const Messbild& anderes) const;

  private:
    static Mandelbrot& modell();

    std::function<void(Mandelbrot&)> einstellen;
    std::vector<double> x;
    std::vector<double> wert; ///< of the computed rows, one after the other
    std::vector<qint32> zaehler;
};
