#pragma once

#include "tre/RawNITFMetadata.h"
#include "tre/TRE.h"

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// The maps and lists that public queries of a TRE hand out. Each is made from the table and the store when it is first
/// asked for; the rows stay the truth.
struct TreViews
{
    std::recursive_mutex guard;
    std::vector<std::string> names;
    std::vector<std::string> descriptionTexts;
    std::optional<std::vector<const char*>> fields;
    std::optional<std::vector<const char*>> descriptions;
    std::optional<std::vector<bool>> binary;
    std::optional<TRE::FieldTexts> values;
    std::optional<TRE::FieldTexts> editability;
    std::optional<TRE::FieldWidths> widths;
    std::optional<TRE::FieldDataTypes> dataTypes;
    std::optional<TRE::FieldInfos> infos;
    std::optional<std::string> description;
    std::unique_ptr<RawNITFMetadata> metadata;
};

}  // namespace ORMO::SensorModel::CSM::Detail
