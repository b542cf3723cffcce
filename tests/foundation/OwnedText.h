#pragma once

#include "foundation/CSMUtilString.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {
/// Owns a text that an operation hands out.
/// It starts with a pointer that is not null, so that an operation that leaves its output as it was is noticed.
template<typename Character>
class OwnedText
{
public:
    OwnedText() = default;
    ~OwnedText()
    {
        if (m_text != &m_untouched) {
            delete[] m_text;
        }
    }
    OwnedText(const OwnedText&) = delete;
    OwnedText& operator=(const OwnedText&) = delete;

    Character** Out() { return &m_text; }
    const Character* Get() const { return m_text; }
    bool IsNull() const { return m_text == nullptr; }
    std::basic_string<Character> Str() const { return m_text == nullptr ? std::basic_string<Character>() : m_text; }

private:
    Character m_untouched = 'U';
    Character* m_text = &m_untouched;
};

using Text = OwnedText<char>;
using WideText = OwnedText<wchar_t>;
}  // namespace ORMO::SensorModel::CSM::Tests
