#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/des/DesXmlProduct.h"
#include "tools/Commands.h"
#include "tools/Isd.h"

#include <iomanip>
#include <iostream>
#include <map>
#include <memory>
#include <sstream>
#include <string_view>
#include <utility>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

std::string_view Trimmed(std::string_view aText)
{
    const auto first = aText.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{}
                                           : aText.substr(first, aText.find_last_not_of(' ') - first + 1);
}

/// A number without its leading zeros; any other text as it is.
std::string Plain(std::string_view aText)
{
    const std::string_view text = Trimmed(aText);
    const auto first = text.find_first_not_of('0');
    const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
    return digits ? (first == std::string_view::npos ? "0" : std::string(text.substr(first))) : std::string(text);
}

/// Text that a terminal can show: bytes that it could not are left as points.
std::string Shown(std::string_view aText)
{
    std::string text(Trimmed(aText));
    for (char& character : text) {
        const auto byte = static_cast<unsigned char>(character);
        character = byte < 0x20 || byte > 0x7E ? '.' : character;
    }
    return text;
}

void Line(std::ostream& aOut, const char* aName, std::string_view aValue)
{
    if (!Trimmed(aValue).empty()) {
        aOut << "  " << aName << ": " << Shown(aValue) << '\n';
    }
}

void PrintTREs(std::ostream& aOut, const std::vector<const TREStore*>& aStores)
{
    for (const TREStore* const store : aStores) {
        for (const TRE* const tre : store->InOrder()) {
            const bool known = !tre->IsGenericTRE();
            aOut << "    TRE " << Shown(tre->GetTag()) << "  " << (known ? tre->GetTREName() : "(not decoded)") << ", "
                 << tre->GetLengthOfDataField() << " bytes, " << tre->GetExtensionArea() << '\n';
        }
    }
}

void PrintTREs(std::ostream& aOut, const NITFFieldSegment& aSegment)
{
    PrintTREs(aOut, {&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()});
}

void PrintFootprint(std::ostream& aOut, const NITFImageSubheader& aImage)
{
    NITFImgExtent::Footprint footprint;
    if (!aImage.GetFootprint(footprint)) {
        const std::string_view igeolo = Trimmed(aImage.FieldText("IGEOLO"));
        if (!igeolo.empty()) {
            aOut << "    no footprint: IGEOLO is no location of ICORDS " << Shown(aImage.FieldText("ICORDS")) << ": "
                 << Shown(igeolo) << '\n';
        }
        return;
    }
    aOut << "    footprint (" << footprint.source << "):" << std::fixed << std::setprecision(6);
    for (std::size_t i = 0; i != footprint.latitudes.size(); ++i) {
        aOut << (i == 0 ? " " : ", ") << footprint.latitudes[i] << ' ' << footprint.longitudes[i];
    }
    aOut << std::defaultfloat << (footprint.crosses180 ? ", across the 180th meridian" : "") << '\n';
}

/// What else places the image: the image that it was cut from, the coefficients for a sensor model.
void PrintGeometry(std::ostream& aOut, const NITFImageSubheader& aImage)
{
    if (aImage.IsImageChip()) {
        double row = 0.0;
        double column = 0.0;
        aOut << "    chip of a larger image";
        if (aImage.GetImageExtentInformation().MapChipToFullImage(0.0, 0.0, row, column)) {
            aOut << ": its row 0, column 0 is row " << row << ", column " << column << " there";
        }
        aOut << '\n';
    }
    const char rpc = aImage.GetRPC00Availability();
    if (rpc != NITFCnst::RPC00_NOT_AVAILABLE) {
        aOut << "    rational polynomial coefficients: RPC00" << rpc << '\n';
    }
}

void PrintImage(std::ostream& aOut, const NITFImageSubheader& aImage, std::uint64_t aBytes)
{
    const bool is21 = aImage.FieldText("IID1").data() != nullptr;
    const std::string_view comrat = Trimmed(aImage.FieldText("COMRAT"));
    aOut << "  image " << aImage.GetImageSegmentNumber() << ": " << Plain(aImage.FieldText("NROWS")) << " rows x "
         << Plain(aImage.FieldText("NCOLS")) << " columns, " << aImage.GetNumOfImageBands() << " band(s), "
         << Plain(aImage.FieldText("NBPP")) << "-bit " << Shown(aImage.FieldText("PVTYPE")) << ", "
         << Shown(aImage.FieldText("IREP")) << ", " << Shown(aImage.FieldText("ICAT")) << ", compression "
         << Shown(aImage.FieldText("IC"));
    if (!comrat.empty()) {
        aOut << ' ' << Shown(comrat);
    }
    aOut << ", mode " << Shown(aImage.FieldText("IMODE"));
    unsigned long blockColumns = 0;
    unsigned long blockRows = 0;
    if (aImage.GetNumPixelsPerBlock(blockColumns, blockRows)) {
        aOut << ", " << aImage.GetFieldNBPC() << " x " << aImage.GetFieldNBPR() << " block(s) of " << blockRows << " x "
             << blockColumns;
    }
    aOut << ", " << aBytes << " bytes\n";
    aOut << "    identifier " << Shown(aImage.FieldText(is21 ? "IID1" : "IID")) << ", date "
         << Shown(aImage.FieldText("IDATIM")) << ", classification " << Shown(aImage.FieldText("ISCLAS")) << '\n';
    PrintFootprint(aOut, aImage);
    PrintGeometry(aOut, aImage);
    PrintTREs(aOut, aImage);
}

