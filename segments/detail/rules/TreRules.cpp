#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/rules/HeaderView.h"
#include "tre/detail/TreArea.h"
#include "tre/detail/TreLayout.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

bool IsImage(const HeaderView& aHeader) noexcept
{
    return aHeader.Kind() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && aHeader.Image().isReadable;
}

/// A field of a TRE without the blanks around it; empty when there is none.
std::string_view Field(const TRE& aTre, std::string_view aName) noexcept
{
    const FieldRecord* const fields = TRE::Parts::Of(aTre).fields;
    return fields == nullptr ? std::string_view{} : TrimBlanks(fields->Text(aName));
}

void Areas(const HeaderView& aHeader, const Report& aReport)
{
    for (const ExtensionArea& area : aHeader.Inside().layout->kind->areas) {
        const FieldEntry* const entry = aHeader.Inside().record.Find(area.area);
        if (entry != nullptr) {
            CheckArea(aHeader.Inside().record.Store().Value(*entry), aHeader.Inside().PlaceOf(area, *entry),
                      aReport.Findings());
        }
    }
}

/// Whether the definition of a TRE lets it stand in a kind of header: what its placement says of that. A placement that
/// is open, or not known, lets it stand everywhere.
bool MayStandIn(std::string_view aPlacement, NITFCnst::DataSegmentType aKind) noexcept
{
    const auto says = [aPlacement](std::string_view aWord) { return aPlacement.find(aWord) != std::string_view::npos; };
    if (aPlacement.empty() || says("any extension area") || says("not stated") || says("not settled") ||
        says("segment level") || says("TRE_OVERFLOW") || says("and others")) {
        return true;
    }
    switch (aKind) {
        case NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER:
            return says("file header");
        case NITFCnst::DATA_SEGMENT_TYPE_IMAGE:
            return says("image subheader");
        case NITFCnst::DATA_SEGMENT_TYPE_TEXT:
            return says("text subheader");
        default:
            return false;
    }
}

/// Raster products have places of their own, and a rule for them.
constexpr std::string_view RASTER_PRODUCT = "RPFHDR|RPFIMG|RPFDES";

void Placement(const HeaderView& aHeader, const Report& aReport)
{
    aHeader.ForEachTre([&](const TRE& aTre) {
        const TRE::Layout* const layout = TRE::Parts::Of(aTre).layout;
        if (layout != nullptr && !IsListed(aTre.GetTag(), RASTER_PRODUCT) &&
            !MayStandIn(layout->placement, aHeader.Kind())) {
            aReport(aHeader, {.allowed = layout->placement, .tre = &aTre});
        }
    });
}

void KindOfArea(const HeaderView& aHeader, const Report& aReport)
{
    for (const TRE* const tre : aHeader.Segment().GetTREStore().InOrder()) {
        for (const ExtensionArea& area : aHeader.Inside().layout->kind->areas) {
            // What no group knows has the kind of its area.
            const bool isOther = area.registered ? tre->GetTREType() == TRE::TRE_TYPE_CONTROLLED_EXTENSION
                                                 : tre->GetTREType() == TRE::TRE_TYPE_REGISTERED_EXTENSION;
            if (isOther && std::string_view(area.area) == tre->GetExtensionArea() &&
                !IsListed(tre->GetTag(), RASTER_PRODUCT)) {
                aReport(aHeader,
                        {.allowed = area.registered ? "registered extensions" : "controlled extensions", .tre = tre});
            }
        }
    }
}

constexpr std::string_view ONCE[] = {"ACFTB",  "AIMIDB", "EXOPTA", "EXPLTB", "STDIDC", "USE00A",
                                     "ICHIPB", "RPC00A", "RPC00B", "J2KLRA", "BANDSB", "CSEXRA",
                                     "CSEXRB", "CSPROA", "CSCRNA", "PIAIMC", "PIAPRD", "GEOPSB"};

void Once(const HeaderView& aHeader, const Report& aReport)
{
    std::array<bool, std::size(ONCE)> seen{};
    aHeader.ForEachTre([&](const TRE& aTre) {
        const auto at = static_cast<std::size_t>(std::ranges::find(ONCE, aTre.GetTag()) - std::begin(ONCE));
        if (at == seen.size()) {
            return;
        }
        if (seen[at]) {
            aReport(aHeader,
                    {.allowed = std::string("one ") + aTre.GetTag() + " in a header, overflow included", .tre = &aTre});
        }
        seen[at] = true;
    });
}

