#include "UI_Hauptfenster.h"

UI::UI() = default;
