#pragma once

// The headers that nearly every test needs; precompiled once for all test programs.

#include "stdafx.h"

#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <bit>
#include <functional>
#include <initializer_list>
#include <memory>
#include <random>

/// Language, scale, fonts and style of the machine reach no test.
inline const bool g_Umgebung = [] {
    for (const char* name : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI",
                             "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME", "LANGUAGE"}) {
        qunsetenv(name);
    }
    return qputenv("LC_ALL", "C.UTF-8");
}();
