#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportData.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "isd/ImageSupportDataOSDEFactory.h"
#include "isd/WrapperCSMISD.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ORMO::SensorModel::CSM {
namespace {

constexpr const char* INVALID = "ERROR: Invalid input argument(s).";

std::string Str(const char* aText)
{
    return aText == nullptr ? "(null)" : aText;
}

/// How a call ends: the exception with its text and source, or that there was none.
template<typename Call>
std::string Outcome(Call aCall)
{
    try {
        aCall();
        return "returned";
    } catch (const std::invalid_argument& exception) {
        return std::string("invalid_argument ") + exception.what();
    } catch (const ImageSupportDataConstructionException& exception) {
        return std::string("construction ") + exception.GetAdditionalMessage() + " @ " + exception.GetSource();
    } catch (const UnsupportedImageSupportDataException& exception) {
        return std::string("unsupported ") + exception.GetAdditionalMessage() + " @ " + exception.GetSource();
    }
}

std::string CreateOutcome(const std::string& aPath, ImageSupportData** aOut)
{
    return Outcome([&] { ImageSupportDataFactory::Create(aPath.c_str(), aOut, true, false); });
}

std::string ConstructionFailure(const std::string& aText)
{
    return "construction " + aText + " @ ImageSupportDataFactory::CreateISD";
}

class ImageSupportDataFactoryTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_directory =
            testing::TempDir() + "ormo_isd_factory_" + testing::UnitTest::GetInstance()->current_test_info()->name();
        std::filesystem::create_directories(m_directory);
    }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    std::string File(const std::string& aName, const std::string& aContent) const
    {
        const std::string path = m_directory + "/" + aName;
        std::ofstream(path) << aContent;
        return path;
    }

    std::string m_directory;
    // A call that forgets its output is noticed by this address.
    ImageSupportData* const m_untouched = reinterpret_cast<ImageSupportData*>(this);
    ImageSupportData* m_isd = m_untouched;
};

TEST_F(ImageSupportDataFactoryTest, NullOutputIsAnInvalidArgument)
{
    const std::string expected = std::string("invalid_argument ") + INVALID;
    EXPECT_EQ(CreateOutcome(File("file", "NITF02.10"), nullptr), expected);
    EXPECT_EQ(Str(ImageSupportDataFactory::GetErrorMessage()), INVALID);
    EXPECT_EQ(ImageSupportDataFactory::GetWarningMessage(), nullptr);
    ImageSupportDataFactory::Destroy(nullptr);
    EXPECT_EQ(ImageSupportDataFactory::GetErrorMessage(), nullptr);

    const auto create = [](const char* aPath, ImageSupportData** aOut) {
        return Outcome(
            [&] { ImageSupportDataFactory::CreateISD(aPath, aOut, true, false, 21, SupportedISD::ISD_TYPE_NITF); });
    };
    EXPECT_EQ(create("file", nullptr), expected);
    EXPECT_EQ(create(" \t", &m_isd), expected);
    EXPECT_EQ(create(nullptr, &m_isd), expected);
    EXPECT_EQ(Str(ImageSupportDataFactory::GetErrorMessage()), INVALID);
}

TEST_F(ImageSupportDataFactoryTest, PathsThatAreNoImageFileAreInvalidArguments)
{
    const std::string pipe = m_directory + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string expected = std::string("invalid_argument ") + INVALID;
    for (const std::string& path : {File("empty", ""), File("short", "NITF02"), File("text", "Dear reader"), pipe,
                                    m_directory, m_directory + "/absent", std::string()}) {
        m_isd = m_untouched;
        EXPECT_EQ(CreateOutcome(path, &m_isd), expected) << path;
        EXPECT_EQ(m_isd, nullptr) << "what a host then releases is nothing";
        int version = 99;
        EXPECT_EQ(ImageSupportDataFactory::ISDType(path.c_str(), version, false), SupportedISD::ISD_TYPE_UNKNOWN);
        EXPECT_EQ(version, -1) << path;
        const char* format = "untouched";
        EXPECT_FALSE(ImageSupportDataFactory::IsSupportedISDFile(path.c_str(), format)) << path;
        EXPECT_EQ(format, nullptr) << path;
    }
}

TEST_F(ImageSupportDataFactoryTest, IdentificationAnswersReadableVersionsOnly)
{
    const std::pair<const char*, int> cases[] = {
        {"NITF02.10", 21}, {"NITF02.00", 20}, {"NSIF01.00", 10}, {"NITF01.10", -1}};
    for (const auto& [text, expected] : cases) {
        const std::string path = File("file", text);
        int version = 99;
        const SupportedISD::Type type = ImageSupportDataFactory::ISDType(path.c_str(), version, true);
        EXPECT_EQ(type, expected < 0 ? SupportedISD::ISD_TYPE_UNKNOWN : SupportedISD::ISD_TYPE_NITF) << text;
        EXPECT_EQ(version, expected) << text;
        const char* format = nullptr;
        EXPECT_EQ(ImageSupportDataFactory::IsSupportedISDFile(path.c_str(), format), expected > 0) << text;
        EXPECT_EQ(Str(format), expected > 0 ? "NITF" : "(null)") << text;
    }
}

TEST_F(ImageSupportDataFactoryTest, Nitf11IsRefusedByItsName)
{
    const std::string path = File("file", "NITF01.10 and more");
    EXPECT_EQ(CreateOutcome(path, &m_isd), ConstructionFailure("ERROR: NITF Version 1.1 is not supported."));
    EXPECT_EQ(Str(ImageSupportDataFactory::GetErrorMessage()), "ERROR: NITF Version 1.1 is not supported.");
    EXPECT_EQ(m_isd, nullptr);
}

TEST_F(ImageSupportDataFactoryTest, TypesThatCannotBeReadFailWithTheirReason)
{
    const std::string path = File("file", "Dear reader");
    const auto create = [&](int aVersion, SupportedISD::Type aType) {
        return Outcome([&] { ImageSupportDataFactory::CreateISD(path.c_str(), &m_isd, true, false, aVersion, aType); });
    };
    const std::string unsupported = ConstructionFailure("ERROR: Image format not supported by the Ormo CSM System.");
    EXPECT_EQ(create(1, SupportedISD::ISD_TYPE_TFRD), unsupported);
    EXPECT_EQ(create(-1, SupportedISD::ISD_TYPE_UNKNOWN), unsupported);
    EXPECT_EQ(create(-1, SupportedISD::ISD_TYPE_NITF), unsupported) << "the file is looked into and is none";
    EXPECT_EQ(create(11, SupportedISD::ISD_TYPE_OSDE),
              ConstructionFailure("ERROR: OSDE files cannot be read without a companion library."));
    EXPECT_EQ(m_isd, nullptr);
}

TEST_F(ImageSupportDataFactoryTest, FileThatIsMissingFailsConstruction)
{
    const std::string path = m_directory + "/absent";
    const std::string outcome = Outcome([&] {
        ImageSupportDataFactory::CreateISD(path.c_str(), &m_isd, true, false, 21, SupportedISD::ISD_TYPE_NITF);
    });
    EXPECT_EQ(outcome, ConstructionFailure("ERROR: Invalid/nonexistence of input NITF file."));
    EXPECT_EQ(m_isd, nullptr);
}

TEST_F(ImageSupportDataFactoryTest, NoWrapperIsTaken)
{
    class OtherWrapper : public WrapperCSMISD
    {
    public:
        OtherWrapper() = default;
    };
    const std::string expected =
        "unsupported ERROR: Input WrapperCSMISD object or the input WrapperCSMISD type is currently not supported by "
        "the ImageSupportData factory. @ ImageSupportDataFactory::Create";
    const OtherWrapper wrapper;
    for (const WrapperCSMISD* const isd :
         {static_cast<const WrapperCSMISD*>(nullptr), static_cast<const WrapperCSMISD*>(&wrapper)}) {
        EXPECT_EQ(Outcome([&] { ImageSupportDataFactory::Create(isd, &m_isd, false); }), expected);
        EXPECT_EQ(Outcome([&] { ImageSupportDataFactory::Create(isd, nullptr, false); }), expected);
    }
    ImageSupportDataNITF* nitf = nullptr;
    EXPECT_FALSE(ImageSupportDataNITFFactory::Create(&wrapper, &nitf, false, -1));
    EXPECT_NE(ImageSupportDataNITFFactory::GetErrorMessage(), nullptr);
}

TEST_F(ImageSupportDataFactoryTest, NitfFactoryReportsArgumentsByText)
{
    const auto create = [](const std::string& aPath, ImageSupportDataNITF** aOut, NITFCnst::Version aVersion) {
        const bool made = ImageSupportDataNITFFactory::Create(aPath.c_str(), aOut, false, false, -1, aVersion);
        return made ? "made" : Str(ImageSupportDataNITFFactory::GetErrorMessage());
    };
    ImageSupportDataNITF* nitf = nullptr;
    const std::string path = File("file", "Dear reader");
    EXPECT_EQ(create(path, nullptr, NITFCnst::NITF_VERSION_NUMBER_21),
              "ERROR: Invalid/NULL required input argument(s).");
    EXPECT_EQ(create(path, &nitf, NITFCnst::NITF_VERSION_NUMBER_11), "ERROR: NITF Version 1.1 is not supported.");
    EXPECT_EQ(create(path, &nitf, NITFCnst::NITF_VERSION_NUMBER_UNKNOWN),
              "ERROR: Unknown/invalid NITF file version or the input file is not a NITF-formatted image file.");
    EXPECT_EQ(create(File("old", "NITF01.10"), &nitf, static_cast<NITFCnst::Version>(77)),
              "ERROR: NITF Version 1.1 is not supported.");
    ImageSupportDataNITFFactory::Destroy(&nitf);
    EXPECT_EQ(ImageSupportDataNITFFactory::GetErrorMessage(), nullptr);
}

TEST_F(ImageSupportDataFactoryTest, TextsAreThoseOfTheOwnThread)
{
    EXPECT_EQ(CreateOutcome(File("old", "NITF01.10"), &m_isd),
              ConstructionFailure("ERROR: NITF Version 1.1 is not supported."));
    std::string before;
    std::string after;
    std::thread([&] {
        before = Str(ImageSupportDataFactory::GetErrorMessage());
        CreateOutcome("", nullptr);
        after = Str(ImageSupportDataFactory::GetErrorMessage());
    }).join();
    EXPECT_EQ(before, "(null)");
    EXPECT_EQ(after, INVALID);
    EXPECT_EQ(Str(ImageSupportDataFactory::GetErrorMessage()), "ERROR: NITF Version 1.1 is not supported.");
}

TEST(SupportedISDTest, NitfAndTfrdAreKnownByName)
{
    EXPECT_EQ(SupportedISD::GetSupportedISDType(" nitf "), SupportedISD::ISD_TYPE_NITF);
    EXPECT_EQ(SupportedISD::GetSupportedISDType("Tfrd"), SupportedISD::ISD_TYPE_TFRD);
    for (const char* const name : {" osde ", "OSDE", "NITF2", "NI TF", " ", ""}) {
        EXPECT_EQ(SupportedISD::GetSupportedISDType(name), SupportedISD::ISD_TYPE_UNKNOWN) << name;
    }
    EXPECT_EQ(SupportedISD::GetSupportedISDType(nullptr), SupportedISD::ISD_TYPE_UNKNOWN);
    for (const int type : {-1, 0, 1, 2, 3}) {
        EXPECT_EQ(SupportedISD::IsSupportedISDType(static_cast<SupportedISD::Type>(type)), type == 0);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
