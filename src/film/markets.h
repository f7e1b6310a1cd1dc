#pragma once

// The countries in which films open.

#include <array>
#include <cstdint>
#include <string_view>

namespace tb {

struct Market {
  std::int64_t countryId;
  std::string_view name;
  double share;  // of the domestic gross
};

inline constexpr std::int64_t domesticMarket = 0;

// In the order of opening, the domestic market first. "Indonesia" is listed twice on purpose.
inline constexpr std::array<Market, 52> markets = {{
    {0, "Domestic", 1.0},     {1, "United Kingdom", 0.14},
    {2, "Japan", 0.12},       {3, "South Korea", 0.09},
    {4, "Australia", 0.085},  {5, "France", 0.085},
    {6, "Germany", 0.05},     {7, "Taiwan", 0.035},
    {8, "Brazil", 0.033},     {9, "Saudi Arabia", 0.03},
    {10, "Mexico", 0.028},    {11, "Netherlands", 0.027},
    {12, "Hong Kong", 0.026}, {13, "Italy", 0.025},
    {14, "Indonesia", 0.024}, {15, "Sweden", 0.023},
    {16, "Denmark", 0.022},   {17, "Switzerland", 0.021},
    {18, "Spain", 0.02},      {19, "United Arab Emirates", 0.019},
    {20, "Belgium", 0.018},   {21, "New Zealand", 0.017},
    {22, "Poland", 0.016},    {23, "Norway", 0.016},
    {24, "Malaysia", 0.015},  {25, "Indonesia", 0.014},
    {26, "Austria", 0.013},   {27, "Czechia", 0.011},
    {28, "Finland", 0.011},   {29, "India", 0.01},
    {30, "Singapore", 0.01},  {31, "Argentina", 0.009},
    {32, "Portugal", 0.009},  {33, "South Africa", 0.008},
    {34, "Israel", 0.008},    {35, "Panama", 0.007},
    {36, "Thailand", 0.007},  {37, "Philippines", 0.006},
    {38, "Coloumbia", 0.006}, {39, "Hungary", 0.006},
    {40, "Chile", 0.005},     {41, "Greece", 0.005},
    {42, "Romania", 0.005},   {43, "Croatia", 0.004},
    {44, "Turkey", 0.004},    {45, "Vietnam", 0.004},
    {46, "Peru", 0.004},      {47, "Iceland", 0.003},
    {48, "Ukraine", 0.003},   {49, "Slovenia", 0.002},
    {50, "Slovakia", 0.002},  {51, "Bulgaria", 0.002},
}};

}  // namespace tb
