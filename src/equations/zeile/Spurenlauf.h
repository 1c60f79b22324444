#pragma once

#include "equations/formeln/Schritt.h"
#include "equations/zeile/Spuren.h"
#include "equations/zeile/Zeilenstueck.h"

#include <type_traits>
#include <utility>

/// What all loops over bundles of n registers share: the types of a formula in lanes, its step, and
/// the comparison of states.
template <class Satz, class Formel, bool mitZwilling, int n>
class Spurenlauf {
  protected:
    using T = Spuren<Satz, n>;
    using M = Maske<Satz, n>;
    using Wert = typename Formel::template Wert<T>;
    using Kopplung = std::conditional_t<mitZwilling, typename Formel::Kopplung, OhneKopplung>;
    using Schrittart = Schritt<Formel, Kopplung, Wert>;

    static constexpr int Vektoren = n;  ///< registers of a bundle
    static constexpr int L = T::Anzahl; ///< lanes of a bundle
    static constexpr qint64 Stueck = 8; ///< steps between two looks at the lanes
    /// Real arithmetic is exact in lanes; a complex product or quotient may have to recover an
    /// infinity.
    static constexpr bool reell = std::is_same_v<Wert, Paar<T>>;
    static constexpr bool zweiWerte = mitZwilling || Formel::zweiWerte;
    static constexpr bool kannAbbrechen =
        !std::is_same_v<decltype(std::declval<const Schrittart&>()(std::declval<Stand<Wert>&>())),
                        bool>;

    Zeilenstueck& r;

    explicit Spurenlauf(Zeilenstueck& stueck) : r(stueck) {}

    static constexpr qint32 kleiner(qint32 a, qint32 b) { return a < b ? a : b; }
    static constexpr qint64 kleiner(qint64 a, qint64 b) { return a < b ? a : b; }

    [[nodiscard]] Schrittart schrittMit(const Wert& c) const {
        Kopplung k{};
        if constexpr (mitZwilling) {
            k.art = zwillingsart(r.werte.zwilling, Kopplung::Letzte);
            k.px = r.werte.px;
            k.py = r.werte.py;
        }
        return {{r.werte}, k, c, c};
    }

    /// Start value and constant of L pixels with the real coordinates x.
    void beginnen(const T& x, Wert& z, Wert& c) const {
        const Wert punkt{x, T(r.y)};
        z = r.julia ? punkt : Wert{T(0.0), T(0.0)};
        c = r.julia ? Wert{T(r.cx), T(r.cy)} : punkt;
        const Formel formel{r.werte};
        formel.beginnen(z, c);
    }

    static M wiederholt(const Stand<Wert>& s, const Stand<Wert>& g) {
        M m = bitgleich(re(s.z), re(g.z)) & bitgleich(im(s.z), im(g.z));
        if constexpr (zweiWerte) {
            m = m & bitgleich(re(s.w), re(g.w)) & bitgleich(im(s.w), im(g.w));
        }
        return m;
    }

    /// Lanes with a NaN in their state: the library's arithmetic might have gone another way.
    static M verdorben(const Stand<Wert>& s) {
        M m = istNaN(re(s.z)) | istNaN(im(s.z));
        if constexpr (zweiWerte) {
            m = m | istNaN(re(s.w)) | istNaN(im(s.w));
        }
        return m;
    }
};
