#pragma once

#include <QByteArray>
#include <QString>

/// Writes inhalt to the file name and tells whether all of it arrived. An older regular file is
/// replaced only after the new one is complete, otherwise it stays as it was (in a folder where no
/// second file can be made it is overwritten directly). A device is written to, never replaced.
[[nodiscard]] bool dateiSchreiben(const QString& name, const QByteArray& inhalt);

/// Tells the user that the file name could not be written.
void speicherfehlerMelden(const QString& name);

/// Tells the user that the file name could not be read.
void ladefehlerMelden(const QString& name);
