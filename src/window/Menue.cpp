#include "Menuetafeln.h"

namespace {

/// The member name of a slot as the string-based connections want it.
QByteArray slotName(const char* slot) { return QByteArray::number(QSLOT_CODE) + slot; }

/// Creates one menu with all its rows; its submenus are filled before they are attached.
QMenu* baueMenue(UI& fenster, const Menuetafel& tafel) {
    auto* menue = new QMenu(fenster.Menuleiste);
    fenster.*tafel.menue = menue;
    menue->setTitle(UI::tr(tafel.titel));
    for (const Menuezeile& zeile : tafel.zeilen) {
        if (zeile.slot != nullptr) {
            menue->addAction(UI::tr(zeile.text), &fenster, slotName(zeile.slot).constData());
        } else if (zeile.unter != nullptr) {
            menue->addMenu(baueMenue(fenster, *zeile.unter));
        } else if (zeile.aktion != nullptr) {
            menue->addAction(fenster.*zeile.aktion);
        } else {
            menue->addSeparator();
        }
    }
    return menue;
}

} // namespace

void UI::AufbauMenu() {
    createActions();
    Menuleiste = new QMenuBar(this);
    for (const Menuetafel* tafel : menuetafeln::Menueleiste) {
        Menuleiste->addMenu(baueMenue(*this, *tafel));
    }
    setMenuBar(Menuleiste);
}

void UI::createActions() {
    for (const Hilfezeile& zeile : menuetafeln::Hilfeaktionen) {
        auto* aktion = new QAction(tr(zeile.text), this);
        this->*zeile.aktion = aktion;
        connect(aktion, SIGNAL(triggered()), this, slotName(zeile.slot).constData());
    }
    connect(aboutQtAct, SIGNAL(triggered()), qApp, SLOT(aboutQt()));
    exitAct->setShortcuts(QKeySequence::Quit);
}
