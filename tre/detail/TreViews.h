#pragma once

#include "foundation/detail/Lazy.h"
#include "tre/RawNITFMetadata.h"
#include "tre/TRE.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// Texts and the pointers to them that are handed out.
struct TextList
{
    std::vector<std::string> texts;
    std::vector<const char*> pointers;
};

/// The coefficients of rational polynomials: numerator and denominator for line, then for sample.
struct RpcCoefficients
{
    std::array<std::array<double, 20>, 4> polynomials{};
    bool usable = false;
};

/// The maps and lists that public queries of a TRE hand out. Each is made from the table and the store when it is first
/// asked for; the rows stay the truth.
struct TreViews
{
    Lazy<std::string> data;
    Lazy<TextList> names;
    Lazy<TextList> helps;
    Lazy<std::vector<bool>> binary;
    Lazy<TRE::FieldTexts> values;
    Lazy<TRE::FieldTexts> editability;
    Lazy<TRE::FieldWidths> widths;
    Lazy<TRE::FieldDataTypes> dataTypes;
    Lazy<TRE::FieldInfos> infos;
    Lazy<std::string> description;
    Lazy<std::unique_ptr<const RawNITFMetadata>> metadata;
    Lazy<RpcCoefficients> coefficients;
};

}  // namespace ORMO::SensorModel::CSM::Detail
