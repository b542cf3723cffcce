#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "TreRPC00.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

namespace Detail {
struct TreLayout;
class TreMaker;
}  // namespace Detail

/// The typed form of RPC00B, and of RPC00A, whose fields are the same; the tag tells which one an object is.
class ORMO_CSM_API TreRPC00B : public TreRPC00
{
public:
    using TreRPC00::operator=;
    /// The table of this tag.
    static const Detail::TreLayout& Layout();

private:
    friend class Detail::TreMaker;
    TreRPC00B(const char* aData, std::size_t aLength, TRE::Type aType, Util::CSMCnst::ByteOrder aByteOrder)
        : TreRPC00(Layout(), aData, aLength, aType, aByteOrder)
    {
    }
    TreRPC00B(const TreRPC00B&) = default;
};

}  // namespace ORMO::SensorModel::CSM
