// Takes the screenshots of the documentation from the live window, in the steps that the guide
// tells:
//
//     wirbelwerk_fenster FOLDER [SCENE]...      writes the pictures of all scenes, or of some
//
// Needs a display, so that the window looks as a user sees it; docs/bilder.sh provides one.

#include "Runden.h"
#include "UI_Hauptfenster.h"

#include <QDir>
#include <QMouseEvent>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <span>

namespace {

constexpr int Ruhezeit = 300;           ///< ms that the display gets to show the last paint
constexpr int Galeriebreite = 400;      ///< of a gallery picture, pixels
constexpr double Galerieform = 4.0 / 3; ///< its width over its height

/// One step of a scene: what the user does, or a picture that is taken. Fails when the window has
/// no such caption.
struct Schritt {
    bool (*tun)(UI& fenster, const QDir& ordner, const Schritt& schritt);
    const char* text = ""; ///< caption or, of a picture, name
    double x = 0.0, y = 0.0;
    const char* name = ""; ///< of the picture of an open menu
};

struct Szene {
    const char* name;
    std::span<const Schritt> schritte;
};

/// Lets the window paint what is due.
void malen() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QThread::msleep(Ruhezeit / 3);
    }
}

// --- What the user does ------------------------------------------------------------------------

/// The entry with that caption anywhere below the actions.
QAction* eintrag(const QList<QAction*>& aktionen, const QString& text) {
    for (QAction* aktion : aktionen) {
        if (aktion->text() == text) {
            return aktion;
        }
        QAction* unten =
            aktion->menu() != nullptr ? eintrag(aktion->menu()->actions(), text) : nullptr;
        if (unten != nullptr) {
            return unten;
        }
    }
    return nullptr;
}

/// Chooses a menu entry by its caption.
constexpr Schritt menue(const char* text) {
    return {[](UI& fenster, const QDir& /*ordner*/, const Schritt& s) {
                QAction* aktion = eintrag(fenster.Menuleiste->actions(), s.text);
                if (aktion != nullptr) {
                    aktion->trigger();
                }
                return aktion != nullptr;
            },
            text};
}

/// Presses a button of the panel by its caption.
constexpr Schritt knopf(const char* text) {
    return {[](UI& fenster, const QDir& /*ordner*/, const Schritt& s) {
                for (auto* taste : fenster.findChildren<QPushButton*>()) {
                    if (taste->text() == s.text) {
                        taste->click();
                        return true;
                    }
                }
                return false;
            },
            text};
}

/// Types a number into a box of the panel.
template <auto feld>
constexpr Schritt wert(double zahl) {
    return {[](UI& fenster, const QDir& /*ordner*/, const Schritt& s) {
                auto* box = fenster.*feld;
                if constexpr (std::is_integral_v<decltype(box->value())>) {
                    box->setValue(trunc32(s.x));
                } else {
                    box->setValue(s.x);
                }
                return true;
            },
            "", zahl};
}

