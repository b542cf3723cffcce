#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "segments/NITFDrawnSegment.h"
#include "segments/detail/Location.h"
#include "segments/detail/rules/CgmWalk.h"
#include "segments/detail/rules/HeaderView.h"

#include <algorithm>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

void Box(const HeaderView& aHeader, const Report& aReport)
{
    long top = 0;
    long left = 0;
    long bottom = 0;
    long right = 0;
    if (!SplitLocation(aHeader.Inside().record.Text("SBND1"), top, left) ||
        !SplitLocation(aHeader.Inside().record.Text("SBND2"), bottom, right)) {
        return;
    }
    if (bottom < top || right < left || (bottom == top && right == left)) {
        aReport(aHeader, {.field = "SBND2",
                          .allowed = "below and to the right of SBND1, row " + std::to_string(top) + " and column " +
                                     std::to_string(left)});
    }
}

void Monochrome(const HeaderView& aHeader, const Report& aReport)
{
    if (aHeader.Text("SCOLOR") != "M" || !aHeader.HasData()) {
        return;
    }
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        const bool isColour = aPiece.Is(5, 4) || aPiece.Is(5, 14) || aPiece.Is(5, 23) || aPiece.Is(5, 29);
        const std::string_view bytes = aPiece.parameters;
        const bool isGrey = bytes.size() < 3 || (bytes[0] == bytes[1] && bytes[1] == bytes[2]);
        if (isColour && !isGrey) {
            aReport(aHeader,
                    {.field = "SCOLOR",
                     .allowed = "C for a graphic with colours",
                     .detail = "The element at byte offset " + std::to_string(aHeader.DataStart() + aPiece.offset) +
                               " sets the colour " + Shown(bytes.substr(0, 3)) + '.'});
            return false;
        }
        return true;
    });
}

/// The fields of a symbol that have only one value with a type.
struct FixedField
{
    char type;  ///< STYPE
    const char* field;
    std::uint64_t least;
    std::uint64_t most;
};

// clang-format off
constexpr FixedField FIXED[] = {
    {'C', "NLIPS", 0, 0}, {'C', "NPIXPL", 0, 0}, {'C', "NWDTH", 0, 0}, {'C', "NBPP", 0, 0},
    {'C', "SNUM", 0, 0},  {'C', "SROT", 0, 0},   {'C', "NELUT", 0, 0},
    {'O', "NBPP", 1, 1},  {'O', "SNUM", 1, 18},  {'O', "SROT", 0, 359},
    {'B', "NWDTH", 0, 0}, {'B', "SNUM", 0, 0},   {'B', "SROT", 0, 0},
};
// clang-format on

bool IsType(const HeaderView& aHeader, char aType) noexcept
{
    return aHeader.Text("STYPE") == std::string_view(&aType, 1);
}

void FixedFields(const HeaderView& aHeader, char aType, const Report& aReport)
{
    for (const FixedField& row : FIXED) {
        std::uint64_t number = 0;
        if (row.type == aType && aHeader.Number(row.field, number) && (number < row.least || number > row.most)) {
            aReport(aHeader, {.field = row.field,
                              .allowed = std::to_string(row.least) +
                                         (row.most == row.least ? "" : " to " + std::to_string(row.most)) +
                                         " with STYPE " + aType});
            return;
        }
    }
}

void CgmSymbol(const HeaderView& aHeader, const Report& aReport)
{
    if (IsType(aHeader, 'C')) {
        FixedFields(aHeader, 'C', aReport);
        if (!aHeader.Text("SCOLOR").empty()) {
            aReport(aHeader, {.field = "SCOLOR", .allowed = "blank with STYPE C"});
        }
    }
}

void ObjectSymbol(const HeaderView& aHeader, const Report& aReport)
{
    if (IsType(aHeader, 'O')) {
        FixedFields(aHeader, 'O', aReport);
        if (aHeader.DataSize() != 0) {
            aReport(aHeader, {.field = "STYPE",
                              .detail = "There are " + std::to_string(aHeader.DataSize()) +
                                        " byte(s) of data, and an object has none."});
        }
    }
}

void BitmapSymbol(const HeaderView& aHeader, const Report& aReport)
{
    if (!IsType(aHeader, 'B')) {
        return;
    }
    FixedFields(aHeader, 'B', aReport);
    const std::uint64_t bits = aHeader.Number("NLIPS") * aHeader.Number("NPIXPL") * aHeader.Number("NBPP");
    if ((bits + 7) / 8 != aHeader.DataSize()) {
        aReport(aHeader, {.field = "NLIPS",
                          .detail = "The data have " + std::to_string(aHeader.DataSize()) +
                                    " byte(s), the pixels of the symbol take " + std::to_string((bits + 7) / 8) + "."});
    }
}

