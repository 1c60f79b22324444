#pragma once

#include <QtGlobal>

#include <array>
#include <span>

// The palettes as plain tables: bytes red, green, blue per colour, first colour first.

using Farbtripel = std::array<quint8, 3>; ///< red, green, blue

inline constexpr std::size_t SpektralFarben = 512; ///< colours of the spectral palette
inline constexpr std::size_t HauptFarben = 582;    ///< colours of the main colour palettes
inline constexpr std::size_t FestFarben = 256;     ///< colours of the fixed palette

/// The basic colours that the main colour palettes are made of: red, green, blue.
/// Rows 38 and 46 are equal; that is meant, the row numbers are in use.
// clang-format off
inline constexpr std::array<std::array<qint32, 3>, 48> Palroot{{
    {255, 128, 128}, {255, 255, 128}, {128, 255, 128}, {0, 255, 128},   //  0
    {128, 255, 255}, {0, 128, 255},   {255, 128, 192}, {255, 128, 255}, //  4
    {255, 0, 0},     {255, 255, 0},   {128, 255, 0},   {0, 255, 64},    //  8
    {0, 255, 255},   {0, 128, 192},   {128, 128, 192}, {255, 0, 255},   // 12
    {128, 64, 64},   {255, 128, 64},  {0, 255, 0},     {0, 128, 128},   // 16
    {0, 64, 128},    {128, 128, 255}, {128, 0, 64},    {255, 0, 128},   // 20
    {128, 0, 0},     {255, 128, 0},   {0, 128, 0},     {0, 128, 64},    // 24
    {0, 0, 255},     {0, 0, 160},     {128, 0, 128},   {128, 0, 255},   // 28
    {64, 0, 0},      {128, 64, 0},    {0, 64, 0},      {0, 64, 64},     // 32
    {0, 0, 128},     {0, 0, 64},      {64, 0, 64},     {64, 0, 128},    // 36
    {0, 0, 0},       {128, 128, 0},   {128, 128, 64},  {128, 128, 128}, // 40
    {64, 128, 128},  {192, 192, 192}, {64, 0, 64},     {255, 255, 255}, // 44
}};
// clang-format on

/// Default main colours, rows of Palroot: blue, white, dark blue.
inline constexpr std::array<qint8, 3> DreiHauptfarben{28, 47, 29};
/// Default main colours, rows of Palroot: red, yellow, green, cyan, blue, magenta.
inline constexpr std::array<qint8, 6> SechsHauptfarben{8, 9, 11, 12, 28, 15};

/// Writes the visible spectrum from 380 nm (colour 0) to 779.2 nm (colour 511), dimmed towards both
/// ends and brightened by the exponent 0.8.
void spektralpalette(std::span<quint8, 3 * SpektralFarben> ziel);

/// Writes the ramp through three main colours. zeilen are rows of Palroot; a row outside 0..47
/// counts as the nearest row.
void dreifarbenpalette(std::span<quint8, 3 * HauptFarben> ziel, std::span<const qint8, 3> zeilen);

/// Writes the ramp through six main colours. zeilen are rows of Palroot; a row outside 0..47
/// counts as the nearest row.
void sechsfarbenpalette(std::span<quint8, 3 * HauptFarben> ziel, std::span<const qint8, 6> zeilen);

/// The fixed palette: dark purple over orange to yellow.
[[nodiscard]] std::span<const quint8, 3 * FestFarben> festpalette();
