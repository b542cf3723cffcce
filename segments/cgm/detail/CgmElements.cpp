#include "segments/cgm/detail/CgmElements.h"

#include "segments/cgm/detail/CgmPrimitiveParts.h"

#include <algorithm>
#include <iterator>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using C = CGMCnst;
using P = CgmParameter;
using Bin0 = C::BinaryC0Delimiter;
using Bin1 = C::BinaryC1MetafileDescriptor;
using Bin2 = C::BinaryC2PictureDescriptor;
using Bin4 = C::BinaryC4GraphicalPrimitive;
using Bin5 = C::BinaryC5Attribute;
using Txt0 = C::ClearTextC0Delimiter;
using Txt1 = C::ClearTextC1MetafileDescriptor;
using Txt2 = C::ClearTextC2PictureDescriptor;
using Txt4 = C::ClearTextC4GraphicalPrimitive;
using Txt5 = C::ClearTextC5Attribute;
using Default = C::NITFCGMDefaultValue;
using Parameters = std::array<CgmParameter, 6>;

constexpr CgmWords DIRECT{Bin2::VAL_COLOUR_SELECTION_MODE_DIRECT, Txt2::VAL_COLOUR_SELECTION_MODE_DIRECT, ""};
constexpr CgmWords ABSOLUTE{Bin2::VAL_WIDTH_SPECIFICATION_MODE_ABSOLUTE, Txt2::VAL_WIDTH_SPECIFICATION_MODE_ABSOLUTE,
                            ""};
constexpr CgmWords FINAL{Bin4::VAL_TEXT_FINAL, Txt4::VAL_TEXT_FINAL, Txt4::VAL_TEXT_NOT_FINAL};
constexpr CgmWords CLOSURE{Bin4::VAL_CLOSURE_CHORD, Txt4::VAL_CLOSURE_CHORD, Txt4::VAL_CLOSURE_PIE};
constexpr CgmWords STYLE{Bin5::VAL_INTERIOR_STYLE_EMPTY, Txt5::VAL_INTERIOR_STYLE_EMPTY,
                         Txt5::VAL_INTERIOR_STYLE_SOLID};
constexpr CgmWords VISIBLE{Bin5::VAL_EDGE_VISIBILITY_ON, Txt5::VAL_EDGE_VISIBILITY_ON, Txt5::VAL_EDGE_VISIBILITY_OFF};

constexpr CgmBounds Only(int aValue)
{
    return {aValue, aValue, aValue, aValue};
}

constexpr CgmBounds OneOf(int aFirst, int aSecond, int aOtherwise)
{
    return {aFirst, aFirst, aSecond, aOtherwise};
}

constexpr CgmBounds AtLeastOne(int aOtherwise)
{
    return {1, INT16_MAX, 1, aOtherwise};
}

constexpr CgmElement Delimiter(int aId, const char* aKeyword, Parameters aParameters = {})
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_DELIMITER,
            .id = aId,
            .keyword = aKeyword,
            .parameters = aParameters};
}

constexpr CgmElement Descriptor(int aId, const char* aKeyword, Parameters aParameters)
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_METAFILE_DESCRIPTOR,
            .id = aId,
            .keyword = aKeyword,
            .parameters = aParameters};
}

/// A mode of the picture; the profile allows one value.
constexpr CgmElement Mode(int aId, const char* aKeyword, std::uint8_t aSlot, const CgmWords& aOnly)
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_PICTURE_DESCRIPTOR,
            .id = aId,
            .keyword = aKeyword,
            .parameters = {P::Word},
            .slots = {aSlot, 1},
            .initial = {aOnly.value},
            .bounds = Only(aOnly.value),
            .words = &aOnly};
}

constexpr CgmElement Number(int aId, const char* aKeyword, std::uint8_t aSlot, CgmBounds aBounds,
                            const CgmWords* aWords = nullptr)
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_ATTRIBUTE,
            .id = aId,
            .keyword = aKeyword,
            .parameters = {aWords == nullptr ? P::Integer : P::Word},
            .slots = {aSlot, 1},
            .initial = {aBounds.otherwise},
            .bounds = aBounds,
            .words = aWords};
}

