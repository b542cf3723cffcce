#include "tools/Drawing.h"

#include "tools/SegmentName.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

/// The frame of a drawing: everything that is to be seen.
class Frame
{
public:
    void Add(const CGMDrawing::Bounds& aBounds)
    {
        m_bounds = m_empty ? aBounds
                           : CGMDrawing::Bounds{
                                 std::min(m_bounds.left, aBounds.left), std::min(m_bounds.top, aBounds.top),
                                 std::max(m_bounds.right, aBounds.right), std::max(m_bounds.bottom, aBounds.bottom)};
        m_empty = false;
    }

    /// The start tag and the paper, with a margin around all. Large drawings are shown smaller.
    std::string Start() const
    {
        constexpr double MOST_PIXELS = 2048;
        const double margin = 5 + 0.02 * std::max(m_bounds.right - m_bounds.left, m_bounds.bottom - m_bounds.top);
        const double left = std::floor(m_bounds.left - margin);
        const double top = std::floor(m_bounds.top - margin);
        const double width = std::ceil(m_bounds.right + margin) - left;
        const double height = std::ceil(m_bounds.bottom + margin) - top;
        const double scale = std::min(1.0, MOST_PIXELS / std::max(width, height));
        std::ostringstream svg;
        svg.precision(15);
        svg << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" "
            << "width=\"" << std::ceil(width * scale) << "\" height=\"" << std::ceil(height * scale) << "\" viewBox=\""
            << left << ' ' << top << ' ' << width << ' ' << height << "\">\n"
            << "<rect x=\"" << left << "\" y=\"" << top << "\" width=\"" << width << "\" height=\"" << height
            << "\" fill=\"#a8a8a8\"/>\n";
        return svg.str();
    }

private:
    CGMDrawing::Bounds m_bounds;
    bool m_empty = true;
};

CGMDrawing::Bounds BoundsOf(const NITFImageSubheader& aImage)
{
    unsigned long rows = 0;
    unsigned long columns = 0;
    aImage.GetFieldAsUnsignedLong("NROWS", rows);
    aImage.GetFieldAsUnsignedLong("NCOLS", columns);
    const auto row = static_cast<double>(aImage.GetCCSRowValue());
    const auto column = static_cast<double>(aImage.GetCCSColumnValue());
    return {column, row, column + static_cast<double>(columns), row + static_cast<double>(rows)};
}

std::string Titled(const NITFFieldSegment& aSegment, const std::string& aElements)
{
    return "<g>\n<title>" + NameOf(aSegment) + "</title>\n" + aElements + "</g>\n";
}

std::string Outline(const CGMDrawing::Bounds& aBounds)
{
    std::ostringstream svg;
    svg.precision(15);
    svg << "<rect x=\"" << aBounds.left << "\" y=\"" << aBounds.top << "\" width=\"" << aBounds.right - aBounds.left
        << "\" height=\"" << aBounds.bottom - aBounds.top
        << "\" fill=\"#909090\" stroke=\"#404040\" vector-effect=\"non-scaling-stroke\"/>\n";
    return svg.str();
}

}  // namespace

std::string NameOf(const NITFFieldSegment& aSegment)
{
    const NITFStdDataSegmentInfo* const info = aSegment.GetNITFStdDataSegmentInfo();
    return ShownSegment(aSegment.GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
}

std::string Drawing(const ImageSupportDataNITF& aIsd, const NITFDrawnSegment* aOnly)
{
    Frame frame;
    std::string elements;
    for (const NITFFieldSegment* const segment : aIsd.GetDisplayableDataSegmentOrderedByDisplayLevels()) {
        const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(segment);
        const auto* const image = dynamic_cast<const NITFImageSubheader*>(segment);
        CGMDrawing::Bounds bounds;
        std::string content;
        if (aOnly != nullptr && aOnly != drawn) {
            continue;
        }
        if (image != nullptr) {
            frame.Add(BoundsOf(*image));
            elements += Titled(*image, Outline(BoundsOf(*image)));
        } else if (drawn != nullptr && drawn->AppendSvg(content)) {
            if (drawn->GetDrawnBounds(bounds)) {
                frame.Add(bounds);
            }
            elements += Titled(*drawn, content);
        }
    }
    return frame.Start() + elements + "</svg>\n";
}

}  // namespace OrmoNitf
