#pragma once

namespace ORMO::SensorModel::CSM::Detail {

/// One segment kind of a NITF version: the file header's fields for it. The limits of the lengths are those of the
/// fields' rows.
struct KindFields
{
    const char* type;
    const char* count;
    const char* header;
    const char* data;
};

}  // namespace ORMO::SensorModel::CSM::Detail
