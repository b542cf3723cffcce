#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMPDSRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need           form     values          unit      label
    Field("BLK_NUM",       2, Required,      Integer, "01..99",       "",       "Image Block Number",
          "Number of the image block that this extension describes.").Alias("blkno"),
    Field("IPR",           2, Required,      Integer, "00..99",       "ft",     "Commanded Impulse Response",
          "Resolution that was commanded for the image.").Alias("cdipr"),
    Field("NBLKS_IN_WDG",  2, Required,      Integer, "01..99",       "",       "Number of Blocks in Wedge",
          "How many image blocks the wedge contains.").Alias("nblkw"),
    Field("ROWS_IN_BLK",   5, Required,      Integer, "00001..99999", "pixels", "Number of Rows in Block",
          "Number of rows of the block.").Alias("nrblk"),
    Field("COLS_IN_BLK",   5, Required,      Integer, "00001..99999", "pixels", "Number of Columns in Block",
          "Number of columns of the block.").Alias("ncblk"),
    Field("ORP_X",         9, Required,      Real,    "",             "ft",     "Output Reference Point X",
          "Earth-centred fixed X coordinate of the output reference point.").Alias("ORO_X"),
    Field("ORP_Y",         9, Required,      Real,    "",             "ft",     "Output Reference Point Y",
          "Earth-centred fixed Y coordinate of the output reference point.").Alias("ORO_Y"),
    Field("ORP_Z",         9, Required,      Real,    "",             "ft",     "Output Reference Point Z",
          "Earth-centred fixed Z coordinate of the output reference point.").Alias("ORO_Z"),
    Field("ORP_ROW",       5, Required,      Integer, "00001..99999", "pixels", "Output Reference Point Row",
          "Image row of the output reference point, counted from 1.").Alias("orpro"),
    Field("ORP_COLUMN",    5, Required,      Integer, "00001..99999", "pixels", "Output Reference Point Column",
          "Image column of the output reference point, counted from 1.").Alias("orpco"),
    Field("FOC_X",         7, Required,      Real,    "-1..+1",       "",       "Focus Plane Normal X",
          "X component of the unit normal of the focus plane.").Alias("fpnvx"),
    Field("FOC_Y",         7, Required,      Real,    "-1..+1",       "",       "Focus Plane Normal Y",
          "Y component of the unit normal of the focus plane.").Alias("fpnvy"),
    Field("FOC_Z",         7, Required,      Real,    "-1..+1",       "",       "Focus Plane Normal Z",
          "Z component of the unit normal of the focus plane.").Alias("fpnvz"),
    Field("ARP_TIME",      9, Required,      Real,    "",             "s",      "Collection Start Time",
          "Time at which the collection started.").Alias("arptm"),
    Field("RESERVED-001", 14, RequiredBlank, Text,    "",             "",       "Reserved 1",
          "Reserved by the standard.").Alias("RESERVED_001"),
    Field("ARP_POS_N",     9, Required,      Real,    "",             "ft",     "Aircraft Position North",
          "North coordinate of the aircraft relative to the output reference point.").Alias("arppn"),
    Field("ARP_POS_E",     9, Required,      Real,    "",             "ft",     "Aircraft Position East",
          "East coordinate of the aircraft relative to the output reference point.").Alias("arppe"),
    Field("ARP_POS_D",     9, Required,      Real,    "",             "ft",     "Aircraft Position Down",
          "Down coordinate of the aircraft relative to the output reference point.").Alias("arppd"),
    Field("ARP_VEL_N",     9, Required,      Real,    "",             "ft/s",   "Aircraft Velocity North",
          "North component of the aircraft velocity.").Alias("arpvn"),
    Field("ARP_VEL_E",     9, Required,      Real,    "",             "ft/s",   "Aircraft Velocity East",
          "East component of the aircraft velocity.").Alias("arpve"),
    Field("ARP_VEL_D",     9, Required,      Real,    "",             "ft/s",   "Aircraft Velocity Down",
          "Down component of the aircraft velocity.").Alias("arpvd"),
    Field("ARP_ACC_N",     8, Required,      Real,    "",             "ft/s^2", "Aircraft Acceleration North",
          "North component of the aircraft acceleration.").Alias("arpan"),
    Field("ARP_ACC_E",     8, Required,      Real,    "",             "ft/s^2", "Aircraft Acceleration East",
          "East component of the aircraft acceleration.").Alias("arpae"),
    Field("ARP_ACC_D",     8, Required,      Real,    "",             "ft/s^2", "Aircraft Acceleration Down",
          "Down component of the aircraft acceleration.").Alias("arpad"),
    Field("RESERVED-002", 13, RequiredBlank, Text,    "",             "",       "Reserved 2",
          "Reserved by the standard.").Alias("RESERVED_002"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 188);

}  // namespace

const Detail::TreLayout& TreMPDSRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MPDSRA",
        .name = "Mensuration Data",
        .length = 188,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Per-block radar mensuration data: output reference point, focus plane normal, and aircraft "
            "position, velocity and acceleration at the aperture reference point.",
        .sources = "STDI-0002 version 2.1; NITRO plug-in table; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
