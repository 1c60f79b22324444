#pragma once

#include "equations/punkt/Punktkern.h"
#include "equations/punkt/Rahmen.h"

// How the kernel of a formula runs: repairs, start, step, frame.

/// The lasting repairs that an equation makes before it computes.
template <class Formel>
void gleichungReparieren(const Mandelbrot& m) {
    m.g_ZwillingJa = Formel::zwillingRepariert(m.g_ZwillingJa);
    if (Formel::mitK && m.g_kPotenz == 0) {
        m.g_kPotenz = 10;
    }
    if (Formel::mitFaktor && m.Koppl_x == 0.0) {
        m.Koppl_x = 1.0;
    }
    if (Formel::festeKonstante) {
        m.CJ_x = -1.0;
        m.CJ_y = 0.0;
    }
}

/// One pixel, as Punktkern::rechnen says.
template <class Formel>
double punktRechnen(const Mandelbrot& m, const Pixel& pixel, const Zwischenstand* ab = nullptr) {
    using Wert = typename Formel::template Wert<double>;
    using Kopplung = typename Formel::Kopplung;
    gleichungReparieren<Formel>(m);
    const Formel formel{werteAus(m)};
    Wert z{pixel.xqr, pixel.yqr};
    const Wert cZwilling{pixel.Cxqr, pixel.Cyqr};
    Wert c = cZwilling;
    formel.beginnen(z, c);
    const Schritt<Formel, Kopplung, Wert> schritt{formel, kopplungAus<Kopplung>(formel.werte), c,
                                                  cZwilling};
    const auto stand =
        ab != nullptr ? Stand<Wert>{{ab->x, ab->y}, {ab->p, ab->t}} : Stand<Wert>{z, z};
    return iterieren<Formel::zaehltAbbruch>(m, schritt, stand, ab != nullptr ? ab->getan : 0);
}

/// The kernels of a group, by place.
template <class... Formel>
[[nodiscard]] consteval auto punktkerne(formeln::Liste<Formel...> /*formeln*/) {
    const auto kern = []<class F>(std::type_identity<F>) -> Punktkern {
        if constexpr (std::is_void_v<F>) {
            return {};
        } else {
            return {&punktRechnen<F>, &gleichungReparieren<F>};
        }
    };
    return std::array{kern(std::type_identity<Formel>{})...};
}

template <class Gruppe>
inline constexpr auto Punktkerne = punktkerne(typename Gruppe::Formeln{});
