#pragma once

#include <string>
#include <string_view>

namespace OrmoNitf {

/// A text in UTF-8 as it stands between the tags, or in an attribute, of HTML and XML.
std::string Html(std::string_view aText);

/// A whole page that is HTML and XML at once, asks for nothing from anywhere, and is light or dark as the reader's
/// system is. `aBody` is markup.
std::string HtmlPage(const std::string& aTitle, const std::string& aBody);

}  // namespace OrmoNitf
