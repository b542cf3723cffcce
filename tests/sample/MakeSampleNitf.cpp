// Writes a small NITF 2.1 file for trying the program out: a satellite image chip with the support data that such
// products carry, a graphic, a text, and a TRE that overflowed from the image into a data extension segment.

#include "tests/support/NitfBuilder.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <initializer_list>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>

namespace {

using ORMO::SensorModel::CSM::Tests::NitfBuilder;
using ORMO::SensorModel::CSM::Tests::Tre;

// The chip is the middle of an image of 1024 x 1024 pixels, ten metres each, centred at 58.4 N, 25.5 E.
constexpr unsigned CHIP = 128;
constexpr unsigned CHIP_START = 448;
constexpr std::string_view CORNERS =
    "582421N0252921E"
    "582421N0253039E"
    "582339N0253039E"
    "582339N0252921E";

std::string Number(const char* aFormat, double aValue)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), aFormat, aValue);
    return text.data();
}

std::string Block()
{
    return Tre("BLOCKA", "010000000128      " + std::string(16, ' ') +
                             "+58.405750+025.510970+58.394250+025.510970+58.394250+025.489030+58.405750+025.489030"
                             "010.0");
}

/// Rows run south and columns run east: one coefficient of each numerator and the constant of each denominator.
std::string Coefficients()
{
    constexpr int TERMS = 20;
    std::string data = "1" + std::string("0010.00") + "0002.00" + "000511" + "00511" + "+58.4000" + "+025.5000" +
                       "+0060" + "000512" + "00512" + "+00.0460" + "+000.0878" + "+0500";
    for (const auto& [position, value] : {std::pair{2, "-1.000000E+0"}, std::pair{0, "+1.000000E+0"},
                                          std::pair{1, "+1.000000E+0"}, std::pair{0, "+1.000000E+0"}}) {
        for (int term = 0; term != TERMS; ++term) {
            data += term == position ? value : "+0.000000E+0";
        }
    }
    return Tre("RPC00B", data);
}

std::string Usability()
{
    return Tre("USE00A", "000393.7 00255" + std::string(7, ' ') + "12.50+03.20" + std::string(37, ' ') +
                             "0004217001      " + std::string(12, ' ') + "+28.4171.3");
}

std::string Identification()
{
    return Tre("STDIDC",
               "20260614093042ORMO_SAMPLE   01001AA00000 00100001AA00100001EN    5824N02530E" + std::string(13, ' '));
}

std::string Chip()
{
    constexpr double FIRST = 0.5;
    constexpr double LAST = CHIP - 0.5;
    std::string data = "000001.000000000";
    for (const double start : {0.0, double{CHIP_START}}) {
        for (const double row : {FIRST, LAST}) {
            for (const double column : {FIRST, LAST}) {
                data += Number("%012.3f", start + row) + Number("%012.3f", start + column);
            }
        }
    }
    return Tre("ICHIPB", data + "0000102400001024");
}

std::string Dataset()
{
    return Tre("CSDIDA",
               "14JUN2026OV0101001AAP10000"
               "2026061409304220260614180000"
               "0001NNORMO 1.0  ");
}

/// One element of a binary CGM (ISO/IEC 8632-3): class, id and up to 30 bytes of parameters, filled to whole words.
std::string Element(unsigned aClass, unsigned aId, std::string_view aParameters)
{
    const auto word = static_cast<std::uint16_t>(aClass << 12U | aId << 5U | aParameters.size());
    std::string bytes{static_cast<char>(word >> 8U), static_cast<char>(word & 0xFFU)};
    bytes += aParameters;
    return aParameters.size() % 2 == 0 ? bytes : bytes + '\0';
}

std::string Words(std::initializer_list<int> aWords)
{
    std::string bytes;
    for (const int word : aWords) {
        bytes += static_cast<char>(static_cast<unsigned>(word) >> 8U & 0xFFU);
        bytes += static_cast<char>(static_cast<unsigned>(word) & 0xFFU);
    }
    return bytes;
}

std::string Text(std::string_view aText)
{
    return static_cast<char>(aText.size()) + std::string(aText);
}

/// A red frame around the middle of the chip.
std::string Frame()
{
    return Element(0, 1, Text("Ormo sample")) + Element(1, 1, Words({1})) +  // BEGIN METAFILE, VERSION
           Element(1, 11, Words({1, -1, 1})) +                               // ELEMENT LIST: drawing plus control
           Element(1, 2, Text("NITF/CGM-APP-2.0.")) +                        // METAFILE DESCRIPTION
           Element(0, 3, Text("frame")) + Element(2, 2, Words({1})) +        // BEGIN PICTURE, direct colours
           Element(2, 6, Words({0, 32767, 32767, 0})) + Element(0, 4, "") +  // VDC EXTENT, BEGIN PICTURE BODY
           Element(5, 4, std::string_view("\xFF\0\0", 3)) +                  // LINE COLOUR
           Element(4, 1, Words({0, 0, 87, 0, 87, 87, 0, 87, 0, 0})) +        // POLYLINE
           Element(0, 5, "") + Element(0, 2, "");                            // END PICTURE, END METAFILE
}

std::string SampleFile()
{
    NitfBuilder file;
    file.File().Set("OSTAID", "ORMO").Set("FDT", "20260614180000").Set("FTITLE", "Sample of an image chip");
    file.File().Set("FSCLSY", "XN").Set("ONAME", "Ormo CSM").Damage("FBKGC", std::string_view("\0\0\x40", 3));

    auto& image = file.AddImage(CHIP, CHIP);
    image.Set("IID1", "CHIP01").Set("IDATIM", "20260614093042").Set("IID2", "Panchromatic chip, full resolution");
    image.Set("ISCLSY", "XN").Set("ISORCE", "Satellite").Location("G", CORNERS).Comment("Made for trying things out.");
    image.Area("IXSHD", Identification() + Usability() + Chip() + Block() + Coefficients(), 1);

    auto& graphic = file.AddGraphic(Frame());
    graphic.Set("SID", "FRAME01").Set("SNAME", "Frame").Set("SALVL", 1U).Set("SLOC", "0002000020");
    graphic.Set("SBND1", "0002000020").Set("SBND2", "0010700107").Set("SSCLSY", "XN");

    auto& text = file.AddText("This file holds one image chip, one frame drawn on it, and this text.\r\n");
    text.Set("TEXTID", "README").Set("TXTALVL", 1U).Set("TXTDT", "20260614180000").Set("TXTITL", "About this file");
    text.Set("TSCLSY", "XN");

    file.AddOverflow("IXSHD", 1, Dataset()).Set("DESCLSY", "XN");
    return file.Bytes();
}

}  // namespace

int main(int aCount, char** aArguments)
{
    if (aCount != 2) {
        std::cerr << "usage: ormo-make-sample FILE\n";
        return 2;
    }
    const std::string bytes = SampleFile();
    std::ofstream file(aArguments[1], std::ios::binary);
    if (!file.write(bytes.data(), static_cast<std::streamsize>(bytes.size())).flush()) {
        std::cerr << aArguments[1] << ": cannot be written\n";
        return 1;
    }
    return 0;
}
