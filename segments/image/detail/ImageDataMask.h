#pragma once

#include "fields/ByteSource.h"
#include "fields/FieldTable.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/detail/PixelLayout.h"

#include <memory>

namespace ORMO::SensorModel::CSM {

struct NITFImageDataMaskSubheader::Image
{
    std::shared_ptr<const Detail::ByteSource> source;
    const Detail::PixelLayout& layout;
};

namespace Detail {
/// The fixed part of the image data mask table.
const FieldTable& ImageDataMaskTable() noexcept;
}  // namespace Detail

}  // namespace ORMO::SensorModel::CSM
