#pragma once

#include "fields/FieldStore.h"
#include "fields/FieldXml.h"
#include "tre/TREStore.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

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

/// Maps and lists over the fields of a header, made when somebody asks for them.
struct SegmentViews
{
    std::recursive_mutex guard;
    std::vector<std::string> names;
    std::optional<std::vector<const char*>> tags;
    std::optional<std::vector<const char*>> descriptions;
    std::optional<std::vector<bool>> binary;
    std::optional<std::map<std::string, std::string>> editability;
    std::optional<std::map<std::string, int>> lengths;
    std::optional<std::map<std::string, NITFCnst::FieldType>> types;
};

/// What was read of one header: its bytes, its fields and the TREs of its extension areas.
struct SegmentContents
{
    std::string raw;
    FieldStore fields;
    TREStore tres;
};

}  // namespace ORMO::SensorModel::CSM::Detail
