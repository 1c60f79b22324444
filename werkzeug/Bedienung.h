#pragma once

#include "UI_Hauptfenster.h"

#include <QTimer>

/// Uses the live window as a person does: menus and buttons by their captions, keys, clicks, and
/// the dialogs that open. What cannot be done is thrown as a Hindernis.
class Bedienung : public QObject {
  public:
    struct Hindernis {
        QString text;
    };

    explicit Bedienung(UI& ui);

    /// Chooses "menu → entry", submenus by their titles between. An entry alone is enough where it
    /// is the only one of that name.
    void menue(const QString& pfad);
    /// Opens a menu of the bar; the next step closes it.
    void menueOeffnen(const QString& titel);
    void knopf(const QString& aufschrift);
    /// Types into the box left of a caption, over what stands there.
    void tippen(const QString& aufschrift, const QString& zahl);
    /// Clicks on a point of the plane; in a full picture or a quarter.
    void klick(double x, double y);
    /// Clicks on a cell of the matrix view, from 1 to 4.
    void zelle(int zeile, int spalte);

    /// The name that the next file dialog gets; without one it is cancelled.
    void dateinameVorlegen(const QString& name) { dateiname = name; }
    /// Titles of the message boxes closed since the last call.
    QStringList meldungen();
    /// The number in the box left of a caption, as short as it can be written.
    [[nodiscard]] QString zahl(const QString& aufschrift) const;
    /// The texts of all labels of the panel.
    [[nodiscard]] QStringList anzeigen() const;
    /// True when the window has such a caption: a menu, an entry or a path to one, a button or a
    /// label of the panel. "…" stands for any text.
    [[nodiscard]] bool hatAufschrift(const QString& text) const;

    /// Lets the window do what is due. With `sichtbar` the display too gets its time.
    static void warten(bool sichtbar = false);

  private:
    [[nodiscard]] QAbstractSpinBox* box(const QString& aufschrift) const;
    [[nodiscard]] QAction* eintrag(const QString& pfad) const;
    void mausklick(double spalte, double zeile);
    void dialogBeantworten();

    UI& fenster;
    QTimer uhr;
    QString dateiname;
    QStringList geschlossen;
};

/// True when the text fits the pattern, in which "…" stands for any text. Blanks count once.
bool passtAuf(const QString& text, const QString& muster);
