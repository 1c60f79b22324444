// Replays pages of the documentation in the live window: what their steps say is done, and what
// they say shows must show. How steps are written stands in Schrittfolge.h.
//
//     wirbelwerk_fenster check PAGE...             pages with steps must have the same ones; on all
//                                                  pages italics must be captions of the window
//                                                  and pictures must be there
//     wirbelwerk_fenster check-in LANGUAGE PAGE... the same, on a system of that language only,
//                                                  such as de_DE
//     wirbelwerk_fenster pictures FOLDER PAGE...   writes the pictures of the steps into FOLDER
//
// Pictures need a display, so that the window looks as a user sees it; docs/bilder.sh provides one.

#include "Bedienung.h"
#include "Runden.h"
#include "Schrittfolge.h"
#include "window/Sprache.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <optional>

namespace {

constexpr int Galeriebreite = 400;      ///< of a gallery picture, pixels
constexpr double Galerieform = 4.0 / 3; ///< its width over its height

using Hindernis = Bedienung::Hindernis;

struct Seite {
    QString name;
    QList<Absatz> absaetze;

    /// What is replayed; nothing on a page that has pictures only.
    [[nodiscard]] QList<Absatz> schritte() const {
        QList<Absatz> liste;
        if (std::ranges::any_of(absaetze, &Absatz::schritt)) {
            std::ranges::copy_if(absaetze, std::back_inserter(liste), &Absatz::istSpielbar);
        }
        return liste;
    }
};

void melden(const Seite& seite, int zeile, const QString& text) {
    std::fprintf(stderr, "%s:%d: %s\n", qPrintable(seite.name), zeile, qPrintable(text));
}

// --- Pictures ----------------------------------------------------------------------------------

/// The whole window as the display shows it, an open menu included.
QImage fensterfoto(const UI& fenster) {
    const QRect lage = fenster.geometry();
    return fenster.screen()
        ->grabWindow(0, lage.x(), lage.y(), lage.width(), lage.height())
        .toImage();
}

/// The middle of the picture without the palette strip, scaled down for the gallery.
QImage galeriebild(const UI& fenster) {
    const QImage bild = fenster.Menge->grab().toImage();
    const int breite = bild.width() - Mandelbrot::Streifenbreite;
    const int hoehe = trunc32(breite / Galerieform);
    return bild.copy(0, (bild.height() - hoehe) / 2, breite, hoehe)
        .scaledToWidth(Galeriebreite, Qt::SmoothTransformation);
}

/// Takes the pictures; without a folder none.
struct Bilder {
    std::optional<QDir> ordner;

    void operator()(const UI& fenster, const QString& datei) const {
        if (!ordner) {
            return;
        }
        Bedienung::warten(true);
        const QString ziel = ordner->filePath(QFileInfo(datei).fileName());
        const bool galerie = datei.contains("galerie");
        if (!(galerie ? galeriebild(fenster) : fensterfoto(fenster)).save(ziel)) {
            throw Hindernis{"cannot write " + ziel};
        }
    }
};

// --- One step ----------------------------------------------------------------------------------

/// Goes through the words of a step from left to right.
class Schrittspieler {
  public:
    Schrittspieler(UI& ui, Bedienung& hand, const Bilder& kamera)
        : fenster(ui), bedienung(hand), bilder(kamera) {}

    void spielen(const QList<Wort>& worte) {
        rest = worte;
        while (!rest.isEmpty() && rest.first().art != Wort::Folge) {
            tun(rest.takeFirst());
        }
        QStringList boxen = bedienung.meldungen();
        if (!rest.isEmpty()) {
            rest.removeFirst();
        }
        while (!rest.isEmpty()) {
            sehen(rest.takeFirst(), boxen);
        }
        if (!boxen.isEmpty()) {
            throw Hindernis{"a message box not mentioned: " + boxen.first()};
        }
    }

  private:
    /// Takes the next word if it is of that kind.
    std::optional<QString> folgt(Wort::Art art) {
        if (rest.isEmpty() || rest.first().art != art) {
            return std::nullopt;
        }
        return rest.takeFirst().text;
    }

