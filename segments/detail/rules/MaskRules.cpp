#include "fields/ByteCursor.h"
#include "fields/MessageText.h"
#include "segments/detail/rules/FieldChecks.h"
#include "segments/detail/rules/HeaderView.h"
#include "segments/image/detail/ImageDataMask.h"

#include <algorithm>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

constexpr std::uint64_t RECORD = 4;
constexpr std::uint64_t MOST_FIXED = 22;
constexpr std::uint64_t PIECE = std::uint64_t{64} << 10U;

/// The fixed part of a mask, and where its tables stand.
struct Mask
{
    std::uint64_t offset = 0;       ///< IMDATOFF
    std::uint64_t blockLength = 0;  ///< BMRLNTH
    std::uint64_t padLength = 0;    ///< TMRLNTH
    std::uint64_t codeBits = 0;     ///< TPXCDLNTH
    std::uint64_t fixed = 0;        ///< bytes in front of the tables
    std::uint64_t records = 0;      ///< of each table
    bool areLengthsGood = false;

    std::uint64_t TableBytes() const noexcept { return records * RECORD; }
    std::uint64_t Size() const noexcept
    {
        return fixed + (blockLength != 0 ? TableBytes() : 0) + (padLength != 0 ? TableBytes() : 0);
    }
    std::uint64_t PadTable() const noexcept { return fixed + (blockLength != 0 ? TableBytes() : 0); }
};

bool ReadFields(const HeaderView& aHeader, FieldRecord& aFields)
{
    std::string bytes;
    return aHeader.ReadData(0, MOST_FIXED, bytes) && aFields.Read(bytes).IsGood();
}

/// False when there is nothing to compare: what cannot be read is a fault of the fields.
bool ReadMask(const HeaderView& aHeader, Mask& aOut)
{
    FieldRecord fields(ImageDataMaskTable());
    const ImageFacts& image = aHeader.Image();
    const std::uint64_t bands = image.mode == "S" ? image.bands : 1;
    if (!ReadFields(aHeader, fields) || !fields.As("IMDATOFF", aOut.offset) ||
        !fields.As("BMRLNTH", aOut.blockLength) || !fields.As("TMRLNTH", aOut.padLength) ||
        !fields.As("TPXCDLNTH", aOut.codeBits) ||
        !Product({image.blocksPerRow, image.blocksPerColumn, bands}, aOut.records) || aOut.records > UINT32_MAX) {
        return false;
    }
    aOut.fixed = 10 + fields.Text("TPXCD").size();
    aOut.areLengthsGood =
        (aOut.blockLength == 0 || aOut.blockLength == RECORD) && (aOut.padLength == 0 || aOut.padLength == RECORD);
    return true;
}

/// Adds a finding about a field of the mask, which no field of the header is.
void Say(const HeaderView& aHeader, const Report& aReport, const char* aField, std::uint64_t aAt, std::uint64_t aValue,
         std::string aAllowed, std::string aDetail = {})
{
    aReport(aHeader, {.field = aField,
                      .allowed = std::move(aAllowed),
                      .detail = std::move(aDetail),
                      .value = std::to_string(aValue),
                      .offset = aHeader.DataStart() + aAt});
}

/// Looks at every record of a table in pieces, up to the first false.
template<typename Look>
void ForEachRecord(const HeaderView& aHeader, std::uint64_t aTable, std::uint64_t aRecords, Look aLook)
{
    std::string bytes;
    for (std::uint64_t done = 0; done != aRecords;) {
        const std::uint64_t count = std::min(aRecords - done, PIECE / RECORD);
        if (!aHeader.ReadData(aTable + done * RECORD, count * RECORD, bytes) || bytes.size() != count * RECORD) {
            return;
        }
        ByteCursor cursor(bytes);
        std::string_view record;
        for (std::uint64_t i = 0; i != count && cursor.Take(RECORD, record); ++i, ++done) {
            std::uint64_t offset = 0;
            if (!BigEndianUnsigned(record, offset) || !aLook(done, offset)) {
                return;
            }
        }
    }
}

constexpr std::uint64_t NOT_RECORDED = NITFImageDataMaskSubheader::NOT_RECORDED;

void Size(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (!ReadMask(aHeader, mask) || !mask.areLengthsGood) {
        return;
    }
    const bool mayBeLarger = aHeader.Image().Is('4');
    if (mask.offset < mask.Size() || (mask.offset != mask.Size() && !mayBeLarger) || mask.offset > aHeader.DataSize()) {
        Say(aHeader, aReport, "IMDATOFF", 0, mask.offset, std::to_string(mask.Size()) + (mayBeLarger ? " or more" : ""),
            "The data have " + std::to_string(aHeader.DataSize()) + " byte(s).");
    }
}

