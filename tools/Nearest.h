#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrmoNitf {

/// The known word that is nearest to what was typed, letter case aside; empty when none is near enough to be meant.
std::string Nearest(std::string_view aTyped, const std::vector<std::string>& aKnown);

/// " Did you mean X?", or nothing when no known word is near.
std::string DidYouMean(std::string_view aTyped, const std::vector<std::string>& aKnown);

}  // namespace OrmoNitf
