#include "UI_QDoubleSpinBoxK.h"

namespace {
constexpr double Grenze = 1e30;
constexpr int Nachkommastellen = 5;
constexpr double Schrittweite = 1.0;
} // namespace

UI_QDoubleSpinBoxK::UI_QDoubleSpinBoxK() : QDoubleSpinBox(nullptr) {
    setEnabled(true);
    setMaximum(Grenze);
    setMinimum(-Grenze);
    setDecimals(Nachkommastellen);
    setSingleStep(Schrittweite);
}
