#include "isd/ImageSupportData.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilFile.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/LastMessages.h"
#include "foundation/detail/QueryMessages.h"

#include <algorithm>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::TextOrNull;
using Util::CSMCnst;

namespace {

std::string Trimmed(const char* aText)
{
    return Util::CSMUtilString::Trim(aText == nullptr ? "" : aText);
}

void CopyIfGiven(const std::string& aFrom, std::string& aTo)
{
    if (!aFrom.empty()) {
        aTo = aFrom;
    }
}

constexpr const char* NOT_SUPPORTED = "Function not supported.";

}  // namespace

/// What each thread's last query said.
struct ORMO_CSM_LOCAL ImageSupportData::Queries : Detail::QueryMessages
{
};

ImageSupportData::ImageSupportData() : m_queries(std::make_unique<Queries>()) {}

ImageSupportData::ImageSupportData(const char* aFileName, const char* aImageFormat, const char* aFormatVersion,
                                   bool aIsOpen)
    : m_fileName(Trimmed(aFileName)),
      m_imageFormat(Trimmed(aImageFormat)),
      m_formatVersion(Trimmed(aFormatVersion)),
      m_queries(std::make_unique<Queries>())
{
    constexpr const char* SOURCE = "ImageSupportData::ImageSupportData";
    if (m_imageFormat.empty()) {
        throw InitializationException("ERROR: Input image format string cannot be NULL or an empty string.", SOURCE);
    }
    if (!aIsOpen && !Util::CSMUtilFile::FileExists(m_fileName)) {
        // The text names NITF whatever the format is.
        throw InitializationException("ERROR: Invalid/nonexistence of input NITF file.", SOURCE);
    }
}

ImageSupportData::ImageSupportData(const ImageSupportData& aOther) : m_queries(std::make_unique<Queries>())
{
    if (!ImageSupportData::CloneObj(aOther)) {
        throw RequestedOperationFailedException(
            "ERROR: Failed to initialize all the member variables properly using the input ImageSupportData object.",
            "ImageSupportData::ImageSupportData");
    }
}

ImageSupportData::~ImageSupportData() = default;

bool ImageSupportData::GetAllTsmISDs(const tsm_ISD**& aTsmISDs, std::size_t& aCount) const
{
    aTsmISDs = nullptr;
    aCount = 0;
    return false;
}

bool ImageSupportData::GetFieldAsBool(const char* /*aSegment*/, const char* /*aField*/, bool& /*aValue*/)
{
    return RefuseQuery(NOT_SUPPORTED);
}

bool ImageSupportData::GetFieldAsDouble(const char* /*aSegment*/, const char* /*aField*/, double& /*aValue*/)
{
    return RefuseQuery(NOT_SUPPORTED);
}

bool ImageSupportData::GetFieldAsLong(const char* /*aSegment*/, const char* /*aField*/, long& /*aValue*/)
{
    return RefuseQuery(NOT_SUPPORTED);
}

bool ImageSupportData::GetFieldAsString(const char* /*aSegment*/, const char* /*aField*/, const char*& /*aValue*/,
                                        std::size_t& /*aLength*/)
{
    return RefuseQuery(NOT_SUPPORTED);
}

bool ImageSupportData::GetFieldAsUnsignedLong(const char* /*aSegment*/, const char* /*aField*/,
                                              unsigned long& /*aValue*/)
{
    return RefuseQuery(NOT_SUPPORTED);
}

std::FILE* ImageSupportData::GetFileHandle() const
{
    return nullptr;
}

const char* ImageSupportData::GetFileTypeAndVersion() const
{
    return "UNKNOWN";
}

const char* ImageSupportData::GetHighestSecurityClassificationMarking() const
{
    return m_highestMarking.empty() ? CSMCnst::CLASS_UNKNOWN : m_highestMarking.c_str();
}

bool ImageSupportData::GetImageChipTransformCoeffs(bool& /*aIsChip*/, const double*& /*aChipToFull*/,
                                                   const double*& /*aFullToChip*/, int /*aSegment*/) const
{
    return false;
}

bool ImageSupportData::GetImageSegmentAverageHeight(double& aHeight, long aSegment) const
{
    if (aSegment >= 0) {
        aHeight = 0.0;
    }
    return false;
}

long ImageSupportData::GetImageSegmentIndex(const char* /*aIdentifier*/) const
{
    return NO_IMAGE_SEGMENT;
}

const char* ImageSupportData::GetImageSupportDataSummary()
{
    return nullptr;
}

SupportedISD::Type ImageSupportData::GetIsdRasterFormat()
{
    return SupportedISD::ISD_TYPE_UNKNOWN;
}