constexpr CgmElement Colour(int aId, const char* aKeyword, std::uint8_t aSlot, std::array<int, 4> aInitial)
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_ATTRIBUTE,
            .id = aId,
            .keyword = aKeyword,
            .parameters = {P::Colour},
            .slots = {aSlot, 3},
            .initial = aInitial};
}

template<typename Primitive>
constexpr CgmElement Draws(int aId, const char* aKeyword, CgmSlots aSlots, Parameters aParameters,
                           const CgmWords* aWords = nullptr, unsigned aLeastPoints = 0)
{
    return {.elementClass = C::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE,
            .id = aId,
            .keyword = aKeyword,
            .parameters = aParameters,
            .slots = aSlots,
            .words = aWords,
            .lengthIsVital = true,
            .leastPoints = aLeastPoints,
            .make = &CgmPrimitiveParts::Make<Primitive>};
}

/// The extent that the profile prescribes: x to the right, y down, as rows and columns run.
constexpr CgmElement EXTENT{.elementClass = C::BINARY_ENCODING_ELEMENT_PICTURE_DESCRIPTOR,
                            .id = Bin2::CODE_VDC_EXTENT,
                            .keyword = Txt2::CODE_VDC_EXTENT,
                            .parameters = {P::Point, P::Point},
                            .slots = {CgmSlot::VdcExtent, 4},
                            .initial = {0, INT16_MAX, INT16_MAX, 0}};

/// 1 is the first font of the list; 0 stands for an index that was never set. An index below 1 means the first font and
/// counts as no deviation.
constexpr CgmElement FONT_INDEX{.elementClass = C::BINARY_ENCODING_ELEMENT_ATTRIBUTE,
                                .id = Bin5::CODE_TEXT_FONT_INDEX,
                                .keyword = Txt5::CODE_TEXT_FONT_INDEX,
                                .parameters = {P::Integer},
                                .slots = {CgmSlot::FontIndex, 1},
                                .bounds = {1, INT16_MAX, 1, 1, false},
                                .lengthIsVital = true};

/// Upright: where y runs down, the up vector has a negative y.
constexpr CgmElement ORIENTATION{
    .elementClass = C::BINARY_ENCODING_ELEMENT_ATTRIBUTE,
    .id = Bin5::CODE_CHARACTER_ORIENTATION,
    .keyword = Txt5::CODE_CHARACTER_ORIENTATION,
    .parameters = {P::Vector, P::Vector},
    .slots = {CgmSlot::CharacterOrientation, 4},
    .initial = {Bin5::VAL_CHARACTER_ORIENTATION_X_UP, -1, 1, Bin5::VAL_CHARACTER_ORIENTATION_Y_BASE}};

constexpr std::array<int, 4> LINE_COLOUR{Default::LINE_COLOR_RED, Default::LINE_COLOR_GREEN, Default::LINE_COLOR_BLUE};
constexpr std::array<int, 4> TEXT_COLOUR{Default::TEXT_COLOR_RED, Default::TEXT_COLOR_GREEN, Default::TEXT_COLOR_BLUE};
constexpr std::array<int, 4> EDGE_COLOUR{Default::FILLED_AREA_EDGE_COLOR_RED, Default::FILLED_AREA_EDGE_COLOR_GREEN,
                                         Default::FILLED_AREA_EDGE_COLOR_BLUE};
constexpr std::array<int, 4> FILL_COLOUR{Default::FILLED_AREA_COLOR_RED, Default::FILLED_AREA_COLOR_GREEN,
                                         Default::FILLED_AREA_COLOR_BLUE};

