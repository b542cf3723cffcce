#include "fields/ByteSource.h"
#include "segments/image/detail/ImagePixels.h"
#include "segments/image/detail/UncompressedPixels.h"
#include "tests/segments/image/PixelSupport.h"
#include "tests/support/TempFile.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using Detail::ImagePixels;
using Detail::PixelAnswer;
using Detail::PixelLayout;
using Detail::PixelWindow;
using Reader = NITFImagePixelReader;

constexpr std::uint64_t BEFORE = 37;  // bytes in the file in front of the data

/// Pixels of an image whose data are the given bytes, in a file of their own.
class PixelFile
{
public:
    PixelFile(PixelLayout aLayout, const std::string& aData) : m_file(std::string(BEFORE, '\xEE') + aData)
    {
        aLayout.dataOffset = BEFORE;
        aLayout.dataLength = aData.size();
        Open(aLayout);
    }
    /// Reads a window and compares every sample; the text names the first difference.
    std::string Compare(const PixelWindow& aWindow, const SampleBits& aSamples) const
    {
        const PixelLayout& layout = m_pixels->Layout();
        const std::size_t size = layout.SampleSize();
        std::vector<char> read(aWindow.RowsOut() * aWindow.ColumnsOut() * size + 1, '\x5A');
        const PixelAnswer answer = m_pixels->Read(aWindow, read.size() - 1, read.data(), nullptr);
        if (!answer.IsGood()) {
            return answer.text;
        }
        if (read.back() != '\x5A') {
            return "written beyond the buffer";
        }
        std::size_t at = 0;
        for (std::uint64_t row = aWindow.row; row < aWindow.row + aWindow.rows; row += aWindow.step) {
            for (std::uint64_t column = aWindow.column; column < aWindow.column + aWindow.columns;
                 column += aWindow.step, at += size) {
                std::array<char, 8> expected{};
                Expected(layout, aSamples(aWindow.band, row, column), expected.data());
                if (std::memcmp(expected.data(), &read[at], size) != 0) {
                    return "differs at row " + std::to_string(row) + " column " + std::to_string(column);
                }
            }
        }
        return {};
    }
    const ImagePixels& operator*() const { return *m_pixels; }
    const ImagePixels* operator->() const { return m_pixels.get(); }
    const std::string& Path() const { return m_file.Path(); }

private:
    void Open(const PixelLayout& aLayout)
    {
        std::string reason;
        m_pixels = std::make_unique<ImagePixels>(aLayout, Detail::ByteSource::Open(m_file.Path(), reason), 0U);
    }
    /// The sample of the machine that a compiler makes of the lowest bits.
    static void Expected(const PixelLayout& aLayout, std::uint64_t aBits, char* aOut)
    {
        const std::uint64_t mask = aLayout.bits == 64 ? ~std::uint64_t{0} : (std::uint64_t{1} << aLayout.bits) - 1;
        std::uint64_t value = aBits & mask;
        if (aLayout.type == NITFCnst::PIXEL_TYPE_C) {
            const auto real = static_cast<std::uint32_t>(value >> 32U);
            const auto imaginary = static_cast<std::uint32_t>(value);
            std::memcpy(aOut, &real, 4);
            std::memcpy(aOut + 4, &imaginary, 4);
            return;
        }
        if (aLayout.type == NITFCnst::PIXEL_TYPE_SI && (value >> (aLayout.bits - 1)) != 0) {
            value |= ~mask;
        }
        const auto as8 = static_cast<std::uint8_t>(value);
        const auto as16 = static_cast<std::uint16_t>(value);
        const auto as32 = static_cast<std::uint32_t>(value);
        const void* const sources[] = {nullptr, &as8, &as16, nullptr, &as32, nullptr, nullptr, nullptr, &value};
        std::memcpy(aOut, sources[aLayout.SampleSize()], aLayout.SampleSize());
    }

    TempFile m_file;
    std::unique_ptr<ImagePixels> m_pixels;
};

struct Depth
{
    NITFCnst::PixelType type;
    unsigned bits;
};

class PixelLayoutTest : public testing::TestWithParam<char>
{
};