bool ImageSupportData::GetMensurationCapabilities(bool& aFirst, bool& aSecond, bool& aThird, bool& aFourth,
                                                  bool& aFifth, const char* /*aSensorModelName*/,
                                                  const char* /*aSegmentIdentifier*/)
{
    aFirst = aSecond = aThird = aFourth = aFifth = false;
    return false;
}

bool ImageSupportData::GetMensurationCapabilities(bool& aFirst, bool& aSecond, bool& aThird, bool& aFourth,
                                                  bool& aFifth, const char* /*aSensorModelName*/, int /*aSegment*/)
{
    aFirst = aSecond = aThird = aFourth = aFifth = false;
    return false;
}

long ImageSupportData::GetNumOfImageSegments() const
{
    return 0;
}

bool ImageSupportData::GetSensorModelsOfImageSegment(const char**& aNames, const char**& aVersions, std::size_t& aCount,
                                                     std::size_t /*aSegment*/) const
{
    aNames = nullptr;
    aVersions = nullptr;
    aCount = 0;
    return true;
}

TSMSensorModel* ImageSupportData::GetTSMSensorModel(const char* /*aSensorModelName*/, std::size_t /*aSegment*/) const
{
    return nullptr;
}

const char* ImageSupportData::GetUniqueImageSegmentIdentifier(std::size_t /*aSegment*/) const
{
    return nullptr;
}

bool ImageSupportData::IsImageSegmentCoordGeographic(unsigned int /*aSegment*/) const
{
    return false;
}

bool ImageSupportData::IsInitUsingTsmNITFISD() const
{
    return false;
}

bool ImageSupportData::IsUnityTransform(int /*aSegment*/) const
{
    return true;
}

bool ImageSupportData::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    aErrors = m_validationErrorCount = 0;
    aWarnings = m_validationWarningCount = 0;
    m_validationSummaryReport.clear();
    m_rigorouslyValidated = true;
    return true;
}

const char* ImageSupportData::Serialize()
{
    return nullptr;
}

const char* ImageSupportData::SerializeDataSegment(const char* aText)
{
    return aText;
}

bool ImageSupportData::SetCurrentImageSegment(long /*aSegment*/)
{
    return false;
}

const char* ImageSupportData::GetErrorMessage() const noexcept
{
    const Queries::Texts* const texts = m_queries->Find();
    return TextOrNull(texts == nullptr ? m_errorMessage : texts->error);
}

const char* ImageSupportData::GetWarningMessage() const noexcept
{
    const Queries::Texts* const texts = m_queries->Find();
    return TextOrNull(texts == nullptr ? m_warningMessage : texts->warning);
}

const char* ImageSupportData::GetValidationSummaryReport() const noexcept
{
    return m_validationSummaryReport.c_str();
}

CSMCnst::ClassType ImageSupportData::GetClassificationLevel() const noexcept
{
    return m_classificationLevel;
}

const std::vector<const char*>& ImageSupportData::GetAllSecurityClassificationMarkings()
{
    if (!m_markingsBuilt) {
        InitSecurityClassificationMarkings();
    }
    return m_markings;
}

const char** ImageSupportData::GetAllSecurityClassificationMarkings(std::size_t& aCount)
{
    aCount = GetAllSecurityClassificationMarkings().size();
    return aCount == 0 ? nullptr : m_markings.data();
}

const char* ImageSupportData::GetFileName() const noexcept
{
    return TextOrNull(m_fileName);
}

const char* ImageSupportData::GetImageFormat() const noexcept
{
    return TextOrNull(m_imageFormat);
}

const char* ImageSupportData::GetFormatVersion() const noexcept
{
    return TextOrNull(m_formatVersion);
}

long ImageSupportData::GetCurrentImageSegment() const noexcept
{
    return m_currentImageSegment;
}

ImageSupportData& ImageSupportData::operator=(const ImageSupportData& aOther)
{
    Assign(aOther);
    return *this;
}

bool ImageSupportData::operator==(const ImageSupportData& aOther) const
{
    if (this == &aOther) {
        return true;
    }
    return m_classificationLevel == aOther.m_classificationLevel &&
           m_currentImageSegment == aOther.m_currentImageSegment && !m_fileName.empty() &&
           m_fileName == aOther.m_fileName && !m_imageFormat.empty() && m_imageFormat == aOther.m_imageFormat &&
           m_formatVersion == aOther.m_formatVersion && m_highestMarking == aOther.m_highestMarking;
}

bool ImageSupportData::operator!=(const ImageSupportData& aOther) const
{
    return !(*this == aOther);
}

