#include "segments/cgm/NITFCGMGraphicPrimitive.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"
#include "segments/cgm/detail/CgmPrimitiveParts.h"
#include "segments/cgm/detail/CgmWriter.h"

#include <algorithm>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

const Detail::CgmElement& Row(int aCode) noexcept
{
    return Detail::CgmElementRow(CGMCnst::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE, aCode);
}

}  // namespace

NITFCGMGraphicPrimitive::NITFCGMGraphicPrimitive(int aCode, std::vector<int> aNumbers)
    : m_code(aCode), m_numbers(std::move(aNumbers))
{
}

NITFCGMGraphicPrimitive::NITFCGMGraphicPrimitive(const NITFCGMGraphicPrimitive& aOther) = default;

NITFCGMGraphicPrimitive::~NITFCGMGraphicPrimitive() = default;

void NITFCGMGraphicPrimitive::DeleteCString(char*& aText) noexcept
{
    Util::CSMUtilString::DeleteCString(aText);
}

std::size_t NITFCGMGraphicPrimitive::Encoding(char** aOut, CGMCnst::EncodingType aType) const
{
    if (aOut == nullptr) {
        return 0;
    }
    *aOut = nullptr;
    const auto geometry = Parts::Geometry(*this);
    const auto text = Parts::Text(*this);
    std::string element;
    if (aType == CGMCnst::ENCODING_TYPE_CLEAR_TEXT) {
        Detail::AppendCgmClearText(Row(m_code), geometry, text, element);
    } else if (aType != CGMCnst::ENCODING_TYPE_BINARY ||
               !Detail::AppendCgmBinary(Row(m_code), geometry, text, element)) {
        return 0;
    }
    return Detail::HandOut(element, aOut) ? element.size() : 0;
}

bool NITFCGMGraphicPrimitive::operator==(const NITFCGMGraphicPrimitive& aOther) const
{
    return m_code == aOther.m_code && m_numbers == aOther.m_numbers && Parts::Font(*this) == Parts::Font(aOther) &&
           std::ranges::equal(Parts::Text(*this), Parts::Text(aOther));
}

bool NITFCGMGraphicPrimitive::operator!=(const NITFCGMGraphicPrimitive& aOther) const
{
    return !(*this == aOther);
}

NITFCGMGraphicPrimitive& NITFCGMGraphicPrimitive::operator=(const NITFCGMGraphicPrimitive& aOther)
{
    Assign(aOther);
    return *this;
}

void NITFCGMGraphicPrimitive::Assign(const NITFCGMGraphicPrimitive& aOther)
{
    if (this != &aOther && !CloneObj(aOther)) {
        throw RequestedOperationFailedException(
            "ERROR: System failed to assign all the member variables of one NITFCGMGraphicPrimitive to another.",
            "NITFCGMGraphicPrimitive::Assign");
    }
}

bool NITFCGMGraphicPrimitive::CloneObj(const NITFCGMGraphicPrimitive& aOther)
{
    if (m_code != aOther.m_code) {
        return false;
    }
    m_numbers = aOther.m_numbers;
    return true;
}

void NITFCGMGraphicPrimitive::Colour(std::size_t aIndex, int& aRed, int& aGreen, int& aBlue) const noexcept
{
    aRed = m_numbers[aIndex];
    aGreen = m_numbers[aIndex + 1];
    aBlue = m_numbers[aIndex + 2];
}

const int* NITFCGMGraphicPrimitive::Geometry() const noexcept
{
    return m_numbers.data() + Row(m_code).slots.count;
}

std::size_t NITFCGMGraphicPrimitive::GeometrySize() const noexcept
{
    return m_numbers.size() - Row(m_code).slots.count;
}

std::span<const int> NITFCGMGraphicPrimitive::Parts::Attributes(const NITFCGMGraphicPrimitive& aPrimitive) noexcept
{
    return {aPrimitive.m_numbers.data(), Row(aPrimitive.m_code).slots.count};
}

std::span<const int> NITFCGMGraphicPrimitive::Parts::Geometry(const NITFCGMGraphicPrimitive& aPrimitive) noexcept
{
    return {aPrimitive.Geometry(), aPrimitive.GeometrySize()};
}

std::span<const std::string> NITFCGMGraphicPrimitive::Parts::Text(const NITFCGMGraphicPrimitive& aPrimitive) noexcept
{
    if (aPrimitive.m_code != CGMCnst::BinaryC4GraphicalPrimitive::CODE_TEXT) {
        return {};
    }
    return {&static_cast<const CGMGraphicPrimitiveText&>(aPrimitive).m_text, 1};
}

std::string_view NITFCGMGraphicPrimitive::Parts::Font(const NITFCGMGraphicPrimitive& aPrimitive) noexcept
{
    if (aPrimitive.m_code != CGMCnst::BinaryC4GraphicalPrimitive::CODE_TEXT) {
        return {};
    }
    return static_cast<const CGMGraphicPrimitiveText&>(aPrimitive).m_font;
}

NITFCGMGraphicPrimitive* NITFCGMGraphicPrimitive::Parts::Copy(const NITFCGMGraphicPrimitive& aPrimitive)
{
    const auto text = Text(aPrimitive);
    return Row(aPrimitive.m_code)
        .make(aPrimitive.m_numbers, std::string(Font(aPrimitive)), text.empty() ? std::string() : text[0]);
}

}  // namespace ORMO::SensorModel::CSM
