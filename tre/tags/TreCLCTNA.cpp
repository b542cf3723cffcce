#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCLCTNA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag             width  need      form      values              unit label
    Field("VERNUM",           4, Required, Integer,  "0000..9999",       "", "Version Number",
          "Version of this extension."),
    Field("CLCTN_NAME",      25, Required, Text,     "",                 "", "Collection Name",
          "Name of the data collection campaign."),
    Field("CLCTN_DESCRIPT", 255, Required, Text,     "",                 "", "Collection Description",
          "Description of the campaign in words."),
    Field("CLCTN_STDATE",     8, Required, Date,     "",                 "", "Collection Start Date",
          "Day on which the campaign began, most likely as YYYYMMDD."),
    Field("CLCTN_SPDATE",     8, Required, Date,     "",                 "", "Collection Stop Date",
          "Day on which the campaign ended, most likely as YYYYMMDD."),
    Field("CLCTN_LOC",       11, Required, Location, "",                 "", "Collection Location",
          "Place of the campaign, most likely as ddmmXdddmmY."),
    Field("COUNTRY",          2, Required, Text,     "any=country code", "", "Country",
          "Country in which the campaign took place."),
    Field("SPONSOR",         20, Required, Text,     "",                 "", "Sponsor",
          "Body that paid for the campaign."),
    Field("PERSONNEL",      100, Required, Text,     "",                 "", "Personnel",
          "People responsible for the campaign."),
    Field("SCLCTN_NAME",     20, Required, Text,     "",                 "", "Subcollection Name",
          "Name of the part of the campaign to which the image belongs."),
    Field("SDESCRIPTION",   255, Required, Text,     "",                 "", "Subcollection Description",
          "Description of that part in words."),
    Field("SCLCTN_Z_OFF",     3, Required, Text,     "",                 "", "Subcollection Zulu Offset",
          "Difference between local time and UTC at the place of collection, most likely a sign and two digits."),
    Field("SCLCTN_STDATE",    8, Required, Date,     "",                 "", "Subcollection Start Date",
          "Day on which that part began, most likely as YYYYMMDD."),
    Field("SCLCTN_SPDATE",    8, Required, Date,     "",                 "", "Subcollection Stop Date",
          "Day on which that part ended, most likely as YYYYMMDD."),
    Field("SECURITY",         7, Required, Text,     "",                 "", "Security",
          "Security marking of the collected data."),
    Field("SCG",             15, Required, Text,     "",                 "", "Security Classification Guide",
          "Guide that governs the security marking."),
    Field("SITE",            15, Required, Text,     "",                 "", "Site",
          "Name of the site that was imaged."),
    Field("SITE_NUM",         3, Required, Text,     "",                 "", "Site Number",
          "Number of the site that was imaged."),
    Field("SCN_NUM",          3, Required, Text,     "",                 "", "Scene Number",
          "Number of the scene."),
    Field("FLIGHT_NUM",       2, Required, Text,     "",                 "", "Flight Number",
          "Number of the flight."),
    Field("PASS_NUM",         2, Required, Text,     "",                 "", "Pass Number",
          "Number of the pass within the flight."),
    Field("SCN_CNTR",        11, Required, Location, "",                 "", "Scene Center",
          "Location of the scene centre, most likely as ddmmXdddmmY."),
    Field("ALTITUDE",         5, Required, Text,     "",                 "", "Altitude",
          "Altitude of the scene."),
    Field("SCN_CONTENT",     50, Required, Text,     "",                 "", "Scene Content",
          "What the scene shows."),
    Field("BGRND_TYPE",      50, Required, Text,     "",                 "", "Background Type",
          "Kind of terrain or clutter around the targets."),
    Field("WX_STATION",      20, Required, Text,     "",                 "", "Weather Station",
          "Station that reported the weather."),
    Field("WX_OVERVIEW",     15, Required, Text,     "",                 "", "Weather Overview",
          "The weather in short."),
    Field("WX_FILE",         30, Required, Text,     "",                 "", "Weather File",
          "Name of the file with the weather records."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 955);

}  // namespace

const Detail::TreLayout& TreCLCTNA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CLCTNA",
        .name = "Research Collection Information",
        .length = 955,
        .lengthRule = "",
        .placement = "not stated in public sources",
        .purpose =
            "Describes the research data collection, its site, scene, flight and weather, from which an image "
            "comes.",
        .sources = "NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes = "The forms of the dates, of the locations and of SCLCTN_Z_OFF are recalled."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
