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

/// The values of g_halbesBild: which part of the window the picture fills. A loaded file may bring
/// any other number.
enum Bildmodus : qint32 {
    Vollbild = 0,
    ViertelLinksOben = 1, ///< the start picture
    ViertelRechtsOben = 2,
    ViertelLinksUnten = 3,
    ViertelRechtsUnten = 4,
    VollvorschauRechtsOben = 10,   ///< previews of the full picture, by the corner they stand in
    ViertelvorschauLinksOben = 11, ///< previews of the quarters, in the quarter's own corner
    ViertelvorschauRechtsOben = 12,
    ViertelvorschauLinksUnten = 13,
    ViertelvorschauRechtsUnten = 14,
    VollvorschauLinksOben = 100,
    VollvorschauLinksUnten = 300,
    VollvorschauRechtsUnten = 400,
};

/// From a full or quarter picture to its preview, and the remainder back.
inline constexpr qint32 VorschauAbstand = 10;

[[nodiscard]] constexpr bool istViertel(qint32 halbesBild) {
    return halbesBild >= ViertelLinksOben && halbesBild <= ViertelRechtsUnten;
}

/// Every mode from the first preview on is one.
[[nodiscard]] constexpr bool istVorschau(qint32 halbesBild) {
    return halbesBild >= VollvorschauRechtsOben;
}

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
