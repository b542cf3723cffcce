// What follows from the fields of an image subheader, and the queries for it.

#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "nitf/NITFCnstLimits.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/image/NITFImageSubheader.h"
#include "segments/image/detail/ImageAttributes.h"
#include "tre/TreRPC00.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using Limits = NITFCnst::Limits;

constexpr std::string_view UNIT_LOCATION_DIGITS = "0123456789";

bool Within(std::uint64_t aValue, long aLeast, long aMost) noexcept
{
    return aValue >= static_cast<std::uint64_t>(aLeast) && aValue <= static_cast<std::uint64_t>(aMost);
}

/// One half of ILOC: digits, of which the first may be a minus sign.
bool LocationOf(std::string_view aText, long aLeast, long aMost, long& aOut)
{
    const bool isNegative = !aText.empty() && aText.front() == '-';
    const std::string_view digits = aText.substr(isNegative ? 1 : 0);
    std::uint32_t value = 0;
    if (digits.find_first_not_of(UNIT_LOCATION_DIGITS) != std::string_view::npos || !Detail::ToCount(digits, value)) {
        return false;
    }
    const long location = isNegative ? -static_cast<long>(value) : static_cast<long>(value);
    if (location < aLeast || location > aMost) {
        return false;
    }
    aOut = location;
    return true;
}

NITFCnst::PixelType PixelTypeOf(std::string_view aText) noexcept
{
    constexpr std::pair<const char*, NITFCnst::PixelType> TYPES[] = {
        {NITFCnst::STR_VAL_PIXEL_TYPE_B, NITFCnst::PIXEL_TYPE_B},
        {NITFCnst::STR_VAL_PIXEL_TYPE_C, NITFCnst::PIXEL_TYPE_C},
        {NITFCnst::STR_VAL_PIXEL_TYPE_INT, NITFCnst::PIXEL_TYPE_INT},
        {NITFCnst::STR_VAL_PIXEL_TYPE_R, NITFCnst::PIXEL_TYPE_R},
        {NITFCnst::STR_VAL_PIXEL_TYPE_SI, NITFCnst::PIXEL_TYPE_SI},
        {NITFCnst::STR_VAL_PIXEL_TYPE_U, NITFCnst::PIXEL_TYPE_U}};
    for (const auto& [text, type] : TYPES) {
        if (aText == text) {
            return type;
        }
    }
    return NITFCnst::PIXEL_TYPE_UNKNOWN;
}

/// The texts that a rule lists, which stands for the life of the program.
struct ValueList
{
    std::vector<std::string> texts;
    std::vector<const char*> pointers;

    explicit ValueList(const char* aRule)
    {
        std::string_view rest = aRule;
        while (!rest.empty()) {
            texts.emplace_back(Detail::WithoutMeaning(Detail::NextAlternative(rest)));
        }
        for (const std::string& text : texts) {
            pointers.push_back(text.c_str());
        }
    }
    ValueList(const ValueList&) = delete;
    ValueList& operator=(const ValueList&) = delete;

    const char* Find(std::string_view aText) const
    {
        const auto found = std::find(texts.begin(), texts.end(), Detail::TrimBlanks(aText));
        return found == texts.end() ? nullptr : found->c_str();
    }
};

const char* RuleOf(const Detail::FieldTable& aTable, std::string_view aTag)
{
    Detail::Turns turns{};
    return aTable.Row(aTable.Resolve(aTag, turns)).values;
}

/// The lists of one version.
struct ValueLists
{
    explicit ValueLists(const Detail::FieldTable& aTable)
        : categories(RuleOf(aTable, "ICAT")), representations(RuleOf(aTable, "IREP"))
    {
    }

    ValueList categories;
    ValueList representations;
};

