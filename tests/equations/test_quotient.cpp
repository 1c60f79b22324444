#include "Bezugskern.h"
#include "equations/formeln/Quotient.h"
#include "Quotientenprobe.h"

namespace {

constexpr double Inf = std::numeric_limits<double>::infinity();

/// Zeros, the ends of the ranges at which the order of the steps changes, and their neighbours;
/// each with both signs.
// clang-format off
constexpr double Betraege[] = {
    0.0, 5e-324, 1e-310, 0x1.fffffffffffffp-1023, 0x1p-1022, 0x1.0000000000001p-1022,
    1e-300, 1e-154, 0x1.fffffffffffffp-53, 0x1p-52, 1.0, 3.0, 1e154,
    0x1.fffffffffffffp970, 0x1p971, 0x1.fffffffffffffp1022, 0x1p1023, 0x1.fffffffffffffp1023, Inf};
// clang-format on

} // namespace

/// The complex quotient, single and in lanes of every instruction set, against the library's.
class TestQuotient : public QObject {
    Q_OBJECT

    std::vector<double> a, b, c, d; ///< cases that wait, a bundle at most
    qint64 geprueft = 0;
    QString fehler;

    void dazu(C z, C n) {
        a.push_back(z.real());
        b.push_back(z.imag());
        c.push_back(n.real());
        d.push_back(n.imag());
        if (a.size() == Probenbreite) {
            pruefen();
            a = b = c = d = {};
        }
    }

    void pruefen() {
        std::array<C, Probenbreite> soll;
        for (std::size_t i = 0; i < a.size(); ++i) {
            const C einzeln = geteilt(C(a[i], b[i]), C(c[i], d[i]));
#if defined(__x86_64__)
            soll[i] = C(a[i], b[i]) / C(c[i], d[i]);
#else
            soll[i] = einzeln; // elsewhere the library may fuse products and sums
#endif
            vergleichen("single", i, einzeln, soll[i]);
        }
        const std::array laeufer {
            std::pair{Befehlssatz::Grundsatz, &inSpurenTeilen<Befehlssatz::Grundsatz>},
#if defined(__x86_64__)
                std::pair{Befehlssatz::Avx2, &inSpurenTeilen<Befehlssatz::Avx2>},
                std::pair{Befehlssatz::Avx512, &inSpurenTeilen<Befehlssatz::Avx512>},
#endif
        };
        for (const auto& [satz, teilen] : laeufer) {
            if (verfuegbar(satz) != satz) {
                continue;
            }
            std::array<double, Probenbreite> x{}, y{};
            teilen(a.data(), b.data(), c.data(), d.data(), x.data(), y.data());
            for (std::size_t i = 0; i < a.size(); ++i) {
                // The point kernel's to finish: where something is not finite the library may
                // recover.
                const double alle[] = {a[i], b[i], c[i], d[i], soll[i].real(), soll[i].imag()};
                const bool offen =
                    std::isnan(x[i]) && std::isnan(y[i]) &&
                    !std::ranges::all_of(alle, [](double w) { return std::isfinite(w); });
                vergleichen("lanes", i, offen ? soll[i] : C(x[i], y[i]), soll[i]);
            }
        }
        geprueft += Probenbreite;
    }

    void vergleichen(const char* wo, std::size_t i, C ist, C soll) {
        if (!bitgleich(ist.real(), soll.real()) || !bitgleich(ist.imag(), soll.imag())) {
            fehler = QString::asprintf(
                "%s: (%.17g, %.17g) / (%.17g, %.17g) = (%.17g, %.17g) instead of (%.17g, %.17g)",
                wo, a[i], b[i], c[i], d[i], ist.real(), ist.imag(), soll.real(), soll.imag());
        }
    }

  private Q_SLOTS:
    void besondereWerte() {
        std::vector<double> werte{qQNaN()};
        for (const double betrag : Betraege) {
            werte.insert(werte.end(), {betrag, -betrag});
        }
        for (const double x : werte) {
            for (const double y : werte) {
                for (const double u : werte) {
                    for (const double v : werte) {
                        dazu({x, y}, {u, v});
                    }
                }
                QVERIFY2(fehler.isEmpty(), qPrintable(fehler));
            }
        }
        QVERIFY(geprueft > 2'300'000);
    }

    // Pairs of ten kinds of magnitudes, some parts zero.
    void zufaelligeWerte() {
        constexpr int exponenten[][2] = {{-3, 3},     {-60, 60},    {-1074, 1023}, {-1026, -1018},
                                         {-56, -48},  {1020, 1023}, {966, 974},    {-1074, -1015},
                                         {-500, 500}, {-540, -480}};
        std::mt19937_64 zufall(1962);
        const auto zahl = [&](std::size_t art) {
            const auto [von, bis] = exponenten[art % std::size(exponenten)];
            const double mantisse = 1.0 + double(zufall() >> 12) * 0x1p-52;
            const double betrag =
                zufall() % 16 == 0
                    ? 0.0
                    : std::ldexp(mantisse, std::uniform_int_distribution<int>(von, bis)(zufall));
            return zufall() % 2 == 0 ? betrag : -betrag;
        };
        for (int i = 0; i < 2'000'000 && fehler.isEmpty(); ++i) {
            const std::size_t art = zufall() % 10, andere = i % 2 == 0 ? art : zufall() % 10;
            dazu({zahl(art), zahl(andere)}, {zahl(art), zahl(andere)});
        }
        QVERIFY2(fehler.isEmpty(), qPrintable(fehler));
    }
};

QTEST_APPLESS_MAIN(TestQuotient)
#include "test_quotient.moc"
