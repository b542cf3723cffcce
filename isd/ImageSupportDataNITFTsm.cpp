// The parsed file as ISDs of the CSM API.

#include "fields/ByteSource.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/OrmoTSMISD.h"
#include "isd/detail/CsmRecords.h"
#include "isd/detail/IsdParts.h"

#include <exception>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace {

/// An array of records on its way into an ISD, with its count as the ISD keeps it.
template<typename Record>
struct Records
{
    explicit Records(std::size_t aCount) : items(aCount == 0 ? nullptr : new Record[aCount]), count(aCount) {}

    /// Takes the place of an array of the ISD, which is released.
    void MoveTo(Record*& aItems, int& aCount) noexcept
    {
        delete[] aItems;
        aItems = items.release();
        aCount = static_cast<int>(count);
    }

    std::unique_ptr<Record[]> items;
    std::size_t count;
};

/// The TREs of a header in order: those of its areas, then those of its overflow DESs.
Records<::tre> TresOf(const NITFFieldSegment& aSegment)
{
    const TREStore& own = aSegment.GetTREStore();
    const TREStore& overflow = aSegment.GetOverflowTREStore();
    Records<::tre> tres(own.Size() + overflow.Size());
    std::size_t next = 0;
    for (const TREStore* const store : {&own, &overflow}) {
        for (const TRE* const tre : store->InOrder()) {
            std::size_t length = 0;
            const char* const data = tre->GetRawTREDataString(length);
            Detail::FillTre(tres.items[next++], tre->GetTag(), {data, length});
        }
    }
    return tres;
}

std::string_view RawBytes(const NITFFieldSegment& aSegment) noexcept
{
    std::size_t length = 0;
    const char* const bytes = aSegment.GetRawHeader(length);
    return {bytes, length};
}

bool FillImage(const NITFImageSubheader* aSubheader, ::image& aImage)
{
    if (aSubheader == nullptr) {
        return false;
    }
    std::string raw(RawBytes(*aSubheader));
    TresOf(*aSubheader).MoveTo(aImage.imageTREs, aImage.numTREs);
    aImage.imageSubHeader.swap(raw);
    return true;
}

template<typename NitfISD>
bool SetFileHeaderTREs(const ImageSupportDataNITF& aFrom, NitfISD& aTo)
{
    std::string raw(RawBytes(*aFrom.GetNITFFileHeader()));
    TresOf(*aFrom.GetNITFFileHeader()).MoveTo(aTo.fileTREs, aTo.numTREs);
    aTo.fileHeader.swap(raw);
    return true;
}

template<typename NitfISD>
bool SetImages(const ImageSupportDataNITF& aFrom, NitfISD& aTo, int aImageSegment)
{
    const auto all = static_cast<std::size_t>(aFrom.GetNumOfImageSegments());
    const std::size_t first = aImageSegment < 0 ? 0 : static_cast<std::size_t>(aImageSegment);
    Records<::image> images(aImageSegment < 0 ? all : 1);
    for (std::size_t i = 0; i != images.count; ++i) {
        // Of all images, one that could not be read keeps its place; alone it is none.
        if (!FillImage(aFrom.Inside().Image(first + i), images.items[i]) && aImageSegment >= 0) {
            return aFrom.GetImageSubheader(first) != nullptr;  // says why
        }
    }
    images.MoveTo(aTo.images, aTo.numImages);
    return true;
}

template<typename NitfISD>
bool SetDESs(const ImageSupportDataNITF& aFrom, NitfISD& aTo)
{
    // Those that were read; a damaged file may have others between them.
    std::vector<const NITFDESSubheader*> found;
    const NITFStdDataSegmentInfos::Infos* const infos =
        aFrom.GetSegmentInfos().Get(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION);
    for (std::size_t i = 0; infos != nullptr && i != infos->size(); ++i) {
        if (const NITFDESSubheader* const des = aFrom.Inside().Des(i)) {
            found.push_back(des);
        }
    }
    Records<::des> dess(found.size());
    for (std::size_t i = 0; i != found.size(); ++i) {
        const char* data = nullptr;
        std::size_t length = 0;
        if (!found[i]->GetDESDATA(data, length)) {
            length = 0;
        }
        Detail::FillDes(dess.items[i], RawBytes(*found[i]), {data, length});
    }
    dess.MoveTo(aTo.fileDESs, aTo.numDESs);
    return true;
}

/// All parts or none.
template<typename NitfISD>
bool SetAll(const ImageSupportDataNITF& aFrom, NitfISD& aTo, int aImageSegment)
{
    NitfISD made;
    if (!SetFileHeaderTREs(aFrom, made) || !SetImages(aFrom, made, aImageSegment) || !SetDESs(aFrom, made)) {
        return false;
    }
    aTo.fileHeader.swap(made.fileHeader);
    std::swap(aTo.numTREs, made.numTREs);
    std::swap(aTo.fileTREs, made.fileTREs);
    std::swap(aTo.numDESs, made.numDESs);
    std::swap(aTo.fileDESs, made.fileDESs);
    std::swap(aTo.numImages, made.numImages);
    std::swap(aTo.images, made.images);
    return true;
}