const ValueLists& ListsOf(const NITFFieldSegment::Layout& aLayout)
{
    // The table of each version is read once.
    if (aLayout.kind->version == NITFCnst::NITF_VERSION_NUMBER_20) {
        static const ValueLists lists(aLayout.table);
        return lists;
    }
    static const ValueLists lists(aLayout.table);
    return lists;
}

}  // namespace

const NITFImageSubheader::Attributes& NITFImageSubheader::TheAttributes() const
{
    return m_derived->attributes.Get([this] {
        Attributes attributes;
        SetImagePixelsAccessingInformation(attributes);
        SetMiscImageAttributes(attributes);
        return attributes;
    });
}

bool NITFImageSubheader::SetImagePixelsAccessingInformation(Attributes& aOut) const
{
    if (const NITFStdDataSegmentInfo* const info = GetNITFStdDataSegmentInfo(); info != nullptr) {
        aOut.layout.dataOffset = info->GetSegmentDataStart();
        aOut.layout.dataLength = info->GetSegmentDataSize();
    }
    bool good = SetImageCompressionCode(aOut);
    good = SetImageMode(aOut) && good;
    good = SetNumOfImageBands(aOut) && good;
    good = SetImageSignificantRowsAndColumns(aOut) && good;
    good = SetNumPixelsPerBlockHorizontalAndVertical(aOut) && good;
    good = SetImageBlockStartIndices(aOut) && good;
    return SetPixelBitValues(aOut) && good;
}

bool NITFImageSubheader::SetMiscImageAttributes(Attributes& aOut) const
{
    bool good = SetImageRepresentation(aOut);
    good = SetImageCategory(aOut) && good;
    good = SetImageMagnification(aOut) && good;
    good = SetIsGeographicCoordSys(aOut) && good;
    Location ignored;
    good = SetCommonCoordinateSys(ignored) && good;
    SetTrePRC00Information(aOut);
    return good;
}

bool NITFImageSubheader::SetImageCompressionCode(Attributes& aOut) const
{
    const std::string code(FieldText("IC"));
    aOut.layout.compression = code;
    aOut.compression = NITFCnst::GetFieldICCode(code.c_str());
    aOut.compressionCode = aOut.compression == NITFCnst::IC_UNKNOWN ? nullptr : FieldText("IC").data();
    return aOut.compressionCode != nullptr;
}

bool NITFImageSubheader::SetImageMode(Attributes& aOut) const
{
    const std::string_view mode = Detail::TrimBlanks(FieldText("IMODE"));
    const bool isKnown = mode.size() == 1 && std::string_view("BPRS").find(mode.front()) != std::string_view::npos;
    aOut.layout.mode = isKnown ? mode.front() : '\0';
    return isKnown;
}

bool NITFImageSubheader::SetNumOfImageBands(Attributes& aOut) const
{
    aOut.layout.bands = GetNumOfImageBands();
    return aOut.layout.bands != 0;
}

bool NITFImageSubheader::SetImageSignificantRowsAndColumns(Attributes& aOut) const
{
    aOut.layout.rows = NumberOf("NROWS");
    aOut.layout.columns = NumberOf("NCOLS");
    return aOut.layout.rows != 0 && aOut.layout.columns != 0;
}

