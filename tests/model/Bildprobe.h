#pragma once

#include "Texttabelle.h"

/// A shown model of the given picture size (the palette strip comes on top of the width), with its
/// first picture not yet computed.
inline std::unique_ptr<Mandelbrot> bildprobe(int breite, int hoehe) {
    auto m = std::make_unique<Mandelbrot>();
    m->resize(breite + 20, hoehe);
    m->show();
    m->g_halbesBild = Vollbild;
    m->Max_Iterationen = 50;
    return m;
}

/// Sets fields, paints the widget once and returns what it shows.
inline QImage malen(Mandelbrot& m, const QString& felder = {}) {
    setze(m, felder);
    return m.grab().toImage();
}
