#include "files/Dateiausgabe.h"
#include "files/Speicherdialog.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>

void UI::Bild_SpeichernSlot() {
    dt = QDateTime::currentDateTime();
    const QString endung = ".png";
    const QString name = speichernameErfragen(this, tr("Bild speichern"),
                                              "Fraktal" + dt.toString("yyMMdd-hh-mm-ss") + endung,
                                              tr("PNG-Bilder (*.png);;Alle Dateien (*.*)"), endung);
    if (name.isEmpty()) {
        return;
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!Menge->grab().save(&png, "PNG") || !dateiSchreiben(name, png.data())) {
        speicherfehlerMelden(name);
    }
}
