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

    // What only the library's own sources can look into: a version of a kind of header, what a header is made from,
    // what was read of it, and what its XML is written to.
    struct Layout;
    struct Input;
    struct Parts;
    class Document;

    ~NITFFieldSegment() override;

    bool GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength,
                          const char* aTreTag = nullptr) const override;
    bool GetFieldAsBool(const char* aName, bool& aValue, const char* aTreTag = nullptr) const override;
    bool GetFieldAsDouble(const char* aName, double& aValue, const char* aTreTag = nullptr) const override;
    bool GetFieldAsInt64(const char* aName, std::int64_t& aValue, const char* aTreTag = nullptr) const override;
    bool GetFieldAsLong(const char* aName, long& aValue, const char* aTreTag = nullptr) const override;
    bool GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength,
                          const char* aTreTag = nullptr) const override;
    bool GetFieldAsUInt64(const char* aName, std::uint64_t& aValue, const char* aTreTag = nullptr) const override;
    bool GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue, const char* aTreTag = nullptr) const override;
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
    const std::vector<const char*>* GetAllFieldTags() const override;

    /// Row and column of the location field, relative to what the segment is attached to. False when the header has no
    /// such field or no two numbers within the standard's limits stand in it.
    bool GetLocation(long& aRow, long& aColumn) const noexcept;
    long GetLOCRowValue() const override;
    long GetLOCColumnValue() const override;
    /// Where the location is in the common coordinate system; false for a header without a location, and as long as it
    /// is not known where the segment stands to which this one is attached.
    bool GetCCSColumnAndRow(long& aColumn, long& aRow) const override;
    long GetCCSRowValue() const override;
    long GetCCSColumnValue() const override;
    /// The location as it is given, then in the common coordinate system.
    bool GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const override;
    /// For the owner of the file: where the segment stands to which this one is attached.
    virtual void SetAttachedTo(long aColumn, long aRow) noexcept;

    /// Number of fields that were read.
    std::size_t GetNumOfFields() const noexcept;
    /// One field by its place in the header, without building any map.
    bool GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const;
    /// Where a field begins in the file; the end of the fields that were read for an index behind the last.
    std::uint64_t GetFieldOffset(std::size_t aIndex) const noexcept;
    /// The value of a field as stored; an empty view with a null pointer when it is not there. Leaves the messages
    /// alone.
    std::string_view FieldText(std::string_view aName) const noexcept;
    /// 1 when the standard allows the value for the field, 0 when not, -1 when the field is unknown.
    int IsFieldValueInRange(const char* aName, const char* aValue) const;
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

    /// The header with its TREs as raw metadata, built when first asked for; owned by the segment.
    const RawNITFMetadataStdDataSegment* GetAllMetadata() const;
    /// For the library's own sources.
    const Parts& Inside() const noexcept { return *m_parts; }
    /// For the library's own sources: appends the XML element of the segment with its fields, its data and its TREs.
    virtual void AppendElement(Document& aOut, std::string_view aIndent, int aIndex) const = 0;

protected:
    /// Reads the fields of a raw header. Raises ImageSupportDataConstructionException with all that was wrong.
    NITFFieldSegment(const Layout& aLayout, Input& aInput);
    NITFFieldSegment(const NITFFieldSegment& aOther);

    using NITFStdDataSegment::operator=;
    bool operator==(const NITFStdDataSegment& aOther) const override;
    void Assign(const NITFStdDataSegment& aOther) override;
    /// False, with nothing changed, for a segment of another kind or version.
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    void TREsChanged() override;
    bool SetAttachmentLevel() override;
    bool SetDisplayLevel() override;

    /// Why a query with a TRE tag can have no answer, whatever the tag; null when it can.
    virtual const char* TreRefusal() const noexcept;
    /// The TREs that queries by tag look at besides the overflow ones: those of the extension areas, unless a kind of
    /// segment keeps others.
    virtual const TREStore& QueriedTREs() const noexcept;
    /// Field values that are no part of the header itself, such as "DESDATA"; false for any other name. They belong to
    /// the segment.
    virtual bool GetDataField(std::string_view aName, const char*& aValue, std::size_t& aLength) const;

    /// Cuts every extension area of the kind into TREs; what cannot be read is found wrong, never raised.
    void ReadTREs(Input& aInput);
    /// Keeps what reading has found as the segment's messages.
    void FinishReading(Input& aInput);
    /// Raises ImageSupportDataConstructionException with the errors that reading has found.
    [[noreturn]] void Refuse(Input& aInput) const;
    /// A number that the walk has read already; 0 when the field is not there.
    std::uint64_t NumberOf(std::string_view aName) const noexcept;
    /// Writes one element per field, that of `aLeftOut` left out. Answers the number of fields.
    std::size_t AppendFieldElements(std::string& aXml, std::string_view aLeftOut = {}) const;
    void AppendTREElements(Document& aOut) const;
    /// The element as a text of its own; a null indent counts as none.
    std::string ElementText(const char* aIndent, int aIndex) const;
    /// Takes the TRE over; false for null.
    bool AddTRE(TRE* aTre);

    Parts& Mine() noexcept { return *m_parts; }

private:
    const TRE* FirstTRE(std::string_view aTag) const;
    std::string_view CheckedName(const char* aName, const char* aTreTag, bool aText) const;
    template<typename Value, typename Public, typename OfTre>
    bool Number(const char* aName, Public& aValue, const char* aTreTag, OfTre aOfTre) const;

    std::unique_ptr<Parts> m_parts;
};

}  // namespace ORMO::SensorModel::CSM
