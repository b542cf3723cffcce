// Pixels, modes, blocks and corners of an image.

#include "tests/isd/rules/RuleCases.h"

namespace ORMO::SensorModel::CSM::Tests {

namespace {

/// Pixels of another kind; six of them stand in the image.
void Pixels(NitfBuilder& aFile, HeaderFields& aImage, const char* aType, unsigned aBits, unsigned aActual,
            unsigned aBands = 1)
{
    aImage.Set("PVTYPE", aType).Set("NBPP", aBits).Set("ABPP", aActual);
    aFile.LastData().assign((6 * aBits * aBands + 7) / 8, '\0');
}

/// Two bands without colours.
void TwoBands(NitfBuilder& aFile, HeaderFields& aImage)
{
    aImage.Set("IREP", "MULTI").Band("");
    aFile.LastData().assign(12, '\0');
}

// Corners as ICORDS G has them, from the north-west clockwise.
constexpr const char* NORTH_WEST = "020000N0100000E";
constexpr const char* NORTH_EAST = "020000N0110000E";
constexpr const char* SOUTH_EAST = "010000N0110000E";
constexpr const char* SOUTH_WEST = "010000N0100000E";

std::string Corners(const char* aFirst, const char* aSecond, const char* aThird, const char* aFourth)
{
    return std::string(aFirst) + aSecond + aThird + aFourth;
}

std::string Blocka(unsigned aInstance, unsigned aLines, const char* aFirstCorner)
{
    return Tre("BLOCKA", Padded(aInstance, 2) + "00000" + Padded(aLines, 5) + "      " + std::string(16, ' ') +
                             "N020000.00E0110000.00" + "N010000.00E0110000.00" + "N010000.00E0100000.00" +
                             aFirstCorner + "010.0");
}

}  // namespace

std::vector<RuleCase> ImageCases()
{
    return {
        {"PV-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) { Pixels(f, i, "INT", b ? 10 : 16, 10); });
         }},
        {"PV-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("ABPP", b ? "09" : "07"); });
         }},
        {"PV-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) { Pixels(f, i, "R", b ? 16 : 32, b ? 16 : 32); });
         }},
        {"PV-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) { Pixels(f, i, "R", 32, b ? 24 : 32); });
         }},
        {"PV-06",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) { Pixels(f, i, "INT", 12, b ? 11 : 12); });
         }},
        {"SZ-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto&, bool b) { f.LastData().resize(b ? 5 : 6); });
         }},
        {"MO-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("IMODE", b ? "P" : "B"); });
         }},
        {"MO-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i);
                 i.Set("IMODE", b ? "R" : "P");
             });
         }},
        {"MO-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 TwoBands(f, i);
                 i.Set("IMODE", b ? "S" : "B");
             });
         }},
        {"BK-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) { i.Set("NCOLS", b ? "4" : "2"); });
         }},
        {"BK-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 i.Set("NBPR", "2").Set("NCOLS", b ? "3" : "6");
                 f.LastData().assign(12, '\0');
             });
         }},
        {"BK-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 i.Set("NBPC", "2").Set("NPPBV", b ? "0" : "2").Set("NROWS", b ? "2" : "4");
                 f.LastData().assign(12, '\0');
                 f.File().Set("CLEVEL", b ? "09" : "03");
             });
         }},
        {"BK-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto& f, auto& i, bool b) {
                 i.Set("NPPBH", b ? "0" : "3");
                 f.File().Set("CLEVEL", b ? "09" : "03");
             });
         }},
        {"GE-01",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Location("G", b ? std::string(60, ' ') : Corners(NORTH_WEST, NORTH_EAST, SOUTH_EAST, SOUTH_WEST));
             });
         }},
        {"GE-02",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Location("G", Corners(b ? "026060N0100000E" : NORTH_WEST, NORTH_EAST, SOUTH_EAST, SOUTH_WEST));
             });
         }},
        {"GE-03",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Location("G",
                            b ? Corners(NORTH_WEST, SOUTH_EAST, NORTH_EAST, SOUTH_WEST)
                              : Corners("020000N1790000E", "020000N1790000W", "010000N1790000W", "010000N1790000E"));
             });
         }},
        {"GE-04",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Location("G", b ? Corners(NORTH_WEST, SOUTH_WEST, SOUTH_EAST, NORTH_EAST)
                                   : Corners(SOUTH_EAST, SOUTH_WEST, NORTH_WEST, NORTH_EAST));
             });
         }},
        {"GE-05",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Location("G", Corners(NORTH_WEST, NORTH_EAST, SOUTH_EAST, SOUTH_WEST));
                 i.Area("IXSHD", Blocka(1, 2, b ? "N030000.00E0100000.00" : "N020000.20E0100000.00"));
             });
         }},
        {"TR-12",
         [](bool aBroken) {
             return WithImage(aBroken, [](auto&, auto& i, bool b) {
                 i.Area("IXSHD", Blocka(1, 1, "N020000.00E0100000.00") + Blocka(b ? 1 : 2, 1, "N020000.00E0100000.00"));
             });
         }},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
