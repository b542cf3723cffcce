#include "tools/Picture.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <string_view>
#include <tuple>
#include <utility>

#include <png.h>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

constexpr std::size_t MOST_ROWS = 4096;
constexpr double NONE = std::numeric_limits<double>::quiet_NaN();

/// The samples of one band of the overview as numbers, pad pixels as NONE.
using Samples = std::vector<double>;

template<typename Number>
void Convert(const std::vector<char>& aBytes, Samples& aOut)
{
    for (std::size_t i = 0; i != aOut.size(); ++i) {
        Number number{};
        std::memcpy(&number, &aBytes[i * sizeof(Number)], sizeof(Number));
        aOut[i] = static_cast<double>(number);
    }
}

/// Complex samples are shown by their magnitude.
void ConvertComplex(const std::vector<char>& aBytes, Samples& aOut)
{
    for (std::size_t i = 0; i != aOut.size(); ++i) {
        std::array<float, 2> parts{};
        std::memcpy(parts.data(), &aBytes[i * sizeof(parts)], sizeof(parts));
        aOut[i] = std::hypot(parts[0], parts[1]);
    }
}

class Painter
{
public:
    Painter(const NITFImageSubheader& aImage, std::size_t aWidth) : m_image(aImage)
    {
        unsigned long rows = 0;
        unsigned long columns = 0;
        if (!aImage.GetImageSignificantColumnsAndRows(columns, rows)) {
            return;
        }
        const std::size_t step = std::max((columns + aWidth - 1) / aWidth, (rows + MOST_ROWS - 1) / MOST_ROWS);
        m_step = static_cast<int>(step);
        m_rows = (rows + step - 1) / step;
        m_columns = (columns + step - 1) / step;
    }

    bool Paint(Picture& aPicture, std::string& aReason)
    {
        if (m_rows == 0) {
            aReason = "ERROR: The subheader does not tell how large the image is.";
            return false;
        }
        aPicture.rows = m_rows;
        aPicture.columns = m_columns;
        const std::array<int, 3> colours = ColourBands();
        const bool good = colours[0] >= 0 ? PaintColour(colours, aPicture) : PaintOne(GreyBand(), aPicture);
        if (!good) {
            aReason = NITFImagePixelReader::GetLastPixelError();
        }
        return good;
    }

private:
    int BandOf(std::string_view aRepresentation) const
    {
        const int bands = static_cast<int>(std::min<unsigned long>(m_image.GetNumOfImageBands(), 99999));
        for (int band = 0; band != bands; ++band) {
            const NITFImgBandInfo* const info = m_image.GetImageBandInfo(band);
            if (info != nullptr && aRepresentation == info->GetFieldIREPBAND()) {
                return band;
            }
        }
        return -1;
    }

    /// The bands for red, green and blue, or for luminance and the two of chroma; -1 when the image is to be shown by
    /// one band.
    std::array<int, 3> ColourBands() const
    {
        constexpr std::array<int, 3> NO_COLOURS{-1, -1, -1};
        std::array<int, 3> bands{BandOf("R"), BandOf("G"), BandOf("B")};
        if (*std::min_element(bands.begin(), bands.end()) >= 0) {
            return bands;
        }
        bands = {BandOf("Y"), BandOf("Cb"), BandOf("Cr")};
        if (IsLuminanceAndChroma() && *std::min_element(bands.begin(), bands.end()) >= 0) {
            return bands;
        }
        const char* const representation = m_image.GetImageRepresentation();
        const std::string_view irep = representation == nullptr ? "" : representation;
        const bool isColour = irep == "RGB" || irep == "YCbCr601";
        return isColour && m_image.GetNumOfImageBands() == 3 ? std::array<int, 3>{0, 1, 2} : NO_COLOURS;
    }

    int GreyBand() const
    {
        const int lookedUp = BandOf("LU");
        return std::max(lookedUp >= 0 ? lookedUp : BandOf("M"), 0);
    }

