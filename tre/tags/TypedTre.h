#pragma once

#include "../../foundation/CSMCnst.h"
#include "../../foundation/Export.h"
#include "../TRE.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM::Detail {

struct TreLayout;
class TreMaker;

/// The layout of a tag that a record of that length has: the one with just this length, else the first.
ORMO_CSM_API const TreLayout& LayoutForLength(const TreLayout& aFirst, std::size_t aLength) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

// Declares the class of a tag. The classes differ only in the table behind Layout(), so one pattern declares them all:
// the tag's source its own, TreTags.h those of all tags. Objects are made by the TRE factory only.
#define ORMO_TYPED_TRE(aClass, aBase)                                                                        \
    /** The typed form of one tagged record extension; see TRE for all queries. */                           \
    class ORMO_CSM_API aClass : public aBase                                                                 \
    {                                                                                                        \
    public:                                                                                                  \
        using aBase::operator=;                                                                              \
        /** The table of this tag: the first one, when it has several for records of different lengths. */   \
        static const Detail::TreLayout& Layout();                                                            \
                                                                                                             \
    private:                                                                                                 \
        friend class Detail::TreMaker;                                                                       \
        aClass(const char* aData, std::size_t aLength, TRE::Type aType, Util::CSMCnst::ByteOrder aByteOrder) \
            : aBase(Detail::LayoutForLength(Layout(), aLength), aData, aLength, aType, aByteOrder)           \
        {                                                                                                    \
        }                                                                                                    \
        aClass(const aClass&) = default;                                                                     \
    }