/// What an XML document of a radar product says of itself.
void PrintXmlProduct(std::ostream& aOut, const NITFDESSubheader& aDes)
{
    DesXmlProduct product;
    if (!aDes.GetXmlProduct(product)) {
        return;
    }
    aOut << "    " << Shown(product.standard) << ' ' << Shown(product.version);
    for (const auto& [word, value] :
         {std::pair{"collector", &product.collector}, std::pair{"mode", &product.mode},
          std::pair{"centre", &product.centre}, std::pair{"reference point", &product.reference}}) {
        if (!value->empty()) {
            aOut << ", " << word << ' ' << Shown(*value);
        }
    }
    aOut << '\n';
}

/// Where a graphic, symbol or label stands and what it draws.
void PrintDrawn(std::ostream& aOut, const NITFDrawnSegment& aSegment)
{
    long row = 0;
    long column = 0;
    const bool placed = aSegment.GetCCSColumnAndRow(column, row);
    aOut << ", level " << aSegment.GetDataSegmentDisplayLevel();
    if (placed) {
        aOut << ", at row " << row << " column " << column;
    }
    if (const NITFCGMMetaFile* const metafile = aSegment.GetCGMMetaFile(); metafile != nullptr) {
        aOut << ", " << metafile->GetAllGraphicalPrimitiveElements().size() << " primitives";
        if (metafile->GetNumSkippedGraphicalPrimitives() != 0) {
            aOut << " and " << metafile->GetNumSkippedGraphicalPrimitives() << " outside the NITF profile";
        }
    }
}

/// Runs of drawn segments are folded: a chart may have hundreds of symbols.
constexpr std::size_t MOST_IN_A_ROW = 4;

/// How many segments from a place on are drawn ones of one kind.
std::size_t RunOf(const std::vector<const NITFStdDataSegmentInfo*>& aInfos, std::size_t aFrom,
                  const ImageSupportDataNITF& aIsd)
{
    const NITFCnst::DataSegmentType kind = aInfos[aFrom]->GetDataSegmentType();
    std::size_t count = 0;
    while (aFrom + count != aInfos.size() && aInfos[aFrom + count]->GetDataSegmentType() == kind &&
           dynamic_cast<const NITFDrawnSegment*>(
               aIsd.GetSegment(kind, static_cast<std::size_t>(aInfos[aFrom + count]->GetSegmentIndex()))) != nullptr) {
        ++count;
    }
    return count;
}

/// A run in one line, and a line for each tag of its TREs.
void PrintRun(std::ostream& aOut, const std::vector<const NITFStdDataSegmentInfo*>& aInfos, std::size_t aFrom,
              std::size_t aCount, const ImageSupportDataNITF& aIsd)
{
    const NITFCnst::DataSegmentType kind = aInfos[aFrom]->GetDataSegmentType();
    std::uint64_t bytes = 0;
    std::size_t primitives = 0;
    std::map<std::string, std::size_t> tags;
    for (std::size_t i = aFrom; i != aFrom + aCount; ++i) {
        const auto index = static_cast<std::size_t>(aInfos[i]->GetSegmentIndex());
        const auto& segment = dynamic_cast<const NITFDrawnSegment&>(*aIsd.GetSegment(kind, index));
        bytes += aInfos[i]->GetSegmentDataSize();
        if (segment.GetCGMMetaFile() != nullptr) {
            primitives += segment.GetCGMMetaFile()->GetAllGraphicalPrimitiveElements().size();
        }
        for (const TREStore* const store : {&segment.GetTREStore(), &segment.GetOverflowTREStore()}) {
            for (const TRE* const tre : store->InOrder()) {
                ++tags[Shown(tre->GetTag())];
            }
        }
    }
    aOut << "  " << NITFStdDataSegment::GetDataSegmentName(kind) << ' ' << aInfos[aFrom]->GetSegmentIndex() << " to "
         << aInfos[aFrom + aCount - 1]->GetSegmentIndex() << ": " << aCount << " segments, " << bytes << " bytes, "
         << primitives << " primitives\n";
    for (const auto& [tag, count] : tags) {
        aOut << "    TRE " << tag << ", " << count << " of them\n";
    }
}

/// A word for a segment that is no image, and what names it best.
void PrintOther(std::ostream& aOut, const NITFStdDataSegmentInfo& aInfo, const NITFFieldSegment* aSegment)
{
    aOut << "  " << NITFStdDataSegment::GetDataSegmentName(aInfo.GetDataSegmentType()) << ' ' << aInfo.GetSegmentIndex()
         << ": " << aInfo.GetSegmentDataSize() << " bytes";
    if (aSegment != nullptr) {
        for (const char* const tag : {"TEXTID", "DESID", "DESTAG", "RESID", "SID", "LID"}) {
            const std::string_view text = Trimmed(aSegment->FieldText(tag));
            if (!text.empty()) {
                aOut << ", " << Shown(text);
            }
        }
    }
    if (const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(aSegment); drawn != nullptr) {
        PrintDrawn(aOut, *drawn);
    }
    aOut << '\n';
    if (aSegment != nullptr) {
        PrintTREs(aOut, *aSegment);
    }
}

void PrintFile(std::ostream& aOut, const std::string& aPath, const ImageSupportDataNITF& aIsd)
{
    const NITFFileHeader& header = *aIsd.GetNITFFileHeader();
    aOut << aPath << ": " << aIsd.GetFileTypeAndVersion() << ", " << aIsd.GetNITFFileSize()
         << " bytes, complexity level " << Plain(header.FieldText("CLEVEL")) << '\n';
    Line(aOut, "classification", aIsd.GetHighestSecurityClassificationMarking());
    Line(aOut, "title", header.FieldText("FTITLE"));
    Line(aOut, "date", header.FieldText("FDT"));
    Line(aOut, "station", header.FieldText("OSTAID"));
    Line(aOut, "originator", header.FieldText("ONAME"));
    PrintTREs(aOut, header);
    const std::vector<const NITFStdDataSegmentInfo*>& infos = aIsd.GetSegmentInfos().InFileOrder();
    for (std::size_t i = 0; i != infos.size(); ++i) {
        if (const std::size_t run = RunOf(infos, i, aIsd); run > MOST_IN_A_ROW) {
            PrintRun(aOut, infos, i, run, aIsd);
            i += run - 1;
            continue;
        }
        const NITFStdDataSegmentInfo* const info = infos[i];
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const NITFImageSubheader* const image =
            info->GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_IMAGE ? aIsd.GetImageSubheader(index) : nullptr;
        if (image != nullptr) {
            PrintImage(aOut, *image, info->GetSegmentDataSize());
            continue;
        }
        PrintOther(aOut, *info, aIsd.GetSegment(info->GetDataSegmentType(), index));
        const NITFDESSubheader* const des = info->GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION
                                                ? aIsd.GetDataExtensionSegment(index)
                                                : nullptr;
        if (des != nullptr) {
            PrintXmlProduct(aOut, *des);
        }
        if (des != nullptr && des->IsTREOverflow() && !aIsd.IsOverflowPlaced(index)) {
            PrintTREs(aOut, {&des->GetOverflowTREs()});
        }
    }
    for (const std::string& warning : aIsd.GetWarnings()) {
        aOut << "  ";
        for (const char character : warning) {
            const auto byte = static_cast<unsigned char>(character);
            aOut << (character == '\n' ? ' ' : byte < 0x20 || byte > 0x7E ? '.' : character);
        }
        aOut << '\n';
    }
}

int Info(const std::vector<std::string>& aFiles)
{
    int exitCode = EXIT_DONE;
    for (const std::string& file : aFiles) {
        const Isd isd = OpenFile(file);
        if (isd == nullptr) {
            exitCode = EXIT_WRONG_USE;
            continue;
        }
        std::ostringstream text;
        PrintFile(text, file, *isd);
        std::cout << text.str();
    }
    return exitCode;
}

Action DeclareInfo(CLI::App& aApp)
{
    auto files = std::make_shared<std::vector<std::string>>();
    aApp.add_option("FILE", *files, "NITF or NSIF files")->required();
    return [files] { return Info(*files); };
}

}  // namespace

constexpr Command INFO{.name = "info",
                       .summary = "What a person wants to see first",
                       .examples =
                           "info image.ntf\n"
                           "info *.ntf",
                       .exitCodes = EXIT_CODES_OF_FILES,
                       .declare = DeclareInfo};

}  // namespace OrmoNitf
