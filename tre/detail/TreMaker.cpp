#include "tre/detail/TreMaker.h"

#include "fields/MessageText.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/SupportedTRE.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace ORMO::SensorModel::CSM {

using Parts = TRE::Parts;

Parts::Parts(const Parts& aOther)
    : type(aOther.type),
      code(aOther.code),
      group(aOther.group),
      name(aOther.name),
      layout(aOther.layout),
      text(aOther.text),
      area(aOther.area),
      offset(aOther.offset)
{
    std::copy(std::begin(aOther.tag), std::end(aOther.tag), tag);
}

std::unique_ptr<Parts> Parts::Copy() const
{
    return std::unique_ptr<Parts>(new Parts(*this));
}

void Parts::Begin(std::string_view aTag, std::string_view aHeader, std::size_t aLength, Type aType,
                  std::size_t aTextSize)
{
    std::copy(aTag.begin(), aTag.end(), tag);
    type = aType;
    text.reserve(aTextSize);
    if (aHeader.size() == HEADER_WIDTH) {
        text = aHeader;
        return;
    }
    text = aTag;
    text.resize(TAG_WIDTH, ' ');
    const std::string length = std::to_string(aLength);
    text.append(LENGTH_WIDTH - length.size(), '0');
    text += length;
}

std::unique_ptr<Parts> Parts::New(std::string_view aTag, std::string_view aHeader, std::string_view aData, Type aType)
{
    const std::string_view tag = Detail::TrimmedEnd(aTag);
    if (tag.empty()) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    if (tag.size() > TAG_WIDTH) {
        throw std::invalid_argument("ERROR: The tag " + Detail::Quoted(tag) + " has more than " +
                                    std::to_string(TAG_WIDTH) + " characters.");
    }
    if (aData.size() > MOST_DATA) {
        Detail::TooLong(aData.size()).Throw(tag);
    }
    auto parts = std::make_unique<Parts>();
    parts->Begin(tag, aHeader, aData.size(), aType, HEADER_WIDTH + aData.size());
    parts->text += aData;
    return parts;
}

std::string_view Parts::Data() const
{
    if (fields == nullptr) {
        return std::string_view(text).substr(HEADER_WIDTH);
    }
    return Views().data.Get([this] {
        std::string data(Length(), '\0');
        CopyData(data.data());
        return data;
    });
}

void Parts::CopyData(char* aOut) const noexcept
{
    if (fields == nullptr) {
        std::copy(text.begin() + HEADER_WIDTH, text.end(), aOut);
        return;
    }
    for (const Detail::FieldEntry& entry : fields->Store().Entries()) {
        const std::string_view value = fields->Store().Value(entry);
        aOut = std::copy(value.begin(), value.end(), aOut);
    }
}

