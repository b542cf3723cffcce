#pragma once

#include "tre/detail/TreLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

/// The one field of the tags without a public layout.
inline constexpr FieldRow NOT_PUBLIC_ROWS[] = {
    Rest("DATA", Need::Required, Form::Bytes, "", "", "Data",
         "The data of this extension as they stand in the file; no public standard says how they are laid out."),
};
inline constexpr auto NOT_PUBLIC_TABLE = MakeTable(NOT_PUBLIC_ROWS);
static_assert(NOT_PUBLIC_TABLE.wellFormed);

/// The layout of such a tag.
constexpr TreLayout NotPublicLayout(const char* aTag, const char* aName, const char* aPlacement, const char* aPurpose,
                                    const char* aSources) noexcept
{
    return {.tag = aTag,
            .name = aName,
            .length = 0,
            .lengthRule = "not public",
            .placement = aPlacement,
            .purpose = aPurpose,
            .sources = aSources,
            .certainty = LayoutCertainty::NotPublic,
            .table = NOT_PUBLIC_TABLE.View()};
}

}  // namespace ORMO::SensorModel::CSM::Detail
