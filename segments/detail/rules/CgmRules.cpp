#include "fields/MessageText.h"
#include "segments/detail/rules/CgmWalk.h"

#include <algorithm>
#include <array>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// An element of ISO 8632-3 by class and identifier.
struct ElementName
{
    int elementClass;
    int id;
    const char* name;
};

constexpr ElementName BEGIN_METAFILE{0, 1, "BEGIN METAFILE"};
constexpr ElementName END_METAFILE{0, 2, "END METAFILE"};
constexpr ElementName BEGIN_PICTURE{0, 3, "BEGIN PICTURE"};
constexpr ElementName BEGIN_BODY{0, 4, "BEGIN PICTURE BODY"};
constexpr ElementName END_PICTURE{0, 5, "END PICTURE"};
constexpr ElementName VERSION{1, 1, "METAFILE VERSION"};
constexpr ElementName DESCRIPTION{1, 2, "METAFILE DESCRIPTION"};
constexpr ElementName ELEMENT_LIST{1, 11, "METAFILE ELEMENT LIST"};
constexpr ElementName COLOUR_MODE{2, 2, "COLOUR SELECTION MODE"};
constexpr ElementName EXTENT{2, 6, "VDC EXTENT"};

/// Besides the two that open and close the metafile, which have a rule of their own.
constexpr ElementName NEEDED[] = {VERSION,     ELEMENT_LIST, DESCRIPTION, BEGIN_PICTURE,
                                  COLOUR_MODE, EXTENT,       BEGIN_BODY,  END_PICTURE};

constexpr bool Is(const CgmPiece& aPiece, const ElementName& aName) noexcept
{
    return aPiece.Is(aName.elementClass, aName.id);
}

std::string NameOf(const CgmPiece& aPiece)
{
    if (aPiece.elementClass < 0) {
        return "nothing that can be read";
    }
    return "class " + std::to_string(aPiece.elementClass) + " element " + std::to_string(aPiece.id);
}

void Say(const HeaderView& aHeader, const Report& aReport, const CgmPiece& aPiece, std::string aAllowed,
         std::string aDetail = {})
{
    aReport(
        aHeader,
        {.allowed = std::move(aAllowed), .detail = std::move(aDetail), .offset = aHeader.DataStart() + aPiece.offset});
}

/// The word that an element begins with; 0 when it has none.
unsigned WordOf(const CgmPiece& aPiece) noexcept
{
    std::uint16_t word = 0;
    WordCursor cursor(aPiece.parameters);
    return cursor.TakeWord(word) ? word : 0U;
}

/// Bytes of the string that an element begins with.
std::uint64_t StringLength(const CgmPiece& aPiece) noexcept
{
    constexpr unsigned LONG_STRING = 255;
    const unsigned first = aPiece.parameters.empty() ? 0U : static_cast<unsigned char>(aPiece.parameters[0]);
    return first != LONG_STRING ? first : aPiece.length;
}

void Ends(const HeaderView& aHeader, const Report& aReport)
{
    CgmPiece first;
    CgmPiece last;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        first = first.elementClass < 0 ? aPiece : first;
        last = aPiece;
        return !Is(aPiece, END_METAFILE);
    });
    if (!Is(first, BEGIN_METAFILE)) {
        Say(aHeader, aReport, first, BEGIN_METAFILE.name, "The metafile begins with " + NameOf(first) + '.');
    } else if (!Is(last, END_METAFILE)) {
        Say(aHeader, aReport, last, END_METAFILE.name, "The last element that can be read is " + NameOf(last) + '.');
    }
}

void Needed(const HeaderView& aHeader, const Report& aReport)
{
    std::array<bool, std::size(NEEDED)> seen{};
    bool any = false;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        any = any || Is(aPiece, BEGIN_METAFILE);
        for (std::size_t i = 0; i != seen.size(); ++i) {
            seen[i] = seen[i] || Is(aPiece, NEEDED[i]);
        }
        return !Is(aPiece, END_METAFILE);
    });
    const auto missing = static_cast<std::size_t>(std::ranges::find(seen, false) - seen.begin());
    if (any && missing != seen.size()) {
        aReport(aHeader, {.allowed = NEEDED[missing].name, .offset = aHeader.DataStart()});
    }
}

