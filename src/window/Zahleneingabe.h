#pragma once

#include <QAbstractSpinBox>

/// Gives a number box of the panel the program's way of writing numbers, whatever the system's
/// language: a point before the decimals, a comma typed or pasted becomes one, exponents are
/// allowed. A number beyond the box's range counts as the nearest one within; what is no number
/// leaves the value that the box held before. The view begins at the first digit and ends behind a
/// whole one, and a tool tip shows the value in its shortest exact form.
void zahleneingabeEinrichten(QAbstractSpinBox* box);
