#pragma once

#include "DesDESDATA.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class DesDESSHFCSATTA;

/// The attitudes of a "CSATTA DES" as quaternions, in binary or, as older writers have it, in text of the same width
/// (STDI-0002 Vol 2 App C).
class ORMO_CSM_API DesDESDATACSATTA : public DesDESDATA
{
public:
    /// The most bytes that such data have: 99,999 attitudes, which is all that NUM_ATT can say.
    static constexpr std::size_t MOST_BYTES = std::size_t{99999} * 32;

    /// Raises as DesDESDATA::InitDesDESDATA says.
    DesDESDATACSATTA(const char* aType, const char* aData, std::size_t aLength);
    std::unique_ptr<DesDESDATA> Clone() const override { return std::make_unique<DesDESDATACSATTA>(*this); }
    std::string CheckAgainst(const DesDESSHF& aSubheader) const override;

    /// The attitude at one moment.
    struct AttitudePoint
    {
        double time = 0;  ///< seconds after T0_ATT
        double q1 = 0;
        double q2 = 0;
        double q3 = 0;
        double q4 = 0;
    };

    /// Number of attitudes that the data hold.
    std::size_t GetNumOfPoints() const noexcept;
    /// All attitudes with their times by DT_ATT. False, with none, when a value is no number.
    bool GetAttitudePoints(const DesDESSHFCSATTA& aSubheader, std::vector<AttitudePoint>& aPoints) const;

protected:
    const Layout& InitDESDATAFieldsMap() const override;
};

}  // namespace ORMO::SensorModel::CSM
