// The command that shows graphics, symbols and labels: as clear text or as a drawing.

#include "foundation/CSMUtilString.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/SegmentName.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <memory>
#include <sstream>
#include <string_view>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

/// "graphic 2".
std::string NameOf(const NITFFieldSegment& aSegment)
{
    const NITFStdDataSegmentInfo* const info = aSegment.GetNITFStdDataSegmentInfo();
    return ShownSegment(aSegment.GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
}

/// What a symbol without a metafile is, for a person; empty for all others.
std::string KindOf(const NITFDrawnSegment& aSegment)
{
    const auto* const symbol = dynamic_cast<const NITF20SymbolSubheader*>(&aSegment);
    if (symbol == nullptr) {
        return {};
    }
    if (const NITF20ObjectSymbol* const object = symbol->GetObjectSymbol(); object != nullptr) {
        const char* const name = object->GetObjectSymbolTypeName();
        return std::string("object symbol: ") + (name == nullptr ? "no known shape" : name);
    }
    if (const NITF20BitmappedSymbol* const bitmap = symbol->GetBitmappedSymbol(); bitmap != nullptr) {
        long rows = 0;
        long columns = 0;
        bitmap->GetImageRowsAndColumns(rows, columns);
        const char* const colors = bitmap->GetSCOLORDescription();
        return "bitmapped symbol: " + std::to_string(rows) + " rows x " + std::to_string(columns) + " columns, " +
               (colors == nullptr ? "no known colors" : colors);
    }
    return {};
}

/// Latin-1 as UTF-8, without control characters.
std::string Shown(std::string_view aText)
{
    std::string shown;
    for (const char character : aText) {
        const auto byte = static_cast<unsigned char>(character);
        const bool control = byte < 0x20 || (byte > 0x7E && byte < 0xA0);
        Util::CSMUtilString::AppendLatin1AsUtf8(control ? "." : std::string_view(&character, 1), shown);
    }
    return shown;
}

/// The lines of a metafile without the indent that they have inside the XML; a comment stands between percent signs.
void PrintClearText(const NITFDrawnSegment& aSegment, std::ostream& aOut)
{
    const NITFCGMMetaFile* const metafile = aSegment.GetCGMMetaFile();
    const std::string kind = KindOf(aSegment);
    aOut << "% " << NameOf(aSegment) << (kind.empty() ? "" : ", " + kind);
    aOut << (metafile == nullptr && kind.empty() ? ", no metafile %" : " %") << '\n';
    if (metafile == nullptr) {
        return;
    }
    for (std::size_t i = 0; i != metafile->GetNumOfClearTextLines(); ++i) {
        std::string_view line = metafile->GetClearTextLine(i);
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        aOut << Shown(line) << '\n';
    }
}

/// The frame of a drawing: everything that is to be seen.
class Frame
{
public:
    void Add(const CGMDrawing::Bounds& aBounds)
    {
        m_bounds = m_empty ? aBounds
                           : CGMDrawing::Bounds{
                                 std::min(m_bounds.left, aBounds.left), std::min(m_bounds.top, aBounds.top),
                                 std::max(m_bounds.right, aBounds.right), std::max(m_bounds.bottom, aBounds.bottom)};
        m_empty = false;
    }

    /// The start tag and the paper, with a margin around all. Large drawings are shown smaller.
    std::string Start() const
    {
        constexpr double MOST_PIXELS = 2048;
        const double margin = 5 + 0.02 * std::max(m_bounds.right - m_bounds.left, m_bounds.bottom - m_bounds.top);
        const double left = std::floor(m_bounds.left - margin);
        const double top = std::floor(m_bounds.top - margin);
        const double width = std::ceil(m_bounds.right + margin) - left;
        const double height = std::ceil(m_bounds.bottom + margin) - top;
        const double scale = std::min(1.0, MOST_PIXELS / std::max(width, height));
        std::ostringstream svg;
        svg.precision(15);
        svg << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" "
            << "width=\"" << std::ceil(width * scale) << "\" height=\"" << std::ceil(height * scale) << "\" viewBox=\""
            << left << ' ' << top << ' ' << width << ' ' << height << "\">\n"
            << "<rect x=\"" << left << "\" y=\"" << top << "\" width=\"" << width << "\" height=\"" << height
            << "\" fill=\"#a8a8a8\"/>\n";
        return svg.str();
    }

private:
    CGMDrawing::Bounds m_bounds;
    bool m_empty = true;
};

CGMDrawing::Bounds BoundsOf(const NITFImageSubheader& aImage)
{
    unsigned long rows = 0;
    unsigned long columns = 0;
    aImage.GetFieldAsUnsignedLong("NROWS", rows);
    aImage.GetFieldAsUnsignedLong("NCOLS", columns);
    const auto row = static_cast<double>(aImage.GetCCSRowValue());
    const auto column = static_cast<double>(aImage.GetCCSColumnValue());
    return {column, row, column + static_cast<double>(columns), row + static_cast<double>(rows)};
}

std::string Titled(const NITFFieldSegment& aSegment, const std::string& aElements)
{
    return "<g>\n<title>" + NameOf(aSegment) + "</title>\n" + aElements + "</g>\n";
}

std::string Outline(const CGMDrawing::Bounds& aBounds)
{
    std::ostringstream svg;
    svg.precision(15);
    svg << "<rect x=\"" << aBounds.left << "\" y=\"" << aBounds.top << "\" width=\"" << aBounds.right - aBounds.left
        << "\" height=\"" << aBounds.bottom - aBounds.top
        << "\" fill=\"#909090\" stroke=\"#404040\" vector-effect=\"non-scaling-stroke\"/>\n";
    return svg.str();
}

/// Everything, or one segment alone.
std::string Drawing(const ImageSupportDataNITF& aIsd, const NITFDrawnSegment* aOnly)
{
    Frame frame;
    std::string elements;
    for (const NITFFieldSegment* const segment : aIsd.GetDisplayableDataSegmentOrderedByDisplayLevels()) {
        const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(segment);
        const auto* const image = dynamic_cast<const NITFImageSubheader*>(segment);
        CGMDrawing::Bounds bounds;
        std::string content;
        if (aOnly != nullptr && aOnly != drawn) {
            continue;
        }
        if (image != nullptr) {
            frame.Add(BoundsOf(*image));
            elements += Titled(*image, Outline(BoundsOf(*image)));
        } else if (drawn != nullptr && drawn->AppendSvg(content)) {
            if (drawn->GetDrawnBounds(bounds)) {
                frame.Add(bounds);
            }
            elements += Titled(*drawn, content);
        }
    }
    return frame.Start() + elements + "</svg>\n";
}

struct Options
{
    std::string file;
    std::string which;
    bool asSvg = false;
    std::string out;
};

/// The one that a name or a position means; false, with the reason, when there is none.
bool Choose(const std::vector<const NITFDrawnSegment*>& aDrawn, const std::string& aWhich,
            const NITFDrawnSegment*& aOnly, std::string& aReason)
{
    SegmentName name;
    const bool isNumber = aWhich.find_first_not_of("0123456789") == std::string::npos;
    if (!isNumber && !ParseSegment(aWhich, name, aReason)) {
        return false;
    }
    for (std::size_t i = 0; i != aDrawn.size(); ++i) {
        const auto index = static_cast<std::size_t>(aDrawn[i]->GetNITFStdDataSegmentInfo()->GetSegmentIndex());
        if (isNumber ? std::to_string(i) == aWhich : name.Holds(aDrawn[i]->GetDataSegmentType(), index)) {
            aOnly = aDrawn[i];
            return true;
        }
    }
    aReason = "ERROR: The file has " + std::to_string(aDrawn.size()) + " graphics, symbols and labels, none is " +
              aWhich + '.';
    return false;
}

int Cgm(const std::string& aFile, const std::string& aWhich, bool aSvg, const std::string& aOut)
{
    const Isd isd = OpenFile(aFile);
    if (isd == nullptr) {
        return EXIT_WRONG_USE;
    }
    const std::vector<const NITFDrawnSegment*> drawn = isd->GetDrawnSegments();
    const NITFDrawnSegment* only = nullptr;
    std::string reason = "ERROR: The file has no graphics, symbols or labels.";
    if (drawn.empty() || (!aWhich.empty() && !Choose(drawn, aWhich, only, reason))) {
        PrintProblem(aFile, reason);
        return EXIT_FILE_HAS_ERRORS;
    }
    std::ostringstream text;
    if (aSvg) {
        text << Drawing(*isd, only);
    } else {
        for (const NITFDrawnSegment* const segment : drawn) {
            if (only == nullptr || only == segment) {
                PrintClearText(*segment, text);
            }
        }
    }
    for (const NITFDrawnSegment* const segment : drawn) {
        const NITFCGMMetaFile* const metafile = segment->GetCGMMetaFile();
        if ((only == nullptr || only == segment) && metafile != nullptr && metafile->GetFault() != nullptr) {
            PrintProblem(aFile, NameOf(*segment) + ": " + metafile->GetFault()->text);
        }
    }
    return WriteText(text.str(), aOut, aFile);
}

Action DeclareCgm(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    aApp.add_flag("--svg", options->asSvg, "A drawing in common coordinates, ordered by display level");
    aApp.add_option("-o", options->out, "File to write; standard output without it");
    aApp.add_option("FILE", options->file, "NITF or NSIF file")->required();
    aApp.add_option(
        "INDEX", options->which,
        "Position among graphics, or among symbols and then labels, from 0, or a name such as symbol:0; all "
        "without it");
    return [options] { return Cgm(options->file, options->which, options->asSvg, options->out); };
}

}  // namespace

constexpr Command CGM{.name = "cgm",
                      .summary = "Graphics, symbols and labels as clear text, or drawn over the images",
                      .examples =
                          "cgm chart.ntf symbol:0\n"
                          "cgm --svg -o chart.svg chart.ntf",
                      .exitCodes = "0 done, 1 no such graphic, 2 wrong use or a file that cannot be opened",
                      .declare = DeclareCgm};

}  // namespace OrmoNitf
