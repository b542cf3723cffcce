#include "tre/TreRPC00.h"

#include "fields/FieldStore.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"
#include "tre/NITFCnstTreCERETag.h"

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

bool TreRPC00::ConvertField(std::string_view aTag, std::uint32_t aTurn, double& aValue) const
{
    const Detail::FieldStore& fields = Fields();
    const Detail::FieldEntry* const entry =
        fields.Find(fields.Table().Find(aTag, aTurn == 0 ? 0 : 1), Detail::Turns{aTurn});
    if (entry == nullptr) {
        return false;
    }
    const std::string_view text = fields.Value(*entry);
    // A NUL inside would end the text for the conversion and hide what follows.
    return text.find('\0') == std::string_view::npos && Util::CSMUtilString::ToDouble(text.data(), aValue);
}

bool TreRPC00::Convert() const
{
    const bool fromA = IsRPC00A();
    for (std::size_t k = 0; k != NUM_OF_COEFFICIENTS; ++k) {
        const auto turn = static_cast<std::uint32_t>((fromA ? c_mappingRPC00AToRPC00B[k] : k) + 1);
        if (!ConvertField("LINE_NUM_COEFF", turn, m_state.lineNumerator[k]) ||
            !ConvertField("LINE_DEN_COEFF", turn, m_state.lineDenominator[k]) ||
            !ConvertField("SAMP_NUM_COEFF", turn, m_state.sampleNumerator[k]) ||
            !ConvertField("SAMP_DEN_COEFF", turn, m_state.sampleDenominator[k])) {
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
