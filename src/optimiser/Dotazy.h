#pragma once
// Every query of the placement, each beside its mirror: [0] rows (the row placement and its
// trial), [1] columns. A `{name}` is the current value of that name, spliced as a number.
// The texts are design: their ORDER BY clauses are the tie-breaks, and where the mirror is not
// exact (the cases a and b of the opening, step 5 of the column trial, the turned table test of
// the column trial) the difference stands here as it must be kept.
#include <array>

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

// The trial.
inline constexpr Par DeskyKZ = {
    "SELECT * FROM SoupisDesekKZ WHERE ID = False order by y DESC, x DESC",
    "SELECT * FROM SoupisDesekKZ WHERE ID = False order by x DESC, y DESC"};
inline constexpr std::array<Par, 6> KrokyKZ = {{
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False  and OTOC = False and y = {ZbyvaYKZ} and x = {ZbyvaXKZ} ORDER BY y DESC, x DESC;",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False  and OTOC = False and x = {ZbyvaXKZ} and y = {ZbyvaYKZ} ORDER BY x DESC, y DESC;"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False  and y = {ZbyvaXKZ} and x = {ZbyvaYKZ} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False  and x = {ZbyvaYKZ} and y = {ZbyvaXKZ} and OV = False ORDER BY y DESC, x DESC;"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and y < {ZbyvaYKZ} and x = {ZbyvaXKZ} ORDER BY y DESC, x DESC;",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and x < {ZbyvaXKZ} and y = {ZbyvaYKZ} ORDER BY x DESC, y DESC;"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False  and x < {ZbyvaYKZ} and y = {ZbyvaXKZ} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False  and y < {ZbyvaXKZ} and x = {ZbyvaYKZ} and OV = False ORDER BY y DESC, x DESC;"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and y = {ZbyvaYKZ} and x < {ZbyvaXKZ} ORDER BY y DESC, x DESC",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and x = {ZbyvaXKZ} and y < {ZbyvaYKZ} ORDER BY y DESC;"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID = False  and x = {ZbyvaYKZ} and y < {ZbyvaXKZ} and OV = False ORDER BY x DESC, y DESC;",
     "SELECT * FROM SoupisDesekKZ WHERE ID = False  and y = {ZbyvaXKZ} and x < {ZbyvaYKZ} and OV = False ORDER BY y DESC, x DESC;"},
}};
inline constexpr Par SchodKZ = {
    "SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and y < {ZbyvaYKZ} and x < {ZbyvaXKZ} ORDER BY y DESC, x DESC;",
    "SELECT * FROM SoupisDesekKZ WHERE ID = False and OTOC = False and x < {ZbyvaXKZ} and y < {ZbyvaYKZ} ORDER BY x DESC, y DESC;"};
inline constexpr Par SchodOtocKZ = {
    "SELECT * FROM SoupisDesekKZ WHERE ID = False  and y < {ZbyvaXKZ} and x < {ZbyvaYKZ} and OV = False ORDER BY x DESC, y DESC;",
    "SELECT * FROM SoupisDesekKZ WHERE ID = False  and x < {ZbyvaYKZ} and y < {ZbyvaXKZ} and OV = False ORDER BY y DESC, x DESC;"};

inline constexpr const char* ZRKZ = "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'ZŘ' and  Rada = {CisloRady} order by Cislo desc ";
inline constexpr const char* KZKZ = "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'KZ' and  Rada = {CisloRady} order by Cislo desc";
inline constexpr const char* ZRKZCekajici = "SELECT * FROM SoupisZbytkuKZ WHERE ID = false and Oznaceni = 'ZŘ' and Rada = {CisloRady} Order by Cislo desc";

// Scores of a trial: the end remnants, all remnants, and the real board that takes the score.
inline constexpr Par PlochaKZ = {
    "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni= 'KZ' And XZP > 0 And YZP > 0",
    "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'KZ' And YZP > 0 And XZP > 0"};
inline constexpr Par SumaKZ = {
    "SELECT * FROM SoupisZbytkuKZ WHERE  XZP > 0 And YZP > 0",
    "SELECT * FROM SoupisZbytkuKZ WHERE  YZP > 0 And XZP > 0"};
// [smer][otoceni]
inline constexpr std::array<Par, 2> SkutecnaDeska = {{
    {"SELECT * FROM SoupisDesek WHERE ID = false and x = {x} and y= {y}",
     "SELECT * FROM SoupisDesek WHERE ID =false and x = {x} and y= {y}"},
    {"SELECT * FROM SoupisDesek WHERE ID = false and y = {y} and x = {x}",
     "SELECT * FROM SoupisDesek WHERE ID = false and y = {y} and x = {x}"},
}};

// Whether the trial's row would close the sheet or place every board; [smer][otoceni].
inline constexpr std::array<Par, 2> TabuleZT = {{
    {"SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni= 'ZT'", "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'ZT'"},
    {"SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'ZT'", "SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'ZT'"},
}};
inline constexpr std::array<Par, 2> TabuleVejde = {{
    {"SELECT * FROM SoupisDesekKZ WHERE ID =false  and X <= {XZP} and Y <= {YZP}",
     "SELECT * FROM SoupisDesekKZ WHERE ID =false  and X <= {XZP} and Y <= {YZP}"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID =false  and X <= {XZP} and Y <= {YZP}",
     "SELECT * FROM SoupisDesekKZ WHERE ID =false  and Y <= {YZP} and X <= {XZP}"},
}};
inline constexpr std::array<Par, 2> TabuleVejdeOtoc = {{
    {"SELECT * FROM SoupisDesekKZ WHERE ID =false and  OV = False and Y <= {XZP} and X <= {YZP}",
     "SELECT * FROM SoupisDesekKZ WHERE ID =false and  OV = False and Y <= {XZP} and X <= {YZP}"},
    {"SELECT * FROM SoupisDesekKZ WHERE ID =false and  OV = False and Y <= {XZP} and X <= {YZP}",
     "SELECT * FROM SoupisDesekKZ WHERE ID =false and  OV = False and X <= {YZP} and Y <= {XZP}"},
}};
// The column trial's turned test opens its real board by y twice: only a square board matches.
inline constexpr std::array<Par, 2> TabuleDeska = {{
    {"SELECT * FROM SoupisDesek WHERE ID =false and x = {x} and y= {y}",
     "SELECT * FROM SoupisDesek WHERE ID =false and x = {x} and y= {y}"},
    {"SELECT * FROM SoupisDesek WHERE ID =false and x = {x} and y= {y}",
     "SELECT * FROM SoupisDesek WHERE ID =false and y = {y} and y= {x}"},
}};
inline constexpr const char* ZbyvajiKZ = "SELECT * FROM SoupisDesekKZ WHERE ID =false ";

}
