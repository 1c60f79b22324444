#include "Schrittfolge.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// The marks, in the order of Wort::Art; each has its text as the group of that number.
const QRegularExpression Marken(QStringLiteral("\\*\\*((?:\\\\.|[^*\\\\])+)\\*\\*"
                                               "|\\*((?:\\\\.|[^*\\\\])+)\\*"
                                               "|`([^`]+)`"
                                               "|!\\[[^\\]]*\\]\\(([^)]+)\\)"
                                               "|(\\d+) ×"
                                               "|(←)"
                                               "|(⇒)"));

QList<Wort> worteAus(const QString& absatz) {
    QList<Wort> worte;
    for (auto treffer = Marken.globalMatch(absatz); treffer.hasNext();) {
        const QRegularExpressionMatch stelle = treffer.next();
        const int gruppe = stelle.lastCapturedIndex();
        const auto art = static_cast<Wort::Art>(gruppe - 1);
        QString text = stelle.captured(gruppe);
        if (art == Wort::Fett || art == Wort::Kursiv) {
            text.remove('\\');
        }
        worte << Wort{art, text};
    }
    return worte;
}

} // namespace

bool Absatz::istSpielbar() const {
    return schritt || std::ranges::any_of(worte, [](const Wort& w) { return w.art == Wort::Bild; });
}

QList<Absatz> absaetzeLesen(const QString& text) {
    static const QRegularExpression Listenpunkt(QStringLiteral("^( *(\\d+\\.|-) |#|\\|)"));
    static const QRegularExpression Nummer(QStringLiteral("^\\d+\\. "));
    QList<Absatz> absaetze;
    QString inhalt;
    Absatz absatz;
    const auto abschliessen = [&] {
        absatz.worte = worteAus(inhalt);
        if (!absatz.worte.isEmpty()) {
            absaetze << absatz;
        }
        inhalt.clear();
    };
    bool codeblock = false;
    for (int nummer = 1; const QString& zeile : text.split('\n')) {
        const bool zaun = zeile.startsWith("```");
        codeblock ^= zaun;
        if (zaun || codeblock || zeile.trimmed().isEmpty()) {
            abschliessen();
        } else {
            if (inhalt.isEmpty() || zeile.contains(Listenpunkt)) {
                abschliessen();
                absatz = {.zeile = nummer, .schritt = zeile.contains(Nummer), .worte = {}};
            }
            inhalt += zeile.trimmed() + ' ';
        }
        ++nummer;
    }
    abschliessen();
    return absaetze;
}
