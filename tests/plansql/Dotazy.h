#pragma once
// Every query of the real placement, each beside its mirror: [0] rows, [1] columns (the
// trial keeps its copies in memory: Zkouska.cpp says which query each look-up stands for). A `{name}` is the current value of that name, spliced as a number.
// The texts are design: their ORDER BY clauses are the tie-breaks, and where the mirror is not
// exact (the cases a and b of the opening) the difference stands here as it must be kept.
#include <array>

namespace PlanSql {

namespace Dotazy {

using Par = std::array<const char*, 2>;

// The look-ups of NPRady / NPSloupce, steps 1 to 6: exact, then the board spanning the rest
// across (row: width; column: whole height), then the board spanning the rest along.
inline constexpr std::array<Par, 6> Kroky = {{
    {"SELECT * FROM SoupisDesek WHERE ID = False  and y = {ZbyvaY} and x = {ZbyvaX} ORDER BY y DESC, x DESC;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and x = {ZbyvaX} and y = {ZbyvaY} ORDER BY x DESC, y DESC;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and y = {ZbyvaX} and x = {ZbyvaY} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and x = {ZbyvaY} and y = {ZbyvaX} and OV = False ORDER BY y DESC, x DESC;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False and y < {ZbyvaY} and x = {ZbyvaX} ORDER BY y DESC, x DESC;",
     "SELECT * FROM SoupisDesek WHERE ID = False and x < {ZbyvaX} and y = {ZbyvaY} ORDER BY x DESC, y DESC;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and x < {ZbyvaY} and y = {ZbyvaX} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and y < {ZbyvaX} and x = {ZbyvaY} and OV = False ORDER BY y DESC, x DESC;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False and y = {ZbyvaY} and x < {ZbyvaX} ORDER BY y DESC,x DESC",
     "SELECT * FROM SoupisDesek WHERE ID = False and x = {ZbyvaX} and y < {ZbyvaY} ORDER BY x DESC, y DESC"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and x = {ZbyvaY} and y < {ZbyvaX} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and y = {ZbyvaX} and x < {ZbyvaY} and OV = False ORDER BY y DESC, x DESC;"},
}};

// The next stair of an open row or column: unturned, turned.
inline constexpr Par Schod = {
    "SELECT * FROM SoupisDesek WHERE ID = False and y < {ZbyvaY} and x < {ZbyvaX} ORDER BY y DESC, x DESC;",
    "SELECT * FROM SoupisDesek WHERE ID = False and x < {ZbyvaX} and y < {ZbyvaY} ORDER BY x DESC, y DESC;"};
inline constexpr Par SchodOtoc = {
    "SELECT * FROM SoupisDesek WHERE ID = False  and y < {ZbyvaX} and x < {ZbyvaY} and OV = False ORDER BY x DESC, y DESC;",
    "SELECT * FROM SoupisDesek WHERE ID = False  and x < {ZbyvaY} and y < {ZbyvaX} and OV = False ORDER BY y DESC, x DESC;"};

// The opening board after a trial round: the tests of cases a and b, then per case (a, b, c) the
// unturned and the turned candidates.
inline constexpr Par PripadA = {
    "SELECT * FROM SoupisDesek WHERE ID = False and PVT = true  and PD = True and ( PlochaKZ <> 0 or PlochaKZBOV <> 0 ) ",
    "SELECT * FROM SoupisDesek WHERE ID = False and PVT = true  and PD = True and ( PlochaKZSloupec <> 0 or PlochaKZBOVSloupec <> 0 or SumaKZSloupec <> 0 or SumaKZBOVSloupec <> 0) "};
inline constexpr Par PripadB = {
    "SELECT * FROM SoupisDesek WHERE ID = False and PVT = true and ( PlochaKZ <> 0 or PlochaKZBOV <> 0 ) ",
    "SELECT * FROM SoupisDesek WHERE ID = False and PVT = true and ( PlochaKZSloupec <> 0 or PlochaKZBOVSloupec <> 0 or SumaKZSloupec <> 0 or SumaKZBOVSloupec <> 0) "};
inline constexpr std::array<Par, 3> Kandidat = {{
    {"SELECT * FROM SoupisDesek WHERE ID = False  and PVT=True and SumaKZ <> 0 ORDER by SumaKZ;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and PVT=True and SumaKZSloupec <> 0 ORDER by SumaKZSloupec;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and SumaKZ <> 0 ORDER by SumaKZ;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and SumaKZSloupec <> 0 ORDER by SumaKZSloupec;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and (PlochaKZ <> 0 or SumaKZ <> 0) ORDER by PlochaKZ, y DESC, x DESC",
     "SELECT * FROM SoupisDesek WHERE ID = False  and (PlochaKZSloupec <> 0 or SumaKZSloupec <> 0) ORDER by PlochaKZSloupec, x DESC, y DESC"},
}};
inline constexpr std::array<Par, 3> KandidatOtoc = {{
    {"SELECT * FROM SoupisDesek WHERE ID = False  and PVT =True and OV = False and SumaKZBOV <> 0 ORDER by SumaKZBOV;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and PVT =True and OV = False and SumaKZBOVSloupec <> 0 ORDER by SumaKZBOVSloupec;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and SumaKZBOV <> 0 ORDER by SumaKZBOV;",
     "SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and SumaKZBOVSloupec <> 0 ORDER by SumaKZBOVSloupec;"},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and (PlochaKZBOV <> 0 or SumaKZBOV <> 0) ORDER by PlochaKZBOV, y DESC, x DESC",
     "SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and (PlochaKZBOVSloupec <> 0 or SumaKZBOVSloupec <> 0) ORDER by PlochaKZBOVSloupec, x DESC, y DESC"},
}};

// Remnants of the real placement; the same texts in both directions.
inline constexpr const char* ZT = "SELECT * FROM SoupisZbytku WHERE CT = {CisloTabule} and Oznaceni = 'ZT'";
inline constexpr const char* ZR = "SELECT * FROM SoupisZbytku WHERE Oznaceni = 'ZŘ' and CT = {CisloTabule} and  Rada = {CisloRady} order by Cislo desc ";
inline constexpr const char* KZ = "SELECT * FROM SoupisZbytku WHERE Oznaceni = 'KZ' and CT = {CisloTabule} and  Rada = {CisloRady} order by Cislo desc";
inline constexpr const char* ZRCekajici = "SELECT * FROM SoupisZbytku WHERE ID = false and CT = {CisloTabule} and Oznaceni = 'ZŘ' and Rada = {CisloRady} Order by Cislo desc";
inline constexpr const char* ZTCekajici = "SELECT * FROM SoupisZbytku WHERE ID = false and CT = {CisloTabule} and Oznaceni = 'ZT'";

}

} // namespace PlanSql