TEST_P(PixelLayoutTest, EveryDepthIsReadFromSeveralBlocksAndBands)
{
    std::vector<Depth> depths = {{NITFCnst::PIXEL_TYPE_B, 1},
                                 {NITFCnst::PIXEL_TYPE_R, 32},
                                 {NITFCnst::PIXEL_TYPE_R, 64},
                                 {NITFCnst::PIXEL_TYPE_C, 64}};
    for (unsigned bits = 1; bits <= 64; ++bits) {
        depths.push_back({NITFCnst::PIXEL_TYPE_INT, bits});
        depths.push_back({NITFCnst::PIXEL_TYPE_SI, bits});
    }
    for (const auto& [type, bits] : depths) {
        // Blocks of odd numbers of bits whose last ones hang over the image.
        const PixelLayout layout = Layout(GetParam(), bits, type, 3, 11, 13, 5, 7);
        const PixelFile file(layout, ImageBytes(layout));
        for (const PixelWindow& window :
             {PixelWindow{0, 0, 11, 13, 0}, PixelWindow{0, 0, 11, 13, 2}, PixelWindow{4, 6, 2, 2, 1},
              PixelWindow{10, 12, 1, 1, 2}, PixelWindow{0, 0, 11, 13, 1, 3}, PixelWindow{1, 2, 9, 11, 2, 6},
              PixelWindow{0, 0, 11, 13, 1, 1000}}) {
            EXPECT_EQ(file.Compare(window, Scrambled), "")
                << GetParam() << bits << " type " << type << " window at " << window.row << ' ' << window.column;
        }
    }
}

TEST_P(PixelLayoutTest, RowsLongerThanAPieceAreReadWhole)
{
    for (const unsigned bits : {60U, 64U}) {
        const PixelLayout layout = Layout(GetParam(), bits, NITFCnst::PIXEL_TYPE_INT, 2, 2, 150001, 2, 150001);
        const PixelFile file(layout, ImageBytes(layout));
        EXPECT_EQ(file.Compare({0, 0, 2, 150001, 1}, Scrambled), "") << bits;
        EXPECT_EQ(file.Compare({0, 17, 2, 149983, 0, 2}, Scrambled), "") << bits;
    }
    const PixelLayout layout = Layout(GetParam(), 8, NITFCnst::PIXEL_TYPE_INT, 1, 3000, 500, 3000, 500);
    const PixelFile file(layout, ImageBytes(layout));
    EXPECT_EQ(file.Compare({0, 0, 3000, 500, 0}, Scrambled), "");
    EXPECT_EQ(file.Compare({7, 490, 2990, 3, 0}, Scrambled), "");
}

INSTANTIATE_TEST_SUITE_P(Modes, PixelLayoutTest, testing::Values('B', 'P', 'R', 'S'),
                         [](const auto& aInfo) { return std::string(1, aInfo.param); });

std::string BigEndian(std::uint64_t aValue, unsigned aBytes)
{
    std::string bytes;
    for (unsigned i = aBytes; i-- != 0;) {
        bytes += static_cast<char>(aValue >> 8 * i & 0xFFU);
    }
    return bytes;
}

/// A masked image: blocks that are recorded stand in reverse order. With `aCode`, a pad pixel code.
std::string MaskedBytes(const PixelLayout& aLayout, const std::vector<std::vector<bool>>& aRecorded,
                        std::uint64_t aCode, unsigned aCodeBits, const std::string& aBetween = "")
{
    const std::uint64_t blocks = aLayout.blocksPerRow * aLayout.blocksPerColumn;
    std::string pixels;
    std::vector<std::uint64_t> offsets(blocks * aRecorded.size());
    for (std::size_t band = aRecorded.size(); band-- != 0;) {
        for (std::uint64_t block = blocks; block-- != 0;) {
            offsets[band * blocks + block] = aRecorded[band][block] ? pixels.size() : 0xFFFFFFFFU;
            pixels += aRecorded[band][block] ? BlockBytes(aLayout, block, band, Scrambled) : "";
        }
    }
    std::string table;
    for (int mask = 0; mask != 2; ++mask) {
        for (const std::uint64_t offset : offsets) {
            table += BigEndian(offset, 4);
        }
    }
    const std::string code = BigEndian(aCode, (aCodeBits + 7) / 8);
    const std::uint64_t length = 10 + code.size() + table.size() + aBetween.size();
    return BigEndian(length, 4) + BigEndian(4, 2) + BigEndian(4, 2) + BigEndian(aCodeBits, 2) + code + table +
           aBetween + pixels;
}

