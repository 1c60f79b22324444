#include "Bedienung.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QThread>

#include <algorithm>

namespace {

constexpr int Wartezeit = 10;  ///< ms that a paint may take to be delivered
constexpr int Sichtzeit = 100; ///< ms, when the display has to show it too
constexpr int Runden = 3;
constexpr auto Pfeil = " → ";

/// All entries below, with the path to each; submenus too.
using Eintraege = QList<std::pair<QString, QAction*>>;
void sammeln(const QList<QAction*>& aktionen, const QString& pfad, Eintraege& liste) {
    for (QAction* aktion : aktionen) {
        if (aktion->text().isEmpty()) {
            continue;
        }
        const QString weg = pfad + aktion->text().remove('&').trimmed();
        liste << std::pair(weg, aktion);
        if (aktion->menu() != nullptr) {
            sammeln(aktion->menu()->actions(), weg + Pfeil, liste);
        }
    }
}

Eintraege alleEintraege(const UI& fenster) {
    Eintraege liste;
    sammeln(fenster.Menuleiste->actions(), "", liste);
    return liste;
}

/// True when the way ends as the path says; menus before it may be left out.
bool endetAuf(const QString& weg, const QString& pfad) {
    return passtAuf(weg, pfad) || passtAuf(weg, "…" + QString(Pfeil) + pfad);
}

QString aufschriftVon(const QWidget* teil) {
    if (const auto* taste = qobject_cast<const QPushButton*>(teil)) {
        return taste->text();
    }
    const auto* text = qobject_cast<const QLabel*>(teil);
    return text != nullptr ? text->text() : QString();
}

} // namespace

bool passtAuf(const QString& text, const QString& muster) {
    QString ausdruck = QRegularExpression::escape(muster.simplified());
    ausdruck.replace(QRegularExpression::escape("…"), ".*");
    return QRegularExpression("^" + ausdruck + "$").match(text.simplified()).hasMatch();
}

Bedienung::Bedienung(UI& ui) : fenster(ui) {
    // Queued, since a timer rests while its own slot runs, and an answer may open the next dialog.
    connect(&uhr, &QTimer::timeout, this, &Bedienung::dialogBeantworten, Qt::QueuedConnection);
    uhr.start(1);
}

void Bedienung::warten(bool sichtbar) {
    for (int i = 0; i < Runden; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(sichtbar ? Sichtzeit : Wartezeit);
    }
    QCoreApplication::processEvents();
}

void Bedienung::dialogBeantworten() {
    QWidget* const modal = QApplication::activeModalWidget();
    if (auto* meldung = qobject_cast<QMessageBox*>(modal)) {
        geschlossen << meldung->windowTitle();
        meldung->accept();
    } else if (auto* dialog = qobject_cast<QFileDialog*>(modal)) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(dateiname);
        static_cast<QDialog*>(dialog)->accept();
        if (dialog->isVisible()) { // without a name, or it was refused
            dialog->reject();
        }
    }
}

QStringList Bedienung::meldungen() { return std::exchange(geschlossen, {}); }

// --- Menus and buttons -------------------------------------------------------------------------

QAction* Bedienung::eintrag(const QString& pfad) const {
    QAction* gefunden = nullptr;
    for (const auto& [weg, aktion] : alleEintraege(fenster)) {
        if (endetAuf(weg, pfad)) {
            if (gefunden != nullptr && gefunden != aktion) {
                throw Hindernis{QString("more than one entry \"%1\"").arg(pfad)};
            }
            gefunden = aktion;
        }
    }
    if (gefunden == nullptr) {
        throw Hindernis{QString("no entry \"%1\"").arg(pfad)};
    }
    return gefunden;
}

void Bedienung::menue(const QString& pfad) {
    eintrag(pfad)->trigger();
    warten();
}

void Bedienung::menueOeffnen(const QString& titel) {
    QAction* const aktion = eintrag(titel);
    if (aktion->menu() == nullptr) {
        throw Hindernis{QString("\"%1\" is no menu").arg(titel)};
    }
    const QRect feld = fenster.Menuleiste->actionGeometry(aktion);
    aktion->menu()->popup(fenster.Menuleiste->mapToGlobal(feld.bottomLeft()));
    warten();
}

