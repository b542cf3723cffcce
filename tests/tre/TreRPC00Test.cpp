#include "nitf/NITFCnst.h"
#include "tests/support/Corpus.h"
#include "tre/NITFCnstTreCERETag.h"
#include "tre/TreRPC00B.h"
#include "tre/detail/TreMaker.h"
#include "tre/tags/TreTags.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

using Detail::OwnedTre;
using Polynomial = std::array<double, TreRPC00::NUM_OF_COEFFICIENTS>;
using Polynomials = std::array<Polynomial, 4>;

constexpr std::size_t FIRST_COEFFICIENT = 81;  // bytes of data before it
constexpr std::size_t COEFFICIENT_WIDTH = 12;

/// Data of an RPC TRE in which no two coefficients are equal.
std::string Data()
{
    std::string data =
        "1"
        "0001.25"
        "0000.50"
        "004200"
        "02460"
        "+39.0871"
        "-077.0467"
        "+0042"
        "006247"
        "06325"
        "+00.0219"
        "+000.0731"
        "+0226";
    for (int i = 0; i != 80; ++i) {
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "%c%d.%06dE%+d", i % 3 == 0 ? '-' : '+', 1 + i % 9, 12345 * i,
                      i % 5 - 2);
        data += text.data();
    }
    return data;
}

/// The coefficients as Data writes them, in the order of the data.
Polynomials Written()
{
    Polynomials written{};
    for (int i = 0; i != 80; ++i) {
        const double value = (1 + i % 9 + 12345e-6 * i) * std::pow(10.0, i % 5 - 2);
        written[static_cast<std::size_t>(i / 20)][static_cast<std::size_t>(i % 20)] = i % 3 == 0 ? -value : value;
    }
    return written;
}

OwnedTre MakeTre(const std::string& aData, const char* aTag = "RPC00B")
{
    Detail::TreFault fault;
    return Detail::TreMaker::Make(Detail::FindKnown(aTag), {.tag = aTag, .header = {}, .data = aData}, true, false,
                                  fault);
}

const TreRPC00& AsRpc(const OwnedTre& aTre)
{
    return dynamic_cast<const TreRPC00&>(*aTre);
}

bool Coefficients(const TreRPC00& aTre, Polynomials& aOut)
{
    return aTre.GetRPCCoefficients(aOut[0].data(), aOut[1].data(), aOut[2].data(), aOut[3].data());
}

/// The polynomial of RPC00A, term by term.
double EvaluateA(const Polynomial& aC, double aP, double aL, double aH)
{
    const double p = aP, l = aL, h = aH;
    return aC[0] + aC[1] * l + aC[2] * p + aC[3] * h + aC[4] * l * p + aC[5] * l * h + aC[6] * p * h +
           aC[7] * l * p * h + aC[8] * l * l + aC[9] * p * p + aC[10] * h * h + aC[11] * l * l * l +
           aC[12] * l * l * p + aC[13] * l * l * h + aC[14] * l * p * p + aC[15] * p * p * p + aC[16] * p * p * h +
           aC[17] * l * h * h + aC[18] * p * h * h + aC[19] * h * h * h;
}

/// The polynomial of RPC00B, term by term.
double EvaluateB(const Polynomial& aC, double aP, double aL, double aH)
{
    const double p = aP, l = aL, h = aH;
    return aC[0] + aC[1] * l + aC[2] * p + aC[3] * h + aC[4] * l * p + aC[5] * l * h + aC[6] * p * h + aC[7] * l * l +
           aC[8] * p * p + aC[9] * h * h + aC[10] * l * p * h + aC[11] * l * l * l + aC[12] * l * p * p +
           aC[13] * l * h * h + aC[14] * l * l * p + aC[15] * p * p * p + aC[16] * p * h * h + aC[17] * l * l * h +
           aC[18] * p * p * h + aC[19] * h * h * h;
}

TEST(TreRPC00Test, BothTagsYieldThePolynomialsTheyWereWrittenWith)
{
    const Polynomials written = Written();
    Polynomials fromA{};
    Polynomials fromB{};
    ASSERT_TRUE(Coefficients(AsRpc(MakeTre(Data(), "RPC00A")), fromA));
    ASSERT_TRUE(Coefficients(AsRpc(MakeTre(Data(), "RPC00B")), fromB));
    for (std::size_t i = 0; i != written.size(); ++i) {
        for (const auto& [p, l, h] : {std::array{0.0, 0.0, 0.0}, std::array{0.31, -0.72, 0.93},
                                      std::array{-0.85, 0.44, 0.27}, std::array{0.6, 0.6, -0.6}}) {
            EXPECT_NEAR(EvaluateB(fromA[i], p, l, h), EvaluateA(written[i], p, l, h), 1e-9) << "polynomial " << i;
            EXPECT_NEAR(EvaluateB(fromB[i], p, l, h), EvaluateB(written[i], p, l, h), 1e-9) << "polynomial " << i;
        }
    }
}

TEST(TreRPC00Test, OneMalformedCoefficientMakesAllUnusableForGood)
{
    using namespace std::string_literals;
    const std::size_t last = FIRST_COEFFICIENT + 79 * COEFFICIENT_WIDTH;
    const std::vector<std::pair<std::size_t, std::string>> faults = {
        {FIRST_COEFFICIENT, "+1.2345 7E+0"s},
        {FIRST_COEFFICIENT + 40 * COEFFICIENT_WIDTH, "            "s},
        {last, "+1.234567Q+0"s},
        {last, "+1.0\0\0\0\0\0\0\0\0"s},
    };
    for (const auto& [position, text] : faults) {
        ASSERT_EQ(text.size(), COEFFICIENT_WIDTH);
        const auto tre = MakeTre(Data().replace(position, COEFFICIENT_WIDTH, text));
        Polynomials out{};
        out[0][0] = out[3][19] = 7.0;
        EXPECT_FALSE(Coefficients(AsRpc(tre), out)) << text;
        EXPECT_FALSE(Coefficients(AsRpc(tre), out)) << text;
        EXPECT_EQ(out[0][0], 7.0);
        EXPECT_EQ(out[3][19], 7.0);
        const OwnedTre copy = Detail::TreMaker::Clone(*tre);
        EXPECT_FALSE(Coefficients(AsRpc(copy), out)) << text;
        TreRPC00::CoordinateValues offsets;
        EXPECT_TRUE(AsRpc(tre).GetRPCOffsets(offsets)) << "offsets do not depend on the coefficients";
    }
}

TEST(TreRPC00Test, NullPointersGetNothing)
{
    const auto tre = MakeTre(Data());
    const TreRPC00& rpc = AsRpc(tre);
    for (std::size_t missing = 0; missing != 4; ++missing) {
        Polynomials out{};
        std::array<double*, 4> pointers = {out[0].data(), out[1].data(), out[2].data(), out[3].data()};
        pointers[missing] = nullptr;
        EXPECT_FALSE(rpc.GetRPCCoefficients(pointers[0], pointers[1], pointers[2], pointers[3]));
        EXPECT_EQ(out, Polynomials{});
    }
    Polynomials out{};
    EXPECT_TRUE(Coefficients(rpc, out));
    EXPECT_NEAR(out[0][1], 1e-1 * (2 + 12345e-6), 1e-12);
}

TEST(TreRPC00Test, CopiesAndAssignmentsTakeTheCoefficientsWithThem)
{
    const auto good = MakeTre(Data(), "RPC00A");
    const auto bad = MakeTre(Data().replace(FIRST_COEFFICIENT, 1, "?"));
    Polynomials expected{};
    Polynomials out{};
    ASSERT_TRUE(Coefficients(AsRpc(good), expected));
    ASSERT_FALSE(Coefficients(AsRpc(bad), out));

    const OwnedTre copy = Detail::TreMaker::Clone(*good);
    ASSERT_TRUE(Coefficients(AsRpc(copy), out));
    EXPECT_EQ(out, expected);

    *copy = *bad;
    EXPECT_FALSE(Coefficients(AsRpc(copy), out));
    *copy = *good;
    out = {};
    ASSERT_TRUE(Coefficients(AsRpc(copy), out));
    EXPECT_EQ(out, expected);

    const std::string block(123, '0');
    const OwnedTre other = MakeTre(block, "BLOCKA");
    *copy = *other;
    EXPECT_FALSE(Coefficients(AsRpc(copy), out)) << "a TRE of another tag has no coefficients";
}