bool NITFImageSubheader::SetNumPixelsPerBlockHorizontalAndVertical(Attributes& aOut) const
{
    Detail::PixelLayout& layout = aOut.layout;
    layout.blocksPerRow = NumberOf("NBPR");
    layout.blocksPerColumn = NumberOf("NBPC");
    layout.blockColumns = NumberOf("NPPBH");
    layout.blockRows = NumberOf("NPPBV");
    const bool is20 = Inside().layout->kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
    const bool good =
        Within(layout.blocksPerRow, Limits::MIN_NITF_IS_FIELD_NBPR, Limits::MAX_NITF_IS_FIELD_NBPR) &&
        Within(layout.blocksPerColumn, Limits::MIN_NITF_IS_FIELD_NBPC, Limits::MAX_NITF_IS_FIELD_NBPC) &&
        (is20 ? Within(layout.blockColumns, Limits::MIN_NITF20_IS_FIELD_NPPBH, Limits::MAX_NITF20_IS_FIELD_NPPBH) &&
                    Within(layout.blockRows, Limits::MIN_NITF20_IS_FIELD_NPPBV, Limits::MAX_NITF20_IS_FIELD_NPPBV)
              : Within(layout.blockColumns, Limits::MIN_NITF21_IS_FIELD_NPPBH, Limits::MAX_NITF21_IS_FIELD_NPPBH) &&
                    Within(layout.blockRows, Limits::MIN_NITF21_IS_FIELD_NPPBV, Limits::MAX_NITF21_IS_FIELD_NPPBV));
    // The zero form: one block that is as wide or as high as the image.
    if (layout.blockColumns == 0 && layout.blocksPerRow == 1) {
        layout.blockColumns = NumberOf("NCOLS");
    }
    if (layout.blockRows == 0 && layout.blocksPerColumn == 1) {
        layout.blockRows = NumberOf("NROWS");
    }
    return good;
}

bool NITFImageSubheader::SetImageBlockStartIndices(Attributes& aOut) const
{
    const Detail::PixelLayout& layout = aOut.layout;
    // Four digits bound both numbers of blocks.
    for (std::uint64_t i = 0; i != layout.blocksPerColumn; ++i) {
        aOut.blockRowStarts.push_back(i * layout.blockRows);
    }
    for (std::uint64_t i = 0; i != layout.blocksPerRow; ++i) {
        aOut.blockColumnStarts.push_back(i * layout.blockColumns);
    }
    return !aOut.blockRowStarts.empty() && !aOut.blockColumnStarts.empty();
}

bool NITFImageSubheader::SetPixelBitValues(Attributes& aOut) const
{
    Detail::PixelLayout& layout = aOut.layout;
    const std::uint64_t bits = NumberOf("NBPP");
    const std::uint64_t actual = NumberOf("ABPP");
    const std::string_view justification = Detail::TrimBlanks(FieldText("PJUST"));
    layout.bits = static_cast<unsigned>(bits);
    layout.actualBits = static_cast<unsigned>(actual);
    layout.isLeftJustified = justification == "L";
    layout.type = PixelTypeOf(Detail::TrimBlanks(FieldText("PVTYPE")));
    const bool is20 = Inside().layout->kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
    aOut.arePixelBitsValid =
        layout.type != NITFCnst::PIXEL_TYPE_UNKNOWN && (justification == "L" || justification == "R") &&
        (is20 ? Within(bits, Limits::MIN_NITF20_IS_FIELD_NBPP, Limits::MAX_NITF20_IS_FIELD_NBPP) &&
                    Within(actual, Limits::MIN_NITF20_IS_FIELD_ABPP, Limits::MAX_NITF20_IS_FIELD_ABPP)
              : Within(bits, Limits::MIN_NITF21_IS_FIELD_NBPP, Limits::MAX_NITF21_IS_FIELD_NBPP) &&
                    Within(actual, Limits::MIN_NITF21_IS_FIELD_ABPP, Limits::MAX_NITF21_IS_FIELD_ABPP));
    return aOut.arePixelBitsValid;
}

bool NITFImageSubheader::SetImageRepresentation(Attributes& aOut) const
{
    aOut.representation = ListsOf(*Inside().layout).representations.Find(FieldText("IREP"));
    return aOut.representation != nullptr;
}

bool NITFImageSubheader::SetImageCategory(Attributes& aOut) const
{
    aOut.category = ListsOf(*Inside().layout).categories.Find(FieldText("ICAT"));
    return aOut.category != nullptr;
}

