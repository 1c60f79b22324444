#include "UI_Hauptfenster.h"

void UI::AufbauLayout() {}
