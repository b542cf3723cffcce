#include "tre/RawNITFMetadataTRE.h"

#include "foundation/detail/HandOut.h"
#include "tre/detail/RawFields.h"
#include "tre/detail/TreParts.h"

#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

RawNITFMetadataTRE::RawNITFMetadataTRE(const TRE& aTre, int aVersionNumber, const char* aClassification)
    : RawNITFMetadata(NITFCnst::NITF_METADATA_TYPE_TRE, aVersionNumber),
      m_tag(aTre.GetTag()),
      m_type(TRE::GetTRETypeString(aTre.GetTREType())),
      m_name(aTre.GetTREName()),
      m_group(aTre.GetTRERegisterGroup()),
      m_description(aTre.GetTREDescription()),
      m_classification(aClassification == nullptr ? NITFCnst::STR_SC_UNKNOWN : aClassification),
      m_generic(aTre.IsGenericTRE())
{
    const TRE::Parts& parts = TRE::Parts::Of(aTre);
    std::string data(parts.Length(), '\0');
    parts.CopyData(data.data());
    SetRawDataStream(std::move(data), "Data of TRE " + m_tag);
    if (parts.fields != nullptr) {
        m_fields = Detail::RawFieldsOf(*parts.fields);
    }
    SetNoMetadata(m_fields.Size() == 0);
}

RawNITFMetadataTRE::RawNITFMetadataTRE(const RawNITFMetadataTRE& aOther) = default;

RawNITFMetadataTRE& RawNITFMetadataTRE::operator=(const RawNITFMetadataTRE& aOther) = default;

RawNITFMetadataTRE::~RawNITFMetadataTRE() = default;

std::size_t RawNITFMetadataTRE::GetRawDataStreamSize() const noexcept
{
    std::size_t length = 0;
    GetRawDataStream(length);
    return length;
}

bool RawNITFMetadataTRE::CopyTRERawData(char** aData, std::size_t& aLength) const noexcept
{
    const char* const data = GetRawDataStream(aLength);
    if (aData != nullptr) {
        *aData = nullptr;
    }
    if (data == nullptr || !Detail::HandOut(std::string_view(data, aLength), aData)) {
        aLength = 0;
        return false;
    }
    return true;
}

bool RawNITFMetadataTRE::GetMatadata(const char** aDataType, const EditabilityMap** aEditability,
                                     const TextMap** aDescriptions, const SizeMap** aSizes,
                                     const std::vector<std::string>** aTags, const TextMap** aValues,
                                     const SizeMap** aActualSizes, const TextMap** aLongNames, const TextMap** aTypes,
                                     const std::vector<bool>** aBinaryFields) const
{
    if (aDataType == nullptr) {
        return false;
    }
    *aDataType = NITFCnst::KEY_TRE;
    return m_fields.HandOut(aEditability, aDescriptions, aSizes, aTags, aValues, aActualSizes, aLongNames, aTypes,
                            aBinaryFields);
}

}  // namespace ORMO::SensorModel::CSM
