#include "UI_Hauptfenster.h"

void UI::Bild_SpeichernSlot() {}
void UI::Koordinaten_LadenSlot() {}
void UI::Koordinaten_SpeichernSlot() {}
void UI::OrbitListeHTM_SpeichernSlot() {}
