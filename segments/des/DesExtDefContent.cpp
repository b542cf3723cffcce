#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// STDI-0002 Volume 2 Appendix K.
// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                  width need      form     values        unit     label
    Field("CONTENT_HEADERS_LEN", 4, Required, Integer, "0001..9794", "bytes", "Content Headers Length",
          "Length of the content headers."),
    Sized("CONTENT_HEADERS",     "CONTENT_HEADERS_LEN", 0, Required, Ecs,     "",           "",      "Content Headers",
          "Describes the content: its type, use, encoding, name and so on."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 4);

}  // namespace

DesDESSHFExtDefContent::DesDESSHFExtDefContent(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFExtDefContent::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::EXT_DEF_CONTENT, "Externally Defined Content", "5 to 9798",
                                   "DesDESSHFExtDefContent", TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
