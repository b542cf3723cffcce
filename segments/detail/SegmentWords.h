#pragma once

#include "fields/FieldXml.h"
#include "nitf/NITFCnst.h"

namespace ORMO::SensorModel::CSM::Detail {

/// The words that one kind of header has of its own in the texts that all kinds share. Both versions have the same;
/// what differs stands in the layout.
struct SegmentWords
{
    const char* element;         ///< XML element of a field
    const char* indent;          ///< blanks before that element
    const char* requiredPrefix;  ///< opens the text of a required field that cannot be read
    const char* conditionalPrefix;
    const char* streamSuffix;  ///< closes both
    /// Opens a text of its own that stands before that of a conditional field which ends beyond the data, whose closing
    /// is " from the data stream."; null for none.
    const char* fieldPrefix = nullptr;
    const char* invalidPrefix;  ///< opens the text of a count or length that is invalid; " is invalid." closes it
    const char* emptyName;      ///< for numeric and boolean queries
    const char* emptyTextName;  ///< for text queries
    const char* emptyTreName;   ///< for queries with a TRE tag; null when they have the texts of the others
    const char* requested;      ///< opens the text of a field that is not there
    const char* notFound;       ///< closes it
    const char* requestedTre;   ///< opens the text of a TRE field that is not there
    /// Closes the text of a numeric query for a field that is not there; null when such queries have the texts of all
    /// others.
    const char* isNotAField;
    const char* treNumber = "ERROR: Data type of ";  ///< opens the text of a TRE field that is no such number
    const char* kindWord = "";           ///< "text", "DES" or "RES" in the texts of a segment that cannot be read
    const char* reader = "";             ///< source of those texts
    const char* numberFault = "";        ///< the number of the segment is out of range
    const char* numberReader = nullptr;  ///< source of that text; null when it is that of the others
    int mostNumber = 999;                ///< a larger one cannot be read
    FieldNaming naming = FieldNaming::TagAndLongName;  ///< how the XML element of a field names it
};

inline constexpr const char* EXTRACT_REQUIRED = "ERROR: Failed to extract required field ";
inline constexpr const char* EXTRACT_CONDITIONAL = "ERROR: Failed to extract conditional field ";

inline constexpr SegmentWords FILE_HEADER_WORDS{
    .element = NITFCnst::XML_ELEMENT_FH_FIELD,
    .indent = "    ",
    .requiredPrefix = EXTRACT_REQUIRED,
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the NITF file header data stream.",
    .fieldPrefix = "ERROR: NITF file header data stream contains errors - failed to extract field ",
    .invalidPrefix = "ERROR: NITF file header data stream contains errors - value of field ",
    .emptyName = "ERROR: NULL/empty input NITF file header field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF file header/file header TRE field name string.",
    .emptyTreName = nullptr,
    .requested = "ERROR: Requested NITF file header field ",
    .notFound = " not found.",
    .requestedTre = "ERROR: Requested NITF file header TRE field ",
    .isNotAField = " is not a NITF file header field."};

inline constexpr SegmentWords IMAGE_WORDS{
    .element = NITFCnst::XML_ELEMENT_IS_FIELD,
    .indent = "      ",
    .requiredPrefix = EXTRACT_REQUIRED,
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the image subheader data stream.",
    .invalidPrefix = "ERROR: Value of image subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF image segment field name string.",
    .emptyTextName = "ERROR: NULL/empty input image subheader field name string.",
    .emptyTreName = "ERROR: NULL/empty input image subheader TRE field name string.",
    .requested = "ERROR: Requested image subheader field ",
    .notFound = " is not a NITF image segment field.",
    .requestedTre = "ERROR: Requested image subheader TRE field ",
    .isNotAField = " is not a NITF image segment field.",
    .treNumber = "ERROR: Requested image subheader TRE field ",
    .kindWord = "image",
    .reader = "NITFImageSubheader::InitNITFImageSegment",
    .numberFault = "ERROR: Input image segment number is out of valid range.",
    .numberReader = "NITFImageSubheader::InitNITFImageSubheader",
    .mostNumber = 998};

inline constexpr SegmentWords TEXT_WORDS{
    .element = NITFCnst::XML_ELEMENT_TS_FIELD,
    .indent = "      ",
    .requiredPrefix = EXTRACT_REQUIRED,
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the text subheader data stream.",
    .invalidPrefix = "ERROR: Value of text subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF text subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF text subheader field name string.",
    .emptyTreName = nullptr,
    .requested = "ERROR: Requested text subheader field ",
    .notFound = " is not a NITF text subheader field.",
    .requestedTre = "ERROR: Requested text subheader TRE field ",
    .isNotAField = " is not a NITF text subheader field.",
    .kindWord = "text",
    .reader = "NITFTextSubheader::InitNITFTextSegment",
    .numberFault = "ERROR: Input text segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

inline constexpr SegmentWords GRAPHIC_WORDS{
    .element = NITFCnst::XML_ELEMENT_GS_FIELD,
    .indent = "      ",
    .requiredPrefix = "ERROR: Graphic segment subheader fields data store contains errors - missing required field ",
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the graphic subheader data stream.",
    .invalidPrefix = "ERROR: Value of graphic subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF graphic subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF graphic subheader field name string.",
    .emptyTreName = "ERROR: NULL/empty input NITF graphic subheader field name string.",
    .requested = "ERROR: Requested graphic subheader field ",
    .notFound = " is not a NITF graphic subheader field.",
    .requestedTre = "ERROR: Requested graphic subheader TRE field ",
    .isNotAField = " is not a NITF graphic subheader field.",
    .kindWord = "graphic",
    .reader = "NITF21GraphicSubheader::InitNITF21GraphicSubheader",
    .numberFault = "ERROR: Input graphic segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

inline constexpr SegmentWords SYMBOL_WORDS{
    .element = NITFCnst::XML_ELEMENT_SS_FIELD,
    .indent = "      ",
    .requiredPrefix = EXTRACT_REQUIRED,
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the symbol subheader data stream.",
    .invalidPrefix = "ERROR: Value of symbol subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF symbol subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF symbol subheader field name string.",
    .emptyTreName = "ERROR: NULL/empty input NITF symbol subheader field name string.",
    .requested = "ERROR: Requested symbol subheader field ",
    .notFound = " is not a NITF symbol subheader field.",
    .requestedTre = "ERROR: Requested symbol subheader TRE field ",
    .isNotAField = " is not a NITF symbol subheader field.",
    .kindWord = "symbol",
    .reader = "NITF20SymbolSubheader::InitNITF20SymbolSubheader",
    .numberFault = "ERROR: Input symbol segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

inline constexpr SegmentWords LABEL_WORDS{
    .element = NITFCnst::XML_ELEMENT_LS_FIELD,
    .indent = "      ",
    .requiredPrefix = "ERROR: Label segment subheader fields data store contains errors - missing required field ",
    .conditionalPrefix = EXTRACT_CONDITIONAL,
    .streamSuffix = " from the label subheader data stream.",
    .invalidPrefix = "ERROR: Value of label subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF label subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF label subheader field name string.",
    .emptyTreName = "ERROR: NULL/empty input NITF label subheader field name string.",
    .requested = "ERROR: Requested label subheader field ",
    .notFound = " is not a NITF label subheader field.",
    .requestedTre = "WARN: Label segment TRE field ",
    .isNotAField = " is not a NITF label subheader field.",
    .kindWord = "label",
    .reader = "NITF20LabelSubheader::InitNITF20LabelSubheader",
    .numberFault = "ERROR: Input label segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

inline constexpr SegmentWords DES_WORDS{
    .element = NITFCnst::XML_ELEMENT_DES_FIELD,
    .indent = "      ",
    .requiredPrefix = "ERROR: Failed to extract DES required field ",
    .conditionalPrefix = "ERROR: Failed to extract DES conditional field ",
    .streamSuffix = " from the DES subheader data stream.",
    .invalidPrefix = "ERROR: Value of DES field ",
    .emptyName = "ERROR: NULL/empty input NITF DES subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF DES subheader field name string.",
    .emptyTreName = nullptr,
    .requested = "ERROR: Requested NITF DES subheader field ",
    .notFound = " not found.",
    .requestedTre = "ERROR: Requested TRE_OVERFLOW TRE field ",
    .isNotAField = nullptr,
    .kindWord = "DES",
    .reader = "NITFDESSubheader::InitNITFDES",
    .numberFault = "ERROR: Input DES segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

inline constexpr SegmentWords RES_WORDS{
    .element = NITFCnst::XML_ELEMENT_RES_FIELD,
    .indent = "      ",
    .requiredPrefix = "ERROR: Failed to extract RES required field ",
    .conditionalPrefix = "ERROR: Failed to extract RES conditional field ",
    .streamSuffix = " from the RES subheader data stream.",
    .invalidPrefix = "ERROR: Value of RES subheader field ",
    .emptyName = "ERROR: NULL/empty input NITF RES subheader field name string.",
    .emptyTextName = "ERROR: NULL/empty input NITF RES subheader field name string.",
    .emptyTreName = nullptr,
    .requested = "ERROR: Requested NITF RES subheader field ",
    .notFound = " not found.",
    .requestedTre = "ERROR: Requested NITF RES subheader field ",
    .isNotAField = nullptr,
    .kindWord = "RES",
    .reader = "NITFRESSubheader::InitNITFRES",
    .numberFault = "ERROR: Input RES segment number out of valid range.",
    .naming = FieldNaming::PositionTagAndLongName};

}  // namespace ORMO::SensorModel::CSM::Detail
