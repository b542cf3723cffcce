#include "RpcCoefficients.h"

#include <cstddef>
#include <cstdlib>

namespace {

const std::size_t RECORD_LENGTH = 1041;
const std::size_t COEFFICIENT_WIDTH = 12;

/// Takes numbers of fixed width, one after another.
class Numbers
{
public:
    explicit Numbers(const std::string& aText) : m_text(aText) {}

    double Next(std::size_t aWidth)
    {
        const std::string field = m_text.substr(m_next, aWidth);
        m_next += aWidth;
        char* end = nullptr;
        const double value = std::strtod(field.c_str(), &end);
        m_good = m_good && end != field.c_str() && *end == '\0';
        return value;
    }
    bool AreGood() const { return m_good; }

private:
    const std::string& m_text;
    std::size_t m_next = 0;
    bool m_good = true;
};

}  // namespace

bool RpcCoefficients::Read(const std::string& aRecord)
{
    if (aRecord.size() != RECORD_LENGTH || aRecord[0] != '1') {
        return false;
    }
    Numbers numbers(aRecord);
    numbers.Next(1);
    m_biasError = numbers.Next(7);
    m_randomError = numbers.Next(7);
    m_lineOffset = numbers.Next(6);
    m_sampleOffset = numbers.Next(5);
    m_ground.offset.latitude = numbers.Next(8);
    m_ground.offset.longitude = numbers.Next(9);
    m_ground.offset.height = numbers.Next(5);
    m_lineScale = numbers.Next(6);
    m_sampleScale = numbers.Next(5);
    m_ground.scale.latitude = numbers.Next(8);
    m_ground.scale.longitude = numbers.Next(9);
    m_ground.scale.height = numbers.Next(5);
    for (auto& polynomial : m_coefficients) {
        for (double& coefficient : polynomial) {
            coefficient = numbers.Next(COEFFICIENT_WIDTH);
        }
    }
    return numbers.AreGood() && m_ground.scale.latitude != 0.0 && m_ground.scale.longitude != 0.0 &&
           m_ground.scale.height != 0.0;
}

void RpcCoefficients::ToImage(const Geodetic& aGround, double& aLine, double& aSample) const
{
    double away = aGround.longitude - m_ground.offset.longitude;
    away += away > 180.0 ? -360.0 : away < -180.0 ? 360.0 : 0.0;
    const double l = away / m_ground.scale.longitude;
    const double p = (aGround.latitude - m_ground.offset.latitude) / m_ground.scale.latitude;
    const double h = (aGround.height - m_ground.offset.height) / m_ground.scale.height;
    const double terms[TERMS] = {1.0,       l,         p,         h,         l * p,     l * h,     p * h,
                                 l * l,     p * p,     h * h,     p * l * h, l * l * l, l * p * p, l * h * h,
                                 l * l * p, p * p * p, p * h * h, l * l * h, p * p * h, h * h * h};
    double sums[4] = {};
    for (int polynomial = 0; polynomial != 4; ++polynomial) {
        for (int term = 0; term != TERMS; ++term) {
            sums[polynomial] += m_coefficients[polynomial][term] * terms[term];
        }
    }
    aLine = sums[0] / sums[1] * m_lineScale + m_lineOffset;
    aSample = sums[2] / sums[3] * m_sampleScale + m_sampleOffset;
}
