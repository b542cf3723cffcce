#pragma once

#include "NITFFieldSegment.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// What all subheaders share: a subheader that is read when the object is made, and data behind it
/// that stay in the file until somebody asks for them.
class ORMO_CSM_API NITFDataSegment : public NITFFieldSegment
{
public:
    ~NITFDataSegment() override;

    /// Position among the segments of the same kind, from 0.
    int GetSegmentNumber() const noexcept { return m_number; }
    /// Whether the file holds all of the data.
    bool IsDataAvailable() const noexcept;
    /// The subheader as raw metadata, built on demand; owned by the subheader.
    const RawNITFMetadataStdDataSegment* GetAllSegmentMetadata() const { return GetAllMetadata(); }

    /// The element of the segment with its fields, its data and its TREs. Data that cannot be had are left out.
    const char* SerializeDataSegment(const char* aIndent) override;
    void AppendElement(Document& aOut, std::string_view aIndent, int aIndex) const override;
    /// A new text with that element; the caller frees it with CSMUtilString::DeleteCString. The length goes to
    /// `aLength` when that is given.
    bool Serialize(char** aXml, int aIndex, std::size_t* aLength) const;

protected:
    /// Reads the fields and the extension areas of a subheader and learns where its data are. Raises
    /// ImageSupportDataConstructionException with all that was wrong.
    NITFDataSegment(const Layout& aLayout, Input& aInput);
    NITFDataSegment(const NITFDataSegment& aOther);

    using NITFFieldSegment::operator=;
    bool operator==(const NITFStdDataSegment& aOther) const override;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;

    /// What stands before the reason when the data cannot be had; empty for nothing.
    virtual std::string DataFaultText() const;
    /// The elements between the fields and the TREs.
    virtual void AppendDataElements(Document& aOut) const;
    /// The elements behind the TREs.
    virtual void AppendElementsAfterTREs(std::string& aXml) const;
    /// The field whose element AppendDataElements writes in another form; empty for none.
    virtual std::string_view FieldLeftOut() const noexcept;

    /// All of the data, read when first asked for; they belong to the segment.
    bool GetData(const char*& aData, std::size_t& aLength, std::string* aErrors) const;
    /// The data for a single use: not kept. False when they cannot be had.
    bool ReadData(std::string& aOut) const;
    /// The first of the data for a single use, no more than `aMost` bytes.
    bool ReadDataFront(std::size_t aMost, std::string& aOut) const;
    /// Why the data cannot be had; empty when they can.
    std::string DataFault() const;
    /// Whether there is a file to read the data from.
    bool HasDataSource() const noexcept;
    struct Data;
    const Data& TheData() const noexcept { return *m_data; }
    /// An element with the data as text or, when XML cannot carry them, in base64.
    void AppendDataElement(const char* aElement, Document& aOut) const;

private:
    int m_number = -1;
    std::shared_ptr<const Data> m_data;  // copies of a segment look at the same data
    std::string m_xml;
};

}  // namespace ORMO::SensorModel::CSM
