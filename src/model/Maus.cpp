#include "Mandelbrot.h"

void Mandelbrot::paintEvent(QPaintEvent* /*event*/) {
    QPainter maler;
    maler.begin(this);
    Berechnung(&maler);
    maler.end();
}

void Mandelbrot::mousePressEvent(QMouseEvent* /*event*/) {}
