// What the object for the whole file answers about a segment is what the segment answers; about one that is not there
// it answers false or null, and says why.

#include "foundation/CSMApi.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/RpcRecord.h"

#include <array>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using testing::HasSubstr;
using Isd = ImageSupportDataNITF;
using Image = NITFImageSubheader;

constexpr std::size_t GOOD = 1;
constexpr std::size_t BEYOND = 2;

// ---- Arguments of operations: an output stands in a variable of its own, an input has one value.

struct Coefficients
{
    std::array<double, 20> values{};
};

template<typename Argument>
struct Kept
{
    using Type = std::remove_reference_t<Argument>;
};
template<>
struct Kept<double*>
{
    using Type = Coefficients;
};

template<typename Argument>
Argument Handed(typename Kept<Argument>::Type& aKept)
{
    if constexpr (std::is_same_v<Argument, double*>) {
        return aKept.values.data();
    } else {
        return aKept;
    }
}

template<typename Value>
void Print(const Value& aValue, std::ostream& aOut)
{
    if constexpr (std::is_same_v<Value, Coefficients>) {
        for (const double value : aValue.values) {
            aOut << value << ' ';
        }
    } else if constexpr (std::is_same_v<Value, const char*>) {
        aOut << (aValue == nullptr ? "null" : aValue);
    } else if constexpr (std::is_same_v<Value, std::vector<NITFImgBandInfo::WideTable>>) {
        aOut << testing::PrintToString(aValue);
    } else {
        aOut << aValue;
    }
    aOut << ';';
}

/// The answer of an operation and what it left in its outputs, as text.
template<typename... Arguments, typename Ask>
std::string Asked(Ask aAsk)
{
    std::tuple<typename Kept<Arguments>::Type...> kept{};
    std::ostringstream text;
    const auto answer = std::apply([&](auto&... aKept) { return aAsk(Handed<Arguments>(aKept)...); }, kept);
    Print(answer, text);
    std::apply([&](const auto&... aKept) { (Print(aKept, text), ...); }, kept);
    return text.str();
}

/// One operation of the object for the file, and the one of the segment that it must agree with.
struct Forwarder
{
    const char* name;
    std::function<std::string(const Isd&, std::size_t)> ask;
    std::function<std::string(const Image&)> own;
    std::string untouched;  ///< a negative answer with all outputs as they were
};

template<typename Ask, typename Answer, typename... Arguments>
Forwarder Row(const char* aName, Ask aAsk, Answer (Image::*aOwn)(Arguments...) const)
{
    return {
        aName,
        [aAsk](const Isd& aIsd, std::size_t aIndex) {
            return Asked<Arguments...>([&](Arguments... aArguments) { return (aIsd.*aAsk)(aArguments..., aIndex); });
        },
        [aOwn](const Image& aImage) {
            return Asked<Arguments...>([&](Arguments... aArguments) { return (aImage.*aOwn)(aArguments...); });
        },
        Asked<Arguments...>([](Arguments...) { return Answer{}; })};
}

/// The same for a class from which the subheader inherits the operation, or whose operation has another form.
template<typename... Arguments, typename Ask, typename Own>
Forwarder RowBy(const char* aName, Ask aAsk, Own aOwn)
{
    return {aName,
            [aAsk](const Isd& aIsd, std::size_t aIndex) {
                return Asked<Arguments...>([&](Arguments... aArguments) { return aAsk(aIsd, aIndex, aArguments...); });
            },
            [aOwn](const Image& aImage) {
                return Asked<Arguments...>([&](Arguments... aArguments) { return aOwn(aImage, aArguments...); });
            },
            Asked<Arguments...>([&](Arguments... aArguments) {
                return decltype(aAsk(std::declval<const Isd&>(), GOOD, aArguments...)){};
            })};
}

// clang-format off
const std::vector<Forwarder>& ImageForwarders()
{
    static const std::vector<Forwarder> rows = {
        Row("GetImageFieldIC",                        &Isd::GetImageFieldIC,                        &Image::GetImageCompressionCode),
        Row("IsImageFieldICORDSAvailable",            &Isd::IsImageFieldICORDSAvailable,            &Image::IsFieldICORDSAvailable),
        Row("GetImageFieldXBANDS",                    &Isd::GetImageFieldXBANDS,                    &Image::GetFieldXBANDS),
        Row("GetImageBandInfo",                       &Isd::GetImageBandInfo,                       &Image::GetImageBandInfo),
        Row("HasLUTsForImageBand",                    &Isd::HasLUTsForImageBand,                    &Image::HasLUTsForBand),
        Row("GetLUTsOfImageBand",                     &Isd::GetLUTsOfImageBand,                     &Image::GetLUTs),
        Row("GetImageSegmentColumnsAndRows",          &Isd::GetImageSegmentColumnsAndRows,          &Image::GetImageSignificantColumnsAndRows),
        Row("GetPadPixelValueOfImageSegmentAsDouble", &Isd::GetPadPixelValueOfImageSegmentAsDouble, &Image::GetPadPixelValueAsDouble),
        Row("GetPadPixelComplexOfImageSegment",       &Isd::GetPadPixelComplexOfImageSegment,       &Image::GetPadPixelComplex),
        Row("IsCloudCoverImageSegment",               &Isd::IsCloudCoverImageSegment,               &Image::IsCloudCoverImageSegment),
        Row("GetImageSegmentCCS",                     &Isd::GetImageSegmentCCS,                     &Image::GetCCSColumnAndRow),
        Row("HasIGEOLOGeographicExtent",              &Isd::HasIGEOLOGeographicExtent,              &Image::HasIGEOLOGeographicExtent),
        Row("GetIGEOLOGeographicExtent",              &Isd::GetIGEOLOGeographicExtent,              &Image::GetIGEOLOGeographicExtent),
        Row("HasBLOCKGeographicExtent",               &Isd::HasBLOCKGeographicExtent,               &Image::HasBLOCKGeographicExtent),
        Row("GetBLOCKGeographicExtent",               &Isd::GetBLOCKGeographicExtent,               &Image::GetBLOCKGeographicExtent),
        Row("HasGEOLOGeographicExtent",               &Isd::HasGEOLOGeographicExtent,               &Image::HasGEOLOGeographicExtent),
        Row("GetGEOLOGeographicExtent",               &Isd::GetGEOLOGeographicExtent,               &Image::GetGEOLOGeographicExtent),
        Row("HasCSCRNGeographicExtent",               &Isd::HasCSCRNGeographicExtent,               &Image::HasCSCRNGeographicExtent),
        Row("GetCSCRNGeographicExtent",               &Isd::GetCSCRNGeographicExtent,               &Image::GetCSCRNGeographicExtent),
        Row("GetMostPreciseGeographicExtent",         &Isd::GetMostPreciseGeographicExtent,         &Image::GetMostPreciseGeographicExtent),
        Row("GetApproxGeographicCenterOfExtent",      &Isd::GetApproxGeographicCenterOfExtent,      &Image::GetApproxGeographicCenterOfExtent),
        Row("GetApproxGeographicExtentBoundingBox",   &Isd::GetApproxGeographicExtentBoundingBox,   &Image::GetApproxGeographicExtentBoundingBox),
        Row("GetSensorModelComputedExtentCoord",      &Isd::GetSensorModelComputedExtentCoord,      &Image::GetSensorModelComputedExtentCoord),
        Row("IsImageChip",                            &Isd::IsImageChip,                            &Image::IsImageChip),
        Row("GetICHIPTRE",                            &Isd::GetICHIPTRE,                            &Image::GetICHIPTRE),
        Row("GetRPC00Coefficients",                   &Isd::GetRPC00Coefficients,                   &Image::GetRPC00Coefficients),
        Row("GetRPC00Offsets",                        &Isd::GetRPC00Offsets,                        &Image::GetRPC00Offsets),
        Row("GetRPC00Scales",                         &Isd::GetRPC00Scales,                         &Image::GetRPC00Scales),
        Row("GetRPC00Errors",                         &Isd::GetRPC00Errors,                         &Image::GetRPC00Errors),
        RowBy<>("GetImageSegmentSecurityClassification",
            [](const Isd& aIsd, std::size_t i) { return aIsd.GetImageSegmentSecurityClassification(i); },
            [](const Image& aImage) { return aImage.GetImageSegmentSecurityClassification(); }),
        RowBy<>("GetImageSegmentField",
            [](const Isd& aIsd, std::size_t i) { return aIsd.GetImageSegmentField("IID1", i); },
            [](const Image& aImage) { return aImage.GetImageSegmentField("IID1"); }),
        RowBy<double&>("GetImageSegmentFieldAsDouble",
            [](const Isd& aIsd, std::size_t i, double& aValue) { return aIsd.GetImageSegmentFieldAsDouble("NROWS", aValue, i); },
            [](const Image& aImage, double& aValue) { return aImage.GetFieldAsDouble("NROWS", aValue); }),
        RowBy<double&>("GetImageSegmentTREFieldAsDouble",
            [](const Isd& aIsd, std::size_t i, double& aValue) { return aIsd.GetImageSegmentTREFieldAsDouble("RPC00B", "ERR_BIAS", aValue, i); },
            [](const Image& aImage, double& aValue) { return aImage.GetFieldAsDouble("ERR_BIAS", aValue, "RPC00B"); }),
        RowBy<char&>("GetImageFieldICORDS",
            [](const Isd& aIsd, std::size_t i, char& aIcords) { return aIsd.GetImageFieldICORDS(aIcords, i); },
            [](const Image& aImage, char& aIcords) { aIcords = aImage.GetFieldICORDS(); return aImage.IsFieldICORDSAvailable(); }),
        RowBy<char&>("GetRPC00Availability",
            [](const Isd& aIsd, std::size_t i, char& aCode) { return aIsd.GetRPC00Availability(aCode, i); },
            [](const Image& aImage, char& aCode) { aCode = aImage.GetRPC00Availability(); return aCode != 'N'; }),
        RowBy<unsigned long&>("GetImageSegmentNumOfBands",
            [](const Isd& aIsd, std::size_t i, unsigned long& aBands) { return aIsd.GetImageSegmentNumOfBands(aBands, i); },
            [](const Image& aImage, unsigned long& aBands) { aBands = aImage.GetNumOfImageBands(); return true; }),
        RowBy<>("GetImagePixelReader",
            [](const Isd& aIsd, std::size_t i) { return aIsd.GetImagePixelReader(i); },
            [](const Image& aImage) { return static_cast<const NITFImagePixelReader*>(&aImage); }),
        RowBy<>("GetImageExtentInformation",
            [](const Isd& aIsd, std::size_t i) { return aIsd.GetImageExtentInformation(i); },
            [](const Image& aImage) { return &aImage.GetImageExtentInformation(); }),
        RowBy<long&, long&, long&, long&>("GetImageSegmentCCSInformation",
            [](const Isd& aIsd, std::size_t i, long& aRow, long& aColumn, long& aCcsRow, long& aCcsColumn) {
                Isd::CCSInformation place;
                const bool answer = aIsd.GetImageSegmentCCSInformation(place, i);
                std::tie(aRow, aColumn, aCcsRow, aCcsColumn) = std::tie(place.row, place.column, place.ccsRow, place.ccsColumn);
                return answer;
            },
            [](const Image& aImage, long& aRow, long& aColumn, long& aCcsRow, long& aCcsColumn) {
                return aImage.GetCommonCoordinateSys(aRow, aColumn, aCcsRow, aCcsColumn);
            }),
        RowBy<double&>("GetImageSegmentAverageHeight",
            [](const Isd& aIsd, std::size_t i, double& aHeight) { return aIsd.GetImageSegmentAverageHeight(aHeight, static_cast<long>(i)); },
            [](const Image& aImage, double& aHeight) { return aImage.GetImageSegmentAverageHeight(aHeight); }),
        RowBy<>("IsImageSegmentCoordGeographic",
            [](const Isd& aIsd, std::size_t i) { return aIsd.IsImageSegmentCoordGeographic(static_cast<unsigned int>(i)); },
            [](const Image& aImage) { return aImage.IsGeographicCoordinate(); }),
        RowBy<bool&, const double*&, const double*&>("GetImageChipTransformCoeffs",
            [](const Isd& aIsd, std::size_t i, bool& aIsChip, const double*& aToFull, const double*& aToChip) {
                return aIsd.GetImageChipTransformCoeffs(aIsChip, aToFull, aToChip, static_cast<int>(i));
            },
            [](const Image& aImage, bool& aIsChip, const double*& aToFull, const double*& aToChip) {
                return aImage.GetImageChipTransformCoeffs(aIsChip, aToFull, aToChip);
            }),
        RowBy<>("GetUniqueImageSegmentIdentifier",
            [](const Isd& aIsd, std::size_t i) { return aIsd.GetUniqueImageSegmentIdentifier(i); },
            [](const Image& aImage) { static std::string name; name = "NITF_IM:" + std::to_string(aImage.GetImageSegmentNumber()) + ":memory"; return name.c_str(); }),
        RowBy<std::size_t&>("GetRPCFields",
            [](const Isd& aIsd, std::size_t i, std::size_t& aCount) {
                const char** names = nullptr;
                const char** values = nullptr;
                const bool answer = aIsd.GetRPCFields(names, values, aCount, i);
                Image::DeleteRPCFields(names, values, aCount);
                return answer;
            },
            [](const Image&, std::size_t& aCount) { aCount = 93; return true; }),
        RowBy<std::size_t&>("GetAllImageSegmentTREs",
            [](const Isd& aIsd, std::size_t i, std::size_t& aCount) {
                const TRE** tres = nullptr;
                const bool answer = aIsd.GetAllImageSegmentTREs(tres, aCount, true, i);
                NITFStdDataSegment::DeleteTREPointerArray(tres, aCount, false);
                return answer;
            },
            [](const Image& aImage, std::size_t& aCount) { aCount = aImage.GetTREStore().Size(); return true; }),
        RowBy<std::size_t&>("GetSensorModelsOfImageSegment",
            [](const Isd& aIsd, std::size_t i, std::size_t& aCount) {
                const char** names = nullptr;
                const char** versions = nullptr;
                return aIsd.GetSensorModelsOfImageSegment(names, versions, aCount, i);
            },
            [](const Image&, std::size_t&) { return true; }),
    };
    return rows;
}
// clang-format on

