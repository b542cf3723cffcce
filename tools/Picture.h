#pragma once

#include "segments/image/NITFImageSubheader.h"

#include <cstddef>
#include <string>
#include <vector>

namespace OrmoNitf {

/// An overview of an image for a person: rows of grey or of red, green and blue bytes.
struct Picture
{
    std::size_t rows = 0;
    std::size_t columns = 0;
    bool isColour = false;
    std::vector<unsigned char> bytes;
};

/// Draws an overview of an image, at most `aWidth` columns wide: look-up tables applied, colours from the bands that
/// the subheader names red, green and blue, everything else in grey and stretched between the values that all but a
/// hundredth of the pixels have. False, with the reason, when the pixels cannot be had.
bool Draw(const ORMO::SensorModel::CSM::NITFImageSubheader& aImage, std::size_t aWidth, Picture& aPicture,
          std::string& aReason);

/// The picture as a PNG file, whole in memory; false when the encoder fails.
bool EncodePng(const Picture& aPicture, std::string& aBytes);

}  // namespace OrmoNitf
