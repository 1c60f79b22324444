#include "UI_Hauptfenster.h"

void UI::WerteAktualisierenSlot() {}
void UI::NeueBerechnungSlot() {}
void UI::VorschauSlot() {}
void UI::WerteColorAktualisierenSlot() {}
void UI::NeueColorBerechnungSlot() {}
void UI::SetNewTitle() {}