/// A chip that begins 100 rows and 200 columns into its image.
std::string Chip()
{
    const auto grid = [](unsigned aRow, unsigned aColumn) {
        std::string points;
        for (const auto& [row, column] : {std::pair{0U, 0U}, std::pair{0U, 2U}, std::pair{1U, 0U}, std::pair{1U, 2U}}) {
            points += Padded(aRow + row, 8) + ".500" + Padded(aColumn + column, 8) + ".500";
        }
        return points;
    };
    return Tre("ICHIPB", "000001.000000000" + grid(0, 0) + grid(100, 200) + "0000900000012000");
}

/// Two images; the second has an answer to everything.
NitfBuilder File()
{
    NitfBuilder builder;
    builder.AddImage();
    HeaderFields& image = builder.AddImage(2, 3).NoBands();
    image.Set("IID1", "ID").Set("ICAT", "CLOUD").Set("IC", "NM").Set("NBPP", 16).Set("ABPP", 16).Set("PVTYPE", "SI");
    image.Location("G", "453000N0071500E453000N0081500E444500N0081500E444500N0071500E");
    image.Band("LU", {"\x00\x10"s, "\x20\x30"s, "\x40\x50"s});
    for (int band = 1; band != 12; ++band) {
        image.Band("M");
    }
    image.Area("IXSHD",
               Tre("BLOCKA", "010000000002" + std::string(22, ' ') +
                                 "+40.500000-100.250000+40.000000-100.250000+40.000000-101.500000+40.500000-101.500000"
                                 "010.0") +
                   Tre("GEOLOB", "000036000000018000+020.00000000  +50.000000000  ") +
                   Tre("CSCRNA",
                       "N+10.00000+020.00000+00100.0+10.00000+021.00000+00200.0"
                       "+09.00000+021.00000+00300.0+09.00000+020.00000+00400.0") +
                   Tests::Rpc("RPC00B") + Chip());
    builder.LastData() = "\x00\x00\x00\x10\x00\x04\x00\x00\x00\x10\xFF\xFE\x00\x00\x00\x00"s + std::string(144, 'x');
    return builder;
}

