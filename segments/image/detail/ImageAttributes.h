#pragma once

#include "foundation/detail/Lazy.h"
#include "segments/image/NITFImageSubheader.h"
#include "segments/image/detail/ImagePixels.h"
#include "segments/image/detail/PixelLayout.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What follows from the fields and the TREs of an image subheader and is asked for often.
struct ORMO_CSM_LOCAL NITFImageSubheader::Attributes
{
    NITFCnst::IC compression = NITFCnst::IC_UNKNOWN;
    const char* compressionCode = nullptr;
    const char* representation = nullptr;
    const char* category = nullptr;
    double magnification = 0.0;
    char icords = '\0';
    bool isGeographic = false;
    /// Whether NBPP, ABPP, PJUST and PVTYPE are what the version allows.
    bool arePixelBitsValid = false;
    Detail::PixelLayout layout;
    std::vector<std::uint64_t> blockRowStarts;
    std::vector<std::uint64_t> blockColumnStarts;
    const TreRPC00* rpc = nullptr;
    char rpcAvailability = NITFCnst::RPC00_NOT_AVAILABLE;
};

/// ILOC, which is asked for when the file is opened and so not kept with what is worked out later.
struct ORMO_CSM_LOCAL NITFImageSubheader::Location
{
    long row = 0;
    long column = 0;
};

/// The parts of an image that are made when somebody asks for them, and what a sensor model gave.
struct ORMO_CSM_LOCAL NITFImageSubheader::Derived
{
    struct SensorModelCorners
    {
        double latitudes[NITFImgExtent::NUM_OF_CORNERS];
        double longitudes[NITFImgExtent::NUM_OF_CORNERS];
        double heights[NITFImgExtent::NUM_OF_CORNERS];
        std::string model;
        std::string source;
    };

    Detail::Lazy<Attributes> attributes;
    Detail::Lazy<std::vector<NITFImgBandInfo>> bands;
    Detail::Lazy<NITFImgExtent> extent;
    Detail::Lazy<std::unique_ptr<const Detail::ImagePixels>> pixels;
    std::optional<SensorModelCorners> sensorModel;

    const Detail::ImagePixels& Pixels(const NITFImageSubheader& aImage) const;
    Status Read(const NITFImageSubheader& aImage, const Detail::PixelWindow& aWindow, std::uint64_t aBufferSize,
                void* aBuffer, std::FILE* aFile) const;
};

}  // namespace ORMO::SensorModel::CSM
