#pragma once

// Headers that nearly every source needs; used as the precompiled header.

#include <QAction>
#include <QApplication>
#include <QColor>
#include <QDateTime>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QSlider>
#include <QString>
#include <QWidget>

#include <array>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <span>
