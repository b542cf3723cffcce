#include "segments/symbol/NITF20SymbolSubheader.h"

#include "fields/FieldWalk.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/Location.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// A colour table has three bytes per entry, a grey one has one.
bool LookUpTableWidth(const WalkContext& aContext, std::uint64_t& aOut)
{
    if (!aContext.Count("NELUT", aOut)) {
        return false;
    }
    aOut *= aContext.Text("SCOLOR") == "C" ? 3U : 1U;
    return true;
}

// MIL-STD-2500A, table VII.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("SY",       2, Required,        Text,        "SY", "", "File Part Type [SY]"),
    Field("SID",     10, Required,        Text,        "", "", "Symbol ID"),
    Field("SNAME",   20, Optional,        Text,        "", "", "Symbol Name"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",   1, Required,        Digits,      "0|1", "", "Encryption [0|1]").Locked(),
    Field("STYPE",    1, Required,        Text,        "B|C|O", "", "Symbol Type [B|C|O]").Locked(),
    Field("NLIPS",    4, Required,        Digits,      "0000..9999", "pixels", "Number of Lines Per Symbol [0000-9999]").Locked(),
    Field("NPIXPL",   4, Required,        Digits,      "0000..9999", "pixels", "Number of Pixels Per Line [0000-9999]").Locked(),
    Field("NWDTH",    4, Required,        Digits,      "0000..9999", "pixels", "Line Width [0000-9999]"),
    Field("NBPP",     1, Required,        Digits,      "0..8", "", "Number of Bits Per Pixel [0-8]").Locked(),
    Field("SDLVL",    3, Required,        Digits,      "001..999", "", "Symbol Display Level [001-999]").Locked(),
    Field("SALVL",    3, Required,        Digits,      "000..998", "", "Symbol Attachment Level [000-998]").Locked(),
    Field("SLOC",    10, Required,        NumberText,  "{rrrrrccccc}", "", "Symbol Location {rrrrrccccc}[-9999-99999]"),
    Field("SLOC2",   10, Required,        NumberText,  "{rrrrrccccc}", "", "Second Symbol Location {rrrrrccccc}[-9999-99999]"),
    Field("SCOLOR",   1, Required,        Text,        "B|C|G|K|N|O|R|W|Y|blank", "", "Symbol Color [B|C|G|K|N|O|R|W|Y]").Locked(),
    Field("SNUM",     6, Required,        Text,        "000000..000018", "", "Symbol Number [000000-000018]"),
    Field("SROT",     3, Required,        Digits,      "000..359", "degrees", "Symbol Rotation [000-359]"),
    Field("NELUT",    3, Required,        Digits,      "000..256", "", "Number of LUT Entries [000-256]").Locked(),
    WhenPositive("NELUT"),
        Computed("DLUT", LookUpTableWidth, Conditional, Bytes, "", "", "Symbol LUT Data"),
    End(),
};
// clang-format on
constexpr auto SXSHD_ROWS =
    AreaRows("SXSHDL", "00000|00003..09741", "Extended Subheader Data Length [00000|00003-09741]", "SXSOFL",
             "Extended Subheader Overflow [000-999]", "SXSHD", "Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"SS", "Symbol">, BODY, SXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 258);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20SymbolSubheader",
    .source = "NITF20SymbolSubheader::InitNITF20SymbolSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &SYMBOL_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 symbol segment subheader field values from the input symbol "
        "data stream."};

char FirstOf(std::string_view aText)
{
    return aText.empty() ? ' ' : aText.front();
}

/// Bounds that hold the shape in every rotation.
CGMDrawing::Bounds BoundsOf(const NITF20ObjectSymbol& aSymbol)
{
    const NITF20ObjectSymbol::Fields& f = aSymbol.GetFields();
    const auto row = static_cast<double>(f.row);
    const auto column = static_cast<double>(f.column);
    const bool hasSecond = f.type <= 6 || f.type == 18;
    const double secondRow = hasSecond ? static_cast<double>(f.secondRow) : row;
    const double secondColumn = hasSecond ? static_cast<double>(f.secondColumn) : column;
    const double reach =
        f.type <= 6 ? 0 : std::hypot(static_cast<double>(f.height), static_cast<double>(f.width)) / (hasSecond ? 1 : 2);
    return {std::min(column, secondColumn) - reach, std::min(row, secondRow) - reach,
            std::max(column, secondColumn) + reach, std::max(row, secondRow) + reach};
}

}  // namespace

NITF20SymbolSubheader::NITF20SymbolSubheader(Input& aInput) : NITFDrawnSegment(LAYOUT, aInput)
{
    InitNITF20SymbolSubheader(aInput);
    FinishReading(aInput);
}

