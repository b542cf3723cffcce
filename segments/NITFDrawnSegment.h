#pragma once

#include "NITFDataSegment.h"
#include "cgm/CGMDrawing.h"

#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class NITFCGMMetaFile;

/// What graphics, symbols and labels share: a place in the common coordinate system, and something to draw there.
class ORMO_CSM_API NITFDrawnSegment : public NITFDataSegment
{
public:
    ~NITFDrawnSegment() override;

    /// The metafile of the data; for a label the one that its text was made into. Null when the segment has none, its
    /// data cannot be had, or its levels and location are not possible for one. A fault of the metafile is that
    /// object's to tell. Owned by the segment and its copies.
    const NITFCGMMetaFile* GetCGMMetaFile() const noexcept { return m_metafile.get(); }
    /// The data as they stand in the file, read when first asked for; they belong to the segment. False, with the
    /// reason appended to `aErrors` when that is given, when they are not all in the file.
    bool GetSegmentData(const char*& aData, std::size_t& aLength, std::string* aErrors = nullptr) const
    {
        return GetData(aData, aLength, aErrors);
    }
    /// Appends SVG elements that draw the segment in the common coordinate system; false when there is nothing to draw.
    virtual bool AppendSvg(std::string& aSvg) const;
    /// The smallest rectangle around what is drawn, as columns and rows of the common coordinate system; false when
    /// nothing is drawn.
    virtual bool GetDrawnBounds(CGMDrawing::Bounds& aBounds) const;

    void SetAttachedTo(long aColumn, long aRow) noexcept override;

protected:
    NITFDrawnSegment(const Layout& aLayout, Input& aInput);
    NITFDrawnSegment(const NITFDrawnSegment& aOther);

    using NITFDataSegment::operator=;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    std::string DataFaultText() const override;
    void AppendElementsAfterTREs(std::string& aXml) const override;
    /// The elements for the data, each line behind the indent.
    virtual std::string DrawnElements(std::string_view aIndent) const;
    /// The element of the metafile; empty without one.
    std::string MetafileElement(std::string_view aIndent) const;

    /// Reads a metafile and adds to the findings what is wrong with it. The offset is that of its first byte in the
    /// file, if it stands there.
    void ReadMetafile(std::string_view aBytes, Input& aInput, std::uint64_t aOffset);
    /// The same for the data of the segment.
    void ReadMetafile(Input& aInput);

private:
    std::shared_ptr<NITFCGMMetaFile> m_metafile;  // copies of a segment look at the same one
};

}  // namespace ORMO::SensorModel::CSM
