#pragma once

#include "fields/FieldStore.h"

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// Makes records by the rows of a table, field by field as the walk asks for them: every value is one that its row
/// allows. Fields that other rows look at get the values that open and close what hangs on them: a count is none, one
/// or more, a condition holds or not. The same seed makes the same records everywhere.
class TreRecordMaker
{
public:
    TreRecordMaker(const Detail::FieldTable& aTable, std::uint32_t aSeed);

    /// The data of the next record. Raises std::runtime_error when the rows leave no way to make one.
    std::string Next();

    /// What the records so far have left out: fields that none of them has, as "TAG", and conditions that held
    /// wherever they were met, as "no record without TAG", named by their first field.
    std::vector<std::string> NotSeen() const;

private:
    /// A number from 0 to `aBound` - 1.
    std::size_t Pick(std::size_t aBound) { return m_random() % aBound; }
    char PickOf(std::string_view aCharacters) { return aCharacters[Pick(aCharacters.size())]; }

    /// False when the values drawn so far leave no way to end the record in time.
    bool Make(std::string& aRecord);
    bool IsEndOfTurns(const Detail::FieldEntry& aEntry);
    std::string Value(const Detail::FieldEntry& aEntry);
    std::string Proposal(const Detail::FieldRow& aRow, std::size_t aRowIndex, std::size_t aWidth);
    bool LooksAt(std::size_t aRow, std::size_t aField) const;
    bool IsAsked(std::size_t aRow) const;
    bool IsCounted(std::size_t aRow) const;
    std::string Telling(std::size_t aRow, std::size_t aWidth);
    std::string OfRule(const Detail::FieldRow& aRow, std::size_t aWidth);
    std::string OfRange(const Detail::FieldRow& aRow, std::string_view aRange, std::size_t aWidth);
    std::string OfPicture(std::string_view aPicture);
    std::string OfForm(const Detail::FieldRow& aRow, std::size_t aWidth);
    std::string OfLetters(std::size_t aWidth, std::string_view aLetters);
    std::string OfReal(std::size_t aWidth);
    void Note(const Detail::FieldStore& aStore);

    Detail::FieldTable m_table;
    std::mt19937 m_random;
    bool m_hasOpenEnd = false;    // a field or repeat takes all that is left
    std::vector<bool> m_reached;  // by row
    std::vector<bool> m_passed;   // by row, of conditions: a record had their surroundings, but not them
};

}  // namespace ORMO::SensorModel::CSM::Tests
