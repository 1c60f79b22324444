#pragma once

#include "equations/Abbruch.h"
#include "equations/FormelnKomplex.h"
#include "equations/FormelnReell.h"
#include "equations/Reihe.h"
#include "equations/Schritt.h"
#include "equations/Spuren.h"
#include "equations/Wiederkehr.h"

#include <type_traits>
#include <utility>

// The frame of the kernels for many pixels at once. All pixels of a piece are at the same step. The
// piece is computed in rounds: each round takes the pixels that are still on their way, a bundle of
// lanes after the other, through a stretch of steps, and closes the gaps of those that have ended.
// So lanes stay busy although the counts of neighbours differ.

/// Which measure a loop is made for.
enum class Mass { Norm, Andere, Zyklus };

template <class Satz, template <class> class Wertart, class Abbildung, class Kopplung,
          bool mitZwilling, Mass mass>
class Reihenlauf {
  public:
    explicit Reihenlauf(Reihe& auftrag, const Abbildung& gleichung)
        : r(auftrag), abbildung(gleichung) {}

    void rechnen() {
        if constexpr (mass == Mass::Zyklus) {
            for (qint32 i = 0; i < r.anzahl; i += L) {
                zyklusBuendel(i, kleiner(L, r.anzahl - i));
            }
        } else {
            r.getestet = r.getestet || !kannAbbrechen;
            rundenRechnen();
        }
    }

  private:
    /// Registers of a bundle. A cycle search runs a bundle to its end: the fewer lanes wait for the
    /// last one the better. With a twin, twice as many values want a register.
    static constexpr int n = mass == Mass::Zyklus ? 1 : (mitZwilling ? 2 : Satz::Vektoren);
    using T = Spuren<Satz, n>;
    using M = Maske<Satz, n>;
    using Wert = Wertart<T>;
    using Schritt =
        Doppelschritt<Abbildung, std::conditional_t<mitZwilling, Kopplung, OhneKopplung>, Wert>;
    static constexpr int L = T::Anzahl; ///< lanes of a bundle
    static constexpr qint64 Stueck = 8; ///< steps between two looks at the lanes
    /// Real arithmetic is exact in lanes; a complex product may have to recover an infinity.
    static constexpr bool reell = std::is_same_v<Wert, Paar<T>>;
    static constexpr bool kannAbbrechen =
        !std::is_same_v<decltype(std::declval<const Schritt&>()(std::declval<Stand<Wert>&>())),
                        bool>;
    static constexpr qint32 Platz = Reihe::Hoechstens + 2 * 64;

    Reihe& r;
    Abbildung abbildung;

    /// Pixels on their way, one entry each.
    struct Schlange {
        alignas(64) double x[Platz], y[Platz], p[Platz], t[Platz], cx[Platz], cy[Platz];
        qint32 pixel[Platz];
        qint32 anzahl = 0;
    };
    /// Periodic orbits that have steps left to make.
    struct Rest : Schlange {
        alignas(64) long long schritte[Platz];
        qint64 groesster = 0;
    };

    static Wert wertAus(const T& x, const T& y) { return {x, y}; }

    static constexpr qint32 kleiner(qint32 a, qint32 b) { return a < b ? a : b; }
    static constexpr qint64 kleiner(qint64 a, qint64 b) { return a < b ? a : b; }

    [[nodiscard]] Schritt schrittMit(const Wert& c) const {
        if constexpr (mitZwilling) {
            Kopplung k{};
            k.art = r.zwilling;
            k.px = r.kopplX;
            k.py = r.kopplY;
            return {abbildung, k, c, c};
        } else {
            return {abbildung, {}, c, c};
        }
    }

    [[nodiscard]] T messen(const Stand<Wert>& s) const {
        if constexpr (mass == Mass::Norm) {
            return re(s.z) * re(s.z) + im(s.z) * im(s.z);
        } else {
            return betragOhneZyklus(static_cast<Abbruchart>(r.abbruchart), re(s.z), im(s.z));
        }
    }

    static M wiederholt(const Stand<Wert>& s, const Stand<Wert>& g) {
        M m = bitgleich(re(s.z), re(g.z)) & bitgleich(im(s.z), im(g.z));
        if constexpr (mitZwilling) {
            m = m & bitgleich(re(s.w), re(g.w)) & bitgleich(im(s.w), im(g.w));
        }
        return m;
    }

    /// One step; lanes whose orbit is aborted get the measure 0 and are no longer alive.
    [[nodiscard]] T messenNach(const Schritt& schritt, Stand<Wert>& s, M& lebt) const {
        const auto abbr = schritt(s);
        T rq = messen(s);
        if constexpr (kannAbbrechen) {
            rq = wahl(abbr, T(0.0), rq);
            lebt = lebt & ~abbr;
            r.getestet = r.getestet || bits(lebt) != 0;
        }
        return rq;
    }

    // The innermost loops are functions of their own with everything inlined: a call in them would
    // pass every lane through memory, and around them too many values want a register.

    // --- Without cycle search ----------------------------------------------------------------

    /// A bundle of lanes on their way through one round.
    struct Buendel {
        Stand<Wert> s;
        M lebt;     ///< lanes that go on
        T rq;       ///< last measure of lanes that have ended
        M gezaehlt; ///< steps made in this round
    };

    [[gnu::flatten, gnu::noinline]] void durchlaufen(Buendel& b, const Schritt& schritt,
                                                     qint64 schritte) const {
        const T grenze(r.grenze);
        for (qint64 i = 0; i < schritte; ++i) {
            const M vorher = b.lebt;
            const T rq = messenNach(schritt, b.s, b.lebt);
            b.rq = wahl(vorher, rq, b.rq);
            b.gezaehlt = b.gezaehlt - vorher;
            b.lebt = b.lebt & (rq < grenze);
        }
    }

    /// The same on the guess that no lane ends; false, and nothing done, when one does.
    [[nodiscard, gnu::flatten, gnu::noinline]] bool durcheilen(Buendel& b, const Schritt& schritt,
                                                               qint64 schritte) const {
        const T grenze(r.grenze);
        Stand<Wert> s = b.s;
        M lebt = b.lebt;
        for (qint64 i = 0; i < schritte; ++i) {
            const T rq = messenNach(schritt, s, lebt);
            lebt = lebt & (rq < grenze);
        }
        if (bits(lebt) != bits(b.lebt)) {
            return false;
        }
        b.s = s;
        b.gezaehlt = b.gezaehlt - (lebt & M(-schritte));
        return true;
    }

    void rundenRechnen() {
        Schlange schlange;
        Rest rest;
        fuellen(schlange);
        // Looks at the lanes fall on steps from which whole pieces lead to the limit: an orbit
        // with a period that divides a piece is then already at its last value.
        const qint64 erstes = (r.schritte - 1) % Stueck + 1;
        qint64 von = 0;
        while (schlange.anzahl > 0 && von < r.schritte) {
            const qint64 bis = kleiner(von == 0 ? erstes + Stueck : von + laenge(von), r.schritte);
            runde(schlange, rest, von, bis, von == 0 ? erstes : Stueck);
            von = bis;
        }
        restRechnen(rest);
    }

    /// Steps of the round from step `von`, whole pieces.
    static constexpr qint64 laenge(qint64 von) {
        return von < 64 ? 32 : (von < 256 ? 64 : von / 4 / Stueck * Stueck);
    }

    void fuellen(Schlange& q) const {
        q.anzahl = r.anzahl;
        for (qint32 i = 0; i < r.anzahl + L; ++i) {
            const double x = r.x[i < r.anzahl ? i : 0];
            q.x[i] = q.p[i] = r.julia ? x : 0.0;
            q.y[i] = q.t[i] = r.julia ? r.y : 0.0;
            q.cx[i] = r.julia ? r.cx : x;
            q.cy[i] = r.julia ? r.cy : r.y;
            q.pixel[i] = i;
        }
    }

