#include "segments/des/DesDESDATACSSHPA.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "segments/des/DesDESSHFCSSHPA.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/detail/DesLayout.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr std::size_t FILE_COUNT = 3;

std::string StartTag(std::size_t aFile)
{
    return "SHAPE" + std::to_string(aFile + 1) + "_START";
}

// STDI-0002 Vol 2 App D.
constexpr FieldRow ROWS[] = {
    Rest("SHAPE_DATA", Required, Bytes, "", "", "Component Files", "The files of the shapefile, byte for byte.")};
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

DesDESDATACSSHPA::DesDESDATACSSHPA(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESDATA(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESDATACSSHPA::InitDESDATAFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESDATAs::DES_CSSHPA, "Image/Cloud Cover Shapefile", "any",
                                   "DesDESDATACSSHPA", TABLE.View()};
    return LAYOUT;
}

bool DesDESDATACSSHPA::GetShapeFiles(const DesDESSHFCSSHPA& aSubheader, std::vector<ShapeFile>& aFiles,
                                     std::string* aErrors) const
{
    aFiles.clear();
    std::array<std::uint64_t, FILE_COUNT> starts{};
    const auto refuse = [&](std::size_t aFile, const char* aWhat) {
        const std::string tag = StartTag(aFile);
        if (aErrors != nullptr) {
            Detail::AppendBlock(*aErrors, "ERROR: " + tag + ' ' + Detail::Shown(aSubheader.FieldText(tag)) + aWhat +
                                              " [data = " + std::to_string(Data().size()) + " byte(s)].");
        }
        return false;
    };
    for (std::size_t i = 0; i != FILE_COUNT; ++i) {
        if (!Detail::ToCount(aSubheader.FieldText(StartTag(i)), starts[i])) {
            return refuse(i, " is not a number");
        }
        if (starts[i] >= Data().size()) {
            return refuse(i, " lies beyond the data");
        }
        if (std::count(starts.begin(), starts.begin() + static_cast<std::ptrdiff_t>(i), starts[i]) != 0) {
            return refuse(i, " is the start of another file");
        }
    }
    std::vector<ShapeFile> files(FILE_COUNT);
    for (std::size_t i = 0; i != FILE_COUNT; ++i) {
        // A file ends where the next one in the data begins, whatever their order in the subheader.
        std::uint64_t end = Data().size();
        for (const std::uint64_t start : starts) {
            end = start > starts[i] ? std::min(end, start) : end;
        }
        files[i].name = Detail::TrimBlanks(aSubheader.FieldText("SHAPE" + std::to_string(i + 1) + "_NAME"));
        files[i].data = Data().data() + starts[i];
        files[i].length = static_cast<std::size_t>(end - starts[i]);
    }
    aFiles = std::move(files);
    return true;
}

std::string DesDESDATACSSHPA::CheckAgainst(const DesDESSHF& aSubheader) const
{
    constexpr std::string_view PREFIX = "ERROR: ";
    const auto* const subheader = dynamic_cast<const DesDESSHFCSSHPA*>(&aSubheader);
    std::vector<ShapeFile> files;
    std::string fault;
    if (subheader == nullptr || GetShapeFiles(*subheader, files, &fault)) {
        return {};
    }
    return fault.substr(PREFIX.size());
}

}  // namespace ORMO::SensorModel::CSM
