// The file in some lines for a person.

#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "segments/NITFWords.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

void AppendLine(std::string& aText, std::string_view aName, const std::string& aValue)
{
    if (!aValue.empty()) {
        aText += aName;
        aText += ": ";
        aText += aValue;
        aText += '\n';
    }
}

/// "2 images, 1 text"
std::string SegmentCounts(const ImageSupportDataNITF::Parts& aParts)
{
    std::string text;
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        const std::size_t count = aParts.Count(kind.kind);
        if (kind.version == Detail::LayoutVersion(aParts.Version()) && count != 0) {
            text += text.empty() ? "" : ", ";
            const std::string_view word = kind.word;
            const bool isName = word == "des" || word == "res";
            text +=
                isName ? std::to_string(count) + ' ' + (word == "des" ? "DES" : "RES") : NITFWords::Count(count, word);
        }
    }
    return text.empty() ? "no segments" : text;
}

}  // namespace

std::string ImageSupportDataNITF::GetFileSummary() const
{
    const NITFFileHeader& header = *m_parts->header;
    std::string text = NITFWords::Joined({GetFileTypeAndVersion(), NITFWords::Meaning(header, "FSCLAS"),
                                          NITFWords::Date(header.FieldText("FDT")), NITFWords::Size(GetNITFFileSize()),
                                          "complexity level " + NITFWords::Number(header.FieldText("CLEVEL"))}) +
                       '\n';
    AppendLine(text, "title", NITFWords::Shown(header.FieldText("FTITLE")));
    AppendLine(
        text, "from",
        NITFWords::Joined({NITFWords::Shown(header.FieldText("OSTAID")), NITFWords::Shown(header.FieldText("ONAME")),
                           NITFWords::Shown(header.FieldText("OPHONE"))}));
    AppendLine(text, "segments", SegmentCounts(*m_parts));
    return text;
}

std::string ImageSupportDataNITF::GetImageSummary(std::size_t aImage) const
{
    const NITFImageSubheader* const image = GetImageSubheader(aImage);
    if (image == nullptr) {
        return {};
    }
    const auto number = [image](const char* aField) { return NITFWords::Number(image->FieldText(aField)); };
    const auto code = [image](const char* aField) { return NITFWords::Shown(image->FieldText(aField)); };
    const auto counted = [&number](const char* aField, const char* aWord) {
        const std::string count = number(aField);
        return count + ' ' + aWord + (count == "1" ? "" : "s");
    };
    std::string text = counted("NCOLS", "column") + " x " + counted("NROWS", "row") + ", " +
                       NITFWords::Count(image->GetNumOfImageBands(), "band") + " of " + number("NBPP") + "-bit " +
                       NITFWords::Meaning(*image, "PVTYPE") + ", " + code("IREP") + ", " + code("ICAT") + ", " +
                       NITFWords::Meaning(*image, "IC");
    const std::string rate = code("COMRAT");
    text += rate.empty() ? "" : " rate " + rate;
    return text + ", " + NITFWords::Size(image->GetSegmentDataSize());
}

std::string ImageSupportDataNITF::ComposeSummary() const
{
    constexpr long MOST_IMAGES = 10;
    std::string text = GetFileSummary();
    const long count = GetNumOfImageSegments();
    for (long i = 0; i != std::min(count, MOST_IMAGES); ++i) {
        const std::string image = GetImageSummary(static_cast<std::size_t>(i));
        text += "image " + std::to_string(i) + ": " + (image.empty() ? "not readable" : image) + '\n';
    }
    if (count > MOST_IMAGES) {
        text += "and " + NITFWords::Count(static_cast<std::uint64_t>(count - MOST_IMAGES), "more image") + '\n';
    }
    return text;
}

const char* ImageSupportDataNITF::GetImageSupportDataSummary()
{
    m_parts->summary = ComposeSummary();
    return m_parts->summary.c_str();
}

}  // namespace ORMO::SensorModel::CSM
