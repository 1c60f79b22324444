#pragma once

#include <QSpinBox>

/// Spin box for all whole numbers: -90000000 to 90000000, step 1. The layout gives it its parent.
class UI_QSpinBox : public QSpinBox {
    Q_OBJECT

  public:
    UI_QSpinBox();
};