void NITF20SymbolSubheader::InitNITF20SymbolSubheader(Input& aInput)
{
    const char type = FirstOf(FieldText("STYPE"));
    if (type == 'C') {
        ReadMetafile(aInput);
        return;
    }
    try {
        if (type == 'B') {
            MakeBitmap();
        } else if (type == 'O') {
            MakeObject();
        }
    } catch (const std::invalid_argument&) {
        Finding finding =
            type == 'B'
                ? Inside().About("WARN: The bitmap of the symbol is not read: it has no bits.", "NBPP")
                : Inside().About("WARN: The shape of the symbol is not read: its number or rotation is none.", "SNUM");
        finding.rule = "RD-07";
        aInput.Findings().Add(std::move(finding));
    }
}

void NITF20SymbolSubheader::MakeBitmap()
{
    long row = 0;
    long column = 0;
    std::string data;
    static_cast<void>(GetLocation(row, column));
    static_cast<void>(ReadData(data));  // missing data have been told of, and show as transparent
    const std::string_view lut = FieldText("DLUT");
    m_bitmap = std::make_shared<const NITF20BitmappedSymbol>(
        FirstOf(FieldText("SCOLOR")), static_cast<int>(NumberOf("NBPP")), static_cast<long>(NumberOf("NLIPS")),
        static_cast<long>(NumberOf("NPIXPL")), row, column, lut.data(), lut.size(), data.data(), data.size());
}

void NITF20SymbolSubheader::MakeObject()
{
    NITF20ObjectSymbol::Fields fields;
    std::uint64_t type = 0;
    if (ToCount(FieldText("SNUM"), type) && type <= INT16_MAX) {
        fields.type = static_cast<int>(type);
    }
    fields.color = FirstOf(FieldText("SCOLOR"));
    fields.height = static_cast<long>(NumberOf("NLIPS"));
    fields.width = static_cast<long>(NumberOf("NPIXPL"));
    fields.lineWidth = static_cast<long>(NumberOf("NWDTH"));
    static_cast<void>(GetLocation(fields.row, fields.column));
    static_cast<void>(SplitLocation(FieldText("SLOC2"), fields.secondRow, fields.secondColumn));
    fields.rotation = static_cast<int>(NumberOf("SROT"));
    m_object = std::make_shared<const NITF20ObjectSymbol>(fields);
}

unsigned long NITF20SymbolSubheader::GetOverflowSymbolExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("SXSOFL"));
}

bool NITF20SymbolSubheader::AppendSvg(std::string& aSvg) const
{
    const auto column = static_cast<double>(GetCCSColumnValue());
    const auto row = static_cast<double>(GetCCSRowValue());
    if (m_bitmap != nullptr) {
        m_bitmap->AppendSvg(column, row, aSvg);
        return true;
    }
    if (m_object != nullptr) {
        m_object->AppendSvg(column - static_cast<double>(GetLOCColumnValue()),
                            row - static_cast<double>(GetLOCRowValue()), aSvg);
        return m_object->GetObjectSymbolTypeName() != nullptr;
    }
    return NITFDrawnSegment::AppendSvg(aSvg);
}

bool NITF20SymbolSubheader::GetDrawnBounds(CGMDrawing::Bounds& aBounds) const
{
    if (m_bitmap == nullptr && m_object == nullptr) {
        return NITFDrawnSegment::GetDrawnBounds(aBounds);
    }
    auto column = static_cast<double>(GetCCSColumnValue());
    auto row = static_cast<double>(GetCCSRowValue());
    if (m_bitmap != nullptr) {
        long rows = 0;
        long columns = 0;
        m_bitmap->GetImageRowsAndColumns(rows, columns);
        aBounds = {column, row, column + static_cast<double>(columns), row + static_cast<double>(rows)};
        return true;
    }
    column -= static_cast<double>(GetLOCColumnValue());
    row -= static_cast<double>(GetLOCRowValue());
    const CGMDrawing::Bounds bounds = BoundsOf(*m_object);
    aBounds = {bounds.left + column, bounds.top + row, bounds.right + column, bounds.bottom + row};
    return m_object->GetObjectSymbolTypeName() != nullptr;
}

std::string NITF20SymbolSubheader::DrawnElements(std::string_view aIndent) const
{
    return m_bitmap != nullptr   ? m_bitmap->Serialize(aIndent)
           : m_object != nullptr ? m_object->Serialize(aIndent)
                                 : NITFDrawnSegment::DrawnElements(aIndent);
}

bool NITF20SymbolSubheader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITF20SymbolSubheader*>(&aOther);
    if (other == nullptr || !NITFDrawnSegment::CloneObj(aOther)) {
        return false;
    }
    m_bitmap = other->m_bitmap;
    m_object = other->m_object;
    return true;
}

void NITF20SymbolSubheader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITF20SymbolSubheader*>(&aOther);
    if (other != nullptr) {
        NITFDrawnSegment::Swap(aOther);
        m_bitmap.swap(other->m_bitmap);
        m_object.swap(other->m_object);
    }
}

bool NITF20SymbolSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return WidthRange(LAYOUT.table, Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20SymbolSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
