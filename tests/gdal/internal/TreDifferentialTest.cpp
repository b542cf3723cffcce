#include "fields/Number.h"
#include "foundation/CSMUtilString.h"
#include "tests/gdal/internal/GdalTre.h"
#include "tests/support/TreRecordMaker.h"
#include "tests/tre/TreLayoutList.h"
#include "tre/TREFactory.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;

// As many records of each tag are compared, and more of them until every row and condition of its table was met.
constexpr std::size_t RECORDS = 12;
constexpr std::size_t MOST_RECORDS = 150;
// Where GDAL goes astray in many records, fewer must have been compared to their end.
constexpr std::size_t LEAST_COMPLETE = 4;
constexpr std::uint32_t SEED = 20240611;

enum class Kind
{
    Spelled,   ///< GDAL has another name for the field, which is no alias of ours
    Numbered,  ///< GDAL's name ends in letters that the standard prints for a number, such as _NNN
    Latin1,    ///< GDAL takes the bytes for ISO 8859-1 and prints them in UTF-8
    Nameless,  ///< GDAL steps over the field without a name for it
    Refused,   ///< GDAL refuses the whole record
    Astray,    ///< at this field or right behind it GDAL loses its place, and the rest of the record tells nothing
    Behind     ///< the same, but only behind this field
};

/// One difference that is no fault of our table.
struct Difference
{
    std::string_view tag;
    std::string_view field;  ///< our name without turns; a "*" at the end stands for any number
    Kind kind;
    std::string_view gdalName;
    std::string_view reason;
};

constexpr std::string_view TRIMMED = "GDAL compares the blank unit with three blanks after it has trimmed it";
constexpr std::string_view NO_NAME = "the standard gives reserved fields no names of their own";

constexpr std::array DIFFERENCES{
    Difference{"ACCHZB", "UNIAAH", Kind::Behind, "", TRIMMED},
    Difference{"ACCHZB", "UNIAPH", Kind::Behind, "", TRIMMED},
    Difference{"ACCVTB", "UNIAAV", Kind::Behind, "", TRIMMED},
    Difference{"ACCVTB", "UNIAPV", Kind::Behind, "", TRIMMED},
    Difference{"BANDSB", "WAVE_LENGTH_UNIT", Kind::Astray, "", "GDAL reads it for bit 24 only, not for bits 23 to 19"},
    Difference{"ENGRDA", "ENGDATA", Kind::Astray, "", "GDAL takes the count of the elements for the count of bytes"},
    Difference{"AIMIDB", "RESERVED-001", Kind::Spelled, "RESERVED_1", NO_NAME},
    Difference{"AIMIDB", "RESERVED-002", Kind::Spelled, "RESERVED_2", NO_NAME},
    Difference{"AIMIDB", "RESERVED-003", Kind::Spelled, "RESERVED_3", NO_NAME},
    Difference{"CSDIDA", "RESERVED_1", Kind::Spelled, "RESERVED_0", "GDAL counts the reserved fields from 0"},
    Difference{"CSDIDA", "RESERVED_2", Kind::Spelled, "RESERVED_1", "the same"},
    Difference{"CSDIDA", "RESERVED_3", Kind::Spelled, "RESERVED_2", "the same"},
    Difference{"CSDIDA", "RESERVED_4", Kind::Spelled, "RESERVED_3", "the same"},
    Difference{"CSDIDA", "RESERVED_5", Kind::Spelled, "RESERVED_4", "the same"},
    Difference{"BLOCKA", "RESERVED-*", Kind::Nameless, "", NO_NAME},
    Difference{"CSPROA", "RESERVED_*", Kind::Nameless, "", NO_NAME},
    Difference{"EXPLTB", "RESERVED-*", Kind::Nameless, "", NO_NAME},
    Difference{"RSMECB", "", Kind::Refused, "", "GDAL wants 371 bytes, but without covariances 162 are enough"},
    Difference{"SECURA", "NFSECFLDS", Kind::Latin1, "", "most of its bytes are text, but zero bytes fill it up"},
    Difference{"SENSRB", "TIME_STAMP_VALUE", Kind::Astray, "", "GDAL knows no fields of the modules 2 to 4"},
    Difference{"SENSRB", "PIXEL_REFERENCE_VALUE", Kind::Astray, "", "the same"},
    Difference{"SENSRB", "*", Kind::Numbered, "",
               "the names in GDAL keep the place of a number that it never fills in"},
    Difference{"STDIDC", "BLANK_FILL", Kind::Nameless, "", NO_NAME},
    Difference{"STDIDC", "RESERVED-*", Kind::Nameless, "", NO_NAME},
    Difference{"USE00A", "RESERVED-*", Kind::Nameless, "", NO_NAME},
};

/// The differences that were met.
using Met = std::set<const Difference*>;