    QString verlangt(Wort::Art art, const QString& nach) {
        const auto text = folgt(art);
        if (!text) {
            throw Hindernis{QString("something is missing after \"%1\"").arg(nach)};
        }
        return *text;
    }

    void tun(const Wort& wort) {
        if (wort.art != Wort::Bild && QApplication::activePopupWidget() != nullptr) {
            QApplication::activePopupWidget()->close();
        }
        switch (wort.art) {
        case Wort::Bild:
            return bilder(fenster, wort.text);
        case Wort::Fett:
            return bedienung.knopf(wort.text);
        case Wort::Kursiv:
            return aufschrift(wort.text);
        case Wort::Code:
            return stelle(wort.text);
        case Wort::Mal: {
            const Wort was = rest.isEmpty() ? Wort{} : rest.takeFirst();
            for (int i = 0; i < wort.text.toInt(); ++i) {
                tun(was);
            }
            return;
        }
        default:
            throw Hindernis{"an arrow without a caption before it"};
        }
    }

    void aufschrift(const QString& text) {
        const auto eingabe =
            folgt(Wort::Tippen) ? std::optional(verlangt(Wort::Code, text)) : std::nullopt;
        if (text.contains(" → ")) {
            // "…" stands for the rest of a name that is there.
            const QString name = eingabe.value_or("");
            const QStringList da = QDir().entryList(QDir::Files).filter(name.section("…", 0, 0));
            bedienung.dateinameVorlegen(name.contains("…") ? da.value(0) : name);
            bedienung.menue(text);
        } else if (eingabe) {
            bedienung.tippen(text, *eingabe);
        } else {
            bedienung.menueOeffnen(text);
        }
    }

    /// A point of the plane or a cell of the matrix.
    void stelle(const QString& text) {
        static const QRegularExpression Punkt(QStringLiteral("^(-?[\\d.]+) ([+-]) ([\\d.]+)i$"));
        static const QRegularExpression Zelle(QStringLiteral("^([1-4])/([1-4])$"));
        if (const auto p = Punkt.match(text); p.hasMatch()) {
            bedienung.klick(p.captured(1).toDouble(), (p.captured(2) + p.captured(3)).toDouble());
        } else if (const auto z = Zelle.match(text); z.hasMatch()) {
            bedienung.zelle(z.captured(1).toInt(), z.captured(2).toInt());
        } else {
            throw Hindernis{QString("neither a point nor a cell: \"%1\"").arg(text)};
        }
    }

    void sehen(const Wort& wort, QStringList& boxen) {
        static const QRegularExpression Datei(QStringLiteral("\\.(png|fraktal|htm)$"));
        const auto gleich = [](const QString& ist, const QString& soll) {
            if (!passtAuf(ist, soll)) {
                throw Hindernis{QString("shows \"%1\", not \"%2\"").arg(ist, soll)};
            }
        };
        if (wort.art == Wort::Kursiv) {
            gleich(bedienung.zahl(wort.text), verlangt(Wort::Code, wort.text));
        } else if (wort.art == Wort::Fett) {
            gleich(boxen.isEmpty() ? "no message box" : boxen.takeFirst(), wort.text);
        } else if (wort.art == Wort::Bild) {
            bilder(fenster, wort.text);
        } else if (wort.text.startsWith("Wirbelwerk")) {
            gleich(fenster.windowTitle(), wort.text);
        } else if (wort.text.contains(Datei)) {
            gleich(QDir().entryList(QDir::Files).filter(QFileInfo(wort.text).suffix()).join(' '),
                   wort.text);
        } else if (!bedienung.anzeigen().contains(wort.text)) {
            throw Hindernis{QString("no label shows \"%1\"").arg(wort.text)};
        }
    }

