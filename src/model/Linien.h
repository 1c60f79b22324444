#pragma once

#include "model/Bildlauf.h"

#include <span>

/// The dashed overlay lines of one picture: two grids, centre cross and zero cross. A marked pixel
/// receives the mark of its line family and direction, which then flips to the other value of its
/// pair; this runs on across rows, so the lines come out dashed in two colours.
class Linien {
  public:
    /// Takes switches, grid spacing and picture from the model. A spacing that is not positive and
    /// finite gives no grid.
    Linien(const Mandelbrot& menge, const Bildlauf& lauf);

    /// Mark of the pixel at the plane point (x, y): 0 or the value of the last rule that met it.
    qint32 marke(double x, double y);

  private:
    struct Wechselmarke {
        qint32 wert; ///< odd first value of the pair
        qint32 naechste();
    };

    /// Vertical and horizontal mark of one line family.
    struct Paar {
        Wechselmarke senkrecht, waagrecht;
    };

    /// The multiples k * abstand + ursprung with von <= k < bis.
    struct Raster {
        double ursprung, von, bis;
    };

    [[nodiscard]] bool trifft(const Raster& raster, double k, double wert) const;
    void nullgitterMarken(double x, double y, qint32& marke);
    void mittelgitterMarken(double x, double y, qint32& marke);

    const Mandelbrot& m;
    double schritt; ///< plane units per pixel
    double abstand;
    bool aktiv = false;
    Raster nullX{}, nullY{}, mitteX{}, mitteY{};
    Paar mittelkreuz{{101}, {101}};
    Paar nullkreuz{{201}, {201}};
    Paar nullgitter{{301}, {301}};
    Paar mittelgitter{{401}, {401}};
};