bool NITFImageSubheader::SetImageMagnification(Attributes& aOut) const
{
    std::string_view text = Detail::TrimBlanks(FieldText("IMAG"));
    const bool isReciprocal = !text.empty() && text.front() == '/';
    text.remove_prefix(isReciprocal ? 1 : 0);
    double factor = 0.0;
    if (!Detail::ToRealNumber(text, factor) || !(factor > 0.0) || factor > Limits::MAX_NITF21_IS_FIELD_IMAG) {
        return false;
    }
    aOut.magnification = isReciprocal ? 1.0 / factor : factor;
    return true;
}

bool NITFImageSubheader::SetIsGeographicCoordSys(Attributes& aOut) const
{
    const std::string_view icords = Detail::TrimBlanks(FieldText("ICORDS"));
    const bool is20 = Inside().layout->kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
    // In NITF 2.0 an N stands for no location.
    aOut.icords = icords.empty() || (is20 && icords == "N") ? '\0' : icords.front();
    aOut.isGeographic = aOut.icords == 'G' || aOut.icords == 'D' || aOut.icords == 'C';
    return aOut.icords == '\0' || std::string_view(is20 ? "UGC" : "UGNSDP").find(aOut.icords) != std::string_view::npos;
}

bool NITFImageSubheader::SetCommonCoordinateSys(Location& aOut) const
{
    constexpr std::size_t HALF = 5;
    const std::string_view text = FieldText("ILOC");
    Location location;
    const bool isThere = text.size() == 2 * HALF &&
                         LocationOf(text.substr(0, HALF), Limits::MIN_NITF_IS_FIELD_ILOC_ROW,
                                    Limits::MAX_NITF_IS_FIELD_ILOC_ROW, location.row) &&
                         LocationOf(text.substr(HALF), Limits::MIN_NITF_IS_FIELD_ILOC_COL,
                                    Limits::MAX_NITF_IS_FIELD_ILOC_COL, location.column);
    if (isThere) {
        aOut = location;
    }
    return isThere;
}

bool NITFImageSubheader::SetTrePRC00Information(Attributes& aOut) const
{
    for (const auto& [tag, code] :
         {std::pair{"RPC00B", NITFCnst::RPC00B_AVAILABLE}, std::pair{"RPC00A", NITFCnst::RPC00A_AVAILABLE}}) {
        for (const TRE* const tre : FindTREs(tag)) {
            aOut.rpc = dynamic_cast<const TreRPC00*>(tre);
            if (aOut.rpc != nullptr) {
                aOut.rpcAvailability = code;
                return true;
            }
        }
    }
    return false;
}

// ---- Queries

NITFCnst::IC NITFImageSubheader::GetEnumFieldIC() const
{
    return TheAttributes().compression;
}

const char* NITFImageSubheader::GetImageCompressionCode() const
{
    return TheAttributes().compressionCode;
}

const char* NITFImageSubheader::GetImageRepresentation() const
{
    return TheAttributes().representation;
}

const char* NITFImageSubheader::GetImageCategory() const
{
    return TheAttributes().category;
}

char NITFImageSubheader::GetImageMode() const
{
    return TheAttributes().layout.mode;
}

double NITFImageSubheader::GetImageMagnificationFactor() const
{
    return TheAttributes().magnification;
}

bool NITFImageSubheader::IsCloudCoverImageSegment() const
{
    const bool is20 = Inside().layout->kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
    return Detail::TrimBlanks(FieldText("ICAT")) == NITFCnst::STR_VAL_ICAT_CLOUD ||
           Detail::TrimBlanks(FieldText(is20 ? "IID" : "IID1")) == NITFCnst::STR_VAL_CC;
}

const std::vector<const char*>* NITFImageSubheader::GetAllValidImageCategories() const
{
    return &ListsOf(*Inside().layout).categories.pointers;
}

const std::vector<const char*>* NITFImageSubheader::GetAllValidImageRepresentations() const
{
    return &ListsOf(*Inside().layout).representations.pointers;
}

const char* NITFImageSubheader::IsValidImageCategory(const char* aText) const
{
    return aText == nullptr ? nullptr : ListsOf(*Inside().layout).categories.Find(aText);
}

