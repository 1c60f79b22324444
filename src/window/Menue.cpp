#include "UI_Hauptfenster.h"

void UI::AufbauMenu() {}
void UI::createActions() {}
