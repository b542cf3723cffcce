// make_seeds DIRECTORY: writes a directory of seeds for every target, and the dictionary of all.

#include "fuzz/Seeds.h"
#include "fuzz/Targets.h"

#include <array>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

/// A line of a dictionary.
std::string Entry(const std::string& aWord)
{
    std::string entry = "\"";
    for (const char character : aWord) {
        const auto byte = static_cast<unsigned char>(character);
        if (std::isprint(byte) != 0 && character != '"' && character != '\\') {
            entry += character;
            continue;
        }
        std::array<char, 5> text{};
        std::snprintf(text.data(), text.size(), "\\x%02X", byte);
        entry += text.data();
    }
    return entry + "\"\n";
}

void Write(const std::filesystem::path& aPath, const std::string& aBytes)
{
    std::ofstream file(aPath, std::ios::binary);
    file.exceptions(std::ios::failbit | std::ios::badbit);
    file << aBytes;
}

}  // namespace

int main(int aCount, char** aArguments)
{
    try {
        const std::filesystem::path top(aCount == 2 ? aArguments[1] : "seeds");
        for (const OrmoFuzz::Target& target : OrmoFuzz::TARGETS) {
            std::filesystem::create_directories(top / target.name);
            int number = 0;
            for (const std::string& seed : OrmoFuzz::SeedsOf(target.name)) {
                Write(top / target.name / ("seed" + std::to_string(++number)), seed);
            }
        }
        std::string dictionary;
        for (const std::string& word : OrmoFuzz::Words()) {
            dictionary += Entry(word);
        }
        Write(top / "words.dict", dictionary);
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "make_seeds: " << error.what() << '\n';
        return 1;
    }
}