void NoTable(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (ReadMask(aHeader, mask) && mask.blockLength == 0 && mask.padLength == 0) {
        Say(aHeader, aReport, "BMRLNTH", 4, 0, "4 here or in TMRLNTH");
    }
}

void NoPadInJpeg(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (aHeader.Image().Is('3') && ReadMask(aHeader, mask) && (mask.padLength != 0 || mask.codeBits != 0)) {
        const bool pad = mask.padLength != 0;
        Say(aHeader, aReport, pad ? "TMRLNTH" : "TPXCDLNTH", pad ? 6 : 8, pad ? mask.padLength : mask.codeBits,
            "0 with M3");
    }
}

void PadNeedsCode(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (ReadMask(aHeader, mask) && mask.padLength != 0 && mask.codeBits == 0) {
        Say(aHeader, aReport, "TPXCDLNTH", 8, 0, "NBPP, " + std::to_string(aHeader.Image().bits) + ", with TMRLNTH 4");
    }
}

void CodeWidth(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (ReadMask(aHeader, mask) && mask.codeBits != 0 && mask.codeBits != aHeader.Image().bits) {
        Say(aHeader, aReport, "TPXCDLNTH", 8, mask.codeBits, "0 | NBPP, " + std::to_string(aHeader.Image().bits));
    }
}

/// A mask whose tables stand in the data.
bool ReadTables(const HeaderView& aHeader, Mask& aMask)
{
    return ReadMask(aHeader, aMask) && aMask.areLengthsGood && aMask.Size() <= aHeader.DataSize() &&
           aMask.offset <= aHeader.DataSize();
}

/// Bytes of one block of uncompressed pixels; 0 when there is no such number.
std::uint64_t BlockBytes(const ImageFacts& aImage) noexcept
{
    std::uint64_t bits = 0;
    const std::uint64_t together = aImage.mode == "S" ? 1 : aImage.bands;
    return Product({aImage.WidthOfBlock(), aImage.HeightOfBlock(), aImage.bits, together}, bits) ? (bits + 7) / 8 : 0;
}

void Offsets(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (!ReadTables(aHeader, mask) || mask.blockLength == 0 || aHeader.Image().compression == "NM") {
        return;  // without compression every offset is known, and has a rule of its own
    }
    const std::uint64_t most = aHeader.DataSize() - mask.offset;
    std::uint64_t last = 0;
    bool any = false;
    ForEachRecord(aHeader, mask.fixed, mask.records, [&](std::uint64_t aBlock, std::uint64_t aOffset) {
        if (aOffset == NOT_RECORDED) {
            return true;
        }
        const bool good = any ? aOffset > last : aOffset == 0;
        if (!good || aOffset >= most) {
            Say(aHeader, aReport, "BMR", mask.fixed + aBlock * RECORD, aOffset,
                any ? std::to_string(last + 1) + " to " + std::to_string(most - 1) : "0 for the first block",
                "Block " + std::to_string(aBlock) + '.');
            return false;
        }
        any = true;
        last = aOffset;
        return true;
    });
}

void FixedOffsets(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    const std::uint64_t size = BlockBytes(aHeader.Image());
    if (aHeader.Image().compression != "NM" || size == 0 || !ReadTables(aHeader, mask)) {
        return;
    }
    std::uint64_t recorded = mask.blockLength == 0 ? mask.records : 0;
    bool good = true;
    if (mask.blockLength != 0) {
        ForEachRecord(aHeader, mask.fixed, mask.records, [&](std::uint64_t aBlock, std::uint64_t aOffset) {
            if (aOffset == NOT_RECORDED) {
                return true;
            }
            good = aOffset == recorded * size;
            if (!good) {
                Say(aHeader, aReport, "BMR", mask.fixed + aBlock * RECORD, aOffset, std::to_string(recorded * size),
                    "Block " + std::to_string(aBlock) + '.');
            }
            ++recorded;
            return good;
        });
    }
    std::uint64_t wanted = 0;
    if (good && (!Product({recorded, size}, wanted) || wanted != aHeader.DataSize() - mask.offset)) {
        Say(aHeader, aReport, "IMDATOFF", 0, mask.offset, "",
            "Behind it stand " + std::to_string(aHeader.DataSize() - mask.offset) + " byte(s), the " +
                std::to_string(recorded) + " recorded block(s) take " + std::to_string(wanted) + '.');
    }
}