void OneBitColour(const HeaderView& aHeader, const Report& aReport)
{
    if (!IsType(aHeader, 'C') && IsListed(aHeader.Text("SCOLOR"), "B|K|N|O|R|W|Y") && aHeader.Number("NBPP") > 1) {
        aReport(aHeader, {.field = "NBPP", .allowed = "1", .detail = "SCOLOR is " + Shown(aHeader.Text("SCOLOR"))});
    }
}

void SymbolTable(const HeaderView& aHeader, const Report& aReport)
{
    std::uint64_t entries = 0;
    if (!aHeader.Number("NELUT", entries) || IsType(aHeader, 'C')) {
        return;  // a metafile has a rule of its own for it
    }
    const bool wanted = IsType(aHeader, 'B') && IsListed(aHeader.Text("SCOLOR"), "C|G");
    if (wanted != (entries != 0)) {
        aReport(aHeader, {.field = "NELUT",
                          .allowed = wanted ? "001 to 256" : "000",
                          .detail = "SCOLOR is " + Shown(aHeader.Text("SCOLOR"))});
    }
}

void LabelText(const HeaderView& aHeader, const Report& aReport)
{
    const char* data = nullptr;
    std::size_t length = 0;
    const auto& label = static_cast<const NITFDrawnSegment&>(aHeader.Segment());
    if (!aHeader.HasData() || !label.GetSegmentData(data, length)) {
        return;
    }
    const std::string_view text(data, length);
    const auto* const bad = std::ranges::find_if(
        text, [](char aOne) { return (aOne < 0x20 || aOne > 0x7E) && aOne != '\r' && aOne != '\n'; });
    if (bad != text.end()) {
        const auto at = static_cast<std::size_t>(bad - text.begin());
        aReport(aHeader, {.allowed = "0x20 to 0x7E, carriage return, line feed",
                          .value = std::string(text.substr(at, 16)),
                          .offset = aHeader.DataStart() + at});
    }
}

void AnyReserved(const HeaderView& aHeader, const Report& aReport)
{
    aReport(aHeader, {.field = "RESID"});
}

// clang-format off
constexpr Rule RULES[] = {
    {"GR-01", WARN, V21, Subject::Graphic, "SBND1, SBND2",
     "The two corners of a graphic enclose nothing.",
     "SBND1 is the upper left corner and SBND2 the lower right one; the box holds something.",
     "MIL-STD-2500C table A-5, SBND1 and SBND2", &Box},
    {"GR-02", WARN, V21, Subject::Graphic, "SCOLOR and CGM colours",
     "A graphic without colours sets one.",
     "With SCOLOR M every colour of the metafile has equal red, green and blue.",
     "MIL-STD-2500C table A-5, SCOLOR", &Monochrome},
    {"SY-01", ERROR, V20, Subject::Symbol, "STYPE C and NLIPS, NPIXPL, NWDTH, NBPP, SCOLOR, SNUM, SROT, NELUT",
     "A symbol that is a metafile has fields of another kind of symbol.",
     "With STYPE C they are zero, and SCOLOR is blank.",
     "MIL-STD-2500A table VII", &CgmSymbol},
    {"SY-02", ERROR, V20, Subject::Symbol, "STYPE O and NBPP, SNUM, LS, SROT",
     "An object symbol is none that the standard draws.",
     "With STYPE O NBPP is 1, SNUM 1 to 18, SROT 000 to 359, and there are no data.",
     "MIL-STD-2500A tables VII and X", &ObjectSymbol},
    {"SY-03", ERROR, V20, Subject::Symbol, "STYPE B and LS, NLIPS, NPIXPL, NBPP, NWDTH, SNUM, SROT",
     "The data of a bit-mapped symbol are not its bits.",
     "With STYPE B the data have NLIPS times NPIXPL times NBPP bits, rounded up to whole bytes once, and NWDTH, SNUM and SROT are zero.",
     "MIL-STD-2500A table VII", &BitmapSymbol},
    {"SY-04", ERROR, V20, Subject::Symbol, "SCOLOR, NBPP",
     "A colour of one bit stands for more.",
     "The codes B, K, N, O, R, W and Y name the colours of 0 and 1, so NBPP is 1.",
     "MIL-STD-2500A table VII, SCOLOR", &OneBitColour},
    {"SY-05", ERROR, V20, Subject::Symbol, "SCOLOR, NELUT",
     "A symbol has a look-up table that it cannot have, or lacks the one that it needs.",
     "NELUT is other than zero exactly for STYPE B with SCOLOR C or G.",
     "MIL-STD-2500A table VII, NELUT", &SymbolTable},
    {"LA-01", WARN, V20, Subject::Label, "data",
     "A label holds a byte that cannot be displayed.",
     "The text is printable ASCII with carriage returns and line feeds.",
     "MIL-HDBK-1300A 5.3.3", &LabelText},
    {"DE-10", WARN, V21, Subject::Res, "NUMRES",
     "The meaning of a reserved extension segment is not known.",
     "No such segment is approved.",
     "JBP-2024.1", &AnyReserved},
};
// clang-format on

}  // namespace

RuleList DrawingRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
