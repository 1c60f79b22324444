#pragma once

// The headers that nearly every test needs; precompiled once for all test programs.

#include "stdafx.h"

#include <QSignalSpy>
#include <QTest>
