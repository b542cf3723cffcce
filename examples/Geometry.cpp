// Where the images of a file lie, by their corners, and where their rational polynomials put the corners in the image.
//
// ormo-example-geometry FILE

#include "ormo/nitf.hpp"

#include <cstdio>
#include <ctime>

namespace {

using namespace ormo::nitf;

/// A polynomial of degree three in the order of RPC00B.
double Polynomial(const Rpc::Coefficients& aTerms, double aP, double aL, double aH)
{
    const std::array<double, 20> products = {1.0,          aL,           aP,           aH,           aL * aP,
                                             aL * aH,      aP * aH,      aL * aL,      aP * aP,      aH * aH,
                                             aP * aL * aH, aL * aL * aL, aL * aP * aP, aL * aH * aH, aL * aL * aP,
                                             aP * aP * aP, aP * aH * aH, aL * aL * aH, aP * aP * aH, aH * aH * aH};
    double sum = 0.0;
    for (std::size_t i = 0; i != products.size(); ++i) {
        sum += aTerms[i] * products[i];
    }
    return sum;
}

void PrintCorner(const Position& aCorner, const std::optional<Rpc>& aRpc)
{
    std::printf("  corner %.5f %.5f", aCorner.latitude, aCorner.longitude);
    if (aRpc) {
        const double p = (aCorner.latitude - aRpc->offsets.latitude) / aRpc->scales.latitude;
        const double l = (aCorner.longitude - aRpc->offsets.longitude) / aRpc->scales.longitude;
        const double line = Polynomial(aRpc->line_numerator, p, l, 0.0) / Polynomial(aRpc->line_denominator, p, l, 0.0);
        const double sample =
            Polynomial(aRpc->sample_numerator, p, l, 0.0) / Polynomial(aRpc->sample_denominator, p, l, 0.0);
        std::printf(" is at line %.1f, sample %.1f", line * aRpc->scales.line + aRpc->offsets.line,
                    sample * aRpc->scales.sample + aRpc->offsets.sample);
    }
    std::printf("\n");
}

void Print(const Image& aImage)
{
    std::printf("image %zu: %zu rows, %zu columns, %zu band(s)\n", aImage.index(), aImage.rows(), aImage.columns(),
                aImage.bands());
    if (const std::optional<Time> taken = aImage.time("IDATIM")) {
        const std::time_t seconds = std::chrono::system_clock::to_time_t(*taken);
        std::printf("  taken %s", std::asctime(std::gmtime(&seconds)));
    }
    if (const std::optional<Tre> use = aImage.tre("USE00A")) {
        std::printf("  sun %.1f degrees above the horizon\n", use->number("SUN_EL").value_or(0.0));
    }
    const std::optional<Rpc> rpc = aImage.rpc();
    if (rpc) {
        std::printf("  %s: at %.4f %.4f, %.0f m high\n", std::string(rpc->tag).c_str(), rpc->offsets.latitude,
                    rpc->offsets.longitude, rpc->offsets.height);
    }
    if (const std::optional<Footprint> footprint = aImage.footprint()) {
        for (const Position& corner : footprint->corners) {
            PrintCorner(corner, rpc);
        }
    }
}

}  // namespace

int main(int aCount, char** aArguments)
{
    try {
        for (const Image& image : File(aCount > 1 ? aArguments[1] : "").images()) {
            Print(image);
        }
        return 0;
    } catch (const Error& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    return 1;
}
