#include "Mandelbrot.h"

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    Mandelbrot menge;
    menge.show();
    return QApplication::exec();
}