TEST(ImageForwardersTest, AgreeWithTheSubheaderAndRefuseANumberBeyond)
{
    const OpenedIsd isd = OpenedIsd::OfBytes(File().Bytes());
    const std::array<double, 4> given{1, 2, 3, 4};
    ASSERT_TRUE(isd->SetSensorModelComputedExtentCoord(given.data(), given.data(), given.data(), "M", "S", GOOD));
    const Image& image = *isd->GetImageSubheader(GOOD);
    for (const Forwarder& row : ImageForwarders()) {
        SCOPED_TRACE(row.name);
        const std::string answer = row.ask(*isd, GOOD);
        EXPECT_EQ(isd->GetErrorMessage(), nullptr) << isd->GetErrorMessage();
        EXPECT_EQ(answer, row.own(image));
        EXPECT_NE(answer, row.untouched) << "the sample says nothing of it";
        EXPECT_EQ(row.ask(*isd, BEYOND), row.untouched);
        ASSERT_NE(isd->GetErrorMessage(), nullptr);
        EXPECT_THAT(isd->GetErrorMessage(), HasSubstr("\"ImageSegment 2\""));
    }
    EXPECT_FALSE(isd->SetSensorModelComputedExtentCoord(given.data(), given.data(), given.data(), "M", "S", BEYOND));
    EXPECT_FALSE(isd->ClearSensorModelComputedExtentCoord(BEYOND));
    ASSERT_TRUE(isd->ClearSensorModelComputedExtentCoord(GOOD));
    EXPECT_FALSE(image.SensorModelComputedExtentCoordSet());
    EXPECT_TRUE(isd->IsUnityTransform(0));
    EXPECT_FALSE(isd->IsUnityTransform(GOOD));
    EXPECT_EQ(isd->GetErrorMessage(), nullptr);
    EXPECT_FALSE(isd->IsUnityTransform(-1));
    EXPECT_THAT(isd->GetErrorMessage(), HasSubstr("\"ImageSegment -1\""));
}