TEST(TreRPC00Test, FieldsAreHandedOutInTheOrderOfTheData)
{
    const auto tre = MakeTre(Data(), "RPC00A");
    const char** names = nullptr;
    const char** values = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(AsRpc(tre).GetRPCFields(names, values, count));
    ASSERT_EQ(count, 93U);
    EXPECT_STREQ(names[0], "SUCCESS");
    EXPECT_STREQ(names[13], "LINE_NUM_COEFF_1");
    EXPECT_STREQ(names[33], "LINE_DEN_COEFF_1");
    EXPECT_STREQ(names[53], "SAMP_NUM_COEFF_1");
    EXPECT_STREQ(names[92], "SAMP_DEN_COEFF_20");
    std::string joined;
    for (std::size_t i = 0; i != count; ++i) {
        joined += values[i];
    }
    EXPECT_EQ(joined, Data());
    TreRPC00::DeleteConstCStringArray(names, count);
    TreRPC00::DeleteConstCStringArray(values, count);
    EXPECT_EQ(names, nullptr);
    EXPECT_EQ(values, nullptr);
}

TEST(TreRPC00Test, OffsetsScalesAndErrorsAreNumbers)
{
    const auto tre = MakeTre(Data());
    TreRPC00::CoordinateValues values;
    ASSERT_TRUE(AsRpc(tre).GetRPCOffsets(values));
    EXPECT_THAT((std::array{values.line, values.sample, values.latitude, values.longitude, values.height}),
                testing::ElementsAre(4200.0, 2460.0, 39.0871, -77.0467, 42.0));
    ASSERT_TRUE(AsRpc(tre).GetRPCScales(values));
    EXPECT_THAT((std::array{values.line, values.sample, values.latitude, values.longitude, values.height}),
                testing::ElementsAre(6247.0, 6325.0, 0.0219, 0.0731, 226.0));
    double bias = 0.0;
    double random = 0.0;
    ASSERT_TRUE(AsRpc(tre).GetRPCErrors(bias, random));
    EXPECT_EQ(bias, 1.25);
    EXPECT_EQ(random, 0.5);

    const auto blank = MakeTre(Data().replace(8, 7, 7, ' ').replace(26, 8, 8, ' '));  // ERR_RAND, LAT_OFF
    EXPECT_FALSE(AsRpc(blank).GetRPCOffsets(values));
    EXPECT_EQ(values.line, 6247.0);
    EXPECT_FALSE(AsRpc(blank).GetRPCErrors(bias, random));
    EXPECT_EQ(bias, 1.25);
}

TEST(TreRPC00Test, SeveralThreadsMayAskAtOnce)
{
    const auto tre = MakeTre(Data());
    std::array<Polynomials, 8> results{};
    std::vector<std::thread> threads;
    for (Polynomials& result : results) {
        threads.emplace_back([&] { Coefficients(AsRpc(tre), result); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_NE(results[0], Polynomials{});
    EXPECT_THAT(results, testing::Each(results[0]));
}

// A satellite image taken in lines maps longitude to samples almost linearly; terms of RPC00A in the wrong order bend
// the mapping by more than a hundred pixels.
TEST(TreRPC00Test, TheCoefficientsOfARealRPC00AMapStraight)
{
    const std::string file = CorpusBytes("ff_grey16bit_uncompressed.nitf");
    if (file.empty()) {
        GTEST_SKIP() << "the corpus file ff_grey16bit_uncompressed.nitf is absent";
    }
    const char* const header = "RPC00A01041";
    const std::size_t start = file.find(header);
    ASSERT_NE(start, std::string::npos);
    const auto tre = MakeTre(file.substr(start + std::strlen(header), 1041), "RPC00A");
    Polynomials c{};
    TreRPC00::CoordinateValues scales;
    ASSERT_TRUE(Coefficients(AsRpc(tre), c));
    ASSERT_TRUE(AsRpc(tre).GetRPCScales(scales));
    const auto sample = [&](double aP, double aL) {
        return scales.sample * EvaluateB(c[2], aP, aL, 0.0) / EvaluateB(c[3], aP, aL, 0.0);
    };
    for (const double p : {-1.0, 0.0, 1.0}) {
        EXPECT_NEAR(sample(p, -1.0) + sample(p, 1.0), 2.0 * sample(p, 0.0), 1.0) << "latitude " << p;
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