void DescriptorOrder(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::array<ElementName, 3> ORDER{VERSION, ELEMENT_LIST, DESCRIPTION};
    std::size_t turn = 0;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        if (aPiece.elementClass != 1) {
            return !Is(aPiece, BEGIN_PICTURE);
        }
        const bool good = Is(aPiece, ORDER[turn]);
        // One that is missing altogether has a rule of its own.
        const bool isKnown = std::ranges::any_of(ORDER, [&](const ElementName& aName) { return Is(aPiece, aName); });
        if (!good && isKnown) {
            Say(aHeader, aReport, aPiece, ORDER[turn].name, "It is " + NameOf(aPiece) + '.');
        }
        return good && ++turn != ORDER.size();
    });
}

void OneVersion(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        if (Is(aPiece, VERSION) && WordOf(aPiece) != 1) {
            Say(aHeader, aReport, aPiece, "1", "It is " + std::to_string(WordOf(aPiece)) + '.');
        }
        return !Is(aPiece, VERSION);
    });
}

void OnePicture(const HeaderView& aHeader, const Report& aReport)
{
    std::array<int, 2> counts{};
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        int* const count = Is(aPiece, BEGIN_PICTURE) ? &counts[0] : Is(aPiece, BEGIN_BODY) ? &counts[1] : nullptr;
        if (count != nullptr && ++*count == 2) {
            Say(aHeader, aReport, aPiece, "one picture with one body");
            return false;
        }
        return !Is(aPiece, END_METAFILE);
    });
}

void Positions(const HeaderView& aHeader, const Report& aReport)
{
    enum class Part
    {
        Metafile,
        Picture,
        Body,
        Behind
    };
    Part part = Part::Metafile;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        const int kind = aPiece.elementClass;
        part = Is(aPiece, BEGIN_PICTURE) ? Part::Picture
               : Is(aPiece, BEGIN_BODY)  ? Part::Body
               : Is(aPiece, END_PICTURE) ? Part::Behind
                                         : part;
        const bool good = (kind != 1 || part == Part::Metafile) && (kind != 2 || part == Part::Picture) &&
                          ((kind != 4 && kind != 5) || part == Part::Body);
        if (!good) {
            Say(aHeader, aReport, aPiece,
                kind == 1   ? "before BEGIN PICTURE"
                : kind == 2 ? "between BEGIN PICTURE and BEGIN PICTURE BODY"
                            : "between BEGIN PICTURE BODY and END PICTURE",
                "It is " + NameOf(aPiece) + '.');
        }
        return good && !Is(aPiece, END_METAFILE);
    });
}

void Profile(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        if (!Is(aPiece, DESCRIPTION)) {
            return true;
        }
        const bool named = aPiece.parameters.find("NITF/CGM-APP-2.0") != std::string_view::npos ||
                           (!aHeader.Is20() && aPiece.parameters.find("ProfileEd") != std::string_view::npos);
        if (!named) {
            Say(aHeader, aReport, aPiece,
                aHeader.Is20() ? "NITF/CGM-APP-2.0" : "NITF/CGM-APP-2.0 | NITF/CGM;ProfileEd:...");
        }
        return false;
    });
}

/// The elements of the profile, one bit for each identifier of a class, defaults that may be written out included.
constexpr std::uint32_t Bits(std::initializer_list<unsigned> aIds)
{
    std::uint32_t bits = 0;
    for (const unsigned id : aIds) {
        bits |= std::uint32_t{1} << id;
    }
    return bits;
}

constexpr std::uint32_t PROFILE[] = {Bits({0, 1, 2, 3, 4, 5}),
                                     Bits({1, 2, 3, 4, 6, 7, 11, 13}),
                                     Bits({2, 3, 5, 6}),
                                     Bits({1, 3, 4}),
                                     Bits({1, 4, 7, 8, 11, 12, 15, 16, 17, 18, 19}),
                                     Bits({2, 3, 4, 10, 14, 15, 16, 22, 23, 27, 28, 29, 30})};