TEST(ImageForwardersTest, NameTheFieldTreOrBandThatIsNotThere)
{
    const OpenedIsd isd = OpenedIsd::OfBytes(File().Bytes());
    double value = 7;
    std::vector<NITFImgBandInfo::WideTable> tables;
    NITF_2_1_ISD form;
    const std::vector<std::pair<const char*, std::function<bool()>>> refused = {
        {"\"NO_SUCH\"", [&] { return isd->GetImageSegmentField("NO_SUCH", GOOD) != nullptr; }},
        {"\"NO_SUCH\"", [&] { return isd->GetImageSegmentFieldAsDouble("NO_SUCH", value, GOOD); }},
        {"\"NO_SUCH\"", [&] { return isd->GetImageSegmentTREFieldAsDouble("RPC00B", "NO_SUCH", value, GOOD); }},
        {"\"NOTRE\"", [&] { return isd->GetImageSegmentTREFieldAsDouble("NOTRE", "ERR_BIAS", value, GOOD); }},
        {"\"NOTRE\"", [&] { return isd->GetNITFFileHeaderTREFieldAsDouble("NOTRE", "F", value); }},
        {"band 12", [&] { return isd->GetImageBandInfo(12, GOOD) != nullptr; }},
        {"band -1", [&] { return isd->HasLUTsForImageBand(-1, GOOD); }},
        {"band 99", [&] { return isd->GetLUTsOfImageBand(99, tables, GOOD); }},
        {"\"NITF_IM:2:memory\"", [&] { return isd->GetImageSegmentIndex("NITF_IM:2:memory") != -1; }},
        {"\"\"", [&] { return isd->GetImageSegmentIndex(nullptr) != -1; }},
        {"\"NoModel\"", [&] { return isd->GetTSMSensorModel("NoModel", GOOD) != nullptr; }},
        {"\"ImageSegment 2\"", [&] { return isd->GetTSMSensorModel("NoModel", BEYOND) != nullptr; }},
        {"\"ImageSegment 2\"", [&] { return isd->SetTSMISD(2, &form); }},
        {"\"ImageSegment 2\"", [&] { return isd->PopulateTSMISDImageSegments(&form, 2); }},
        {"\"ImageSegment -1\"", [&] { return isd->PopulateCSMImageObject(*std::make_unique<::image>(), -1); }},
        {"\"no.key\"", [&] { return isd->GetOrmoMetadata("no.key", GOOD) != nullptr; }},
        {"\"ImageSegment 2\"", [&] { return isd->GetOrmoMetadata("image.category", BEYOND) != nullptr; }},
    };
    for (const auto& [text, ask] : refused) {
        EXPECT_FALSE(ask()) << text;
        ASSERT_NE(isd->GetErrorMessage(), nullptr) << text;
        EXPECT_THAT(isd->GetErrorMessage(), HasSubstr(text));
    }
    EXPECT_EQ(value, 7);
    EXPECT_STREQ(isd->GetOrmoMetadata("image.category", GOOD), "CLOUD");
    EXPECT_EQ(isd->GetErrorMessage(), nullptr);
    EXPECT_EQ(isd->GetImageSegmentIndex(" NITF_IM:1:memory "), 1);
    EXPECT_EQ(isd->GetErrorMessage(), nullptr);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