void ImageSupportData::Assign(const ImageSupportData& aOther)
{
    if (this == &aOther) {
        return;
    }
    try {
        CleanupImageSupportData();
        m_classificationLevel = aOther.m_classificationLevel;
        m_currentImageSegment = aOther.m_currentImageSegment;
        m_validationErrorCount = aOther.m_validationErrorCount;
        m_validationWarningCount = aOther.m_validationWarningCount;
        m_rigorouslyValidated = aOther.m_rigorouslyValidated;
        CopyIfGiven(aOther.m_highestMarking, m_highestMarking);
        CopyIfGiven(aOther.m_errorMessage, m_errorMessage);
        CopyIfGiven(aOther.m_warningMessage, m_warningMessage);
        CopyIfGiven(aOther.m_validationSummaryReport, m_validationSummaryReport);
        CopyIfGiven(aOther.m_fileName, m_fileName);
        CopyIfGiven(aOther.m_imageFormat, m_imageFormat);
        CopyIfGiven(aOther.m_formatVersion, m_formatVersion);
        CopyIfGiven(aOther.m_keptText, m_keptText);
        ReleaseMarkings();
        m_queries->Forget();
    } catch (...) {
        // Only memory can be short here; a half copied object would pass for the other's file.
        CleanupImageSupportData();
        throw RequestedOperationFailedException(
            "ERROR: System failed to assign all the member variables of one ImageSupportData to another.",
            "ImageSupportData::Assign");
    }
}

bool ImageSupportData::CloneObj(const ImageSupportData& aOther)
{
    try {
        ImageSupportData::Assign(aOther);
        return true;
    } catch (const RequestedOperationFailedException&) {
        return false;
    }
}

void ImageSupportData::InitSecurityClassificationMarkings()
{
    if (m_markingsBuilt) {
        return;
    }
    ReleaseMarkings();
    std::vector<std::string> found;
    CollectSecurityClassificationMarkings(found);
    std::vector<std::string> texts;
    for (std::string& marking : found) {
        if (!marking.empty() && std::find(texts.begin(), texts.end(), marking) == texts.end()) {
            texts.push_back(std::move(marking));
        }
    }
    std::vector<const char*> markings(texts.size());
    std::transform(texts.begin(), texts.end(), markings.begin(),
                   [](const std::string& aText) { return aText.c_str(); });
    // Moving a vector leaves its elements where they are, and the pointers with them.
    m_markingTexts = std::move(texts);
    m_markings = std::move(markings);
    m_markingsBuilt = true;
}

void ImageSupportData::SetHighestSecurityClassificationMarking() {}

void ImageSupportData::Swap(ImageSupportData& aFirst, ImageSupportData& aSecond)
{
    std::swap(aFirst.m_rigorouslyValidated, aSecond.m_rigorouslyValidated);
    std::swap(aFirst.m_fileName, aSecond.m_fileName);
    std::swap(aFirst.m_imageFormat, aSecond.m_imageFormat);
    std::swap(aFirst.m_formatVersion, aSecond.m_formatVersion);
    std::swap(aFirst.m_keptText, aSecond.m_keptText);
    std::swap(aFirst.m_classificationLevel, aSecond.m_classificationLevel);
    std::swap(aFirst.m_currentImageSegment, aSecond.m_currentImageSegment);
    std::swap(aFirst.m_highestMarking, aSecond.m_highestMarking);
    std::swap(aFirst.m_errorMessage, aSecond.m_errorMessage);
    std::swap(aFirst.m_warningMessage, aSecond.m_warningMessage);
    std::swap(aFirst.m_validationSummaryReport, aSecond.m_validationSummaryReport);
    std::swap(aFirst.m_validationErrorCount, aSecond.m_validationErrorCount);
    std::swap(aFirst.m_validationWarningCount, aSecond.m_validationWarningCount);
    for (ImageSupportData* const one : {&aFirst, &aSecond}) {
        one->ReleaseMarkings();
        one->m_queries->Forget();
    }
}

void ImageSupportData::ClearMessages() const
{
    m_queries->Begin();
}

void ImageSupportData::SetMessages(const char* aError, const char* aWarning) const
{
    Queries::Texts& texts = m_queries->Current();
    texts.error = aError == nullptr ? "" : aError;
    texts.warning = aWarning == nullptr ? "" : aWarning;
}

bool ImageSupportData::RefuseQuery(const std::string& aError) const
{
    SetMessages(aError.c_str(), nullptr);
    return false;
}

void ImageSupportData::CleanupImageSupportData() noexcept
{
    m_classificationLevel = CSMCnst::CLASS_TYPE_UNCLASSIFIED;
    m_currentImageSegment = NO_IMAGE_SEGMENT;
    m_highestMarking.clear();
    m_validationErrorCount = 0;
    m_validationWarningCount = 0;
    m_markingsBuilt = false;
    m_fileName.clear();
    m_imageFormat.clear();
    m_formatVersion.clear();
    m_keptText.clear();
}

void ImageSupportData::ReleaseMarkings() noexcept
{
    m_markingsBuilt = false;
    m_markings.clear();
    m_markingTexts.clear();
}

}  // namespace ORMO::SensorModel::CSM