void PadOffsets(const HeaderView& aHeader, const Report& aReport)
{
    Mask mask;
    if (!ReadTables(aHeader, mask) || mask.blockLength == 0 || mask.padLength == 0) {
        return;
    }
    std::string blocks;
    std::uint64_t first = 0;
    ForEachRecord(aHeader, mask.PadTable(), mask.records, [&](std::uint64_t aBlock, std::uint64_t aOffset) {
        if (aBlock % (PIECE / RECORD) == 0) {
            first = aBlock;
            if (!aHeader.ReadData(mask.fixed + first * RECORD, std::min(PIECE, (mask.records - first) * RECORD),
                                  blocks)) {
                return false;
            }
        }
        std::uint64_t block = 0;
        const std::string_view record =
            std::string_view(blocks).substr(static_cast<std::size_t>((aBlock - first) * RECORD), RECORD);
        const bool good = aOffset == NOT_RECORDED || (BigEndianUnsigned(record, block) && aOffset == block);
        if (!good) {
            Say(aHeader, aReport, "TMR", mask.PadTable() + aBlock * RECORD, aOffset,
                "4294967295 | " + std::to_string(block) + ", the offset of the block",
                "Block " + std::to_string(aBlock) + '.');
        }
        return good;
    });
}

// clang-format off
constexpr Rule RULES[] = {
    {"MK-01", ERROR, ALL, Subject::Mask, "IMDATOFF",
     "The pixels do not begin where the image data mask ends.",
     "IMDATOFF is the size of the mask: its fixed part and, for each table that it has, a record per block, with IMODE S per block and band. With M4 the header of the vector quantisation stands between.",
     "MIL-STD-2500C table A-3(A)", &Size},
    {"MK-02", WARN, ALL, Subject::Mask, "BMRLNTH, TMRLNTH",
     "An image data mask has no table.",
     "At least one of BMRLNTH and TMRLNTH is 4.",
     "MIL-STD-2500C table A-3(A)", &NoTable},
    {"MK-03", WARN, ALL, Subject::Mask, "IC M3, TMRLNTH, TPXCDLNTH",
     "A JPEG image has pad pixels.",
     "With M3 pad pixels would not survive the compression: there is neither a mask nor a code for them.",
     "MIL-STD-2500A, image data mask", &NoPadInJpeg},
    {"MK-04", WARN, ALL, Subject::Mask, "TMRLNTH, TPXCDLNTH",
     "Blocks have pad pixels, whose value is not said.",
     "A mask of pad pixels comes with a pad pixel code.",
     "MIL-STD-2500C table A-3(A)", &PadNeedsCode},
    {"MK-05", WARN, ALL, Subject::Mask, "TPXCDLNTH, NBPP",
     "The pad pixel code is not as wide as a pixel.",
     "TPXCDLNTH is 0 or NBPP.",
     "MIL-STD-2500C table A-3(A)", &CodeWidth},
    {"MK-06", ERROR, ALL, Subject::Mask, "BMR",
     "A block does not lie where a block can.",
     "The offsets of recorded blocks start at 0, ascend and lie inside the data; 0xFFFFFFFF marks a block that is not recorded.",
     "MIL-STD-2500C table A-3(A)", &Offsets},
    {"MK-07", ERROR, ALL, Subject::Mask, "BMR, IC NM, LI",
     "Uncompressed blocks do not follow one another.",
     "The n-th recorded block stands n times the bytes of a block behind IMDATOFF, and the data end with the last one.",
     "MIL-STD-2500C table A-3(A)", &FixedOffsets},
    {"MK-08", WARN, ALL, Subject::Mask, "TMR, BMR",
     "Pad pixels lie in another block than their own.",
     "A record of the mask of pad pixels is 0xFFFFFFFF or the offset of its block, so a block that is not recorded has none.",
     "MIL-STD-2500C table A-3(A)", &PadOffsets},
};
// clang-format on

}  // namespace

void CheckMaskFields(const HeaderView& aHeader, FindingList& aFindings)
{
    if (!aHeader.Looks(Subject::Mask)) {
        return;
    }
    FieldRecord fields(ImageDataMaskTable());
    static_cast<void>(ReadFields(aHeader, fields));
    Finding place;
    place.owner = "ImageDataMask";
    place.offset = aHeader.DataStart();
    fields.Check(place, aFindings);
}

RuleList MaskRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
