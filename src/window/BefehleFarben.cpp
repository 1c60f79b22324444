#include "Befehle.h"

// The menu Farben/Colors, the colour buttons of the panel and the slider.

using namespace befehle;

namespace {

using Texte = std::array<const char*, 4>; // for palette 1, 2, 3, 4

// The buttons +1 and -1 are worded differently on purpose.
constexpr Texte TexteBereich{
    QT_TRANSLATE_NOOP("UI", "Pal.1 bis 11"), QT_TRANSLATE_NOOP("UI", "Pal.2 ab 12"),
    QT_TRANSLATE_NOOP("UI", "Pal.3 ab 24"), QT_TRANSLATE_NOOP("UI", "Pal.4 ab 36")};
constexpr Texte TextePalette{
    QT_TRANSLATE_NOOP("UI", "<b>Palette 1</b>"), QT_TRANSLATE_NOOP("UI", "<b>Palette 2</b>"),
    QT_TRANSLATE_NOOP("UI", "<b>Palette 3</b>"), QT_TRANSLATE_NOOP("UI", "<b>Palette 4</b>")};

/// Labels the palette in use, g_PalettenZahl "1" to "4"; any other text leaves the label as it is.
void zeigePalette(UI& f, const Texte& texte) {
    const int nummer = f.Menge->g_PalettenZahl.toInt();
    if (nummer >= 1 && nummer <= 4) {
        f.infoLabelPalette->setText(UI::tr(texte[static_cast<std::size_t>(nummer - 1)]));
    }
}

/// Echoes the offset, takes it back from its box and moves the slider along.
void echoOffset(UI& f) {
    f.UI_colorOffset->setValue(f.Menge->get_color_Offset());
    f.Menge->set_color_Offset(f.UI_colorOffset->value());
    f.setColShiftSliderSlot();
}

void echoFarbtab(UI& f) { f.UI_zahlfarbtab->setValue(f.Menge->get_zahl_farbtab()); }

void farbtabPlus(UI& f, int m, const Texte& texte) {
    schritt(f, echoFarbtab, &Mandelbrot::zahl_farbtabPlusM, m);
    zeigePalette(f, texte);
}

void matrix(UI& f, void (Mandelbrot::*operation)()) {
    if (f.Menge->g_halbesBild > ViertelLinksOben) {
        f.Menge->g_halbesBild = ViertelLinksOben;
    }
    (f.Menge->*operation)();
    f.UI_zahlMatrix->setValue(f.Menge->get_zahl_Matrix());
    echoFarbtab(f);
    f.update();
    zeigePalette(f, TextePalette);
}

void waehlePalette(UI& f, void (Mandelbrot::*operation)(), int nummer) {
    (f.Menge->*operation)();
    f.WerteColorAktualisierenSlot();
    f.NeueColorBerechnungSlot();
    f.Menge->g_PalettenZahl = QString::number(nummer);
    zeigePalette(f, TextePalette);
}

} // namespace

void UI::color_OffsetPlusSlot() { schritt(*this, echoOffset, &Mandelbrot::color_OffsetPlusM, +25); }
void UI::color_OffsetMinusSlot() { schritt(*this, echoOffset, &Mandelbrot::color_OffsetPlusM, -5); }
void UI::setupColShiftSlot() {
    schritt(*this, echoOffset, &Mandelbrot::color_OffsetSlider, colShift_Slider->value());
}
void UI::setColShiftSliderSlot() {
    // Silent: the offset may lie beyond the slider's range.
    const QSignalBlocker stumm(colShift_Slider);
    colShift_Slider->setValue(UI_colorOffset->value());
}

void UI::zahl_farbtabPlus1Slot() { farbtabPlus(*this, +1, TexteBereich); }
void UI::zahl_farbtabMinus1Slot() { farbtabPlus(*this, -1, TextePalette); }

void UI::MatrixSlot() { matrix(*this, &Mandelbrot::MatrixOn); }
void UI::Next_MatrixSlot() { matrix(*this, &Mandelbrot::Next_Matrix); }
void UI::Vorher_MatrixSlot() { matrix(*this, &Mandelbrot::Vorher_Matrix); }
void UI::Erste_MatrixSlot() { matrix(*this, &Mandelbrot::Erste_Matrix); }

void UI::FarbtabelleWaveSlot() { waehlePalette(*this, &Mandelbrot::FarbtabelleWaveAn, 1); }
void UI::Farbtabelle3Slot() { waehlePalette(*this, &Mandelbrot::Farbtabelle3Farben, 2); }
void UI::Farbtabelle6Slot() { waehlePalette(*this, &Mandelbrot::Farbtabelle6Farben, 3); }
void UI::TabelleArraySlot() { waehlePalette(*this, &Mandelbrot::TabelleArray, 4); }
