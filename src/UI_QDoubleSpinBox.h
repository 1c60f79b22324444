#pragma once

#include <QDoubleSpinBox>

/// Spin box for coordinates, bailout value, zoom and Julia constant: -1e30 to 1e30, step 0.1, 16
/// decimals. The layout gives it its parent.
class UI_QDoubleSpinBox : public QDoubleSpinBox {
    Q_OBJECT

  public:
    UI_QDoubleSpinBox();
};
