// What is found wrong with an extension area, as data.

#include "tests/support/NitfBuilder.h"
#include "tre/TREStore.h"
#include "tre/detail/TreArea.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Detail::AreaPlace;
using Detail::FindingList;
using std::string_literals::operator""s;
using testing::HasSubstr;
using testing::Not;
using Tests::Tre;

const std::string OFFSET_DATA = "0000001200000034";

class TreAreaTest : public testing::Test
{
protected:
    int Extract(const std::string& aArea, bool aTypedOnly = false)
    {
        m_store.Clear();
        m_findings.Clear();
        return Detail::ExtractTREs(aArea, m_store, {aTypedOnly, false}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, PLACE,
                                   m_findings);
    }
    void Check(const std::string& aArea)
    {
        m_findings.Clear();
        Detail::CheckArea(aArea, PLACE, m_findings);
    }
    /// The only finding.
    const Finding& Found() const
    {
        static const Finding none;
        EXPECT_EQ(1U, m_findings.Count());
        return m_findings.KeptCount() == 0 ? none : m_findings.Kept(0);
    }

    static constexpr AreaPlace PLACE{"IXSHD", 1000, TRE::TRE_TYPE_CONTROLLED_EXTENSION};
    TREStore m_store;
    FindingList m_findings;
};

TEST_F(TreAreaTest, ATreThatDoesNotFitIsOneFindingWithItsPlace)
{
    const std::string good = Tre("OFFSET", OFFSET_DATA);
    EXPECT_EQ(4, Extract(good + Tre("NOBODY", "x") + good + Tre("OFFSET", "short")));
    const Finding& found = Found();
    EXPECT_EQ(Finding::Level::Warning, found.level);
    EXPECT_EQ("OFFSET", found.tre);
    EXPECT_EQ(3, found.turn);
    EXPECT_EQ("IXSHD", found.area);
    EXPECT_EQ(1000U + 27 + 12 + 27, found.offset);
    EXPECT_EQ("short", found.value);
    EXPECT_EQ("Data of 16 byte(s) expected, 5 found.", found.detail);
    EXPECT_THAT(found.sentence, Not(HasSubstr("\n")));
}

TEST_F(TreAreaTest, AWalkThatStoppedNamesItsFieldAndWhereThatStands)
{
    EXPECT_EQ(1, Extract(Tre("BANDSA", "01.0000f01.0000f100.009999")));
    const Finding& found = Found();
    EXPECT_EQ("BANDSA", found.owner);
    EXPECT_EQ("COUNT", found.field);
    EXPECT_EQ("9999", found.value);
    EXPECT_EQ(1000U + 11 + 22, found.offset);
    EXPECT_EQ(1, found.turn);
}

TEST_F(TreAreaTest, WhatEndsAnAreaIsOneFindingWhereItStands)
{
    EXPECT_EQ(1, Extract(Tre("NOBODY", "x") + "LARGE 00099ABCDE"));
    EXPECT_EQ(1012U, Found().offset);
    EXPECT_EQ("LARGE", Found().tre);
    EXPECT_EQ("LARGE 00099", Found().value);
    EXPECT_THAT(Found().detail, HasSubstr("length claimed = 99, available = 5"));

    EXPECT_EQ(1, Extract(Tre("NOBODY", "x") + "WRONG ABCDEFGH"));
    EXPECT_EQ(1012U, Found().offset);
    EXPECT_EQ("WRONG ABCDE", Found().value);
    EXPECT_THAT(Found().detail, HasSubstr("\"ABCDE\""));
}

TEST_F(TreAreaTest, LeftOutTresKeepTheirTrueCause)
{
    EXPECT_EQ(0, Extract(Tre("OFFSET", "short") + Tre("NOBODY", "x"), true));
    ASSERT_EQ(2U, m_findings.KeptCount());
    EXPECT_EQ("Data of 16 byte(s) expected, 5 found.", m_findings.Kept(0).detail);
    EXPECT_THAT(m_findings.Blocks(false), HasSubstr("of TRE \"OFFSET\" is 16 byte(s)."));
    EXPECT_EQ("NOBODY", m_findings.Kept(1).tre);
    EXPECT_EQ("", m_findings.Kept(1).detail);
}

