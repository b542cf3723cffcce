#include "foundation/detail/HandOut.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/cgm/detail/CgmWriter.h"

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace ORMO::SensorModel::CSM {

namespace {

using C = CGMCnst;
using Bin0 = C::BinaryC0Delimiter;
using Bin1 = C::BinaryC1MetafileDescriptor;
using Bin2 = C::BinaryC2PictureDescriptor;
using Bin4 = C::BinaryC4GraphicalPrimitive;
using Bin5 = C::BinaryC5Attribute;

constexpr int DELIMITER = C::BINARY_ENCODING_ELEMENT_DELIMITER;
constexpr int DESCRIPTOR = C::BINARY_ENCODING_ELEMENT_METAFILE_DESCRIPTOR;
constexpr int PICTURE = C::BINARY_ENCODING_ELEMENT_PICTURE_DESCRIPTOR;
constexpr int PRIMITIVE = C::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE;
constexpr int ATTRIBUTE = C::BINARY_ENCODING_ELEMENT_ATTRIBUTE;

constexpr std::uint16_t Header(int aClass, int aId, int aLength)
{
    return static_cast<std::uint16_t>(aClass << 12 | aId << 5 | aLength);
}

// The headers that hosts know are those that the writer makes of the table.
static_assert(Header(DELIMITER, Bin0::CODE_BEGIN_METAFILE, 31) == C::BIN_ENCODE_BEGIN_METAFILE_LONG_FORM);
static_assert(Header(DELIMITER, Bin0::CODE_END_METAFILE, 0) == C::BIN_ENCODE_END_METAFILE);
static_assert(Header(DELIMITER, Bin0::CODE_BEGIN_PICTURE, 31) == C::BIN_ENCODE_BEGIN_PICTURE_LONG_FORM);
static_assert(Header(DELIMITER, Bin0::CODE_BEGIN_PICTURE_BODY, 0) == C::BIN_ENCODE_BEGIN_PICTURE_BODY);
static_assert(Header(DELIMITER, Bin0::CODE_END_PICTURE, 0) == C::BIN_ENCODE_END_PICTURE);
static_assert(Header(DESCRIPTOR, Bin1::CODE_METAFILE_VERSION, 2) == C::BIN_ENCODE_METAFILE_VERSION);
static_assert(Header(DESCRIPTOR, Bin1::CODE_METAFILE_DESCRIPTION, 18) == C::BIN_ENCODE_METAFILE_DESCRIPTION);
static_assert(Header(DESCRIPTOR, Bin1::CODE_METAFILE_ELEMENT_LIST, 6) == C::BIN_ENCODE_METAFILE_ELEMENT_LIST);
static_assert(Header(DESCRIPTOR, Bin1::CODE_FONT_LIST, 31) == C::BIN_ENCODE_FONT_LIST_LONG_FORM);
static_assert(Header(PICTURE, Bin2::CODE_COLOUR_SELECTION_MODE, 2) == C::BIN_ENCODE_COLOR_SELECTION_MODE);
static_assert(Header(PICTURE, Bin2::CODE_VDC_EXTENT, 8) == C::BIN_ENCODE_VDC_EXTENT);
static_assert(Header(PRIMITIVE, Bin4::CODE_TEXT, 31) == C::BIN_ENCODE_TEXT_LONG_FORM);
static_assert(Header(ATTRIBUTE, Bin5::CODE_TEXT_FONT_INDEX, 2) == C::BIN_ENCODE_TEXT_FONT_INDEX);
static_assert(Header(ATTRIBUTE, Bin5::CODE_TEXT_COLOUR, 3) == C::BIN_ENCODE_TEXT_COLOR);
static_assert(Header(ATTRIBUTE, Bin5::CODE_CHARACTER_HEIGHT, 2) == C::BIN_ENCODE_CHARACTER_HEIGHT);
static_assert(Header(ATTRIBUTE, Bin5::CODE_CHARACTER_ORIENTATION, 8) == C::BIN_ENCODE_CHARACTER_ORIENTATION);

/// Puts elements one behind the other, as long as each of them fits.
class MetafileWriter
{
public:
    void Numbers(int aClass, int aId, std::initializer_list<int> aNumbers)
    {
        Put(aClass, aId, {aNumbers.begin(), aNumbers.size()}, {});
    }
    void Text(int aClass, int aId, const std::string& aText) { Put(aClass, aId, {}, {&aText, 1}); }
    /// An attribute with the value that it has before a metafile sets it.
    void Initial(int aClass, int aId)
    {
        const Detail::CgmSlots slots = Detail::CgmElementRow(aClass, aId).slots;
        Put(aClass, aId, std::span(Detail::InitialCgmState()).subspan(slots.first, slots.count), {});
    }
    void Put(int aClass, int aId, std::span<const int> aNumbers, std::span<const std::string> aTexts)
    {
        m_good = m_good && Detail::AppendCgmBinary(Detail::CgmElementRow(aClass, aId), aNumbers, aTexts, m_bytes);
    }

    bool IsGood() const noexcept { return m_good; }
    const std::string& Bytes() const noexcept { return m_bytes; }

private:
    std::string m_bytes;
    bool m_good = true;
};

std::string OrEmpty(const char* aText)
{
    return aText == nullptr ? "" : aText;
}

}  // namespace

bool NITFCGMMetaFile::BinaryEncodeNITFCGMText(char** aOut, const char** aDescriptions, const char* aText,
                                              int& aTextLength, short aRow, short aColumn, short* aColor,
                                              std::size_t& aSize, const char* aFont, short aCharacterHeight)
{
    aSize = 0;
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    const short black[] = {C::NITFCGMDefaultValue::TEXT_COLOR_RED, C::NITFCGMDefaultValue::TEXT_COLOR_GREEN,
                           C::NITFCGMDefaultValue::TEXT_COLOR_BLUE};
    const short* const colour = aColor == nullptr ? black : aColor;
    if (aText == nullptr || aCharacterHeight < 1 || std::any_of(colour, colour + 3, [](short aComponent) {
            return aComponent < Bin5::VAL_MIN_COLOUR || aComponent > Bin5::VAL_MAX_COLOUR;
        })) {
        return false;
    }
    const std::string text =
        aTextLength < 0 ? std::string(aText) : std::string(aText, static_cast<std::size_t>(aTextLength));
    const char* const* const names = aDescriptions;

    MetafileWriter out;
    out.Text(DELIMITER, Bin0::CODE_BEGIN_METAFILE, OrEmpty(names == nullptr ? nullptr : names[0]));
    out.Numbers(DESCRIPTOR, Bin1::CODE_METAFILE_VERSION, {C::CURRENT_NITF_CGM_VERSION});
    out.Text(DESCRIPTOR, Bin1::CODE_METAFILE_DESCRIPTION, C::NITF_METAFILE_DESCRIPTION_ELEMENT);
    out.Numbers(DESCRIPTOR, Bin1::CODE_METAFILE_ELEMENT_LIST,
                {Bin1::VAL_DRAWING_PLUS_CONTROL_SET_CLASS, Bin1::VAL_DRAWING_PLUS_CONTROL_SET_ID});
    out.Text(DESCRIPTOR, Bin1::CODE_FONT_LIST, aFont == nullptr ? C::NITF_CGM_DEFAULT_FONT : aFont);
    out.Text(DELIMITER, Bin0::CODE_BEGIN_PICTURE, OrEmpty(names == nullptr ? nullptr : names[1]));
    out.Numbers(PICTURE, Bin2::CODE_COLOUR_SELECTION_MODE, {Bin2::VAL_COLOUR_SELECTION_MODE_DIRECT});
    out.Initial(PICTURE, Bin2::CODE_VDC_EXTENT);
    out.Numbers(DELIMITER, Bin0::CODE_BEGIN_PICTURE_BODY, {});
    out.Numbers(ATTRIBUTE, Bin5::CODE_TEXT_FONT_INDEX, {1});
    out.Numbers(ATTRIBUTE, Bin5::CODE_TEXT_COLOUR, {colour[0], colour[1], colour[2]});
    out.Numbers(ATTRIBUTE, Bin5::CODE_CHARACTER_HEIGHT, {aCharacterHeight});
    out.Initial(ATTRIBUTE, Bin5::CODE_CHARACTER_ORIENTATION);
    const int place[] = {aColumn, aRow, Bin4::VAL_TEXT_FINAL};
    out.Put(PRIMITIVE, Bin4::CODE_TEXT, place, {&text, 1});
    out.Numbers(DELIMITER, Bin0::CODE_END_PICTURE, {});
    out.Numbers(DELIMITER, Bin0::CODE_END_METAFILE, {});

    if (!out.IsGood() || !Detail::HandOut(out.Bytes(), aOut)) {
        return false;
    }
    aSize = out.Bytes().size();
    aTextLength = static_cast<int>(text.size());
    return true;
}

}  // namespace ORMO::SensorModel::CSM
