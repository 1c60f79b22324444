#include "files/Dateiausgabe.h"

#include "UI_Hauptfenster.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

/// Explicit flush: an error that shows only while the file is being closed would pass unnoticed.
bool vollstaendig(QFileDevice& datei, const QByteArray& inhalt) {
    return datei.write(inhalt) == inhalt.size() && datei.flush();
}

void melden(const QString& text, const QString& name) {
    QMessageBox::critical(nullptr, UI::tr("Es ist ein Fehler aufgetreten!"), text.arg(name));
}

} // namespace

bool dateiSchreiben(const QString& name, const QByteArray& inhalt) {
    const QFileInfo ziel(name);
    if (ziel.exists() && !ziel.isFile()) {
        QFile geraet(name); // a folder does not open
        return geraet.open(QIODevice::ReadWrite | QIODevice::Truncate) &&
               vollstaendig(geraet, inhalt);
    }
    QSaveFile datei(name);
    datei.setDirectWriteFallback(true);
    if (!datei.open(QIODevice::WriteOnly)) {
        return false;
    }
    if (!vollstaendig(datei, inhalt)) {
        datei.cancelWriting();
    }
    return datei.commit();
}

void speicherfehlerMelden(const QString& name) {
    melden(UI::tr("Es ist ein Fehler beim speichern der Datei:\n\n%1\n\naufgetreten!"), name);
}

void ladefehlerMelden(const QString& name) {
    melden(UI::tr("Es ist ein Fehler beim laden der Datei:\n\n%1\n\naufgetreten!"), name);
}