TEST(MaskedPixelsTest, BlocksThatAreNotInTheFileHoldThePadValue)
{
    const struct
    {
        NITFCnst::PixelType type;
        unsigned bits;
        std::uint64_t code;
        unsigned codeBits;
        std::uint64_t pad;
        bool isLeft;
    } cases[] = {
        {NITFCnst::PIXEL_TYPE_INT, 8, 0x7B, 8, 0x7B, false},
        {NITFCnst::PIXEL_TYPE_INT, 8, 0, 0, 0, false},
        {NITFCnst::PIXEL_TYPE_INT, 16, 0xFFFE, 16, 0xFFFE, false},
        {NITFCnst::PIXEL_TYPE_SI, 16, 0x8001, 16, 0x8001, false},
        {NITFCnst::PIXEL_TYPE_INT, 12, 0x0ABC, 12, 0xABC, false},
        {NITFCnst::PIXEL_TYPE_INT, 12, 0xABC0, 12, 0xABC, true},
        {NITFCnst::PIXEL_TYPE_B, 1, 1, 1, 1, false},
        {NITFCnst::PIXEL_TYPE_R, 32, 0x3FC00000, 32, 0x3FC00000, false},
        {NITFCnst::PIXEL_TYPE_C, 64, 0x3FC0000040000000, 64, 0x3FC0000040000000, false},
    };
    for (const auto& expected : cases) {
        for (const char mode : {'B', 'P', 'R', 'S'}) {
            PixelLayout layout = Layout(mode, expected.bits, expected.type, 2, 11, 13, 5, 7);
            layout.compression = "NM";
            layout.isLeftJustified = expected.isLeft;
            std::vector<std::vector<bool>> recorded = {{true, false, true, true, false, true}};
            if (mode == 'S') {
                recorded.push_back({false, true, true, false, true, true});
            }
            const PixelFile file(layout, MaskedBytes(layout, recorded, expected.code, expected.codeBits, "between"));
            for (std::uint64_t band = 0; band != 2; ++band) {
                const auto samples = [&](std::uint64_t aBand, std::uint64_t aRow, std::uint64_t aColumn) {
                    const std::uint64_t block = aRow / 5 * 2 + aColumn / 7;
                    return recorded[mode == 'S' ? aBand : 0][block] ? Scrambled(aBand, aRow, aColumn) : expected.pad;
                };
                EXPECT_EQ(file.Compare({0, 0, 11, 13, band}, samples), "") << mode << expected.bits;
                EXPECT_EQ(file.Compare({3, 5, 4, 5, band, 2}, samples), "") << mode << expected.bits;
            }
            std::string reason;
            const auto mask = file->Mask(reason);
            ASSERT_NE(mask, nullptr) << reason;
            EXPECT_EQ(mask->GetNumOfBands(), mode == 'S' ? 2U : 1U);
            std::uint32_t offset = 0;
            ASSERT_TRUE(mask->GetBlockOffset(1, 0, offset));
            EXPECT_EQ(offset, NITFImageDataMaskSubheader::NOT_RECORDED);
            ASSERT_TRUE(mask->GetBlockOffset(5, mask->GetNumOfBands() - 1, offset));
            EXPECT_EQ(offset, 0U);  // the last block stands first
            ASSERT_TRUE(mask->GetPadPixelOffset(2, 0, offset));
            EXPECT_NE(offset, 0U);
            EXPECT_FALSE(mask->GetBlockOffset(6, 0, offset));
            EXPECT_FALSE(mask->GetPadPixelOffset(0, 2, offset));
            EXPECT_EQ(mask->HasPadPixelValue(), expected.codeBits != 0);
            EXPECT_EQ(mask->GetFieldTPXCD(), BigEndian(expected.code, (expected.codeBits + 7) / 8));
        }
    }
}

