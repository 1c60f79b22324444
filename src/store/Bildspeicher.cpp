#include "store/Bildspeicher.h"

#include <algorithm>

using namespace bildspeicher;

namespace {

/// Read access to row 0 or to a history copy of it.
struct Verlauf {
    std::span<const qint32> ganze;
    std::span<const double> reelle;
};

/// Whether the current quarter's slot holds a picture saved in that quarter.
bool gespeichert(const Mandelbrot& m, const Verlauf& verlauf) {
    const auto beginn = platzBeginn(m.g_halbesBild);
    return beginn && verlauf.ganze[*beginn + EintragViertel] == m.g_halbesBild &&
           verlauf.ganze[*beginn + EintragPruefsumme] >= 1;
}

/// Copies the current quarter's slot into the fields; without a slot nothing happens.
void laden(Mandelbrot& m, const Verlauf& verlauf) {
    const auto beginn = platzBeginn(m.g_halbesBild);
    if (!beginn) {
        return;
    }
    for (std::size_t i = 0; i < GanzeFelder.size(); ++i) {
        if (i != EintragViertel) {
            m.*GanzeFelder[i] = verlauf.ganze[*beginn + i];
        }
    }
    for (std::size_t i = 0; i < ReelleFelder.size(); ++i) {
        m.*ReelleFelder[i] = verlauf.reelle[*beginn + i];
    }
}

void meldung(Mandelbrot& m, const QString& text) {
    QMessageBox::about(&m, Mandelbrot::tr("Nachricht/Hinweis"), text);
}

} // namespace

void Mandelbrot::DatenSichern() {
    auto& ganze = ImageIntegers.front();
    auto& reelle = ImageDoubles.front();
    if (const auto beginn = platzBeginn(g_halbesBild)) {
        for (std::size_t i = 0; i < GanzeFelder.size(); ++i) {
            ganze[*beginn + i] = this->*GanzeFelder[i];
        }
        for (std::size_t i = 0; i < ReelleFelder.size(); ++i) {
            reelle[*beginn + i] = this->*ReelleFelder[i];
        }
    }
    UnDo2Integers = UnDo1Integers;
    UnDo2Doubles = UnDo1Doubles;
    UnDo1Integers = UnDo0Integers;
    UnDo1Doubles = UnDo0Doubles;
    std::copy_n(ganze.begin(), VerlaufLaenge, UnDo0Integers.begin());
    std::copy_n(reelle.begin(), VerlaufLaenge, UnDo0Doubles.begin());
}

void Mandelbrot::DatenTeilbildLaden() {
    const auto& ganze = ImageIntegers.front();
    const auto beginn = platzBeginn(g_halbesBild);
    if (g_halbesBild > Vollbild && beginn && ganze[*beginn + EintragViertel] == g_halbesBild) {
        laden(*this, {ganze, ImageDoubles.front()});
    }
}

void Mandelbrot::UnDo1DatenTeilbildLaden() {
    // The redo source is taken even when there is nothing to go back to.
    UnDo3Integers = UnDo0Integers;
    UnDo3Doubles = UnDo0Doubles;
    UnDo4Integers = UnDo2Integers;
    UnDo4Doubles = UnDo2Doubles;
    if (const Verlauf davor{UnDo1Integers, UnDo1Doubles}; gespeichert(*this, davor)) {
        laden(*this, davor);
    } else {
        meldung(*this, tr("Bisher kein vorletztes Bild gespeichert"));
    }
}

void Mandelbrot::UnDo2DatenTeilbildLaden() {
    if (const Verlauf davor{UnDo2Integers, UnDo2Doubles}; gespeichert(*this, davor)) {
        laden(*this, davor);
    } else {
        meldung(*this, tr("Bisher kein vorletztes Bild gespeichert"));
    }
    g_UnDo = 0;
}

void Mandelbrot::WiederholenDatenTeilbildLaden() {
    // One history entry is tested and another one loaded: meant.
    if (gespeichert(*this, {UnDo2Integers, UnDo2Doubles})) {
        laden(*this, {UnDo3Integers, UnDo3Doubles});
    } else {
        meldung(*this, tr("Bisher gar kein Bild gespeichert"));
    }
    g_UnDo = 0;
}

void Mandelbrot::BildSicherungLoeschen() {
    if (const auto beginn = platzBeginn(g_halbesBild)) {
        ImageIntegers.front()[*beginn + EintragViertel] = -1;
    }
}
