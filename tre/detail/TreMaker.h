#pragma once

#include "fields/FieldRecord.h"
#include "tre/SupportedTreFactory.h"
#include "tre/TRE.h"
#include "tre/detail/TreFault.h"
#include "tre/detail/TreLayout.h"
#include "tre/groups/SupportedTreGroup.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class SupportedTRE;

/// One tag of a group: its constants and, when it has a typed class, how to make objects of it.
struct ORMO_CSM_LOCAL SupportedTreGroup::Entry
{
    const char* tag = nullptr;
    std::int32_t code = -1;
    TRE::Type type = TRE::TRE_TYPE_CONTROLLED_EXTENSION;
    const Detail::TreLayout& (*layout)() = nullptr;
    TRE* (*make)(TRE::Parts& aParts) = nullptr;
    bool listed = true;  ///< false for a tag that is read through another tag's class

    constexpr bool IsTyped() const noexcept { return make != nullptr; }

    /// The same entry for a registered extension.
    constexpr Entry Registered() const noexcept
    {
        Entry entry = *this;
        entry.type = TRE::TRE_TYPE_REGISTERED_EXTENSION;
        return entry;
    }
};

namespace Detail {

using TreEntry = SupportedTreGroup::Entry;

/// Releases a TRE as its maker wants it.
struct TreReleaser
{
    void operator()(TRE* aTre) const noexcept;
};
using OwnedTre = std::unique_ptr<TRE, TreReleaser>;

/// What the registry knows of a tag.
struct KnownTag
{
    const TreEntry* entry = nullptr;  ///< of the group with a fixed list that knows it
    SupportedTreFactory::Enum group = SupportedTreFactory::UNKNOWN;
    const SupportedTRE* special = nullptr;  ///< the special providers, when one of them makes the tag

    TRE::Type TypeOr(const char* aTag, TRE::Type aUnknown) const;
};

/// The one look-up of a tag; blanks around it are left out.
KnownTag FindKnown(const char* aTag);

/// One TRE to be made.
struct TreRecord
{
    const char* tag = "";
    std::string_view header;  ///< tag and length as received; empty when they are not known
    std::string_view data;
    TRE::Type type = TRE::TRE_TYPE_UNKNOWN;  ///< of a generic TRE
    Util::CSMCnst::ByteOrder order = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
};

/// The one place that makes TREs. Data that do not fit a layout raise nothing: the fault says why there is no typed
/// TRE.
class TreMaker
{
public:
    template<typename Class>
    static TRE* Construct(TRE::Parts& aParts)
    {
        return new Class(aParts);
    }

    /// The typed TRE, or, unless `aTypedOnly`, a generic one with the fault told; null when there is neither. With
    /// `aValidate` the values must be allowed too. Raises std::invalid_argument for a tag or data that no record can
    /// hold.
    static OwnedTre Make(const KnownTag& aKnown, const TreRecord& aRecord, bool aTypedOnly, bool aValidate,
                         TreFault& aFault);
    /// A copy of the same class; null when the maker of the source refuses.
    static OwnedTre Clone(const TRE& aSource);
    /// Whether a record of the layout can have that many bytes of data.
    static TreFault CheckLength(std::size_t aLength, const TreLayout& aLayout);
    /// Cuts data into the fields of a record of that layout; on a fault the record is of no use.
    static TreFault Fit(FieldRecord& aFields, std::string_view aData, const TreLayout& aLayout);
    /// Says where in the file the TRE was found; the name must live as long as the process.
    static void SetPlace(TRE& aTre, const char* aArea, std::uint64_t aFileOffset) noexcept;
    /// Sets who made the TRE of a special provider.
    static void SetMaker(TRE& aTre, SupportedTreFactory::Enum aMaker) noexcept;
    /// Holds every field against its row; the findings start from `aPlace`, which says segment and the like.
    static void Check(const TRE& aTre, Finding aPlace, FindingList& aFindings);
};

/// A tag with a typed class.
template<typename Class>
constexpr TreEntry Typed(const char* aTag, std::int32_t aCode) noexcept
{
    return TreEntry{.tag = aTag, .code = aCode, .layout = &Class::Layout, .make = &TreMaker::Construct<Class>};
}

/// A tag that the group knows but has no typed class for: its TREs stay generic.
constexpr TreEntry Untyped(const char* aTag, std::int32_t aCode) noexcept
{
    return TreEntry{.tag = aTag, .code = aCode};
}

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM
