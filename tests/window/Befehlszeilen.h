#pragma once

#include "Stand.h"

#include <functional>

// The expectations of all commands: slot name without "Slot", effect on the record, ending.

/// How a command ends: with a repaint, with a new title, with a message "title|text".
struct Ausgang {
    bool bild, titel;
    QString meldung;
};
inline const Ausgang Still{false, false, {}};
inline const Ausgang Bild{true, false, {}};
inline const Ausgang Titel{false, true, {}};
inline const Ausgang BildTitel{true, true, {}};

class Befehle {
  public:
    struct Zeile {
        QString slot;
        std::function<Ausgang(Stand&)> wirkung;
    };
    std::vector<Zeile> zeilen;

    Befehle();

  private:
    using Tun = std::function<void(Stand&)>;
    using Werte = std::map<QString, double>;

    /// An effect whose ending depends on the state.
    void neu(const QString& slot, const std::function<Ausgang(Stand&)>& wirkung);
    void neu(const QString& slot, const Ausgang& ausgang, const Tun& tun);
    void setze(const QString& slot, const Ausgang& ausgang, const Werte& werte);

    void zahlen();
    void breite();
    void zwilling();
    void farben();
    void matrix();
    void linien();
    void orbit();
    void orbitNurAn();
    void gleichungen();
    void abbruch();
    void groesse();
    void vorschau();
    void verlauf();
};
