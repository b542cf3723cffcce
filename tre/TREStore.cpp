#include "tre/TREStore.h"

#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/Lazy.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

/// The map with keys of its own: a TRE may be assigned to while it stands in a store.
struct TagMap
{
    TREStore::Map map;
    std::unique_ptr<char[]> keys;

    explicit TagMap(const std::vector<TRE*>& aTres)
        : keys(std::make_unique<char[]>(aTres.size() * sizeof(TRE::Parts::tag)))
    {
        char* next = keys.get();
        for (TRE* const tre : aTres) {
            auto place = map.find(tre->GetTag());
            if (place == map.end()) {
                const std::string_view tag(tre->GetTag());
                std::copy(tag.begin(), tag.end(), next);  // the array is zeroed, so the NUL is there
                place = map.try_emplace(next).first;
                next += tag.size() + 1;
            }
            place->second.push_back(tre);
        }
    }
};

}  // namespace

struct ORMO_CSM_LOCAL TREStore::Contents
{
    std::vector<TRE*> tres;
    bool owns = true;  ///< else another store has the TREs
    Detail::Lazy<TagMap> byTag;

    Contents() = default;
    Contents(const Contents&) = delete;
    Contents& operator=(const Contents&) = delete;
    ~Contents()
    {
        for (TRE* const tre : tres) {
            if (owns) {
                Detail::TreReleaser()(tre);
            }
        }
    }
};

TREStore::TREStore() noexcept = default;
TREStore::~TREStore() = default;
TREStore::TREStore(TREStore&& aOther) noexcept = default;

TREStore& TREStore::operator=(TREStore&& aOther) noexcept
{
    std::swap(m_contents, aOther.m_contents);
    return *this;
}

TREStore::TREStore(const TREStore& aOther)
{
    Reserve(aOther.Size());
    for (const TRE* const source : aOther.InOrder()) {
        Detail::OwnedTre copy = Detail::TreMaker::Clone(*source);
        if (copy == nullptr) {
            throw RequestedOperationFailedException("ERROR: Failed to copy a TRE.", "TREStore::TREStore");
        }
        m_contents->tres.push_back(copy.release());
    }
}

TREStore& TREStore::operator=(const TREStore& aOther)
{
    if (this != &aOther) {
        *this = TREStore(aOther);
    }
    return *this;
}

void TREStore::Reserve(std::size_t aMore)
{
    if (m_contents == nullptr && aMore != 0) {
        m_contents = std::make_unique<Contents>();
    }
    if (aMore != 0) {
        std::vector<TRE*>& tres = m_contents->tres;
        const std::size_t wanted = tres.size() + aMore;
        if (wanted > tres.capacity()) {
            tres.reserve(std::max(wanted, tres.size() + tres.size() / 2 + 8));
        }
    }
}

bool TREStore::Add(TRE* aTre) noexcept
{
    if (aTre == nullptr) {
        return false;
    }
    try {
        Reserve(1);
    } catch (const std::bad_alloc&) {
        return false;
    }
    m_contents->tres.push_back(aTre);
    m_contents->byTag.Reset();
    return true;
}

void TREStore::Take(TREStore& aOther)
{
    if (this == &aOther || aOther.IsEmpty()) {
        return;
    }
    if (IsEmpty()) {
        std::swap(m_contents, aOther.m_contents);
        return;
    }
    Reserve(aOther.Size());
    std::vector<TRE*>& theirs = aOther.m_contents->tres;
    m_contents->tres.insert(m_contents->tres.end(), theirs.begin(), theirs.end());
    m_contents->byTag.Reset();
    theirs.clear();
    aOther.m_contents.reset();
}

void TREStore::HandOver(TREStore& aOwner)
{
    auto lent = std::make_unique<Contents>();
    lent->tres = InOrder();
    lent->owns = false;
    aOwner.Take(*this);
    m_contents = std::move(lent);
}

const TREStore::Map& TREStore::ByTag() const
{
    static const Map none;
    return m_contents == nullptr ? none : m_contents->byTag.Get([this] { return TagMap(m_contents->tres); }).map;
}

const std::vector<TRE*>& TREStore::InOrder() const noexcept
{
    static const std::vector<TRE*> none;
    return m_contents == nullptr ? none : m_contents->tres;
}

const std::vector<TRE*>* TREStore::Find(const char* aTag) const
{
    const std::string tag(Detail::Trimmed(aTag));
    const auto it = ByTag().find(tag.c_str());
    return it == ByTag().end() ? nullptr : &it->second;
}

const TRE* TREStore::First(std::string_view aTag) const noexcept
{
    const std::vector<TRE*>& tres = InOrder();
    const auto it = std::find_if(tres.begin(), tres.end(), [aTag](const TRE* aTre) { return aTag == aTre->GetTag(); });
    return it == tres.end() ? nullptr : *it;
}

void TREStore::AppendOfTag(std::string_view aTag, std::vector<const TRE*>& aFound) const
{
    const std::vector<TRE*>& tres = InOrder();
    std::copy_if(tres.begin(), tres.end(), std::back_inserter(aFound),
                 [aTag](const TRE* aTre) { return aTag == aTre->GetTag(); });
}

void TREStore::Clear() noexcept
{
    m_contents.reset();
}

bool TREStore::operator==(const TREStore& aOther) const
{
    return std::equal(ByTag().begin(), ByTag().end(), aOther.ByTag().begin(), aOther.ByTag().end(),
                      [](const Map::value_type& aLeft, const Map::value_type& aRight) {
                          return std::string_view(aLeft.first) == aRight.first &&
                                 std::equal(aLeft.second.begin(), aLeft.second.end(), aRight.second.begin(),
                                            aRight.second.end(),
                                            [](const TRE* aOne, const TRE* aTwo) { return *aOne == *aTwo; });
                      });
}

}  // namespace ORMO::SensorModel::CSM