/// A TRE and the one that took its place.
struct Successor
{
    std::string_view older;
    std::string_view newer;
};

constexpr Successor SUCCESSORS[] = {{"ACFTA", "ACFTB"},   {"AIMIDA", "AIMIDB"}, {"BANDSA", "BANDSB"},
                                    {"EXPLTA", "EXPLTB"}, {"MENSRA", "MENSRB"}, {"PIAIMB", "PIAIMC"},
                                    {"PIAPRC", "PIAPRD"}, {"RPC00A", "RPC00B"}};

void BothForms(const HeaderView& aHeader, const Report& aReport)
{
    for (const Successor& pair : SUCCESSORS) {
        const TRE* const older = aHeader.FindTre(pair.older);
        if (older != nullptr && aHeader.FindTre(pair.newer) != nullptr) {
            aReport(aHeader, {.detail = std::string(pair.newer) + " stands beside it.", .tre = older});
        }
    }
}

void OnlyInJpeg2000(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const tre = IsImage(aHeader) && !aHeader.Image().IsJpeg2000() ? aHeader.FindTre("J2KLRA") : nullptr;
    // Later compression codes of the same kind are named otherwise.
    if (tre != nullptr && IsListed(aHeader.Image().compression, "NC|NM|C1|C3|C4|C5|I1|M1|M3|M4|M5")) {
        aReport(aHeader, {.detail = "IC is " + Shown(aHeader.Image().compression), .tre = tre});
    }
}

void LayersAgree(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const tre = IsImage(aHeader) ? aHeader.FindTre("J2KLRA") : nullptr;
    if (tre == nullptr) {
        return;
    }
    const char* const field = Field(*tre, "NBANDS_I").empty() ? "NBANDS_O" : "NBANDS_I";
    std::uint64_t bands = 0;
    if (ToCount(Field(*tre, field), bands) && bands != aHeader.Image().bands) {
        aReport(aHeader, {.field = field,
                          .allowed = std::to_string(aHeader.Image().bands) + ", the bands of the image",
                          .tre = tre});
    }
}

void BandCount(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const tre = IsImage(aHeader) ? aHeader.FindTre("BANDSB") : nullptr;
    std::uint64_t bands = 0;
    if (tre != nullptr && ToCount(Field(*tre, "COUNT"), bands) && bands != aHeader.Image().bands) {
        aReport(aHeader, {.field = "COUNT",
                          .allowed = std::to_string(aHeader.Image().bands) + ", the bands of the image",
                          .tre = tre});
    }
}

void Blocks(const HeaderView& aHeader, const Report& aReport)
{
    if (!IsImage(aHeader) || aHeader.FindTre("BLOCKA") == nullptr) {
        return;
    }
    std::array<const TRE*, 100> seen{};  // by BLOCK_INSTANCE, which has two digits
    aHeader.ForEachTre([&](const TRE& aTre) {
        std::uint64_t number = 0;
        std::uint64_t lines = 0;
        if (std::string_view(aTre.GetTag()) != "BLOCKA") {
            return;
        }
        if (ToCount(Field(aTre, "BLOCK_INSTANCE"), number) && number < seen.size()) {
            if (seen[static_cast<std::size_t>(number)] != nullptr) {
                aReport(aHeader,
                        {.field = "BLOCK_INSTANCE", .allowed = "a number that no other BLOCKA has", .tre = &aTre});
            }
            seen[static_cast<std::size_t>(number)] = &aTre;
        }
        if (ToCount(Field(aTre, "L_LINES"), lines) && lines > aHeader.Image().rows) {
            aReport(aHeader, {.field = "L_LINES",
                              .allowed = "at most NROWS, " + std::to_string(aHeader.Image().rows),
                              .tre = &aTre});
        }
    });
}

constexpr const char* CHIP_POINTS[] = {"OP_ROW_11", "OP_COL_11", "OP_ROW_12", "OP_COL_12", "OP_ROW_21", "OP_COL_21",
                                       "OP_ROW_22", "OP_COL_22", "FI_ROW_11", "FI_COL_11", "FI_ROW_12", "FI_COL_12",
                                       "FI_ROW_21", "FI_COL_21", "FI_ROW_22", "FI_COL_22"};
constexpr const char* CHIP_OTHERS[] = {"SCALE_FACTOR", "ANAMRPH_CORR", "SCANBLK_NUM", "FI_ROW", "FI_COL"};

