#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

/// One drawn point of an orbit.
struct Orbitlistenpunkt {
    double x = 0.0, y = 0.0;      ///< plane units
    qint32 spalte = 0, zeile = 0; ///< where it was drawn, pixels
};

/// What the list of an orbit says: the settings of its picture and its points. Lengths are plane
/// units. Every value is printed as it is.
struct Orbitlistendaten {
    static constexpr std::size_t PunkteMax = 256; ///< further points are not listed

    QDateTime zeit; ///< when the orbit was drawn
    QString version;
    QString gleichung; ///< name of the equation
    double mittelX = 0.0, mittelY = 0.0;
    double breite = 0.0;
    qint32 maxIterationen = 0;
    qint32 maxZyklen = 0;
    qint32 abbruch = 0; ///< bailout variant
    double abbruchwert = 0.0;
    qint32 zwilling = 0; ///< above 0: twin variant, listed with its coupling factors
    double kopplX = 0.0, kopplY = 0.0;
    double juliaX = 0.0, juliaY = 0.0;
    qint32 potenz = 0;
    bool vomMittelpunkt = false;          ///< the orbit starts at the picture's centre
    qint32 maxPunkte = 0;                 ///< most recorded points, as it was asked for
    double startX = 0.0, startY = 0.0;    ///< entry 0 of the orbit
    qint32 abIteration = 0;               ///< points are recorded after this iteration
    std::vector<Orbitlistenpunkt> punkte; ///< from the first iterate on, without the end mark
};

/// The list as an HTML page: settings, hints, then one row per point with its iteration number
/// (abIteration + 1 for the first).
[[nodiscard]] QString orbitliste(const Orbitlistendaten& daten);

/// Where an orbit starts, for the title: "(x, y) Pixel (column, row)", coordinates with six
/// significant digits.
[[nodiscard]] QString orbitstart(double x, double y, qint32 spalte, qint32 zeile);
