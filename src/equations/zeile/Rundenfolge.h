#pragma once

#include "equations/zeile/Spurenlauf.h"

// Many pixels at once, all at the same step. The piece is computed in rounds: each round takes the
// pixels that are still on their way, a bundle of lanes after the other, through a stretch of
// steps, and closes the gaps of those that have ended. So lanes stay busy although the counts of
// neighbours differ.

/// The rounds: what does not depend on the formula, so that it is compiled once for bundles of n
/// registers. A formula adds the functions that make its steps. `zweiWerte`: the state is more than
/// the main value.
template <class Satz, int n, bool zweiWerte>
class Rundenfolge {
  public:
    void rechnen() {
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

  protected:
    using T = Spuren<Satz, n>;
    using M = Maske<Satz, n>;
    using Zahl = Paar<T>; ///< real and imaginary part, whatever the formula computes with
    static constexpr int L = T::Anzahl;
    static constexpr qint32 Platz = Zeilenstueck::Hoechstens;
    static_assert(Platz % L == 0, "the last bundle has room too");

    /// Pixels on their way, one entry each.
    struct Schlange {
        alignas(64) double x[Platz], y[Platz], p[Platz], t[Platz], cx[Platz], cy[Platz];
        qint32 pixel[Platz];
        qint32 anzahl = 0;
    };

    /// A bundle of lanes on their way through one round.
    struct Buendel {
        const qint32* pixel; ///< the pixels of its lanes
        Stand<Zahl> s;
        M lebt;              ///< lanes that go on
        qint64 getan;        ///< steps made since the start
        Stand<Zahl> blick{}; ///< state at the last look, blickBei steps after the start
        qint64 blickBei = 0;
    };

    Rundenfolge(Zeilenstueck& stueck, bool teureSchritte) : r(stueck), teuer(teureSchritte) {}
    Rundenfolge(const Rundenfolge&) = delete;
    Rundenfolge& operator=(const Rundenfolge&) = delete;
    ~Rundenfolge() = default;

    /// Start values and constants of the pixels with the real coordinates x.
    virtual void starten(const T& x, Zahl& z, Zahl& c) const = 0;
    /// The constants of the steps that follow, their real and imaginary parts.
    virtual void mitKonstanten(const double* cx, const double* cy) = 0;
    /// Makes `schritte` steps of a bundle and enters the results of the lanes that end; `raten`:
    /// probably none does.
    virtual void stueckRechnen(Buendel& b, qint64 schritte, bool raten) = 0;
    /// The measure of each lane after its number of steps `ziel`, the largest being `groesstes`.
    virtual T betragNach(const Stand<Zahl>& anfang, const M& ziel, qint64 groesstes) const = 0;
    /// The measure of a state.
    virtual T betrag(const Stand<Zahl>& s) const = 0;

    /// Leaves lanes of a bundle to the point kernel, from the last look, or from the start where
    /// the state was not to be trusted even there.
    void offenLassen(const Buendel& b, const M& welche) {
        alignas(64) double x[L], y[L], p[L], t[L];
        ablegen(b.blick, x, y, p, t);
        const unsigned untreu = bits(verdorben(b.blick, zweiWerte));
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const bool treu = (untreu >> l & 1u) == 0;
            r.zaehler[b.pixel[l]] = 0;
            r.ab[b.pixel[l]] = {x[l], y[l], p[l], t[l], treu ? static_cast<qint32>(b.blickBei) : 0};
        }
    }

  private:
    static constexpr qint64 Stueck = Zeilenstueck::Blickabstand;

    /// Periodic orbits that have steps left to make.
    struct Rest : Schlange {
        alignas(64) long long schritte[Platz];
    };

    Zeilenstueck& r;
    bool teuer; ///< steps cost so much that every look at the lanes is used

    static constexpr qint32 kleiner(qint32 a, qint32 b) { return a < b ? a : b; }
    static constexpr qint64 kleiner(qint64 a, qint64 b) { return a < b ? a : b; }

    /// Steps of the round from step `von`, whole pieces. The first rounds are multiples of 3 and of
    /// 5 pieces long, because rounded orbits settle in cycles of such lengths as well.
    static constexpr qint64 laenge(qint64 von) {
        return von < 32
                   ? 3 * Stueck
                   : (von < 64 ? 5 * Stueck : (von < 256 ? 8 * Stueck : von / 4 / Stueck * Stueck));
    }

    static Stand<Zahl> stand(const Schlange& q, qint32 i) {
        const Zahl z{T::laden(q.x + i), T::laden(q.y + i)};
        if constexpr (zweiWerte) {
            return {z, {T::laden(q.p + i), T::laden(q.t + i)}};
        } else {
            return {z, z};
        }
    }
    static void ablegen(const Stand<Zahl>& s, double* x, double* y, double* p, double* t) {
        s.z.x.speichern(x);
        s.z.y.speichern(y);
        s.w.x.speichern(p);
        s.w.y.speichern(t);
    }

