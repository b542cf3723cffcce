#include "tre/TreRPC00.h"

#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"
#include "tre/NITFCnstTreCERETag.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr bool IsPermutation(const std::array<std::size_t, TreRPC00::NUM_OF_COEFFICIENTS>& aPlaces)
{
    std::array<bool, TreRPC00::NUM_OF_COEFFICIENTS> seen{};
    for (const std::size_t place : aPlaces) {
        if (place >= seen.size() || seen[place]) {
            return false;
        }
        seen[place] = true;
    }
    return true;
}
static_assert(IsPermutation(TreRPC00::c_mappingRPC00AToRPC00B));

constexpr std::array<std::string_view, 4> POLYNOMIALS = {"LINE_NUM_COEFF", "LINE_DEN_COEFF", "SAMP_NUM_COEFF",
                                                         "SAMP_DEN_COEFF"};

}  // namespace

TreRPC00::TreRPC00(const TreRPC00& aOther) : TRE(aOther), m_forgotten(aOther.m_forgotten) {}

TreRPC00::~TreRPC00() = default;

TreRPC00& TreRPC00::operator=(const TreRPC00& aOther)
{
    TRE::operator=(aOther);
    return *this;
}

bool TreRPC00::CloneObj(const TRE& aOther)
{
    if (!TRE::CloneObj(aOther)) {
        return false;
    }
    const auto* const other = dynamic_cast<const TreRPC00*>(&aOther);
    m_forgotten = other != nullptr && other->m_forgotten;
    return true;
}

void TreRPC00::Swap(TRE& aOther) noexcept
{
    TRE::Swap(aOther);
    auto* const other = dynamic_cast<TreRPC00*>(&aOther);
    if (other == nullptr) {
        m_forgotten = false;
    } else {
        std::swap(m_forgotten, other->m_forgotten);
    }
}

void TreRPC00::CleanupRPC00() noexcept
{
    m_forgotten = true;
    Parts::Of(*this).views.Reset();
}

bool TreRPC00::IsRPC00A() const noexcept
{
    return std::string_view(GetTag()) == NITFCnst::TreCERETag::RPC00A;
}

bool TreRPC00::ConvertField(std::string_view aTag, std::uint32_t aTurn, double& aValue) const
{
    const Parts& parts = Parts::Of(*this);
    if (parts.fields == nullptr) {
        return false;
    }
    const Detail::FieldStore& store = parts.fields->Store();
    const Detail::FieldEntry* const entry =
        store.Find(store.Table().Find(aTag, aTurn == 0 ? 0 : 1), Detail::Turns{aTurn});
    return entry != nullptr && parts.fields->As(*entry, aValue);
}

bool TreRPC00::InitializeRPCCoefficients() const
{
    if (m_forgotten) {
        return false;
    }
    const auto convert = [this] {
        const bool fromA = IsRPC00A();
        Detail::RpcCoefficients made;
        for (std::size_t polynomial = 0; polynomial != POLYNOMIALS.size(); ++polynomial) {
            for (std::size_t k = 0; k != NUM_OF_COEFFICIENTS; ++k) {
                const auto turn = static_cast<std::uint32_t>((fromA ? c_mappingRPC00AToRPC00B[k] : k) + 1);
                if (!ConvertField(POLYNOMIALS[polynomial], turn, made.polynomials[polynomial][k])) {
                    return Detail::RpcCoefficients();
                }
            }
        }
        made.usable = true;
        return made;
    };
    return Parts::Of(*this).Views().coefficients.Get(convert).usable;
}

bool TreRPC00::GetRPCCoefficients(double* aLineNumerator, double* aLineDenominator, double* aSampleNumerator,
                                  double* aSampleDenominator) const
{
    const std::array<double*, 4> targets = {aLineNumerator, aLineDenominator, aSampleNumerator, aSampleDenominator};
    if (std::find(targets.begin(), targets.end(), nullptr) != targets.end() || !InitializeRPCCoefficients()) {
        return false;
    }
    const auto& polynomials = Parts::Of(*this).Views().coefficients.Made()->polynomials;
    for (std::size_t i = 0; i != targets.size(); ++i) {
        std::copy(polynomials[i].begin(), polynomials[i].end(), targets[i]);
    }
    return true;
}

bool TreRPC00::GetRPCFields(const char**& aNames, const char**& aValues, std::size_t& aCount) const
{
    aNames = nullptr;
    aValues = nullptr;
    aCount = 0;
    const std::size_t count = GetNumOfFields();
    bool done =
        count != 0 && Detail::HandOutArray(&aNames, count) == count && Detail::HandOutArray(&aValues, count) == count;
    std::string name;
    for (std::size_t i = 0; done && i != count; ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        char* nameCopy = nullptr;
        char* valueCopy = nullptr;
        done = GetFieldAt(i, name, value, length) && Detail::HandOut(name, &nameCopy) &&
               Detail::HandOut({value, length}, &valueCopy);
        aNames[i] = nameCopy;
        aValues[i] = valueCopy;
    }
    if (!done) {
        DeleteConstCStringArray(aNames, count);
        DeleteConstCStringArray(aValues, count);
        return false;
    }
    aCount = count;
    return true;
}

void TreRPC00::DeleteConstCStringArray(const char**& aArray, std::size_t aCount) noexcept
{
    Util::CSMUtilString::DeleteConstCStringArray(aArray, aCount);
}

bool TreRPC00::GetRPCOffsets(CoordinateValues& aOffsets) const
{
    CoordinateValues values;
    if (!ConvertField("LINE_OFF", 0, values.line) || !ConvertField("SAMP_OFF", 0, values.sample) ||
        !ConvertField("LAT_OFF", 0, values.latitude) || !ConvertField("LONG_OFF", 0, values.longitude) ||
        !ConvertField("HEIGHT_OFF", 0, values.height)) {
        return false;
    }
    aOffsets = values;
    return true;
}

bool TreRPC00::GetRPCScales(CoordinateValues& aScales) const
{
    CoordinateValues values;
    if (!ConvertField("LINE_SCALE", 0, values.line) || !ConvertField("SAMP_SCALE", 0, values.sample) ||
        !ConvertField("LAT_SCALE", 0, values.latitude) || !ConvertField("LONG_SCALE", 0, values.longitude) ||
        !ConvertField("HEIGHT_SCALE", 0, values.height)) {
        return false;
    }
    aScales = values;
    return true;
}

bool TreRPC00::GetRPCErrors(double& aBias, double& aRandom) const
{
    double bias = 0.0;
    double random = 0.0;
    if (!ConvertField("ERR_BIAS", 0, bias) || !ConvertField("ERR_RAND", 0, random)) {
        return false;
    }
    aBias = bias;
    aRandom = random;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
