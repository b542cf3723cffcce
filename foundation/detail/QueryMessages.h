#pragma once

#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// The error and warning texts of the last query of an object. Queries of const objects may come from several threads
/// at once, so each thread has its own: whoever asks reads what his own query said. Of the objects that a thread asked,
/// the last few are remembered.
class QueryMessages
{
public:
    struct Texts
    {
        std::string error;
        std::string warning;
    };

    QueryMessages() noexcept;
    // A copy of an object has been asked nothing yet.
    QueryMessages(const QueryMessages&) noexcept : QueryMessages() {}
    QueryMessages& operator=(const QueryMessages&) noexcept { return *this; }

    /// Begins a query: its texts are empty, and stand in place of those that the object itself keeps.
    void Begin() const;
    /// The texts of this thread's present query; a new one when it has asked none.
    Texts& Current() const;
    /// The texts of this thread's last query; null when it has not asked this object lately.
    const Texts* Find() const noexcept;
    /// Ends what this thread's queries said.
    void Forget() const noexcept;

private:
    std::uint64_t m_identity;
};

}  // namespace ORMO::SensorModel::CSM::Detail
