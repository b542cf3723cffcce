#pragma once

#include "fields/FieldXml.h"
#include "nitf/NITFCnst.h"

namespace ORMO::SensorModel::CSM::Detail {

/// The words that one kind of header has of its own in the texts that all kinds share.
struct SegmentWords
{
    const char* owner;           ///< "NITFFileHeader"
    const char* element;         ///< XML element of a field
    const char* indent;          ///< blanks before that element
    const char* requiredPrefix;  ///< opens the text of a required field that cannot be read
    const char* conditionalPrefix;
    const char* streamSuffix;   ///< closes both
    const char* summary;        ///< added when the read fails as a whole; "" for none
    const char* emptyName;      ///< for numeric and boolean queries
    const char* emptyTextName;  ///< for text queries
    const char* emptyTreName;   ///< for queries with a TRE tag
    const char* requested;      ///< opens the text of a field that is not there
    const char* notFound;       ///< closes it
    const char* requestedTre;   ///< opens the text of a TRE field that is not there
    /// Closes the text of a numeric query for a field that is not there; null when such queries have the texts of all
    /// others.
    const char* isNotAField;
    FieldNaming naming = FieldNaming::TagAndLongName;  ///< how the XML element of a field names it
    const char* className = nullptr;                   ///< in the texts of assignments; null when it is the owner
};

/// The words of both versions of a text subheader.
constexpr SegmentWords TextWords(const char* aClassName) noexcept
{
    constexpr const char* EMPTY = "ERROR: NULL/empty input NITF text subheader field name string.";
    constexpr const char* IS_NOT_A_FIELD = " is not a NITF text subheader field.";
    return {
        .owner = NITFCnst::XML_ELEMENT_TEXT_SEGMENT,
        .element = NITFCnst::XML_ELEMENT_TS_FIELD,
        .indent = "      ",
        .requiredPrefix = "ERROR: Failed to extract required field ",
        .conditionalPrefix = "ERROR: Failed to extract conditional field ",
        .streamSuffix = " from the text subheader data stream.",
        .summary = "ERROR: Failed to get all the NITF text segment subheader field values from the input data stream.",
        .emptyName = EMPTY,
        .emptyTextName = EMPTY,
        .emptyTreName = EMPTY,
        .requested = "ERROR: Requested text subheader field ",
        .notFound = IS_NOT_A_FIELD,
        .requestedTre = "ERROR: Requested text subheader TRE field ",
        .isNotAField = IS_NOT_A_FIELD,
        .naming = FieldNaming::PositionAndTag,
        .className = aClassName};
}

/// The words of both versions of a DES subheader; they differ in the summary.
constexpr SegmentWords DesWords(const char* aClassName, const char* aSummary) noexcept
{
    constexpr const char* EMPTY = "ERROR: NULL/empty input NITF DES subheader field name string.";
    return {.owner = NITFCnst::XML_ELEMENT_DATA_EXTENSION_SEGMENT,
            .element = NITFCnst::XML_ELEMENT_DES_FIELD,
            .indent = "      ",
            .requiredPrefix = "ERROR: Failed to extract DES required field ",
            .conditionalPrefix = "ERROR: Failed to extract DES conditional field ",
            .streamSuffix = " from the DES subheader data stream.",
            .summary = aSummary,
            .emptyName = EMPTY,
            .emptyTextName = EMPTY,
            .emptyTreName = EMPTY,
            .requested = "ERROR: Requested NITF DES subheader field ",
            .notFound = " not found.",
            .requestedTre = "ERROR: Requested TRE_OVERFLOW TRE field ",
            .isNotAField = nullptr,
            .naming = FieldNaming::PositionAndTag,
            .className = aClassName};
}

/// The words of both versions of a RES subheader; they differ in the summary.
constexpr SegmentWords ResWords(const char* aClassName, const char* aSummary) noexcept
{
    constexpr const char* EMPTY = "ERROR: NULL/empty input NITF RES subheader field name string.";
    constexpr const char* REQUESTED = "ERROR: Requested NITF RES subheader field ";
    return {.owner = NITFCnst::XML_ELEMENT_RESERVED_EXTENSION_SEGMENT,
            .element = NITFCnst::XML_ELEMENT_RES_FIELD,
            .indent = "      ",
            .requiredPrefix = "ERROR: Failed to extract RES required field ",
            .conditionalPrefix = "ERROR: Failed to extract RES conditional field ",
            .streamSuffix = " from the RES subheader data stream.",
            .summary = aSummary,
            .emptyName = EMPTY,
            .emptyTextName = EMPTY,
            .emptyTreName = EMPTY,
            .requested = REQUESTED,
            .notFound = " not found.",
            .requestedTre = REQUESTED,
            .isNotAField = nullptr,
            .naming = FieldNaming::PositionAndTag,
            .className = aClassName};
}

}  // namespace ORMO::SensorModel::CSM::Detail
