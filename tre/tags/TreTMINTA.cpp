#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreTMINTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                  width need           form     values        unit   label
    Field("NUM_TIME_INT",         4, Required,      Integer, "0001..1851", "",    "Number of Time Intervals",
          "How many time intervals are defined here."),
    Repeat("NUM_TIME_INT"),
        Field("TIME_INTERVAL_INDEX",  6, Required,      Integer,
              "000000=ignore this entry|000001..999999",
              "", "Time Interval Index",
              "Number of the time interval."),
        Field("START_TIMESTAMP",     24, RequiredBlank, Time,
              "{YYYYMMDDhhmmss.sssssssss}|blank=the interval is empty",
              "UTC", "Time Interval Start Time",
              "Time of the beginning of the interval."),
        Field("END_TIMESTAMP",       24, RequiredBlank, Time,
              "{YYYYMMDDhhmmss.sssssssss}|blank=the interval is empty",
              "UTC", "Time Interval End Time",
              "Time of the end of the interval."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreTMINTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "TMINTA",
        .name = "Time Interval Definition",
        .length = 0,
        .lengthRule = "4 + 54*NUM_TIME_INT",
        .placement = "file header",
        .purpose = "Defines the numbered time intervals into which a motion imagery collection is divided.",
        .sources =
            "imaging-nitf TRE description file; pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE "
            "parser; OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX "
            "MATLAB TRE class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
