#pragma once

#include "../foundation/Export.h"
#include "../tre/RawNITFMetadata.h"
#include "../tre/RawNITFMetadataFields.h"
#include "../tre/RawNITFMetadataTRE.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class TRE;
class TREStore;

/// The metadata of one header or subheader, and those of its TREs: the ones in its own extension areas and the ones
/// that overflowed into a data extension segment.
class ORMO_CSM_API RawNITFMetadataStdDataSegment : public RawNITFMetadata
{
public:
    /// What a header or subheader tells of itself.
    struct Contents
    {
        NITFCnst::NITFMetadataType typeCode = NITFCnst::NITF_METADATA_TYPE_UNKNOWN;
        std::string dataType;  ///< the kind's name, such as "ImageSegment"
        int versionNumber = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
        std::string classification;  ///< of the segment, passed on to its TREs; empty when it is not known
        RawNITFMetadataFields fields;
        std::string rawData;  ///< the bytes of the header
        std::string rawDataDescription;
    };

    /// Without fields the object has no metadata.
    explicit RawNITFMetadataStdDataSegment(Contents aContents);
    RawNITFMetadataStdDataSegment(const RawNITFMetadataStdDataSegment&) = delete;
    RawNITFMetadataStdDataSegment& operator=(const RawNITFMetadataStdDataSegment&) = delete;
    ~RawNITFMetadataStdDataSegment() override;

    // The metadata of the TREs, in order of appearance; each is a RawNITFMetadataTRE. They belong to this object and
    // live until SetTRERawNITFMetadata is called again. False, with null or empty and 0, when there are none.
    bool GetRawNITFMetadataTREs(const RawNITFMetadata* const*& aTres, std::size_t& aCount) const noexcept;
    bool GetRawNITFMetadataTREs(std::vector<const RawNITFMetadata*>& aTres) const;
    bool GetRawNITFMetadataOverflowTREs(const RawNITFMetadata* const*& aTres, std::size_t& aCount) const noexcept;
    bool GetRawNITFMetadataOverflowTREs(std::vector<const RawNITFMetadata*>& aTres) const;

    /// Replaces the metadata of all TREs; the TREs themselves are no longer needed afterwards.
    void SetTRERawNITFMetadata(const TREStore& aTres, const std::vector<const TRE*>& aOverflowTres);

    bool GetMatadata(const char** aDataType, const EditabilityMap** aEditability, const TextMap** aDescriptions,
                     const SizeMap** aSizes, const std::vector<std::string>** aTags, const TextMap** aValues,
                     const SizeMap** aActualSizes, const TextMap** aLongNames, const TextMap** aTypes,
                     const std::vector<bool>** aBinaryFields) const override;

private:
    /// Copies of TREs' metadata, and the array of them to hand out.
    struct TreList
    {
        std::vector<std::unique_ptr<RawNITFMetadataTRE>> owned;
        std::vector<const RawNITFMetadata*> handedOut;
    };

    void Add(const TRE& aTre, TreList& aList) const;

    std::string m_dataType;
    std::string m_classification;
    RawNITFMetadataFields m_fields;
    TreList m_tres;
    TreList m_overflowTres;
};

}  // namespace ORMO::SensorModel::CSM
