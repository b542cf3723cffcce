#include "segments/des/NITF20DESSubheader.h"
#include "segments/des/NITF21DESSubheader.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/NITF20FileHeader.h"
#include "segments/fileheader/NITF21FileHeader.h"
#include "segments/graphic/NITF21GraphicSubheader.h"
#include "segments/image/NITF20ImageSubheader.h"
#include "segments/image/NITF21ImageSubheader.h"
#include "segments/label/NITF20LabelSubheader.h"
#include "segments/res/NITF20RESSubheader.h"
#include "segments/res/NITF21RESSubheader.h"
#include "segments/symbol/NITF20SymbolSubheader.h"
#include "segments/text/NITF20TextSubheader.h"
#include "segments/text/NITF21TextSubheader.h"

#include <memory>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Input = NITFFieldSegment::Input;

/// A version class of a kind of segment: its layout, which says which, and how to make, copy and compare one.
struct SegmentClass
{
    const NITFFieldSegment::Layout* layout;
    std::unique_ptr<NITFFieldSegment> (*make)(Input& aInput);
    std::unique_ptr<NITFFieldSegment> (*copy)(const NITFFieldSegment& aSegment);
    bool (*equal)(const NITFFieldSegment& aLeft, const NITFFieldSegment& aRight);
};

template<typename Class>
SegmentClass Of() noexcept
{
    return {&Class::GetLayout(),
            [](Input& aInput) -> std::unique_ptr<NITFFieldSegment> {
                if constexpr (std::is_constructible_v<Class, Input&>) {
                    return std::make_unique<Class>(aInput);
                } else {
                    return std::make_unique<Class>(std::move(aInput));
                }
            },
            [](const NITFFieldSegment& aSegment) -> std::unique_ptr<NITFFieldSegment> {
                return std::make_unique<Class>(static_cast<const Class&>(aSegment));
            },
            [](const NITFFieldSegment& aLeft, const NITFFieldSegment& aRight) {
                return static_cast<const Class&>(aLeft) == static_cast<const Class&>(aRight);
            }};
}

const SegmentClass* FindClass(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    static const SegmentClass classes[] = {
        Of<NITF20FileHeader>(),       Of<NITF21FileHeader>(),      Of<NITF20ImageSubheader>(),
        Of<NITF21ImageSubheader>(),   Of<NITF20TextSubheader>(),   Of<NITF21TextSubheader>(),
        Of<NITF20DESSubheader>(),     Of<NITF21DESSubheader>(),    Of<NITF20RESSubheader>(),
        Of<NITF21RESSubheader>(),     Of<NITF20SymbolSubheader>(), Of<NITF20LabelSubheader>(),
        Of<NITF21GraphicSubheader>(),
    };
    for (const SegmentClass& one : classes) {
        if (one.layout->kind->kind == aKind && one.layout->kind->version == LayoutVersion(aVersion)) {
            return &one;
        }
    }
    return nullptr;
}

}  // namespace

std::unique_ptr<NITFFieldSegment> MakeSegment(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion,
                                              Input& aInput)
{
    const SegmentClass* const one = FindClass(aKind, aVersion);
    return one == nullptr ? nullptr : one->make(aInput);
}

namespace {

const SegmentClass& ClassOf(const NITFFieldSegment& aSegment) noexcept
{
    const SegmentKind& kind = *aSegment.Inside().layout->kind;
    return *FindClass(kind.kind, kind.version);
}

}  // namespace

std::unique_ptr<NITFFieldSegment> CopySegment(const NITFFieldSegment& aSegment)
{
    return ClassOf(aSegment).copy(aSegment);
}

bool AreEqual(const NITFFieldSegment& aLeft, const NITFFieldSegment& aRight)
{
    return &ClassOf(aLeft) == &ClassOf(aRight) && ClassOf(aLeft).equal(aLeft, aRight);
}

const NITFFieldSegment::Layout* LayoutOf(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    const SegmentClass* const one = FindClass(aKind, aVersion);
    return one == nullptr ? nullptr : one->layout;
}

}  // namespace ORMO::SensorModel::CSM::Detail
