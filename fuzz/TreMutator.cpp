// Changes an extension area record by record, so that lengths stay true and faults of the data are met, not only those
// of the frame around them.

#include "tests/support/NitfBuilder.h"

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* aData, std::size_t aSize, std::size_t aMost);

namespace {

constexpr std::size_t TAG = 6;
constexpr std::size_t HEAD = 11;

struct Record
{
    std::string tag;
    std::string data;
};

/// What follows from tags and lengths; the rest of an area that ends within a record is the data of the last.
std::vector<Record> Cut(std::string_view aArea)
{
    std::vector<Record> records;
    while (aArea.size() >= HEAD) {
        std::size_t length = 0;
        for (const char digit : aArea.substr(TAG, HEAD - TAG)) {
            length = length * 10 + static_cast<std::size_t>(std::clamp(digit - '0', 0, 9));
        }
        const std::string_view data = aArea.substr(HEAD, length);
        records.push_back({std::string(aArea.substr(0, TAG)), std::string(data)});
        aArea.remove_prefix(HEAD + data.size());
    }
    return records;
}

std::string Mutated(std::string aBytes, std::size_t aMost)
{
    const std::size_t size = aBytes.size();
    aBytes.resize(std::max(aMost, size));
    aBytes.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(aBytes.data()), size, aBytes.size()));
    return aBytes;
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* aData, std::size_t aSize, std::size_t aMost,
                                               unsigned int aSeed)
{
    std::minstd_rand random(aSeed);
    const auto pick = [&](std::size_t aBound) { return static_cast<std::size_t>(random()) % aBound; };
    std::vector<Record> records = Cut({reinterpret_cast<const char*>(aData), aSize});
    if (records.empty() || pick(8) == 0) {
        return LLVMFuzzerMutate(aData, aSize, aMost);  // the frame itself
    }
    Record& chosen = records[pick(records.size())];
    switch (pick(12)) {
        case 0:
            chosen.tag = Mutated(chosen.tag, TAG);
            chosen.tag.resize(TAG, ' ');
            break;
        case 1:
            records.push_back(Record(chosen));
            break;
        case 2:
            std::swap(chosen, records[pick(records.size())]);
            break;
        case 3:
            chosen.data.resize(pick(chosen.data.size() + 1));
            break;
        case 4:
            chosen.data += chosen.data.substr(0, pick(chosen.data.size() + 1));
            break;
        default:
            chosen.data = Mutated(chosen.data, chosen.data.size() + 64);
            break;
    }
    std::string area;
    for (const Record& record : records) {
        area += ORMO::SensorModel::CSM::Tests::Tre(record.tag, record.data.substr(0, 99999));
    }
    area.resize(std::min(area.size(), aMost));
    std::copy(area.begin(), area.end(), aData);
    return area.size();
}
