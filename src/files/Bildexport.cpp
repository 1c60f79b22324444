#include "files/Dateiausgabe.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>
#include <QFileDialog>

void UI::Bild_SpeichernSlot() {
    dt = QDateTime::currentDateTime();
    const QString name = QFileDialog::getSaveFileName(
        this, tr("Bild speichern"), "Fraktal" + dt.toString("yyMMdd-hh-mm-ss") + ".png",
        tr("PNG-Bilder (*.png);;Alle Dateien (*.*)"));
    if (name.isEmpty()) {
        return;
    }
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!Menge->grab().save(&png, "PNG") || !dateiSchreiben(name, png.data())) {
        speicherfehlerMelden(name);
    }
}
