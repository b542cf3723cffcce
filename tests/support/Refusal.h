#pragma once

#include "foundation/CSMException.h"

#include <exception>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {

/// The text with which an action is refused; empty when it is not.
template<typename Action>
std::string RefusalOf(Action aAction)
{
    try {
        aAction();
    } catch (const CSMException& exception) {
        const char* const text = exception.GetAdditionalMessage();
        return text == nullptr || *text == '\0' ? "refused without a text" : text;
    } catch (const std::exception& exception) {
        return exception.what();
    }
    return {};
}

}  // namespace ORMO::SensorModel::CSM::Tests