    void runde(Schlange& q, Rest& rest, qint64 von, qint64 bis, qint64 erstes) {
        qint32 uebrig = 0;
        for (qint32 i = 0; i < q.anzahl; i += L) {
            const Wert c = wertAus(T::laden(q.cx + i), T::laden(q.cy + i));
            const Schritt schritt = schrittMit(c);
            const M belegt = ersteSpuren<Satz, n>(q.anzahl - i);
            Buendel b{{wertAus(T::laden(q.x + i), T::laden(q.y + i)), {}}, belegt, T(0.0), M(0)};
            if constexpr (mitZwilling) {
                b.s.w = wertAus(T::laden(q.p + i), T::laden(q.t + i));
            } else {
                b.s.w = b.s.z;
            }
            const Stand<Wert> anfang = b.s;
            M periodisch(0);
            qint64 stand = von;
            for (qint64 stueck = kleiner(erstes, bis - von); stand < bis;
                 stueck = kleiner(Stueck, bis - stand)) {
                if (von == 0 || !durcheilen(b, schritt, stueck)) {
                    durchlaufen(b, schritt, stueck);
                }
                stand += stueck;
                if (r.abkuerzung) {
                    const M neu = wiederholt(b.s, anfang) & b.lebt;
                    if (bits(neu) != 0) {
                        periodisch = periodisch | neu;
                        b.lebt = b.lebt & ~neu;
                        beenden(q, i, b.s, neu, &rest, (r.schritte - stand) % (stand - von));
                    }
                }
                if (bits(b.lebt) == 0) {
                    break;
                }
            }
            eintragen(q, i, b, belegt & ~b.lebt & ~periodisch, von);
            if (stand == r.schritte) {
                beenden(q, i, b.s, b.lebt, nullptr, 0);
            } else {
                uebrig = aufruecken(q, i, uebrig, b);
            }
        }
        q.anzahl = uebrig;
    }

