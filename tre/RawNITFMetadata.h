#pragma once

#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Lists every field of a header, subheader or TRE, for a host that does not know its structure.
///
/// Two sets of fields: the defined ones, in the order of the definition, and the present ones, those with a value. The
/// array queries build all arrays on first use. The arrays belong to the object, the caller must not free them, and
/// they live until the object is assigned to or destroyed. When they cannot be built, or when the object has no
/// metadata, the answer is false with null arrays and a count of 0. No query throws, and several threads may ask at
/// once.
class ORMO_CSM_API RawNITFMetadata
{
public:
    using EditabilityMap = std::map<std::string, bool>;
    using SizeMap = std::map<std::string, int>;
    using TextMap = std::map<std::string, std::string>;

    /// All arrays, and what they are made of; known to the library only.
    struct Arrays;
    struct Source;

    virtual ~RawNITFMetadata();

    NITFCnst::NITFMetadataType GetMetadataTypeCode() const noexcept { return m_typeCode; }
    /// What the fields belong to, such as "ImageSegment" or "TRE"; empty when there is no metadata.
    const char* GetDataType() const noexcept;
    /// A value of NITFCnst::Version.
    int GetNITFFileVersionNumber() const noexcept { return m_versionNumber; }
    bool HasNoMetadata() const noexcept { return m_noMetadata; }

    // Defined fields: tags, and for each the second thing.
    bool GetMetadataFieldName(const char**& aTags, const char**& aLongNames, std::size_t& aCount) const noexcept;
    /// How far the standard requires the field: R, C or O, in brackets when blanks are allowed.
    bool GetMetadataFieldType(const char**& aTags, const char**& aTypes, std::size_t& aCount) const noexcept;
    /// Declared sizes in bytes.
    bool GetMetadataFieldSize(const char**& aTags, int*& aSizes, std::size_t& aCount) const noexcept;
    bool GetMetadataEditability(const char**& aTags, bool*& aEditability, std::size_t& aCount) const noexcept;
    bool GetMetadataFieldDescription(const char**& aTags, const char**& aDescriptions,
                                     std::size_t& aCount) const noexcept;

    // Present fields, in the alphabetical order of their tags.
    /// A value may hold NUL bytes; GetFieldValue tells its length.
    bool GetMetadataFieldValue(const char**& aTags, const char**& aValues, std::size_t& aCount) const noexcept;
    /// Bytes that each value takes up in the file.
    bool GetMetadataActualFieldSize(const char**& aTags, int*& aSizes, std::size_t& aCount) const noexcept;
    /// The tags of the present fields in the order in which to show them.
    bool GetMetadataOrderedOutputFieldTags(const char**& aTags, std::size_t& aCount) const noexcept;

    /// The value of one present field with its length in bytes, the NUL behind it not counted.
    bool GetFieldValue(const char* aTag, const char*& aValue, std::size_t& aLength) const noexcept;

    /// One flag per defined field, parallel to GetMetadataFieldName; false also when no such list is known.
    bool GetBinaryFieldList(bool*& aFlags, std::size_t& aCount) const noexcept;
    /// As above; on failure the vector is empty.
    bool GetBinaryFieldList(std::vector<bool>& aFlags) const;
    bool ContainsBinaryFields() const noexcept;

    /// The bytes that the fields were cut from, with a NUL behind them; null when there are none. They are also there
    /// for data that have no metadata, such as those of a generic TRE.
    const char* GetRawDataStream(std::size_t& aLength) const noexcept;
    const char* GetRawDataStreamDescription() const noexcept { return m_rawDataDescription.c_str(); }

    /// Hands out what the fields are; all of it stays the subclass's and must not change while arrays are in use.
    /// Every map has the field tag as its key: values and actual sizes hold one entry per present field, the others
    /// one per defined field. The list of binary fields may be missing (null), or has one flag per entry of the tags.
    /// False when any output pointer is null.
    virtual bool GetMatadata(const char** aDataType, const EditabilityMap** aEditability, const TextMap** aDescriptions,
                             const SizeMap** aSizes, const std::vector<std::string>** aTags, const TextMap** aValues,
                             const SizeMap** aActualSizes, const TextMap** aLongNames, const TextMap** aTypes,
                             const std::vector<bool>** aBinaryFields) const = 0;

protected:
    RawNITFMetadata(NITFCnst::NITFMetadataType aTypeCode, int aVersionNumber);
    /// Copies build arrays of their own when they are first asked.
    RawNITFMetadata(const RawNITFMetadata& aOther);
    RawNITFMetadata& operator=(const RawNITFMetadata& aOther);

    /// With the flag set every array query answers false.
    void SetNoMetadata(bool aNone) noexcept;
    void SetRawDataStream(std::string aData, std::string aDescription);

    /// Builds all arrays unless they exist. A failed build leaves none, so that the next call starts afresh.
    bool InitMetadataArrays() const noexcept;
    void CleanMetadataArrays() const noexcept;

private:
    struct State;

    const Arrays* BuiltArrays() const noexcept;
    bool FillSource(Source& aSource) const noexcept;

    NITFCnst::NITFMetadataType m_typeCode;
    int m_versionNumber;
    bool m_noMetadata = false;
    std::string m_rawData;
    std::string m_rawDataDescription;
    std::unique_ptr<State> m_state;  // never null
};

}  // namespace ORMO::SensorModel::CSM
