#pragma once

#include "Felder.h"
#include "Testbasis.h"

#include <QFile>

#include <memory>

// Plain-text tables of cases that set and compare the model's fields by name.

/// The fields that a text may name.
inline const std::map<QString, Feld> AlleFelder = [] {
    auto felder = Felder;
    felder.insert({{"g_Bildverhaeltnis", &M::g_Bildverhaeltnis},
                   {"g_Max_glg_Abbruch", &M::g_Max_glg_Abbruch},
                   {"kPotHg", &M::kPotHg},
                   {"kPotHu", &M::kPotHu},
                   {"TeilerColorbild", &M::TeilerColorbild}});
    return felder;
}();

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

inline void setze(M& m, const QString& werte) {
    for (const auto& [name, wert] : zahlen(werte)) {
        setzeFeld(m, AlleFelder.at(name), wert);
    }
}

/// What differs from the given numbers, empty when nothing does.
inline QString abweichung(const M& m, const std::map<QString, double>& soll) {
    QString text;
    for (const auto& [name, wert] : soll) {
        const double ist = feldwert(m, AlleFelder.at(name));
        if (ist != wert && !(std::isnan(ist) && std::isnan(wert))) {
            text +=
                QString("%1 = %2, not %3; ").arg(name).arg(ist, 0, 'g', 17).arg(wert, 0, 'g', 17);
        }
    }
    return text;
}
inline QString abweichung(const M& m, const QString& soll) { return abweichung(m, zahlen(soll)); }

/// Makes each line of a text file below tests/ a test row with the list of its columns. ';' parts
/// columns, '#' begins a comment; the line itself is the row's name.
inline void zeilenAus(const QString& datei) {
    QTest::addColumn<QStringList>("spalten");
    QFile quelle(QFINDTESTDATA(datei));
    QVERIFY2(quelle.open(QIODevice::ReadOnly), qPrintable(datei));
    while (!quelle.atEnd()) {
        const QString zeile = QString::fromUtf8(quelle.readLine()).section('#', 0, 0).simplified();
        QStringList spalten;
        for (const QString& spalte : zeile.split(';')) {
            spalten << spalte.trimmed();
        }
        if (!zeile.isEmpty()) {
            QTest::newRow(qPrintable(zeile)) << spalten;
        }
    }
}
