#pragma once

#include "fields/FieldRecord.h"
#include "foundation/detail/Lazy.h"
#include "tre/TRE.h"
#include "tre/detail/TreViews.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// All that a TRE holds. Who makes TREs, or asks of their fields inside the library, works on this.
struct ORMO_CSM_LOCAL TRE::Parts
{
    static constexpr std::size_t TAG_WIDTH = 6;
    static constexpr std::size_t LENGTH_WIDTH = 5;
    static constexpr std::size_t HEADER_WIDTH = TAG_WIDTH + LENGTH_WIDTH;
    static constexpr std::size_t MOST_DATA = 99999;  ///< what the length field can say

    char tag[TAG_WIDTH + 1] = {};
    Type type = TRE_TYPE_UNKNOWN;
    std::int32_t code = -1;
    SupportedTreFactory::Enum group = SupportedTreFactory::UNKNOWN;
    /// Which special providers made the object and alone can copy and release it; unknown for all others. It belongs to
    /// the object, whatever is assigned to it.
    SupportedTreFactory::Enum maker = SupportedTreFactory::UNKNOWN;
    const char* name = nullptr;      ///< long name, as the tag has it; null when it has none
    const Layout* layout = nullptr;  ///< of a typed TRE
    /// Tag and length as they stand in a file; of a generic TRE the data too. Those of a typed one are its fields.
    std::string text;
    Detail::FieldRecord* fields = nullptr;  ///< of a typed TRE
    const char* area = "";
    std::uint64_t offset = 0;  ///< of the record in its file
    Detail::Lazy<Detail::TreViews> views;

    Parts() = default;
    Parts& operator=(const Parts&) = delete;
    virtual ~Parts() = default;

    std::size_t Length() const noexcept
    {
        return fields == nullptr ? text.size() - HEADER_WIDTH : fields->Store().Size();
    }
    /// The data in one piece, which is made of the fields when it is first asked for.
    std::string_view Data() const;
    /// Writes that many bytes.
    void CopyData(char* aOut) const noexcept;
    const Detail::TreViews& Views() const
    {
        return views.Get([] { return Detail::TreViews(); });
    }
    /// The same again, but without a maker.
    virtual std::unique_ptr<Parts> Copy() const;

    /// Sets tag, type, and tag and length as they were received, or as they are composed for that many bytes of data.
    /// `aTextSize` is the size that the text is to have in the end.
    void Begin(std::string_view aTag, std::string_view aHeader, std::size_t aLength, Type aType, std::size_t aTextSize);
    /// The parts of a generic TRE. Raises std::invalid_argument when the tag is missing or too long, or the data are
    /// too long.
    static std::unique_ptr<Parts> New(std::string_view aTag, std::string_view aHeader, std::string_view aData,
                                      Type aType);

    static const Parts& Of(const TRE& aTre) noexcept { return *aTre.m_parts; }
    static Parts& Of(TRE& aTre) noexcept { return *aTre.m_parts; }
    /// Makes a TRE without a class of its own.
    static TRE* NewGeneric(Parts& aParts) { return new TRE(aParts); }

protected:
    Parts(const Parts& aOther);
};

namespace Detail {

/// The parts of a typed TRE with its fields in one block of memory.
struct TypedParts final : TRE::Parts
{
    FieldRecord record;

    TypedParts(const FieldTable& aTable, FieldStore::ByteOrder aOrder) : record(aTable, aOrder) { fields = &record; }
    std::unique_ptr<Parts> Copy() const override { return std::unique_ptr<Parts>(new TypedParts(*this)); }

private:
    TypedParts(const TypedParts& aOther) : Parts(aOther), record(aOther.record) { fields = &record; }
};

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM
