#pragma once

#include "../foundation/CharStrCompare.h"
#include "../foundation/Export.h"
#include "TRE.h"

#include <cstddef>
#include <map>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The TREs of one header: by tag, several of one tag in order of appearance, and all of them in order of appearance.
/// Owns its TREs and releases them through the TRE factory.
class ORMO_CSM_API TREStore
{
public:
    /// Tag to the TREs of that tag.
    using Map = std::map<const char*, std::vector<TRE*>, CharStrCompare>;

    TREStore() = default;
    ~TREStore();
    TREStore(TREStore&& aOther) noexcept;
    TREStore& operator=(TREStore&& aOther) noexcept;
    TREStore(const TREStore& aOther);
    TREStore& operator=(const TREStore& aOther);

    /// Takes the TRE over; false, with nothing taken, for null.
    bool Add(TRE* aTre);
    const Map& ByTag() const noexcept { return m_byTag; }
    const std::vector<TRE*>& InOrder() const noexcept { return m_inOrder; }
    /// The TREs of a tag, trailing blanks of the tag left out; null when there are none.
    const std::vector<TRE*>* Find(const char* aTag) const;
    std::size_t Size() const noexcept { return m_inOrder.size(); }
    bool IsEmpty() const noexcept { return m_inOrder.empty(); }
    void Clear() noexcept;
    /// Same tags with equal TREs in the same order.
    bool operator==(const TREStore& aOther) const;
    bool operator!=(const TREStore& aOther) const { return !(*this == aOther); }

private:
    Map m_byTag;  // keys are the texts of the first TRE of each tag
    std::vector<TRE*> m_inOrder;
};

}  // namespace ORMO::SensorModel::CSM