using Polyline = CGMGraphicPrimitivePolyline;
using Polygon = CGMGraphicPrimitivePolygon;
using Arc = CGMGraphicPrimitiveCircularArcCenter;
using ArcClose = CGMGraphicPrimitiveCircularArcCenterClose;
using EllipticalArc = CGMGraphicPrimitiveEllipticalArc;
using EllipticalArcClose = CGMGraphicPrimitiveEllipticalArcClose;

// The elements of the NITF profile. ISO 8632-3 and 8632-4, MIL-STD-2301.
// clang-format off
constexpr CgmElement CGM_ELEMENTS[] = {
    Delimiter(Bin0::CODE_BEGIN_METAFILE,     Txt0::CODE_BEGIN_METAFILE,     {P::Text}),
    Delimiter(Bin0::CODE_END_METAFILE,       Txt0::CODE_END_METAFILE),
    Delimiter(Bin0::CODE_BEGIN_PICTURE,      Txt0::CODE_BEGIN_PICTURE,      {P::Text}),
    Delimiter(Bin0::CODE_BEGIN_PICTURE_BODY, Txt0::CODE_BEGIN_PICTURE_BODY),
    Delimiter(Bin0::CODE_END_PICTURE,        Txt0::CODE_END_PICTURE),

    Descriptor(Bin1::CODE_METAFILE_VERSION,      Txt1::CODE_METAFILE_VERSION,      {P::Integer}),
    Descriptor(Bin1::CODE_METAFILE_DESCRIPTION,  Txt1::CODE_METAFILE_DESCRIPTION,  {P::Description}),
    Descriptor(Bin1::CODE_METAFILE_ELEMENT_LIST, Txt1::CODE_METAFILE_ELEMENT_LIST, {P::ElementSet}),
    Descriptor(Bin1::CODE_FONT_LIST,             Txt1::CODE_FONT_LIST,             {P::Fonts}),

    Mode(Bin2::CODE_COLOUR_SELECTION_MODE, Txt2::CODE_COLOUR_SELECTION_MODE, CgmSlot::ColourMode, DIRECT),
    Mode(Bin2::CODE_LINE_WIDTH_SPECIFICATION_MODE, Txt2::CODE_LINE_WIDTH_SPECIFICATION_MODE, CgmSlot::LineWidthMode,
         ABSOLUTE),
    Mode(Bin2::CODE_EDGE_WIDTH_SPECIFICATION_MODE, Txt2::CODE_EDGE_WIDTH_SPECIFICATION_MODE, CgmSlot::EdgeWidthMode,
         ABSOLUTE),
    EXTENT,

    Draws<Polyline>(Bin4::CODE_POLYLINE, Txt4::CODE_POLYLINE, LINE_SLOTS, {P::Points}, nullptr, 2),
    Draws<CGMGraphicPrimitiveText>(Bin4::CODE_TEXT, Txt4::CODE_TEXT, TEXT_SLOTS, {P::Point, P::Word, P::TextPieces},
                                   &FINAL),
    Draws<Polygon>(Bin4::CODE_POLYGON, Txt4::CODE_POLYGON, CLOSED_FIGURE_SLOTS, {P::Points}, nullptr, 3),
    Draws<CGMGraphicPrimitiveRectangle>(Bin4::CODE_RECTANGLE, Txt4::CODE_RECTANGLE, CLOSED_FIGURE_SLOTS,
                                        {P::Point, P::Point}),
    Draws<CGMGraphicPrimitiveCircle>(Bin4::CODE_CIRCLE, Txt4::CODE_CIRCLE, CLOSED_FIGURE_SLOTS,
                                     {P::Point, P::Integer}),
    Draws<Arc>(Bin4::CODE_CIRCULAR_ARC_CENTRE, Txt4::CODE_CIRCULAR_ARC_CENTRE, LINE_SLOTS,
               {P::Point, P::Vector, P::Vector, P::Integer}),
    Draws<ArcClose>(Bin4::CODE_CIRCULAR_ARC_CENTRE_CLOSE, Txt4::CODE_CIRCULAR_ARC_CENTRE_CLOSE, CLOSED_FIGURE_SLOTS,
                    {P::Point, P::Vector, P::Vector, P::Integer, P::Word}, &CLOSURE),
    Draws<CGMGraphicPrimitiveEllipse>(Bin4::CODE_ELLIPSE, Txt4::CODE_ELLIPSE, CLOSED_FIGURE_SLOTS,
                                      {P::Point, P::Point, P::Point}),
    Draws<EllipticalArc>(Bin4::CODE_ELLIPTICAL_ARC, Txt4::CODE_ELLIPTICAL_ARC, LINE_SLOTS,
                         {P::Point, P::Point, P::Point, P::Vector, P::Vector}),
    Draws<EllipticalArcClose>(Bin4::CODE_ELLIPTICAL_ARC_CLOSE, Txt4::CODE_ELLIPTICAL_ARC_CLOSE, CLOSED_FIGURE_SLOTS,
                              {P::Point, P::Point, P::Point, P::Vector, P::Vector, P::Word}, &CLOSURE),

    Number(Bin5::CODE_LINE_TYPE,  Txt5::CODE_LINE_TYPE,  CgmSlot::LineType,
           OneOf(Bin5::VAL_LINE_TYPE_SOLID, Bin5::VAL_LINE_TYPE_DASHED, Bin5::VAL_NITF_DEFAULT_CODE_LINE_TYPE)),
    Number(Bin5::CODE_LINE_WIDTH, Txt5::CODE_LINE_WIDTH, CgmSlot::LineWidth,
           AtLeastOne(Bin5::VAL_NITF_DEFAULT_CODE_LINE_WIDTH)),
    Colour(Bin5::CODE_LINE_COLOUR, Txt5::CODE_LINE_COLOUR, CgmSlot::LineColour, LINE_COLOUR),
    FONT_INDEX,
    Colour(Bin5::CODE_TEXT_COLOUR, Txt5::CODE_TEXT_COLOUR, CgmSlot::TextColour, TEXT_COLOUR),
    Number(Bin5::CODE_CHARACTER_HEIGHT, Txt5::CODE_CHARACTER_HEIGHT, CgmSlot::CharacterHeight,
           AtLeastOne(Bin5::VAL_NITF_DEFAULT_CODE_CHARACTER_HEIGHT)),
    ORIENTATION,
    Number(Bin5::CODE_INTERIOR_STYLE, Txt5::CODE_INTERIOR_STYLE, CgmSlot::InteriorStyle,
           OneOf(Bin5::VAL_INTERIOR_STYLE_SOLID, Bin5::VAL_INTERIOR_STYLE_EMPTY,
                 Bin5::VAL_NITF_DEFAULT_CODE_INTERIOR_STYLE), &STYLE),
    Colour(Bin5::CODE_FILL_COLOUR, Txt5::CODE_FILL_COLOUR, CgmSlot::FillColour, FILL_COLOUR),
    Number(Bin5::CODE_EDGE_TYPE,  Txt5::CODE_EDGE_TYPE,  CgmSlot::EdgeType,
           OneOf(Bin5::VAL_EDGE_TYPE_SOLID, Bin5::VAL_EDGE_TYPE_DASHED, Bin5::VAL_NITF_DEFAULT_CODE_EDGE_TYPE)),
    Number(Bin5::CODE_EDGE_WIDTH, Txt5::CODE_EDGE_WIDTH, CgmSlot::EdgeWidth,
           AtLeastOne(Bin5::VAL_NITF_DEFAULT_CODE_EDGE_WIDTH)),
    Colour(Bin5::CODE_EDGE_COLOUR, Txt5::CODE_EDGE_COLOUR, CgmSlot::EdgeColour, EDGE_COLOUR),
    Number(Bin5::CODE_EDGE_VISIBILITY, Txt5::CODE_EDGE_VISIBILITY, CgmSlot::EdgeVisibility,
           Only(Bin5::VAL_EDGE_VISIBILITY_ON), &VISIBLE),
};
// clang-format on