const Difference* FindDifference(std::string_view aTag, std::string_view aField, Kind aKind)
{
    for (const Difference& known : DIFFERENCES) {
        const bool any = known.field.ends_with('*');
        const std::string_view stem = known.field.substr(0, known.field.size() - (any ? 1U : 0U));
        if (known.tag == aTag && known.kind == aKind && (any ? aField.starts_with(stem) : aField == stem)) {
            return &known;
        }
    }
    return nullptr;
}

struct TreDeleter
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using TrePointer = std::unique_ptr<TRE, TreDeleter>;

/// The TRE, held to the values that its standard allows; a failure when it is not typed or has complaints.
TrePointer MakeTyped(const char* aTag, const std::string& aData)
{
    TRE* tre = nullptr;
    char* errors = nullptr;
    TREFactory::Create(aTag, aData.data(), TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, true, true, &errors, aData.size());
    EXPECT_TRUE(errors == nullptr || *errors == '\0') << aTag << ": " << errors;
    Util::CSMUtilString::DeleteCString(errors);
    return TrePointer(tre);
}

std::string Utf8(std::string_view aLatin1)
{
    std::string text;
    for (const char byte : aLatin1) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 0x80) {
            text += byte;
        } else {
            text += static_cast<char>(0xC0U | code >> 6U);
            text += static_cast<char>(0x80U | (code & 0x3FU));
        }
    }
    return text;
}

/// How GDAL prints a value: binary numbers in decimal, text without the blanks behind it, and other bytes up to the
/// first NUL and without those that XML cannot hold.
std::string AsGdalPrints(const FieldRow& aRow, std::string_view aValue)
{
    std::uint64_t bits = 0;
    if (aRow.form == Form::Unsigned && BigEndianUnsigned(aValue, bits)) {
        return std::to_string(bits);
    }
    if (aRow.form == Form::Float && BigEndianUnsigned(aValue, bits)) {
        std::array<char, 64> text{};
        const auto number = static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
        return {text.data(), static_cast<std::size_t>(std::snprintf(text.data(), text.size(), "%f", number))};
    }
    std::string text(aValue);
    if (aRow.IsBinary()) {
        text.resize(std::min(text.size(), text.find('\0')));
    }
    text.resize(text.find_last_not_of(' ') + 1);
    if (aRow.IsBinary()) {
        std::erase_if(text, [](char aByte) {
            return static_cast<unsigned char>(aByte) < 0x20 && aByte != '\t' && aByte != '\n' && aByte != '\r';
        });
    }
    return text;
}

/// How a comparison of one record ended.
enum class Outcome
{
    Complete,  ///< equal to the end
    Broken,    ///< equal up to a place where GDAL is known to go astray
    Different
};

/// One record, as we and as GDAL cut it into fields.
class Comparison
{
public:
    Comparison(std::string_view aTag, const FieldTable& aTable, const TRE& aTre, const Tests::GdalReading& aTheirs,
               Met& aMet)
        : m_tag(aTag), m_table(aTable), m_tre(aTre), m_theirs(aTheirs), m_met(aMet)
    {
    }

    Outcome Run();
    /// What differs, with both sides.
    const std::string& Report() const { return m_report; }

private:
    bool IsSame(const FieldRow& aRow, std::string_view aTurns, std::string_view aValue);
    bool IsSameName(const FieldRow& aRow, std::string_view aTurns, std::string_view aTheirs);
    bool IsKnown(std::string_view aField, Kind aKind);
    /// What a difference means that shows behind this field.
    Outcome EndBehind(std::string_view aField)
    {
        return IsKnown(aField, Kind::Astray) || IsKnown(aField, Kind::Behind) ? Outcome::Broken : Outcome::Different;
    }

    std::string_view m_tag;
    const FieldTable& m_table;
    const TRE& m_tre;
    const Tests::GdalReading& m_theirs;
    Met& m_met;
    std::size_t m_next = 0;  // among the fields of GDAL
    std::string m_report;
};

bool Comparison::IsKnown(std::string_view aField, Kind aKind)
{
    const Difference* const known = FindDifference(m_tag, aField, aKind);
    if (known != nullptr) {
        m_met.insert(known);
    }
    return known != nullptr;
}

bool Comparison::IsSameName(const FieldRow& aRow, std::string_view aTurns, std::string_view aTheirs)
{
    if (!aTheirs.ends_with(aTurns)) {
        return false;
    }
    aTheirs.remove_suffix(aTurns.size());
    if (aTheirs == aRow.tag || (aRow.alias != nullptr && aTheirs == aRow.alias)) {
        return true;
    }
    const std::string_view stem = aTheirs.substr(0, aTheirs.find_last_not_of("MN") + 1);
    if (stem.size() == std::string_view(aRow.tag).size() + 1 && stem.starts_with(aRow.tag) && stem.ends_with('_')) {
        return IsKnown(aRow.tag, Kind::Numbered);
    }
    const Difference* const known = FindDifference(m_tag, aRow.tag, Kind::Spelled);
    return known != nullptr && known->gdalName == aTheirs && IsKnown(aRow.tag, Kind::Spelled);
}

