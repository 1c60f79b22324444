#pragma once

#include <QString>

/// The palette that a colour table number belongs to, as shown: "1" below 12, "2" from 12, "3" from
/// 24, "4" from 36.
[[nodiscard]] QString palettenZahl(qint32 farbtab);