/// With a flag that says so there is no transformation, so nothing is given.
void UnusedChip(const HeaderView& aHeader, const TRE& aTre, const Report& aReport)
{
    const auto isOther = [&](const char* aField) {
        double number = 0.0;
        return ToRealNumber(Field(aTre, aField), number) && number != 0.0;
    };
    const auto* const point = std::ranges::find_if(CHIP_POINTS, isOther);
    const auto* const other = std::ranges::find_if(CHIP_OTHERS, isOther);
    if (point != std::end(CHIP_POINTS) || other != std::end(CHIP_OTHERS)) {
        aReport(aHeader, {.field = point != std::end(CHIP_POINTS) ? *point : *other,
                          .allowed = "0 with XFRM_FLAG 01",
                          .tre = &aTre});
    }
}

void Chip(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const tre = IsImage(aHeader) ? aHeader.FindTre("ICHIPB") : nullptr;
    if (tre == nullptr || Field(*tre, "XFRM_FLAG") == "01") {
        return tre == nullptr ? void() : UnusedChip(aHeader, *tre, aReport);
    }
    std::uint64_t fullRows = 0;
    std::uint64_t fullColumns = 0;
    static_cast<void>(ToCount(Field(*tre, "FI_ROW"), fullRows));
    static_cast<void>(ToCount(Field(*tre, "FI_COL"), fullColumns));
    for (const std::string_view field : CHIP_POINTS) {
        const bool isFull = field.starts_with("FI");
        const bool isRow = field.substr(3, 3) == "ROW";
        const std::uint64_t most =
            isFull ? (isRow ? fullRows : fullColumns) : (isRow ? aHeader.Image().rows : aHeader.Image().columns);
        double number = 0.0;
        // A size of 0 in the full image stands for one that is not known.
        if (most != 0 && ToRealNumber(Field(*tre, field), number) && number > static_cast<double>(most)) {
            aReport(aHeader, {.field = field, .allowed = "0 to " + std::to_string(most), .tre = tre});
            return;
        }
    }
}

void AirbornePair(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const aircraft = IsImage(aHeader) ? aHeader.FindTre("ACFTB") : nullptr;
    const TRE* const identity = IsImage(aHeader) ? aHeader.FindTre("AIMIDB") : nullptr;
    if ((aircraft == nullptr) != (identity == nullptr)) {
        aReport(aHeader,
                {.detail = aircraft == nullptr ? "ACFTB does not stand beside it." : "AIMIDB does not stand beside it.",
                 .tre = aircraft == nullptr ? identity : aircraft});
    }
}

void Editions(const HeaderView& aHeader, const Report& aReport)
{
    const TRE* const identity = aHeader.FindTre("RSMIDA");
    bool told = false;
    aHeader.ForEachTre([&](const TRE& aTre) {
        const std::string_view tag(aTre.GetTag());
        if (!tag.starts_with("RSM") || tag == "RSMIDA" || told || !IsImage(aHeader)) {
            return;
        }
        if (identity == nullptr) {
            told = true;
            aReport(aHeader, {.allowed = "an RSMIDA beside it", .tre = &aTre});
        } else if (!Field(aTre, "EDITION").empty() && Field(aTre, "EDITION") != Field(*identity, "EDITION")) {
            aReport(
                aHeader,
                {.field = "EDITION", .allowed = Shown(Field(*identity, "EDITION")) + " as in RSMIDA", .tre = &aTre});
        }
    });
}

/// Where the TREs of raster products stand.
struct ProductPlace
{
    std::string_view tag;
    std::string_view areas;
};

constexpr ProductPlace PRODUCT_PLACES[] = {{"RPFHDR", "UDHD"}, {"RPFIMG", "UDID"}, {"RPFDES", "UDID|TRE_OVERFLOW"}};

void ProductPlaces(const HeaderView& aHeader, const Report& aReport)
{
    aHeader.ForEachTre([&](const TRE& aTre) {
        for (const ProductPlace& place : PRODUCT_PLACES) {
            if (place.tag == aTre.GetTag() && !IsListed(aTre.GetExtensionArea(), place.areas)) {
                aReport(aHeader, {.allowed = std::string(place.areas), .tre = &aTre});
            }
        }
    });
}

