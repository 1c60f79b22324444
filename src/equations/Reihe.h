#pragma once

#include <QtGlobal>

/// The equations that lanes carry; all others are computed pixel by pixel. A new one needs its row
/// in Zeilenkern.cpp and its case in Reihenlauf.h.
enum class Reihenformel : qint32 {
    Keine,
    Quadrat,
    Auge,
    Vierpol,
    Z2,
    Z3,
    Z4,
    Z5,
    ZhochK,
    Zm,
    ZmZ,
    ZSZm,
    Zm2,
    ZmHochHg,
    ZmHochHuZ,
    ZSZmHochHu,
};

/// A piece of a row for the lanes: plain data, since it crosses into code for another instruction
/// set. All settings are repaired and valid.
struct Reihe {
    static constexpr qint32 Hoechstens = 1216; ///< most pixels of a piece
    /// Offset of a preset history entry from the start value.
    static constexpr double Voreinstellung = 1000.111;

    Reihenformel formel = Reihenformel::Keine;
    qint64 exponent = 0;   ///< of the terms that have one, not negative
    double schwelle = 0.0; ///< smallest squared denominator (Vierpol)
    qint32 zwilling = 0;   ///< variant, as zwillingsart gives it
    double kopplX = 0.0, kopplY = 0.0;

    qint32 abbruchart = 0;        ///< Abbruchart; Norm stands for Betrag too
    double grenze = 0.0;          ///< iteration goes on while the measure is below it
    qint64 schritte = 1;          ///< most steps, at least 1
    bool abkuerzung = true;       ///< leave orbits that have become periodic
    qint32 zycmax = 0;            ///< cycle search: last index of the history, 1..24
    double genau = 0.0;           ///< cycle search: tolerance
    double farben = 0.0;          ///< cycle search: number of colours
    double zyklusBetrag[25] = {}; ///< bailout 5: measure of a match with history entry i

    const double* x = nullptr; ///< real coordinates of the pixels
    double y = 0.0;
    bool julia = false;
    double cx = 0.0, cy = 0.0; ///< constant of a Julia type
    qint32 anzahl = 0;         ///< pixels

    double* wert = nullptr;    ///< out: last measure (the squared modulus for Betrag), 0 if aborted
    qint32* zaehler = nullptr; ///< out: count; 0 = left to the point kernel
    bool getestet = false;     ///< out: a bailout test was made
};

/// Computes a piece of a row. One function for each instruction set; nullptr in a build that does
/// not have it.
using Reihenkern = void (*)(Reihe&);
Reihenkern reihenkernGrundsatz();
Reihenkern reihenkernAvx2();
Reihenkern reihenkernAvx512();
