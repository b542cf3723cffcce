// The command that tells a file to a person as one page.

#include "foundation/CSMUtilString.h"
#include "segments/NITFFieldValue.h"
#include "segments/NITFSegmentTREs.h"
#include "segments/NITFWords.h"
#include "tools/CatalogueFootprint.h"
#include "tools/Commands.h"
#include "tools/Drawing.h"
#include "tools/FindingWords.h"
#include "tools/Html.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/Picture.h"
#include "tools/ReportMap.h"
#include "tools/SegmentName.h"
#include "tools/TypedValue.h"

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

/// A name, and a value that a person can take in at once.
std::string Cell(const char* aClass, const std::string& aText)
{
    return std::string("<td class=\"") + aClass + "\">" + Html(aText) + "</td>";
}

std::string ShownValue(std::string_view aBytes)
{
    constexpr std::size_t MOST_BYTES = 240;
    const std::string shown = ValueText(aBytes.substr(0, MOST_BYTES));
    return aBytes.size() <= MOST_BYTES ? shown : shown + " ... (" + NITFWords::Size(aBytes.size()) + " in all)";
}

std::string ClosedPart(const std::string& aSummary, const std::string& aContent)
{
    return "<details class=\"part\"><summary>" + aSummary + "</summary>\n<div>\n" + aContent + "</div></details>\n";
}

class Page
{
public:
    Page(const std::string& aPath, ImageSupportDataNITF& aIsd, std::vector<Finding> aRefusal)
        : m_path(aPath), m_isd(aIsd), m_refusal(std::move(aRefusal)), m_readFindings(aIsd.GetFindings())
    {
    }

    std::string Html() const
    {
        const std::string name = PathText(m_path.substr(m_path.rfind('/') + 1));
        std::string body = Marking() + "<h1>" + OrmoNitf::Html(name) + "</h1>\n<p class=\"soft\">" +
                           OrmoNitf::Html(PathText(m_path)) + "</p>\n";
        std::string navigation;
        std::string sections;
        for (const auto& [id, title, content] : {std::tuple{"file", "File", File()},
                                                 {"findings", "Findings", Findings()},
                                                 {"map", "Map", TheMap()},
                                                 {"images", "Images", Images()},
                                                 {"drawing", "Graphics", Graphics()},
                                                 {"fields", "Fields and TREs", Fields()}}) {
            if (!content.empty()) {
                navigation += std::string("<a href=\"#") + id + "\">" + title + "</a>\n";
                sections +=
                    std::string("<section id=\"") + id + "\">\n<h2>" + title + "</h2>\n" + content + "</section>\n";
            }
        }
        return HtmlPage(name, body + "<nav>\n" + navigation + "</nav>\n" + sections +
                                  "<p class=\"soft\">Made by ormo-nitf " ORMO_VERSION "</p>\n" + Marking());
    }

private:
    using Info = NITFStdDataSegmentInfo;

    const NITFFieldSegment* SegmentOf(const Info& aInfo) const
    {
        return m_isd.GetSegment(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex()));
    }

    /// The highest marking of all, with its words where the file header has the same.
    std::string Marking() const
    {
        const std::string highest = ValueText(m_isd.GetHighestSecurityClassificationMarking());
        const NITFFileHeader& header = *m_isd.GetNITFFileHeader();
        const std::string own = ValueText(header.FieldText("FSCLAS"));
        const std::string text = highest.empty()  ? "No classification"
                                 : own == highest ? NITFWords::Meaning(header, "FSCLAS")
                                                  : highest;
        const bool isKnown = highest.size() == 1 && std::string_view("UCST").find(highest) != std::string_view::npos;
        return "<p class=\"marking" + (isKnown ? ' ' + highest : "") + "\">" + OrmoNitf::Html(text) + "</p>\n";
    }

    std::string File() const
    {
        std::string text;
        std::istringstream lines(m_isd.GetFileSummary());
        for (std::string line; std::getline(lines, line);) {
            text += "<p>" + OrmoNitf::Html(Printable(line)) + "</p>\n";
        }
        return text;
    }

    /// Errors for which the file was refused, then what the validation says of what could be read.
    std::string Findings() const
    {
        std::string text;
        if (!m_refusal.empty()) {
            text +=
                "<p class=\"ERROR\">The file is damaged; this is what can be read of it.</p>\n" + TableOf(m_refusal);
        }
        unsigned long errors = 0;
        unsigned long warnings = 0;
        m_isd.Validate({}, errors, warnings);
        text += "<p>" + NITFWords::Count(errors, "error") + ", " + NITFWords::Count(warnings, "warning") + "</p>\n";
        return text + TableOf(m_isd.GetValidationFindings());
    }

    static std::string TableOf(const std::vector<Finding>& aFindings)
    {
        if (aFindings.empty()) {
            return {};
        }
        std::string text = "<table>\n<tr><th>level</th><th>rule</th><th>where</th><th>what</th></tr>\n";
        for (const Finding& finding : aFindings) {
            const std::string facts = Printable(Facts(finding));
            text += std::string("<tr><td class=\"name ") + LevelWord(finding) + "\">" + LevelWord(finding) + "</td>" +
                    Cell("name", finding.rule) + Cell("name", Printable(OrmoNitf::SegmentOf(finding))) + "<td>" +
                    OrmoNitf::Html(Printable(Sentence(finding))) +
                    (facts.empty() ? "" : "<br/><span class=\"soft\">" + OrmoNitf::Html(facts) + "</span>") +
                    "</td></tr>\n";
        }
        return text + "</table>\n";
    }

    template<typename Work>
    void ForEachImage(const Work& aWork) const
    {
        for (const Info* const info : m_isd.GetSegmentInfos().InFileOrder()) {
            const auto* const image = dynamic_cast<const NITFImageSubheader*>(SegmentOf(*info));
            if (image != nullptr) {
                aWork(*image, static_cast<std::size_t>(info->GetSegmentIndex()));
            }
        }
    }

    std::string TheMap() const
    {
        std::vector<MapShape> shapes;
        ForEachImage([&shapes](const NITFImageSubheader& aImage, std::size_t aIndex) {
            NITFImgExtent::Footprint footprint;
            nlohmann::ordered_json geometry;
            if (aImage.GetFootprint(footprint) && !(geometry = Catalogue::GeometryOf(footprint)).is_null()) {
                shapes.push_back({"image " + std::to_string(aIndex), std::move(geometry)});
            }
        });
        return shapes.empty() ? ""
                              : "<figure>\n" + MapOf(shapes) + "<figcaption>Footprints, WGS 84</figcaption></figure>\n";
    }

    std::string Images() const
    {
        constexpr std::size_t MOST_PICTURES = 12;
        std::string text;
        std::size_t count = 0;
        ForEachImage([&](const NITFImageSubheader& aImage, std::size_t aIndex) {
            text += "<h3>image " + std::to_string(aIndex) + "</h3>\n<p>" +
                    OrmoNitf::Html(Printable(m_isd.GetImageSummary(aIndex))) + "</p>\n" + Position(aImage);
            if (++count <= MOST_PICTURES) {
                text += PictureOf(aImage, aIndex);
            } else if (count == MOST_PICTURES + 1) {
                text += "<p class=\"soft\">Of further images there are no pictures here.</p>\n";
            }
        });
        return text;
    }

    static std::string Position(const NITFImageSubheader& aImage)
    {
        NITFImgExtent::Footprint footprint;
        if (!aImage.GetFootprint(footprint)) {
            return {};
        }
        std::string corners;
        for (std::size_t i = 0; i != footprint.latitudes.size(); ++i) {
            corners += (i == 0 ? "" : ", ") + NITFWords::Position(footprint.latitudes[i], footprint.longitudes[i]);
        }
        return "<p>Footprint (" + OrmoNitf::Html(footprint.source) + "): " + corners + "</p>\n";
    }

    static std::string PictureOf(const NITFImageSubheader& aImage, std::size_t aIndex)
    {
        constexpr std::size_t WIDTH = 640;
        Picture picture;
        std::string reason;
        std::string png;
        if (!Draw(aImage, WIDTH, picture, reason) || !EncodePng(picture, png)) {
            return "<p class=\"soft\">No picture: " + OrmoNitf::Html(Printable(reason)) + "</p>\n";
        }
        std::string data;
        Util::CSMUtilString::AppendBase64(png, data);
        return "<img alt=\"image " + std::to_string(aIndex) + "\" width=\"" + std::to_string(picture.columns) +
               "\" height=\"" + std::to_string(picture.rows) + "\" src=\"data:image/png;base64," + data + "\"/>\n";
    }

    std::string Graphics() const
    {
        if (m_isd.GetDrawnSegments().empty()) {
            return {};
        }
        std::string svg = Drawing(m_isd, nullptr);
        svg.erase(0, svg.find("<svg"));
        return "<figure>\n" + svg +
               "<figcaption>Over the outlines of the images, in common coordinates</figcaption></figure>\n";
    }

    std::string Fields() const
    {
        std::string text =
            "<p><input id=\"search\" type=\"search\" placeholder=\"Search fields, values and meanings\" "
            "aria-label=\"Search\" hidden=\"hidden\"/></p>\n";
        text += Part("file header", *m_isd.GetNITFFileHeader());
        for (const Info* const info : m_isd.GetSegmentInfos().InFileOrder()) {
            const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
            const std::string name = ShownSegment(info->GetDataSegmentType(), index);
            const std::string size = ", header " + NITFWords::Size(info->GetSegmentHeaderSize()) + " at byte " +
                                     std::to_string(info->GetSegmentHeaderStart()) + ", data " +
                                     NITFWords::Size(info->GetSegmentDataSize());
            if (const NITFFieldSegment* const segment = SegmentOf(*info); segment != nullptr) {
                text += Part(name + size, *segment);
                continue;
            }
            const Finding* const error = ErrorOf(m_readFindings, info->GetDataSegmentType(), index);
            text += ClosedPart(
                OrmoNitf::Html(name + size + ": not readable"),
                "<p class=\"ERROR\">" + OrmoNitf::Html(error == nullptr ? "" : Printable(Sentence(*error))) + "</p>\n");
        }
        return text;
    }

    static bool IsArea(const TRE& /*aOwner*/, const std::string& /*aField*/) { return false; }
    static bool IsArea(const NITFFieldSegment& aOwner, const std::string& aField)
    {
        return aOwner.GetFieldValueDataType(aField.c_str()) == Util::CSMCnst::DATA_TYPE_EXTENSION_DATA;
    }

    /// The fields of a header or TRE, each with its value and with what `aMeaning` says of it.
    template<typename Owner, typename Meaning>
    static std::string FieldsOf(const Owner& aOwner, Meaning aMeaning)
    {
        std::string text = "<table>\n<tr><th>field</th><th>value</th><th>meaning</th></tr>\n";
        std::string name;
        for (std::size_t i = 0; i != aOwner.GetNumOfFields(); ++i) {
            const char* value = nullptr;
            std::size_t length = 0;
            TreDetailedInfo info;
            if (!aOwner.GetFieldAt(i, name, value, length)) {
                continue;
            }
            NITFFieldValue::GetInfo(aOwner, name, info);
            const bool isArea = IsArea(aOwner, name);
            text += "<tr class=\"field\">" + Cell("name", ValueText(name)) +
                    Cell("value", isArea ? "TREs of " + NITFWords::Size(length) : ShownValue({value, length})) +
                    Cell("soft", aMeaning(info, isArea ? std::string_view() : std::string_view(value, length))) +
                    "</tr>\n";
        }
        return text + "</table>\n";
    }

    /// A header with its fields, and its TREs inside.
    static std::string Part(const std::string& aTitle, const NITFFieldSegment& aSegment)
    {
        // The long name without the values that it may list, behind what the table says that the value means.
        std::string content = FieldsOf(aSegment, [&aSegment](const TreDetailedInfo& aInfo, std::string_view aValue) {
            const std::string words = aValue.empty() ? "" : NITFWords::Meaning(aSegment, aInfo.fieldName);
            return (words.empty() || words == NITFWords::Shown(aValue) ? "" : words + ". ") +
                   aInfo.longName.substr(0, aInfo.longName.find(" ["));
        });
        for (const TRE* const tre : NITFSegmentTREs::GetAll(aSegment)) {
            content += Extension(*tre);
        }
        return ClosedPart(OrmoNitf::Html(aTitle), content);
    }

    static std::string Extension(const TRE& aTre)
    {
        const std::string tag = ValueText(aTre.GetTag());
        const std::string area = ValueText(aTre.GetExtensionArea());
        const std::string title = "TRE " + tag + ": " + (aTre.IsGenericTRE() ? "not decoded" : aTre.GetTREName()) +
                                  ", " + NITFWords::Size(aTre.GetLengthOfDataField()) +
                                  (area.empty() ? "" : ", " + area);
        return ClosedPart(OrmoNitf::Html(title), FieldsOf(aTre, [](const TreDetailedInfo& aInfo, std::string_view) {
                              const std::string text = aInfo.longName + (aInfo.unit.empty() ? "" : ", " + aInfo.unit);
                              const auto explanation = aInfo.description.find("]. ");
                              return explanation == std::string::npos
                                         ? text
                                         : text + ". " + aInfo.description.substr(explanation + 3);
                          }));
    }

    const std::string& m_path;
    ImageSupportDataNITF& m_isd;
    std::vector<Finding> m_refusal;
    std::vector<Finding> m_readFindings;
};