const char* NITFImageSubheader::IsValidImageRepresentation(const char* aText) const
{
    return aText == nullptr ? nullptr : ListsOf(*Inside().layout).representations.Find(aText);
}

unsigned long NITFImageSubheader::GetNumOfImageBands() const noexcept
{
    const std::uint64_t bands = NumberOf("NBANDS");
    return static_cast<unsigned long>(bands != 0 ? bands : NumberOf("XBANDS"));
}

bool NITFImageSubheader::GetFieldXBANDS(unsigned long& aBands) const
{
    const std::uint64_t bands = NumberOf("XBANDS");
    if (bands != 0) {
        aBands = static_cast<unsigned long>(bands);
    }
    return bands != 0;
}

unsigned long NITFImageSubheader::GetFieldNBPR() const noexcept
{
    return static_cast<unsigned long>(NumberOf("NBPR"));
}

unsigned long NITFImageSubheader::GetFieldNBPC() const noexcept
{
    return static_cast<unsigned long>(NumberOf("NBPC"));
}

bool NITFImageSubheader::GetNumPixelsPerBlock(unsigned long& aHorizontal, unsigned long& aVertical) const
{
    const Detail::PixelLayout& layout = TheAttributes().layout;
    if (layout.blockColumns == 0 || layout.blockRows == 0) {
        return false;
    }
    aHorizontal = static_cast<unsigned long>(layout.blockColumns);
    aVertical = static_cast<unsigned long>(layout.blockRows);
    return true;
}

bool NITFImageSubheader::GetImageBlockStart(std::uint64_t aBlock, std::uint64_t& aRow, std::uint64_t& aColumn) const
{
    const Attributes& attributes = TheAttributes();
    const std::uint64_t perRow = attributes.blockColumnStarts.size();
    if (perRow == 0 || aBlock / perRow >= attributes.blockRowStarts.size()) {
        return false;
    }
    aRow = attributes.blockRowStarts[aBlock / perRow];
    aColumn = attributes.blockColumnStarts[aBlock % perRow];
    return true;
}

bool NITFImageSubheader::GetPixelBitValues(char& aJustification, int& aNBPP, int& aABPP,
                                           NITFCnst::PixelType& aType) const
{
    const Attributes& attributes = TheAttributes();
    if (!attributes.arePixelBitsValid) {
        return false;
    }
    aJustification = attributes.layout.isLeftJustified ? 'L' : 'R';
    aNBPP = static_cast<int>(attributes.layout.bits);
    aABPP = static_cast<int>(attributes.layout.actualBits);
    aType = attributes.layout.type;
    return true;
}

NITFCnst::PixelType NITFImageSubheader::GetImagePixelValueType() const
{
    return TheAttributes().layout.type;
}

char NITFImageSubheader::GetImagePixelJustification() const
{
    const std::string_view text = Detail::TrimBlanks(FieldText("PJUST"));
    return text == "L" || text == "R" ? text.front() : '\0';
}

bool NITFImageSubheader::GetImageSignificantColumnsAndRows(unsigned long& aColumns, unsigned long& aRows) const
{
    const Detail::PixelLayout& layout = TheAttributes().layout;
    if (layout.rows == 0 || layout.columns == 0) {
        return false;
    }
    aColumns = static_cast<unsigned long>(layout.columns);
    aRows = static_cast<unsigned long>(layout.rows);
    return true;
}

// ---- Location

bool NITFImageSubheader::GetILOC(long& aRow, long& aColumn) const
{
    Location location;
    if (!SetCommonCoordinateSys(location)) {
        return false;
    }
    aRow = location.row;
    aColumn = location.column;
    return true;
}

long NITFImageSubheader::GetLOCRowValue() const
{
    Location location;
    static_cast<void>(SetCommonCoordinateSys(location));
    return location.row;
}

