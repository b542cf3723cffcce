// How the sources of a property are asked in one file.

#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/detail/PropertyTable.h"
#include "segments/NITFWords.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// The first TRE of a tag in a segment, overflow included, that has the field.
bool FieldOfTre(const NITFFieldSegment* aSegment, const PropertySource& aSource, std::string_view& aValue)
{
    if (aSegment == nullptr) {
        return false;
    }
    for (const TREStore* const store : {&aSegment->GetTREStore(), &aSegment->GetOverflowTREStore()}) {
        const std::vector<TRE*>* const tres = store->Find(aSource.tre);
        for (std::size_t i = 0; tres != nullptr && i != tres->size(); ++i) {
            const char* value = nullptr;
            std::size_t length = 0;
            if ((*tres)[i]->GetFieldAsString(aSource.field, value, length)) {
                aValue = {value, length};
                return true;
            }
        }
    }
    return false;
}

bool FieldOfHeader(const NITFFieldSegment* aSegment, const char* aField, std::string_view& aValue)
{
    aValue = aSegment == nullptr ? std::string_view{} : aSegment->FieldText(aField);
    return aValue.data() != nullptr;
}

/// Whether a trimmed value says something.
bool IsKnown(PropertyForm aForm, std::string_view aText)
{
    constexpr double UNKNOWN_ANGLE = 999.9;
    constexpr double UNKNOWN_PERCENT = 999.0;
    double number = 0.0;
    switch (aForm) {
        case PropertyForm::Degrees:
            return NumberOfText(aText, number) && number < UNKNOWN_ANGLE;
        case PropertyForm::Percent:
            return NumberOfText(aText, number) && number < UNKNOWN_PERCENT;
        case PropertyForm::Feet:
            return NumberOfText(aText, number);
        default:
            return NITFWords::IsFilled(aText);
    }
}

}  // namespace

bool NumberOfText(std::string_view aText, double& aNumber)
{
    const std::string text(aText);
    return Util::CSMUtilString::ToDouble(text.c_str(), aNumber);
}

bool FieldOfSource(const PropertySource& aSource, const ImageSupportDataNITF& aIsd, std::size_t aImage,
                   std::string_view& aValue)
{
    aValue = {};
    const NITFFieldSegment* const file = aIsd.GetNITFFileHeader();
    const NITFFieldSegment* const image = aIsd.GetImageSubheader(aImage);
    switch (aSource.place) {
        case PropertyPlace::File:
            return FieldOfHeader(file, aSource.field, aValue);
        case PropertyPlace::Image:
            return FieldOfHeader(image, aSource.field, aValue);
        case PropertyPlace::FileTre:
            return FieldOfTre(file, aSource, aValue);
        case PropertyPlace::ImageTre:
            return FieldOfTre(image, aSource, aValue);
        case PropertyPlace::AnyTre:
            return FieldOfTre(image, aSource, aValue) || FieldOfTre(file, aSource, aValue);
        default:
            return false;
    }
}

bool AnswerOfProperty(const PropertyRow& aRow, const ImageSupportDataNITF& aIsd, std::size_t aImage,
                      std::string& aValue, const PropertySource*& aSource)
{
    for (const PropertySource& source : aRow.Sources()) {
        std::string_view field;
        aValue.clear();
        const bool answered = source.place == PropertyPlace::Composed ? source.compose(aIsd, aImage, aValue)
                                                                      : FieldOfSource(source, aIsd, aImage, field);
        if (source.place != PropertyPlace::Composed) {
            aValue = Trimmed(field);
        }
        if (answered && IsKnown(aRow.form, aValue)) {
            aSource = &source;
            return true;
        }
    }
    aValue.clear();
    aSource = nullptr;
    return false;
}

bool ComposeProductId(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    constexpr PropertySource PRODUCT{PropertyPlace::FileTre, "CSDIDA", "PRODUCT_ID"};
    std::string_view id;
    if (!FieldOfSource(PRODUCT, aIsd, 0, id) || id.size() < 2) {
        return false;
    }
    aText = std::string(id) + " (";
    switch (UpperCase(id[0])) {
        case 'P':
            aText += "radiometrically corrected ";
            break;
        case 'G':
            aText += "geo-referenced ";
            break;
        case 'R':
            aText += "orthorectified ";
            break;
        default:
            aText += "unknown process applied ";
    }
    switch (id[1]) {
        case '1':
            aText += "panchromatic)";
            break;
        case '2':
            aText += "multispectral)";
            break;
        case '3':
            aText += "pan-sharpened)";
            break;
        default:
            aText += "product)";
    }
    return true;
}

bool ComposeImageIdentifier(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText)
{
    const NITFImageSubheader* const image = aIsd.GetImageSubheader(aImage);
    if (image == nullptr) {
        return false;
    }
    for (const char* const field : {"IID1", "IID", "IID2"}) {
        const std::string_view part = Trimmed(image->FieldText(field));
        aText += aText.empty() || part.empty() ? "" : " ";
        aText += part;
    }
    return true;
}

bool ComposeClassification(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    aText = aIsd.GetHighestSecurityClassificationMarking();
    return aText != "UNKNOWN";
}

bool ComposeFileMetadata(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    char* xml = nullptr;
    std::size_t length = 0;
    if (!aIsd.GetNITFFileHeader()->Serialize(&xml, length)) {
        return false;
    }
    aText.assign(xml, length);
    Util::CSMUtilString::DeleteCString(xml);
    return true;
}

bool ComposeFileName(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    aText = ViewOf(aIsd.GetFileName());
    return !aText.empty();
}

bool ComposeSummary(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    aText = aIsd.ComposeSummary();
    return true;
}

bool ComposeVersion(const ImageSupportDataNITF& aIsd, std::size_t /*aImage*/, std::string& aText)
{
    aText = aIsd.GetFileTypeAndVersion();
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail
