#include "tre/TREFactory.h"

#include "fields/MessageText.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "tre/detail/TreArea.h"
#include "tre/detail/TreMaker.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

using Detail::HandOutOrThrow;
using Detail::Quoted;

namespace {

/// Frees a text that an operation handed out.
struct TextDeleter
{
    void operator()(char* aText) const noexcept { Util::CSMUtilString::DeleteCString(aText); }
};
using OwnedText = std::unique_ptr<char, TextDeleter>;

/// Nulls what an operation hands out, so that nobody takes an old value for a new one when it raises.
template<typename T>
void Null(T** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
}

}  // namespace

int TREFactory::ExtractTREs(const char* aArea, TREStore& aStore, bool aSpecificOnly, bool aValidate, char** aErrors,
                            Util::CSMCnst::ByteOrder aByteOrder)
{
    Null(aErrors);
    if (aArea == nullptr) {
        constexpr const char* MESSAGE = "ERROR: Invalid/NULL input TRE data stream.";
        HandOutOrThrow(MESSAGE, aErrors);
        throw std::invalid_argument(MESSAGE);
    }
    Detail::FindingList findings;
    const int count = Detail::ExtractTREs(aArea, aStore, {aSpecificOnly, aValidate}, aByteOrder, {}, findings);
    if (!findings.IsEmpty()) {
        HandOutOrThrow(findings.Blocks(false), aErrors);
    }
    return count;
}

void TREFactory::Create(const char* aTag, const char* aData, TRE::Type aType, TRE** aTre, bool aSpecificOnly,
                        bool aValidate, char** aErrors, std::size_t aLength, Util::CSMCnst::ByteOrder aByteOrder)
{
    Null(aTre);
    Null(aErrors);
    if (aTre == nullptr || aData == nullptr) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    const std::string_view data = aLength != 0 ? std::string_view(aData, aLength) : std::string_view(aData);
    if (data.empty()) {
        throw std::invalid_argument("ERROR: Empty/NULL input CEDATA/REDATA string.");
    }
    const std::string tag(Detail::Trimmed(aTag));
    if (tag.empty()) {
        throw std::invalid_argument("ERROR: Input CETAG/RETAG cannot be NULL or an empty string.");
    }
    Detail::TreFault fault;
    Detail::OwnedTre tre;
    std::string refusal;
    try {
        tre = Detail::TreMaker::Make(Detail::FindKnown(tag.c_str()), {tag.c_str(), {}, data, aType, aByteOrder},
                                     aSpecificOnly, aValidate, fault);
    } catch (const std::invalid_argument& exception) {  // no record can hold such a tag or such data
        refusal = exception.what();
    }
    if (!fault.IsGood()) {
        HandOutOrThrow(fault.Cause(tag), aErrors);
    }
    if (!refusal.empty()) {
        const std::string message =
            "ERROR: Failed to initialize a generic TRE object with the input data.\nError message = " + refusal;
        throw ObjectConstructionException(message.c_str(), "TREFactory::Create");
    }
    if (tre == nullptr) {
        const std::string message =
            "ERROR: Specifc TRE " + Quoted(tag) + " currently not supported by the Ormo CSM System.";
        throw UnsupportedTREException(message.c_str(), "TREFactory::Create");
    }
    *aTre = tre.release();
}

void TREFactory::Create(const char* aTreString, TRE::Type aType, TRE** aTre, bool aSpecificOnly, bool aValidate,
                        char** aErrors, Util::CSMCnst::ByteOrder aByteOrder)
{
    Null(aTre);
    Null(aErrors);
    char* tag = nullptr;
    char* data = nullptr;
    std::size_t length = 0;
    const bool split = TRE::DecomposeTREString(aTreString, &tag, &data, length);
    const OwnedText ownedTag(tag);
    const OwnedText ownedData(data);
    if (!split) {
        throw std::invalid_argument(
            "ERROR: Failed to decompose input TRE data string into its CETAG/RETAG, CEL/REL, CEDATA/REDATA "
            "components.");
    }
    Create(tag, data, aType, aTre, aSpecificOnly, aValidate, aErrors, length, aByteOrder);
}

bool TREFactory::CloneTRE(const TRE& aSource, TRE** aCopy)
{
    if (aCopy == nullptr) {
        return false;
    }
    *aCopy = nullptr;
    try {
        *aCopy = Detail::TreMaker::Clone(aSource).release();
    } catch (const std::bad_alloc&) {
        return false;
    }
    return *aCopy != nullptr;
}

void TREFactory::Destroy(TRE** aTre)
{
    if (aTre != nullptr && *aTre != nullptr) {
        Detail::TreReleaser()(*aTre);
        *aTre = nullptr;
    }
}

}  // namespace ORMO::SensorModel::CSM
