#pragma once

#include "fields/FieldWalk.h"

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// A short row for tables of tests.
constexpr FieldRow F(const char* aTag, std::uint32_t aWidth, Form aForm = Form::Text, const char* aValues = "") noexcept
{
    return Field(aTag, aWidth, Need::Required, aForm, aValues, "", "");
}

constexpr FieldRow S(const char* aTag, const char* aSizeTag, std::int32_t aAdjust = 0) noexcept
{
    return Sized(aTag, aSizeTag, aAdjust, Need::Required, Form::Text, "", "", "");
}

/// All fields of a store in their order: "N=2 A_1=x A_2=y".
inline std::string Listed(const FieldStore& aStore)
{
    std::string text;
    for (const FieldEntry& entry : aStore.Entries()) {
        text += text.empty() ? "" : " ";
        text += aStore.Name(entry) + "=" + std::string(aStore.Value(entry));
    }
    return text;
}

/// What a walk leaves: its fault and the fields read.
struct Walked
{
    Walked(const FieldTable& aTable, std::string_view aBytes)
        : store(aTable), result(FieldWalk::Read(aBytes, store)), fields(Listed(store))
    {
    }

    /// The name of the field at fault; empty when there is none.
    std::string Culprit() const
    {
        std::string name;
        if (result.row == NO_ROW) {
            return name;
        }
        store.Table().AppendName(result.row, result.turns, name);
        return name;
    }

    FieldStore store;
    WalkResult result;
    std::string fields;
};

}  // namespace ORMO::SensorModel::CSM::Detail
