#include "segments/image/NITFImageDataMaskSubheader.h"

#include "fields/FieldRecord.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "nitf/NITFCnst.h"
#include "segments/image/detail/ImageDataMask.h"

#include <algorithm>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool CodeBytes(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t bits = 0;
    if (!aContext.Count("TPXCDLNTH", bits)) {
        return false;
    }
    aOut = (bits + 7) / 8;
    return true;
}

// MIL-STD-2500C, table A-3(A), up to the offsets of the blocks.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("IMDATOFF",  4, Conditional, Unsigned, "10..4294967295", "bytes", "Blocked Image Data Offset [0x0000000A-0xFFFFFFFF]",
          "From the start of the data to the first block."),
    Field("BMRLNTH",   2, Conditional, Unsigned, "0|4",            "bytes", "Block Mask Record Length [0x0000|0x0004]",
          "Length of the offset of one block; 0 without block mask."),
    Field("TMRLNTH",   2, Conditional, Unsigned, "0|4",            "bytes", "Pad Pixel Mask Record Length [0x0000|0x0004]",
          "Length of the offset of one block with pad pixels; 0 without pad pixel mask."),
    Field("TPXCDLNTH", 2, Conditional, Unsigned, "0..96",          "bits",  "Pad Output Pixel Code Length [0x0000-0x0060]",
          "Length of the value that pad pixels have; 0 without such a value."),
    WhenPositive("TPXCDLNTH"),
        Computed("TPXCD", CodeBytes, Conditional, Bytes, "", "", "Pad Output Pixel Code",
                 "The value that pad pixels have, in whole bytes."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 10);

constexpr std::uint64_t OFFSET_LENGTH = NITFCnst::NITF_IMG_DATA_MASK_FIELD_SZ;
constexpr std::uint64_t MOST_FIXED = 10 + 96 / 8;

std::string Refused(std::string_view aField, std::uint64_t aValue, const std::string& aWhy)
{
    return "ERROR: Image data mask field " + Quoted(aField) + " is " + std::to_string(aValue) + ": " + aWhy + ".";
}

}  // namespace

const FieldTable& Detail::ImageDataMaskTable() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

struct ORMO_CSM_LOCAL NITFImageDataMaskSubheader::Parts
{
    FieldRecord fields{ImageDataMaskTable()};
    std::shared_ptr<const ByteSource> source;
};

NITFImageDataMaskSubheader::NITFImageDataMaskSubheader() : m_parts(std::make_unique<Parts>()) {}

NITFImageDataMaskSubheader::~NITFImageDataMaskSubheader() = default;

