#pragma once

#include "segments/des/DesXmlProduct.h"

#include <cstddef>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The most bytes of a document that are looked at: what is wanted stands near its front.
constexpr std::size_t MOST_XML_READ = std::size_t{1} << 22U;

/// Recognises the document of a SICD or SIDD product by the namespace of its root element and reads what it says of
/// itself. False for any other document. Documents with a document type are not read, so there are no entities to
/// expand and nothing is fetched; elements nest no deeper than a bound. A document that is cut or broken behind its
/// root gives what stood before. A library built without ORMO_XML_PRODUCTS recognises none.
[[nodiscard]] bool RecogniseXmlProduct(std::string_view aDocument, DesXmlProduct& aProduct);

}  // namespace ORMO::SensorModel::CSM::Detail
