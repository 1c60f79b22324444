#pragma once

#include "UI_Hauptfenster.h"

// What the command slots share. A uniform slot is one line: its name and its row of data, handed to
// the function of its family. Most end in one of the steps repaint (update of the window) and
// title.

namespace befehle {

// Echoes: write the model's value into the widget that shows it.
void echoZoom(UI& fenster);
void echoGleichung(UI& fenster);
void echoKopplung(UI& fenster); ///< both factors

/// Writes the model's equation number into its box and takes it back from there, which unfolds the
/// twin variant.
void gleichungUebernehmen(UI& fenster);

/// Calls an operation of the model, echoes the changed value and repaints.
template <class... Parameter, class... Argument>
void schritt(UI& fenster, void (*echo)(UI&), void (Mandelbrot::*operation)(Parameter...),
             Argument... argument) {
    (fenster.Menge->*operation)(argument...);
    echo(fenster);
    fenster.update();
}

} // namespace befehle