constexpr std::size_t CLASSES = 6;
constexpr std::size_t IDS = 32;
constexpr std::uint8_t NO_ROW = 0xFF;
using Index = std::array<std::array<std::uint8_t, IDS>, CLASSES>;

constexpr Index MakeIndex()
{
    Index index{};
    for (auto& ids : index) {
        ids.fill(NO_ROW);
    }
    std::uint8_t row = 0;
    for (const CgmElement& element : CGM_ELEMENTS) {
        index[static_cast<std::size_t>(element.elementClass)][static_cast<std::size_t>(element.id)] = row++;
    }
    return index;
}

constexpr Index INDEX = MakeIndex();

constexpr CgmState MakeInitialState()
{
    CgmState state{};
    for (const CgmElement& element : CGM_ELEMENTS) {
        for (std::size_t i = 0; element.IsAttribute() && i != element.slots.count; ++i) {
            state[element.slots.first + i] = element.initial[i];
        }
    }
    return state;
}

constexpr CgmState INITIAL_STATE = MakeInitialState();

constexpr std::size_t LengthOf(CgmParameter aParameter)
{
    switch (aParameter) {
        case P::Integer:
        case P::Word:
            return 2;
        case P::Colour:
            return 3;
        case P::Point:
        case P::Vector:
        case P::Points:  // each of them
            return 4;
        case P::TextPieces:  // the length of an empty text
            return 1;
        case P::None:
        case P::Text:
        case P::Description:
        case P::Fonts:
        case P::ElementSet:
            break;
    }
    return 0;
}

