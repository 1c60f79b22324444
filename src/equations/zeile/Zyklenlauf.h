#pragma once

#include "equations/punkt/Wiederkehr.h"
#include "equations/zeile/Spurenlauf.h"

/// Registers of a bundle. It is run to the end of all its orbits, so the fewer lanes wait for the
/// last one the better; dear steps gain more from a second register to work on.
template <class Formel>
inline constexpr int Zyklenregister = Formel::teuer ? 2 : 1;

/// The loop with a cycle search. A bundle has a history for each lane.
template <class Satz, class Formel, bool mitZwilling>
class Zyklenlauf : Spurenlauf<Satz, Formel, mitZwilling, Zyklenregister<Formel>> {
  public:
    explicit Zyklenlauf(Zeilenstueck& stueck) : Lauf(stueck) {}

    void rechnen() {
        for (qint32 i = 0; i < r.anzahl; i += L) {
            buendelRechnen(i, Lauf::kleiner(L, r.anzahl - i));
        }
    }

  private:
    using Lauf = Spurenlauf<Satz, Formel, mitZwilling, Zyklenregister<Formel>>;
    using Lauf::kannAbbrechen;
    using Lauf::L;
    using Lauf::r;
    using Lauf::reell;
    using Lauf::zweiWerte;
    using typename Lauf::M;
    using typename Lauf::Schrittart;
    using typename Lauf::T;
    using typename Lauf::Wert;

    /// The last values of the lanes' main orbits, in a ring.
    struct Verlauf {
        T x[Zeilenstueck::ZyklusMax + 1], y[Zeilenstueck::ZyklusMax + 1];
        qint32 aeltester = 0;
    };

    struct Buendel {
        Stand<Wert> s;
        Stand<Wert> gemerkt; ///< earlier state, valid once gemerktBei is above 0
        qint64 gemerktBei = 0;
        M lebt;
        M erreicht; ///< lanes that came to their last value
        M unklar;   ///< lanes that the point kernel has to compute
        M ziel;     ///< step at which the lane is at its last value
        M gezaehlt; ///< steps counted
        T rq;
        Verlauf verlauf;
    };

    /// Measure of a cycle search; the value takes the oldest one's place in the history.
    [[nodiscard]] T suchen(Verlauf& v, const T& x, const T& y) const {
        const T genau(r.genau);
        T rq(-r.genau);
        const bool delta = r.abbruchart == Abbruchart::Delta;
        // From the oldest to the most recent, so that the most recent match stays.
        qint32 k = v.aeltester;
        for (qint32 zyklus = r.zycmax; zyklus >= 0; --zyklus) {
            const T dd = absolut(v.x[k] - x) + absolut(v.y[k] - y);
            const M treffer = dd < genau;
            if (eine(treffer)) {
                const T betrag =
                    delta ? deltabetrag(r.farben, dd, genau) : T(r.zyklusBetrag[zyklus]);
                rq = wahl(treffer, betrag, rq);
            }
            k = k == r.zycmax ? 0 : k + 1;
        }
        v.x[v.aeltester] = x;
        v.y[v.aeltester] = y;
        v.aeltester = v.aeltester == r.zycmax ? 0 : v.aeltester + 1;
        return rq;
    }

    void buendelRechnen(qint32 i, qint32 anzahl) {
        alignas(64) double x[L];
        for (qint32 l = 0; l < L; ++l) {
            x[l] = r.x[i + (l < anzahl ? l : 0)];
        }
        Wert start, c;
        Lauf::beginnen(T::laden(x), start, c);
        const Schrittart schritt = Lauf::schrittMit(c);
        Buendel b{{start, start},
                  {start, start},
                  0,
                  ersteSpuren<Satz, Lauf::Vektoren>(anzahl),
                  M(0),
                  M(0),
                  M(r.schritte),
                  M(0),
                  T(0.0),
                  {}};
        // The preset is told from the start value as it is handed in.
        const T vorX = (r.julia ? T::laden(x) : T(0.0)) + Zeilenstueck::Voreinstellung;
        const T vorY = T(r.julia ? r.y : 0.0) + Zeilenstueck::Voreinstellung;
        for (qint32 k = 0; k <= r.zycmax; ++k) {
            b.verlauf.x[k] = vorX;
            b.verlauf.y[k] = vorY;
        }
        for (qint64 stand = 1; stand <= r.schritte && eine(b.lebt); ++stand) {
            einSchritt(b, schritt, stand);
            r.schritteGetan += L;
            if (r.abkuerzung && stand % Zeilenstueck::Blickabstand == 0) {
                zielVorziehen(b, stand);
            }
        }
        eintragen(i, anzahl, b);
    }

    [[gnu::flatten, gnu::noinline]] void einSchritt(Buendel& b, const Schrittart& schritt,
                                                    qint64 stand) {
        const M vorher = b.lebt;
        const auto abbr = Lauf::machen(schritt, b.s);
        T rq = suchen(b.verlauf, re(b.s.z), im(b.s.z));
        if constexpr (kannAbbrechen) {
            rq = wahl(abbr, T(0.0), rq);
            b.lebt = b.lebt & ~abbr;
        }
        r.getestet = r.getestet || eine(b.lebt);
        b.rq = wahl(vorher, rq, b.rq);
        b.gezaehlt = b.gezaehlt - (Formel::zaehltAbbruch ? vorher : vorher & b.lebt);
        b.lebt = b.lebt & (rq < T(r.grenze));
        const M amZiel = gleich(b.ziel, M(stand)) & b.lebt;
        b.erreicht = b.erreicht | amZiel;
        b.lebt = b.lebt & ~amZiel;
        if constexpr (!reell) {
            b.unklar = b.unklar | (vorher & verdorben(b.s, zweiWerte));
            b.lebt = b.lebt & ~b.unklar;
        }
    }

    /// A lane whose state has come back is wholly periodic, and wholly tested, after zycmax + 1
    /// further steps; the rest is reduced modulo the period.
    void zielVorziehen(Buendel& b, qint64 stand) const {
        const qint64 abstand = stand - b.gemerktBei;
        if (b.gemerktBei > 0) {
            const M neu =
                wiederholt(b.s, b.gemerkt, zweiWerte) & b.lebt & gleich(b.ziel, M(r.schritte));
            const qint64 ab = stand + r.zycmax + 1;
            if (eine(neu) && ab < r.schritte) {
                const M ziel(ab + (r.schritte - ab) % abstand);
                b.ziel = (neu & ziel) | (b.ziel & ~neu);
            }
        }
        if (b.gemerktBei == 0 || abstand >= wiederkehrFenster(b.gemerktBei)) {
            b.gemerkt = b.s;
            b.gemerktBei = stand;
        }
    }

    void eintragen(qint32 i, qint32 anzahl, const Buendel& b) {
        alignas(64) double rq[L];
        alignas(64) long long gezaehlt[L];
        b.rq.speichern(rq);
        b.gezaehlt.speichern(gezaehlt);
        const unsigned erreicht = bits(b.erreicht);
        const unsigned unklar = bits(b.unklar);
        for (qint32 l = 0; l < anzahl; ++l) {
            const bool voll = (erreicht >> l & 1u) != 0;
            r.wert[i + l] = rq[l];
            r.zaehler[i + l] = static_cast<qint32>(voll ? r.schritte : gezaehlt[l]) + 1;
            if ((unklar >> l & 1u) != 0) {
                r.zaehler[i + l] = 0;
                r.ab[i + l].getan = 0;
            }
        }
    }
};
