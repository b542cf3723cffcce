#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// STDI-0002 Volume 2 Appendix J.
// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag    width need      form     values    unit label
    Field("INDES", 3, Required, Integer, "0..998", "", "DES Position",
          "Number of this piece of the LAS file, counted from zero."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 3);

}  // namespace

DesDESSHFLIDARA::DesDESSHFLIDARA(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFLIDARA::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::LIDARA, "Light Detection and Ranging", "3", "DesDESSHFLIDARA",
                                   TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