void ElementSet(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        const auto kind = static_cast<std::size_t>(aPiece.elementClass);
        const bool good = kind < std::size(PROFILE) && aPiece.id < 32 &&
                          ((PROFILE[kind] >> static_cast<unsigned>(aPiece.id)) & 1U) != 0;
        if (!good) {
            Say(aHeader, aReport, aPiece, "elements of the NITF profile", "It is " + NameOf(aPiece) + '.');
        }
        return good && !Is(aPiece, END_METAFILE);
    });
}

/// An element that may stand with one value only.
struct FixedElement
{
    ElementName element;
    unsigned value;
};

constexpr FixedElement PRECISIONS[] = {{{1, 3, "VDC TYPE"}, 0},
                                       {{1, 4, "INTEGER PRECISION"}, 16},
                                       {{1, 6, "INDEX PRECISION"}, 16},
                                       {{1, 7, "COLOUR PRECISION"}, 8},
                                       {{3, 1, "VDC INTEGER PRECISION"}, 16}};

void Precisions(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        for (const FixedElement& row : PRECISIONS) {
            if (Is(aPiece, row.element) && WordOf(aPiece) != row.value) {
                Say(aHeader, aReport, aPiece, std::string(row.element.name) + ' ' + std::to_string(row.value),
                    "It is " + std::to_string(WordOf(aPiece)) + '.');
            }
        }
        return !Is(aPiece, END_METAFILE);
    });
}

void DirectColours(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        if (Is(aPiece, COLOUR_MODE) && WordOf(aPiece) != 1) {
            Say(aHeader, aReport, aPiece, "1, direct colours", "It is " + std::to_string(WordOf(aPiece)) + '.');
        }
        return !Is(aPiece, COLOUR_MODE);
    });
}

void Strings(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::uint64_t MOST = 1024;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        if ((Is(aPiece, BEGIN_METAFILE) || Is(aPiece, BEGIN_PICTURE) || Is(aPiece, DESCRIPTION)) &&
            StringLength(aPiece) > MOST) {
            Say(aHeader, aReport, aPiece, "at most 1024 characters",
                "There are " + std::to_string(StringLength(aPiece)) + '.');
        }
        return !Is(aPiece, END_METAFILE);
    });
}

void LineTypes(const HeaderView& aHeader, const Report& aReport)
{
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        const bool isType = aPiece.Is(5, 2) || aPiece.Is(5, 27);
        const bool good = !isType || (WordOf(aPiece) >= 1 && WordOf(aPiece) <= 5);
        if (!good) {
            Say(aHeader, aReport, aPiece, "1 to 5",
                "It is " + std::to_string(static_cast<std::int16_t>(WordOf(aPiece))) + '.');
        }
        return good && !Is(aPiece, END_METAFILE);
    });
}

void Vertices(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::uint64_t MOST = 4096;
    ForEachCgmElement(aHeader, [&](const CgmPiece& aPiece) {
        // A point takes two words, one of a set a third.
        const std::uint64_t count = aPiece.Is(4, 1) || aPiece.Is(4, 7) ? aPiece.length / 4
                                    : aPiece.Is(4, 8)                  ? aPiece.length / 6
                                                                       : 0;
        if (count > MOST) {
            Say(aHeader, aReport, aPiece, "at most 4096", "There are " + std::to_string(count) + '.');
        }
        return count <= MOST && !Is(aPiece, END_METAFILE);
    });
}

