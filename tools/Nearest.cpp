#include "tools/Nearest.h"

#include <algorithm>
#include <numeric>

namespace OrmoNitf {

namespace {

char Lower(char aCharacter) noexcept
{
    return aCharacter >= 'A' && aCharacter <= 'Z' ? static_cast<char>(aCharacter - 'A' + 'a') : aCharacter;
}

/// How many letters must be put in, left out or changed, two neighbours exchanged counting once.
std::size_t Distance(std::string_view aOne, std::string_view aOther)
{
    std::vector<std::size_t> before(aOther.size() + 1);
    std::vector<std::size_t> last(aOther.size() + 1);
    std::vector<std::size_t> row(aOther.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= aOne.size(); ++i) {
        row[0] = i;
        for (std::size_t k = 1; k <= aOther.size(); ++k) {
            const char one = Lower(aOne[i - 1]);
            const char other = Lower(aOther[k - 1]);
            row[k] = std::min({last[k] + 1, row[k - 1] + 1, last[k - 1] + (one == other ? 0U : 1U)});
            if (i > 1 && k > 1 && one == Lower(aOther[k - 2]) && other == Lower(aOne[i - 2])) {
                row[k] = std::min(row[k], before[k - 2] + 1);
            }
        }
        before.swap(last);
        last.swap(row);
    }
    return last.back();
}

}  // namespace

std::string Nearest(std::string_view aTyped, const std::vector<std::string>& aKnown)
{
    constexpr std::size_t LONGEST = 64;
    std::string nearest;
    std::size_t least = std::max<std::size_t>(1, aTyped.size() / 3) + 1;
    if (aTyped.size() > LONGEST) {
        return nearest;
    }
    for (const std::string& known : aKnown) {
        const bool isFront = aTyped.size() > 2 && aTyped.size() < known.size() &&
                             Distance(aTyped, std::string_view(known).substr(0, aTyped.size())) == 0;
        if (isFront && least > 1) {
            least = 1;
            nearest = known;
            continue;
        }
        if (const std::size_t distance = Distance(aTyped, known); distance < least) {
            least = distance;
            nearest = known;
        }
    }
    return nearest;
}

std::string DidYouMean(std::string_view aTyped, const std::vector<std::string>& aKnown)
{
    const std::string nearest = Nearest(aTyped, aKnown);
    return nearest.empty() ? nearest : " Did you mean " + nearest + "?";
}

}  // namespace OrmoNitf
