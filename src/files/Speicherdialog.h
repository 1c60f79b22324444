#pragma once

#include <QString>

class QWidget;

/// Asks for the name of a file to write, with the name proposed in the working directory. A name
/// without an ending gets the given one inside the dialog, so that its question before replacing a
/// file is about the file that will be written. Empty when the user cancels.
[[nodiscard]] QString speichernameErfragen(QWidget* eltern, const QString& titel,
                                           const QString& vorschlag, const QString& filter,
                                           const QString& endung);
