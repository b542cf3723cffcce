#pragma once

#include "isd/ImageSupportDataNITF.h"

#include <string>

namespace OrmoNitf {

/// "graphic 2".
std::string NameOf(const ORMO::SensorModel::CSM::NITFFieldSegment& aSegment);

/// Graphics, symbols and labels over the outlines of the images as an SVG document, or one of them alone.
std::string Drawing(const ORMO::SensorModel::CSM::ImageSupportDataNITF& aIsd,
                    const ORMO::SensorModel::CSM::NITFDrawnSegment* aOnly);

}  // namespace OrmoNitf
