#pragma once

#include "fields/FieldWalk.h"
#include "fields/FindingList.h"
#include "tre/detail/TreLayout.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Why data did not become a typed TRE, as data: the texts are made when somebody wants them.
struct TreFault
{
    enum class Kind : std::uint8_t
    {
        None,
        TooLong,   ///< more data than a length field can say
        Length,    ///< not the length of the layout
        Fields,    ///< the walk stopped
        Values,    ///< values that the standard does not allow
        Provider,  ///< a special provider refused
        NoTag      ///< a tag of white space
    };

    Kind kind = Kind::None;
    const TreLayout* layout = nullptr;
    std::uint64_t expected = 0;  ///< bytes of a length, else fields
    std::uint64_t found = 0;
    WalkResult walk;
    std::string text;  ///< the lines of all values, or what the provider said

    bool IsGood() const noexcept { return kind == Kind::None; }

    /// What the exceptions say that constructors raise.
    std::string Message(std::string_view aTag) const;
    /// What the factory says of a TRE that is not typed for that reason.
    std::string Cause(std::string_view aTag) const;
    /// Raises as a constructor does.
    [[noreturn]] void Throw(std::string_view aTag) const;
    /// Adds to a finding what is known of the reason. When the walk stopped at a field, the finding's offset is that of
    /// the data and becomes that of the field.
    void Describe(Finding& aFinding) const;
};

/// More data than a length field can say.
TreFault TooLong(std::size_t aLength);

/// "\nError message = "..."" for a message that there is.
std::string ErrorMessage(const char* aMessage);

/// A list of names and widths that goes beyond the data.
std::string NotExtracted(std::string_view aTag, std::uint64_t aExpected, std::uint64_t aExtracted);

}  // namespace ORMO::SensorModel::CSM::Detail
