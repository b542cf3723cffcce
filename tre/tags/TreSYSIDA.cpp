#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSYSIDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width need         form     values      unit     label
    Field("PLATFORM_ID_LEN", 3, Required,    Integer, "000..999", "bytes", "Platform ID Length",
          "Length of the identifier of the collection platform; zero when it is not given."),
    WhenPositive("PLATFORM_ID_LEN"),
        Sized("PLATFORM_ID",     "PLATFORM_ID_LEN", 0, Conditional, Ecs,     "",         "",      "Platform Identifier",
              "Standard identifier of the collection platform."),
    End(),
    Field("PAYLOAD_ID_LEN",  3, Required,    Integer, "000..999", "bytes", "Payload ID Length",
          "Length of the identifier of the payload; zero when it is not given."),
    WhenPositive("PAYLOAD_ID_LEN"),
        Sized("PAYLOAD_ID",      "PAYLOAD_ID_LEN", 0, Conditional, Ecs,     "",         "",      "Payload Identifier",
              "Standard identifier of the payload."),
    End(),
    Field("SENSOR_ID_LEN",   3, Required,    Integer, "000..999", "bytes", "Sensor ID Length",
          "Length of the identifier of the sensor; zero when it is not given."),
    WhenPositive("SENSOR_ID_LEN"),
        Sized("SENSOR_ID",       "SENSOR_ID_LEN", 0, Conditional, Ecs,     "",         "",      "Sensor Identifier",
              "Standard identifier of the sensor."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreSYSIDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SYSIDA",
        .name = "System Identification",
        .length = 0,
        .lengthRule = "9 + PLATFORM_ID_LEN + PAYLOAD_ID_LEN + SENSOR_ID_LEN (9..3006)",
        .placement = "any extension area of the file header or of a subheader",
        .purpose =
            "Names the platform, payload and sensor that collected the data by standard identifiers of any length.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AS); NFX MATLAB TRE class (cites "
            "STDI-0002-1 App AS, Table AS.5-1, 2025-02)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
