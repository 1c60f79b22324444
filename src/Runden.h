#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

// The only ways from a double to an integer. A plain cast of a value that the integer type does
// not hold is undefined in C++; files and spin boxes can bring any value.

/// Truncates toward zero to 64 bits, for colour indices. NaN and values out of range give the
/// smallest integer, as the x86 conversion instruction does.
[[nodiscard]] constexpr qint64 trunc64(double wert) noexcept {
    constexpr double grenze = 9223372036854775808.0; // 2^63, exact
    return wert >= -grenze && wert < grenze ? static_cast<qint64>(wert)
                                            : std::numeric_limits<qint64>::min();
}

/// Truncates toward zero to 32 bits, for colour indices and pixels. NaN and values out of range
/// give the smallest integer, as the x86 conversion instruction does.
[[nodiscard]] constexpr qint32 trunc32(double wert) noexcept {
    return wert > -2147483649.0 && wert < 2147483648.0 ? static_cast<qint32>(wert)
                                                       : std::numeric_limits<qint32>::min();
}

/// Truncates toward zero to 32 bits, for parameter operations. Values out of range give the
/// nearest limit, NaN gives 0.
[[nodiscard]] constexpr qint32 truncSat(double wert) noexcept {
    if (!(wert == wert)) {
        return 0;
    }
    if (wert <= -2147483648.0) {
        return std::numeric_limits<qint32>::min();
    }
    return wert < 2147483647.0 ? static_cast<qint32>(wert) : std::numeric_limits<qint32>::max();
}
