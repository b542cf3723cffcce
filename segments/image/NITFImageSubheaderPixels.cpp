// Bands, data mask and pixels of an image.

#include "fields/ByteSource.h"
#include "segments/detail/SegmentData.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/NITFImageSubheader.h"
#include "segments/image/detail/ImageAttributes.h"
#include "segments/image/detail/UncompressedPixels.h"

#include <array>
#include <bit>
#include <cstring>
#include <new>
#include <string>

namespace ORMO::SensorModel::CSM {

// ---- Bands

std::vector<NITFImgBandInfo> NITFImageSubheader::ExtractImageBandsInfos() const
{
    const Detail::FieldStore& fields = Inside().record.Store();
    const Detail::FieldTable& table = fields.Table();
    const auto row = [&table](const char* aFirst) {
        Detail::Turns turns{};
        return table.Resolve(aFirst, turns);
    };
    const std::uint16_t irepband = row("IREPBAND_1");
    const std::uint16_t isubcat = row("ISUBCAT_1");
    const std::uint16_t ifc = row("IFC_1");
    const std::uint16_t imflt = row("IMFLT_1");
    const std::uint16_t nluts = row("NLUTS_1");
    const std::uint16_t nelut = row("NELUT_1");
    const std::uint16_t lutd = row("LUTD_1_1");
    const std::string_view irep = FieldText("IREP");
    std::vector<NITFImgBandInfo> bands;
    NITFImgBandInfo::Fields band;
    const auto finish = [&] {
        if (!band.nluts.empty()) {
            bands.emplace_back(bands.size(), irep, band);
        }
        band = {};
    };
    for (const Detail::FieldEntry& entry : fields.Entries()) {  // in the order of the header, so band by band
        const std::string_view value = fields.Value(entry);
        if (entry.row == irepband) {
            finish();
            band.irepband = value;
        } else if (entry.row == isubcat) {
            band.isubcat = value;
        } else if (entry.row == ifc) {
            band.ifc = value;
        } else if (entry.row == imflt) {
            band.imflt = value;
        } else if (entry.row == nluts) {
            band.nluts = value;
        } else if (entry.row == nelut) {
            band.nelut = value;
        } else if (entry.row == lutd) {
            band.lutd.push_back(value);
        }
    }
    finish();
    FinalizeSettingOfBandsInformation(bands);
    return bands;
}

void NITFImageSubheader::FinalizeSettingOfBandsInformation(std::vector<NITFImgBandInfo>& aBands) const
{
    for (const char* const tag : {"BANDSA", "BANDSB"}) {
        for (const TRE* const tre : FindTREs(tag)) {
            // The TREs belong to the subheader, as the bands do.
            const std::shared_ptr<const TRE> shared(std::shared_ptr<const TRE>(), tre);
            for (NITFImgBandInfo& band : aBands) {
                band.AddTreBANDS(shared);
            }
        }
    }
}

const NITFImgBandInfo* NITFImageSubheader::GetImageBandInfo(int aBand) const
{
    const std::vector<NITFImgBandInfo>& bands = m_derived->bands.Get([this] { return ExtractImageBandsInfos(); });
    return aBand < 0 || static_cast<std::size_t>(aBand) >= bands.size() ? nullptr
                                                                        : &bands[static_cast<std::size_t>(aBand)];
}

bool NITFImageSubheader::HasLUTsForBand(int aBand) const
{
    const NITFImgBandInfo* const band = GetImageBandInfo(aBand);
    return band != nullptr && band->HasLUTs();
}

bool NITFImageSubheader::GetLUTs(int aBand, std::vector<NITFImgBandInfo::WideTable>& aTables) const
{
    const NITFImgBandInfo* const band = GetImageBandInfo(aBand);
    return band != nullptr && band->GetLUTs(aTables);
}

// ---- Data mask

const Detail::ImagePixels& NITFImageSubheader::Derived::Pixels(const NITFImageSubheader& aImage) const
{
    return *pixels.Get([&aImage] {
        return std::unique_ptr<const Detail::ImagePixels>(
            std::make_unique<Detail::ImagePixels>(aImage.TheAttributes().layout, aImage.TheData().Source(),
                                                  static_cast<std::uint32_t>(aImage.GetImageSegmentNumber())));
    });
}

std::shared_ptr<const NITFImageDataMaskSubheader> NITFImageSubheader::ExtractDataMaskSubheader(
    std::string& aError) const
{
    return m_derived->Pixels(*this).Mask(aError);
}

bool NITFImageSubheader::HasDataMaskSubheader() const
{
    return TheAttributes().layout.IsMasked();
}

std::shared_ptr<const NITFImageDataMaskSubheader> NITFImageSubheader::GetImageDataMask() const
{
    ClearMessages();
    std::string error;
    auto mask = ExtractDataMaskSubheader(error);
    if (mask == nullptr) {
        AddError(error);
    }
    return mask;
}

bool NITFImageSubheader::HasPadPixelValue() const
{
    std::string ignored;
    const auto mask = ExtractDataMaskSubheader(ignored);
    return mask != nullptr && mask->HasPadPixelValue();
}

bool NITFImageSubheader::GetPadPixelComplex(double& aReal, double& aImaginary) const
{
    std::string ignored;
    const auto mask = ExtractDataMaskSubheader(ignored);
    const Detail::PixelLayout& layout = TheAttributes().layout;
    const std::size_t size = layout.SampleSize();
    if (mask == nullptr || !mask->HasPadPixelValue() || size == 0) {
        return false;
    }
    std::array<char, 8> sample{};
    Detail::WriteSample(layout, Detail::PadPixelValue(layout, mask->GetFieldTPXCD(), mask->GetFieldTPXCDLNTH()),
                        sample.data());
    const auto as = [&sample]<typename Number>(Number aNumber, std::size_t aAt) {
        std::memcpy(&aNumber, sample.data() + aAt, sizeof(Number));
        return static_cast<double>(aNumber);
    };
    aImaginary = 0.0;
    if (layout.type == NITFCnst::PIXEL_TYPE_C) {
        aReal = as(float{}, 0);
        aImaginary = as(float{}, 4);
    } else if (layout.type == NITFCnst::PIXEL_TYPE_R) {
        aReal = size == 4 ? as(float{}, 0) : as(double{}, 0);
    } else if (layout.type == NITFCnst::PIXEL_TYPE_SI) {
        aReal = size == 1   ? as(std::int8_t{}, 0)
                : size == 2 ? as(std::int16_t{}, 0)
                : size == 4 ? as(std::int32_t{}, 0)
                            : as(std::int64_t{}, 0);
    } else {
        aReal = size == 1   ? as(std::uint8_t{}, 0)
                : size == 2 ? as(std::uint16_t{}, 0)
                : size == 4 ? as(std::uint32_t{}, 0)
                            : as(std::uint64_t{}, 0);
    }
    return true;
}

bool NITFImageSubheader::GetPadPixelValueAsDouble(double& aValue) const
{
    double imaginary = 0.0;
    return TheAttributes().layout.type != NITFCnst::PIXEL_TYPE_C && GetPadPixelComplex(aValue, imaginary);
}

// ---- Pixels

std::size_t NITFImageSubheader::GetBytesPerSample() const
{
    return TheAttributes().layout.SampleSize();
}

NITFImagePixelReader::Status NITFImageSubheader::RetrieveImageOverview(int aBand, int aStep, std::size_t aBufferSize,
                                                                       void* aBuffer) const
{
    const Detail::PixelLayout& layout = TheAttributes().layout;
    return m_derived->Read(*this,
                           {0, 0, layout.rows, layout.columns, static_cast<std::uint64_t>(aBand),
                            static_cast<std::uint64_t>(aStep < 0 ? 0 : aStep)},
                           aBufferSize, aBuffer, nullptr);
}

NITFImagePixelReader::Status NITFImageSubheader::RetrieveImagePixels(int aFirstRow, int aFirstColumn, int aRows,
                                                                     int aColumns, int aBand, int aBufferSize,
                                                                     void* aBuffer, std::FILE* aFile) const
{
    // Negative numbers become huge ones, which are out of range.
    const auto unsignedOf = [](int aNumber) { return static_cast<std::uint64_t>(std::int64_t{aNumber}); };
    return m_derived->Read(*this,
                           {unsignedOf(aFirstRow), unsignedOf(aFirstColumn), unsignedOf(aRows), unsignedOf(aColumns),
                            unsignedOf(aBand), 1},
                           aBufferSize < 0 ? 0 : static_cast<std::uint64_t>(aBufferSize), aBuffer, aFile);
}

NITFImagePixelReader::Status NITFImageSubheader::Derived::Read(const NITFImageSubheader& aImage,
                                                               const Detail::PixelWindow& aWindow,
                                                               std::uint64_t aBufferSize, void* aBuffer,
                                                               std::FILE* aFile) const
{
    try {
        const Detail::PixelAnswer answer = Pixels(aImage).Read(aWindow, aBufferSize, aBuffer, aFile);
        return Answer(answer.status, answer.text.c_str());
    } catch (const std::bad_alloc&) {
        return Answer(STATUS_OUT_OF_MEMORY, "ERROR: System out of memory.");
    }
}

}  // namespace ORMO::SensorModel::CSM
