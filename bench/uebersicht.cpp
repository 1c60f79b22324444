// Prints, for the pictures that matter, the milliseconds of the plain point kernel (no lanes, no
// shortcut), those of the program as it is, their ratio, and the pixels that differ, on one core.
//
//     uebersicht [rows] [set]
//
// rows: measure every so manieth row only (default 1: whole pictures; the plain kernel takes about
// a minute for the deep ones). set: 0 point by point, 1 base, 2 AVX2, 3 AVX-512; default: the best.

#include "equations/Gleichungen.h"
#include "equations/Rechenweise.h"
#include "Messbild.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace {

constexpr std::array<const char*, 4> Satznamen = {"point by point", "base", "AVX2", "AVX-512"};

struct Messung {
    double einfach = 0.0; ///< milliseconds
    double jetzt = 0.0;
    qint64 anders = 0; ///< pixels that differ
    [[nodiscard]] double verhaeltnis() const { return einfach / jetzt; }
};

class Uebersicht {
  public:
    Uebersicht(qint32 zeilenabstand, Befehlssatz befehlssatz)
        : abstand(zeilenabstand), satz(verfuegbar(befehlssatz)) {}

    void drucken() const {
        std::printf("%d x %d pixels, every row of %d, instruction set: %s\n", Messbild::Spalten,
                    Messbild::Zeilen, abstand, Satznamen[static_cast<std::size_t>(satz)]);
        std::printf("%-52s %10s %10s %8s %8s\n", "picture", "plain ms", "now ms", "ratio",
                    "differ");
        tiefe();
        std::printf("\n");
        alle();
    }

  private:
    qint32 abstand;
    Befehlssatz satz;

    /// The better of several runs each, taken in turns, so that other load meets both.
    [[nodiscard]] Messung messen(Messbild bild) const {
        Messung m;
        Messbild vorbild = bild;
        double gesamt = 0.0;
        for (int lauf = 0; lauf < 2 || (lauf < 9 && gesamt < 600.0); ++lauf) {
            rechenweise() = {false, Befehlssatz::Punktweise};
            const double einfach = vorbild.rechnen(abstand);
            rechenweise() = {true, satz};
            const double jetzt = bild.rechnen(abstand);
            m.einfach = lauf == 0 ? einfach : std::min(m.einfach, einfach);
            m.jetzt = lauf == 0 ? jetzt : std::min(m.jetzt, jetzt);
            gesamt += einfach + jetzt;
            if (gesamt > 5000.0) {
                break;
            }
        }
        m.anders = bild.unterschiede(vorbild);
        return m;
    }

    Messung zeile(const QByteArray& name, const Messbild& bild) const {
        const Messung m = messen(bild);
        std::printf("%-52s %10.1f %10.1f %8.2f %8lld\n", name.constData(), m.einfach, m.jetzt,
                    m.verhaeltnis(), static_cast<long long>(m.anders));
        std::fflush(stdout);
        return m;
    }

    void tiefe() const {
        for (const qint32 grenze : {256, 2560, 20000}) {
            zeile("1, start picture, limit " + QByteArray::number(grenze),
                  Messbild(1, [=](Mandelbrot& m) { m.Max_Iterationen = grenze; }));
        }
        zeile("1, centre -0.7, width 0.5, limit 20000", Messbild(1, [](Mandelbrot& m) {
                  m.MP_x = -0.7;
                  m.Br_x = 0.5;
                  m.Max_Iterationen = 20000;
              }));
        for (const qint32 gleichung : {1, 101}) {
            for (const qint32 zwilling : {1, 4}) {
                zeile(QByteArray::number(gleichung) + ", twin " + QByteArray::number(zwilling),
                      Messbild(gleichung, [=](Mandelbrot& m) { m.g_ZwillingJa = zwilling; }));
            }
        }
        zeile("105, bailout 1, no twin", Messbild(105, [](Mandelbrot& m) {
                  m.glg_Abbruch = 1;
                  m.g_ZwillingJa = 0;
              }));
    }

    /// Several pictures together.
    struct Gesamt {
        double logarithmen = 0.0, einfach = 0.0, jetzt = 0.0;
        qint64 anders = 0;
        int anzahl = 0;

        void dazu(const Messung& m) {
            logarithmen += std::log(m.verhaeltnis());
            einfach += m.einfach;
            jetzt += m.jetzt;
            anders += m.anders;
            ++anzahl;
        }
        void drucken(const char* name) const {
            std::printf("%-34s sum %9.1f %9.1f %6.2f   mean ratio %6.2f   differ %lld\n", name,
                        einfach, jetzt, einfach / jetzt, std::exp(logarithmen / anzahl),
                        static_cast<long long>(anders));
        }
    };

    /// The start pictures, then by family: the number itself below 100, else the last two digits.
    void alle() const {
        Gesamt gesamt;
        std::map<std::string, Gesamt> familien;
        for (const Gleichung& g : gleichungen()) {
            const Messung m = zeile(QByteArray::number(g.nummer), Messbild(g.nummer));
            gesamt.dazu(m);
            const QByteArray name =
                g.nummer < 100
                    ? "equation " + QByteArray::number(g.nummer)
                    : "family " + QByteArray::number(familie(g.nummer)).rightJustified(2, '0');
            familien[name.toStdString()].dazu(m);
        }
        std::printf("\n");
        for (const auto& [name, werte] : familien) {
            werte.drucken(name.c_str());
        }
        gesamt.drucken("all start pictures");
    }
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication app(argc, argv);
    const int abstand = argc > 1 ? std::clamp(std::atoi(argv[1]), 1, Messbild::Zeilen) : 1;
    const int satz = argc > 2 ? std::clamp(std::atoi(argv[2]), 0, 3) : 3;
    Uebersicht(abstand, static_cast<Befehlssatz>(satz)).drucken();
    return 0;
}
