#include "segments/symbol/NITF20BitmappedSymbol.h"

#include "nitf/NITFCnst.h"
#include "segments/detail/DrawingXml.h"
#include "segments/detail/SvgElement.h"
#include "segments/symbol/detail/SymbolColor.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

std::string_view Checked(const char* aBytes, std::size_t aLength)
{
    if (aBytes == nullptr && aLength != 0) {
        throw std::invalid_argument("ERROR: Invalid input argument(s).");
    }
    return {aBytes, aLength};
}

std::string LutText(const std::vector<std::uint8_t>& aLut)
{
    std::string text;
    for (const std::uint8_t entry : aLut) {
        text += (text.empty() ? "" : " ") + std::to_string(entry);
    }
    return text;
}

}  // namespace

NITF20BitmappedSymbol::NITF20BitmappedSymbol(char aColor, int aBitsPerPixel, long aRows, long aColumns,
                                             long aUpperLeftRow, long aUpperLeftColumn, const char* aLut,
                                             std::size_t aLutLength, const char* aData, std::size_t aDataLength)
    : m_color(aColor),
      m_bits(aBitsPerPixel),
      m_rows(aRows),
      m_columns(aColumns),
      m_row(aUpperLeftRow),
      m_column(aUpperLeftColumn),
      m_data(Checked(aData, aDataLength))
{
    if (aBitsPerPixel < 1 || aBitsPerPixel > 8 || aRows < 0 || aColumns < 0) {
        throw std::invalid_argument("ERROR: Invalid input argument(s).");
    }
    const std::string_view lut = Checked(aLut, aLutLength);
    const Detail::SymbolColor* const color = Detail::FindSymbolColor(aColor);
    if (color != nullptr && color->hasGrayTable) {
        m_gray.assign(lut.begin(), lut.end());
    } else if (color != nullptr && color->hasColorTable) {
        for (std::size_t i = 0; i + 2 < lut.size(); i += 3) {
            m_red.push_back(static_cast<std::uint8_t>(lut[i]));
            m_green.push_back(static_cast<std::uint8_t>(lut[i + 1]));
            m_blue.push_back(static_cast<std::uint8_t>(lut[i + 2]));
        }
    }
}

const char* NITF20BitmappedSymbol::GetSCOLORDescription(char aColor) noexcept
{
    const Detail::SymbolColor* const color = Detail::FindSymbolColor(aColor);
    return color == nullptr ? nullptr : color->description;
}

void NITF20BitmappedSymbol::GetImageRowsAndColumns(long& aRows, long& aColumns) const noexcept
{
    aRows = m_rows;
    aColumns = m_columns;
}

void NITF20BitmappedSymbol::GetUpperLeftPixelLocation(long& aRow, long& aColumn) const noexcept
{
    aRow = m_row;
    aColumn = m_column;
}

bool NITF20BitmappedSymbol::GetColorLUT(const std::uint8_t*& aRed, const std::uint8_t*& aGreen,
                                        const std::uint8_t*& aBlue) const noexcept
{
    aRed = m_red.empty() ? nullptr : m_red.data();
    aGreen = m_green.empty() ? nullptr : m_green.data();
    aBlue = m_blue.empty() ? nullptr : m_blue.data();
    return !m_red.empty();
}

bool NITF20BitmappedSymbol::GetGrayScaleLUT(const std::uint8_t*& aGray) const noexcept
{
    aGray = m_gray.empty() ? nullptr : m_gray.data();
    return !m_gray.empty();
}

bool NITF20BitmappedSymbol::GetPixelValue(long aRow, long aColumn, int& aValue) const noexcept
{
    if (aRow < 0 || aRow >= m_rows || aColumn < 0 || aColumn >= m_columns) {
        return false;
    }
    // NLIPS and NPIXPL have four digits, so no product here comes near the width of its type.
    const auto bits = static_cast<std::uint64_t>(m_bits);
    const std::uint64_t first = (static_cast<std::uint64_t>(aRow) * static_cast<std::uint64_t>(m_columns) +
                                 static_cast<std::uint64_t>(aColumn)) *
                                bits;
    if (first + bits > std::uint64_t{8} * m_data.size()) {
        return false;
    }
    const std::size_t byte = first / 8;
    unsigned both = static_cast<unsigned>(static_cast<unsigned char>(m_data[byte])) << 8U;
    both |= byte + 1 < m_data.size() ? static_cast<unsigned char>(m_data[byte + 1]) : 0U;
    const unsigned value = both >> (16U - first % 8 - bits) & ((1U << bits) - 1U);
    aValue = static_cast<int>(value);
    return true;
}

