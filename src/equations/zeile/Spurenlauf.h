#pragma once

#include "equations/formeln/Schritt.h"
#include "equations/zeile/Spuren.h"
#include "equations/zeile/Zeilenstueck.h"

#include <type_traits>
#include <utility>

/// Lanes whose state is equal to an earlier one; `zweiWerte`: the twin value is part of it.
template <class Wert>
auto wiederholt(const Stand<Wert>& s, const Stand<Wert>& frueher, bool zweiWerte) {
    auto m = bitgleich(re(s.z), re(frueher.z)) & bitgleich(im(s.z), im(frueher.z));
    if (zweiWerte) {
        m = m & bitgleich(re(s.w), re(frueher.w)) & bitgleich(im(s.w), im(frueher.w));
    }
    return m;
}

/// Lanes with a NaN in their state: the library's arithmetic might have gone another way.
template <class Wert>
auto verdorben(const Stand<Wert>& s, bool zweiWerte) {
    auto m = istNaN(re(s.z)) | istNaN(im(s.z));
    if (zweiWerte) {
        m = m | istNaN(re(s.w)) | istNaN(im(s.w));
    }
    return m;
}

/// What all loops over bundles of n registers share: the types of a formula in lanes and its step.
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
        return {{r.werte}, kopplungAus<Kopplung>(r.werte), c, c};
    }

    /// Makes a step. Where it is long, as dear ones with a twin are, all loops share one function:
    /// the call is nothing beside it, and copies would take a third of the time that lanes need to
    /// compile.
    static auto machen(const Schrittart& schritt, Stand<Wert>& s) {
        if constexpr (Formel::teuer && mitZwilling) {
            return gerufen(schritt, s);
        } else {
            return schritt(s);
        }
    }

    /// Start value and constant of L pixels with the real coordinates x.
    void beginnen(const T& x, Wert& z, Wert& c) const {
        const Wert punkt{x, T(r.y)};
        z = r.julia ? punkt : Wert{T(0.0), T(0.0)};
        c = r.julia ? Wert{T(r.cx), T(r.cy)} : punkt;
        const Formel formel{r.werte};
        formel.beginnen(z, c);
    }

  private:
    [[gnu::flatten, gnu::noinline]] static auto gerufen(const Schrittart& schritt, Stand<Wert>& s) {
        return schritt(s);
    }
};
