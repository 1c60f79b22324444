#pragma once

#include <QLocale>

class QCoreApplication;

/// Qt's own texts (file dialogs, buttons, context menus) in a language, the system's if none is
/// named, as far as Qt's translations are installed. The program's texts stay as they are, and so
/// do the "OK" of its boxes and its direction from left to right.
void qtTexteUebersetzen(QCoreApplication& app, const QLocale& sprache = QLocale::system());