    bool Read(int aBand, Samples& aOut) const
    {
        const std::size_t size = m_image.GetBytesPerSample();
        std::vector<char> bytes(m_rows * m_columns * size);
        if (m_image.RetrieveImageOverview(aBand, m_step, bytes.size(), bytes.data()) !=
            NITFImagePixelReader::STATUS_OK) {
            return false;
        }
        aOut.resize(m_rows * m_columns);
        const NITFCnst::PixelType type = m_image.GetImagePixelValueType();
        const bool isSigned = type == NITFCnst::PIXEL_TYPE_SI;
        if (type == NITFCnst::PIXEL_TYPE_C) {
            ConvertComplex(bytes, aOut);
        } else if (type == NITFCnst::PIXEL_TYPE_R) {
            size == 4 ? Convert<float>(bytes, aOut) : Convert<double>(bytes, aOut);
        } else if (size == 1) {
            isSigned ? Convert<std::int8_t>(bytes, aOut) : Convert<std::uint8_t>(bytes, aOut);
        } else if (size == 2) {
            isSigned ? Convert<std::int16_t>(bytes, aOut) : Convert<std::uint16_t>(bytes, aOut);
        } else if (size == 4) {
            isSigned ? Convert<std::int32_t>(bytes, aOut) : Convert<std::uint32_t>(bytes, aOut);
        } else {
            isSigned ? Convert<std::int64_t>(bytes, aOut) : Convert<std::uint64_t>(bytes, aOut);
        }
        return true;
    }

    /// In-phase and quadrature bands of a radar image are the parts of one complex band.
    bool ReadQuadrature(int aBand, Samples& aOut) const
    {
        const NITFImgBandInfo* const first = m_image.GetImageBandInfo(aBand);
        const NITFImgBandInfo* const second = m_image.GetImageBandInfo(aBand + 1);
        Samples other;
        if (first == nullptr || second == nullptr || std::string_view(first->GetFieldISUBCAT()) != "I" ||
            std::string_view(second->GetFieldISUBCAT()) != "Q" || !Read(aBand + 1, other)) {
            return false;
        }
        for (std::size_t i = 0; i != aOut.size(); ++i) {
            aOut[i] = std::hypot(aOut[i], other[i]);
        }
        return true;
    }

    bool PaintOne(int aBand, Picture& aPicture) const
    {
        Samples samples;
        if (!Read(aBand, samples)) {
            return false;
        }
        std::vector<NITFImgBandInfo::Table> tables;
        const NITFImgBandInfo* const band = m_image.GetImageBandInfo(aBand);
        if (band != nullptr && band->Get8BitColorMapArrays(tables)) {
            LookUp(samples, tables, aPicture);
            return true;
        }
        ReadQuadrature(aBand, samples);
        aPicture.isColour = false;
        aPicture.bytes.resize(samples.size());
        const auto [low, high] = Range({&samples});
        for (std::size_t i = 0; i != samples.size(); ++i) {
            aPicture.bytes[i] = Stretched(samples[i], low, high);
        }
        return true;
    }

    void LookUp(const Samples& aSamples, const std::vector<NITFImgBandInfo::Table>& aTables, Picture& aPicture) const
    {
        aPicture.isColour = aTables.size() >= 3;
        const std::size_t channels = aPicture.isColour ? 3 : 1;
        aPicture.bytes.clear();
        aPicture.bytes.reserve(aSamples.size() * channels);
        const auto last = static_cast<double>(aTables.front().size() - 1);
        for (const double sample : aSamples) {
            const auto entry = static_cast<std::size_t>(std::clamp(sample, 0.0, last));
            for (std::size_t channel = 0; channel != channels; ++channel) {
                aPicture.bytes.push_back(aTables[channel][entry]);
            }
        }
    }

    bool PaintColour(const std::array<int, 3>& aBands, Picture& aPicture) const
    {
        std::array<Samples, 3> channels;
        for (std::size_t i = 0; i != channels.size(); ++i) {
            if (!Read(aBands[i], channels[i])) {
                return false;
            }
        }
        if (IsLuminanceAndChroma()) {
            ToRedGreenBlue(channels);
        }
        double low = 0.0;
        double high = 255.0;
        if (m_image.GetBytesPerSample() != 1 || m_image.GetImagePixelValueType() != NITFCnst::PIXEL_TYPE_INT) {
            std::tie(low, high) = Range({&channels[0], &channels[1], &channels[2]});
        }
        aPicture.isColour = true;
        aPicture.bytes.resize(channels[0].size() * 3);
        for (std::size_t i = 0; i != channels[0].size(); ++i) {
            for (std::size_t channel = 0; channel != 3; ++channel) {
                aPicture.bytes[i * 3 + channel] = Stretched(channels[channel][i], low, high);
            }
        }
        return true;
    }

    /// Whether the bands are those of YCbCr601. The decoder of JPEG makes red, green and blue of them by itself.
    bool IsLuminanceAndChroma() const
    {
        const char* const representation = m_image.GetImageRepresentation();
        const NITFCnst::IC code = m_image.GetEnumFieldIC();
        return representation != nullptr && std::string_view(representation) == "YCbCr601" && code != NITFCnst::IC_C3 &&
               code != NITFCnst::IC_M3 && m_image.GetBytesPerSample() == 1;
    }

    static void ToRedGreenBlue(std::array<Samples, 3>& aChannels)
    {
        for (std::size_t i = 0; i != aChannels[0].size(); ++i) {
            const double y = aChannels[0][i];
            const double cb = aChannels[1][i] - 128.0;
            const double cr = aChannels[2][i] - 128.0;
            aChannels[0][i] = y + 1.402 * cr;
            aChannels[1][i] = y - 0.344136 * cb - 0.714136 * cr;
            aChannels[2][i] = y + 1.772 * cb;
        }
    }

    /// The values below and above which a hundredth of the pixels lies; pad pixels and what is no number do not count.
    std::pair<double, double> Range(std::initializer_list<const Samples*> aSamples) const
    {
        double pad = NONE;
        m_image.GetPadPixelValueAsDouble(pad);
        std::vector<double> counted;
        for (const Samples* const samples : aSamples) {
            std::copy_if(samples->begin(), samples->end(), std::back_inserter(counted),
                         [pad](double aValue) { return std::isfinite(aValue) && aValue != pad; });
        }
        if (counted.empty()) {
            return {0.0, 1.0};
        }
        const auto rank = [&counted](double aPart) {
            const auto place =
                counted.begin() + static_cast<std::ptrdiff_t>(aPart * static_cast<double>(counted.size() - 1));
            std::nth_element(counted.begin(), place, counted.end());
            return *place;
        };
        const std::pair<double, double> inner{rank(0.01), rank(0.99)};
        return inner.first < inner.second ? inner : std::pair<double, double>{rank(0.0), rank(1.0)};
    }

    static unsigned char Stretched(double aValue, double aLow, double aHigh)
    {
        if (!std::isfinite(aValue)) {
            return 0;
        }
        if (!(aLow < aHigh)) {
            return aValue > 0.0 ? 128 : 0;  // all pixels are alike
        }
        return static_cast<unsigned char>(std::clamp((aValue - aLow) / (aHigh - aLow), 0.0, 1.0) * 255.0 + 0.5);
    }

    const NITFImageSubheader& m_image;
    int m_step = 1;
    std::size_t m_rows = 0;
    std::size_t m_columns = 0;
};

}  // namespace

bool Draw(const NITFImageSubheader& aImage, std::size_t aWidth, Picture& aPicture, std::string& aReason)
{
    return Painter(aImage, aWidth).Paint(aPicture, aReason);
}

bool EncodePng(const Picture& aPicture, std::string& aBytes)
{
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(aPicture.columns);
    png.height = static_cast<png_uint_32>(aPicture.rows);
    png.format = aPicture.isColour ? PNG_FORMAT_RGB : PNG_FORMAT_GRAY;
    png_alloc_size_t size = 0;
    if (png_image_write_to_memory(&png, nullptr, &size, 0, aPicture.bytes.data(), 0, nullptr) == 0) {
        return false;
    }
    aBytes.resize(size);
    const bool good = png_image_write_to_memory(&png, aBytes.data(), &size, 0, aPicture.bytes.data(), 0, nullptr) != 0;
    aBytes.resize(good ? size : 0);
    return good;
}

}  // namespace OrmoNitf
