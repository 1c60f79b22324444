#pragma once

#include "Mandelbrot.h"

#include <optional>

/// Layout of the picture records: 13 integers and 13 doubles per picture, kept in row 0 of
/// ImageIntegers and ImageDoubles. Row 0 begins with four slots of 20 entries, of which the first
/// 13 are used; the history arrays hold copies of that row's first 300 entries.
namespace bildspeicher {

inline constexpr std::size_t PlatzLaenge = 20; ///< entries from one slot to the next

/// Entries of the integer part. The second, the quarter at saving time, marks the slot as valid
/// for that quarter: it is compared when a record is loaded, never copied back.
inline constexpr std::array GanzeFelder{
    &Mandelbrot::bilddatenInteger, &Mandelbrot::g_halbesBild,    &Mandelbrot::wahl_Gleichung,
    &Mandelbrot::g_ZwillingJa,     &Mandelbrot::glg_Abbruch,     &Mandelbrot::Max_Iterationen,
    &Mandelbrot::g_JuliaJa,        &Mandelbrot::g_GenauJa,       &Mandelbrot::g_oberesHalbbild,
    &Mandelbrot::g_zycmax,         &Mandelbrot::g_MittelkreuzJa, &Mandelbrot::g_NullkreuzJa,
    &Mandelbrot::g_GitterJa};
inline constexpr std::size_t EintragPruefsumme = 0; ///< at least 1 in every saved record
inline constexpr std::size_t EintragViertel = 1;

/// Entries of the double part.
inline constexpr std::array ReelleFelder{&Mandelbrot::bilddatenDouble,
                                         &Mandelbrot::bilddatenSumme,
                                         &Mandelbrot::Br_x,
                                         &Mandelbrot::MP_x,
                                         &Mandelbrot::MP_y,
                                         &Mandelbrot::wert_Abbruch,
                                         &Mandelbrot::Koppl_x,
                                         &Mandelbrot::Koppl_y,
                                         &Mandelbrot::g_Genauigkeit,
                                         &Mandelbrot::CJ_x,
                                         &Mandelbrot::CJ_y,
                                         &Mandelbrot::g_Bildverhaeltnis,
                                         &Mandelbrot::g_Gitterabstand};

/// First entry of the slot of a picture mode: the full picture shares the first slot with the first
/// quarter, the other quarters have one each; previews and every greater value have none.
[[nodiscard]] constexpr std::optional<std::size_t> platzBeginn(qint32 halbesBild) noexcept {
    if (halbesBild > ViertelRechtsUnten) {
        return std::nullopt;
    }
    return halbesBild < ViertelRechtsOben
               ? 0
               : static_cast<std::size_t>(halbesBild - ViertelLinksOben) * PlatzLaenge;
}

} // namespace bildspeicher