TEST(MaskedPixelsTest, MaskWithoutBlockOffsetsLeavesTheBlocksInOrder)
{
    PixelLayout layout = Layout('B', 8, NITFCnst::PIXEL_TYPE_INT, 1, 11, 13, 5, 7);
    layout.compression = "NM";
    std::string table;
    for (int block = 0; block != 6; ++block) {
        table += BigEndian(block == 3 ? 3 * 35 : 0xFFFFFFFFU, 4);
    }
    const PixelFile file(layout, BigEndian(10 + table.size(), 4) + BigEndian(0, 2) + BigEndian(4, 2) + BigEndian(0, 2) +
                                     table + ImageBytes(layout));
    EXPECT_EQ(file.Compare({0, 0, 11, 13, 0}, Scrambled), "");
    std::string reason;
    std::uint32_t offset = 0;
    EXPECT_FALSE(file->Mask(reason)->HasBlockMask());
    EXPECT_FALSE(file->Mask(reason)->GetBlockOffset(0, 0, offset));
    ASSERT_TRUE(file->Mask(reason)->GetPadPixelOffset(3, 0, offset));
    EXPECT_EQ(offset, 105U);
}

TEST(MaskedPixelsTest, TablesThatPointOutsideTheDataAreRefused)
{
    PixelLayout layout = Layout('B', 8, NITFCnst::PIXEL_TYPE_INT, 1, 10, 14, 5, 7);
    layout.compression = "NM";
    const std::string pixels = ImageBytes(layout);
    const auto bytes = [&](std::uint64_t aOffset, unsigned aBlockLength, unsigned aPadLength, unsigned aCodeBits,
                           const std::string& aRest) {
        return BigEndian(aOffset, 4) + BigEndian(aBlockLength, 2) + BigEndian(aPadLength, 2) + BigEndian(aCodeBits, 2) +
               aRest;
    };
    const std::string offsets = BigEndian(0, 4) + BigEndian(35, 4) + BigEndian(70, 4);
    const struct
    {
        std::string data;
        Reader::Status status;
        const char* text;
    } cases[] = {
        {bytes(26, 4, 0, 0, offsets + BigEndian(105, 4) + pixels), Reader::STATUS_OK, ""},
        {bytes(25, 4, 0, 0, offsets + BigEndian(105, 4) + pixels), Reader::STATUS_INVALID_MASK, "IMDATOFF"},
        {bytes(0xFFFFFFFF, 4, 0, 0, offsets + BigEndian(105, 4) + pixels), Reader::STATUS_INVALID_MASK, "IMDATOFF"},
        {bytes(26, 3, 0, 0, offsets + BigEndian(105, 4) + pixels), Reader::STATUS_INVALID_MASK, "BMRLNTH"},
        {bytes(26, 4, 5, 0, offsets + BigEndian(105, 4) + pixels), Reader::STATUS_INVALID_MASK, "TMRLNTH"},
        {bytes(26, 4, 0, 65535, offsets), Reader::STATUS_INVALID_MASK, "cut short"},
        {"", Reader::STATUS_INVALID_MASK, "cut short"},
        {bytes(10, 4, 0, 0, ""), Reader::STATUS_INVALID_MASK, "no room"},
        {bytes(26, 4, 0, 0, offsets + BigEndian(0xFFFFFFFE, 4) + pixels), Reader::STATUS_INVALID_MASK, "block 3"},
        {bytes(26, 4, 0, 0, offsets + BigEndian(106, 4) + pixels), Reader::STATUS_DATA_SHORT, "166"},
    };
    for (const auto& [data, status, text] : cases) {
        const PixelFile file(layout, data);
        std::vector<char> buffer(140);
        const PixelAnswer answer = file->Read({0, 0, 10, 14, 0}, buffer.size(), buffer.data(), nullptr);
        EXPECT_EQ(answer.status, status) << answer.text;
        EXPECT_NE(answer.text.find(text), std::string::npos) << answer.text;
    }
}

