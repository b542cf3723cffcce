#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"
#include "../tre/TREStore.h"
#include "NITFStdDataSegmentInfo.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What the file header and every subheader share: kind and place of the segment, the messages of the last operation,
/// display and attachment level, and the TREs that an overflow DES carries on the segment's behalf.
class ORMO_CSM_API NITFStdDataSegment
{
public:
    using FieldTexts = std::map<std::string, std::string>;

    /// "ImageSegment" and so on; "UnknownDataSegment" for any other code.
    static const char* GetDataSegmentName(NITFCnst::DataSegmentType aType) noexcept;
    /// The same in a word for a person: "image", "des", "header"; null for any other code.
    static const char* GetDataSegmentWord(NITFCnst::DataSegmentType aType) noexcept;
    /// The kind of a name, white space around it left out; unknown for any other text.
    static NITFCnst::DataSegmentType GetDataSegmentCode(const char* aName) noexcept;
    /// True when `aFirst` is drawn before `aSecond`; false when either is null.
    static bool DisplayLevelSortPredicate(const NITFStdDataSegment* aFirst, const NITFStdDataSegment* aSecond) noexcept;
    /// A new array of null pointers; false when it cannot be had.
    static bool GetTREPointerArray(const TRE**& aArray, std::size_t aCount) noexcept;
    /// Frees the array; with `aDestroy` also the TREs. Nulls the pointer.
    static void DeleteTREPointerArray(const TRE**& aArray, std::size_t aCount, bool aDestroy);
    static void DeleteCharBuffer(char** aBuffer) noexcept;

    NITFCnst::DataSegmentType GetDataSegmentType() const noexcept { return m_kind; }
    /// The text of FHDR with the version, such as "NITF02.10".
    const char* GetNITFVersion() const noexcept { return m_versionText.c_str(); }
    /// Null until it is set.
    const NITFStdDataSegmentInfo* GetNITFStdDataSegmentInfo() const noexcept { return m_info.get(); }
    /// Bytes of data; 0 without segment information.
    std::uint64_t GetSegmentDataSize() const noexcept;
    std::uint64_t GetSegmentDataStart() const noexcept;
    /// The texts of the last operation: of the query that this thread asked last, or else of reading or validating the
    /// segment. They stay until this thread asks again.
    const char* GetErrorMessage() const noexcept;
    const char* GetWarningMessage() const noexcept;
    std::uint64_t GetDataSegmentDisplayLevel() const noexcept { return m_displayLevel; }
    std::uint64_t GetDataSegmentAttachmentLevel() const noexcept { return m_attachmentLevel; }
    void GetCCSOffsetValues(long& aColumn, long& aRow) const noexcept;
    bool IsDisplayableDataSegment() const noexcept { return m_displayLevel != 0; }
    /// Whether the field's editability text begins with "T" or "t"; false for an unknown name.
    bool IsNITFDataSegmentFieldEditable(const char* aName) const;

    /// Keeps a deep copy; the caller keeps its own TRE. False for null or when no copy can be made.
    bool AddOverflowTRE(const TRE* aTre);
    /// Takes all TREs of a store over, behind its own; the store goes on answering from them as long as this segment
    /// lives.
    void TakeOverflowTREs(TREStore& aStore);
    bool HasOverFlowTREs() const noexcept { return !m_overflow.IsEmpty(); }
    /// All overflow TREs, grouped by tag in tag order. The array is the caller's (DeleteTREPointerArray), the TREs stay
    /// the segment's.
    bool GetAllOverflowTREs(const TRE**& aArray, std::size_t& aCount) const;
    /// The overflow TREs in order of appearance.
    const TREStore& GetOverflowTREStore() const noexcept { return m_overflow; }

    virtual ~NITFStdDataSegment();
    virtual bool ContainsEmbeddedBinaryData() const;
    virtual long GetLOCRowValue() const;
    virtual long GetLOCColumnValue() const;
    virtual bool GetCCSColumnAndRow(long& aColumn, long& aRow) const;
    virtual long GetCCSRowValue() const;
    virtual long GetCCSColumnValue() const;
    virtual bool GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const;