std::shared_ptr<const NITFImageDataMaskSubheader> NITFImageDataMaskSubheader::Read(const Image& aImage,
                                                                                   std::string& aErrors)
{
    const auto& [source, layout] = aImage;
    std::string bytes;
    if (source == nullptr || !source->ReadUpTo(layout.dataOffset, std::min(MOST_FIXED, layout.dataLength), bytes)) {
        AppendBlock(aErrors, "ERROR: The image data mask cannot be read.");
        return nullptr;
    }
    std::shared_ptr<NITFImageDataMaskSubheader> mask(new NITFImageDataMaskSubheader);
    FieldRecord& fields = mask->m_parts->fields;
    if (!fields.Read(bytes).IsGood() || !fields.As("IMDATOFF", mask->m_pixels) ||
        !fields.As("BMRLNTH", mask->m_blockLength) || !fields.As("TMRLNTH", mask->m_padLength) ||
        !fields.As("TPXCDLNTH", mask->m_codeBits)) {
        AppendBlock(aErrors, "ERROR: The image data mask is cut short: the image has " +
                                 std::to_string(layout.dataLength) + " byte(s) of data.");
        return nullptr;
    }
    for (const auto& [name, length] : {std::pair<std::string_view, std::uint64_t>{"BMRLNTH", mask->m_blockLength},
                                       std::pair<std::string_view, std::uint64_t>{"TMRLNTH", mask->m_padLength}}) {
        if (length != 0 && length != OFFSET_LENGTH) {
            AppendBlock(aErrors, Refused(name, length, "it must be 0 or 4"));
            return nullptr;
        }
    }
    const std::uint64_t fixed = 10 + mask->GetFieldTPXCD().size();
    std::uint64_t table = 0;
    mask->m_bands = layout.MaskBands();
    // Both factors of the sum below are small enough once the product is known to fit the data.
    if (!Product({layout.blocksPerRow, layout.blocksPerColumn}, mask->m_blocks) ||
        !Product({mask->m_blocks, mask->m_bands, OFFSET_LENGTH}, table) || table > layout.dataLength) {
        AppendBlock(aErrors, "ERROR: The image data mask has no room for the offsets of its blocks in " +
                                 std::to_string(layout.dataLength) + " byte(s) of data.");
        return nullptr;
    }
    const std::uint64_t whole = fixed + (mask->HasBlockMask() ? table : 0) + (mask->HasPadPixelMask() ? table : 0);
    if (mask->m_pixels < whole || mask->m_pixels > layout.dataLength) {
        AppendBlock(aErrors, Refused("IMDATOFF", mask->m_pixels,
                                     "the table takes " + std::to_string(whole) +
                                         " byte(s), the data of the image have " + std::to_string(layout.dataLength)));
        return nullptr;
    }
    mask->m_blockTable = layout.dataOffset + fixed;
    mask->m_padTable = mask->m_blockTable + (mask->HasBlockMask() ? table : 0);
    mask->m_parts->source = source;
    return mask;
}

std::string_view NITFImageDataMaskSubheader::FieldText(std::string_view aName) const noexcept
{
    return m_parts->fields.Text(aName);
}

std::string_view NITFImageDataMaskSubheader::GetFieldTPXCD() const noexcept
{
    return m_parts->fields.Text("TPXCD");
}

bool NITFImageDataMaskSubheader::ReadOffsets(std::uint64_t aStart, std::uint64_t aFirst, std::uint64_t aCount,
                                             std::uint64_t aBand, std::vector<std::uint32_t>& aOffsets) const
{
    if (aBand >= m_bands || aFirst >= m_blocks || aCount > m_blocks - aFirst) {
        return false;
    }
    std::string bytes;
    if (!m_parts->source->Read(aStart + (aBand * m_blocks + aFirst) * OFFSET_LENGTH, aCount * OFFSET_LENGTH, bytes)) {
        return false;
    }
    aOffsets.clear();
    for (std::size_t at = 0; at != bytes.size(); at += OFFSET_LENGTH) {
        std::uint64_t offset = 0;
        if (!BigEndianUnsigned({bytes.data() + at, OFFSET_LENGTH}, offset)) {
            return false;
        }
        aOffsets.push_back(static_cast<std::uint32_t>(offset));
    }
    return true;
}

bool NITFImageDataMaskSubheader::GetBlockOffsets(std::uint64_t aFirst, std::uint64_t aCount, std::uint64_t aBand,
                                                 std::vector<std::uint32_t>& aOffsets) const
{
    return HasBlockMask() && ReadOffsets(m_blockTable, aFirst, aCount, aBand, aOffsets);
}

bool NITFImageDataMaskSubheader::GetBlockOffset(std::uint64_t aBlock, std::uint64_t aBand, std::uint32_t& aOffset) const
{
    std::vector<std::uint32_t> offsets;
    if (!GetBlockOffsets(aBlock, 1, aBand, offsets)) {
        return false;
    }
    aOffset = offsets.front();
    return true;
}

bool NITFImageDataMaskSubheader::GetPadPixelOffset(std::uint64_t aBlock, std::uint64_t aBand,
                                                   std::uint32_t& aOffset) const
{
    std::vector<std::uint32_t> offsets;
    if (!HasPadPixelMask() || !ReadOffsets(m_padTable, aBlock, 1, aBand, offsets)) {
        return false;
    }
    aOffset = offsets.front();
    return true;
}

}  // namespace ORMO::SensorModel::CSM
