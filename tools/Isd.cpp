#include "tools/Isd.h"

#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "tools/Files.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <vector>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

void IsdDestroyer::operator()(ImageSupportDataNITF* aIsd) const
{
    ImageSupportData* isd = aIsd;
    ImageSupportDataFactory::Destroy(&isd);
}

void PrintProblem(const std::string& aPath, const std::string& aText)
{
    Finding finding;
    finding.sentence = aPath + ": " + aText;
    Problems() << finding.Line() << '\n';
}

namespace {

std::vector<Finding> RefusalOf(const std::string& aText)
{
    std::vector<Finding> findings = ImageSupportDataFactory::GetFindings();
    if (findings.empty()) {
        findings.emplace_back().sentence = aText;
    }
    return findings;
}

}  // namespace

Isd OpenFile(const std::string& aPath, const OpenOptions& aOptions, std::vector<Finding>& aFindings)
{
    ImageSupportData* isd = nullptr;
    try {
        if (aOptions.salvage) {
            ImageSupportDataFactory::Salvage(aPath.c_str(), &isd);
        } else {
            ImageSupportDataFactory::Create(aPath.c_str(), &isd, !aOptions.imagesOnly, false);
        }
    } catch (const std::invalid_argument& exception) {
        aFindings = RefusalOf(exception.what());
        return nullptr;
    } catch (const CSMException& exception) {
        const std::string text = exception.GetAdditionalMessage();
        aFindings = RefusalOf(text.empty() ? exception.GetErrorMessage() : text);
        return nullptr;
    } catch (const std::bad_alloc&) {
        aFindings = {Finding{}};
        aFindings.front().sentence = "ERROR: System out of memory.";
        return nullptr;
    }
    auto* const nitf = dynamic_cast<ImageSupportDataNITF*>(isd);
    if (nitf == nullptr) {
        aFindings = {Finding{}};
        aFindings.front().sentence = "ERROR: The file was not opened as a NITF file.";
        ImageSupportDataFactory::Destroy(&isd);
    }
    return Isd(nitf);
}

Isd OpenFile(const std::string& aPath, const OpenOptions& aOptions)
{
    std::vector<Finding> findings;
    Isd isd = OpenFile(aPath, aOptions, findings);
    for (const Finding& finding : findings) {
        PrintProblem(aPath, finding.Line());
    }
    return isd;
}

const Finding* ErrorOf(const std::vector<Finding>& aFindings, NITFCnst::DataSegmentType aKind, std::size_t aIndex)
{
    const std::string name = NITFStdDataSegment::GetDataSegmentName(aKind);
    const bool isHeader = aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
    const auto error = std::find_if(aFindings.begin(), aFindings.end(), [&](const Finding& aFinding) {
        return aFinding.level != Finding::Level::Warning && aFinding.segment == name &&
               (isHeader || aFinding.index == static_cast<int>(aIndex));
    });
    return error == aFindings.end() ? nullptr : &*error;
}

int ExitCodeOf(const ImageSupportDataNITF& aIsd)
{
    const std::vector<Finding> findings = aIsd.GetFindings();
    const bool good = std::all_of(findings.begin(), findings.end(),
                                  [](const Finding& aFinding) { return aFinding.level == Finding::Level::Warning; });
    return good ? EXIT_DONE : EXIT_FILE_HAS_ERRORS;
}

}  // namespace OrmoNitf
