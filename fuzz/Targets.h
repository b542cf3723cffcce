#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace OrmoFuzz {

/// Any bytes as a file: opened or, when refused, salvaged; asked everything, written as XML and JSON, told, validated,
/// copied; or refused with a reason.
void RunFile(std::string_view aBytes);
/// The first byte chooses one of the kinds of headers, the next two say how many bytes at the end are its data; the
/// rest is the header.
void RunHeader(std::string_view aBytes);
/// An extension area: cut into TREs, each of which gives its bytes back.
void RunTre(std::string_view aBytes);
/// A recipe for a file whose TREs overflow: see OverflowTarget.cpp.
void RunOverflow(std::string_view aBytes);
/// A metafile: told in clear text, as XML and as SVG, and as the data of a graphic.
void RunCgm(std::string_view aBytes);
/// A properties file, read in both ways.
void RunProperties(std::string_view aBytes);

struct Target
{
    const char* name;
    void (*run)(std::string_view aBytes);
};

inline constexpr Target TARGETS[] = {{"file", RunFile},         {"header", RunHeader}, {"tre", RunTre},
                                     {"overflow", RunOverflow}, {"cgm", RunCgm},       {"properties", RunProperties}};

}  // namespace OrmoFuzz
