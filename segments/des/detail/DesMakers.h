#pragma once

#include "fields/MessageText.h"
#include "foundation/CSMException.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// How the classes of a base are made, by the identifier of the DES type that they read.
template<typename Base, std::size_t N>
struct DesMakers
{
    struct Maker
    {
        const char* type;
        std::unique_ptr<Base> (*make)(const char* aType, const char* aData, std::size_t aLength);
        std::size_t most = 0;  ///< bytes that the layout can hold; 0 when it sets no bound
    };

    template<typename Class>
    static std::unique_ptr<Base> Make(const char* aType, const char* aData, std::size_t aLength)
    {
        return std::make_unique<Class>(aType, aData, aLength);
    }

    const Maker* Find(const char* aType) const noexcept
    {
        const std::string_view type = Trimmed(aType);
        const auto maker =
            std::find_if(makers.begin(), makers.end(), [type](const Maker& aMaker) { return aMaker.type == type; });
        return maker == makers.end() ? nullptr : &*maker;
    }

    std::vector<const char*> Types() const
    {
        std::vector<const char*> types;
        for (const Maker& maker : makers) {
            types.push_back(maker.type);
        }
        return types;
    }

    /// Makes an object of a checked type and data; `aArea` is "DESSHF" or "DESDATA". Null, with the reason, when there
    /// is no class for the type or its data do not fit.
    std::unique_ptr<Base> Create(const char* aArea, const char* aType, const char* aData, std::size_t aLength,
                                 std::string& aMessage) const
    {
        const Maker* const maker = Find(aType);
        if (maker == nullptr) {
            aMessage = "WARN: " + std::string(aArea) + ' ' + Quoted(Trimmed(aType)) +
                       " is currently not supported by the Talvik CSM System.";
            return nullptr;
        }
        try {
            return maker->make(aType, aData, aLength);
        } catch (const CSMException& exception) {
            aMessage = exception.GetAdditionalMessage();
            return nullptr;
        }
    }

    std::array<Maker, N> makers;
};

/// What is missing of the arguments of a factory; empty when nothing is.
inline std::string MissingDesInput(const char* aArea, const char* aType, const char* aData, std::size_t aLength,
                                   bool aHasOutput)
{
    if (!aHasOutput) {
        return "ERROR: NULL required input argument.";
    }
    if (aData == nullptr || aLength == 0) {
        return "ERROR: NULL/empty input " + std::string(aArea) + " data stream.";
    }
    return Trimmed(aType).empty() ? "ERROR: NULL/empty input DESTAG/DESID." : "";
}

/// Hands a message out as a new text; null when there is none.
inline void HandOutMessage(const std::string& aMessage, char** aOut)
{
    if (aOut != nullptr) {
        *aOut = nullptr;
        if (!aMessage.empty()) {
            Util::CSMUtilString::Copy(aMessage.c_str(), aOut);
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
