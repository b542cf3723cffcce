#include "tools/Isd.h"

#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "raster/GDALNITFFileReader.h"

#include <fstream>
#include <iostream>
#include <new>
#include <stdexcept>
#include <string_view>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

void IsdDestroyer::operator()(ImageSupportDataNITF* aIsd) const
{
    ImageSupportData* isd = aIsd;
    ImageSupportDataFactory::Destroy(&isd);
}

int WriteText(std::string_view aText, const std::string& aOut)
{
    if (aOut.empty()) {
        std::cout << aText;
        return EXIT_DONE;
    }
    std::ofstream out(aOut, std::ios::binary);
    out << aText;
    out.close();
    if (!out) {
        PrintProblem(aOut, "ERROR: The document cannot be written to this file.");
        return EXIT_WRONG_USE;
    }
    return EXIT_DONE;
}

void PrintProblem(const std::string& aPath, const std::string& aText)
{
    std::string line;
    std::string_view rest(aText);
    while (!rest.empty()) {  // blocks are one problem each, their lines belong together
        const auto end = rest.find("\n\n");
        line = rest.substr(0, end);
        for (char& character : line) {
            character = character == '\n' || character == '\r' ? ' ' : character;
        }
        std::cerr << aPath << ": " << line << '\n';
        rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 2);
    }
}

namespace {

/// Why the factory found no format: the NITF factory knows more than that the argument is invalid.
std::string UnidentifiedReason(const std::string& aPath)
{
    ImageSupportDataNITF* isd = nullptr;
    std::string reason;
    try {
        ImageSupportDataNITFFactory::Create(aPath.c_str(), &isd, true, false, -1,
                                            NITFCnst::NITF_VERSION_NUMBER_UNKNOWN);
        const char* const message = ImageSupportDataNITFFactory::GetErrorMessage();
        reason = message == nullptr ? "" : message;
    } catch (const CSMException& exception) {
        reason = exception.GetAdditionalMessage();
    }
    ImageSupportDataNITFFactory::Destroy(&isd);
    return reason + " [" + GDALNITFFileReader::WhyNotNITFFile(aPath.c_str()) + "]";
}

}  // namespace

Isd OpenFile(const std::string& aPath, bool aImagesOnly)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, !aImagesOnly, false);
    } catch (const std::invalid_argument&) {
        PrintProblem(aPath, UnidentifiedReason(aPath));
        return nullptr;
    } catch (const CSMException& exception) {
        const std::string text = exception.GetAdditionalMessage();
        PrintProblem(aPath, text.empty() ? exception.GetErrorMessage() : text);
        return nullptr;
    } catch (const std::bad_alloc&) {
        PrintProblem(aPath, "ERROR: System out of memory.");
        return nullptr;
    }
    auto* const nitf = dynamic_cast<ImageSupportDataNITF*>(isd);
    if (nitf == nullptr) {
        PrintProblem(aPath, "ERROR: The file was not opened as a NITF file.");
        ImageSupportDataFactory::Destroy(&isd);
    }
    return Isd(nitf);
}

}  // namespace OrmoNitf
