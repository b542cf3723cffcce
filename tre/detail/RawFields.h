#pragma once

#include "fields/FieldRecord.h"
#include "tre/RawNITFMetadataFields.h"

namespace ORMO::SensorModel::CSM::Detail {

/// What raw metadata says of the fields of a header, subheader or TRE: all of them are present. A field without an
/// explanation of its own is described by its long name.
RawNITFMetadataFields RawFieldsOf(const FieldRecord& aRecord);

}  // namespace ORMO::SensorModel::CSM::Detail
