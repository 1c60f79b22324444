#pragma once

#include <QDoubleSpinBox>

/// Spin box for coupling and colour factors: -1e30 to 1e30, step 1.0, 5 decimals. The layout gives
/// it its parent.
class UI_QDoubleSpinBoxK : public QDoubleSpinBox {
    Q_OBJECT

  public:
    UI_QDoubleSpinBoxK();
};
