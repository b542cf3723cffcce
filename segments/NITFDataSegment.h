#pragma once

#include "NITFFieldSegment.h"

#include <cstddef>
#include <cstdio>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {

class RawNITFMetadata;
class RawNITFMetadataStdDataSegment;

namespace Detail {
class ByteSource;
class SegmentData;
}  // namespace Detail

/// What the text, DES and RES subheaders share: a subheader that is read when the object is made, and data behind it
/// that stay in the file until somebody asks for them.
class ORMO_CSM_API NITFDataSegment : public NITFFieldSegment
{
public:
    ~NITFDataSegment() override;

    /// Position among the segments of the same kind, from 0.
    int GetSegmentNumber() const noexcept { return m_number; }
    /// Whether the file holds all of the data.
    bool IsDataAvailable() const noexcept;
    /// Writes the data to a stream in pieces, whatever their size. False, with a text appended to `aErrors` when that
    /// is given, when the data are not all in the file or writing fails.
    bool WriteData(std::FILE* aOut, std::string* aErrors = nullptr) const;
    /// The subheader as raw metadata, built on demand; owned by the subheader.
    const RawNITFMetadata* GetAllSegmentMetadata() const;

    /// The element of the segment with its fields, its data and its TREs. Data that cannot be had are left out.
    const char* SerializeDataSegment(const char* aIndent) override;

protected:
    NITFDataSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind, const Detail::FieldTable& aTable);
    NITFDataSegment(const NITFDataSegment& aOther);

    using NITFFieldSegment::operator=;
    bool operator==(const NITFStdDataSegment& aOther) const override;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;

    /// The word for the kind in its messages: "text", "DES" or "RES".
    virtual const char* KindWord() const noexcept = 0;
    /// What stands before the reason when the data cannot be had; empty for nothing.
    virtual std::string DataFaultText() const;
    /// The elements between the fields and the TREs.
    virtual void AppendDataElements(std::string& aXml) const = 0;
    /// The field whose element AppendDataElements writes in another form; empty for none.
    virtual std::string_view FieldLeftOut() const noexcept;

    /// Reads the fields of a subheader that stands where `aInfo` says, and learns where its data are. Raises
    /// ImageSupportDataConstructionException with all that was wrong: `aFamily` is its source when there is nothing to
    /// read, `aReader` when a field cannot be read.
    void ReadSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                       std::shared_ptr<const Detail::ByteSource> aSource, const char* aFamily, const char* aReader);
    /// All of the data, read when first asked for; they belong to the segment.
    bool GetData(const char*& aData, std::size_t& aLength, std::string* aErrors) const;
    const Detail::SegmentData& Data() const noexcept { return *m_data; }
    /// An element with the data as text or, when XML cannot carry them, in base64.
    void AppendDataElement(const char* aElement, std::string& aXml) const;

private:
    int m_number = -1;
    std::shared_ptr<const Detail::SegmentData> m_data;  // copies of a segment look at the same data
    std::string m_xml;
    mutable std::unique_ptr<RawNITFMetadataStdDataSegment> m_metadata;
};

}  // namespace ORMO::SensorModel::CSM
