#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Where a document is written: a text that grows or, with a receiver, a text that is handed on in pieces and never
/// stands in memory as a whole.
class XmlOut
{
public:
    /// Takes the next bytes of the document; false ends the writing.
    using Receiver = std::function<bool(std::string_view)>;

    XmlOut() = default;
    explicit XmlOut(Receiver aReceiver) : m_receiver(std::move(aReceiver)) {}

    /// What is not handed on yet; writers append to it.
    std::string& Text() noexcept { return m_text; }
    /// For writers of much: hands on what has gathered when it is enough to be worth it.
    void Pass()
    {
        if (m_text.size() >= ENOUGH) {
            HandOn();
        }
    }
    /// Hands on the rest. False when the receiver refused a piece or a writer gave up.
    [[nodiscard]] bool Finish()
    {
        HandOn();
        return m_whole;
    }

    /// A place that a writer may want to come back to.
    struct Mark
    {
        std::uint64_t handedOn;
        std::size_t length;
    };
    Mark Now() const noexcept { return {m_handedOn, m_text.size()}; }
    /// Takes back what was written behind the mark. What was handed on cannot be: the document is no longer whole.
    void TakeBack(const Mark& aMark)
    {
        if (aMark.handedOn == m_handedOn) {
            m_text.resize(aMark.length);
        } else {
            m_whole = false;
        }
    }

private:
    static constexpr std::size_t ENOUGH = std::size_t{64} << 10U;

    void HandOn()
    {
        if (m_receiver) {
            m_whole = m_whole && (m_text.empty() || m_receiver(m_text));
            m_handedOn += m_text.size();
            m_text.clear();
        }
    }

    Receiver m_receiver;
    std::string m_text;
    std::uint64_t m_handedOn = 0;
    bool m_whole = true;
};

/// True when XML 1.0 can carry every byte, bytes above 127 read as Latin-1.
[[nodiscard]] bool IsXmlText(std::string_view aBytes) noexcept;

/// Appends the bytes as UTF-8 element content or attribute value: an XML parser gives the same bytes back (as Latin-1
/// code points). The bytes must be XML text.
void AppendXmlText(std::string_view aBytes, std::string& aOut);

/// Appends a blank, the name, "=" and the escaped value in double quotes. Bytes that XML cannot carry become '?'.
void AppendXmlAttribute(std::string_view aName, std::string_view aValue, std::string& aOut);
void AppendXmlAttribute(std::string_view aName, std::uint64_t aValue, std::string& aOut);

/// Closes an open start tag and appends the value and the end tag with a line feed. A value that XML cannot carry is
/// written in base64, and the start tag gets one more attribute that says so.
void AppendXmlValueAndEnd(std::string_view aElement, std::string_view aValue, std::string& aOut);

}  // namespace ORMO::SensorModel::CSM::Detail
