// Robustness run: drives the live window with seeded random commands, clicks, panel values, window
// sizes and files, and stops at the first unexpected warning or step that hangs; a sanitizer build
// also stops at any report. Prints the seed and the last steps, so that a failure can be repeated.
//
//     wirbelwerk_dauerlauf [STEPS [SEED]]          (default 20000 steps, seed 1)
//
// Orbit lists, pictures and picture data are written to the working directory; start it in a
// scratch folder. skripte/dauerlauf.sh does so, seed after seed.

#include "files/Bilddaten.h"
#include "UI_Hauptfenster.h"

#include <QBuffer>
#include <QFileDialog>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMouseEvent>
#include <QPointer>
#include <QTextStream>
#include <QTimer>

#include <csignal>
#include <cstring>
#include <ctime>
#include <deque>
#include <random>
#include <unistd.h>

namespace {

constexpr int GezeigteSchritte = 30; ///< last steps that a failure prints
constexpr qint32 MeisteIterationen = 200;
constexpr qint32 Iterationsgrenze = 16;    ///< of most pictures
constexpr QSize GroessteAnsicht(350, 100); ///< larger windows are left again after a few steps
constexpr QSize KleinsteAnsicht(285, 50);  ///< leaves a few pixels beside the panel
constexpr int Selten = 150;                ///< a dear command runs once in so many times

// What a step may cost, in seconds of processor time, so that neither a loaded machine nor a large
// picture counts as hanging. In the sanitizer build the dearest of 5000 steps takes one to three
// times its share.
constexpr double Grundzeit = 0.1;          ///< dialogs, a new panel, a new model
constexpr double ZeitJePunkt = 3e-7;       ///< one pixel, one iteration
constexpr double FarbschritteJePixel = 20; ///< what colouring a pixel costs, in iterations
constexpr double Haenger = 50;             ///< times its share, and a step counts as hanging

std::deque<QString> letzteSchritte;
std::array<char, 100> jetziger{}; ///< the step that is running, where a signal can read it
bool fehler = false;

/// A step that never ends: the limit of processor time is used up.
void zeitlimitMelden(int /*signal*/) {
    [[maybe_unused]] const auto geschrieben =
        write(STDERR_FILENO, jetziger.data(), std::strlen(jetziger.data()));
    _exit(1);
}

void melden(const QString& text) {
    QTextStream aus(stderr);
    aus << text << "\nlast steps:\n";
    for (const QString& schritt : letzteSchritte) {
        aus << "  " << schritt << '\n';
    }
    aus.flush();
    fehler = true;
}

/// Progress lines are normal, and so is Qt's refusal of a second layout on the main window, and the
/// scratch surroundings of a virtual display.
void warnungPruefen(QtMsgType art, const QMessageLogContext& /*kontext*/, const QString& text) {
    const bool erwartet =
        art == QtDebugMsg || art == QtInfoMsg || text.contains("which already has a layout") ||
        text.startsWith("QStandardPaths: ") || text.startsWith("This plugin does not support");
    if (!erwartet) {
        melden("unexpected message: " + text);
    }
}

class Dauerlauf {
  public:
    explicit Dauerlauf(quint32 saat) : zufall(saat) {
        const QMetaObject& meta = UI::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod methode = meta.method(i);
            if (methode.methodType() == QMetaMethod::Slot && methode.parameterCount() == 0) {
                befehle.push_back(methode);
            }
        }
        QObject::connect(&antwortgeber, &QTimer::timeout, &antwortgeber, [this] { antworten(); });
        antwortgeber.start(1);
        fenster.show();
    }

    void laufen(int schritte) {
        for (int n = 1; n <= schritte && !fehler; ++n) {
            const double vorher = punkte();
            const double beginn = prozessorzeit();
            schritt(n); // a message box lets the window paint
            const double inmitten = punkte();
            kurzHalten();
            QApplication::processEvents();
            zeitPruefen(n, prozessorzeit() - beginn, std::max({vorher, inmitten, punkte()}));
            if (n % 1000 == 0) {
                QTextStream(stdout) << n << " steps, " << qRound(prozessorzeit()) << " s\n";
            }
        }
        QTextStream(stdout) << "processor time " << prozessorzeit() << " s, dearest step "
                            << teuerster << " of its share (" << teuersterName << ")\n";
    }

  private:
    int bis(int grenze) { return std::uniform_int_distribution<int>(0, grenze - 1)(zufall); }

    static double prozessorzeit() { return double(std::clock()) / CLOCKS_PER_SEC; }

    /// Pixels times iterations of one picture as things stand.
    [[nodiscard]] double punkte() const {
        const Mandelbrot& m = *fenster.Menge;
        const bool fest = m.g_PixConstX > 0 && m.g_PixConstY > 0;
        const int breite = std::min(fest ? m.g_PixConstX : m.width(), Mandelbrot::BildMax);
        const int hoehe = std::min(fest ? m.g_PixConstY : m.height(), Mandelbrot::BildMax);
        return double(breite) * hoehe * (FarbschritteJePixel + std::max(m.Max_Iterationen, 0));
    }

    void zeitPruefen(int n, double zeit, double arbeit) {
        const double anteil = zeit / (Grundzeit + ZeitJePunkt * arbeit);
        if (anteil > teuerster) {
            teuerster = anteil;
            teuersterName = letzteSchritte.back();
        }
        if (anteil > Haenger) {
            melden(QString("step %1 took %2 s, %3 times its share").arg(n).arg(zeit).arg(anteil));
        }
    }

    double zahl() {
        constexpr std::array<double, 14> besondere{0.0,  -0.0,  1.0,   -1.0,  0.5,    1e30,  -1e30,
                                                   1e-9, 1e-16, 400.0, 1e300, 5e-324, -1e-5, 3.0};
        return bis(2) == 0 ? besondere[static_cast<std::size_t>(bis(14))]
                           : std::uniform_real_distribution<double>(-3.0, 3.0)(zufall);
    }

    int ganzzahl() {
        constexpr std::array<int, 10> besondere{0,    -1,       1,         1000,       999,
                                                1005, 90000000, -90000000, 2147483647, -2147483647};
        return bis(3) == 0 ? besondere[static_cast<std::size_t>(bis(10))] : bis(60) - 5;
    }

    void merken(int n, const QString& text) {
        letzteSchritte.push_back(QString("%1: %2").arg(n).arg(text));
        qstrncpy(jetziger.data(), qPrintable("hangs in step " + letzteSchritte.back() + '\n'),
                 jetziger.size());
        if (letzteSchritte.size() > GezeigteSchritte) {
            letzteSchritte.pop_front();
        }
    }

    void schritt(int n) {
        switch (bis(20)) {
        case 0:
        case 1:
        case 2:
            return klicken(n);
        case 3:
        case 4:
            return eintragen(n);
        case 5:
            return dateiLaden(n);
        case 6:
            return bis(5) == 0 ? groesseAendern(n) : klicken(n);
        default:
            return befehl(n);
        }
    }

    void befehl(int n) {
        // Help texts and large windows cost a hundred times more than the rest and change less.
        QMetaMethod methode;
        do {
            methode = befehle[static_cast<std::size_t>(bis(int(befehle.size())))];
        } while ((methode.name().startsWith("about") || methode.name().startsWith("Pixel")) &&
                 bis(Selten) != 0);
        merken(n, QString::fromLatin1(methode.name()));
        methode.invoke(&fenster, Qt::DirectConnection);
    }

    void klicken(int n) {
        const QPointF stelle(bis(fenster.Menge->width() + 20) - 10,
                             bis(fenster.Menge->height() + 20) - 10);
        merken(n, QString("click %1, %2").arg(stelle.x()).arg(stelle.y()));
        QMouseEvent klick(QEvent::MouseButtonPress, stelle, fenster.Menge->mapToGlobal(stelle),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(fenster.Menge, &klick);
    }

    /// File dialogs get one name after the other, a second question ends them; boxes are closed.
    void antworten() {
        constexpr std::array<const char*, 5> namen{"lauf.fraktal", "lauf.png", "fehlt/lauf.fraktal",
                                                   ".", ""};
        QWidget* const box = QApplication::activeModalWidget();
        auto* const dialog = qobject_cast<QFileDialog*>(box);
        if (dialog != nullptr && dialog != beantwortet) {
            beantwortet = dialog;
            dialog->setOption(QFileDialog::DontConfirmOverwrite); // older files are replaced
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(namen[dialoge++ % namen.size()]);
            // Queued: the dialog may ask back, and the timer must tick for the answer.
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        } else if (box != nullptr) {
            box->close();
        }
    }

    void eintragen(int n) {
        const auto reelle = fenster.findChildren<QDoubleSpinBox*>();
        const auto ganze = fenster.findChildren<QSpinBox*>();
        for (int i = bis(4); i >= 0; --i) {
            if (bis(2) == 0) {
                reelle[bis(int(reelle.size()))]->setValue(zahl());
            } else {
                ganze[bis(int(ganze.size()))]->setValue(ganzzahl());
            }
        }
        fenster.UI_Iterationen->setValue(
            std::min(fenster.UI_Iterationen->value(), MeisteIterationen));
        merken(n, "values and Start!");
        bis(3) == 0 ? fenster.VorschauSlot() : fenster.NeueBerechnungSlot();
    }

    void dateiLaden(int n) {
        merken(n, "file");
        QByteArray inhalt = bilddatenSchreiben(fenster);
        for (int i = bis(12); i > 0; --i) {
            inhalt[bis(int(inhalt.size()))] = static_cast<char>(bis(256));
        }
        if (bis(3) == 0) {
            inhalt.truncate(bis(217));
        }
        QBuffer quelle(&inhalt);
        quelle.open(QIODevice::ReadOnly);
        bilddatenLesen(quelle, fenster);
        fenster.UI_Iterationen->setValue(
            std::min(fenster.UI_Iterationen->value(), MeisteIterationen));
        fenster.NeueBerechnungSlot();
    }

    void groesseAendern(int n) {
        const QSize groesse(1 + bis(bis(16) == 0 ? 1600 : GroessteAnsicht.width()),
                            1 + bis(bis(16) == 0 ? 1300 : GroessteAnsicht.height()));
        merken(n, QString("size %1 x %2").arg(groesse.width()).arg(groesse.height()));
        fenster.resize(groesse);
    }

    /// The run tests commands, not patience: few iterations, small windows, but not without a
    /// picture for long.
    void kurzHalten() {
        const qint32 grenze = bis(20) == 0 ? MeisteIterationen : Iterationsgrenze;
        if (fenster.Menge->Max_Iterationen > grenze) {
            fenster.Menge->Max_Iterationen = grenze;
            fenster.UI_Iterationen->setValue(grenze);
        }
        if (fenster.Menge->g_PixConstX > GroessteAnsicht.width() && bis(2) == 0) {
            fenster.Menge->g_PixConstX = 0;
        }
        const bool gross = fenster.width() > GroessteAnsicht.width() ||
                           fenster.height() > GroessteAnsicht.height();
        const bool leer = fenster.Menge->width() <= Mandelbrot::Streifenbreite;
        if ((gross || leer) && bis(2) == 0) {
            const QSize spiel = GroessteAnsicht - KleinsteAnsicht;
            fenster.resize(KleinsteAnsicht + QSize(bis(spiel.width()), bis(spiel.height())));
        }
    }

    std::mt19937 zufall;
    UI fenster;
    QTimer antwortgeber;
    QPointer<QFileDialog> beantwortet; ///< the next dialog may get the same address
    std::size_t dialoge = 0;
    std::vector<QMetaMethod> befehle;
    double teuerster = 0.0; ///< the largest part of its share that a step has taken
    QString teuersterName;
};

} // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication app(argc, argv);
    const QStringList worte = QApplication::arguments();
    const int schritte = worte.size() > 1 ? worte[1].toInt() : 20000;
    const quint32 saat = worte.size() > 2 ? worte[2].toUInt() : 1;
    qInstallMessageHandler(warnungPruefen);
    std::signal(SIGXCPU, zeitlimitMelden);
    QTextStream(stdout) << schritte << " steps with seed " << saat << '\n';
    Dauerlauf(saat).laufen(schritte);
    QTextStream(stdout) << (fehler ? "stopped at a fault\n" : "no fault\n");
    return fehler ? 1 : 0;
}
