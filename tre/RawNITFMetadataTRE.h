#pragma once

#include "../foundation/Export.h"
#include "RawNITFMetadata.h"
#include "RawNITFMetadataFields.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class TRE;

/// A copy of one TRE's metadata and bytes, independent of the TRE. Its fields are those of this very record, so all of
/// them are present. A TRE without fields has no metadata; its bytes and identity are there all the same.
class ORMO_CSM_API RawNITFMetadataTRE : public RawNITFMetadata
{
public:
    /// A TRE knows neither the version nor the classification of the header it stands in; a null classification is
    /// "UNKNOWN".
    explicit RawNITFMetadataTRE(const TRE& aTre, int aVersionNumber = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN,
                                const char* aClassification = nullptr);
    RawNITFMetadataTRE(const RawNITFMetadataTRE& aOther);
    RawNITFMetadataTRE& operator=(const RawNITFMetadataTRE& aOther);
    ~RawNITFMetadataTRE() override;

    /// The tag: CETAG or RETAG.
    const char* GetTRECERETag() const noexcept { return m_tag.c_str(); }
    /// "CE", "RE" or "UNKNOWN".
    const char* GetTREType() const noexcept { return m_type.c_str(); }
    const char* GetTREName() const noexcept { return m_name.c_str(); }
    const char* GetTRERegistrationGroup() const noexcept { return m_group.c_str(); }
    const char* GetTREDescription() const noexcept { return m_description.c_str(); }
    /// Of the header or subheader that the TRE belongs to.
    const char* GetSecurityClassification() const noexcept { return m_classification.c_str(); }
    bool IsGenericTRE() const noexcept { return m_generic; }

    /// A new copy of the TRE's data, which the caller frees with CSMUtilString::DeleteCString. NUL bytes may stand in
    /// it, and one stands behind it. False, with null and 0, when there are no data or memory is short.
    bool CopyTRERawData(char** aData, std::size_t& aLength) const noexcept;
    /// Bytes of data.
    std::size_t GetRawDataStreamSize() const noexcept;

    bool GetMatadata(const char** aDataType, const EditabilityMap** aEditability, const TextMap** aDescriptions,
                     const SizeMap** aSizes, const std::vector<std::string>** aTags, const TextMap** aValues,
                     const SizeMap** aActualSizes, const TextMap** aLongNames, const TextMap** aTypes,
                     const std::vector<bool>** aBinaryFields) const override;

private:
    std::string m_tag;
    std::string m_type;
    std::string m_name;
    std::string m_group;
    std::string m_description;
    std::string m_classification;
    bool m_generic;
    RawNITFMetadataFields m_fields;
};

}  // namespace ORMO::SensorModel::CSM
