#pragma once

#include "equations/formeln/Mass.h"
#include "equations/formeln/Verzeichnis.h"
#include "equations/punkt/Punktkern.h"
#include "equations/Rechenweise.h"

/// A piece of a row for the lanes: plain data, since it crosses into code for another instruction
/// set. All settings are repaired and valid.
struct Zeilenstueck {
    static constexpr qint32 Hoechstens = 1216; ///< most pixels of a piece
    static constexpr qint32 ZyklusMax = 24;    ///< last index of a history at most
    static constexpr qint64 Blickabstand = 8;  ///< steps between two looks at the lanes
    /// Offset of a preset history entry from the start value.
    static constexpr double Voreinstellung = 1000.111;

    Formelwerte werte;

    Abbruchart abbruchart = Abbruchart::Norm; ///< Norm stands for Betrag too
    double grenze = 0.0;                      ///< iteration goes on while the measure is below it
    qint64 schritte = 1;                      ///< most steps, at least 1
    bool abkuerzung = true;                   ///< leave orbits that have become periodic
    qint32 zycmax = 0;                        ///< cycle search: last index of the history, from 1
    double genau = 0.0;                       ///< cycle search: tolerance
    double farben = 0.0;                      ///< cycle search: number of colours
    double zyklusBetrag[ZyklusMax + 1] = {};  ///< bailout 5: measure of a match with entry i

    const double* x = nullptr; ///< real coordinates of the pixels
    double y = 0.0;
    bool julia = false;
    double cx = 0.0, cy = 0.0; ///< constant of a Julia type
    qint32 anzahl = 0;         ///< pixels

    double* wert = nullptr;    ///< out: last measure (the squared modulus for Betrag), 0 if aborted
    qint32* zaehler = nullptr; ///< out: count; 0 = left to the point kernel
    Zwischenstand* ab = nullptr; ///< out: where the point kernel takes over; getan 0 = the start
    bool getestet = false;       ///< out: a bailout test was made
    qint64 schritteGetan = 0;    ///< out: steps of single lanes, idle ones included
};

/// Computes a piece of a row.
using Zeilenlauf = void (*)(Zeilenstueck&);

/// The lanes of a group for one instruction set: a function for each place of the list, nullptr
/// where lanes cannot carry the formula. Each is made in the source of the group.
template <Befehlssatz satz, class Gruppe>
[[nodiscard]] const Zeilenlauf* zeilentafel();