long NITFImageSubheader::GetLOCColumnValue() const
{
    Location location;
    static_cast<void>(SetCommonCoordinateSys(location));
    return location.column;
}

long NITFImageSubheader::GetCCSRowValue() const
{
    long column = 0;
    long row = 0;
    GetCCSOffsetValues(column, row);
    return row + GetLOCRowValue();
}

long NITFImageSubheader::GetCCSColumnValue() const
{
    long column = 0;
    long row = 0;
    GetCCSOffsetValues(column, row);
    return column + GetLOCColumnValue();
}

bool NITFImageSubheader::GetCCSColumnAndRow(long& aColumn, long& aRow) const
{
    Location location;
    if (!SetCommonCoordinateSys(location)) {
        return NITFDataSegment::GetCCSColumnAndRow(aColumn, aRow);
    }
    aColumn = GetCCSColumnValue();
    aRow = GetCCSRowValue();
    return true;
}

bool NITFImageSubheader::GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const
{
    if (!GetILOC(aRow, aColumn)) {
        return NITFDataSegment::GetCommonCoordinateSys(aRow, aColumn, aCCSRow, aCCSColumn);
    }
    return GetCCSColumnAndRow(aCCSColumn, aCCSRow);
}

// ---- Rational polynomial coefficients

char NITFImageSubheader::GetRPC00Availability() const
{
    return TheAttributes().rpcAvailability;
}

bool NITFImageSubheader::GetRPC00Coefficients(double* aLineNumerator, double* aLineDenominator,
                                              double* aSampleNumerator, double* aSampleDenominator) const
{
    const TreRPC00* const rpc = TheAttributes().rpc;
    return rpc != nullptr &&
           rpc->GetRPCCoefficients(aLineNumerator, aLineDenominator, aSampleNumerator, aSampleDenominator);
}

bool NITFImageSubheader::GetRPC00Offsets(double& aLatitude, double& aLongitude, double& aHeight, long& aLine,
                                         long& aSample) const
{
    const TreRPC00* const rpc = TheAttributes().rpc;
    TreRPC00::CoordinateValues values;
    if (rpc == nullptr || !rpc->GetRPCOffsets(values)) {
        return false;
    }
    aLatitude = values.latitude;
    aLongitude = values.longitude;
    aHeight = values.height;
    aLine = static_cast<long>(values.line);  // the fields have six and five digits
    aSample = static_cast<long>(values.sample);
    return true;
}

bool NITFImageSubheader::GetRPC00Scales(double& aLatitude, double& aLongitude, double& aHeight, long& aLine,
                                        long& aSample) const
{
    const TreRPC00* const rpc = TheAttributes().rpc;
    TreRPC00::CoordinateValues values;
    if (rpc == nullptr || !rpc->GetRPCScales(values)) {
        return false;
    }
    aLatitude = values.latitude;
    aLongitude = values.longitude;
    aHeight = values.height;
    aLine = static_cast<long>(values.line);
    aSample = static_cast<long>(values.sample);
    return true;
}

bool NITFImageSubheader::GetRPC00Errors(double& aBias, double& aRandom) const
{
    const TreRPC00* const rpc = TheAttributes().rpc;
    return rpc != nullptr && rpc->GetRPCErrors(aBias, aRandom);
}

bool NITFImageSubheader::GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount) const
{
    aNames = nullptr;
    aValues = nullptr;
    aCount = 0;
    const TreRPC00* const rpc = TheAttributes().rpc;
    return rpc != nullptr && rpc->GetRPCFields(aNames, aValues, aCount);
}

void NITFImageSubheader::DeleteRPCFields(const char**& aNames, const char**& aValues, std::size_t aCount) noexcept
{
    TreRPC00::DeleteConstCStringArray(aNames, aCount);
    TreRPC00::DeleteConstCStringArray(aValues, aCount);
}

}  // namespace ORMO::SensorModel::CSM
