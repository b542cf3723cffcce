#pragma once

#include "Geodetic.h"

#include <string>

/// The rational polynomials of an RPC00B record: image position of a ground point. STDI-0002 Volume 1 Appendix E.
class RpcCoefficients
{
public:
    /// Takes the data of a record, without tag and length. False when they are no RPC00B or say that they hold no
    /// solution.
    bool Read(const std::string& aRecord);

    /// Line and sample of a ground point; the middle of the first pixel is 0, 0.
    void ToImage(const Geodetic& aGround, double& aLine, double& aSample) const;

    /// The middle of the box in which the polynomials hold, and half its edges.
    const Geodetic& Centre() const { return m_ground.offset; }
    const Geodetic& Scale() const { return m_ground.scale; }
    /// Standard deviations in metres on the ground: of all points together, and of each for itself.
    double BiasError() const { return m_biasError; }
    double RandomError() const { return m_randomError; }

private:
    static const int TERMS = 20;

    double m_biasError = 0.0;
    double m_randomError = 0.0;
    double m_lineOffset = 0.0;
    double m_lineScale = 1.0;
    double m_sampleOffset = 0.0;
    double m_sampleScale = 1.0;
    struct
    {
        Geodetic offset;
        Geodetic scale;
    } m_ground = {};
    /// Numerator and denominator of the line, then of the sample.
    double m_coefficients[4][TERMS] = {};
};
