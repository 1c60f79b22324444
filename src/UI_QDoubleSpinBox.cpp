#include "UI_QDoubleSpinBox.h"

namespace {
constexpr double Grenze = 1e30;
constexpr int Nachkommastellen = 16;
constexpr double Schrittweite = 0.1;
} // namespace

UI_QDoubleSpinBox::UI_QDoubleSpinBox() : QDoubleSpinBox(nullptr) {
    setEnabled(true);
    setMaximum(Grenze);
    setMinimum(-Grenze);
    setDecimals(Nachkommastellen);
    setSingleStep(Schrittweite);
}
