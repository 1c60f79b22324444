#include "Bezugskern.h"
#include "equations/Gleichungen.h"
#include "equations/punkt/Punktkern.h"
#include "equations/Zeilenkern.h"

namespace {

constexpr qint32 Kleinste = std::numeric_limits<qint32>::min();
constexpr qint32 Groesste = std::numeric_limits<qint32>::max();

using Kern = double (M::*)(double, double, double, double) const;

/// The model's kernel member of an equation number, by pairs of numbers or of last two digits.
Kern kernmitglied(qint32 nummer) {
    constexpr Kern reelle[] = {&M::IterateZmalZplusC, &M::IterateZmalZSplusC, &M::IterateVierpol,
                               &M::IterateZhZSminus1, &M::IterateWurzelXXX};
    constexpr Kern komplexe[] = {&M::IterateZmalZ_Complex_plusC, &M::IterateZmalZS_Complex_plusC,
                                 &M::IterateVierpol_Complex,     &M::IterateZhZS_Complex_minus1,
                                 &M::IterateWurzel_Complex,      &M::IterateVierpol_Complex};
    return nummer > 99 ? komplexe[(nummer % 100 - 1) / 2] : reelle[(nummer - 1) / 2];
}

C komplex(const QString& text) {
    return {text.section(',', 0, 0).toDouble(), text.section(',', 1).toDouble()};
}

} // namespace

/// The catalogue, the bailout test and the point kernels: against the plain second implementation,
/// to the bit, and against what the mathematics says.
class TestKerne : public QObject {
    Q_OBJECT

    std::unique_ptr<M> m;

    double kern(C start, C c) {
        return ((*m).*kernmitglied(m->wahl_Gleichung))(start.real(), start.imag(), c.real(),
                                                       c.imag());
    }
    [[nodiscard]] C orbitende() const {
        const auto i = static_cast<std::size_t>(m->OZaehler);
        return {m->OrbitX[i], m->OrbitY[i]};
    }

  private Q_SLOTS:
    /// Orbits are recorded, and end at the limit alone.
    void init() {
        m = kernmodell();
        m->wert_Abbruch = 1e300;
        m->Orbitmodus = 2;
        m->OZaehler = m->g_OrbitAbIterAn = 0;
        m->g_maxOrbitIterat = 258;
        m->xm.fill(1000.0);
        m->ym.fill(1000.0);
    }

    void nummer_data() { zeilenAus("equations/nummern.txt"); }
    void nummer() {
        QFETCH(QStringList, spalten);
        const qint32 nummer = spalten[0].toInt(), kernWie = spalten[1].toInt();
        m->wahl_Gleichung = nummer;
        const Punktkern* punktkern = punktkernFuer(nummer);
        QCOMPARE(punktkern == nullptr, kernWie == 0);
        if (punktkern != nullptr) {
            const double wert = ((*m).*kernmitglied(kernWie))(0.3, 0.4, -0.2, 0.1);
            QVERIFY(bitgleich(punktkern->rechnen(*m, {0.3, 0.4, -0.2, 0.1}, nullptr), wert));
        }
        QCOMPARE(juliaPartner(nummer), spalten[2].toInt());
        m->EquationName();
        QCOMPARE(m->g_NameGlg.section(' ', 0, 0), spalten[3]);
        QVERIFY(m->g_NameGlg.contains(' '));
    }

    void abbruch_data() { zeilenAus("equations/abbruch.txt"); }
    void abbruch() {
        QFETCH(QStringList, spalten);
        setze(*m, spalten[0]);
        double rq = 0.0;
        for (const QString& wert : spalten[1].split(' ')) {
            const C z = komplex(wert); // the twin value handed in has no influence
            rq = m->BetrQ_Varianten(z.real(), z.imag(), 77.0, qQNaN());
        }
        QVERIFY2(bitgleich(rq, spalten[2].toDouble()), qPrintable(QString::number(rq, 'g', 17)));
        QCOMPARE(abweichung(*m, spalten[3]), QString());
    }