// clang-format off
constexpr Rule RULES[] = {
    {"CGM-01", ERROR, ALL, Subject::Cgm, "metafile",
     "The data are not a whole metafile.",
     "They begin with BEGIN METAFILE and end with END METAFILE.",
     "MIL-STD-2301A 4.3 and 5.2.1.1.5", &Ends},
    {"CGM-02", ERROR, ALL, Subject::Cgm, "elements",
     "A metafile lacks an element that it must have.",
     "Every metafile has METAFILE VERSION, ELEMENT LIST and DESCRIPTION, BEGIN PICTURE, COLOUR SELECTION MODE, VDC EXTENT, BEGIN PICTURE BODY and END PICTURE.",
     "MIL-STD-2301A 5.2.2.1.1 and 5.2.2.2.1", &Needed},
    {"CGM-03", WARN, ALL, Subject::Cgm, "metafile descriptors",
     "The descriptors of a metafile stand in another order.",
     "METAFILE VERSION, METAFILE ELEMENT LIST and METAFILE DESCRIPTION are the first three, in this order.",
     "MIL-STD-2301A 4.3 and 5.2.1.1.6", &DescriptorOrder},
    {"CGM-04", WARN, ALL, Subject::Cgm, "METAFILE VERSION",
     "The version of a metafile is not 1.",
     "Higher versions bring other elements.",
     "MIL-STD-2301A tables XIV and LXXI", &OneVersion},
    {"CGM-05", ERROR, ALL, Subject::Cgm, "BEGIN PICTURE, BEGIN PICTURE BODY",
     "A metafile has more than one picture.",
     "There is exactly one picture with one body: readers take only one.",
     "MIL-STD-2301A 5.2.2.1.5 and 5.2.2.1.6", &OnePicture},
    {"CGM-06", ERROR, ALL, Subject::Cgm, "element positions",
     "An element of a metafile stands where it has no meaning.",
     "Metafile descriptors stand before BEGIN PICTURE, picture descriptors before BEGIN PICTURE BODY, attributes and primitives in the body.",
     "MIL-STD-2301A 5.2.1.1.2 to 5.2.1.2.9", &Positions},
    {"CGM-07", WARN, ALL, Subject::Cgm, "METAFILE DESCRIPTION",
     "A metafile does not name its profile.",
     "The description has NITF/CGM-APP-2.0 or, in NITF 2.1, a mark such as NITF/CGM;ProfileEd:2301-2.",
     "MIL-STD-2301A 5.2.2.1.2 and 5.2.2.2.2", &Profile},
    {"CGM-08", WARN, ALL, Subject::Cgm, "element set",
     "A metafile has an element that the profile does not.",
     "It is skipped. The profile has polylines, polygons and sets of them, rectangles, circles, ellipses and their arcs, texts, and their attributes.",
     "MIL-STD-2301A 4.3", &ElementSet},
    {"CGM-09", ERROR, ALL, Subject::Cgm, "precisions",
     "The numbers of a metafile are of another width than the profile has.",
     "Integer, index and VDC integer precision are 16, colour precision is 8, VDC type is integer; the elements may stand with these values only.",
     "MIL-STD-2301A 4.3 and table CXVII", &Precisions},
    {"CGM-10", WARN, ALL, Subject::Cgm, "COLOUR SELECTION MODE",
     "The colours of a metafile are indices.",
     "Colours are direct, three bytes each (mode 1).",
     "MIL-STD-2301A 5.1.2.4 and 5.2.2.1.10", &DirectColours},
    {"CGM-11", WARN, ALL, Subject::Cgm, "strings",
     "A string of a metafile is longer than files exchange.",
     "Those of BEGIN METAFILE, BEGIN PICTURE and METAFILE DESCRIPTION have at most 1024 characters.",
     "MIL-STD-2301A 5.2.2.2.3", &Strings},
    {"CGM-12", WARN, ALL, Subject::Cgm, "LINE TYPE, EDGE TYPE",
     "A line or edge has a type that does not exist.",
     "Lines and edges are of type 1 to 5; others are drawn solid.",
     "MIL-STD-2301A 5.1.2.4.9 and 5.1.2.4.12", &LineTypes},
    {"CGM-13", WARN, ALL, Subject::Cgm, "POLYLINE, POLYGON, POLYGON SET",
     "A primitive has more vertices than must be supported.",
     "At most 4096.",
     "MIL-STD-2301A 5.2.2.1.22 and 5.2.2.1.23", &Vertices},
};
// clang-format on

}  // namespace

RuleList CgmRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