NITF20BitmappedSymbol::Color NITF20BitmappedSymbol::ColorOf(int aValue) const noexcept
{
    const auto index = static_cast<std::size_t>(aValue);
    if (index < m_red.size()) {
        return {false, m_red[index], m_green[index], m_blue[index]};
    }
    if (index < m_gray.size()) {
        return {false, m_gray[index], m_gray[index], m_gray[index]};
    }
    const Detail::SymbolColor* const color = Detail::FindSymbolColor(m_color);
    if (color == nullptr || color->hasColorTable || color->hasGrayTable || (aValue == 0 && color->zeroIsTransparent)) {
        return {};
    }
    return aValue == 0 ? Color{false, 0, 0, 0} : Color{false, color->red, color->green, color->blue};
}

NITF20BitmappedSymbol::Color NITF20BitmappedSymbol::GetPixelColor(long aRow, long aColumn) const noexcept
{
    int value = 0;
    return GetPixelValue(aRow, aColumn, value) ? ColorOf(value) : Color{};
}

void NITF20BitmappedSymbol::AppendSvg(double aColumn, double aRow, std::string& aSvg) const
{
    // One path for each value: its runs along the rows, as rectangles of a pixel's height.
    std::map<int, std::string> paths;
    for (long row = 0; row != m_rows; ++row) {
        int value = 0;
        if (!GetPixelValue(row, 0, value)) {
            break;
        }
        for (long start = 0; start < m_columns && GetPixelValue(row, start, value);) {
            long end = start + 1;
            for (int next = value; end < m_columns && GetPixelValue(row, end, next) && next == value;) {
                ++end;
            }
            if (!ColorOf(value).transparent) {
                const std::string width = std::to_string(end - start);
                paths[value] +=
                    "M" + std::to_string(start) + "," + std::to_string(row) + "h" + width + "v1h-" + width + "z";
            }
            start = end;
        }
    }
    Detail::SvgElement("g", aSvg)
        .Attribute("transform", Detail::SvgTranslation(aColumn, aRow))
        .Attribute("shape-rendering", "crispEdges")
        .Open();
    for (const auto& [value, path] : paths) {
        const Color color = ColorOf(value);
        const int components[] = {color.red, color.green, color.blue};
        Detail::SvgElement("path", aSvg).Colour("fill", components).Attribute("d", path).Close();
    }
    aSvg += "</g>\n";
}

std::string NITF20BitmappedSymbol::Serialize(std::string_view aIndent) const
{
    using X = NITFCnst;
    Detail::DrawingXml xml(aIndent);
    xml.Open(X::XML_ELEMENT_BITMAPPED_SYMBOL);
    const char* const description = GetSCOLORDescription();
    xml.Text(X::XML_ELEMENT_SYMBOL_COLOR, description == nullptr ? "" : description,
             {{X::XML_ATTR_VALUE, std::string_view(&m_color, 1)}});
    xml.Text(X::XML_ELEMENT_BITS_PER_PIXEL, std::to_string(m_bits));
    xml.Text(X::XML_ELEMENT_IMAGE_ROW_COLUMN, Detail::NumberList(m_rows, m_columns));
    xml.Open(X::XML_ELEMENT_UL_CORNER_COORDINATES);
    xml.Text(X::XML_ELEMENT_UL_PIXEL_ROW_COLUMN, Detail::NumberList(m_row, m_column),
             {{X::XML_ATTR_UNIT, X::XML_UNIT_PIXELS}});
    xml.Close(X::XML_ELEMENT_UL_CORNER_COORDINATES);
    if (!m_red.empty()) {
        xml.Open(X::XML_ELEMENT_COLOR_LUT, {{X::XML_ATTR_SIZE, std::to_string(m_red.size())}});
        xml.Text(X::XML_ELEMENT_LUT_RED_COMPONENT, LutText(m_red));
        xml.Text(X::XML_ELEMENT_LUT_GREEN_COMPONENT, LutText(m_green));
        xml.Text(X::XML_ELEMENT_LUT_BLUE_COMPONENT, LutText(m_blue));
        xml.Close(X::XML_ELEMENT_COLOR_LUT);
    }
    if (!m_gray.empty()) {
        xml.Text(X::XML_ELEMENT_GRAY_SCALE_LUT, LutText(m_gray), {{X::XML_ATTR_SIZE, std::to_string(m_gray.size())}});
    }
    xml.Close(X::XML_ELEMENT_BITMAPPED_SYMBOL);
    return xml.Xml();
}

bool NITF20BitmappedSymbol::operator==(const NITF20BitmappedSymbol& aOther) const noexcept
{
    return m_color == aOther.m_color && m_bits == aOther.m_bits && m_rows == aOther.m_rows &&
           m_columns == aOther.m_columns && m_row == aOther.m_row && m_column == aOther.m_column &&
           m_red == aOther.m_red && m_green == aOther.m_green && m_blue == aOther.m_blue && m_gray == aOther.m_gray &&
           m_data == aOther.m_data;
}

}  // namespace ORMO::SensorModel::CSM