struct Options
{
    std::string file;
    std::string out;
};

int Report(const Options& aOptions)
{
    std::vector<Finding> refusal;
    Isd isd = OpenFile(aOptions.file, {}, refusal);
    if (isd == nullptr) {
        std::vector<Finding> ignored;
        isd = OpenFile(aOptions.file, {.salvage = true}, ignored);
    }
    for (const Finding& finding : refusal) {
        PrintProblem(aOptions.file, finding.Line());
    }
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const bool isWhole = refusal.empty();
    const int written = WriteText(Page(aOptions.file, *isd, std::move(refusal)).Html(), aOptions.out, aOptions.file);
    return std::max(written, static_cast<int>(isWhole ? EXIT_DONE : EXIT_FILE_HAS_ERRORS));
}

Action DeclareReport(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    aApp.add_option("-o", options->out, "File to write; standard output without it");
    return [options] { return Report(*options); };
}

}  // namespace

constexpr Command REPORT{
    .name = "report",
    .summary = "A page about a file for a person: map, pictures, graphics, findings, every field with its meaning",
    .examples =
        "report image.ntf -o image.html\n"
        "report damaged.ntf > damaged.html",
    .exitCodes =
        "0 done, 1 the file is damaged and the page shows what can be read, 2 wrong use or a file that cannot be "
        "opened",
    .declare = DeclareReport};

}  // namespace OrmoNitf
