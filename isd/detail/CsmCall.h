#pragma once

#include "foundation/CSMApi.h"

#include <exception>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// Asks a plug-in or a sensor model and releases the warning that it may return. False, with the reason in `aReason`,
/// when it warns that it has no such data and when it throws, whatever it throws: plug-ins are written by others.
template<typename Ask>
bool AskCsm(Ask aAsk, std::string& aReason)
{
    try {
        const std::unique_ptr<TSMWarning> warning(aAsk());
        if (warning == nullptr || warning->getWarning() != TSMWarning::DATA_NOT_AVAILABLE) {
            return true;
        }
        aReason = warning->getMessage();
    } catch (TSMError& error) {  // its getters are not const everywhere
        aReason = error.getMessage();
    } catch (const std::exception& exception) {
        aReason = exception.what();
    } catch (...) {
        aReason = "something was thrown that is no error of the CSM API";
    }
    return false;
}

template<typename Ask>
bool AskCsm(Ask aAsk)
{
    std::string reason;
    return AskCsm(aAsk, reason);
}

}  // namespace ORMO::SensorModel::CSM::Detail
