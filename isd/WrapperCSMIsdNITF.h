#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"
#include "WrapperCSMISD.h"

#include <cstddef>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// One image of a NITF ISD of the CSM API: its subheader and its TREs. A view, which the record must outlive.
class ORMO_CSM_API WrapperCSMIsdImage
{
public:
    explicit WrapperCSMIsdImage(const ::image& aImage) noexcept : m_image(&aImage) {}

    /// The subheader as the file has it, extension areas included.
    std::string_view GetImageSubheader() const noexcept { return m_image->imageSubHeader; }
    /// The TREs of the image; null and 0 when there are none.
    const ::tre* GetTREs(std::size_t& aCount) const noexcept;

private:
    const ::image* m_image;
};

/// Carries a NITF ISD of the CSM API. The ISD stays the caller's, is not changed, and must outlive the wrapper; what
/// the factory makes of it stands on its own. A count that has no array behind it counts as 0.
class ORMO_CSM_API WrapperCSMIsdNITF : public WrapperCSMISD
{
public:
    ~WrapperCSMIsdNITF() override;

    /// The file header, extension areas included.
    std::string_view GetFileHeader() const noexcept { return *m_parts.fileHeader; }
    /// The TREs of the file header; null and 0 when there are none.
    const ::tre* GetFileTREs(std::size_t& aCount) const noexcept;
    std::size_t GetNumOfDESs() const noexcept;
    /// Subheader and data of a DES; both empty for an index outside.
    std::string_view GetDESSubheader(std::size_t aIndex) const noexcept;
    std::string_view GetDESData(std::size_t aIndex) const noexcept;
    std::size_t GetNumOfImages() const noexcept;
    /// The index must be below GetNumOfImages().
    WrapperCSMIsdImage GetImage(std::size_t aIndex) const noexcept;

protected:
    /// What both classes of the CSM API have, though neither derives from the other.
    struct Parts
    {
        const std::string* fileHeader;
        const ::tre* tres;
        int treCount;
        const ::des* dess;
        int desCount;
        const ::image* images;
        int imageCount;
    };

    explicit WrapperCSMIsdNITF(const Parts& aParts) noexcept : m_parts(aParts) {}

    template<typename NitfISD>
    static Parts PartsOf(const NitfISD& aIsd) noexcept
    {
        return {&aIsd.fileHeader, aIsd.fileTREs, aIsd.numTREs,  aIsd.fileDESs,
                aIsd.numDESs,     aIsd.images,   aIsd.numImages};
    }

private:
    Parts m_parts;
};

/// Carries a NITF_2_0_ISD.
class ORMO_CSM_API WrapperCSMIsdNITF20 : public WrapperCSMIsdNITF
{
public:
    /// The name of the file may be null.
    explicit WrapperCSMIsdNITF20(const NITF_2_0_ISD& aIsd, const char* aImageFileName = nullptr);
    ~WrapperCSMIsdNITF20() override;
};

/// Carries a NITF_2_1_ISD, which also serves NSIF 1.0.
class ORMO_CSM_API WrapperCSMIsdNITF21 : public WrapperCSMIsdNITF
{
public:
    /// The name of the file may be null.
    explicit WrapperCSMIsdNITF21(const NITF_2_1_ISD& aIsd, const char* aImageFileName = nullptr);
    ~WrapperCSMIsdNITF21() override;
};

}  // namespace ORMO::SensorModel::CSM
