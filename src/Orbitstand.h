#pragma once

#include <QtGlobal>

#include <array>
#include <vector>

/// An orbit as it was drawn: points, settings and geometry. An equal orbit is drawn again with
/// every repaint but not collected again. Coordinates are kept as bit patterns, so that an orbit
/// that ends in NaN equals itself.
struct Orbitstand {
    std::vector<quint64> punkte; ///< x and y in turn
    std::array<quint64, 8> geometrie{};
    std::array<qint32, 5> einstellungen{};

    bool operator==(const Orbitstand&) const = default;
};
