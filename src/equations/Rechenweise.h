#pragma once

#include <QtGlobal>

/// The vector instructions that the row kernel may use.
enum class Befehlssatz : qint32 {
    Punktweise, ///< no lanes: every pixel by the point kernel
    Grundsatz,  ///< what every processor of the architecture has
    Avx2,
    Avx512,
};

/// How pictures are computed; never what they show. Only tests and benchmarks change it.
struct Rechenweise {
    bool abkuerzung;         ///< leave a loop whose remaining course is known
    Befehlssatz befehlssatz; ///< what this processor lacks is replaced by the best that it has
};

/// The setting in force; at the start everything that the processor offers.
[[nodiscard]] Rechenweise& rechenweise();

/// What was computed so far, in numbers that do not depend on the clock. Tests and benchmarks set
/// them to zero and ask for them.
struct Rechenaufwand {
    qint64 pixelInSpuren = 0;    ///< pixels finished in lanes
    qint64 pixelEinzeln = 0;     ///< kernel calls for single pixels
    qint64 schritteInSpuren = 0; ///< steps of single lanes, idle ones included
    qint64 schritteEinzeln = 0;  ///< steps of single pixels
};
[[nodiscard]] Rechenaufwand& rechenaufwand();

/// The widest instruction set, up to the wanted one, that this processor has.
[[nodiscard]] Befehlssatz verfuegbar(Befehlssatz gewuenscht);

/// Clears the upper halves of the vector registers. While other code has left them in use, some
/// processors run code of the base set several times slower.
void vektorregisterFreigeben();