void mausklick(UI& fenster, double spalte, double zeile) {
    const QPointF stelle(std::round(spalte), std::round(zeile));
    QMouseEvent klick(QEvent::MouseButtonPress, stelle, fenster.Menge->mapToGlobal(stelle),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(fenster.Menge, &klick);
}

/// Clicks on a point of the plane; in the full picture.
constexpr Schritt klick(double x, double y) {
    return {[](UI& fenster, const QDir& /*ordner*/, const Schritt& s) {
                const Mandelbrot& m = *fenster.Menge;
                const double jePixel =
                    (m.R_Max - m.R_Min) / (m.width() - Mandelbrot::Streifenbreite);
                mausklick(fenster, (s.x - m.R_Min) / jePixel, (m.I_Max - s.y) / jePixel);
                return m.g_halbesBild == 0;
            },
            "", x, y};
}

/// Clicks on a cell of the matrix view, column and row from 1 to 4.
constexpr Schritt zelle(int spalte, int zeile) {
    return {[](UI& fenster, const QDir& /*ordner*/, const Schritt& s) {
                const Mandelbrot& m = *fenster.Menge;
                mausklick(fenster, (s.x - 0.5) / 4 * (m.width() - Mandelbrot::Streifenbreite),
                          (s.y - 0.5) / 4 * m.height());
                return true;
            },
            "", double(spalte), double(zeile)};
}

// --- Pictures ----------------------------------------------------------------------------------

bool sichern(const QImage& bild, const QDir& ordner, const char* name) {
    return bild.save(ordner.filePath(QStringLiteral("%1.png").arg(name)));
}

/// The whole window as the display shows it, an open menu included.
bool fensterfoto(UI& fenster, const QDir& ordner, const char* name) {
    const QRect lage = fenster.geometry();
    const QPixmap foto =
        fenster.screen()->grabWindow(0, lage.x(), lage.y(), lage.width(), lage.height());
    return sichern(foto.toImage(), ordner, name);
}

constexpr Schritt foto(const char* name) {
    return {[](UI& fenster, const QDir& ordner, const Schritt& s) {
                return fensterfoto(fenster, ordner, s.text);
            },
            name};
}

/// The window with an open menu of the bar.
constexpr Schritt offen(const char* titel, const char* name) {
    return {[](UI& fenster, const QDir& ordner, const Schritt& s) {
                QAction* aktion = eintrag(fenster.Menuleiste->actions(), s.text);
                if (aktion == nullptr) {
                    return false;
                }
                const QRect feld = fenster.Menuleiste->actionGeometry(aktion);
                aktion->menu()->popup(fenster.Menuleiste->mapToGlobal(feld.bottomLeft()));
                malen();
                const bool gut = fensterfoto(fenster, ordner, s.name);
                aktion->menu()->close();
                return gut;
            },
            titel, 0.0, 0.0, name};
}

/// The middle of the picture without the palette strip, scaled down for the gallery.
constexpr Schritt galerie(const char* name) {
    return {[](UI& fenster, const QDir& ordner, const Schritt& s) {
                QImage bild = fenster.Menge->grab().toImage();
                const int breite = bild.width() - Mandelbrot::Streifenbreite;
                const int hoehe = trunc32(breite / Galerieform);
                bild = bild.copy(0, (bild.height() - hoehe) / 2, breite, hoehe);
                return sichern(bild.scaledToWidth(Galeriebreite, Qt::SmoothTransformation), ordner,
                               s.text);
            },
            name};
}

// --- Scenes ------------------------------------------------------------------------------------

constexpr Schritt Vollbild = menue("Aktives zum vollem Bild/FullPicture");
constexpr Schritt Gross = menue("reset Gesamtwindow 1520x1210");
constexpr Schritt Reset = menue("Reset zum Startbild der Gleichung");
constexpr Schritt Start = knopf("Start!");

// The window as it stands at the top of the README.
constexpr auto Fenster = std::to_array<Schritt>({
    Vollbild,
    wert<&UI::UI_MPx>(-0.7453),
    wert<&UI::UI_MPy>(0.1127),
    wert<&UI::UI_Brx>(0.0065),
    wert<&UI::UI_Iterationen>(2000),
    wert<&UI::UI_zahlfarbtab>(36),
    wert<&UI::UI_rechenVarianteDiv>(3),
    wert<&UI::UI_rechenVarianteKonv>(0),
    Start,
    foto("fenster"),
});

// The guide's first tour, in its order.
constexpr auto Rundgang = std::to_array<Schritt>({
    foto("tour-start"),
    Vollbild,
    klick(-0.7453, 0.1127),
    klick(-0.7453, 0.1127),
    klick(-0.7453, 0.1127),
    klick(-0.7453, 0.1127),
    klick(-0.7453, 0.1127),
    klick(-0.7453, 0.1127),
    wert<&UI::UI_rechenVarianteDiv>(4),
    wert<&UI::UI_rechenVarianteKonv>(0),
    Start,
    knopf("maxIter*2"),
    knopf("maxIter*2"),
    foto("tour-vorschau"),
    Start,
    foto("tour-zoom"),
    menue("2: Juliamenge Z=Z*Z +C(const)"),
    knopf("CenterX =0"),
    knopf("CenterY =0"),
    wert<&UI::UI_Brx>(3.2),
    Start,
    foto("tour-julia"),
    menue("Palette 4: (256) weniger bunt   ab cTab.=36"),
    menue("Matrix 4x4 EIN"),
    foto("tour-matrix"),
    zelle(4, 3),
    foto("tour-zelle"),
});

constexpr auto Zwilling = std::to_array<Schritt>({
    Vollbild,
    offen("Gleichung/Equation", "tour-menue"),
    menue("101: Z=Z^2 +C"),
    menue("Alle Glg. Zwilling 4 EIN"),
    wert<&UI::UI_Kopplx>(0.3),
    wert<&UI::UI_Kopply>(0.3),
    Start,
    foto("tour-zwilling"),
});

constexpr auto Orbit = std::to_array<Schritt>({
    Vollbild,
    menue("Nullkreuz"),
    menue("Orbit EIN Weiss/White"),
    klick(-0.1, 0.8),
    menue("Linien dünn-dick/thin-thick"),
    menue("Orbit Aktualisieren/ShowOrbit"),
    foto("tour-orbit"),
});

// The gallery of the README.
constexpr auto Galerie = std::to_array<Schritt>({
    Gross,
    Vollbild,
    wert<&UI::UI_MPx>(-0.7746806106269039),
    wert<&UI::UI_MPy>(-0.1374168856037867),
    wert<&UI::UI_Brx>(3e-6),
    wert<&UI::UI_Iterationen>(8000),
    wert<&UI::UI_zahlfarbtab>(36),
    wert<&UI::UI_itFactor>(2),
    wert<&UI::UI_rechenVarianteDiv>(2),
    wert<&UI::UI_rechenVarianteKonv>(0),
    Start,
    galerie("galerie-1"),

    menue("2: Juliamenge Z=Z*Z +C(const)"),
    Reset,
    Vollbild,
    wert<&UI::UI_MPx>(0),
    wert<&UI::UI_Brx>(3),
    wert<&UI::UI_CJx>(-0.8),
    wert<&UI::UI_CJy>(0.156),
    wert<&UI::UI_Iterationen>(1000),
    wert<&UI::UI_zahlfarbtab>(0),
    wert<&UI::UI_divFactor>(4),
    wert<&UI::UI_rechenVarianteDiv>(6),
    Start,
    galerie("galerie-2"),

    menue("101: Z=Z^2 +C"),
    Reset,
    Vollbild,
    menue("Ab Glg.101: Zwilling 11 EIN"),
    wert<&UI::UI_MPx>(-0.25),
    wert<&UI::UI_MPy>(0.2),
    wert<&UI::UI_Brx>(2.6),
    wert<&UI::UI_Kopplx>(0.4),
    wert<&UI::UI_Kopply>(0.2),
    wert<&UI::UI_Iterationen>(500),
    wert<&UI::UI_zahlfarbtab>(36),
    wert<&UI::UI_itFactor>(12),
    wert<&UI::UI_rechenVarianteDiv>(2),
    Start,
    galerie("galerie-101"),

    menue("Zwilling AUS"),
    menue("5: Vierpol Z=(Z+C)/(1+C*Z^3)"),
    Reset,
    Vollbild,
    wert<&UI::UI_MPx>(0),
    wert<&UI::UI_MPy>(0),
    wert<&UI::UI_Brx>(3.4),
    wert<&UI::UI_zahlfarbtab>(0),
    Start,
    galerie("galerie-5"),

    menue("110: Julia K-Wurzel(P), Z=Z-(Z^K -P)/(K*Z^(K-1) *C)"),
    Reset,
    Vollbild,
    wert<&UI::UI_Brx>(3),
    Start,
    galerie("galerie-110"),

    menue("810: Julia Z=Z-(Z^8 -P)/(8*Z^7 *C), 8.Wurzel(P)"),
    Reset,
    Vollbild,
    wert<&UI::UI_Brx>(2.4),
    Start,
    galerie("galerie-810"),
});

constexpr std::array<Szene, 5> Szenen{{
    {"fenster", Fenster},
    {"tour", Rundgang},
    {"zwilling", Zwilling},
    {"orbit", Orbit},
    {"galerie", Galerie},
}};

bool aufnehmen(const Szene& szene, const QDir& ordner) {
    UI fenster;
    fenster.move(0, 0);
    fenster.show();
    malen();
    for (const Schritt& schritt : szene.schritte) {
        if (!schritt.tun(fenster, ordner, schritt)) {
            std::fprintf(stderr, "%s: cannot do \"%s\"\n", szene.name, schritt.text);
            return false;
        }
        malen();
    }
    return true;
}

/// Warnings only: the driver reports its rows as it goes.
void melden(QtMsgType art, const QMessageLogContext& /*kontext*/, const QString& text) {
    if (art != QtDebugMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(text));
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QStringList worte = QApplication::arguments();
    if (worte.size() < 2) {
        std::fputs("usage: wirbelwerk_fenster FOLDER [SCENE]...\n", stderr);
        return 2;
    }
    qInstallMessageHandler(melden);
    const QStringList gewaehlt = worte.mid(2);
    for (const QString& name : gewaehlt) {
        if (std::ranges::none_of(Szenen, [&](const Szene& s) { return name == s.name; })) {
            std::fprintf(stderr, "no such scene: %s\n", qPrintable(name));
            return 2;
        }
    }
    for (const Szene& szene : Szenen) {
        if ((gewaehlt.isEmpty() || gewaehlt.contains(szene.name)) &&
            !aufnehmen(szene, QDir(worte[1]))) {
            return 1;
        }
    }
    return 0;
}
