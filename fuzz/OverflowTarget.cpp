// A recipe is read byte by byte: the version; how many images, graphics, labels or texts there are and the overflow
// number of each; then one overflow DES after another: what its DESOFLW says, its DESITEM, and its TREs.

#include "foundation/CSMException.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"

#include <algorithm>
#include <string>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM;
using Tests::Format;
using Tests::HeaderFields;
using Tests::NitfBuilder;

namespace {

/// Gives bytes out one after another; zeros when there are no more.
class Recipe
{
public:
    explicit Recipe(std::string_view aBytes) : m_left(aBytes) {}

    bool IsEmpty() const { return m_left.empty(); }
    unsigned Number() { return static_cast<unsigned char>(Bytes(1)[0]); }
    std::string Bytes(std::size_t aCount)
    {
        std::string bytes(m_left.substr(0, std::min(aCount, m_left.size())));
        m_left.remove_prefix(bytes.size());
        bytes.resize(aCount, '\0');
        return bytes;
    }

private:
    std::string_view m_left;
};

constexpr const char* AREAS[] = {"UDHD", "XHD", "UDID", "IXSHD", "SXSHD", "LXSHD", "LSXHD", "TXSHD"};
constexpr unsigned MOST_SEGMENTS = 4;
constexpr unsigned MOST_DES = 12;
constexpr std::size_t SMALL = 250;

/// Answers how many TREs the segments have.
std::size_t AddSegments(NitfBuilder& aBuilder, bool aIs20, Recipe& aRecipe)
{
    const auto number = [&] { return aRecipe.Number() % 16; };
    std::size_t tres = 0;
    for (unsigned i = aRecipe.Number() % MOST_SEGMENTS; i != 0; --i) {
        const bool hasOwn = i % 2 == 0;
        tres += hasOwn ? 1 : 0;
        HeaderFields& image = aBuilder.AddImage();
        image.Area("IXSHD", hasOwn ? Tests::Tre("OWNTRE", "own") : "", number()).Area("UDID", "", number());
    }
    for (unsigned i = aRecipe.Number() % MOST_SEGMENTS; i != 0; --i) {
        aBuilder.AddGraphic().Area("SXSHD", "", number());
    }
    for (unsigned i = aRecipe.Number() % MOST_SEGMENTS; i != 0; --i) {
        aIs20 ? aBuilder.AddLabel().Area("LXSHD", "", number()) : aBuilder.AddText().Area("TXSHD", "", number());
    }
    return tres;
}

/// The same for one DES.
std::size_t AddDes(NitfBuilder& aBuilder, Recipe& aRecipe)
{
    const unsigned choice = aRecipe.Number();
    const unsigned item = aRecipe.Number();
    std::string tres;
    const unsigned count = 1 + aRecipe.Number() % 3;  // a DES without data is refused
    for (unsigned i = 0; i != count; ++i) {
        std::string tag = "OVER";
        tag += static_cast<char>('A' + aRecipe.Number() % 26);
        tres += Tests::Tre(tag, aRecipe.Bytes(1 + aRecipe.Number() % 31));
    }
    HeaderFields& des = aBuilder.AddOverflow(AREAS[choice % std::size(AREAS)], item % 16, tres);
    if (choice >= SMALL) {
        des.Damage("DESOFLW", aRecipe.Bytes(6));
    }
    if (item >= SMALL) {
        des.Damage("DESITEM", aRecipe.Bytes(3));
    }
    return count;
}

/// How many TREs stand in segments and, of overflow DESs that nobody took, in those.
std::size_t CountTres(const ImageSupportDataNITF& aIsd)
{
    std::size_t count = aIsd.GetNITFFileHeader()->GetTREStore().Size();
    count += aIsd.GetNITFFileHeader()->GetOverflowTREStore().Size();
    std::size_t des = 0;
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const NITFFieldSegment* const segment = aIsd.GetSegment(info->GetDataSegmentType(), index);
        count += segment->GetTREStore().Size() + segment->GetOverflowTREStore().Size();
        if (info->GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION && !aIsd.IsOverflowPlaced(des++)) {
            count += aIsd.GetDataExtensionSegment(index)->GetOverflowTREs().Size();
        }
    }
    return count;
}

}  // namespace

void RunOverflow(std::string_view aBytes)
{
    Recipe recipe(aBytes);
    const auto format = static_cast<Format>(recipe.Number() % 3);
    NitfBuilder builder(format);
    std::size_t tres = AddSegments(builder, format == Format::Nitf20, recipe);
    builder.File().Area("XHD", "", recipe.Number() % 16);
    for (unsigned i = 0; i != MOST_DES && !recipe.IsEmpty(); ++i) {
        tres += AddDes(builder, recipe);
    }
    const std::string file = builder.Bytes();
    const AllocationWatch watch(file.size());
    const Tests::OpenedIsd isd = Tests::OpenedIsd::OfBytes(file);
    Require(CountTres(*isd) == tres, "no TRE is lost, and none is told twice");
    if (aBytes.size() % 8 != 0) {
        return;  // all that follows takes much longer than what this target is about
    }
    Tests::AskEverything(*isd);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    const Tests::OpenedIsd copy = isd.Clone();
    Require(ImageSupportDataFactory::AreEqual(*isd, *copy), "a copy is equal");
    RequireXml(isd->Serialize());
}

}  // namespace OrmoFuzz
