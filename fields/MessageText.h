#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

/// Adds a message behind a blank line, unless the text is empty; an empty message adds nothing.
inline void AppendBlock(std::string& aText, std::string_view aMessage)
{
    if (!aMessage.empty()) {
        aText += aText.empty() ? "" : "\n\n";
        aText += aMessage;
    }
}

/// Collects messages with a blank line between them, as a reader accumulates them. Capped, so that a hostile file
/// cannot flood a log; a last line says how many more there were.
class MessageText
{
public:
    static constexpr std::size_t MOST_MESSAGES = 1000;

    void Add(std::string_view aMessage)
    {
        if (aMessage.empty()) {
            return;
        }
        if (++m_count > MOST_MESSAGES) {
            return;
        }
        AppendBlock(m_text, aMessage);
    }

    bool IsEmpty() const noexcept { return m_count == 0; }
    std::size_t Count() const noexcept { return m_count; }
    void Clear() noexcept
    {
        m_text.clear();
        m_count = 0;
    }

    std::string Text() const
    {
        if (m_count <= MOST_MESSAGES) {
            return m_text;
        }
        return m_text + "\n\nWARN: " + std::to_string(m_count - MOST_MESSAGES) + " further messages are left out.";
    }

private:
    std::string m_text;
    std::size_t m_count = 0;
};

/// A name in double quotes, as the messages print fields and tags.
inline std::string Quoted(std::string_view aName)
{
    std::string quoted("\"");
    quoted += aName;
    quoted += '"';
    return quoted;
}

/// Bytes as a person can read them in a message: quoted when printable, else hexadecimal; cut after `aMost` bytes.
std::string Shown(std::string_view aBytes, std::size_t aMost = 32);

/// The text with every byte that could steer a terminal or end a line written as \xNN: control bytes, DEL and the bytes
/// above 127.
std::string Printable(std::string_view aText);

}  // namespace ORMO::SensorModel::CSM::Detail
