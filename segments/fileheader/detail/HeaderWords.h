#pragma once

#include "segments/detail/SegmentWords.h"

namespace ORMO::SensorModel::CSM::Detail {

/// The words of both versions of the file header; they differ in the required prefix and the summary.
constexpr SegmentWords FileHeaderWords(const char* aRequiredPrefix, const char* aSummary) noexcept
{
    constexpr const char* EMPTY = "ERROR: NULL/empty input NITF file header/file header TRE field name string.";
    return {.owner = NITFCnst::XML_ELEMENT_NITF_FILE_HEADER,
            .element = NITFCnst::XML_ELEMENT_FH_FIELD,
            .indent = "    ",
            .requiredPrefix = aRequiredPrefix,
            .conditionalPrefix = "ERROR: Failed to extract conditional field ",
            .streamSuffix = " from the NITF file header data stream.",
            .summary = aSummary,
            .emptyName = "ERROR: NULL/empty input NITF file header field name string.",
            .emptyTextName = EMPTY,
            .emptyTreName = EMPTY,
            .requested = "ERROR: Requested NITF file header field ",
            .notFound = " not found.",
            .requestedTre = "ERROR: Requested NITF file header TRE field ",
            .isNotAField = " is not a NITF file header field."};
}

/// The words of both versions of the image subheader; they differ in the summary.
constexpr SegmentWords ImageWords(const char* aSummary) noexcept
{
    constexpr const char* IS_NOT_A_FIELD = " is not a NITF image segment field.";
    return {.owner = NITFCnst::XML_ELEMENT_IMAGE_SEGMENT,
            .element = NITFCnst::XML_ELEMENT_IS_FIELD,
            .indent = "      ",
            .requiredPrefix = "ERROR: Failed to extract required field ",
            .conditionalPrefix = "ERROR: Failed to extract conditional field ",
            .streamSuffix = " from the image subheader data stream.",
            .summary = aSummary,
            .emptyName = "ERROR: NULL/empty input NITF image segment field name string.",
            .emptyTextName = "ERROR: NULL/empty input image subheader field name string.",
            .emptyTreName = "ERROR: NULL/empty input image subheader TRE field name string.",
            .requested = "ERROR: Requested image subheader field ",
            .notFound = IS_NOT_A_FIELD,
            .requestedTre = "ERROR: Requested image subheader TRE field ",
            .isNotAField = IS_NOT_A_FIELD};
}

}  // namespace ORMO::SensorModel::CSM::Detail