TEST_F(TreAreaTest, TagsAreKeptAsReceived)
{
    const std::string area = Tre("A\tB", "1") + Tre("A B", "2") + Tre("\xC4\xD6", "3") + Tre("LAST", "4");
    ASSERT_EQ(4, Extract(area));
    EXPECT_TRUE(m_findings.IsEmpty());
    EXPECT_STREQ("A\tB", m_store.InOrder()[0]->GetTag());
    EXPECT_STREQ("A B", m_store.InOrder()[1]->GetTag());
    EXPECT_STREQ("\xC4\xD6", m_store.InOrder()[2]->GetTag());
    Check(area);
    EXPECT_EQ(3U, m_findings.Warnings());
    EXPECT_EQ("A B   ", m_findings.Kept(1).value);
    EXPECT_EQ(1012U, m_findings.Kept(1).offset);

    // A tag of blanks alone ends the area; one of other white space is refused and the area goes on.
    EXPECT_EQ(0, Extract(Tre("", "1") + Tre("LAST", "4")));
    EXPECT_EQ(1, Extract(Tre("\t", "1") + Tre("LAST", "4")));
    EXPECT_THAT(m_findings.Blocks(false), HasSubstr("WARN: An invalid_argument exception was caught"));
}

TEST_F(TreAreaTest, RecordsAreWrittenAsReceivedAndOddLengthsFoundByTheCheck)
{
    const std::string area = "OFFSET  16 " + OFFSET_DATA + "NOBODY3.9  abcNOBODY+0003abcNOBODY00003abc";
    ASSERT_EQ(4, Extract(area));
    EXPECT_TRUE(m_findings.IsEmpty()) << m_findings.Blocks(false);
    std::string written;
    for (const TRE* const tre : m_store.InOrder()) {
        char* text = nullptr;
        ASSERT_TRUE(tre->Write(&text));
        written += text;
        delete[] text;
    }
    EXPECT_EQ(area, written);
    EXPECT_TRUE(*m_store.InOrder()[2] == *m_store.InOrder()[3]) << "the same record, however its length is spelt";
    Check(area);
    ASSERT_EQ(3U, m_findings.KeptCount());
    EXPECT_EQ("  16 ", m_findings.Kept(0).value);
    EXPECT_EQ("3.9  ", m_findings.Kept(1).value);
    EXPECT_EQ("+0003", m_findings.Kept(2).value);
    EXPECT_EQ(2, m_findings.Kept(2).turn);
}

TEST_F(TreAreaTest, BytesBehindTheLastTreAreFoundByTheCheckOnly)
{
    const std::string area = Tre("NOBODY", "x") + "xyz";
    EXPECT_EQ(1, Extract(area));
    EXPECT_TRUE(m_findings.IsEmpty());
    Check(area);
    EXPECT_EQ("xyz", Found().value);
    EXPECT_EQ(1012U, Found().offset);
    EXPECT_EQ("", Found().tre);
    Check(Tre("NOBODY", "x"));
    EXPECT_TRUE(m_findings.IsEmpty());
    Check("");
    EXPECT_TRUE(m_findings.IsEmpty());
    Check("WRONG ABCDEFGH");
    EXPECT_EQ(Finding::Level::Error, Found().level);
    Check(Tre("NOBODY", "x") + std::string(20, '\0'));  // padding
    EXPECT_EQ(Finding::Level::Warning, Found().level);
}

TEST_F(TreAreaTest, AnAreaWithoutANameHasNoPlace)
{
    EXPECT_EQ(1, Detail::ExtractTREs(Tre("OFFSET", "short"), m_store, {}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, {},
                                     m_findings));
    EXPECT_EQ(Finding::NO_OFFSET, Found().offset);
    EXPECT_STREQ("", m_store.InOrder().front()->GetExtensionArea());
}

TEST_F(TreAreaTest, LittleEndianCountsAreRead)
{
    // The offset of the first frame, the number of frames and the offset of the second.
    const std::string area = Tre("NBLOCA", "\x10\0\0\0"s + "\2\0\0\0"s + "\x10\0\0\0"s);
    EXPECT_EQ(1, Detail::ExtractTREs(area, m_store, {}, Util::CSMCnst::BYTE_ORDER_LITTLE_ENDIAN, PLACE, m_findings));
    EXPECT_FALSE(m_store.InOrder().front()->IsGenericTRE()) << m_findings.Blocks(false);
    EXPECT_EQ(1, Extract(area));
    EXPECT_TRUE(m_store.InOrder().front()->IsGenericTRE());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
