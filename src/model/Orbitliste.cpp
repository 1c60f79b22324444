#include "model/Orbitliste.h"

#include "Netzadresse.h"

#include <QCoreApplication>

#include <algorithm>
#include <span>

namespace {

QString text(const char* wort) { return QCoreApplication::translate("Orbitliste", wort); }

QString genau(double wert) { return QString::number(wert, 'f', 16); }

QString genauesPaar(double x, double y) { return "(" + genau(x) + ", " + genau(y) + ")"; }

QString kurzesPaar(double x, double y) {
    return "(" + QString::number(x) + ", " + QString::number(y) + ")";
}

QString kopf(const Orbitlistendaten& daten) {
    return "<html><head><title>" + text("Orbit-Liste") + daten.zeit.toString("dd hh:mm") +
           "</title></head><body><br>" + text("Wirbelwerk") + daten.version + "(" + Netzadresse +
           ")" + text(" am ") + daten.zeit.toString("yyyy-MM-dd hh:mm:ss") + "<br>";
}

QString einstellungen(const Orbitlistendaten& daten) {
    QString liste = text("Gleichung ") + daten.gleichung + "<br>";
    liste += text("Bildmittelpunkt ") + genauesPaar(daten.mittelX, daten.mittelY) + "<br>";
    liste += text("Bildbreite ") + genau(daten.breite) + text(" , maxIterat.= ") +
             QString::number(daten.maxIterationen) + text(" , maxZyklen= ") +
             QString::number(daten.maxZyklen) + "<br>";
    liste += text("NrAbbr.= ") + QString::number(daten.abbruch) + text(", ZahlAbbr.= ") +
             genau(daten.abbruchwert) + "<br>";
    if (daten.zwilling > 0) {
        liste += text("Zwilling = ") + QString::number(daten.zwilling) + text(", KopplXY ") +
                 genauesPaar(daten.kopplX, daten.kopplY) + "<br>";
    }
    liste += text("C-Julia= ") + genauesPaar(daten.juliaX, daten.juliaY) + text(" , K-Potenz= ") +
             QString::number(daten.potenz) + "<br>";
    return liste;
}

QString hinweise(bool vomMittelpunkt) {
    const QString start =
        vomMittelpunkt
            ? text("Hinweise: Orbit vom Mittelpunkt ")
            : text("Hinweise: Mit <b>Linien/(Orbit-Start vom Bild-Mittelpunkt)</b> kann scharf "
                   "eingestellter Orbit-Start trotz anschließend vergrößertem Grafikbild gerechnet "
                   "werden. (Start ohne Maus)");
    return start +
           text("<br>Für Fortsetzung: maxIt.erhöhen, dann z.B. Zoom=255.0, Start!-Button zum "
                "Einlesen von ZOOM, ") +
           text("<br>und dann <b>Linien/(Orbit erst ab Iterat..)</b> anwählen") +
           text("<br>Verkürztes Orbit: <b>Linien/(maximal 15 Iterationen)</b> usw.");
}

} // namespace

QString orbitliste(const Orbitlistendaten& daten) {
    QString liste = kopf(daten) + einstellungen(daten) + hinweise(daten.vomMittelpunkt);
    qint64 iteration = qint64{daten.abIteration} + 1;
    liste += text("<br><br>Z(x+iy)-Werte für ") + QString::number(daten.maxPunkte) +
             text(" Iterationen am Punkt ") + kurzesPaar(daten.startX, daten.startY) +
             text(", ab Iteration=") + QString::number(iteration) +
             text(" und angezeigter Pixel-Position<br><br>");
    const std::size_t anzahl = std::min(daten.punkte.size(), Orbitlistendaten::PunkteMax);
    for (const Orbitlistenpunkt& punkt : std::span(daten.punkte).first(anzahl)) {
        liste += QString::number(iteration++) + ". " + genauesPaar(punkt.x, punkt.y) + " " +
                 QString::number(punkt.spalte) + "," + QString::number(punkt.zeile) + "<br>";
    }
    return liste + "</body></html><br>";
}

QString orbitstart(double x, double y, qint32 spalte, qint32 zeile) {
    return kurzesPaar(x, y) + text(" Pixel ") + "(" + QString::number(spalte) + ", " +
           QString::number(zeile) + ")";
}
