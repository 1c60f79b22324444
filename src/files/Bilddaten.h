#pragma once

#include "UI_Hauptfenster.h"

#include <QIODevice>

/// The picture-data file: the parameters of a picture, no pixels. Little-endian without header:
/// 26 signed 32-bit integers, then binary64 reals; some live in the panel, some in the model.

/// The 200 bytes of a file: panel values as the panel shows them, the others from the model.
[[nodiscard]] QByteArray bilddatenSchreiben(const UI& fenster);

/// Reads a file into panel and model and requests a computation with the orbit (RechnenMitOrbit).
/// The model takes over the panel's part when the panel is read next. Any content is accepted:
/// what cannot be read becomes 0, panel values are bounded by their boxes, fields of the model take
/// whatever the file holds. Two further reals, for tolerance and grid spacing, are read after the
/// 200 bytes; a file that ends there sets both to 0.
void bilddatenLesen(QIODevice& quelle, UI& fenster);
