// The command that shows graphics, symbols and labels: as clear text or as a drawing.

#include "foundation/CSMUtilString.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "tools/Commands.h"
#include "tools/Drawing.h"
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
