#include "foundation/detail/QueryMessages.h"

#include <algorithm>
#include <array>
#include <atomic>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

struct Remembered
{
    std::uint64_t identity = 0;
    std::uint64_t age = 0;
    QueryMessages::Texts texts;
};

struct Memory
{
    std::array<Remembered, 8> objects;
    std::uint64_t queries = 0;
};

Memory& OfThisThread() noexcept
{
    thread_local Memory memory;
    return memory;
}

}  // namespace

QueryMessages::QueryMessages() noexcept
{
    static std::atomic<std::uint64_t> last{0};
    m_identity = ++last;
}

QueryMessages::Texts& QueryMessages::Current() const
{
    Memory& memory = OfThisThread();
    auto* object = std::find_if(memory.objects.begin(), memory.objects.end(),
                                [this](const Remembered& aObject) { return aObject.identity == m_identity; });
    if (object == memory.objects.end()) {
        object =
            std::min_element(memory.objects.begin(), memory.objects.end(),
                             [](const Remembered& aLeft, const Remembered& aRight) { return aLeft.age < aRight.age; });
        object->identity = m_identity;
        object->texts.error.clear();
        object->texts.warning.clear();
    }
    object->age = ++memory.queries;
    return object->texts;
}

void QueryMessages::Begin() const
{
    Texts& texts = Current();
    texts.error.clear();
    texts.warning.clear();
}

const QueryMessages::Texts* QueryMessages::Find() const noexcept
{
    const Memory& memory = OfThisThread();
    const auto* const object =
        std::find_if(memory.objects.begin(), memory.objects.end(),
                     [this](const Remembered& aObject) { return aObject.identity == m_identity; });
    return object == memory.objects.end() ? nullptr : &object->texts;
}

void QueryMessages::Forget() const noexcept
{
    for (Remembered& object : OfThisThread().objects) {
        if (object.identity == m_identity) {
            object.identity = 0;
            object.age = 0;
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
