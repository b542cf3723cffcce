#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace OrmoFuzz {

/// Ends the process, as a fuzzer wants it, when something does not hold; the text goes to standard error.
void Require(bool aHolds, std::string_view aText);

/// Requires that a text is a whole XML document. Elements without a root of their own are given one.
void RequireXml(std::string_view aDocument);
void RequireXmlElements(std::string_view aElements);
/// Requires one JSON document a line.
void RequireJson(std::string_view aLines);
/// Requires that nothing in a text could steer a terminal.
void RequireNoControls(std::string_view aText);

/// Watches what is allocated while it lives; at its end all of it, and each block, must be in proportion to the bytes
/// of the input. Only a sanitizer tells of allocations; without one nothing is watched.
class AllocationWatch
{
public:
    explicit AllocationWatch(std::size_t aInput);
    ~AllocationWatch();
    AllocationWatch(const AllocationWatch&) = delete;
    AllocationWatch& operator=(const AllocationWatch&) = delete;

    /// What a file may take: 8 MB and twenty times the bytes of its headers and extensions.
    static constexpr std::size_t MOST(std::size_t aInput) { return (std::size_t{8} << 20U) + 20 * aInput; }
    /// One block: a table that is made once, a block of output, or a list that grows with the input.
    static constexpr std::size_t LARGEST(std::size_t aInput) { return (std::size_t{256} << 10U) + 20 * aInput; }

private:
    std::size_t m_input;
};

/// The bytes as a file that lives in memory, where they replace those of the call before. Answers its path.
const std::string& PathOf(std::string_view aBytes);

}  // namespace OrmoFuzz
