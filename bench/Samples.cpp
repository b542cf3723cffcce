#include "bench/Samples.h"

#include "tests/support/NitfBuilder.h"

namespace ORMO::SensorModel::CSM::Bench {

using Tests::NitfBuilder;
using Tests::Padded;
using Tests::Tre;

std::string AreaOfFiveTres()
{
    return Tre("BLOCKA", std::string(123, '0')) + Tre("RPC00B", std::string(1041, '0')) +
           Tre("USE00A", std::string(107, '0')) + Tre("STDIDC", std::string(89, '0')) +
           Tre("ICHIPB", std::string(224, '0'));
}

std::string Bandsb(unsigned aBands)
{
    std::string data = Padded(aBands, 5) + "REFLECTANCE             " + "F" + std::string(8, '\0') +
                       "0001.00M0001.00M0001.00M0001.00M" + std::string(48, ' ');
    data += std::string("\x09\x80\0\0", 4) + "U";  // BAD_BAND, CWAVE and FWHM, in micrometres
    for (unsigned i = 0; i != aBands; ++i) {
        data +=
            "0"
            "0.50000"
            "0.01000";
    }
    return Tre("BANDSB", data);
}

std::string FileOfImages(unsigned aImages)
{
    NitfBuilder builder;
    for (unsigned i = 0; i != aImages; ++i) {
        builder.AddImage().Area("IXSHD", AreaOfFiveTres());
    }
    return builder.Bytes();
}

std::string FileOf25Tres()
{
    std::string area;
    for (int i = 0; i != 5; ++i) {
        area += AreaOfFiveTres();
    }
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", area);
    return builder.Bytes();
}

std::string FileWithOverflow()
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", "", 1);
    builder.AddOverflow("IXSHD", 1, AreaOfFiveTres());
    return builder.Bytes();
}

std::string FileOfTexts(unsigned aTexts)
{
    NitfBuilder builder;
    for (unsigned i = 0; i != aTexts; ++i) {
        builder.AddText();
    }
    return builder.Bytes();
}

std::string FileOfBands(unsigned aBands)
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", Bandsb(aBands));
    return builder.Bytes();
}

std::vector<Sample> Samples()
{
    return {{"header", NitfBuilder().Bytes()}, {"1-image", FileOfImages(1)},      {"10-images", FileOfImages(10)},
            {"100-images", FileOfImages(100)}, {"999-images", FileOfImages(999)}, {"25-tres", FileOf25Tres()},
            {"overflow", FileWithOverflow()},  {"500-texts", FileOfTexts(500)},   {"300-bands", FileOfBands(300)},
            {"6000-bands", FileOfBands(6000)}};
}

}  // namespace ORMO::SensorModel::CSM::Bench
