#pragma once

#include "../foundation/Export.h"
#include "TRE.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// The numbers of a TRE with rational polynomial coefficients, RPC00B or RPC00A, for sensor models.
///
/// A line or sample is the quotient of two polynomials of degree three in the normalised ground coordinates P
/// (latitude), L (longitude) and H (height), each (value - offset) / scale. The two tags have the same fields but order
/// the terms of the polynomials differently; callers always get the order of RPC00B:
///
///     1 L P H LP LH PH L^2 P^2 H^2 LPH L^3 LP^2 LH^2 L^2P P^3 PH^2 L^2H P^2H H^3
class ORMO_CSM_API TreRPC00 : public TRE
{
public:
    static constexpr std::size_t NUM_OF_COEFFICIENTS = 20;

    /// For each term of RPC00B the place of its coefficient among those of RPC00A, both counted from 0:
    /// B[i] = A[c_mappingRPC00AToRPC00B[i]].
    static constexpr std::array<std::size_t, NUM_OF_COEFFICIENTS> c_mappingRPC00AToRPC00B = {
        0, 1, 2, 3, 4, 5, 6, 8, 9, 10, 7, 11, 14, 17, 12, 15, 18, 13, 16, 19};

    /// One number for each of the coordinates that are normalised.
    struct CoordinateValues
    {
        double line = 0.0;       ///< pixels
        double sample = 0.0;     ///< pixels
        double latitude = 0.0;   ///< degrees
        double longitude = 0.0;  ///< degrees
        double height = 0.0;     ///< metres
    };

    ~TreRPC00() override;
    using TRE::operator=;
    TreRPC00& operator=(const TreRPC00& aOther);

    /// Copies the coefficients of numerator and denominator for line and sample, each into 20 doubles, in the order of
    /// RPC00B. False, with nothing written, when a pointer is null or any one of the 80 texts is not a number.
    bool GetRPCCoefficients(double* aLineNumerator, double* aLineDenominator, double* aSampleNumerator,
                            double* aSampleDenominator) const;
    /// The names of all fields and their values as received, in the order of the data and of the TRE's own tag, as two
    /// new arrays of new texts; the caller frees each with DeleteConstCStringArray. False, with null and 0, when there
    /// are no fields or memory is short.
    bool GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount) const;
    /// Frees the aCount texts, then the array, and sets the pointer to null.
    static void DeleteConstCStringArray(const char**& aArray, std::size_t aCount) noexcept;

    // False, with the outputs left as they were, when one of the texts is not a number.
    bool GetRPCOffsets(CoordinateValues& aOffsets) const;
    bool GetRPCScales(CoordinateValues& aScales) const;
    /// The estimated horizontal errors in metres: the part common to all points of the image, and the random part of
    /// one.
    bool GetRPCErrors(double& aBias, double& aRandom) const;

protected:
    /// Takes over parts that the library made.
    explicit TreRPC00(Parts& aParts) noexcept : TRE(aParts) {}
    TreRPC00(const TreRPC00& aOther);

    bool CloneObj(const TRE& aOther) override;
    void Swap(TRE& aOther) noexcept override;
    /// Converts the coefficients unless that is done; one text that is no number makes all unusable for good.
    bool InitializeRPCCoefficients() const;
    /// Forgets the coefficients; none can be had until another TRE is assigned.
    void CleanupRPC00() noexcept;

private:
    bool IsRPC00A() const noexcept;
    /// The number in the field of that tag; in its turn when it is repeated, counted from 1.
    bool ConvertField(std::string_view aTag, std::uint32_t aTurn, double& aValue) const;

    bool m_forgotten = false;
};

}  // namespace ORMO::SensorModel::CSM