    UI& fenster;
    Bedienung& bedienung;
    const Bilder& bilder;
    QList<Wort> rest;
};

// --- Pages -------------------------------------------------------------------------------------

/// Replays the steps of a page in a fresh window, in a folder of its own for files.
bool abspielen(const Seite& seite, const Bilder& bilder) {
    const QTemporaryDir arbeitsordner;
    QDir::setCurrent(arbeitsordner.path());
    UI fenster;
    Bedienung bedienung(fenster);
    fenster.move(0, 0);
    fenster.show();
    Bedienung::warten();
    Schrittspieler spieler(fenster, bedienung, bilder);
    for (const Absatz& absatz : seite.schritte()) {
        try {
            spieler.spielen(absatz.worte);
        } catch (const Hindernis& hindernis) {
            melden(seite, absatz.zeile, hindernis.text);
            return false;
        }
    }
    return true;
}

/// Text in italics is a caption of the program and nothing else is; pictures are there.
bool verweiseStimmen(const Seite& seite) {
    UI fenster;
    const Bedienung bedienung(fenster);
    const QDir ordner = QFileInfo(seite.name).dir();
    bool gut = true;
    for (const Absatz& absatz : seite.absaetze) {
        for (const Wort& wort : absatz.worte) {
            if (wort.art == Wort::Kursiv && !bedienung.hatAufschrift(wort.text)) {
                melden(seite, absatz.zeile, QString("no caption \"%1\"").arg(wort.text));
                gut = false;
            }
            if (wort.art == Wort::Bild && !ordner.exists(wort.text)) {
                melden(seite, absatz.zeile, "no picture " + wort.text);
                gut = false;
            }
        }
    }
    return gut;
}

/// The same steps in another language.
bool gleicheSchritte(const Seite& a, const Seite& b) {
    const QList<Absatz> von = a.schritte();
    const QList<Absatz> nach = b.schritte();
    for (qsizetype i = 0; i < std::max(von.size(), nach.size()); ++i) {
        if (i >= von.size() || i >= nach.size() || von[i].worte != nach[i].worte) {
            melden(a, i < von.size() ? von[i].zeile : 0, "not the same step as");
            melden(b, i < nach.size() ? nach[i].zeile : 0, "this one");
            return false;
        }
    }
    return true;
}

bool pruefen(const QList<Seite>& seiten) {
    const Seite* gespielt = nullptr;
    bool gut = true;
    for (const Seite& seite : seiten) {
        gut = verweiseStimmen(seite) && gut;
        if (!seite.schritte().isEmpty()) {
            gut =
                (gespielt == nullptr ? abspielen(seite, {}) : gleicheSchritte(*gespielt, seite)) &&
                gut;
            gespielt = &seite;
        }
    }
    return gut && gespielt != nullptr;
}

/// Warnings only: the driver reports its rows as it goes.
void protokoll(QtMsgType art, const QMessageLogContext& /*kontext*/, const QString& text) {
    if (art != QtDebugMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication app(argc, argv);
    qtTexteUebersetzen(app);
    const QStringList worte = QApplication::arguments();
    const bool aufnehmen = worte.value(1) == "pictures";
    const bool inSprache = worte.value(1) == "check-in";
    const qsizetype ersteSeite = aufnehmen || inSprache ? 3 : 2;
    if (worte.size() <= ersteSeite || !(aufnehmen || inSprache || worte[1] == "check")) {
        std::fputs("usage: wirbelwerk_fenster check PAGE...\n"
                   "       wirbelwerk_fenster check-in LANGUAGE PAGE...\n"
                   "       wirbelwerk_fenster pictures FOLDER PAGE...\n",
                   stderr);
        return 2;
    }
    if (inSprache && QLocale().name() != worte[2]) {
        std::fprintf(stderr, "the system's language is %s\n", qPrintable(QLocale().name()));
        return 2;
    }
    qInstallMessageHandler(protokoll);
    QList<Seite> seiten;
    for (const QString& name : worte.mid(ersteSeite)) {
        QFile datei(name);
        if (!datei.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
            return 2;
        }
        seiten << Seite{QFileInfo(name).absoluteFilePath(),
                        absaetzeLesen(QString::fromUtf8(datei.readAll()))};
    }
    if (!aufnehmen) {
        return pruefen(seiten) ? 0 : 1;
    }
    const Bilder bilder{QDir(QDir(worte[2]).absolutePath())};
    return std::ranges::all_of(seiten, [&](const Seite& s) { return abspielen(s, bilder); }) ? 0
                                                                                             : 1;
}