/// No two rows for one element, no slot with two owners, and none without.
constexpr bool IsConsistent()
{
    std::array<int, CgmSlot::Count> owners{};
    std::size_t rows = 0;
    for (const auto& ids : INDEX) {
        rows += IDS - static_cast<std::size_t>(std::count(ids.begin(), ids.end(), NO_ROW));
    }
    for (const CgmElement& element : CGM_ELEMENTS) {
        for (std::size_t i = 0; element.IsAttribute() && i != element.slots.count; ++i) {
            ++owners[element.slots.first + i];
        }
    }
    return rows == std::size(CGM_ELEMENTS) && std::all_of(owners.begin(), owners.end(), [](int n) { return n == 1; });
}

static_assert(IsConsistent());

}  // namespace

std::span<const CgmElement> CgmElements() noexcept
{
    return CGM_ELEMENTS;
}

const CgmElement* FindCgmElement(int aClass, int aId) noexcept
{
    if (aClass < 0 || aClass >= static_cast<int>(CLASSES) || aId < 0 || aId >= static_cast<int>(IDS)) {
        return nullptr;
    }
    const std::uint8_t row = INDEX[static_cast<std::size_t>(aClass)][static_cast<std::size_t>(aId)];
    return row == NO_ROW ? nullptr : &CGM_ELEMENTS[row];
}

const CgmElement& CgmElementRow(int aClass, int aId) noexcept
{
    return CGM_ELEMENTS[INDEX[static_cast<std::size_t>(aClass)][static_cast<std::size_t>(aId)]];
}

const CgmState& InitialCgmState() noexcept
{
    return INITIAL_STATE;
}

std::size_t LeastCgmLength(const CgmElement& aElement) noexcept
{
    std::size_t length = 0;
    for (const CgmParameter parameter : aElement.parameters) {
        length += LengthOf(parameter) * (parameter == P::Points ? aElement.leastPoints : 1);
    }
    return length;
}

bool HasFixedCgmLength(const CgmElement& aElement) noexcept
{
    return std::none_of(aElement.parameters.begin(), aElement.parameters.end(), [](CgmParameter aParameter) {
        return aParameter != P::None &&
               (LengthOf(aParameter) == 0 || aParameter == P::Points || aParameter == P::TextPieces);
    });
}

}  // namespace ORMO::SensorModel::CSM::Detail
