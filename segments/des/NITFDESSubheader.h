#pragma once

#include "../NITFDataSegment.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class DesDESDATA;
class DesDESSHF;
struct DesXmlProduct;

/// The subheader of one data extension segment. NITF20DESSubheader reads MIL-STD-2500A (table XVIII),
/// NITF21DESSubheader MIL-STD-2500C (table A-8), which also serves NSIF 1.0.
///
/// The data of an overflow DES are TREs that belong to another segment; queries with a TRE tag answer from them.
/// Of the other types, those that SupportedDESSHFs knows have their user-defined subheader fields, and those that
/// SupportedDESDATAs knows their data, cut into fields.
class ORMO_CSM_API NITFDESSubheader : public NITFDataSegment
{
public:
    ~NITFDESSubheader() override;

    /// DESID, in NITF 2.0 DESTAG, without the blanks around it.
    std::string GetDESTypeID() const;
    /// Whether the data are TREs that did not fit into the segment they belong to.
    bool IsTREOverflow() const noexcept { return m_isOverflow; }
    bool IsStreamingFileHeader() const noexcept { return m_isStreaming; }
    /// The segment that the TREs belong to: its kind, its place among the segments of that kind from 0, and the
    /// extension area ("IXSHD"). Whether the file has such a segment is not looked at. False for any other DES and when
    /// DESOFLW or DESITEM do not say; what was wrong stood in the messages after construction.
    bool GetOverflowTarget(NITFCnst::DataSegmentType& aKind, long& aIndex, std::string& aArea) const;
    /// The TREs of an overflow DES, in order of appearance; empty for any other DES.
    const TREStore& GetOverflowTREs() const noexcept { return m_carried; }
    /// DESDATA, read when first asked for; it belongs to the segment. False, with the reason appended to `aErrors` when
    /// that is given, when it is not all in the file.
    bool GetDESDATA(const char*& aData, std::size_t& aLength, std::string* aErrors = nullptr) const
    {
        return GetData(aData, aLength, aErrors);
    }
    /// The user-defined subheader fields; null when there are none, the type is not known, or they do not fit it.
    const DesDESSHF* GetDESSHF() const noexcept { return m_subheader.get(); }
    /// The data cut into the fields of their type, read when first asked for. Null, with the reason appended to
    /// `aErrors` when that is given, when the type is not known, the data cannot be had, or they do not fit it.
    const DesDESDATA* GetDESDATAFields(std::string* aErrors = nullptr) const;
    /// What the data say of themselves when they are the XML document of a SICD or SIDD product; false otherwise. The
    /// document is read anew each time.
    bool GetXmlProduct(DesXmlProduct& aProduct) const;

    /// Whether the TREs of an overflow DES were handed over to the segment that they belong to.
    bool IsOverflowPlaced() const noexcept { return m_isPlaced; }
    /// Hands the TREs of an overflow DES over to their owner. The DES still answers from them as long as the owner
    /// lives.
    void PlaceOverflowTREs(NITFStdDataSegment& aOwner);

protected:
    NITFDESSubheader(const Layout& aLayout, Input& aInput);
    NITFDESSubheader(const NITFDESSubheader& aOther);

    using NITFDataSegment::operator=;
    bool operator==(const NITFStdDataSegment& aOther) const override;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    const char* TreRefusal() const noexcept override;
    const TREStore& QueriedTREs() const noexcept override { return m_carried; }
    bool GetDataField(std::string_view aName, const char*& aValue, std::size_t& aLength) const override;
    void AppendDataElements(Document& aOut) const override;
    std::string_view FieldLeftOut() const noexcept override;

private:
    struct TypedData;

    void InitDESSHF(Input& aInput);
    std::string LinkFault();
    /// The error text when the TREs cannot be had.
    std::string InitOverflowTREs(Input& aInput);

    bool m_isOverflow = false;
    bool m_isStreaming = false;
    bool m_hasTarget = false;
    bool m_isPlaced = false;
    NITFCnst::DataSegmentType m_targetKind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    long m_targetIndex = -1;
    std::string m_targetArea;
    TREStore m_carried;
    // Neither changes once it is made, so copies of a segment share them.
    std::shared_ptr<const DesDESSHF> m_subheader;
    std::shared_ptr<const TypedData> m_typedData;
};

}  // namespace ORMO::SensorModel::CSM