bool Comparison::IsSame(const FieldRow& aRow, std::string_view aTurns, std::string_view aValue)
{
    const std::string expected = AsGdalPrints(aRow, aValue);
    m_report = std::string(aRow.tag).append(aTurns) + " = [" + expected + "], GDAL: ";
    if (m_next == m_theirs.fields.size()) {
        m_report += "no more fields";
        return false;
    }
    const auto& [name, value] = m_theirs.fields[m_next];
    m_report += name + " = [" + value + "]";
    const bool latin = aRow.form == Form::Ecs || IsKnown(aRow.tag, Kind::Latin1);
    const bool sameValue = value == expected || (latin && value == Utf8(expected));
    return IsSameName(aRow, aTurns, name) && sameValue;
}

Outcome Comparison::Run()
{
    std::string name;
    std::string_view before;
    for (std::size_t i = 0; i != m_tre.GetNumOfFields(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        Turns turns{};
        if (!m_tre.GetFieldAt(i, name, value, length)) {
            m_report = "no field " + std::to_string(i);
            return Outcome::Different;
        }
        const FieldRow& row = m_table.Row(m_table.Resolve(name, turns));
        if (IsKnown(row.tag, Kind::Nameless)) {
            continue;
        }
        if (!IsSame(row, std::string_view(name).substr(std::string_view(row.tag).size()), {value, length})) {
            return IsKnown(row.tag, Kind::Astray) ? Outcome::Broken : EndBehind(before);
        }
        before = row.tag;
        ++m_next;
    }
    if (m_next != m_theirs.fields.size()) {
        m_report = "the end, GDAL: " + m_theirs.fields[m_next].first;
        return EndBehind(before);
    }
    return Outcome::Complete;
}

/// Compares records of one tag until enough of them were complete and everything in the table was met.
void CompareTag(const char* aTag, const FieldTable& aTable, Met& aMet)
{
    Tests::TreRecordMaker maker(aTable, SEED);
    std::size_t complete = 0;
    for (std::size_t made = 0; made != MOST_RECORDS; ++made) {
        if (made >= RECORDS && complete >= LEAST_COMPLETE && maker.NotSeen().empty()) {
            break;
        }
        const std::string data = maker.Next();
        const TrePointer tre = MakeTyped(aTag, data);
        const Tests::GdalReading theirs = Tests::ReadThroughGdal(aTag, data);
        ASSERT_NE(nullptr, tre) << aTag;
        if (const Difference* const refused = FindDifference(aTag, "", Kind::Refused);
            !theirs.found && refused != nullptr) {
            aMet.insert(refused);
            continue;
        }
        ASSERT_TRUE(theirs.found) << aTag << ": " << theirs.errors;
        Comparison comparison(aTag, aTable, *tre, theirs, aMet);
        const Outcome outcome = comparison.Run();
        ASSERT_NE(Outcome::Different, outcome)
            << aTag << ", record " << made << " of " << data.size() << " bytes: " << comparison.Report() << '\n'
            << theirs.errors;
        complete += outcome == Outcome::Complete ? 1U : 0U;
    }
    EXPECT_GE(complete, LEAST_COMPLETE) << aTag;
    for (const std::string& missing : maker.NotSeen()) {
        ADD_FAILURE() << aTag << ": " << missing;
    }
}

TEST(TreDifferentialTest, GdalReadsTheSameFieldsWithTheSameValues)
{
    const std::vector<std::string> described = Tests::TagsThatGdalDescribes();
    if (described.empty()) {
        GTEST_SKIP() << "nitf_spec.xml, which comes with GDAL, is not there";
    }
    Met met;
    std::size_t compared = 0;
    for (const std::string& tag : described) {
        // RPC00A is read through the rows of RPC00B.
        const std::string_view rows = tag == "RPC00A" ? "RPC00B" : std::string_view(tag);
        const auto* const found = std::find_if(std::begin(TRE_LAYOUTS), std::end(TRE_LAYOUTS),
                                               [rows](const NamedLayout& aNamed) { return aNamed.tag == rows; });
        if (found != std::end(TRE_LAYOUTS)) {
            // Sources disagree on the coefficients of CSWRPB; GDAL counts them as our second layout does.
            const TreLayout& layout = tag == "CSWRPB" ? *found->layout().other : found->layout();
            CompareTag(tag.c_str(), layout.table, met);
            ++compared;
        }
    }
    EXPECT_GE(compared, 61U) << "tags that both sides know";
    for (const Difference& known : DIFFERENCES) {
        EXPECT_EQ(1U, met.count(&known)) << "no longer needed: " << known.tag << ' ' << known.field << ", "
                                         << known.reason;
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
