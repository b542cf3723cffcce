#include "tre/TREFactory.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreMaker.h"

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string_view>

namespace ORMO::SensorModel::CSM {

using Detail::MessageText;
using Detail::Quoted;

namespace {

constexpr std::size_t TAG_WIDTH = 6;
constexpr std::size_t LENGTH_WIDTH = 5;
constexpr std::size_t HEADER_WIDTH = TAG_WIDTH + LENGTH_WIDTH;
// A warning shows no more of an ignored area than a person would read.
constexpr std::size_t MOST_SHOWN = 2000;

/// Frees a text that an operation handed out.
struct TextDeleter
{
    void operator()(char* aText) const noexcept { Util::CSMUtilString::DeleteCString(aText); }
};
using OwnedText = std::unique_ptr<char, TextDeleter>;

struct TreDestroyer
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using OwnedTre = std::unique_ptr<TRE, TreDestroyer>;

std::string ErrorMessage(const char* aMessage)
{
    return aMessage == nullptr || *aMessage == '\0' ? std::string() : "\nError message = " + Quoted(aMessage);
}

std::string ErrorMessage(const CSMException& aException)
{
    return ErrorMessage(aException.GetAdditionalMessage());
}

/// The bytes of an area as a message can carry them.
std::string AreaText(std::string_view aArea)
{
    const bool printable = std::none_of(aArea.begin(), aArea.end(), [](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        return byte < 0x20 && aCharacter != '\n' && aCharacter != '\r' && aCharacter != '\t';
    });
    return printable && aArea.size() <= MOST_SHOWN ? std::string(aArea) : Detail::Shown(aArea, MOST_SHOWN / 2);
}

/// The length field, by the conversion that all fields share; below 1 when it holds none.
long LengthOf(std::string_view aField)
{
    std::array<char, LENGTH_WIDTH + 1> text{};
    std::copy(aField.begin(), aField.end(), text.begin());
    long length = 0;
    return aField.find('\0') == std::string_view::npos && Util::CSMUtilString::ToLong(text.data(), length) ? length : 0;
}

std::string_view TagOf(std::string_view aField) noexcept
{
    const bool control = std::any_of(aField.begin(), aField.end(),
                                     [](char aCharacter) { return static_cast<unsigned char>(aCharacter) < 0x20; });
    const auto last = aField.find_last_not_of(' ');
    return control || last == std::string_view::npos ? std::string_view{} : aField.substr(0, last + 1);
}

/// Makes a TRE; null, with one warning, when that fails. Whatever else there is to say joins the warnings too.
OwnedTre MakeOne(const std::string& aTag, std::string_view aData, TRE::Type aType, bool aSpecificOnly, bool aValidate,
                 Util::CSMCnst::ByteOrder aByteOrder, MessageText& aWarnings)
{
    TRE* tre = nullptr;
    char* errors = nullptr;
    std::string caught;
    std::string message;
    try {
        TREFactory::Create(aTag.c_str(), aData.data(), aType, &tre, aSpecificOnly, aValidate, &errors, aData.size(),
                           aByteOrder);
    } catch (const std::invalid_argument& exception) {
        caught = "An invalid_argument";
        message = ErrorMessage(exception.what());
    } catch (const UnsupportedTREException& exception) {
        caught = "An UnsupportedTREException";
        message = ErrorMessage(exception);
    } catch (const ObjectConstructionException& exception) {
        caught = "An ObjectConstructionException";
        message = ErrorMessage(exception);
    } catch (const std::exception& exception) {
        caught = "An unknown";
        message = ErrorMessage(exception.what());
    } catch (const CSMException& exception) {
        caught = "An unknown";
        message = ErrorMessage(exception);
    }
    const OwnedText ownedErrors(errors);
    if (!caught.empty()) {
        aWarnings.Add("WARN: " + caught + " exception was caught while attempting to create TRE " + Quoted(aTag) + "." +
                      message);
        return nullptr;
    }
    if (errors != nullptr) {
        aWarnings.Add(errors);
    }
    if (tre == nullptr) {
        aWarnings.Add("WARN: Failed to create TRE " + Quoted(aTag) + ".\nCEDATA/REDATA = " + Quoted(AreaText(aData)));
    }
    return OwnedTre(tre);
}

int Cut(std::string_view aArea, TREStore& aStore, bool aSpecificOnly, bool aValidate, MessageText& aWarnings,
        Util::CSMCnst::ByteOrder aByteOrder, const TREFactory::AreaPlace& aPlace)
{
    int count = 0;
    std::string_view rest = aArea;
    while (rest.size() >= HEADER_WIDTH) {
        const std::string tag(TagOf(rest.substr(0, TAG_WIDTH)));
        const long length = LengthOf(rest.substr(TAG_WIDTH, LENGTH_WIDTH));
        const std::uint64_t offset = aPlace.offset + (aArea.size() - rest.size());
        if (length < 1 || tag.empty()) {
            aWarnings.Add("WARN: The following TRE data stream contains errors, it has been ignored:\n\n" +
                          AreaText(aArea));
            break;
        }
        const auto wanted = static_cast<std::size_t>(length);
        if (rest.size() - HEADER_WIDTH < wanted) {
            std::string warning = "WARN: Failed to extract the CEDATA/REDATA field of TRE " + Quoted(tag) +
                                  ". The following TRE data stream has been ignored:\n\n" + AreaText(rest);
            if (*aPlace.name != '\0') {
                warning += "\n[area " + std::string(aPlace.name) + ", byte offset " + std::to_string(offset) +
                           ", length claimed = " + std::to_string(wanted) +
                           ", available = " + std::to_string(rest.size() - HEADER_WIDTH) + "]";
            }
            aWarnings.Add(warning);
            break;
        }
        const std::string_view data = rest.substr(HEADER_WIDTH, wanted);
        rest.remove_prefix(HEADER_WIDTH + wanted);
        TRE::Type type = SupportedTREs::GetTreFieldType(tag.c_str());
        if (type == TRE::TRE_TYPE_UNKNOWN) {
            type = aPlace.unknownType;
        }
        OwnedTre tre = MakeOne(tag, data, type, aSpecificOnly, aValidate, aByteOrder, aWarnings);
        if (tre == nullptr) {
            continue;
        }
        Detail::TreMaker::SetPlace(*tre, aPlace.name, offset);
        if (aStore.Add(tre.get())) {
            static_cast<void>(tre.release());  // the store owns it now
            ++count;
        } else {
            aWarnings.Add("WARN: Failed to insert TRE object " + Quoted(tag) +
                          " into the TRE data store. The TRE object is being ignored and has been deleted.\n");
        }
    }
    return count;
}

/// Adds what kept a TRE from being typed.
void AddCause(MessageText& aErrors, const std::string& aText, const std::string& aMessage)
{
    aErrors.Add(aText + aMessage);
}

/// The typed TRE of a known tag, or null with the reason among the errors.
TRE* MakeTyped(const std::string& aTag, const char* aData, std::size_t aLength, bool aValidate,
               Util::CSMCnst::ByteOrder aByteOrder, SupportedTreFactory::Enum aGroup, MessageText& aErrors)
{
    TRE* tre = nullptr;
    char* problems = nullptr;
    try {
        SupportedTREs::Instance().CreateTRE(aTag.c_str(), aData, &tre, &problems, aLength, aValidate, aByteOrder,
                                            aGroup);
    } catch (const std::invalid_argument& exception) {
        AddCause(aErrors,
                 "ERROR: Exception \"invalid_argument\" caught for TRE " + Quoted(aTag) +
                     ". Input CEDATA/REDATA maybe invalid.",
                 ErrorMessage(exception.what()));
    } catch (const UnsupportedTREException& exception) {
        AddCause(aErrors, "UnsupportedTREException caught while attempting to create a specific TRE object.",
                 ErrorMessage(exception));
    } catch (const ObjectConstructionException& exception) {
        AddCause(aErrors, "ObjectConstructionException caught while attempting to create a specific TRE object.",
                 ErrorMessage(exception));
    } catch (const CSMException& exception) {
        AddCause(aErrors, "ERROR: Failed to initialize a specific TRE object with the input data.",
                 ErrorMessage(exception));
    }
    const OwnedText ownedProblems(problems);
    if (problems != nullptr) {
        aErrors.Add(problems);
    }
    return tre;
}

}  // namespace

int TREFactory::ExtractTREs(const char* aArea, TREStore& aStore, bool aSpecificOnly, bool aValidate, char** aErrors,
                            Util::CSMCnst::ByteOrder aByteOrder)
{
    if (aErrors != nullptr) {
        *aErrors = nullptr;
    }
    if (aArea == nullptr) {
        constexpr const char* MESSAGE = "ERROR: Invalid/NULL input TRE data stream.";
        if (aErrors != nullptr) {
            Util::CSMUtilString::Copy(MESSAGE, aErrors);
        }
        throw std::invalid_argument(MESSAGE);
    }
    MessageText warnings;
    const int count = Cut(aArea, aStore, aSpecificOnly, aValidate, warnings, aByteOrder, {});
    if (aErrors != nullptr && !warnings.IsEmpty()) {
        Util::CSMUtilString::Copy(warnings.Text().c_str(), aErrors);
    }
    return count;
}

int TREFactory::ExtractTREs(const char* aArea, std::size_t aLength, TREStore& aStore, bool aSpecificOnly,
                            bool aValidate, std::string& aWarnings, Util::CSMCnst::ByteOrder aByteOrder,
                            const AreaPlace& aPlace)
{
    if (aArea == nullptr) {
        throw std::invalid_argument("ERROR: Invalid/NULL input TRE data stream.");
    }
    MessageText warnings;
    const int count = Cut({aArea, aLength}, aStore, aSpecificOnly, aValidate, warnings, aByteOrder, aPlace);
    Detail::AppendBlock(aWarnings, warnings.Text());
    return count;
}

void TREFactory::Create(const char* aTag, const char* aData, TRE::Type aType, TRE** aTre, bool aSpecificOnly,
                        bool aValidate, char** aErrors, std::size_t aLength, Util::CSMCnst::ByteOrder aByteOrder)
{
    if (aTre == nullptr || aData == nullptr) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    const std::size_t length = aLength != 0 ? aLength : std::char_traits<char>::length(aData);
    if (length == 0) {
        throw std::invalid_argument("ERROR: Empty/NULL input CEDATA/REDATA string.");
    }
    *aTre = nullptr;
    const std::string tag(Detail::Trimmed(aTag));
    if (tag.empty()) {
        throw std::invalid_argument("ERROR: Input CETAG/RETAG cannot be NULL or an empty string.");
    }
    MessageText errors;
    SupportedTreFactory::Enum group = SupportedTreFactory::UNKNOWN;
    if (SupportedTREs::Instance().AbleToCreateTRE(tag.c_str(), &group)) {
        *aTre = MakeTyped(tag, aData, length, aValidate, aByteOrder, group, errors);
    }
    if (aErrors != nullptr) {
        *aErrors = nullptr;
        if (!errors.IsEmpty()) {
            Util::CSMUtilString::Copy(errors.Text().c_str(), aErrors);
        }
    }
    if (*aTre != nullptr) {
        return;
    }
    if (aSpecificOnly) {
        const std::string message =
            "ERROR: Specifc TRE " + Quoted(tag) + " currently not supported by the Ormo CSM System.";
        throw UnsupportedTREException(message.c_str(), "TREFactory::Create");
    }
    try {
        *aTre = Detail::TreMaker::MakeGeneric(tag.c_str(), aData, length, aType).release();
    } catch (const std::exception& exception) {
        const std::string message =
            std::string("ERROR: Failed to initialize a generic TRE object with the input data.") +
            "\nError message = " + exception.what();
        throw ObjectConstructionException(message.c_str(), "TREFactory::Create");
    }
}

void TREFactory::Create(const char* aTreString, TRE::Type aType, TRE** aTre, bool aSpecificOnly, bool aValidate,
                        char** aErrors, Util::CSMCnst::ByteOrder aByteOrder)
{
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
    if (SupportedTREs::Instance().CloneTRE(aSource, aCopy)) {
        return true;
    }
    if (aSource.IsGenericTRE()) {
        *aCopy = Detail::TreMaker::CloneGeneric(aSource).release();
    }
    return *aCopy != nullptr;
}

void TREFactory::Destroy(TRE** aTre)
{
    if (aTre == nullptr || *aTre == nullptr) {
        return;
    }
    if (!SupportedTREs::Instance().Destroy(aTre)) {
        delete *aTre;
    }
    *aTre = nullptr;
}

}  // namespace ORMO::SensorModel::CSM
