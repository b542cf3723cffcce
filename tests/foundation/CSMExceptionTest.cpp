#include "foundation/CSMCnst.h"
#include "foundation/CSMException.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/PropertyKey.h"

#include <exception>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

static_assert(!std::is_base_of_v<std::exception, CSMException>);
static_assert(!std::is_default_constructible_v<CSMException>);
static_assert(!std::is_constructible_v<CSMException, const char*>);
static_assert(!std::is_default_constructible_v<CSMMsg> && !std::is_default_constructible_v<Util::CSMCnst>);

TEST(CSMExceptionTest, SingleTextIsTheSource)
{
    const InitializationException exception("TreBLOCKA::Init");
    EXPECT_STREQ(exception.GetSource(), "TreBLOCKA::Init");
    EXPECT_STREQ(exception.GetAdditionalMessage(), "");
    EXPECT_STREQ(exception.GetAllMesssages(), CSMMsg::Error::INIT_ERROR);
}

TEST(CSMExceptionTest, AllMessagesAreComposedOnceOnTwoLines)
{
    const UnsupportedTREException exception("ERROR: Tag XYZ.", "TREFactory::Create");
    const char* const all = exception.GetAllMesssages();
    EXPECT_EQ(all, std::string(CSMMsg::Error::UNSUPPORTED_TRE_EXCEPTION) + "\nERROR: Tag XYZ.");
    EXPECT_EQ(exception.GetAllMesssages(), all);
}

TEST(CSMExceptionTest, EmptyTextsCountAsNotGiven)
{
    for (const FileAccessException& exception : {FileAccessException(), FileAccessException(""),
                                                 FileAccessException("", ""), FileAccessException(nullptr, nullptr)}) {
        EXPECT_STREQ(exception.GetSource(), "unknown");
        EXPECT_STREQ(exception.GetAdditionalMessage(), "");
        EXPECT_STREQ(exception.GetAllMesssages(), CSMMsg::Error::FILE_ACCESS_EXCEPTION);
    }
}

TEST(CSMExceptionTest, CopiesOwnTheirTextsAndTheComposedOne)
{
    ObjectConstructionException copy("old", "old");
    {
        const ObjectConstructionException original("what", "where");
        const char* const all = original.GetAllMesssages();
        copy = original;
        EXPECT_NE(copy.GetAllMesssages(), all);
        EXPECT_NE(copy.GetSource(), original.GetSource());
    }
    const ObjectConstructionException& same = copy;
    copy = same;
    EXPECT_STREQ(copy.GetAdditionalMessage(), "what");
    EXPECT_STREQ(copy.GetSource(), "where");
    EXPECT_EQ(copy.GetAllMesssages(), std::string(CSMMsg::Error::CSM_OBJECT_CONSTRUCTION_EXCEPTION) + "\nwhat");
}

TEST(CSMExceptionTest, CopyAsTheRootKeepsTheComposedTextAndLosesTheClass)
{
    const InitializationException exception("what", "where");
    const CSMException before(exception);
    EXPECT_STREQ(before.GetErrorMessage(), "Exception caught!");
    EXPECT_STREQ(before.GetAllMesssages(), "Exception caught!\nwhat");
    const std::string all = exception.GetAllMesssages();
    const CSMException after(exception);
    EXPECT_EQ(after.GetAllMesssages(), all);
}

/// Throws one class by value and catches it as the root; the class must stay what it is.
template<typename Exception>
void ExpectText(const char* aText)
{
    static_assert(std::is_base_of_v<CSMException, Exception>);
    static_assert(std::is_nothrow_copy_constructible_v<Exception>);
    try {
        throw Exception("Class::Operation");
    } catch (const CSMException& exception) {
        EXPECT_STREQ(exception.GetErrorMessage(), aText);
        EXPECT_NE(dynamic_cast<const Exception*>(&exception), nullptr);
    }
}

TEST(CSMExceptionTest, EveryClassHasItsText)
{
    const char* const notSupported =
        "ERROR: Input image support data object is not supported by the requested sensor model.";
    ExpectText<DataSourceAccessException>("ERROR: Error encountered while accessing the data source.");
    ExpectText<FileAccessException>(
        "ERROR: Input file doesn't exist, the system is unable/doesn't have sufficient privilege to access the file, "
        "or the file contains errors.");
    ExpectText<ImageSupportDataConstructionException>(
        "ERROR: Failed to create required Ormo CSM image support data with the given input.");
    ExpectText<InitializationException>(
        "ERROR: Errors encountered while initializing an object or a system component.");
    ExpectText<InvalidImageSupportDataException>(
        "ERROR: Input image support data object contains invalid information.");
    ExpectText<InvalidSensorModelStateException>(
        "ERROR: Input sensor model state string is empty or invalid for the requested sensor model.");
    ExpectText<ObjectConstructionException>("ERROR: Ormo CSM class object construction exception.");
    ExpectText<RequestedOperationFailedException>(notSupported);
    ExpectText<UnsupportedDESDATAException>(
        "ERROR: Requested specific DesDESDATA class not currently supported by the Ormo CSM system.");
    ExpectText<UnsupportedDESSHFException>(
        "ERROR: Requested specific DesDESSHF class not currently supported by the Ormo CSM system.");
    ExpectText<UnsupportedImageSupportDataException>(notSupported);
    ExpectText<UnsupportedRasterFormatException>("ERROR: Input raster format is not supported by the CSM system.");
    ExpectText<UnsupportedRasterFormatVersionException>(
        "ERROR: The specific version of the input raster format is not supported by the CSM system.");
    ExpectText<UnsupportedReferenceGeoidException>("ERROR: Unsupported reference geoid.");
    ExpectText<UnsupportedTerrainModelException>("ERROR: Unsupported input terrain model.");
    ExpectText<UnsupportedTREException>(
        "ERROR: Requested specific TRE not currently supported by the Ormo CSM system.");
    ExpectText<UnsupportedTSMISDTypeException>("ERROR: Requested TSM ISD type is not sypported by the system.");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
