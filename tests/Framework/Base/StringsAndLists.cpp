#include "Base/KivListOfUnicodeString.h"
#include "Base/KivToken.h"

#include <gtest/gtest.h>

namespace {

int NeverEqual(const KivUnicodeString* a, const KivUnicodeString* b)
{
    return *a > *b ? 1 : -1;
}
int AlwaysAfter(const KivUnicodeString*, const KivUnicodeString*)
{
    return 1;
}

KivListOfUnicodeString ListOf(std::initializer_list<const char*> texts)
{
    KivListOfUnicodeString list;
    for (const char* text : texts) list.Append(KivUnicodeString(text));
    return list;
}

std::string Joined(const KivListOfUnicodeString& list)
{
    std::string joined;
    for (int i = 1; i <= list.Size(); ++i) joined += std::string(list[i].View()) + ",";
    return joined;
}

TEST(Lists, DuplicatesLeaveTheFirstInPlace)
{
    KivListOfUnicodeString list = ListOf({"b", "a", "b", "c", "a"});
    list.RemoveDuplicates();
    EXPECT_EQ(Joined(list), "b,a,c,");
}

TEST(Lists, QuickSortBearsComparisonsThatAreNoOrdering)
{
    KivListOfUnicodeString list;
    for (int i = 0; i < 5000; ++i) list.Append(KivUnicodeString(std::to_string(i * 7919 % 250)));
    list.QuickSort(&NeverEqual);
    ASSERT_EQ(list.Size(), 5000);
    for (int i = 2; i <= list.Size(); ++i) ASSERT_LE(list[i - 1].View(), list[i].View());

    list.QuickSort(&AlwaysAfter);
    list.RemoveDuplicates();
    EXPECT_EQ(list.Size(), 250);
}

TEST(Strings, TokensSkipEmptyOnesAndEnd)
{
    KivToken tokens("/s1::/s2:");
    EXPECT_EQ(tokens.GetNextToken(":"), "/s1");
    EXPECT_EQ(tokens.GetNextToken(":"), "/s2");
    EXPECT_TRUE(tokens.GetNextToken(":").IsEmpty());
    EXPECT_TRUE(tokens.GetNextToken(":").IsEmpty());
}

TEST(Strings, PartsAreCutAtTheEnds)
{
    const KivUnicodeString text("a.XML");
    KivUnicodeString lower = text;
    lower.ToLower();
    EXPECT_EQ(lower, "a.xml");
    EXPECT_EQ(text.SubString(1, 100), ".XML");
    EXPECT_TRUE(text.SubString(-1, 2).IsEmpty());
    EXPECT_TRUE(text.SubString(9, 2).IsEmpty());
    EXPECT_TRUE(KivUnicodeString(static_cast<const char*>(nullptr)).IsEmpty());
}

} // namespace