/// Fills the ISD with `aFill` when it is the NITF class of the file's version. The base class has no NITF fields, and
/// the two classes nothing but their names in common, so that the dynamic type decides.
template<typename Fill>
bool FillNitf(const ImageSupportDataNITF& aFrom, tsm_ISD* aTsmISD, Fill aFill)
{
    try {
        if (aFrom.GetNITFFileVersionCode() == NITFCnst::NITF_VERSION_NUMBER_20) {
            auto* const isd = dynamic_cast<NITF_2_0_ISD*>(aTsmISD);
            return isd != nullptr && aFill(*isd);
        }
        auto* const isd = dynamic_cast<NITF_2_1_ISD*>(aTsmISD);
        return isd != nullptr && aFill(*isd);
    } catch (const std::exception&) {
        // Memory is short.
        return false;
    }
}

/// Throws std::bad_alloc.
Detail::TsmForms MakeForms(const ImageSupportDataNITF& aIsd)
{
    Detail::TsmForms forms;
    forms.owned.push_back(Detail::NewNitfIsd(aIsd.GetNITFFileVersionCode()));
    if (!aIsd.SetTSMISD(OrmoTSMISD::ALL_IMAGE_SEGMENTS, forms.owned.back().get())) {
        throw std::bad_alloc();
    }
    auto byName = std::make_unique<filenameISD>();
    if (aIsd.SetTSMISD(OrmoTSMISD::ALL_IMAGE_SEGMENTS, byName.get())) {
        forms.owned.push_back(std::move(byName));
    }
    for (const std::unique_ptr<tsm_ISD>& isd : forms.owned) {
        forms.array.push_back(isd.get());
    }
    return forms;
}

}  // namespace

bool ImageSupportDataNITF::GetAllTsmISDs(const tsm_ISD**& aTsmISDs, std::size_t& aCount) const
{
    aTsmISDs = nullptr;
    aCount = 0;
    try {
        const Detail::TsmForms& forms = m_parts->tsm.forms.Get([this] { return MakeForms(*this); });
        // The array is not to be changed, although its type says nothing of that.
        aTsmISDs = const_cast<const tsm_ISD**>(forms.array.data());
        aCount = forms.array.size();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void ImageSupportDataNITF::ClearTSMISDData() noexcept
{
    m_parts->tsm.forms.Reset();
}

bool ImageSupportDataNITF::SetTSMISD(int aImageSegment, tsm_ISD* aTsmISD) const
{
    ClearMessages();
    if (aTsmISD == nullptr || (aImageSegment >= GetNumOfImageSegments() &&
                               GetImageSubheader(static_cast<std::size_t>(aImageSegment)) == nullptr)) {
        return false;
    }
    try {
        // What stands in memory has a name for messages, but no file that the name leads to.
        const std::string path = m_parts->source->IsMemory() || GetFileName() == nullptr ? "" : GetFileName();
        if (auto* const bytes = dynamic_cast<bytestreamISD*>(aTsmISD); bytes != nullptr) {
            std::string read;
            if (!m_parts->source->Read(0, m_parts->source->Size(), read)) {
                return false;
            }
            bytes->_isd.swap(read);
            return true;
        }
        if (auto* const own = dynamic_cast<OrmoTSMISD*>(aTsmISD); own != nullptr) {
            own->SetImageFileName(path.c_str());
            own->SetImageSegment(aImageSegment);
            return true;
        }
        if (auto* const byName = dynamic_cast<filenameISD*>(aTsmISD); byName != nullptr) {
            if (!path.empty()) {
                byName->_filename = path;
            }
            return !path.empty();
        }
    } catch (const std::exception&) {
        // Memory is short.
        return false;
    }
    return FillNitf(*this, aTsmISD, [&](auto& aIsd) { return SetAll(*this, aIsd, aImageSegment); });
}

bool ImageSupportDataNITF::PopulateTSMISDFileHeaderTREs(tsm_ISD* aTsmISD) const
{
    return FillNitf(*this, aTsmISD, [this](auto& aIsd) { return SetFileHeaderTREs(*this, aIsd); });
}

bool ImageSupportDataNITF::PopulateTSMISDImageSegments(tsm_ISD* aTsmISD, int aImageSegment) const
{
    return FillNitf(*this, aTsmISD, [&](auto& aIsd) { return SetImages(*this, aIsd, aImageSegment); });
}

bool ImageSupportDataNITF::PopulateTSMISDDESs(tsm_ISD* aTsmISD) const
{
    return FillNitf(*this, aTsmISD, [this](auto& aIsd) { return SetDESs(*this, aIsd); });
}

bool ImageSupportDataNITF::PopulateCSMImageObject(::image& aImage, int aImageSegment) const
{
    try {
        return FillImage(GetImageSubheader(static_cast<std::size_t>(aImageSegment)), aImage);
    } catch (const std::exception&) {
        // Memory is short.
        return false;
    }
}

}  // namespace ORMO::SensorModel::CSM
