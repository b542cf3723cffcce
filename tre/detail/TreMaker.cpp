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
        Detail::TreFault fault;
        fault.kind = Detail::TreFault::Kind::TooLong;
        fault.expected = MOST_DATA;
        fault.found = aData.size();
        fault.Throw(tag);
    }
    auto parts = std::make_unique<Parts>();
    std::copy(tag.begin(), tag.end(), parts->tag);
    parts->type = aType;
    std::string& text = parts->text;
    text.reserve(HEADER_WIDTH + aData.size());
    if (aHeader.size() == HEADER_WIDTH) {
        text = aHeader;
    } else {
        text = tag;
        text.resize(TAG_WIDTH, ' ');
        const std::string length = std::to_string(aData.size());
        text.append(LENGTH_WIDTH - length.size(), '0');
        text += length;
    }
    text += aData;
    return parts;
}

std::unique_ptr<Parts> Parts::Copy() const
{
    auto copy = std::make_unique<Parts>();
    std::copy(std::begin(tag), std::end(tag), copy->tag);
    copy->type = type;
    copy->code = code;
    copy->group = group;
    copy->name = name;
    copy->layout = layout;
    copy->text = text;
    copy->fields = fields == nullptr ? nullptr : std::make_unique<Detail::FieldRecord>(*fields);
    copy->area = area;
    copy->offset = offset;
    return copy;
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

/// The typed form of the parts, when their data fit the tag.
OwnedTre MakeTyped(const KnownTag& aKnown, const TreRecord& aRecord, bool aValidate, std::unique_ptr<Parts>& aParts,
                   TreFault& aFault)
{
    aFault = TreMaker::Fit(*aParts, LayoutOfRecord(aKnown.entry->layout(), aRecord.data, aRecord.order), aRecord.order);
    if (aFault.IsGood() && aValidate) {
        Finding place;
        place.owner = aParts->tag;
        FindingList problems;
        aParts->fields->Check(place, problems);
        if (problems.Errors() != 0) {
            aFault.kind = TreFault::Kind::Values;
            aFault.found = problems.Errors();
            AppendProblemLines(problems, aFault.text);
            aParts->fields.reset();
            aParts->layout = nullptr;
        }
    }
    if (!aFault.IsGood()) {
        return nullptr;
    }
    aParts->type = aKnown.entry->type;
    aParts->group = aKnown.group;
    return Own(aKnown.entry->make, std::move(aParts));
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

TreFault TreMaker::Fit(Parts& aParts, const TreLayout& aLayout, Util::CSMCnst::ByteOrder aOrder)
{
    TreFault fault;
    fault.layout = &aLayout;
    const std::string_view data = aParts.Data();
    fault.found = data.size();
    fault.expected = aLayout.length;
    if (aLayout.length != 0 && data.size() != aLayout.length) {
        fault.kind = TreFault::Kind::Length;
        return fault;
    }
    auto fields = std::make_unique<FieldRecord>(aLayout.table, aOrder);
    fault.walk = fields->Read(data);
    if (!fault.walk.IsGood()) {
        fault.kind = TreFault::Kind::Fields;
        fault.found = fields->Store().Entries().size();
        fault.expected = std::max<std::uint64_t>(aLayout.table.FieldCount(), fault.found + 1);
        return fault;
    }
    if (fault.walk.consumed != data.size()) {
        fault.kind = TreFault::Kind::Length;
        fault.expected = fault.walk.consumed;
        return fault;
    }
    aParts.fields = std::move(fields);
    aParts.layout = &aLayout;
    return fault;
}

OwnedTre TreMaker::Make(const KnownTag& aKnown, const TreRecord& aRecord, bool aTypedOnly, bool aValidate,
                        TreFault& aFault)
{
    aFault = {};
    if (aKnown.special != nullptr) {
        OwnedTre tre = AskProvider(aKnown, aRecord, aValidate, aFault);
        if (tre != nullptr) {
            return tre;
        }
    }
    auto parts = Parts::New(aRecord.tag, aRecord.header, aRecord.data, aRecord.type);
    if (aKnown.entry != nullptr) {
        parts->code = aKnown.entry->code;
        parts->name = aKnown.entry->IsTyped() ? aKnown.entry->layout().name : nullptr;
        if (aKnown.special == nullptr && aKnown.entry->IsTyped()) {
            OwnedTre tre = MakeTyped(aKnown, aRecord, aValidate, parts, aFault);
            if (tre != nullptr) {
                return tre;
            }
        }
    }
    return aTypedOnly ? nullptr : Own(&Parts::NewGeneric, std::move(parts));
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
    aPlace.offset = parts.area[0] == '\0' ? Finding::NO_OFFSET : parts.offset + Parts::HEADER_WIDTH;
    parts.fields->Check(aPlace, aFindings);
}

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM
