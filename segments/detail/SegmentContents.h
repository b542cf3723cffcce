#pragma once

#include "fields/FieldStore.h"
#include "nitf/NITFCnst.h"
#include "tre/TREStore.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

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
