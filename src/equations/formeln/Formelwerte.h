#pragma once

#include <QtGlobal>

/// The settings of a picture that formulas read, after the lasting repairs. Plain data, since it
/// crosses into code for other instruction sets.
struct Formelwerte {
    qint64 k = 0, hg = 0, hu = 0; ///< power K, its half for even and for odd K
    double px = 0.0, py = 0.0;    ///< coupling factors Koppl_x, Koppl_y; the P of the roots
    qint32 zwilling = 0;          ///< twin variant g_ZwillingJa
    double abrueckung = 0.0;      ///< smallest magnitude of a start coordinate (poles, exponents)
    double schwelle = 0.0;        ///< smallest squared denominator of equations 5 and 6
};
