#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/CharStrCompare.h"
#include "../foundation/Export.h"
#include "SupportedTreFactory.h"
#include "TreDetailedInfo.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class RawNITFMetadata;
class TREStore;

/// A tagged record extension as read from an extension area (STDI-0002; layout of the record: MIL-STD-2500C, table
/// its tag, its bytes and, for the tags with a known layout, its fields. A TRE without a known layout, or whose
/// data do not fit it, is generic: it keeps its bytes and has no fields.
///
/// Fields inside a repeat carry the number of each turn, counted from 1: LINE_NUM_COEFF_1, LON_4_2. Texts and arrays
/// that queries hand out belong to the TRE and live as long as it does, unless said otherwise.
class ORMO_CSM_API TRE
{
public:
    enum Type : int
    {
        TRE_TYPE_CONTROLLED_EXTENSION = 0,
        TRE_TYPE_REGISTERED_EXTENSION = 1,
        TRE_TYPE_UNKNOWN = -1
    };

    /// What a TRE holds, and the table of a tag: only the library can make or look into them.
    struct Parts;
    struct Layout;

    using FieldTexts = std::map<std::string, std::string>;
    using FieldWidths = std::map<std::string, int>;
    using FieldDataTypes = std::map<std::string, Util::CSMCnst::DataType>;
    using FieldInfos = std::map<std::string, TreDetailedInfo>;

    virtual ~TRE();
    virtual TRE& operator=(const TRE& aOther);
    /// Same tag, type, bytes and layout.
    virtual bool operator==(const TRE& aOther) const;
    virtual bool operator!=(const TRE& aOther) const;
    virtual bool ContainsBinaryFields() const;
    /// One help text per field, parallel to GetAllTreFields: LONG NAME [= "FIELD", WIDTH bytes, R]. explanation
    virtual const std::vector<const char*>* GetAllTREFieldDescriptions() const;
    virtual const FieldInfos* GetAllTreFieldInfos() const;
    /// The field names in the order of the data.
    virtual const std::vector<const char*>* GetAllTreFields() const;
    /// The TRE as raw metadata; null when it has no fields.
    virtual const RawNITFMetadata* GetAllTreMetadata() const;
    /// One flag per field, parallel to GetAllTreFields; null when the TRE is generic.
    virtual const std::vector<bool>* GetBinaryFieldList() const;
    /// The bytes of a binary field; false for an unknown name or a text field.
    virtual bool GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength) const;
    virtual bool GetFieldAsBool(const char* aName, bool& aValue) const;
    virtual bool GetFieldAsDouble(const char* aName, double& aValue) const;
    virtual bool GetFieldAsInt64(const char* aName, std::int64_t& aValue) const;
    virtual bool GetFieldAsLong(const char* aName, long& aValue) const;
    /// The bytes exactly as received, padding included, with a NUL behind them; false for an unknown name.
    virtual bool GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const;
    virtual bool GetFieldAsUInt64(const char* aName, std::uint64_t& aValue) const;
    virtual bool GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const;
    /// Field name to "T" (a user may change it) or "F".
    virtual const FieldTexts* GetFieldEditabilityMap() const;
    /// What the TRE is for, where it stands and what its layout rests on; "Unknown TRE." for a generic one.
    virtual const char* GetTREDescription() const;
    /// The value of a field, as GetFieldAsString; null for an unknown name.
    virtual const char* GetTREField(const char* aName) const;
    /// Long name, or "UNKNOWN".
    virtual const char* GetTREName() const;
    /// Description of the group that the tag belongs to, or "UNKNOWN".
    virtual const char* GetTRERegisterGroup() const;
    virtual bool IsBinaryField(const char* aName) const;
    virtual bool IsFieldEditable(const char* aName) const;
    /// 1 when the standard allows the value for the field, 0 when not, -1 when the field or value is unknown. Fields of
    /// the tag that this TRE has not are known too.
    virtual int IsFieldValueInRange(const char* aName, const char* aValue) const;
    /// A new text with the XML element of this TRE; the caller frees it with CSMUtilString::DeleteCString. A null
    /// classification is written as "UNKNOWN".
    virtual bool Serialize(char** aXml, const char* aClassification, int aIndex) const;
    /// Appends the XML element of this TRE.
    void AppendXml(std::string& aXml, const char* aClassification, int aIndex) const
    {
        SerializeTRE(aXml, aClassification, aIndex);
    }
    /// Number of fields with values that the standard does not allow; appends one line for each to `aErrors`, and one
    /// that begins "WARN: " for an optional field, which is not counted.
    virtual int ValidateFieldValues(std::string& aErrors) const;

    /// The data length in a whole TRE text, 0 when there is none: leading white space is skipped and "TAG=" accepted.
    static std::size_t GetCELRELFieldValue(const char* aText);
    /// Splits a whole TRE text into new texts for tag and data; false when it holds no complete TRE.
    static bool DecomposeTREString(const char* aText, char** aTag, char** aData, std::size_t& aLength);
    /// The system's constant for a tag that it knows, or null. With `aTypedOnly`, tags without a layout count as
    /// unknown.
    static const char* IsSupportedTRE(const char* aTag, bool aTypedOnly);
    /// A new array of the system's tag constants; the caller frees the array itself with delete[].
    static bool GetNamesOfAllSupportedTREs(const char**& aNames, std::size_t& aCount);
    static std::size_t GetNumOfSupportedTREs();
    /// "CE", "RE" or "UNKNOWN".
    static const char* GetTRETypeString(Type aType) noexcept;
    /// A new text with one XML element per TRE, in order of appearance.
    static bool SerializeTREs(char** aXml, const TREStore& aStore, const char* aClassification);

    const char* GetTag() const noexcept;
    Type GetTREType() const noexcept;
    /// The group that made the TRE typed, or -1.
    SupportedTreFactory::Enum GetSupportedTREFactoryCode() const noexcept;
    /// NITFCnst::TreCERETag::TreCode<TAG>, of a generic TRE too, or -1.
    std::int32_t GetUniqueExtensionTypeID() const noexcept;
    bool IsGenericTRE() const noexcept;
    /// Bytes of data: the number in CEL or REL.
    std::size_t GetLengthOfDataField() const noexcept;
    /// The data as received; NUL bytes may stand among them. Put together when first asked for.
    const char* GetRawTREDataString(std::size_t& aLength) const;
    /// Field name to value; built on first use. Null when the TRE is generic.
    const FieldTexts* GetTREKeyValuePairsMap() const;
    /// Field name to width in bytes. Null when the TRE is generic.
    const FieldWidths* GetTREFieldWidthsMap() const;
    /// A new text with the XML element of this TRE, as Serialize; without `aFields` its data stand in it as a whole.
    bool SerializeTREData(char** aXml, bool aFields, const char* aClassification, int aIndex) const;

    std::size_t GetNumOfFields() const noexcept;
    /// One field by its place in the data, without building any map: name into `aName`, bytes as in GetFieldAsString.
    bool GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const;

    /// The area that the TRE was read from, such as "UDID" or "TRE_OVERFLOW"; empty when it was made otherwise.
    const char* GetExtensionArea() const noexcept;
    /// Byte offset of the TRE in its file; only meaningful with an extension area.
    std::uint64_t GetFileOffset() const noexcept;

