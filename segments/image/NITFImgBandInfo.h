#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

class TRE;

/// What the subheader says of one band of an image: its representation, subcategory and filter, its look-up tables, and
/// the BANDSA and BANDSB TREs of the image. Texts are trimmed of blanks around them.
class ORMO_CSM_API NITFImgBandInfo
{
public:
    using Table = std::vector<unsigned char>;
    using WideTable = std::vector<std::uint32_t>;

    /// The fields of the band as they stand in the subheader, NELUT empty when it is not there, and the tables.
    struct Fields
    {
        std::string_view irepband;
        std::string_view isubcat;
        std::string_view ifc;
        std::string_view imflt;
        std::string_view nluts;
        std::string_view nelut;
        std::vector<std::string_view> lutd;
    };

    /// `aNumber` counts the bands from 0, `aImageRepresentation` is IREP. When the fields of the look-up tables do not
    /// fit one another the band has none, and GetErrorMessage says so.
    NITFImgBandInfo(std::size_t aNumber, std::string_view aImageRepresentation, const Fields& aFields);

    std::size_t GetBandNumber() const noexcept { return m_number; }
    /// "R", "G", "B", "M", "LU", "Y", "Cb", "Cr" or empty.
    const char* GetFieldIREPBAND() const noexcept { return m_irepband.c_str(); }
    const char* GetFieldISUBCAT() const noexcept { return m_isubcat.c_str(); }
    const char* GetFieldIFC() const noexcept { return m_ifc.c_str(); }
    const char* GetFieldIMFLT() const noexcept { return m_imflt.c_str(); }

    bool HasLUTs() const noexcept { return m_numOfTables != 0; }
    /// Whether the two tables of a MONO image are one table of 16 bits.
    bool Has16BitLUT() const noexcept { return !m_wide.empty(); }
    /// A pair that is one table counts as one.
    std::size_t GetNumOfLUTs() const noexcept { return m_numOfTables; }
    std::size_t GetNumOfLUTEntries() const noexcept { return m_numOfEntries; }
    /// The tables, each with the value of every entry; false when the band has none. The one table of 16 bits has the
    /// entry of the second table of the file as high byte and that of the first as low byte.
    bool GetLUTs(std::vector<WideTable>& aTables) const;
    /// The tables in 8 bits: as they stand, or each value of 16 bits times 255/65535, rounded up.
    bool Get8BitColorMapArrays(std::vector<Table>& aTables) const;

    /// Keeps a BANDSA or BANDSB of the image with the band; false for any other TRE.
    bool AddTreBANDS(std::shared_ptr<const TRE> aTre);
    /// The TREs kept, in the order in which they were added.
    std::vector<const TRE*> GetTreBANDS() const;

    /// Empty when all is well.
    const char* GetErrorMessage() const noexcept { return m_error.c_str(); }

private:
    bool SetLUTs(std::string_view aImageRepresentation, const Fields& aFields);

    std::size_t m_number;
    std::string m_irepband;
    std::string m_isubcat;
    std::string m_ifc;
    std::string m_imflt;
    std::size_t m_numOfTables = 0;
    std::size_t m_numOfEntries = 0;
    std::vector<Table> m_tables;
    WideTable m_wide;
    std::vector<std::shared_ptr<const TRE>> m_bands;
    std::string m_error;
};

}  // namespace ORMO::SensorModel::CSM
