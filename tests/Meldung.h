#pragma once

#include "Testbasis.h"

/// The message boxes that a step opened.
struct Meldung {
    int anzahl = 0;
    QString titel, text;         ///< of the last box
    QWidget* besitzer = nullptr; ///< its parent
    QSize groesse;
};

/// Runs a step and closes every message box that it waits for.
template <class Schritt>
Meldung meldungBei(Schritt&& schritt) {
    Meldung meldung;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&meldung] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++meldung.anzahl;
            meldung.titel = box->windowTitle();
            meldung.text = box->text();
            meldung.besitzer = box->parentWidget();
            meldung.groesse = box->size();
            box->close();
        }
    });
    timer.start(1);
    schritt();
    return meldung;
}