void Bedienung::knopf(const QString& aufschrift) {
    for (auto* taste : fenster.findChildren<QPushButton*>()) {
        if (taste->text() == aufschrift) {
            taste->click();
            warten();
            return;
        }
    }
    throw Hindernis{QString("no button \"%1\"").arg(aufschrift)};
}

bool Bedienung::hatAufschrift(const QString& text) const {
    const auto teile = fenster.Layout->findChildren<QWidget*>();
    return std::ranges::any_of(alleEintraege(fenster),
                               [&](const auto& e) { return endetAuf(e.first, text); }) ||
           std::ranges::any_of(teile,
                               [&](const QWidget* t) { return passtAuf(aufschriftVon(t), text); });
}

// --- Numbers -----------------------------------------------------------------------------------

QAbstractSpinBox* Bedienung::box(const QString& aufschrift) const {
    for (QWidget* feld : {fenster.KonfigC, fenster.Konfig}) {
        const auto* gitter = qobject_cast<QGridLayout*>(feld->layout());
        for (int i = 0; i < gitter->count(); ++i) {
            if (aufschriftVon(gitter->itemAt(i)->widget()) == aufschrift) {
                int zeile = 0, spalte = 0, hoehe = 0, breite = 0;
                gitter->getItemPosition(i, &zeile, &spalte, &hoehe, &breite);
                QWidget* const links = gitter->itemAtPosition(zeile, 0)->widget();
                if (auto* gefunden = qobject_cast<QAbstractSpinBox*>(links)) {
                    return gefunden;
                }
            }
        }
    }
    throw Hindernis{QString("no box left of \"%1\"").arg(aufschrift)};
}

void Bedienung::tippen(const QString& aufschrift, const QString& zahlentext) {
    QAbstractSpinBox* const ziel = box(aufschrift);
    ziel->selectAll();
    for (const QChar zeichen : zahlentext) {
        QKeyEvent taste(QEvent::KeyPress, 0, Qt::NoModifier, QString(zeichen));
        QCoreApplication::sendEvent(ziel, &taste);
    }
    ziel->interpretText();
    if (zahl(aufschrift) != zahlentext) {
        throw Hindernis{QString("typed %1, the box shows %2").arg(zahlentext, zahl(aufschrift))};
    }
    warten();
}

QString Bedienung::zahl(const QString& aufschrift) const {
    const auto* komma = qobject_cast<QDoubleSpinBox*>(box(aufschrift));
    return komma != nullptr ? QString::number(komma->value(), 'f', QLocale::FloatingPointShortest)
                            : box(aufschrift)->text();
}

QStringList Bedienung::anzeigen() const {
    static const QRegularExpression Auszeichnung(QStringLiteral("<[^>]*>"));
    QStringList texte;
    for (const auto* text : fenster.Layout->findChildren<QLabel*>()) {
        texte << text->text().remove(Auszeichnung);
    }
    return texte;
}

// --- Mouse -------------------------------------------------------------------------------------

void Bedienung::mausklick(double spalte, double zeile) {
    const QPointF stelle(std::round(spalte), std::round(zeile));
    QMouseEvent ereignis(QEvent::MouseButtonPress, stelle, fenster.Menge->mapToGlobal(stelle),
                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(fenster.Menge, &ereignis);
    warten();
}

void Bedienung::klick(double x, double y) {
    const Mandelbrot& m = *fenster.Menge;
    if (m.g_halbesBild > ViertelRechtsUnten) {
        throw Hindernis{"a preview takes no clicks"};
    }
    const int teiler = m.g_halbesBild == Vollbild ? 1 : 2;
    const int breite = (m.width() - Mandelbrot::Streifenbreite) / teiler;
    const double links =
        m.g_halbesBild == ViertelRechtsOben || m.g_halbesBild == ViertelRechtsUnten ? breite : 0;
    const double oben = m.g_halbesBild >= ViertelLinksUnten ? m.height() / teiler : 0;
    const double jePixel = (m.R_Max - m.R_Min) / breite;
    mausklick(links + (x - m.R_Min) / jePixel, oben + (m.I_Max - y) / jePixel);
}

void Bedienung::zelle(int zeile, int spalte) {
    const Mandelbrot& m = *fenster.Menge;
    mausklick((spalte - 0.5) / 4 * (m.width() - Mandelbrot::Streifenbreite),
              (zeile - 0.5) / 4 * m.height());
}