    // The value of a field of this header or, with a TRE tag, of the first TRE of that tag. False, with a text in the
    // error message, when there is none or it does not convert. Pointers that are handed out belong to the segment.
    virtual bool GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength,
                                  const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsBool(const char* aName, bool& aValue, const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsDouble(const char* aName, double& aValue, const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsInt64(const char* aName, std::int64_t& aValue, const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsLong(const char* aName, long& aValue, const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength,
                                  const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsUInt64(const char* aName, std::uint64_t& aValue, const char* aTreTag = nullptr) const;
    virtual bool GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue, const char* aTreTag = nullptr) const;
    /// Field name to "T" (a user may change it) or "F".
    virtual const FieldTexts* GetFieldEditabilityMap() const = 0;
    /// How the value of a field is to be understood; unknown for an unknown name.
    virtual Util::CSMCnst::DataType GetFieldValueDataType(const char* aName) const = 0;
    /// The descriptions of all fields of the table, in table order; null when there is no table.
    virtual const std::vector<const char*>* GetAllFieldDescriptions() const;
    /// One flag per field that was read: whether it is binary; null when there is no table.
    virtual const std::vector<bool>* GetBinaryFieldList() const;
    /// The TREs of a tag, the segment's own first and then, when asked for, the overflow ones. The array is the
    /// caller's (DeleteTREPointerArray), the TREs stay the segment's. True with no TREs when there are none.
    virtual bool GetTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const;
    virtual bool IsBinaryField(const char* aName) const;
    virtual bool IsFieldEditable(const char* aName, const char* aTreTag = nullptr) const;
    virtual bool IsTREOfThisDataSegment(const char* aTag) const;
    /// Counts the errors and warnings that the standard's rules find; true when there are no errors.
    virtual bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings);
    /// The segment's XML element behind the given indent, cached until the next call; null when it cannot be had.
    virtual const char* SerializeDataSegment(const char* aIndent) = 0;
    /// The tags of the field table of this header, in the order of the header.
    virtual const std::vector<const char*>* GetAllFieldTags() const = 0;

protected:
    /// Raises CSMException-derived InitializationException for an empty version.
    NITFStdDataSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind);
    NITFStdDataSegment(const NITFStdDataSegment& aOther);

    virtual NITFStdDataSegment& operator=(const NITFStdDataSegment& aOther);
    virtual bool operator==(const NITFStdDataSegment& aOther) const;
    virtual bool operator!=(const NITFStdDataSegment& aOther) const;
    virtual void Assign(const NITFStdDataSegment& aOther);
    virtual void CleanAllOverflowTREs() noexcept;
    virtual bool CloneObj(const NITFStdDataSegment& aOther);
    virtual bool CloneOverflowTREs(const NITFStdDataSegment& aOther);
    virtual bool SetAttachmentLevel();
    virtual bool SetDisplayLevel();
    virtual void Swap(NITFStdDataSegment& aOther) noexcept;
    /// TREs were added: what was derived from them no longer holds.
    virtual void TREsChanged() {}

    void SetNITFStdDataSegmentInfo(const NITFStdDataSegmentInfo& aInfo);
    /// What reading or validating the segment has to say.
    void SetMessages(std::string aErrors, std::string aWarnings);
    /// Begins a query: the texts of this thread's last one are gone.
    void ClearMessages() const;
    /// What a query has to say, to the thread that asks.
    void AddError(const std::string& aMessage) const;
    void AddWarning(const std::string& aMessage) const;
    void SetLevels(std::uint64_t aDisplay, std::uint64_t aAttachment) noexcept;
    void SetCCSOffsets(long aColumn, long aRow) noexcept;
    void SetContainsEmbeddedBinaryData(bool aContains) noexcept { m_embeddedBinary = aContains; }

    /// All TREs of a store, or those of one tag, as a new array of pointers.
    static bool RetrieveTREs(const TREStore& aStore, const TRE**& aArray, std::size_t& aCount);
    static bool RetrieveTREs(const TREStore& aStore, const char* aTag, const TRE**& aArray, std::size_t& aCount);
    static bool AddDataSegmentTRE(TREStore& aStore, TRE* aTre);
    static void CleanNITFTreMap(TREStore& aStore) noexcept;

private:
    struct Messages;

    bool m_embeddedBinary = false;
    std::string m_versionText;
    std::unique_ptr<NITFStdDataSegmentInfo> m_info;
    std::int32_t m_ccsColumn = 0;
    std::int32_t m_ccsRow = 0;
    NITFCnst::DataSegmentType m_kind;
    TREStore m_overflow;
    std::uint64_t m_attachmentLevel = 0;
    std::uint64_t m_displayLevel = 0;
    std::unique_ptr<Messages> m_messages;
};

}  // namespace ORMO::SensorModel::CSM
