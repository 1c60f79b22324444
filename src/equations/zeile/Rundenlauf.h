#pragma once

#include "equations/zeile/Rundenfolge.h"
#include "equations/zeile/Spurenlauf.h"

/// Registers of a bundle. With a twin twice as many values want a register.
template <class Satz, bool mitZwilling>
inline constexpr int Rundenregister = mitZwilling ? 2 : Satz::Vektoren;

template <class Satz, class Formel, bool mitZwilling>
using Rundenbasis =
    Rundenfolge<Satz, Rundenregister<Satz, mitZwilling>, mitZwilling || Formel::zweiWerte>;

/// The loop without cycle search: the steps of a formula in rounds.
template <class Satz, class Formel, bool mitZwilling>
class Rundenlauf final : public Rundenbasis<Satz, Formel, mitZwilling>,
                         Spurenlauf<Satz, Formel, mitZwilling, Rundenregister<Satz, mitZwilling>> {
    using Lauf = Spurenlauf<Satz, Formel, mitZwilling, Rundenregister<Satz, mitZwilling>>;
    using Basis = Rundenbasis<Satz, Formel, mitZwilling>;

  public:
    explicit Rundenlauf(Zeilenstueck& stueck)
        : Basis(stueck, Formel::teuer), Lauf(stueck), schritt(Lauf::schrittMit({})) {}

  private:
    using Lauf::kannAbbrechen;
    using Lauf::L;
    using Lauf::r;
    using Lauf::reell;
    using Lauf::zweiWerte;
    using typename Basis::Buendel;
    using typename Basis::Zahl;
    using typename Lauf::M;
    using typename Lauf::Schrittart;
    using typename Lauf::T;
    using typename Lauf::Wert;

    Schrittart schritt;

    static Stand<Wert> herein(const Stand<Zahl>& s) { return {{s.z.x, s.z.y}, {s.w.x, s.w.y}}; }
    static void hinaus(const Stand<Wert>& s, Stand<Zahl>& aus) {
        aus.z = {re(s.z), im(s.z)};
        if constexpr (zweiWerte) {
            aus.w = {re(s.w), im(s.w)};
        }
    }

    void starten(const T& x, Zahl& z, Zahl& c) const override {
        Wert start, konstante;
        Lauf::beginnen(x, start, konstante);
        z = {re(start), im(start)};
        c = {re(konstante), im(konstante)};
    }

    void mitKonstanten(const double* cx, const double* cy) override {
        schritt.c = schritt.cZwilling = {T::laden(cx), T::laden(cy)};
    }

    /// `norm`: made for the squared modulus alone.
    template <bool norm = false>
    [[nodiscard]] T messen(const Stand<Wert>& s) const {
        if constexpr (norm) {
            return re(s.z) * re(s.z) + im(s.z) * im(s.z);
        } else {
            return betragOhneZyklus(r.abbruchart, re(s.z), im(s.z));
        }
    }
    T betrag(const Stand<Zahl>& s) const override { return messen(herein(s)); }

    // The innermost loops are functions of their own with everything inlined: a call in them would
    // pass every lane through memory, which only the longest steps can bear, and around them too
    // many values want a register.

    template <bool norm>
    [[gnu::flatten, gnu::noinline]] void durchlaufen(Buendel& b, const Schrittart& einer,
                                                     qint64 schritte) {
        const T grenze(r.grenze);
        Stand<Wert> s = herein(b.s);
        M lebt = b.lebt;
        b.blick = b.s;
        b.blickBei = b.getan;
        qint64 gemacht = 0;
        while (gemacht < schritte && eine(lebt)) {
            ++gemacht;
            const auto abbr = Lauf::machen(einer, s);
            const T rq = messen<norm>(s);
            M weiter = lebt & (rq < grenze);
            if constexpr (kannAbbrechen) {
                weiter = weiter & ~abbr;
            }
            const M ende = lebt & ~weiter;
            lebt = weiter;
            if (eine(ende)) {
                if constexpr (kannAbbrechen) {
                    enden(b, s, rq, ende, ende & abbr, b.getan + gemacht);
                } else {
                    enden(b, s, rq, ende, M(0), b.getan + gemacht);
                }
            }
        }
        r.getestet = r.getestet || eine(lebt);
        r.schritteGetan += gemacht * L;
        hinaus(s, b.s);
        b.lebt = lebt;
        b.getan += schritte;
    }

    /// The same for cheap steps and the squared modulus, on the guess that no lane ends; false, and
    /// nothing done, when one does.
    [[nodiscard, gnu::flatten, gnu::noinline]] bool durcheilen(Buendel& b, const Schrittart& einer,
                                                               qint64 schritte) {
        const T grenze(r.grenze);
        Stand<Wert> s = herein(b.s);
        M lebt = b.lebt;
        for (qint64 i = 0; i < schritte; ++i) {
            const auto abbr = einer(s);
            lebt = lebt & (messen<true>(s) < grenze);
            if constexpr (kannAbbrechen) {
                lebt = lebt & ~abbr;
            }
        }
        r.schritteGetan += schritte * L;
        if (eine(b.lebt & ~lebt)) {
            return false;
        }
        hinaus(s, b.s);
        b.getan += schritte;
        return true;
    }

    /// Loops of their own for the usual measure, and the guess, pay where a step costs no more than
    /// asking whether a lane has ended.
    void stueckRechnen(Buendel& b, qint64 schritte, bool raten) override {
        if constexpr (!Formel::teuer) {
            if (r.abbruchart == Abbruchart::Norm) {
                if (!raten || !durcheilen(b, schritt, schritte)) {
                    durchlaufen<true>(b, schritt, schritte);
                }
                return;
            }
        }
        durchlaufen<false>(b, schritt, schritte);
    }

    T betragNach(const Stand<Zahl>& anfang, const M& ziel, qint64 groesstes) const override {
        Stand<Wert> s = herein(anfang);
        T rq(0.0);
        for (qint64 k = 1; k <= groesstes; ++k) {
            Lauf::machen(schritt, s);
            rq = wahl(gleich(ziel, M(k)), messen(s), rq);
        }
        return rq;
    }

    /// Results of lanes whose orbit ends with its step number `nummer`; some of them are aborted.
    /// Those where the library's arithmetic might have gone another way are left open.
    [[gnu::noinline, gnu::cold]] void enden(const Buendel& b, const Stand<Wert>& s, const T& rq,
                                            const M& welche, const M& abgebrochen, qint64 nummer) {
        alignas(64) double mass[L];
        rq.speichern(mass);
        const unsigned abbruch = bits(abgebrochen);
        for (unsigned w = bits(welche); w != 0; w &= w - 1) {
            const int l = __builtin_ctz(w);
            const qint32 pixel = b.pixel[l];
            const bool abbr = (abbruch >> l & 1u) != 0;
            const qint64 gezaehlt = abbr && !Formel::zaehltAbbruch ? nummer - 1 : nummer;
            r.getestet = r.getestet || !abbr;
            r.wert[pixel] = abbr ? 0.0 : mass[l];
            r.zaehler[pixel] = static_cast<qint32>(gezaehlt) + 1;
        }
        if constexpr (!reell) {
            if (const M offen = verdorben(s, zweiWerte) & welche; eine(offen)) {
                Basis::offenLassen(b, offen);
            }
        }
    }
};
