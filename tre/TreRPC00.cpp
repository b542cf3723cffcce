#include "tre/TreRPC00.h"

#include "fields/FieldStore.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"
#include "nitf/NITFCnst.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

// Places of the fields in the data, counted from 0; twenty coefficients follow each place of a polynomial.
constexpr std::size_t ERR_BIAS = 1;
constexpr std::size_t ERR_RAND = 2;
constexpr std::size_t LINE_OFF = 3;
constexpr std::size_t LINE_SCALE = 8;
constexpr std::size_t LINE_NUM_COEFF = 13;
constexpr std::size_t LINE_DEN_COEFF = LINE_NUM_COEFF + TreRPC00::NUM_OF_COEFFICIENTS;
constexpr std::size_t SAMP_NUM_COEFF = LINE_DEN_COEFF + TreRPC00::NUM_OF_COEFFICIENTS;
constexpr std::size_t SAMP_DEN_COEFF = SAMP_NUM_COEFF + TreRPC00::NUM_OF_COEFFICIENTS;

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

}  // namespace

TreRPC00::TreRPC00(const Detail::TreLayout& aLayout, const char* aData, std::size_t aLength, Type aType,
                   Util::CSMCnst::ByteOrder aByteOrder)
    : TRE(aLayout, aData, aLength, aType, aByteOrder)
{
}

TreRPC00::TreRPC00(const TreRPC00& aOther) : TRE(aOther), m_state(aOther.CopyState()) {}

TreRPC00::~TreRPC00() = default;

TreRPC00& TreRPC00::operator=(const TreRPC00& aOther)
{
    TRE::operator=(aOther);
    return *this;
}

bool TreRPC00::CloneObj(const TRE& aOther)
{
    const auto* const other = dynamic_cast<const TreRPC00*>(&aOther);
    if (!TRE::CloneObj(aOther)) {
        return false;
    }
    if (other == nullptr) {
        CleanupRPC00();
        return true;
    }
    const State state = other->CopyState();
    const std::lock_guard lock(m_guard);
    m_state = state;
    return true;
}

void TreRPC00::Swap(TRE& aOther) noexcept
{
    TRE::Swap(aOther);
    auto* const other = dynamic_cast<TreRPC00*>(&aOther);
    if (other == nullptr) {
        CleanupRPC00();
    } else if (other != this) {
        const std::scoped_lock lock(m_guard, other->m_guard);
        std::swap(m_state, other->m_state);
    }
}

void TreRPC00::CleanupRPC00() noexcept
{
    const std::lock_guard lock(m_guard);
    m_state = State{};
    m_state.usable = false;
}

TreRPC00::State TreRPC00::CopyState() const
{
    const std::lock_guard lock(m_guard);
    return m_state;
}

bool TreRPC00::IsRPC00A() const noexcept
{
    return std::string_view(GetTag()) == NITFCnst::TreCERETag::RPC00A;
}

bool TreRPC00::ConvertField(std::size_t aPosition, double& aValue) const
{
    if (aPosition >= GetNumOfFields()) {
        return false;
    }
    const std::string_view text = Fields().Value(Fields().Entries()[aPosition]);
    // A NUL inside would end the text for the conversion and hide what follows.
    return text.find('\0') == std::string_view::npos && Util::CSMUtilString::ToDouble(text.data(), aValue);
}

bool TreRPC00::Convert() const
{
    const bool fromA = IsRPC00A();
    for (std::size_t k = 0; k != NUM_OF_COEFFICIENTS; ++k) {
        const std::size_t place = fromA ? c_mappingRPC00AToRPC00B[k] : k;
        if (!ConvertField(LINE_NUM_COEFF + place, m_state.lineNumerator[k]) ||
            !ConvertField(LINE_DEN_COEFF + place, m_state.lineDenominator[k]) ||
            !ConvertField(SAMP_NUM_COEFF + place, m_state.sampleNumerator[k]) ||
            !ConvertField(SAMP_DEN_COEFF + place, m_state.sampleDenominator[k])) {
            return false;
        }
    }
    return true;
}

bool TreRPC00::InitializeRPCCoefficients() const
{
    const std::lock_guard lock(m_guard);
    if (m_state.converted || !m_state.usable) {
        return m_state.converted;
    }
    if (!Convert()) {
        m_state = State{};
        m_state.usable = false;
        return false;
    }
    m_state.converted = true;
    return true;
}

bool TreRPC00::GetRPCCoefficients(double* aLineNumerator, double* aLineDenominator, double* aSampleNumerator,
                                  double* aSampleDenominator) const
{
    if (aLineNumerator == nullptr || aLineDenominator == nullptr || aSampleNumerator == nullptr ||
        aSampleDenominator == nullptr || !InitializeRPCCoefficients()) {
        return false;
    }
    std::copy(m_state.lineNumerator.begin(), m_state.lineNumerator.end(), aLineNumerator);
    std::copy(m_state.lineDenominator.begin(), m_state.lineDenominator.end(), aLineDenominator);
    std::copy(m_state.sampleNumerator.begin(), m_state.sampleNumerator.end(), aSampleNumerator);
    std::copy(m_state.sampleDenominator.begin(), m_state.sampleDenominator.end(), aSampleDenominator);
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

bool TreRPC00::ConvertCoordinates(std::size_t aPosition, CoordinateValues& aValues) const
{
    CoordinateValues values;
    if (!ConvertField(aPosition, values.line) || !ConvertField(aPosition + 1, values.sample) ||
        !ConvertField(aPosition + 2, values.latitude) || !ConvertField(aPosition + 3, values.longitude) ||
        !ConvertField(aPosition + 4, values.height)) {
        return false;
    }
    aValues = values;
    return true;
}

bool TreRPC00::GetRPCOffsets(CoordinateValues& aOffsets) const
{
    return ConvertCoordinates(LINE_OFF, aOffsets);
}

bool TreRPC00::GetRPCScales(CoordinateValues& aScales) const
{
    return ConvertCoordinates(LINE_SCALE, aScales);
}

bool TreRPC00::GetRPCErrors(double& aBias, double& aRandom) const
{
    double bias = 0.0;
    double random = 0.0;
    if (!ConvertField(ERR_BIAS, bias) || !ConvertField(ERR_RAND, random)) {
        return false;
    }
    aBias = bias;
    aRandom = random;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