    void zyklusVoreinstellung() {
        constexpr qint32 faelle[][3] = {{3, 7, 0},         {4, 7, 8},  {5, 0, 1},
                                        {5, Groesste, 25}, {4, -1, 0}, {4, Kleinste, 0}};
        for (const auto& [art, zycmax, eintraege] : faelle) {
            m->glg_Abbruch = art;
            m->g_zycmax = zycmax;
            for (const auto verlauf : Verlaeufe) {
                auto& v = (*m).*verlauf;
                v.fill(1.0);
                zyklusVoreinstellen(*m, 0.5, -0.25);
                const bool re = verlauf == &M::xm || verlauf == &M::pm;
                const double fern = (re ? 0.5 : -0.25) + 1000.111;
                QCOMPARE(std::count(v.begin(), v.begin() + eintraege, fern), eintraege);
                QCOMPARE(std::count(v.begin(), v.end(), 1.0), 25 - eintraege);
            }
        }
    }

    void gleichBezug_data() { alleGleichungen(); }
    void gleichBezug() {
        QFETCH(qint32, gleichung);
        constexpr qint32 potenzen[] = {0, 2, 6, 7, 10, -3, -Groesste, Groesste};
        constexpr qint32 grenzen[] = {50, 1, -5, 2, 50, 300, 3000};
        constexpr double amNullpunkt[] = {0.0, -1e-21, 5e-9, -5e-9}; // where starts are pushed off
        std::mt19937 zufall(static_cast<unsigned>(gleichung));
        const auto koordinate = [&](double weite) {
            return zufall() % 16 == 0
                       ? amNullpunkt[zufall() % std::size(amNullpunkt)]
                       : std::uniform_real_distribution<double>(-weite, weite)(zufall);
        };
        const auto soll = kernmodell();
        soll->wahl_Gleichung = gleichung;
        for (qint32 n = 0; n < 150; ++n) {
            soll->g_ZwillingJa = n / 10 - 1;
            soll->glg_Abbruch = n % 10;
            soll->Max_Iterationen = grenzen[n % 7];
            soll->g_kPotenz = potenzen[n % 8];
            soll->kPotHg = soll->kPotHu = soll->g_kPotenz / 2;
            soll->Koppl_x = n % 11 == 0 ? 0.0 : koordinate(1.0);
            soll->Koppl_y = koordinate(0.5);
            soll->wert_Abbruch = n % 3 == 0 ? 4.0 : (n % 3 == 1 ? 400.0 : 1e8);
            soll->g_Genauigkeit = n % 5 == 0 ? 0.01 : 0.0001;
            soll->g_zycmax = 1 + n % 24;
            soll->xm.fill(koordinate(1.0));
            soll->ym.fill(koordinate(1.0));
            uebertragen(*soll, *m);
            // Pixel after pixel on the same model: repairs and history last.
            for (const double weite : {2.0, 0.7, 20.0}) {
                const double x = koordinate(weite), y = koordinate(weite);
                const double cx = koordinate(weite), cy = koordinate(weite);
                const double wert = Bezugskern(*soll).rechnen({x, y}, {cx, cy});
                const double ist = kern({x, y}, {cx, cy});
                const QString anders = bitgleich(ist, wert)
                                           ? unterschied(*m, *soll)
                                           : QString("%1 instead of %2").arg(ist).arg(wert);
                QVERIFY2(anders.isEmpty(),
                         qPrintable(QString("setting %1, width %2: ").arg(n).arg(weite) + anders));
            }
        }
    }

    void fakten_data() { zeilenAus("equations/fakten.txt"); }
    void fakten() {
        QFETCH(QStringList, spalten);
        setze(*m, "Max_Iterationen=3 Koppl_x=100 Koppl_y=0 g_Genauigkeit=0.01 " + spalten[0]);
        const double rq = kern(komplex(spalten[1]), komplex(spalten[2]));
        const qint32 getestet = spalten[3].toInt(), zaehler = spalten[4].toInt();
        QCOMPARE(m->OZaehler, getestet);
        QCOMPARE(m->privateIterat, zaehler);
        QCOMPARE(rq == 0.0, getestet == 0 || zaehler > getestet + 1); // aborted
        if (getestet > 0) {
            QCOMPARE(m->OrbitX[std::size_t(getestet) + 1], M::OrbitEnde);
        }
        // The poles and powers push the start off the axes by 1e-6.
        const C ende = orbitende();
        QVERIFY2(spalten.value(5).isEmpty() || std::abs(ende - komplex(spalten[5])) < 1e-5,
                 qPrintable(QString("%1 %2").arg(ende.real()).arg(ende.imag())));
    }
};

QTEST_MAIN(TestKerne)
#include "test_kerne.moc"
