#pragma once

#include <QtGlobal>

// Values of those switches of the model that several parts read and write.

/// What the next paint has to do, the values of g_RechnenJa.
enum Anforderung : qint32 {
    NurFaerben = 0,      ///< colour anew; the driver makes it Rechnen when parameters changed
    Rechnen = 1,         ///< compute; the driver makes it NurFaerben when nothing changed
    RechnenMitOrbit = 2, ///< compute every pixel in any case, the orbit's start among them
    VorschauRechnen = 3, ///< parameters changed by an operation: compute a preview
};

/// The values of g_OrbitJa: the orbit's colour.
enum Orbitfarbe : qint32 {
    OrbitAus = 0,
    OrbitWeiss = 1,
    OrbitSchwarz = 2,
    OrbitGrau = 3,
    OrbitRot = 4,
    OrbitBunt = 5,
};

/// The values of g_OrbitDuennJa: thick or thin, the last orbit or all of them.
enum Orbitdarstellung : qint32 {
    LetzterDick = 0,
    LetzterDuenn = 1,
    AlleDick = 20,
    AlleDuenn = 21,
    LoeschenDick = 200, ///< forget all orbits, then draw the last one
    LoeschenDuenn = 201,
};

inline constexpr qint32 OrbitLaengeVoll = 256; ///< most orbit points drawn and listed
