#pragma once

#include "equations/zeile/Spurenlauf.h"

// Many pixels at once, all at the same step. The piece is computed in rounds: each round takes the
// pixels that are still on their way, a bundle of lanes after the other, through a stretch of
// steps, and closes the gaps of those that have ended. So lanes stay busy although the counts of
// neighbours differ.

/// Registers of a bundle. With a twin, and for steps that keep many values, twice as many values
/// want a register.
template <class Satz, class Formel, bool mitZwilling>
inline constexpr int Rundenregister = mitZwilling || Formel::teuer ? 2 : Satz::Vektoren;

/// The loop without cycle search; `norm`: made for the squared modulus alone.
template <class Satz, class Formel, bool mitZwilling, bool norm>
class Rundenlauf
    : Spurenlauf<Satz, Formel, mitZwilling, Rundenregister<Satz, Formel, mitZwilling>> {
  public:
    explicit Rundenlauf(Zeilenstueck& stueck) : Lauf(stueck) {}

    void rechnen() {
        r.getestet = r.getestet || !kannAbbrechen;
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
        Stand<Wert> s;
        M lebt;     ///< lanes that go on
        T rq;       ///< last measure of lanes that have ended
        M gezaehlt; ///< steps counted in this round
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

    /// Lanes that take a step end with the measure 0 when it fails. A measure of NaN stands for a
    /// lane that the point kernel has to finish.
    [[gnu::flatten, gnu::noinline]] void durchlaufen(Buendel& b, const Schrittart& schritt,
                                                     qint64 schritte) const {
        const T grenze(r.grenze);
        for (qint64 i = 0; i < schritte; ++i) {
            M zaehlt = b.lebt;
            const M vorher = b.lebt;
            const auto abbr = schritt(b.s);
            T rq = messen(b.s);
            if constexpr (kannAbbrechen) {
                if (eine(abbr & vorher)) {
                    const T nan(__builtin_nan(""));
                    rq = wahl(abbr, reell ? T(0.0) : wahl(Lauf::verdorben(b.s), nan, T(0.0)), rq);
                    b.lebt = b.lebt & ~abbr;
                    zaehlt = Formel::zaehltAbbruch ? vorher : b.lebt;
                }
                r.getestet = r.getestet || eine(b.lebt);
            }
            b.rq = wahl(vorher, rq, b.rq);
            b.gezaehlt = b.gezaehlt - zaehlt;
            b.lebt = b.lebt & (rq < grenze);
        }
    }

    /// The same on the guess that no lane ends; false, and nothing done, when one does.
    [[nodiscard, gnu::flatten, gnu::noinline]] bool
    durcheilen(Buendel& b, const Schrittart& schritt, qint64 schritte) const {
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
        if (bits(lebt) != bits(b.lebt)) {
            return false;
        }
        b.s = s;
        b.gezaehlt = b.gezaehlt - (lebt & M(-schritte));
        return true;
    }

    /// The guess pays where a step costs no more than keeping the books.
    void stueckRechnen(Buendel& b, const Schrittart& schritt, qint64 schritte, bool raten) const {
        r.schritteGetan += schritte * L;
        if constexpr (!Formel::teuer) {
            if (raten && durcheilen(b, schritt, schritte)) {
                return;
            }
        }
        durchlaufen(b, schritt, schritte);
    }

    /// Steps of the round from step `von`, whole pieces.
    static constexpr qint64 laenge(qint64 von) {
        return von < 64 ? (Formel::teuer ? 16 : 32) : (von < 256 ? 64 : von / 4 / Stueck * Stueck);
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
            const M belegt = ersteSpuren<Satz, Lauf::Vektoren>(q.anzahl - i);
            Buendel b{{{T::laden(q.x + i), T::laden(q.y + i)}, {}}, belegt, T(0.0), M(0)};
            if constexpr (zweiWerte) {
                b.s.w = {T::laden(q.p + i), T::laden(q.t + i)};
            } else {
                b.s.w = b.s.z;
            }
            const Stand<Wert> anfang = b.s;
            M periodisch(0);
            qint64 stand = von;
            for (qint64 stueck = Lauf::kleiner(erstes, bis - von); stand < bis;
                 stueck = Lauf::kleiner(Stueck, bis - stand)) {
                stueckRechnen(b, schritt, stueck, von > 0);
                stand += stueck;
                if (r.abkuerzung) {
                    const M neu = Lauf::wiederholt(b.s, anfang) & b.lebt;
                    if (eine(neu)) {
                        periodisch = periodisch | neu;
                        b.lebt = b.lebt & ~neu;
                        beenden(q, i, b.s, neu, &rest, (r.schritte - stand) % (stand - von));
                    }
                }
                if (!eine(b.lebt)) {
                    break;
                }
            }
            eintragen(q, i, b, anfang, belegt & ~b.lebt & ~periodisch, von);
            if (stand == r.schritte) {
                beenden(q, i, b.s, b.lebt, nullptr, 0);
            } else {
                uebrig = aufruecken(q, i, uebrig, b);
            }
        }
        q.anzahl = uebrig;
    }

    /// Results of lanes whose orbit has ended. Those that the point kernel has to finish go on from
    /// the beginning of the round, unless their state was not to be trusted even there.
    void eintragen(const Schlange& q, qint32 i, const Buendel& b, const Stand<Wert>& anfang,
                   const M& welche, qint64 von) {
        alignas(64) double rq[L];
        alignas(64) long long gezaehlt[L];
        b.rq.speichern(rq);
        b.gezaehlt.speichern(gezaehlt);
        const unsigned treu = reell ? 0 : bits(~Lauf::verdorben(anfang));
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[i + l];
            r.wert[pixel] = rq[l];
            r.zaehler[pixel] = static_cast<qint32>(von + gezaehlt[l]) + 1;
            if (!reell && rq[l] != rq[l]) {
                r.zaehler[pixel] = 0;
                const qint32 getan = (treu >> l & 1u) != 0 ? static_cast<qint32>(von) : 0;
                r.ab[pixel] = {q.x[i + l], q.y[i + l], q.p[i + l], q.t[i + l], getan};
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