TEST(ImagePixelsTest, RequestsThatCannotBeMetAnswerAStatus)
{
    const PixelLayout layout = Layout('B', 16, NITFCnst::PIXEL_TYPE_INT, 2, 10, 14, 5, 7);
    const std::string data = ImageBytes(layout);
    const PixelFile file(layout, data);
    std::vector<char> buffer(280);
    const auto status = [&](const PixelWindow& aWindow, std::size_t aSize = 280) {
        return file->Read(aWindow, aSize, buffer.data(), nullptr).status;
    };
    EXPECT_EQ(status({0, 0, 10, 14, 1}), Reader::STATUS_OK);
    EXPECT_EQ(status({0, 0, 10, 14, 1}, 279), Reader::STATUS_BUFFER_TOO_SMALL);
    EXPECT_EQ(status({0, 0, 10, 14, 2}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(status({0, 0, 11, 14, 0}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(status({0, 14, 1, 1, 0}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(status({UINT64_MAX, 0, 2, 1, 0}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(status({0, 0, 0, 1, 0}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(status({0, 0, 1, 1, 0, 0}), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(file->Read({0, 0, 1, 1, 0}, 280, nullptr, nullptr).status, Reader::STATUS_NO_BUFFER);
    EXPECT_EQ(ImagePixels(layout, nullptr, 0).Read({0, 0, 1, 1, 0}, 280, buffer.data(), nullptr).status,
              Reader::STATUS_NO_FILE);

    // Data that end early serve the pixels that they hold.
    for (const std::size_t missing : {1U, 141U, 559U}) {
        const PixelFile cut(layout, data.substr(0, data.size() - missing));
        EXPECT_EQ(cut->Read({9, 13, 1, 1, 1}, 280, buffer.data(), nullptr).status, Reader::STATUS_DATA_SHORT);
        EXPECT_EQ(cut.Compare({0, 0, 1, 1, 0}, Scrambled) == "", missing != 559) << missing;
    }
}

TEST(ImagePixelsTest, HostileLayoutsAreRefusedWithoutMemory)
{
    const PixelLayout good = Layout('B', 8, NITFCnst::PIXEL_TYPE_INT, 1, 10, 14, 5, 7);
    const auto status = [&](auto aChange) {
        PixelLayout layout = good;
        aChange(layout);
        const PixelFile file(layout, ImageBytes(good));
        char sample[8];
        return file->Read({0, 0, 1, 1, 0}, sizeof(sample), sample, nullptr).status;
    };
    EXPECT_EQ(status([](PixelLayout&) {}), Reader::STATUS_OK);
    EXPECT_EQ(status([](PixelLayout& l) { l.rows = 99999999; }), Reader::STATUS_INVALID_LAYOUT);
    EXPECT_EQ(status([](PixelLayout& l) { l.blocksPerRow = 1; }), Reader::STATUS_INVALID_LAYOUT);
    EXPECT_EQ(status([](PixelLayout& l) { l.bands = 0; }), Reader::STATUS_INVALID_LAYOUT);
    EXPECT_EQ(status([](PixelLayout& l) { l.blockRows = 0; }), Reader::STATUS_INVALID_LAYOUT);
    EXPECT_EQ(status([](PixelLayout& l) { l.bits = 65; }), Reader::STATUS_UNSUPPORTED_PIXELS);
    EXPECT_EQ(status([](PixelLayout& l) { l.bits = 0; }), Reader::STATUS_UNSUPPORTED_PIXELS);
    EXPECT_EQ(status([](PixelLayout& l) { l.type = NITFCnst::PIXEL_TYPE_R; }), Reader::STATUS_UNSUPPORTED_PIXELS);
    EXPECT_EQ(status([](PixelLayout& l) { l.type = NITFCnst::PIXEL_TYPE_UNKNOWN; }), Reader::STATUS_UNSUPPORTED_PIXELS);
    EXPECT_EQ(status([](PixelLayout& l) { l.mode = 'X'; }), Reader::STATUS_UNSUPPORTED_PIXELS);
    EXPECT_EQ(status([](PixelLayout& l) {
                  l.rows = l.columns = l.blockRows = l.blockColumns = 99999999;
                  l.bands = 99999;
                  l.bits = 64;
              }),
              Reader::STATUS_INVALID_LAYOUT);
    EXPECT_EQ(status([](PixelLayout& l) {
                  l.mode = 'S';
                  l.blockRows = l.blockColumns = 99999999;
              }),
              Reader::STATUS_OK);
    EXPECT_EQ(status([](PixelLayout& l) {
                  l.rows = l.columns = l.blockRows = l.blockColumns = 99999999;
                  l.bits = 64;
                  l.dataLength = UINT64_MAX;
              }),
              Reader::STATUS_OK);

    // The largest image there can be: a whole row of it is never made up from nothing.
    PixelLayout huge = Layout('P', 64, NITFCnst::PIXEL_TYPE_INT, 9, 99999999, 99999999, 99999999, 99999999);
    const PixelFile file(huge, "few bytes");
    std::vector<char> row(99999999 / 1000 * 8 + 8);
    EXPECT_EQ(file->Read({0, 0, 1, 99999999, 8, 1000}, row.size(), row.data(), nullptr).status,
              Reader::STATUS_DATA_SHORT);
}

TEST(ImagePixelsTest, UncompressedPixelsAreReadFromAStreamToo)
{
    const PixelLayout layout = Layout('B', 8, NITFCnst::PIXEL_TYPE_INT, 1, 10, 14, 5, 7);
    PixelLayout placed = layout;
    placed.dataOffset = 5;
    placed.dataLength = ImageBytes(layout).size();
    const TempFile other("front" + ImageBytes(layout));
    std::FILE* const stream = std::fopen(other.CStr(), "rb");
    ASSERT_NE(stream, nullptr);
    ASSERT_EQ(std::fgetc(stream), 'f');
    char sample = 0;
    EXPECT_EQ(ImagePixels(placed, nullptr, 0).Read({9, 13, 1, 1, 0}, 1, &sample, stream).status, Reader::STATUS_OK);
    EXPECT_EQ(sample, static_cast<char>(Scrambled(0, 9, 13)));
    EXPECT_EQ(std::fgetc(stream), 'r');
    std::fclose(stream);
}

/// Bytes that this process has read so far; 0 when the system does not count them.
std::uint64_t BytesRead()
{
    std::ifstream io("/proc/self/io");
    std::string name;
    std::uint64_t count = 0;
    return io >> name >> count && name == "rchar:" ? count : 0;
}

TEST(ImagePixelsTest, WindowOfAHugeImageReadsLittleMoreThanItself)
{
    constexpr std::uint64_t SIZE = 30000;
    const TempFile file;
    std::filesystem::resize_file(file.Path(), SIZE * SIZE);
    {
        std::fstream out(file.Path(), std::ios::in | std::ios::out | std::ios::binary);
        out.seekp(20000 * 30000 + 17000);
        out << "pixels";
    }
    for (const std::uint64_t block : {SIZE, std::uint64_t{256}}) {
        PixelLayout layout = Layout('B', 8, NITFCnst::PIXEL_TYPE_INT, 1, SIZE, SIZE, block, block);
        layout.dataLength = SIZE * SIZE;
        std::string reason;
        const ImagePixels pixels(layout, Detail::ByteSource::Open(file.Path(), reason), 0);
        std::string window(256 * 256, '?');
        const std::uint64_t before = BytesRead();
        const auto start = std::chrono::steady_clock::now();
        ASSERT_EQ(pixels.Read({20000, 17000, 256, 256, 0}, window.size(), window.data(), nullptr).status,
                  Reader::STATUS_OK);
        const auto spent = std::chrono::steady_clock::now() - start;
        EXPECT_LT(std::chrono::duration_cast<std::chrono::milliseconds>(spent).count(), 100);
        EXPECT_LT(BytesRead() - before, 4U * window.size() + 4096U);
        EXPECT_EQ(window.substr(0, 6) == "pixels", block == SIZE);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
