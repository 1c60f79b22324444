#pragma once

#include "Testbasis.h"
#include "UI_Hauptfenster.h"

#include <map>

/// A record of what a command can change in model and window: read from a live window, changed by
/// the steps that befehle.txt explains, and compared.
struct Stand {
    std::map<QString, double> feld; ///< of the model; "Schieber" is the slider
    std::map<QString, double> box;
    std::map<QString, QString> label;
    QString ende = "-"; ///< how the command ends
    QString meldung;    ///< the message box that it opens, "title|text"

    static constexpr double Verhaeltnis = 0.875; ///< of every record in these tests

    /// What the words among the steps stand for.
    static inline std::map<QString, QString> woerter;

    /// Does the steps, up to the first one that ends the command. An unknown one throws.
    void tue(const QString& schritte);

  private:
    bool schritt(QString text);
    [[nodiscard]] double wert(const QString& text) const;
    [[nodiscard]] bool erfuellt(const QString& bedingung) const;
    void rechne(const QString& name, char art, double zahl);
    void falte(bool hinein);
};

/// The boxes of the parameters and the info labels, by name.
extern const std::map<QString, QWidget* (*)(const UI&)> Boxen;
extern const std::map<QString, QLabel * UI::*> Labels;

Stand lies(const UI& ui);
void stelle(UI& ui, const Stand& stand);
/// What differs, empty when nothing does.
QString unterschied(const Stand& ist, const Stand& soll);
/// The lines of a file beside the tests, without comments and empty lines.
QStringList zeilenAus(const char* datei);
