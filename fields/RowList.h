#pragma once

#include "fields/FieldRow.h"

#include <algorithm>
#include <cstddef>

namespace ORMO::SensorModel::CSM::Detail {

/// The rows of a table put together from parts, for tables that share some of their rows.
template<std::size_t N>
struct RowList
{
    FieldRow rows[N];
};

template<std::size_t... Ns>
constexpr RowList<(Ns + ...)> JoinRows(const FieldRow (&... aParts)[Ns])
{
    RowList<(Ns + ...)> list{};
    FieldRow* next = list.rows;
    ((next = std::copy_n(aParts, Ns, next)), ...);
    return list;
}

/// The same rows for a place under a condition: required fields become conditional ones.
template<std::size_t N>
constexpr RowList<N> InCondition(const FieldRow (&aRows)[N])
{
    RowList<N> list{};
    std::transform(aRows, aRows + N, list.rows, [](FieldRow aRow) {
        if (aRow.need == Need::Required) {
            aRow.need = Need::Conditional;
        } else if (aRow.need == Need::RequiredBlank) {
            aRow.need = Need::ConditionalBlank;
        }
        return aRow;
    });
    return list;
}

/// The same rows, each often blank in real files: see FieldRow::OftenBlank.
template<std::size_t N>
constexpr RowList<N> OftenBlank(const FieldRow (&aRows)[N])
{
    RowList<N> list{};
    std::transform(aRows, aRows + N, list.rows,
                   [](const FieldRow& aRow) { return aRow.IsField() ? aRow.OftenBlank() : aRow; });
    return list;
}

}  // namespace ORMO::SensorModel::CSM::Detail
