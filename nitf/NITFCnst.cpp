#include "nitf/NITFCnst.h"

#include <array>
#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

// The position of a text is its code.
constexpr std::array<std::string_view, NITFCnst::IC_NM + 1> COMPRESSIONS = {
    NITFCnst::STR_VAL_IC_C0, NITFCnst::STR_VAL_IC_C1, NITFCnst::STR_VAL_IC_C2, NITFCnst::STR_VAL_IC_C3,
    NITFCnst::STR_VAL_IC_C4, NITFCnst::STR_VAL_IC_C5, NITFCnst::STR_VAL_IC_C6, NITFCnst::STR_VAL_IC_C7,
    NITFCnst::STR_VAL_IC_C8, NITFCnst::STR_VAL_IC_I1, NITFCnst::STR_VAL_IC_M0, NITFCnst::STR_VAL_IC_M1,
    NITFCnst::STR_VAL_IC_M2, NITFCnst::STR_VAL_IC_M3, NITFCnst::STR_VAL_IC_M4, NITFCnst::STR_VAL_IC_M5,
    NITFCnst::STR_VAL_IC_M6, NITFCnst::STR_VAL_IC_M7, NITFCnst::STR_VAL_IC_M8, NITFCnst::STR_VAL_IC_NC,
    NITFCnst::STR_VAL_IC_NM};
static_assert(COMPRESSIONS.back() == NITFCnst::STR_VAL_IC_NM);

struct VersionRow
{
    NITFCnst::Version code;
    std::string_view number;
    const char* text;
};

constexpr std::array<VersionRow, 4> VERSIONS = {{
    {NITFCnst::NSIF_VERSION_NUMBER_10, NITFCnst::NSIF_VERSION_100, NITFCnst::STR_NSIF_0100},
    {NITFCnst::NITF_VERSION_NUMBER_11, NITFCnst::NITF_VERSION_110, NITFCnst::STR_NITF_0110},
    {NITFCnst::NITF_VERSION_NUMBER_20, NITFCnst::NITF_VERSION_200, NITFCnst::STR_NITF_0200},
    {NITFCnst::NITF_VERSION_NUMBER_21, NITFCnst::NITF_VERSION_210, NITFCnst::STR_NITF_0210},
}};

struct ClassificationRow
{
    NITFCnst::SecurityClassification code;
    std::string_view letter;
    std::string_view word;
    int rank;
};

// clang-format off
constexpr std::array<ClassificationRow, 5> CLASSIFICATIONS = {{
    {NITFCnst::SECURITY_CLASSIFICATION_C, NITFCnst::NITF_SC_CONFIDENTIAL, NITFCnst::STR_SC_CONFIDENTIAL, NITFCnst::RANK_SC_CONFIDENTIAL},
    {NITFCnst::SECURITY_CLASSIFICATION_R, NITFCnst::NITF_SC_RESTRICTED,   NITFCnst::STR_SC_RESTRICTED,   NITFCnst::RANK_SC_RESTRICTED},
    {NITFCnst::SECURITY_CLASSIFICATION_S, NITFCnst::NITF_SC_SECRET,       NITFCnst::STR_SC_SECRET,       NITFCnst::RANK_SC_SECRET},
    {NITFCnst::SECURITY_CLASSIFICATION_T, NITFCnst::NITF_SC_TOP_SECRET,   NITFCnst::STR_SC_TOP_SECRET,   NITFCnst::RANK_SC_TOP_SECRET},
    {NITFCnst::SECURITY_CLASSIFICATION_U, NITFCnst::NITF_SC_UNCLASSIFIED, NITFCnst::STR_SC_UNCLASSIFIED, NITFCnst::RANK_SC_UNCLASSIFIED},
}};
// clang-format on

}  // namespace

NITFCnst::IC NITFCnst::GetFieldICCode(const char* aIC)
{
    if (aIC == nullptr) {
        return IC_UNKNOWN;
    }
    const std::string_view text(aIC);
    for (std::size_t code = 0; code != COMPRESSIONS.size(); ++code) {
        if (COMPRESSIONS[code] == text) {
            return static_cast<IC>(code);
        }
    }
    return IC_UNKNOWN;
}

