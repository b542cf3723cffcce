#include "segments/label/NITF20LabelData.h"

#include "foundation/CSMExceptions.h"
#include "nitf/NITFCnst.h"
#include "segments/cgm/CGMCnst.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/detail/DrawingXml.h"
#include "segments/detail/SvgElement.h"

#include <algorithm>
#include <iterator>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* SOURCE = "NITF20LabelData::InitNITF20LabelData";
constexpr int MOST_CELL = NITFCnst::Limits::MAX_NITF20_LS_FIELD_LCH;
/// Of a label that does not give its cell: letters of the metafile's default height with room above and below.
constexpr int DEFAULT_CELL = 14;

std::string ColorText(const int (&aColor)[3])
{
    return Detail::NumberList(aColor[0], aColor[1], aColor[2]);
}

}  // namespace

NITF20LabelData::NITF20LabelData(const char* aText, std::size_t aLength, const std::uint8_t* aTextColor,
                                 const std::uint8_t* aBackgroundColor, int aCellHeight, int aCellWidth,
                                 long aUpperLeftRow, long aUpperLeftColumn)
    : m_cellHeight(aCellHeight), m_cellWidth(aCellWidth), m_row(aUpperLeftRow), m_column(aUpperLeftColumn)
{
    InitNITF20LabelData(aText, aLength, aTextColor, aBackgroundColor);
}

void NITF20LabelData::InitNITF20LabelData(const char* aText, std::size_t aLength, const std::uint8_t* aTextColor,
                                          const std::uint8_t* aBackgroundColor)
{
    if (aText == nullptr || aTextColor == nullptr || aBackgroundColor == nullptr) {
        throw InitializationException("ERROR: NULL/invalid input argument(s).", SOURCE);
    }
    if (m_cellHeight < 0 || m_cellHeight > MOST_CELL || m_cellWidth < 0 || m_cellWidth > MOST_CELL) {
        throw InitializationException(
            "ERROR: Unable to construct a NITF20LabelData object based on the input arguments.", SOURCE);
    }
    m_text.assign(aText, aLength);
    std::copy_n(aTextColor, 3, m_textColor);
    std::copy_n(aBackgroundColor, 3, m_backgroundColor);
}

const char* NITF20LabelData::GetLabelText(std::size_t& aLength) const noexcept
{
    aLength = m_text.size();
    return m_text.c_str();
}

void NITF20LabelData::GetLabelTextColor(int& aRed, int& aGreen, int& aBlue) const noexcept
{
    aRed = m_textColor[0];
    aGreen = m_textColor[1];
    aBlue = m_textColor[2];
}

void NITF20LabelData::GetLabelBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept
{
    aRed = m_backgroundColor[0];
    aGreen = m_backgroundColor[1];
    aBlue = m_backgroundColor[2];
}

void NITF20LabelData::GetLabelCellHeightAndWidth(int& aHeight, int& aWidth) const noexcept
{
    aHeight = m_cellHeight;
    aWidth = m_cellWidth;
}

void NITF20LabelData::GetUpperLeftCorner(long& aRow, long& aColumn) const noexcept
{
    aRow = m_row;
    aColumn = m_column;
}

NITF20LabelData::Cell NITF20LabelData::ShownCell() const noexcept
{
    const int height = m_cellHeight == 0 ? DEFAULT_CELL : m_cellHeight;
    // Courier is nearly as wide as its capitals are high, so these letters stay inside their cells.
    const int tallest = std::max(1, (7 * height + 5) / 10);
    const int capitals = m_cellWidth == 0 ? tallest : std::min(tallest, m_cellWidth);
    return {height, capitals, m_cellWidth == 0 ? capitals : m_cellWidth};
}

std::string NITF20LabelData::ConvertToCGM(int aNumber) const
{
    const Cell cell = ShownCell();
    const std::string name =
        "NITF Version 2.0 Label Segment converted into CGM [Label Segment #" + std::to_string(aNumber) + "]";
    const char* descriptions[] = {name.c_str(), "NITF Version 2.0 Label Segment text data."};
    short color[3]{};
    std::transform(std::begin(m_textColor), std::end(m_textColor), color,
                   [](int aComponent) { return static_cast<short>(aComponent); });
    char* bytes = nullptr;
    std::size_t size = 0;
    auto length = static_cast<int>(m_text.size());
    const int baseLine = cell.capitals + (cell.height - cell.capitals) / 2;
    if (!NITFCGMMetaFile::BinaryEncodeNITFCGMText(&bytes, descriptions, m_text.c_str(), length,
                                                  static_cast<short>(baseLine), 0, color, size,
                                                  CGMCnst::NITFFont::COURIER_BOLD, static_cast<short>(cell.capitals))) {
        return {};
    }
    std::string metafile(bytes, size);
    NITFCGMMetaFile::DeleteCString(bytes);
    return metafile;
}

void NITF20LabelData::AppendBackgroundSvg(double aColumn, double aRow, std::string& aSvg) const
{
    const Cell cell = ShownCell();
    Detail::SvgElement("rect", aSvg)
        .Attribute("x", aColumn)
        .Attribute("y", aRow)
        .Attribute("width", static_cast<double>(cell.width) * static_cast<double>(m_text.size()))
        .Attribute("height", static_cast<double>(cell.height))
        .Colour("fill", m_backgroundColor)
        .Close();
}

std::string NITF20LabelData::Serialize(std::string_view aIndent) const
{
    using X = NITFCnst;
    Detail::DrawingXml xml(aIndent);
    xml.Open(X::XML_ELEMENT_LABEL_DATA);
    xml.Text(X::XML_ELEMENT_LABEL_BACKGROUND_RGB_COLOR, ColorText(m_backgroundColor));
    xml.Text(X::XML_ELEMENT_LABEL_TEXT_RGB_COLOR, ColorText(m_textColor));
    xml.Text(X::XML_ELEMENT_LABEL_CELL_HEIGHT_WIDTH, Detail::NumberList(m_cellHeight, m_cellWidth),
             {{X::XML_ATTR_UNIT, X::XML_UNIT_PIXELS}});
    xml.Open(X::XML_ELEMENT_UL_CORNER_COORD_LABEL_BOUNDING_BOX);
    xml.Text(X::XML_ELEMENT_UL_BOUNDING_BOX_ROW_COLUMN, Detail::NumberList(m_row, m_column),
             {{X::XML_ATTR_UNIT, X::XML_UNIT_PIXELS}});
    xml.Close(X::XML_ELEMENT_UL_CORNER_COORD_LABEL_BOUNDING_BOX);
    xml.Text(X::XML_ELEMENT_LABEL_DATA_TEXT, m_text, {{X::XML_ATTR_SIZE, std::to_string(m_text.size())}});
    xml.Close(X::XML_ELEMENT_LABEL_DATA);
    return xml.Xml();
}

bool NITF20LabelData::operator==(const NITF20LabelData& aOther) const noexcept
{
    return m_text == aOther.m_text && std::ranges::equal(m_textColor, aOther.m_textColor) &&
           std::ranges::equal(m_backgroundColor, aOther.m_backgroundColor) && m_cellHeight == aOther.m_cellHeight &&
           m_cellWidth == aOther.m_cellWidth && m_row == aOther.m_row && m_column == aOther.m_column;
}

}  // namespace ORMO::SensorModel::CSM
