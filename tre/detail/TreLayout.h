#pragma once

#include "fields/FieldTable.h"
#include "tre/TRE.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// How sure a layout is; shown to the user by the help.
enum class LayoutCertainty : std::uint8_t
{
    Agreed,     ///< two or more independent sources agree on every width
    OneSource,  ///< one source
    Recalled,   ///< written down from memory of the standard
    NotPublic   ///< no public layout: the data are kept whole as one field named DATA
};

using TreLayout = TRE::Layout;

}  // namespace ORMO::SensorModel::CSM::Detail

/// All that is known of one tag: what its help says and how its data are cut into fields.
struct ORMO_CSM_LOCAL ORMO::SensorModel::CSM::TRE::Layout
{
    const char* tag;
    const char* name;        ///< long name
    std::uint32_t length;    ///< bytes of data when fixed; 0 when variable
    const char* lengthRule;  ///< how a variable length comes about; "" when fixed
    const char* placement;   ///< where the standard places it
    const char* purpose;
    const char* sources;  ///< what the layout rests on, separated by "; "
    Detail::LayoutCertainty certainty;
    Detail::FieldTable table;
    const char* notes = "";  ///< where sources disagree and which one is followed; what a user should know besides
    const Layout* other = nullptr;  ///< a further layout of the same tag; which one a record has, its length tells
};

namespace ORMO::SensorModel::CSM::Detail {

/// The layout of a tag that a record has: the first one that its length fits exactly, else the first.
const TreLayout& LayoutOfRecord(const TreLayout& aFirst, std::string_view aData, Util::CSMCnst::ByteOrder aOrder);

}  // namespace ORMO::SensorModel::CSM::Detail
