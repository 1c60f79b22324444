#pragma once

#include "equations/formeln/Exponenten.h"
#include "equations/formeln/Reell.h"
#include "equations/formeln/Wurzeln.h"

// THE LIST: which formula belongs to which number. It is the only place that says so; the kernels
// of single pixels and of rows are made from it.

namespace formeln {

/// A list of types.
template <class... Typen>
struct Liste {};

/// The numbers 1, 2, 3, ... in real arithmetic. The formula at place n of a group is that of a
/// number with stelle(number) = n; place 0 of this one is empty.
template <class... Formel>
struct ReelleGruppe {
    using Formeln = Liste<void, Formel...>;

    [[nodiscard]] static constexpr bool umfasst(qint32 nummer) {
        return nummer >= 1 && nummer <= qint32{sizeof...(Formel)};
    }
    [[nodiscard]] static constexpr std::size_t stelle(qint32 nummer) {
        return static_cast<std::size_t>(nummer);
    }
};

/// A family of complex equations: the numbers above 99 whose last two digits are `ungerade` or
/// `gerade`. The hundreds digit is the member's place; place 0 is what numbers without a member do.
template <qint32 ungerade, qint32 gerade, template <class> class Art, class... Glieder>
struct Familie {
    using Formeln = Liste<Art<Keins>, Art<Glieder>...>;

    [[nodiscard]] static constexpr bool umfasst(qint32 nummer) {
        return nummer > 99 && (nummer % 100 == ungerade || nummer % 100 == gerade);
    }
    [[nodiscard]] static constexpr std::size_t stelle(qint32 nummer) {
        const auto hunderter = static_cast<std::size_t>(nummer / 100);
        return hunderter <= sizeof...(Glieder) ? hunderter : 0;
    }
};

struct Reelle : ReelleGruppe<Quadrat, Quadrat, Auge, Auge, Vierpol, Vierpol, Spinne, Schaedel,
                             Hyperwurzel<true>, Hyperwurzel<false>> {};

struct Potenzen : Familie<1, 2, PlusC, Z2, Z3, Z4, Z5, ZhochK> {};

struct Augen : Familie<3, 4, PlusC, Zm, ZmZ, ZSZm, Zm2, ZmHochHg, ZmHochHuZ, ZSZmHochHu> {};

struct Pole : Familie<5, 6, Pol, Z3, Z4, Z5, Z6, ZhochK, Z, Z2> {};

struct Exponenten : Familie<7, 8, Exponent, ZhochZS, ZhochZ, ZhochMinusZ, ZhochKehrwert,
                            ZhochMinusZS, ZhochKehrwertZS, ZShochZ> {};

struct Einswurzeln
    : Familie<9, 9, NewtonEins, Wurzel3, Wurzel3Schraeg, Wurzel5, Wurzel5Schraeg, Augenwurzel3,
              AugenwurzelZm, AugenwurzelZ2, AugenwurzelHg, AugenwurzelHu> {};

struct Wurzeln : Familie<10, 10, NewtonP, WurzelK, Wurzel2, Wurzel3, Wurzel4, Wurzel5, Wurzel6,
                         Wurzel7, Wurzel8, Wurzel9> {};

struct Polaugen
    : Familie<11, 12, Pol, ZmZ, ZmZ, Zm2, Zm2Z, ZmHochHg, ZmHochHuZ, ZSZmHochHu, ZS, Zm> {};

using Verzeichnis =
    Liste<Reelle, Potenzen, Augen, Pole, Exponenten, Einswurzeln, Wurzeln, Polaugen>;

/// What `frage`, called with a group as its type and a place, says for the group and the place of a
/// number; a value-initialised Antwort for a number that no group has.
template <class Antwort, class Frage, class... Gruppen>
[[nodiscard]] Antwort nachschlagen(qint32 nummer, const Frage& frage, Liste<Gruppen...> /*alle*/) {
    Antwort antwort{};
    ((Gruppen::umfasst(nummer)
          ? void(antwort = frage.template operator()<Gruppen>(Gruppen::stelle(nummer)))
          : void()),
     ...);
    return antwort;
}

/// Whether lanes can carry any formula of a group.
template <class... Formel>
[[nodiscard]] consteval bool mitSpuren(Liste<Formel...> /*formeln*/) {
    const auto traegt = []<class F>(std::type_identity<F>) {
        if constexpr (std::is_void_v<F>) {
            return false;
        } else {
            return F::inSpuren;
        }
    };
    return (traegt(std::type_identity<Formel>{}) || ...);
}

} // namespace formeln
