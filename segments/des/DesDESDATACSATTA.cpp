#include "segments/des/DesDESDATACSATTA.h"

#include "fields/FieldWalk.h"
#include "segments/des/DesDESSHFCSATTA.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/detail/DesLayout.h"
#include "segments/des/detail/DesParts.h"

#include <algorithm>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr std::size_t VALUES_PER_POINT = 4;
constexpr std::uint64_t BYTES_PER_POINT = 32;
constexpr std::uint64_t MOST_POINTS = DesDESDATACSATTA::MOST_BYTES / BYTES_PER_POINT;

/// As many as the data hold; longer data are of another kind and do not fit.
bool PointCount(const WalkContext& aContext, std::uint64_t& aOut)
{
    aOut = std::min(aContext.Total() / BYTES_PER_POINT, MOST_POINTS);
    return true;
}

#define ORMO_QUATERNION_ROWS(aForm, aValues)                              \
    RepeatBy("as many as the data hold", PointCount),                     \
        Field("ATT_Q1", 8, Required, aForm, aValues, "", "Quaternion Q1", \
              "First component of the attitude quaternion."),             \
        Field("ATT_Q2", 8, Required, aForm, aValues, "", "Quaternion Q2", \
              "Second component of the attitude quaternion."),            \
        Field("ATT_Q3", 8, Required, aForm, aValues, "", "Quaternion Q3", \
              "Third component of the attitude quaternion."),             \
        Field("ATT_Q4", 8, Required, aForm, aValues, "", "Quaternion Q4", \
              "Fourth component of the attitude quaternion."),            \
        End()

// STDI-0002 Vol 2 App C.
constexpr FieldRow ROWS[] = {ORMO_QUATERNION_ROWS(Float, "-1..1")};
constexpr FieldRow TEXT_ROWS[] = {ORMO_QUATERNION_ROWS(Real, "-1.00000..1.000000")};
constexpr auto TABLE = MakeTable(ROWS);
constexpr auto TEXT_TABLE = MakeTable(TEXT_ROWS);
static_assert(TABLE.wellFormed && TEXT_TABLE.wellFormed);

/// Whether the bytes are numbers in text: no binary number between -1 and 1 of any use looks like that.
bool IsText(const std::string& aData) noexcept
{
    return aData.find_first_not_of("0123456789+-. ") == std::string::npos;
}

}  // namespace

DesDESDATACSATTA::DesDESDATACSATTA(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESDATA(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESDATACSATTA::InitDESDATAFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESDATAs::DES_CSATTA, "Focal Plane Array Boresight Alignment Attitude Data",
                                   "a multiple of 32", "DesDESDATACSATTA", TABLE.View()};
    static constexpr Layout TEXT_LAYOUT{SupportedDESDATAs::DES_CSATTA,
                                        "Focal Plane Array Boresight Alignment Attitude Data", "a multiple of 32",
                                        "DesDESDATACSATTA", TEXT_TABLE.View()};
    return IsText(Data()) ? TEXT_LAYOUT : LAYOUT;
}

std::size_t DesDESDATACSATTA::GetNumOfPoints() const noexcept
{
    return GetNumOfFields() / VALUES_PER_POINT;
}

bool DesDESDATACSATTA::GetAttitudePoints(const DesDESSHFCSATTA& aSubheader, std::vector<AttitudePoint>& aPoints) const
{
    aPoints.clear();
    double step = 0;
    if (!aSubheader.GetTimeStep(step)) {
        return false;
    }
    const Detail::FieldRecord& fields = Parts::Of(*this).fields;
    const auto value = [&fields](std::size_t aIndex, double& aOut) {
        return fields.As(fields.Store().Entries()[aIndex], aOut);
    };
    std::vector<AttitudePoint> points(GetNumOfPoints());
    for (std::size_t i = 0; i != points.size(); ++i) {
        AttitudePoint& point = points[i];
        const std::size_t first = i * VALUES_PER_POINT;
        point.time = static_cast<double>(i) * step;
        if (!value(first, point.q1) || !value(first + 1, point.q2) || !value(first + 2, point.q3) ||
            !value(first + 3, point.q4)) {
            return false;
        }
    }
    aPoints = std::move(points);
    return true;
}

std::string DesDESDATACSATTA::CheckAgainst(const DesDESSHF& aSubheader) const
{
    const auto* const subheader = dynamic_cast<const DesDESSHFCSATTA*>(&aSubheader);
    unsigned long count = 0;
    if (subheader == nullptr || !subheader->GetNumOfPoints(count) || count == GetNumOfPoints()) {
        return {};
    }
    return "NUM_ATT says " + std::to_string(count) + " attitude(s), the data hold " + std::to_string(GetNumOfPoints());
}

}  // namespace ORMO::SensorModel::CSM
