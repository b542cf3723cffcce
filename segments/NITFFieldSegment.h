#pragma once

#include "NITFStdDataSegment.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

class RawNITFMetadataStdDataSegment;

namespace Detail {
class Findings;
struct SegmentContents;
struct SegmentViews;
struct SegmentWords;
struct WalkResult;
class FieldStore;
}  // namespace Detail

/// A header that is read by a field table: the file header and every subheader. All of them answer for their fields in
/// the same way; what differs is their table and their words.
///
/// Fields inside a repeat carry the number of each turn: IREPBAND_2, LUTD_1_3; the file header prints it as its
/// standard does: LISH003. Values are kept exactly as read.
class ORMO_CSM_API NITFFieldSegment : public NITFStdDataSegment
{
public:
    using FieldLengths = std::map<std::string, int>;
    using FieldTypes = std::map<std::string, NITFCnst::FieldType>;

    ~NITFFieldSegment() override;

    bool GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength,
                          const char* aTreTag = nullptr) override;
    bool GetFieldAsBool(const char* aName, bool& aValue, const char* aTreTag = nullptr) override;
    bool GetFieldAsDouble(const char* aName, double& aValue, const char* aTreTag = nullptr) override;
    bool GetFieldAsInt64(const char* aName, std::int64_t& aValue, const char* aTreTag = nullptr) override;
    bool GetFieldAsLong(const char* aName, long& aValue, const char* aTreTag = nullptr) override;
    bool GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength,
                          const char* aTreTag = nullptr) override;
    bool GetFieldAsUInt64(const char* aName, std::uint64_t& aValue, const char* aTreTag = nullptr) override;
    bool GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue, const char* aTreTag = nullptr) override;
    const FieldTexts* GetFieldEditabilityMap() const override;
    Util::CSMCnst::DataType GetFieldValueDataType(const char* aName) const override;
    const std::vector<const char*>* GetAllFieldDescriptions() const override;
    const std::vector<bool>* GetBinaryFieldList() const override;
    bool GetTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const override;
    bool IsBinaryField(const char* aName) const override;
    bool IsFieldEditable(const char* aName, const char* aTreTag = nullptr) const override;
    bool IsTREOfThisDataSegment(const char* aTag) const override;
    /// Holds every field against the rule of its row, the TREs against theirs, and what the fields say against one
    /// another. The lines stand in GetErrorMessage and GetWarningMessage afterwards.
    bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings) override;
    const Detail::FieldTable& GetFieldTable() const override;

    /// Number of fields that were read.
    std::size_t GetNumOfFields() const noexcept;
    /// One field by its place in the header, without building any map.
    bool GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const;
    /// The value of a field as stored; an empty view with a null pointer when it is not there. Leaves the messages
    /// alone.
    std::string_view FieldText(std::string_view aName) const noexcept;
    /// 1 when the standard allows the value for the field, 0 when not, -1 when the field is unknown.
    int IsFieldValueInRange(const char* aName, const char* aValue) const;
    /// The tags of the table, in the order of the header.
    const std::vector<const char*>* GetAllFieldTags() const;
    /// Everything that the table says, to be walked together. Widths are those of the table, 0 when they vary.
    bool GetFieldsMetadata(const FieldTexts*& aEditability, const FieldLengths*& aLengths, const FieldTypes*& aTypes,
                           const std::vector<const char*>*& aDescriptions, const std::vector<const char*>*& aTags,
                           int& aVersion) const;
    /// The security classification letter of the header (FSCLAS, ISCLAS, DECLAS ...); empty when it was not read.
    const char* GetClassification() const noexcept;
    /// The header's bytes as read.
    const char* GetRawHeader(std::size_t& aLength) const noexcept;
    /// The TREs of the extension areas; overflow TREs stand apart.
    const TREStore& GetTREStore() const noexcept;
    /// The segment's own TREs and, when asked for, the overflow ones, grouped by tag. The array is the caller's.
    bool GetAllTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const;

protected:
    NITFFieldSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind, const Detail::FieldTable& aTable);
    NITFFieldSegment(const NITFFieldSegment& aOther);

    using NITFStdDataSegment::operator=;
    bool operator==(const NITFStdDataSegment& aOther) const override;
    void Assign(const NITFStdDataSegment& aOther) override;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;

    virtual const Detail::SegmentWords& Words() const = 0;
    /// What a read that failed has to say in place of the shared texts; empty for the shared ones.
    virtual std::string FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const;

    /// Why a query with a TRE tag can have no answer, whatever the tag; null when it can.
    virtual const char* TreRefusal() const noexcept;
    /// The TREs that queries by tag look at besides the overflow ones: those of the extension areas, unless a kind of
    /// segment keeps others.
    virtual const TREStore& QueriedTREs() const noexcept;
    /// The checks of RigorousValidation; a kind of segment adds its own to those of its base.
    virtual void Validate(Detail::Findings& aFindings) const;

    /// Reads the fields of a raw header that begins at a byte offset of the file. On failure the texts are appended to
    /// `aErrors` and nothing is kept. The number of bytes that the table consumed goes into `aConsumed`.
    bool ReadFields(std::string aRaw, std::uint64_t aFileOffset, std::uint64_t& aConsumed, std::string& aErrors);
    /// Number of required fields that are not there; a line for each is appended.
    long CheckRequiredFields(std::string& aErrors) const;
    /// Cuts an extension area field, when it was read, into TREs of this segment; warnings are kept. Answers how many.
    int ReadTREs(const char* aFieldName, bool aSpecificOnly, bool aValidate, TRE::Type aUnknownType,
                 Util::CSMCnst::ByteOrder aByteOrder);
    /// A number that the walk has read already; 0 when the field is not there.
    std::uint64_t NumberOf(std::string_view aName) const noexcept;
    /// Where a field stands in the file, for messages: [segment, byte offset, bytes].
    std::string PlaceOf(std::string_view aName) const;
    /// Warns of bytes that stand behind the last field that the table knows.
    void AddSurplusWarning(std::uint64_t aConsumed);
    /// The header with its TREs as raw metadata.
    std::unique_ptr<RawNITFMetadataStdDataSegment> MakeRawMetadata() const;
    /// Writes one element per field, that of `aLeftOut` left out. Answers the number of fields.
    std::size_t AppendFieldElements(std::string& aXml, std::string_view aLeftOut = {}) const;
    void AppendTREElements(std::string& aXml) const;

    Detail::SegmentContents& Contents() noexcept { return *m_contents; }
    const Detail::SegmentContents& Contents() const noexcept { return *m_contents; }
    std::uint64_t FileOffset() const noexcept { return m_fileOffset; }

private:
    Detail::SegmentViews& Views() const;
    const TRE* FirstTRE(std::string_view aTag) const;
    std::string_view CheckedName(const char* aName, const char* aTreTag, bool aText);
    template<typename Value, typename OfField, typename OfTre>
    bool Number(const char* aName, Value& aValue, const char* aTreTag, bool aReal, OfField aOfField, OfTre aOfTre);

    std::unique_ptr<Detail::SegmentContents> m_contents;
    std::uint64_t m_fileOffset = 0;
    mutable std::unique_ptr<Detail::SegmentViews> m_views;
};

}  // namespace ORMO::SensorModel::CSM
