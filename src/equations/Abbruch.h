#pragma once

#include "equations/formeln/Mass.h"

class Mandelbrot;

/// Whether glg_Abbruch is a variant: 0..9, and not above g_Max_glg_Abbruch.
[[nodiscard]] bool abbruchBekannt(const Mandelbrot& m);

/// The repairs with which every bailout test begins, lasting ones of the model: an unknown variant
/// becomes 0; with a cycle search g_zycmax 0 becomes 7 and a number above 24 becomes 24. Sets
/// g_GenauJa. Returns the variant in force.
Abbruchart abbruchVorbereiten(const Mandelbrot& m);

/// Measure of a cycle search after abbruchVorbereiten; also keeps (x, y) in the history. Gives
/// -g_Genauigkeit as long as no earlier value matches.
double zyklusBetrag(const Mandelbrot& m, Abbruchart art, double x, double y);
