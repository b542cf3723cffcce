#include "fuzz/Check.h"

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>

#include <expat.h>
#include <nlohmann/json.hpp>
#include <sys/mman.h>
#include <unistd.h>

// There with a sanitizer only.
extern "C" {
[[gnu::weak]] int __sanitizer_install_malloc_and_free_hooks(void (*aMalloc)(const volatile void*, std::size_t),
                                                            void (*aFree)(const volatile void*));
[[gnu::weak]] std::size_t __sanitizer_get_allocated_size(const volatile void* aBlock);
}

namespace OrmoFuzz {

namespace {

std::atomic<bool> theWatch{false};
std::atomic<std::int64_t> theBytes{0};
std::atomic<std::int64_t> thePeak{0};
std::atomic<std::size_t> theLargest{0};

void NoteMalloc(const volatile void* /*aBlock*/, std::size_t aSize)
{
    if (theWatch) {
        theBytes += static_cast<std::int64_t>(aSize);
        thePeak = std::max(thePeak.load(), theBytes.load());
        theLargest = std::max(theLargest.load(), aSize);
    }
}

void NoteFree(const volatile void* aBlock)
{
    if (theWatch && aBlock != nullptr) {
        theBytes -= static_cast<std::int64_t>(__sanitizer_get_allocated_size(aBlock));
    }
}

bool HasHooks()
{
    static const bool installed = __sanitizer_install_malloc_and_free_hooks != nullptr &&
                                  __sanitizer_install_malloc_and_free_hooks(NoteMalloc, NoteFree) != 0;
    return installed;
}

}  // namespace

void Require(bool aHolds, std::string_view aText)
{
    if (!aHolds) {
        std::fprintf(stderr, "DOES NOT HOLD: %.*s\n", static_cast<int>(aText.size()), aText.data());
        std::abort();
    }
}

void RequireXml(std::string_view aDocument)
{
    const XML_Parser parser = XML_ParserCreate(nullptr);
    const bool isGood = XML_Parse(parser, aDocument.data(), static_cast<int>(aDocument.size()), 1) == XML_STATUS_OK;
    const std::string fault = isGood ? "" : XML_ErrorString(XML_GetErrorCode(parser));
    XML_ParserFree(parser);
    Require(isGood, "the XML can be read: " + fault);
}

void RequireXmlElements(std::string_view aElements)
{
    RequireXml(std::string("<all>").append(aElements).append("</all>"));
}

void RequireJson(std::string_view aLines)
{
    while (!aLines.empty()) {
        const std::string_view line = aLines.substr(0, aLines.find('\n'));
        Require(nlohmann::json::accept(line), "the JSON can be read");
        aLines.remove_prefix(std::min(line.size() + 1, aLines.size()));
    }
}

void RequireNoControls(std::string_view aText)
{
    const auto isControl = [](char aByte) {
        const auto byte = static_cast<unsigned char>(aByte);
        return (byte < 0x20 && aByte != '\n') || byte == 0x7F;
    };
    Require(std::none_of(aText.begin(), aText.end(), isControl), "the text has no control byte");
}

AllocationWatch::AllocationWatch(std::size_t aInput) : m_input(aInput)
{
    theBytes = 0;
    thePeak = 0;
    theLargest = 0;
    theWatch = HasHooks();
}

AllocationWatch::~AllocationWatch()
{
    theWatch = false;
    Require(thePeak <= static_cast<std::int64_t>(MOST(m_input)),
            "memory stays in proportion: " + std::to_string(thePeak) + " bytes for " + std::to_string(m_input));
    Require(theLargest <= LARGEST(m_input),
            "no block is too large: " + std::to_string(theLargest) + " bytes for " + std::to_string(m_input));
}

const std::string& PathOf(std::string_view aBytes)
{
    static const int descriptor = memfd_create("fuzz", 0);
    static const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    const auto size = static_cast<off_t>(aBytes.size());
    Require(ftruncate(descriptor, 0) == 0 && pwrite(descriptor, aBytes.data(), aBytes.size(), 0) == size,
            "there is room for a file in memory");
    return path;
}

}  // namespace OrmoFuzz