// clang-format off
constexpr Rule RULES[] = {
    {"TR-01", ERROR, ALL, Subject::Header, "UDHDL, XHDL, UDIDL, IXSHDL, SXSHDL, LXSHDL, TXSHDL",
     "An extension area is not a run of whole TREs.",
     "An area has 3 bytes for the overflow number and the TREs, 11 bytes and CEL each, with nothing between or behind them. Padding is warned of only.",
     "MIL-STD-2500C 5.8.1", &Areas},
    {"TR-02", WARN, ALL, Subject::Tre, "CETAG, CEL",
     "The tag or length of a TRE is not written as one.",
     "A tag has capital letters, digits and underscores, blanks behind; a length has five digits.",
     "MIL-STD-2500C table A-7"},
    {"TR-03", WARN, ALL, Subject::Tre, "CETAG and its header",
     "A TRE stands in a header that its definition does not name.",
     "Its data can be read all the same; editions differ for some.",
     "the definition of the TRE", &Placement},
    {"TR-04", WARN, V20, Subject::Tre, "CETAG and its area",
     "A TRE stands in an area of the other kind.",
     "In NITF 2.0 registered extensions stand in UDHD and UDID, controlled ones in XHD, IXSHD, SXSHD, LXSHD and TXSHD.",
     "MIL-STD-2500A table XVIII", &KindOfArea},
    {"TR-06", WARN, ALL, Subject::Tre, "CETAG count",
     "A TRE stands a second time where it may stand once.",
     "ACFTB, AIMIDB, EXOPTA, EXPLTB, STDIDC, USE00A, ICHIPB, RPC00A, RPC00B, J2KLRA, BANDSB, CSEXRA, CSEXRB, CSPROA, CSCRNA, PIAIMC, PIAPRD and GEOPSB stand at most once in a header: a reader takes one of them.",
     "STDI-0002 and STDI-0006, definitions of the TREs", &Once},
    {"TR-07", WARN, ALL, Subject::Tre, "old and new forms",
     "The old and the new form of a TRE stand together.",
     "The new one takes the place of the old: ACFTA/ACFTB, AIMIDA/AIMIDB, BANDSA/BANDSB, EXPLTA/EXPLTB, MENSRA/MENSRB, PIAIMB/PIAIMC, PIAPRC/PIAPRD, RPC00A/RPC00B.",
     "register of TRE tags", &BothForms},
    {"TR-08", WARN, V21, Subject::Tre, "IC, J2KLRA",
     "Layers of JPEG 2000 are described in an image that has none.",
     "J2KLRA stands only in images compressed with JPEG 2000.",
     "BPJ2K01.10", &OnlyInJpeg2000},
    {"TR-10", WARN, V21, Subject::Tre, "J2KLRA NBANDS_O, NBANDS_I",
     "J2KLRA counts other bands than the image has.",
     "NBANDS_I where it stands, else NBANDS_O, is the number of bands of the image.",
     "STDI-0002 Volume 1, J2KLRA", &LayersAgree},
    {"TR-11", WARN, ALL, Subject::Tre, "BANDSB COUNT",
     "BANDSB counts other bands than the image has.",
     "COUNT is the number of bands of the image: what it says of each would not match.",
     "STDI-0002 Volume 1 Appendix X", &BandCount},
    {"TR-12", WARN, ALL, Subject::Tre, "BLOCKA BLOCK_INSTANCE, L_LINES",
     "The blocks of BLOCKA are not those of the image.",
     "BLOCK_INSTANCE values differ within an image, and L_LINES is not larger than NROWS.",
     "STDI-0002 Volume 1 Appendix E", &Blocks},
    {"TR-13", WARN, ALL, Subject::Tre, "ICHIPB XFRM_FLAG and points",
     "The points of ICHIPB lie outside the images that they are of.",
     "With XFRM_FLAG 00 output points lie inside the image and full-image points inside FI_ROW by FI_COL; with 01 all other fields are zero.",
     "STDI-0002 Volume 1 Appendix B", &Chip},
    {"TR-15", WARN, ALL, Subject::Tre, "ACFTB, AIMIDB",
     "An airborne image is described by half.",
     "An image with one of ACFTB and AIMIDB has both.",
     "STDI-0002 Volume 1 Appendix E", &AirbornePair},
    {"TR-18", WARN, ALL, Subject::Tre, "RSM EDITION",
     "The parts of a replacement sensor model do not belong together.",
     "All RSM TREs of an image carry the EDITION of its RSMIDA, which is present.",
     "STDI-0002 Volume 1 Appendix U", &Editions},
    {"TR-19", WARN, ALL, Subject::Tre, "RPFHDR, RPFIMG, RPFDES and area",
     "A TRE of a raster product stands where readers do not look.",
     "RPFHDR stands in UDHD, RPFIMG in UDID, RPFDES in UDID or in its overflow DES.",
     "MIL-STD-2411", &ProductPlaces},
};
// clang-format on

}  // namespace

RuleList TreRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
