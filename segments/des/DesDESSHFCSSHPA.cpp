#include "segments/des/DesDESSHFCSSHPA.h"

#include "fields/FieldWalk.h"
#include "fields/Number.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// Only clouds have a source. The uses of newer editions are told by the length, because writers differ there.
bool HasCloudSource(const WalkContext& aContext)
{
    constexpr std::string_view CLOUDS = "CLOUD_SHAPES";
    constexpr std::uint64_t LENGTH_WITH_SOURCE = 80;
    const std::string_view use = TrimBlanks(aContext.Text("SHAPE_USE"));
    return use == CLOUDS || (use.starts_with(CLOUDS) && aContext.Total() >= LENGTH_WITH_SOURCE);
}

#define ORMO_SHAPE_ROWS(aNumber, aOrdinal)                                                                      \
    Field("SHAPE" aNumber "_NAME", 3, Required, Text, "SHP|SHX|DBF", "", "Name of " aOrdinal " Component File", \
          "Kind of the " aOrdinal " part of the shapefile."),                                                   \
        Field("SHAPE" aNumber "_START", 6, Required, Integer, "000000..999999", "bytes",                        \
              "Start of " aOrdinal " Component File",                                                           \
              "Distance of the " aOrdinal " part from the start of the segment data.")

// STDI-0002 Vol 2 App D.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("SHAPE_USE",   25, Required, Text, "IMAGE_SHAPE|CLOUD_SHAPES|USER_DEF_SHAPES|IMAGE_SHAPE_LineSample|CLOUD_SHAPES_LineSample|USER_DEF_SHAPES_LineSample", "", "Shapefile Use", "What the shapes outline.").Locked(),
    Field("SHAPE_CLASS", 10, Required, Text, "NULL SHAPE|POINT|POLYLINE|POLYGON|MULTIPOINT|POINTZ|POLYLINEZ|POLYGONZ|MULTPOINTZ|POINTM|POLYLINEM|POLYGONM|MULTPOINTM|MULTIPATCH", "", "Type of Shapes", "Geometry type of the shapes."),
    WhenBy("SHAPE_USE is CLOUD_SHAPES", HasCloudSource),
        Field("CC_SOURCE", 18, Conditional, Text, "", "", "Cloud Cover Source", "Sensors from whose data the clouds were found: PAN, MS, SWIR or CAVIS, separated by commas."),
    End(),
    ORMO_SHAPE_ROWS("1", "First"),
    ORMO_SHAPE_ROWS("2", "Second"),
    ORMO_SHAPE_ROWS("3", "Third"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 62);

}  // namespace

DesDESSHFCSSHPA::DesDESSHFCSSHPA(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSSHPA::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSSHPA,
                                   "Image/Cloud Cover Shapefile",
                                   "62, with CC_SOURCE 80",
                                   "DesDESSHFCSSHPA",
                                   TABLE.View(),
                                   "ERROR: The input DESSHF data is invalid.",
                                   "SHAPE_USE"};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
