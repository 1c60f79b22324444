#pragma once

#include <QtGlobal>

#include <optional>
#include <span>

/// Start settings that a group of equations shares, named like the fields of Mandelbrot (plane
/// units, iterations). An empty field leaves the model's as an earlier row set it.
struct Startwerte {
    std::optional<double> MP_x{}, MP_y{}, Br_x{};
    std::optional<qint32> Max_Iterationen{}, glg_Abbruch{};
    std::optional<double> wert_Abbruch{}, Koppl_x{}, Koppl_y{};
    std::optional<double> div_Factor{}, konv_Factor{}, it_Factor{};
    std::optional<qint32> rechen_VarianteDiv{}, rechen_VarianteKonv{}, color_Offset{};
    std::optional<qint32> zahl_farbtab{};
    std::optional<qint32> zahl_Matrix{}; ///< not taken while the matrix view is on
    std::optional<qint32> g_ZwillingJa{}, g_JuliaJa{};
    std::optional<double> CJ_x{}, CJ_y{};
};

/// One row of a table of start settings.
struct Startzeile {
    bool (*gilt)(qint32 nummer); ///< whether the row applies to a plain equation number
    Startwerte werte{};
};

/// Rows for any equation, in the order in which they apply; a later row wins.
[[nodiscard]] std::span<const Startzeile> startzeilen() noexcept;

/// Rows for the equations above 106, applied after startzeilen().
[[nodiscard]] std::span<const Startzeile> startzeilenGreater100() noexcept;
