#pragma once

#include "equations/zeile/Spurenlauf.h"

// Many pixels at once, all at the same step. The piece is computed in rounds: each round takes the
// pixels that are still on their way, a bundle of lanes after the other, through a stretch of
// steps, and closes the gaps of those that have ended. So lanes stay busy although the counts of
// neighbours differ.

/// Registers of a bundle. With a twin, and for steps that keep many values, twice as many values
/// want a register.
template <class Satz, class Formel, bool mitZwilling>
inline constexpr int Rundenregister = mitZwilling ? 2 : Satz::Vektoren;

/// The loop without cycle search; `norm`: made for the squared modulus alone.
template <class Satz, class Formel, bool mitZwilling, bool norm>
class Rundenlauf
    : Spurenlauf<Satz, Formel, mitZwilling, Rundenregister<Satz, Formel, mitZwilling>> {
  public:
    explicit Rundenlauf(Zeilenstueck& stueck) : Lauf(stueck) {}

    void rechnen() {
        Schlange schlange;
        Rest rest;
        fuellen(schlange);
        // Looks at the lanes fall on steps from which whole pieces lead to the limit: an orbit
        // with a period that divides a piece is then already at its last value.
        const qint64 erstes = (r.schritte - 1) % Stueck + 1;
        qint64 von = 0;
        while (schlange.anzahl > 0 && von < r.schritte) {
            const qint64 bis =
                Lauf::kleiner(von == 0 ? erstes + Stueck : von + laenge(von), r.schritte);
            runde(schlange, rest, von, bis, von == 0 ? erstes : Stueck);
            von = bis;
        }
        restRechnen(rest);
    }

  private:
    using Lauf = Spurenlauf<Satz, Formel, mitZwilling, Rundenregister<Satz, Formel, mitZwilling>>;
    using Lauf::kannAbbrechen;
    using Lauf::L;
    using Lauf::r;
    using Lauf::reell;
    using Lauf::Stueck;
    using Lauf::zweiWerte;
    using typename Lauf::M;
    using typename Lauf::Schrittart;
    using typename Lauf::T;
    using typename Lauf::Wert;
    static constexpr qint32 Platz = Zeilenstueck::Hoechstens + 2 * 64;

    /// Pixels on their way, one entry each.
    struct Schlange {
        alignas(64) double x[Platz], y[Platz], p[Platz], t[Platz], cx[Platz], cy[Platz];
        qint32 pixel[Platz];
        qint32 anzahl = 0;
    };
    /// Periodic orbits that have steps left to make.
    struct Rest : Schlange {
        alignas(64) long long schritte[Platz];
    };

    /// A bundle of lanes on their way through one round.
    struct Buendel {
        qint32 erster; ///< place of its first pixel in the queue
        Stand<Wert> s;
        M lebt;              ///< lanes that go on
        qint64 getan;        ///< steps made since the start
        Stand<Wert> blick{}; ///< state at the last look, blickBei steps after the start
        qint64 blickBei = 0;
    };

    [[nodiscard]] T messen(const Stand<Wert>& s) const {
        if constexpr (norm) {
            return re(s.z) * re(s.z) + im(s.z) * im(s.z);
        } else {
            return betragOhneZyklus(r.abbruchart, re(s.z), im(s.z));
        }
    }

    // The innermost loops are functions of their own with everything inlined: a call in them would
    // pass every lane through memory, and around them too many values want a register.

    [[gnu::flatten, gnu::noinline]] void durchlaufen(const Schlange& q, Buendel& b,
                                                     const Schrittart& schritt, qint64 schritte) {
        const T grenze(r.grenze);
        Stand<Wert> s = b.s;
        M lebt = b.lebt;
        b.blick = s;
        b.blickBei = b.getan;
        qint64 gemacht = 0;
        while (gemacht < schritte && eine(lebt)) {
            ++gemacht;
            const auto abbr = schritt(s);
            const T rq = messen(s);
            M weiter = lebt & (rq < grenze);
            if constexpr (kannAbbrechen) {
                weiter = weiter & ~abbr;
            }
            const M ende = lebt & ~weiter;
            lebt = weiter;
            if (eine(ende)) {
                if constexpr (kannAbbrechen) {
                    enden(q, b, s, rq, ende, ende & abbr, b.getan + gemacht);
                } else {
                    enden(q, b, s, rq, ende, M(0), b.getan + gemacht);
                }
            }
        }
        r.getestet = r.getestet || eine(lebt);
        r.schritteGetan += gemacht * L;
        b.s = s;
        b.lebt = lebt;
        b.getan += schritte;
    }

    /// The same for cheap steps, on the guess that no lane ends; false, and nothing done, when one
    /// does.
    [[nodiscard, gnu::flatten, gnu::noinline]] bool
    durcheilen(Buendel& b, const Schrittart& schritt, qint64 schritte) {
        const T grenze(r.grenze);
        Stand<Wert> s = b.s;
        M lebt = b.lebt;
        for (qint64 i = 0; i < schritte; ++i) {
            const auto abbr = schritt(s);
            lebt = lebt & (messen(s) < grenze);
            if constexpr (kannAbbrechen) {
                lebt = lebt & ~abbr;
            }
        }
        r.schritteGetan += schritte * L;
        if (eine(b.lebt & ~lebt)) {
            return false;
        }
        b.s = s;
        b.getan += schritte;
        return true;
    }

    /// The guess pays where a step costs no more than asking whether a lane has ended.
    void stueckRechnen(const Schlange& q, Buendel& b, const Schrittart& schritt, qint64 schritte,
                       bool raten) {
        if constexpr (!Formel::teuer) {
            if (raten && durcheilen(b, schritt, schritte)) {
                return;
            }
        }
        durchlaufen(q, b, schritt, schritte);
    }

    /// Results of lanes whose orbit ends with its step number `schritt`; some of them are aborted.
    /// Those where the library's arithmetic might have gone another way are left to the point
    /// kernel, which goes on from the last look unless the state was not to be trusted even there.
    [[gnu::noinline, gnu::cold]] void enden(const Schlange& q, const Buendel& b,
                                            const Stand<Wert>& s, const T& rq, const M& welche,
                                            const M& abgebrochen, qint64 schritt) {
        alignas(64) double mass[L];
        rq.speichern(mass);
        const unsigned abbruch = bits(abgebrochen);
        const unsigned offen = reell ? 0 : bits(Lauf::verdorben(s) & welche);
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[b.erster + l];
            const bool abbr = (abbruch >> l & 1u) != 0;
            const qint64 gezaehlt = abbr && !Formel::zaehltAbbruch ? schritt - 1 : schritt;
            r.getestet = r.getestet || !abbr;
            r.wert[pixel] = abbr ? 0.0 : mass[l];
            r.zaehler[pixel] = static_cast<qint32>(gezaehlt) + 1;
        }
        if (offen != 0) {
            offenLassen(q, b, offen);
        }
    }

    void offenLassen(const Schlange& q, const Buendel& b, unsigned welche) {
        alignas(64) double x[L], y[L], p[L], t[L];
        re(b.blick.z).speichern(x);
        im(b.blick.z).speichern(y);
        re(b.blick.w).speichern(p);
        im(b.blick.w).speichern(t);
        const unsigned untreu = bits(Lauf::verdorben(b.blick));
        for (unsigned w = welche; w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[b.erster + l];
            const bool treu = (untreu >> l & 1u) == 0;
            r.zaehler[pixel] = 0;
            r.ab[pixel] = {x[l], y[l], p[l], t[l], treu ? static_cast<qint32>(b.blickBei) : 0};
        }
    }

    /// Steps of the round from step `von`, whole pieces. The first rounds are multiples of 3 and of
    /// 5 pieces long, because rounded orbits settle in cycles of such lengths as well.
    static constexpr qint64 laenge(qint64 von) {
        return von < 32
                   ? 3 * Stueck
                   : (von < 64 ? 5 * Stueck : (von < 256 ? 8 * Stueck : von / 4 / Stueck * Stueck));
    }

    void fuellen(Schlange& q) const {
        q.anzahl = r.anzahl;
        for (qint32 i = 0; i < r.anzahl; i += L) {
            alignas(64) double x[L];
            for (qint32 l = 0; l < L; ++l) {
                x[l] = r.x[i + l < r.anzahl ? i + l : 0];
                q.pixel[i + l] = i + l;
            }
            Wert z, c;
            Lauf::beginnen(T::laden(x), z, c);
            re(z).speichern(q.x + i);
            im(z).speichern(q.y + i);
            re(z).speichern(q.p + i);
            im(z).speichern(q.t + i);
            re(c).speichern(q.cx + i);
            im(c).speichern(q.cy + i);
        }
    }

    void runde(Schlange& q, Rest& rest, qint64 von, qint64 bis, qint64 erstes) {
        qint32 uebrig = 0;
        for (qint32 i = 0; i < q.anzahl; i += L) {
            const Schrittart schritt = Lauf::schrittMit({T::laden(q.cx + i), T::laden(q.cy + i)});
            Buendel b{i,
                      {{T::laden(q.x + i), T::laden(q.y + i)}, {}},
                      ersteSpuren<Satz, Lauf::Vektoren>(q.anzahl - i),
                      von};
            if constexpr (zweiWerte) {
                b.s.w = {T::laden(q.p + i), T::laden(q.t + i)};
            } else {
                b.s.w = b.s.z;
            }
            const Stand<Wert> anfang = b.s;
            for (qint64 stueck = Lauf::kleiner(erstes, bis - von); b.getan < bis && eine(b.lebt);
                 stueck = Lauf::kleiner(Stueck, bis - b.getan)) {
                stueckRechnen(q, b, schritt, stueck, von > 0);
                if (r.abkuerzung) {
                    periodischeBeenden(q, rest, b, anfang, von);
                }
            }
            if (b.getan == r.schritte) {
                beenden(q, i, b.s, b.lebt, nullptr, 0);
            } else {
                uebrig = aufruecken(q, i, uebrig, b);
            }
        }
        q.anzahl = uebrig;
    }

    /// Lanes whose state has come back since the beginning of the round, or, where steps are dear,
    /// since the last look.
    void periodischeBeenden(const Schlange& q, Rest& rest, Buendel& b, const Stand<Wert>& anfang,
                            qint64 von) {
        const auto vergleichen = [&](const Stand<Wert>& frueher, qint64 bei) {
            const M neu = Lauf::wiederholt(b.s, frueher) & b.lebt;
            if (eine(neu)) {
                b.lebt = b.lebt & ~neu;
                beenden(q, b.erster, b.s, neu, &rest, (r.schritte - b.getan) % (b.getan - bei));
            }
        };
        vergleichen(anfang, von);
        if (Formel::teuer && b.blickBei != von) {
            vergleichen(b.blick, b.blickBei);
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
        if constexpr (zweiWerte) {
            re(b.s.w).speichern(p);
            im(b.s.w).speichern(t);
        }
        for (unsigned w = bits(b.lebt); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            q.x[uebrig] = x[l];
            q.y[uebrig] = y[l];
            if constexpr (zweiWerte) {
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
            const qint32 anzahl = Lauf::kleiner(L, rest.anzahl - i);
            qint64 groesster = 0;
            for (qint32 k = i; k < i + L; ++k) {
                if (k >= rest.anzahl) {
                    rest.x[k] = rest.y[k] = rest.p[k] = rest.t[k] = rest.cx[k] = rest.cy[k] = 0.0;
                    rest.schritte[k] = 0;
                }
                groesster = rest.schritte[k] > groesster ? rest.schritte[k] : groesster;
            }
            const Schrittart schritt =
                Lauf::schrittMit({T::laden(rest.cx + i), T::laden(rest.cy + i)});
            Stand<Wert> s{{T::laden(rest.x + i), T::laden(rest.y + i)},
                          {T::laden(rest.p + i), T::laden(rest.t + i)}};
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
};
