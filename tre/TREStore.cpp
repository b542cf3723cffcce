#include "tre/TREStore.h"

#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "tre/TREFactory.h"

#include <algorithm>
#include <string>
#include <utility>

namespace ORMO::SensorModel::CSM {

TREStore::~TREStore()
{
    Clear();
}

TREStore::TREStore(TREStore&& aOther) noexcept
    : m_byTag(std::exchange(aOther.m_byTag, {})), m_inOrder(std::exchange(aOther.m_inOrder, {}))
{
}

TREStore& TREStore::operator=(TREStore&& aOther) noexcept
{
    std::swap(m_byTag, aOther.m_byTag);
    std::swap(m_inOrder, aOther.m_inOrder);
    return *this;
}

TREStore::TREStore(const TREStore& aOther)
{
    for (const TRE* const source : aOther.m_inOrder) {
        TRE* copy = nullptr;
        if (!TREFactory::CloneTRE(*source, &copy) || !Add(copy)) {
            TREFactory::Destroy(&copy);
            Clear();
            throw RequestedOperationFailedException("ERROR: Failed to copy a TRE.", "TREStore::TREStore");
        }
    }
}

TREStore& TREStore::operator=(const TREStore& aOther)
{
    if (this != &aOther) {
        *this = TREStore(aOther);
    }
    return *this;
}

bool TREStore::Add(TRE* aTre)
{
    if (aTre == nullptr) {
        return false;
    }
    m_inOrder.reserve(m_inOrder.size() + 1 > m_inOrder.capacity() ? 2 * m_inOrder.size() + 8 : m_inOrder.capacity());
    m_byTag[aTre->GetTag()].push_back(aTre);
    m_inOrder.push_back(aTre);
    return true;
}

const std::vector<TRE*>* TREStore::Find(const char* aTag) const
{
    const std::string tag(Detail::Trimmed(aTag));
    const auto it = m_byTag.find(tag.c_str());
    return it == m_byTag.end() ? nullptr : &it->second;
}

void TREStore::Clear() noexcept
{
    m_byTag.clear();  // its keys are texts of the TREs
    for (TRE*& tre : m_inOrder) {
        TREFactory::Destroy(&tre);
    }
    m_inOrder.clear();
}

bool TREStore::operator==(const TREStore& aOther) const
{
    return std::equal(m_byTag.begin(), m_byTag.end(), aOther.m_byTag.begin(), aOther.m_byTag.end(),
                      [](const Map::value_type& aLeft, const Map::value_type& aRight) {
                          return std::string_view(aLeft.first) == aRight.first &&
                                 std::equal(aLeft.second.begin(), aLeft.second.end(), aRight.second.begin(),
                                            aRight.second.end(),
                                            [](const TRE* aOne, const TRE* aTwo) { return *aOne == *aTwo; });
                      });
}

}  // namespace ORMO::SensorModel::CSM
