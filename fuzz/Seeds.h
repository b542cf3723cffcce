#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrmoFuzz {

/// Good inputs of a target, made from the tables and by the builder of the tests: a record for every tag, every kind of
/// header, small files.
std::vector<std::string> SeedsOf(std::string_view aTarget);

/// The words of the tables: tags, marks, identifiers and the values that rows allow.
std::vector<std::string> Words();

}  // namespace OrmoFuzz
