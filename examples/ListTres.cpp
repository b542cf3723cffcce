// Lists every TRE of a file with what its fields say.
//
// ormo-example-tres FILE

#include "ormo/nitf.hpp"

#include <iostream>

int main(int aCount, char** aArguments)
{
    try {
        const ormo::nitf::File file(aCount > 1 ? aArguments[1] : "");
        std::vector<ormo::nitf::Segment> segments = file.segments();
        segments.insert(segments.begin(), file.header());
        for (const ormo::nitf::Segment& segment : segments) {
            for (const ormo::nitf::Tre& tre : segment.tres()) {
                std::cout << segment.word() << ' ' << segment.index() << ": " << tre.tag() << ", " << tre.long_name()
                          << ", " << tre.data().size() << " bytes\n";
                for (const ormo::nitf::Field& field : tre.fields()) {
                    const ormo::nitf::FieldInfo info = field.info();
                    std::cout << "  " << field.name() << " (" << info.longName << "): " << field.meaning()
                              << (info.unit.empty() ? "" : ' ' + info.unit) << '\n';
                }
            }
        }
        return 0;
    } catch (const ormo::nitf::Error& error) {
        std::cerr << error.what() << '\n';
    }
    return 1;
}
