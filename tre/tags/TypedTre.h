#pragma once

#include "../../foundation/Export.h"
#include "../TRE.h"

// Declares the class of a tag. The classes differ only in the table behind Layout(), so one pattern declares them all:
// the tag's source its own, TreTags.h those of all tags. Objects are made by the TRE factory only: nobody else has
// parts to make them of.
#define ORMO_TYPED_TRE(aClass, aBase)                                                                  \
    /** The typed form of one tagged record extension; see TRE for all queries. */                     \
    class ORMO_CSM_API aClass : public aBase                                                           \
    {                                                                                                  \
    public:                                                                                            \
        explicit aClass(Parts& aParts) noexcept : aBase(aParts) {}                                     \
        using aBase::operator=;                                                                        \
        /** The table of this tag; the first, when it has several for records of different lengths. */ \
        static const TRE::Layout& Layout();                                                            \
    }