namespace Detail {

namespace {

/// Hands the parts to a new object.
OwnedTre Own(TRE* (*aMake)(Parts&), std::unique_ptr<Parts> aParts)
{
    OwnedTre tre(aMake(*aParts));
    static_cast<void>(aParts.release());  // the object owns them now
    return tre;
}

/// Frees a text that an operation handed out.
struct TextDeleter
{
    void operator()(char* aText) const noexcept { Util::CSMUtilString::DeleteCString(aText); }
};

OwnedTre AskProvider(const KnownTag& aKnown, const TreRecord& aRecord, bool aValidate, TreFault& aFault)
{
    TRE* made = nullptr;
    char* problems = nullptr;
    std::string cause;
    try {
        aKnown.special->CreateTRE(aRecord.tag, aRecord.data.data(), &made, &problems, aRecord.data.size(), aValidate,
                                  aRecord.order, aKnown.group);
    } catch (const std::invalid_argument& exception) {
        cause = "ERROR: Exception \"invalid_argument\" caught for TRE " + Quoted(aRecord.tag) +
                ". Input CEDATA/REDATA maybe invalid." + ErrorMessage(exception.what());
    } catch (const UnsupportedTREException& exception) {
        cause = "UnsupportedTREException caught while attempting to create a specific TRE object." +
                ErrorMessage(exception.GetAdditionalMessage());
    } catch (const ObjectConstructionException& exception) {
        cause = "ObjectConstructionException caught while attempting to create a specific TRE object." +
                ErrorMessage(exception.GetAdditionalMessage());
    } catch (const CSMException& exception) {
        cause = "ERROR: Failed to initialize a specific TRE object with the input data." +
                ErrorMessage(exception.GetAdditionalMessage());
    }
    const std::unique_ptr<char, TextDeleter> ownedProblems(problems);
    OwnedTre tre(cause.empty() ? made : nullptr);
    AppendBlock(cause, ViewOf(problems));
    if (!cause.empty()) {
        aFault.kind = TreFault::Kind::Provider;
        aFault.text = std::move(cause);
    }
    return tre;
}

/// The typed form of a record, when its data fit the tag.
OwnedTre MakeTyped(const KnownTag& aKnown, const TreRecord& aRecord, bool aValidate, TreFault& aFault)
{
    const TreLayout& layout = LayoutOfRecord(aKnown.entry->layout(), aRecord.data, aRecord.order);
    aFault = TreMaker::CheckLength(aRecord.data.size(), layout);
    if (!aFault.IsGood()) {
        return nullptr;
    }
    auto parts = std::make_unique<TypedParts>(layout.table, aRecord.order);
    aFault = TreMaker::Fit(parts->record, aRecord.data, layout);
    if (aFault.IsGood() && aValidate) {
        Finding place;
        place.owner = aRecord.tag;
        FindingList problems;
        parts->record.Check(place, problems);
        if (problems.Errors() != 0) {
            aFault.kind = TreFault::Kind::Values;
            aFault.found = problems.Errors();
            AppendProblemLines(problems, aFault.text);
        }
    }
    if (!aFault.IsGood()) {
        return nullptr;
    }
    parts->Begin(aKnown.entry->tag, aRecord.header, aRecord.data.size(), aKnown.entry->type, Parts::HEADER_WIDTH);
    parts->code = aKnown.entry->code;
    parts->group = aKnown.group;
    parts->name = layout.name;
    parts->layout = &layout;
    return Own(aKnown.entry->make, std::move(parts));
}

}  // namespace

void TreReleaser::operator()(TRE* aTre) const noexcept
{
    const auto maker = Parts::Of(*aTre).maker;
    bool released = false;
    if (maker != SupportedTreFactory::UNKNOWN) {
        try {
            released = SupportedTREs::Instance().Destroy(&aTre);
        } catch (...) {
            return;  // only its provider could have released it
        }
    }
    if (!released) {
        delete aTre;
    }
}

TRE::Type KnownTag::TypeOr(const char* aTag, TRE::Type aUnknown) const
{
    const TRE::Type type = special != nullptr ? special->GetTREType(aTag)
                           : entry != nullptr ? entry->type
                                              : TRE::TRE_TYPE_UNKNOWN;
    return type == TRE::TRE_TYPE_UNKNOWN ? aUnknown : type;
}

TreFault TooLong(std::size_t aLength)
{
    TreFault fault;
    fault.kind = TreFault::Kind::TooLong;
    fault.expected = Parts::MOST_DATA;
    fault.found = aLength;
    return fault;
}

TreFault TreMaker::CheckLength(std::size_t aLength, const TreLayout& aLayout)
{
    if (aLength > Parts::MOST_DATA) {
        return TooLong(aLength);
    }
    TreFault fault;
    fault.kind = aLayout.length != 0 && aLength != aLayout.length ? TreFault::Kind::Length : TreFault::Kind::None;
    fault.expected = aLayout.length;
    fault.found = aLength;
    return fault;
}

TreFault TreMaker::Fit(FieldRecord& aFields, std::string_view aData, const TreLayout& aLayout)
{
    TreFault fault;
    fault.layout = &aLayout;
    fault.walk = aFields.Read(aData);
    if (!fault.walk.IsGood()) {
        fault.kind = TreFault::Kind::Fields;
        fault.found = aFields.Store().Entries().size();
        fault.expected = std::max<std::uint64_t>(aLayout.table.FieldCount(), fault.found + 1);
    } else if (fault.walk.consumed != aData.size()) {
        fault.kind = TreFault::Kind::Length;
        fault.expected = fault.walk.consumed;
        fault.found = aData.size();
    }
    return fault;
}

OwnedTre TreMaker::Make(const KnownTag& aKnown, const TreRecord& aRecord, bool aTypedOnly, bool aValidate,
                        TreFault& aFault)
{
    aFault = {};
    OwnedTre tre;
    const bool typed = aKnown.entry != nullptr && aKnown.entry->IsTyped();
    if (aKnown.special != nullptr) {
        tre = AskProvider(aKnown, aRecord, aValidate, aFault);
    } else if (typed) {
        tre = MakeTyped(aKnown, aRecord, aValidate, aFault);
    }
    if (tre != nullptr || aTypedOnly) {
        return tre;
    }
    auto parts = Parts::New(aRecord.tag, aRecord.header, aRecord.data, aRecord.type);
    if (aKnown.entry != nullptr) {
        parts->code = aKnown.entry->code;
        parts->name = typed ? aKnown.entry->layout().name : nullptr;
    }
    return Own(&Parts::NewGeneric, std::move(parts));
}

OwnedTre TreMaker::Clone(const TRE& aSource)
{
    const Parts& source = Parts::Of(aSource);
    if (source.maker != SupportedTreFactory::UNKNOWN) {
        TRE* copy = nullptr;
        SupportedTREs::Instance().CloneTRE(aSource, &copy);
        return OwnedTre(copy);
    }
    // The layout says which class it is, not that of the object: a generic TRE may have been assigned to.
    const TreEntry* const entry = source.layout == nullptr ? nullptr : FindKnown(source.tag).entry;
    return Own(entry != nullptr && entry->IsTyped() ? entry->make : &Parts::NewGeneric, source.Copy());
}

void TreMaker::SetPlace(TRE& aTre, const char* aArea, std::uint64_t aFileOffset) noexcept
{
    Parts::Of(aTre).area = aArea;
    Parts::Of(aTre).offset = aFileOffset;
}

void TreMaker::SetMaker(TRE& aTre, SupportedTreFactory::Enum aMaker) noexcept
{
    Parts::Of(aTre).maker = aMaker;
    Parts::Of(aTre).group = aMaker;
}

void TreMaker::Check(const TRE& aTre, Finding aPlace, FindingList& aFindings)
{
    const Parts& parts = Parts::Of(aTre);
    if (parts.fields == nullptr) {
        return;
    }
    aPlace.owner = parts.tag;
    aPlace.tre = parts.tag;
    aPlace.area = parts.area;
    aPlace.offset = *parts.area == '\0' ? Finding::NO_OFFSET : parts.offset + Parts::HEADER_WIDTH;
    parts.fields->Check(aPlace, aFindings);
}

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM
