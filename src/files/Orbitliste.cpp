#include "UI_Hauptfenster.h"

#include <QFile>
#include <QTextStream>

void UI::OrbitListeHTM_SpeichernSlot() {
    dt = QDateTime::currentDateTime();
    // Relative: the list goes to the working directory.
    QFile datei("OrbitWirbel" + Menge->g_Versionsnummer + dt.toString("-yyyyMMdd-hh-mm-ss") +
                ".htm");
    if (datei.open(QIODevice::WriteOnly | QIODevice::Append)) { // a failure is passed over
        QTextStream(&datei) << Menge->g_OrbitListeHTMStr;
    }
}
