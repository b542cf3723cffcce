// Good and bad values of header fields, written down from the standards and not from the tables of the library.

#include "isd/ImageSupportDataNITF.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/SourceDir.h"

#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

/// A file with one segment of each kind.
Tests::OpenedIsd OpenFileOf(Tests::Format aFormat)
{
    Tests::NitfBuilder builder(aFormat);
    builder.AddImage();
    builder.AddGraphic();
    if (aFormat == Tests::Format::Nitf20) {
        builder.AddLabel();
    }
    builder.AddText();
    builder.AddDes("SOME DES", "data");
    builder.AddRes("SOME RES", "data");
    return Tests::OpenedIsd::OfBytes(builder.Bytes());
}

const std::map<std::string, NITFCnst::DataSegmentType> KINDS{{"file-header", NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER},
                                                             {"image", NITFCnst::DATA_SEGMENT_TYPE_IMAGE},
                                                             {"graphic", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC},
                                                             {"symbol", NITFCnst::DATA_SEGMENT_TYPE_SYMBOL},
                                                             {"label", NITFCnst::DATA_SEGMENT_TYPE_LABEL},
                                                             {"text", NITFCnst::DATA_SEGMENT_TYPE_TEXT},
                                                             {"des", NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION},
                                                             {"res", NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION}};

/// A text cut at a character; what stands behind the last one counts, empty or not.
std::vector<std::string> Cut(std::string_view aText, char aAt)
{
    std::vector<std::string> parts{""};
    for (const char character : aText) {
        if (character == aAt) {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

TEST(HeaderValuesTest, EveryFieldAllowsWhatItsStandardAllowsAndNothingElse)
{
    const Tests::OpenedIsd file20 = OpenFileOf(Tests::Format::Nitf20);
    const Tests::OpenedIsd file21 = OpenFileOf(Tests::Format::Nitf21);
    std::ifstream list(Tests::SourceDir() + "/tests/data/header-values.csv");
    std::string line;
    std::getline(list, line);
    int values = 0;
    while (std::getline(list, line)) {
        const std::vector<std::string> row = Cut(line, ',');
        ASSERT_EQ(5U, row.size()) << line;
        const ImageSupportDataNITF& isd = row[0] == "20" ? *file20 : *file21;
        const NITFFieldSegment* const segment = isd.GetSegment(KINDS.at(row[1]), 0);
        ASSERT_NE(nullptr, segment) << line;
        for (const std::string& value : Cut(row[4], '|')) {
            EXPECT_EQ(row[3] == "good" ? 1 : 0, segment->IsFieldValueInRange(row[2].c_str(), value.c_str()))
                << "NITF " << row[0] << ' ' << row[1] << ' ' << row[2] << " = \"" << value << '"';
            ++values;
        }
    }
    EXPECT_LT(500, values);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
