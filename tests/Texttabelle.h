#pragma once

#include "Felder.h"
#include "Testbasis.h"

#include <QFile>

// Plain-text tables of cases that set and compare the model's fields by name.

/// The numbers of "Feld=Zahl Feld=Zahl", among them inf and nan.
inline std::map<QString, double> zahlen(const QString& werte) {
    std::map<QString, double> zahlen;
    for (const QString& wort : werte.split(' ', Qt::SkipEmptyParts)) {
        bool lesbar = false;
        zahlen[wort.section('=', 0, 0)] = wort.section('=', 1).toDouble(&lesbar);
        if (!lesbar) {
            qFatal("no number: %s", qPrintable(wort));
        }
    }
    return zahlen;
}

template <class Zahl = int>
QList<Zahl> liste(const QString& text) {
    QList<Zahl> werte;
    for (const QString& wort : text.split(' ', Qt::SkipEmptyParts)) {
        werte << static_cast<Zahl>(wort.toDouble());
    }
    return werte;
}

inline void setze(M& m, const QString& werte) {
    for (const auto& [name, wert] : zahlen(werte)) {
        setzeFeld(m, Felder.at(name), wert);
    }
}

/// What differs from the given numbers, empty when nothing does.
inline QString abweichung(const M& m, const QString& soll) {
    QString text;
    for (const auto& [name, wert] : zahlen(soll)) {
        const double ist = feldwert(m, Felder.at(name));
        if (ist != wert) {
            text += QString("%1 = %2; ").arg(name).arg(ist, 0, 'g', 17);
        }
    }
    return text;
}

/// The rows of a text file below tests/ as lists of columns. ';' parts columns, '#' begins a
/// comment.
inline QList<QStringList> tabelle(const QString& datei) {
    QFile quelle(QFINDTESTDATA(datei));
    if (!quelle.open(QIODevice::ReadOnly)) {
        qFatal("no %s", qPrintable(datei));
    }
    QList<QStringList> zeilen;
    for (const QString& zeile : QString::fromUtf8(quelle.readAll()).split('\n')) {
        QStringList spalten;
        for (const QString& spalte : zeile.section('#', 0, 0).split(';')) {
            spalten << spalte.trimmed();
        }
        if (spalten != QStringList{""}) {
            zeilen << spalten;
        }
    }
    return zeilen;
}

/// Makes each row of a text file a test row; the line itself is the row's name.
inline void zeilenAus(const QString& datei) {
    QTest::addColumn<QStringList>("spalten");
    for (const QStringList& spalten : tabelle(datei)) {
        QTest::newRow(qPrintable(spalten.join("; "))) << spalten;
    }
}