    /// Results of lanes whose orbit has ended.
    void eintragen(const Schlange& q, qint32 i, const Buendel& b, const M& welche, qint64 von) {
        alignas(64) double rq[L];
        alignas(64) long long gezaehlt[L];
        b.rq.speichern(rq);
        b.gezaehlt.speichern(gezaehlt);
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[i + l];
            r.wert[pixel] = rq[l];
            r.zaehler[pixel] = static_cast<qint32>(von + gezaehlt[l]) + 1;
            if (!reell && rq[l] != rq[l]) {
                r.zaehler[pixel] = 0;
            }
        }
    }

    /// Lanes that reach the limit, after `schritte` further steps of their periodic orbit.
    void beenden(const Schlange& q, qint32 i, const Stand<Wert>& s, const M& welche, Rest* rest,
                 qint64 schritte) {
        alignas(64) double rq[L], x[L], y[L], p[L], t[L];
        messen(s).speichern(rq);
        re(s.z).speichern(x);
        im(s.z).speichern(y);
        re(s.w).speichern(p);
        im(s.w).speichern(t);
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[i + l];
            r.wert[pixel] = rq[l];
            r.zaehler[pixel] = static_cast<qint32>(r.schritte + 1);
            if (schritte > 0) {
                const qint32 k = rest->anzahl++;
                rest->x[k] = x[l];
                rest->y[k] = y[l];
                rest->p[k] = p[l];
                rest->t[k] = t[l];
                rest->cx[k] = q.cx[i + l];
                rest->cy[k] = q.cy[i + l];
                rest->pixel[k] = pixel;
                rest->schritte[k] = schritte;
            }
        }
    }

    /// Puts the living lanes behind the `uebrig` ones already kept; returns their new number.
    qint32 aufruecken(Schlange& q, qint32 i, qint32 uebrig, const Buendel& b) const {
        alignas(64) double x[L], y[L], p[L], t[L];
        re(b.s.z).speichern(x);
        im(b.s.z).speichern(y);
        if constexpr (mitZwilling) {
            re(b.s.w).speichern(p);
            im(b.s.w).speichern(t);
        }
        for (unsigned w = bits(b.lebt); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            q.x[uebrig] = x[l];
            q.y[uebrig] = y[l];
            if constexpr (mitZwilling) {
                q.p[uebrig] = p[l];
                q.t[uebrig] = t[l];
            }
            q.cx[uebrig] = q.cx[i + l];
            q.cy[uebrig] = q.cy[i + l];
            q.pixel[uebrig] = q.pixel[i + l];
            ++uebrig;
        }
        return uebrig;
    }

    void restRechnen(Rest& rest) {
        for (qint32 i = 0; i < rest.anzahl; i += L) {
            const qint32 anzahl = kleiner(L, rest.anzahl - i);
            qint64 groesster = 0;
            for (qint32 k = i; k < i + L; ++k) {
                if (k >= rest.anzahl) {
                    rest.x[k] = rest.y[k] = rest.p[k] = rest.t[k] = rest.cx[k] = rest.cy[k] = 0.0;
                    rest.schritte[k] = 0;
                }
                groesster = rest.schritte[k] > groesster ? rest.schritte[k] : groesster;
            }
            const Schritt schritt =
                schrittMit(wertAus(T::laden(rest.cx + i), T::laden(rest.cy + i)));
            Stand<Wert> s{wertAus(T::laden(rest.x + i), T::laden(rest.y + i)),
                          wertAus(T::laden(rest.p + i), T::laden(rest.t + i))};
            const M ziel = M::laden(rest.schritte + i);
            T rq(0.0);
            for (qint64 k = 1; k <= groesster; ++k) {
                schritt(s);
                rq = wahl(gleich(ziel, M(k)), messen(s), rq);
            }
            alignas(64) double werte[L];
            rq.speichern(werte);
            for (qint32 k = 0; k < anzahl; ++k) {
                r.wert[rest.pixel[i + k]] = werte[k];
            }
        }
    }

    // --- With cycle search -------------------------------------------------------------------

    static constexpr double Voreinstellung = Reihe::Voreinstellung;

    /// The last values of the lanes' main orbits, in a ring.
    struct Verlauf {
        T x[25], y[25];
        qint32 aeltester = 0;
    };

    /// Measure of a cycle search; the value takes the oldest one's place in the history.
    [[nodiscard]] T suchen(Verlauf& v, const T& x, const T& y) const {
        const T genau(r.genau);
        T rq(-r.genau);
        const bool delta = r.abbruchart == static_cast<qint32>(Abbruchart::Delta);
        // From the oldest to the most recent, so that the most recent match stays.
        qint32 k = v.aeltester;
        for (qint32 zyklus = r.zycmax; zyklus >= 0; --zyklus) {
            const T dd = absolut(v.x[k] - x) + absolut(v.y[k] - y);
            const M treffer = dd < genau;
            if (bits(treffer) != 0) {
                const T betrag =
                    delta ? 100.0 + 2.0 * (r.farben * (dd / genau)) : T(r.zyklusBetrag[zyklus]);
                rq = wahl(treffer, betrag, rq);
            }
            k = k == r.zycmax ? 0 : k + 1;
        }
        v.x[v.aeltester] = x;
        v.y[v.aeltester] = y;
        v.aeltester = v.aeltester == r.zycmax ? 0 : v.aeltester + 1;
        return rq;
    }

    /// A bundle with a history for each lane, run to the end of all its orbits.
    struct Zyklusbuendel {
        Stand<Wert> s;
        Stand<Wert> gemerkt; ///< earlier state, valid once gemerktBei is above 0
        qint64 gemerktBei = 0;
        M lebt, erreicht, unklar;
        M ziel; ///< step at which the lane is at its last value
        M gezaehlt;
        T rq;
        Verlauf verlauf;
    };

    void zyklusBuendel(qint32 i, qint32 anzahl) {
        alignas(64) double x[L];
        for (qint32 l = 0; l < L; ++l) {
            x[l] = r.x[i + (l < anzahl ? l : 0)];
        }
        const Wert punkt = wertAus(T::laden(x), T(r.y));
        const Wert start = r.julia ? punkt : wertAus(T(0.0), T(0.0));
        const Schritt schritt = schrittMit(r.julia ? wertAus(T(r.cx), T(r.cy)) : punkt);
        Zyklusbuendel b{{start, start},
                        {start, start},
                        0,
                        ersteSpuren<Satz, n>(anzahl),
                        M(0),
                        M(0),
                        M(r.schritte),
                        M(0),
                        T(0.0),
                        {}};
        for (qint32 k = 0; k <= r.zycmax; ++k) {
            b.verlauf.x[k] = re(start) + Voreinstellung;
            b.verlauf.y[k] = im(start) + Voreinstellung;
        }
        for (qint64 stand = 1; stand <= r.schritte && bits(b.lebt) != 0; ++stand) {
            zyklusSchritt(b, schritt, stand);
            if (r.abkuerzung && stand % Stueck == 0) {
                zielVorziehen(b, stand);
            }
        }
        zyklusEintragen(i, anzahl, b);
    }

    [[gnu::flatten]] void zyklusSchritt(Zyklusbuendel& b, const Schritt& schritt, qint64 stand) {
        const M vorher = b.lebt;
        const auto abbr = schritt(b.s);
        T rq = suchen(b.verlauf, re(b.s.z), im(b.s.z));
        if constexpr (kannAbbrechen) {
            rq = wahl(abbr, T(0.0), rq);
            b.lebt = b.lebt & ~abbr;
        }
        r.getestet = r.getestet || bits(b.lebt) != 0;
        b.rq = wahl(vorher, rq, b.rq);
        b.gezaehlt = b.gezaehlt - vorher;
        b.lebt = b.lebt & (rq < T(r.grenze));
        const M amZiel = gleich(b.ziel, M(stand)) & b.lebt;
        b.erreicht = b.erreicht | amZiel;
        b.lebt = b.lebt & ~amZiel;
        if constexpr (!reell) {
            b.unklar = b.unklar | (vorher & istNaN(re(b.s.z)));
        }
    }

    /// A lane whose state has come back is wholly periodic, and wholly tested, after zycmax + 1
    /// further steps; the rest is reduced modulo the period.
    void zielVorziehen(Zyklusbuendel& b, qint64 stand) const {
        const qint64 abstand = stand - b.gemerktBei;
        if (b.gemerktBei > 0) {
            const M neu = wiederholt(b.s, b.gemerkt) & b.lebt & gleich(b.ziel, M(r.schritte));
            const qint64 ab = stand + r.zycmax + 1;
            if (bits(neu) != 0 && ab < r.schritte) {
                const M ziel(ab + (r.schritte - ab) % abstand);
                b.ziel = (neu & ziel) | (b.ziel & ~neu);
            }
        }
        if (b.gemerktBei == 0 || abstand >= wiederkehrFenster(b.gemerktBei)) {
            b.gemerkt = b.s;
            b.gemerktBei = stand;
        }
    }

    void zyklusEintragen(qint32 i, qint32 anzahl, const Zyklusbuendel& b) {
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
            }
        }
    }
};

/// Runs a piece with the loop that its settings ask for.
template <class Satz>
class Reihenwahl {
  public:
    static void rechnen(Reihe& r) {
        switch (r.formel) {
        case Reihenformel::Keine:
            return;
        case Reihenformel::Quadrat:
            return mitZwilling<Paar, ReelleKopplung>(r, Ungebremst<Quadrat>{});
        case Reihenformel::Auge:
            return mitZwilling<Paar, AugenKopplung>(r, Ungebremst<Auge>{});
        case Reihenformel::Vierpol:
            return mitZwilling<Paar, ReelleKopplung>(r, Vierpol{r.schwelle});
        case Reihenformel::Z2:
            return term<Term::Z2>(r);
        case Reihenformel::Z3:
            return term<Term::Z3>(r);
        case Reihenformel::Z4:
            return term<Term::Z4>(r);
        case Reihenformel::Z5:
            return term<Term::Z5>(r);
        case Reihenformel::ZhochK:
            return term<Term::ZhochK>(r);
        case Reihenformel::Zm:
            return term<Term::Zm>(r);
        case Reihenformel::ZmZ:
            return term<Term::ZmZ>(r);
        case Reihenformel::ZSZm:
            return term<Term::ZSZm>(r);
        case Reihenformel::Zm2:
            return term<Term::Zm2>(r);
        case Reihenformel::ZmHochHg:
            return term<Term::ZmHochHg>(r);
        case Reihenformel::ZmHochHuZ:
            return term<Term::ZmHochHuZ>(r);
        case Reihenformel::ZSZmHochHu:
            return term<Term::ZSZmHochHu>(r);
        }
    }

  private:
    template <Term t>
    static void term(Reihe& r) {
        mitZwilling<SpurenKomplex, KomplexeKopplung>(r, Ungebremst<TermPlusC<t>>{{r.exponent}});
    }

    template <template <class> class Wertart, class Kopplung, class Abbildung>
    static void mitZwilling(Reihe& r, const Abbildung& a) {
        return r.zwilling == 0 ? mitMass<Wertart, Kopplung, Abbildung, false>(r, a)
                               : mitMass<Wertart, Kopplung, Abbildung, true>(r, a);
    }

    template <template <class> class Wertart, class Kopplung, class Abbildung, bool zwilling>
    static void mitMass(Reihe& r, const Abbildung& a) {
        const auto art = static_cast<Abbruchart>(r.abbruchart);
        if (art == Abbruchart::Delta || art == Abbruchart::Zyklen) {
            Reihenlauf<Satz, Wertart, Abbildung, Kopplung, zwilling, Mass::Zyklus>(r, a).rechnen();
        } else if (art == Abbruchart::Norm) {
            Reihenlauf<Satz, Wertart, Abbildung, Kopplung, zwilling, Mass::Norm>(r, a).rechnen();
        } else {
            Reihenlauf<Satz, Wertart, Abbildung, Kopplung, zwilling, Mass::Andere>(r, a).rechnen();
        }
    }
};
