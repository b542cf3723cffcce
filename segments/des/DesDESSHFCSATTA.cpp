#include "segments/des/DesDESSHFCSATTA.h"

#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// STDI-0002 Vol 2 App C.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("ATT_TYPE", 12, Required, Text,    "ORIGINAL=from the sensor|REFINED=smoothed by the supplier|any=other registered value", "", "Type of Attitude Data", "Origin of the attitude data."),
    Field("DT_ATT",   14, Required, Real,    "000.0000000001..999.9999999999", "s", "Time Between Attitude Reference Points", "Time step between neighbouring attitudes."),
    Field("DATE_ATT",  8, Required, Date,    "{YYYYMMDD}", "UTC", "Day of First Attitude Reference Point", "Date of the first attitude."),
    Field("T0_ATT",   13, Required, Time,    "{HHmmss.ssssss}", "UTC", "Time of First Attitude Reference Point", "Time of day of the first attitude."),
    Field("NUM_ATT",   5, Required, Integer, "00000..09999", "", "Number of Attitude Reference Points", "How many attitudes the data hold."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 52);

}  // namespace

DesDESSHFCSATTA::DesDESSHFCSATTA(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSATTA::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSATTA, "Focal Plane Array Boresight Alignment Attitude Data",
                                   "52", "DesDESSHFCSATTA", TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
