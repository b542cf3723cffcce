#pragma once

#include "../foundation/CharStrCompare.h"
#include "../foundation/Export.h"
#include "TRE.h"

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The TREs of one header: by tag, several of one tag in order of appearance, and all of them in order of appearance.
/// Owns its TREs and releases them through the TRE factory.
class ORMO_CSM_API TREStore
{
public:
    /// Tag to the TREs of that tag.
    using Map = std::map<const char*, std::vector<TRE*>, CharStrCompare>;

    TREStore() noexcept;
    ~TREStore();
    TREStore(TREStore&& aOther) noexcept;
    TREStore& operator=(TREStore&& aOther) noexcept;
    /// Raises RequestedOperationFailedException when a special provider refuses to copy a TRE of its own.
    TREStore(const TREStore& aOther);
    TREStore& operator=(const TREStore& aOther);

    /// Takes the TRE over; false, with nothing taken, for null and when memory is short.
    bool Add(TRE* aTre) noexcept;
    /// Takes all TREs of another store over, behind its own; the other one is empty afterwards. When memory is short
    /// both stay as they are.
    void Take(TREStore& aOther);
    /// Hands all TREs over to another store, behind its own, and goes on answering from them as long as that one has
    /// them; copies have TREs of their own. When memory is short both stay as they are.
    void HandOver(TREStore& aOwner);
    /// Makes room for that many more, so that Add does not fail. Raises std::bad_alloc.
    void Reserve(std::size_t aMore);
    /// Built when it is first asked for; lives until a TRE is added or the store is cleared.
    const Map& ByTag() const;
    const std::vector<TRE*>& InOrder() const noexcept;
    /// The first TRE of a tag; null when there is none. Looks at one after another, so nothing is built for it.
    const TRE* First(std::string_view aTag) const noexcept;
    /// Appends all TREs of a tag, in the same way.
    void AppendOfTag(std::string_view aTag, std::vector<const TRE*>& aFound) const;
    /// The TREs of a tag, blanks around it left out; null when there are none. Lives as long as the map.
    const std::vector<TRE*>* Find(const char* aTag) const;
    std::size_t Size() const noexcept { return InOrder().size(); }
    bool IsEmpty() const noexcept { return InOrder().empty(); }
    void Clear() noexcept;
    /// Same tags with equal TREs in the same order.
    bool operator==(const TREStore& aOther) const;
    bool operator!=(const TREStore& aOther) const { return !(*this == aOther); }

private:
    struct Contents;

    std::unique_ptr<Contents> m_contents;  // null until there is a TRE
};

}  // namespace ORMO::SensorModel::CSM
