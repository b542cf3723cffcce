#include "segments/RawNITFMetadataStdDataSegment.h"

#include "tre/TRE.h"
#include "tre/TREStore.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

bool HandOutArray(const std::vector<const RawNITFMetadata*>& aList, const RawNITFMetadata* const*& aTres,
                  std::size_t& aCount) noexcept
{
    aTres = aList.empty() ? nullptr : aList.data();
    aCount = aList.size();
    return !aList.empty();
}

}  // namespace

RawNITFMetadataStdDataSegment::RawNITFMetadataStdDataSegment(Contents aContents)
    : RawNITFMetadata(aContents.typeCode, aContents.versionNumber),
      m_dataType(std::move(aContents.dataType)),
      m_classification(std::move(aContents.classification)),
      m_fields(std::move(aContents.fields))
{
    SetRawDataStream(std::move(aContents.rawData), std::move(aContents.rawDataDescription));
    SetNoMetadata(m_fields.Size() == 0);
}

RawNITFMetadataStdDataSegment::~RawNITFMetadataStdDataSegment() = default;

bool RawNITFMetadataStdDataSegment::GetRawNITFMetadataTREs(const RawNITFMetadata* const*& aTres,
                                                           std::size_t& aCount) const noexcept
{
    return HandOutArray(m_tres.handedOut, aTres, aCount);
}

bool RawNITFMetadataStdDataSegment::GetRawNITFMetadataTREs(std::vector<const RawNITFMetadata*>& aTres) const
{
    aTres = m_tres.handedOut;
    return !aTres.empty();
}

bool RawNITFMetadataStdDataSegment::GetRawNITFMetadataOverflowTREs(const RawNITFMetadata* const*& aTres,
                                                                   std::size_t& aCount) const noexcept
{
    return HandOutArray(m_overflowTres.handedOut, aTres, aCount);
}

bool RawNITFMetadataStdDataSegment::GetRawNITFMetadataOverflowTREs(std::vector<const RawNITFMetadata*>& aTres) const
{
    aTres = m_overflowTres.handedOut;
    return !aTres.empty();
}

void RawNITFMetadataStdDataSegment::Add(const TRE& aTre, TreList& aList) const
{
    const char* const classification = m_classification.empty() ? nullptr : m_classification.c_str();
    aList.owned.push_back(std::make_unique<RawNITFMetadataTRE>(aTre, GetNITFFileVersionNumber(), classification));
    aList.handedOut.push_back(aList.owned.back().get());
}

void RawNITFMetadataStdDataSegment::SetTRERawNITFMetadata(const TREStore& aTres,
                                                          const std::vector<const TRE*>& aOverflowTres)
{
    TreList tres;
    TreList overflowTres;
    for (const TRE* const tre : aTres.InOrder()) {
        Add(*tre, tres);
    }
    for (const TRE* const tre : aOverflowTres) {
        if (tre != nullptr) {
            Add(*tre, overflowTres);
        }
    }
    m_tres = std::move(tres);
    m_overflowTres = std::move(overflowTres);
}

bool RawNITFMetadataStdDataSegment::GetMatadata(const char** aDataType, const EditabilityMap** aEditability,
                                                const TextMap** aDescriptions, const SizeMap** aSizes,
                                                const std::vector<std::string>** aTags, const TextMap** aValues,
                                                const SizeMap** aActualSizes, const TextMap** aLongNames,
                                                const TextMap** aTypes, const std::vector<bool>** aBinaryFields) const
{
    if (aDataType == nullptr) {
        return false;
    }
    *aDataType = m_dataType.c_str();
    return m_fields.HandOut(aEditability, aDescriptions, aSizes, aTags, aValues, aActualSizes, aLongNames, aTypes,
                            aBinaryFields);
}

}  // namespace ORMO::SensorModel::CSM
