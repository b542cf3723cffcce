#pragma once

#include "nitf/NITFCnst.h"

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

// All that is known of a kind of segment besides its fields: one row. Whoever treats kinds alike loops over the rows.
namespace ORMO::SensorModel::CSM::Detail {

/// An extension area of a header.
struct ExtensionArea
{
    const char* area;                 ///< the field with its records, which is also what DESOFLW says
    const char* overflow;             ///< the field with the number of the DES that carries the rest
    bool registered = false;          ///< unknown tags count as registered extensions
    const char* otherWord = nullptr;  ///< what DESOFLW may say too
};

/// Where a drawn segment stands: the fields with its levels and its location, null when it has none.
struct DrawingFields
{
    const char* displayLevel = nullptr;
    const char* attachmentLevel = nullptr;
    const char* location = nullptr;
};

struct SegmentKind
{
    NITFCnst::DataSegmentType kind;
    NITFCnst::Version version;   ///< 20 or 21, which also stands for NSIF 1.0
    const char* mark;            ///< the first two bytes of a subheader; empty for the file header
    const char* count;           ///< fields of the file header: how many there are,
    const char* headerLength;    ///< the length of each subheader
    const char* dataLength;      ///< and of each data part
    const char* word;            ///< for a person
    const char* group;           ///< the XML element around all segments of the kind
    const char* classification;  ///< the field with the security classification
    std::span<const ExtensionArea> areas;
    DrawingFields drawing{};
};

inline constexpr ExtensionArea FILE_AREAS_20[] = {{"UDHD", "UDHOFL", true}, {"XHD", "XHDOFL"}};
inline constexpr ExtensionArea FILE_AREAS_21[] = {{"UDHD", "UDHOFL", true}, {"XHD", "XHDLOFL"}};
inline constexpr ExtensionArea IMAGE_AREAS[] = {{"UDID", "UDOFL", true}, {"IXSHD", "IXSOFL"}};
inline constexpr ExtensionArea DRAWING_AREAS[] = {{"SXSHD", "SXSOFL"}};
// MIL-STD-2500A prints the area of a label in two ways.
inline constexpr ExtensionArea LABEL_AREAS[] = {{"LXSHD", "LXSOFL", false, "LSXHD"}};
inline constexpr ExtensionArea TEXT_AREAS[] = {{"TXSHD", "TXSOFL"}};

// clang-format off
/// In the order in which segments stand in a file.
inline constexpr SegmentKind SEGMENT_KINDS[] = {
    {NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::NITF_VERSION_NUMBER_20, "", "", "", "", "header", "", "FSCLAS", FILE_AREAS_20},
    {NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::NITF_VERSION_NUMBER_21, "", "", "", "", "header", "", "FSCLAS", FILE_AREAS_21},
    {NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::NITF_VERSION_NUMBER_20, "IM", "NUMI", "LISH", "LI", "image", NITFCnst::XML_ELEMENT_IMAGE_SEGMENTS, "ISCLAS", IMAGE_AREAS, {"IDLVL", "IALVL", "ILOC"}},
    {NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::NITF_VERSION_NUMBER_21, "IM", "NUMI", "LISH", "LI", "image", NITFCnst::XML_ELEMENT_IMAGE_SEGMENTS, "ISCLAS", IMAGE_AREAS, {"IDLVL", "IALVL", "ILOC"}},
    {NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, NITFCnst::NITF_VERSION_NUMBER_20, "SY", "NUMS", "LSSH", "LS", "symbol", NITFCnst::XML_ELEMENT_SYMBOL_SEGMENTS, "SSCLAS", DRAWING_AREAS, {"SDLVL", "SALVL", "SLOC"}},
    {NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, NITFCnst::NITF_VERSION_NUMBER_21, "SY", "NUMS", "LSSH", "LS", "graphic", NITFCnst::XML_ELEMENT_GRAPHIC_SEGMENTS, "SSCLAS", DRAWING_AREAS, {"SDLVL", "SALVL", "SLOC"}},
    {NITFCnst::DATA_SEGMENT_TYPE_LABEL, NITFCnst::NITF_VERSION_NUMBER_20, "LA", "NUML", "LLSH", "LL", "label", NITFCnst::XML_ELEMENT_LABEL_SEGMENTS, "LSCLAS", LABEL_AREAS, {"LDLVL", "LALVL", "LLOC"}},
    {NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::NITF_VERSION_NUMBER_20, "TE", "NUMT", "LTSH", "LT", "text", NITFCnst::XML_ELEMENT_TEXT_SEGMENTS, "TSCLAS", TEXT_AREAS},
    {NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::NITF_VERSION_NUMBER_21, "TE", "NUMT", "LTSH", "LT", "text", NITFCnst::XML_ELEMENT_TEXT_SEGMENTS, "TSCLAS", TEXT_AREAS, {nullptr, "TXTALVL", nullptr}},
    {NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_20, "DE", "NUMDES", "LDSH", "LD", "des", NITFCnst::XML_ELEMENT_DATA_EXTENSION_SEGMENTS, "DESCLAS", {}},
    {NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_21, "DE", "NUMDES", "LDSH", "LD", "des", NITFCnst::XML_ELEMENT_DATA_EXTENSION_SEGMENTS, "DECLAS", {}},
    {NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_20, "RE", "NUMRES", "LRESH", "LRE", "res", NITFCnst::XML_ELEMENT_RESERVED_EXTENSION_SEGMENTS, "RESCLAS", {}},
    {NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_21, "RE", "NUMRES", "LRESH", "LRE", "res", NITFCnst::XML_ELEMENT_RESERVED_EXTENSION_SEGMENTS, "RECLAS", {}},
};
// clang-format on

/// The version whose rows hold for a file: NSIF 1.0 is NITF 2.1 under another name, and what is older than 2.0 is
/// nearest to 2.1 in its marks.
constexpr NITFCnst::Version LayoutVersion(NITFCnst::Version aVersion) noexcept
{
    return aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? aVersion : NITFCnst::NITF_VERSION_NUMBER_21;
}

/// The row of a kind; null when the version has no such segments.
constexpr const SegmentKind* FindKind(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    for (const SegmentKind& kind : SEGMENT_KINDS) {
        if (kind.kind == aKind && kind.version == LayoutVersion(aVersion)) {
            return &kind;
        }
    }
    return nullptr;
}

/// Whether only the one version has segments of the kind: graphics, or symbols and labels.
constexpr bool IsVersionSpecific(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    const NITFCnst::Version other = LayoutVersion(aVersion) == NITFCnst::NITF_VERSION_NUMBER_20
                                        ? NITFCnst::NITF_VERSION_NUMBER_21
                                        : NITFCnst::NITF_VERSION_NUMBER_20;
    return FindKind(aKind, aVersion) != nullptr && FindKind(aKind, other) == nullptr;
}

/// The row of a mark ("IM"); null when the version has no such segments.
constexpr const SegmentKind* FindKind(std::string_view aMark, NITFCnst::Version aVersion) noexcept
{
    for (const SegmentKind& kind : SEGMENT_KINDS) {
        if (!aMark.empty() && aMark == kind.mark && kind.version == LayoutVersion(aVersion)) {
            return &kind;
        }
    }
    return nullptr;
}

/// The kind and area that the word of an overflow DES (DESOFLW) names; a null kind when it names none.
struct AreaOfKind
{
    const SegmentKind* kind = nullptr;
    const ExtensionArea* area = nullptr;
};

constexpr AreaOfKind FindArea(std::string_view aWord, NITFCnst::Version aVersion) noexcept
{
    for (const SegmentKind& kind : SEGMENT_KINDS) {
        for (const ExtensionArea& area : kind.areas) {
            const bool named = aWord == area.area || (area.otherWord != nullptr && aWord == area.otherWord);
            if (named && kind.version == LayoutVersion(aVersion)) {
                return {&kind, &area};
            }
        }
    }
    return {};
}

}  // namespace ORMO::SensorModel::CSM::Detail
