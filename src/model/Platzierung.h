#pragma once

#include "Schalter.h"

/// Sizes that a placement is made of, pixels: the whole picture, its half, the preview.
struct Bildmasse {
    qint64 W = 0, H = 0;
    qint64 w = 0, h = 0;
    qint64 pX = 0, pY = 0;
};

/// Columns [x0, x1) and rows [y0, y1).
struct Rechteck {
    qint64 x0 = 0, x1 = 0, y0 = 0, y1 = 0;

    bool operator==(const Rechteck&) const = default;
};

/// Picture mode after the request is taken up: a computation turns a preview into its picture,
/// VorschauRechnen turns a full or quarter picture into the preview at the same place.
[[nodiscard]] constexpr qint32 modusNachAnforderung(qint32 halbesBild, qint32 rechnenJa) {
    if (halbesBild >= VollvorschauLinksOben) {
        return rechnenJa == Rechnen ? qint32{Vollbild} : halbesBild;
    }
    if (rechnenJa == Rechnen && istVorschau(halbesBild)) {
        return halbesBild % VorschauAbstand;
    }
    return rechnenJa == VorschauRechnen && halbesBild <= ViertelRechtsUnten
               ? halbesBild + VorschauAbstand
               : halbesBild;
}

/// Where the picture of a Bildmodus is placed, cut to the whole picture. The whole plane rectangle
/// is drawn into it. Any other number gets the halved size top left when it is positive, else the
/// full picture.
[[nodiscard]] Rechteck platzierung(qint32 halbesBild, const Bildmasse& masse);
