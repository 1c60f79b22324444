// Takes the screenshots of the documentation from the live window:
//
//     wirbelwerk_fenster FOLDER      writes FOLDER/NAME.png for every scene
//
// Needs a display, so that the window looks as a user sees it; docs/bilder.sh provides one.

#include "UI_Hauptfenster.h"

#include <QDir>
#include <QScreen>
#include <QThread>

#include <cstdio>

namespace {

/// One screenshot: an equation from its start settings, then what the user would change. Zero
/// keeps the start setting.
struct Szene {
    const char* name;
    int gleichung;
    double mitteX, mitteY, breite; ///< plane units
    int iterationen;
    int farbtabelle, versatz;  ///< palette and its rotation
    int divergent, konvergent; ///< colour variants of the outside and the inside
};

constexpr std::array<Szene, 1> Szenen{{
    {"fenster", 1, -0.7453, 0.1127, 0.0065, 2000, 36, 0, 3, 0},
}};

constexpr int Ruhezeit = 300; ///< ms that the display gets to show the last paint

/// Lets the window paint what is due.
void Malen() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(Ruhezeit / 3);
    }
}

bool Ausfuehren(UI& fenster, const QString& slot) {
    return QMetaObject::invokeMethod(&fenster, slot.toLatin1().constData(), Qt::DirectConnection);
}

void Einstellen(UI& fenster, const Szene& szene) {
    if (szene.breite != 0.0) {
        fenster.UI_MPx->setValue(szene.mitteX);
        fenster.UI_MPy->setValue(szene.mitteY);
        fenster.UI_Brx->setValue(szene.breite);
    }
    if (szene.iterationen != 0) {
        fenster.UI_Iterationen->setValue(szene.iterationen);
    }
    if (szene.farbtabelle != 0) {
        fenster.UI_zahlfarbtab->setValue(szene.farbtabelle);
    }
    if (szene.versatz != 0) {
        fenster.UI_colorOffset->setValue(szene.versatz);
    }
    if (szene.divergent != 0) {
        fenster.UI_rechenVarianteDiv->setValue(szene.divergent);
        fenster.UI_rechenVarianteKonv->setValue(szene.konvergent);
    }
    fenster.UI_Start->click();
}

bool Aufnehmen(const Szene& szene, const QString& ordner) {
    UI fenster;
    fenster.show();
    Malen();
    if (!Ausfuehren(fenster, QStringLiteral("Gleichung%1Slot").arg(szene.gleichung)) ||
        !Ausfuehren(fenster, QStringLiteral("GanzesBildSlot"))) {
        return false;
    }
    Malen();
    Einstellen(fenster, szene);
    Malen();
    const QImage foto = fenster.screen()->grabWindow(fenster.winId()).toImage();
    return foto.save(QDir(ordner).filePath(QStringLiteral("%1.png").arg(szene.name)));
}

/// Warnings only: the driver reports its rows as it goes.
void Melden(QtMsgType art, const QMessageLogContext& /*kontext*/, const QString& text) {
    if (art != QtDebugMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    if (argc != 2) {
        std::fputs("usage: wirbelwerk_fenster FOLDER\n", stderr);
        return 2;
    }
    qInstallMessageHandler(Melden);
    for (const Szene& szene : Szenen) {
        if (!Aufnehmen(szene, QString::fromLocal8Bit(argv[1]))) {
            std::fprintf(stderr, "cannot take %s\n", szene.name);
            return 1;
        }
    }
    return 0;
}