    void fuellen(Schlange& q) const {
        q.anzahl = r.anzahl;
        for (qint32 i = 0; i < r.anzahl; i += L) {
            alignas(64) double x[L];
            for (qint32 l = 0; l < L; ++l) {
                x[l] = r.x[i + l < r.anzahl ? i + l : 0];
                q.pixel[i + l] = i + l;
            }
            Zahl z, c;
            starten(T::laden(x), z, c);
            ablegen({z, z}, q.x + i, q.y + i, q.p + i, q.t + i);
            c.x.speichern(q.cx + i);
            c.y.speichern(q.cy + i);
        }
    }

    void runde(Schlange& q, Rest& rest, qint64 von, qint64 bis, qint64 erstes) {
        qint32 uebrig = 0;
        for (qint32 i = 0; i < q.anzahl; i += L) {
            mitKonstanten(q.cx + i, q.cy + i);
            Buendel b{q.pixel + i, stand(q, i), ersteSpuren<Satz, n>(q.anzahl - i), von};
            const Stand<Zahl> anfang = b.s;
            for (qint64 stueck = kleiner(erstes, bis - von); b.getan < bis && eine(b.lebt);
                 stueck = kleiner(Stueck, bis - b.getan)) {
                stueckRechnen(b, stueck, von > 0);
                if (r.abkuerzung) {
                    periodischeBeenden(q, i, rest, b, anfang, von);
                }
            }
            if (b.getan == r.schritte) {
                beenden(q, i, b.s, b.lebt, rest, 0);
            } else {
                uebrig = aufruecken(q, i, uebrig, b);
            }
        }
        q.anzahl = uebrig;
    }

    /// Lanes whose state has come back since the beginning of the round, or, where steps are dear,
    /// since the last look.
    void periodischeBeenden(const Schlange& q, qint32 i, Rest& rest, Buendel& b,
                            const Stand<Zahl>& anfang, qint64 von) {
        const auto vergleichen = [&](const Stand<Zahl>& frueher, qint64 bei) {
            const M neu = wiederholt(b.s, frueher, zweiWerte) & b.lebt;
            if (eine(neu)) {
                b.lebt = b.lebt & ~neu;
                beenden(q, i, b.s, neu, rest, (r.schritte - b.getan) % (b.getan - bei));
            }
        };
        vergleichen(anfang, von);
        if (teuer && b.blickBei != von) {
            vergleichen(b.blick, b.blickBei);
        }
    }

    /// Lanes that reach the limit, after `schritte` further steps of their periodic orbit.
    void beenden(const Schlange& q, qint32 i, const Stand<Zahl>& s, const M& welche, Rest& rest,
                 qint64 schritte) {
        alignas(64) double rq[L], x[L], y[L], p[L], t[L];
        betrag(s).speichern(rq);
        ablegen(s, x, y, p, t);
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = q.pixel[i + l];
            r.wert[pixel] = rq[l];
            r.zaehler[pixel] = static_cast<qint32>(r.schritte + 1);
            if (schritte > 0) {
                const qint32 k = rest.anzahl++;
                rest.x[k] = x[l];
                rest.y[k] = y[l];
                rest.p[k] = p[l];
                rest.t[k] = t[l];
                rest.cx[k] = q.cx[i + l];
                rest.cy[k] = q.cy[i + l];
                rest.pixel[k] = pixel;
                rest.schritte[k] = schritte;
            }
        }
    }

    /// Puts the living lanes behind the `uebrig` ones already kept; returns their new number.
    qint32 aufruecken(Schlange& q, qint32 i, qint32 uebrig, const Buendel& b) const {
        alignas(64) double x[L], y[L], p[L], t[L];
        b.s.z.x.speichern(x);
        b.s.z.y.speichern(y);
        if constexpr (zweiWerte) {
            b.s.w.x.speichern(p);
            b.s.w.y.speichern(t);
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
            const qint32 anzahl = kleiner(L, rest.anzahl - i);
            qint64 groesstes = 0;
            for (qint32 k = i; k < i + L; ++k) {
                if (k >= rest.anzahl) {
                    rest.x[k] = rest.y[k] = rest.p[k] = rest.t[k] = rest.cx[k] = rest.cy[k] = 0.0;
                    rest.schritte[k] = 0;
                }
                groesstes = rest.schritte[k] > groesstes ? rest.schritte[k] : groesstes;
            }
            mitKonstanten(rest.cx + i, rest.cy + i);
            alignas(64) double werte[L];
            betragNach(stand(rest, i), M::laden(rest.schritte + i), groesstes).speichern(werte);
            for (qint32 k = 0; k < anzahl; ++k) {
                r.wert[rest.pixel[i + k]] = werte[k];
            }
        }
    }
};