const char* NITFCnst::GetFieldType(FieldType aType)
{
    switch (aType) {
        case FIELD_TYPE_CONDITIONAL:
            return NITF_FIELD_TYPE_CONDITIONAL;
        case FIELD_TYPE_OPTIONAL:
            return NITF_FIELD_TYPE_OPTIONAL;
        case FIELD_TYPE_REQUIRED:
            return NITF_FIELD_TYPE_REQUIRED;
        case FIELD_TYPE_REQUIRED_SPACE_OK:
            return NITF_FIELD_TYPE_REQUIRED_SPACE_OK;
        case FIELD_TYPE_CONDITIONAL_SPACE_OK:  // "?" here and not "<C>", on purpose
        case FIELD_TYPE_UNKNOWN:
            break;
    }
    return NITF_FIELD_TYPE_UNKNOWN;
}

const char* NITFCnst::GetFieldTypeForDisplay(FieldType aType)
{
    switch (aType) {
        case FIELD_TYPE_CONDITIONAL_SPACE_OK:
            return NITF_FIELD_TYPE_CONDITIONAL_SPACE_OK_XML_OUTPUT;
        case FIELD_TYPE_REQUIRED_SPACE_OK:
            return NITF_FIELD_TYPE_REQUIRED_SPACE_OK_XML_OUTPUT;
        case FIELD_TYPE_CONDITIONAL:
        case FIELD_TYPE_OPTIONAL:
        case FIELD_TYPE_REQUIRED:
        case FIELD_TYPE_UNKNOWN:
            break;
    }
    return GetFieldType(aType);
}

NITFCnst::Version NITFCnst::GetNITFFileVersionCode(const char* aVersion)
{
    if (aVersion == nullptr) {
        return NITF_VERSION_NUMBER_UNKNOWN;
    }
    const std::string number = TrimString(aVersion);
    for (const VersionRow& row : VERSIONS) {
        if (row.number == number) {
            return row.code;
        }
    }
    return NITF_VERSION_NUMBER_UNKNOWN;
}

const char* NITFCnst::GetNITFVersionString(Version aVersion)
{
    for (const VersionRow& row : VERSIONS) {
        if (row.code == aVersion) {
            return row.text;
        }
    }
    return STR_NITF_UNKNOWN;
}

NITFCnst::SecurityClassification NITFCnst::GetSecurityClassificationCode(const char* aClassification)
{
    if (aClassification == nullptr) {
        return SECURITY_CLASSIFICATION_UNKNOWN;
    }
    const std::string letter = TrimString(aClassification);
    for (const ClassificationRow& row : CLASSIFICATIONS) {
        if (row.letter == letter) {
            return row.code;
        }
    }
    return SECURITY_CLASSIFICATION_UNKNOWN;
}

int NITFCnst::GetSecurityClassificationRank(const char* aClassification)
{
    if (aClassification == nullptr) {
        return RANK_SC_UNKNOWN;
    }
    const std::string name = TrimString(aClassification);
    for (const ClassificationRow& row : CLASSIFICATIONS) {
        if (row.letter == name || row.word == name) {
            return row.rank;
        }
    }
    return RANK_SC_UNKNOWN;
}

double NITFCnst::GetDefaultIterationPrecision() noexcept
{
    return ITER_PRECISION;
}

std::string NITFCnst::TrimString(const char* aText)
{
    if (aText == nullptr) {
        throw std::invalid_argument("Input argument cannot be NULL.");
    }
    // What isspace accepts in the "C" locale; other locales would also take bytes above 127.
    constexpr std::string_view WHITE_SPACE = " \t\n\v\f\r";
    const std::string_view text(aText);
    const std::size_t first = text.find_first_not_of(WHITE_SPACE);
    if (first == std::string_view::npos) {
        return {};
    }
    const std::size_t last = text.find_last_not_of(WHITE_SPACE);
    return std::string(text.substr(first, last - first + 1));
}

}  // namespace ORMO::SensorModel::CSM
