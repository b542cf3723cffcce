#pragma once

#include "tre/SupportedTreFactory.h"
#include "tre/TRE.h"
#include "tre/detail/TreLayout.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// One tag of a group: its constants and, when it has a typed class, how to make and copy objects of it.
struct TreEntry
{
    const char* tag = nullptr;
    std::int32_t code = -1;
    TRE::Type type = TRE::TRE_TYPE_CONTROLLED_EXTENSION;
    const TreLayout& (*layout)() = nullptr;
    TRE* (*make)(const char* aData, std::size_t aLength, TRE::Type aType,
                 Util::CSMCnst::ByteOrder aByteOrder) = nullptr;
    TRE* (*clone)(const TRE& aSource) = nullptr;
    bool listed = true;  ///< false for a tag that is read through another tag's class

    constexpr bool IsTyped() const noexcept { return make != nullptr; }

    /// The same entry for a registered extension.
    constexpr TreEntry Registered() const noexcept
    {
        TreEntry entry = *this;
        entry.type = TRE::TRE_TYPE_REGISTERED_EXTENSION;
        return entry;
    }
};

/// The one place that constructs TREs: their constructors are closed to everybody else.
class TreMaker
{
public:
    template<typename Class>
    static TRE* Make(const char* aData, std::size_t aLength, TRE::Type aType, Util::CSMCnst::ByteOrder aByteOrder)
    {
        return new Class(aData, aLength, aType, aByteOrder);
    }

    template<typename Class>
    static TRE* Clone(const TRE& aSource)
    {
        return new Class(static_cast<const Class&>(aSource));
    }

    /// Sets which tag and group a typed TRE is, under which it is copied and destroyed later.
    static void SetIdentity(TRE& aTre, const char* aTag, std::int32_t aCode, SupportedTreFactory::Enum aGroup);
    /// Says where in the file the TRE was found.
    static void SetPlace(TRE& aTre, const char* aArea, std::uint64_t aFileOffset) noexcept;
    static std::unique_ptr<TRE> MakeGeneric(const char* aTag, const char* aData, std::size_t aLength, TRE::Type aType);
    static std::unique_ptr<TRE> CloneGeneric(const TRE& aSource);
};

/// A tag with a typed class.
template<typename Class>
constexpr TreEntry Typed(const char* aTag, std::int32_t aCode) noexcept
{
    return TreEntry{.tag = aTag,
                    .code = aCode,
                    .layout = &Class::Layout,
                    .make = &TreMaker::Make<Class>,
                    .clone = &TreMaker::Clone<Class>};
}

/// A tag that the group knows but has no typed class for: its TREs stay generic.
constexpr TreEntry Untyped(const char* aTag, std::int32_t aCode) noexcept
{
    return TreEntry{.tag = aTag, .code = aCode};
}

}  // namespace ORMO::SensorModel::CSM::Detail
