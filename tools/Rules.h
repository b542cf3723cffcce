#pragma once

#include <string>

namespace OrmoNitf {

/// Says on standard error that there is no rule of that name, and which one may be meant.
void PrintNoRule(const std::string& aId);

}  // namespace OrmoNitf