protected:
    /// Takes over parts that the library made.
    explicit TRE(Parts& aParts) noexcept;
    /// A generic TRE. Raises std::invalid_argument for missing data, for a tag that is empty or longer than 6
    /// characters and for more than 99,999 bytes of data.
    TRE(const char* aTag, const char* aData, std::size_t aLength, Type aType);
    TRE(const TRE& aOther);

    /// Raises std::invalid_argument, naming both lengths, when the data have not the expected length.
    static void CheckCEREDATALength(std::size_t aLength, const char* aTag, std::size_t aExpected, bool aMayDiffer);

    virtual bool CloneObj(const TRE& aOther);
    virtual void FreeRawMetaDataObject();
    /// Of the fields; 0 when there are none.
    virtual Util::CSMCnst::ByteOrder GetBinaryDataByteOrder() const;
    virtual bool GetDoubleField(const char* aName, double& aValue) const;
    virtual bool GetIntegerField(const char* aName, std::int64_t& aValue) const;
    virtual const FieldDataTypes* GetNITFTreFieldValueDataTypesMap() const;
    /// The start tag of the XML element.
    virtual std::string GetRootNode(const char* aClassification, int aIndex) const;
    virtual bool GetTreFieldsMetadata(std::vector<TreDetailedInfo>& aFields) const;
    virtual bool GetUnsignedIntegerField(const char* aName, std::uint64_t& aValue) const;
    /// Cuts the data into fields; raises as the constructor does.
    virtual void InitNITFTreFieldsMap();
    /// Cuts `aData` by a list of names and widths, for classes whose tags are described elsewhere. Raises
    /// InitializationException, with both maps empty, when the data end before the last field.
    virtual void PopulateNITFTreFieldsMap(const char* aTag, const std::string* aData,
                                          const std::vector<const char*>& aNames, const std::vector<int>& aWidths,
                                          FieldWidths& aWidthMap, FieldTexts& aValueMap, int aFirst, int aLast,
                                          std::size_t aStart, bool aStartBeyondDataOk) const;
    virtual bool SerializeTRE(std::string& aXml, const char* aClassification, int aIndex) const;
    virtual void Swap(TRE& aOther) noexcept;

public:
    /// A new text with the TRE as received: tag, length and data; the caller frees it with
    /// CSMUtilString::DeleteCString. False when there is none.
    virtual bool Write(char** aOut) const;

private:
    std::string Element(bool aFields, const char* aClassification, int aIndex) const;

    std::unique_ptr<Parts> m_parts;  // never null
};

}  // namespace ORMO::SensorModel::CSM
