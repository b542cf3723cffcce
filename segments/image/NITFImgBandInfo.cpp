#include "segments/image/NITFImgBandInfo.h"

#include "fields/Number.h"
#include "nitf/NITFCnst.h"
#include "nitf/NITFCnstLimits.h"
#include "tre/TRE.h"

#include <cmath>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::size_t MOST_ENTRIES = 65536;
constexpr double TO_8_BITS = 0.0038910505836575876;  // 255/65535

}  // namespace

NITFImgBandInfo::NITFImgBandInfo(std::size_t aNumber, std::string_view aImageRepresentation, const Fields& aFields)
    : m_number(aNumber),
      m_irepband(Detail::TrimBlanks(aFields.irepband)),
      m_isubcat(Detail::TrimBlanks(aFields.isubcat)),
      m_ifc(Detail::TrimBlanks(aFields.ifc)),
      m_imflt(Detail::TrimBlanks(aFields.imflt))
{
    if (!SetLUTs(Detail::TrimBlanks(aImageRepresentation), aFields)) {
        m_error =
            "ERROR: Invalid image segment fields NLUTS (Number of LUTS for the nth Image Band), NELUT (Number of LUT "
            "Entries for the nth Image Band), and/or LUTD (Look-up Tables).";
    }
}

bool NITFImgBandInfo::SetLUTs(std::string_view aImageRepresentation, const Fields& aFields)
{
    std::uint64_t tables = 0;
    if (!Detail::ToCount(aFields.nluts, tables) || tables > NITFCnst::Limits::MAX_NITF_IS_FIELD_NLUTS ||
        tables != aFields.lutd.size()) {
        return false;
    }
    if (tables == 0) {
        return true;
    }
    std::uint64_t entries = 0;
    if (!Detail::ToCount(aFields.nelut, entries) || entries == 0 || entries > MOST_ENTRIES) {
        return false;
    }
    for (const std::string_view table : aFields.lutd) {
        if (table.size() != entries) {
            return false;
        }
    }
    m_numOfTables = static_cast<std::size_t>(tables);
    m_numOfEntries = static_cast<std::size_t>(entries);
    if (aImageRepresentation != NITFCnst::STR_VAL_IREP_MONO || m_numOfTables != 2) {
        for (const std::string_view table : aFields.lutd) {
            m_tables.emplace_back(table.begin(), table.end());
        }
        return true;
    }
    Table narrow(m_numOfEntries);
    m_wide.resize(m_numOfEntries);
    for (std::size_t i = 0; i != m_numOfEntries; ++i) {
        const auto low = static_cast<unsigned char>(aFields.lutd[0][i]);
        const auto high = static_cast<unsigned char>(aFields.lutd[1][i]);
        m_wide[i] = std::uint32_t{high} * 256U + low;
        narrow[i] = static_cast<unsigned char>(std::ceil(m_wide[i] * TO_8_BITS));
    }
    m_tables.push_back(std::move(narrow));
    m_numOfTables = 1;
    return true;
}

bool NITFImgBandInfo::GetLUTs(std::vector<WideTable>& aTables) const
{
    if (!HasLUTs()) {
        return false;
    }
    aTables.clear();
    if (Has16BitLUT()) {
        aTables.push_back(m_wide);
        return true;
    }
    for (const Table& table : m_tables) {
        aTables.emplace_back(table.begin(), table.end());
    }
    return true;
}

bool NITFImgBandInfo::Get8BitColorMapArrays(std::vector<Table>& aTables) const
{
    if (HasLUTs()) {
        aTables = m_tables;
    }
    return HasLUTs();
}

bool NITFImgBandInfo::AddTreBANDS(std::shared_ptr<const TRE> aTre)
{
    const std::string_view tag = aTre == nullptr ? "" : aTre->GetTag();
    if (tag != "BANDSA" && tag != "BANDSB") {
        return false;
    }
    m_bands.push_back(std::move(aTre));
    return true;
}

std::vector<const TRE*> NITFImgBandInfo::GetTreBANDS() const
{
    std::vector<const TRE*> tres;
    for (const std::shared_ptr<const TRE>& tre : m_bands) {
        tres.push_back(tre.get());
    }
    return tres;
}

}  // namespace ORMO::SensorModel::CSM
