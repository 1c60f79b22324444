#include "UI_Hauptfenster.h"

void UI::aboutKomplexeZahlen() {}
void UI::aboutComplexNumbers() {}
void UI::aboutFraktale() {}
void UI::aboutFractals() {}
void UI::aboutSpezialFraktale() {}
void UI::aboutSpecialFractals() {}
void UI::aboutGleichungen() {}
void UI::aboutEquations() {}
void UI::aboutBerechnung() {}
void UI::aboutCalc() {}
void UI::aboutZwilling() {}
void UI::aboutTwin() {}
void UI::aboutOrbit() {}
void UI::aboutOrbitEn() {}
void UI::aboutFarbTab() {}
void UI::aboutColorTab() {}
void UI::aboutDiv() {}
void UI::aboutDivEn() {}
void UI::aboutKonv() {}
void UI::aboutKonvEn() {}
void UI::about() {}
void UI::aboutQt() {}
