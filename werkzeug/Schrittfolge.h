#pragma once

#include <QList>
#include <QString>

// Reads a page of the documentation as steps that can be replayed. A step is an item of a numbered
// list; a picture stands for itself. Both guides say so on top:
//
//     *menu → entry*          choose it; *menu* alone opens the menu
//     **button**              press it; "2 × " in front presses it twice
//     *caption* ← `number`    type it into the box left of the caption
//     *menu → entry* ← `name` answer the file dialog
//     `-0.1 + 0.8i`           click on that point of the plane
//     `3/4`                   click on the matrix cell in row 3, column 4
//     ⇒ ...                   what shows then, to the end of the item:
//         `Wirbelwerk...`     the window's title; "…" stands for any text, here as everywhere
//         *caption* `number`  the box left of the caption
//         **title**           a message box, closed again
//         `name.ending`       a file in the working directory
//         `text`              a label of the panel

/// A marked piece of a paragraph.
struct Wort {
    enum Art { Fett, Kursiv, Code, Bild, Mal, Tippen, Folge };

    Art art;
    QString text; ///< without its marks; of a picture its file

    bool operator==(const Wort&) const = default;
};

/// A paragraph: a list item, or whatever else stands between two empty lines.
struct Absatz {
    int zeile = 0;        ///< where it begins
    bool schritt = false; ///< an item of a numbered list
    QList<Wort> worte;    ///< in their order

    /// Steps and paragraphs that hold pictures are replayed.
    [[nodiscard]] bool istSpielbar() const;
};

/// The paragraphs of a Markdown text, code blocks left out.
QList<Absatz> absaetzeLesen(const QString& text);
