#pragma once

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Appends a number with at most three decimals and without trailing zeros.
void AppendSvgNumber(double aNumber, std::string& aOut);

/// "translate(x y)".
std::string SvgTranslation(double aX, double aY);

/// Writes one SVG element: the start tag with its attributes, then the end.
class SvgElement
{
public:
    SvgElement(std::string_view aName, std::string& aOut);

    SvgElement& Attribute(std::string_view aName, std::string_view aValue);
    SvgElement& Attribute(std::string_view aName, double aValue);
    /// "#rrggbb" of three numbers from 0 to 255.
    SvgElement& Colour(std::string_view aName, const int* aColour);
    void Close();
    /// With Latin-1 content; bytes that XML cannot carry become '?'.
    void Close(std::string_view aContent);
    /// Leaves the element open for others.
    void Open();

private:
    std::string_view m_name;
    std::string& m_out;
};

}  // namespace ORMO::SensorModel::CSM::Detail
