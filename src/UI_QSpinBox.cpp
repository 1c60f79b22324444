#include "UI_QSpinBox.h"

namespace {
constexpr int Grenze = 90000000;
constexpr int Schrittweite = 1;
} // namespace

UI_QSpinBox::UI_QSpinBox() : QSpinBox(nullptr) {
    setEnabled(true);
    setMaximum(Grenze);
    setMinimum(-Grenze);
    setSingleStep(Schrittweite);
}
